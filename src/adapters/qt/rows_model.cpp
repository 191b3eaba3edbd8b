#include "adapters/qt/rows_model.h"

#include "adapters/qt/convert.h"

namespace qt_adapter {

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole && index.isValid()) {
        return ToQt(list_.List(index.row()));
    }
    return {};
}

void RowsModel::Follow(const model::RowChange& change) {
    switch (change.kind) {
        case model::RowChange::Inserted:
            beginInsertRows({}, change.row, change.row);
            ++count_;
            endInsertRows();
            break;
        case model::RowChange::Removed:
            beginRemoveRows({}, change.row, change.row);
            --count_;
            endRemoveRows();
            break;
        case model::RowChange::Replaced:
            emit dataChanged(index(change.row), index(change.row), {Qt::DisplayRole});
            break;
        case model::RowChange::Cleared:
            beginResetModel();
            count_ = list_.ListCount();
            endResetModel();
            break;
    }
}

}  // namespace qt_adapter
