// What the slide step and the transport call of the text macro language.
#pragma once

#include "model/application.h"

namespace macro {

/// Runs the slide's macro file. Not built yet: does nothing.
void RunTextMacro(Application& app);

/// Hides the macro buttons and menu entries of both windows and clears the 63 picture slots.
void ClearMacroObjects(Application& app);

/// Text settings back to those of a fresh show. Not built yet: does nothing.
void ResetTextSettings(Application& app);

}  // namespace macro
