// Form3: builds the slide list. So far the controls that documents and the show work on.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/row_history.h"
#include "model/window.h"

namespace model {

struct Form3 : Window {
    Form3() : Window("Form3", u"スライドリスト") {}

    ListBox List1{this, "List1", kSelectMany};  // paths, in play order: the master copy
    ListBox List2{this, "List2"};               // schedule rows of 30 columns, as many as List1
    Label Label4{this, "Label4", u"0"};         // row count
    Button Command16{this, "Command16", u"ﾃｷｽﾄ編集"};
    Button Command17{this, "Command17", u"ﾃｷｽﾄ削除"};
    Button Command18{this, "Command18", u"連動録音"};
    Button Command19{this, "Command19", u"連動音削除"};
    Button Command24{this, "Command24", u"ﾃｷｽﾄ設定"};  // opens Form15
    Button Command20{this, "Command20", u"連動音設定"};
    CheckBox Check1{this, "Check1", u"画像表示"};
    CheckBox Check2{this, "Check2", u"録　　音"};
    CheckBox Check3{this, "Check3", u"壁紙変更"};
    CheckBox Check4{this, "Check4", u"テキスト"};
    CheckBox Check5{this, "Check5", u"ﾊﾟﾗﾋﾟｺ"};
    RowHistory history;                 // of List1 and List2
    Timer Timer1{this, "Timer1", 500};  // one shot: guards against a second click on a video
};

}  // namespace model
