#include "paint.h"

#include <QFont>
#include <QPainterPath>
#include <thread>

namespace demo {
namespace {

uint32_t Hash(int x, int y, uint32_t seed) {
    uint32_t h = static_cast<uint32_t>(x) * 374761393u + static_cast<uint32_t>(y) * 668265263u +
                 seed * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    h = (h ^ (h >> 16)) * 2246822519u;
    return h ^ (h >> 15);
}

float Slope(int x, int y, float dx, float dy, uint32_t seed) {
    const uint32_t h = Hash(x, y, seed);
    // Eight directions are enough: the eye sees no grid under several octaves.
    static constexpr float kX[] = {1, 0.7071f, 0, -0.7071f, -1, -0.7071f, 0, 0.7071f};
    static constexpr float kY[] = {0, 0.7071f, 1, 0.7071f, 0, -0.7071f, -1, -0.7071f};
    return kX[h & 7] * dx + kY[h & 7] * dy;
}

/// Running mean over 2 × radius + 1 values in place; three of them come close to a bell.
void BoxBlur(std::vector<Rgb>& line, std::vector<Rgb>& scratch, int radius) {
    const int count = static_cast<int>(line.size());
    const float share = 1.0f / static_cast<float>(2 * radius + 1);
    auto at = [&](int i) { return line[static_cast<size_t>(std::clamp(i, 0, count - 1))]; };
    Rgb sum;
    for (int i = -radius; i <= radius; ++i) {
        sum = sum + at(i);
    }
    for (int i = 0; i < count; ++i) {
        scratch[static_cast<size_t>(i)] = sum * share;
        sum = sum + at(i + radius + 1) + at(i - radius) * -1.0f;
    }
    line.swap(scratch);
}

void InBands(int count, const std::function<void(int from, int to)>& work) {
    const int bands = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    std::vector<std::thread> threads;
    for (int i = 0; i < bands; ++i) {
        threads.emplace_back(work, count * i / bands, count * (i + 1) / bands);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

QImage Layer() {
    QImage layer(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    return layer;
}

}  // namespace

QColor ToColor(Rgb colour, float alpha) {
    return QColor::fromRgbF(Clamp(colour.r), Clamp(colour.g), Clamp(colour.b), Clamp(alpha));
}

Rgb Ramp(const std::vector<Stop>& stops, float at) {
    if (at <= stops.front().at) return stops.front().colour;
    for (size_t i = 1; i < stops.size(); ++i) {
        if (at <= stops[i].at) {
            return Mix(stops[i - 1].colour, stops[i].colour,
                       Smooth(stops[i - 1].at, stops[i].at, at));
        }
    }
    return stops.back().colour;
}

float Noise(float x, float y, uint32_t seed) {
    const float fx = std::floor(x), fy = std::floor(y);
    const int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
    const float dx = x - fx, dy = y - fy;
    auto fade = [](float t) { return t * t * t * (t * (t * 6 - 15) + 10); };
    const float u = fade(dx), v = fade(dy);
    const float top = Mix(Slope(ix, iy, dx, dy, seed), Slope(ix + 1, iy, dx - 1, dy, seed), u);
    const float bottom =
        Mix(Slope(ix, iy + 1, dx, dy - 1, seed), Slope(ix + 1, iy + 1, dx - 1, dy - 1, seed), u);
    return Mix(top, bottom, v) * 1.5f;
}

float Fbm(float x, float y, int octaves, uint32_t seed) {
    float sum = 0, weight = 0.5f;
    for (int i = 0; i < octaves; ++i) {
        sum += Noise(x, y, seed + static_cast<uint32_t>(i)) * weight;
        // Turned a little from octave to octave, so that no direction stands out.
        const float turned = x * 1.6f + y * 1.2f;
        y = y * 1.6f - x * 1.2f;
        x = turned;
        weight *= 0.5f;
    }
    return sum;
}

float Ridge(float x, float y, int octaves, uint32_t seed) {
    float sum = 0, weight = 0.5f, total = 0;
    for (int i = 0; i < octaves; ++i) {
        const float crest = 1 - std::fabs(Noise(x, y, seed + static_cast<uint32_t>(i)));
        sum += crest * crest * weight;
        total += weight;
        const float turned = x * 1.6f + y * 1.2f;
        y = y * 1.6f - x * 1.2f;
        x = turned;
        weight *= 0.5f;
    }
    return sum / total;
}

float Random::Unit() {
    state_ = state_ * 1664525u + 1013904223u;
    uint32_t h = state_;
    h = (h ^ (h >> 15)) * 2246822519u;
    h ^= h >> 13;
    return static_cast<float>(h >> 8) / 16777216.0f;
}

float Random::Normal() {
    return (Unit() + Unit() + Unit() + Unit() - 2) * 1.732f;
}

Picture::Picture(const QImage& image) : Picture(image.width(), image.height()) {
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < height_; ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < width_; ++x) {
            At(x, y) = Hex(row[x] & 0xFFFFFF);
        }
    }
}

Rgb Picture::Sample(float x, float y) const {
    const float px = std::clamp(x * kHeight, 0.0f, static_cast<float>(width_ - 1));
    const float py = std::clamp(y * kHeight, 0.0f, static_cast<float>(height_ - 1));
    const int ix = std::min(static_cast<int>(px), width_ - 2);
    const int iy = std::min(static_cast<int>(py), height_ - 2);
    const float dx = px - static_cast<float>(ix), dy = py - static_cast<float>(iy);
    return Mix(Mix(At(ix, iy), At(ix + 1, iy), dx), Mix(At(ix, iy + 1), At(ix + 1, iy + 1), dx),
               dy);
}

void Picture::Each(const std::function<void(float x, float y, Rgb& colour)>& paint) {
    InBands(height_, [&](int from, int to) {
        for (int y = from; y < to; ++y) {
            for (int x = 0; x < width_; ++x) {
                paint(static_cast<float>(x) / kHeight, static_cast<float>(y) / kHeight, At(x, y));
            }
        }
    });
}

Picture Picture::Blurred(float radiusX, float radiusY) const {
    Picture result = *this;
    const int boxX = static_cast<int>(std::lround(radiusX)),
              boxY = static_cast<int>(std::lround(radiusY));
    if (boxX > 0) {
        InBands(height_, [&](int from, int to) {
            std::vector<Rgb> line(static_cast<size_t>(width_)), scratch(line.size());
            for (int y = from; y < to; ++y) {
                std::copy_n(&result.At(0, y), width_, line.begin());
                for (int pass = 0; pass < 3; ++pass) {
                    BoxBlur(line, scratch, boxX);
                }
                std::copy_n(line.begin(), width_, &result.At(0, y));
            }
        });
    }
    if (boxY > 0) {
        InBands(width_, [&](int from, int to) {
            std::vector<Rgb> line(static_cast<size_t>(height_)), scratch(line.size());
            for (int x = from; x < to; ++x) {
                for (int y = 0; y < height_; ++y) {
                    line[static_cast<size_t>(y)] = result.At(x, y);
                }
                for (int pass = 0; pass < 3; ++pass) {
                    BoxBlur(line, scratch, boxY);
                }
                for (int y = 0; y < height_; ++y) {
                    result.At(x, y) = line[static_cast<size_t>(y)];
                }
            }
        });
    }
    return result;
}

void Picture::Bloom(float threshold, float radius, float strength) {
    Picture bright = *this;
    for (Rgb& p : bright.pixels_) {
        const float light = std::max({p.r, p.g, p.b});
        p = p * (std::max(0.0f, light - threshold) / std::max(light, 0.001f));
    }
    const Picture near = bright.Blurred(radius, radius);
    const Picture far = near.Blurred(radius * 3, radius * 3);
    for (size_t i = 0; i < pixels_.size(); ++i) {
        pixels_[i] = pixels_[i] + near.pixels_[i] * strength + far.pixels_[i] * (strength * 0.8f);
    }
}

void Picture::Vignette(float strength) {
    Each([&](float x, float y, Rgb& p) {
        const float dx = x / kAspect - 0.5f, dy = y - 0.5f;
        p = p * (1 - strength * Smooth(0.25f, 0.8f, std::sqrt(dx * dx + dy * dy)));
    });
}

void Picture::Draw(const std::function<void(QPainter&)>& draw, float blur, bool light) {
    QImage layer = Layer();
    {
        QPainter painter(&layer);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(kHeight, kHeight);
        painter.setPen(Qt::NoPen);
        draw(painter);
    }
    Picture colour(width_, height_), cover(width_, height_);
    InBands(height_, [&](int from, int to) {
        for (int y = from; y < to; ++y) {
            const QRgb* row = reinterpret_cast<const QRgb*>(layer.constScanLine(y));
            for (int x = 0; x < width_; ++x) {
                colour.At(x, y) = Hex(row[x] & 0xFFFFFF);
                const float alpha = static_cast<float>(qAlpha(row[x])) / 255;
                cover.At(x, y) = {alpha, alpha, alpha};
            }
        }
    });
    if (blur > 0) {
        colour = colour.Blurred(blur, blur);
        cover = cover.Blurred(blur, blur);
    }
    for (size_t i = 0; i < pixels_.size(); ++i) {
        const float keep = light ? 1 : 1 - cover.pixels_[i].r;
        pixels_[i] = pixels_[i] * keep + colour.pixels_[i];
    }
}

void Picture::Reflect(float level, float waves, Rgb tint, float tintStrength, uint32_t seed,
                      float squeeze) {
    // Still water also smears what it mirrors upwards and downwards.
    const Picture above = Blurred(1, 3 * squeeze);
    Each([&](float x, float y, Rgb& p) {
        if (y < level) return;
        const float depth = y - level;
        // Waves look smaller the nearer they are to the far shore.
        const float far = 0.02f + depth;
        const float wave = Fbm(x * 3 / far * 0.4f, 1.6f / far * 3, 3, seed);
        const float ripple = Noise(x * 14, depth * 260 / (0.3f + depth * 2), seed + 9);
        const float sway = (wave * 0.03f + ripple * 0.006f) * waves * (0.15f + depth * 2.2f);
        const Rgb mirrored = above.Sample(x + sway, level - depth * squeeze + sway * 0.6f - 0.002f);
        const float shade = tintStrength * (0.45f + 0.55f * Smooth(0, 0.35f, depth));
        p = Mix(mirrored, tint, Clamp(shade + wave * 0.05f * waves));
    });
}

QImage Picture::Finish() const {
    QImage image(width_, height_, QImage::Format_RGB32);
    // Highlights bend over softly rather than clip.
    auto level = [](float value, float grain) {
        const float bent = value < 0.8f ? value : 1 - 0.2f * std::exp(-(value - 0.8f) / 0.2f);
        return std::clamp(static_cast<int>(std::max(0.0f, bent) * 255 + 0.5f + grain), 0, 255);
    };
    for (int y = 0; y < height_; ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width_; ++x) {
            const Rgb& p = At(x, y);
            const float grain = static_cast<float>(Hash(x, y, 77) & 255) / 128 - 1;
            row[x] = qRgb(level(p.r, grain), level(p.g, grain), level(p.b, grain));
        }
    }
    return image;
}

void Glow(QPainter& painter, float x, float y, float radius, Rgb colour, float alpha) {
    QRadialGradient gradient(QPointF(x, y), radius);
    for (int i = 0; i <= 8; ++i) {
        const float at = static_cast<float>(i) / 8;
        const float fall = (1 - at) * (1 - at);
        gradient.setColorAt(at, ToColor(colour, alpha * fall));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawEllipse(QPointF(x, y), radius, radius);
}

void Fir(QPainter& painter, Random& random, float x, float y, float height, QColor colour,
         QColor snow) {
    const int tiers = 7 + static_cast<int>(random.Unit() * 3);
    QPainterPath tree, white;
    tree.addRect(QRectF(x - height * 0.012f, y - height * 0.15f, height * 0.024f, height * 0.16f));
    for (int i = 0; i < tiers; ++i) {
        const float part = static_cast<float>(i) / static_cast<float>(tiers);
        const float top = y - height * (1 - part * 0.88f);
        const float foot = top + height * (0.17f + 0.05f * part);
        const float left = height * (0.03f + 0.19f * part) * random.Range(0.8f, 1.15f);
        const float right = height * (0.03f + 0.19f * part) * random.Range(0.8f, 1.15f);
        QPainterPath tier(QPointF(x, top));
        tier.quadTo(QPointF(x + right * 0.3f, foot - height * 0.05f), QPointF(x + right, foot));
        tier.quadTo(QPointF(x, foot - height * 0.035f), QPointF(x - left, foot));
        tier.quadTo(QPointF(x - left * 0.3f, foot - height * 0.05f), QPointF(x, top));
        tree = tree.united(tier);
        QPainterPath cap(QPointF(x, top));
        cap.quadTo(QPointF(x + right * 0.3f, foot - height * 0.05f), QPointF(x + right, foot));
        cap.quadTo(QPointF(x + right * 0.4f, foot - height * 0.055f),
                   QPointF(x, foot - height * 0.06f));
        cap.quadTo(QPointF(x - left * 0.4f, foot - height * 0.055f), QPointF(x - left, foot));
        cap.quadTo(QPointF(x - left * 0.3f, foot - height * 0.05f), QPointF(x, top));
        white.addPath(cap);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(tree);
    if (snow.alpha() > 0) {
        painter.setBrush(snow);
        painter.drawPath(white);
    }
}

void WriteTitle(QPainter& painter, const QString& title, const QString& line, float x, float y,
                Rgb colour, float size) {
    // Type is laid out in a system of its own: font sizes below one unit do not work.
    constexpr float kUnit = 1.0f / kHeight;
    painter.save();
    painter.scale(kUnit, kUnit);
    const QColor ink = ToColor(colour, 0.96f);
    auto column = [&](const QString& text, float right, float top, float em, float step) {
        QFont font(QStringLiteral("IPAMincho"));
        font.setStyleHint(QFont::Serif);
        font.setPixelSize(static_cast<int>(em));
        painter.setFont(font);
        painter.setPen(ink);
        float down = top;
        for (const QChar& character : text) {
            painter.drawText(QRectF(right - em, down, em, em), Qt::AlignCenter, QString(character));
            down += em * step;
        }
        return down;
    };
    const float em = size * kHeight;
    const float foot = column(title, x * kHeight, y * kHeight, em, 1.16f);
    column(line, x * kHeight - em * 1.3f, y * kHeight + em * 0.55f, em * 0.36f, 1.32f);

    const float side = em * 0.52f;
    const QRectF seal(x * kHeight - em * 0.5f - side / 2, foot + em * 0.18f, side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xB8, 0x2A, 0x22, 235));
    painter.drawRoundedRect(seal, side * 0.1f, side * 0.1f);
    QFont font(QStringLiteral("IPAMincho"));
    font.setPixelSize(static_cast<int>(side * 0.72f));
    painter.setFont(font);
    painter.setPen(QColor(0xFF, 0xF6, 0xEC));
    painter.drawText(seal, Qt::AlignCenter, QStringLiteral("絵"));
    painter.restore();
}

}  // namespace demo
