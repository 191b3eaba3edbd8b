#include "adapters/qt/control_binding.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <cmath>

#include "adapters/qt/browser_binding.h"
#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/grid_binding.h"
#include "adapters/qt/image_widget.h"
#include "adapters/qt/list_binding.h"
#include "adapters/qt/number_bindings.h"
#include "adapters/qt/qt_text_renderer.h"
#include "adapters/qt/stage_widget.h"
#include "adapters/qt/video_widget.h"
#include "model/controls.h"
#include "model/grid.h"
#include "model/list_controls.h"
#include "model/picture_controls.h"
#include "model/scroll_bar.h"
#include "platform/monitors.h"

namespace qt_adapter {

namespace {

constexpr int kCaptionMargin = 8;  // pixels, of a button over a canvas

using model::ControlKind;

class ButtonBinding : public ControlBinding {
public:
    ButtonBinding(model::Button& button, QAbstractButton& widget, Gate& gate,
                  const CanvasWidget* host)
        : ControlBinding(button, widget, gate, host), button_(button), face_(widget) {
        connect(&widget, &QAbstractButton::clicked, this,
                [this] { Act([this] { button_.Press(); }); });
        Sync();
    }

protected:
    void SyncOwn() override {
        const QString caption = ToQt(button_.Caption());
        face_.setText(caption);
        if (const double enlargement = Enlargement(); enlargement > 0) {
            QFont font = QApplication::font(&face_);
            font.setPointSizeF(QFontInfo(font).pointSizeF() * enlargement);
            face_.setFont(font);
        }
        if (!caption.isEmpty()) {
            face_.setAccessibleName(caption);
        }
    }

private:
    model::Button& button_;
    QAbstractButton& face_;
};

class CheckBinding : public ControlBinding {
public:
    CheckBinding(model::CheckBox& box, QCheckBox& widget, Gate& gate)
        : ControlBinding(box, widget, gate, nullptr), box_(box), face_(widget) {
        connect(&widget, &QCheckBox::clicked, this, [this] {
            Act([this] { box_.Press(); });
            SyncOwn();
        });
        Sync();
    }

protected:
    void SyncOwn() override {
        face_.setText(ToQt(box_.Caption()));
        face_.setChecked(box_.Value != 0);
    }

private:
    model::CheckBox& box_;
    QCheckBox& face_;
};

class OptionBinding : public ControlBinding {
public:
    OptionBinding(model::OptionButton& option, QRadioButton& widget, Gate& gate)
        : ControlBinding(option, widget, gate, nullptr), option_(option), face_(widget) {
        // The model says which are off.
        widget.setAutoExclusive(false);
        connect(&widget, &QRadioButton::clicked, this, [this] {
            Act([this] { option_.Press(); });
            SyncOwn();
        });
        Sync();
    }

protected:
    void SyncOwn() override {
        face_.setText(ToQt(option_.Caption()));
        face_.setChecked(option_.Value);
    }

private:
    model::OptionButton& option_;
    QRadioButton& face_;
};

class LabelBinding : public ControlBinding {
public:
    LabelBinding(model::Label& label, QLabel& widget, Gate& gate, const CanvasWidget* host)
        : ControlBinding(label, widget, gate, host),
          label_(label),
          face_(widget),
          onCanvas_(host != nullptr) {
        widget.setTextFormat(Qt::PlainText);
        Sync();
    }

protected:
    void SyncOwn() override {
        face_.setText(ToQt(label_.Caption()));
        if (!label_.FontName().empty()) {
            TakeLook();
        }
    }
    int UnitsPerPixel() const override { return onCanvas_ ? 1 : ControlBinding::UnitsPerPixel(); }

private:
    /// Also between whole pixels, so that the text is as long as the canvas's scale makes it.
    void SetLetterHeight(QFont& font, double pixels) const {
        constexpr double kPointsPerInch = 72;
        font.setPointSizeF(pixels * kPointsPerInch / face_.logicalDpiY());
    }

    void TakeLook() {
        QFont font = ScreenFont(
            {label_.FontName, label_.FontSize, label_.FontBold, label_.FontItalic, false});
        if (const double enlargement = Enlargement(); enlargement > 0) {
            SetLetterHeight(font, font.pixelSize() * enlargement);
        } else {
            font.setPixelSize(
                std::max(1, static_cast<int>(std::lround(font.pixelSize() / Scale()))));
        }
        face_.setFont(font);
        QPalette palette = face_.palette();
        const auto color = static_cast<platform::Color>(label_.ForeColor());
        palette.setColor(QPalette::WindowText, QColor::fromRgb(platform::ToPixel(color)));
        face_.setPalette(palette);
    }

    model::Label& label_;
    QLabel& face_;
    bool onCanvas_;
};

class FrameBinding : public ControlBinding {
public:
    FrameBinding(model::Frame& frame, QGroupBox& widget, Gate& gate)
        : ControlBinding(frame, widget, gate, nullptr), frame_(frame), face_(widget) {
        Sync();
    }

protected:
    void SyncOwn() override { face_.setTitle(ToQt(frame_.Caption())); }

private:
    model::Frame& frame_;
    QGroupBox& face_;
};

/// `Edit` is QLineEdit or QPlainTextEdit.
template <class Edit>
class TextBinding : public ControlBinding {
public:
    TextBinding(model::TextBox& box, Edit& widget, Gate& gate)
        : ControlBinding(box, widget, gate, nullptr), box_(box), face_(widget) {
        Sync();
        connect(&widget, &Edit::textChanged, this,
                [this] { Act([this] { box_.Enter(FromQt(Shown())); }); });
    }

protected:
    void SyncOwn() override {
        const QString content = ToQt(box_.Content());
        if (Shown() == content) {
            return;  // the cursor stays where a person left it
        }
        if constexpr (std::is_same_v<Edit, QLineEdit>) {
            face_.setText(content);
        } else {
            face_.setPlainText(content);
        }
    }

private:
    QString Shown() const {
        if constexpr (std::is_same_v<Edit, QLineEdit>) {
            return face_.text();
        } else {
            return face_.toPlainText().replace('\n', "\r\n");
        }
    }

    model::TextBox& box_;
    Edit& face_;
};

class PlayerBinding : public ControlBinding {
public:
    PlayerBinding(model::Player& player, VideoWidget& widget, Gate& gate)
        : ControlBinding(player, widget, gate, nullptr), screen_(widget) {
        widget.Attach(player, gate);
        Sync();
    }

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override {
        ControlBinding::PropertyChanged(control, property);
        screen_.TellRoom();
        screen_.update();
    }

protected:
    void SyncOwn() override {}

private:
    VideoWidget& screen_;
};

class ImageBinding : public ControlBinding {
public:
    ImageBinding(model::Image& image, ImageWidget& widget, Gate& gate)
        : ControlBinding(image, widget, gate, nullptr) {
        widget.Attach(image, gate);
        Sync();
    }

protected:
    void SyncOwn() override {}
};

class PictureBinding : public ControlBinding {
public:
    PictureBinding(model::PictureBox& box, CanvasWidget& widget, Gate& gate,
                   const CanvasWidget* host, bool physical)
        : ControlBinding(box, widget, gate, host), box_(box) {
        widget.Attach(box, gate, physical);
        Sync();
    }

protected:
    void SyncOwn() override {
        if (box_.MousePointer == model::kPointerCustom) {
            widget_.setCursor(Qt::PointingHandCursor);
        } else if (widget_.cursor().shape() == Qt::PointingHandCursor) {
            widget_.setCursor(Qt::ArrowCursor);
        }
        widget_.update();
    }
    QSize NaturalSize() const override { return {0, 0}; }

private:
    model::PictureBox& box_;
};

}  // namespace

ControlBinding::ControlBinding(model::VisibleControl& control, QWidget& widget, Gate& gate,
                               const CanvasWidget* host)
    : control_(control), widget_(widget), gate_(gate), host_(host) {
    control.Listen(this);
    if (host) {
        connect(host, &CanvasWidget::Rescaled, this, [this] { Sync(); });
    }
}

ControlBinding::~ControlBinding() {
    control_.Unlisten(this);
}

void ControlBinding::PropertyChanged(model::Control&, model::PropertyBase& property) {
    if (&property == &control_.Visible) {
        widget_.setVisible(control_.Visible);
    } else if (&property == &control_.Enabled) {
        widget_.setEnabled(control_.Enabled);
    } else if (&property == &control_.Left || &property == &control_.Top ||
               &property == &control_.Width || &property == &control_.Height) {
        Place();
    } else {
        SyncOwn();
    }
}

void ControlBinding::Sync() {
    SyncOwn();
    Place();
    widget_.setEnabled(control_.Enabled);
    widget_.setVisible(control_.Visible);
}

void ControlBinding::Act(const std::function<void()>& call) {
    gate_.Guarded([&] {
        if (control_.Reachable()) {
            call();
        }
    });
}

int ControlBinding::UnitsPerPixel() const {
    return platform::kTwipsPerPixel;
}

double ControlBinding::Scale() const {
    return host_ ? host_->Scale() : 1.0;
}

double ControlBinding::Enlargement() const {
    return host_ ? host_->Enlargement() : 0;
}

void ControlBinding::Place() {
    const QWidget* parent = widget_.parentWidget();
    const bool onStage = qobject_cast<const StageWidget*>(parent) != nullptr;
    if (!host_ && !onStage) {
        return;
    }
    const int width = control_.Width / UnitsPerPixel();
    const int height = control_.Height / UnitsPerPixel();
    QSize size = host_ ? host_->ExtentOf(width, height) : QSize(width, height);
    if (size.isEmpty()) {
        size = NaturalSize();
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget_); button && host_) {
        // On a scaled monitor the letters are larger than the canvas's pixels.
        const QFontMetrics metrics = button->fontMetrics();
        size = size.expandedTo({metrics.horizontalAdvance(button->text()) + kCaptionMargin,
                                metrics.height() + kCaptionMargin / 2});
    }
    if (Enlargement() > 0 && control_.Kind() == ControlKind::Label) {
        size = size.expandedTo(widget_.sizeHint());  // letters end between pixels
    }
    widget_.resize(size);
    if (host_) {
        widget_.move(host_->PlaceOf(control_.Left, control_.Top));
    }
}

bool HasWidget(ControlKind kind) {
    switch (kind) {
        case ControlKind::Window:
        case ControlKind::Timer:
        case ControlKind::MenuEntry:
        case ControlKind::Imaging:
            return false;
        default:
            return true;
    }
}

QWidget* MakePlainWidget(ControlKind kind, QWidget* parent) {
    switch (kind) {
        case ControlKind::Button:
            return new QPushButton(parent);
        case ControlKind::Label:
            return new QLabel(parent);
        case ControlKind::PictureBox:
            return new CanvasWidget(parent);
        default:
            return nullptr;
    }
}

std::unique_ptr<ControlBinding> MakeBinding(model::VisibleControl& control, QWidget& widget,
                                            Gate& gate, const CanvasWidget* host, bool physical) {
    switch (control.Kind()) {
        case ControlKind::Button:
            if (auto* face = qobject_cast<QAbstractButton*>(&widget)) {
                return std::make_unique<ButtonBinding>(static_cast<model::Button&>(control), *face,
                                                       gate, host);
            }
            break;
        case ControlKind::CheckBox:
            if (auto* face = qobject_cast<QCheckBox*>(&widget)) {
                return std::make_unique<CheckBinding>(static_cast<model::CheckBox&>(control), *face,
                                                      gate);
            }
            break;
        case ControlKind::OptionButton:
            if (auto* face = qobject_cast<QRadioButton*>(&widget)) {
                return std::make_unique<OptionBinding>(static_cast<model::OptionButton&>(control),
                                                       *face, gate);
            }
            break;
        case ControlKind::Label:
            if (auto* face = qobject_cast<QLabel*>(&widget)) {
                return std::make_unique<LabelBinding>(static_cast<model::Label&>(control), *face,
                                                      gate, host);
            }
            break;
        case ControlKind::Frame:
            if (auto* face = qobject_cast<QGroupBox*>(&widget)) {
                return std::make_unique<FrameBinding>(static_cast<model::Frame&>(control), *face,
                                                      gate);
            }
            break;
        case ControlKind::TextBox: {
            auto& box = static_cast<model::TextBox&>(control);
            if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
                return std::make_unique<TextBinding<QLineEdit>>(box, *line, gate);
            }
            if (auto* text = qobject_cast<QPlainTextEdit*>(&widget)) {
                return std::make_unique<TextBinding<QPlainTextEdit>>(box, *text, gate);
            }
            break;
        }
        case ControlKind::ListBox:
            if (auto* view = qobject_cast<QListView*>(&widget)) {
                return std::make_unique<ListBinding>(static_cast<model::ListBox&>(control), *view,
                                                     gate);
            }
            break;
        case ControlKind::FileList:
            if (auto* view = qobject_cast<QListView*>(&widget)) {
                return std::make_unique<ListBinding>(static_cast<model::ListBox&>(control), *view,
                                                     gate);
            }
            break;
        case ControlKind::ComboBox:
            if (auto* box = qobject_cast<QComboBox*>(&widget)) {
                return std::make_unique<ComboBinding>(static_cast<model::ListBox&>(control), *box,
                                                      gate);
            }
            break;
        case ControlKind::DriveList:
            if (auto* box = qobject_cast<QComboBox*>(&widget)) {
                return std::make_unique<DriveBinding>(static_cast<model::DriveList&>(control), *box,
                                                      gate);
            }
            break;
        case ControlKind::FolderList:
            if (auto* tree = qobject_cast<QTreeView*>(&widget)) {
                return std::make_unique<FolderBinding>(static_cast<model::FolderList&>(control),
                                                       *tree, gate);
            }
            break;
        case ControlKind::Grid:
            if (auto* table = qobject_cast<QTableView*>(&widget)) {
                return std::make_unique<GridBinding>(static_cast<model::Grid&>(control), *table,
                                                     gate);
            }
            break;
        case ControlKind::Calendar:
            if (auto* month = qobject_cast<QCalendarWidget*>(&widget)) {
                return std::make_unique<CalendarBinding>(static_cast<model::Calendar&>(control),
                                                         *month, gate);
            }
            break;
        case ControlKind::ScrollBar:
            if (auto* bar = qobject_cast<QAbstractSlider*>(&widget)) {
                return std::make_unique<ScrollBinding>(static_cast<model::ScrollBar&>(control),
                                                       *bar, gate);
            }
            break;
        case ControlKind::Image:
            if (auto* image = qobject_cast<ImageWidget*>(&widget)) {
                return std::make_unique<ImageBinding>(static_cast<model::Image&>(control), *image,
                                                      gate);
            }
            break;
        case ControlKind::PictureBox:
            if (auto* canvas = qobject_cast<CanvasWidget*>(&widget)) {
                return std::make_unique<PictureBinding>(static_cast<model::PictureBox&>(control),
                                                        *canvas, gate, host, physical);
            }
            break;
        case ControlKind::Player:
            if (auto* screen = qobject_cast<VideoWidget*>(&widget)) {
                return std::make_unique<PlayerBinding>(static_cast<model::Player&>(control),
                                                       *screen, gate);
            }
            break;
        default:
            break;
    }
    qWarning("The form's widget %s is no %s", qUtf8Printable(widget.objectName()),
             widget.metaObject()->className());
    return nullptr;
}

}  // namespace qt_adapter
