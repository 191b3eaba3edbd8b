// Effects on the desktop's loop, with a view that repaints: the real over the nominal length of
// each, which must not be off by more than 2 %, and the share of a core it takes.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <vector>

#include "adapters/commands/silent_platform.h"
#include "adapters/qt/desktop.h"
#include "loop_around.h"
#include "model/application.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effect_plan.h"
#include "picture/effects.h"
#include "picture/screen.h"

namespace {

constexpr platform::Size kFullHd{1920, 1080};
constexpr platform::Rect kWholeScreen{0, 0, kFullHd.width, kFullHd.height};
constexpr double kAllowedLengthRatio = 1.02;
constexpr double kAllowedWipeCores = 0.5;

/// Keeps the length of the last effect.
class LengthTrace : public platform::Trace {
public:
    double milliseconds = 0;
    void Event(std::string_view event,
               std::initializer_list<platform::TraceField> fields) override {
        for (const platform::TraceField& field : fields) {
            if (event == "effect" && field.name == "ms") {
                milliseconds = std::get<double>(field.value);
            }
        }
    }
};

/// Keeps the random numbers that an effect drew: bands off the canvas cost no time, so its nominal
/// length depends on them.
class DrawnNumbers : public LoopAround {
public:
    using LoopAround::LoopAround;
    std::vector<double> drawn;

    double Rnd() override { return drawn.emplace_back(LoopAround::Rnd()); }
};

double ProcessorMilliseconds() {
    return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

std::shared_ptr<platform::Bitmap> TestPicture() {
    auto bitmap = std::make_shared<platform::Bitmap>(kFullHd.width, kFullHd.height);
    for (size_t i = 0; i < bitmap->pixels.size(); ++i) {
        bitmap->pixels[i] = 0xFF000000u | static_cast<uint32_t>(i * 2654435761u >> 8);
    }
    return bitmap;
}

/// Processor share of one run, its length into `trace`.
double CoresOf(Application& app, int number, const LengthTrace& trace) {
    app.windows.slidescreen.P2.Cls();
    app.state.ShowEffect = static_cast<int16_t>(number);
    const double before = ProcessorMilliseconds();
    picture::RunShowEffect(app);
    return (ProcessorMilliseconds() - before) / trace.milliseconds;
}

}  // namespace

int main(int argc, char** argv) {
    qt_adapter::Desktop desktop(argc, argv, {true, {{0, 0, kFullHd.width, kFullHd.height}}});
    LengthTrace trace;
    commands::SilentPlatform silent("");
    const platform::Platform rest = silent.Get();
    DrawnNumbers loop(desktop.Loop());
    Application app({loop, rest.files, rest.dialogs, desktop.Monitors(), rest.imaging,
                     desktop.TextRenderer(), rest.sound, rest.video, rest.system, trace,
                     rest.codePage, rest.folders, rest.fileChanges, rest.clipboard, rest.wallpaper,
                     rest.thumbnails, rest.fileInquiry});
    model::SetStartDefaults(app.state);
    app.state.EffectSpeedFactor = 2;
    app.state.FullScreenActive = 1;
    app.windows.slidescreen.Width = kFullHd.width * platform::kTwipsPerPixel;
    app.windows.slidescreen.Height = kFullHd.height * platform::kTwipsPerPixel;
    picture::SizeLayers(app);
    app.windows.form4.Picture1.SetPicture(TestPicture());
    picture::CreateEffectContext(app);
    desktop.MakeViews(app.windows);
    app.windows.slidescreen.Show();
    desktop.Loop().PumpEvents();

    double worstLength = 1;
    double worstWipe = 0;
    for (int number = 0; number < picture::kEffectCount; ++number) {
        loop.drawn.clear();
        const double cores = CoresOf(app, number, trace);
        size_t next = 0;
        const double nominal =
            picture::PlanEffect(number, {}, false, kFullHd, kWholeScreen, [&loop, &next] {
                return loop.drawn.at(next++);
            }).Length();
        const double ratio = trace.milliseconds / nominal;
        std::printf("effect %d: %.0f ms of %.0f nominal (%.4f), %.2f cores\n", number,
                    trace.milliseconds, nominal, ratio, cores);
        worstLength = std::max({worstLength, ratio, 1 / ratio});
        if (number < 4) {
            worstWipe = std::max(worstWipe, cores);
        }
    }
    std::printf("budget effect-length-over-nominal %.4f %.2f\n", worstLength, kAllowedLengthRatio);
    std::printf("budget cores-of-a-full-hd-wipe %.2f %.1f\n", worstWipe, kAllowedWipeCores);
    desktop.UnmakeViews();
    return 0;
}
