// The look of a list whose rows have faces: lines or a grid, with thumbnails, and words where there
// is no row.
#pragma once

#include <QLabel>
#include <memory>

#include "adapters/qt/face_delegate.h"
#include "adapters/qt/face_view.h"
#include "adapters/qt/row_pictures.h"

namespace qt_adapter {

/// The form can say "emptyWords", for a list without rows, and "noneSeenWords", for one of which
/// no row is seen.
class RowFaces : public QObject {
public:
    RowFaces(const model::ListBox& list, RowsModel& rows, FaceView& view);
    ~RowFaces() override;
    /// Lines or a grid, as the list says.
    void FollowLook();
    /// All faces may be others, their pictures too.
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowWords();

    const model::ListBox& list_;
    RowsModel& rows_;
    FaceView& view_;
    FaceDelegate* delegate_;  // owned by the view
    QLabel* words_;           // so is it
    std::unique_ptr<RowPictures> pictures_;
    int shown_ = -1;  // AsGrid as it was last shown; -1: not yet
};

}  // namespace qt_adapter
