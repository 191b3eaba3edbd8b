// Choice of the one piece that plays in the background: form2 (WAV), form8 (MIDI), form17 (MP3).
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/window.h"

namespace model {

/// What they share.
struct BackgroundSound : Window {
    BackgroundSound(const char* name, TextView caption, TextView pattern)
        : Window(name, Text(caption)) {
        Width = 9000;  // 600 x 460 pixels
        Height = 6900;
        File1.Pattern = Text(pattern);
        EnterPresses = &Command1;
        EscPresses = &Command2;
    }

    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1"};
    FileList File1{this, "File1"};
    TextBox Text1{this, "Text1"};  // full path of the piece
    Button Command1{this, "Command1", u"ＯＫ"};
    Button Command2{this, "Command2", u"キャンセル"};
};

struct Form2 : BackgroundSound {
    Form2() : BackgroundSound("form2", u"WAVファイル再生", u"*.wav") {}
};

struct Form8 : BackgroundSound {
    Form8() : BackgroundSound("form8", u"MIDIファイル再生", u"*.MID") {}
    CheckBox Check1{this, "Check1", u"画像連動（ＷＡＶ）あり"};
};

struct Form17 : BackgroundSound {
    Form17() : BackgroundSound("form17", u"MP3ファイル再生", u"*.MP3") {}
    CheckBox Check1{this, "Check1", u"画像連動（ＷＡＶ）あり"};
};

}  // namespace model
