// The list of a folder's files: names, or thumbnails with names.
#pragma once

#include <QAction>
#include <QToolButton>
#include <memory>

#include "adapters/qt/list_binding.h"
#include "adapters/qt/row_pictures.h"

namespace qt_adapter {

/// A press of the mouse or Enter is the file's click; arrows and typed letters only move.
class FileListBinding : public ListBinding {
public:
    FileListBinding(model::FileList& list, QListView& view, const Site& site);
    ~FileListBinding() override;
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

protected:
    void SyncOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool MovingPresses() const override { return false; }

private:
    void ShowAs(bool pictures);

    model::FileList& files_;
    QListView& face_;
    bool shownAsPictures_ = false;
    QAction* switch_;  // between the two; owned by the view
    std::unique_ptr<RowPictures> pictures_;
};

}  // namespace qt_adapter
