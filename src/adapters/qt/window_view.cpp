#include "adapters/qt/window_view.h"

#include <QApplication>
#include <QDropEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/form_words.h"
#include "adapters/qt/virtual_keys.h"
#include "adapters/qt/window_palette.h"
#include "model/controls.h"

namespace qt_adapter {

namespace {

/// "Command3" of "Command3(7)"; empty for a control that is no element.
QString NameOfArray(const std::string& name) {
    const size_t index = name.find('(');
    return index == std::string::npos ? QString() : QString::fromStdString(name.substr(0, index));
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
        if (title_ && &property == &title_->Caption) {
            FollowCaption();
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
    GiveFirstFocus();
    const std::string title = root_->property("titleOf").toString().toStdString();
    title_ = dynamic_cast<model::Label*>(window_.FindControl(title));
    if (title_) {
        window_.FindControl(title)->Listen(this);
        heard_.push_back(window_.FindControl(title));
    }
    if (window_.Width == 0 && !fullScreen_) {
        // Not said by the model: the form's own size, as far as the monitor has room for it.
        const QSize size = root_->size().boundedTo(RoomForWindow());
        window_.Width = size.width() * platform::kTwipsPerPixel;
        window_.Height = size.height() * platform::kTwipsPerPixel;
        if (window_.Left != 0 || window_.Top != 0) {
            // It was centred without a size.
            window_.Left = window_.Left - window_.Width / 2;
            window_.Top = window_.Top - window_.Height / 2;
        }
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

void WindowView::BindControls() {
    const QStringList unseen = Words(*root_, "unseen");
    for (CanvasWidget* canvas : root_->findChildren<CanvasWidget*>()) {
        if (canvas->property("hostsObjects").toBool()) {
            host_ = canvas;
        }
    }
    const auto boxes = BoxesOfElements();
    for (model::Control* each : window_.Controls()) {
        if (!HasWidget(each->Kind()) || unseen.contains(QString::fromStdString(each->Name()))) {
            continue;
        }
        auto& control = static_cast<model::VisibleControl&>(*each);
        if (auto* widget = root_->findChild<QWidget*>(WidgetName(control.Name()))) {
            Bind(control, *widget, nullptr);
        } else if (QWidget* box = boxes.value(NameOfArray(control.Name()))) {
            MakeElement(control, *box);
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
    if (auto binding = MakeBinding(control, widget, {gate_, host, fullScreen_})) {
        bindings_.push_back(std::move(binding));
    }
}

QHash<QString, QWidget*> WindowView::BoxesOfElements() {
    QHash<QString, QWidget*> boxes;
    for (QWidget* widget : root_->findChildren<QWidget*>()) {
        if (const QString array = widget->property("elementsOf").toString(); !array.isEmpty()) {
            auto* cells = new QGridLayout(widget);
            cells->setContentsMargins({});
            widget->installEventFilter(this);
            boxes[array] = widget;
        }
    }
    return boxes;
}

/// What its elements became while nothing was seen, the layouts around the box did not take up.
void WindowView::GiveElementsRoom(QWidget& box) {
    for (QWidget* around = &box; around && around != root_; around = around->parentWidget()) {
        if (around->layout()) {
            around->layout()->activate();
        }
    }
}

/// At the next place of the box, line by line; the keyboard reaches it after the one before.
void WindowView::MakeElement(model::VisibleControl& control, QWidget& box) {
    QWidget* widget = MakePlainWidget(control.Kind(), &box);
    if (!widget) {
        return;
    }
    widget->setObjectName(WidgetName(control.Name()));
    auto* cells = static_cast<QGridLayout*>(box.layout());
    const int place = cells->count();
    const int beside = std::max(1, box.property("elementsBeside").toInt());
    QWidget::setTabOrder(place > 0 ? cells->itemAt(place - 1)->widget() : &box, widget);
    cells->addWidget(widget, place / beside, place % beside);
    Bind(control, *widget, nullptr);
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

void WindowView::FollowCaption() {
    const QString caption = ToQt(window_.Caption());
    const QString before = title_ ? ToQt(title_->Caption()) : QString();
    root_->setWindowTitle(before.isEmpty() ? caption : before + QStringLiteral(" - ") + caption);
    if (auto* label = root_->findChild<QLabel*>("windowCaption")) {
        label->setText(label->fontMetrics().elidedText(caption, Qt::ElideMiddle, label->width()));
        label->setToolTip(caption);
    }
}

bool WindowView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != root_) {
        if (event->type() == QEvent::Expose) {
            Exposed();
        } else if (event->type() == QEvent::Show && watched->property("elementsOf").isValid()) {
            GiveElementsRoom(static_cast<QWidget&>(*watched));
        }
        return false;
    }
    switch (event->type()) {
        case QEvent::Show:
            if (root_->windowHandle()) {
                root_->windowHandle()->installEventFilter(this);
            }
            return false;
        case QEvent::WindowActivate:
            ActivatedBySystem();
            return false;
        case QEvent::WindowDeactivate:
            DeactivatedBySystem();
            return false;
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
                    if (key != model::kKeyEnter || !PressFocusedButton()) {
                        window_.PressKey(key);
                    }
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
                this, [this] { TakeNewColors(*root_); }, Qt::QueuedConnection);
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

/// The window system asks for what it does not have. The program gets its event when that is
/// painted.
void WindowView::Exposed() {
    if (root_->windowHandle() && root_->windowHandle()->isExposed()) {
        QMetaObject::invokeMethod(
            this, [this] { gate_.Guarded([this] { window_.OnPaint(); }); }, Qt::QueuedConnection);
    }
}

/// Only a window of the program counts, and no box: the way to another program and back is neither
/// leaving nor coming. The model itself announces the coming that belongs to its showing.
void WindowView::DeactivatedBySystem() {
    const QWidget* taker = QApplication::activeWindow();
    if (taker && taker != root_ && viewOf_(taker->objectName())) {
        left_ = true;
        gate_.Guarded([this] { window_.OnDeactivate(); });
    }
}

void WindowView::ActivatedBySystem() {
    if (std::exchange(left_, false)) {
        gate_.Guarded([this] { window_.OnActivate(); });
    }
}

/// Enter on a button that has the keyboard presses that one; not all of the toolkit's styles do.
bool WindowView::PressFocusedButton() {
    for (const auto& binding : bindings_) {
        if (binding->Control().Kind() == model::ControlKind::Button &&
            &binding->Widget() == root_->focusWidget()) {
            return binding->Control().Press();
        }
    }
    return false;
}

}  // namespace qt_adapter
