// Every entry of every radio menu: the field, the check, the note.
#include <gtest/gtest.h>

#include "menu_support.h"
#include "model/menu.h"
#include "model/windows/cd_program.h"
#include "model/windows/control_box.h"
#include "model/windows/declared_windows.h"
#include "model/windows/link_list.h"
#include "model/windows/linked_folder.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"

namespace app_tests {
namespace {

using model::Form1;
using model::ShowState;

struct Note {
    int value;
    Text title;
    Text text;
};

struct Expected {
    model::MenuArray Form1::*menu;
    int16_t ShowState::*field;
    std::vector<Text> captions;
    std::vector<Note> notes;
};

const std::vector<Text> kOnOff{u"あり", u"なし"};
const Text kNotKept = u"\r\n（この設定はＫＶＳファイルには保存されません）";
const Text kNotKeptShort = u"\r\n（この設定はＫＶＳファイルに保存されません）";

const std::vector<Expected>& Entries() {
    static const std::vector<Expected> table{
        {&Form1::mnuFULL_FL, &ShowState::AlwaysFullFlag, kOnOff, {}},
        {&Form1::mnuYOMI, &ShowState::LoadMode, {u"互換モード", u"読込優先モード （標準）"}, {}},
        {&Form1::mnuKUFL,
         &ShowState::RepeatFlag,
         kOnOff,
         {{0, u"繰り返し",
           u"スライド表示が最終になると再び最初から繰り返します。\r\n（ＫＶＳリンクは除く）"}}},
        {&Form1::mnuDOU,
         &ShowState::SoundSyncFlag,
         kOnOff,
         {{0, u"画像連動効果音同期設定",
           u"画像連動効果音(WAV)"
           u"再生において\r\n再生時間がスライド間隔以上の場合、再生が終了するまで"
           u"次画面に移行しません。"}}},
        {&Form1::mnuKOICHI1,
         &ShowState::LinkedSoundPosition,
         {u"ﾃｷｽﾄ表示前に再生", u"ﾃｷｽﾄ表示後に再生"},
         {}},
        {&Form1::mnuTEXT, &ShowState::TextMacroFlag, kOnOff, {}},
        {&Form1::mnuRANDFL,
         &ShowState::RandomFlag,
         kOnOff,
         {{0, u"ランダム実行",
           u"スライドリストをランダムに実行します。\r\n（ＫＶＳリンクでは実行されません。）"}}},
        {&Form1::mnuAUT,
         &ShowState::AutoStartFlag,
         kOnOff,
         {{0, u"オートスタート",
           u"パラピコ再立ち上げ時に自動的にスライド画面全体表示スタート待ちになります。" +
               kNotKeptShort}}},
        {&Form1::mnuCTL,
         &ShowState::ControlBoxFlag,
         kOnOff,
         {{0, u"コントロールＢＯＸ", u"画面全体表示において、ｺﾝﾄﾛｰﾙBOXが表示されます。" + kNotKept},
          {1, u"コントロールＢＯＸ", u"画面全体表示において、ｺﾝﾄﾛｰﾙBOXが消去されます。"}}},
        {&Form1::mnuCTL_P, &ShowState::ControlBoxPos, {u"右上", u"右下"}, {}},
        {&Form1::mnuSIZE,
         &ShowState::SizeAdjust,
         {u"調整１", u"調整２", u"なし"},
         {{0, u"全画面サイズ調整", u"画面サイズに収まるように縮小調整が行われます。" + kNotKept},
          {1, u"全画面サイズ調整",
           u"画面サイズの横幅に合わせて縮小調整が行われます。" + kNotKept}}},
        {&Form1::mnuLSAKU,
         &ShowState::ListErrorDelete,
         {u"手動", u"自動"},
         {{1, u"リスト（エラー）削除",
           u"スライド実行中に読込みエラーが発生した場合、エラーファイルはリストより自動的に削除され"
           u"ま"
           u"す。" +
               kNotKept}}},
        {&Form1::mnuSOP1,
         &ShowState::StartOption,
         {u"先頭よりスタート", u"継続スタート"},
         {{1, u"スタートオプション",
           u"パラピコを前回終了位置より継続スタートします。" + kNotKeptShort}}},
        {&Form1::mnuSTKAKU, &ShowState::FullStartConfirm, kOnOff, {}},
        {&Form1::mnuJYUF, &ShowState::AllowDuplicate, kOnOff, {}},
        {&Form1::mnuHKO,
         &ShowState::ShowEffect,
         {u"①上から", u"②下から", u"③左から", u"④右から", u"⑤中央から", u"⑥外側から",
          u"⑦横スリット", u"⑧縦スリット", u"⑨モザイク", u"ランダム", u"順次", u"なし"},
         {}},
        {&Form1::mnuSYOUKO,
         &ShowState::EraseEffect,
         {u"①上から", u"②下から", u"③左から", u"④右から", u"⑤中央から", u"⑥外側から",
          u"⑦横スリット", u"⑧縦スリット", u"⑨モザイク", u"ランダム", u"順次", u"表示効果連動",
          u"なし"},
         {}},
        {&Form1::mnuKSPSEL, &ShowState::EffectSpeedFixed, {u"可変", u"固定"}, {}},
        {&Form1::mnuKASANE,
         &ShowState::OverlayMode,
         {u"なし", u"重ね合せ（カラー）", u"重ね合せ（白黒化）", u"重ね合せ（２値化）",
          u"重ね合せ（おまかせ）"},
         {}},
        {&Form1::mnuKASAS,
         &ShowState::OverlaySize,
         {u"画面の１００％", u"画面の  ８０％", u"画面の  ６０％", u"画面の  ４０％",
          u"画面の  ２０％", u"おまかせ", u"調整なし"},
         {}},
        {&Form1::mnuHICHI, &ShowState::PicturePosition, {u"中央", u"ランダム"}, {}},
        {&Form1::mnuCDRND, &ShowState::CdOrder, {u"トラック順", u"ランダム", u"プログラム"}, {}},
        {&Form1::mnuCDR,
         &ShowState::CdRepeatFlag,
         kOnOff,
         {{0, u"繰り返し",
           u"設定されたトラック（１曲）を繰り返します。\r\n（曲順設定がランダムまたはプログラムの場"
           u"合"
           u"は無効です。）"}}},
        {&Form1::mnuCDWAV, &ShowState::CdPlusLinkedWav, kOnOff, {}},
    };
    return table;
}

TEST(RadioMenus, EveryEntrySetsItsFieldMovesItsCheckAndSaysItsNote) {
    for (const Expected& row : Entries()) {
        const int count = static_cast<int>(row.captions.size());
        for (int chosen = count - 1; chosen >= 0; --chosen) {
            Menus menus;
            model::Form14& form14 = menus.app.windows.form14;  // of the programme order
            form14.HasView = true;
            menus.sound.cd.Insert({60, 60});
            menus.loop.After(100, [&] { form14.Unload(); });
            model::MenuArray& array = menus.form1.*row.menu;
            SCOPED_TRACE(array.Name() + " " + std::to_string(chosen));
            ASSERT_EQ(array.Count(), count);
            EXPECT_EQ(array(chosen).Caption(), row.captions[static_cast<size_t>(chosen)]);
            menus.state.*row.field = static_cast<int16_t>(chosen == 0 ? 1 : 0);
            // The check has moved and the field is set when the note stands.
            menus.dialogs.whileOpen = [&](const auto&) {
                EXPECT_TRUE(array(chosen).Checked);
                EXPECT_EQ(menus.state.*row.field, chosen);
            };
            array(chosen).Click();
            EXPECT_EQ(menus.state.*row.field, chosen);
            for (int i = 0; i < count; ++i) {
                EXPECT_EQ(array(i).Checked, i == chosen) << i;
            }
            size_t notes = 0;
            for (const Note& note : row.notes) {
                if (note.value == chosen) {
                    ++notes;
                    menus.ExpectMessage(note.text, 0, note.title);
                }
            }
            EXPECT_EQ(menus.dialogs.messages.size(), notes);
        }
    }
}

// Of all radio menus only these ask first, and so have tests of their own.
TEST(RadioMenus, TheTableAboveHoldsTheRest) {
    EXPECT_EQ(Entries().size() + 3, document::RadioMenus().size());
    Menus menus;
    const std::vector<Text> colours{u"濃い灰", u"薄い灰", u"黒",     u"薄赤", u"薄茶",
                                    u"薄黄",   u"薄緑",   u"薄水色", u"薄青", u"薄ピンク"};
    ASSERT_EQ(menus.form1.mnuKAIRO.Count(), 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(menus.form1.mnuKAIRO(i).Caption(), colours[static_cast<size_t>(i)]);
        menus.form1.mnuKAIRO(i).Click();
        EXPECT_EQ(menus.state.OverlayBackColor, i);
        EXPECT_TRUE(menus.form1.mnuKAIRO(i).Checked);
    }
    EXPECT_TRUE(menus.dialogs.messages.empty());
}

TEST(RadioMenus, TheBoxMovesAtOnceWhereItIsSeen) {
    Menus menus;
    model::Slidescreen2& box = menus.app.windows.slidescreen2;
    box.Width = 3000;
    box.Height = 900;
    menus.form1.mnuCTL_P(1).Click();
    EXPECT_EQ(box.Top, 0);
    EXPECT_EQ(box.Left, 0) << "nobody sees it";
    box.Visible = true;
    menus.form1.mnuCTL_P(1).Click();
    EXPECT_EQ(box.Left, 1920 * 15 - 3000);
    EXPECT_EQ(box.Top, 1080 * 15 - 900);
    menus.form1.mnuCTL_P(0).Click();
    EXPECT_EQ(box.Top, 0);
}

TEST(MacroHeader, TheChosenFileBecomesTheProgramsHeader) {
    Menus menus;
    menus.state.UserHeaderFlag = 1;
    menus.files.Put(u"D:\\header_red.txt", "rgb=255,0,0\r\n");
    menus.dialogs.fileAnswers = {Text(u"D:\\header_red.txt")};
    menus.form1.menuHEAD(0).Click();
    ASSERT_EQ(menus.dialogs.requests.size(), 1u);
    EXPECT_FALSE(menus.dialogs.requests[0].save);
    EXPECT_EQ(menus.dialogs.requests[0].title, u"ユーザマクロヘッダーファイルを選択してください");
    EXPECT_EQ(menus.dialogs.requests[0].filter,
              u"ヘッダーFiles (header*.txt)|header*.txt|すべてのﾌｧｲﾙ(*.*)|*.*");
    EXPECT_EQ(menus.state.UserHeaderFlag, 0);
    EXPECT_EQ(menus.state.UserHeaderFile, u"D:\\header_red.txt");
    EXPECT_TRUE(menus.form1.menuHEAD(0).Checked);
    ASSERT_NE(menus.files.Get(u"C:\\app\\header.txt"), nullptr);
    EXPECT_EQ(menus.files.Get(u"C:\\app\\header.txt")->content, "rgb=255,0,0\r\n");
    menus.form1.menuHEAD(1).Click();
    EXPECT_EQ(menus.dialogs.requests.size(), 1u);
    EXPECT_EQ(menus.state.UserHeaderFlag, 1);
}

TEST(MacroHeader, CancelAndBadFilesLeaveTheOldChoice) {
    Menus menus;
    menus.state.UserHeaderFlag = 1;
    menus.state.UserHeaderFile = u"old";
    menus.files.Put(u"C:\\app\\header.txt", "old");
    menus.form1.menuHEAD(0).Click();
    EXPECT_TRUE(menus.dialogs.messages.empty());
    menus.dialogs.fileAnswers = {Text(u"D:\\header_gone.txt")};
    menus.form1.menuHEAD(0).Click();
    EXPECT_EQ(menus.dialogs.messages.size(), 1u);
    menus.files.Put(u"D:\\header_huge.txt", std::string((1u << 20) + 1, 'x'));
    menus.dialogs.fileAnswers = {Text(u"D:\\header_huge.txt")};
    menus.form1.menuHEAD(0).Click();
    menus.files.Put(u"D:\\header_new.txt", "new");
    menus.files.writeError = u"ディスクの空きがありません。";
    menus.dialogs.fileAnswers = {Text(u"D:\\header_new.txt")};
    menus.form1.menuHEAD(0).Click();
    ASSERT_EQ(menus.dialogs.messages.size(), 3u);
    EXPECT_EQ(menus.dialogs.messages[2].text, u"ディスクの空きがありません。");
    EXPECT_EQ(menus.state.UserHeaderFlag, 1);
    EXPECT_EQ(menus.state.UserHeaderFile, u"old");
    EXPECT_EQ(menus.files.Get(u"C:\\app\\header.txt")->content, "old");
}

TEST(HelpMenu, OpensTheProgramsOwnTexts) {
    Menus menus;
    const std::pair<model::MenuEntry*, Text> entries[] = {{&menus.form1.mnuGAI, u"機能概要.txt"},
                                                          {&menus.form1.mnuREADME, u"Readme.txt"},
                                                          {&menus.form1.mnuSUB, u"マクロ.txt"}};
    for (const auto& [entry, name] : entries) {
        SCOPED_TRACE(entry->Name());
        EXPECT_EQ(entry->Caption(), name);
        menus.dialogs.messages.clear();
        entry->Click();
        menus.ExpectMessage(name + u"が読込めません。", 48, u"読込みエラー");
        EXPECT_TRUE(menus.system.opened.empty());
        menus.dialogs.messages.clear();
        menus.files.Put(u"C:\\app\\" + name, "text");
        entry->Click();
        EXPECT_TRUE(menus.dialogs.messages.empty());
        EXPECT_EQ(menus.system.opened, std::vector<Text>{u"C:\\app\\" + name});
        menus.system.opens = false;
        entry->Click();
        menus.ExpectMessage(name + u"が読込めません。", 48, u"読込みエラー");
        menus.system = {};
    }
}

TEST(OpenedWindows, OneThatThisVersionLacksIsReportedAndTheMainWindowStays) {
    Menus menus;
    model::Windows& windows = menus.app.windows;
    model::Form1& form1 = menus.form1;
    form1.Show();
    // The pointer is not busy while somebody reads.
    menus.dialogs.whileOpen = [&](const auto&) {
        EXPECT_EQ(windows.Pointer(), model::kPointerNormal);
    };
    for (const model::Event<>* press :
         {&form1.mnuWAVLIST.Click, &form1.mnuRENF.Click, &form1.mnuICHI.Click, &form1.mnuURU.Click,
          &form1.Command6.Click, &form1.Command10.Click, &form1.Command11.Click,
          &form1.mnuKOU(3).Click, &form1.mnuKOU(4).Click, &form1.mnuKOU(8).Click,
          &form1.mnuCDRND(2).Click}) {
        menus.dialogs.messages.clear();
        (*press)();
        menus.ExpectMessage(u"この版にはまだありません。", 0, u"");
        for (model::Window* window : windows.All()) {
            EXPECT_EQ(window->Visible, window == &form1) << window->Name();
        }
    }
    EXPECT_EQ(menus.state.SoundMode, 8) << "the choice itself stands";
    EXPECT_EQ(menus.state.CdOrder, 2);
    EXPECT_TRUE(form1.mnuCDRND(2).Checked);
}

TEST(OpenedWindows, EachEntryOpensItsOwn) {
    Menus menus;
    model::Windows& windows = menus.app.windows;
    for (model::Window* window : windows.All()) {
        window->HasView = true;
    }
    struct Row {
        const model::Event<>* opener;
        model::Window* window;
        bool insteadOfMain;
    };
    const Row rows[] = {
        {&menus.form1.mnuWAVLIST.Click, &windows.form10, false},
        {&menus.form1.mnuICHI.Click, &windows.form5, false},
        {&menus.form1.mnuURU.Click, &windows.form9, true},
        {&menus.form1.Command6.Click, &windows.form3, false},
        {&menus.form1.Command10.Click, &windows.form10, false},
        {&menus.form1.Command11.Click, &windows.form22, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.window->Name());
        menus.form1.Show();
        int pointer = -1;
        row.window->OnLoad = [&] { pointer = windows.Pointer(); };
        (*row.opener)();
        EXPECT_TRUE(row.window->Visible);
        EXPECT_EQ(menus.form1.Visible, !row.insteadOfMain);
        EXPECT_EQ(pointer, row.window == &windows.form22 ? model::kPointerBusy : 0);
        EXPECT_EQ(windows.Pointer(), model::kPointerNormal);
        row.window->Unload();
        row.window->OnLoad = nullptr;
    }
}

TEST(OpenedWindows, TheFolderOfLinkedFilesIsModal) {
    Menus menus;
    model::Form12& form12 = menus.app.windows.form12;
    form12.HasView = true;
    menus.form1.Show();
    bool modal = false;
    form12.OnActivate.Anew() = [&] {
        modal = form12.Modal;
        form12.Unload();
    };
    menus.form1.mnuRENF.Click();
    EXPECT_TRUE(modal);
    EXPECT_FALSE(form12.Visible);
    EXPECT_TRUE(menus.form1.Visible);
}

TEST(FourPictures, RefusedWhileAListIsOpen) {
    Menus menus;
    menus.app.windows.form5.HasView = true;
    menus.state.SlideListWindowOpen = 1;
    menus.state.LinkWindowOpen = 1;
    menus.form1.mnuICHI.Click();
    menus.ExpectMessage(u"ファイル選択を終了させてから行って下さい。", 48, u"４画面表示");
    menus.dialogs.messages.clear();
    menus.state.SlideListWindowOpen = 0;
    menus.form1.mnuICHI.Click();
    menus.ExpectMessage(u"ＫＶＳリンクを終了させてから行って下さい。", 48, u"４画面表示");
    EXPECT_FALSE(menus.app.windows.form5.Visible);
    menus.state.LinkWindowOpen = 0;
    menus.form1.mnuICHI.Click();
    EXPECT_TRUE(menus.app.windows.form5.Visible);
}

TEST(FourPictures, TheRefusalsComeFirstWhereTheWindowIsLacking) {
    Menus menus;
    menus.state.LinkWindowOpen = 1;
    menus.form1.mnuICHI.Click();
    menus.ExpectMessage(u"ＫＶＳリンクを終了させてから行って下さい。", 48, u"４画面表示");
}

}  // namespace
}  // namespace app_tests
