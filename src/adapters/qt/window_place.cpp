// Where a window stands and how large it is: what the model says is shown, what a person or the
// window system changes is passed to the model.
#include <QBackingStore>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/form_words.h"
#include "adapters/qt/qt_monitors.h"
#include "adapters/qt/window_view.h"

namespace qt_adapter {

namespace {

/// Windows here cannot choose their own place.
bool PlacesAreNotOurs() {
    return QGuiApplication::platformName().startsWith("wayland");
}

bool Offscreen() {
    return QGuiApplication::platformName() == "offscreen";
}

/// What a window is painted in takes its memory now, while the picture that it will show is still
/// being decoded, and not between the picture and the screen.
void TakeMemory(QWidget& window) {
    QBackingStore* store = window.backingStore();
    if (!store || store->size() == window.size()) {
        return;
    }
    store->resize(window.size());
    store->beginPaint(window.rect());
    if (QPaintDevice* memory = store->paintDevice()) {
        QPainter(memory).fillRect(window.rect(), Qt::black);
    }
    store->endPaint();
}

}  // namespace

void WindowView::ApplyWindowKind() {
    struct KindRow {
        const char* word;
        Qt::WindowFlags flags;
    };
    static constexpr KindRow kRows[] = {
        {"Frameless", Qt::FramelessWindowHint},
        {"Tool", Qt::Tool},
        {"StayOnTop", Qt::WindowStaysOnTopHint},
        {"NoFocus", Qt::WindowDoesNotAcceptFocus},  // keys stay with the window below
    };
    const QStringList words = Words(*root_, "windowKind");
    WindowView* below = viewOf_(root_->property("over").toString());
    if (below && below->Widget() && PlacesAreNotOurs()) {
        // A window of its own would land anywhere: it becomes a part of the one below.
        root_->setParent(below->Widget());
        root_->hide();
        return;
    }
    Qt::WindowFlags flags = words.isEmpty() ? root_->windowFlags() : Qt::WindowFlags(Qt::Window);
    for (const KindRow& row : kRows) {
        if (words.contains(QLatin1String(row.word))) {
            flags |= row.flags;
        }
    }
    root_->setWindowFlags(flags);
    if (words.contains("Tool")) {
        root_->setAttribute(Qt::WA_ShowWithoutActivating);
    }
}

void WindowView::FollowVisible() {
    left_ = false;
    if (!window_.Visible) {
        if (root_) {
            root_->hide();
        }
        return;
    }
    if (!Widget()) {
        return;
    }
    ApplyConditions();
    root_->setWindowModality(window_.Modal ? Qt::ApplicationModal : Qt::NonModal);
    if (fullScreen_) {
        ShowFullScreen();
        return;
    }
    FollowSize();
    WindowView* below = viewOf_(root_->property("over").toString());
    if (below && below->Widget()->isVisible()) {
        FollowPlace();
        root_->winId();
        if (root_->isWindow() && below->Widget()->windowHandle()) {
            root_->windowHandle()->setTransientParent(below->Widget()->windowHandle());
        }
    }
    const bool appears = !root_->isVisible();
    root_->show();
    root_->raise();
    if (appears && window_.EnterPresses && root_->property("firstFocus").isNull()) {
        GiveKeyboardToFirst();
    }
    if (!root_->testAttribute(Qt::WA_ShowWithoutActivating)) {
        root_->activateWindow();
        if (host_ && !root_->focusWidget()) {
            host_->setFocus();
        }
    }
}

/// A dialog begins at its first control each time, not where it was left: there Enter may mean
/// something else.
void WindowView::GiveKeyboardToFirst() {
    QWidget* first = root_->nextInFocusChain();
    while (first != root_ && (!first->isVisible() || !first->isEnabled() ||
                              (first->focusPolicy() & Qt::TabFocus) == 0)) {
        first = first->nextInFocusChain();
    }
    first->setFocus(Qt::TabFocusReason);
}

void WindowView::ShowFullScreen() {
    QScreen* screen = ScreenAt(ToPixels(window_.Left), ToPixels(window_.Top));
    if (Offscreen() || !screen) {
        root_->setGeometry(0, 0, ToPixels(window_.Width), ToPixels(window_.Height));
        root_->show();
    } else {
        const bool appears = !root_->isVisible();
        root_->setScreen(screen);
        root_->setGeometry(screen->geometry());
        root_->showFullScreen();
        // By the other size of its memory the toolkit sees what of a visible window is to be
        // painted.
        if (appears) {
            TakeMemory(*root_);
        }
    }
    root_->raise();
    root_->activateWindow();
    if (host_) {
        host_->setFocus();
    }
}

void WindowView::PlaceInPixels() {
    const platform::Rect wanted{ToPixels(window_.Left), ToPixels(window_.Top),
                                ToPixels(window_.Width), ToPixels(window_.Height)};
    QScreen* screen = ScreenAt(wanted.x + wanted.width / 2, wanted.y + wanted.height / 2);
    if (Offscreen() || !screen) {
        root_->setGeometry(0, 0, wanted.width, wanted.height);
        return;
    }
    const bool covers = PhysicalRect(*screen) == wanted;
    root_->setScreen(screen);
    root_->setWindowState(covers ? root_->windowState() | Qt::WindowFullScreen
                                 : root_->windowState() & ~Qt::WindowFullScreen);
    const double ratio = screen->devicePixelRatio();
    const auto scaled = [ratio](int pixels) { return static_cast<int>(std::ceil(pixels / ratio)); };
    root_->setGeometry(covers ? screen->geometry()
                              : QRect(FromPhysical(wanted.x, wanted.y),
                                      QSize(scaled(wanted.width), scaled(wanted.height))));
}

/// What a monitor has room for, its frame and title left out.
QSize WindowView::RoomForWindow() const {
    constexpr QSize kFrame(8, 40);
    return Offscreen() ? root_->size() : root_->screen()->availableSize() - kFrame;
}

void WindowView::FollowPlace() {
    if (countsPixels_) {
        PlaceInPixels();
        return;
    }
    if (fullScreen_) {
        if (root_->isVisible()) {
            ShowFullScreen();
        }
        return;
    }
    if (root_->isVisible() && window_.WindowState != model::kWindowNormal) {
        return;  // the window system decides its place
    }
    const int x = ToPixels(window_.Left);
    const int y = ToPixels(window_.Top);
    QPoint place = FromPhysical(x, y);
    const QScreen* screen = ScreenAt(x, y);
    if (screen && screen->devicePixelRatio() != 1.0 && !root_->property("over").isValid()) {
        // The program reckons with the monitor's pixels: where it put the middle, it stays.
        const QPoint half(ToPixels(window_.Width) / 2, ToPixels(window_.Height) / 2);
        const QRect free = screen->availableGeometry();
        place = FromPhysical(x + half.x(), y + half.y()) - half;
        place.setX(std::max(free.x(), place.x()));
        place.setY(std::max(free.y(), place.y()));
    } else if (screen && root_->property("over").isValid()) {
        // Sizes are counted in other units than the monitor's pixels on a scaled screen.
        const QRect area = screen->geometry();
        place.setX(std::min(place.x(), area.x() + area.width() - root_->width()));
        place.setY(std::min(place.y(), area.y() + area.height() - root_->height()));
        if (!root_->isWindow()) {
            place -= area.topLeft();
        }
    }
    root_->move(place);
}

void WindowView::FollowSize() {
    if (fullScreen_ || countsPixels_) {
        FollowPlace();
    } else if (window_.WindowState == model::kWindowNormal) {
        root_->resize(ToPixels(window_.Width), ToPixels(window_.Height));
    }
}

void WindowView::FollowState() {
    const bool comesBack = root_->isMaximized() && window_.WindowState == model::kWindowNormal;
    const QPoint place = root_->normalGeometry().topLeft();
    Qt::WindowStates states = root_->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (window_.WindowState == model::kWindowMinimised) {
        states |= Qt::WindowMinimized;
    } else if (window_.WindowState == model::kWindowMaximised) {
        states |= Qt::WindowMaximized;
    }
    if (states != root_->windowState()) {
        root_->setWindowState(states);
    }
    if (comesBack && !fullScreen_ && !countsPixels_) {
        // Else the size that is set next counts from the corner of the maximised window.
        root_->setGeometry({place, QSize(ToPixels(window_.Width), ToPixels(window_.Height))});
    }
}

void WindowView::Resized() {
    const QSize size = root_->size();
    const bool known = size == QSize(ToPixels(window_.Width), ToPixels(window_.Height));
    if (!fullScreen_ && !countsPixels_ && root_->isWindow() && !known) {
        gate_.Guarded([&] {
            window_.ResizeTo(size.width() * platform::kTwipsPerPixel,
                             size.height() * platform::kTwipsPerPixel);
        });
    }
}

void WindowView::StateChangedByPerson() {
    const int state = root_->isMinimized()   ? model::kWindowMinimised
                      : root_->isMaximized() ? model::kWindowMaximised
                                             : 0;
    if (root_->isVisible() && !fullScreen_ && state != window_.WindowState) {
        gate_.Guarded([&] { window_.WindowState = state; });
    }
}

}  // namespace qt_adapter
