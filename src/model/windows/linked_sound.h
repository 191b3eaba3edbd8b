// form13: makes the sound that is linked to a picture by copying a file under its name.
#pragma once

#include "model/controls.h"
#include "model/window.h"

namespace model {

struct Form13 : Window {
    Form13() : Window("form13", u"画像連動音声設定") {
        Width = 9600;  // 640 x 230 pixels
        Height = 3450;
        Option2.Value = true;
        for (VisibleControl* shown : {&Label3, &Label4}) {
            shown->Visible = false;
        }
        EnterPresses = &Command2;
        EscPresses = &Command1;
    }

    Label Label2{this, "Label2",
                 u"コピー元    ↓ここに音声ファイルをドラック＆ドロップしてください。"};
    TextBox Text1{this, "Text1"};  // path of the source; takes drops
    Button Browse{this, "Browse", u"ファイルを選ぶ…"};
    Label Label1{this, "Label1", u"コピー先"};
    TextBox Text2{this, "Text2"};  // path of the target
    OptionButton Option1{this, "Option1", u"MP3"};
    OptionButton Option2{this, "Option2", u"WAV"};
    Button Command4{this, "Command4", u"再生"};
    Button Command5{this, "Command5", u"停止"};
    Label Label3{this, "Label3", u"再生中"};
    Label Label4{this, "Label4", u"コピー中"};
    Button Command2{this, "Command2", u"コピー実行（連動音声作成）"};
    Button Command1{this, "Command1", u"戻る"};
};

}  // namespace model
