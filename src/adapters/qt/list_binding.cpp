#include "adapters/qt/list_binding.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "adapters/qt/row_height.h"
#include "model/list_controls.h"

namespace qt_adapter {

ListBinding::ListBinding(model::ListBox& list, QListView& view, const Site& site)
    : ControlBinding(list, view, site),
      list_(list),
      view_(view),
      rows_(list, [this](int before) { Dragged(before); }),
      dragging_(list, rows_, view, site.gate, [this](int before) { Dragged(before); }) {
    // Equal heights: the view need not ask every row.
    view.setUniformItemSizes(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(&rows_);
    if (auto* faces = qobject_cast<FaceView*>(&view); faces && list.face) {
        faces_ = std::make_unique<RowFaces>(list, rows_, *faces);
    } else {
        GiveRowsHeight(view);
    }
    HearKeys();
    view.viewport()->installEventFilter(this);
    // Rows can be dragged where a handler waits for it: see RowsModel.
    view.setDragDropMode(QAbstractItemView::InternalMove);
    connect(
        view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this](const QItemSelection& on, const QItemSelection& off) { FollowSelection(on, off); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { FollowCurrent(current); });
    connect(&view, &QListView::clicked, this, [this] {
        chosen_ = false;
        Act([this] { list_.Press(); });
    });
    connect(&view, &QListView::doubleClicked, this,
            [this] { Act([this] { list_.PressAgain(); }); });
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        const QModelIndex top = view_.indexAt(QPoint(1, 1));
        if (!following_ && !unsettled_ && top.isValid()) {
            const QScopedValueRollback<bool> guard(following_, true);
            list_.TopIndex = rows_.InList(top.row());
        }
    });
    Sync();
    RowsChanged(list, {model::RowChange::Cleared, 0});
    unsettled_ = false;
    ShowCurrent();
    ShowTop();
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
            chosen_ = false;
            break;
        case QEvent::ContextMenu:
            held_ = false;  // the menu takes the release
            PressIfChosen();
            break;
        case QEvent::KeyPress:
            focused_ = false;
            held_ = false;  // dragging swallows the release
            break;
        case QEvent::MouseButtonRelease:
            held_ = false;
            // After the view's own click.
            QMetaObject::invokeMethod(
                this, [this] { PressIfChosen(); }, Qt::QueuedConnection);
            break;
        default:
            break;
    }
    return ControlBinding::eventFilter(watched, event);
}

void ListBinding::PropertyChanged(model::Control& control, model::PropertyBase& property) {
    if (&property == &list_.ListIndex) {
        ShowCurrent();
    } else if (&property == &list_.TopIndex) {
        ShowTop();
    } else {
        ControlBinding::PropertyChanged(control, property);
    }
}

void ListBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    const bool replaced = change.kind == model::RowChange::Replaced;
    if (following_ && replaced) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const QModelIndex current = view_.currentIndex();
    rows_.Follow(change);
    if (replaced) {
        ShowSelection(change.row, change.count);
        if (faces_ && change.count == list_.ListCount()) {
            faces_->Refresh();
        }
    } else {
        Unsettle();
    }
    if (change.kind == model::RowChange::Cleared) {
        ShowSelection(0, list_.ListCount());
    }
    // The view's current row goes with its row; the list's is a number.
    const QModelIndex wanted = rows_.IndexOf(list_.ListIndex);
    if (SelectsMany() && (view_.currentIndex() != wanted || current != wanted)) {
        view_.selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::NoUpdate);
    }
}

/// Runs of rows reach the view as one change: there can be thousands of rows.
void ListBinding::ShowSelection(int first, int count) {
    const int begin = rows_.From(first), end = rows_.From(first + count);
    if (begin == end) {
        return;
    }
    const auto wanted = [this](int row) {
        const int inList = rows_.InList(row);
        return list_.Selected(inList) || (!SelectsMany() && inList == list_.ListIndex);
    };
    QItemSelection on;
    for (int row = begin; row < end; ++row) {
        const int run = row;
        while (row < end && wanted(row)) {
            ++row;
        }
        if (row > run) {
            on.append(QItemSelectionRange(rows_.index(run), rows_.index(row - 1)));
        }
    }
    QItemSelectionModel& seen = *view_.selectionModel();
    const QItemSelection all(rows_.index(begin), rows_.index(end - 1));
    if (on != all) {
        seen.select(all, QItemSelectionModel::Deselect);
    }
    seen.select(on, QItemSelectionModel::Select);
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
    if (faces_) {
        faces_->FollowLook();
    }
}

void ListBinding::ShowCurrent() {
    const QModelIndex current = rows_.IndexOf(list_.ListIndex);
    if (following_ || view_.currentIndex() == current) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    // Of several rows the selected ones are announced one by one.
    view_.selectionModel()->setCurrentIndex(current, SelectsMany()
                                                         ? QItemSelectionModel::NoUpdate
                                                         : QItemSelectionModel::ClearAndSelect);
    if (current.isValid()) {
        view_.scrollTo(current);
    }
}

void ListBinding::ShowTop() {
    if (following_) {
        return;
    }
    if (unsettled_) {
        topWanted_ = true;
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const int row = std::min(rows_.From(list_.TopIndex), rows_.rowCount() - 1);
    if (row >= 0 && view_.indexAt(QPoint(1, 1)).row() != row) {
        view_.scrollTo(rows_.index(row), QAbstractItemView::PositionAtTop);
    }
}

/// To ask where a row stands lays all rows out anew: once for all changes between two turns of the
/// event loop.
void ListBinding::Unsettle() {
    if (!std::exchange(unsettled_, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                unsettled_ = false;
                if (std::exchange(topWanted_, false)) {
                    ShowTop();
                }
            },
            Qt::QueuedConnection);
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
    SelectInList(off, false);
    SelectInList(on, true);
    if (rows_.Filtered()) {
        // What a person selects is selected alone: a row that is not seen is not among it.
        for (const int row : list_.SelectedRows()) {
            if (!rows_.IndexOf(row).isValid()) {
                list_.Select(row, false);
            }
        }
    }
    if (SelectsMany() && MovingPresses()) {
        if (held_) {
            chosen_ = true;
        } else {
            PressSoon();
        }
    }
}

void ListBinding::SelectInList(const QItemSelection& ranges, bool on) {
    for (const QItemSelectionRange& range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const int first = row;
            while (row < range.bottom() && rows_.InList(row + 1) == rows_.InList(row) + 1) {
                ++row;
            }
            list_.SelectRows(rows_.InList(first), row - first + 1, on);
        }
    }
}

void ListBinding::FollowCurrent(const QModelIndex& current) {
    if (following_ || focused_) {
        return;
    }
    {
        const QScopedValueRollback<bool> guard(following_, true);
        list_.ListIndex = rows_.InList(current.row());
    }
    // Moving by keys counts as a click; with the mouse the click itself is passed on.
    if (MovingPresses() && !held_ && current.isValid()) {
        PressSoon();
    }
}

/// Later, and once for all that one key changes.
void ListBinding::PressSoon() {
    if (!std::exchange(pressQueued_, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                pressQueued_ = false;
                Act([this] { list_.Press(); });
            },
            Qt::QueuedConnection);
    }
}

/// Rows that a right press or a frame drawn with the mouse selects are chosen like those of a
/// click.
void ListBinding::PressIfChosen() {
    if (std::exchange(chosen_, false)) {
        Act([this] { list_.Press(); });
    }
}

}  // namespace qt_adapter
