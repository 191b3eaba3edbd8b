// The transport: START, PAUSE, STOP, previous, next, and the timers of the main window.
#pragma once

#include "model/application.h"

namespace playback {

/// Connects the handlers of Form1's transport buttons, timers and macro buttons.
void AttachTransport(Application& app);

/// Button states of the main window.
enum class Buttons { Idle, Running };
/// Idle enables START and full screen when the list holds entries.
void SetButtons(Application& app, Buttons buttons);

/// The four entries that open and save are hidden while a show runs.
void ShowFileEntries(Application& app, bool visible);
/// The menus that are off while a show runs.
void EnableShowMenus(Application& app, bool enabled);

/// What START and the full screen reset before a run, sound aside.
void ResetRunFields(Application& app);
/// The same, and stops all sound.
void ResetRun(Application& app);

/// Everything STOP clears of the run: flags, indexes, a macro's text origin, Timer1, preview.
void ClearRun(Application& app);

/// Timer1's interval to SlideIntervalSec, as far as a timer can be set.
void SetSlideInterval(Application& app);

/// After a step of a running show: SlideIndex moves on, Timer1 runs.
void Advance(Application& app);

/// One step of a show that stands still. Nothing follows it that would free StepBusy, so it does;
/// a show that lost its last slide in it is stopped. False where the show has ended.
bool RunStepByHand(Application& app);

/// Ends the show as STOP does, also under the lock of a macro, which it takes off.
void StopShow(Application& app);

/// Handlers by name: also called by the control box and the exit.
void Command1_Click(Application& app);  // START
void Command2_Click(Application& app);  // PAUSE
void Command3_Click(Application& app);  // STOP
void Command5_Click(Application& app);  // previous
void Command7_Click(Application& app);  // next
void Timer1_Tick(Application& app);

}  // namespace playback
