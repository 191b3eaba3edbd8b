// Form24: plays the videos of slides, of macros and of clicks.
#pragma once

#include "model/application.h"

namespace picture {

/// Connects the handlers of Form24, and that of the guard in Form3.Timer1.
void AttachVideoWindow(Application& app);

/// Plays the file in the modal window and returns when that is closed, at the end of the video at
/// the latest. VideoStoppedByUser is 1 when Esc or Enter ended it or it could not be played.
void PlayVideo(Application& app, const Text& path);

/// Plays the file and goes on; the window closes at the end of the video.
void ShowVideo(Application& app, const Text& path);

/// What a macro may do with the window.
enum class MacroMovie {
    Open = 0,   // go on at once; the window stays when the video has ended
    Modal = 1,  // go on when the window is closed, at the end of the video at the latest
    Loop = 2,   // go on at once; the video plays over and over
};

/// A macro's video: with any other mode the file is only opened, and so is one that is missing. An
/// empty path ends what plays and closes the window.
void ShowMacroMovie(Application& app, const Text& path, int mode);

}  // namespace picture
