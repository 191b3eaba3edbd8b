// A list box and its view: rows, selected rows, the current row and the first row shown.
#pragma once

#include <QListView>
#include <memory>

#include "adapters/qt/control_binding.h"
#include "adapters/qt/row_dragging.h"
#include "adapters/qt/row_faces.h"
#include "adapters/qt/rows_model.h"
#include "model/list_controls.h"

namespace qt_adapter {

class ListBinding : public ControlBinding {
public:
    ListBinding(model::ListBox& list, QListView& view, const Site& site);
    ~ListBinding() override;
    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

protected:
    void SyncOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Whether moving to a row by keys counts as a click.
    virtual bool MovingPresses() const { return true; }
    RowsModel& Rows() { return rows_; }

private:
    bool SelectsMany() const { return list_.MultiSelect == model::kSelectMany; }
    void Dragged(int before);
    void ShowSelection(int first, int count);
    void ShowCurrent();
    void ShowTop();
    void Unsettle();
    void FollowSelection(const QItemSelection& on, const QItemSelection& off);
    void SelectInList(const QItemSelection& ranges, bool on);
    void FollowCurrent(const QModelIndex& current);
    void PressSoon();
    void PressIfChosen();

    model::ListBox& list_;
    QListView& view_;
    RowsModel rows_;
    RowDragging dragging_;
    std::unique_ptr<RowFaces> faces_;
    QSize room_{0, 0};      // that is kept for rows' pictures
    bool focused_ = false;  // just now: the view makes its first row the current one
    bool held_ = false;     // a button of the mouse is down
    bool chosen_ = false;   // rows were selected since it went down: no click yet
    bool pressQueued_ = false;
    bool unsettled_ = false;  // rows have come or gone in this turn of the event loop
    bool topWanted_ = false;  // and the first one to be seen is another one since
    bool following_ = false;  // a change is being passed on: its echo is not news
};

}  // namespace qt_adapter
