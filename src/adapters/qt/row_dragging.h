// What is dragged over a list: its own rows, which find another place, and files. A mark shows
// where they would go, and the list scrolls at its edges.
#pragma once

#include <QDropEvent>
#include <QListView>
#include <QTimer>
#include <functional>

#include "adapters/qt/gate.h"
#include "adapters/qt/rows_model.h"
#include "model/list_controls.h"

namespace qt_adapter {

/// Files go to the end; or, where the form names a check box in "insertsWhile", while that is
/// ticked and one row is selected, in front of that row.
class RowDragging : public QObject {
public:
    /// `dragged`: the selected rows are let go in front of that row of the list.
    RowDragging(model::ListBox& list, const RowsModel& rows, QListView& view, Gate& gate,
                std::function<void(int)> dragged);
    ~RowDragging() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsOwn(const QDropEvent& event) const;
    bool TakesFiles(const QDropEvent& event) const;
    int RowAt(QPoint place) const;
    int RowOfFiles() const;
    void Follow(const QDropEvent& event);
    void ShowMark(int row, bool afterRowBefore);
    void ShowMarkOfRows();
    void ScrollAtEdge();
    void End();
    void Drop(const QDropEvent& event);

    model::ListBox& list_;
    const RowsModel& rows_;
    QListView& view_;
    Gate& gate_;
    std::function<void(int)> dragged_;
    QWidget* mark_;  // owned by the view
    QTimer scrolling_;
    QPoint place_;  // of the mouse
};

}  // namespace qt_adapter
