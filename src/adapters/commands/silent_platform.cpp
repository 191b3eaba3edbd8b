#include "adapters/commands/silent_platform.h"

#include "adapters/posix/program_find.h"
#include "adapters/virtual/no_video.h"
#include "text/paths.h"

namespace commands {

namespace {

class StoppedLoop : public platform::EventLoop {
public:
    void PumpEvents() override {}
    void Sleep(int) override {}
    double Timer() override { return 0; }
    platform::DateTime Now() override { return {}; }
    double Milliseconds() override { return 0; }
    double Rnd() override { return 0; }
    void SetTimer(const void*, int, std::function<void()>) override {}
    void CancelTimer(const void*) override {}
    /// Nothing will ever happen.
    void RunUntil(const std::function<bool()>& done) override {
        if (!done()) {
            throw platform::ProgramEnd{};
        }
    }
};

class OneMonitor : public platform::Monitors {
public:
    std::vector<platform::Rect> Enumerate() override { return {{0, 0, 1920, 1080}}; }
    int OfMainWindow() override { return 0; }
    platform::Size Room() override { return {1920, 1080}; }
    void KeepAwake(bool) override {}
};

class BlindControl : public platform::ImagingControl {
public:
    bool ReadInformation(TextView) override { return false; }
    bool Load(TextView, const platform::FitFunction&) override { return false; }
    bool Holds() const override { return false; }
    platform::Size HeldSize() const override { return {}; }
    int BitsPerPixel() const override { return 0; }
    void SetColorResolution(int, int, int, int) override {}
    void Resize(int, int, int) override {}
    void ResizeTo(platform::Size, platform::Size) override {}
    void GrayScale() override {}
    void Reverse() override {}
    void Mosaic(int) override {}
    void Flip() override {}
    void Invert() override {}
    void EdgeFilter(int) override {}
    void Emboss(int, int) override {}
    platform::BitmapPtr Picture() override { return nullptr; }
    void CopyFrom(const platform::ImagingControl&) override {}
    void Clear() override {}
};

class BlindImaging : public platform::Imaging {
public:
    void Prepare(const std::vector<platform::Wanted>&) override {}
    Text VersionText() const override { return u"0"; }
    std::unique_ptr<platform::ImagingControl> MakeControl() override {
        return std::make_unique<BlindControl>();
    }
};

class NoText : public platform::TextRenderer {
public:
    Extent Measure(const platform::Font&, TextView) override { return {}; }
    void Draw(platform::Canvas&, int, int, const platform::Font&, platform::Color,
              TextView) override {}
    void DrawTurned(platform::Canvas&, int, int, const platform::Font&, const platform::Turn&,
                    platform::Color, TextView, std::span<const platform::Offset>) override {}
};

class NoSound : public platform::Sound {
public:
    Text MciSendString(TextView) override { return {}; }
    void SndPlaySound(const std::optional<Text>&, int) override {}
};

class NoSystem : public platform::System {
public:
    NoSystem(std::string folder, platform::Files& files)
        : folder_(std::move(folder)), files_(files) {}
    Text AppFolder() override { return text::FromUtf8(folder_); }
    bool PreviousInstance() override { return false; }
    bool Shell(TextView, TextView) override { return false; }
    bool FindsProgram(TextView commandLine, TextView document) override {
        return posix_adapter::FindProgram(files_, commandLine, text::FolderPart(document))
            .has_value();
    }
    void ForgetShow() override {}
    bool OpenText(TextView) override { return false; }

private:
    std::string folder_;
    platform::Files& files_;
};

class NoTrace : public platform::Trace {
public:
    void Event(std::string_view, std::initializer_list<platform::TraceField>) override {}
};

}  // namespace

platform::Answer RecordingDialogs::Message(TextView text, int flags, TextView title) {
    messages.push_back({Text(title), Text(text), flags});
    return (flags & 15) == platform::kYesNo ? platform::Answer::Yes : platform::Answer::Ok;
}

std::optional<Text> RecordingDialogs::Input(TextView, TextView, TextView initial) {
    return Text(initial);
}

std::optional<Text> RecordingDialogs::ChooseFile(const FileRequest&) {
    return std::nullopt;
}

struct SilentPlatform::Devices {
    Devices(std::string programFolder, platform::Files& files)
        : system(std::move(programFolder), files) {}
    StoppedLoop loop;
    OneMonitor monitors;
    BlindImaging imaging;
    NoText textRenderer;
    NoSound sound;
    virtual_adapter::NoVideo video;
    NoSystem system;
    NoTrace trace;
};

SilentPlatform::SilentPlatform(std::string programFolder)
    : posixFiles(programFolder),
      devices_(std::make_unique<Devices>(std::move(programFolder), files)) {}

SilentPlatform::~SilentPlatform() = default;

platform::Platform SilentPlatform::Get() {
    return {devices_->loop,    files,
            dialogs,           devices_->monitors,
            devices_->imaging, devices_->textRenderer,
            devices_->sound,   devices_->video,
            devices_->system,  devices_->trace,
            codePage,          folders};
}

}  // namespace commands
