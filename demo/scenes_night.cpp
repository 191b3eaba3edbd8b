// Lights in the dark.
#include <QPainterPath>

#include "paint.h"
#include "scenes.h"

namespace demo {
namespace {

/// One shell: sparks fly out evenly over a ball and fall a little; each leaves a fading trail.
void DrawShell(QPainter& painter, Random& random, float x, float y, float radius, Rgb core, Rgb rim,
               int sparks, bool willow) {
    for (int i = 0; i < sparks; ++i) {
        const float turn = random.Range(0, 2 * kPi);
        const float height = random.Range(-1, 1);
        const float reach = std::sqrt(1 - height * height) * random.Range(0.9f, 1.03f) * radius;
        const QPointF aim(std::cos(turn) * reach, std::sin(turn) * reach);
        const float fall = radius * (willow ? 0.62f : 0.12f);
        QPointF before;
        constexpr int kSteps = 22;
        for (int k = 0; k <= kSteps; ++k) {
            const float t = static_cast<float>(k) / kSteps;
            const float out = 1 - (1 - t) * (1 - t);
            const QPointF at = QPointF(x, y) + aim * out + QPointF(0, fall * t * t);
            if (k > 0) {
                const float bright =
                    (willow ? 0.55f : Smooth(0.12f, 0.85f, t)) * random.Range(0.45f, 1);
                const Rgb colour = Mix(core, rim, Smooth(0.35f, 0.9f, t));
                const float wide = radius * Mix(0.006f, 0.011f, t);
                painter.setPen(QPen(ToColor(colour, bright), wide, Qt::SolidLine, Qt::RoundCap));
                painter.drawLine(before, at);
            }
            before = at;
        }
        painter.setPen(Qt::NoPen);
        Glow(painter, before.x(), before.y(), radius * 0.030f, Mix(rim, Hex(0xFFFFFF), 0.45f),
             0.95f);
    }
    Glow(painter, x, y, radius * 0.5f, core, 0.35f);
}

void DrawHouses(QPainter& painter, Random& random, float shore) {
    for (float x = -0.02f; x < kAspect;) {
        const float w = random.Range(0.02f, 0.06f), h = random.Range(0.015f, 0.06f);
        painter.setBrush(QColor(0x08, 0x0A, 0x1A));
        painter.drawRect(QRectF(x, shore - h, w, h + 0.004f));
        for (float wx = x + 0.004f; wx < x + w - 0.005f; wx += 0.009f) {
            for (float wy = shore - h + 0.006f; wy < shore - 0.006f; wy += 0.010f) {
                if (!random.Chance(0.35f)) continue;
                painter.setBrush(ToColor(Mix(Hex(0xFFB75E), Hex(0xFFE9BE), random.Unit()), 0.9f));
                painter.drawRect(QRectF(wx, wy, 0.0034f, 0.0044f));
            }
        }
        x += w * random.Range(0.8f, 1.1f);
    }
}

}  // namespace

QImage Fireworks() {
    constexpr float kShore = 0.80f;
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        p = Ramp({{0.0f, Hex(0x070818)}, {0.55f, Hex(0x11143A)}, {1.0f, Hex(0x3A2858)}},
                 y / kShore);
        p = p * (1 + 0.4f * Fbm(x * 2, y * 3, 4, 3));
        const float hill =
            kShore - 0.05f - 0.06f * Fbm(x * 1.6f, 2, 5, 30) - 0.05f * Bell(x - 0.3f, 0.4f);
        if (y > hill) p = Mix(p, Hex(0x0B0C20), Smooth(0, 0.002f, y - hill));
    });
    Random random(2024);
    picture.Draw([&](QPainter& painter) { DrawHouses(painter, random, kShore); });
    // Smoke of the shells before, lit by these.
    picture.Each([](float x, float y, Rgb& p) {
        const float smoke =
            Smooth(0.0f, 0.7f, Fbm(x * 2.2f, y * 2.6f, 5, 55)) * Bell((y - 0.45f) / 0.35f, 1);
        p = p + Mix(Hex(0x6A3A6E), Hex(0x8A5A3A), Clamp(x - 0.4f)) * (0.22f * smoke);
    });
    picture.Draw(
        [&](QPainter& painter) {
            painter.setCompositionMode(QPainter::CompositionMode_Plus);
            DrawShell(painter, random, 0.92f, 0.32f, 0.265f, Hex(0xFFE2A0), Hex(0xFF5A3A), 190,
                      false);
            DrawShell(painter, random, 0.92f, 0.32f, 0.135f, Hex(0xC8F4FF), Hex(0x4AA8FF), 90,
                      false);
            DrawShell(painter, random, 0.46f, 0.25f, 0.185f, Hex(0xFFD0F0), Hex(0xD85AE8), 140,
                      false);
            DrawShell(painter, random, 1.42f, 0.24f, 0.200f, Hex(0xFFE8B0), Hex(0xFFB040), 120,
                      true);
            DrawShell(painter, random, 0.64f, 0.52f, 0.105f, Hex(0xE8FFD8), Hex(0x4FD88A), 90,
                      false);
            DrawShell(painter, random, 1.20f, 0.55f, 0.095f, Hex(0xFFFFFF), Hex(0x58C8F0), 80,
                      false);
            DrawShell(painter, random, 1.64f, 0.52f, 0.085f, Hex(0xFFF0D0), Hex(0xFF7AA8), 70,
                      false);
            DrawShell(painter, random, 0.26f, 0.58f, 0.070f, Hex(0xFFF6C8), Hex(0xFFC23C), 60,
                      false);
            for (const float x : {0.92f, 0.46f, 1.42f}) {
                QLinearGradient trail(x, kShore, x, 0.3f);
                trail.setColorAt(0, QColor(255, 220, 160, 70));
                trail.setColorAt(1, QColor(255, 220, 160, 0));
                painter.setPen(QPen(QBrush(trail), 0.002f));
                painter.drawLine(QPointF(x + 0.012f, kShore - 0.02f), QPointF(x, 0.3f));
            }
            painter.setPen(Qt::NoPen);
        },
        0, true);
    picture.Bloom(0.40f, 8, 0.85f);
    picture.Reflect(kShore, 1.5f, Hex(0x070818), 0.22f, 14, 3.6f);
    picture.Vignette(0.35f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("花火の夜"), QStringLiteral("川面にひらく　夏の花"),
                   0.17f, 0.10f, Hex(0xFFF2E2));
    });
    return picture.Finish();
}

namespace {

void DrawTower(QPainter& painter, float x, float foot, float height) {
    const QColor frame(0xE8, 0x5A, 0x2C);
    auto half = [&](float up) { return height * (0.010f + 0.125f * std::pow(1 - up, 2.6f)); };
    QPainterPath body;
    QPolygonF outline;
    for (int i = 0; i <= 40; ++i) {
        const float up = static_cast<float>(i) / 40;
        outline << QPointF(x - half(up), foot - up * height * 0.86f);
    }
    for (int i = 40; i >= 0; --i) {
        const float up = static_cast<float>(i) / 40;
        outline << QPointF(x + half(up), foot - up * height * 0.86f);
    }
    body.addPolygon(outline);
    painter.setBrush(QColor(0x6E, 0x22, 0x18, 150));
    painter.drawPath(body);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(frame, height * 0.006f));
    painter.drawPath(body);
    painter.setPen(QPen(QColor(0xFF, 0x8A, 0x48), height * 0.0032f));
    for (int i = 0; i < 26; ++i) {
        const float a = static_cast<float>(i) / 26, b = static_cast<float>(i + 1) / 26;
        const float ya = foot - a * height * 0.86f, yb = foot - b * height * 0.86f;
        painter.drawLine(QPointF(x - half(a), ya), QPointF(x + half(b), yb));
        painter.drawLine(QPointF(x + half(a), ya), QPointF(x - half(b), yb));
        painter.drawLine(QPointF(x - half(b), yb), QPointF(x + half(b), yb));
    }
    painter.setPen(QPen(frame, height * 0.006f));
    painter.drawLine(QPointF(x, foot - height * 0.86f), QPointF(x, foot - height));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xE8, 0xC8));
    painter.drawRect(
        QRectF(x - height * 0.050f, foot - height * 0.46f, height * 0.100f, height * 0.022f));
    painter.drawRect(
        QRectF(x - height * 0.026f, foot - height * 0.70f, height * 0.052f, height * 0.014f));
    Glow(painter, x, foot - height, height * 0.03f, Hex(0xFF4A3A), 1);
}

void DrawSkyline(QPainter& painter, Random& random, float foot, float lowest, float highest,
                 Rgb wall, float lit, float window) {
    for (float x = -0.03f; x < kAspect;) {
        const float w = random.Range(0.030f, 0.085f);
        const float centre = Bell((x - 1.25f) / 0.6f, 1) + 0.6f * Bell((x - 0.35f) / 0.35f, 1);
        const float h = Mix(lowest, highest, Clamp(random.Unit() * 0.45f + 0.55f * centre));
        QLinearGradient face(0, foot - h, 0, foot);
        face.setColorAt(0, ToColor(wall));
        face.setColorAt(1, ToColor(wall * 1.5f));
        painter.setBrush(face);
        painter.drawRect(QRectF(x, foot - h, w, h + 0.002f));
        if (random.Chance(0.4f))
            painter.drawRect(QRectF(x + w * 0.3f, foot - h - 0.014f, w * 0.35f, 0.016f));
        const bool warm = random.Chance(0.72f);
        const bool rows = random.Chance(0.3f);
        const float share = lit * random.Range(0.45f, 1.2f);
        for (float wy = foot - h + window * 1.6f; wy < foot - window; wy += window * 1.75f) {
            const bool wholeRow = rows && random.Chance(0.35f);
            for (float wx = x + window * 0.8f; wx < x + w - window; wx += window * 1.25f) {
                if (!wholeRow && !random.Chance(share)) continue;
                const Rgb light = warm ? Mix(Hex(0xFFB45A), Hex(0xFFF0CC), random.Unit())
                                       : Mix(Hex(0x9CD0FF), Hex(0xF2FAFF), random.Unit());
                painter.setBrush(ToColor(light, random.Range(0.35f, 1.0f)));
                painter.drawRect(QRectF(wx, wy, window * 0.72f, window * 0.95f));
            }
        }
        if (h > highest * 0.75f)
            Glow(painter, x + w / 2, foot - h - 0.006f, 0.010f, Hex(0xFF3A30), 0.9f);
        x += w * random.Range(0.88f, 1.15f);
    }
}

}  // namespace

QImage CityLights() {
    constexpr float kShore = 0.74f;
    Picture picture;
    picture.Each([](float x, float y, Rgb& p) {
        p = Ramp({{0.0f, Hex(0x0A1030)},
                  {0.45f, Hex(0x24245E)},
                  {0.78f, Hex(0x7A3E7C)},
                  {1.0f, Hex(0xE88A78)}},
                 y / kShore);
        const float cloud = Smooth(0.0f, 0.6f, Fbm(x * 1.4f, y * 6, 5, 23));
        p = Mix(p, Mix(Hex(0x2C2A60), Hex(0xD87A8A), Smooth(0.1f, 0.6f, y)), 0.5f * cloud);
    });
    Random random(88);
    picture.Draw(
        [&](QPainter& painter) {
            DrawSkyline(painter, random, kShore, 0.10f, 0.33f, Hex(0x4A3A6E), 0.22f, 0.0050f);
        },
        1.2f);
    picture.Each(
        [](float, float y, Rgb& p) { p = Mix(p, Hex(0xB8688A), 0.32f * Smooth(0.45f, 0.74f, y)); });
    picture.Draw([&](QPainter& painter) {
        DrawTower(painter, 0.66f, kShore, 0.55f);
        DrawSkyline(painter, random, kShore, 0.07f, 0.40f, Hex(0x221F48), 0.36f, 0.0062f);
    });
    picture.Each(
        [](float, float y, Rgb& p) { p = Mix(p, Hex(0x9A5080), 0.18f * Smooth(0.55f, 0.74f, y)); });
    picture.Draw([&](QPainter& painter) {
        DrawSkyline(painter, random, kShore, 0.03f, 0.17f, Hex(0x0C0D26), 0.45f, 0.0074f);
        for (float x = 0; x < kAspect; x += 0.037f) {
            Glow(painter, x, kShore - 0.006f, 0.013f,
                 random.Chance(0.7f) ? Hex(0xFFC873) : Hex(0xFFF4E0), 1);
        }
    });
    picture.Bloom(0.66f, 6, 0.45f);
    picture.Reflect(kShore, 1.7f, Hex(0x0C1030), 0.26f, 40);
    // Lights drawn out on the water.
    picture.Each([](float x, float y, Rgb& p) {
        if (y < kShore) return;
        const float glint = Smooth(0.25f, 0.6f, Fbm(x * 26, (y - kShore) * 160, 3, 70));
        p = p * (1 + 0.35f * glint);
    });
    picture.Vignette(0.4f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("街の灯"), QStringLiteral("窓ひとつ　ひとつの物語"),
                   0.19f, 0.08f, Hex(0xFFF2EA));
    });
    return picture.Finish();
}

namespace {

void DrawFarmhouse(QPainter& painter, Random& random, float x, float foot, float width) {
    const float eaves = foot - width * 0.22f, ridge = foot - width * 0.98f;
    // Wall with warm windows under a steep thatched roof that carries deep snow.
    QLinearGradient wall(0, eaves, 0, foot);
    wall.setColorAt(0, QColor(0x2E, 0x1C, 0x18));
    wall.setColorAt(1, QColor(0x4A, 0x2E, 0x22));
    painter.setBrush(wall);
    painter.drawPolygon(QPolygonF(
        {QPointF(x - width * 0.36f, foot), QPointF(x - width * 0.36f, eaves - width * 0.1f),
         QPointF(x, ridge + width * 0.1f), QPointF(x + width * 0.36f, eaves - width * 0.1f),
         QPointF(x + width * 0.36f, foot)}));
    auto window = [&](float wx, float wy, float w, float h) {
        const QRectF pane(x + wx * width, foot - wy * width, w * width, h * width);
        QLinearGradient light(pane.topLeft(), pane.bottomLeft());
        light.setColorAt(0, QColor(0xFF, 0xC4, 0x60));
        light.setColorAt(1, QColor(0xFF, 0xEA, 0xB0));
        painter.setBrush(light);
        painter.drawRect(pane);
        painter.setPen(QPen(QColor(0x3A, 0x20, 0x14), width * 0.009f));
        for (int i = 1; i < 4; ++i) {
            const double at = pane.left() + pane.width() * i / 4;
            painter.drawLine(QPointF(at, pane.top()), QPointF(at, pane.bottom()));
        }
        painter.drawLine(QPointF(pane.left(), pane.center().y()),
                         QPointF(pane.right(), pane.center().y()));
        painter.setPen(Qt::NoPen);
    };
    window(-0.28f, 0.19f, 0.22f, 0.13f);
    window(0.06f, 0.19f, 0.22f, 0.13f);
    window(-0.11f, 0.44f, 0.22f, 0.11f);
    window(-0.05f, 0.63f, 0.10f, 0.08f);
    QPainterPath roof(QPointF(x, ridge - width * 0.045f));
    roof.quadTo(QPointF(x + width * 0.09f, ridge),
                QPointF(x + width * 0.57f, eaves + width * 0.03f));
    roof.quadTo(QPointF(x + width * 0.53f, eaves + width * 0.10f),
                QPointF(x + width * 0.45f, eaves + width * 0.02f));
    roof.quadTo(QPointF(x + width * 0.10f, ridge + width * 0.17f),
                QPointF(x, ridge + width * 0.14f));
    roof.quadTo(QPointF(x - width * 0.10f, ridge + width * 0.17f),
                QPointF(x - width * 0.45f, eaves + width * 0.02f));
    roof.quadTo(QPointF(x - width * 0.53f, eaves + width * 0.10f),
                QPointF(x - width * 0.57f, eaves + width * 0.03f));
    roof.quadTo(QPointF(x - width * 0.09f, ridge), QPointF(x, ridge - width * 0.045f));
    QLinearGradient snow(x - width * 0.4f, ridge, x + width * 0.4f, foot);
    snow.setColorAt(0, QColor(0xF2, 0xF6, 0xFF));
    snow.setColorAt(1, QColor(0x93, 0xA6, 0xD6));
    painter.setBrush(snow);
    painter.drawPath(roof);
    Glow(painter, x, foot - width * 0.12f, width * random.Range(0.62f, 0.72f), Hex(0xFFB85A),
         0.30f);
    QRadialGradient pool(QPointF(x, foot + width * 0.03f), width * 0.6f);
    pool.setColorAt(0, QColor(0xFF, 0xC8, 0x78, 120));
    pool.setColorAt(1, QColor(0xFF, 0xC8, 0x78, 0));
    painter.setBrush(pool);
    painter.drawEllipse(QPointF(x, foot + width * 0.04f), width * 0.6f, width * 0.12f);
}

}  // namespace

QImage SnowVillage() {
    Picture picture;
    Random random(9);
    picture.Each([](float x, float y, Rgb& p) {
        p = Ramp({{0.0f, Hex(0x0C1536)}, {0.4f, Hex(0x22376E)}, {0.7f, Hex(0x5C76AE)}}, y);
        p = p + Hex(0x6E86C8) * (0.25f * Smooth(0.0f, 0.7f, Fbm(x * 1.5f, y * 3, 5, 71)));
        for (int i = 0; i < 3; ++i) {
            const float n = static_cast<float>(i);
            const float top =
                0.40f + 0.055f * n -
                0.16f * (Ridge(x * (0.9f + 0.3f * n) + 2 * n, 0.4f, 5, 300 + i * 7) - 0.5f);
            if (y < top) continue;
            const float shade = Fbm((x + (y - top) * 0.7f) * 9, (y - top) * 8, 5, 310 + i);
            const Rgb hill = Mix(Mix(Hex(0x34497E), Hex(0x9FB2DC), Clamp(0.45f + shade)),
                                 Hex(0x7088BC), 0.55f - 0.16f * n);
            p = Mix(p, hill, Smooth(0, 0.002f, y - top));
        }
    });
    picture.Draw(
        [&](QPainter& painter) {
            for (int i = 0; i < 150; ++i) {
                const float x = random.Range(-0.05f, kAspect + 0.05f);
                const float y = 0.60f + 0.03f * std::sin(x * 4) + random.Range(-0.035f, 0.02f);
                Fir(painter, random, x, y, random.Range(0.05f, 0.11f), QColor(0x22, 0x34, 0x5C),
                    QColor(0xA8, 0xBA, 0xE2, 150));
            }
        },
        1.2f);
    auto field = [&](float level, float swing, Rgb light, Rgb shade, uint32_t seed) {
        picture.Each([&](float x, float y, Rgb& p) {
            const float top = level + swing * Fbm(x * 1.5f, 3, 3, seed);
            if (y < top) return;
            const float relief = Fbm(x * 3, (y - top) * 7, 4, seed + 5);
            const Rgb snow = Mix(light, shade, Clamp(0.35f + relief * 0.7f + (y - top) * 0.9f));
            p = Mix(p, snow, Smooth(0, 0.003f, y - top));
        });
    };
    field(0.615f, 0.05f, Hex(0xB9C9EC), Hex(0x6F87BE), 21);
    picture.Draw([&](QPainter& painter) {
        DrawFarmhouse(painter, random, 0.52f, 0.685f, 0.15f);
        DrawFarmhouse(painter, random, 1.36f, 0.675f, 0.14f);
        DrawFarmhouse(painter, random, 0.93f, 0.70f, 0.17f);
    });
    field(0.715f, 0.05f, Hex(0xCBD8F4), Hex(0x7A92C6), 22);
    picture.Draw([&](QPainter& painter) {
        for (int i = 0; i < 12; ++i) {
            const float x = i < 6 ? random.Range(-0.02f, 0.32f) : random.Range(1.55f, 1.82f);
            Fir(painter, random, x, 0.80f + random.Range(-0.03f, 0.04f), random.Range(0.18f, 0.34f),
                QColor(0x16, 0x24, 0x46), QColor(0xD2, 0xDF, 0xF8, 215));
        }
        DrawFarmhouse(painter, random, 0.70f, 0.84f, 0.25f);
        DrawFarmhouse(painter, random, 1.24f, 0.83f, 0.27f);
    });
    field(0.875f, 0.05f, Hex(0xDCE6FA), Hex(0x6C84BC), 23);
    picture.Bloom(0.80f, 14, 0.5f);
    picture.Draw([&](QPainter& painter) {
        painter.setBrush(QColor(255, 255, 255, 190));
        for (int i = 0; i < 1100; ++i) {
            const float r = 0.0006f + 0.0020f * random.Unit() * random.Unit();
            painter.drawEllipse(QPointF(random.Range(0, kAspect), random.Unit()), r, r);
        }
    });
    picture.Draw(
        [&](QPainter& painter) {
            painter.setBrush(QColor(255, 255, 255, 200));
            for (int i = 0; i < 70; ++i) {
                const float r = random.Range(0.003f, 0.009f);
                painter.drawEllipse(QPointF(random.Range(0, kAspect), random.Unit()), r, r);
            }
        },
        4);
    picture.Vignette(0.35f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("雪あかり"), QStringLiteral("しんしんと　灯のぬくみ"),
                   1.70f, 0.08f, Hex(0xF4F8FF));
    });
    return picture.Finish();
}

}  // namespace demo
