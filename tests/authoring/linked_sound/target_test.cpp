// Where linked sounds lie, and the empty file for a recorder.
#include "authoring/linked_sound/target.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "support/media_bytes.h"

namespace authoring {
namespace {

using media::Little;

struct LinkedSoundTargets : testing::Test, fakes::FakePlatform {};

TEST_F(LinkedSoundTargets, LieBesideThePicture) {
    TakeLinkedSoundTarget(app, u"C:\\s\\a.jpg");
    EXPECT_EQ(app.state.LinkedSoundTarget, u"C:\\s\\a.wav");
    EXPECT_EQ(LinkedSoundTargetAs(app, u"mp3"), u"C:\\s\\a.mp3");
    TakeLinkedSoundTarget(app, u"C:\\s\\a.jpeg");
    EXPECT_EQ(LinkedSoundTargetAs(app, u"mp3"), u"C:\\s\\a.jmp3");
}

TEST_F(LinkedSoundTargets, LieInTheLinkedFolder) {
    app.state.LinkedFolderFlag = 1;
    app.state.LinkedFolder = u"D:\\l";
    files.Put(u"C:\\s\\a.jpg", "x");
    TakeLinkedSoundTarget(app, u"C:\\s\\A.JPG");
    EXPECT_EQ(app.state.LinkedSoundTarget, u"D:\\l\\a.wav");
    TakeLinkedSoundTarget(app, u"C:\\s\\gone.jpg");
    EXPECT_EQ(LinkedSoundTargetAs(app, u"mp3"), u"D:\\l\\") << "no name";
}

TEST_F(LinkedSoundTargets, AnEmptyWaveFile) {
    EXPECT_TRUE(MakeLinkedWavFile(app, u"C:\\s\\a.jpg", 0));
    EXPECT_EQ(app.state.LinkedSoundTarget, u"C:\\s\\a.wav");
    EXPECT_FALSE(files.Exists(u"C:\\s\\a.wav"));
    EXPECT_TRUE(MakeLinkedWavFile(app, u"C:\\s\\a.jpg", 1));
    EXPECT_EQ(files.Get(u"C:\\s\\a.wav")->content,
              "RIFF" + Little(36, 4) + "WAVEfmt " + Little(16, 4) + Little(1, 2) + Little(1, 2) +
                  Little(22050, 4) + Little(44100, 4) + Little(2, 2) + Little(16, 2) + "data" +
                  Little(0, 4));
    files.Put(u"C:\\s\\a.wav", "a sound");
    EXPECT_TRUE(MakeLinkedWavFile(app, u"C:\\s\\a.jpg", 1));
    EXPECT_EQ(files.Get(u"C:\\s\\a.wav")->content, "a sound");
}

TEST_F(LinkedSoundTargets, AnEmptyWaveFileThatCannotBeWritten) {
    files.writeError = u"read-only";
    EXPECT_FALSE(MakeLinkedWavFile(app, u"C:\\s\\a.jpg", 1));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, u"ＷＡＶファイルが作成できんません。");
    EXPECT_EQ(dialogs.messages[0].flags, platform::kExclamation);
    EXPECT_EQ(dialogs.messages[0].title, u"効果音ファイル作成エラー");
}

}  // namespace
}  // namespace authoring
