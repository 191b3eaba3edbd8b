#include "adapters/qt/empty_hint.h"

#include <QEvent>
#include <QPainter>

#include "adapters/qt/glyph_shapes.h"

namespace qt_adapter {

namespace {

constexpr int kShape = 56, kGap = 10;
constexpr int kMargin = 20;      // of the words to the sides
constexpr int kFrameInset = 12;  // of the frame to the view's edge
constexpr int kFrameRound = 10;
constexpr double kHeadline = 1.2;  // of the view's letters

QFont HeadlineFont(QFont font) {
    font.setPointSizeF(font.pointSizeF() * kHeadline);
    font.setBold(true);
    return font;
}

QColor Thinned(QColor color, float alpha) {
    color.setAlphaF(alpha);
    return color;
}

}  // namespace

EmptyHint::EmptyHint(QAbstractScrollArea& view) : QWidget(view.viewport()), view_(view) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(view.viewport()->rect());
    view.viewport()->installEventFilter(this);
    hide();
}

void EmptyHint::Say(const QString& words, const QString& glyph) {
    words_ = words;
    glyph_ = glyph;
    setAccessibleName(words);
    setVisible(!words.isEmpty());
    update();
}

void EmptyHint::InviteDrops(bool on) {
    framed_ = on;
    update();
}

bool EmptyHint::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        setGeometry(view_.viewport()->rect());
    }
    return false;
}

void EmptyHint::paintEvent(QPaintEvent*) {
    constexpr int kHow = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const QString headline = words_.section('\n', 0, 0), rest = words_.section('\n', 1);
    const QFont large = rest.isEmpty() ? font() : HeadlineFont(font());
    const QRect room = rect().adjusted(kMargin, 0, -kMargin, 0);
    const auto heightOf = [&](const QFont& font, const QString& words) {
        return words.isEmpty() ? 0
                               : QFontMetrics(font).boundingRect(room, kHow, words).height() + kGap;
    };
    const int headlineHeight = heightOf(large, headline), restHeight = heightOf(font(), rest);
    const int words = headlineHeight + restHeight;
    const bool shaped = !glyph_.isEmpty() && words + kShape + 3 * kGap <= height();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::Text);
    if (framed_ && words + 2 * kFrameInset + 2 * kGap <= height()) {
        painter.setPen(QPen(Thinned(ink, 0.3F), 1.5, Qt::DashLine));
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(kFrameInset, kFrameInset, -kFrameInset, -kFrameInset),
            kFrameRound, kFrameRound);
    }
    int top = (height() - words - (shaped ? kShape : 0)) / 2;
    if (shaped) {
        PaintGlyph(painter, QRectF(0, top, width(), kShape), ShapeOf(glyph_), Thinned(ink, 0.35F));
        top += kShape + kGap;
    }
    painter.setFont(large);
    painter.setPen(Thinned(ink, rest.isEmpty() ? 0.7F : 0.85F));
    painter.drawText(QRect(room.left(), top, room.width(), headlineHeight), kHow, headline);
    painter.setFont(font());
    painter.setPen(Thinned(ink, 0.7F));
    painter.drawText(QRect(room.left(), top + headlineHeight, room.width(), restHeight), kHow,
                     rest);
}

}  // namespace qt_adapter
