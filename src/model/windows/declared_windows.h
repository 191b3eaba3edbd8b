// Windows that are declared by name and get their controls with their behaviour.
#pragma once

#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/window.h"

namespace model {

struct Form5 : Window {
    Form5() : Window("Form5", u"４画面表示（画像左クリック：コピー他、画像右クリック：削除）") {}
};
struct Form6 : Window {  // off-screen holder of the four-picture view
    Form6() : Window("Form6") {}
};
struct Form7 : Window {  // picture detail
    Form7() : Window("Form7") {}
    PictureBox Picture1{this, "Picture1"};
};
struct Form11 : Window {
    Form11() : Window("Form11", u"画像のコピー") {}
};
struct Form21 : Window {
    Form21() : Window("Form21", u"日付入力") {}
};
struct Form22 : Window {
    Form22() : Window("Form22", u"スライド・スケジュール") {}
};
struct Form23 : Window {  // cut-out generator
    Form23() : Window("Form23") {}
};

}  // namespace model
