// Slides leave the slide list or change places.
#include "slide_list_support.h"

namespace authoring {
namespace {

using platform::Answer;

struct SlideRowsOfWindow : SlideListTest {};

TEST_F(SlideRowsOfWindow, RemovesTheSelectedRowsWithTheirSchedules) {
    Fill({u"1.png", u"2.png", u"3.png", u"4.png"});
    form3.List1.Choose({1, 3});
    EnableSlideButtons();
    state.ResumeIndex = 3;
    form3.Command5.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"3.png"));
    EXPECT_EQ(Schedules(), u"13");
    EXPECT_EQ(form3.Label4.Caption(), u"2");
    EXPECT_EQ(state.ResumeIndex, 0);
    EXPECT_EQ(EnabledSlideButtons(), "");
    EXPECT_THAT(TakeMessages(), IsEmpty());
    document::UndoSlideRows(app);
    EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"2.png", u"3.png", u"4.png"));
    EXPECT_EQ(Schedules(), u"1234");
}

TEST_F(SlideRowsOfWindow, RemovingNothingStillDisablesTheButtons) {
    Fill({u"1.png"});
    EnableSlideButtons();
    state.ResumeIndex = 3;
    form3.Command5.Press();
    EXPECT_EQ(form3.List1.ListCount(), 1);
    EXPECT_EQ(state.ResumeIndex, 3);
    EXPECT_EQ(EnabledSlideButtons(), "");
    EXPECT_FALSE(document::UndoSlideRows(app));
}

TEST_F(SlideRowsOfWindow, RemovesWhatIsSeenOnly) {
    Fill({u"a.png", u"b.png", u"c.png"});
    form3.List1.Choose({0, 1, 2});
    form3.List1.ShowOnly([](const Text& row) { return row != u"b.png"; });
    form3.Command5.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"b.png"));
}

TEST_F(SlideRowsOfWindow, DeleteKeyRemovesAndInsertKeyTicksTheBox) {
    Fill({u"1.png", u"2.png"});
    form3.List1.Choose({0});
    form3.List1.PressKey(45);
    EXPECT_EQ(form3.Check6.Value, 1);
    form3.List1.PressKey(45);
    EXPECT_EQ(form3.Check6.Value, 0);
    form3.List1.PressKey(46);
    EXPECT_THAT(Rows(), ElementsAre(u"2.png"));
}

TEST_F(SlideRowsOfWindow, ClearingAsksAndForgetsTheDocument) {
    form3.Command4.Press();
    EXPECT_THAT(TakeMessages(), IsEmpty());  // nothing to clear
    Fill({u"1.png", u"2.png"});
    state.DocumentPath = u"C:\\s\\x.kvs";
    state.DocumentName = u"x.kvs";
    state.BaseFolder = u"C:\\s\\";
    state.DocumentFileDate = u"2026/01/01 00:00:00";
    state.ResumeIndex = 4;
    form1.Caption = u"ｽﾗｲﾄﾞ - C:\\s\\x.kvs";
    EnableSlideButtons();
    dialogs.answers = {Answer::No, Answer::Yes};
    form3.Command4.Press();
    EXPECT_EQ(form3.List1.ListCount(), 2);
    form3.Command4.Press();
    EXPECT_EQ(dialogs.messages.back().flags, 36);
    const Text question = u"一括取消|スライドリストをすべて消去しますか ?";
    EXPECT_THAT(TakeMessages(), ElementsAre(question, question));
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(form3.List2.ListCount(), 0);
    EXPECT_EQ(form3.Label4.Caption(), u"0");
    EXPECT_EQ(form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
    EXPECT_EQ(state.DocumentPath + state.DocumentName + state.BaseFolder + state.DocumentFileDate,
              u"");
    EXPECT_EQ(state.ResumeIndex, 0);
    EXPECT_EQ(EnabledSlideButtons(), "");
    EXPECT_EQ(windows.Pointer(), 0);
    document::UndoSlideRows(app);
    EXPECT_EQ(form3.List1.ListCount(), 2);
    EXPECT_EQ(state.DocumentPath, u"C:\\s\\x.kvs");
    EXPECT_EQ(form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\s\\x.kvs");
}

TEST_F(SlideRowsOfWindow, ClearingSaysThatHiddenRowsGoToo) {
    Fill({u"a.png", u"b.png"});
    form3.List1.ShowOnly([](const Text& row) { return row != u"b.png"; });
    form3.Command4.Press();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(u"一括取消|スライドリストをすべて消去しますか ?"
                            u"\r\n（絞り込みで表示されていない項目も消去されます。）"));
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(SlideRowsOfWindow, MovesTheOneSelectedRowWithItsSchedule) {
    Fill({u"1.png", u"2.png", u"3.png"});
    form3.List1.Choose({1});
    form3.Command13.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"2.png", u"1.png", u"3.png"));
    EXPECT_EQ(Schedules(), u"213");
    EXPECT_THAT(form3.List1.SelectedRows(), ElementsAre(0));
    EXPECT_THAT(form3.List2.SelectedRows(), ElementsAre(0));
    EXPECT_EQ(form3.List1.ListIndex, 0);
    form3.Command14.Press();
    form3.Command14.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"3.png", u"2.png"));
    EXPECT_EQ(Schedules(), u"132");
    EXPECT_THAT(form3.List1.SelectedRows(), ElementsAre(2));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    document::UndoSlideRows(app);
    document::UndoSlideRows(app);
    EXPECT_THAT(Rows(), ElementsAre(u"2.png", u"1.png", u"3.png"));
    EXPECT_THAT(form3.List1.SelectedRows(), ElementsAre(0));
}

TEST_F(SlideRowsOfWindow, AMoveBeyondTheEndsDoesNothingSilently) {
    Fill({u"1.png", u"2.png"});
    form3.Check1.Value = 0;
    form3.List1.Choose({0});
    form3.Command13.Press();
    EXPECT_EQ(form3.Check1.Value, 0);
    form3.List1.Choose({1});
    form3.Command14.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"2.png"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_FALSE(document::UndoSlideRows(app));
}

TEST_F(SlideRowsOfWindow, AMoveLeavesThePreviewOnWhateverItWas) {
    Fill({u"1.png", u"2.png"});
    form3.Check1.Value = 0;
    form3.List1.Choose({0});
    form3.Command14.Press();
    EXPECT_EQ(form3.Check1.Value, 1);
}

TEST_F(SlideRowsOfWindow, AMoveAsksForOneRow) {
    Fill({u"1.png", u"2.png"});
    form3.Command13.Press();
    form3.List1.Choose({0, 1});
    form3.Command14.Press();
    EXPECT_EQ(dialogs.messages.back().flags, 48);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(u"↑移動不可|リストから１項目だけ選んで行ってください。",
                            u"↓移動不可|リストから１項目だけ選んで行ってください。"));
    EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"2.png"));
}

TEST_F(SlideRowsOfWindow, AMoveSwapsWithTheNeighbourThatIsSeen) {
    Fill({u"a.png", u"b.png", u"c.png"});
    form3.List1.ShowOnly([](const Text& row) { return row != u"b.png"; });
    form3.List1.Choose({0});
    form3.Command14.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"c.png", u"b.png", u"a.png"));
    EXPECT_EQ(Schedules(), u"cba");
    form3.Command14.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"c.png", u"b.png", u"a.png"));
}

/// What acts while a search runs ends it and does nothing else.
TEST_F(SlideRowsOfWindow, ButtonsThatStopASearchFirst) {
    Fill({u"1.png", u"2.png"});
    form3.List1.Choose({0});
    EnableSlideButtons();
    for (model::Button* button :
         {&form3.Command1, &form3.Command2, &form3.Command4, &form3.Command5, &form3.Command6,
          &form3.Command7, &form3.Command8, &form3.Command9, &form3.Command12, &form3.Command13,
          &form3.Command14, &form3.Command15, &form3.Command16, &form3.Command17}) {
        state.SlideSearchActive = 1;
        button->Press();
        EXPECT_EQ(state.SlideSearchActive, 0) << button->Name();
        EXPECT_THAT(TakeMessages(), IsEmpty()) << button->Name();
        EXPECT_THAT(dialogs.requests, IsEmpty()) << button->Name();
        EXPECT_TRUE(form3.Visible) << button->Name();
        EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"2.png")) << button->Name();
    }
    for (model::Button* button :
         {&form3.Command10, &form3.Command11, &form3.Command18, &form3.Command19, &form3.Command20,
          &form3.Command23, &form3.Command24, &form3.Command25}) {
        state.SlideSearchActive = 1;
        button->Press();
        EXPECT_EQ(state.SlideSearchActive, 1) << button->Name();
    }
}

}  // namespace
}  // namespace authoring
