// Form10: builds the list of background pieces.
#pragma once

#include <cstdint>

#include "model/controls.h"
#include "model/known_files.h"
#include "model/list_controls.h"
#include "model/menu.h"
#include "model/panes.h"
#include "model/row_history.h"
#include "model/sound_bar.h"
#include "model/window.h"

namespace model {

/// Rows that the list can hold.
constexpr int16_t kSoundListLimit = 30000;

struct Form10 : Window {
    Form10()
        : Window(
              "Form10",
              u"WAV,MID,ＭＰ３ リスト（※パラピコの動画再生中はリスト音声再生が一時停止します）") {}

    // The browser.
    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1"};
    FileList File1{this, "File1"};
    Label Label6{this, "Label6", u"↓WAV,MID,MP3ファイルをドラッグ＆ドロップして下さい"};
    Label Label1{this, "Label1", u"検索中"};  // while a search runs
    Label Searched{this, "Searched"};         // the folder that is searched just now
    Label Found{this, "Found"};               // what the search has come to

    // The list.
    TextBox Filter{this, "Filter"};             // rows that do not hold it are not seen
    ListBox List1{this, "List1", kSelectMany};  // paths, in play order
    Label Label4{this, "Label4", u"0"};         // row count
    Label SeenCount{this, "SeenCount"};         // how many rows are seen, while not all are
    Label Length{this, "Length"};               // how long all pieces are together

    // Adding.
    Button Command3{this, "Command3", u"一括選択"};
    CheckBox Check2{this, "Check2", u"挿入"};
    Button Command8{this, "Command8", u"検索"};  // "中止" while a search runs
    // Changing.
    Button Command5{this, "Command5", u"選択取消"};
    Button Command4{this, "Command4", u"一括取消"};
    Button Command11{this, "Command11", u"↑"};
    Button Command12{this, "Command12", u"↓"};
    Button Undo{this, "Undo", u"元に戻す"};
    Button Redo{this, "Redo", u"やり直す"};
    // The preview.
    Button Command6{this, "Command6", u"再生"};
    Button Command7{this, "Command7", u"ＳＴＯＰ"};
    TextBox Text1{this, "Text1"};  // name of the piece
    Label Label2{this, "Label2", u"再生中"};
    SoundBar Position{this, "Position", 0, 0};
    Label Elapsed{this, "Elapsed"};    // "0:12 / 3:25"
    Timer Timer1{this, "Timer1", 50};  // while a preview plays
    // What the list is for.
    CheckBox Check3{this, "Check3", u"効果音に設定する"};
    CheckBox Check4{this, "Check4", u"効果音同期あり"};
    CheckBox Check5{this, "Check5", u"+連動効果音再生あり"};
    CheckBox Check6{this, "Check6", u"選択位置より実行"};
    CheckBox Check1{this, "Check1", u"ＫＶＳに保存あり"};
    // The window.
    Button Command9{this, "Command9", u"最大"};
    Button Command10{this, "Command10", u"標準"};
    Button Command1{this, "Command1", u"OK"};
    Button Command2{this, "Command2", u"ｷｬﾝｾﾙ"};
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

    RowHistory history;  // of List1
    KnownFiles known;    // which pieces are there
};

}  // namespace model
