// One piece of the sound list, played in its window.
#include "sound_list_support.h"
#include "support/media_bytes.h"

namespace authoring {
namespace {

struct SoundPreviewTest : SoundListTest {
    void SetUp() override {
        SoundListTest::SetUp();
        sound.Follow(files);
        files.Put(u"C:\\a.wav", media::Wav(1000));
        files.Put(u"C:\\b.wav", media::Wav(1000));
        sound.answer = [this](TextView command) {
            return command == u"status wav mode"       ? mode
                   : command == u"status wav position" ? Text(u"400")
                                                       : Text();
        };
        Fill({u"C:\\a.wav", u"C:\\b.wav", u"C:\\gone.wav"});
    }
    void Select(int row) {
        form10.List1.Choose({row});
        form10.List1.Press();
    }
    bool Sent(TextView command) const {
        return std::find(sound.commands.begin(), sound.commands.end(), command) !=
               sound.commands.end();
    }

    Text mode = u"playing";
};

TEST_F(SoundPreviewTest, NothingSelectedPlaysNothing) {
    form10.Command6.Click();
    EXPECT_TRUE(sound.commands.empty());
}

TEST_F(SoundPreviewTest, TheFirstSelectedPiecePlaysWhateverTheMode) {
    for (const int16_t soundMode : {0, 2, 6, 7, 9}) {
        SCOPED_TRACE(soundMode);
        sound.commands.clear();
        state.SoundMode = soundMode;
        Select(1);
        form10.Command6.Press();
        EXPECT_TRUE(Sent(u"open \"C:\\b.wav\" type waveaudio alias wav"));
        EXPECT_TRUE(Sent(u"play wav from 1"));
        EXPECT_TRUE(form10.Command7.Enabled);
        EXPECT_FALSE(form10.Command6.Enabled);
        EXPECT_EQ(form10.Text1.Content(), u"b.wav");
        mode = u"stopped";
        form10.Timer1.Tick();
        EXPECT_FALSE(form10.Command7.Enabled);
        EXPECT_TRUE(form10.Command6.Enabled);
        EXPECT_EQ(state.SoundOpen, 0);
        mode = u"playing";
    }
}

TEST_F(SoundPreviewTest, WhatIsKnownOfThePieceIsShown) {
    fileInquiry.wholeLengths[u"C:\\a.wav"] = {1.0, true};
    fileInquiry.levels[u"C:\\a.wav"] = {1, 2, 3};
    Select(0);
    form10.Command6.Press();
    EXPECT_THAT(form10.Position.Levels(), ElementsAre(1, 2, 3));
    EXPECT_EQ(form10.Position.Max(), 1000);
    EXPECT_EQ(form10.Position.Value(), 400);
    EXPECT_EQ(form10.Elapsed.Caption(), u"0:00 / 0:01");
    EXPECT_FALSE(Sent(u"play wav from 400")) << "the program's own moves are no seeking";
    form10.Position.MoveTo(700);
    EXPECT_TRUE(Sent(u"play wav from 700"));
    form10.Command7.Press();
    EXPECT_THAT(form10.Position.Levels(), IsEmpty());
    EXPECT_FALSE(form10.Position.Enabled);
    form10.Position.Value = 0;
    EXPECT_FALSE(Sent(u"play wav from 0"));
}

TEST_F(SoundPreviewTest, AnAnswerThatComesTooLateIsNotShown) {
    fileInquiry.late = true;
    fileInquiry.levels[u"C:\\a.wav"] = {1};
    Select(0);
    form10.Command6.Press();
    form10.Command7.Press();
    fileInquiry.Answer();
    EXPECT_THAT(form10.Position.Levels(), IsEmpty());
}

TEST_F(SoundPreviewTest, AFileThatCannotBeReadIsSaidAndLeavesNothingBehind) {
    Select(2);
    form10.Command6.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ファイル読込エラー|ファイルが読み込めません。\r\n"
                                            u"リストから削除して下さい。"));
    EXPECT_EQ(state.SoundPreviewFlag, 0) << "or the show's next piece would be this one";
    EXPECT_TRUE(form10.Command6.Enabled);
    EXPECT_TRUE(form10.Command3.Enabled);
}

TEST_F(SoundPreviewTest, TheListIsNotEditedMeanwhile) {
    Select(0);
    form10.Command6.Press();
    form10.List1.PressKey(46);
    form10.mnuREMOVE.Choose();
    form10.mnuCUT.Choose();
    EXPECT_EQ(form10.List1.ListCount(), 3);
}

TEST_F(SoundPreviewTest, ARunningShowGetsItsSoundBack) {
    Select(0);
    state.ShowRunning = 1;
    form10.Command6.Press();
    form10.Command7.Press();
    EXPECT_EQ(state.RestartSoundFlag, 1);
}

TEST_F(SoundPreviewTest, TheWindowsEndIsTheEndOfThePiece) {
    Select(0);
    form10.Command6.Press();
    form10.Unload();
    EXPECT_TRUE(Sent(u"close wav"));
    EXPECT_FALSE(form10.Timer1.Enabled);
}

}  // namespace
}  // namespace authoring
