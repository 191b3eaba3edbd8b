// How the face of a row is drawn: as a line with a small picture, or as a picture in a grid.
#pragma once

#include <QListView>
#include <QStyledItemDelegate>

#include "adapters/qt/row_pictures.h"
#include "adapters/qt/rows_model.h"
#include "model/list_controls.h"

namespace qt_adapter {

/// The face in words, for those who do not see it.
QString FaceWords(const model::RowFace& face);

class FaceDelegate : public QStyledItemDelegate {
public:
    FaceDelegate(const model::ListBox& list, const RowsModel& rows, QListView& view);

    /// Of the square for a picture.
    static int PictureSide(bool asGrid);
    /// Smallest size of a row or of a cell of the grid.
    QSize RowSize(bool asGrid) const;
    /// Null: none are there.
    void ShowPictures(const RowPictures* pictures) { pictures_ = pictures; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    struct Inks;
    struct Parts;
    /// Side of the picture of a line; 0 in a list without thumbnails.
    int LinePicture() const;
    Parts PartsOf(const QRect& place, const model::RowFace& face) const;
    void PaintMarks(QPainter& painter, const Parts& parts, const model::RowFace& face,
                    const Inks& inks) const;
    void PaintWords(QPainter& painter, const Parts& parts, const model::RowFace& face,
                    const Inks& inks) const;

    const model::ListBox& list_;
    const RowsModel& rows_;
    QListView& view_;
    const RowPictures* pictures_ = nullptr;
};

}  // namespace qt_adapter
