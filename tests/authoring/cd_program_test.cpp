// Form14: the order in which a show plays the tracks of a CD.
#include "authoring/settings/cd_program.h"

#include <gtest/gtest.h>

#include <functional>

#include "model/windows/cd_program.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

using Rows = std::deque<Text>;

struct CdProgram : testing::Test {
    fakes::FakePlatform around;
    model::ShowState& state = around.app.state;
    model::Form14& form14 = around.app.windows.form14;

    void SetUp() override {
        AttachCdProgram(around.app);
        form14.HasView = true;
        around.sound.cd.Insert({245, 60, 2});
    }
    /// Opens the window, acts in it, and leaves it by its close button if it still stands.
    void Open(const std::function<void()>& act) {
        around.loop.After(100, [this, act] {
            EXPECT_TRUE(form14.Visible);
            EXPECT_TRUE(form14.Modal);
            act();
            form14.Unload();
        });
        OpenCdProgram(around.app);
        EXPECT_FALSE(form14.Visible);
    }
    void Add(int track) { EXPECT_TRUE(form14.Command3(track).Press()); }
};

TEST_F(CdProgram, HasAButtonForEachTrackWithItsLength) {
    Open([&] {
        for (int track = 1; track <= 99; ++track) {
            EXPECT_EQ(form14.Command3(track).Visible(), track <= 3) << track;
        }
        EXPECT_EQ(form14.Command3(2).Caption(), u"2");
        EXPECT_EQ(form14.Command3(1).Detail(), u"4:05");
        EXPECT_EQ(form14.Command3(2).Detail(), u"1:00");
        EXPECT_EQ(form14.Command3(3).Detail(), u"0:02");
    });
    around.sound.cd.Insert(std::vector<int>(99, 10));
    Open([&] { EXPECT_TRUE(form14.Command3(99).Visible); });
    around.sound.cd.Insert({10, 10});
    Open([&] { EXPECT_FALSE(form14.Command3(3).Visible) << "of another disc"; });
}

TEST_F(CdProgram, ADriveThatTellsNoLengthsLeavesThemOut) {
    around.sound.answer = [](TextView command) {
        return Text(command == u"status cdaudio number of tracks" ? u"3" : u"");
    };
    Open([&] {
        EXPECT_TRUE(form14.Command3(3).Visible);
        EXPECT_EQ(form14.Command3(1).Detail(), u"");
        Add(1);
        EXPECT_EQ(form14.Label4.Caption(), u"");
    });
}

TEST_F(CdProgram, WithoutAPlayableDiscABoxSaysSo) {
    for (const int tracks : {0, 1}) {
        around.sound.cd.Insert(std::vector<int>(static_cast<size_t>(tracks), 60));
        around.dialogs.messages.clear();
        OpenCdProgram(around.app);
        EXPECT_FALSE(form14.Loaded);
        ASSERT_EQ(around.dialogs.messages.size(), 1u);
        EXPECT_EQ(around.dialogs.messages[0].text, u"ＣＤが準備できていません。");
    }
}

TEST_F(CdProgram, PressedTracksGoToTheEndAndOkKeepsThem) {
    state.CdTrackSetting = u"3";
    state.CdProgram.Set(7, u"9");
    Open([&] {
        Add(3);
        Add(1);
        Add(3);
        EXPECT_EQ(form14.List1.Rows(), (Rows{u"3", u"1", u"3"}));
        EXPECT_EQ(form14.Label1.Caption(), u"3");
        EXPECT_EQ(form14.Label4.Caption(), u"合計 4:09");
        EXPECT_EQ(state.CdProgramCount, 0);
        form14.Command1.Press();
        EXPECT_FALSE(form14.Visible);
    });
    EXPECT_EQ(state.CdProgramCount, 3);
    EXPECT_EQ(state.CdProgram(1), u"3");
    EXPECT_EQ(state.CdProgram(2), u"1");
    EXPECT_EQ(state.CdProgram(3), u"3");
    EXPECT_EQ(state.CdProgram.Used(), 3);
    EXPECT_EQ(state.CdTrackSetting, u"1");
}

TEST_F(CdProgram, ShowsTheProgramThatIsThereAndLeavesItOnACancel) {
    state.CdProgram.Set(1, u"2");
    state.CdProgram.Set(2, u"8");
    state.CdProgramCount = 2;
    state.CdTrackSetting = u"3";
    for (const bool closed : {false, true}) {
        Open([&] {
            EXPECT_EQ(form14.List1.Rows(), (Rows{u"2", u"8"}));
            EXPECT_EQ(form14.Label1.Caption(), u"2");
            EXPECT_EQ(form14.Label4.Caption(), u"合計 1:00");
            Add(1);
            form14.Check1.Press();
            EXPECT_EQ(state.CdProgramStop, 1);
            closed ? form14.Unload() : form14.Command2.Press();
        });
        EXPECT_EQ(state.CdProgramCount, 2);
        EXPECT_EQ(state.CdProgramStop, 0);
        EXPECT_EQ(state.CdTrackSetting, u"3");
    }
}

TEST_F(CdProgram, TheBoxSaysWhetherTheProgramEndsTheShow) {
    for (const int16_t wanted : {1, 0}) {
        Open([&] {
            EXPECT_EQ(form14.Check1.Value, 1 - wanted);
            form14.Check1.Press();
            form14.Command1.Press();
        });
        EXPECT_EQ(state.CdProgramStop, wanted);
    }
}

TEST_F(CdProgram, HoldsNinetyNineEntries) {
    Open([&] {
        for (int i = 0; i < 99; ++i) {
            Add(2);
        }
        EXPECT_TRUE(around.dialogs.messages.empty());
        Add(1);
        EXPECT_EQ(form14.List1.ListCount(), 99);
        ASSERT_EQ(around.dialogs.messages.size(), 1u);
        EXPECT_EQ(around.dialogs.messages[0].text, u"これ以上登録できません");
        EXPECT_EQ(around.dialogs.messages[0].title, u"曲順リストエラー");
    });
}

TEST_F(CdProgram, SelectedEntriesAreTakenOutAndDragged) {
    Open([&] {
        for (const int track : {1, 2, 3, 1, 2}) {
            Add(track);
        }
        form14.List1.Choose({1, 3});
        form14.List1.DragTo(0);
        EXPECT_EQ(form14.List1.Rows(), (Rows{u"2", u"1", u"1", u"3", u"2"}));
        EXPECT_EQ(form14.List1.SelectedRows(), (std::vector<int>{0, 1}));
        form14.Command5.Press();
        EXPECT_EQ(form14.List1.Rows(), (Rows{u"1", u"3", u"2"}));
        form14.List1.Choose({2});
        form14.List1.PressKey(46);
        EXPECT_EQ(form14.List1.Rows(), (Rows{u"1", u"3"}));
        EXPECT_EQ(form14.Label1.Caption(), u"2");
        EXPECT_EQ(form14.Label4.Caption(), u"合計 4:07");
        form14.List1.Choose({});
        form14.Command5.Press();
        EXPECT_EQ(form14.List1.ListCount(), 2);
    });
}

TEST_F(CdProgram, AllGoAfterAQuestion) {
    Open([&] {
        form14.Command4.Press();
        EXPECT_TRUE(around.dialogs.messages.empty()) << "nothing to ask about";
        Add(1);
        around.dialogs.answers = {platform::Answer::No, platform::Answer::Yes};
        form14.Command4.Press();
        EXPECT_EQ(form14.List1.ListCount(), 1);
        EXPECT_EQ(around.dialogs.messages[0].text, u"曲順リストをすべて消去しますか ?");
        EXPECT_EQ(around.dialogs.messages[0].title, u"一括取消");
        EXPECT_EQ(around.dialogs.messages[0].flags, platform::kYesNoQuestion);
        form14.Command4.Press();
        EXPECT_EQ(form14.List1.ListCount(), 0);
        EXPECT_EQ(form14.Label1.Caption(), u"0");
    });
}

}  // namespace
}  // namespace authoring
