// Linked text and sound of a slide, and the double click.
#include "model/sound_modes.h"
#include "model/windows/declared_windows.h"
#include "model/windows/picture_holder.h"
#include "picture/video_window.h"
#include "slide_list_support.h"

namespace authoring {
namespace {

using platform::Answer;

struct LinkedFiles : SlideListTest {
    const Text slide = u"C:\\s\\umi01.jpg";
    const Text textPath = u"C:\\s\\umi01.txt";
    const Text notYet = u"|この版にはまだありません。";

    void SetUp() override {
        SlideListTest::SetUp();
        state.AppFolder = u"C:\\app\\";
        state.UserHeaderFlag = 1;
        PutPicture(slide, 40, 30);
        windows.form4.Lead1.imaging = imaging.MakeControl();
        Fill({slide});
        form3.List1.Choose({0});
    }
};

TEST_F(LinkedFiles, AMissingTextIsMadeAfterAQuestionAndOpened) {
    dialogs.answers = {Answer::No};
    form3.Command16.Press();
    EXPECT_EQ(dialogs.messages.back().flags, 36);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(u"テキスト作成|C:\\s\\umi01.txt\r\nのテキストファイルを作成しますか ?"));
    EXPECT_FALSE(files.Exists(textPath));
    EXPECT_FALSE(form3.Command17.Enabled);
    form3.Command16.Press();
    TakeMessages();
    const Text made = text::DecodeFile(files.Get(textPath)->content, codePage);
    EXPECT_TRUE(made.starts_with(u"//=======画像連動テキスト表示パラメータ"));
    EXPECT_TRUE(
        made.ends_with(u"[テキスト]        //以下にメッセージを記入して下さい\r\nUMI01.TXT"));
    EXPECT_THAT(system.opened, ElementsAre(textPath));
    EXPECT_TRUE(form3.Command17.Enabled);
    form3.Command16.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(system.opened.size(), 2u);
}

TEST_F(LinkedFiles, WaitingMacroTextReplacesAPresentFileAndOpensNothing) {
    files.Put(textPath, "old");
    state.PendingMacroText = u"RECTANGLE";
    form3.Command16.Press();
    const Text made = text::DecodeFile(files.Get(textPath)->content, codePage);
    EXPECT_TRUE(made.ends_with(u"RECTANGLE\r\n"));
    EXPECT_THAT(system.opened, IsEmpty());
}

TEST_F(LinkedFiles, ATextIsDeletedAfterAQuestion) {
    form3.Command17.Enabled = true;
    form3.Command17.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty());  // there is none
    files.Put(textPath, "x");
    dialogs.answers = {Answer::No};
    form3.Command17.Press();
    EXPECT_EQ(dialogs.messages.back().flags, 36);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(u"テキスト削除|C:\\s\\umi01.txt\r\nのテキストファイルを削除しますか ?"));
    EXPECT_TRUE(files.Exists(textPath));
    form3.Command17.Press();
    EXPECT_FALSE(files.Exists(textPath));
    EXPECT_THAT(fileChanges.trashed, ElementsAre(textPath));
    EXPECT_FALSE(form3.Command17.Enabled);
}

TEST_F(LinkedFiles, ATextThatCannotBeDeletedIsReported) {
    files.Put(textPath, "x");
    fileChanges.failure = u"権限がありません。";
    form3.Command17.Enabled = true;
    form3.Command17.Press();
    EXPECT_EQ(TakeMessages().back(),
              u"テキストファイル削除エラー|テキストファイルが削除できません。");
    EXPECT_TRUE(form3.Command17.Enabled);
}

TEST_F(LinkedFiles, TextsNeedOneSlide) {
    Fill({u"C:\\s\\b.png"});
    form3.List1.Choose({0, 1});
    EnableSlideButtons();
    form3.Command16.Press();
    form3.Command17.Press();
    EXPECT_EQ(dialogs.messages.back().flags, 48);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(u"テキスト編集|リストから１項目だけ選んで行ってください。",
                            u"テキスト削除|リストから１項目だけ選んで行ってください。"));
}

/// They can still be enabled when a selection was taken back.
TEST_F(LinkedFiles, WhatElseNeedsOneSlideAsksForIt) {
    EnableSlideButtons();
    form3.List1.Choose({});
    const Text words = u"|リストから１項目だけ選んで行ってください。";
    for (model::Button* button :
         {&form3.Command18, &form3.Command19, &form3.Command20, &form3.Command25}) {
        button->Press();
        EXPECT_THAT(TakeMessages(), ElementsAre(button->Caption() + words));
    }
}

TEST_F(LinkedFiles, TheSoundOfTheModeInForceIsDeleted) {
    const struct {
        int16_t mode;
        Text path, question;
    } rows[] = {
        {model::kLinkedWavSound, u"C:\\s\\umi01.wav",
         u"連動音声削除(WAV)|C:\\s\\umi01.wav\r\nの画像連動効果音(WAV)を削除しますか ?"},
        {model::kLinkedMp3Sound, u"C:\\s\\umi01.mp3",
         u"連動音声削除(MP3)|C:\\s\\umi01.mp3\r\nの画像連動音声ファイル(MP3)を削除しますか ?"}};
    for (const auto& row : rows) {
        files.Put(row.path, "x");
        state.SoundMode = row.mode;
        form3.List1.Choose({0});
        EXPECT_TRUE(form3.Command19.Enabled);
        form3.Command19.Press();
        EXPECT_THAT(TakeMessages(), ElementsAre(row.question));
        EXPECT_FALSE(files.Exists(row.path));
        EXPECT_FALSE(form3.Command19.Enabled);
    }
}

TEST_F(LinkedFiles, ADoubleClickOpensThePicturesOwnWindow) {
    state.SizeAdjust = 0;
    windows.form7.HasView = true;
    form3.List1.DblClick();
    EXPECT_TRUE(windows.form7.Visible);
    EXPECT_EQ(windows.form7.Picture1.Picture()->width, 40);
    EXPECT_THAT(form3.List1.SelectedRows(), IsEmpty());
    EXPECT_EQ(EnabledSlideButtons(), "25 ");
    EXPECT_EQ(windows.Pointer(), 0);
}

TEST_F(LinkedFiles, ALargePictureIsFittedToTheMonitorInFullColour) {
    files.Put(slide, "PIC 3840 1080 808080 8");
    state.SizeAdjust = 0;
    windows.form7.HasView = true;
    imaging.log.clear();
    form3.List1.DblClick();
    EXPECT_THAT(imaging.log, ElementsAre("load C:\\s\\umi01.jpg", "colors 24", "resize 1920 540"));
}

TEST_F(LinkedFiles, APictureThatCannotBeShownIsReported) {
    files.Put(slide, "no picture");
    form3.List1.DblClick();
    EXPECT_EQ(dialogs.messages.back().flags, 48);
    EXPECT_THAT(TakeMessages(), ElementsAre(u"画像ファイルエラー|画像ファイルが表示できません。"));
    EXPECT_EQ(windows.Pointer(), 0);
    EXPECT_EQ(form3.List1.ListCount(), 1);
}

TEST_F(LinkedFiles, AClickOnThePreviewIsADoubleClickOnTheSlide) {
    form3.Image1.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(notYet));
    form3.Command5.Press();
    form3.Image1.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(LinkedFiles, ARowThatTheFilterHidesIsNotClickedByThePreview) {
    Fill({u"C:\\s\\one.png", u"C:\\s\\two.png"});
    PutPicture(u"C:\\s\\two.png", 40, 10);
    form3.List1.Choose({2, 1});
    form3.Filter.Enter(u"two");
    ASSERT_EQ(form3.List1.ListIndex, 1);
    ASSERT_TRUE(form3.Image1.Picture());
    state.ListCheck1Flag = 0;
    state.ListDblClickRecord = 0;
    state.ListDblClickText = 1;
    dialogs.answers = {Answer::No};
    form3.Image1.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(u"テキスト作成|C:\\s\\two.txt\r\n"
                                            u"のテキストファイルを作成しますか ?"));
    EXPECT_TRUE(form3.List1.Selected(1));
    EXPECT_FALSE(form3.List1.Selected(2));
}

TEST_F(LinkedFiles, ADoubleClickPlaysAFilmAndDropsASecondOne) {
    picture::AttachVideoWindow(app);
    Fill({u"C:\\s\\b.mp4"});
    form3.List1.Choose({1});
    form3.List1.DblClick();
    EXPECT_TRUE(app.windows.Find("Form24")->Visible);
    EXPECT_EQ(video.path, u"C:\\s\\b.mp4");
    app.windows.Find("Form24")->Unload();
    EXPECT_TRUE(form3.Timer1.Enabled);
    video.path.clear();
    form3.List1.DblClick();
    EXPECT_EQ(video.path, u"");
    form3.Timer1.Tick();
    EXPECT_FALSE(form3.Timer1.Enabled);
    form3.List1.DblClick();
    EXPECT_EQ(video.path, u"C:\\s\\b.mp4");
}

TEST_F(LinkedFiles, WhatADoubleClickAsksByTheFlags) {
    state.ListCheck1Flag = 0;
    state.LinkedFolderFlag = 1;  // counts for what is made and deleted, not for the questions
    state.LinkedFolder = u"D:\\l";
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), IsEmpty());

    state.ListDblClickRecord = 1;
    const Text record = u"効果音録音|C:\\s\\umi01.wav\r\nの画像連動効果音を録音しますか ?";
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(record, notYet));
    EXPECT_EQ(form3.List1.ListIndex, 0) << "the slide to record for, though it is not selected";
    EXPECT_FALSE(form3.List1.Selected(0));
    dialogs.answers = {Answer::No};
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(record));
    files.Put(u"C:\\s\\umi01.wav", "x");
    files.Put(u"D:\\l\\umi01.wav", "x");
    dialogs.answers = {Answer::No, Answer::Yes};
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(record,
                                            u"連動音声削除(WAV)|C:\\s\\umi01.wav\r\n"
                                            u"の画像連動効果音(WAV)を削除しますか ?"));
    EXPECT_THAT(fileChanges.trashed, ElementsAre(u"D:\\l\\umi01.wav"));

    state.ListDblClickRecord = 0;
    state.ListDblClickText = 1;
    const Text write = u"テキスト作成|C:\\s\\umi01.txt\r\nのテキストファイルを作成しますか ?";
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(write));
    EXPECT_TRUE(files.Exists(u"D:\\l\\umi01.txt"));
    files.Put(textPath, "x");
    dialogs.answers = {Answer::No, Answer::Yes};
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(write,
                                            u"テキスト削除|C:\\s\\umi01.txt\r\n"
                                            u"のテキストファイルを削除しますか ?"));
    EXPECT_FALSE(files.Exists(u"D:\\l\\umi01.txt"));
    EXPECT_TRUE(files.Exists(textPath));

    state.ListDblClickWallpaper = 1;  // any other combination
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(notYet));
    state.ListDblClickText = 0;
    state.ListDblClickWallpaper = 10;  // from a damaged file
    form3.List1.DblClick();
    EXPECT_THAT(TakeMessages(), ElementsAre(notYet));
}

}  // namespace
}  // namespace authoring
