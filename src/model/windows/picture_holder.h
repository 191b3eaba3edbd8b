// Form4: never shown; holds the off-screen picture and the imaging controls.
#pragma once

#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/window.h"

namespace model {

struct Form4 : Window {
    Form4() : Window("Form4") {}

    PictureBox Picture1{this, "Picture1", true};  // the picture that effects copy from
    PictureBox Picture3{this, "Picture3", true};
    LeadControl Lead1{this, "Lead1"};  // the decoded picture, until the next load
    LeadControl Lead2{this, "Lead2"};  // its unscaled twin, for fitting anew
};

}  // namespace model
