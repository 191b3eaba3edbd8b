// The same person at the same show, once on the virtual clock and once on the desktop's loop, some
// ten times as fast: what happens, and in which order, is the same.
#include <gtest/gtest.h>

#include <sstream>

#include "adapters/qt/desktop.h"
#include "adapters/virtual/virtual_loop.h"
#include "app/timers.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "playback/run.h"
#include "playback/transport.h"
#include "support/fake_platform.h"

namespace {

constexpr int kSlides = 6;
constexpr int kSkippedSlide = 4;

/// Another loop, whose clock goes on by a step with each tick of a timer of it. So time passes as
/// fast as that loop is served, and a machine that stands still stops the clock, too.
class SteppedLoop : public platform::EventLoop {
public:
    explicit SteppedLoop(platform::EventLoop& inner) : inner_(inner) {
        inner_.SetTimer(&now_, 1, [this] { now_ += kStepMs; });
    }
    ~SteppedLoop() override { inner_.CancelTimer(&now_); }
    void PumpEvents() override { inner_.PumpEvents(); }
    void Sleep(int milliseconds) override {
        inner_.Sleep(1);
        now_ += milliseconds;
    }
    double Timer() override { return inner_.Timer(); }
    platform::DateTime Now() override { return platform::FromCalendar({2026, 1, 1, 12, 0, 0}); }
    double Milliseconds() override { return now_; }
    double Rnd() override { return 0; }
    void SetTimer(const void* key, int milliseconds, std::function<void()> tick) override {
        inner_.SetTimer(key, 1, [this, due = now_ + milliseconds, milliseconds, tick]() mutable {
            if (now_ >= due) {
                due = now_ + milliseconds;
                tick();
            }
        });
    }
    void CancelTimer(const void* key) override { inner_.CancelTimer(key); }
    void RunUntil(const std::function<bool()>& done) override { inner_.RunUntil(done); }

private:
    static constexpr int kStepMs = 10;
    platform::EventLoop& inner_;
    int now_ = 0;
};

/// Handlers pressed at their times, in milliseconds of the show's clock.
struct Press {
    int at;
    void (*handler)(Application&);
};
// Three seconds a slide. Every press lies 1.4 s from the ticks around it.
constexpr Press kPresses[] = {
    {100, playback::Command1_Click},    // slide 1, at 3100 slide 2
    {4500, playback::Command2_Click},   // held on slide 2
    {4700, playback::Command5_Click},   // back to 1
    {4900, playback::Command7_Click},   // on to 2
    {5100, playback::Command1_Click},   // slide 3 at once; at 8100 slide 4 is passed over for 5
    {9500, playback::Command2_Click},   // held on slide 5
    {9700, playback::Command5_Click},   // back over 4 to 3
    {9900, playback::Command1_Click},   // passes over 4; slide 5 follows; at 12900 slide 6
    {14400, playback::Command3_Click},  // the end
};
constexpr int kEnd = 14600;

/// What was traced and where every press left the show.
std::string Play(platform::EventLoop& loop) {
    fakes::FakePlatform fake;
    Application app({loop, fake.files, fake.dialogs, fake.monitors, fake.imaging, fake.textRenderer,
                     fake.sound, fake.video, fake.system, fake.trace, fake.codePage, fake.folders,
                     fake.fileChanges, fake.clipboard, fake.wallpaper, fake.thumbnails,
                     fake.fileInquiry});
    model::SetStartDefaults(app.state);
    app.windows.form4.Lead1.imaging = fake.imaging.MakeControl();
    app.windows.form4.Lead2.imaging = fake.imaging.MakeControl();
    for (int i = 1; i <= kSlides; ++i) {
        const Text path = u"C:\\show\\" + text::FromUtf8(std::to_string(i)) + u".png";
        fake.PutPicture(path, 320, 240);
        app.windows.form3.List1.AddItem(path);
        app.windows.form3.List2.AddItem(model::BlankScheduleRow());
        app.state.SlideList.Set(i, path);
    }
    app.state.ScheduleFrom.Set(kSkippedSlide, u"2030/01/01 00:00");
    app.state.SlideListEnd = kSlides + 1;
    app::TimerRunner timers(app);
    playback::AttachTransport(app);
    playback::SetButtons(app, playback::Buttons::Idle);

    std::ostringstream story;
    size_t told = 0;
    const auto tell = [&] {
        for (; told < fake.trace.lines.size(); ++told) {
            const auto& line = fake.trace.lines[told];
            story << line.event << ' ' << line.Number("SlideIndex") << '\n';
        }
    };
    bool done = false;
    for (const Press& press : kPresses) {
        loop.SetTimer(&press, press.at, [&] {
            loop.CancelTimer(&press);
            tell();
            press.handler(app);
            tell();
            story << "at " << app.state.SlideIndex << (app.state.ShowRunning ? " running" : "")
                  << (app.windows.form1.Command5.Enabled ? " back" : "")
                  << (app.windows.form1.Command7.Enabled ? " on" : "") << '\n';
        });
    }
    loop.SetTimer(&done, kEnd, [&] { done = true; });
    loop.RunUntil([&] { return done; });
    loop.CancelTimer(&done);
    return story.str();
}

constexpr const char* kStory =
    "slide 1\nat 2 running\n"
    "slide 2\nat 2 back on\n"
    "slide 1\nat 1 on\n"
    "slide 2\nat 2 back on\n"
    "slide 3\nat 4 running\n"
    "skip 4\nslide 5\nat 5 back on\n"
    "skip 4\nslide 3\nat 3 back on\n"
    "skip 4\nat 5 running\n"
    "slide 5\nslide 6\nat 0\n";

TEST(LoopsAgree, OnTheVirtualClock) {
    virtual_adapter::VirtualLoop loop(platform::FromCalendar({2026, 1, 1, 12, 0, 0}));
    EXPECT_EQ(Play(loop), kStory);
}

TEST(LoopsAgree, OnTheDesktopsLoop) {
    int argc = 0;
    qt_adapter::Desktop desktop(argc, nullptr, {true, {}});
    SteppedLoop loop(desktop.Loop());
    EXPECT_EQ(Play(loop), kStory);
}

}  // namespace
