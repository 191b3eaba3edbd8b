// Slidescreen2: the small box that drives a show in full screen. It cannot be closed.
#pragma once

#include "model/controls.h"
#include "model/window.h"

namespace model {

struct Slidescreen2 : Window {
    Slidescreen2() : Window("Slidescreen2") {
        Width = 3360;  // 224 by 72 pixels: a caption over five buttons
        Height = 1080;
    }

    Button Command1{this, "Command1"};  // close
    Button Command2{this, "Command2"};  // START
    Button Command3{this, "Command3"};  // PAUSE
    Button Command4{this, "Command4"};  // previous
    Button Command5{this, "Command5"};  // next
};

}  // namespace model
