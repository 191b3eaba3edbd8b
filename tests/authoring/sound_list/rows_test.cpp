// How pieces come into the sound list and leave it.
#include "sound_list_support.h"

namespace authoring {
namespace {

using SoundRowsTest = SoundListTest;

TEST_F(SoundRowsTest, TheLastRowIsTakenAndSaysThatTheListIsFull) {
    FillWith(29999);
    form10.List1.Drop({u"C:\\a.wav", u"C:\\b.mid"});
    EXPECT_EQ(form10.List1.ListCount(), 30000);
    EXPECT_EQ(form10.List1.List(29999), u"C:\\a.wav");
    EXPECT_EQ(form10.Label4.Caption(), u"30000");
    EXPECT_THAT(TakeMessages(), ElementsAre(u"WAV,MID,MP3リスト|これ以上登録できません"));
    form10.List1.Drop({u"C:\\c.mp3"});
    EXPECT_EQ(form10.List1.ListCount(), 30000);
    EXPECT_THAT(TakeMessages(), ElementsAre(u"WAV,MID,MP3リスト|これ以上登録できません"));
}

TEST_F(SoundRowsTest, TheBrowserSaysItUnderTheUsualTitle) {
    files.Put(u"C:\\songs\\a.wav", "x");
    files.Put(u"C:\\songs\\b.mp3", "x");
    FillWith(29999);
    form10.Dir1.Path = u"C:\\songs";
    EXPECT_EQ(form10.File1.ListCount(), 2);
    form10.Command3.Press();
    EXPECT_EQ(form10.List1.ListCount(), 30000);
    EXPECT_EQ(form10.List1.List(29999), u"C:\\songs\\a.wav");
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ﾊﾟﾗﾋﾟｺ|これ以上登録できません"));
    form10.File1.Choose({1});
    EXPECT_EQ(form10.List1.ListCount(), 30000);
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ﾊﾟﾗﾋﾟｺ|これ以上登録できません"));
}

TEST_F(SoundRowsTest, ADropTakesTheThreeKindsInAnyCaseAndNoFolder) {
    files.Put(u"C:\\album.mp3\\1.wav", "x");
    form10.List1.Drop({u"C:\\a.Wav", u"C:\\b.mid", u"C:\\album.mp3", u"C:\\c.MP3", u"C:\\d.midi",
                       u"C:\\say \"x\".wav"});
    EXPECT_THAT(Rows(),
                ElementsAre(u"C:\\a.Wav", u"C:\\b.mid", u"C:\\c.MP3", u"C:\\say \"x\".wav"));
}

TEST_F(SoundRowsTest, AClearedListAsksNothing) {
    form10.Command4.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}  // namespace
}  // namespace authoring
