// The surroundings of a program under test: nothing touches the disk, the screen or the clock, and
// what the program asks for is recorded.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "adapters/posix/iconv_code_page.h"
#include "adapters/tracing/no_trace.h"
#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_monitors.h"
#include "adapters/virtual/virtual_sound.h"
#include "adapters/virtual/virtual_video.h"
#include "fake_desk.h"
#include "fake_files.h"
#include "model/application.h"
#include "test_loop.h"

namespace fakes {

/// A "picture" is any file whose content begins with "PIC width height [rrggbb [bits]]".
/// `log` tells what was asked, one line each: "load PATH", "resize 80 60", "resize 80 60 to 160
/// 120" (not where it is so already), "colors 1", "gray", "reverse", "flip", "invert", "edges 8",
/// "emboss 0 700", "mosaic 12", "clear". Two levels and greys go by the mean of the three colour
/// parts.
class FakeImagingControl : public platform::ImagingControl {
public:
    FakeImagingControl(platform::Files& files, std::vector<std::string>& log)
        : files_(files), log_(log) {}

    bool ReadInformation(TextView path) override { return Parse(path).has_value(); }
    bool Load(TextView path, const platform::FitFunction& fit) override {
        log_.push_back("load " + text::ToUtf8(path));
        held_ = Parse(path);
        if (held_ && fit) {
            fit(held_->size);
        }
        return held_.has_value();
    }
    bool Holds() const override { return held_.has_value(); }
    platform::Size HeldSize() const override { return held_ ? held_->size : platform::Size(); }
    int BitsPerPixel() const override { return held_ ? held_->bits : 0; }
    void SetColorResolution(int bits, int, int, int) override {
        log_.push_back("colors " + std::to_string(bits));
        if (held_) {
            held_->bits = bits;
            if (bits == 1) {
                held_->pixel = Mean(held_->pixel) < 128 ? 0xFF000000u : 0xFFFFFFFFu;
            }
        }
    }
    void GrayScale() override {
        log_.push_back("gray");
        if (held_) {
            held_->pixel = 0xFF000000u | Mean(held_->pixel) * 0x010101u;
        }
    }
    void Reverse() override { log_.push_back("reverse"); }
    void Flip() override { log_.push_back("flip"); }
    void Invert() override { log_.push_back("invert"); }
    void EdgeFilter(int level) override { log_.push_back("edges " + std::to_string(level)); }
    void Emboss(int direction, int depth) override {
        log_.push_back("emboss " + std::to_string(direction) + " " + std::to_string(depth));
    }
    void Mosaic(int block) override { log_.push_back("mosaic " + std::to_string(block)); }
    void Resize(int width, int height, int) override {
        log_.push_back("resize " + std::to_string(width) + " " + std::to_string(height));
        if (held_) {
            held_->size = held_->pixels = {width, height};
        }
    }
    void ResizeTo(platform::Size size, platform::Size pixels) override {
        if (held_ && !(held_->size == size && held_->pixels == pixels)) {
            log_.push_back("resize " + std::to_string(size.width) + " " +
                           std::to_string(size.height) + " to " + std::to_string(pixels.width) +
                           " " + std::to_string(pixels.height));
            held_->size = size;
            held_->pixels = pixels;
        }
    }
    platform::BitmapPtr Picture() override {
        if (!held_) {
            return nullptr;
        }
        return std::make_shared<platform::Bitmap>(held_->pixels.width, held_->pixels.height,
                                                  held_->pixel);
    }
    void CopyFrom(const platform::ImagingControl& other) override {
        held_ = static_cast<const FakeImagingControl&>(other).held_;
    }
    void Clear() override {
        log_.push_back("clear");
        held_.reset();
    }

private:
    struct Held {
        platform::Size size, pixels;
        platform::Pixel pixel = 0xFF808080u;
        int bits = 24;
    };
    static uint32_t Mean(platform::Pixel p) {
        return ((p >> 16 & 0xFF) + (p >> 8 & 0xFF) + (p & 0xFF)) / 3;
    }
    std::optional<Held> Parse(TextView path) {
        std::string content;
        platform::FileError error;
        if (!files_.Read(path, content, error, 1u << 20)) {
            return std::nullopt;
        }
        std::istringstream words(content);
        std::string mark, colour;
        Held held;
        if (!(words >> mark >> held.size.width >> held.size.height) || mark != "PIC" ||
            held.size.Empty()) {
            return std::nullopt;
        }
        held.pixels = held.size;
        if (words >> colour) {
            held.pixel = 0xFF000000u | static_cast<uint32_t>(std::stoul(colour, nullptr, 16));
            words >> held.bits;
        }
        return held;
    }

    platform::Files& files_;
    std::vector<std::string>& log_;
    std::optional<Held> held_;
};

class FakeImaging : public platform::Imaging {
public:
    explicit FakeImaging(platform::Files& files) : files_(files) {}
    std::vector<std::string> log;  // of all controls together
    Text version = u"imaging 1997";
    Text VersionText() const override { return version; }
    std::unique_ptr<platform::ImagingControl> MakeControl() override {
        return std::make_unique<FakeImagingControl>(files_, log);
    }
    std::vector<platform::Wanted> wanted;  // of the last Prepare
    std::vector<Text> everWanted;          // paths of all, each time they were asked for
    void Prepare(const std::vector<platform::Wanted>& list) override {
        wanted = list;
        for (const platform::Wanted& one : list) {
            everWanted.push_back(one.path);
        }
    }
    struct Saved {
        Text path;
        platform::Size size;
        platform::SaveForm form;
    };
    std::vector<Saved> saved;
    Text saveError;  // not empty: every save fails with these words
    platform::Outcome Save(const platform::BitmapPtr& picture, TextView path,
                           const platform::SaveForm& form, const platform::Report& report,
                           platform::FileError& error) override {
        if (report && !report({0, 0})) {
            return platform::Outcome::Stopped;
        }
        if (!picture || !saveError.empty()) {
            error.message = saveError;
            return platform::Outcome::Failed;
        }
        saved.push_back({Text(path), {picture->width, picture->height}, form});
        return platform::Outcome::Done;
    }
    struct Made {
        Text from, to;
        platform::Conversion::Kind kind;
        platform::Size size;
        int quality;
    };
    std::vector<Made> converted;
    Text convertError;       // not empty: no conversion can be written, with these words
    bool writesSame = true;  // a conversion to the same kind has a writer
    /// A "picture" of the new size.
    platform::Converted Convert(TextView from, TextView to, const platform::Conversion& conversion,
                                const platform::Report& report,
                                platform::FileError& error) override {
        using platform::Converted;
        if (report && !report({0, 0})) {
            return Converted::Stopped;
        }
        FakeImagingControl control(files_, log);
        if (!control.Load(from, {})) {
            return Converted::Unreadable;
        }
        const platform::Size own = control.HeldSize();
        const platform::Size size = conversion.fit ? conversion.fit(own) : own;
        const bool same = conversion.kind == platform::Conversion::Same;
        if (same && (size == own || !writesSame)) {
            return size == own ? Converted::Needless : Converted::NoWriter;
        }
        if (!convertError.empty() ||
            !files_.Write(to,
                          "PIC " + std::to_string(size.width) + " " + std::to_string(size.height),
                          error)) {
            error.message = convertError;
            return Converted::Failed;
        }
        converted.push_back({Text(from), Text(to), conversion.kind, size, conversion.quality});
        return Converted::Done;
    }

private:
    platform::Files& files_;
};

/// Every character is half a point size wide in pixels and a line two point sizes high; draws
/// nothing and records.
class FakeTextRenderer : public platform::TextRenderer {
public:
    struct Line {
        int x, y;
        platform::Color color;
        Text text;
        const platform::Canvas* canvas = nullptr;
        platform::Font font = {};
        std::optional<platform::Turn> turn = std::nullopt;
    };
    std::vector<Line> drawn;  // every print, also of many made at once
    Extent Measure(const platform::Font& font, TextView text) override {
        return {static_cast<int>(font.sizePoints * static_cast<double>(text.size()) / 2),
                static_cast<int>(font.sizePoints * 2)};
    }
    void Draw(platform::Canvas& canvas, int x, int y, const platform::Font& font,
              platform::Color color, TextView text) override {
        drawn.push_back({x, y, color, Text(text), &canvas, font});
    }
    void DrawTurned(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                    const platform::Turn& turn, platform::Color color, TextView text,
                    std::span<const platform::Offset> offsets) override {
        for (const platform::Offset& offset : offsets) {
            drawn.push_back({x + offset.x, y + offset.y, color, Text(text), &canvas, font, turn});
        }
    }
};

/// The virtual device with a record of its commands. Without files: none can be opened.
class FakeSound : public virtual_adapter::VirtualSound {
public:
    using VirtualSound::VirtualSound;
    std::vector<Text> commands;
    std::vector<std::pair<std::optional<Text>, int>> played;
    std::function<Text(TextView)> answer;  // set: answers in the device's place
    Text MciSendString(TextView command) override {
        commands.emplace_back(command);
        return answer ? answer(command) : VirtualSound::MciSendString(command);
    }
    void SndPlaySound(const std::optional<Text>& file, int flags) override {
        played.emplace_back(file, flags);
        VirtualSound::SndPlaySound(file, flags);
    }
};

/// The virtual player with one film in every file. `log` tells what was asked: "open PATH", "play",
/// "loop 1", "close".
class FakeVideo : public virtual_adapter::VirtualVideo {
public:
    using VirtualVideo::VirtualVideo;
    virtual_adapter::Film film{.milliseconds = 2000};
    std::vector<std::string> log;
    Text path;
    bool looping = false;
    int awaited = 0;  // what AwaitSize was called with last
    /// Set: what Status answers, whatever was played.
    std::optional<platform::VideoState> state;

    void SetUrl(TextView url) override {
        path = url;
        log.push_back("open " + text::ToUtf8(url));
        VirtualVideo::SetUrl(url);
    }
    void Play() override {
        log.push_back("play");
        VirtualVideo::Play();
    }
    void SetLoop(bool on) override {
        looping = on;
        log.push_back(on ? "loop 1" : "loop 0");
        VirtualVideo::SetLoop(on);
    }
    void Close() override {
        path.clear();
        log.push_back("close");
        VirtualVideo::Close();
    }
    platform::VideoState Status() override { return state ? *state : VirtualVideo::Status(); }
    void AwaitSize(int limit) override { awaited = limit; }

protected:
    virtual_adapter::Film FilmIn(TextView) override { return film; }
};

class FakeSystem : public platform::System {
public:
    Text appFolder = u"C:\\app\\";
    bool previousInstance = false;
    Text AppFolder() override { return appFolder; }
    bool PreviousInstance() override { return previousInstance; }
    std::vector<std::pair<Text, Text>> started;  // command line, document
    bool Shell(TextView commandLine, TextView document) override {
        started.emplace_back(commandLine, document);
        return true;
    }
    std::vector<Text> found;  // command lines that name a program
    bool FindsProgram(TextView commandLine, TextView) override {
        return std::find(found.begin(), found.end(), commandLine) != found.end();
    }
    int forgotten = 0;  // shows that were over
    void ForgetShow() override { ++forgotten; }
    bool opens = true;         // what OpenText answers
    std::vector<Text> opened;  // every text it was given
    bool OpenText(TextView path) override {
        opened.emplace_back(path);
        return opens;
    }
};

class FakeTrace : public platform::Trace {
public:
    struct Line {
        std::string event;
        std::vector<std::pair<std::string, decltype(platform::TraceField::value)>> fields;

        /// Field as a number or text; NaN-free: 0 and empty where there is none of that kind.
        double Number(std::string_view name) const {
            const auto* value = Find(name);
            const double* number = value ? std::get_if<double>(value) : nullptr;
            return number ? *number : 0;
        }
        Text String(std::string_view name) const {
            const auto* value = Find(name);
            const Text* string = value ? std::get_if<Text>(value) : nullptr;
            return string ? *string : Text();
        }

    private:
        const decltype(platform::TraceField::value)* Find(std::string_view name) const {
            for (const auto& [field, value] : fields) {
                if (field == name) {
                    return &value;
                }
            }
            return nullptr;
        }
    };
    std::vector<Line> lines;

    void Event(std::string_view event,
               std::initializer_list<platform::TraceField> fields) override {
        Line line;
        line.event = event;
        for (const platform::TraceField& field : fields) {
            line.fields.emplace_back(std::string(field.name), field.value);
        }
        lines.push_back(std::move(line));
    }
    std::vector<Line> Of(std::string_view event) const {
        std::vector<Line> found;
        for (const Line& line : lines) {
            if (line.event == event) {
                found.push_back(line);
            }
        }
        return found;
    }
};

/// Folders are those that hold a file of FakeFiles, at any depth.
class FakeFolders : public platform::Folders {
public:
    explicit FakeFolders(FakeFiles& files) : files_(files) {}
    Text home = u"C:\\Users\\me";
    Text homeFolders = u"C:\\Users";
    std::vector<platform::Place> places{{platform::Place::Home, u"C:\\Users\\me", u"ホーム"},
                                        {platform::Place::Drive, u"C:\\", u"C:\\"}};

    bool IsFolder(TextView path) override {
        return path == u"C:\\" || path == home || path == homeFolders ||
               !files_.Below(path).empty();
    }
    std::vector<Text> Subfolders(TextView path) override { return Names(path, true); }
    std::vector<Text> Files(TextView path, TextView) override { return Names(path, false); }
    std::map<Text, Text> links;  // folders that lead to another one
    Text Identity(TextView path) override {
        const auto link = links.find(Text(path));
        return link != links.end() ? link->second : IsFolder(path) ? Text(path) : Text();
    }
    std::set<Text> unreadable;
    std::vector<Text> read;  // by Read, in order
    platform::FolderContent Read(TextView path, TextView, size_t mostFiles,
                                 const std::function<bool()>& goOn) override {
        read.emplace_back(path);
        platform::FolderContent content;
        if (!unreadable.contains(Text(path))) {
            content.identity = Identity(path);
            content.folders = Names(content.identity, true);
            content.files = Names(content.identity, false);
            content.files.resize(std::min(mostFiles, content.files.size()));
            goOn();
        }
        return content;
    }
    Text Home() override { return home; }
    Text HomeFolders() override { return homeFolders; }
    std::vector<platform::Place> Places() override { return places; }

private:
    std::vector<Text> Names(TextView path, bool folders) {
        std::set<Text> names;
        for (const Text& rest : files_.Below(path)) {
            const size_t separator = rest.find(u'\\');
            if ((separator != Text::npos) == folders) {
                names.insert(rest.substr(0, separator));
            }
        }
        return {names.begin(), names.end()};
    }

    FakeFiles& files_;
};

/// All of them, and one Application that lives in them with its start defaults set.
struct FakePlatform {
    TestLoop loop;
    FakeFiles files;
    tracing::NoTrace noTrace;  // of devices whose use is recorded
    virtual_adapter::VirtualDialogs dialogs{noTrace};
    virtual_adapter::VirtualMonitors monitors;
    FakeImaging imaging{files};
    FakeTextRenderer textRenderer;
    FakeSound sound{loop};
    FakeVideo video{noTrace, loop};
    FakeSystem system;
    FakeTrace trace;
    FakeFolders folders{files};
    posix_adapter::IconvCodePage codePage;
    FakeFileChanges fileChanges{files};
    FakeClipboard clipboard;
    FakeWallpaper wallpaper;
    FakeThumbnails thumbnails{files};
    FakeFileInquiry fileInquiry{files};
    Application app{platform::Platform{loop, files, dialogs, monitors, imaging, textRenderer, sound,
                                       video, system, trace, codePage, folders, fileChanges,
                                       clipboard, wallpaper, thumbnails, fileInquiry}};

    FakePlatform();
    ~FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    /// Puts a text as the program writes files: the code page, lines as they stand.
    void PutText(TextView path, TextView content) {
        files.Put(path, text::EncodeFile(content, codePage));
    }
    /// A picture that FakeImaging can load.
    void PutPicture(TextView path, int width, int height) {
        files.Put(path, "PIC " + std::to_string(width) + " " + std::to_string(height));
    }
};

}  // namespace fakes
