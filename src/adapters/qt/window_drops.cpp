// Files that are dragged over a window and dropped on it.
#include <algorithm>

#include "adapters/qt/dragged_files.h"
#include "adapters/qt/window_view.h"

namespace qt_adapter {

/// Says in the event whether the files can be dropped here.
void WindowView::Dragged(QDropEvent& drag) {
    if (HasFiles(drag) && TakerOfDrop(drag.position().toPoint())) {
        drag.acceptProposedAction();
        return;
    }
    // Elsewhere in the window somebody may take them.
    drag.setAccepted(drag.type() == QEvent::DragEnter && HasFiles(drag) && TakesDrops());
}

bool WindowView::TakesDrops() const {
    return window_.FilesDropped ||
           std::any_of(bindings_.begin(), bindings_.end(), [](const auto& binding) {
               return static_cast<bool>(binding->Control().FilesDropped);
           });
}

/// The control at that place, or the window, that files can be dropped on; null where nobody
/// takes them.
model::VisibleControl* WindowView::TakerOfDrop(QPoint place) {
    for (QWidget* widget = root_->childAt(place); widget && widget != root_;
         widget = widget->parentWidget()) {
        for (const auto& binding : bindings_) {
            if (&binding->Widget() == widget && binding->Control().FilesDropped &&
                binding->Control().Reachable()) {
                return &binding->Control();
            }
        }
    }
    return window_.FilesDropped ? &window_ : nullptr;
}

void WindowView::Dropped(const QDropEvent& event) {
    const std::vector<Text> files = FilesOf(event);
    model::VisibleControl* taker = TakerOfDrop(event.position().toPoint());
    if (!taker) {
        return;
    }
    // Later, so that the program dragged from does not wait for boxes that come up here.
    QMetaObject::invokeMethod(
        this,
        [this, taker, files] {
            gate_.Guarded([&] {
                if (window_.Reachable()) {
                    taker->Drop(files);
                }
            });
        },
        Qt::QueuedConnection);
}

}  // namespace qt_adapter
