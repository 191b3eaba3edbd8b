// Form24: plays a video.
#pragma once

#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/window.h"
#include "platform/imaging.h"

namespace model {

struct Form24 : Window {
    Form24() : Window("Form24") {
        Width = 14400;  // 960 x 540 pixels, until a film says its own
        Height = 8100;
    }

    /// What the film stands beside, which decides its size.
    enum class Purpose {
        Slide,   // nothing: it is the slide
        Beside,  // a slide with its texts and buttons: a macro's film, or a piece's
    };
    Purpose purpose = Purpose::Slide;
    platform::Size placedFor;  // size of the film that window and player were placed for

    /// In the window's twips. The window around it is black.
    Player WindowsMediaPlayer1{this, "WindowsMediaPlayer1"};
    Timer Timer1{this, "Timer1", 100};  // asks the player how far it is
    Timer Timer2{this, "Timer2", 500};  // one shot: the click that opened the window closes nothing
};

}  // namespace model
