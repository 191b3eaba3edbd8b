// Blossoms, fish, bamboo and leaves.
#include <QPainterPath>
#include <array>

#include "paint.h"
#include "scenes.h"

namespace demo {
namespace {

/// Discs of light out of focus.
void DrawBokeh(QPainter& painter, Random& random, int count, const std::vector<Rgb>& tints,
               float smallest, float largest, float alpha) {
    for (int i = 0; i < count; ++i) {
        const float r = random.Range(smallest, largest);
        const QPointF at(random.Range(-0.05f, kAspect + 0.05f), random.Range(-0.05f, 1.05f));
        const Rgb tint = tints[static_cast<size_t>(random.Unit() * (static_cast<float>(tints.size()) - 0.01f))];
        QRadialGradient disc(at, r);
        const float a = alpha * random.Range(0.3f, 1.0f);
        disc.setColorAt(0, ToColor(tint, a * 0.75f));
        disc.setColorAt(0.86, ToColor(tint, a));
        disc.setColorAt(1, ToColor(tint, 0));
        painter.setBrush(disc);
        painter.drawEllipse(at, r, r);
    }
}

QPainterPath PetalPath(float length, float width, float notch) {
    QPainterPath petal(QPointF(0, 0));
    petal.cubicTo(QPointF(-width, -length * 0.35f), QPointF(-width * 0.85f, -length * 0.95f),
                  QPointF(-width * 0.18f, -length));
    petal.lineTo(QPointF(0, -length * (1 - notch)));
    petal.lineTo(QPointF(width * 0.18f, -length));
    petal.cubicTo(QPointF(width * 0.85f, -length * 0.95f), QPointF(width, -length * 0.35f),
                  QPointF(0, 0));
    return petal;
}

void DrawBlossom(QPainter& painter, Random& random, float x, float y, float radius, float shade) {
    painter.save();
    painter.translate(x, y);
    painter.rotate(random.Range(0, 360));
    // Seen a little from the side.
    painter.scale(1, random.Range(0.72f, 1.0f));
    const Rgb inner = Mix(Hex(0xE56C97), Hex(0xB84E80), shade);
    const Rgb outer = Mix(Hex(0xFFF3F7), Hex(0xE5B4CC), shade);
    for (int i = 0; i < 5; ++i) {
        QLinearGradient gradient(0, 0, 0, -radius);
        gradient.setColorAt(0, ToColor(inner));
        gradient.setColorAt(0.38, ToColor(Mix(inner, outer, 0.72f)));
        gradient.setColorAt(1, ToColor(outer));
        painter.setBrush(gradient);
        painter.setPen(QPen(ToColor(Mix(inner, outer, 0.45f), 0.35f), radius * 0.015f));
        painter.drawPath(PetalPath(radius * random.Range(0.94f, 1.06f), radius * 0.62f, 0.11f));
        painter.rotate(72);
    }
    for (int i = 0; i < 14; ++i) {
        const float length = radius * random.Range(0.22f, 0.42f), turn = random.Range(0, 2 * kPi);
        const QPointF tip(std::cos(turn) * length, std::sin(turn) * length);
        painter.setPen(QPen(ToColor(Mix(Hex(0xFFE2EC), Hex(0xC26A8C), 0.35f), 0.8f), radius * 0.018f));
        painter.drawLine(QPointF(0, 0), tip);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xF4, 0xC0, 0x4E));
        painter.drawEllipse(tip, radius * 0.032f, radius * 0.032f);
    }
    painter.restore();
}

struct Twig {
    std::vector<QPointF> points;
    float thickness;
};

/// A crooked branch and its side shoots; every point is a place where blossoms may stand.
void Grow(Random& random, std::vector<Twig>& twigs, QPointF from, float direction, float length,
          float thickness, int order) {
    Twig twig{{from}, thickness};
    const int steps = std::max(5, static_cast<int>(length / 0.028f));
    for (int i = 0; i < steps; ++i) {
        direction += random.Normal() * 0.11f;
        from += QPointF(std::cos(direction), std::sin(direction)) * (length / static_cast<float>(steps));
        twig.points.push_back(from);
        if (order > 0 && i > 1 && random.Chance(order > 1 ? 0.42f : 0.32f)) {
            const float side = random.Chance(0.5f) ? 1.0f : -1.0f;
            const float rest = 1 - static_cast<float>(i) / static_cast<float>(steps);
            Grow(random, twigs, from, direction + side * random.Range(0.4f, 0.95f),
                 length * random.Range(0.28f, 0.5f) * (0.4f + 0.6f * rest),
                 thickness * (0.2f + 0.36f * rest), order - 1);
        }
    }
    twigs.push_back(twig);
}

void DrawTwigs(QPainter& painter, const std::vector<Twig>& twigs, Rgb dark, Rgb light) {
    for (const Twig& twig : twigs) {
        const size_t count = twig.points.size();
        for (size_t i = 1; i < count; ++i) {
            const float left = 1 - 0.85f * static_cast<float>(i) / static_cast<float>(count);
            const float wide = std::max(0.0012f, twig.thickness * left);
            painter.setPen(QPen(ToColor(dark), wide, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(twig.points[i - 1], twig.points[i]);
            painter.setPen(QPen(ToColor(light, 0.6f), wide * 0.3f, Qt::SolidLine, Qt::RoundCap));
            const QPointF lift(-wide * 0.15f, -wide * 0.25f);
            painter.drawLine(twig.points[i - 1] + lift, twig.points[i] + lift);
        }
    }
    painter.setPen(Qt::NoPen);
}

void DrawLoosePetals(QPainter& painter, Random& random, int count, float smallest, float largest) {
    for (int i = 0; i < count; ++i) {
        painter.save();
        painter.translate(random.Range(0, kAspect), random.Range(0, 1));
        painter.rotate(random.Range(0, 360));
        painter.scale(1, random.Range(0.35f, 1));
        const float size = random.Range(smallest, largest);
        QLinearGradient gradient(0, 0, 0, -size);
        gradient.setColorAt(0, QColor(0xF3, 0x9C, 0xBC, 235));
        gradient.setColorAt(1, QColor(0xFF, 0xEC, 0xF3, 235));
        painter.setBrush(gradient);
        painter.drawPath(PetalPath(size, size * 0.55f, 0.14f));
        painter.restore();
    }
}

}  // namespace

QImage CherryBlossoms() {
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        p = Mix(Hex(0x9CC8EE), Hex(0xFBE6EC), Smooth(0.0f, 1.0f, y * 0.8f + x * 0.16f));
        const float cloud = Smooth(0.0f, 0.6f, Fbm(x * 1.6f, y * 2.6f, 5, 7));
        p = Mix(p, Hex(0xFFFFFF), 0.55f * cloud);
        p = p + Hex(0xFFF0D8) * (0.35f * Bell(std::hypot(x - 1.6f, y + 0.05f), 0.7f));
    });
    Random random(42);
    // Far trees, well out of focus.
    picture.Draw(
        [&](QPainter& painter) {
            for (int i = 0; i < 340; ++i) {
                const float x = random.Range(-0.1f, kAspect + 0.1f);
                const float y = 0.86f + 0.10f * std::sin(x * 3.1f) + random.Normal() * 0.075f;
                Glow(painter, x, y, random.Range(0.04f, 0.13f),
                     Mix(Hex(0xF7B6CD), Hex(0xFFE3EC), random.Unit()), 0.85f);
            }
        },
        16);
    picture.Draw([&](QPainter& painter) {
        DrawBokeh(painter, random, 46, {Hex(0xFFFFFF), Hex(0xFFD3E2), Hex(0xFFE9C9)}, 0.015f, 0.07f, 0.34f);
    }, 2);

    auto spray = [&](QPointF from, float direction, float length, float thickness, float size,
                     float density, float blur, float shade) {
        std::vector<Twig> twigs;
        Grow(random, twigs, from, direction, length, thickness, 2);
        picture.Draw([&](QPainter& painter) {
            DrawTwigs(painter, twigs, Mix(Hex(0x3B2622), Hex(0x9A7C80), shade),
                      Mix(Hex(0x8B6C60), Hex(0xC0A4A6), shade));
            for (const Twig& twig : twigs) {
                for (size_t i = 2; i < twig.points.size(); ++i) {
                    const int cluster = static_cast<int>(density * random.Range(0.3f, 1.4f) *
                                                         (twig.thickness > 0.02f ? 0.45f : 1.0f));
                    for (int k = 0; k < cluster; ++k) {
                        const QPointF at = twig.points[i] + QPointF(random.Normal(), random.Normal()) * (size * 0.85f);
                        const float deep = Clamp(shade + (k < cluster / 2 ? 0.32f : 0.0f));
                        DrawBlossom(painter, random, at.x(), at.y(), size * random.Range(0.75f, 1.15f), deep);
                    }
                }
            }
        }, blur);
    };
    spray({1.95f, 0.52f}, 3.45f, 0.95f, 0.018f, 0.016f, 3.4f, 5, 0.30f);
    spray({-0.1f, 0.22f}, -0.05f, 0.8f, 0.016f, 0.015f, 3.2f, 6, 0.34f);
    spray({1.92f, 0.14f}, 2.86f, 1.45f, 0.036f, 0.027f, 1.9f, 0, 0.0f);
    spray({1.3f, -0.08f}, 2.5f, 0.75f, 0.020f, 0.025f, 1.8f, 0, 0.04f);
    picture.Draw([&](QPainter& painter) { DrawLoosePetals(painter, random, 60, 0.008f, 0.02f); });
    picture.Draw([&](QPainter& painter) { DrawLoosePetals(painter, random, 16, 0.03f, 0.055f); }, 6);
    picture.Bloom(0.93f, 14, 0.18f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("桜吹雪"), QStringLiteral("ひとひらの　春をひろう"), 0.19f, 0.36f,
                   Hex(0x7A2E50));
    });
    return picture.Finish();
}

namespace {

struct Koi {
    QPointF at;
    float heading;  // radians
    float length;
    float bend;     // of the body, radians over its length
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
        // Broad behind the head, thin before the tail.
        const float width = koi.length * 0.135f * std::pow(std::sin(kPi * std::pow(t, 0.52f) * 0.985f), 0.8f) *
                                (1 - 0.42f * t) + koi.length * 0.012f * Smooth(0, 0.05f, t);
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
        return root + QPointF(std::cos(direction + turn), std::sin(direction + turn)) * (length * far);
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
    static const std::vector<Rgb> kBase = {Hex(0xFFF8F0), Hex(0xF29A2E), Hex(0xFFF6EA), Hex(0xF4C34C)};
    static const std::vector<Rgb> kMark = {Hex(0xE2451F), Hex(0xFFF3E2), Hex(0xD8381C), Hex(0xFFE9A8)};
    const Rgb base = kBase[static_cast<size_t>(koi.pattern)], mark = kMark[static_cast<size_t>(koi.pattern)];

    const float tail = direction(last);
    DrawFin(painter, shape.spine[last], tail + koi.bend * 0.9f, koi.length * 0.27f, 0.52f, base, 0.85f);
    for (const float side : {1.0f, -1.0f}) {
        const auto& edge = side > 0 ? shape.left : shape.right;
        DrawFin(painter, edge[10], direction(10) + side * 0.85f, koi.length * 0.20f, 0.50f, base, 0.8f);
        DrawFin(painter, edge[22], direction(22) + side * 0.6f, koi.length * 0.11f, 0.38f, base, 0.7f);
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
        painter.setPen(QPen(QColor(40, 24, 50, 20), koi.length * 0.0085f * static_cast<float>(ring + 1)));
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
    painter.setPen(QPen(ToColor(Mix(base, Hex(0x8A5A4A), 0.35f), 0.75f), koi.length * 0.016f, Qt::SolidLine, Qt::RoundCap));
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
    picture.Draw([&](QPainter& painter) {
        painter.translate(0.022f, 0.038f);
        for (const Koi& koi : fish) {
            painter.fillPath(BodyPath(ShapeOf(koi)), QColor(0, 10, 16, 150));
        }
    }, 9);
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
        for (const auto& [cx, cy, far] : {std::array{0.30f, 0.60f, 0.15f}, {1.02f, 0.42f, 0.12f}, {1.55f, 0.62f, 0.11f}}) {
            const float d = std::hypot(x - cx, (y - cy) * 1.12f);
            const float wave = std::sin(d * 210) * Bell(d - far * 0.5f, far * 0.42f);
            p = p + Hex(0xCFF4F0) * (0.10f * wave);
        }
    });
    struct Pad {
        float x, y, r;
    };
    const std::vector<Pad> pads = {{0.10f, 0.90f, 0.13f}, {0.29f, 1.01f, 0.10f}, {1.67f, 0.88f, 0.14f},
                                   {1.52f, 1.02f, 0.09f}, {1.74f, 0.66f, 0.07f}, {0.02f, 0.70f, 0.08f},
                                   {0.44f, 0.02f, 0.09f}, {0.60f, -0.03f, 0.07f}, {1.28f, 0.03f, 0.08f}};
    picture.Draw([&](QPainter& painter) {
        for (const Pad& pad : pads) {
            painter.setBrush(QColor(0, 14, 18, 170));
            painter.drawEllipse(QPointF(pad.x + 0.012f, pad.y + 0.02f), pad.r, pad.r);
        }
    }, 7);
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
        WriteTitle(painter, QStringLiteral("錦鯉の池"), QStringLiteral("水ゆらぎ　彩ゆれる"), 0.19f, 0.10f,
                   Hex(0xF0FFFA));
    });
    return picture.Finish();
}

QImage BambooPath() {
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        const float middle = Bell((x - 0.92f) / 0.62f, 1) * Bell((y - 0.38f) / 0.62f, 1);
        p = Mix(Hex(0x153A24), Hex(0xE4F2B8), Clamp(middle * 1.02f));
        p = p * (0.92f + 0.3f * Fbm(x * 4, y * 3, 4, 5));
    });
    Random random(64);
    constexpr int kRows = 6;
    for (int row = 0; row < kRows; ++row) {
        const float near = static_cast<float>(row) / (kRows - 1);
        const float foot = Mix(0.62f, 1.12f, near * near * 0.9f + near * 0.1f);
        const Rgb light = Mix(Hex(0xC9E08E), Hex(0x86B648), near);
        const Rgb dark = Mix(Hex(0x8FB970), Hex(0x143D1E), near);
        picture.Draw([&](QPainter& painter) {
            const int stalks = 40 - row * 5;
            for (int i = 0; i < stalks; ++i) {
                const float x = random.Range(-0.1f, kAspect + 0.1f);
                // The path stays free, the wider the nearer.
                const float pathX = 0.92f + 0.10f * std::sin(near * 3);
                if (std::fabs(x - pathX) < 0.06f + 0.34f * near) continue;
                const float w = Mix(0.0045f, 0.026f, near * near) * random.Range(0.75f, 1.25f);
                const float lean = random.Normal() * 0.03f;
                QLinearGradient round(x - w, 0, x + w, 0);
                const bool fromLeft = x > pathX;
                const float tone = random.Range(0.85f, 1.1f);
                round.setColorAt(fromLeft ? 0.0 : 1.0, ToColor(dark * tone));
                round.setColorAt(fromLeft ? 0.28 : 0.72, ToColor(light * tone));
                round.setColorAt(fromLeft ? 1.0 : 0.0, ToColor(dark * (0.7f * tone)));
                painter.save();
                painter.translate(x, foot);
                painter.shear(lean, 0);
                painter.translate(-x, -foot);
                const float node = Mix(0.05f, 0.19f, near) * random.Range(0.85f, 1.15f);
                for (float y = foot; y > -0.3f; y -= node) {
                    painter.setBrush(round);
                    painter.drawRect(QRectF(x - w, y - node, 2 * w, node));
                    if (y > foot - node * 0.5f) continue;
                    painter.setBrush(ToColor(dark * 0.55f, 0.75f));
                    painter.drawRect(QRectF(x - w * 1.08f, y - node * 0.012f - w * 0.09f, 2.16f * w, w * 0.18f));
                    painter.setBrush(ToColor(Mix(light, Hex(0xFFFFFF), 0.35f), 0.6f));
                    painter.drawRect(QRectF(x - w * 1.05f, y + w * 0.06f, 2.1f * w, w * 0.22f));
                }
                painter.restore();
                // Moss and fallen leaves hide where it leaves the ground.
                for (int k = 0; k < 9; ++k) {
                    Glow(painter, x + random.Normal() * w * 1.6f, foot + random.Range(-0.2f, 0.5f) * w,
                         w * random.Range(0.8f, 1.8f), Mix(Hex(0x16331A), Hex(0x4A7030), random.Unit()), 0.9f);
                }
            }
            // Leaves hang from above.
            const int leaves = 260;
            for (int i = 0; i < leaves; ++i) {
                const float x = random.Range(-0.05f, kAspect + 0.05f);
                const float open = Bell((x - 0.92f) / 0.5f, 1);
                const float y = random.Unit() * random.Unit() * (0.62f - 0.35f * open) - 0.02f;
                const float length = Mix(0.018f, 0.07f, near) * random.Range(0.6f, 1.2f);
                painter.save();
                painter.translate(x, y);
                painter.rotate(random.Range(20, 160));
                QPainterPath leaf(QPointF(0, 0));
                leaf.quadTo(QPointF(length * 0.35f, -length * 0.11f), QPointF(length, 0));
                leaf.quadTo(QPointF(length * 0.35f, length * 0.11f), QPointF(0, 0));
                painter.setBrush(ToColor(Mix(dark, light, random.Unit()), 0.9f));
                painter.drawPath(leaf);
                painter.restore();
            }
        }, near < 0.3f ? 2.5f : near > 0.95f ? 5.0f : 0.0f);
        // Bright haze lies between the rows.
        picture.Each([&](float x, float y, Rgb& p) {
            const float haze = Bell((x - 0.92f) / 0.55f, 1) * Bell((y - 0.45f) / 0.5f, 1);
            p = Mix(p, Hex(0xEEF7C4), 0.20f * haze * (1 - near * 0.55f));
        });
        if (row == 2) {
            picture.Each([](float x, float y, Rgb& p) {
                const float ground = 0.62f + 0.01f * Fbm(x * 5, 1, 3, 2);
                if (y < ground) return;
                const float down = (y - ground) / 0.38f;
                const float centre = 0.92f + 0.10f * std::sin((1 - down) * 2.2f) - 0.07f;
                const float off = std::fabs(x - centre) / (0.035f + 0.42f * down);
                const float litter = Fbm(x * 26, y * 60, 4, 91);
                const float dapple = Smooth(0.0f, 0.35f, Fbm(x * 5 + y * 3, y * 11, 4, 95));
                const Rgb path = Mix(Hex(0x8C7E58), Hex(0xEFE6B4), dapple) * (0.86f + 0.35f * litter);
                const Rgb moss = Mix(Hex(0x29501F), Hex(0x86A844), dapple) * (0.80f + 0.6f * litter);
                const float edge = Smooth(1.05f, 0.88f, off + 0.14f * Fbm(x * 20, y * 20, 3, 7));
                const Rgb floor = Mix(moss, path, edge) * (1 - 0.35f * down);
                p = Mix(p, floor, Smooth(0, 0.05f, y - ground));
            });
        }
    }
    picture.Draw([&](QPainter& painter) {
        for (int i = 0; i < 12; ++i) {
            const float x = random.Range(0.45f, 1.2f), w = random.Range(0.012f, 0.06f);
            QLinearGradient beam(x, 0, x + 0.30f, 0.95f);
            beam.setColorAt(0, QColor(255, 250, 200, 0));
            beam.setColorAt(0.25, QColor(255, 250, 200, static_cast<int>(random.Range(18, 46))));
            beam.setColorAt(1, QColor(255, 250, 200, 0));
            painter.setBrush(beam);
            painter.drawPolygon(QPolygonF({QPointF(x, -0.05f), QPointF(x + w, -0.05f),
                                           QPointF(x + w * 3 + 0.34f, 1.0f), QPointF(x + 0.30f, 1.0f)}));
        }
    }, 6, true);
    picture.Bloom(0.84f, 16, 0.25f);
    picture.Vignette(0.55f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("竹林の道"), QStringLiteral("風わたる　みどりの音"), 1.70f, 0.10f,
                   Hex(0xFBFFE8));
    });
    return picture.Finish();
}

namespace {

QPainterPath MapleLeaf() {
    // Seven lobes; angle from the tip in degrees, and reach.
    static constexpr struct {
        float turn, reach;
    } kLobes[] = {{-128, 0.42f}, {-84, 0.72f}, {-42, 0.92f}, {0, 1.0f}, {42, 0.92f}, {84, 0.72f}, {128, 0.42f}};
    QPainterPath leaf(QPointF(0, 0.10f));
    auto at = [](float turn, float far) {
        const float angle = turn * kPi / 180;
        return QPointF(std::sin(angle) * far, -std::cos(angle) * far);
    };
    for (int i = 0; i < 7; ++i) {
        const auto& lobe = kLobes[i];
        const float from = i == 0 ? -158 : (kLobes[i - 1].turn + lobe.turn) / 2;
        const float to = i == 6 ? 158 : (kLobes[i + 1].turn + lobe.turn) / 2;
        leaf.lineTo(at(from, 0.24f));
        // A saw edge along both sides of the lobe.
        for (int k = 1; k <= 3; ++k) {
            const float t = static_cast<float>(k) / 4;
            const float widen = 0.52f * (1 - t) * (1 - t) + 0.14f * (1 - t);
            leaf.lineTo(at(lobe.turn + (from - lobe.turn) * widen * 1.15f, Mix(0.24f, lobe.reach, t)));
            leaf.lineTo(at(lobe.turn + (from - lobe.turn) * widen * 0.86f, Mix(0.24f, lobe.reach, t + 0.015f)));
        }
        leaf.lineTo(at(lobe.turn, lobe.reach));
        for (int k = 3; k >= 1; --k) {
            const float t = static_cast<float>(k) / 4;
            const float widen = 0.52f * (1 - t) * (1 - t) + 0.14f * (1 - t);
            leaf.lineTo(at(lobe.turn + (to - lobe.turn) * widen * 0.86f, Mix(0.24f, lobe.reach, t + 0.015f)));
            leaf.lineTo(at(lobe.turn + (to - lobe.turn) * widen * 1.15f, Mix(0.24f, lobe.reach, t)));
        }
    }
    leaf.lineTo(at(158, 0.24f));
    leaf.closeSubpath();
    return leaf;
}

void DrawMaple(QPainter& painter, Random& random, QPointF at, float size, float warm, float shade) {
    static const QPainterPath kLeaf = MapleLeaf();
    painter.save();
    painter.translate(at);
    painter.rotate(180 + random.Normal() * 55);
    painter.scale(size * random.Range(0.6f, 1), size);
    const Rgb tip = Mix(Mix(Hex(0xC2141C), Hex(0xF4A02A), warm), Hex(0x3A0E14), shade);
    const Rgb heart = Mix(Mix(Hex(0xF0522A), Hex(0xFFD65A), warm), Hex(0x5A1A16), shade);
    QRadialGradient gradient(QPointF(0, 0), 1);
    gradient.setColorAt(0, ToColor(heart));
    gradient.setColorAt(1, ToColor(tip));
    painter.setBrush(gradient);
    painter.setPen(Qt::NoPen);
    painter.drawPath(kLeaf);
    painter.setPen(QPen(ToColor(Mix(heart, Hex(0xFFF0C0), 0.45f), 0.6f), 0.016f));
    for (const float turn : {-128.0f, -84.0f, -42.0f, 0.0f, 42.0f, 84.0f, 128.0f}) {
        const float angle = turn * kPi / 180, far = 0.86f - std::fabs(turn) * 0.0040f;
        painter.drawLine(QPointF(0, 0.06f), QPointF(std::sin(angle) * far, -std::cos(angle) * far));
    }
    painter.setPen(QPen(ToColor(Mix(tip, Hex(0x501010), 0.4f)), 0.03f, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 0.08f), QPointF(0.06f, 0.55f));
    painter.restore();
}

}  // namespace

QImage AutumnLeaves() {
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        p = Mix(Hex(0xF0B050), Hex(0x6E2416), Smooth(0.1f, 1.1f, y + 0.25f * std::fabs(x - 1.2f)));
        p = p + Hex(0xFFE08A) * (0.5f * Bell(std::hypot(x - 1.28f, y - 0.20f), 0.42f));
        p = p * (0.93f + 0.32f * Fbm(x * 2.6f, y * 2.6f, 3, 2));
    });
    Random random(18);
    picture.Draw([&](QPainter& painter) {
        DrawBokeh(painter, random, 130, {Hex(0xFFC860), Hex(0xFF8A3C), Hex(0xE0482C), Hex(0xFFE9A8), Hex(0x9CAA3C)},
                  0.02f, 0.085f, 0.40f);
    }, 2.5f);
    auto layer = [&](int leaves, float smallest, float largest, float blur, float shade, float reach) {
        picture.Draw([&](QPainter& painter) {
            for (int i = 0; i < leaves; ++i) {
                const float x = random.Range(-0.05f, kAspect + 0.05f);
                const float hang = reach * (0.45f + 0.55f * std::fabs(std::sin(x * 2.3f + 0.4f)));
                const float y = hang * random.Unit() * random.Range(0.5f, 1.0f) - 0.04f;
                DrawMaple(painter, random, {x, y}, random.Range(smallest, largest), random.Unit() * random.Unit(), shade * random.Unit());
            }
        }, blur);
    };
    layer(170, 0.05f, 0.08f, 7, 0.35f, 0.60f);
    std::vector<Twig> twigs;
    Grow(random, twigs, {-0.08f, 0.10f}, 0.10f, 1.25f, 0.026f, 2);
    Grow(random, twigs, {1.86f, 0.02f}, 2.90f, 0.80f, 0.020f, 2);
    picture.Draw([&](QPainter& painter) { DrawTwigs(painter, twigs, Hex(0x2A1512), Hex(0x7C4A34)); });
    picture.Draw([&](QPainter& painter) {
        for (const Twig& twig : twigs) {
            for (const QPointF& point : twig.points) {
                if (twig.thickness > 0.018f && random.Chance(0.5f)) continue;
                const int leaves = 1 + static_cast<int>(random.Unit() * 1.8f);
                for (int i = 0; i < leaves; ++i) {
                    const QPointF at = point + QPointF(random.Normal() * 0.028f, 0.02f + random.Unit() * 0.045f);
                    DrawMaple(painter, random, at, random.Range(0.036f, 0.062f), random.Unit() * random.Unit() * 0.9f, 0.25f * random.Unit());
                }
            }
        }
        // Some are on their way down.
        for (int i = 0; i < 16; ++i) {
            DrawMaple(painter, random, {random.Range(0.1f, 1.7f), random.Range(0.5f, 0.98f)}, random.Range(0.022f, 0.045f), random.Unit(), 0.1f);
        }
    });
    picture.Draw([&](QPainter& painter) {
        for (int i = 0; i < 5; ++i) {
            DrawMaple(painter, random, {random.Range(0.0f, 1.75f), random.Range(0.75f, 1.05f)}, random.Range(0.10f, 0.16f), random.Unit() * 0.5f, 0.2f);
        }
    }, 11);
    picture.Bloom(0.88f, 14, 0.25f);
    picture.Vignette(0.5f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("紅葉"), QStringLiteral("燃ゆる葉に　秋のひざし"), 1.68f, 0.44f,
                   Hex(0xFFF6E0));
    });
    return picture.Finish();
}

}  // namespace demo
