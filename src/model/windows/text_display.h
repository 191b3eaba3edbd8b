// Form15: whether macro texts are shown, and where their coordinates begin.
#pragma once

#include "model/controls.h"
#include "model/window.h"

namespace model {

struct Form15 : Window {
    Form15() : Window("Form15", u"テキスト表示設定") {
        Width = 6600;  // 440 x 320 pixels
        Height = 4800;
        EnterPresses = &Command1;
        EscPresses = &Command1;
    }

    Frame Frame1{this, "Frame1", u"画面全体表示時のテキスト座標設定"};
    OptionButton Option1{this, "Option1", u"ピクチャーの左上を座標原点とする。", &Frame1};
    OptionButton Option2{this, "Option2", u"スクリーンの左上を座標原点とする。", &Frame1};
    Frame Frame2{this, "Frame2", u"テキスト表示マクロ"};
    CheckBox Check1{this, "Check1", u"テキスト表示マクロを実行する。"};
    Label Label1{this, "Label1", u"注）上記の設定は、全スライドリスト共通設定です。"};
    Label Label2{this, "Label2", u"※本設定はマクロコマンドからも変更可能です。"};
    Button Command1{this, "Command1", u"戻る"};
};

}  // namespace model
