#include "adapters/qt/list_binding.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "adapters/qt/virtual_keys.h"
#include "model/list_controls.h"

namespace qt_adapter {

ListBinding::ListBinding(model::ListBox& list, QListView& view, Gate& gate)
    : ControlBinding(list, view, gate, nullptr), list_(list), view_(view), rows_(list) {
    // Equal heights: the view need not ask every row.
    view.setUniformItemSizes(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(&rows_);
    view.installEventFilter(this);
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

void ListBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    if (following_ && change.kind == model::RowChange::Replaced) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    rows_.Follow(change);
    const auto select = [this](int row) {
        view_.selectionModel()->select(rows_.index(row), list_.Selected(row)
                                                             ? QItemSelectionModel::Select
                                                             : QItemSelectionModel::Deselect);
    };
    if (change.kind == model::RowChange::Replaced) {
        select(change.row);
    } else if (change.kind == model::RowChange::Cleared) {
        for (int row = 0; row < list_.ListCount(); ++row) {
            if (list_.Selected(row)) {
                select(row);
            }
        }
    }
}

void ListBinding::SyncOwn() {
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const QModelIndex current = rows_.index(list_.ListIndex);
    if (view_.currentIndex() != current) {
        view_.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        if (current.isValid()) {
            view_.scrollTo(current);
        }
    }
    const QModelIndex top = view_.indexAt(QPoint(1, 1));
    if (top.isValid() && top.row() != list_.TopIndex && list_.TopIndex < list_.ListCount()) {
        view_.scrollTo(rows_.index(list_.TopIndex), QAbstractItemView::PositionAtTop);
    }
}

bool ListBinding::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = VirtualKey(static_cast<QKeyEvent*>(event)->key());
        if (key != 0) {
            Act([&] { list_.PressKey(key); });
        }
    }
    return false;
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
    if (following_) {
        return;
    }
    {
        const QScopedValueRollback<bool> guard(following_, true);
        list_.ListIndex = current.row();
    }
    // Moving by keys counts as a click; with the mouse the click itself is told.
    if (QGuiApplication::mouseButtons() == Qt::NoButton && current.isValid()) {
        QMetaObject::invokeMethod(
            this, [this] { Act([this] { list_.Press(); }); }, Qt::QueuedConnection);
    }
}

}  // namespace qt_adapter
