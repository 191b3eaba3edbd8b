// The rows of a list box for a view, passed on change by change, and their dragging within the
// list.
#pragma once

#include <QAbstractListModel>
#include <functional>

#include "model/list_controls.h"

namespace qt_adapter {

class RowsModel : public QAbstractListModel {
public:
    /// `dragged`: a person lets go of the selected rows in front of that row.
    RowsModel(const model::ListBox& list, std::function<void(int)> dragged)
        : list_(list), dragged_(std::move(dragged)), count_(list.ListCount()) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// What stands before a row's text; none by itself.
    std::function<QVariant(int row)> decoration;

    /// Takes over a change that the list has already made.
    void Follow(const model::RowChange& change);
    /// The room for rows' pictures is another one.
    void FollowPictureSize();

private:
    QVariant PictureOf(int row) const;

    const model::ListBox& list_;
    std::function<void(int)> dragged_;
    int count_;  // rows that the views know of
};

}  // namespace qt_adapter
