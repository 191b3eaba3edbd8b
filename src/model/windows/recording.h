// Form20: records the sound that is linked to a picture, and plays it.
#pragma once

#include "model/controls.h"
#include "model/scroll_bar.h"
#include "model/window.h"

namespace model {

struct Form20 : Window {
    Form20() : Window("Form20", u"画像連動効果音(WAV)録音・再生") {
        Width = 8400;  // 560 x 190 pixels
        Height = 2850;
        Option1(0).Caption = u"モノラル";
        Option1(1).Caption = u"ステレオ";
        Option1(0).Value = true;
        for (VisibleControl* shown : {&Label2, &Label3}) {
            shown->Visible = false;
        }
        EnterPresses = &Command1;
        EscPresses = &Command3;
    }

    TextBox Text1{this, "Text1"};  // the sound's path
    Label Label1{this, "Label1"};  // what can be done, or what is wrong
    Label Label2{this, "Label2", u"録音中"};
    Label Label3{this, "Label3", u"再生中"};
    Label Label4{this, "Label4", u"00:00.0"};  // recorded so far
    ScrollBar Level{this, "Level", 0, 60};     // dB above the faintest sound that is shown
    ControlArray<OptionButton> Option1{this, "Option1", 0, 2};
    Button Command1{this, "Command1", u"録音"};
    Button Command5{this, "Command5", u"停止"};
    Button Command4{this, "Command4", u"再生"};
    Button Command3{this, "Command3", u"閉じる"};
    Timer Timer1{this, "Timer1", 100};  // while it records
};

}  // namespace model
