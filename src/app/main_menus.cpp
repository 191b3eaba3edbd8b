#include "app/main_menus.h"

#include "authoring/slide_list.h"
#include "document/settings_to_controls.h"
#include "picture/overlay.h"
#include "picture/screen.h"
#include "playback/transport.h"

namespace app {

namespace {

constexpr int16_t kFixedEffectSpeed = -30;

/// Settings that must follow when another was chosen: a random show cannot stop by itself.
void ForcePartners(model::ShowState& state, int16_t model::ShowState::*chosen) {
    if (chosen == &model::ShowState::RandomFlag && state.RandomFlag == 0) {
        state.RepeatFlag = 0;
    } else if (chosen == &model::ShowState::RepeatFlag && state.RepeatFlag == 1) {
        state.RandomFlag = 1;
    } else if (chosen == &model::ShowState::EffectSpeedFixed && state.EffectSpeedFixed == 1) {
        state.ShowEffectSpeed = kFixedEffectSpeed;
        state.EraseEffectSpeed = kFixedEffectSpeed;
    } else if (chosen == &model::ShowState::StartOption && state.StartOption == 0) {
        state.ResumeIndex = 0;
    } else if (chosen == &model::ShowState::CdOrder && state.CdOrder == 0) {
        state.CdTrackSetting = u"1";
    }
}

/// The canvas takes its ground at once; how pictures are muted shows from the next slide on.
void LayScreenGround(Application& app) {
    if (app.state.OverlayMode != 0) {
        picture::SizeLayers(app);
    }
    picture::ResetCanvasGround(app);
}

void ChooseRadio(Application& app, const document::RadioMenu& row, int index) {
    app.state.*row.field = static_cast<int16_t>(index);
    ForcePartners(app.state, row.field);
    if (row.field == &model::ShowState::OverlayMode) {
        LayScreenGround(app);
    }
    document::FollowAllSettings(app);
}

void OpenFromMenu(Application& app) {
    if (authoring::OpenDocument(app)) {
        playback::SetButtons(app, playback::Buttons::Idle);
    }
}

}  // namespace

void AttachMainMenus(Application& application) {
    model::Form1& form1 = application.windows.form1;
    form1.mnuNEW.Click = [&application] {
        if (application.state.FourViewOpen == 1) {
            application.windows.form5.Unload();
        }
        authoring::NewDocument(application);
    };
    form1.mnuOPEN.Click = [&application] { OpenFromMenu(application); };
    form1.mnuSAVE.Click = [&application] { authoring::SaveDocument(application); };
    form1.mnuHAIHU.Click = [&application] { authoring::SaveForDistribution(application); };
    form1.nmuEND.Click = [&application] { application.windows.form1.Unload(); };
    for (const document::RadioMenu& row : document::RadioMenus()) {
        (form1.*row.menu).Click = [&application, &row](int index) {
            ChooseRadio(application, row, index);
        };
    }
}

}  // namespace app
