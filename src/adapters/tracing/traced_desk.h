// Tells the trace what the program does to the person's files, clipboard and wallpaper.
#pragma once

#include "platform/clipboard.h"
#include "platform/file_changes.h"
#include "platform/trace.h"
#include "platform/wallpaper.h"

namespace tracing {

/// Event "trash" (path) for what went there.
class TracedFileChanges : public platform::FileChanges {
public:
    TracedFileChanges(platform::FileChanges& inner, platform::Trace& trace)
        : inner_(inner), trace_(trace) {}

    platform::Outcome Copy(TextView from, TextView to, const platform::Report& report,
                           platform::FileError& error) override {
        return inner_.Copy(from, to, report, error);
    }
    platform::Outcome Move(TextView from, TextView to, const platform::Report& report,
                           platform::FileError& error) override {
        return inner_.Move(from, to, report, error);
    }
    bool Trash(TextView path, Text& kept, platform::FileError& error) override {
        const bool done = inner_.Trash(path, kept, error);
        if (done) {
            trace_.Event("trash", {{"path", Text(path)}});
        }
        return done;
    }
    bool Restore(TextView kept, TextView path, platform::FileError& error) override {
        return inner_.Restore(kept, path, error);
    }
    bool MakeFolder(TextView path, platform::FileError& error) override {
        return inner_.MakeFolder(path, error);
    }
    bool CanWrite(TextView path) override { return inner_.CanWrite(path); }

private:
    platform::FileChanges& inner_;
    platform::Trace& trace_;
};

/// Event "clipboard" (text, a line for each file; or width and height).
class TracedClipboard : public platform::Clipboard {
public:
    TracedClipboard(platform::Clipboard& inner, platform::Trace& trace)
        : inner_(inner), trace_(trace) {}

    void PutText(TextView text) override {
        inner_.PutText(text);
        trace_.Event("clipboard", {{"text", Text(text)}});
    }
    void PutPicture(const platform::BitmapPtr& picture) override {
        inner_.PutPicture(picture);
        trace_.Event("clipboard", {{"width", picture ? double(picture->width) : 0.0},
                                   {"height", picture ? double(picture->height) : 0.0}});
    }
    void PutFiles(const std::vector<Text>& paths) override {
        inner_.PutFiles(paths);
        Text lines;
        for (const Text& path : paths) {
            lines += (lines.empty() ? u"" : u"\n") + path;
        }
        trace_.Event("clipboard", {{"text", lines}});
    }
    Text GetText() override { return inner_.GetText(); }
    std::vector<Text> GetFiles() override { return inner_.GetFiles(); }

private:
    platform::Clipboard& inner_;
    platform::Trace& trace_;
};

/// Event "wallpaper" (file, lasting) for one that the desktop took.
class TracedWallpaper : public platform::Wallpaper {
public:
    TracedWallpaper(platform::Wallpaper& inner, platform::Trace& trace)
        : inner_(inner), trace_(trace) {}

    bool Set(TextView file, bool lasting, platform::FileError& error) override {
        const bool done = inner_.Set(file, lasting, error);
        if (done) {
            trace_.Event("wallpaper", {{"file", Text(file)}, {"lasting", lasting}});
        }
        return done;
    }
    void PutBack() override { inner_.PutBack(); }

private:
    platform::Wallpaper& inner_;
    platform::Trace& trace_;
};

}  // namespace tracing
