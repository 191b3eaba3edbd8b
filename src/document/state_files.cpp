#include "document/state_files.h"

#include "document/line_reader.h"
#include "document/line_writer.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr TextView kSoundListTag = u"WAV3.4";

Text SoundListPath(const Application& app) {
    return app.state.AppFolder + u"wavlist.dat";
}

/// False for another tag: then nothing was touched. A file that ends early leaves what was read.
bool ReadSounds(Application& app, LineReader& reader) {
    auto& state = app.state;
    auto& form10 = app.windows.form10;
    if (reader.AtEnd() || !reader.Line().starts_with(kSoundListTag)) {
        return false;
    }
    state.SoundListCount = 0;
    state.SoundList.Erase();
    form10.List1.Clear();
    try {
        const int16_t count = reader.Count16();
        for (int i = 1; i <= count; ++i) {
            Text path = text::WithFolder(state.AppFolder, reader.Line());
            state.SoundList.Set(i, path);
            form10.List1.AddItem(std::move(path));
            state.SoundListCount = static_cast<int16_t>(i);
        }
    } catch (const ReadFailure&) {
        // Kept: what stands before the fault is the list.
    }
    form10.Label4.Caption = text::Trim(text::Str(form10.List1.ListCount()));
    return true;
}

}  // namespace

void ReadStateFile(Application&) {
    // Not built yet: the state of the last run is not kept.
}

void WriteStateFile(Application&) {
    // Not built yet: the state of the last run is not kept.
}

void ReadLinkStateFile(Application&) {
    // Not built yet: the link window's list is not kept.
}

void WriteLinkStateFile(Application&) {
    // Not built yet: the link window's list is not kept.
}

bool ReadSoundListFile(Application& app, TextView path) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Read(path, bytes, error)) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
        return false;
    }
    LineReader reader(text::DecodeFile(bytes, app.platform.codePage));
    return ReadSounds(app, reader);
}

void ReadSoundListFile(Application& app) {
    const Text path = SoundListPath(app);
    if (app.platform.files.Exists(path)) {
        ReadSoundListFile(app, path);
    }
}

void WriteSoundListFile(Application& app) {
    const auto& state = app.state;
    LineWriter writer;
    writer.Line(kSoundListTag);
    writer.Number(state.SoundListCount);
    for (int i = 1; i <= state.SoundListCount; ++i) {
        writer.Line(state.SoundList(i));
    }
    platform::FileError error;
    if (!app.platform.files.Write(
            SoundListPath(app), text::EncodeFile(writer.Content(), app.platform.codePage), error)) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
    }
}

}  // namespace document
