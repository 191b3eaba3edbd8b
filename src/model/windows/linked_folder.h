// Form12: in which folder the files linked to a picture lie.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/window.h"

namespace model {

struct Form12 : Window {
    Form12() : Window("Form12", u"画像連動ファイル(WAV,MID,MP3,TXT)のフォルダ指定") {
        Width = 9000;  // 600 x 460 pixels
        Height = 6900;
        EnterPresses = &Command1;
        EscPresses = &Command2;
    }

    Label Label1{this, "Label1", u"画像連動フォルダを変更する場合は指定してください。"};
    CheckBox Check1{this, "Check1", u"画像と同一フォルダに指定（標準）"};
    TextBox Text1{this, "Text1"};  // the folder
    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1"};
    Button Command1{this, "Command1", u"ＯＫ"};
    Button Command2{this, "Command2", u"キャンセル"};
};

}  // namespace model
