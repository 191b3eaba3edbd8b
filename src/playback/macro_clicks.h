// What a person can click of a macro: Yes and No, the menu entries and the picture objects, in the
// main window and in full screen.
#pragma once

#include "model/application.h"

namespace playback {

/// Connects Form1's Command8, Command9, menu1 to menu5 and Picture2.
void AttachWindowMacroClicks(Application& app);

/// Connects Slidescreen's Command1, Command2, menu1 to menu5 and Picture1. There every click also
/// sets UserInputSeen, gives P2 the keyboard and brings the control box up.
void AttachScreenMacroClicks(Application& app);

}  // namespace playback
