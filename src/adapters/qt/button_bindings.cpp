#include "adapters/qt/button_bindings.h"

#include <QApplication>
#include <QFontInfo>

#include "adapters/qt/convert.h"
#include "adapters/qt/form_words.h"
#include "adapters/qt/glyph_icon.h"

namespace qt_adapter {

ButtonBinding::ButtonBinding(model::Button& button, QAbstractButton& widget, const Site& site)
    : ControlBinding(button, widget, site),
      button_(button),
      face_(widget),
      named_(!widget.accessibleName().isEmpty()) {
    connect(&widget, &QAbstractButton::clicked, this, [this] { Act([this] { button_.Press(); }); });
    button.SetFocus = [this] { face_.setFocus(); };
    HearKeys();
    Sync();
}

ButtonBinding::~ButtonBinding() {
    button_.SetFocus = nullptr;
}

/// What some buttons say below their caption.
QString ButtonBinding::Detail() const {
    const model::PropertyBase* detail = button_.FindProperty("Detail");
    const model::Value value = detail ? detail->Read() : model::Value(Text());
    const Text* words = std::get_if<Text>(&value);
    return words ? ToQt(*words) : QString();
}

void ButtonBinding::SyncOwn() {
    const QString caption = ToQt(button_.Caption());
    const QString detail = Detail();
    face_.setText(detail.isEmpty() ? caption : caption + '\n' + detail);
    const QStringList other = Words(face_, "glyphFor");
    if (other.size() == 2) {
        face_.setIcon(
            GlyphIcon(caption == other[0] ? other[1] : face_.property("glyph").toString()));
    }
    if (const double enlargement = Enlargement(); enlargement > 0) {
        QFont font = QApplication::font(&face_);
        font.setPointSizeF(QFontInfo(font).pointSizeF() * enlargement);
        face_.setFont(font);
    }
    if (!caption.isEmpty() && !named_) {
        face_.setAccessibleName(detail.isEmpty() ? caption : caption + ' ' + detail);
    }
}

CheckBinding::CheckBinding(model::CheckBox& box, QCheckBox& widget, const Site& site)
    : ControlBinding(box, widget, site), box_(box), face_(widget) {
    connect(&widget, &QCheckBox::clicked, this, [this] {
        Act([this] { box_.Press(); });
        SyncOwn();
    });
    HearKeys();
    Sync();
}

void CheckBinding::SyncOwn() {
    face_.setText(ToQt(box_.Caption()));
    face_.setChecked(box_.Value != 0);
}

OptionBinding::OptionBinding(model::OptionButton& option, QRadioButton& widget, const Site& site)
    : ControlBinding(option, widget, site), option_(option), face_(widget) {
    // The model says which are off.
    widget.setAutoExclusive(false);
    connect(&widget, &QRadioButton::clicked, this, [this] {
        Act([this] { option_.Press(); });
        SyncOwn();
    });
    HearKeys();
    Sync();
}

void OptionBinding::SyncOwn() {
    face_.setText(ToQt(option_.Caption()));
    face_.setChecked(option_.Value);
}

}  // namespace qt_adapter
