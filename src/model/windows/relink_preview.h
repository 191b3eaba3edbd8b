// What would change where missing files were found elsewhere.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/window.h"

namespace model {

struct RelinkPreview : Window {
    RelinkPreview() : Window("RelinkPreview", u"見つからないファイルのつなぎ直し") {
        Width = 11400;  // 760 x 520 pixels
        Height = 7800;
        EnterPresses = &Command1;
        EscPresses = &Command2;
    }

    Label Label1{this, "Label1"};     // how many of how many
    ListBox List1{this, "List1"};     // "old → new"
    CheckBox Check1{this, "Check1"};  // those with several choices, too
    Button Command3{this, "Command3", u"ほかのフォルダも探す…"};
    Button Command1{this, "Command1", u"変更する"};
    Button Command2{this, "Command2", u"キャンセル"};
};

}  // namespace model
