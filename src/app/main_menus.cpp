#include "app/main_menus.h"

#include "app/number_dialogs.h"
#include "app/radio_choices.h"
#include "app/sound_menu.h"
#include "authoring/link_list/rows.h"
#include "authoring/shared/open_window.h"
#include "authoring/slide_list/documents.h"
#include "document/settings_to_controls.h"
#include "document/state_files.h"
#include "model/windows/control_box.h"
#include "model/windows/declared_windows.h"
#include "model/windows/link_list.h"
#include "model/windows/linked_folder.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"
#include "picture/overlay.h"
#include "picture/screen.h"
#include "playback/control_box.h"
#include "playback/run.h"

namespace app {

namespace {

using authoring::CanOpen;
using authoring::OpenInstead;
using authoring::OpenModal;
using authoring::OpenWindow;

using Field = int16_t model::ShowState::*;

constexpr size_t kHeaderBytesMost = 1u << 20;
constexpr TextView kHeaderFile = u"header.txt";

/// The canvas takes its ground at once; how pictures are muted shows from the next slide on.
void LayScreenGround(Application& app) {
    if (app.state.OverlayMode != 0) {
        picture::SizeLayers(app);
    }
    picture::ResetCanvasGround(app);
}

void MoveControlBox(Application& app) {
    if (app.windows.slidescreen2.Visible) {
        playback::PlaceControlBox(app);
    }
}

/// The program's own header becomes the chosen one. False, and nothing changed, on a cancel or
/// where the disk refuses.
bool ChooseMacroHeader(Application& app, int index) {
    if (index != 0) {
        return true;
    }
    platform::Dialogs::FileRequest request;
    request.title = u"ユーザマクロヘッダーファイルを選択してください";
    request.filter = u"ヘッダーFiles (header*.txt)|header*.txt|すべてのﾌｧｲﾙ(*.*)|*.*";
    const auto path = app.platform.dialogs.ChooseFile(request);
    if (!path) {
        return false;
    }
    std::string content;
    platform::FileError error;
    platform::Files& files = app.platform.files;
    if (!files.Read(*path, content, error, kHeaderBytesMost) ||
        !files.Write(app.state.AppFolder + Text(kHeaderFile), content, error)) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
        return false;
    }
    app.state.UserHeaderFile = *path;
    return true;
}

/// Menus whose choice does more than the table of choices can say.
struct Exception {
    Field field;
    bool (*before)(Application&, int index);           // false: the choice does not take place
    void (*after)(Application&, int16_t valueBefore);  // with the check moved already
};

constexpr Exception kExceptions[] = {
    {&model::ShowState::SoundMode, PrepareSoundMode,
     [](Application& app, int16_t) { FollowSoundMode(app); }},
    {&model::ShowState::UserHeaderFlag, ChooseMacroHeader, nullptr},
    {&model::ShowState::ShowEffect, nullptr,
     [](Application& app, int16_t) { AskShowEffectCounts(app); }},
    {&model::ShowState::EraseEffect, nullptr,
     [](Application& app, int16_t) { AskEraseEffectCounts(app); }},
    {&model::ShowState::OverlayMode, nullptr,
     [](Application& app, int16_t) { LayScreenGround(app); }},
    {&model::ShowState::ControlBoxPos, nullptr,
     [](Application& app, int16_t) { MoveControlBox(app); }},
    {&model::ShowState::CdOrder, nullptr, FollowCdOrder},
};

const Exception& ExceptionOf(Field field) {
    static constexpr Exception kNone{};
    for (const Exception& exception : kExceptions) {
        if (exception.field == field) {
            return exception;
        }
    }
    return kNone;
}

const RadioChoice& ChoiceOf(Field field, int value) {
    static const RadioChoice kNone{};
    for (const RadioChoice& choice : RadioChoices()) {
        if (choice.field == field && choice.value == value) {
            return choice;
        }
    }
    return kNone;
}

void ChooseRadio(Application& app, Field field, int index) {
    const Exception& exception = ExceptionOf(field);
    if (exception.before && !exception.before(app, index)) {
        return;
    }
    const int16_t valueBefore = app.state.*field;
    app.state.*field = static_cast<int16_t>(index);
    const RadioChoice& choice = ChoiceOf(field, index);
    for (const ForcedSetting& forced : choice.forced) {
        app.state.*forced.field = forced.value;
    }
    document::FollowAllSettings(app);
    if (exception.after) {
        exception.after(app, valueBefore);
    }
    if (!choice.note.empty()) {
        app.platform.dialogs.Message(choice.note, platform::kPlain, choice.title);
    }
}

void OpenFromMenu(Application& app) {
    if (authoring::OpenDocument(app)) {
        playback::SetButtons(app, playback::Buttons::Idle);
    }
}

void OpenFourPictures(Application& app) {
    const auto refuse = [&](TextView text) {
        app.platform.dialogs.Message(text, platform::kExclamation, u"４画面表示");
    };
    if (app.state.SlideListWindowOpen == 1) {
        refuse(u"ファイル選択を終了させてから行って下さい。");
    } else if (app.state.LinkWindowOpen == 1) {
        refuse(u"ＫＶＳリンクを終了させてから行って下さい。");
    } else {
        OpenWindow(app, app.windows.form5);
    }
}

void OpenHelp(Application& app, const Text& name) {
    const Text path = app.state.AppFolder + name;
    if (!app.platform.files.Exists(path) || !app.platform.system.OpenText(path)) {
        app.platform.dialogs.Message(name + u"が読込めません。", platform::kExclamation,
                                     u"読込みエラー");
    }
}

void AttachFileMenu(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.mnuNEW.Click = [&app] {
        if (app.state.FourViewOpen == 1) {
            app.windows.form5.Unload();
        }
        if (authoring::NewDocument(app)) {
            authoring::ClearLinkList(app);
            document::WriteLinkStateFile(app);
        }
    };
    form1.mnuOPEN.Click = [&app] { OpenFromMenu(app); };
    form1.mnuSAVE.Click = [&app] { authoring::SaveDocument(app); };
    form1.mnuHAIHU.Click = [&app] { authoring::SaveForDistribution(app); };
    form1.nmuEND.Click = [&app] { app.windows.form1.Unload(); };
}

void AttachDialogs(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.mnuTIME.Click = [&app] { AskSlideInterval(app); };
    form1.mnuHKSP.Click = [&app] { AskShowEffectSpeed(app); };
    form1.mnuSKSP.Click = [&app] { AskEraseEffectSpeed(app); };
    form1.mnuHOSEI.Click = [&app] { AskEffectSpeedTrim(app); };
    form1.mnuCD.Click = [&app] { AskCdTrack(app); };
    form1.mnuGAI.Click = [&app] { OpenHelp(app, u"機能概要.txt"); };
    form1.mnuREADME.Click = [&app] { OpenHelp(app, u"Readme.txt"); };
    form1.mnuSUB.Click = [&app] { OpenHelp(app, u"マクロ.txt"); };
}

void OpenSchedule(Application& app) {
    model::Windows& windows = app.windows;
    if (CanOpen(app, windows.form22)) {
        windows.SetPointer(model::kPointerBusy);
        OpenInstead(app, windows.form22);
        windows.SetPointer(model::kPointerNormal);
    }
}

void AttachWindows(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.mnuWAVLIST.Click = [&app] { OpenWindow(app, app.windows.form10); };
    form1.mnuRENF.Click = [&app] { OpenModal(app, app.windows.form12); };
    form1.mnuICHI.Click = [&app] { OpenFourPictures(app); };
    form1.mnuURU.Click = [&app] { OpenInstead(app, app.windows.form9); };
    form1.Command6.Click = [&app] { OpenWindow(app, app.windows.form3); };
    form1.Command10.Click = [&app] { OpenWindow(app, app.windows.form10); };
    form1.Command11.Click = [&app] { OpenSchedule(app); };
}

}  // namespace

void AttachMainMenus(Application& application) {
    AttachFileMenu(application);
    AttachDialogs(application);
    AttachWindows(application);
    model::Form1& form1 = application.windows.form1;
    for (const document::RadioMenu& row : document::RadioMenus()) {
        (form1.*row.menu).Click = [&application, field = row.field](int index) {
            ChooseRadio(application, field, index);
        };
    }
}

}  // namespace app
