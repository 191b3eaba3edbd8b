// Form24: plays a video.
#pragma once

#include "model/window.h"

namespace model {

struct Form24 : Window {
    Form24() : Window("Form24") {
        Width = 14400;  // 960 x 540 pixels
        Height = 8100;
    }

    Player WindowsMediaPlayer1{this, "WindowsMediaPlayer1"};
    Timer Timer1{this, "Timer1", 100};  // asks the player how far it is
    Timer Timer2{this, "Timer2", 500};  // one shot: the click that opened the window closes nothing
};

}  // namespace model
