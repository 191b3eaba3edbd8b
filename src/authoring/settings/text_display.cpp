#include "authoring/settings/text_display.h"

#include "model/monitors.h"
#include "model/windows/main_window.h"
#include "model/windows/text_display.h"

namespace authoring {

namespace {

using model::Application;

void FollowSettings(Application& app) {
    model::Form15& form15 = app.windows.form15;
    form15.Option1.Value = app.state.TextOriginScreen == 0;
    form15.Option2.Value = app.state.TextOriginScreen == 1;
    form15.Check1.Value = app.state.TextMacroFlag == 0 ? 1 : 0;
}

void Form_Activate(Application& app) {
    FollowSettings(app);
    model::CentreOnMonitor(app, app.windows.form15);
}

void Check1_Click(Application& app) {
    app.state.TextMacroFlag = app.windows.form15.Check1.Value == 1 ? 0 : 1;
    app.windows.form1.mnuTEXT.Check(app.state.TextMacroFlag);
}

}  // namespace

void AttachTextDisplay(Application& app) {
    model::Form15& form15 = app.windows.form15;
    form15.OnLoad = [&app] { FollowSettings(app); };
    form15.OnActivate = [&app] { Form_Activate(app); };
    form15.Option1.Click = [&app] { model::ChooseTextOrigin(app.state, 0); };
    form15.Option2.Click = [&app] { model::ChooseTextOrigin(app.state, 1); };
    form15.Check1.Click = [&app] { Check1_Click(app); };
    form15.Command1.Click = [&form15] { form15.Unload(); };
}

}  // namespace authoring
