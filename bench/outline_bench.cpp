// A text with the widest outline, 200 points on a full-HD canvas: its 484 prints one after the
// other against the same pixels the way the program draws them.
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "adapters/qt/qt_text_renderer.h"

namespace {

constexpr int kWidth = 1920, kHeight = 1080;
constexpr int kReach = 10;  // pixels to every side
constexpr int kRounds = 9, kPlainRounds = 3;
constexpr double kAllowed = 0.05;
constexpr double kAllowedMs = 100;
constexpr auto kText = u"輪郭のある文";

/// Milliseconds of one call.
template <typename Draw>
double Measure(const Draw& draw) {
    const auto start = std::chrono::steady_clock::now();
    draw();
    const std::chrono::duration<double, std::milli> passed =
        std::chrono::steady_clock::now() - start;
    return passed.count();
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    qt_adapter::QtTextRenderer renderer;
    platform::Font font;
    font.name = u"ＭＳ 明朝";
    font.sizePoints = 200;
    std::vector<platform::Offset> offsets;
    for (int dx = 0; dx <= kReach; ++dx) {
        for (int dy = 0; dy <= kReach; ++dy) {
            offsets.insert(offsets.end(), {{dx, dy}, {-dx, -dy}, {dx, -dy}, {-dx, dy}});
        }
    }
    platform::Canvas ourCanvas, plainCanvas;
    for (platform::Canvas* canvas : {&ourCanvas, &plainCanvas}) {
        canvas->Resize(kWidth, kHeight, platform::Rgb(90, 120, 90));
    }
    const auto color = platform::Rgb(20, 20, 20);
    std::vector<double> ours, plain;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(
            Measure([&] { renderer.DrawEach(ourCanvas, 20, 300, font, color, kText, offsets); }));
        if (round < kPlainRounds) {
            // Named by its class: print after print.
            plain.push_back(Measure([&] {
                renderer.TextRenderer::DrawEach(plainCanvas, 20, 300, font, color, kText, offsets);
            }));
        }
        if (round == 0 && ourCanvas.Pixels().pixels != plainCanvas.Pixels().pixels) {
            std::printf("the pixels differ\n");
            return 1;
        }
    }
    std::printf("outline of %zu prints, 200 points: %.1f ms, print after print %.1f ms\n",
                offsets.size(), Median(ours), Median(plain));
    std::printf("budget outline-against-plain-prints %.4f %.2f\n", Median(ours) / Median(plain),
                kAllowed);
    std::printf("budget outline-200-points-ms %.1f %.0f\n", Median(ours), kAllowedMs);
    return 0;
}
