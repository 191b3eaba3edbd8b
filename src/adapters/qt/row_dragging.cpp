#include "adapters/qt/row_dragging.h"

#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "adapters/qt/dragged_files.h"
#include "model/controls.h"
#include "model/window.h"

namespace qt_adapter {

namespace {

constexpr int kMarkWidth = 4;
constexpr int kEdge = 36;  // pixels from the edge where scrolling begins
constexpr int kScrollEveryMs = 16;
constexpr int kFastest = 24;  // pixels a step

/// A bar between rows.
class InsertionMark : public QWidget {
public:
    explicit InsertionMark(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(rect(), kMarkWidth / 2.0, kMarkWidth / 2.0);
    }
};

}  // namespace

RowDragging::RowDragging(model::ListBox& list, const RowsModel& rows, QListView& view, Gate& gate,
                         std::function<void(int)> dragged)
    : list_(list),
      rows_(rows),
      view_(view),
      gate_(gate),
      dragged_(std::move(dragged)),
      mark_(new InsertionMark(view.viewport())) {
    mark_->setObjectName(QStringLiteral("insertionMark"));
    scrolling_.setInterval(kScrollEveryMs);
    connect(&scrolling_, &QTimer::timeout, this, [this] { ScrollAtEdge(); });
    view.setDropIndicatorShown(false);  // the mark is drawn here
    view.viewport()->installEventFilter(this);
}

RowDragging::~RowDragging() = default;

bool RowDragging::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: {
            auto& drag = *static_cast<QDropEvent*>(event);
            if (!IsOwn(drag) && !TakesFiles(drag)) {
                return false;
            }
            drag.setDropAction(IsOwn(drag) ? Qt::MoveAction : drag.proposedAction());
            drag.accept();
            if (event->type() == QEvent::Drop) {
                Drop(drag);
            } else {
                Follow(drag);
            }
            return true;
        }
        case QEvent::DragLeave:
            End();
            return false;
        default:
            return false;
    }
}

bool RowDragging::IsOwn(const QDropEvent& event) const {
    return list_.RowsDragged && rows_.IsOwn(*event.mimeData());
}

bool RowDragging::TakesFiles(const QDropEvent& event) const {
    return list_.FilesDropped && list_.Reachable() && list_.Parent().Reachable() && HasFiles(event);
}

/// The row in front of which the place lies; their number after the last one.
int RowDragging::RowAt(QPoint place) const {
    const int rows = rows_.rowCount();
    const QModelIndex index = view_.indexAt(place);
    if (!index.isValid()) {
        const QRect first = rows > 0 ? view_.visualRect(rows_.index(0)) : QRect();
        return place.y() < first.top() ? 0 : rows;
    }
    const QRect rect = view_.visualRect(index);
    const bool first = list_.AsGrid ? place.x() < rect.center().x() : place.y() < rect.center().y();
    return first ? index.row() : index.row() + 1;
}

int RowDragging::RowOfFiles() const {
    const std::string name = view_.property("insertsWhile").toString().toStdString();
    const auto* box = dynamic_cast<model::CheckBox*>(list_.Parent().FindControl(name));
    const bool inserts = box && box->Value != 0 && list_.SelCount() == 1;
    return inserts ? rows_.From(list_.SelectedRows().front()) : rows_.rowCount();
}

void RowDragging::Follow(const QDropEvent& event) {
    place_ = event.position().toPoint();
    if (!IsOwn(event)) {
        ShowMark(RowOfFiles(), false);
        return;
    }
    ShowMarkOfRows();
    const int height = view_.viewport()->height();
    if (place_.y() < kEdge || place_.y() > height - kEdge) {
        scrolling_.start();
    } else {
        scrolling_.stop();
    }
}

/// Beside the row that the mouse is over, also where the next one begins a line of the grid.
void RowDragging::ShowMarkOfRows() {
    const int row = RowAt(place_);
    const QModelIndex over = view_.indexAt(place_);
    ShowMark(row, over.isValid() && over.row() < row);
}

void RowDragging::ShowMark(int row, bool afterRowBefore) {
    const QRect sight = view_.viewport()->rect();
    const bool last = afterRowBefore || row >= rows_.rowCount();
    QRect mark(sight.left(), sight.top(), sight.width(), kMarkWidth);
    if (rows_.rowCount() > 0) {
        const QRect rect = view_.visualRect(rows_.index(last ? row - 1 : row));
        if (list_.AsGrid) {
            const int x = last ? rect.right() : rect.left();
            mark = QRect(std::max(sight.left(), x - kMarkWidth / 2), rect.top(), kMarkWidth,
                         rect.height());
        } else {
            mark.moveTop((last ? rect.bottom() + 1 : rect.top()) - kMarkWidth / 2);
        }
    }
    // A place out of sight is shown at the edge beyond which it lies.
    mark.moveTop(std::clamp(mark.top(), sight.top(),
                            std::max(sight.top(), sight.bottom() - mark.height() + 1)));
    mark_->setGeometry(mark);
    mark_->show();
    mark_->raise();
}

void RowDragging::ScrollAtEdge() {
    const int above = kEdge - place_.y();
    const int below = place_.y() - (view_.viewport()->height() - kEdge);
    const int step = std::min(std::max(above, below), kEdge) * kFastest / kEdge;
    QScrollBar& bar = *view_.verticalScrollBar();
    bar.setValue(bar.value() + (above > 0 ? -step : step));
    ShowMarkOfRows();
}

void RowDragging::End() {
    scrolling_.stop();
    mark_->hide();
}

void RowDragging::Drop(const QDropEvent& event) {
    End();
    if (IsOwn(event)) {
        dragged_(rows_.BeforeInList(RowAt(event.position().toPoint())));
        return;
    }
    // Later, so that the program dragged from does not wait for boxes that come up here.
    QMetaObject::invokeMethod(
        this,
        [this, files = FilesOf(event)] {
            gate_.Guarded([&] {
                if (list_.Parent().Reachable()) {
                    list_.Drop(files);
                }
            });
        },
        Qt::QueuedConnection);
}

}  // namespace qt_adapter
