// On a real display of full-HD size (bench/run brings one up): how long after the slide timer's
// tick the first pixel on the screen changes, seen by another client of the X server; what a wipe
// costs; and how long an effect works between two of its sleeps.
#include <xcb/xcb.h>

#include <QImage>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <mutex>
#include <thread>

#include "adapters/commands/silent_platform.h"
#include "adapters/imaging/qt_imaging.h"
#include "adapters/qt/desktop.h"
#include "app/timers.h"
#include "loop_around.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effect_plan.h"
#include "picture/effects.h"
#include "playback/control_box.h"
#include "playback/full_screen.h"
#include "playback/run.h"
#include "playback/transport.h"

namespace {

constexpr double kFrameMs = 1000.0 / 60;
constexpr double kAllowedWipeCores = 0.5;
constexpr int kTicks = 30;
constexpr double kPatienceMs = 2000;

double NowMs() {
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Watches one pixel of the screen from outside, on a connection and a thread of its own.
class PixelWatch {
public:
    PixelWatch(int x, int y) : x_(x), y_(y), thread_([this] { Run(); }) {}
    ~PixelWatch() {
        ending_ = true;
        thread_.join();
    }
    struct Change {
        double time;  // ms
        uint32_t colour;
    };
    std::vector<Change> Since(double time) {
        const std::scoped_lock lock(mutex_);
        std::vector<Change> found;
        std::copy_if(changes_.begin(), changes_.end(), std::back_inserter(found),
                     [time](const Change& change) { return change.time >= time; });
        return found;
    }

private:
    void Run() {
        xcb_connection_t* server = xcb_connect(nullptr, nullptr);
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(server)).data;
        uint32_t last = 0;
        while (!ending_) {
            const auto cookie =
                xcb_get_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, screen->root,
                              static_cast<int16_t>(x_), static_cast<int16_t>(y_), 1, 1, ~0u);
            xcb_get_image_reply_t* reply = xcb_get_image_reply(server, cookie, nullptr);
            if (!reply) {
                break;
            }
            const uint8_t* data = xcb_get_image_data(reply);
            const uint32_t colour = data[0] | data[1] << 8 | data[2] << 16;
            std::free(reply);
            if (colour != last) {
                const std::scoped_lock lock(mutex_);
                changes_.push_back({NowMs(), colour});
                last = colour;
            }
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        xcb_disconnect(server);
    }

    int x_, y_;
    std::atomic<bool> ending_ = false;
    std::mutex mutex_;
    std::vector<Change> changes_;
    std::thread thread_;
};

/// The desktop's loop, noting how long the program works between two sleeps.
class WatchedLoop : public LoopAround {
public:
    using LoopAround::LoopAround;
    std::vector<double> works;  // ms

    void Sleep(int milliseconds) override {
        works.push_back(NowMs() - woke_);
        LoopAround::Sleep(milliseconds);
        woke_ = NowMs();
    }
    void Begin() {
        works.clear();
        woke_ = NowMs();
    }

private:
    double woke_ = 0;
};

double At(std::vector<double> values, double share) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[static_cast<size_t>(share * double(values.size() - 1))];
}

/// Lets the program idle, its loop turning, until the condition holds or patience ends.
template <class Condition>
void Idle(platform::EventLoop& loop, double patience, Condition holds) {
    const double start = NowMs();
    while (NowMs() - start < patience && !holds()) {
        loop.PumpEvents();
        loop.Sleep(1);
    }
}

void FillShow(Application& app, const std::string& folder) {
    const QRgb colours[] = {qRgb(255, 0, 0), qRgb(0, 255, 0)};
    for (int i = 0; i < kTicks + 2; ++i) {
        const std::string path = folder + "/" + std::to_string(i % 2) + ".png";
        QImage image(320, 240, QImage::Format_RGB32);
        image.fill(colours[i % 2]);
        image.save(QString::fromStdString(path));
        app.windows.form3.List1.AddItem(text::FromUtf8(path));
        app.windows.form3.List2.AddItem(model::BlankScheduleRow());
        app.state.SlideList.Set(i + 1, text::FromUtf8(path));
    }
    app.state.SlideListEnd = kTicks + 3;
}

/// Ms from ticks to the first change and to the new picture on the screen.
struct Latency {
    std::vector<double> change, picture;
};

Latency MeasureTicks(Application& app, PixelWatch& watch) {
    platform::EventLoop& loop = app.platform.loop;
    app.state.ShowEffect = 11;
    app.state.EraseEffect = 12;
    app.windows.form1.Command4.Click();
    Latency latency;
    for (int i = 0; i < kTicks; ++i) {
        Idle(loop, 100, [] { return false; });
        const uint32_t wanted = i % 2 == 0 ? 0x00FF00 : 0xFF0000;
        const double tick = NowMs();
        app.windows.form1.Timer1.Tick();
        std::vector<PixelWatch::Change> seen;
        Idle(loop, kPatienceMs, [&] {
            seen = watch.Since(tick);
            return !seen.empty() && seen.back().colour == wanted;
        });
        if (!seen.empty() && seen.back().colour == wanted) {
            latency.change.push_back(seen.front().time - tick);
            latency.picture.push_back(seen.back().time - tick);
        }
    }
    return latency;
}

void MeasureWipes(Application& app, WatchedLoop& loop) {
    constexpr int kWipes = 4;
    app.windows.form1.Timer1.Enabled = false;  // the show would bring the next picture
    double worstCores = 0;
    std::vector<double> works;
    const platform::Size screen{app.windows.slidescreen.P2.ScaleWidth(),
                                app.windows.slidescreen.P2.ScaleHeight()};
    auto picture = std::make_shared<platform::Bitmap>(screen.width, screen.height);
    for (size_t i = 0; i < picture->pixels.size(); ++i) {
        picture->pixels[i] = 0xFF000000u | static_cast<uint32_t>(i * 2654435761u >> 8);
    }
    app.windows.form4.Picture1.SetPicture(picture);
    picture::CreateEffectContext(app);
    for (int number = 0; number < picture::kEffectCount; ++number) {
        app.windows.slidescreen.P2.Cls();
        app.state.ShowEffect = static_cast<int16_t>(number);
        loop.Begin();
        const std::clock_t before = std::clock();
        const double start = NowMs();
        picture::RunShowEffect(app);
        const double length = NowMs() - start;
        const double cores =
            static_cast<double>(std::clock() - before) * 1000 / CLOCKS_PER_SEC / length;
        std::printf("effect %d: %.0f ms, %.2f cores, work a frame %.1f ms, at worst %.1f\n", number,
                    length, cores, At(loop.works, 0.5), At(loop.works, 1));
        if (number < kWipes) {
            worstCores = std::max(worstCores, cores);
            works.insert(works.end(), loop.works.begin(), loop.works.end());
        }
    }
    std::printf("budget cores-of-a-wipe-on-a-display %.2f %.1f\n", worstCores, kAllowedWipeCores);
    std::printf("budget frames-of-work-in-a-frame-of-a-wipe %.3f 1\n", At(works, 0.95) / kFrameMs);
}

}  // namespace

int main(int argc, char** argv) {
    if (!std::getenv("DISPLAY")) {
        std::puts("no display");
        return 1;
    }
    qt_adapter::Desktop desktop(argc, argv, {});
    commands::SilentPlatform silent("");
    const platform::Platform rest = silent.Get();
    imaging::QtImaging imaging(rest.files);
    WatchedLoop loop(desktop.Loop());
    Application app({loop, rest.files, rest.dialogs, desktop.Monitors(), imaging,
                     desktop.TextRenderer(), rest.sound, rest.video, rest.system, rest.trace,
                     rest.codePage, rest.folders, rest.fileChanges, rest.clipboard, rest.wallpaper,
                     rest.thumbnails, rest.fileInquiry});
    app.windows.form4.Lead1.imaging = imaging.MakeControl();
    app.windows.form4.Lead2.imaging = imaging.MakeControl();
    model::SetStartDefaults(app.state);
    app.state.FullStartConfirm = 1;
    FillShow(app, argc > 1 ? argv[1] : ".");
    app::TimerRunner timers(app);
    playback::AttachTransport(app);
    playback::AttachFullScreen(app);
    playback::AttachControlBox(app);
    playback::SetButtons(app, playback::Buttons::Idle);
    desktop.MakeViews(app.windows);

    const platform::Rect monitor = desktop.Monitors().Enumerate().front();
    std::printf("display of %d x %d\n", monitor.width, monitor.height);
    {
        PixelWatch watch(monitor.x + monitor.width / 2, monitor.y + monitor.height / 2);
        const Latency latency = MeasureTicks(app, watch);
        std::printf(
            "tick to first changed pixel %.1f ms, to the picture %.1f ms (medians of %zu)\n",
            At(latency.change, 0.5), At(latency.picture, 0.5), latency.picture.size());
        const double frames = latency.picture.empty() ? kPatienceMs : At(latency.picture, 0.5);
        std::printf("budget frames-from-tick-to-picture %.3f 1\n", frames / kFrameMs);
    }
    MeasureWipes(app, loop);
    desktop.UnmakeViews();
    return 0;
}
