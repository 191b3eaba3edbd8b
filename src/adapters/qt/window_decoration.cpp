// What a form says beside its controls: icons, parts that are shown on a condition; and the
// pointer.
#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QResizeEvent>
#include <QShortcut>
#include <algorithm>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/form_menus.h"
#include "adapters/qt/form_words.h"
#include "adapters/qt/glyph_icon.h"
#include "adapters/qt/window_view.h"
#include "platform/monitors.h"

namespace qt_adapter {

namespace {

constexpr QLatin1String kSeen("seen:");
constexpr QRgb kShapeOnStage = 0xFF5F6368;  // grey that is seen on black without shouting

/// Tells a control's size in the model when its widget has another one.
class RoomTeller : public QObject {
public:
    RoomTeller(QWidget& widget, model::VisibleControl& control, Gate& gate)
        : QObject(&widget), control_(control), gate_(gate) {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            const QSize size = static_cast<QResizeEvent*>(event)->size();
            gate_.Guarded([&] {
                control_.Width = size.width() * platform::kTwipsPerPixel;
                control_.Height = size.height() * platform::kTwipsPerPixel;
            });
        }
        return false;
    }

private:
    model::VisibleControl& control_;
    Gate& gate_;
};

}  // namespace

void WindowView::DecorateWidgets() {
    for (QWidget* widget : root_->findChildren<QWidget*>()) {
        Decorate(*widget);
        if (menu_) {
            TieToMenus(*widget);
        }
    }
}

void WindowView::Decorate(QWidget& widget) {
    if (const QString glyph = widget.property("glyph").toString(); !glyph.isEmpty()) {
        const QString role = widget.property("glyphRole").toString();
        const QIcon icon = GlyphIcon(
            glyph, role == "highlight" ? QPalette::HighlightedText : QPalette::ButtonText);
        if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
            button->setIcon(icon);
        } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
            // Drawn once: a label's shape is on ground that is the same in light and dark.
            const int side = label->property("glyphSize").toInt();
            label->setPixmap(GlyphIcon(glyph, QColor(kShapeOnStage))
                                 .pixmap(QSize(side, side), label->devicePixelRatioF()));
        }
    }
    if (const QString key = widget.property("focusKey").toString(); !key.isEmpty()) {
        auto* shortcut = new QShortcut(QKeySequence(key), root_);
        connect(shortcut, &QShortcut::activated, &widget,
                [&widget] { widget.setFocus(Qt::ShortcutFocusReason); });
    }
    if (const QString name = widget.property("presses").toString(); !name.isEmpty()) {
        auto* const button = qobject_cast<QAbstractButton*>(&widget);
        auto* const pressed = root_->findChild<QAbstractButton*>(name);
        if (button && pressed) {
            connect(button, &QAbstractButton::clicked, pressed, &QAbstractButton::click);
        }
    }
    const std::string room = widget.property("roomOf").toString().toStdString();
    if (auto* control = dynamic_cast<model::VisibleControl*>(window_.FindControl(room))) {
        new RoomTeller(widget, *control, gate_);
    }
    const QStringList terms = Words(widget, "showWhile");
    if (terms.isEmpty()) {
        return;
    }
    conditions_.push_back({&widget, terms});
    for (QString term : terms) {
        model::Control* control = window_.FindControl(term.remove('!').remove(kSeen).toStdString());
        if (control) {
            control->Listen(this);
            heard_.push_back(control);
        }
    }
}

void WindowView::TieToMenus(QWidget& widget) {
    const auto actionOf = [&](const char* property) {
        return menu_->ActionOf(widget.property(property).toString());
    };
    if (auto* button = qobject_cast<QToolButton*>(&widget)) {
        if (QAction* entry = actionOf("entry")) {
            TieToEntry(*button, *entry);
        }
        if (QAction* menu = actionOf("menu")) {
            TieToMenu(*button, *menu);
        }
    } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
        QList<ContextPlace> places;
        for (const QString& name : Words(widget, "contextMenu")) {
            places += {menu_->ActionOf(name), root_->findChild<QAbstractButton*>(name)};
        }
        if (!places.isEmpty()) {
            GiveContextMenu(*view, places);
        }
        for (const QString& name : Words(widget, "keysHere")) {
            KeepKeyIn(*view, *menu_->ActionOf(name));
        }
    }
}

void WindowView::GiveFirstFocus() {
    const QString name = root_->property("firstFocus").toString();
    if (auto* widget = name.isEmpty() ? nullptr : root_->findChild<QWidget*>(name)) {
        widget->setFocus();
    }
}

void WindowView::ApplyConditions() {
    const auto holds = [this](QString term) {
        if (term == "idle") {
            return window_.MousePointer == model::kPointerNormal;
        }
        const bool seen = term.startsWith(kSeen);
        const bool wanted = !term.startsWith('!');
        const auto* control = dynamic_cast<const model::VisibleControl*>(
            window_.FindControl(term.remove('!').remove(kSeen).toStdString()));
        return control && (seen ? control->Visible : control->Enabled) == wanted;
    };
    for (const Condition& condition : conditions_) {
        for (QLabel* label : condition.widget->findChildren<QLabel*>()) {
            const QString words = label->property("textWithDrop").toString();
            if (!words.isEmpty() && window_.FilesDropped) {
                label->setText(words);
            }
        }
        if (!condition.widget->parentWidget()->layout()) {
            condition.widget->adjustSize();
        }
        condition.widget->setVisible(
            std::all_of(condition.terms.begin(), condition.terms.end(), holds));
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

}  // namespace qt_adapter
