// form13: makes a linked sound by copying a file.
#include "authoring/linked_sound/copying.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/windows/linked_sound.h"
#include "model/windows/main_window.h"
#include "support/fake_platform.h"
#include "support/media_bytes.h"

namespace authoring {
namespace {

using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;

struct CopyingWindow : testing::Test, fakes::FakePlatform {
    model::Form13& form13 = app.windows.form13;
    model::ShowState& state = app.state;

    void SetUp() override {
        AttachCopying(app);
        sound.Follow(files);
        state.SoundMode = 1;
        state.LinkedSoundTarget = u"C:\\s\\a.wav";
        files.Put(u"D:\\m\\b.wav", media::Wav(300));
        files.Put(u"D:\\m\\c.MP3", media::Mp3(100));
        form13.Show();
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
    /// The boxes since the last time: "title|text".
    std::vector<Text> TakeMessages() {
        std::vector<Text> taken;
        for (const auto& box : std::exchange(dialogs.messages, {})) {
            taken.push_back(box.title + u"|" + box.text);
        }
        return taken;
    }
};

const Text kAskMode = u"効果音設定変更|効果音設定を画像連動（MP3）再生に変更しますか？";
const Text kNoSource =
    u"コピーエラー|コピーできません。音声ファイルをコピー元にドラック＆ドロップしてください。";

TEST_F(CopyingWindow, ItsWords) {
    EXPECT_EQ(form13.Name(), "form13");
    EXPECT_EQ(form13.Caption(), u"画像連動音声設定");
    EXPECT_EQ(form13.Label2.Caption(),
              u"コピー元    ↓ここに音声ファイルをドラック＆ドロップしてください。");
    EXPECT_EQ(form13.Option1.Caption(), u"MP3");
    EXPECT_EQ(form13.Option2.Caption(), u"WAV");
    EXPECT_EQ(form13.Command2.Caption(), u"コピー実行（連動音声作成）");
    EXPECT_EQ(form13.Command1.Caption(), u"戻る");
}

TEST_F(CopyingWindow, ItsOptionFollowsTheSoundMode) {
    EXPECT_TRUE(form13.Option2.Value);
    EXPECT_FALSE(form13.Option1.Value);
    EXPECT_EQ(form13.Text2.Content(), u"C:\\s\\a.wav");
    EXPECT_EQ(form13.Text1.Content(), u"");
    form13.Unload();
    state.SoundMode = 9;
    form13.Show();
    EXPECT_TRUE(form13.Option1.Value);
    EXPECT_FALSE(form13.Option2.Value);
    EXPECT_EQ(form13.Text2.Content(), u"C:\\s\\a.mp3");
}

TEST_F(CopyingWindow, ADropChoosesTheKind) {
    dialogs.answers = {Answer::No};
    form13.Text1.Drop({u"D:\\m\\c.MP3"});
    EXPECT_EQ(form13.Text1.Content(), u"D:\\m\\c.MP3");
    EXPECT_TRUE(form13.Option1.Value);
    EXPECT_EQ(form13.Text2.Content(), u"C:\\s\\a.mp3");
    EXPECT_THAT(TakeMessages(), ElementsAre(kAskMode));
    EXPECT_EQ(state.SoundMode, 1);
    form13.Text1.Drop({u"D:\\m\\c.MP3"});
    EXPECT_THAT(TakeMessages(), IsEmpty()) << "MP3 was chosen already";
    form13.Text1.Drop({u"D:\\m\\readme.txt", u"D:\\m\\b.wav"});
    EXPECT_EQ(form13.Text1.Content(), u"D:\\m\\b.wav");
    EXPECT_TRUE(form13.Option2.Value);
    EXPECT_EQ(form13.Text2.Content(), u"C:\\s\\a.wav");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(CopyingWindow, OtherKindsAreNoSource) {
    form13.Text1.Drop({u"D:\\m\\c.mid"});
    EXPECT_EQ(form13.Text1.Content(), u"");
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(CopyingWindow, ChoosingMp3CanChangeTheMode) {
    form13.Option1.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(kAskMode));
    EXPECT_EQ(state.SoundMode, 9);
    EXPECT_TRUE(app.windows.form1.mnuKOU(9).Checked);
    EXPECT_EQ(form13.Text2.Content(), u"C:\\s\\a.mp3");
    form13.Option2.Press();
    form13.Option1.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty()) << "in mode 9 nothing is asked";
}

TEST_F(CopyingWindow, AFileCanBeChosen) {
    dialogs.fileAnswers = {std::nullopt, u"D:\\m\\b.wav"};
    form13.Browse.Press();
    EXPECT_EQ(form13.Text1.Content(), u"");
    form13.Browse.Press();
    EXPECT_EQ(form13.Text1.Content(), u"D:\\m\\b.wav");
}

TEST_F(CopyingWindow, PlaysAWave) {
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    PlayUntil(300);
    loop.After(100, [&] {
        EXPECT_TRUE(form13.Label3.Visible);
        EXPECT_FALSE(form13.Command4.Enabled);
    });
    form13.Command4.Press();
    EXPECT_EQ(loop.Milliseconds(), 300);
    EXPECT_EQ(sound.commands[0], u"open \"D:\\m\\b.wav\" type waveaudio alias wav");
    EXPECT_EQ(sound.commands[1], u"set wav time format samples");
    EXPECT_EQ(sound.commands[2], u"play wav from 1");
    EXPECT_EQ(sound.commands[sound.commands.size() - 2], u"stop wav");
    EXPECT_EQ(sound.commands.back(), u"close wav");
    EXPECT_FALSE(form13.Label3.Visible);
    EXPECT_TRUE(form13.Command4.Enabled);
}

TEST_F(CopyingWindow, StopsAnMp3) {
    state.SoundMode = 9;
    form13.Text1.Drop({u"D:\\m\\c.MP3"});
    PlayUntil(60000);
    loop.After(100, [&] { form13.Command5.Press(); });
    form13.Command4.Press();
    EXPECT_EQ(loop.Milliseconds(), 110);
    EXPECT_EQ(sound.commands[0], u"open \"D:\\m\\c.MP3\" type MPEGVideo alias wav");
    EXPECT_EQ(sound.commands[1], u"play wav from 1");
    EXPECT_EQ(std::count(sound.commands.begin(), sound.commands.end(), u"close wav"), 1);
    EXPECT_EQ(state.SoundPreviewStop, 1);
}

TEST_F(CopyingWindow, ClosingStopsThePreview) {
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    PlayUntil(60000);
    loop.After(100, [&] { form13.Unload(); });
    form13.Command4.Press();
    EXPECT_EQ(loop.Milliseconds(), 110);
    EXPECT_EQ(sound.commands.back(), u"close wav");
}

TEST_F(CopyingWindow, PlaysNothingWithoutASource) {
    form13.Command4.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(u"再生エラー|再生できません。音声ファイルをコピー元に"
                                            u"ドラック＆ドロップしてください。"));
    EXPECT_THAT(sound.commands, IsEmpty());
}

TEST_F(CopyingWindow, CopiesAndCloses) {
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    form13.Command2.Press();
    EXPECT_EQ(files.Get(u"C:\\s\\a.wav")->content, media::Wav(300));
    EXPECT_FALSE(form13.Loaded);
    EXPECT_THAT(dialogs.messages, IsEmpty());
    EXPECT_TRUE(form13.Command2.Enabled);
    EXPECT_EQ(app.windows.Pointer(), model::kPointerNormal);
}

TEST_F(CopyingWindow, CopiesNothingWithoutASource) {
    form13.Command2.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(kNoSource));
    state.LinkedSoundTarget.clear();
    form13.Unload();
    form13.Show();
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    form13.Command2.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(kNoSource));
    EXPECT_TRUE(form13.Visible);
}

TEST_F(CopyingWindow, RefusesTheTargetsFolderAlsoUnderAnotherName) {
    files.Put(u"c:\\S\\other.wav", "x");
    form13.Text1.Drop({u"c:\\S\\other.wav"});
    form13.Command2.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(u"コピーエラー|同一フォルダへはコピーできません。"));
    EXPECT_FALSE(files.Exists(u"C:\\s\\a.wav"));
    EXPECT_TRUE(form13.Visible) << "a refusal leaves it open";
}

TEST_F(CopyingWindow, AsksBeforeItReplacesAFile) {
    files.Put(u"C:\\s\\a.wav", "old");
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    dialogs.answers = {Answer::No, Answer::Yes};
    form13.Command2.Press();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(u"コピー|このファイルはすでに存在します。\r\n上書きしますか ?"));
    EXPECT_EQ(files.Get(u"C:\\s\\a.wav")->content, "old");
    EXPECT_TRUE(form13.Visible);
    form13.Command2.Press();
    EXPECT_EQ(files.Get(u"C:\\s\\a.wav")->content, media::Wav(300));
}

TEST_F(CopyingWindow, SaysThatItCannotCopy) {
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    fileChanges.failure = u"full";
    form13.Command2.Press();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(u"コピーエラー|コピーできません。\r\n"
                            u"画像の保存先フォルダを変更してください。\r\n"
                            u"または、メニューの設定で画像連動フォルダ指定を行ってください。"));
    EXPECT_TRUE(form13.Visible);
    EXPECT_TRUE(form13.Command2.Enabled);
}

TEST_F(CopyingWindow, ClosingItStopsACopy) {
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    bool acted = false;
    loop.onPump = [&] {
        if (!std::exchange(acted, true)) {
            EXPECT_TRUE(form13.Label4.Visible);
            EXPECT_FALSE(form13.Command2.Enabled);
            form13.Unload();
        }
    };
    form13.Command2.Press();
    EXPECT_FALSE(files.Exists(u"C:\\s\\a.wav"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(CopyingWindow, GoingBackAsksForASourceThatWasNotCopied) {
    form13.Text1.Drop({u"D:\\m\\b.wav"});
    dialogs.answers = {Answer::No, Answer::Yes};
    form13.Command1.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(u"連動音声コピーキャンセル|"
                                            u"連動音声をコピーせずに戻りますか？"));
    EXPECT_TRUE(form13.Visible);
    form13.Command1.Press();
    EXPECT_FALSE(form13.Loaded);
    form13.Show();
    dialogs.messages.clear();
    form13.Command1.Press();
    EXPECT_FALSE(form13.Loaded);
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace authoring
