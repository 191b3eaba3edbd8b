#include "model/grid.h"

#include <algorithm>

namespace model {

Grid::Grid(Window* window, std::string name, std::vector<Text> headers)
    : VisibleControl(window, ControlKind::Grid, std::move(name)),
      cols_(static_cast<int>(headers.size())) {
    cells_.push_back(std::move(headers));
}

const Text& Grid::TextMatrix(int row, int col) const {
    static const Text none;
    const bool there = row >= 0 && row < Rows() && col >= 0 && col < cols_;
    return there ? cells_[static_cast<size_t>(row)][static_cast<size_t>(col)] : none;
}

void Grid::SetText(int row, int col, Text value) {
    if (row >= 0 && row < Rows() && col >= 0 && col < cols_) {
        cells_[static_cast<size_t>(row)][static_cast<size_t>(col)] = std::move(value);
        AnnounceRows({RowChange::Replaced, row});
    }
}

void Grid::AddRow(std::vector<Text> row) {
    InsertRow(Rows(), std::move(row));
}

void Grid::InsertRow(int before, std::vector<Text> row) {
    before = std::clamp(before, 1, Rows());
    row.resize(static_cast<size_t>(cols_));
    cells_.insert(cells_.begin() + before, std::move(row));
    AnnounceRows({RowChange::Inserted, before});
}

void Grid::RemoveRow(int row) {
    if (row >= 1 && row < Rows()) {
        cells_.erase(cells_.begin() + row);
        AnnounceRows({RowChange::Removed, row});
    }
}

void Grid::Clear() {
    cells_.resize(1);
    AnnounceRows({RowChange::Cleared, 0});
    Row = 0;
    Col = 0;
    RowSel = 0;
    ColSel = 0;
    TopRow = 1;
}

bool Grid::Choose(int row, int col, int row2, int col2) {
    const auto isCell = [this](int r, int c) {
        return r >= 0 && r < Rows() && c >= 0 && c < cols_;
    };
    if (!Reachable() || !isCell(row, col) || !isCell(row2, col2)) {
        return false;
    }
    Row = row;
    Col = col;
    RowSel = row2;
    ColSel = col2;
    Click();
    return true;
}

bool Grid::Edit(int row, int col, const Text& value) {
    return Reachable() && row >= 1 && row < Rows() && col >= 0 && col < cols_ &&
           CellEdited(row, col, value);
}

Calendar::Calendar(Window* window, std::string name)
    : VisibleControl(window, ControlKind::Calendar, std::move(name)) {}

bool Calendar::Choose(const Text& day) {
    if (!Reachable()) {
        return false;
    }
    Value = day;
    Click();
    return true;
}

}  // namespace model
