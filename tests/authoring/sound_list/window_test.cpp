// Where the rows of the sound list come from, and what becomes of them.
#include "document/state_files.h"
#include "sound_list_support.h"

namespace authoring {
namespace {

constexpr TextView kFile = u"C:\\app\\wavlist.dat";

struct SoundWindowTest : SoundListTest {
    void SetUp() override {
        SoundListTest::SetUp();
        form10.Unload();
    }
    std::string FileNow() { return files.Get(kFile) ? files.Get(kFile)->content : "none"; }
};

TEST_F(SoundWindowTest, OkTakesOverAndWritesTheFile) {
    form10.Show();
    Fill({u"C:\\a.wav", u"C:\\b.mp3"});
    EXPECT_EQ(state.SoundListCount, 0);
    form10.Command1.Press();
    EXPECT_FALSE(form10.Loaded);
    EXPECT_EQ(state.SoundListCount, 2);
    EXPECT_EQ(state.SoundList(2), u"C:\\b.mp3");
    EXPECT_EQ(FileNow(), "WAV3.4\r\n 2 \r\nC:\\a.wav\r\nC:\\b.mp3\r\n");
}

TEST_F(SoundWindowTest, CancelLeavesEverythingAndCanItselfBeTakenBack) {
    files.Put(Text(kFile), "WAV3.4\r\n 1 \r\nC:\\a.wav\r\n");
    form10.Show();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\a.wav"));
    form10.List1.Drop({u"C:\\b.wav"});
    form10.Command2.Press();
    EXPECT_EQ(state.SoundListCount, 1);
    form10.Show();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\a.wav"));
    form10.Undo.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\a.wav", u"C:\\b.wav"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(SoundWindowTest, TheFileIsReadAtEachLoad) {
    files.Put(Text(kFile), "WAV3.4\r\n 1 \r\nsong.wav\r\n");
    form10.Show();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\app\\song.wav"));
    form10.Unload();
    files.Put(Text(kFile), "WAV3.4x\r\n 1 \r\nC:\\b.wav\r\n");
    form10.Show();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\b.wav"));
    EXPECT_FALSE(form10.Undo.Enabled) << "the rows are another list's";
}

TEST_F(SoundWindowTest, AnotherTagLeavesTheListEmptyAndSaysNothing) {
    files.Put(Text(kFile), "WAV3.3\r\n 1 \r\nC:\\b.wav\r\n");
    form10.Show();
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(SoundWindowTest, TheDocumentsOwnListIsNotReadOver) {
    files.Put(Text(kFile), "WAV3.4\r\n 1 \r\nC:\\b.wav\r\n");
    state.SoundListUsed = 1;
    state.SoundListCount = 1;
    state.SoundList.Set(1, u"C:\\own.wav");
    form10.Show();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\own.wav"));
}

TEST_F(SoundWindowTest, AFailedOpenIsSaid) {
    files.Put(Text(kFile), "WAV3.4\r\n 1 \r\nC:\\b.wav\r\n");
    files.MakeUnreadable(kFile);
    form10.Show();
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].flags, platform::kPlain);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(SoundWindowTest, AListThatCouldNotBeWrittenIsNotReplacedByTheFile) {
    files.Put(Text(kFile), "WAV3.4\r\n 0 \r\n");
    form10.Show();
    Fill({u"C:\\a.wav"});
    files.writeError = u"full";
    form10.Command1.Press();
    files.writeError.clear();
    TakeMessages();
    form10.Show();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\a.wav"));
    form10.Command1.Press();
    EXPECT_EQ(FileNow(), "WAV3.4\r\n 1 \r\nC:\\a.wav\r\n");
}

TEST_F(SoundWindowTest, AnEmptiedListIsEmptyEverywhere) {
    form10.Show();
    Fill({u"C:\\a.wav"});
    state.SoundListCount = 1;
    state.SoundList.Set(1, u"C:\\a.wav");
    form10.List1.Choose({0});
    form10.List1.Press();
    EXPECT_TRUE(form10.Command6.Enabled);
    ClearSoundList(app);
    EXPECT_EQ(form10.Label4.Caption(), u"0");
    EXPECT_EQ(state.SoundListCount, 0);
    EXPECT_EQ(state.SoundList.Used(), 0);
    EXPECT_FALSE(form10.Command6.Enabled);
    EXPECT_FALSE(form10.Command7.Enabled);
}

}  // namespace
}  // namespace authoring
