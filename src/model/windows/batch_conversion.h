// Form16: copies the pictures that are selected in the slide list, converted and reduced.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/window.h"

namespace model {

struct Form16 : Window {
    Form16() : Window("Form16", u"選択画像の一括変換コピー") {
        Width = 10800;  // 720 x 500 pixels
        Height = 7500;
        EnterPresses = &Command1;
        EscPresses = &Command2;
        for (VisibleControl* shown :
             {static_cast<VisibleControl*>(&Label2), static_cast<VisibleControl*>(&Label6),
              static_cast<VisibleControl*>(&Command3)}) {
            shown->Visible = false;  // only while it runs
        }
    }

    // Where to.
    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1"};
    TextBox Text1{this, "Text1"};
    // What of it.
    Frame Frame1{this, "Frame1", u"変換形式"};
    OptionButton nasi{this, "nasi", u"変換なし", &Frame1};
    OptionButton JPEG{this, "JPEG", u"JPEG", &Frame1};
    OptionButton BMP{this, "BMP", u"BMP", &Frame1};
    OptionButton PNG{this, "PNG", u"PNG", &Frame1};
    CheckBox Check2{this, "Check2", u"縮小（1280×720）"};
    CheckBox Check1{this, "Check1", u"すべて上書き"};
    CheckBox Check3{this, "Check3", u"連動ファイルもコピー"};  // texts, sounds, coordinate files
    Label Label4{this, "Label4", u"選択ファイル数"};
    Label Label5{this, "Label5"};  // their number
    Label Label7{this, "Label7", u"※動画はコピーされません"};
    // The run.
    Label Label3{this, "Label3", u"変換元"};
    TextBox Text2{this, "Text2"};  // bare name of the file in work
    Label Label2{this, "Label2", u"実行中"};
    Label Label6{this, "Label6"};  // the running number
    Button Command1{this, "Command1", u"変換コピー実行"};
    Button Command3{this, "Command3", u"中止"};
    Button Command2{this, "Command2", u"終   了"};
};

}  // namespace model
