#include "playback/macro_clicks.h"

#include <algorithm>

#include "macro/cutouts.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "picture/video_window.h"
#include "playback/control_box.h"
#include "text/paths.h"

namespace playback {

namespace {

constexpr int kAsynchronousWithoutDefault = 3;

/// -1 counts the transport's own step forward, so that a jump of 1 is the next slide.
void JumpBy(Application& app, int jump) {
    model::ShowState& state = app.state;
    state.SlideIndex = static_cast<int16_t>(std::clamp(state.SlideIndex + jump - 1, 0, 32767));
    state.MacroButtonsShown = 0;
    state.MacroDelayWaiting = 0;
    state.MacroJumpChosen = 1;
}

void ChooseMenu(Application& app, size_t entry) {
    JumpBy(app, app.state.MenuJump[entry]);
}

/// A bare name that is not beside the slide may be the document's or the system's.
void StartProgram(Application& app, const Text& action) {
    const Text path = text::Trim(action);
    app.platform.trace.Event("shell", {{"command", path}});
    const bool missed =
        !app.platform.files.Find(path) && text::FolderPart(path) == macro::SlideFolder(app);
    app.platform.system.Shell(missed ? text::BareName(path) : path, app.state.DocumentPath);
}

void ClickObject(Application& app, size_t object) {
    const Text action = app.state.CutoutAction[object];
    const Text kind = text::KindOf(action);
    if (kind == u"WAV") {
        app.platform.sound.SndPlaySound(action, kAsynchronousWithoutDefault);
    } else if (kind == u"EXE") {
        StartProgram(app, action);
    } else if (text::IsVideoKind(action)) {
        picture::ShowVideo(app, action);
        if (app.state.FullScreenActive == 1) {
            app.windows.slidescreen.P2.SetFocus();
        }
    }
    if (app.state.CutoutJump[object] != 0) {
        JumpBy(app, app.state.CutoutJump[object]);
    }
}

/// Runs what a click on an object of the full screen does, between what all of them do.
template <class Action>
auto OnScreen(Application& app, Action action) {
    return [&app, action] {
        app.state.UserInputSeen = 1;
        app.windows.slidescreen.P2.SetFocus();
        action();
        BringUpControlBox(app);
    };
}

}  // namespace

void AttachWindowMacroClicks(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.Command8.Click = [&app] { app.state.MacroNextPressed = 1; };
    form1.Command9.Click = [&app] { app.state.MacroBackPressed = 1; };
    size_t entry = 1;
    for (model::Button* button :
         {&form1.menu1, &form1.menu2, &form1.menu3, &form1.menu4, &form1.menu5}) {
        button->Click = [&app, entry] { ChooseMenu(app, entry); };
        ++entry;
    }
    size_t object = 0;
    for (auto& picture : form1.Picture2) {
        picture->Click = [&app, object] { ClickObject(app, object); };
        ++object;
    }
}

void AttachScreenMacroClicks(Application& app) {
    model::Slidescreen& screen = app.windows.slidescreen;
    screen.Command1.Click = OnScreen(app, [&app] { app.state.MacroNextPressed = 1; });
    screen.Command2.Click = OnScreen(app, [&app] { app.state.MacroBackPressed = 1; });
    size_t entry = 1;
    for (model::Button* button :
         {&screen.menu1, &screen.menu2, &screen.menu3, &screen.menu4, &screen.menu5}) {
        button->Click = OnScreen(app, [&app, entry] { ChooseMenu(app, entry); });
        ++entry;
    }
    size_t object = 0;
    for (auto& picture : screen.Picture1) {
        picture->Click = OnScreen(app, [&app, object] { ClickObject(app, object); });
        ++object;
    }
}

}  // namespace playback
