// The menus of the sound mode and of the order of CD tracks.
#include <gtest/gtest.h>

#include "menu_support.h"
#include "model/windows/background_sound.h"
#include "model/windows/cd_program.h"
#include "model/windows/declared_windows.h"
#include "model/windows/linked_sound.h"
#include "model/windows/main_window.h"

namespace app_tests {
namespace {

using platform::Answer;

struct Box {
    int mode;
    int flags;
    Text title, text;
};

const std::vector<Box>& Boxes() {
    static const std::vector<Box> table{
        {0, 0, u"効果音設定",
         u"画面切換後に、共通ＷＡＶファイル（VUE1.WAV）の効果音をならします。"},
        {1, 36, u"画像連動(WAV)",
         u"画面切換後に、画像ファイルと同一名称で拡張子がＷＡＶのファイルの効果音をならします。\r\n"
         u"例)　test.jpg → test.wav を再生"},
        {5, 36, u"画像連動(MIDI)",
         u"画面切換後に、画像ファイルと同一名称で拡張子がＭＩＤのファイルがあれば再生します。\r\n"
         u"例)　test.jpg → test.mid を再生"},
        {9, 36, u"画像連動(MP3)",
         u"画面切換後に、画像ファイルと同一名称で拡張子がＭＰ３のファイルがあれば再生します。\r\n"
         u"  例)　test.jpg → test.mp3 を再生\r\n(※再生中の曲は自動的にフェードアウトします｡)"},
    };
    return table;
}

TEST(SoundModeMenu, EveryModeIsChosenWithItsBoxFirst) {
    const std::vector<Text> captions{u"共通音再生",
                                     u"画像連動(WAV)再生",
                                     u"CD再生",
                                     u"WAV再生",
                                     u"MIDI再生",
                                     u"画像連動(MIDI)再生",
                                     u"WAV,MID,MP3リスト再生",
                                     u"なし",
                                     u"ＭＰ３再生",
                                     u"画像連動(MP３)再生"};
    for (int mode = 0; mode < 10; ++mode) {
        Menus menus;
        model::Windows& windows = menus.app.windows;
        windows.form2.HasView = windows.form8.HasView = windows.form17.HasView = true;
        SCOPED_TRACE(mode);
        const int16_t before = mode == 7 ? 6 : 7;
        menus.state.SoundMode = before;
        EXPECT_EQ(menus.form1.mnuKOU(mode).Caption(), captions[static_cast<size_t>(mode)]);
        menus.files.Put(u"C:\\app\\ding.wav", "x");
        menus.state.DefaultEffectSound = u"ding.wav";
        menus.dialogs.whileOpen = [&](const auto&) { EXPECT_EQ(menus.state.SoundMode, before); };
        menus.form1.mnuKOU(mode).Click();
        EXPECT_EQ(menus.state.SoundMode, mode);
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(menus.form1.mnuKOU(i).Checked, i == mode);
        }
        const auto box = std::find_if(Boxes().begin(), Boxes().end(),
                                      [&](const Box& one) { return one.mode == mode; });
        if (box == Boxes().end()) {
            EXPECT_TRUE(menus.dialogs.messages.empty());
        } else {
            menus.ExpectMessage(box->text, box->flags, box->title);
        }
        EXPECT_EQ(menus.dialogs.inputs.size(), mode == 1 ? 1u : 0u);
        EXPECT_EQ(menus.form1.mnuCDM.Visible, mode == 2);
        EXPECT_EQ(windows.form13.Option1.Value, mode == 9) << "MP3";
        EXPECT_EQ(windows.form13.Option2.Value, mode != 9) << "WAV";
    }
}

TEST(SoundModeMenu, NoKeepsTheOldMode) {
    for (const int mode : {1, 5, 9}) {
        Menus menus;
        menus.state.SoundMode = 3;
        document::FollowAllSettings(menus.app);
        menus.dialogs.answers = {Answer::No};
        menus.form1.mnuKOU(mode).Click();
        EXPECT_EQ(menus.dialogs.messages.size(), 1u);
        EXPECT_TRUE(menus.dialogs.inputs.empty());
        EXPECT_EQ(menus.state.SoundMode, 3);
        EXPECT_TRUE(menus.form1.mnuKOU(3).Checked);
        EXPECT_FALSE(menus.form1.mnuKOU(mode).Checked);
    }
}

TEST(SoundModeMenu, ShowsTheWindowOfThePieceAndForgetsThePause) {
    for (int mode = 0; mode < 10; ++mode) {
        Menus menus;
        model::Windows& windows = menus.app.windows;
        windows.form2.HasView = windows.form8.HasView = windows.form17.HasView = true;
        menus.state.SoundPaused = 1;
        menus.form1.mnuKOU(mode).Click();
        EXPECT_EQ(windows.form2.Visible, mode == 3);
        EXPECT_EQ(windows.form8.Visible, mode == 4);
        EXPECT_EQ(windows.form17.Visible, mode == 8);
        const bool forgets = mode == 3 || mode == 4 || mode == 6 || mode == 8;
        EXPECT_EQ(menus.state.SoundPaused, forgets ? 0 : 1) << mode;
    }
}

TEST(SoundModeMenu, LinkedSoundEntriesAreThereWhereTheyMeanSomething) {
    struct Row {
        int mode;
        int cdWav, midiWav, mp3Wav;  // the flags' values
        bool sync, place;
    };
    const Row rows[] = {
        {0, 1, 0, 0, true, true},   {1, 1, 0, 0, true, true},   {2, 1, 0, 0, false, false},
        {2, 0, 0, 0, true, true},   {3, 0, 1, 1, false, false}, {4, 0, 0, 1, false, false},
        {4, 1, 1, 0, true, true},   {5, 0, 1, 1, false, true},  {6, 1, 0, 0, true, true},
        {7, 0, 1, 1, false, false}, {8, 0, 1, 0, false, false}, {8, 1, 0, 1, true, true},
        {9, 0, 1, 1, false, true},
    };
    for (const Row& row : rows) {
        Menus menus;
        menus.state.CdPlusLinkedWav = static_cast<int16_t>(row.cdWav);
        menus.state.MidiLinkedWavFlag = static_cast<int16_t>(row.midiWav);
        menus.state.Mp3LinkedWavFlag = static_cast<int16_t>(row.mp3Wav);
        menus.form1.mnuKOU(row.mode).Click();
        EXPECT_EQ(menus.form1.mnuDOUKI.Visible, row.sync) << row.mode;
        EXPECT_EQ(menus.form1.mnuKOICHI.Visible, row.place) << row.mode;
    }
}

TEST(SoundModeMenu, LinkedWavOverTheCdShowsTheLinkedSoundEntries) {
    Menus menus;
    menus.form1.mnuKOU(2).Click();
    menus.form1.mnuCDWAV(0).Click();
    EXPECT_TRUE(menus.form1.mnuDOUKI.Visible);
    EXPECT_TRUE(menus.form1.mnuKOICHI.Visible);
    menus.form1.mnuCDWAV(1).Click();
    EXPECT_FALSE(menus.form1.mnuDOUKI.Visible);
    EXPECT_FALSE(menus.form1.mnuKOICHI.Visible);
}

TEST(DefaultSound, StandsWhenItIsAWavThatExists) {
    struct Row {
        std::optional<Text> entry;
        Text result;
    };
    const Row rows[] = {
        {Text(u"D:\\s\\ping.wav"), u"D:\\s\\ping.wav"},
        {Text(u"D:\\s\\ping"), u"D:\\s\\ping.wav"},
        {Text(u"D:\\s\\PING.WAV"), u"D:\\s\\PING.WAV"},
        {Text(u"ding"), u"ding.wav"},  // one of the program's own
        {Text(u"D:\\s\\gone.wav"), u"*.wav"},
        {Text(u"D:\\s\\ping.mp3"), u"*.wav"},
        {Text(u"D:\\s\\p.i"), u"*.wav"},
        {Text(u"*.wav"), u"*.wav"},
        {Text(u"*.WAV"), u"*.wav"},
        {Text(), u"*.wav"},
        {std::nullopt, u"*.wav"},
    };
    for (const Row& row : rows) {
        Menus menus;
        for (const Text file : {u"D:\\s\\ping.wav", u"D:\\s\\ping.mp3", u"C:\\app\\ding.wav",
                                u"D:\\s\\p.i", u"C:\\app\\*.wav", u"C:\\app\\.wav"}) {
            menus.files.Put(file, "x");
        }
        menus.state.DefaultEffectSound = u"old.wav";
        menus.dialogs.inputAnswers = {row.entry};
        menus.form1.mnuKOU(1).Click();
        SCOPED_TRACE(text::ToUtf8(row.entry.value_or(u"(cancel)")));
        ASSERT_EQ(menus.dialogs.inputs.size(), 1u);
        EXPECT_EQ(menus.dialogs.inputs[0].title, u"ﾃﾞﾌｫﾙﾄ効果音");
        EXPECT_EQ(menus.dialogs.inputs[0].text,
                  u"デフォルトＷＡＶファイルを再生する場合は設定してください。\r\n"
                  u"（画像連動ＷＡＶファイルが見つからない場合の効果音設定）");
        EXPECT_EQ(menus.dialogs.initials[0], u"old.wav");
        EXPECT_EQ(menus.state.DefaultEffectSound, row.result);
        EXPECT_EQ(menus.state.SoundMode, 1);
        const bool none = row.result == u"*.wav";
        ASSERT_EQ(menus.dialogs.messages.size(), none ? 2u : 1u);
        if (none) {
            EXPECT_EQ(menus.dialogs.messages[1].text, u"ﾃﾞﾌｫﾙﾄ効果音は設定されません。");
            EXPECT_EQ(menus.dialogs.messages[1].flags, 0);
        }
    }
}

TEST(CdOrder, LeavingTheProgrammeErasesIt) {
    for (const int order : {0, 1}) {
        Menus menus;
        menus.state.CdOrder = 2;
        menus.state.CdProgramCount = 2;
        menus.state.CdProgram.Set(1, u"3");
        menus.state.CdProgram.Set(2, u"1");
        menus.form1.mnuCDRND(order).Click();
        menus.ExpectMessage(u"ＣＤプログラム選択の曲順リストは消去されます。", 0,
                            u"曲順リスト消去");
        EXPECT_EQ(menus.state.CdProgramCount, 0);
        EXPECT_EQ(menus.state.CdProgram.Used(), 0);
        EXPECT_EQ(menus.state.CdOrder, order);
    }
}

TEST(CdOrder, WithoutAProgrammeNothingIsSaid) {
    Menus menus;
    menus.state.CdOrder = 2;
    menus.form1.mnuCDRND(1).Click();
    menus.state.CdProgramCount = 1;  // left over, and not what is left now
    menus.form1.mnuCDRND(0).Click();
    EXPECT_TRUE(menus.dialogs.messages.empty());
    EXPECT_EQ(menus.state.CdProgramCount, 1);
}

TEST(CdOrder, ChoosingTheProgrammeOpensItsWindowAndKeepsIt) {
    Menus menus;
    model::Form14& form14 = menus.app.windows.form14;
    form14.HasView = true;
    menus.sound.cd.Insert({60, 60});
    menus.state.CdProgramCount = 1;
    menus.state.CdOrder = 2;
    bool shown = false;
    menus.loop.After(100, [&] {
        shown = form14.Visible;
        form14.Unload();
    });
    menus.form1.mnuCDRND(2).Click();
    EXPECT_TRUE(shown);
    EXPECT_EQ(menus.state.CdProgramCount, 1);
    EXPECT_FALSE(menus.form1.mnuCD.Visible);
    EXPECT_FALSE(menus.form1.mnuCDRP.Visible);
    EXPECT_TRUE(menus.dialogs.messages.empty());
}

}  // namespace
}  // namespace app_tests
