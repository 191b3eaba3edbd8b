// Form14: the order in which a show plays the tracks of an audio CD.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/row_history.h"
#include "model/window.h"

namespace model {

struct TrackButton : Button {
    using Button::Button;
    Property<Text> Detail{*this, "Detail"};  // length of the track; empty: not known
};

struct Form14 : Window {
    static constexpr int kMostTracks = 99;  // that a disc can have

    Form14() : Window("Form14", u"ＣＤプログラム選択") {
        Width = 10200;  // 680 x 520 pixels
        Height = 7800;
        EnterPresses = &Command1;
        EscPresses = &Command2;
    }

    Label Label2{this, "Label2", u"トラック（クリックすると曲順の最後に入ります）"};
    ControlArray<TrackButton> Command3{this, "Command3", 1, kMostTracks};
    Label Label3{this, "Label3", u"曲順（ドラッグで並べ替え）"};
    ListBox List1{this, "List1", kSelectMany};  // numbers of tracks
    Label Label1{this, "Label1", u"0"};         // how many
    Label Label4{this, "Label4"};               // how long they play
    CheckBox Check1{this, "Check1", u"プログラム再生終了でパラピコ停止"};
    Button Command5{this, "Command5", u"選択取消"};
    Button Command4{this, "Command4", u"一括取消"};
    Button Command1{this, "Command1", u"OK"};
    Button Command2{this, "Command2", u"ｷｬﾝｾﾙ"};

    RowHistory history;
    int programStop = 0;  // CdProgramStop as it stays where the window is left now
};

}  // namespace model
