// Fish and water lilies from above.
#include <QPainterPath>
#include <array>

#include "paint.h"
#include "scenes.h"

namespace demo {
namespace {

struct Koi {
    QPointF at;
    float heading;  // radians
    float length;
    float bend;  // of the body, radians over its length
    int pattern;
};

struct KoiShape {
    std::vector<QPointF> spine, left, right;
};

KoiShape ShapeOf(const Koi& koi) {
    KoiShape shape;
    constexpr int kSteps = 40;
    QPointF at = koi.at;
    for (int i = 0; i <= kSteps; ++i) {
        const float t = static_cast<float>(i) / kSteps;  // 0 at the mouth
        const float turn = koi.heading + kPi + koi.bend * std::sin(t * 4.2f) * (0.25f + t);
        const QPointF along(std::cos(turn), std::sin(turn));
        const QPointF across(-along.y(), along.x());
        // Broad at the head, thin before the tail.
        const float width = koi.length * 0.135f *
                                std::pow(std::sin(kPi * std::pow(t, 0.52f) * 0.985f), 0.8f) *
                                (1 - 0.42f * t) +
                            koi.length * 0.012f * Smooth(0, 0.05f, t);
        shape.spine.push_back(at);
        shape.left.push_back(at + across * width);
        shape.right.push_back(at - across * width);
        at += along * (koi.length * 0.82f / kSteps);
    }
    return shape;
}

QPainterPath BodyPath(const KoiShape& shape) {
    QPolygonF outline;
    for (const QPointF& p : shape.left) {
        outline << p;
    }
    for (size_t i = shape.right.size(); i-- > 0;) {
        outline << shape.right[i];
    }
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

void DrawFin(QPainter& painter, QPointF root, float direction, float length, float spread, Rgb tint,
             float alpha) {
    QPainterPath fin(root);
    auto tip = [&](float turn, float far) {
        return root +
               QPointF(std::cos(direction + turn), std::sin(direction + turn)) * (length * far);
    };
    fin.quadTo(tip(-spread * 0.9f, 0.55f), tip(-spread, 1.0f));
    fin.quadTo(tip(-spread * 0.3f, 0.86f), tip(0, 0.78f));
    fin.quadTo(tip(spread * 0.3f, 0.86f), tip(spread, 0.95f));
    fin.quadTo(tip(spread * 0.9f, 0.5f), root);
    QRadialGradient gradient(root, length);
    gradient.setColorAt(0, ToColor(tint, alpha));
    gradient.setColorAt(1, ToColor(tint, alpha * 0.30f));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawPath(fin);
    painter.setPen(QPen(ToColor(Hex(0xFFFFFF), alpha * 0.28f), length * 0.008f));
    for (int i = -4; i <= 4; ++i) {
        painter.drawLine(root, tip(spread * static_cast<float>(i) / 4.6f, 0.8f));
    }
    painter.setPen(Qt::NoPen);
}

void DrawKoi(QPainter& painter, Random& random, const Koi& koi) {
    const KoiShape shape = ShapeOf(koi);
    const size_t last = shape.spine.size() - 1;
    auto direction = [&](size_t i) {
        const QPointF d = shape.spine[std::min(i + 1, last)] - shape.spine[i > 0 ? i - 1 : 0];
        return static_cast<float>(std::atan2(d.y(), d.x()));
    };
    static const std::vector<Rgb> kBase = {Hex(0xFFF8F0), Hex(0xF29A2E), Hex(0xFFF6EA),
                                           Hex(0xF4C34C)};
    static const std::vector<Rgb> kMark = {Hex(0xE2451F), Hex(0xFFF3E2), Hex(0xD8381C),
                                           Hex(0xFFE9A8)};
    const Rgb base = kBase[static_cast<size_t>(koi.pattern)],
              mark = kMark[static_cast<size_t>(koi.pattern)];

    const float tail = direction(last);
    DrawFin(painter, shape.spine[last], tail + koi.bend * 0.9f, koi.length * 0.27f, 0.52f, base,
            0.85f);
    for (const float side : {1.0f, -1.0f}) {
        const auto& edge = side > 0 ? shape.left : shape.right;
        DrawFin(painter, edge[10], direction(10) + side * 0.85f, koi.length * 0.20f, 0.50f, base,
                0.8f);
        DrawFin(painter, edge[22], direction(22) + side * 0.6f, koi.length * 0.11f, 0.38f, base,
                0.7f);
    }

    const QPainterPath body = BodyPath(shape);
    painter.save();
    painter.setClipPath(body);
    painter.fillPath(body, ToColor(base));
    auto blot = [&](float from, float to, Rgb colour, float size) {
        QPainterPath path;
        for (int i = 0; i < 26; ++i) {
            const float t = random.Range(from, to);
            const QPointF at = shape.spine[static_cast<size_t>(t * static_cast<float>(last))] +
                               QPointF(random.Normal(), random.Normal()) * (koi.length * 0.030f);
            const float r = koi.length * size * random.Range(0.5f, 1.1f);
            QPainterPath drop;
            drop.addEllipse(at, r, r * 0.9f);
            path = path.united(drop);
        }
        painter.fillPath(path, ToColor(colour));
    };
    blot(0.02f, 0.16f, mark, 0.036f);
    blot(0.27f, 0.46f, mark, 0.048f);
    blot(0.62f, 0.78f, mark, 0.036f);
    if (koi.pattern == 2) {
        blot(0.20f, 0.22f, Hex(0x22202A), 0.020f);
        blot(0.52f, 0.55f, Hex(0x22202A), 0.026f);
        blot(0.83f, 0.85f, Hex(0x22202A), 0.016f);
    }
    // Scales: rows of faint arcs; then the round of the body by shade along both edges.
    painter.setBrush(Qt::NoBrush);
    for (size_t i = 9; i < last; ++i) {
        const float turn = direction(i) * 180 / kPi;
        for (int k = -5; k <= 5; ++k) {
            const float part = (static_cast<float>(k) + (i % 2 ? 0.5f : 0.0f)) / 5.5f;
            const QPointF at = shape.spine[i] + (shape.left[i] - shape.spine[i]) * part;
            const float r = koi.length * 0.0125f;
            painter.setPen(QPen(QColor(90, 50, 40, 46), koi.length * 0.0024f));
            painter.save();
            painter.translate(at);
            painter.rotate(turn);
            painter.drawArc(QRectF(-r, -r, 2 * r, 2 * r), -70 * 16, 140 * 16);
            painter.restore();
        }
    }
    for (int ring = 0; ring < 10; ++ring) {
        painter.setPen(
            QPen(QColor(40, 24, 50, 20), koi.length * 0.0085f * static_cast<float>(ring + 1)));
        painter.drawPath(body);
    }
    painter.restore();

    QPainterPath back(shape.spine[5]);
    for (size_t i = 6; i < last - 3; ++i) {
        back.lineTo(shape.spine[i]);
    }
    painter.setBrush(Qt::NoBrush);
    for (int i = 1; i <= 7; ++i) {
        painter.setPen(QPen(QColor(255, 255, 255, 20), koi.length * 0.011f * static_cast<float>(i),
                            Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(back);
    }
    QPainterPath dorsal(shape.spine[14]);
    for (size_t i = 14; i < 27; ++i) {
        dorsal.lineTo(shape.spine[i]);
    }
    painter.setPen(QPen(ToColor(Mix(base, Hex(0x8A5A4A), 0.35f), 0.75f), koi.length * 0.016f,
                        Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(dorsal);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x18, 0x12, 0x18));
    for (const auto* edge : {&shape.left, &shape.right}) {
        const QPointF eye = shape.spine[4] + ((*edge)[4] - shape.spine[4]) * 0.8f;
        painter.drawEllipse(eye, koi.length * 0.010f, koi.length * 0.010f);
    }
}

void DrawLilyPad(QPainter& painter, Random& random, float x, float y, float radius) {
    painter.save();
    painter.translate(x, y);
    painter.rotate(random.Range(0, 360));
    QPainterPath pad(QPointF(0, 0));
    for (int i = 0; i <= 80; ++i) {
        const float turn = 0.16f + (2 * kPi - 0.32f) * static_cast<float>(i) / 80;
        const float r = radius * (1 + 0.02f * Noise(turn * 3, x * 10 + y, 4));
        pad.lineTo(QPointF(std::cos(turn) * r, std::sin(turn) * r));
    }
    pad.closeSubpath();
    QRadialGradient gradient(QPointF(radius * 0.2f, -radius * 0.2f), radius * 1.2f);
    gradient.setColorAt(0, QColor(0x7F, 0xB3, 0x54));
    gradient.setColorAt(0.75, QColor(0x3D, 0x7D, 0x3E));
    gradient.setColorAt(1, QColor(0x2B, 0x5C, 0x36));
    painter.setPen(QPen(QColor(0xA8, 0xC8, 0x6C, 150), radius * 0.018f));
    painter.setBrush(gradient);
    painter.drawPath(pad);
    for (int i = 0; i < 17; ++i) {
        const float turn = 0.2f + (2 * kPi - 0.4f) * static_cast<float>(i) / 16;
        painter.setPen(QPen(QColor(0xC6, 0xDD, 0x8E, 90), radius * 0.014f));
        painter.drawLine(QPointF(0, 0), QPointF(std::cos(turn), std::sin(turn)) * (radius * 0.92f));
    }
    painter.restore();
}

void DrawLotus(QPainter& painter, float x, float y, float radius) {
    painter.save();
    painter.translate(x, y);
    for (int ring = 0; ring < 3; ++ring) {
        const int petals = 11 - ring * 2;
        const float length = radius * (1 - 0.26f * static_cast<float>(ring));
        for (int i = 0; i < petals; ++i) {
            painter.save();
            painter.rotate(360.0 * i / petals + ring * 19);
            QLinearGradient gradient(0, 0, 0, -length);
            gradient.setColorAt(0, QColor(0xFF, 0xF4, 0xF4));
            gradient.setColorAt(0.55, QColor(0xFC, 0xC8, 0xD8));
            gradient.setColorAt(1, QColor(0xEC, 0x7A, 0xA6));
            painter.setBrush(gradient);
            painter.setPen(QPen(QColor(0xC8, 0x50, 0x86, 70), radius * 0.012f));
            QPainterPath petal(QPointF(0, 0));
            petal.quadTo(QPointF(-length * 0.38f, -length * 0.55f), QPointF(0, -length));
            petal.quadTo(QPointF(length * 0.38f, -length * 0.55f), QPointF(0, 0));
            painter.drawPath(petal);
            painter.restore();
        }
    }
    Glow(painter, 0, 0, radius * 0.30f, Hex(0xFFD860), 1.0f);
    painter.restore();
}

}  // namespace

QImage KoiPond() {
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        p = Mix(Hex(0x0F4650), Hex(0x06222E), Smooth(0, 1, y * 0.7f + std::fabs(x - 0.9f) * 0.35f));
        const float stones = Ridge(x * 7, y * 7, 3, 17);
        p = p * (0.88f + 0.22f * stones) + Hex(0x123A30) * (0.4f * Fbm(x * 3, y * 3, 4, 2));
    });
    const std::vector<Koi> fish = {
        {{0.62f, 0.40f}, -0.55f, 0.46f, 0.42f, 0}, {{1.16f, 0.60f}, 2.55f, 0.42f, -0.40f, 2},
        {{0.98f, 0.20f}, 0.30f, 0.34f, 0.38f, 1},  {{0.52f, 0.82f}, 0.25f, 0.36f, -0.46f, 3},
        {{1.44f, 0.30f}, 1.9f, 0.33f, 0.45f, 0},   {{1.34f, 0.90f}, -2.9f, 0.30f, 0.3f, 1}};
    Random random(5);
    picture.Draw(
        [&](QPainter& painter) {
            painter.translate(0.022f, 0.038f);
            for (const Koi& koi : fish) {
                painter.fillPath(BodyPath(ShapeOf(koi)), QColor(0, 10, 16, 150));
            }
        },
        9);
    picture.Draw([&](QPainter& painter) {
        for (const Koi& koi : fish) {
            DrawKoi(painter, random, koi);
        }
    });
    // Light through the moving surface, over fish and ground alike.
    picture.Each([](float x, float y, Rgb& p) {
        const float warp = Fbm(x * 2.5f, y * 2.5f, 3, 61) * 0.35f;
        const float net = Ridge(x * 4.6f + warp, y * 4.6f - warp, 2, 63);
        const float caustic = std::pow(Clamp(net), 9.0f);
        p = p * (0.90f + 0.10f * net) + Hex(0x9FE6DC) * (0.20f * caustic);
        p = Mix(p, Hex(0x0C4A54), 0.13f);
        for (const auto& [cx, cy, far] :
             {std::array{0.30f, 0.60f, 0.15f}, {1.02f, 0.42f, 0.12f}, {1.55f, 0.62f, 0.11f}}) {
            const float d = std::hypot(x - cx, (y - cy) * 1.12f);
            const float wave = std::sin(d * 210) * Bell(d - far * 0.5f, far * 0.42f);
            p = p + Hex(0xCFF4F0) * (0.10f * wave);
        }
    });
    struct Pad {
        float x, y, r;
    };
    const std::vector<Pad> pads = {
        {0.10f, 0.90f, 0.13f}, {0.29f, 1.01f, 0.10f},  {1.67f, 0.88f, 0.14f},
        {1.52f, 1.02f, 0.09f}, {1.74f, 0.66f, 0.07f},  {0.02f, 0.70f, 0.08f},
        {0.44f, 0.02f, 0.09f}, {0.60f, -0.03f, 0.07f}, {1.28f, 0.03f, 0.08f}};
    picture.Draw(
        [&](QPainter& painter) {
            for (const Pad& pad : pads) {
                painter.setBrush(QColor(0, 14, 18, 170));
                painter.drawEllipse(QPointF(pad.x + 0.012f, pad.y + 0.02f), pad.r, pad.r);
            }
        },
        7);
    picture.Draw([&](QPainter& painter) {
        for (const Pad& pad : pads) {
            DrawLilyPad(painter, random, pad.x, pad.y, pad.r);
        }
        DrawLotus(painter, 0.17f, 0.86f, 0.070f);
        DrawLotus(painter, 1.61f, 0.93f, 0.075f);
        DrawLotus(painter, 0.47f, 0.03f, 0.045f);
    });
    picture.Bloom(0.9f, 12, 0.2f);
    picture.Vignette(0.5f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("錦鯉の池"), QStringLiteral("水ゆらぎ　彩ゆれる"), 0.19f,
                   0.10f, Hex(0xF0FFFA));
    });
    return picture.Finish();
}

}  // namespace demo
