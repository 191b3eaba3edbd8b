// Form9: the list of show documents that run as a chain.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/window.h"

namespace model {

struct Form9 : Window {
    /// While no link document has been opened or saved.
    static constexpr TextView kFirstCaption =
        u"ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）";

    Form9() : Window("Form9", Text(kFirstCaption)) {}

    ListBox List1{this, "List1", kSelectMany};
    Label Label4{this, "Label4", u"0"};
    CheckBox Check1{this, "Check1"};
    CheckBox Check2{this, "Check2", u"繰り返し"};
    CheckBox Check3{this, "Check3", u"終了保持"};
};

}  // namespace model
