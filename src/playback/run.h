// The run of a show: its buttons and menus, what a start resets, PAUSE and STOP, and what every end
// has in common.
#pragma once

#include "model/application.h"

namespace playback {

/// Button states of the main window.
enum class Buttons { Idle, Running };
/// Idle enables START and full screen when the list holds entries.
void SetButtons(Application& app, Buttons buttons);

struct BoxButtons {
    bool close = false, start = false, pause = false, previous = false, next = false;
};
/// Enables exactly the buttons given of the control box.
void SetBoxButtons(Application& app, const BoxButtons& buttons);

/// The four entries that open and save are hidden while a show runs.
void ShowFileEntries(Application& app, bool visible);
/// The menus that are off while a show runs.
void EnableShowMenus(Application& app, bool enabled);

/// True, and told, while the slide list's window is open: no show starts then.
bool RefusedByListWindow(Application& app);

/// What START and the full screen reset before a run, sound aside.
void ResetRunFields(Application& app);
/// The same, and stops all sound.
void ResetRun(Application& app);

/// With StartOption 1: SlideIndex becomes ResumeIndex, or 0 where no slide follows it.
void TakeResumeIndex(Application& app);
/// SlideIndex becomes that of a requested jump (which is then used up), else goes up by 1.
void TakeStartIndex(Application& app);

/// Timer1's interval to SlideIntervalSec, as far as a timer can be set.
void SetSlideInterval(Application& app);

/// What every end of a show has in common: flags, indexes and a macro's text origin are cleared,
/// Timer1 stops, the preview empties, buttons and menus are those of a show that does not run. A
/// step in progress notices. Sound and full screen are the caller's.
void EndRun(Application& app);

/// Stops what a show plays, the CD too; the caption is the document's again.
void StopShowSound(Application& app);

/// Unloads the full screen, which ends its show, and brings the main window back.
void CloseFullScreen(Application& app);

/// Ends the show as STOP does, also under the lock of a macro, which it takes off.
void StopShow(Application& app);

/// Handlers by name.
void Command2_Click(Application& app);  // PAUSE
void Command3_Click(Application& app);  // STOP

}  // namespace playback
