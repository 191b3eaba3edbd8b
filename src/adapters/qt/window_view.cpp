#include "adapters/qt/window_view.h"

#include <QAbstractButton>
#include <QBackingStore>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/glyph_icon.h"
#include "adapters/qt/qt_monitors.h"
#include "adapters/qt/virtual_keys.h"
#include "model/controls.h"

namespace qt_adapter {

namespace {

constexpr QRgb kShapeOnStage = 0xFF5F6368;  // grey that is seen on black without shouting

constexpr int kKeyEnter = 13;
constexpr int kKeyEscape = 27;

QStringList Words(const QObject& object, const char* property) {
    return object.property(property).toString().split(' ', Qt::SkipEmptyParts);
}

/// Windows here cannot choose their own place.
bool PlacesAreNotOurs() {
    return QGuiApplication::platformName().startsWith("wayland");
}

bool Offscreen() {
    return QGuiApplication::platformName() == "offscreen";
}

int ToPixels(int twips) {
    return twips / platform::kTwipsPerPixel;
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

WindowView::WindowView(model::Window& window, FormLoader& loader, Gate& gate,
                       std::function<WindowView*(const QString&)> viewOf)
    : window_(window), loader_(loader), gate_(gate), viewOf_(std::move(viewOf)) {
    window_.Listen(this);
    if (window_.Visible) {
        FollowVisible();
    }
}

WindowView::~WindowView() {
    window_.Unlisten(this);
    for (model::Control* control : heard_) {
        control->Unlisten(this);
    }
    if (root_) {
        root_->removeEventFilter(this);
    }
    bindings_.clear();
    menu_.reset();
    delete root_;
}

QWidget* WindowView::Widget() {
    if (!root_) {
        Build();
    }
    return root_;
}

void WindowView::FlushCanvases() {
    if (root_) {
        for (CanvasWidget* canvas : root_->findChildren<CanvasWidget*>()) {
            canvas->Flush();
        }
    }
}

void WindowView::PropertyChanged(model::Control& control, model::PropertyBase& property) {
    if (&control != &window_) {
        const auto found = std::find(unmade_.begin(), unmade_.end(), &control);
        if (found != unmade_.end() && (*found)->Visible) {
            model::VisibleControl& wanted = **found;
            unmade_.erase(found);
            MakeOverlay(wanted);
        }
        ApplyConditions();
    } else if (&property == &window_.Visible) {
        FollowVisible();
    } else if (!root_) {
        return;  // the form will be made with what the model says then
    } else if (&property == &window_.Caption) {
        FollowCaption();
    } else if (&property == &window_.Left || &property == &window_.Top) {
        FollowPlace();
    } else if (&property == &window_.Width || &property == &window_.Height) {
        FollowSize();
    } else if (&property == &window_.WindowState) {
        FollowState();
    } else if (&property == &window_.MousePointer || &property == &window_.CursorCount) {
        FollowPointer();
        ApplyConditions();
    } else if (&property == &window_.Enabled) {
        root_->setEnabled(window_.Enabled);
    }
    // Showing or sizing may have run a handler on the spot, under a loop that is not ours.
    gate_.Check();
}

void WindowView::Build() {
    root_ = loader_.Make(window_.Name());
    if (!root_) {
        qWarning("The form of %s cannot be read", window_.Name().c_str());
        return;
    }
    root_->setObjectName(QString::fromStdString(window_.Name()));
    // Not "fullScreen": every widget has a property of that name, which cannot be written.
    fullScreen_ = root_->property("coversMonitor").toBool();
    countsPixels_ = root_->property("countsPixels").toBool();
    ApplyWindowKind();
    root_->setAcceptDrops(true);
    if (auto* frame = qobject_cast<QMainWindow*>(root_.data())) {
        menu_ = std::make_unique<MenuBinding>(window_, *frame->menuBar(), gate_);
    }
    DecorateWidgets();
    BindControls();
    if (window_.Width == 0 && !fullScreen_) {
        // Not said by the model: the form's own size.
        window_.Width = root_->width() * platform::kTwipsPerPixel;
        window_.Height = root_->height() * platform::kTwipsPerPixel;
    }
    FollowCaption();
    if (!fullScreen_) {
        // Also of one that comes up maximised: the size that it goes back to.
        root_->resize(ToPixels(window_.Width), ToPixels(window_.Height));
    }
    if (window_.Left != 0 || window_.Top != 0) {
        FollowPlace();
    }
    FollowPointer();
    FollowState();
    ApplyConditions();
    root_->installEventFilter(this);
}

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

void WindowView::BindControls() {
    const QStringList unseen = Words(*root_, "unseen");
    for (CanvasWidget* canvas : root_->findChildren<CanvasWidget*>()) {
        if (canvas->property("hostsObjects").toBool()) {
            host_ = canvas;
        }
    }
    for (model::Control* each : window_.Controls()) {
        if (!HasWidget(each->Kind()) || unseen.contains(QString::fromStdString(each->Name()))) {
            continue;
        }
        auto& control = static_cast<model::VisibleControl&>(*each);
        if (auto* widget = root_->findChild<QWidget*>(WidgetName(control.Name()))) {
            Bind(control, *widget, nullptr);
        } else if (host_ && control.Visible) {
            MakeOverlay(control);
        } else if (host_) {
            unmade_.push_back(&control);
            control.Listen(this);
            heard_.push_back(&control);
        }
    }
}

void WindowView::Bind(model::VisibleControl& control, QWidget& widget, const CanvasWidget* host) {
    if (auto binding = MakeBinding(control, widget, gate_, host, fullScreen_)) {
        bindings_.push_back(std::move(binding));
    }
}

void WindowView::MakeOverlay(model::VisibleControl& control) {
    QWidget* widget = MakePlainWidget(control.Kind(), host_);
    if (!widget) {
        return;
    }
    widget->setObjectName(WidgetName(control.Name()));
    widget->setCursor(Qt::ArrowCursor);
    Bind(control, *widget, host_);
    widget->raise();
}

void WindowView::DecorateWidgets() {
    for (QWidget* widget : root_->findChildren<QWidget*>()) {
        const QString glyph = widget->property("glyph").toString();
        if (!glyph.isEmpty()) {
            const QString role = widget->property("glyphRole").toString();
            const QIcon icon = GlyphIcon(
                glyph, role == "highlight" ? QPalette::HighlightedText : QPalette::ButtonText);
            if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
                button->setIcon(icon);
            } else if (auto* label = qobject_cast<QLabel*>(widget)) {
                // Drawn once: a label's shape is on ground that is the same in light and dark.
                const int side = label->property("glyphSize").toInt();
                label->setPixmap(GlyphIcon(glyph, QColor(kShapeOnStage))
                                     .pixmap(QSize(side, side), label->devicePixelRatioF()));
            }
        }
        const QStringList terms = Words(*widget, "showWhile");
        if (terms.isEmpty()) {
            continue;
        }
        conditions_.push_back({widget, terms});
        for (QString term : terms) {
            model::Control* control = window_.FindControl(term.remove('!').toStdString());
            if (control) {
                control->Listen(this);
                heard_.push_back(control);
            }
        }
    }
}

void WindowView::ApplyConditions() {
    const auto holds = [this](QString term) {
        if (term == "idle") {
            return window_.MousePointer == model::kPointerNormal;
        }
        const bool wanted = !term.startsWith('!');
        const model::Control* control = window_.FindControl(term.remove('!').toStdString());
        return control && HasWidget(control->Kind()) &&
               static_cast<const model::VisibleControl*>(control)->Enabled == wanted;
    };
    for (const Condition& condition : conditions_) {
        for (QLabel* label : condition.widget->findChildren<QLabel*>()) {
            const QString words = label->property("textWithDrop").toString();
            if (!words.isEmpty() && window_.FilesDropped) {
                label->setText(words);
            }
        }
        condition.widget->adjustSize();
        condition.widget->setVisible(
            std::all_of(condition.terms.begin(), condition.terms.end(), holds));
    }
}

void WindowView::FollowVisible() {
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
    root_->show();
    root_->raise();
    if (!root_->testAttribute(Qt::WA_ShowWithoutActivating)) {
        root_->activateWindow();
        if (host_ && !root_->focusWidget()) {
            host_->setFocus();
        }
    }
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
        return;  // its place is the window system's affair
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
    Qt::WindowStates states = root_->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (window_.WindowState == model::kWindowMinimised) {
        states |= Qt::WindowMinimized;
    } else if (window_.WindowState == model::kWindowMaximised) {
        states |= Qt::WindowMaximized;
    }
    if (states != root_->windowState()) {
        root_->setWindowState(states);
    }
}

void WindowView::FollowPointer() {
    if (window_.CursorCount < 0) {
        root_->setCursor(Qt::BlankCursor);
        return;
    }
    switch (window_.MousePointer) {
        case model::kPointerBusy:
            root_->setCursor(Qt::WaitCursor);
            break;
        case model::kPointerArrowBusy:
            root_->setCursor(Qt::BusyCursor);
            break;
        default:
            root_->unsetCursor();
            break;
    }
}

void WindowView::FollowCaption() {
    const QString caption = ToQt(window_.Caption());
    root_->setWindowTitle(caption);
    if (auto* label = root_->findChild<QLabel*>("windowCaption")) {
        label->setText(label->fontMetrics().elidedText(caption, Qt::ElideMiddle, label->width()));
        label->setToolTip(caption);
    }
}

bool WindowView::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Close:
            event->ignore();
            gate_.Guarded([this] { window_.Unload(); });
            return true;
        case QEvent::Resize:
            Resized();
            return false;
        case QEvent::WindowStateChange:
            StateChangedByPerson();
            return false;
        case QEvent::KeyPress: {
            const int key = VirtualKey(static_cast<QKeyEvent*>(event)->key());
            if (key != 0) {
                gate_.Guarded([&] {
                    window_.PressKey(key);
                    PressButtonOf(key);
                });
            }
            return false;
        }
        case QEvent::MouseButtonPress:
            event->accept();
            return true;
        case QEvent::MouseButtonRelease: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() == Qt::LeftButton && root_->rect().contains(mouse->pos())) {
                gate_.Guarded([this] { window_.Press(); });
            }
            return true;
        }
        case QEvent::ApplicationPaletteChange:
            // Later: the toolkit is still telling its widgets.
            QMetaObject::invokeMethod(
                this, [this] { TakeNewColors(); }, Qt::QueuedConnection);
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
            Dragged(*static_cast<QDropEvent*>(event));
            return true;
        case QEvent::Drop:
            Dropped(*static_cast<QDropEvent*>(event));
            return true;
        default:
            return false;
    }
}

/// Enter and Esc press the buttons that the form names for them.
void WindowView::PressButtonOf(int key) {
    const char* property = key == kKeyEnter    ? "enterPresses"
                           : key == kKeyEscape ? "escPresses"
                                               : "";
    const std::string name = root_->property(property).toString().toStdString();
    if (auto* button = dynamic_cast<model::Button*>(window_.FindControl(name))) {
        button->Press();
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

/// Widgets with a style sheet keep the colours they were made with, until the sheet is set again.
void WindowView::TakeNewColors() {
    QList<QWidget*> widgets = root_->findChildren<QWidget*>();
    widgets += root_.data();
    for (QWidget* widget : widgets) {
        const QString sheet = widget->styleSheet();
        if (!sheet.isEmpty()) {
            widget->setStyleSheet(QString());
            widget->setStyleSheet(sheet);
        }
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
