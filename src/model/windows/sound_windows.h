// The windows of background sound: form2 (WAV), form8 (MIDI), form17 (MP3), Form10 (sound list).
// So far the controls that documents set.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/window.h"

namespace model {

struct Form2 : Window {
    Form2() : Window("form2", u"WAVファイル再生") {}
};

struct Form8 : Window {
    Form8() : Window("form8", u"MIDIファイル再生") {}
    TextBox Text1{this, "Text1"};
    CheckBox Check1{this, "Check1", u"画像連動（ＷＡＶ）あり"};
};

struct Form17 : Window {
    Form17() : Window("form17", u"MP3ファイル再生") {}
    CheckBox Check1{this, "Check1", u"画像連動（ＷＡＶ）あり"};
};

struct Form10 : Window {
    Form10()
        : Window(
              "Form10",
              u"WAV,MID,ＭＰ３ リスト（※パラピコの動画再生中はリスト音声再生が一時停止します）") {}
    ListBox List1{this, "List1", kSelectMany};
    Label Label4{this, "Label4", u"0"};
    CheckBox Check1{this, "Check1", u"ＫＶＳに保存あり"};
    CheckBox Check5{this, "Check5", u"+連動効果音再生あり"};
    CheckBox Check6{this, "Check6", u"選択位置より実行"};
};

}  // namespace model
