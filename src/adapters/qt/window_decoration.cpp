// What a form says beside its controls: icons, parts that are shown on a condition; and the
// pointer.
#include <QAbstractButton>
#include <QLabel>
#include <algorithm>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/form_words.h"
#include "adapters/qt/glyph_icon.h"
#include "adapters/qt/window_view.h"

namespace qt_adapter {

namespace {

constexpr QRgb kShapeOnStage = 0xFF5F6368;  // grey that is seen on black without shouting

}  // namespace

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
