// The rows of a list box for a view, passed on change by change: those that are seen, in the
// list's order, and so numbered from 0; and their dragging within the list.
#pragma once

#include <QAbstractListModel>
#include <functional>
#include <vector>

#include "model/list_controls.h"

namespace qt_adapter {

class RowsModel : public QAbstractListModel {
public:
    /// `dragged`: a person lets go of the selected rows in front of that row of the list.
    RowsModel(const model::ListBox& list, std::function<void(int)> dragged);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    /// A drag of rows of this list brings it along.
    bool IsOwn(const QMimeData& data) const;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// What stands before the text of a row of the list; none by itself.
    std::function<QVariant(int row)> decoration;

    /// Rows of the list are left out.
    bool Filtered() const { return mapped_; }
    /// The list's number of a row; -1 for one that is not there.
    int InList(int row) const;
    /// Number here of the first row that is the list's row `inList` or comes after it.
    int From(int inList) const;
    /// The list's row in front of which something stands that stands in front of `row`.
    int BeforeInList(int row) const;
    /// Of a row of the list; invalid for one that is not seen.
    QModelIndex IndexOf(int inList) const;

    /// Takes over a change that the list has already made.
    void Follow(const model::RowChange& change);
    /// The room for rows' pictures is another one.
    void FollowPictureSize();

private:
    QVariant PictureOf(int inList) const;
    std::vector<int> SeenAmong(int first, int count) const;
    void Map();
    void Insert(int first, int count);
    void Remove(int first, int count);
    void Replace(int first, int count);

    const model::ListBox& list_;
    std::function<void(int)> dragged_;
    int count_;  // rows of the list that are known here
    bool mapped_ = false;
    std::vector<int> shown_;  // while mapped: the list's numbers of the rows here
};

}  // namespace qt_adapter
