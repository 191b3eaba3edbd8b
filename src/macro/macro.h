// What the slide step and the transport call of the text macro language.
#pragma once

#include "model/application.h"

namespace macro {

/// Runs the slide's macro file, if it has one: draws its text, carries out its words. Returns when
/// the run has ended; waits, menus and motion happen inside, with events pumped. A jump leaves
/// SlideIndex one before the slide chosen, MacroEndShow 1 and Timer1 of Form1 at 100 ms.
void RunTextMacro(Application& app);

/// What pieces and buttons of the full screen uncover is from now on the clean picture that stands
/// there: P3 becomes P4.
void KeepBackground(Application& app);

/// Hides the macro buttons and menu entries of both windows and clears the 63 picture slots.
void ClearMacroObjects(Application& app);

/// What words set for the whole show goes back: outline colour, line space, frame and ground of
/// overlaid pictures, scale and place of pictures, volume, text origin.
void ResetShowSettings(Application& app);

/// Text file of the slide in force: its path, or its name in the linked folder, with ".txt" in
/// place of the last four characters, whatever they are. Empty for a name that is shorter.
Text MacroFile(const Application& app);
/// The same of any slide: a path of the slide list.
Text MacroFile(const Application& app, TextView slide);

}  // namespace macro
