#include "adapters/qt/row_faces.h"

#include <QEvent>
#include <algorithm>

namespace qt_adapter {

RowFaces::RowFaces(const model::ListBox& list, RowsModel& rows, QListView& view)
    : list_(list),
      rows_(rows),
      view_(view),
      delegate_(new FaceDelegate(list, rows, view)),
      words_(new QLabel(view.viewport())) {
    view.setItemDelegate(delegate_);
    view.setResizeMode(QListView::Adjust);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
    pictures_.reset();
    if (list_.thumbnails) {
        pictures_ = std::make_unique<RowPictures>(
            view_, *list_.thumbnails, FaceDelegate::PictureSide(grid),
            [this](int row) { return list_.face(rows_.InList(row)).file; });
        delegate_->ShowPictures(pictures_.get());
    }
    // Not the toolkit's icon mode, which lays every row out by itself.
    view_.setFlow(grid ? QListView::LeftToRight : QListView::TopToBottom);
    view_.setWrapping(grid);
    FitGrid();
    view_.doItemsLayout();
    if (current.isValid()) {
        view_.scrollTo(current);
    }
}

/// Cells share out the width of the view.
void RowFaces::FitGrid() {
    if (shown_ == 0) {
        view_.setGridSize(QSize());
        return;
    }
    const QSize least = delegate_->RowSize(true);
    const int width = view_.viewport()->width() - 1;
    const int columns = std::max(1, width / least.width());
    const QSize cell(std::max(least.width(), width / columns), least.height());
    if (view_.gridSize() != cell) {
        view_.setGridSize(cell);
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
        FitGrid();
        words_->setGeometry(view_.viewport()->rect().adjusted(24, 0, -24, 0));
    }
    return false;
}

}  // namespace qt_adapter
