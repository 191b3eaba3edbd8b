// form2, form8, form17: the one piece that plays in the background.
#include "authoring/settings/background_sound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/windows/background_sound.h"
#include "model/windows/main_window.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

struct Row {
    model::BackgroundSound& window;
    Text& piece;
    Text caption, pattern, first, second;  // the second file of its folder
};

struct BackgroundSoundWindows : testing::Test, fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    std::vector<Row> rows{
        {windows.form2, state.WavFile, u"WAVファイル再生", u"*.wav", u"a.wav", u"b.wav"},
        {windows.form8, state.MidiFile, u"MIDIファイル再生", u"*.MID", u"a.mid", u"b.mid"},
        {windows.form17, state.Mp3File, u"MP3ファイル再生", u"*.MP3", u"a.mp3", u"b.mp3"}};

    void SetUp() override { AttachBackgroundSound(app); }
};

TEST_F(BackgroundSoundWindows, OpenAtTheStoredPiece) {
    for (const Row& row : rows) {
        const Text folder = u"D:\\" + row.first;
        files.Put(folder + u"\\" + row.first, "x");
        files.Put(folder + u"\\" + row.second, "x");
        row.piece = folder + u"\\" + row.second;
        row.window.Show();
        EXPECT_EQ(row.window.Caption(), row.caption);
        EXPECT_EQ(row.window.File1.Pattern(), row.pattern);
        EXPECT_EQ(row.window.Dir1.Path(), folder);
        EXPECT_EQ(row.window.Text1.Content(), row.piece);
        EXPECT_EQ(row.window.File1.ListIndex, 1) << "the stored one is chosen";
    }
}

TEST_F(BackgroundSoundWindows, OpenAtHomeWithoutAUsablePath) {
    for (const Row& row : rows) {
        for (const Text piece : {u"", u"C:\\gone\\a.wav", u"bare.wav"}) {
            row.piece = piece;
            row.window.Show();
            EXPECT_EQ(row.window.Dir1.Path(), folders.home);
            EXPECT_EQ(row.window.Text1.Content(), piece);
            row.window.Unload();
        }
    }
}

TEST_F(BackgroundSoundWindows, TakeTheTextWithOkAlone) {
    for (const Row& row : rows) {
        files.Put(u"D:\\m\\" + row.first, "x");
    }
    for (const Row& row : rows) {
        row.window.Show();
        row.window.Dir1.Path = u"D:\\m";
        const auto& names = row.window.File1.Rows();
        const auto found = std::find(names.begin(), names.end(), row.first);
        ASSERT_NE(found, names.end());
        row.window.File1.Choose({static_cast<int>(found - names.begin())});
        EXPECT_EQ(row.window.Text1.Content(), u"D:\\m\\" + row.first);
        EXPECT_EQ(row.piece, u"");
        row.window.Command2.Press();
        EXPECT_FALSE(row.window.Loaded);
        EXPECT_EQ(row.piece, u"") << "the other button only closes";
        row.window.Show();
        row.window.Text1.Enter(u"D:\\m\\x \"y\".wav");
        row.window.PressKey(model::kKeyEnter);
        EXPECT_EQ(row.piece, u"D:\\m\\x \"y\".wav");
        EXPECT_FALSE(row.window.Loaded);
    }
}

TEST_F(BackgroundSoundWindows, TakeDroppedFilesOfTheirKind) {
    for (const Row& row : rows) {
        row.window.Show();
        row.window.Drop({u"D:\\m\\readme.txt"});
        EXPECT_EQ(row.window.Text1.Content(), u"");
        row.window.Drop({u"D:\\m\\readme.txt", u"D:\\m\\" + row.first});
        EXPECT_EQ(row.window.Text1.Content(), u"D:\\m\\" + row.first);
    }
}

TEST_F(BackgroundSoundWindows, BoxesSetTheirFlagAndInformOnce) {
    struct Box {
        model::BackgroundSound& window;
        model::CheckBox& box;
        int16_t& flag;
        int16_t mode;
        Text text;
    };
    const Box boxes[] = {
        {windows.form8, windows.form8.Check1, state.MidiLinkedWavFlag, 4,
         u"ＭＩＤＩ再生中に画像連動（ＷＡＶ）を再生します。\r\n"
         u"（この設定はＫＶＳファイルに保存されます。）"},
        {windows.form17, windows.form17.Check1, state.Mp3LinkedWavFlag, 8,
         u"ＭＰ３再生中に画像連動（ＷＡＶ）を再生します。\r\n"
         u"（この設定はＫＶＳファイルに保存されます。）"},
    };
    for (const Box& one : boxes) {
        state.SoundMode = one.mode;
        one.flag = 0;
        one.window.Show();
        EXPECT_EQ(one.box.Caption(), u"画像連動（ＷＡＶ）あり");
        EXPECT_EQ(one.box.Value, 0);
        one.box.Press();
        EXPECT_EQ(one.flag, 1);
        EXPECT_TRUE(windows.form1.mnuDOUKI.Visible);
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].text, one.text);
        EXPECT_EQ(dialogs.messages[0].title, u"ＭＩＤＩ再生オプション");
        EXPECT_EQ(dialogs.messages[0].flags, platform::kPlain);
        one.box.Press();
        EXPECT_EQ(one.flag, 0);
        EXPECT_FALSE(windows.form1.mnuDOUKI.Visible);
        one.box.Press();
        one.window.Command2.Press();
        EXPECT_EQ(one.flag, 1);
        one.window.Show();
        EXPECT_EQ(one.box.Value, 1);
        one.box.Press();
        one.box.Press();
        EXPECT_EQ(dialogs.messages.size(), 1u) << "only the first time";
        dialogs.messages.clear();
    }
}

}  // namespace
}  // namespace authoring
