// A small paint box: pictures in floating point, noise, soft light, and what QPainter adds to them.
//
// Lengths in scenes are parts of the picture's height, so x runs from 0 to kAspect and y from 0
// (top) to 1. Colours run from 0 to 1 and may rise above it until the picture is finished.
#pragma once

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

namespace demo {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr float kAspect = static_cast<float>(kWidth) / static_cast<float>(kHeight);
constexpr float kPi = 3.14159265f;

struct Rgb {
    float r = 0, g = 0, b = 0;
};
constexpr Rgb operator+(Rgb a, Rgb b) {
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
constexpr Rgb operator*(Rgb a, float k) {
    return {a.r * k, a.g * k, a.b * k};
}
constexpr Rgb operator*(Rgb a, Rgb b) {
    return {a.r * b.r, a.g * b.g, a.b * b.b};
}

constexpr Rgb Hex(uint32_t rrggbb) {
    return {static_cast<float>(rrggbb >> 16 & 255) / 255,
            static_cast<float>(rrggbb >> 8 & 255) / 255, static_cast<float>(rrggbb & 255) / 255};
}
QColor ToColor(Rgb colour, float alpha = 1);

inline float Clamp(float value) {
    return std::clamp(value, 0.0f, 1.0f);
}
constexpr float Mix(float a, float b, float t) {
    return a + (b - a) * t;
}
constexpr Rgb Mix(Rgb a, Rgb b, float t) {
    return a * (1 - t) + b * t;
}
inline float Smooth(float from, float to, float value) {
    const float t = Clamp((value - from) / (to - from));
    return t * t * (3 - 2 * t);
}
inline float Bell(float distance, float width) {
    return std::exp(-distance * distance / (width * width));
}

struct Stop {
    float at;
    Rgb colour;
};
/// Colour between the two stops around `at`; the stops are in rising order.
Rgb Ramp(const std::vector<Stop>& stops, float at);

/// Gradient noise, about -1..1.
float Noise(float x, float y, uint32_t seed = 0);
/// Sum of octaves of noise, about -1..1.
float Fbm(float x, float y, int octaves, uint32_t seed = 0);
/// Sharp crests: 0..1, near 1 along lines.
float Ridge(float x, float y, int octaves, uint32_t seed = 0);

/// The same numbers on every machine, so that the pictures are the same, too.
class Random {
public:
    explicit Random(uint32_t seed) : state_(seed * 2654435761u + 1) {}
    float Unit();  // 0..1
    float Range(float from, float to) { return from + (to - from) * Unit(); }
    float Normal();  // mean 0, deviation 1
    bool Chance(float likelihood) { return Unit() < likelihood; }

private:
    uint32_t state_;
};

class Picture {
public:
    Picture(int width = kWidth, int height = kHeight)
        : width_(width), height_(height), pixels_(static_cast<size_t>(width) * height) {}
    explicit Picture(const QImage& image);

    int Width() const { return width_; }
    int Height() const { return height_; }
    Rgb& At(int x, int y) { return pixels_[static_cast<size_t>(y) * width_ + x]; }
    const Rgb& At(int x, int y) const { return pixels_[static_cast<size_t>(y) * width_ + x]; }
    /// Between pixels, in parts of the height; the edge goes on outside.
    Rgb Sample(float x, float y) const;

    /// Calls `paint` with place and colour of every pixel; on all processors at once.
    void Each(const std::function<void(float x, float y, Rgb& colour)>& paint);

    /// Soft copy; the radius in pixels may differ by direction.
    Picture Blurred(float radiusX, float radiusY) const;
    /// Lets what is brighter than `threshold` shine over its surroundings.
    void Bloom(float threshold, float radius, float strength);
    /// Darkens towards the corners.
    void Vignette(float strength);

    /// Puts a painted layer on top: `draw` gets a painter in parts of the height. The layer is
    /// blurred by `blur` pixels first. With `light` the layer is added like light.
    void Draw(const std::function<void(QPainter&)>& draw, float blur = 0, bool light = false);

    /// Mirrors what stands above `level` into the water below it, with waves of the given strength.
    /// `squeeze` above 1 lets less water show more of the sky.
    void Reflect(float level, float waves, Rgb tint, float tintStrength, uint32_t seed,
                 float squeeze = 0.96f);

    /// Eight bits a channel, with a trace of grain against bands.
    QImage Finish() const;

private:
    int width_, height_;
    std::vector<Rgb> pixels_;
};

/// Title in upright columns of type, with a red seal under it. (x, y) is the top right of the
/// first column; `size` the height of a character. Parts of the height.
void WriteTitle(QPainter& painter, const QString& title, const QString& line, float x, float y,
                Rgb colour, float size = 0.062f);

/// Round, soft light.
void Glow(QPainter& painter, float x, float y, float radius, Rgb colour, float alpha);

/// Fir tree standing on (x, y), drawn in one colour; snow on its boughs where `snow` is visible.
void Fir(QPainter& painter, Random& random, float x, float y, float height, QColor colour,
         QColor snow = Qt::transparent);

}  // namespace demo
