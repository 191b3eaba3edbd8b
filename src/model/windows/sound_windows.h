// The windows of background sound: form2 (WAV), form8 (MIDI), form17 (MP3).
// So far the controls that documents set.
#pragma once

#include "model/controls.h"
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

}  // namespace model
