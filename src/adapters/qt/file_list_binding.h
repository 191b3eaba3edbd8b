// The list of a folder's files: names, or thumbnails with names.
#pragma once

#include <QAction>
#include <QToolButton>
#include <memory>
#include <vector>

#include "adapters/qt/empty_hint.h"
#include "adapters/qt/list_binding.h"
#include "adapters/qt/row_pictures.h"

namespace qt_adapter {

/// A press of the mouse or Enter is the file's click; arrows and typed letters only move.
///
/// Buttons of the form with the property "ofFiles", the list's name, choose between thumbnails
/// ("asPictures") and names; without such buttons there are names only. Where no file is shown
/// stands why: the list's "emptyWords", or that the folder cannot be read.
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
    void FindButtons();
    void Choose(bool pictures);
    void ShowAs(bool pictures);
    void FollowHint();

    model::FileList& files_;
    QListView& face_;
    bool shownAsPictures_ = false;
    QAction* switch_ = nullptr;          // between the two; goes with this
    std::vector<QToolButton*> buttons_;  // the same in sight
    std::unique_ptr<EmptyHint> hint_;
    bool hintQueued_ = false;
    std::unique_ptr<RowPictures> pictures_;
};

}  // namespace qt_adapter
