#include "adapters/qt/grid_binding.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include "adapters/qt/convert.h"
#include "adapters/qt/virtual_keys.h"

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

GridBinding::GridBinding(model::Grid& grid, QTableView& view, Gate& gate)
    : ControlBinding(grid, view, gate, nullptr),
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
    view.installEventFilter(this);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { ChosenByPerson(); });
    connect(view.horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int col) { Act([&] { grid_.Choose(0, col, 0, col); }); });
    connect(&view, &QTableView::doubleClicked, this,
            [this] { Act([this] { grid_.PressAgain(); }); });
    Sync();
}

GridBinding::~GridBinding() {
    view_.setModel(nullptr);
}

void GridBinding::RowsChanged(model::Control&, const model::RowChange& change) {
    const QScopedValueRollback<bool> guard(following_, true);
    cells_.Follow(change);
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
}

bool GridBinding::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = VirtualKey(static_cast<QKeyEvent*>(event)->key());
        if (key != 0) {
            Act([&] { grid_.PressKey(key); });
        }
    }
    return false;
}

void GridBinding::ChosenByPerson() {
    const QItemSelection range = view_.selectionModel()->selection();
    if (following_ || range.isEmpty()) {
        return;
    }
    const QScopedValueRollback<bool> guard(following_, true);
    const QItemSelectionRange& cells = range.first();
    const QModelIndex current = view_.currentIndex();
    // The current cell is the end at which the range began.
    const bool fromTop = current.row() == cells.top();
    const bool fromLeft = current.column() == cells.left();
    Act([&] {
        grid_.Choose(
            (fromTop ? cells.top() : cells.bottom()) + 1, fromLeft ? cells.left() : cells.right(),
            (fromTop ? cells.bottom() : cells.top()) + 1, fromLeft ? cells.right() : cells.left());
    });
}

}  // namespace qt_adapter
