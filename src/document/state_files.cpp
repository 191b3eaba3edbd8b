#include "document/state_files.h"

#include <algorithm>

#include "document/line_reader.h"
#include "document/line_writer.h"
#include "document/link_rows.h"
#include "document/sound_rows.h"
#include "document/unread_files.h"
#include "model/windows/link_list.h"
#include "model/windows/sound_list.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr TextView kSoundListTag = u"WAV3.4";
constexpr TextView kLinkStateTag = u"KVSV3";

Text SoundListPath(const Application& app) {
    return app.state.AppFolder + u"wavlist.dat";
}

Text LinkStatePath(const Application& app) {
    return app.state.AppFolder + u"uautst.dat";
}

/// For another tag nothing is touched. A file that ends early leaves what was read.
Taken ReadLinks(Application& app, LineReader& reader) {
    if (reader.AtEnd() || text::RTrim(reader.Line()) != kLinkStateTag) {
        return Taken::Nothing;
    }
    auto& state = app.state;
    auto& form9 = app.windows.form9;
    bool whole = false;
    try {
        state.LinkAutoFlag = reader.Int16();
        state.LinkRepeat = reader.Int16();
        state.LinkCheck3 = reader.Int16();
        state.LinkDocumentName = reader.Line();
        ShowLinkCaption(app);
        const int32_t count = reader.Int32();
        ClearRows(LinkRows(app));
        // What a run could not hold is left out.
        for (int32_t i = 0; i < std::min(count, model::kLinkListLast); ++i) {
            AppendRows(LinkRows(app), {{text::WithFolder(state.AppFolder, reader.Line()), {}}});
        }
        whole = count <= model::kLinkListLast && !reader.HoldsMore();
    } catch (const ReadFailure&) {
        // Kept: what stands before the fault is in force, and no box comes up.
    }
    form9.Check1.Value = state.LinkAutoFlag;
    form9.Check2.Value = state.LinkRepeat;
    form9.Check3.Value = state.LinkCheck3;
    ForgetSteps(LinkRows(app));
    return whole ? Taken::Whole : Taken::Partly;
}

/// For another tag nothing is touched. A file that ends early leaves what was read.
Taken ReadSounds(Application& app, LineReader& reader) {
    auto& state = app.state;
    if (reader.AtEnd() || !reader.Line().starts_with(kSoundListTag)) {
        return Taken::Nothing;
    }
    bool whole = false;
    state.SoundListCount = 0;
    state.SoundList.Erase();
    try {
        const int16_t count = reader.Count16();
        for (int i = 1; i <= count; ++i) {
            state.SoundList.Set(i, text::WithFolder(state.AppFolder, reader.Line()));
            state.SoundListCount = static_cast<int16_t>(i);
        }
        whole = !reader.HoldsMore();
    } catch (const ReadFailure&) {
        // Kept: what stands before the fault is the list.
    }
    ShowSounds(app, state.SoundListCount);
    return whole ? Taken::Whole : Taken::Partly;
}

}  // namespace

Text StateFilePath(const Application& app) {
    return app.state.AppFolder + u"autstart.dat";
}

bool WriteProgramFile(Application& app, TextView path, TextView content) {
    if (!KeepUnread(app, Text(path))) {
        return false;
    }
    platform::FileError error;
    if (app.platform.files.Write(path, text::EncodeFile(content, app.platform.codePage), error)) {
        return true;
    }
    app.platform.dialogs.Message(error.message, platform::kPlain, u"");
    return false;
}

Taken ReadLinkStateFile(Application& app, TextView path) {
    std::string bytes;
    platform::FileError ignored;
    Taken taken = Taken::Nothing;
    if (app.platform.files.Read(path, bytes, ignored)) {
        LineReader reader(text::DecodeFile(bytes, app.platform.codePage));
        taken = ReadLinks(app, reader);
    }
    app.windows.SetPointer(model::kPointerNormal);
    return taken;
}

void ReadLinkStateFile(Application& app) {
    const Text path = LinkStatePath(app);
    NoteTaken(app, path, ReadLinkStateFile(app, path));
}

void WriteLinkStateFile(Application& app) {
    const auto& state = app.state;
    const auto& links = app.windows.form9.List1;
    LineWriter writer;
    writer.Line(kLinkStateTag);
    for (int16_t flag : {state.LinkAutoFlag, state.LinkRepeat, state.LinkCheck3}) {
        writer.Number(flag);
    }
    writer.Line(state.LinkDocumentName);
    writer.Number(links.ListCount());
    for (const Text& path : links.Rows()) {
        writer.Line(path);
    }
    WriteProgramFile(app, LinkStatePath(app), writer.Content());
}

Taken ReadSoundListFile(Application& app, TextView path) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Read(path, bytes, error)) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
        return Taken::Nothing;
    }
    LineReader reader(text::DecodeFile(bytes, app.platform.codePage));
    return ReadSounds(app, reader);
}

void ReadSoundListFile(Application& app) {
    const Text path = SoundListPath(app);
    NoteTaken(app, path,
              app.platform.files.Exists(path) ? ReadSoundListFile(app, path) : Taken::Nothing);
}

void WriteSoundListFile(Application& app) {
    const auto& state = app.state;
    LineWriter writer;
    writer.Line(kSoundListTag);
    writer.Number(state.SoundListCount);
    for (int i = 1; i <= state.SoundListCount; ++i) {
        writer.Line(state.SoundList(i));
    }
    app.state.SoundListUnwritten =
        WriteProgramFile(app, SoundListPath(app), writer.Content()) ? 0 : 1;
}

}  // namespace document
