// Blossoms, bamboo and leaves.
#include <QPainterPath>

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
        const Rgb tint =
            tints[static_cast<size_t>(random.Unit() * (static_cast<float>(tints.size()) - 0.01f))];
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
        painter.setPen(
            QPen(ToColor(Mix(Hex(0xFFE2EC), Hex(0xC26A8C), 0.35f), 0.8f), radius * 0.018f));
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
        from += QPointF(std::cos(direction), std::sin(direction)) *
                (length / static_cast<float>(steps));
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
    picture.Draw(
        [&](QPainter& painter) {
            DrawBokeh(painter, random, 46, {Hex(0xFFFFFF), Hex(0xFFD3E2), Hex(0xFFE9C9)}, 0.015f,
                      0.07f, 0.34f);
        },
        2);

    auto spray = [&](QPointF from, float direction, float length, float thickness, float size,
                     float density, float blur, float shade) {
        std::vector<Twig> twigs;
        Grow(random, twigs, from, direction, length, thickness, 2);
        picture.Draw(
            [&](QPainter& painter) {
                DrawTwigs(painter, twigs, Mix(Hex(0x3B2622), Hex(0x9A7C80), shade),
                          Mix(Hex(0x8B6C60), Hex(0xC0A4A6), shade));
                for (const Twig& twig : twigs) {
                    for (size_t i = 2; i < twig.points.size(); ++i) {
                        const int cluster =
                            static_cast<int>(density * random.Range(0.3f, 1.4f) *
                                             (twig.thickness > 0.02f ? 0.45f : 1.0f));
                        for (int k = 0; k < cluster; ++k) {
                            const QPointF at =
                                twig.points[i] +
                                QPointF(random.Normal(), random.Normal()) * (size * 0.85f);
                            const float deep = Clamp(shade + (k < cluster / 2 ? 0.32f : 0.0f));
                            DrawBlossom(painter, random, at.x(), at.y(),
                                        size * random.Range(0.75f, 1.15f), deep);
                        }
                    }
                }
            },
            blur);
    };
    spray({1.95f, 0.52f}, 3.45f, 0.95f, 0.018f, 0.016f, 3.4f, 5, 0.30f);
    spray({-0.1f, 0.22f}, -0.05f, 0.8f, 0.016f, 0.015f, 3.2f, 6, 0.34f);
    spray({1.92f, 0.14f}, 2.86f, 1.45f, 0.036f, 0.027f, 1.9f, 0, 0.0f);
    spray({1.3f, -0.08f}, 2.5f, 0.75f, 0.020f, 0.025f, 1.8f, 0, 0.04f);
    picture.Draw([&](QPainter& painter) { DrawLoosePetals(painter, random, 60, 0.008f, 0.02f); });
    picture.Draw([&](QPainter& painter) { DrawLoosePetals(painter, random, 16, 0.03f, 0.055f); },
                 6);
    picture.Bloom(0.93f, 14, 0.18f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("桜吹雪"), QStringLiteral("ひとひらの　春をひろう"),
                   0.19f, 0.36f, Hex(0x7A2E50));
    });
    return picture.Finish();
}

namespace {

constexpr float kPathX = 0.92f;    // where the path meets the light
constexpr float kGroundY = 0.62f;  // where the ground begins at the back

/// One row of the grove; near 0 at the back, 1 in front.
struct BambooRow {
    float near, foot;
    Rgb light, dark;
};

void DrawStalk(QPainter& painter, Random& random, const BambooRow& row, float x, float w,
               bool litFromLeft) {
    QLinearGradient round(x - w, 0, x + w, 0);
    const float tone = random.Range(0.85f, 1.1f);
    round.setColorAt(litFromLeft ? 0.0 : 1.0, ToColor(row.dark * tone));
    round.setColorAt(litFromLeft ? 0.28 : 0.72, ToColor(row.light * tone));
    round.setColorAt(litFromLeft ? 1.0 : 0.0, ToColor(row.dark * (0.7f * tone)));
    painter.save();
    painter.translate(x, row.foot);
    painter.shear(random.Normal() * 0.03f, 0);
    painter.translate(-x, -row.foot);
    const float node = Mix(0.05f, 0.19f, row.near) * random.Range(0.85f, 1.15f);
    for (float y = row.foot; y > -0.3f; y -= node) {
        painter.setBrush(round);
        painter.drawRect(QRectF(x - w, y - node, 2 * w, node));
        if (y > row.foot - node * 0.5f) continue;
        painter.setBrush(ToColor(row.dark * 0.55f, 0.75f));
        painter.drawRect(
            QRectF(x - w * 1.08f, y - node * 0.012f - w * 0.09f, 2.16f * w, w * 0.18f));
        painter.setBrush(ToColor(Mix(row.light, Hex(0xFFFFFF), 0.35f), 0.6f));
        painter.drawRect(QRectF(x - w * 1.05f, y + w * 0.06f, 2.1f * w, w * 0.22f));
    }
    painter.restore();
    // Moss and fallen leaves hide where it leaves the ground.
    for (int k = 0; k < 9; ++k) {
        Glow(painter, x + random.Normal() * w * 1.6f, row.foot + random.Range(-0.2f, 0.5f) * w,
             w * random.Range(0.8f, 1.8f), Mix(Hex(0x16331A), Hex(0x4A7030), random.Unit()), 0.9f);
    }
}

void DrawStalks(QPainter& painter, Random& random, const BambooRow& row, int count) {
    // The path stays free, the wider the nearer.
    const float pathX = kPathX + 0.10f * std::sin(row.near * 3);
    for (int i = 0; i < count; ++i) {
        const float x = random.Range(-0.1f, kAspect + 0.1f);
        if (std::fabs(x - pathX) < 0.06f + 0.34f * row.near) continue;
        const float w = Mix(0.0045f, 0.026f, row.near * row.near) * random.Range(0.75f, 1.25f);
        DrawStalk(painter, random, row, x, w, x > pathX);
    }
}

void DrawHangingLeaves(QPainter& painter, Random& random, const BambooRow& row, int count) {
    for (int i = 0; i < count; ++i) {
        const float x = random.Range(-0.05f, kAspect + 0.05f);
        const float open = Bell((x - kPathX) / 0.5f, 1);
        const float y = random.Unit() * random.Unit() * (0.62f - 0.35f * open) - 0.02f;
        const float length = Mix(0.018f, 0.07f, row.near) * random.Range(0.6f, 1.2f);
        painter.save();
        painter.translate(x, y);
        painter.rotate(random.Range(20, 160));
        QPainterPath leaf(QPointF(0, 0));
        leaf.quadTo(QPointF(length * 0.35f, -length * 0.11f), QPointF(length, 0));
        leaf.quadTo(QPointF(length * 0.35f, length * 0.11f), QPointF(0, 0));
        painter.setBrush(ToColor(Mix(row.dark, row.light, random.Unit()), 0.9f));
        painter.drawPath(leaf);
        painter.restore();
    }
}

void PaintForestFloor(Picture& picture) {
    picture.Each([](float x, float y, Rgb& p) {
        const float ground = kGroundY + 0.01f * Fbm(x * 5, 1, 3, 2);
        if (y < ground) return;
        const float down = (y - ground) / (1 - kGroundY);
        const float centre = kPathX + 0.10f * std::sin((1 - down) * 2.2f) - 0.07f;
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

void DrawSunbeams(QPainter& painter, Random& random, int count) {
    for (int i = 0; i < count; ++i) {
        const float x = random.Range(0.45f, 1.2f), w = random.Range(0.012f, 0.06f);
        QLinearGradient beam(x, 0, x + 0.30f, 0.95f);
        beam.setColorAt(0, QColor(255, 250, 200, 0));
        beam.setColorAt(0.25, QColor(255, 250, 200, static_cast<int>(random.Range(18, 46))));
        beam.setColorAt(1, QColor(255, 250, 200, 0));
        painter.setBrush(beam);
        painter.drawPolygon(
            QPolygonF({QPointF(x, -0.05f), QPointF(x + w, -0.05f), QPointF(x + w * 3 + 0.34f, 1.0f),
                       QPointF(x + 0.30f, 1.0f)}));
    }
}

}  // namespace

QImage BambooPath() {
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        const float middle = Bell((x - kPathX) / 0.62f, 1) * Bell((y - 0.38f) / 0.62f, 1);
        p = Mix(Hex(0x153A24), Hex(0xE4F2B8), Clamp(middle * 1.02f));
        p = p * (0.92f + 0.3f * Fbm(x * 4, y * 3, 4, 5));
    });
    Random random(64);
    constexpr int kRows = 6, kRowsBehindTheFloor = 3;
    for (int i = 0; i < kRows; ++i) {
        const float near = static_cast<float>(i) / (kRows - 1);
        const BambooRow row = {near, Mix(kGroundY, 1.12f, near * near * 0.9f + near * 0.1f),
                               Mix(Hex(0xC9E08E), Hex(0x86B648), near),
                               Mix(Hex(0x8FB970), Hex(0x143D1E), near)};
        // Sharp in the middle distance only.
        const float blur = i < 2 ? 2.5f : i == kRows - 1 ? 5.0f : 0.0f;
        picture.Draw(
            [&](QPainter& painter) {
                DrawStalks(painter, random, row, 40 - i * 5);
                DrawHangingLeaves(painter, random, row, 260);
            },
            blur);
        // Bright haze lies between the rows.
        picture.Each([&](float x, float y, Rgb& p) {
            const float haze = Bell((x - kPathX) / 0.55f, 1) * Bell((y - 0.45f) / 0.5f, 1);
            p = Mix(p, Hex(0xEEF7C4), 0.20f * haze * (1 - near * 0.55f));
        });
        if (i == kRowsBehindTheFloor - 1) PaintForestFloor(picture);
    }
    picture.Draw([&](QPainter& painter) { DrawSunbeams(painter, random, 12); }, 6, true);
    picture.Bloom(0.84f, 16, 0.25f);
    picture.Vignette(0.55f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("竹林の道"), QStringLiteral("風わたる　みどりの音"),
                   1.70f, 0.10f, Hex(0xFBFFE8));
    });
    return picture.Finish();
}

namespace {

QPainterPath MapleLeaf() {
    // Seven lobes; angle from the tip in degrees, and reach.
    static constexpr struct {
        float turn, reach;
    } kLobes[] = {{-128, 0.42f}, {-84, 0.72f}, {-42, 0.92f}, {0, 1.0f},
                  {42, 0.92f},   {84, 0.72f},  {128, 0.42f}};
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
            leaf.lineTo(
                at(lobe.turn + (from - lobe.turn) * widen * 1.15f, Mix(0.24f, lobe.reach, t)));
            leaf.lineTo(at(lobe.turn + (from - lobe.turn) * widen * 0.86f,
                           Mix(0.24f, lobe.reach, t + 0.015f)));
        }
        leaf.lineTo(at(lobe.turn, lobe.reach));
        for (int k = 3; k >= 1; --k) {
            const float t = static_cast<float>(k) / 4;
            const float widen = 0.52f * (1 - t) * (1 - t) + 0.14f * (1 - t);
            leaf.lineTo(at(lobe.turn + (to - lobe.turn) * widen * 0.86f,
                           Mix(0.24f, lobe.reach, t + 0.015f)));
            leaf.lineTo(
                at(lobe.turn + (to - lobe.turn) * widen * 1.15f, Mix(0.24f, lobe.reach, t)));
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
    painter.setPen(
        QPen(ToColor(Mix(tip, Hex(0x501010), 0.4f)), 0.03f, Qt::SolidLine, Qt::RoundCap));
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
    picture.Draw(
        [&](QPainter& painter) {
            DrawBokeh(painter, random, 130,
                      {Hex(0xFFC860), Hex(0xFF8A3C), Hex(0xE0482C), Hex(0xFFE9A8), Hex(0x9CAA3C)},
                      0.02f, 0.085f, 0.40f);
        },
        2.5f);
    auto layer = [&](int leaves, float smallest, float largest, float blur, float shade,
                     float reach) {
        picture.Draw(
            [&](QPainter& painter) {
                for (int i = 0; i < leaves; ++i) {
                    const float x = random.Range(-0.05f, kAspect + 0.05f);
                    const float hang =
                        reach * (0.45f + 0.55f * std::fabs(std::sin(x * 2.3f + 0.4f)));
                    const float y = hang * random.Unit() * random.Range(0.5f, 1.0f) - 0.04f;
                    DrawMaple(painter, random, {x, y}, random.Range(smallest, largest),
                              random.Unit() * random.Unit(), shade * random.Unit());
                }
            },
            blur);
    };
    layer(170, 0.05f, 0.08f, 7, 0.35f, 0.60f);
    std::vector<Twig> twigs;
    Grow(random, twigs, {-0.08f, 0.10f}, 0.10f, 1.25f, 0.026f, 2);
    Grow(random, twigs, {1.86f, 0.02f}, 2.90f, 0.80f, 0.020f, 2);
    picture.Draw(
        [&](QPainter& painter) { DrawTwigs(painter, twigs, Hex(0x2A1512), Hex(0x7C4A34)); });
    picture.Draw([&](QPainter& painter) {
        for (const Twig& twig : twigs) {
            for (const QPointF& point : twig.points) {
                if (twig.thickness > 0.018f && random.Chance(0.5f)) continue;
                const int leaves = 1 + static_cast<int>(random.Unit() * 1.8f);
                for (int i = 0; i < leaves; ++i) {
                    const QPointF at =
                        point + QPointF(random.Normal() * 0.028f, 0.02f + random.Unit() * 0.045f);
                    DrawMaple(painter, random, at, random.Range(0.036f, 0.062f),
                              random.Unit() * random.Unit() * 0.9f, 0.25f * random.Unit());
                }
            }
        }
        // Some are on their way down.
        for (int i = 0; i < 16; ++i) {
            DrawMaple(painter, random, {random.Range(0.1f, 1.7f), random.Range(0.5f, 0.98f)},
                      random.Range(0.022f, 0.045f), random.Unit(), 0.1f);
        }
    });
    picture.Draw(
        [&](QPainter& painter) {
            for (int i = 0; i < 5; ++i) {
                DrawMaple(painter, random, {random.Range(0.0f, 1.75f), random.Range(0.75f, 1.05f)},
                          random.Range(0.10f, 0.16f), random.Unit() * 0.5f, 0.2f);
            }
        },
        11);
    picture.Bloom(0.88f, 14, 0.25f);
    picture.Vignette(0.5f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("紅葉"), QStringLiteral("燃ゆる葉に　秋のひざし"), 1.68f,
                   0.44f, Hex(0xFFF6E0));
    });
    return picture.Finish();
}

}  // namespace demo
