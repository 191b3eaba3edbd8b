// A million slide steps on the virtual clock: a show of a few slides repeats in the main window,
// every step by a tick of the slide timer. The process must not grow.
#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <memory>

#include "../tests/support/fake_platform.h"
#include "adapters/posix/iconv_code_page.h"
#include "adapters/virtual/silent_devices.h"
#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_loop.h"
#include "adapters/virtual/virtual_monitors.h"
#include "adapters/virtual/virtual_sound.h"
#include "adapters/virtual/virtual_video.h"
#include "app/timers.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "playback/run.h"
#include "playback/transport.h"

namespace {

constexpr int kSteps = 1'000'000;
constexpr int kWarmUp = 10'000;
constexpr int kSlides = 12;
constexpr double kAllowedGrowthBytes = 64 * 1024;

/// Holds a picture of 1600 × 900 and scales by handing out a new one.
class PlainControl : public virtual_adapter::BlindControl {
public:
    bool ReadInformation(TextView) override { return true; }
    bool Load(TextView, const platform::FitFunction& fit) override {
        size_ = {1600, 900};
        fit(size_);
        return true;
    }
    bool Holds() const override { return !size_.Empty(); }
    platform::Size HeldSize() const override { return size_; }
    int BitsPerPixel() const override { return 24; }
    void Resize(int width, int height, int) override { size_ = {width, height}; }
    void ResizeTo(platform::Size size, platform::Size) override { size_ = size; }
    platform::BitmapPtr Picture() override {
        return std::make_shared<platform::Bitmap>(size_.width / 8, size_.height / 8);
    }
    void CopyFrom(const platform::ImagingControl& other) override { size_ = other.HeldSize(); }
    void Clear() override { size_ = {}; }

private:
    platform::Size size_;
};

class PlainImaging : public virtual_adapter::BlindImaging {
public:
    std::unique_ptr<platform::ImagingControl> MakeControl() override {
        return std::make_unique<PlainControl>();
    }
};

/// Counts the slides that came up.
class SlideCount : public platform::Trace {
public:
    int slides = 0;
    void Event(std::string_view event, std::initializer_list<platform::TraceField>) override {
        slides += event == "slide" ? 1 : 0;
    }
};

void FillList(Application& app, fakes::FakeFiles& files) {
    for (int i = 1; i <= kSlides; ++i) {
        const Text path = u"/show/" + text::FromUtf8(std::to_string(i)) + u".jpg";
        files.Put(path, "");
        app.windows.form3.List1.AddItem(path);
        app.windows.form3.List2.AddItem(model::BlankScheduleRow());
        app.state.SlideList.Set(i, path);
    }
    app.state.SlideListEnd = kSlides + 1;
}

double HeapBytes() {
    return static_cast<double>(mallinfo2().uordblks);
}

}  // namespace

int main() {
    SlideCount trace;
    virtual_adapter::VirtualLoop loop;
    fakes::FakeFiles files;
    virtual_adapter::VirtualDialogs dialogs(trace);
    virtual_adapter::VirtualMonitors monitors;
    PlainImaging imaging;
    virtual_adapter::NoText text;
    virtual_adapter::VirtualSound sound(loop);
    virtual_adapter::VirtualVideo video(trace, loop);
    fakes::FakeSystem system;
    fakes::FakeFolders folders(files);
    fakes::FakeFileChanges fileChanges(files);
    fakes::FakeClipboard clipboard;
    fakes::FakeWallpaper wallpaper;
    fakes::FakeThumbnails thumbnails(files);
    fakes::FakeFileInquiry fileInquiry(files);
    posix_adapter::IconvCodePage codePage;
    Application app({loop, files, dialogs, monitors, imaging, text, sound, video, system, trace,
                     codePage, folders, fileChanges, clipboard, wallpaper, thumbnails,
                     fileInquiry});
    app.windows.form4.Lead1.imaging = imaging.MakeControl();
    app.windows.form4.Lead2.imaging = imaging.MakeControl();
    model::SetStartDefaults(app.state);
    FillList(app, files);
    app::TimerRunner timers(app);
    playback::AttachTransport(app);
    playback::SetButtons(app, playback::Buttons::Idle);
    app.windows.form1.Command1.Click();

    const auto runTo = [&](int steps) {
        loop.RunUntil([&] {
            files.read.clear();  // the record of the stand-in is no growth of the program
            return trace.slides >= steps;
        });
    };
    runTo(kWarmUp);
    const double before = HeapBytes();
    const auto start = std::chrono::steady_clock::now();
    runTo(kSteps);
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const double growth = HeapBytes() - before;
    std::printf("%d steps in %.1f s (%.1f us a step), heap grew by %.0f bytes\n",
                trace.slides - kWarmUp, seconds, seconds * 1e6 / (kSteps - kWarmUp), growth);
    std::printf("budget heap-growth-of-a-million-steps %.3f 1\n", growth / kAllowedGrowthBytes);
    return 0;
}
