#include "authoring/sound_list/window.h"

#include <algorithm>
#include <memory>

#include "authoring/shared/browser_memory.h"
#include "authoring/shared/file_browser.h"
#include "authoring/shared/known_files.h"
#include "authoring/sound_list/check_boxes.h"
#include "authoring/sound_list/lengths.h"
#include "authoring/sound_list/preview.h"
#include "authoring/sound_list/rows.h"
#include "authoring/sound_list/sounds.h"
#include "document/settings_to_controls.h"
#include "document/sound_rows.h"
#include "document/state_files.h"
#include "model/monitors.h"
#include "model/windows/main_window.h"
#include "model/windows/sound_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;

constexpr int kLeastWidth = 12030, kLeastHeight = 8745;   // twips
constexpr int kNormalWidth = 9450, kNormalHeight = 5460;  // what 標準 asks for

FilesOfRows SoundFiles(Application& app) {
    return {app, app.windows.form10.known, app.windows.form10.List1};
}

model::RowFace Face(Application& app, SoundLengths& lengths, int row) {
    const Text& path = app.windows.form10.List1.List(row);
    const Text file = text::WithFolder(app.state.AppFolder, path);
    model::RowFace face;
    face.title = text::BareName(path);
    face.detail = text::WithoutSeparator(text::FolderPart(path));
    face.aside = lengths.Of(row);
    face.marks = IsThere(SoundFiles(app), row, file, true) ? 0u : model::kMarkMissing;
    return face;
}

/// The list of a document, or one that could not be written, is newer than the file.
void ReadList(Application& app) {
    if (app.state.SoundListUsed != 1 && app.state.SoundListUnwritten != 1) {
        document::ReadSoundListFile(app);
    }
    document::ShowSounds(app, app.state.SoundListCount);
}

void Form_Load(Application& app) {
    model::Form10& form10 = app.windows.form10;
    app.state.SoundListLimit = model::kSoundListLimit;
    model::CentreOnMonitor(app, form10);
    form10.File1.Pattern = Text(kSoundPatterns);
    form10.Label1.Visible = false;
    document::FollowSoundListBoxes(app);
    ReadList(app);
    FollowSoundSelection(app);
    OpenBrowser(app, form10.Drive1, form10.Dir1, form10.File1, app.platform.folders.Home());
}

void Form_Activate(Application& app, SoundLengths& lengths) {
    model::Form10& form10 = app.windows.form10;
    form10.Dir1.Refresh();
    RefreshFiles(app, form10.File1);
    AskAgain(SoundFiles(app));
    lengths.AskAgain();
}

void Form_Resize(Application& app) {
    model::Form10& form10 = app.windows.form10;
    if (form10.WindowState == model::kWindowNormal) {
        form10.Width = std::max(form10.Width(), kLeastWidth);
        form10.Height = std::max(form10.Height(), kLeastHeight);
    }
}

/// A search is stopped first, but nothing holds up the end of the program.
void Form_QueryUnload(Application& app, bool& stay) {
    stay = StoppedWork(Sounds(app)) && !app.windows.form1.Unloading();
}

/// What was not taken over can be brought back when the window is open again.
void Form_Unload(Application& app) {
    EndSoundPreview(app);
    document::RevertSoundRows(app);
}

void Command1_Click(Application& app) {
    if (StoppedWork(Sounds(app))) {
        return;
    }
    model::Form10& form10 = app.windows.form10;
    RememberFolder(app, form10.Dir1.Path());
    document::CommitSounds(app);
    document::WriteSoundListFile(app);
    form10.Unload();
}

void Command2_Click(Application& app) {
    if (!StoppedWork(Sounds(app))) {
        app.windows.form10.Unload();
    }
}

void AttachFaces(Application& app) {
    model::Form10& form10 = app.windows.form10;
    const auto lengths = std::make_shared<SoundLengths>(app);
    form10.List1.face = [&app, lengths](int row) { return Face(app, *lengths, row); };
    // It goes with the list that it listens to.
    form10.OnActivate = [&app, listener = std::weak_ptr(lengths)] {
        if (const auto known = listener.lock()) {
            Form_Activate(app, *known);
        }
    };
}

}  // namespace

void AttachSoundList(Application& app) {
    model::Form10& form10 = app.windows.form10;
    AttachBrowser(form10.Drive1, form10.Dir1, form10.File1);
    AttachFaces(app);
    form10.OnLoad = [&app] { Form_Load(app); };
    form10.OnResize = [&app] { Form_Resize(app); };
    form10.OnQueryUnload = [&app](bool& stay) { Form_QueryUnload(app, stay); };
    form10.OnUnload = [&app] { Form_Unload(app); };
    form10.Command1.Click = [&app] { Command1_Click(app); };
    form10.Command2.Click = [&app] { Command2_Click(app); };
    form10.Command9.Click = [&form10] { form10.WindowState = model::kWindowMaximised; };
    form10.Command10.Click = [&form10] {
        form10.WindowState = model::kWindowNormal;
        form10.ResizeTo(kNormalWidth, kNormalHeight);
    };
    AttachSoundRows(app);
    AttachSoundBoxes(app);
    AttachSoundPreview(app);
}

void ClearSoundList(Application& app) {
    EndSoundPreview(app);
    document::ClearSounds(app);
    FollowSoundSelection(app);
}

}  // namespace authoring
