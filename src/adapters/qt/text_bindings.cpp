#include "adapters/qt/text_bindings.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>

#include "adapters/qt/convert.h"
#include "adapters/qt/dragged_files.h"
#include "adapters/qt/qt_text_renderer.h"

namespace qt_adapter {

LabelBinding::LabelBinding(model::Label& label, QLabel& widget, const Site& site)
    : ControlBinding(label, widget, site),
      label_(label),
      face_(widget),
      onCanvas_(site.host != nullptr),
      cut_(widget.property("elided").toBool()) {
    widget.setTextFormat(Qt::PlainText);
    if (cut_) {
        widget.installEventFilter(this);
    }
    passing_.setSingleShot(true);
    passing_.setInterval(widget.property("passes").toInt());
    connect(&passing_, &QTimer::timeout, &face_, &QLabel::clear);
    Sync();
}

void LabelBinding::ShowWords() {
    face_.setText(
        cut_ ? face_.fontMetrics().elidedText(shown_, Qt::ElideMiddle, face_.contentsRect().width())
             : shown_);
    if (cut_) {
        face_.setToolTip(face_.text() == shown_ ? QString() : shown_);
    }
}

bool LabelBinding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && (passing_.interval() == 0 || passing_.isActive())) {
        ShowWords();
    }
    return ControlBinding::eventFilter(watched, event);
}

void LabelBinding::SyncOwn() {
    const QString words = ToQt(label_.Caption());
    const bool news = words != shown_;
    shown_ = words;
    if (passing_.interval() == 0) {
        ShowWords();
    } else if (news) {
        ShowWords();
        passing_.start();
        QAccessibleEvent told(&face_, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
    if (!label_.FontName().empty()) {
        TakeLook();
    }
}

int LabelBinding::UnitsPerPixel() const {
    return onCanvas_ ? 1 : ControlBinding::UnitsPerPixel();
}

void LabelBinding::TakeLook() {
    QFont font =
        ScreenFont({label_.FontName, label_.FontSize, label_.FontBold, label_.FontItalic, false});
    if (const double enlargement = Enlargement(); enlargement > 0) {
        // Also between whole pixels, so that the text is as long as the canvas's scale makes it.
        constexpr double kPointsPerInch = 72;
        const double pixels = font.pixelSize() * enlargement;
        font.setPointSizeF(pixels * kPointsPerInch / face_.logicalDpiY());
    } else {
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() / Scale()))));
    }
    face_.setFont(font);
    QPalette palette = face_.palette();
    const auto color = static_cast<platform::Color>(label_.ForeColor());
    palette.setColor(QPalette::WindowText, QColor::fromRgb(platform::ToPixel(color)));
    face_.setPalette(palette);
}

FrameBinding::FrameBinding(model::Frame& frame, QGroupBox& widget, const Site& site)
    : ControlBinding(frame, widget, site), frame_(frame), face_(widget) {
    Sync();
}

void FrameBinding::SyncOwn() {
    face_.setTitle(ToQt(frame_.Caption()));
}

TextBinding::TextBinding(model::TextBox& box, QWidget& widget, const Site& site)
    : ControlBinding(box, widget, site), box_(box) {}

void TextBinding::Typed() {
    if (!showing_) {
        Act([this] { box_.Enter(FromQt(Shown())); });
    }
}

void TextBinding::SyncOwn() {
    const QString content = ToQt(box_.Content());
    if (Shown() != content) {  // else the cursor stays where a person left it
        const QScopedValueRollback<bool> guard(showing_, true);
        Show(content);
    }
}

bool TextBinding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DragEnter && HasFiles(*static_cast<QDropEvent*>(event))) {
        event->ignore();  // goes on to the window
        return true;
    }
    return ControlBinding::eventFilter(watched, event);
}

/// Esc empties a box whose form says so ("escClears"); what is empty lets the key through.
bool LineBinding::eventFilter(QObject* watched, QEvent* event) {
    const bool escape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape && face_.property("escClears").toBool() && !face_.text().isEmpty()) {
        face_.clear();
        return true;
    }
    return TextBinding::eventFilter(watched, event);
}

LineBinding::LineBinding(model::TextBox& box, QLineEdit& widget, const Site& site)
    : TextBinding(box, widget, site), face_(widget) {
    Sync();
    HearKeys();
    connect(&widget, &QLineEdit::textChanged, this, [this] { Typed(); });
}

LinesBinding::LinesBinding(model::TextBox& box, QPlainTextEdit& widget, const Site& site)
    : TextBinding(box, widget, site), face_(widget) {
    Sync();
    HearKeys();
    widget.viewport()->installEventFilter(this);
    connect(&widget, &QPlainTextEdit::textChanged, this, [this] { Typed(); });
}

}  // namespace qt_adapter
