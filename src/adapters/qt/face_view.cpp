#include "adapters/qt/face_view.h"

#include <QDrag>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace qt_adapter {

namespace {

constexpr int kWheelStep = 48;    // pixels; the wheel makes three at once
constexpr int kDragPicture = 96;  // side of what hangs at the pointer
constexpr int kBadge = 24;

}  // namespace

FaceView::FaceView(QWidget* parent) : QListView(parent) {
    setVerticalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void FaceView::SetCell(QSize least, bool grid) {
    least_ = least;
    grid_ = grid;
    doItemsLayout();
}

int FaceView::Columns() const {
    return grid_ ? std::max(1, viewport()->width() / least_.width()) : 1;
}

QSize FaceView::Cell() const {
    return {viewport()->width() / Columns(), least_.height()};
}

/// In the view's pixels.
QRect FaceView::RectOf(int row) const {
    const QSize cell = Cell();
    const int columns = Columns();
    return {QPoint(row % columns * cell.width(), row / columns * cell.height() - verticalOffset()),
            cell};
}

QRect FaceView::visualRect(const QModelIndex& index) const {
    return index.isValid() ? RectOf(index.row()) : QRect();
}

QModelIndex FaceView::indexAt(const QPoint& place) const {
    const QSize cell = Cell();
    const int y = place.y() + verticalOffset();
    const int column = place.x() / cell.width();
    if (y < 0 || place.x() < 0 || column >= Columns()) {
        return {};
    }
    const int row = y / cell.height() * Columns() + column;
    return row < Rows() ? model()->index(row, 0) : QModelIndex();
}

void FaceView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid()) {
        return;
    }
    updateGeometries();  // rows may have come since
    const QRect rect = visualRect(index);
    const int height = viewport()->height();
    const int top = rect.top() + verticalOffset();
    const int bottom = top + rect.height() - height;
    QScrollBar& bar = *verticalScrollBar();
    switch (hint) {
        case PositionAtTop:
            bar.setValue(top);
            break;
        case PositionAtBottom:
            bar.setValue(bottom);
            break;
        case PositionAtCenter:
            bar.setValue((top + bottom) / 2);
            break;
        default:
            if (rect.top() < 0 || rect.height() > height) {
                bar.setValue(top);
            } else if (rect.bottom() >= height) {
                bar.setValue(bottom);
            }
            break;
    }
}

/// Past the toolkit's list, which would lay out every row.
void FaceView::doItemsLayout() {
    QAbstractItemView::doItemsLayout();
}

int FaceView::verticalOffset() const {
    return verticalScrollBar()->value();
}

QModelIndex FaceView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const int last = Rows() - 1;
    if (last < 0) {
        return {};
    }
    const int row = currentIndex().row();
    if (row < 0) {
        return model()->index(0, 0);
    }
    const int columns = Columns();
    const int page = std::max(1, viewport()->height() / Cell().height()) * columns;
    int to = row;
    switch (action) {
        case MoveUp:
            to = row >= columns ? row - columns : row;
            break;
        case MoveDown:
            // From the last line but one also to its shorter end.
            to = row / columns < last / columns ? std::min(row + columns, last) : row;
            break;
        case MoveLeft:
            to = grid_ ? row - 1 : row;
            break;
        case MoveRight:
            to = grid_ ? row + 1 : row;
            break;
        case MovePrevious:
            to = row - 1;
            break;
        case MoveNext:
            to = row + 1;
            break;
        case MoveHome:
            to = 0;
            break;
        case MoveEnd:
            to = last;
            break;
        case MovePageUp:
            to = row - page;
            break;
        case MovePageDown:
            to = row + page;
            break;
    }
    return model()->index(std::clamp(to, 0, last), 0);
}

/// The cells that a frame touches.
QItemSelection FaceView::RowsIn(const QRect& rect) const {
    QItemSelection selection;
    const QSize cell = Cell();
    const int columns = Columns(), last = Rows() - 1;
    const int left = std::max(0, rect.left() / cell.width());
    const int right = std::min(columns - 1, rect.right() / cell.width());
    const int top = std::max(0, rect.top() + verticalOffset()) / cell.height();
    const int bottom = std::min((rect.bottom() + verticalOffset()) / cell.height(),
                                last < 0 ? -1 : last / columns);
    if (rect.bottom() + verticalOffset() < 0 || left > right || top > bottom) {
        return selection;
    }
    if (columns == 1) {
        selection.select(model()->index(top, 0), model()->index(bottom, 0));
        return selection;
    }
    for (int line = top; line <= bottom; ++line) {
        const int first = line * columns + left;
        if (first <= last) {
            selection.select(model()->index(first, 0),
                             model()->index(std::min(last, line * columns + right), 0));
        }
    }
    return selection;
}

void FaceView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    QItemSelection selection;
    if (state() == DragSelectingState) {
        selection = RowsIn(rect.normalized());
    } else {
        // By a click or keys: all rows from one corner to the other, in their order.
        const QModelIndex one = indexAt(rect.topLeft()), other = indexAt(rect.bottomRight());
        if (one.isValid() && other.isValid()) {
            selection.select(std::min(one, other), std::max(one, other));
        }
    }
    selectionModel()->select(selection, command);
}

QRegion FaceView::visualRegionForSelection(const QItemSelection& selection) const {
    const QItemSelection seen = RowsIn(viewport()->rect());
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        for (const QItemSelectionRange& line : seen) {
            for (int row = std::max(range.top(), line.top());
                 row <= std::min(range.bottom(), line.bottom()); ++row) {
                region += RectOf(row);
            }
        }
    }
    return region;
}

void FaceView::updateGeometries() {
    const int lines = (Rows() + Columns() - 1) / Columns();
    const int height = viewport()->height();
    QScrollBar& bar = *verticalScrollBar();
    bar.setSingleStep(kWheelStep);
    bar.setPageStep(height);
    bar.setRange(0, std::max(0, lines * Cell().height() - height));
    QAbstractItemView::updateGeometries();
}

void FaceView::scrollContentsBy(int, int dy) {
    viewport()->scroll(0, dy);
}

/// A grid keeps the row that is at the top.
void FaceView::resizeEvent(QResizeEvent* event) {
    const int columns = std::max(1, grid_ ? event->oldSize().width() / least_.width() : 1);
    const int top = verticalOffset() / least_.height() * columns;
    QAbstractItemView::resizeEvent(event);
    if (columns != Columns() && top > 0) {
        scrollTo(model()->index(std::min(top, Rows() - 1), 0), PositionAtTop);
    }
    viewport()->update();
}

void FaceView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State state = option.state;
    for (const QItemSelectionRange& range : RowsIn(event->rect())) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex index = model()->index(row, 0);
            option.rect = RectOf(row);
            option.state = state & ~QStyle::State_HasFocus;
            option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
            option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
            itemDelegateForIndex(index)->paint(&painter, option, index);
        }
    }
}

/// What hangs at the pointer is the current row's picture and how many rows there are.
void FaceView::startDrag(Qt::DropActions actions) {
    int count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        count += range.height();
    }
    const double ratio = devicePixelRatioF();
    QPixmap picture(QSize(kDragPicture, kDragPicture) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(0.85);
        const QRect whole(0, 0, kDragPicture, kDragPicture);
        painter.drawPixmap(whole, currentIndex().data(Qt::DecorationRole).value<QPixmap>());
        painter.setOpacity(1);
        const QString words = QString::number(count);
        const int width = std::max(kBadge, fontMetrics().horizontalAdvance(words) + kBadge / 2);
        const QRect badge(kDragPicture - width, 0, width, kBadge);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(badge, kBadge / 2.0, kBadge / 2.0);
        painter.setPen(palette().color(QPalette::HighlightedText));
        painter.drawText(badge, Qt::AlignCenter, words);
    }
    auto* drag = new QDrag(this);
    drag->setMimeData(model()->mimeData({}));
    drag->setPixmap(picture);
    drag->setHotSpot({kDragPicture / 2, kDragPicture / 2});
    drag->exec(actions, Qt::MoveAction);
}

}  // namespace qt_adapter
