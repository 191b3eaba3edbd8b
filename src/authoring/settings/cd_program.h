// Form14: the order in which a show plays the tracks of an audio CD.
#pragma once

#include "model/application.h"

namespace authoring {

/// Attaches the handlers of Form14, whose OK sets CdProgram, CdProgramCount and CdTrackSetting.
/// Its box sets CdProgramStop at once; leaving the window in another way takes that back.
void AttachCdProgram(model::Application& app);

/// Opens the window, as a modal one, with a button for each track of the disc; without a disc
/// that can be played a box says so. May throw ProgramEnd.
void OpenCdProgram(model::Application& app);

}  // namespace authoring
