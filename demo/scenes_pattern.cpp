// Traditional patterns, lit as if they were lacquer and cloth.
#include <array>

#include "paint.h"
#include "scenes.h"

namespace demo {

QImage SeaWavePattern() {
    constexpr float kRadius = 0.092f;
    Picture picture;
    picture.Draw([&](QPainter& painter) {
        // Rows from the top: every scale covers the lower half of those above it.
        int row = 0;
        for (float y = -kRadius; y < 1 + kRadius; y += kRadius * 0.5f, ++row) {
            const float shift = row % 2 ? kRadius : 0;
            int column = 0;
            for (float x = -kRadius + shift; x < kAspect + 2 * kRadius;
                 x += kRadius * 2, ++column) {
                const float tide = Clamp(0.5f + 0.75f * Fbm(x * 0.9f, y * 1.4f, 3, 8));
                const Rgb deep = Mix(Hex(0x0A1F44), Hex(0x14546E), tide);
                const Rgb pale = Mix(Hex(0x1F5A8A), Hex(0x6FC0B8), tide);
                const bool gilded = Noise(x * 5.1f + 3, y * 6.3f, 77) > 0.52f;
                const bool foam = !gilded && Noise(x * 4.3f, y * 5.7f, 31) > 0.56f;
                constexpr int kRings = 5;
                for (int ring = 0; ring < kRings; ++ring) {
                    const float part = 1 - static_cast<float>(ring) / kRings;
                    const float r = kRadius * part;
                    Rgb fill =
                        Mix(deep, pale, ring % 2 ? 0.85f : 0.15f + 0.1f * static_cast<float>(ring));
                    if (gilded) fill = Mix(Hex(0x8A5E1C), Hex(0xF0CE78), ring % 2 ? 0.9f : 0.25f);
                    if (foam) fill = Mix(Hex(0x7FB4C8), Hex(0xF4FBFA), ring % 2 ? 1.0f : 0.35f);
                    QLinearGradient shine(x - r, y - r, x + r, y + r * 0.6f);
                    shine.setColorAt(0, ToColor(fill * 1.22f));
                    shine.setColorAt(1, ToColor(fill * 0.72f));
                    painter.setBrush(shine);
                    painter.setPen(
                        QPen(ToColor(Hex(0xE6C578), gilded ? 0.95f : 0.55f), kRadius * 0.020f));
                    painter.drawEllipse(QPointF(x, y), r, r);
                }
            }
        }
        painter.setPen(Qt::NoPen);
    });
    picture.Each([](float x, float y, Rgb& p) {
        const float weave = 0.03f * Noise(x * 260, y * 260, 2);
        const float lamp = Bell(std::hypot((x - 0.55f) * 0.8f, y - 0.25f), 0.95f);
        p = p * (0.50f + 0.66f * lamp + weave);
    });
    picture.Bloom(0.82f, 10, 0.25f);
    picture.Vignette(0.45f);
    picture.Draw([](QPainter& painter) {
        // A plate for the title, so that the pattern does not disturb it.
        QLinearGradient plate(1.52f, 0, 1.74f, 0);
        plate.setColorAt(0, QColor(0x0A, 0x16, 0x30, 225));
        plate.setColorAt(1, QColor(0x06, 0x0E, 0x22, 235));
        painter.setBrush(plate);
        painter.setPen(QPen(QColor(0xE6, 0xC5, 0x78, 170), 0.0018f));
        painter.drawRect(QRectF(1.50f, 0.10f, 0.19f, 0.48f));
        WriteTitle(painter, QStringLiteral("青海波"), QStringLiteral("果てなき波の　おだやかさ"),
                   1.655f, 0.15f, Hex(0xF6EAC8));
    });
    return picture.Finish();
}

QImage HempLeafPattern() {
    constexpr float kSide = 0.098f;              // of a triangle
    constexpr float kRise = kSide * 0.8660254f;  // its height
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        p = Mix(Hex(0x5A1030), Hex(0x23103E), Clamp(x / kAspect * 0.75f + y * 0.4f));
        p = Mix(p, Hex(0xB03A3A), 0.55f * Bell(std::hypot((x - 0.5f) * 0.8f, y - 0.35f), 0.55f));
    });
    picture.Draw([&](QPainter& painter) {
        auto cell = [&](QPointF a, QPointF b, QPointF c) {
            const QPointF middle = (a + b + c) / 3;
            const std::array<QPointF, 3> corners = {a, b, c};
            for (size_t i = 0; i < 3; ++i) {
                const QPointF& from = corners[i];
                const QPointF& to = corners[(i + 1) % 3];
                const QPointF centre = (from + to + middle) / 3;
                const float cx = static_cast<float>(centre.x()),
                            cy = static_cast<float>(centre.y());
                const float tone = 0.5f + 0.5f * Noise(cx * 40 + 3, cy * 40, 19);
                const float drift = Fbm(cx * 1.3f, cy * 1.6f, 3, 5);
                Rgb fill = Mix(Hex(0x8E1F3C), Hex(0xE88A5A), Clamp(0.35f + drift + 0.35f * tone));
                fill =
                    Mix(fill, Hex(0x3A1A5A), Smooth(0.55f, 1.55f, cx + cy * 0.35f + drift * 0.6f));
                float alpha = 0.25f + 0.5f * tone;
                if (Noise(cx * 31, cy * 29, 91) > 0.63f) {
                    fill = Hex(0xF0C870);
                    alpha = 0.85f;
                }
                QLinearGradient shine(from, to);
                shine.setColorAt(0, ToColor(fill * 1.15f, alpha));
                shine.setColorAt(1, ToColor(fill * 0.7f, alpha));
                painter.setPen(Qt::NoPen);
                painter.setBrush(shine);
                painter.drawPolygon(QPolygonF({from, to, middle}));
            }
            painter.setBrush(Qt::NoBrush);
            painter.setPen(
                QPen(QColor(0xF4, 0xDC, 0xA4, 225), 0.0021f, Qt::SolidLine, Qt::RoundCap));
            painter.drawPolygon(QPolygonF({a, b, c}));
            for (const QPointF& corner : corners) {
                painter.drawLine(corner, middle);
            }
        };
        int row = 0;
        for (float y = -kRise; y < 1 + kRise; y += kRise, ++row) {
            const float shift = row % 2 ? kSide / 2 : 0;
            for (float x = -kSide * 2 + shift; x < kAspect + kSide; x += kSide) {
                cell({x, y}, {x + kSide, y}, {x + kSide / 2, y + kRise});
                cell({x + kSide, y}, {x + kSide / 2, y + kRise}, {x + kSide * 1.5f, y + kRise});
            }
        }
        painter.setPen(Qt::NoPen);
    });
    picture.Each([](float x, float y, Rgb& p) {
        const float weave = 0.04f * Noise(x * 300, y * 300, 6);
        const float lamp = Bell(std::hypot((x - 0.62f) * 0.75f, y - 0.35f), 0.9f);
        p = p * (0.48f + 0.68f * lamp + weave);
    });
    picture.Bloom(0.78f, 9, 0.3f);
    picture.Vignette(0.45f);
    picture.Draw([](QPainter& painter) {
        painter.setBrush(QColor(0x1C, 0x0A, 0x24, 232));
        painter.setPen(QPen(QColor(0xF0, 0xD0, 0x90, 170), 0.0018f));
        painter.drawRect(QRectF(1.50f, 0.10f, 0.19f, 0.46f));
        WriteTitle(painter, QStringLiteral("麻の葉"), QStringLiteral("すこやかに　まっすぐに"),
                   1.655f, 0.15f, Hex(0xFBEBC8));
    });
    return picture.Finish();
}

}  // namespace demo
