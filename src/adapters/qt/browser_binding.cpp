#include "adapters/qt/browser_binding.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyle>

#include "adapters/qt/convert.h"
#include "adapters/qt/row_height.h"

namespace qt_adapter {

namespace {

/// The desktop's own icon, or the toolkit's where its theme has none.
struct PlaceIcon {
    platform::Place::Kind kind;
    const char* theme;
    QStyle::StandardPixmap otherwise;
};
constexpr PlaceIcon kPlaceIcons[] = {
    {platform::Place::Home, "user-home", QStyle::SP_DirHomeIcon},
    {platform::Place::Desktop, "user-desktop", QStyle::SP_DesktopIcon},
    {platform::Place::Pictures, "folder-pictures", QStyle::SP_DirIcon},
    {platform::Place::Music, "folder-music", QStyle::SP_DirIcon},
    {platform::Place::Videos, "folder-videos", QStyle::SP_DirIcon},
    {platform::Place::Document, "folder-documents", QStyle::SP_FileDialogStart},
    {platform::Place::Last, "document-open-recent", QStyle::SP_FileDialogBack},
    {platform::Place::Used, "folder-favorites", QStyle::SP_DirLinkIcon},
    {platform::Place::Disk, "drive-removable-media", QStyle::SP_DriveFDIcon},
    {platform::Place::Drive, "drive-harddisk", QStyle::SP_DriveHDIcon},
    {platform::Place::Root, "computer", QStyle::SP_ComputerIcon},
};

QIcon IconOf(platform::Place::Kind kind, const QStyle& style) {
    for (const PlaceIcon& icon : kPlaceIcons) {
        if (icon.kind == kind) {
            return QIcon::fromTheme(icon.theme, style.standardIcon(icon.otherwise));
        }
    }
    return {};
}

}  // namespace

ComboBinding::ComboBinding(model::ListBox& list, QComboBox& widget, const Site& site)
    : ControlBinding(list, widget, site), list_(list), face_(widget) {
    for (int row = 0; row < list.ListCount(); ++row) {
        widget.addItem(ToQt(list.List(row)));
    }
    HearKeys();
    // Only what a person does; also the choice of the row that stands there already.
    connect(&widget, &QComboBox::activated, this, [this](int row) {
        Act([&] { list_.Choose({row}); });
        SyncOwn();
    });
    Sync();
}

void ComboBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    for (int row = change.row; row < change.row + change.count; ++row) {
        switch (change.kind) {
            case model::RowChange::Inserted:
                face_.insertItem(row, QString());
                ShowRow(row);
                break;
            case model::RowChange::Removed:
                face_.removeItem(change.row);
                break;
            case model::RowChange::Replaced:
                ShowRow(row);
                break;
            case model::RowChange::Cleared:
                face_.clear();
                break;
        }
    }
    SyncOwn();
}

void ComboBinding::SyncOwn() {
    face_.setCurrentIndex(list_.ListIndex);
}

void ComboBinding::ShowRow(int row) {
    face_.setItemText(row, ToQt(list_.List(row)));
}

DriveBinding::DriveBinding(model::DriveList& drive, QComboBox& widget, const Site& site)
    : ComboBinding(drive, widget, site), drive_(drive) {
    for (int row = 0; row < drive.ListCount(); ++row) {
        ShowRow(row);
    }
}

void DriveBinding::ShowRow(int row) {
    const auto& places = drive_.Places();
    if (row < 0 || row >= static_cast<int>(places.size())) {
        return;
    }
    const platform::Place& place = places[static_cast<size_t>(row)];
    face_.setItemText(row, ToQt(place.label));
    face_.setItemIcon(row, IconOf(place.kind, *face_.style()));
    face_.setItemData(row, ToQt(place.path), Qt::ToolTipRole);
}

FolderBinding::FolderBinding(model::FolderList& dir, QTreeView& widget, const Site& site)
    : ControlBinding(dir, widget, site),
      dir_(dir),
      face_(widget),
      tree_(std::make_unique<FolderTree>(dir.folders)) {
    HearKeys();
    widget.setHeaderHidden(true);
    widget.setUniformRowHeights(true);
    GiveRowsHeight(widget);
    widget.setModel(tree_.get());
    connect(&widget, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        Opened(index);
        face_.expand(index);
    });
    connect(widget.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& on) { Opened(on.indexes().value(0)); });
    Sync();
}

FolderBinding::~FolderBinding() {
    face_.setModel(nullptr);
}

/// The same folder read anew: so is all that was read of the tree.
void FolderBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    if (change.kind == model::RowChange::Cleared && !following_ && shown_ == dir_.Path()) {
        const QScopedValueRollback<bool> guard(following_, true);
        tree_->Renew();
        if (tree_->PathOf(face_.currentIndex()) != dir_.Path()) {
            face_.setCurrentIndex(tree_->Find(dir_.Path()));  // it came or went
        }
    }
}

void FolderBinding::SyncOwn() {
    shown_ = dir_.Path();
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const QModelIndex index = tree_->Find(dir_.Path());
    face_.setCurrentIndex(index);
    if (index.isValid()) {
        face_.expand(index);
        face_.scrollTo(index, QAbstractItemView::PositionAtCenter);
    }
}

/// What was scrolled to before the first showing was for another size.
bool FolderBinding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        QMetaObject::invokeMethod(
            this,
            [this] { face_.scrollTo(face_.currentIndex(), QAbstractItemView::PositionAtCenter); },
            Qt::QueuedConnection);
    }
    return ControlBinding::eventFilter(watched, event);
}

void FolderBinding::Opened(const QModelIndex& index) {
    if (!following_ && index.isValid()) {
        const QScopedValueRollback<bool> guard(following_, true);
        Act([&] { dir_.Open(tree_->PathOf(index)); });
    }
}

}  // namespace qt_adapter
