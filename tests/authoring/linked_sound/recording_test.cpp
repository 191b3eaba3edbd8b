// Form20: records the sound that is linked to a slide.
#include "authoring/linked_sound/recording.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/windows/recording.h"
#include "platform/wave_format.h"
#include "support/fake_platform.h"
#include "support/media_bytes.h"

namespace authoring {
namespace {

using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;

const Text kTarget = u"C:\\s\\a \"b\".wav";

struct RecordingWindow : testing::Test, fakes::FakePlatform {
    model::Form20& form20 = app.windows.form20;
    model::ShowState& state = app.state;

    void SetUp() override {
        AttachRecording(app);
        sound.Follow(files);
        state.LinkedSoundTarget = kTarget;
    }
    /// Whatever is played ends then.
    void PlayUntil(double milliseconds) {
        sound.answer = [this, milliseconds](TextView command) {
            const bool asked = command == u"status wav mode";
            return Text(!asked                               ? u""
                        : loop.Milliseconds() < milliseconds ? u"playing"
                                                             : u"stopped");
        };
    }
    std::vector<Text> TakeCommands() { return std::exchange(sound.commands, {}); }
    void ExpectMessage(const Text& text, int flags, const Text& title) {
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].text, text);
        EXPECT_EQ(dialogs.messages[0].flags, flags);
        EXPECT_EQ(dialogs.messages[0].title, title);
        dialogs.messages.clear();
    }
};

TEST_F(RecordingWindow, SaysThatItCanRecord) {
    form20.Show();
    EXPECT_EQ(form20.Caption(), u"画像連動効果音(WAV)録音・再生");
    EXPECT_EQ(form20.Option1(0).Caption(), u"モノラル");
    EXPECT_EQ(form20.Option1(1).Caption(), u"ステレオ");
    EXPECT_EQ(form20.Label1.Caption(), u"録音可能です。");
    EXPECT_EQ(form20.Text1.Content(), kTarget);
    EXPECT_TRUE(form20.Option1(0).Value);
    EXPECT_TRUE(form20.Command1.Enabled);
    EXPECT_FALSE(form20.Command4.Enabled) << "nothing to play";
    EXPECT_FALSE(form20.Command5.Enabled);
    EXPECT_THAT(dialogs.messages, IsEmpty());
    EXPECT_THAT(files.written, IsEmpty()) << "nothing is tried out";
}

TEST_F(RecordingWindow, RefusesAFolderThatCannotBeWritten) {
    fileChanges.unwritable = {kTarget};
    files.Put(kTarget, media::Wav(100));
    form20.Show();
    ExpectMessage(
        u"録音できません。\r\n画像の保存先フォルダを変更してください。\r\n"
        u"または、メニューの設定で画像連動フォルダ指定を行ってください。",
        platform::kPlain, u"連動録音不可");
    EXPECT_FALSE(form20.Command1.Enabled);
    EXPECT_TRUE(form20.Command4.Enabled) << "what is there can be played";
    EXPECT_TRUE(form20.Visible);
}

TEST_F(RecordingWindow, RefusesATargetWithoutAName) {
    state.LinkedSoundTarget = u"C:\\s\\";
    form20.Show();
    EXPECT_EQ(dialogs.messages.size(), 1u);
    EXPECT_FALSE(form20.Command1.Enabled);
}

TEST_F(RecordingWindow, RecordsInMono) {
    form20.Show();
    form20.Command1.Press();
    EXPECT_THAT(TakeCommands(), ElementsAre(u"open new type waveaudio alias Rec",
                                            u"set Rec channels 1 samplespersec 44100 bytespersec "
                                            u"88200 alignment 2 bitspersample 16",
                                            u"record Rec"));
    EXPECT_TRUE(form20.Label2.Visible);
    EXPECT_FALSE(form20.Label1.Visible);
    EXPECT_FALSE(form20.Command1.Enabled);
    EXPECT_FALSE(form20.Command4.Enabled);
    EXPECT_TRUE(form20.Command5.Enabled);
    EXPECT_TRUE(form20.Timer1.Enabled);
    EXPECT_THAT(files.written, IsEmpty());
    loop.Sleep(65260);
    form20.Timer1.Tick();
    EXPECT_EQ(form20.Label4.Caption(), u"01:05.2");
    EXPECT_EQ(form20.Level.Value, 0) << "a silent room";

    form20.Command5.Press();
    EXPECT_THAT(TakeCommands(),
                ElementsAre(u"stop Rec", u"save Rec \"C:\\s\\a \"b\".wav\"", u"close Rec"));
    // 65.26 s of 44100 samples of 2 bytes.
    const auto* file = files.Get(kTarget);
    ASSERT_TRUE(file);
    constexpr uint32_t kBytes = 2877966 * 2;
    EXPECT_EQ(file->content.substr(0, 44), platform::WaveHeader({1, 44100}, kBytes));
    EXPECT_EQ(file->content.size(), 44u + kBytes);
    EXPECT_FALSE(form20.Label2.Visible);
    EXPECT_FALSE(form20.Timer1.Enabled);
    EXPECT_TRUE(form20.Command1.Enabled);
    EXPECT_TRUE(form20.Command4.Enabled);
    EXPECT_FALSE(form20.Command5.Enabled);
    EXPECT_EQ(app.windows.Pointer(), model::kPointerNormal);
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(RecordingWindow, RecordsInStereo) {
    form20.Show();
    form20.Option1(1).Press();
    form20.Command1.Press();
    EXPECT_EQ(sound.commands[1],
              u"set Rec channels 2 samplespersec 44100 bytespersec 176400 alignment 4 "
              u"bitspersample 16");
    loop.Sleep(100);
    form20.Command5.Press();
    EXPECT_EQ(files.Get(kTarget)->content.substr(0, 44),
              platform::WaveHeader({2, 44100}, 4410 * 4));
}

TEST_F(RecordingWindow, AsksBeforeItReplacesASound) {
    files.Put(kTarget, "old");
    form20.Show();
    dialogs.answers = {Answer::No, Answer::Yes};
    form20.Command1.Press();
    ExpectMessage(u"画像連動効果音(WAV)を上書き録音しますか ?", platform::kYesNoQuestion,
                  u"画像連動効果音録音");
    EXPECT_THAT(sound.commands, IsEmpty());
    form20.Command1.Press();
    loop.Sleep(50);
    EXPECT_EQ(files.Get(kTarget)->content, "old") << "until it was stopped";
    form20.Command5.Press();
    EXPECT_EQ(files.Get(kTarget)->content.size(), 44u + 2205 * 2);
}

TEST_F(RecordingWindow, SaysThatItCannotSave) {
    files.Put(kTarget, "old");
    form20.Show();
    form20.Command1.Press();
    dialogs.messages.clear();
    state.SoundOpen = 1;
    files.writeError = u"full";
    TakeCommands();
    form20.Command5.Press();
    ExpectMessage(u"効果音が保存できません。", platform::kExclamation, u"効果音保存エラー");
    const std::vector<Text> commands = TakeCommands();
    ASSERT_EQ(commands.size(), 3u + 8u);
    EXPECT_EQ(commands[2], u"close Rec");
    EXPECT_EQ(commands[3], u"stop wav_ren") << "all sound stops";
    EXPECT_EQ(files.Get(kTarget)->content, "old");
    EXPECT_FALSE(form20.Label2.Visible);
    EXPECT_EQ(app.windows.Pointer(), model::kPointerNormal);
    EXPECT_TRUE(form20.Command1.Enabled);
}

TEST_F(RecordingWindow, SaysThatThereIsNoMicrophone) {
    files.Put(kTarget, "old");
    form20.Show();
    sound.answer = [](TextView) { return Text(); };  // the device never records
    form20.Command1.Press();
    dialogs.messages.clear();
    TakeCommands();
    form20.Timer1.Tick();
    ExpectMessage(
        u"マイクが見つからないか、使えません。\r\nマイクをつなぎ、サウンドの設定で選んでから、もう"
        u"一度「録音」を押してください。",
        platform::kExclamation, u"画像連動効果音録音");
    EXPECT_THAT(TakeCommands(), ElementsAre(u"close Rec"));
    EXPECT_FALSE(form20.Label2.Visible);
    EXPECT_FALSE(form20.Timer1.Enabled);
    EXPECT_TRUE(form20.Command1.Enabled);
    EXPECT_EQ(files.Get(kTarget)->content, "old");
}

TEST_F(RecordingWindow, KeepsWhatCameBeforeTheMicrophoneBroke) {
    form20.Show();
    form20.Command1.Press();
    loop.Sleep(1000);
    form20.Timer1.Tick();
    sound.MciSendString(u"stop Rec");
    form20.Timer1.Tick();
    ExpectMessage(u"マイクの音が途切れました。\r\nここまでの録音を保存します。",
                  platform::kExclamation, u"画像連動効果音録音");
    EXPECT_EQ(files.Get(kTarget)->content.size(), 44u + 88200);
    EXPECT_TRUE(form20.Command1.Enabled);
}

TEST_F(RecordingWindow, PlaysItsFile) {
    files.Put(kTarget, media::Wav(300));
    form20.Show();
    form20.Text1.Content = u"  " + kTarget + u" ";
    state.SoundMode = 7;
    PlayUntil(300);
    bool seen = false;
    loop.After(200, [&] {
        seen = true;
        EXPECT_TRUE(form20.Label3.Visible);
        EXPECT_TRUE(form20.Command5.Enabled);
        EXPECT_FALSE(form20.Command1.Enabled);
        EXPECT_FALSE(form20.Command3.Enabled);
    });
    form20.Command4.Press();
    EXPECT_TRUE(seen);
    EXPECT_EQ(loop.Milliseconds(), 300);
    EXPECT_EQ(sound.commands[0], u"open \"C:\\s\\a \"b\".wav\" type waveaudio alias wav");
    EXPECT_FALSE(form20.Label3.Visible);
    EXPECT_TRUE(form20.Command1.Enabled);
    EXPECT_TRUE(form20.Command3.Enabled);
    EXPECT_FALSE(form20.Command5.Enabled);
    EXPECT_EQ(state.SoundOpen, 0) << "the alias is free again";
}

TEST_F(RecordingWindow, StopsPlayingWhenItIsAskedTo) {
    files.Put(kTarget, media::Wav(60000));
    PlayUntil(60000);
    form20.Show();
    loop.After(200, [&] { form20.Command5.Press(); });
    form20.Command4.Press();
    EXPECT_EQ(loop.Milliseconds(), 210);
    EXPECT_EQ(state.SoundPreviewStop, 1);
    EXPECT_EQ(sound.commands.back(), u"close mp3") << "StopSound, once";
    EXPECT_EQ(std::count(sound.commands.begin(), sound.commands.end(), u"stop wav"), 1);
    EXPECT_TRUE(form20.Command3.Enabled);
}

TEST_F(RecordingWindow, PlaysNothingThatCannotBeRead) {
    files.Put(kTarget, media::Wav(100));
    files.MakeUnreadable(kTarget);
    form20.Show();
    form20.Command4.Press();
    EXPECT_THAT(sound.commands, IsEmpty());
    EXPECT_EQ(form20.Label1.Caption(), u"再生できません。");
}

TEST_F(RecordingWindow, ClosingEndsEverything) {
    files.Put(kTarget, media::Wav(60000));
    PlayUntil(60000);
    form20.Show();
    loop.After(200, [&] { form20.Unload(); });  // by its frame
    form20.Command4.Press();
    EXPECT_EQ(loop.Milliseconds(), 210);
    EXPECT_EQ(state.SoundPreviewFlag, 0);
    EXPECT_EQ(state.SoundPreviewFile, u"");
    const std::vector<Text> commands = TakeCommands();
    EXPECT_EQ(commands[commands.size() - 2], u"stop Rec");
    EXPECT_EQ(commands.back(), u"close Rec");
    EXPECT_TRUE(std::count(commands.begin(), commands.end(), u"close wav"));
}

TEST_F(RecordingWindow, ARecordingIsNotClosedWithoutAsking) {
    files.Put(kTarget, "old");
    form20.Show();
    form20.Command1.Press();
    dialogs.messages.clear();
    dialogs.answers = {Answer::No, Answer::Yes};
    form20.Command3.Press();
    ExpectMessage(u"録音を保存せずに閉じますか ?", platform::kYesNoQuestion, u"画像連動効果音録音");
    EXPECT_TRUE(form20.Label2.Visible);
    form20.Command3.Press();
    EXPECT_FALSE(form20.Loaded);
    EXPECT_FALSE(sound.Recording(u"Rec"));
    EXPECT_EQ(files.Get(kTarget)->content, "old");
}

}  // namespace
}  // namespace authoring
