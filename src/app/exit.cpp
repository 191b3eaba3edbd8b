#include "app/exit.h"

#include "app/window_size.h"
#include "authoring/slide_list/linked_work.h"
#include "document/state_files.h"
#include "model/controls.h"
#include "model/windows/background_sound.h"
#include "model/windows/cd_program.h"
#include "model/windows/control_box.h"
#include "model/windows/declared_windows.h"
#include "model/windows/link_list.h"
#include "model/windows/linked_folder.h"
#include "model/windows/linked_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "picture/effect_context.h"
#include "playback/run.h"
#include "sound/cd.h"
#include "sound/sound.h"

namespace app {

namespace {

void WriteStateFiles(Application& application) {
    document::WriteLinkStateFile(application);
    document::WriteStateFile(application);
    document::WriteSoundListFile(application);
    application.state.StateAtHand = false;
}

}  // namespace

void LeaveProgram(Application& application) {
    if (!application.state.StateAtHand && !application.windows.form1.Unloading()) {
        throw platform::ProgramEnd{};
    }
    application.windows.form1.Unload();
}

void SaveState(Application& application) {
    model::ShowState& state = application.state;
    if (!state.StateAtHand) {
        return;
    }
    const int16_t soundMode = state.SoundMode;
    const int16_t mp3Mode = state.Mp3ModeFlag;
    KeepWindowSize(application);
    WriteStateFiles(application);
    state.SoundMode = soundMode;
    state.Mp3ModeFlag = mp3Mode;
    state.StateAtHand = true;
}

void ExitProgram(Application& application) {
    model::ShowState& state = application.state;
    model::Windows& windows = application.windows;
    playback::SetSlideInterval(application);
    state.SlideListDirty = 0;
    state.LinkListDirty = 0;
    picture::ReleaseEffectContext(application);
    authoring::StopLinkedWork(application);
    sound::StopCd(application);
    sound::StopSound(application);
    WriteStateFiles(application);
    windows.slidescreen.P2.SetPicture(nullptr);
    windows.form1.Picture1.SetPicture(nullptr);
    windows.form4.Picture1.SetPicture(nullptr);
    state.LeadPictureHeld = 0;
    for (model::LeadControl* lead : {&windows.form4.Lead1, &windows.form4.Lead2}) {
        if (lead->imaging) {
            lead->imaging->Clear();
        }
    }
    for (model::Window* window : std::initializer_list<model::Window*>{
             &windows.form2, &windows.form3, &windows.form4, &windows.form5, &windows.form6,
             &windows.form7, &windows.form8, &windows.form9, &windows.form10, &windows.form11,
             &windows.form12, &windows.form13, &windows.form14}) {
        window->Unload();
    }
    windows.slidescreen2.Hide();
    windows.slidescreen.Hide();
    windows.form1.Hide();
    windows.form1.Loaded = false;
    throw platform::ProgramEnd{};
}

}  // namespace app
