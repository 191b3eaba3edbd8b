// A picture for the benches: 24 megapixels, unless said.
#pragma once

#include <QImage>
#include <algorithm>
#include <cmath>
#include <vector>

constexpr int kPhotographWidth = 6000, kPhotographHeight = 4000;

/// Something like a photograph: soft shapes with grain.
inline QImage MakePhotograph(int width = kPhotographWidth, int height = kPhotographHeight) {
    QImage image(width, height, QImage::Format_RGB32);
    std::vector<int> waveX(static_cast<size_t>(width)), waveY(static_cast<size_t>(height));
    for (int x = 0; x < width; ++x) {
        waveX[static_cast<size_t>(x)] = static_cast<int>(60 * std::sin(x / 217.0));
    }
    for (int y = 0; y < height; ++y) {
        waveY[static_cast<size_t>(y)] = static_cast<int>(60 * std::cos(y / 131.0));
    }
    unsigned seed = 1;
    for (int y = 0; y < height; ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            seed = seed * 1664525u + 1013904223u;
            const int grain = static_cast<int>(seed >> 28);
            const int base = waveX[static_cast<size_t>(x)] + waveY[static_cast<size_t>(y)] + 120;
            row[x] = qRgb(std::clamp(base + grain, 0, 255), std::clamp(base / 2 + 60, 0, 255),
                          std::clamp(220 - base + grain, 0, 255));
        }
    }
    return image;
}
