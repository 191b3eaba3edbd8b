#include "adapters/qt/file_list_binding.h"

#include <QKeyEvent>
#include <QStyle>

#include "adapters/qt/convert.h"
#include "text/paths.h"

namespace qt_adapter {

namespace {

constexpr int kPictureSide = 128;
constexpr int kBesidePicture = 16;

}  // namespace

FileListBinding::FileListBinding(model::FileList& list, QListView& view, const Site& site)
    : ListBinding(list, view, site),
      files_(list),
      face_(view),
      switch_(new QAction(QStringLiteral("縮小画像で表示(&T)"), &view)) {
    switch_->setCheckable(true);
    switch_->setIcon(
        QIcon::fromTheme(QStringLiteral("view-list-icons"),
                         view.style()->standardIcon(QStyle::SP_FileDialogContentsView)));
    view.addAction(switch_);
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
    // In sight as well, at the foot of the scroll bar.
    auto* button = new QToolButton;
    button->setDefaultAction(switch_);
    button->setAutoRaise(true);
    button->setAccessibleName(QStringLiteral("縮小画像で表示"));
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view.addScrollBarWidget(button, Qt::AlignBottom);
    connect(switch_, &QAction::triggered, this, [this](bool on) {
        Act([&] { files_.ShowPictures(on); });
        SyncOwn();
    });
    ShowAs(files_.Pictures);
}

FileListBinding::~FileListBinding() {
    Rows().decoration = {};
}

void FileListBinding::RowsChanged(model::Control& control, const model::RowChange& change) {
    if (pictures_ && change.kind == model::RowChange::Cleared) {
        pictures_->Forget();
    }
    ListBinding::RowsChanged(control, change);
}

void FileListBinding::SyncOwn() {
    if (shownAsPictures_ != files_.Pictures) {
        ShowAs(files_.Pictures);
    }
    ListBinding::SyncOwn();
}

bool FileListBinding::eventFilter(QObject* watched, QEvent* event) {
    ListBinding::eventFilter(watched, event);
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    return key == Qt::Key_Return || key == Qt::Key_Enter;  // the list's own, not the window's
}

void FileListBinding::ShowAs(bool pictures) {
    shownAsPictures_ = pictures;
    switch_->setChecked(pictures);
    pictures_.reset();
    Rows().decoration = {};
    const bool shown = pictures && files_.thumbnails != nullptr;
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
