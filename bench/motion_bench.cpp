// A polygon of 400 × 400 pixels crosses a full-HD screen: the time of a step against plain copies
// of the same pixels. Once with the logic alone, once with a view that repaints every step.
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "adapters/commands/silent_platform.h"
#include "adapters/qt/desktop.h"
#include "macro/cutouts.h"
#include "macro/motion.h"
#include "model/application.h"
#include "model/picture_controls.h"
#include "model/windows/slide_screen.h"
#include "picture/screen.h"

namespace {

constexpr platform::Size kFullHd{1920, 1080};
constexpr int kSide = 400;
constexpr int kSteps = 600;
// A step copies the box once; the rest is arithmetic and events.
constexpr double kAllowedLogic = 1.5;
// With a view the old and the new place are painted through the shape, too. Motion is smooth while
// a step takes less than its usual wait of 1 ms, about 45 copies.
constexpr double kAllowedView = 30;

double Seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::shared_ptr<platform::Bitmap> Speckled(const platform::Size& size) {
    auto bitmap = std::make_shared<platform::Bitmap>(size.width, size.height);
    for (size_t i = 0; i < bitmap->pixels.size(); ++i) {
        bitmap->pixels[i] = 0xFF000000u | static_cast<uint32_t>(i * 2654435761u >> 8);
    }
    return bitmap;
}

/// 200 corners on a rounded star, from 1 to 399 so that the box counts as whole.
std::vector<platform::Point> Polygon() {
    std::vector<platform::Point> points;
    for (int i = 0; i < 200; ++i) {
        const double angle = i * 3.14159265 / 100;
        const double radius = 160 + 39 * std::cos(5 * angle);
        points.push_back({static_cast<int>(200 + radius * std::cos(angle)),
                          static_cast<int>(200 + radius * std::sin(angle))});
    }
    return points;
}

/// Seconds a step.
double Steps(Application& app) {
    macro::Run run(app);
    app.windows.slidescreen.Picture1(1).Left = 10;
    app.windows.slidescreen.Picture1(1).Top = 10;
    macro::SetLine(run, u"MOVPB1(600,600,0)");
    return Seconds([&] { macro::MoveCutout(run, 0); }) / (kSteps + 1);
}

void Prepare(Application& app) {
    model::SetStartDefaults(app.state);
    app.state.FullScreenActive = 1;
    app.state.OverPicMode = 1;
    model::Slidescreen& screen = app.windows.slidescreen;
    screen.Width = kFullHd.width * platform::kTwipsPerPixel;
    screen.Height = kFullHd.height * platform::kTwipsPerPixel;
    picture::SizeLayers(app);
    const auto photo = Speckled(kFullHd);
    screen.P2.SetPicture(photo);
    screen.P3.SetPicture(photo);
    for (auto& slot : screen.Picture1) {
        slot->Visible = false;
    }
    model::PictureBox& piece = screen.Picture1(1);
    piece.SetPicture(Speckled({kSide, kSide}));
    piece.SetWindowRgn(platform::CreatePolyPolygonRgn(Polygon(), {kSide, kSide}));
    app.state.CutoutActive[1] = 1;
    app.state.CutoutType[1] = macro::kDataFileShape;
    app.state.CutoutMinX[1] = app.state.CutoutMinY[1] = 1;
    app.state.CutoutMaxX[1] = app.state.CutoutMaxY[1] = kSide - 1;
    piece.Visible = true;
}

double PlainCopies() {
    platform::Bitmap target(kFullHd.width, kFullHd.height);
    const auto source = Speckled(kFullHd);
    return Seconds([&] {
               for (int step = 0; step < kSteps; ++step) {
                   for (int row = 0; row < kSide; ++row) {
                       std::memcpy(target.Row(step % 600 + row) + step,
                                   source->Row(step % 600 + row) + step,
                                   kSide * sizeof(platform::Pixel));
                   }
               }
           }) /
           kSteps;
}

}  // namespace

int main(int argc, char** argv) {
    qt_adapter::Desktop desktop(argc, argv, {true, {{0, 0, kFullHd.width, kFullHd.height}}});
    commands::SilentPlatform silent("");
    const platform::Platform rest = silent.Get();
    const auto make = [&](platform::EventLoop& loop) {
        auto app = std::make_unique<Application>(
            platform::Platform{loop, rest.files, rest.dialogs, desktop.Monitors(), rest.imaging,
                               desktop.TextRenderer(), rest.sound, rest.video, rest.system,
                               rest.trace, rest.codePage, rest.folders, rest.fileChanges,
                               rest.clipboard, rest.wallpaper, rest.thumbnails, rest.fileInquiry});
        Prepare(*app);
        return app;
    };
    const auto alone = make(rest.loop);  // without events
    const auto shown = make(desktop.Loop());
    desktop.MakeViews(shown->windows);
    shown->windows.slidescreen.Show();
    desktop.Loop().PumpEvents();

    double plain = 1e9, logic = 1e9, view = 1e9;
    for (int round = 0; round < 5; ++round) {
        plain = std::min(plain, PlainCopies());
        logic = std::min(logic, Steps(*alone));
        view = std::min(view, Steps(*shown));
    }
    std::printf("steps a second: %.0f plain copies, %.0f moved, %.0f moved and seen\n", 1 / plain,
                1 / logic, 1 / view);
    std::printf("budget motion-step-over-plain-copy %.2f %.1f\n", logic / plain, kAllowedLogic);
    std::printf("budget seen-motion-step-over-plain-copy %.2f %.1f\n", view / plain, kAllowedView);
    desktop.UnmakeViews();
    return 0;
}
