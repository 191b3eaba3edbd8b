#include "document/settings_to_controls.h"

#include "model/sound_modes.h"
#include "model/windows/background_sound.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"
#include "model/windows/text_display.h"

namespace document {

namespace {

using model::Form1;
using model::ShowState;

void CheckMenus(Application& app, bool all) {
    for (const RadioMenu& menu : RadioMenus()) {
        if (all || menu.keptInDocument) {
            (app.windows.form1.*menu.menu).Check(app.state.*menu.field);
        }
    }
}

}  // namespace

const std::vector<RadioMenu>& RadioMenus() {
    static const std::vector<RadioMenu> table{
        {&Form1::mnuFULL_FL, &ShowState::AlwaysFullFlag, true},
        {&Form1::mnuYOMI, &ShowState::LoadMode, true},
        {&Form1::mnuKUFL, &ShowState::RepeatFlag, true},
        {&Form1::mnuKOU, &ShowState::SoundMode, true},
        {&Form1::mnuDOU, &ShowState::SoundSyncFlag, true},
        {&Form1::mnuKOICHI1, &ShowState::LinkedSoundPosition, true},
        {&Form1::mnuTEXT, &ShowState::TextMacroFlag, true},
        {&Form1::mnuRANDFL, &ShowState::RandomFlag, true},
        {&Form1::mnuAUT, &ShowState::AutoStartFlag, false},
        {&Form1::mnuCTL, &ShowState::ControlBoxFlag, false},
        {&Form1::mnuCTL_P, &ShowState::ControlBoxPos, false},
        {&Form1::mnuSIZE, &ShowState::SizeAdjust, false},
        {&Form1::mnuLSAKU, &ShowState::ListErrorDelete, false},
        {&Form1::mnuSOP1, &ShowState::StartOption, false},
        {&Form1::mnuSTKAKU, &ShowState::FullStartConfirm, false},
        {&Form1::mnuJYUF, &ShowState::AllowDuplicate, false},
        {&Form1::menuHEAD, &ShowState::UserHeaderFlag, false},
        {&Form1::mnuHKO, &ShowState::ShowEffect, true},
        {&Form1::mnuSYOUKO, &ShowState::EraseEffect, true},
        {&Form1::mnuKSPSEL, &ShowState::EffectSpeedFixed, true},
        {&Form1::mnuKASANE, &ShowState::OverlayMode, true},
        {&Form1::mnuKAIRO, &ShowState::OverlayBackColor, true},
        {&Form1::mnuKASAS, &ShowState::OverlaySize, true},
        {&Form1::mnuHICHI, &ShowState::PicturePosition, true},
        {&Form1::mnuCDRND, &ShowState::CdOrder, true},
        {&Form1::mnuCDR, &ShowState::CdRepeatFlag, true},
        {&Form1::mnuCDWAV, &ShowState::CdPlusLinkedWav, true},
    };
    return table;
}

void FollowMenuVisibility(Application& app) {
    const ShowState& state = app.state;
    Form1& form1 = app.windows.form1;
    form1.mnuCDM.Visible = state.SoundMode == model::kCdSound;
    form1.mnuHKSP.Visible = state.EffectSpeedFixed == 0;
    form1.mnuSKSP.Visible = state.EffectSpeedFixed == 0;
    form1.mnuKAHAI.Visible = state.OverlayMode != 0;
    form1.mnuCD.Visible = state.CdOrder == 0;
    form1.mnuCDRP.Visible = state.CdOrder == 0;
    // No step waits for linked MIDI and MP3.
    const bool linkedMusic = model::SoundModeInForce(state).piece == &ShowState::LinkedMediaPath;
    form1.mnuDOUKI.Visible = model::SoundsWithPictures(state) && !linkedMusic;
    form1.mnuKOICHI.Visible = model::SoundsWithPictures(state);
}

void FollowSoundListBoxes(Application& app) {
    const ShowState& state = app.state;
    model::Form10& form10 = app.windows.form10;
    form10.Check1.Value = state.SoundListUsed;
    form10.Check3.Value = state.SoundMode == model::kListSound ? 1 : 0;
    form10.Check4.Value = state.SoundSyncFlag == 0 ? 1 : 0;
    form10.Check5.Value = state.SoundListCheck5;
    form10.Check6.Value = state.SoundListCheck6;
}

void FollowDocumentSettings(Application& app) {
    const ShowState& state = app.state;
    CheckMenus(app, false);
    FollowMenuVisibility(app);
    app.windows.form8.Check1.Value = state.MidiLinkedWavFlag;
    app.windows.form17.Check1.Value = state.Mp3LinkedWavFlag;
    FollowSoundListBoxes(app);
}

void FollowAllSettings(Application& app) {
    const ShowState& state = app.state;
    FollowDocumentSettings(app);
    CheckMenus(app, true);
    auto& form3 = app.windows.form3;
    form3.Check1.Value = state.ListShowPicture;
    form3.Check2.Value = state.ListDblClickRecord;
    form3.Check3.Value = state.ListDblClickWallpaper;
    form3.Check4.Value = state.ListDblClickText;
    form3.Check5.Value = state.ListDblClickStart;
    auto& form15 = app.windows.form15;
    form15.Option1.Value = state.TextOriginScreen == 0;
    form15.Option2.Value = state.TextOriginScreen != 0;
    auto& form9 = app.windows.form9;
    form9.Check1.Value = state.LinkAutoFlag;
    form9.Check2.Value = state.LinkRepeat;
    form9.Check3.Value = state.LinkCheck3;
}

}  // namespace document
