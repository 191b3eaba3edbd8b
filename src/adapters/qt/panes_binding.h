// Panes and their splitter: bars are dragged with the mouse, or moved with the arrow keys.
#pragma once

#include <QSplitter>

#include "adapters/qt/control_binding.h"
#include "model/panes.h"

namespace qt_adapter {

/// A splitter whose bars take the keyboard. As a dynamic property the form says "shares", in the
/// model's form, for panes whose Sizes are empty; a double click on a bar brings them back.
class PaneSplitter : public QSplitter {
    Q_OBJECT

public:
    explicit PaneSplitter(QWidget* parent = nullptr) : QSplitter(parent) {}
    /// By a key: moves bar `handle` by that many pixels.
    void MoveBar(const QSplitterHandle& handle, int pixels);

Q_SIGNALS:
    void WantsShares();
    void Resized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    QSplitterHandle* createHandle() override;
};

class PanesBinding : public ControlBinding {
public:
    PanesBinding(model::Panes& panes, PaneSplitter& splitter, const Site& site);

protected:
    void SyncOwn() override;

private:
    void Moved();
    void OrderTabs();

    model::Panes& panes_;
    PaneSplitter& face_;
    bool following_ = false;  // a move is being passed on: its echo is not news
};

}  // namespace qt_adapter
