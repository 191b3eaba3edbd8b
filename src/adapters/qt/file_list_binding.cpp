#include "adapters/qt/file_list_binding.h"

#include <QKeyEvent>
#include <utility>

#include "adapters/qt/convert.h"
#include "text/paths.h"

namespace qt_adapter {

namespace {

constexpr int kPictureSide = 88;
constexpr int kBesidePicture = 14;

bool CanBeRead(platform::Folders& folders, TextView path) {
    return !folders.Read(path, u"", 0, [] { return false; }).identity.empty();
}

}  // namespace

FileListBinding::FileListBinding(model::FileList& list, QListView& view, const Site& site)
    : ListBinding(list, view, site),
      files_(list),
      face_(view),
      hint_(std::make_unique<EmptyHint>(view)) {
    FindButtons();
    ShowAs(files_.Pictures);
    FollowHint();
}

void FileListBinding::FindButtons() {
    for (QToolButton* button : face_.window()->findChildren<QToolButton*>()) {
        if (button->property("ofFiles").toString() != face_.objectName() ||
            face_.objectName().isEmpty()) {
            continue;
        }
        button->setCheckable(true);
        buttons_.push_back(button);
        connect(button, &QToolButton::clicked, this,
                [this, button] { Choose(button->property("asPictures").toBool()); });
    }
    if (buttons_.empty()) {
        return;
    }
    switch_ = new QAction(QStringLiteral("縮小画像で表示(&T)"), &face_);
    switch_->setCheckable(true);
    face_.addAction(switch_);
    face_.setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(switch_, &QAction::triggered, this, [this](bool on) { Choose(on); });
}

void FileListBinding::Choose(bool pictures) {
    Act([&] { files_.ShowPictures(pictures); });
    ShowAs(files_.Pictures);
}

/// Once for all changes between two turns of the event loop, as it may ask for the folder.
void FileListBinding::FollowHint() {
    if (std::exchange(hintQueued_, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            hintQueued_ = false;
            if (files_.ListCount() > 0 || !files_.folders || files_.Path().empty()) {
                hint_->Say({}, {});
            } else if (CanBeRead(*files_.folders, files_.Path())) {
                hint_->Say(face_.property("emptyWords").toString(), {});
            } else if (files_.folders->IsFolder(files_.Path())) {
                hint_->Say(
                    QStringLiteral("このフォルダは読めません\n読み取りが許可されていません。"),
                    QStringLiteral("lock"));
            } else {
                hint_->Say(QStringLiteral("このフォルダはなくなりました"), {});
            }
        },
        Qt::QueuedConnection);
}

FileListBinding::~FileListBinding() {
    Rows().decoration = {};
    delete switch_;
}

void FileListBinding::RowsChanged(model::Control& control, const model::RowChange& change) {
    if (pictures_ && change.kind == model::RowChange::Cleared) {
        pictures_->Forget();
    }
    ListBinding::RowsChanged(control, change);
    FollowHint();
}

void FileListBinding::SyncOwn() {
    if (shownAsPictures_ != files_.Pictures) {
        ShowAs(files_.Pictures);
    }
    ListBinding::SyncOwn();
    FollowHint();
}

bool FileListBinding::eventFilter(QObject* watched, QEvent* event) {
    ListBinding::eventFilter(watched, event);
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    return key == Qt::Key_Return || key == Qt::Key_Enter;  // the list's own, not the window's
}

void FileListBinding::ShowAs(bool pictures) {
    shownAsPictures_ = pictures;
    for (QToolButton* button : buttons_) {
        button->setChecked(button->property("asPictures").toBool() == pictures);
    }
    if (switch_) {
        switch_->setChecked(pictures);
    }
    pictures_.reset();
    Rows().decoration = {};
    const bool shown = pictures && files_.thumbnails && !buttons_.empty();
    face_.setViewMode(shown ? QListView::IconMode : QListView::ListMode);
    face_.setMovement(QListView::Static);
    face_.setResizeMode(QListView::Adjust);
    face_.setWrapping(shown);
    face_.setTextElideMode(Qt::ElideMiddle);
    face_.setIconSize(QSize(kPictureSide, kPictureSide));
    face_.setGridSize(shown ? QSize(kPictureSide + kBesidePicture,
                                    kPictureSide + kBesidePicture + face_.fontMetrics().height())
                            : QSize());
    if (shown) {
        pictures_ = std::make_unique<RowPictures>(
            face_, *files_.thumbnails, kPictureSide,
            [this](int row) { return text::WithSeparator(files_.Path()) + files_.List(row); });
        Rows().decoration = [this](int row) { return pictures_->Of(row); };
    }
    face_.viewport()->update();
}

}  // namespace qt_adapter
