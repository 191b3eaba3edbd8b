#include "authoring/settings/background_sound.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "authoring/shared/browser_memory.h"
#include "authoring/shared/file_browser.h"
#include "document/settings_to_controls.h"
#include "model/monitors.h"
#include "model/windows/background_sound.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;

/// One of the three windows.
struct Choice {
    model::BackgroundSound& window;
    Text model::ShowState::*piece;
    // form2 has no box.
    model::CheckBox* box = nullptr;
    int16_t model::ShowState::*linkedOnTop = nullptr;
    TextView note = {};
};

Text FullPath(const model::BackgroundSound& window, int row) {
    return text::WithSeparator(window.Dir1.Path()) + window.File1.List(row);
}

void Form_Load(Application& app, const Choice& choice) {
    model::BackgroundSound& window = choice.window;
    model::CentreOnMonitor(app, window);
    const Text piece = app.state.*choice.piece;
    const Text folder = text::WithoutSeparator(text::FolderPart(piece));
    const bool usable = !folder.empty() && app.platform.folders.IsFolder(folder);
    window.File1.folders = &app.platform.folders;
    OpenBrowser(app, window.Drive1, window.Dir1, usable ? folder : app.platform.folders.Home());
    window.File1.Refresh();
    const auto& rows = window.File1.Rows();
    const auto chosen = std::find(rows.begin(), rows.end(), text::BareName(piece));
    if (usable && chosen != rows.end()) {
        const int row = static_cast<int>(chosen - rows.begin());
        window.File1.Select(row, true);
        window.File1.ListIndex = row;
    }
    window.Text1.Content = piece;
    if (choice.box) {
        choice.box->Value = app.state.*choice.linkedOnTop;
    }
}

void File1_Click(model::BackgroundSound& window) {
    if (const int row = window.File1.ListIndex; row >= 0) {
        window.Text1.Content = FullPath(window, row);
    }
}

void Command1_Click(Application& app, const Choice& choice) {
    const Text piece = choice.window.Text1.Content();
    app.state.*choice.piece = piece;
    RememberFolder(app, text::FolderPart(piece));
    choice.window.Unload();
}

void TakeDrop(model::BackgroundSound& window, const std::vector<Text>& paths) {
    const Text wanted = text::KindOf(window.File1.Pattern());
    const auto found = std::find_if(paths.begin(), paths.end(),
                                    [&](const Text& path) { return text::KindOf(path) == wanted; });
    if (found != paths.end()) {
        window.Text1.Content = *found;
    }
}

void Check1_Click(Application& app, const Choice& choice, bool& informed) {
    const bool on = choice.box->Value == 1;
    app.state.*choice.linkedOnTop = on ? 1 : 0;
    document::FollowMenuVisibility(app);
    if (on && !informed) {
        informed = true;
        // Kept: the window of MP3 says MIDI in its title, too.
        app.platform.dialogs.Message(
            Text(choice.note) + u"\r\n（この設定はＫＶＳファイルに保存されます。）",
            platform::kPlain, u"ＭＩＤＩ再生オプション");
    }
}

void Attach(Application& app, const Choice& choice) {
    model::BackgroundSound& window = choice.window;
    AttachBrowser(window.Drive1, window.Dir1, window.File1);
    window.OnLoad = [&app, choice] { Form_Load(app, choice); };
    window.File1.Click = [&window] { File1_Click(window); };
    window.File1.DblClick = [&app, choice] { Command1_Click(app, choice); };
    window.Command1.Click = [&app, choice] { Command1_Click(app, choice); };
    window.Command2.Click = [&window] { window.Unload(); };
    window.FilesDropped = [&window](const std::vector<Text>& paths) { TakeDrop(window, paths); };
    if (choice.box) {
        choice.box->Click = [&app, choice, informed = std::make_shared<bool>(false)] {
            Check1_Click(app, choice, *informed);
        };
    }
}

}  // namespace

void AttachBackgroundSound(Application& app) {
    using model::ShowState;
    model::Windows& windows = app.windows;
    Attach(app, {windows.form2, &ShowState::WavFile});
    Attach(app,
           {windows.form8, &ShowState::MidiFile, &windows.form8.Check1,
            &ShowState::MidiLinkedWavFlag, u"ＭＩＤＩ再生中に画像連動（ＷＡＶ）を再生します。"});
    Attach(app, {windows.form17, &ShowState::Mp3File, &windows.form17.Check1,
                 &ShowState::Mp3LinkedWavFlag, u"ＭＰ３再生中に画像連動（ＷＡＶ）を再生します。"});
}

}  // namespace authoring
