#include "adapters/qt/rows_model.h"

#include <QImage>
#include <QPainter>

#include "adapters/qt/convert.h"

namespace qt_adapter {

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(list_.List(index.row()));
        case Qt::DecorationRole:
            return decoration ? decoration(index.row()) : PictureOf(index.row());
        default:
            return {};
    }
}

/// In the middle of the room for it. A row without one keeps the room, so that all rows are of one
/// height.
QVariant RowsModel::PictureOf(int row) const {
    const QSize room(list_.PictureWidth, list_.PictureHeight);
    if (room.isEmpty()) {
        return {};
    }
    QImage image(room, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (const platform::BitmapPtr picture = list_.RowPicture(row); picture && !picture->Empty()) {
        const QImage pixels(
            reinterpret_cast<const uchar*>(picture->pixels.data()), picture->width, picture->height,
            picture->width * static_cast<qsizetype>(sizeof(platform::Pixel)), QImage::Format_RGB32);
        QPainter(&image).drawImage((room.width() - picture->width) / 2,
                                   (room.height() - picture->height) / 2, pixels);
    }
    return image;
}

/// Rows are let go between rows, not on them.
Qt::ItemFlags RowsModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return list_.RowsDragged ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    flags.setFlag(Qt::ItemIsDropEnabled, false);
    flags.setFlag(Qt::ItemIsDragEnabled, static_cast<bool>(list_.RowsDragged));
    return flags;
}

/// Answers false: the program moves the rows, and the view is not to take any away.
bool RowsModel::dropMimeData(const QMimeData*, Qt::DropAction, int row, int, const QModelIndex&) {
    dragged_(row < 0 ? list_.ListCount() : row);
    return false;
}

void RowsModel::Follow(const model::RowChange& change) {
    const int last = change.row + change.count - 1;
    switch (change.kind) {
        case model::RowChange::Inserted:
            beginInsertRows({}, change.row, last);
            count_ += change.count;
            endInsertRows();
            break;
        case model::RowChange::Removed:
            beginRemoveRows({}, change.row, last);
            count_ -= change.count;
            endRemoveRows();
            break;
        case model::RowChange::Replaced:
            emit dataChanged(index(change.row), index(last), {Qt::DisplayRole, Qt::DecorationRole});
            break;
        case model::RowChange::Cleared:
            beginResetModel();
            count_ = list_.ListCount();
            endResetModel();
            break;
    }
}

void RowsModel::FollowPictureSize() {
    if (count_ > 0) {
        emit dataChanged(index(0), index(count_ - 1), {Qt::DecorationRole});
    }
    emit layoutChanged();
}

}  // namespace qt_adapter
