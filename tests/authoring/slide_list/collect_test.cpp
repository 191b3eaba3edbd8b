// A show collected in one folder: what is copied, how it is called there, and what it plays.
#include "authoring/slide_list/collect.h"

#include <gtest/gtest.h>

#include "authoring/slide_list/collect_plan.h"
#include "authoring/slide_list/copies.h"
#include "document/show_document.h"
#include "document/slide_rows.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

using platform::Answer;

struct Collect : testing::Test {
    fakes::FakePlatform around;
    model::Application& app = around.app;
    model::ShowState& state = app.state;
    model::Form3& form3 = app.windows.form3;

    void SetUp() override {
        AttachCopies(app);
        form3.Show();
    }

    void Slides(const std::vector<Text>& paths) {
        for (const Text& path : paths) {
            if (!path.ends_with(u"gone.jpg")) {
                Put(path);
            }
            form3.List1.AddItem(path);
            form3.List2.AddItem(Text(30, u' '));
        }
    }
    /// A file that tells where it came from.
    void Put(const Text& path) { around.files.Put(path, text::ToUtf8(path)); }
    void Run(const Text& folder = u"E:\\show") {
        around.dialogs.fileAnswers = {folder};
        form3.Collect.Press();
    }
    std::string In(const Text& name, const Text& folder = u"E:\\show\\") {
        const auto* file = around.files.Get(folder + name);
        return file ? file->content : "none";
    }
    std::vector<Text> Names(const Text& folder = u"E:\\show") { return around.files.Below(folder); }
    const virtual_adapter::VirtualDialogs::Box& LastBox() { return around.dialogs.messages.back(); }
    /// The rows of the collected document, as they are read there.
    std::vector<Text> ReadBack(const Text& name = u"スライドショー.kvs") {
        state.BaseFolder = u"E:\\show\\";
        document::ReadShowDocument(app, u"E:\\show\\" + Text(name));
        return {form3.List1.Rows().begin(), form3.List1.Rows().end()};
    }
};

TEST_F(Collect, IsRefusedWithoutSlides) {
    form3.Collect.Press();
    ASSERT_EQ(around.dialogs.messages.size(), 1u);
    EXPECT_EQ(LastBox().text, u"スライドリストがないので配布フォルダを作れません。");
    EXPECT_EQ(LastBox().flags, platform::kExclamation);
    EXPECT_TRUE(around.dialogs.requests.empty());
}

TEST_F(Collect, EndsQuietlyOnCancel) {
    Slides({u"D:\\a.jpg"});
    around.dialogs.fileAnswers = {std::nullopt};
    form3.Collect.Press();
    EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(Collect, StopsASearchFirst) {
    Slides({u"D:\\a.jpg"});
    state.SlideSearchActive = 1;
    form3.Collect.Press();
    EXPECT_EQ(state.SlideSearchActive, 0);
    EXPECT_TRUE(around.dialogs.requests.empty());
}

TEST_F(Collect, EqualNamesGetDifferentOnes) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\a.jpg", u"D:\\one\\a.jpg", u"D:\\three\\A.JPG",
            u"D:\\three\\b.png"});
    Run();
    EXPECT_EQ(In(u"a.jpg"), "D:\\one\\a.jpg");
    EXPECT_EQ(In(u"a_2.jpg"), "D:\\two\\a.jpg");
    EXPECT_EQ(In(u"A_3.JPG"), "D:\\three\\A.JPG");
    EXPECT_EQ(In(u"b.png"), "D:\\three\\b.png");
    EXPECT_EQ(Names().size(), 5u);
    EXPECT_EQ(LastBox().text,
              u"配布フォルダを作りました。\r\nE:\\show\\スライドショー.kvs"
              u"\r\n画像・動画：4\r\n名前を変えたファイル：2");
    EXPECT_EQ(ReadBack(),
              (std::vector<Text>{u"E:\\show\\a.jpg", u"E:\\show\\a_2.jpg", u"E:\\show\\a.jpg",
                                 u"E:\\show\\A_3.JPG", u"E:\\show\\b.png"}));
}

TEST_F(Collect, LinkedFilesStandBesideTheirPictureUnderItsNewName) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\a.jpg"});
    for (const char16_t* const name : {u"a.txt", u"a.wav", u"a.mid", u"a.mp3", u"a_Pb07.dat"}) {
        Put(u"D:\\one\\" + Text(name));
        Put(u"D:\\two\\" + Text(name));
    }
    Run();
    for (const char16_t* const rest : {u".txt", u".wav", u".mid", u".mp3", u"_Pb07.dat"}) {
        EXPECT_EQ(In(u"a" + Text(rest)), text::ToUtf8(u"D:\\one\\a" + Text(rest)));
        EXPECT_EQ(In(u"a_2" + Text(rest)), text::ToUtf8(u"D:\\two\\a" + Text(rest)));
    }
    EXPECT_NE(LastBox().text.find(u"連動ファイル：10"), Text::npos);
}

TEST_F(Collect, AFolderThatIsSpeltInTwoWaysHoldsEachFileOnce) {
    Slides({u"D:\\one\\a.jpg", u"D:\\one\\..\\two\\a.jpg", u"D:\\two\\a.jpg"});
    for (const char16_t* const path :
         {u"D:\\p\\x.png", u"D:\\one\\..\\p\\x.png", u"D:\\two\\s.wav"}) {
        Put(path);
    }
    around.folders.links = {{u"D:\\one\\..\\p", u"D:\\p"}, {u"D:\\one\\..\\two", u"D:\\two"}};
    around.PutText(u"D:\\one\\a.txt",
                   u"PicPB0(0,\"..\\p\\x.png\")\r\nPicPB1(0,\"D:\\p\\x.png\")\r\n");
    Run();
    EXPECT_EQ(Names().size(), 5u) << "a.jpg, a_2.jpg, a.txt, x.png and the document";
    EXPECT_EQ(text::DecodeFile(In(u"a.txt"), app.platform.codePage),
              u"PicPB0(0,\"x.png\")\r\nPicPB1(0,\"x.png\")\r\n");
    EXPECT_NE(LastBox().text.find(u"画像・動画：2\r\n"), Text::npos);
    EXPECT_NE(LastBox().text.find(u"マクロのファイル：1\r\n"), Text::npos);
    EXPECT_EQ(ReadBack(),
              (std::vector<Text>{u"E:\\show\\a.jpg", u"E:\\show\\a_2.jpg", u"E:\\show\\a_2.jpg"}));
}

/// The text of one must not become the text of the other.
TEST_F(Collect, PicturesOfOneNameAndDifferentKindsStayApart) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\a.png", u"D:\\one\\a.bmp"});
    Put(u"D:\\one\\a.txt");
    Run();
    EXPECT_EQ(In(u"a.jpg"), "D:\\one\\a.jpg");
    EXPECT_EQ(In(u"a.bmp"), "D:\\one\\a.bmp") << "these two share their text";
    EXPECT_EQ(In(u"a_2.png"), "D:\\two\\a.png");
    EXPECT_EQ(In(u"a.txt"), "D:\\one\\a.txt");
    EXPECT_EQ(In(u"a_2.txt"), "none");
}

TEST_F(Collect, FilesOfALinkedFolderGoToEachOfTheirPictures) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\a.jpg"});
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\linked";
    Put(u"D:\\linked\\a.txt");
    Put(u"D:\\linked\\a.wav");
    Run();
    for (const char16_t* const name : {u"a.txt", u"a_2.txt"}) {
        EXPECT_EQ(In(name), "D:\\linked\\a.txt");
    }
    EXPECT_EQ(In(u"a_2.wav"), "D:\\linked\\a.wav");
    EXPECT_EQ(state.LinkedFolderFlag, 1) << "the open document stays as it was";
    EXPECT_EQ(state.LinkedFolder, u"D:\\linked");
    ReadBack();
    EXPECT_EQ(state.LinkedFolderFlag, 0);
    EXPECT_EQ(state.LinkedFolder, u"");
}

TEST_F(Collect, TheDocumentsSoundsComeAlong) {
    Slides({u"D:\\a.jpg"});
    for (const char16_t* const path : {u"D:\\s\\back.wav", u"D:\\t\\back.wav", u"D:\\s\\m.mid",
                                       u"D:\\s\\m.mp3", u"D:\\s\\d.wav"}) {
        Put(path);
    }
    state.WavFile = u"D:\\s\\back.wav";
    state.MidiFile = u"D:\\s\\m.mid";
    state.Mp3File = u"D:\\s\\m.mp3";
    state.DefaultEffectSound = u"D:\\s\\d.wav";
    state.SoundListUsed = 1;
    state.SoundListCount = 3;
    state.SoundList.Set(1, u"D:\\t\\back.wav");
    state.SoundList.Set(2, u"D:\\s\\back.wav");
    state.SoundList.Set(3, u"D:\\s\\gone.wav");
    Run();
    EXPECT_EQ(In(u"back.wav"), "D:\\s\\back.wav");
    EXPECT_EQ(In(u"back_2.wav"), "D:\\t\\back.wav");
    EXPECT_NE(LastBox().text.find(u"音声：5"), Text::npos);
    EXPECT_TRUE(LastBox().text.ends_with(u"\r\n\r\n見つからないファイル：1\r\nD:\\s\\gone.wav"));
    ReadBack();
    EXPECT_EQ(state.WavFile, u"E:\\show\\back.wav");
    EXPECT_EQ(state.MidiFile, u"E:\\show\\m.mid");
    EXPECT_EQ(state.Mp3File, u"E:\\show\\m.mp3");
    EXPECT_EQ(state.DefaultEffectSound, u"E:\\show\\d.wav");
    EXPECT_EQ(state.SoundList(1), u"E:\\show\\back_2.wav");
    EXPECT_EQ(state.SoundList(2), u"E:\\show\\back.wav");
    EXPECT_EQ(state.SoundList(3), u"E:\\show\\gone.wav");
}

/// A background piece must not become the linked sound of a slide that has none.
TEST_F(Collect, NoOtherFileTakesALinkedName) {
    Slides({u"D:\\a.jpg"});
    Put(u"D:\\s\\a.wav");
    Put(u"D:\\s\\a_Pb00.dat");
    state.WavFile = u"D:\\s\\a.wav";
    around.PutText(u"D:\\a.txt", u"PICPBDATA(0,\"D:\\s\\a_Pb00.dat\")\r\n");
    Run();
    EXPECT_EQ(In(u"a.wav"), "none");
    EXPECT_EQ(In(u"a_2.wav"), "D:\\s\\a.wav");
    EXPECT_EQ(In(u"a_Pb00_2.dat"), "D:\\s\\a_Pb00.dat");
    EXPECT_EQ(In(u"a.txt"), "PICPBDATA(0,\"a_Pb00_2.dat\")\r\n");
}

TEST_F(Collect, NamesInMacrosFollowWhereAFileIsCalledOtherwiseOrStoodElsewhere) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\a.jpg"});
    for (const char16_t* const path : {u"D:\\one\\star.png", u"D:\\two\\star.png", u"D:\\p\\x.png",
                                       u"D:\\p\\s.wav", u"D:\\one\\sub\\y.png"}) {
        Put(path);
    }
    const Text same = u"PicPB0(0,\"star.png\") // ここ\r\n[テキスト]\r\n文\r\n";
    around.PutText(u"D:\\one\\a.txt", same);
    around.PutText(u"D:\\two\\a.txt",
                   u"// D:\\p\\x.png\r\nPicPB0(0,\"star.png\",\"D:\\p\\s.wav\")\r\n"
                   u"PicPB1(2,\"D:\\p\\x.png\")\r\nMOVIE(\"gone.mp4\",0)\r\n"
                   u"PicPB2(0,\"D:\\one\\sub\\y.png\")\r\nPlayWav(\"a.wav\",0)");
    around.files.SetDate(u"D:\\one\\a.txt", platform::FromCalendar({2020, 1, 2, 3, 4, 5}));
    Run();
    EXPECT_EQ(In(u"star.png"), "D:\\one\\star.png");
    EXPECT_EQ(In(u"star_2.png"), "D:\\two\\star.png");
    EXPECT_EQ(around.files.Get(u"E:\\show\\a.txt")->date,
              platform::FromCalendar({2020, 1, 2, 3, 4, 5}))
        << "copied as it is";
    EXPECT_EQ(text::DecodeFile(In(u"a_2.txt"), app.platform.codePage),
              u"// D:\\p\\x.png\r\nPicPB0(0,\"star_2.png\",\"s.wav\")\r\n"
              u"PicPB1(2,\"x.png\")\r\nMOVIE(\"gone.mp4\",0)\r\n"
              u"PicPB2(0,\"y.png\")\r\nPlayWav(\"a.wav\",0)");
    EXPECT_TRUE(LastBox().text.ends_with(u"見つからないファイル：2\r\ngone.mp4\r\nD:\\two\\a.wav"));
    EXPECT_NE(LastBox().text.find(u"マクロのファイル：5"), Text::npos);
}

TEST_F(Collect, ANameThatWasMissingStaysMissing) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\b.png", u"D:\\one\\gone.jpg", u"D:\\two\\gone.png"});
    around.PutText(u"D:\\one\\a.txt", u"PicPB0(0,\"b.png\")\r\n");
    Run();
    EXPECT_EQ(In(u"b.png"), "none") << "it would be the piece of slide 1";
    EXPECT_EQ(In(u"b_2.png"), "D:\\two\\b.png");
    EXPECT_EQ(In(u"gone_2.png"), "D:\\two\\gone.png");
    EXPECT_TRUE(LastBox().text.ends_with(
        u"見つからないファイル：2\r\nD:\\one\\b.png\r\nD:\\one\\gone.jpg"));
    EXPECT_EQ(ReadBack()[2], u"E:\\show\\gone.jpg");
}

TEST_F(Collect, NamesThatNoDocumentCanHoldBecomeOnesThatItCan) {
    Slides({u"D:\\q\"uo\r\nte*.jpg", u"D:\\q_uo__te_.jpg", u"D:\\～♥.jpg"});
    Put(u"D:\\q\"uo\r\nte*.wav");
    Run();
    EXPECT_EQ(In(u"q_uo__te_.jpg"), "D:\\q\"uo\r\nte*.jpg");
    EXPECT_EQ(In(u"q_uo__te_.wav"), "D:\\q\"uo\r\nte*.wav");
    EXPECT_EQ(In(u"q_uo__te__2.jpg"), "D:\\q_uo__te_.jpg");
    EXPECT_EQ(ReadBack(), (std::vector<Text>{u"E:\\show\\q_uo__te_.jpg",
                                             u"E:\\show\\q_uo__te__2.jpg", u"E:\\show\\～♥.jpg"}));
}

TEST_F(Collect, ALongNameIsCutBeforeItsNumber) {
    const Text longName(240, u'x');
    Slides({u"D:\\one\\" + longName + u".jpg", u"D:\\two\\" + longName + u".jpg"});
    Run();
    EXPECT_EQ(In(longName + u".jpg"), text::ToUtf8(u"D:\\one\\" + longName + u".jpg"));
    EXPECT_EQ(In(Text(231, u'x') + u"_2.jpg"), text::ToUtf8(u"D:\\two\\" + longName + u".jpg"));
}

TEST_F(Collect, TheOpenDocumentStaysAsItWas) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\a.jpg"});
    state.DocumentPath = u"D:\\docs\\旅.kvs";
    state.DocumentName = u"旅.kvs";
    state.DocumentFileDate = u"2026/01/01";
    state.BaseFolder = u"D:\\docs\\";
    state.DistributionSaveFlag = 0;
    app.windows.form1.Caption = u"そのまま";
    form3.List1.Select(1, true);
    Run();
    EXPECT_NE(In(u"旅.kvs"), "none");
    EXPECT_EQ(state.DocumentPath, u"D:\\docs\\旅.kvs");
    EXPECT_EQ(state.DocumentName, u"旅.kvs");
    EXPECT_EQ(state.DocumentFileDate, u"2026/01/01");
    EXPECT_EQ(state.BaseFolder, u"D:\\docs\\");
    EXPECT_EQ(state.DistributionSaveFlag, 0);
    EXPECT_EQ(app.windows.form1.Caption(), u"そのまま");
    EXPECT_EQ(form3.List1.List(1), u"D:\\two\\a.jpg");
    EXPECT_TRUE(form3.List1.Selected(1));
    EXPECT_EQ(form3.Label1.Caption(), u"検索中");
    EXPECT_TRUE(form3.Command1.Enabled && form3.mnuEDIT.Enabled && app.windows.form1.Enabled);
}

TEST_F(Collect, BesideTheOpenDocumentItGetsAnotherName) {
    Slides({u"D:\\one\\a.jpg"});
    state.DocumentPath = u"E:\\show\\旅.kvs";
    state.DocumentName = u"旅.kvs";
    Put(u"E:\\show\\旅.kvs");
    Run();
    EXPECT_EQ(around.dialogs.messages.size(), 1u) << "no question";
    EXPECT_EQ(In(u"旅.kvs"), "E:\\show\\旅.kvs");
    EXPECT_EQ(ReadBack(u"旅_2.kvs"), std::vector<Text>{u"E:\\show\\a.jpg"});
}

TEST_F(Collect, AsksBeforeItReplacesAnything) {
    Slides({u"D:\\one\\a.jpg", u"D:\\one\\b.jpg"});
    around.files.Put(u"E:\\show\\a.jpg", "old");
    around.files.Put(u"E:\\show\\other.jpg", "old");
    around.dialogs.answers = {Answer::No};
    Run();
    ASSERT_EQ(around.dialogs.messages.size(), 2u);
    EXPECT_EQ(around.dialogs.messages[0].text,
              u"E:\\show\\\r\nこのフォルダには、同じ名前のファイルがすでに 1 個あります。"
              u"\r\na.jpg\r\n上書きしますか ?");
    EXPECT_EQ(around.dialogs.messages[0].flags, platform::kYesNoQuestion);
    EXPECT_EQ(LastBox().text, u"配布フォルダの作成を中止しました。\r\n何もコピーしていません。");
    EXPECT_EQ(In(u"a.jpg"), "old");
    EXPECT_EQ(In(u"b.jpg"), "none");
    around.dialogs.answers = {Answer::Yes};
    Run();
    EXPECT_EQ(In(u"a.jpg"), "D:\\one\\a.jpg");
    EXPECT_EQ(In(u"other.jpg"), "old");
}

TEST_F(Collect, RefusesAFolderThatHoldsTheSources) {
    Slides({u"D:\\one\\a.jpg", u"D:\\two\\b.jpg"});
    around.PutText(u"D:\\one\\a.txt", u"PicPB0(0,\"D:\\p\\x.png\")");
    Put(u"D:\\p\\x.png");
    for (const Text& folder : {Text(u"D:\\one"), Text(u"D:\\two\\"), Text(u"D:\\p")}) {
        Run(folder);
        EXPECT_NE(LastBox().text.find(u"このフォルダには、集める元のファイルがあります。"),
                  Text::npos);
    }
    EXPECT_TRUE(around.files.written.empty());
}

TEST_F(Collect, RefusesAFolderThatCannotBeWrittenAndTheRoot) {
    Slides({u"D:\\one\\a.jpg"});
    around.fileChanges.unwritable = {u"E:\\show"};
    for (const Text& folder : {Text(u"E:\\show"), Text(u"C:\\"), Text(u"C:\\Users")}) {
        Run(folder);
        EXPECT_EQ(LastBox().text,
                  folder + u"\r\nこのフォルダには作れません。\r\n別のフォルダを選択してください。");
    }
    EXPECT_EQ(Names(u"E:\\").size(), 0u);
}

TEST_F(Collect, AFailingCopyAsksAndIsToldAtTheEnd) {
    Slides({u"D:\\one\\a.jpg", u"D:\\one\\b.jpg"});
    around.loop.onPump = [&] {
        around.fileChanges.failure = around.files.Get(u"E:\\show\\a.jpg") ? u"空きがない。" : u"";
    };
    around.dialogs.answers = {Answer::Yes};
    Run();
    ASSERT_EQ(around.dialogs.messages.size(), 2u);
    EXPECT_EQ(around.dialogs.messages[0].text,
              u"D:\\one\\b.jpg\r\nコピーできませんでした。\r\n空きがない。\r\n継続しますか ?");
    EXPECT_TRUE(
        LastBox().text.ends_with(u"\r\n\r\nコピーできなかったファイル：1\r\nD:\\one\\b.jpg"));
    EXPECT_NE(In(u"スライドショー.kvs"), "none");
}

TEST_F(Collect, ASourceThatVanishesIsToldAndTheRestGoesOn) {
    Slides({u"D:\\one\\a.jpg", u"D:\\one\\b.jpg", u"D:\\one\\c.jpg"});
    around.loop.onPump = [&] {
        if (around.files.Get(u"E:\\show\\a.jpg")) {
            around.files.Remove(u"D:\\one\\b.jpg");
        }
    };
    around.dialogs.answers = {Answer::Yes};
    Run();
    ASSERT_EQ(around.dialogs.messages.size(), 2u);
    EXPECT_EQ(around.dialogs.messages[0].text,
              u"D:\\one\\b.jpg\r\nコピーできませんでした。\r\nファイルが見つかりません。"
              u"\r\n継続しますか ?");
    EXPECT_EQ(In(u"c.jpg"), "D:\\one\\c.jpg");
    EXPECT_TRUE(
        LastBox().text.ends_with(u"\r\n\r\nコピーできなかったファイル：1\r\nD:\\one\\b.jpg"));
    EXPECT_EQ(ReadBack().size(), 3u);
}

TEST_F(Collect, OnNoAfterAFailureItSaysWhatIsThere) {
    Slides({u"D:\\one\\a.jpg", u"D:\\one\\b.jpg"});
    around.loop.onPump = [&] {
        around.fileChanges.failure = around.files.Get(u"E:\\show\\a.jpg") ? u"空きがない。" : u"";
    };
    around.dialogs.answers = {Answer::No};
    Run();
    EXPECT_EQ(LastBox().text,
              u"配布フォルダの作成を中止しました。\r\nE:\\show\\\r\n"
              u"このフォルダにコピーしたファイル：1\r\nドキュメントは保存していません。");
    EXPECT_EQ(In(u"スライドショー.kvs"), "none");
}

TEST_F(Collect, ADocumentThatCannotBeWrittenIsTold) {
    Slides({u"D:\\one\\a.jpg"});
    around.loop.onPump = [&] { around.files.writeError = u"空きがない。"; };
    Run();
    EXPECT_TRUE(LastBox().text.starts_with(u"E:\\show\\スライドショー.kvs\r\n空きがない。"));
}

/// By the button of searches, too.
TEST_F(Collect, ItsOwnButtonStopsIt) {
    Slides({u"D:\\one\\a.jpg", u"D:\\one\\b.jpg", u"D:\\one\\c.jpg"});
    around.loop.onPump = [&] {
        EXPECT_EQ(form3.Command8.Caption(), u"中止");
        EXPECT_TRUE(form3.Label1.Visible);
        EXPECT_FALSE(form3.Command5.Enabled || form3.List1.Enabled || form3.mnuEDIT.Enabled ||
                     app.windows.form1.Enabled);
        EXPECT_TRUE(form3.Collect.Reachable() && form3.Command8.Reachable());
        if (around.files.Get(u"E:\\show\\b.jpg")) {
            form3.Collect.Press();
        }
    };
    Run();
    ASSERT_EQ(around.dialogs.messages.size(), 1u);
    EXPECT_EQ(LastBox().text,
              u"配布フォルダの作成を中止しました。\r\nE:\\show\\\r\n"
              u"このフォルダにコピーしたファイル：2\r\nドキュメントは保存していません。");
    EXPECT_EQ(In(u"c.jpg"), "none");
    EXPECT_FALSE(form3.Label1.Visible);
    EXPECT_TRUE(form3.Command5.Enabled);
    EXPECT_EQ(form3.Command8.Caption(), u"検索");
    EXPECT_EQ(state.SlideSearchActive, 0);
}

TEST_F(Collect, ManySlidesAreListedInPart) {
    for (int i = 0; i < 12; ++i) {
        form3.List1.AddItem(u"D:\\x" + text::FromUtf8(std::to_string(i)) + u"gone.jpg");
        form3.List2.AddItem(Text(30, u' '));
    }
    Run();
    EXPECT_NE(LastBox().text.find(u"見つからないファイル：12\r\nD:\\x0gone.jpg"), Text::npos);
    EXPECT_TRUE(LastBox().text.ends_with(u"D:\\x9gone.jpg\r\nほか 2 個"));
}

}  // namespace
}  // namespace authoring
