// Files that are dragged over a window and dropped on it.
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "adapters/qt/convert.h"
#include "adapters/qt/window_view.h"

namespace qt_adapter {

namespace {

bool HasFiles(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

}  // namespace

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
    std::vector<Text> files;
    for (const QUrl& url : event.mimeData()->urls()) {
        if (url.isLocalFile()) {
            files.push_back(FromQt(QFileInfo(url.toLocalFile()).absoluteFilePath()));
        }
    }
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
