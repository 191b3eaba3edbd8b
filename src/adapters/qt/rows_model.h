// The rows of a list box for a view, passed on one by one.
#pragma once

#include <QAbstractListModel>

#include "model/list_controls.h"

namespace qt_adapter {

class RowsModel : public QAbstractListModel {
public:
    explicit RowsModel(const model::ListBox& list) : list_(list), count_(list.ListCount()) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Takes over a change that the list has already made.
    void Follow(const model::RowChange& change);

private:
    const model::ListBox& list_;
    int count_;  // rows that the views know of
};

}  // namespace qt_adapter
