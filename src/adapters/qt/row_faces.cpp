#include "adapters/qt/row_faces.h"

#include <QEvent>

namespace qt_adapter {

RowFaces::RowFaces(const model::ListBox& list, RowsModel& rows, FaceView& view)
    : list_(list),
      rows_(rows),
      view_(view),
      delegate_(new FaceDelegate(list, rows, view)),
      words_(new QLabel(view.viewport())) {
    view.setItemDelegate(delegate_);
    view.setMouseTracking(true);  // for the marks' words
    view.viewport()->installEventFilter(this);
    words_->setAttribute(Qt::WA_TransparentForMouseEvents);
    words_->setAlignment(Qt::AlignCenter);
    words_->setWordWrap(true);
    words_->setForegroundRole(QPalette::PlaceholderText);
    connect(&rows, &QAbstractItemModel::rowsInserted, this, [this] { FollowWords(); });
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, [this] { FollowWords(); });
    connect(&rows, &QAbstractItemModel::modelReset, this, [this] { FollowWords(); });
    FollowLook();
    FollowWords();
}

RowFaces::~RowFaces() {
    rows_.decoration = {};
    delegate_->ShowPictures(nullptr);
}

void RowFaces::FollowLook() {
    const bool grid = list_.AsGrid;
    if (shown_ == static_cast<int>(grid)) {
        return;
    }
    const QModelIndex current = view_.currentIndex();
    shown_ = static_cast<int>(grid);
    delegate_->ShowPictures(nullptr);
    rows_.decoration = {};
    pictures_.reset();
    if (list_.thumbnails) {
        pictures_ = std::make_unique<RowPictures>(
            view_, *list_.thumbnails, FaceDelegate::PictureSide(grid),
            [this](int row) { return list_.face(rows_.InList(row)).file; });
        delegate_->ShowPictures(pictures_.get());
        rows_.decoration = [this](int row) {
            const QModelIndex index = rows_.IndexOf(row);
            return index.isValid() ? pictures_->Of(index.row()) : QPixmap();
        };
    }
    view_.SetCell(delegate_->RowSize(grid), grid);
    if (current.isValid()) {
        view_.scrollTo(current);
    }
}

void RowFaces::Refresh() {
    if (pictures_) {
        pictures_->Refresh();
    }
}

void RowFaces::FollowWords() {
    const char* property = list_.ListCount() == 0 ? "emptyWords" : "noneSeenWords";
    words_->setVisible(rows_.rowCount() == 0);
    if (!words_->isHidden()) {
        words_->setText(view_.property(property).toString());
    }
}

bool RowFaces::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        words_->setGeometry(view_.viewport()->rect().adjusted(24, 0, -24, 0));
    }
    return false;
}

}  // namespace qt_adapter
