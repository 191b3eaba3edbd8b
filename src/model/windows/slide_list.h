// Form3: builds the slide list.
#pragma once

#include "model/controls.h"
#include "model/known_files.h"
#include "model/list_controls.h"
#include "model/menu.h"
#include "model/panes.h"
#include "model/picture_controls.h"
#include "model/row_history.h"
#include "model/window.h"

namespace model {

struct Form3 : Window {
    Form3() : Window("Form3", u"スライドリスト") {}

    // The browser.
    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1"};
    FileList File1{this, "File1"};
    Label Label6{this, "Label6", u"↓画像・動画ファイルをドラッグ＆ドロップして下さい"};
    Label Label1{this, "Label1", u"検索中"};  // while a search runs
    Label Searched{this, "Searched"};         // the folder that is searched just now
    Label Found{this, "Found"};               // what the search has come to

    // The list.
    TextBox Filter{this, "Filter"};             // rows that do not hold it are not seen
    ListBox List1{this, "List1", kSelectMany};  // paths, in play order: the master copy
    ListBox List2{this, "List2", kSelectMany};  // schedule rows of 30 columns, as many as List1
    Label Label4{this, "Label4", u"0"};         // row count
    Label SeenCount{this, "SeenCount"};         // how many rows are seen, while not all are
    Label Length{this, "Length"};               // how long the show lasts at the present interval

    // Adding.
    Button Command3{this, "Command3", u"一括選択"};
    CheckBox Check6{this, "Check6", u"挿入"};
    Button Command8{this, "Command8", u"検索"};  // "中止" while a search runs
    // Changing.
    Button Command5{this, "Command5", u"選択取消"};
    Button Command4{this, "Command4", u"一括取消"};
    Button Command13{this, "Command13", u"↑"};
    Button Command14{this, "Command14", u"↓"};
    Button Undo{this, "Undo", u"元に戻す"};
    Button Redo{this, "Redo", u"やり直す"};
    Button Relink{this, "Relink", u"見つからないファイルを探す…"};
    // The document.
    Label Document{this, "Document"};  // its name
    Label Notice{this, "Notice"};      // what was done last, for a glance
    Button Command15{this, "Command15", u"新規作成"};
    Button Command6{this, "Command6", u"開く"};
    Button Command7{this, "Command7", u"保存"};
    Button Command9{this, "Command9", u"配布保存"};
    Button Collect{this, "Collect", u"配布フォルダを作る…"};
    // The selected slide.
    Button Command16{this, "Command16", u"ﾃｷｽﾄ編集"};
    Button Command17{this, "Command17", u"ﾃｷｽﾄ削除"};
    Button Command18{this, "Command18", u"連動録音"};
    Button Command19{this, "Command19", u"連動音削除"};
    Button Command20{this, "Command20", u"連動音設定"};
    Button Command25{this, "Command25", u"切取ﾏｸﾛ生成"};
    Button Command12{this, "Command12", u"縮小変換コピー"};
    // Other windows.
    Button Command23{this, "Command23", u"音"};        // opens Form10
    Button Command24{this, "Command24", u"ﾃｷｽﾄ設定"};  // opens Form15
    // The show from the selected slide on.
    Frame Frame2{this, "Frame2", u"ｽﾗｲﾄﾞショー実行(選択位置より)"};
    Button Command21{this, "Command21", u"画面全体"};
    Button Command22{this, "Command22", u"START"};
    // What a double click does.
    CheckBox Check2{this, "Check2", u"録　　音"};
    CheckBox Check3{this, "Check3", u"壁紙変更"};
    CheckBox Check4{this, "Check4", u"テキスト"};
    CheckBox Check5{this, "Check5", u"ﾊﾟﾗﾋﾟｺ"};
    // The preview.
    CheckBox Check1{this, "Check1", u"画像表示"};
    Frame Frame1{this, "Frame1", u"画像・動画（クリック全画面）"};
    PictureBox Picture1{this, "Picture1"};
    Image Image1{this, "Image1"};
    // The window.
    Button Command10{this, "Command10", u"最大"};
    Button Command11{this, "Command11", u"標準"};
    Button Command1{this, "Command1", u"OK"};
    Button Command2{this, "Command2", u"ｷｬﾝｾﾙ"};
    Panes Panes1{this, "Panes1"};  // browser and list
    Panes Panes2{this, "Panes2"};  // within the browser: folders, files, preview

    MenuEntry mnuEDIT{this, "mnuEDIT", u"編集(&E)"};
    MenuEntry mnuUNDO{this, "mnuUNDO", u"元に戻す(&U)", &mnuEDIT};
    MenuEntry mnuREDO{this, "mnuREDO", u"やり直す(&R)", &mnuEDIT};
    MenuEntry mnuCUT{this, "mnuCUT", u"切り取り(&T)", &mnuEDIT};
    MenuEntry mnuCOPY{this, "mnuCOPY", u"コピー(&C)", &mnuEDIT};
    MenuEntry mnuPASTE{this, "mnuPASTE", u"貼り付け(&P)", &mnuEDIT};
    MenuEntry mnuREMOVE{this, "mnuREMOVE", u"選択取消(&D)", &mnuEDIT};
    MenuEntry mnuALL{this, "mnuALL", u"すべて選択(&A)", &mnuEDIT};
    MenuEntry mnuRELINK{this, "mnuRELINK", u"見つからないファイルを探す(&M)…", &mnuEDIT};
    MenuEntry mnuSORT{this, "mnuSORT", u"並べ替え(&S)"};
    MenuEntry mnuSORTNAME{this, "mnuSORTNAME", u"名前順(&N)", &mnuSORT};
    MenuEntry mnuSORTTAKEN{this, "mnuSORTTAKEN", u"撮影日順(&T)", &mnuSORT};
    MenuEntry mnuSORTDATE{this, "mnuSORTDATE", u"ファイルの日付順(&D)", &mnuSORT};
    MenuEntry mnuSORTFOLDER{this, "mnuSORTFOLDER", u"フォルダ順(&F)", &mnuSORT};
    MenuEntry mnuSHUFFLE{this, "mnuSHUFFLE", u"順不同(&S)", &mnuSORT};
    MenuEntry mnuREVERSE{this, "mnuREVERSE", u"逆順(&R)", &mnuSORT};
    MenuEntry mnuVIEW{this, "mnuVIEW", u"表示(&V)"};
    MenuArray mnuFACE{this, "mnuFACE", mnuVIEW, {u"一覧(&L)", u"縮小画像(&I)"}};

    RowHistory history;                 // of List1 and List2
    KnownFiles known;                   // slides and what is linked to them
    Timer Timer1{this, "Timer1", 500};  // one shot: guards against a second click on a video
};

}  // namespace model
