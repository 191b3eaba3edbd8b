#include "macro/buttons.h"

#include <algorithm>

#include "macro/arguments.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "picture/screen.h"
#include "platform/monitors.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr int kGap = 4;  // pixels between Yes and No
// Pixels: a menu button is as wide as its caption asks, with so much beside it.
constexpr int kMenuMargin = 40;
constexpr int kMenuWidth[] = {80, 800};

void Place(model::VisibleControl& control, int x, int y) {
    control.Left = x;
    control.Top = y;
    control.Visible = true;
}

void PlaceYesNo(Run& run) {
    model::Form1& form1 = run.app.windows.form1;
    model::Slidescreen& screen = run.app.windows.slidescreen;
    const int screenX = run.state.TextOriginX + run.CurrentXValue;
    const int screenY = screen.P2.canvas.penY;
    const int windowY = form1.Picture1.canvas.penY;
    Place(screen.Command1, screenX, screenY);
    Place(screen.Command2, screenX + PlaceOf(screen.Command1).width + kGap, screenY);
    Place(form1.Command8, run.CurrentXValue, windowY);
    Place(form1.Command9, run.CurrentXValue + PlaceOf(form1.Command8).width + kGap, windowY);
}

/// The pressed button's jump; GoOn where its number is 0. A number beyond 16 bits is passed over.
Flow Answer(Run& run, double slides) {
    const auto index = text::ToInt16(run.state.SlideIndex + slides - 1);
    if (slides != 0 && index) {
        // -1 counts the transport's own step forward.
        run.state.SlideIndex = std::max<int16_t>(*index, 0);
        return Flow::Jump;
    }
    run.state.MacroNextPressed = 0;
    run.state.MacroBackPressed = 0;
    return Flow::GoOn;
}

Flow AfterYesNo(Run& run, double yes, double no) {
    model::ShowState& state = run.state;
    if (state.MacroJumpChosen == 1) {
        state.MacroNextPressed = 2;
        state.MacroBackPressed = 2;
        return Flow::Jump;
    }
    if (state.FullScreenClosed == 1) {
        state.MacroButtonsShown = 0;
        state.MacroJumpChosen = 0;
    }
    if (state.MacroNextPressed == 1) {
        return Answer(run, yes);
    }
    if (state.MacroBackPressed == 1) {
        return Answer(run, no);
    }
    return Flow::GoOn;
}

void ClearOldMenu(Run& run, size_t entry, model::Button& button) {
    model::ShowState& state = run.state;
    if (state.MenuActive[entry] != 1 || !InFullScreen(state)) {
        return;
    }
    button.Visible = false;
    run.app.platform.loop.PumpEvents();
    picture::CopyPicture(run.app, run.app.windows.slidescreen.P2, PlaceOf(button));
}

/// The digit after MENU, 1 to 5; 0 where there is none of them.
size_t MenuNumber(TextView line) {
    const char16_t digit = line.size() > 4 ? line[4] : u'0';
    return digit >= u'1' && digit <= u'5' ? static_cast<size_t>(digit - u'0') : 0;
}

}  // namespace

platform::Rect PlaceOf(const model::VisibleControl& control) {
    return {control.Left, control.Top, control.Width / platform::kTwipsPerPixel,
            control.Height / platform::kTwipsPerPixel};
}

std::array<model::Button*, 5> MenuButtons(model::Form1& form1) {
    return {&form1.menu1, &form1.menu2, &form1.menu3, &form1.menu4, &form1.menu5};
}

std::array<model::Button*, 5> MenuButtons(model::Slidescreen& screen) {
    return {&screen.menu1, &screen.menu2, &screen.menu3, &screen.menu4, &screen.menu5};
}

void HideButtons(Application& app) {
    model::Form1& form1 = app.windows.form1;
    model::Slidescreen& screen = app.windows.slidescreen;
    for (model::Button* button :
         {&form1.Command8, &form1.Command9, &screen.Command1, &screen.Command2}) {
        button->Visible = false;
    }
    for (const auto& menu : {MenuButtons(form1), MenuButtons(screen)}) {
        for (model::Button* button : menu) {
            button->Visible = false;
        }
    }
}

Flow YesNoButtons(Run& run, double) {
    model::ShowState& state = run.state;
    model::Slidescreen& screen = run.app.windows.slidescreen;
    FocusScreen(run.app);
    state.MacroNextPressed = 0;
    state.MacroBackPressed = 0;
    const auto fields = CallFields(run.MacroLineUpper, 2);
    const double yes = NumberField(fields, 0);
    const double no = NumberField(fields, 1);
    if (yes == 0 && no == 0) {
        return Flow::GoOn;
    }
    PlaceYesNo(run);
    ShowPointer(run.app);
    while (state.MacroNextPressed == 0 && state.MacroBackPressed == 0 &&
           state.MacroJumpChosen == 0 && !Stopping(state)) {
        WaitOnePass(run.app);
    }
    if (model::StepOutlived(state)) {
        return Flow::Stop;
    }
    const Flow flow = AfterYesNo(run, yes, no);
    if (flow == Flow::Jump) {
        return flow;
    }
    for (model::Button* button :
         {&screen.Command1, &screen.Command2, &run.app.windows.form1.Command8,
          &run.app.windows.form1.Command9}) {
        button->Visible = false;
    }
    run.app.platform.loop.PumpEvents();
    if (InFullScreen(state)) {
        RestoreBackground(run.app, PlaceOf(screen.Command1));
        RestoreBackground(run.app, PlaceOf(screen.Command2));
    }
    return flow;
}

Flow MenuButton(Run& run, double) {
    model::ShowState& state = run.state;
    model::Form1& form1 = run.app.windows.form1;
    model::Slidescreen& screen = run.app.windows.slidescreen;
    const size_t entry = MenuNumber(run.MacroLineUpper);
    const auto fields = CallFields(run.MacroLine, 2);
    const auto jump = text::ToInt16(NumberField(fields, 0));
    if (entry != 0) {
        model::Button& onScreen = *MenuButtons(screen)[entry - 1];
        model::Button& inWindow = *MenuButtons(form1)[entry - 1];
        ClearOldMenu(run, entry, onScreen);
        if (Stopping(state)) {
            return Flow::Stop;  // the objects were cleared meanwhile: none may come up now
        }
        state.MenuJump[entry] = jump.value_or(0);
        state.MenuActive[entry] = 1;
        const Text caption = CallText(run.MacroLine, 1, Unwrapped);
        const int text = run.app.platform.textRenderer.Measure({}, caption).width;
        const int width = std::clamp(text + kMenuMargin, kMenuWidth[0], kMenuWidth[1]);
        for (model::Button* button : {&inWindow, &onScreen}) {
            button->Caption = caption;
            button->Width = width * platform::kTwipsPerPixel;
        }
        Place(inWindow, run.CurrentXValue, form1.Picture1.canvas.penY);
        Place(onScreen, state.TextOriginX + run.CurrentXValue, screen.P2.canvas.penY);
    }
    // Kept: a menu that is not there makes the slide wait all the same.
    state.MacroButtonsShown = 1;
    SetLine(run, u"\n");
    ShowPointer(run.app);
    FocusScreen(run.app);
    return Flow::GoOn;
}

}  // namespace macro
