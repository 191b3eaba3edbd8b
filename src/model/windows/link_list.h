// Form9: the list of show documents that run as a chain.
#pragma once

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/menu.h"
#include "model/panes.h"
#include "model/row_history.h"
#include "model/window.h"

namespace model {

struct Form9 : Window {
    /// While no link document has been opened or saved.
    static constexpr TextView kFirstCaption =
        u"ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）";

    Form9() : Window("Form9", Text(kFirstCaption)) {}

    // The browser.
    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1"};
    FileList File1{this, "File1"};

    // The list.
    TextBox Filter{this, "Filter"};             // rows that do not hold it are not seen
    ListBox List1{this, "List1", kSelectMany};  // paths of shows, in the order of the chain
    Label Label4{this, "Label4", u"0"};         // row count
    Label SeenCount{this, "SeenCount"};         // how many rows are seen, while not all are
    Label Length{this, "Length"};               // how long the chain lasts
    Label Label1{this, "Label1"};               // what is being done, and how far it is
    Button Stop{this, "Stop"};                  // ends that; seen meanwhile only
    Label Notice{this, "Notice"};               // what was done last, for a glance

    // Adding.
    Button Command3{this, "Command3", u"一括選択"};
    CheckBox Check4{this, "Check4", u"挿入"};
    // Changing.
    Button Command5{this, "Command5", u"選択取消"};
    Button Command4{this, "Command4", u"一括取消"};
    Button Command11{this, "Command11", u"↑"};
    Button Command12{this, "Command12", u"↓"};
    Button Undo{this, "Undo", u"元に戻す"};
    Button Redo{this, "Redo", u"やり直す"};
    // The link document.
    Button Command6{this, "Command6", u"開く"};
    Button Command7{this, "Command7", u"保存"};
    Button Command8{this, "Command8", u"配布保存"};
    // The chain.
    Button Command1{this, "Command1", u"START"};
    Button Command13{this, "Command13", u"選択実行"};
    CheckBox Check1{this, "Check1", u"オートスタート"};  // with the program
    CheckBox Check2{this, "Check2", u"繰り返し"};
    CheckBox Check3{this, "Check3", u"終了保持"};
    // The window.
    Button Command9{this, "Command9", u"最大"};
    Button Command10{this, "Command10", u"標準"};
    Button Command2{this, "Command2", u"終了"};
    Panes Panes1{this, "Panes1"};  // browser and list
    Panes Panes2{this, "Panes2"};  // within the browser: folders, files

    MenuEntry mnuEDIT{this, "mnuEDIT", u"編集(&E)"};
    MenuEntry mnuUNDO{this, "mnuUNDO", u"元に戻す(&U)", &mnuEDIT};
    MenuEntry mnuREDO{this, "mnuREDO", u"やり直す(&R)", &mnuEDIT};
    MenuEntry mnuCUT{this, "mnuCUT", u"切り取り(&T)", &mnuEDIT};
    MenuEntry mnuCOPY{this, "mnuCOPY", u"コピー(&C)", &mnuEDIT};
    MenuEntry mnuPASTE{this, "mnuPASTE", u"貼り付け(&P)", &mnuEDIT};
    MenuEntry mnuREMOVE{this, "mnuREMOVE", u"選択取消(&D)", &mnuEDIT};
    MenuEntry mnuALL{this, "mnuALL", u"すべて選択(&A)", &mnuEDIT};
    MenuEntry mnuSORT{this, "mnuSORT", u"並べ替え(&S)"};
    MenuEntry mnuSORTNAME{this, "mnuSORTNAME", u"名前順(&N)", &mnuSORT};
    MenuEntry mnuSORTDATE{this, "mnuSORTDATE", u"ファイルの日付順(&D)", &mnuSORT};
    MenuEntry mnuSORTFOLDER{this, "mnuSORTFOLDER", u"フォルダ順(&F)", &mnuSORT};
    MenuEntry mnuSHUFFLE{this, "mnuSHUFFLE", u"順不同(&S)", &mnuSORT};
    MenuEntry mnuREVERSE{this, "mnuREVERSE", u"逆順(&R)", &mnuSORT};
    MenuEntry mnuVIEW{this, "mnuVIEW", u"表示(&V)"};
    MenuArray mnuFACE{this, "mnuFACE", mnuVIEW, {u"一覧(&L)", u"縮小画像(&I)"}};

    RowHistory history;  // of List1
};

}  // namespace model
