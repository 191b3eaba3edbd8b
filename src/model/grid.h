// A grid of texts with a header row, and a calendar's month.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "model/control.h"

namespace model {

/// Cells are counted from 0; row 0 is the header. Row changes are announced one by one.
class Grid : public VisibleControl {
public:
    /// The headers make row 0 and say how many columns there are.
    Grid(Window* window, std::string name, std::vector<Text> headers);
    Property<int> Row{*this, "Row"};  // the current cell
    Property<int> Col{*this, "Col"};
    Property<int> RowSel{*this, "RowSel"};  // the other end of the range
    Property<int> ColSel{*this, "ColSel"};
    Property<int> TopRow{*this, "TopRow", 1};
    Event<int, int, const Text&> CellEdited;  // row, column, what a person typed in place

    int Rows() const { return static_cast<int>(cells_.size()); }
    int Cols() const { return cols_; }
    /// Empty text for a cell that is not there.
    const Text& TextMatrix(int row, int col) const;
    /// Nothing happens for a cell that is not there.
    void SetText(int row, int col, Text value);
    void AddRow(std::vector<Text> row);
    void InsertRow(int before, std::vector<Text> row);
    void RemoveRow(int row);
    /// Leaves the header.
    void Clear();
    const std::deque<std::vector<Text>>& Cells() const { return cells_; }

    /// A person presses a cell and drags to another; also of the header. False where a cell is not
    /// there or unless Reachable.
    bool Choose(int row, int col, int row2, int col2);
    /// A person typed into a cell. True when CellEdited was heard.
    bool Edit(int row, int col, const Text& value);

private:
    int cols_;
    std::deque<std::vector<Text>> cells_;
};

/// One month, of which a day is chosen.
class Calendar : public VisibleControl {
public:
    Calendar(Window* window, std::string name);
    Property<Text> Value{*this, "Value"};  // "YYYY/MM/DD"

    /// A person presses a day. False unless Reachable.
    bool Choose(const Text& day);
};

}  // namespace model
