// The look of a list whose rows have faces: lines or a grid, with thumbnails, and words where there
// is no row.
#pragma once

#include <memory>

#include "adapters/qt/empty_hint.h"
#include "adapters/qt/face_delegate.h"
#include "adapters/qt/face_view.h"
#include "adapters/qt/row_pictures.h"

namespace qt_adapter {

/// The form can say "emptyWords" with "emptyGlyph", for a list without rows, and "noneSeenWords",
/// for one of which no row is seen.
class RowFaces {
public:
    RowFaces(const model::ListBox& list, RowsModel& rows, FaceView& view);
    ~RowFaces();
    RowFaces(const RowFaces&) = delete;
    RowFaces& operator=(const RowFaces&) = delete;
    /// Lines or a grid, as the list says.
    void FollowLook();
    /// All faces may be others, their pictures too.
    void Refresh();

private:
    void FollowHint();

    const model::ListBox& list_;
    RowsModel& rows_;
    FaceView& view_;
    FaceDelegate* delegate_;  // owned by the view
    EmptyHint* hint_;         // so is it
    std::unique_ptr<RowPictures> pictures_;
    int shown_ = -1;  // AsGrid as it was last shown; -1: not yet
};

}  // namespace qt_adapter
