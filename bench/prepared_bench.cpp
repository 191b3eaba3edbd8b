// One slide step in full HD without an effect, a JPEG of 24 megapixels: milliseconds until the
// picture is painted, with the picture decoded ahead and without.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "adapters/commands/silent_platform.h"
#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/posix_files.h"
#include "adapters/qt/desktop.h"
#include "model/application.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "photograph.h"
#include "picture/screen.h"
#include "playback/slide_step.h"

namespace {

constexpr int kRounds = 21;
constexpr double kDisplayFrameMs = 16;
constexpr int16_t kNoShowEffect = 11, kNoEraseEffect = 12;

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
}

/// A show of two slides stands in full screen, as if it ran.
void SetUpShow(Application& app, const std::vector<Text>& paths) {
    model::ShowState& state = app.state;
    for (model::LeadControl* lead : {&app.windows.form4.Lead1, &app.windows.form4.Lead2}) {
        lead->imaging = app.platform.imaging.MakeControl();
    }
    model::SetStartDefaults(state);
    state.SizeAdjust = 0;
    state.TextMacroFlag = 0;  // the canvas is copied for the macros
    state.ShowEffect = kNoShowEffect;
    state.EraseEffect = kNoEraseEffect;
    for (const Text& path : paths) {
        app.windows.form3.List1.AddItem(path);
        app.windows.form3.List2.AddItem(model::BlankScheduleRow());
        state.SlideListEnd = static_cast<int16_t>(app.windows.form3.List1.ListCount() + 1);
        state.SlideList.Set(state.SlideListEnd - 1, path);
    }
    state.FullScreenActive = 1;
    state.ShowRunning = 1;
    app.windows.slidescreen.Width = 1920 * platform::kTwipsPerPixel;
    app.windows.slidescreen.Height = 1080 * platform::kTwipsPerPixel;
    picture::SizeLayers(app);
    picture::SizePreview(app);
    app.windows.form1.Command1.Enabled = false;
}

/// Median over the rounds.
double Measure(qt_adapter::Desktop& desktop, platform::Files& files, bool prepares,
               const std::vector<Text>& paths) {
    commands::SilentPlatform silent("");
    const platform::Platform rest = silent.Get();
    imaging::QtImaging imaging(files, prepares);
    Application app({desktop.Loop(), files, rest.dialogs, desktop.Monitors(), imaging,
                     desktop.TextRenderer(), rest.sound, rest.video, rest.system, rest.trace,
                     rest.codePage, rest.folders, rest.fileChanges, rest.clipboard, rest.wallpaper,
                     rest.thumbnails, rest.fileInquiry});
    SetUpShow(app, paths);
    desktop.MakeViews(app.windows);
    app.windows.slidescreen.Show();
    desktop.Loop().PumpEvents();
    std::vector<double> steps;
    for (int round = 0; round < kRounds; ++round) {
        imaging.Prepared().Finish();
        app.state.SlideIndex = static_cast<int16_t>(round % 2 + 1);
        steps.push_back(Milliseconds([&] {
            playback::RunSlideStep(app);
            // The changed canvas asks for the repaint, which the next turn does.
            desktop.Loop().PumpEvents();
            desktop.Loop().PumpEvents();
        }));
        if (app.windows.form4.Picture1.ScaleWidth() != 1620) {
            std::fprintf(stderr, "the picture did not come up\n");
            std::exit(1);
        }
    }
    desktop.UnmakeViews();
    return Median(steps);
}

}  // namespace

int main(int argc, char** argv) {
    qt_adapter::Desktop desktop(argc, argv, {true, {{0, 0, 1920, 1080}}});
    const std::filesystem::path scratch = std::filesystem::absolute(
        argc > 1 ? std::filesystem::path(argv[1]) : std::filesystem::temp_directory_path());
    const std::string first = (scratch / "ahead1.jpg").string();
    const std::string second = (scratch / "ahead2.jpg").string();
    if (!MakePhotograph().save(QString::fromStdString(first), "jpg", 90)) {
        std::fprintf(stderr, "the picture cannot be written\n");
        return 1;
    }
    std::filesystem::copy_file(first, second, std::filesystem::copy_options::overwrite_existing);
    posix_adapter::PosixFiles files(scratch.string());
    const std::vector<Text> paths{text::FromUtf8(first), text::FromUtf8(second)};
    const double without = Measure(desktop, files, false, paths);
    const double with = Measure(desktop, files, true, paths);
    std::filesystem::remove(first);
    std::filesystem::remove(second);
    std::printf("slide step: %.1f ms, with the picture decoded ahead %.1f ms\n", without, with);
    std::printf("budget prepared-step-ms %.2f %.0f\n", with, kDisplayFrameMs);
    return 0;
}
