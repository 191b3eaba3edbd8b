// The slide list's window: its life, OK and cancel, closing, and the windows that it opens.
#include "app/app_support.h"
#include "slide_list_support.h"

namespace authoring {
namespace {

using platform::Answer;

struct SlideListWindow : SlideListTest {
    static std::vector<Text> Slides(const model::TextArray& array) {
        std::vector<Text> all;
        for (int i = 1; i <= array.Used(); ++i) {
            all.push_back(array(i));
        }
        return all;
    }
    /// 30 columns.
    static Text Schedule(TextView from, TextView to) {
        Text row = Text(from) + Text(to);
        row.resize(30, u' ');
        return row;
    }
};

TEST_F(SlideListWindow, LoadsAtHomeWithItsBoxesAsTheSettingsHaveThem) {
    form3.Unload();
    state.ListShowPicture = 0;
    state.ListDblClickRecord = 1;
    state.ListDblClickWallpaper = 0;
    state.ListDblClickText = 1;
    state.ListDblClickStart = 1;
    state.SlideListLimit = 0;
    form3.Label1.Visible = true;
    EnableSlideButtons();
    form3.Show();
    EXPECT_EQ(state.SlideListLimit, 30000);
    EXPECT_EQ(form3.Dir1.Path(), u"C:\\Users\\me");
    EXPECT_EQ(form3.Drive1.Drive(), u"C:\\Users\\me");
    EXPECT_EQ(form3.File1.Pattern(),
              u"*.png;*.psd;*.bmp;*.jpg;*.jff;*.jtf;*.tif;*.tga;*.pcx;*.cal;*.mac;*.img;*.msp;"
              u"*.wpg;*.ras;*.pct;*.eps;*.pcd;*.cmp;*.mp4;*.wmv;*.mov;*.avi");
    EXPECT_EQ(form3.Check1.Value, 0);
    EXPECT_EQ(form3.Check2.Value, 1);
    EXPECT_EQ(form3.Check3.Value, 0);
    EXPECT_EQ(form3.Check4.Value, 1);
    EXPECT_EQ(form3.Check5.Value, 1);
    EXPECT_FALSE(form3.Label1.Visible);
    EXPECT_EQ(EnabledSlideButtons(), "");
}

TEST_F(SlideListWindow, HoldsItsLeastSizeAndStandsInTheMiddle) {
    EXPECT_EQ(form3.Width, 12030);
    EXPECT_EQ(form3.Height, 8745);
    EXPECT_EQ(form3.Left, (1920 * 15 - 12030) / 2);
    EXPECT_EQ(form3.Top, (1080 * 15 - 8745) / 2);
    form3.ResizeTo(15000, 3000);
    EXPECT_EQ(form3.Width, 15000);
    EXPECT_EQ(form3.Height, 8745);
    form3.Command10.Press();
    EXPECT_EQ(form3.WindowState, 2);
    form3.Command11.Press();
    EXPECT_EQ(form3.WindowState, 0);
    EXPECT_EQ(form3.Width, 12030);  // 9450 by 5460 was asked for
    EXPECT_EQ(form3.Height, 8745);
}

TEST_F(SlideListWindow, StaysWhereItWasPutUntilItIsShownAnew) {
    form3.Left = 150;
    form3.OnActivate();
    EXPECT_EQ(form3.Left, 150);
    form3.Command2.Press();
    form3.Show();
    EXPECT_EQ(form3.Left, (1920 * 15 - 12030) / 2);
}

TEST_F(SlideListWindow, ComingBackFollowsTheFilesOfTheFolderAndOfTheSlide) {
    files.Put(u"D:\\p\\a.png", "x");
    form3.Dir1.Open(u"D:\\p");
    Fill({u"D:\\p\\a.png"});
    form3.List1.Choose({0});
    EXPECT_FALSE(form3.Command17.Enabled);
    files.Put(u"D:\\p\\a.txt", "x");
    form3.OnActivate();
    EXPECT_TRUE(form3.Command17.Enabled);
    EXPECT_EQ(form3.File1.ListCount(), 2);
    EXPECT_EQ(state.ListWasClicked, 1);
}

TEST_F(SlideListWindow, ComingBackSeesTheFoldersThatAreThereNow) {
    files.Put(u"D:\\p\\a\\1.png", "x");
    files.Put(u"D:\\p\\c\\1.png", "x");
    form3.Dir1.Open(u"D:\\p");
    form3.Dir1.ListIndex = 1;
    files.Put(u"D:\\p\\b\\1.png", "x");
    form3.OnActivate();
    EXPECT_THAT(form3.Dir1.Rows(), ElementsAre(u"D:\\p\\a", u"D:\\p\\b", u"D:\\p\\c"));
    EXPECT_EQ(form3.Dir1.ListIndex, 2) << "the same folder";
    files.Remove(u"D:\\p\\a\\1.png");
    form3.Dir1.PressKey(116);
    EXPECT_THAT(form3.Dir1.Rows(), ElementsAre(u"D:\\p\\b", u"D:\\p\\c"));
    EXPECT_EQ(form3.Dir1.ListIndex, 1);
    files.Remove(u"D:\\p\\c\\1.png");
    form3.OnActivate();
    EXPECT_THAT(form3.Dir1.Rows(), ElementsAre(u"D:\\p\\b"));
    EXPECT_EQ(form3.Dir1.ListIndex, -1);
}

TEST_F(SlideListWindow, ComingBackBeforeAClickChangesNoButton) {
    Fill({u"a.png"});
    form3.List1.Select(0, true);
    form3.OnActivate();
    EXPECT_EQ(EnabledSlideButtons(), "");
}

TEST_F(SlideListWindow, OkHandsTheRowsToTheShow) {
    Fill({u"a.png", u"b.mp4"});
    form3.List2.SetRow(0, Schedule(u"2026/01/0212:30", u"2026/02/0308:00"));
    form3.List2.SetRow(1, Schedule(u"", u""));
    state.SlideIndex = 2;
    state.ShowRunning = state.StartLatch = state.StepBusy = 1;
    form1.Command1.Enabled = false;
    form1.Command4.Enabled = false;
    form1.Hide();
    form3.Command1.Press();
    EXPECT_THAT(Slides(state.SlideList), ElementsAre(u"a.png", u"b.mp4"));
    EXPECT_EQ(state.SlideListEnd, 3);
    EXPECT_THAT(Slides(state.ScheduleFrom), ElementsAre(u"2026/01/02 12:30", Text(16, u' ')));
    EXPECT_THAT(Slides(state.ScheduleTo), ElementsAre(u"2026/02/03 08:00", Text(16, u' ')));
    EXPECT_EQ(state.ShowRunning + state.StartLatch + state.StepBusy, 0);
    EXPECT_EQ(state.SlideIndex, 0);
    EXPECT_TRUE(form1.Visible);
    EXPECT_TRUE(form1.Command1.Enabled);
    EXPECT_FALSE(form1.Command2.Enabled);
    EXPECT_FALSE(form1.Command3.Enabled);
    EXPECT_TRUE(form1.Command4.Enabled);
    EXPECT_FALSE(form3.Visible);
    EXPECT_TRUE(form3.Loaded);
    EXPECT_EQ(state.SlideListWindowOpen, 0);
}

TEST_F(SlideListWindow, OkWithoutRowsLeavesNothingToPlay) {
    state.SlideList.Set(1, u"old.png");
    for (model::Button* button :
         {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4}) {
        button->Enabled = true;
    }
    form3.Command1.Press();
    EXPECT_EQ(state.SlideList(1), u"");
    EXPECT_EQ(state.SlideListEnd, 1);
    for (model::Button* button :
         {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4}) {
        EXPECT_FALSE(button->Enabled) << button->Name();
    }
}

TEST_F(SlideListWindow, CancelBringsTheShowsSlidesBackWithBlankSchedules) {
    state.SlideList.Set(1, u"a.png");
    state.SlideList.Set(2, u"b.png");
    state.ScheduleFrom.Set(1, u"2026/01/02 12:30");
    Fill({u"x.png"});
    EnableSlideButtons();
    form1.Hide();
    form3.Command2.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"a.png", u"b.png"));
    EXPECT_EQ(form3.List2.List(0), Text(30, u' '));
    EXPECT_EQ(form3.List2.List(1), Text(30, u' '));
    EXPECT_EQ(form3.Label4.Caption(), u"2");
    EXPECT_TRUE(form1.Visible);
    EXPECT_FALSE(form3.Visible);
    EXPECT_TRUE(form3.Loaded);
    EXPECT_EQ(EnabledSlideButtons(), "");
    EXPECT_EQ(state.SlideListWindowOpen, 0);
}

TEST_F(SlideListWindow, CancelIsAStepOnlyWhereItBringsSomethingBack) {
    Fill({u"a.png", u"b.png"});
    form3.List2.SetRow(0, model::BlankScheduleRow());
    form3.List2.SetRow(1, model::BlankScheduleRow());
    form3.Command1.Press();
    form3.Show();
    form3.List1.Choose({1});
    form3.Command2.Press();
    EXPECT_FALSE(form3.Undo.Enabled);
    EXPECT_EQ(form3.List1.ListIndex, -1);
    EXPECT_EQ(form3.List1.SelCount(), 0);
    form3.Show();
    form3.List2.SetRow(1, Schedule(u"2026/01/0212:30", u""));
    form3.Command2.Press();
    EXPECT_TRUE(form3.Undo.Enabled);
    EXPECT_EQ(form3.List2.List(1), Text(30, u' '));
    form3.Show();
    form3.Undo.Press();
    EXPECT_EQ(form3.List2.List(1), Schedule(u"2026/01/0212:30", u""));
}

TEST_F(SlideListWindow, NoShowStartsWhileItIsOpen) {
    EXPECT_EQ(state.SlideListWindowOpen, 1);
}

TEST_F(SlideListWindow, ClosingOffersToSaveAndForgetsTheDocument) {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        form3.Show();
        Fill({u"a.png"});
        state.DocumentPath = u"C:\\s\\x.kvs";
        state.DocumentName = u"x.kvs";
        state.DocumentFileDate = u"2026/01/01 00:00:00";
        form1.Caption = u"ｽﾗｲﾄﾞ - C:\\s\\x.kvs";
        form1.Hide();
        dialogs.answers = {answer};
        dialogs.fileAnswers = {Text(u"C:\\s\\y.kvs")};
        files.Remove(u"C:\\s\\y.kvs");
        form3.Unload();
        EXPECT_EQ(dialogs.messages.back().flags, 36);
        EXPECT_THAT(TakeMessages(), ElementsAre(u"ファイル選択|スライドリストを保存しますか ?"));
        EXPECT_EQ(files.Exists(u"C:\\s\\y.kvs"), answer == Answer::Yes);
        for (model::Button* button :
             {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4}) {
            EXPECT_FALSE(button->Enabled) << button->Name();
        }
        EXPECT_EQ(form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
        EXPECT_EQ(state.DocumentPath + state.DocumentName + state.DocumentFileDate, u"");
        EXPECT_EQ(state.SlideListDirty, 0);
        EXPECT_EQ(state.SlideListWindowOpen, 0);
        EXPECT_TRUE(form1.Visible);
        EXPECT_FALSE(form3.Loaded);
    }
}

TEST_F(SlideListWindow, ClosingAsksNothingWithoutRowsOrWithoutAPersonsChange) {
    state.DocumentPath = u"C:\\s\\x.kvs";
    form3.Unload();
    EXPECT_EQ(state.DocumentPath, u"C:\\s\\x.kvs");
    EXPECT_EQ(state.SlideListDirty, 0);
    form3.Show();
    EXPECT_EQ(state.SlideListDirty, 1);
    Fill({u"a.png"});
    form3.OnDeactivate();
    EXPECT_EQ(state.SlideListDirty, 0);
    form3.Unload();
    EXPECT_EQ(state.DocumentPath, u"C:\\s\\x.kvs");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(SlideListWindow, ClosingInASearchStopsItFirst) {
    state.SlideSearchActive = 1;
    form3.Unload();
    EXPECT_TRUE(form3.Visible);
    EXPECT_EQ(state.SlideSearchActive, 0);
    form3.Unload();
    EXPECT_FALSE(form3.Visible);
}

TEST_F(SlideListWindow, BoxesSayWhatTheyDoWhenAPersonTicksThem) {
    const struct {
        model::CheckBox& box;
        int16_t& flag;
        Text note;
    } rows[] = {
        {form3.Check2, state.ListDblClickRecord,
         u"効果音録音あり|スライドリストをダブルクリックすると画像連動効果音が録音できます。"},
        {form3.Check3, state.ListDblClickWallpaper,
         u"壁紙変更あり|スライドリストをダブルクリックすると壁紙の変更ができます。"},
        {form3.Check4, state.ListDblClickText,
         u"テキスト作成あり|スライドリストをダブルクリックすると画像連動テキストが作成できます。"},
        {form3.Check5, state.ListDblClickStart,
         u"パラピコ|スライドリストをダブルクリックするとパラピコの指定画面スタートができます。"},
    };
    for (const auto& row : rows) {
        row.box.Press();
        EXPECT_EQ(row.flag, 1);
        EXPECT_EQ(dialogs.messages.back().flags, 0);
        EXPECT_THAT(TakeMessages(), ElementsAre(row.note));
        row.box.Press();
        EXPECT_EQ(row.flag, 0);
        form3.OnDeactivate();
        row.box.Press();
        EXPECT_EQ(row.flag, 1);
        EXPECT_THAT(TakeMessages(), IsEmpty());
        form3.OnPaint();
    }
}

TEST_F(SlideListWindow, ConversionAsksForSelectedRows) {
    form3.Command12.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty());
    Fill({u"a.png"});
    form3.Command12.Press();
    EXPECT_EQ(dialogs.messages.back().flags, 48);
    EXPECT_THAT(TakeMessages(), ElementsAre(u"変換コピー選択エラー|ファイルが選択されておりません。"
                                            u"\r\nスライドリストをドラッグし、選択して下さい。"));
}

TEST_F(SlideListWindow, OpeningIsAStepWithTheDocumentsIdentity) {
    PutText(u"C:\\s\\x.kvs", app_tests::ShowOf({u"a.png"}));
    Fill({u"old.png"});
    form3.List1.Choose({0});
    dialogs.fileAnswers = {Text(u"C:\\s\\x.kvs")};
    form3.Command6.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\s\\a.png"));
    EXPECT_EQ(state.LastPreviewPath, u"");
    EXPECT_EQ(EnabledSlideButtons(), "");
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_THAT(Rows(), ElementsAre(u"old.png"));
    EXPECT_EQ(state.DocumentPath + state.DocumentName + state.BaseFolder + state.DocumentFileDate,
              u"");
    EXPECT_EQ(form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
    EXPECT_TRUE(document::RedoSlideRows(app));
    EXPECT_EQ(state.DocumentName, u"x.kvs");
    EXPECT_EQ(form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\s\\x.kvs");
    dialogs.answers = {Answer::Yes};
    form3.Command15.Press();
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\s\\a.png"));
    EXPECT_EQ(state.BaseFolder, u"C:\\s\\");
}

}  // namespace
}  // namespace authoring
