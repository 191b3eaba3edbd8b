#include "adapters/qt/sound_slider.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace qt_adapter {

namespace {

constexpr double kRound = 5;
constexpr double kRestShare = 0.45;  // of the text's colour in what is still to come

}  // namespace

SoundSlider::SoundSlider(QWidget* parent) : QAbstractSlider(parent) {
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SoundSlider::SetLevels(const std::vector<uint8_t>& levels) {
    levels_ = levels;
    update();
}

int SoundSlider::ValueAt(int x) const {
    const double share = std::clamp(static_cast<double>(x) / std::max(1, width() - 1), 0.0, 1.0);
    return minimum() + qRound(share * (maximum() - minimum()));
}

double SoundSlider::ShareOf(int value) const {
    const int range = maximum() - minimum();
    return range > 0 ? static_cast<double>(value - minimum()) / range : 0;
}

void SoundSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 1)
                              : QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(frame, kRound, kRound);

    const int place = qRound(ShareOf(held_ >= 0 ? held_ : value()) * (width() - 1));
    const QColor played =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Highlight);
    QColor rest =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text);
    rest.setAlphaF(static_cast<float>(kRestShare));
    painter.setRenderHint(QPainter::Antialiasing, false);
    const double middle = height() / 2.0;
    for (int x = 2; x < width() - 2; ++x) {
        // The loudest of all parts that fall onto this column.
        double loudest = 0;
        const auto parts = static_cast<int>(levels_.size());
        const int first = parts * x / width();
        const int end = std::max(first + 1, parts * (x + 1) / width());
        for (int part = first; part < std::min(end, parts); ++part) {
            loudest = std::max(loudest, levels_[static_cast<size_t>(part)] / 255.0);
        }
        const double half = std::max(levels_.empty() ? 2.0 : 0.5, loudest * (middle - 4));
        painter.fillRect(QRectF(x, middle - half, 1, 2 * half), x <= place ? played : rest);
    }
    if (isEnabled()) {
        painter.fillRect(
            QRectF(std::clamp(place - 1, 1, std::max(1, width() - 3)), 2, 2, height() - 4),
            palette().color(QPalette::Text));
    }
}

void SoundSlider::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted()) {
        held_ = ValueAt(event->pos().x());
        update();
    }
}

void SoundSlider::mouseMoveEvent(QMouseEvent* event) {
    if (held_ >= 0) {
        held_ = ValueAt(event->pos().x());
        update();
    }
}

void SoundSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && held_ >= 0) {
        held_ = -1;
        setValue(ValueAt(event->pos().x()));
        update();
    }
}

SoundBinding::SoundBinding(model::SoundBar& bar, SoundSlider& widget, const Site& site)
    : ScrollBinding(bar, widget, site), sound_(bar) {
    widget.SetLevels(bar.Levels());
    sound_.Refresh = [&bar, &widget] { widget.SetLevels(bar.Levels()); };
}

SoundBinding::~SoundBinding() {
    sound_.Refresh = nullptr;
}

}  // namespace qt_adapter
