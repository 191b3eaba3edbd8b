#include "app/window_size.h"

#include <algorithm>

#include "document/line_reader.h"
#include "document/line_writer.h"
#include "model/windows/main_window.h"

namespace app {

namespace {

using model::kWindowMaximised;
using model::kWindowNormal;
using platform::kTwipsPerPixel;

constexpr TextView kTag = u"window1";
constexpr size_t kLongestFile = 1000;  // bytes

// In pixels. A window that is smaller was not meant.
constexpr platform::Size kSmallest{400, 300};
// A new window's preview is no larger than this, and the window takes no more than this share of
// the monitor: all of it in sight, and the desktop still there around it.
constexpr platform::Size kLargestFirstPreview{1280, 720};
constexpr double kWidthShare = 0.8;
constexpr double kHeightShare = 0.92;

/// What is kept, in pixels.
struct Kept {
    platform::Size size;
    int windowState = kWindowNormal;
};

Text FilePath(const Application& app) {
    return app.state.AppFolder + u"window.dat";
}

std::optional<Kept> ReadKept(Application& app) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Exists(FilePath(app)) ||
        !app.platform.files.Read(FilePath(app), bytes, error, kLongestFile)) {
        return std::nullopt;
    }
    document::LineReader reader(text::DecodeFile(bytes, app.platform.codePage));
    try {
        if (reader.Line() != kTag) {
            return std::nullopt;
        }
        Kept kept;
        kept.size.width = reader.Int16();
        kept.size.height = reader.Int16();
        kept.windowState = reader.Int16() == kWindowMaximised ? kWindowMaximised : kWindowNormal;
        return kept;
    } catch (const document::ReadFailure&) {
        return std::nullopt;
    }
}

void SetSize(Application& app, platform::Size pixels) {
    app.windows.form1.Width = pixels.width * kTwipsPerPixel;
    app.windows.form1.Height = pixels.height * kTwipsPerPixel;
}

platform::Size Within(platform::Size wanted, platform::Size room) {
    return {std::max(kSmallest.width, std::min(wanted.width, room.width)),
            std::max(kSmallest.height, std::min(wanted.height, room.height))};
}

/// The preview grows in its own proportions, and the rest of the window stays as it is.
platform::Size FirstSize(const model::Form1& form1, platform::Size room) {
    const platform::Size declared{form1.Width / kTwipsPerPixel, form1.Height / kTwipsPerPixel};
    const double most = std::min({room.width * kWidthShare - declared.width,
                                  (room.height * kHeightShare - declared.height) *
                                      kLargestFirstPreview.width / kLargestFirstPreview.height,
                                  double(kLargestFirstPreview.width + 40 - declared.width)});
    const int grow = std::max(0, static_cast<int>(most));
    return Within({declared.width + grow, declared.height + grow * kLargestFirstPreview.height /
                                                                kLargestFirstPreview.width},
                  room);
}

}  // namespace

void RestoreWindowSize(Application& app, bool roomy) {
    model::Form1& form1 = app.windows.form1;
    const platform::Size room = app.platform.monitors.Room();
    if (const std::optional<Kept> kept = ReadKept(app)) {
        SetSize(app, Within(kept->size, room));
        form1.WindowState = kept->windowState;
    } else if (roomy) {
        SetSize(app, FirstSize(form1, room));
    }
    app.state.NormalWidth = app.state.StartWidth = form1.Width;
    app.state.NormalHeight = app.state.StartHeight = form1.Height;
    app.state.StartWindowState = static_cast<int16_t>(form1.WindowState);
}

void NoteWindowSize(Application& app) {
    const model::Form1& form1 = app.windows.form1;
    const platform::Size room = app.platform.monitors.Room();
    // When the window is maximised, the new size may be reported before the new state.
    const bool fills =
        form1.Width / kTwipsPerPixel >= room.width && form1.Height / kTwipsPerPixel >= room.height;
    if (form1.WindowState == kWindowNormal && !fills) {
        app.state.NormalWidth = form1.Width;
        app.state.NormalHeight = form1.Height;
    }
}

void KeepWindowSize(Application& app) {
    const model::ShowState& state = app.state;
    const int windowState =
        app.windows.form1.WindowState == kWindowMaximised ? kWindowMaximised : kWindowNormal;
    if (state.NormalWidth == state.StartWidth && state.NormalHeight == state.StartHeight &&
        windowState == state.StartWindowState) {
        return;
    }
    document::LineWriter writer;
    writer.Line(kTag);
    for (const int value :
         {state.NormalWidth / kTwipsPerPixel, state.NormalHeight / kTwipsPerPixel, windowState}) {
        writer.Number(value);
    }
    platform::FileError ignored;
    app.platform.files.Write(FilePath(app),
                             text::EncodeFile(writer.Content(), app.platform.codePage), ignored);
}

}  // namespace app
