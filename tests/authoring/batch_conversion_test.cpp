// Form16: the selected pictures, copied, converted and reduced.
#include "authoring/batch_conversion.h"

#include <gtest/gtest.h>

#include "authoring/shared/browser_memory.h"
#include "model/windows/batch_conversion.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

using platform::Answer;
using platform::Conversion;

const Text kOut = u"D:\\out";

struct BatchConversion : testing::Test {
    fakes::FakePlatform around;
    model::ShowState& state = around.app.state;
    model::Form16& form16 = around.app.windows.form16;
    model::Form3& form3 = around.app.windows.form3;

    void SetUp() override {
        around.files.Put(u"D:\\out\\old.txt", "");  // so that the folder is there
        AttachBatchConversion(around.app);
    }
    /// The fake knows no picture that begins as a JPEG does: those in use here are PNG.
    void Slides(const std::vector<Text>& paths) {
        for (const Text& path : paths) {
            form3.List1.AddItem(path);
            form3.List1.Select(form3.List1.ListCount() - 1, true);
        }
    }
    void Open(model::OptionButton* kind = nullptr) {
        OpenBatchConversion(around.app);
        form16.Dir1.Path = kOut;
        if (kind != nullptr) {
            kind->Press();
        }
    }
    void Run() { form16.Command1.Press(); }
    const std::vector<virtual_adapter::VirtualDialogs::Box>& Boxes() {
        return around.dialogs.messages;
    }
    bool Exists(const Text& path) { return around.files.Get(path) != nullptr; }
};

TEST_F(BatchConversion, ComesUpAsAtFirstEachTime) {
    Slides({u"D:\\a.png", u"D:\\b.png"});
    for (int time = 0; time < 2; ++time) {
        OpenBatchConversion(around.app);
        EXPECT_TRUE(form16.Visible);
        EXPECT_TRUE(form16.nasi.Value);
        EXPECT_FALSE(form16.JPEG.Value || form16.BMP.Value || form16.PNG.Value);
        EXPECT_EQ(form16.Check1.Value, 0);
        EXPECT_EQ(form16.Check2.Value, 1);
        EXPECT_EQ(form16.Check3.Value, 0);
        EXPECT_EQ(form16.Text2.Content(), u"");
        EXPECT_EQ(form16.Dir1.Path(), u"C:\\Users\\me");
        EXPECT_EQ(form16.Drive1.Drive(), u"C:\\Users\\me");
        EXPECT_EQ(form16.Text1.Content(), u"C:\\Users\\me");
        EXPECT_EQ(form16.Label5.Caption(), u"2");
        EXPECT_FALSE(form16.Label2.Visible || form16.Label6.Visible || form16.Command3.Visible);
        EXPECT_EQ(form16.Left, (1920 - 720) / 2 * 15);
        form16.PNG.Press();
        form16.Check1.Press();
        form16.Check2.Press();
        form16.Check3.Press();
        form16.Dir1.Path = kOut;
        EXPECT_EQ(form16.Text1.Content(), kOut);
        around.app.windows.SetPointer(model::kPointerBusy);
        form16.Command2.Press();
        EXPECT_FALSE(form16.Visible);
        EXPECT_EQ(around.app.windows.Pointer(), model::kPointerNormal);
    }
}

TEST_F(BatchConversion, TheReductionKeepsTheProportionsAndNeverEnlarges) {
    const auto size = [](int w, int h) { return ReducedSize({w, h}); };
    EXPECT_EQ(size(1280, 720), (platform::Size{1280, 720}));
    EXPECT_EQ(size(100, 50), (platform::Size{100, 50}));
    EXPECT_EQ(size(1281, 720), (platform::Size{1280, 719}));  // 719.44
    EXPECT_EQ(size(4000, 3000), (platform::Size{960, 720}));
    EXPECT_EQ(size(3000, 4000), (platform::Size{540, 720}));
    EXPECT_EQ(size(4000, 1000), (platform::Size{1280, 320}));
    EXPECT_EQ(size(100, 1440), (platform::Size{50, 720}));
    EXPECT_EQ(size(100000, 1), (platform::Size{1280, 1}));
}

TEST_F(BatchConversion, RefusesTheFolderOfHomesAndTheRoot) {
    around.PutPicture(u"D:\\a.png", 10, 10);
    Slides({u"D:\\a.png"});
    for (const Text& folder : {Text(u"C:\\Users"), Text(u"C:\\"), Text(u"C:\\Users\\"), Text()}) {
        Open();
        form16.Text1.Enter(folder);
        around.dialogs.messages.clear();
        Run();
        ASSERT_EQ(Boxes().size(), 1u);
        EXPECT_EQ(Boxes()[0].text, folder +
                                       u"\r\nこのフォルダ直下へは変換コピーできません。"
                                       u"\r\nコピー先フォルダを選択してください。");
        EXPECT_EQ(Boxes()[0].title, u"コピー先フォルダ未選択");
        EXPECT_EQ(Boxes()[0].flags, platform::kExclamation);
        EXPECT_TRUE(form16.Command1.Enabled && form16.Dir1.Enabled && form16.Visible);
    }
}

TEST_F(BatchConversion, CopiesWhatIsSelectedAndIsAPictureThatIsThere) {
    for (const char16_t* const name :
         {u"a.png", u"b.png", u"c.png", u"film.Mp4", u"x.AVI", u"y.wmv", u"z.mov"}) {
        around.PutPicture(u"D:\\in\\" + Text(name), 10, 20);
    }
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png", u"D:\\in\\film.Mp4", u"D:\\in\\x.AVI",
            u"D:\\in\\y.wmv", u"D:\\in\\z.mov", u"D:\\in\\gone.png", u"D:\\in\\c.png"});
    form3.List1.Select(1, false);
    Open();
    Run();
    EXPECT_TRUE(Exists(u"D:\\out\\a.png") && Exists(u"D:\\out\\c.png"));
    EXPECT_EQ(around.files.Below(kOut).size(), 3u);
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "PIC 10 20");
    EXPECT_TRUE(around.imaging.converted.empty()) << "small ones are copied as they are";
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].text, u"2個の画像を変換コピーしました。\r\n見つからなかったファイル：1");
    EXPECT_EQ(ReadBrowserMemory(around.app).last, kOut);
}

TEST_F(BatchConversion, RowsThatAFilterHidesAreLeftOut) {
    around.PutPicture(u"D:\\in\\a.png", 10, 20);
    around.PutPicture(u"D:\\in\\b.png", 10, 20);
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    form3.List1.ShowOnly([](const Text& row) { return row.ends_with(u"b.png"); });
    Open();
    EXPECT_EQ(form16.Label5.Caption(), u"1");
    Run();
    EXPECT_FALSE(Exists(u"D:\\out\\a.png"));
    EXPECT_TRUE(Exists(u"D:\\out\\b.png"));
}

TEST_F(BatchConversion, EachKindHasItsEndingByPlainCount) {
    around.files.Put(u"D:\\in\\x.jpeg", "\xFF\xD8 PIC");
    around.PutPicture(u"D:\\in\\y.tif", 2000, 1000);
    Slides({u"D:\\in\\y.tif"});
    const struct {
        model::OptionButton* option;
        Conversion::Kind kind;
        Text target;
    } rows[] = {{&form16.JPEG, Conversion::Jpeg, u"D:\\out\\y.jpg"},
                {&form16.BMP, Conversion::Bmp, u"D:\\out\\y.bmp"},
                {&form16.PNG, Conversion::Png, u"D:\\out\\y.png"}};
    for (const auto& row : rows) {
        Open(row.option);
        around.imaging.converted.clear();
        Run();
        ASSERT_EQ(around.imaging.converted.size(), 1u);
        const auto& made = around.imaging.converted[0];
        EXPECT_EQ(made.from, u"D:\\in\\y.tif");
        EXPECT_EQ(made.to, row.target);
        EXPECT_EQ(made.kind, row.kind);
        EXPECT_EQ(made.size, (platform::Size{1280, 640}));
        EXPECT_EQ(made.quality, 90);
    }
}

TEST_F(BatchConversion, ALongEndingLeavesAStrayDot) {
    // The fake takes it for a picture, and not for a JPEG: the question names the target.
    around.PutPicture(u"D:\\in\\x.jpeg", 10, 10);
    Slides({u"D:\\in\\x.jpeg"});
    Open(&form16.PNG);
    Run();
    ASSERT_FALSE(Boxes().empty());
    EXPECT_TRUE(Boxes()[0].text.starts_with(u"D:\\out\\x..png\r\n"));
}

TEST_F(BatchConversion, WithoutReductionTheSizeStays) {
    around.PutPicture(u"D:\\in\\a.png", 2000, 1000);
    Slides({u"D:\\in\\a.png"});
    Open(&form16.BMP);
    form16.Check2.Press();
    Run();
    ASSERT_EQ(around.imaging.converted.size(), 1u);
    EXPECT_EQ(around.imaging.converted[0].size, (platform::Size{2000, 1000}));
    Open();
    form16.Check2.Press();
    Run();
    EXPECT_EQ(around.imaging.converted.size(), 1u) << "copied without a look at it";
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "PIC 2000 1000");
}

TEST_F(BatchConversion, ALargePictureIsReducedInItsOwnKind) {
    around.PutPicture(u"D:\\in\\a.png", 2560, 1440);
    Slides({u"D:\\in\\a.png"});
    Open();
    Run();
    ASSERT_EQ(around.imaging.converted.size(), 1u);
    EXPECT_EQ(around.imaging.converted[0].kind, Conversion::Same);
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "PIC 1280 720");
}

TEST_F(BatchConversion, WhatCannotBeReducedIsCopiedAndSaidSo) {
    around.PutPicture(u"D:\\in\\a.psd", 2560, 1440);
    around.imaging.writesSame = false;
    Slides({u"D:\\in\\a.psd"});
    Open();
    Run();
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.psd")->content, "PIC 2560 1440");
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].text,
              u"1個の画像を変換コピーしました。\r\n"
              u"縮小できない形式のため、そのままコピーした画像：1");
}

TEST_F(BatchConversion, WithoutConversionASourceInTheTargetIsSkipped) {
    around.PutPicture(u"D:\\out\\a.png", 10, 10);
    Slides({u"d:\\OUT\\A.png"});
    Open();
    Run();
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].text, u"0個の画像を変換コピーしました。");
    EXPECT_TRUE(ReadBrowserMemory(around.app).last.empty());
    Open(&form16.PNG);
    Run();
    ASSERT_EQ(Boxes().size(), 3u);
    EXPECT_EQ(Boxes()[1].title, u"コピー") << "with one it is asked about";
}

TEST_F(BatchConversion, AsksBeforeItReplaces) {
    around.PutPicture(u"D:\\in\\a.png", 10, 10);
    around.PutPicture(u"D:\\in\\b.png", 10, 10);
    around.files.Put(u"D:\\out\\a.png", "old");
    around.files.Put(u"D:\\out\\b.png", "old");
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    Open();
    around.dialogs.answers = {Answer::No, Answer::Yes};
    Run();
    ASSERT_EQ(Boxes().size(), 3u);
    EXPECT_EQ(Boxes()[0].text,
              u"D:\\out\\a.png\r\nこのファイルはすでに存在します。\r\n上書きしますか ?");
    EXPECT_EQ(Boxes()[0].title, u"コピー");
    EXPECT_EQ(Boxes()[0].flags, platform::kYesNoQuestion);
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "old");
    EXPECT_EQ(around.files.Get(u"D:\\out\\b.png")->content, "PIC 10 10");
    around.files.Put(u"D:\\out\\a.png", "old");
    Open();
    form16.Check1.Press();
    Run();
    EXPECT_EQ(Boxes().size(), 4u) << "only the end is said";
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "PIC 10 10");
}

/// Also where all is to be overwritten: nobody meant to lose one of them.
TEST_F(BatchConversion, EqualNamesReplaceEachOtherOnlyAfterAQuestion) {
    around.PutPicture(u"D:\\in\\a.png", 10, 10);
    around.PutPicture(u"D:\\in\\more\\A.png", 20, 20);
    around.PutPicture(u"D:\\in\\deep\\a.png", 30, 30);
    around.files.Put(u"D:\\in\\a.txt", "one");
    around.files.Put(u"D:\\in\\deep\\a.txt", "other");
    Slides({u"D:\\in\\a.png", u"D:\\in\\a.png", u"D:\\in\\more\\A.png", u"D:\\in\\deep\\a.png"});
    Open();
    form16.Check1.Press();
    form16.Check3.Press();
    around.dialogs.answers = {Answer::No, Answer::Yes, Answer::No};
    Run();
    ASSERT_EQ(Boxes().size(), 4u) << "a slide that is there twice is copied as ever";
    EXPECT_EQ(Boxes()[0].text,
              u"D:\\out\\A.png\r\nこのファイルはすでに存在します。\r\n上書きしますか ?");
    EXPECT_EQ(Boxes()[0].title, u"コピー");
    EXPECT_EQ(Boxes()[0].flags, platform::kYesNoQuestion);
    EXPECT_TRUE(Boxes()[2].text.starts_with(u"D:\\out\\a.txt\r\n"));
    EXPECT_EQ(Boxes()[3].text,
              u"3個の画像を変換コピーしました。\r\n連動ファイル：2"
              u"\r\n同じ名前のため、この実行中に上書きされた画像：1");
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "PIC 30 30");
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.txt")->content, "one");
    Open();
    form16.Check1.Press();
    around.dialogs.messages.clear();
    around.dialogs.answers = {Answer::No, Answer::No};
    Run();
    EXPECT_EQ(Boxes().size(), 3u) << "what an earlier run made is overwritten, its own is not";
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.png")->content, "PIC 10 10");
}

TEST_F(BatchConversion, AFalseJpegIsNotConverted) {
    around.PutPicture(u"D:\\in\\a.jpg", 10, 10);
    around.PutPicture(u"D:\\in\\b.JPEG", 10, 10);
    around.PutPicture(u"D:\\in\\c.png", 10, 10);
    Slides({u"D:\\in\\a.jpg", u"D:\\in\\b.JPEG", u"D:\\in\\c.png"});
    Open(&form16.BMP);
    around.dialogs.answers = {Answer::Yes, Answer::No};
    Run();
    ASSERT_EQ(Boxes().size(), 3u);
    EXPECT_EQ(Boxes()[0].text, u"D:\\out\\a.bmp\r\n変換コピーできませんでした。\r\n継続しますか ?");
    EXPECT_EQ(Boxes()[0].title, u"変換コピーエラー");
    EXPECT_EQ(Boxes()[0].flags, platform::kYesNoQuestion);
    EXPECT_EQ(Boxes()[2].text, u"0個の画像を変換コピーしました。\r\nコピーできなかったファイル：2");
    EXPECT_FALSE(Exists(u"D:\\out\\c.bmp")) << "the no ended the run";
    Open();
    around.dialogs.messages.clear();
    Run();
    ASSERT_EQ(Boxes().size(), 1u) << "without conversion nobody looks";
    EXPECT_EQ(Boxes()[0].text, u"3個の画像を変換コピーしました。");
}

TEST_F(BatchConversion, AFailingCopyOrSaveAsks) {
    around.PutPicture(u"D:\\in\\a.png", 2000, 2000);
    around.PutPicture(u"D:\\in\\b.png", 10, 10);
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    around.fileChanges.failure = u"空きがありません。";
    around.imaging.convertError = u"空きがありません。";
    for (model::OptionButton* kind : {&form16.nasi, &form16.JPEG}) {
        Open(kind);
        around.dialogs.messages.clear();
        around.dialogs.answers = {Answer::Yes, Answer::Yes};
        Run();
        ASSERT_EQ(Boxes().size(), 3u);
        EXPECT_TRUE(
            Boxes()[0].text.ends_with(u"\r\n変換コピーできませんでした。\r\n継続しますか ?"));
        EXPECT_EQ(Boxes()[0].title, u"変換コピーエラー");
        EXPECT_EQ(Boxes()[2].text,
                  u"0個の画像を変換コピーしました。\r\nコピーできなかったファイル：2");
    }
    EXPECT_EQ(around.files.Below(kOut).size(), 1u);
}

TEST_F(BatchConversion, APictureThatCannotBeReadAsks) {
    around.files.Put(u"D:\\in\\a.png", "damaged");
    around.PutPicture(u"D:\\in\\b.png", 10, 10);
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    Open();
    around.dialogs.answers = {Answer::Yes};
    Run();
    ASSERT_EQ(Boxes().size(), 2u);
    EXPECT_EQ(Boxes()[0].text, u"D:\\out\\a.png\r\n変換コピーできませんでした。\r\n継続しますか ?");
    EXPECT_EQ(Boxes()[0].title, u"変換コピーエラー");
    EXPECT_EQ(Boxes()[1].text, u"1個の画像を変換コピーしました。\r\nコピーできなかったファイル：1");
    EXPECT_TRUE(Exists(u"D:\\out\\b.png"));
    EXPECT_FALSE(Exists(u"D:\\out\\a.png"));
}

TEST_F(BatchConversion, ASourceThatVanishesMeanwhileAsks) {
    around.PutPicture(u"D:\\in\\b.png", 10, 10);
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    for (model::OptionButton* kind : {&form16.nasi, &form16.BMP}) {
        around.PutPicture(u"D:\\in\\a.png", 10, 10);
        around.files.Put(u"D:\\out\\a.png", "old");
        around.files.Put(u"D:\\out\\a.bmp", "old");
        Open(kind);
        around.dialogs.messages.clear();
        around.dialogs.answers = {Answer::Yes, Answer::Yes};
        around.dialogs.whileOpen = [&](const auto&) { around.files.Remove(u"D:\\in\\a.png"); };
        Run();
        ASSERT_EQ(Boxes().size(), 3u);
        EXPECT_EQ(Boxes()[0].title, u"コピー");
        EXPECT_TRUE(
            Boxes()[1].text.ends_with(u"\r\n変換コピーできませんでした。\r\n継続しますか ?"));
        EXPECT_EQ(Boxes()[2].text,
                  u"1個の画像を変換コピーしました。\r\nコピーできなかったファイル：1");
        around.dialogs.whileOpen = nullptr;
    }
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.bmp")->content, "old");
}

TEST_F(BatchConversion, AFolderThatTakesNoFileIsSaidOnce) {
    for (const char16_t* const name : {u"a.png", u"b.png"}) {
        around.PutPicture(u"D:\\in\\" + Text(name), 10, 10);
    }
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    around.fileChanges.unwritable = {kOut};
    around.fileChanges.failure = u"許可がない。";
    around.imaging.convertError = u"許可がない。";
    for (const Text& folder : {kOut, Text(u"D:\\none")}) {
        for (model::OptionButton* kind : {&form16.nasi, &form16.JPEG}) {
            Open(kind);
            form16.Text1.Enter(folder);
            around.dialogs.messages.clear();
            Run();
            ASSERT_EQ(Boxes().size(), 1u);
            EXPECT_EQ(Boxes()[0].text, folder + (kind == &form16.nasi ? u"\\a.png" : u"\\a.jpg") +
                                           u"\r\n変換コピーできません。"
                                           u"\r\nコピー先フォルダを変更してください。");
            EXPECT_EQ(Boxes()[0].title, u"変換コピーエラー");
            EXPECT_EQ(Boxes()[0].flags, platform::kPlain);
            EXPECT_TRUE(form16.Command1.Enabled && form16.Command2.Enabled && form16.Text1.Enabled);
            EXPECT_FALSE(form16.Label2.Visible || form16.Label6.Visible || form16.Command3.Visible);
        }
    }
    EXPECT_TRUE(ReadBrowserMemory(around.app).last.empty());
}

/// A disk that is pulled out in the middle.
TEST_F(BatchConversion, AFolderThatIsGoneInTheMiddleEndsTheRun) {
    for (const char16_t* const name : {u"a.png", u"b.png", u"c.png"}) {
        around.PutPicture(u"D:\\in\\" + Text(name), 10, 10);
    }
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png", u"D:\\in\\c.png"});
    Open();
    around.loop.onPump = [&] {
        if (Exists(u"D:\\out\\a.png")) {
            around.files.Remove(u"D:\\out\\a.png");
            around.files.Remove(u"D:\\out\\old.txt");
            around.fileChanges.failure = u"フォルダが見つかりません。";
        }
    };
    Run();
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_TRUE(Boxes()[0].text.starts_with(u"D:\\out\\b.png\r\n変換コピーできません。"));
}

TEST_F(BatchConversion, ShowsItselfWhileItRuns) {
    around.PutPicture(u"D:\\in\\a.png", 10, 10);
    around.PutPicture(u"D:\\in\\b.png", 10, 10);
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png"});
    Open();
    std::vector<Text> names, numbers;
    around.loop.onPump = [&] {
        EXPECT_FALSE(form16.Command1.Enabled || form16.Command2.Enabled);
        EXPECT_FALSE(form16.Dir1.Enabled || form16.Drive1.Enabled || form16.Text1.Enabled);
        EXPECT_TRUE(form16.Command3.Visible && form16.Label2.Visible && form16.Label6.Visible);
        EXPECT_EQ(around.app.windows.Pointer(), model::kPointerBusy);
        names.push_back(form16.Text2.Content);
        numbers.push_back(form16.Label6.Caption);
        form16.FilesDropped({u"C:\\Users\\me"});  // not now
    };
    Run();
    EXPECT_EQ(form16.Text1.Content(), kOut);
    EXPECT_EQ(names.front(), u"");
    EXPECT_EQ(names.back(), u"b.png");
    EXPECT_EQ(numbers.back(), u"コピー進捗：2");
    EXPECT_EQ(form16.Text2.Content(), u"");
    EXPECT_FALSE(form16.Label2.Visible || form16.Label6.Visible || form16.Command3.Visible);
    EXPECT_TRUE(form16.Command1.Enabled && form16.Command2.Enabled && form16.Drive1.Enabled);
    EXPECT_EQ(around.app.windows.Pointer(), model::kPointerNormal);
}

TEST_F(BatchConversion, TheStopAsksAndOnNoTheRunGoesOn) {
    for (const char16_t* const name : {u"a.png", u"b.png", u"c.png"}) {
        around.PutPicture(u"D:\\in\\" + Text(name), 10, 10);
    }
    Slides({u"D:\\in\\a.png", u"D:\\in\\b.png", u"D:\\in\\c.png"});
    Open();
    int stops = 0;
    around.loop.onPump = [&] {
        const bool first = form16.Text2.Content() == u"a.png" && stops == 0;
        const bool second = form16.Text2.Content() == u"b.png" && stops == 1;
        if (first) {
            ++stops;
            form16.Command3.Press();
        } else if (second) {
            ++stops;
            form16.KeyDown(27);  // Esc is a stop, too
        }
    };
    around.dialogs.answers = {Answer::No, Answer::Yes};
    Run();
    ASSERT_EQ(Boxes().size(), 3u);
    EXPECT_EQ(Boxes()[0].text, u"変換コピーを中止しますか ?");
    EXPECT_EQ(Boxes()[0].title, u"変換コピー中止");
    EXPECT_EQ(Boxes()[0].flags, platform::kYesNoQuestion);
    EXPECT_EQ(Boxes()[1].title, u"変換コピー中止");
    EXPECT_TRUE(Exists(u"D:\\out\\a.png"));
    EXPECT_FALSE(Exists(u"D:\\out\\b.png") || Exists(u"D:\\out\\c.png"));
    EXPECT_EQ(Boxes()[2].text, u"変換コピーを中止しました。\r\n1個の画像を変換コピーしました。");
}

TEST_F(BatchConversion, ClosingTheWindowMeanwhileIsAStop) {
    around.PutPicture(u"D:\\in\\a.png", 10, 10);
    Slides({u"D:\\in\\a.png"});
    Open();
    bool asked = false;
    around.loop.onPump = [&] {
        if (!asked) {
            asked = true;
            EXPECT_FALSE(form16.Unload());
        }
    };
    Run();
    EXPECT_EQ(Boxes()[0].title, u"変換コピー中止");
    EXPECT_TRUE(form16.Visible);
    state.CopyWindowOpen = 1;
    EXPECT_TRUE(form16.Unload());
    EXPECT_EQ(state.CopyWindowOpen, 0);
}

TEST_F(BatchConversion, ADroppedFolderIsTheTarget) {
    around.PutPicture(u"D:\\in\\a.png", 10, 10);
    Slides({u"D:\\in\\a.png"});
    for (model::VisibleControl* control :
         std::initializer_list<model::VisibleControl*>{&form16, &form16.Text1, &form16.Dir1}) {
        OpenBatchConversion(around.app);
        EXPECT_TRUE(control->Drop({u"D:\\in\\a.png", kOut}));
        EXPECT_EQ(form16.Dir1.Path(), kOut);
        EXPECT_EQ(form16.Text1.Content(), kOut);
        control->Drop({u"D:\\in\\a.png"});
        EXPECT_EQ(form16.Text1.Content(), kOut) << "a file is no folder";
    }
}

TEST_F(BatchConversion, LinkedFilesGoAlongUnderTheNewName) {
    around.PutPicture(u"D:\\in\\a.tif", 10, 10);
    for (const char16_t* const name :
         {u"a.txt", u"a.wav", u"a.mp3", u"a_Pb00.dat", u"a_Pb62.dat", u"a_Pb63.dat", u"b.wav"}) {
        around.files.Put(u"D:\\in\\" + Text(name), "linked");
    }
    Slides({u"D:\\in\\a.tif"});
    Open(&form16.JPEG);
    form16.Check3.Press();
    around.files.Put(u"D:\\out\\a.wav", "old");
    around.dialogs.answers = {Answer::No};
    Run();
    ASSERT_EQ(Boxes().size(), 2u);
    EXPECT_EQ(Boxes()[0].text,
              u"D:\\out\\a.wav\r\nこのファイルはすでに存在します。\r\n上書きしますか ?");
    EXPECT_EQ(around.files.Get(u"D:\\out\\a.wav")->content, "old");
    for (const char16_t* const name :
         {u"a.jpg", u"a.txt", u"a.mp3", u"a_Pb00.dat", u"a_Pb62.dat"}) {
        EXPECT_TRUE(Exists(u"D:\\out\\" + Text(name))) << text::ToUtf8(name);
    }
    EXPECT_FALSE(Exists(u"D:\\out\\a_Pb63.dat") || Exists(u"D:\\out\\b.wav"));
    EXPECT_EQ(Boxes()[1].text, u"1個の画像を変換コピーしました。\r\n連動ファイル：4");
}

TEST_F(BatchConversion, LinkedFilesOfALinkedFolderStandBesideTheCopy) {
    around.PutPicture(u"D:\\in\\x.jpeg", 10, 10);
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\linked";
    around.files.Put(u"D:\\linked\\x..txt", "text");  // by plain count
    around.files.Put(u"D:\\linked\\x.jwav", "sound");
    around.files.Put(u"D:\\linked\\x._Pb05.dat", "points");
    Slides({u"D:\\in\\x.jpeg"});
    Open();
    form16.Check3.Press();
    Run();
    EXPECT_TRUE(Exists(u"D:\\out\\x..txt"));
    EXPECT_TRUE(Exists(u"D:\\out\\x.jwav"));
    EXPECT_TRUE(Exists(u"D:\\out\\x._Pb05.dat"));
}

}  // namespace
}  // namespace authoring
