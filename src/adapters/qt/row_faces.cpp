#include "adapters/qt/row_faces.h"

namespace qt_adapter {

RowFaces::RowFaces(const model::ListBox& list, RowsModel& rows, FaceView& view)
    : list_(list),
      rows_(rows),
      view_(view),
      delegate_(new FaceDelegate(list, rows, view)),
      hint_(new EmptyHint(view)) {
    view.setItemDelegate(delegate_);
    view.setMouseTracking(true);  // for the marks' words
    const auto follow = [this] { FollowHint(); };
    QObject::connect(&rows, &QAbstractItemModel::rowsInserted, hint_, follow);
    QObject::connect(&rows, &QAbstractItemModel::rowsRemoved, hint_, follow);
    QObject::connect(&rows, &QAbstractItemModel::modelReset, hint_, follow);
    FollowLook();
    FollowHint();
}

RowFaces::~RowFaces() {
    rows_.decoration = {};
    delegate_->ShowPictures(nullptr);
    delete hint_;
}

void RowFaces::FollowLook() {
    const bool grid = list_.AsGrid;
    if (shown_ == static_cast<int>(grid)) {
        return;
    }
    const QModelIndex current = view_.currentIndex();
    shown_ = static_cast<int>(grid);
    delegate_->ShowPictures(nullptr);
    rows_.decoration = {};
    pictures_.reset();
    if (list_.thumbnails) {
        pictures_ = std::make_unique<RowPictures>(
            view_, *list_.thumbnails, FaceDelegate::PictureSide(grid),
            [this](int row) { return list_.face(rows_.InList(row)).file; });
        delegate_->ShowPictures(pictures_.get());
        rows_.decoration = [this](int row) {
            const QModelIndex index = rows_.IndexOf(row);
            return index.isValid() ? pictures_->Of(index.row()) : QPixmap();
        };
    }
    view_.SetCell(delegate_->RowSize(grid), grid);
    if (current.isValid()) {
        view_.scrollTo(current);
    }
}

void RowFaces::Refresh() {
    if (pictures_) {
        pictures_->Refresh();
    }
}

void RowFaces::FollowHint() {
    const bool empty = list_.ListCount() == 0;
    const auto said = [&](const char* property) { return view_.property(property).toString(); };
    hint_->InviteDrops(empty && list_.FilesDropped);
    if (rows_.rowCount() > 0) {
        hint_->Say({}, {});
    } else if (empty) {
        hint_->Say(said("emptyWords"), said("emptyGlyph"));
    } else {
        hint_->Say(said("noneSeenWords"), QStringLiteral("search"));
    }
}

}  // namespace qt_adapter
