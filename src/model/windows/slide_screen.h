// Slidescreen: the borderless window that presents a show on a whole monitor.
#pragma once

#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/window.h"

namespace model {

struct Slidescreen : Window {
    Slidescreen();

    PictureBox P2{this, "P2"};  // visible canvas
    PictureBox P3{this, "P3"};  // background under macro objects
    PictureBox P4{this, "P4"};  // canvas without text
    ControlArray<PictureBox> Picture1{this, "Picture1", 0, 63, true};  // cut-out pieces
    PictureBox Picture2{this, "Picture2"};                             // stands in for a video
    Label Label1{this, "Label1"};                                      // scrolling text
    Timer Timer1{this, "Timer1"};                                      // scrolls the text
    Button Command1{this, "Command1", u"Yes"};
    Button Command2{this, "Command2", u"No"};
    Button menu1{this, "menu1"};
    Button menu2{this, "menu2"};
    Button menu3{this, "menu3"};
    Button menu4{this, "menu4"};
    Button menu5{this, "menu5"};

    /// A document brought other settings of the ground: what stands on the layers goes.
    Event<> GroundChanged;
};

}  // namespace model
