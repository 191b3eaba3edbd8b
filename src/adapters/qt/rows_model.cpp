#include "adapters/qt/rows_model.h"

#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <algorithm>
#include <numeric>

#include "adapters/qt/convert.h"
#include "adapters/qt/face_delegate.h"

namespace qt_adapter {

namespace {

/// Names of files can hold line ends.
QString InOneLine(QString text) {
    return text.replace(u'\r', u' ').replace(u'\n', u' ');
}

}  // namespace

RowsModel::RowsModel(const model::ListBox& list, std::function<void(int)> dragged)
    : list_(list), dragged_(std::move(dragged)), count_(list.ListCount()) {
    Map();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : mapped_ ? static_cast<int>(shown_.size()) : count_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    const int row = index.isValid() ? InList(index.row()) : -1;
    if (row < 0) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return InOneLine(ToQt(list_.List(row)));
        case Qt::AccessibleTextRole:
            return list_.face ? FaceWords(list_.face(row)) : QVariant();
        case Qt::DecorationRole:
            return decoration ? decoration(row) : PictureOf(row);
        default:
            return {};
    }
}

int RowsModel::InList(int row) const {
    if (row < 0 || row >= rowCount()) {
        return -1;
    }
    return mapped_ ? shown_[static_cast<size_t>(row)] : row;
}

int RowsModel::From(int inList) const {
    if (!mapped_) {
        return std::clamp(inList, 0, count_);
    }
    return static_cast<int>(std::lower_bound(shown_.begin(), shown_.end(), inList) -
                            shown_.begin());
}

int RowsModel::BeforeInList(int row) const {
    if (row >= 0 && row < rowCount()) {
        return InList(row);
    }
    return mapped_ && !shown_.empty() ? shown_.back() + 1 : list_.ListCount();
}

QModelIndex RowsModel::IndexOf(int inList) const {
    const int row = From(inList);
    return InList(row) == inList ? index(row) : QModelIndex();
}

/// In the middle of the room for it. A row without one keeps the room, so that all rows are of one
/// height.
QVariant RowsModel::PictureOf(int inList) const {
    const QSize room(list_.PictureWidth, list_.PictureHeight);
    if (room.isEmpty()) {
        return {};
    }
    QImage image(room, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (const platform::BitmapPtr picture = list_.RowPicture(inList);
        picture && !picture->Empty()) {
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

QStringList RowsModel::mimeTypes() const {
    return {QStringLiteral("application/x-parapico-rows")};
}

/// The list knows which rows are selected.
QMimeData* RowsModel::mimeData(const QModelIndexList&) const {
    auto* data = new QMimeData;
    data->setData(mimeTypes().front(), QByteArray::number(reinterpret_cast<quintptr>(this)));
    return data;
}

bool RowsModel::IsOwn(const QMimeData& data) const {
    return data.data(mimeTypes().front()) == QByteArray::number(reinterpret_cast<quintptr>(this));
}

/// Answers false: the program moves the rows, and the view is not to take any away.
bool RowsModel::dropMimeData(const QMimeData*, Qt::DropAction, int row, int, const QModelIndex&) {
    dragged_(BeforeInList(row));
    return false;
}

std::vector<int> RowsModel::SeenAmong(int first, int count) const {
    std::vector<int> seen;
    for (int row = first; row < first + count; ++row) {
        if (list_.Seen(row)) {
            seen.push_back(row);
        }
    }
    return seen;
}

/// The list's rows anew.
void RowsModel::Map() {
    count_ = list_.ListCount();
    shown_ = SeenAmong(0, count_);
    mapped_ = static_cast<int>(shown_.size()) < count_;
    if (!mapped_) {
        shown_ = {};
    }
}

void RowsModel::Follow(const model::RowChange& change) {
    const bool removed = change.kind == model::RowChange::Removed;
    const bool cleared = change.kind == model::RowChange::Cleared;
    if (!mapped_ && !removed && !cleared) {
        bool allSeen = true;
        for (int row = change.row; allSeen && row < change.row + change.count; ++row) {
            allSeen = list_.Seen(row);
        }
        if (!allSeen) {
            shown_.resize(static_cast<size_t>(count_));
            std::iota(shown_.begin(), shown_.end(), 0);
            mapped_ = true;
        }
    }
    switch (change.kind) {
        case model::RowChange::Inserted:
            Insert(change.row, change.count);
            break;
        case model::RowChange::Removed:
            Remove(change.row, change.count);
            break;
        case model::RowChange::Replaced:
            Replace(change.row, change.count);
            break;
        case model::RowChange::Cleared:
            beginResetModel();
            Map();
            endResetModel();
            break;
    }
}

void RowsModel::Insert(int first, int count) {
    const std::vector<int> seen = mapped_ ? SeenAmong(first, count) : std::vector<int>();
    const int place = From(first);
    const int rows = mapped_ ? static_cast<int>(seen.size()) : count;
    if (rows > 0) {
        beginInsertRows({}, place, place + rows - 1);
    }
    count_ += count;
    if (mapped_) {
        const auto at = shown_.begin() + place;
        std::for_each(at, shown_.end(), [count](int& row) { row += count; });
        shown_.insert(at, seen.begin(), seen.end());
    }
    if (rows > 0) {
        endInsertRows();
    }
}

void RowsModel::Remove(int first, int count) {
    const int place = From(first), end = From(first + count);
    if (end > place) {
        beginRemoveRows({}, place, end - 1);
    }
    count_ -= count;
    if (mapped_) {
        const auto rest = shown_.erase(shown_.begin() + place, shown_.begin() + end);
        std::for_each(rest, shown_.end(), [count](int& row) { row -= count; });
    }
    if (end > place) {
        endRemoveRows();
    }
}

/// Rows that are others may be seen where those before were not, and not where they were.
void RowsModel::Replace(int first, int count) {
    const int place = From(first), end = From(first + count);
    if (mapped_) {
        const std::vector<int> seen = SeenAmong(first, count);
        if (!std::equal(seen.begin(), seen.end(), shown_.begin() + place, shown_.begin() + end)) {
            Remove(first, count);
            Insert(first, count);
            return;
        }
    }
    if (end > place) {
        emit dataChanged(index(place), index(end - 1), {Qt::DisplayRole, Qt::DecorationRole});
    }
}

void RowsModel::FollowPictureSize() {
    if (rowCount() > 0) {
        emit dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
    }
    emit layoutChanged();
}

}  // namespace qt_adapter
