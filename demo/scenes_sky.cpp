// Mountains, sea and sky.
#include <QPainterPath>

#include "paint.h"
#include "scenes.h"

namespace demo {
namespace {

/// Height of a range's crest at x, in parts of the picture's height.
float Crest(float x, float scale, float roughness, uint32_t seed) {
    return Fbm(x * scale, 0.37f, 6, seed) * roughness;
}

/// Height of the volcano above its foot, 0..1, at `away` half widths from its axis.
float ConeHeight(float away, float x) {
    const float t = Clamp(std::fabs(away));
    const float flank = std::pow(1 - t, 1.75f) * 1.12f;
    const float rim = 0.862f + 0.005f * Noise(x * 60, 3, 5) + 0.009f * Noise(x * 20, 8, 6);
    return std::min(flank, rim) + 0.006f * Fbm(x * 40, 1, 3, 8) * Smooth(1, 0.6f, t);
}

void DrawBirds(QPainter& painter, Random& random, float x, float y, int count, QColor colour) {
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < count; ++i) {
        const float s = random.Range(0.006f, 0.012f);
        const QPointF at(x + random.Normal() * 0.06f, y + random.Normal() * 0.025f);
        const float tilt = random.Range(-0.3f, 0.3f) * s;
        painter.setPen(QPen(colour, s * 0.16f, Qt::SolidLine, Qt::RoundCap));
        QPainterPath bird(at + QPointF(-s, -s * 0.35f - tilt));
        bird.quadTo(at + QPointF(-s * 0.45f, -s * 0.55f), at);
        bird.quadTo(at + QPointF(s * 0.45f, -s * 0.55f), at + QPointF(s, -s * 0.35f + tilt));
        painter.drawPath(bird);
    }
    painter.setPen(Qt::NoPen);
}

void DrawStars(QPainter& painter, Random& random, int count, float lowest) {
    static const std::vector<Rgb> kTints = {Hex(0xFFFFFF), Hex(0xCFE0FF), Hex(0xFFE9CF),
                                            Hex(0xBFD2FF)};
    for (int i = 0; i < count; ++i) {
        const float bright = std::pow(random.Unit(), 5.0f);
        const float x = random.Range(0, kAspect), y = random.Range(0, lowest);
        const Rgb tint = kTints[static_cast<size_t>(random.Unit() * 3.99f)];
        painter.setBrush(ToColor(tint, 0.25f + 0.75f * bright));
        const float r = 0.0005f + 0.0011f * bright;
        painter.drawEllipse(QPointF(x, y), r, r);
        if (bright > 0.86f) Glow(painter, x, y, r * 6, tint, 0.3f * bright);
    }
}

void PaintDawnSky(Picture& picture, float horizon, float sunX) {
    const std::vector<Stop> sky = {{0.0f, Hex(0x1C2850)},  {0.30f, Hex(0x4B4A86)},
                                   {0.55f, Hex(0xA5699A)}, {0.78f, Hex(0xEE9C86)},
                                   {0.93f, Hex(0xFFCE98)}, {1.0f, Hex(0xFFE6BC)}};
    picture.Each([&](float x, float y, Rgb& p) {
        p = Ramp(sky, y / horizon);
        const float dx = (x - sunX) * 0.62f, dy = y - horizon + 0.03f;
        const float sun = std::sqrt(dx * dx + dy * dy);
        p = p + Hex(0xFFB070) * (0.62f * Bell(sun, 0.34f));
        // Long clouds, lit from below.
        const float streak = Fbm(x * 1.1f + 3, y * 9 + 0.8f * Fbm(x * 2, y * 3, 2, 40), 5, 21);
        const float cloud = Smooth(0.02f, 0.42f, streak) * Smooth(0.04f, 0.2f, y) *
                            Smooth(horizon, horizon * 0.72f, y);
        const Rgb lit = Mix(Hex(0x8A6AA0), Hex(0xFFC3A0), Clamp(Bell(sun, 0.75f) + 0.1f));
        p = Mix(p, lit, 0.62f * cloud);
    });
}

void PaintCone(Picture& picture, float axis, float foot, float height, float halfWidth) {
    picture.Each([&](float x, float y, Rgb& p) {
        const float away = (x - axis) / halfWidth;
        if (std::fabs(away) >= 1) return;
        const float top = foot - ConeHeight(away, x) * height;
        const float edge = Smooth(-0.0006f, 0.0006f, y - top);
        if (edge <= 0 || y > foot) return;
        const float drop = (y - (foot - 0.862f * height)) / height;  // 0 at the rim
        // Gullies run straight down from the rim: noise over the angle, drawn out along the slope.
        const float angle = (x - axis) / (drop + 0.16f);
        const float gully = Fbm(angle * 5.2f, drop * 2.2f, 5, 60);
        const float light = Clamp(0.42f + 0.55f * angle * 0.9f + 0.85f * gully);
        const Rgb rock = Mix(Hex(0x2C2F5C), Hex(0x8A5F86), light);
        const Rgb snow = Mix(Hex(0x8C93CC), Hex(0xFFE7DC), Smooth(0.15f, 0.85f, light));
        const float fingers = 0.19f + 0.22f * Fbm(angle * 8, 2, 4, 71) + 0.06f * gully;
        const float white = Smooth(0.035f, -0.02f, drop - fingers);
        Rgb body = Mix(rock, snow, white);
        const float haze = Smooth(0.16f, 0.9f, drop);
        body = Mix(body, Hex(0xE0A39C), haze * 0.85f);
        p = Mix(p, body, edge);
    });
}

/// The vermilion gate, its feet just under the waterline `sea`.
void DrawGate(QPainter& painter, float sea) {
    const float cx = 0.98f, foot = sea + 0.018f, w = 0.20f, top = 0.27f;
    const QColor dark(0x8E, 0x1F, 0x1C), light(0xD8, 0x42, 0x2E), black(0x2A, 0x18, 0x22);
    QLinearGradient wood(cx - w, 0, cx + w, 0);
    wood.setColorAt(0, dark);
    wood.setColorAt(0.5, light);
    wood.setColorAt(1, dark);
    auto post = [&](float x, float wide, float from, float lean) {
        QLinearGradient round(x - wide, 0, x + wide, 0);
        round.setColorAt(0, QColor(0x6E, 0x16, 0x18));
        round.setColorAt(0.55, QColor(0xE2, 0x50, 0x38));
        round.setColorAt(1, QColor(0x7C, 0x1A, 0x1A));
        painter.setBrush(round);
        painter.drawPolygon(
            QPolygonF({QPointF(x - wide * 0.8f + lean, from), QPointF(x + wide * 0.8f + lean, from),
                       QPointF(x + wide, foot), QPointF(x - wide, foot)}));
        painter.setBrush(black);
        painter.drawRect(QRectF(x - wide * 1.08f, foot - 0.05f, wide * 2.16f, 0.052f));
    };
    for (const float side : {-1.0f, 1.0f}) {
        post(cx + side * (w + 0.055f), 0.011f, 0.47f, 0);
        post(cx + side * (w - 0.062f), 0.011f, 0.47f, 0);
    }
    for (const float side : {-1.0f, 1.0f}) {
        painter.setBrush(wood);
        painter.drawRect(QRectF(cx + side * w - 0.085f, 0.525f, 0.17f, 0.014f));
    }
    for (const float side : {-1.0f, 1.0f}) {
        post(cx + side * w, 0.021f, top, -side * 0.016f);
    }
    painter.setBrush(wood);
    painter.drawRect(QRectF(cx - w - 0.075f, 0.375f, 2 * w + 0.15f, 0.030f));
    painter.drawRect(QRectF(cx - 0.018f, 0.31f, 0.036f, 0.07f));
    auto beam = [&](float half, float y, float thick, float rise, QBrush brush) {
        QPainterPath path(QPointF(cx - half, y - rise));
        path.quadTo(QPointF(cx - half * 0.5f, y), QPointF(cx, y));
        path.quadTo(QPointF(cx + half * 0.5f, y), QPointF(cx + half, y - rise));
        path.lineTo(QPointF(cx + half * 0.985f, y - rise * 0.8f + thick));
        path.quadTo(QPointF(cx + half * 0.5f, y + thick), QPointF(cx, y + thick));
        path.quadTo(QPointF(cx - half * 0.5f, y + thick),
                    QPointF(cx - half * 0.985f, y - rise * 0.8f + thick));
        path.closeSubpath();
        painter.setBrush(brush);
        painter.drawPath(path);
    };
    beam(w + 0.115f, 0.285f, 0.032f, 0.018f, wood);
    beam(w + 0.145f, 0.262f, 0.026f, 0.026f, black);
}

}  // namespace

QImage DawnAtFuji() {
    constexpr float kShore = 0.74f, kSunX = 1.34f;
    Picture picture;
    PaintDawnSky(picture, kShore, kSunX);
    PaintCone(picture, 0.80f, kShore, 0.60f, 0.98f);
    picture.Each([&](float x, float y, Rgb& p) {
        // Ranges at the foot, then mist that lies in front of them.
        for (int i = 0; i < 3; ++i) {
            const float n = static_cast<float>(i);
            const float top = kShore - 0.075f + 0.024f * n -
                              Crest(x + n * 7, 2.2f + n, 0.055f - n * 0.008f, 90 + i);
            const Rgb hill = Mix(Hex(0xB9798F), Hex(0x3C3560), 0.28f + 0.34f * n);
            if (y > top && y < kShore) p = Mix(p, hill, Smooth(0, 0.0012f, y - top));
            const float mist = Fbm(x * 1.8f + n * 3, y * 12, 4, 33 + i);
            const float band = Bell(y - (kShore - 0.055f + 0.024f * n), 0.022f);
            p = Mix(p, Hex(0xFFD9BF), Clamp(band * (0.48f + 0.55f * mist)));
        }
    });
    Random random(7);
    picture.Draw([&](QPainter& painter) {
        for (int i = 0; i < 240; ++i) {
            const float x = random.Range(-0.02f, kAspect + 0.02f);
            const float grow = 0.55f + 0.9f * Clamp(0.5f + Fbm(x * 2.1f, 5, 3, 3));
            Fir(painter, random, x, kShore + 0.004f, random.Range(0.016f, 0.036f) * grow,
                ToColor(Mix(Hex(0x231F42), Hex(0x3A2B4E), random.Unit())));
        }
        DrawBirds(painter, random, 1.25f, 0.33f, 9, QColor(0x2A, 0x24, 0x48));
    });
    picture.Reflect(kShore, 0.8f, Hex(0x2A2450), 0.34f, 5);
    picture.Bloom(0.86f, 14, 0.35f);
    picture.Vignette(0.45f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("夜明けの富士"), QStringLiteral("湖しづかに　朝を映す"),
                   1.70f, 0.08f, Hex(0xFFF4E6));
    });
    return picture.Finish();
}

QImage GateInTheSea() {
    constexpr float kSea = 0.66f, kSunX = 0.98f;
    Picture picture;
    const std::vector<Stop> sky = {{0.0f, Hex(0x233A6B)},
                                   {0.35f, Hex(0x6A5C94)},
                                   {0.62f, Hex(0xD9727A)},
                                   {0.85f, Hex(0xFF9F5E)},
                                   {1.0f, Hex(0xFFD08A)}};
    picture.Each([&](float x, float y, Rgb& p) {
        p = Ramp(sky, y / kSea);
        const float dx = x - kSunX, dy = y - kSea + 0.085f;
        const float sun = std::sqrt(dx * dx + dy * dy);
        const float warp = Fbm(x * 1.4f, y * 3, 4, 12);
        const float cloud = Smooth(0.05f, 0.5f, Fbm(x * 1.2f + warp, y * 5.5f + warp, 5, 15));
        const Rgb lit = Mix(Hex(0x5C4A80), Hex(0xFFB98C), Clamp(1.2f * Bell(sun, 0.55f)));
        p = Mix(p, lit, 0.7f * cloud * Smooth(0, 0.25f, y) * Smooth(kSea, kSea - 0.18f, y));
        p = p + Hex(0xFFB060) * (0.5f * Bell(sun, 0.30f));
        p = Mix(p, Hex(0xFFF3D6), Smooth(0.062f, 0.058f, sun));
        for (int i = 0; i < 3; ++i) {
            const float n = static_cast<float>(i);
            const float top = kSea - 0.055f + 0.02f * n - Crest(x + 4 * n, 1.7f + n, 0.07f, 70 + i);
            const Rgb hill = Mix(Hex(0xC9707A), Hex(0x4A3262), 0.25f + 0.32f * n);
            if (y > top) p = Mix(p, hill, 0.92f * Smooth(0, 0.0015f, y - top));
        }
    });
    picture.Draw([](QPainter& painter) { DrawGate(painter, kSea); });
    picture.Reflect(kSea, 1.25f, Hex(0x2B2A5A), 0.30f, 8);
    Random random(3);
    picture.Draw([&](QPainter& painter) {
        DrawBirds(painter, random, 0.42f, 0.24f, 11, QColor(0x2E, 0x22, 0x48));
    });
    picture.Bloom(0.85f, 12, 0.4f);
    picture.Vignette(0.45f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("海の鳥居"), QStringLiteral("夕凪に　朱の影ひとつ"),
                   0.19f, 0.10f, Hex(0xFFF2E2));
    });
    return picture.Finish();
}

QImage InkMountains() {
    Picture picture;
    picture.Each([&](float x, float y, Rgb& p) {
        const float fibre = Fbm(x * 60, y * 22, 3, 4) * 0.025f + Fbm(x * 5, y * 5, 4, 9) * 0.035f;
        p = Mix(Hex(0xF6EEDD), Hex(0xE6D8BC), Smooth(0.1f, 1.1f, y)) * (1 + fibre);
        const float dx = x - 1.22f, dy = y - 0.27f;
        const float wobble = 0.0025f * Fbm(std::atan2(dy, dx) * 6, 0, 3, 2);
        const float disc = Smooth(0.094f, 0.089f, std::sqrt(dx * dx + dy * dy) + wobble);
        const float dry = 0.88f + 0.16f * Fbm(x * 18, y * 90, 4, 31);
        p = Mix(p, Hex(0xC23A2B), disc * Clamp(dry));
    });
    for (int i = 0; i < 6; ++i) {
        const float n = static_cast<float>(i);
        picture.Each([&](float x, float y, Rgb& p) {
            const float peaks = Ridge(x * (0.75f + 0.16f * n) + n * 5.3f, 0.5f, 4, 200 + i * 11);
            const float top = 0.44f + 0.092f * n - (peaks - 0.62f) * (0.58f - 0.05f * n) -
                              0.02f * Crest(x, 22, 1, 50 + i);
            if (y < top) return;
            // Ink is strongest at the crest and runs out into mist downwards.
            const float down = y - top;
            const float wash = std::exp(-down * (8.5f - n * 0.55f));
            const float grain =
                0.80f + 0.42f * Fbm(x * 11 + down * 5, y * 16, 5, 80 + i) +
                0.22f * Ridge(x * 9 - down * 6, down * 13, 3, 120 + i) * Smooth(0, 0.04f, down);
            const float tone = (0.20f + 0.125f * n) * Clamp(wash * grain);
            const Rgb ink = Mix(Hex(0x5E6A78), Hex(0x14181F), 0.18f * n);
            p = Mix(p, ink, Clamp(tone * 1.25f) * Smooth(0, 0.002f, down));
            const float mist = Clamp(0.62f * Bell(down - 0.30f, 0.13f) *
                                     (0.7f + 0.6f * Fbm(x * 2 + n, y * 7, 4, 40 + i)));
            p = Mix(p, Hex(0xF1E8D5), mist);
        });
    }
    Random random(12);
    picture.Draw([&](QPainter& painter) {
        DrawBirds(painter, random, 0.93f, 0.25f, 8, QColor(0x2A, 0x2A, 0x30));
        // Pines on the nearest slope, and a boat on the mist.
        const QColor ink(0x16, 0x1A, 0x20, 235);
        for (int i = 0; i < 26; ++i) {
            const float x = 0.02f + 0.5f * std::pow(random.Unit(), 1.6f);
            Fir(painter, random, x, 1.0f + 0.02f - x * 0.05f, random.Range(0.08f, 0.22f), ink);
        }
        QPainterPath boat(QPointF(1.17f, 0.842f));
        boat.quadTo(QPointF(1.235f, 0.872f), QPointF(1.31f, 0.838f));
        boat.quadTo(QPointF(1.29f, 0.866f), QPointF(1.235f, 0.868f));
        boat.quadTo(QPointF(1.185f, 0.866f), QPointF(1.17f, 0.842f));
        painter.setBrush(QColor(0x18, 0x1A, 0x20));
        painter.drawPath(boat);
        painter.drawEllipse(QPointF(1.262f, 0.822f), 0.006f, 0.007f);
        painter.drawPolygon(QPolygonF({QPointF(1.253f, 0.858f), QPointF(1.271f, 0.858f),
                                       QPointF(1.266f, 0.828f), QPointF(1.258f, 0.828f)}));
        painter.drawPolygon(
            QPolygonF({QPointF(1.245f, 0.821f), QPointF(1.262f, 0.808f), QPointF(1.279f, 0.821f)}));
        painter.setPen(QPen(QColor(0x18, 0x1A, 0x20), 0.0016f));
        painter.drawLine(QPointF(1.243f, 0.815f), QPointF(1.222f, 0.905f));
        painter.setPen(Qt::NoPen);
    });
    picture.Vignette(0.16f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("遠山"), QStringLiteral("墨の濃淡　霧のなか"), 1.66f,
                   0.10f, Hex(0x22242A));
    });
    return picture.Finish();
}

QImage MilkyWay() {
    constexpr float kShore = 0.80f;
    constexpr float kLeanX = 0.57f, kLeanY = 0.82f;  // direction of the band, upwards to the right
    Picture picture;
    const std::vector<Stop> sky = {{0.0f, Hex(0x070B1E)},
                                   {0.5f, Hex(0x101A3E)},
                                   {0.82f, Hex(0x1F3A5E)},
                                   {1.0f, Hex(0x3C6A78)}};
    picture.Each([&](float x, float y, Rgb& p) {
        p = Ramp(sky, y / kShore);
        // The band leans across the sky; dust lanes cut it lengthwise.
        const float along = (x - 1.0f) * kLeanX - (y - 0.4f) * kLeanY;
        const float across = (x - 1.0f) * kLeanY + (y - 0.4f) * kLeanX;
        const float bend = 0.06f * Fbm(along * 2, across * 2, 3, 11);
        const float cloud = Fbm(along * 3.2f, across * 5, 6, 14);
        const float dust = Smooth(
            -0.05f, 0.48f,
            Fbm(along * 4.5f + 4, across * 9.5f, 7, 23) + 0.16f * Bell(across + bend, 0.05f));
        const float body = Bell(across + bend, 0.17f), heart = Bell(across + bend, 0.075f);
        const float bright = (body * (0.42f + 0.6f * cloud) + heart * 0.42f) * (1 - 0.66f * dust);
        p = p + Mix(Hex(0x6F86D8), Hex(0xFFD9C0), Clamp(heart + cloud * 0.5f)) *
                    std::max(0.0f, bright * 0.86f);
        p = p +
            Hex(0xC04888) * (0.16f * body * Smooth(0.2f, 0.6f, Fbm(along * 5, across * 7, 4, 25)));
        p = p + Hex(0x2E9C82) *
                    (0.20f * Bell(y - kShore, 0.20f) * (0.8f + 0.6f * Fbm(x * 1.5f, y, 3, 28)));
    });
    Random random(31);
    picture.Draw(
        [&](QPainter& painter) {
            DrawStars(painter, random, 4200, kShore);
            // More of them, and finer, along the band.
            for (int i = 0; i < 9000; ++i) {
                const float along = random.Range(-0.7f, 0.7f), across = random.Normal() * 0.10f;
                const float x = 1.0f + kLeanX * along + kLeanY * across;
                const float y = 0.4f - kLeanY * along + kLeanX * across;
                if (y > kShore) continue;
                painter.setBrush(QColor(225, 230, 255, static_cast<int>(random.Range(30, 150))));
                const float r = random.Range(0.0003f, 0.0008f);
                painter.drawEllipse(QPointF(x, y), r, r);
            }
            QLinearGradient trail(0.44f, 0.13f, 0.62f, 0.23f);
            trail.setColorAt(0, QColor(255, 255, 255, 0));
            trail.setColorAt(1, QColor(255, 255, 255, 230));
            painter.setPen(QPen(QBrush(trail), 0.0018f, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(0.44f, 0.13f), QPointF(0.62f, 0.23f));
            painter.setPen(Qt::NoPen);
        },
        0, true);
    picture.Each([&](float x, float y, Rgb& p) {
        for (int i = 0; i < 3; ++i) {
            const float n = static_cast<float>(i);
            const float peaks = Ridge(x * (1.1f + 0.4f * n) + 3 * n, 0.2f, 5, 140 + i * 9);
            const float top = kShore - 0.03f + 0.012f * n - (peaks - 0.42f) * (0.40f - 0.11f * n);
            const Rgb hill = Mix(Hex(0x16283F), Hex(0x04070F), 0.2f + 0.4f * n);
            if (y > top) p = Mix(p, hill, Smooth(0, 0.0012f, y - top));
        }
    });
    picture.Reflect(kShore, 0.45f, Hex(0x050A18), 0.38f, 9);
    picture.Bloom(0.80f, 5, 0.22f);
    picture.Vignette(0.4f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("天の川"), QStringLiteral("星あまた　湖にねむる"), 0.19f,
                   0.10f, Hex(0xEAF2FF));
    });
    return picture.Finish();
}

QImage MoonOverTheSea() {
    constexpr float kSea = 0.60f, kMoonX = 1.13f, kMoonY = 0.27f, kRadius = 0.098f;
    Picture picture;
    const std::vector<Stop> sky = {
        {0.0f, Hex(0x050A1C)}, {0.6f, Hex(0x122650)}, {1.0f, Hex(0x2B4C7E)}};
    picture.Each([&](float, float y, Rgb& p) { p = Ramp(sky, y / kSea); });
    Random random(77);
    picture.Draw([&](QPainter& painter) { DrawStars(painter, random, 1300, kSea - 0.04f); }, 0,
                 true);
    picture.Each([&](float x, float y, Rgb& p) {
        const float dx = x - kMoonX, dy = y - kMoonY;
        const float far = std::sqrt(dx * dx + dy * dy);
        p = p + Hex(0x86A4E0) * (0.42f * Bell(far, 0.22f)) +
            Hex(0x33589C) * (0.42f * Bell(far, 0.6f));
        if (far < kRadius + 0.002f) {
            const float maria = Smooth(-0.14f, 0.26f, Fbm(dx * 11 + 5, dy * 11, 5, 6));
            const float limb = std::sqrt(std::max(0.0f, 1 - far * far / (kRadius * kRadius)));
            const float craters = 0.06f * Fbm(dx * 90, dy * 90, 4, 13);
            const Rgb face =
                Mix(Hex(0xF4ECD8), Hex(0x9C9CA6), maria) * (0.74f + 0.20f * limb + craters);
            p = Mix(p, face, Smooth(kRadius + 0.0012f, kRadius - 0.0012f, far));
        }
        const float warp = Fbm(x * 1.3f, y * 2, 4, 3);
        const float streak = Fbm(x * 1.3f + warp + 2, y * 7 + warp, 6, 45);
        const float cloud = Smooth(0.06f, 0.5f, streak) * Smooth(0.08f, 0.3f, y);
        const Rgb lit = Mix(Hex(0x1C2C56), Hex(0xBCCBEC), Clamp(Bell(far, 0.36f) * 1.1f));
        p = Mix(p, lit, 0.72f * cloud);
        if (y < kSea) return;

        // Rows of waves, foreshortened; what faces the moon glitters.
        const float depth = y - kSea + 0.004f;
        const float z = 0.22f / depth;
        const float swell = Fbm((x - kMoonX) * z * 3 + 7, z * 7, 5, 52);
        const float chop = Fbm((x - kMoonX) * z * 11, z * 26, 4, 58);
        p = Mix(Hex(0x2A4C80), Hex(0x040A1C), Smooth(0, 0.36f, depth)) * (1 + 0.5f * swell);
        const float road = Bell((x - kMoonX) / (0.055f + depth * 0.55f), 1);
        const float wide = Bell((x - kMoonX) / (0.30f + depth), 1);
        const float facet = swell * 0.55f + chop * 0.75f;
        const float sparkle = Smooth(0.30f - 0.34f * road, 0.62f - 0.28f * road, facet);
        p = p + Hex(0xFFF2D2) *
                    (sparkle * (0.10f * wide + 1.05f * road) * (0.65f + 0.35f * Bell(depth, 0.3f)));
        p = p + Hex(0x6F92D0) * (0.26f * wide * Bell(depth, 0.12f));
    });
    picture.Draw([](QPainter& painter) {
        // A sailing boat far out.
        const float x = 0.52f, y = kSea + 0.012f;
        painter.setBrush(QColor(0x08, 0x0E, 0x20));
        painter.drawPolygon(
            QPolygonF({QPointF(x - 0.030f, y - 0.008f), QPointF(x + 0.034f, y - 0.009f),
                       QPointF(x + 0.024f, y + 0.004f), QPointF(x - 0.022f, y + 0.004f)}));
        painter.setBrush(QColor(0x16, 0x22, 0x40));
        QPainterPath sail(QPointF(x + 0.002f, y - 0.085f));
        sail.quadTo(QPointF(x + 0.040f, y - 0.045f), QPointF(x + 0.030f, y - 0.013f));
        sail.lineTo(QPointF(x + 0.002f, y - 0.013f));
        painter.drawPath(sail);
        painter.drawPolygon(
            QPolygonF({QPointF(x - 0.003f, y - 0.075f), QPointF(x - 0.026f, y - 0.014f),
                       QPointF(x - 0.003f, y - 0.014f)}));
    });
    picture.Bloom(0.80f, 8, 0.30f);
    picture.Vignette(0.4f);
    picture.Draw([](QPainter& painter) {
        WriteTitle(painter, QStringLiteral("月と海"), QStringLiteral("波間に　ひかりの道"), 0.19f,
                   0.10f, Hex(0xF2F5FF));
    });
    return picture.Finish();
}

}  // namespace demo
