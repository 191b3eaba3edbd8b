// A grid and its table view: cells, the current cell with the range, editing in place.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "adapters/qt/control_binding.h"
#include "model/grid.h"

namespace qt_adapter {

/// The rows below the header, which the table shows as its own header. Changes come one by one.
class GridModel : public QAbstractTableModel {
public:
    GridModel(model::Grid& grid, std::function<void(int, int, const Text&)> edited)
        : grid_(grid), edited_(std::move(edited)), count_(grid.Rows() - 1) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// Takes over a change that the grid has already made.
    void Follow(const model::RowChange& change);

private:
    model::Grid& grid_;
    std::function<void(int, int, const Text&)> edited_;
    int count_;  // rows that the view knows of
};

class GridBinding : public ControlBinding {
public:
    GridBinding(model::Grid& grid, QTableView& view, const Site& site);
    ~GridBinding() override;
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

protected:
    void SyncOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ChosenByPerson();

    model::Grid& grid_;
    QTableView& view_;
    GridModel cells_;
    bool held_ = false;       // the mouse chooses cells and has not let go
    bool following_ = false;  // a change is being passed on: its echo is not news
};

}  // namespace qt_adapter
