#include "authoring/sound_list/check_boxes.h"

#include <memory>

#include "document/settings_to_controls.h"
#include "model/sound_modes.h"
#include "model/windows/sound_list.h"
#include "sound/sound.h"

namespace authoring {

namespace {

using model::Application;

struct Box {
    model::CheckBox model::Form10::*box;
    int16_t model::ShowState::*flag;
    bool reversed;  // ticked, the flag is 0
};

constexpr Box kBoxes[] = {
    {&model::Form10::Check1, &model::ShowState::SoundListUsed, false},
    {&model::Form10::Check4, &model::ShowState::SoundSyncFlag, true},
    {&model::Form10::Check5, &model::ShowState::SoundListCheck5, false},
    {&model::Form10::Check6, &model::ShowState::SoundListCheck6, false},
};

/// A running show changes over at once; otherwise nothing is heard before a start.
void ChooseMode(Application& app, int16_t mode) {
    if (app.state.ShowRunning == 1) {
        sound::SetSoundMode(app, mode);
    } else {
        app.state.SoundMode = mode;
        app.state.SoundPaused = 0;
    }
    document::FollowAllSettings(app);
}

/// `before`: the mode that the list took the place of.
void Check3_Click(Application& app, int16_t& before) {
    if (app.windows.form10.Check3.Value == 0) {
        ChooseMode(app, before);
    } else if (app.state.SoundMode != model::kListSound) {
        before = app.state.SoundMode;
        ChooseMode(app, model::kListSound);
    }
}

}  // namespace

void AttachSoundBoxes(Application& app) {
    model::Form10& form10 = app.windows.form10;
    for (const Box& box : kBoxes) {
        (form10.*box.box).Click = [&app, &box] {
            const bool ticked = (app.windows.form10.*box.box).Value == 1;
            app.state.*box.flag = ticked != box.reversed ? 1 : 0;
            document::FollowAllSettings(app);
        };
    }
    form10.Check3.Click = [&app, before = std::make_shared<int16_t>(model::kNoSound)] {
        Check3_Click(app, *before);
    };
}

}  // namespace authoring
