#include "adapters/qt/list_binding.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "model/list_controls.h"

namespace qt_adapter {

ListBinding::ListBinding(model::ListBox& list, QListView& view, const Site& site)
    : ControlBinding(list, view, site),
      list_(list),
      view_(view),
      rows_(list, [this](int before) { Dragged(before); }) {
    // Equal heights: the view need not ask every row.
    view.setUniformItemSizes(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(&rows_);
    HearKeys();
    view.viewport()->installEventFilter(this);
    // Rows can be dragged where a handler waits for it: see RowsModel.
    view.setDragDropMode(QAbstractItemView::InternalMove);
    connect(
        view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this](const QItemSelection& on, const QItemSelection& off) { FollowSelection(on, off); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { FollowCurrent(current); });
    connect(&view, &QListView::clicked, this, [this] { Act([this] { list_.Press(); }); });
    connect(&view, &QListView::doubleClicked, this,
            [this] { Act([this] { list_.PressAgain(); }); });
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        const QModelIndex top = view_.indexAt(QPoint(1, 1));
        if (!following_ && top.isValid()) {
            const QScopedValueRollback<bool> guard(following_, true);
            list_.TopIndex = top.row();
        }
    });
    Sync();
    RowsChanged(list, {model::RowChange::Cleared, 0});
}

ListBinding::~ListBinding() {
    view_.setModel(nullptr);
}

bool ListBinding::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            focused_ = true;
            break;
        case QEvent::MouseButtonPress:
            held_ = true;
            focused_ = false;
            break;
        case QEvent::KeyPress:
            focused_ = false;
            held_ = false;  // dragging swallows the release
            break;
        case QEvent::MouseButtonRelease:
            held_ = false;
            break;
        default:
            break;
    }
    return ControlBinding::eventFilter(watched, event);
}

void ListBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    if (following_ && change.kind == model::RowChange::Replaced) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    rows_.Follow(change);
    if (change.kind == model::RowChange::Replaced) {
        ShowSelection(change.row, change.count);
    } else if (change.kind == model::RowChange::Cleared) {
        ShowSelection(0, list_.ListCount());
    }
}

/// Runs of rows that differ reach the view as one change: there can be thousands of rows.
void ListBinding::ShowSelection(int first, int count) {
    QItemSelectionModel& seen = *view_.selectionModel();
    const auto differs = [&](int row, bool on) {
        const bool wanted = list_.Selected(row) || (!SelectsMany() && row == list_.ListIndex);
        return wanted == on && seen.isRowSelected(row) != on;
    };
    for (const bool on : {false, true}) {
        QItemSelection changed;
        for (int row = first; row < first + count; ++row) {
            const int begin = row;
            while (row < first + count && differs(row, on)) {
                ++row;
            }
            if (row > begin) {
                changed.select(rows_.index(begin), rows_.index(row - 1));
            }
        }
        seen.select(changed, on ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
    }
}

void ListBinding::SyncOwn() {
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const auto mode =
        SelectsMany() ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection;
    if (mode != view_.selectionMode()) {
        view_.setSelectionMode(mode);
    }
    const QSize room(list_.PictureWidth, list_.PictureHeight);
    if (room != room_) {
        room_ = room;
        rows_.FollowPictureSize();
    }
    const QModelIndex current = rows_.index(list_.ListIndex);
    if (view_.currentIndex() != current) {
        // Of several rows the selected ones are announced one by one.
        view_.selectionModel()->setCurrentIndex(current, SelectsMany()
                                                             ? QItemSelectionModel::NoUpdate
                                                             : QItemSelectionModel::ClearAndSelect);
        if (current.isValid()) {
            view_.scrollTo(current);
        }
    }
    const QModelIndex top = view_.indexAt(QPoint(1, 1));
    if (top.isValid() && top.row() != list_.TopIndex && list_.TopIndex < list_.ListCount()) {
        view_.scrollTo(rows_.index(list_.TopIndex), QAbstractItemView::PositionAtTop);
    }
}

/// Later, so that the toolkit is done with the dragging when boxes come up.
void ListBinding::Dragged(int before) {
    QMetaObject::invokeMethod(
        this, [this, before] { Act([&] { list_.DragTo(before); }); }, Qt::QueuedConnection);
}

void ListBinding::FollowSelection(const QItemSelection& on, const QItemSelection& off) {
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    for (const QModelIndex& index : off.indexes()) {
        list_.Select(index.row(), false);
    }
    for (const QModelIndex& index : on.indexes()) {
        list_.Select(index.row(), true);
    }
}

void ListBinding::FollowCurrent(const QModelIndex& current) {
    if (following_ || focused_) {
        return;
    }
    {
        const QScopedValueRollback<bool> guard(following_, true);
        list_.ListIndex = current.row();
    }
    // Moving by keys counts as a click; with the mouse the click itself is passed on.
    if (MovingPresses() && !held_ && current.isValid()) {
        QMetaObject::invokeMethod(
            this, [this] { Act([this] { list_.Press(); }); }, Qt::QueuedConnection);
    }
}

}  // namespace qt_adapter
