#include "adapters/qt/grid_binding.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "adapters/qt/convert.h"

namespace qt_adapter {

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_.Cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return ToQt(grid_.TextMatrix(index.row() + 1, index.column()));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return ToQt(grid_.TextMatrix(0, section));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, static_cast<bool>(grid_.CellEdited));
    return flags;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    edited_(index.row() + 1, index.column(), FromQt(value.toString()));
    return true;
}

void GridModel::Follow(const model::RowChange& change) {
    const int row = change.row - 1;
    switch (change.kind) {
        case model::RowChange::Inserted:
            beginInsertRows({}, row, row);
            ++count_;
            endInsertRows();
            break;
        case model::RowChange::Removed:
            beginRemoveRows({}, row, row);
            --count_;
            endRemoveRows();
            break;
        case model::RowChange::Replaced:
            if (row < 0) {
                emit headerDataChanged(Qt::Horizontal, 0, grid_.Cols() - 1);
            } else {
                emit dataChanged(index(row, 0), index(row, grid_.Cols() - 1));
            }
            break;
        case model::RowChange::Cleared:
            beginResetModel();
            count_ = grid_.Rows() - 1;
            endResetModel();
            break;
    }
}

GridBinding::GridBinding(model::Grid& grid, QTableView& view, const Site& site)
    : ControlBinding(grid, view, site),
      grid_(grid),
      view_(view),
      cells_(grid, [this](int row, int col, const Text& value) {
          Act([&] { grid_.Edit(row, col, value); });
      }) {
    view.setModel(&cells_);
    view.setSelectionMode(QAbstractItemView::ContiguousSelection);
    // Equal heights: the view need not ask every row.
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->hide();
    HearKeys();
    view.viewport()->installEventFilter(this);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        // By keys, as soon as the current cell is the new one; with the mouse when it lets go.
        if (!held_ && !following_) {
            QMetaObject::invokeMethod(
                this, [this] { ChosenByPerson(); }, Qt::QueuedConnection);
        }
    });
    QHeaderView* header = view.horizontalHeader();
    header->setSectionsClickable(true);
    header->disconnect(SIGNAL(sectionPressed(int)), &view);  // would choose the whole column
    header->disconnect(SIGNAL(sectionEntered(int)), &view);
    connect(header, &QHeaderView::sectionClicked, this,
            [this](int col) { Act([&] { grid_.Choose(0, col, 0, col); }); });
    connect(&view, &QTableView::doubleClicked, this,
            [this] { Act([this] { grid_.PressAgain(); }); });
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        const int top = view_.rowAt(0);
        if (!following_ && top >= 0) {
            const QScopedValueRollback<bool> guard(following_, true);
            grid_.TopRow = top + 1;
        }
    });
    Sync();
}

GridBinding::~GridBinding() {
    view_.setModel(nullptr);
}

void GridBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    {
        const QScopedValueRollback<bool> guard(following_, true);
        cells_.Follow(change);
    }
    // The view's current cell goes with its row; the grid's is a number.
    if (view_.currentIndex() != cells_.index(grid_.Row - 1, grid_.Col)) {
        SyncOwn();
    }
}

void GridBinding::SyncOwn() {
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const QModelIndex current = cells_.index(grid_.Row - 1, grid_.Col);
    const QModelIndex end = cells_.index(grid_.RowSel - 1, grid_.ColSel);
    view_.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    view_.selectionModel()->select(QItemSelection(current, end),
                                   QItemSelectionModel::ClearAndSelect);
    const int top = view_.rowAt(0);
    if (top >= 0 && top != grid_.TopRow - 1) {
        view_.scrollTo(cells_.index(grid_.TopRow - 1, 0), QAbstractItemView::PositionAtTop);
    }
}

bool GridBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched != view_.viewport()) {
        return ControlBinding::eventFilter(watched, event);
    }
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress) {
        held_ = true;
    } else if (type == QEvent::MouseButtonRelease && held_) {
        held_ = false;
        ChosenByPerson();
    }
    return false;
}

void GridBinding::ChosenByPerson() {
    const QItemSelection range = view_.selectionModel()->selection();
    if (range.isEmpty()) {
        return;
    }
    const QItemSelectionRange& cells = range.first();
    // The view's current cell is the end that moved, the grid's is the one where the range began.
    const QModelIndex moved = view_.currentIndex();
    const bool up = moved.row() == cells.top();
    const bool left = moved.column() == cells.left();
    {
        const QScopedValueRollback<bool> guard(following_, true);
        Act([&] {
            grid_.Choose(
                (up ? cells.bottom() : cells.top()) + 1, left ? cells.right() : cells.left(),
                (up ? cells.top() : cells.bottom()) + 1, left ? cells.left() : cells.right());
        });
    }
    if (grid_.RowSel - 1 != moved.row() || grid_.ColSel != moved.column()) {
        SyncOwn();  // a handler chose other cells
    }
}

}  // namespace qt_adapter
