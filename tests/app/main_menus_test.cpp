// The file menu of the main window, and what radio menus bring with them.
#include <gtest/gtest.h>

#include "menu_support.h"
#include "model/picture_controls.h"
#include "model/windows/declared_windows.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"

namespace app_tests {
namespace {

TEST(RadioMenus, RandomShowCannotStopByItself) {
    Menus menus;
    menus.form1.mnuKUFL(1).Click();
    EXPECT_EQ(menus.state.RepeatFlag, 1);
    menus.form1.mnuRANDFL(0).Click();
    EXPECT_EQ(menus.state.RandomFlag, 0);
    EXPECT_EQ(menus.state.RepeatFlag, 0);
    EXPECT_TRUE(menus.form1.mnuKUFL(0).Checked);
    menus.form1.mnuKUFL(1).Click();
    EXPECT_EQ(menus.state.RepeatFlag, 1);
    EXPECT_EQ(menus.state.RandomFlag, 1);
    EXPECT_TRUE(menus.form1.mnuRANDFL(1).Checked);
}

TEST(RadioMenus, OtherChoicesLeaveThePartnerAlone) {
    Menus menus;
    menus.state.RepeatFlag = 1;
    menus.form1.mnuRANDFL(1).Click();
    EXPECT_EQ(menus.state.RepeatFlag, 1);
    menus.state.RandomFlag = 0;
    menus.form1.mnuKUFL(0).Click();
    EXPECT_EQ(menus.state.RandomFlag, 0);
}

TEST(RadioMenus, FixedSpeedHidesTheSpeeds) {
    Menus menus;
    menus.state.ShowEffectSpeed = 4;
    menus.state.EraseEffectSpeed = 5;
    menus.form1.mnuKSPSEL(0).Click();
    EXPECT_EQ(menus.state.ShowEffectSpeed, 4);
    menus.form1.mnuKSPSEL(1).Click();
    EXPECT_EQ(menus.state.ShowEffectSpeed, -30);
    EXPECT_EQ(menus.state.EraseEffectSpeed, -30);
    EXPECT_FALSE(menus.form1.mnuHKSP.Visible);
    EXPECT_FALSE(menus.form1.mnuSKSP.Visible);
}

TEST(RadioMenus, StartFromTheTopForgetsThePlace) {
    Menus menus;
    menus.state.ResumeIndex = 7;
    menus.form1.mnuSOP1(1).Click();
    EXPECT_EQ(menus.state.ResumeIndex, 7);
    menus.form1.mnuSOP1(0).Click();
    EXPECT_EQ(menus.state.ResumeIndex, 0);
}

TEST(RadioMenus, TrackOrderStartsAtTheFirstTrack) {
    Menus menus;
    menus.state.CdTrackSetting = u"3-5";
    menus.form1.mnuCDRND(1).Click();
    EXPECT_EQ(menus.state.CdTrackSetting, u"3-5");
    EXPECT_FALSE(menus.form1.mnuCD.Visible);
    menus.form1.mnuCDRND(0).Click();
    EXPECT_EQ(menus.state.CdTrackSetting, u"1");
    EXPECT_TRUE(menus.form1.mnuCD.Visible);
}

TEST(OverlayMenu, LaysTheGroundOfTheScreenAtOnce) {
    Menus menus;
    model::Slidescreen& screen = menus.app.windows.slidescreen;
    menus.state.OverlayBackColor = 5;  // pale yellow
    screen.Width = 1500;
    screen.Height = 900;
    screen.P2.Left = 150;
    screen.P2.Top = 300;
    for (int mode = 1; mode <= 4; ++mode) {
        menus.form1.mnuKASANE(0).Click();
        EXPECT_EQ(screen.P2.BackColor(), 0);
        EXPECT_FALSE(menus.form1.mnuKAHAI.Visible);
        menus.form1.mnuKASANE(mode).Click();
        EXPECT_TRUE(menus.form1.mnuKAHAI.Visible) << mode;
        EXPECT_EQ(screen.P2.Left, 0);
        EXPECT_EQ(screen.P2.Top, 0);
        EXPECT_EQ(screen.P2.Width, 1500);
        EXPECT_EQ(screen.P2.Height, 900);
        for (model::PictureBox* layer : {&screen.P2, &screen.P3, &screen.P4}) {
            EXPECT_EQ(layer->BackColor(), 0xC0FFFF) << layer->Name();
            EXPECT_EQ(layer->canvas.Point(99, 59), 0xC0FFFFu);
        }
    }
}

TEST(OverlayMenu, WithoutOverlayTheCanvasStaysWhereItIs) {
    Menus menus;
    model::Slidescreen& screen = menus.app.windows.slidescreen;
    screen.Width = 1500;
    screen.P2.Left = 150;
    menus.form1.mnuKASANE(0).Click();
    EXPECT_EQ(screen.P2.Left, 150);
    EXPECT_EQ(screen.P2.Width, 0);
}

TEST(OverlayMenu, ABackgroundChosenLaterWaitsForTheNextReset) {
    Menus menus;
    menus.form1.mnuKASANE(1).Click();
    menus.form1.mnuKAIRO(3).Click();
    EXPECT_EQ(menus.app.windows.slidescreen.P2.BackColor(), 0x808080);
}

TEST(FileMenu, OpenedDocumentCanBeStarted) {
    Menus menus;
    menus.dialogs.fileAnswers = {Text(u"C:\\show\\two.kvs")};
    menus.form1.mnuOPEN.Click();
    EXPECT_TRUE(menus.form1.Command1.Enabled);
    EXPECT_TRUE(menus.form1.Command4.Enabled);
    EXPECT_FALSE(menus.form1.Command2.Enabled);
    EXPECT_FALSE(menus.form1.Command3.Enabled);
    EXPECT_EQ(menus.state.SlideIndex, 0);
    EXPECT_EQ(menus.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\two.kvs");
}

TEST(FileMenu, CancelledOpenChangesNothing) {
    Menus menus;
    menus.form1.Command1.Enabled = false;
    menus.app.windows.form3.List1.AddItem(u"C:\\show\\a.png");
    menus.app.windows.form3.Command16.Enabled = true;
    menus.state.BaseFolder = u"D:\\";
    menus.form1.mnuOPEN.Click();
    EXPECT_EQ(menus.dialogs.requests.size(), 1u);
    EXPECT_FALSE(menus.form1.Command1.Enabled);
    EXPECT_TRUE(menus.app.windows.form3.Command16.Enabled);
    EXPECT_EQ(menus.state.BaseFolder, u"D:\\");
    EXPECT_TRUE(menus.files.read.empty());
}

TEST(FileMenu, RefusedDocumentLeavesTheLoadedOne) {
    Menus menus;
    menus.dialogs.fileAnswers = {Text(u"C:\\show\\two.kvs"), Text(u"C:\\show\\refused.kvs")};
    menus.form1.mnuOPEN.Click();
    menus.form1.mnuOPEN.Click();
    EXPECT_EQ(menus.dialogs.messages.size(), 1u);
    EXPECT_EQ(menus.state.ShowAbort, 1);
    EXPECT_EQ(menus.app.windows.form3.List1.ListCount(), 2);
    EXPECT_TRUE(menus.form1.Command1.Enabled);
    EXPECT_EQ(menus.state.DocumentPath, u"C:\\show\\two.kvs");
}

TEST(FileMenu, NewClosesTheFourPictureViewFirst) {
    Menus menus;
    menus.app.windows.form5.Load();
    menus.state.FourViewOpen = 1;
    menus.dialogs.whileOpen = [&](const auto&) { EXPECT_FALSE(menus.app.windows.form5.Loaded); };
    menus.form1.mnuNEW.Click();
    EXPECT_EQ(menus.dialogs.messages.size(), 1u);
    EXPECT_EQ(menus.dialogs.messages[0].title, u"新規作成");
}

struct LinkedMenus : Menus {
    model::Form9& form9 = app.windows.form9;
    LinkedMenus() {
        form9.List1.AddItem(u"C:\\show\\two.kvs");
        form9.Label4.Caption = u"1";
        form9.Caption = u"ＫＶＳリンク - C:\\show\\chain.kvl";
        state.LinkDocumentName = u"C:\\show\\chain.kvl";
        state.LinkList.Set(1, u"C:\\show\\two.kvs");
        state.LinkEnd = 2;
        state.LinkAutoFlag = 1;
        state.LinkListDirty = 1;
        state.SoundListCount = 1;
        state.SoundList.Set(1, u"C:\\s.mp3");
        app.windows.form10.List1.AddItem(u"C:\\s.mp3");
    }
    std::string Kept(TextView name) {
        const auto* file = files.Get(u"C:\\app\\" + Text(name));
        return file ? file->content : "none";
    }
};

TEST(FileMenu, NewEmptiesSoundListAndLinkListAfterItsOneQuestion) {
    LinkedMenus menus;
    menus.form1.mnuNEW.Click();
    menus.ExpectMessage(u"スライドリストとすべての設定を初期状態にしますか ?", 36, u"新規作成");
    EXPECT_EQ(menus.form9.List1.ListCount(), 0);
    EXPECT_EQ(menus.form9.Label4.Caption(), u"0");
    EXPECT_EQ(menus.form9.Caption(), u"ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）");
    EXPECT_EQ(menus.form9.Check1.Value, 0);
    EXPECT_EQ(menus.state.LinkDocumentName, u"");
    EXPECT_EQ(menus.state.LinkList(1), u"");
    EXPECT_EQ(menus.state.LinkEnd, 0);
    EXPECT_EQ(menus.state.LinkListDirty, 0);
    EXPECT_EQ(menus.app.windows.form10.List1.ListCount(), 0);
    EXPECT_EQ(menus.state.SoundListCount, 0);
    // At once, so that nothing of it comes back whatever happens to the program.
    EXPECT_EQ(menus.Kept(u"uautst.dat"), "KVSV3\r\n 0 \r\n 1 \r\n 0 \r\n\r\n 0 \r\n");
    EXPECT_EQ(menus.Kept(u"wavlist.dat"), "WAV3.4\r\n 0 \r\n");
}

TEST(FileMenu, NoToNewKeepsSoundListAndLinkList) {
    LinkedMenus menus;
    menus.dialogs.answers = {platform::Answer::No};
    menus.form1.mnuNEW.Click();
    EXPECT_EQ(menus.form9.List1.ListCount(), 1);
    EXPECT_EQ(menus.state.LinkList(1), u"C:\\show\\two.kvs");
    EXPECT_EQ(menus.app.windows.form10.List1.ListCount(), 1);
    EXPECT_TRUE(menus.files.written.empty());
}

TEST(FileMenu, SaveEntriesReachTheirDialogs) {
    Menus menus;
    menus.app.windows.form3.List1.AddItem(u"C:\\show\\a.png");
    menus.form1.mnuSAVE.Click();
    menus.form1.mnuHAIHU.Click();
    ASSERT_EQ(menus.dialogs.requests.size(), 2u);
    EXPECT_EQ(menus.dialogs.requests[0].title, u"パラピコ　ファイルの保存");
    EXPECT_EQ(menus.dialogs.requests[1].title, u"パラピコ　配布用ＫＶＳファイルの保存");
}

}  // namespace
}  // namespace app_tests
