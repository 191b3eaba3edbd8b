// Slides come into the slide list.
#include "slide_list_support.h"

namespace authoring {
namespace {

struct Adding : SlideListTest {
    void Browse(const std::vector<Text>& names) {
        for (const Text& name : names) {
            files.Put(u"D:\\p\\" + name, "x");
        }
        form3.Dir1.Open(u"D:\\p");
    }
    const Text full = u"ﾊﾟﾗﾋﾟｺ|これ以上登録できません";
};

TEST_F(Adding, AClickAddsTheOneFileWithItsFolderAndABlankSchedule) {
    Browse({u"a.png", u"b.png"});
    form3.File1.Choose({1});
    EXPECT_THAT(Rows(), ElementsAre(u"D:\\p\\b.png"));
    EXPECT_EQ(form3.List2.List(0), Text(30, u' '));
    EXPECT_EQ(form3.Label4.Caption(), u"1");
    EXPECT_EQ(form3.List1.TopIndex, 0);  // one row
    form3.File1.Choose({0});
    EXPECT_THAT(Rows(), ElementsAre(u"D:\\p\\b.png", u"D:\\p\\a.png"));
    EXPECT_EQ(form3.List1.TopIndex, 1);
    EXPECT_EQ(form3.List2.TopIndex, 1);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Adding, AFolderThatEndsInASeparatorGetsNoSecondOne) {
    files.Put(u"C:\\a.png", "x");
    form3.Dir1.Open(u"C:\\");
    form3.File1.Choose({0});
    EXPECT_THAT(Rows(), ElementsAre(u"C:\\a.png"));
}

TEST_F(Adding, AllAddsEveryFileInItsOrderAsOneStepAndScrolls) {
    Browse({u"a.png", u"b.png", u"c.png"});
    form3.Command3.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"D:\\p\\a.png", u"D:\\p\\b.png", u"D:\\p\\c.png"));
    EXPECT_EQ(form3.List1.TopIndex, 2);  // 0 + 3 - 1
    form3.Command3.Press();
    EXPECT_EQ(form3.List1.TopIndex, 5);  // 2 + 3
    EXPECT_EQ(form3.List2.TopIndex, 5);
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_EQ(form3.List1.ListCount(), 3);
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_EQ(form3.List1.ListCount(), 0);
    EXPECT_EQ(form3.List2.ListCount(), 0);
    EXPECT_FALSE(document::UndoSlideRows(app));
}

TEST_F(Adding, ABulkScrollsByItsFilesAndByOneLessFromTheTop) {
    FillWith(10);
    Browse({u"a.png", u"b.png", u"c.png"});
    form3.Command3.Press();
    EXPECT_EQ(form3.List1.TopIndex, 2);
    form3.Command3.Press();
    EXPECT_EQ(form3.List1.TopIndex, 5);
    form3.List1.Drop({u"/x/a.png", u"/x/b.tif"});
    EXPECT_EQ(form3.List1.TopIndex, 7);  // both count
    EXPECT_EQ(form3.List2.TopIndex, 7);
}

TEST_F(Adding, ADropTakesSevenKindsInTheGivenOrderWithoutAWord) {
    form3.List1.Drop({u"/x/9.tif", u"/x/8.JPG", u"/x/7.bmp", u"/x/6.png", u"/x/5.mp4", u"/x/4.wmv",
                      u"/x/3.mov", u"/x/2.avi", u"/x/1.psd", u"/x/0.jpeg"});
    EXPECT_THAT(Rows(), ElementsAre(u"/x/8.JPG", u"/x/7.bmp", u"/x/6.png", u"/x/5.mp4", u"/x/4.wmv",
                                    u"/x/3.mov", u"/x/2.avi"));
    EXPECT_EQ(form3.List1.TopIndex, 6);  // 10 files less 1, but there are 7 rows
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(Adding, InsertsInFrontOfTheOneSelectedRowWhichStaysCurrent) {
    Fill({u"1.png", u"2.png", u"3.png"});
    form3.Check6.Press();
    form3.List1.Choose({1});
    Browse({u"a.png", u"b.png", u"c.png"});
    form3.Command3.Press();
    EXPECT_THAT(Rows(), ElementsAre(u"1.png", u"D:\\p\\a.png", u"D:\\p\\b.png", u"D:\\p\\c.png",
                                    u"2.png", u"3.png"));
    EXPECT_EQ(Schedules(), u"1   23");
    EXPECT_EQ(form3.List1.ListIndex, 4);
    EXPECT_EQ(form3.List2.ListIndex, 4);
    EXPECT_THAT(form3.List1.SelectedRows(), ElementsAre(4));
    form3.File1.Choose({0});
    EXPECT_EQ(form3.List1.List(4), u"D:\\p\\a.png");
    EXPECT_EQ(form3.List1.ListIndex, 5);
}

TEST_F(Adding, AppendsWithTwoRowsSelectedOrNone) {
    Fill({u"1.png", u"2.png"});
    form3.Check6.Press();
    Browse({u"a.png"});
    form3.List1.Choose({0, 1});
    form3.File1.Choose({0});
    EXPECT_EQ(form3.List1.List(2), u"D:\\p\\a.png");
    form3.List1.Choose({});
    form3.File1.Choose({0});
    EXPECT_EQ(form3.List1.List(3), u"D:\\p\\a.png");
}

TEST_F(Adding, TheLastRowIsAddedAndReportedAtOnce) {
    FillWith(29999);
    Browse({u"a.png"});
    form3.File1.Choose({0});
    EXPECT_EQ(form3.List1.ListCount(), 30000);
    EXPECT_EQ(form3.List1.List(29999), u"D:\\p\\a.png");
    EXPECT_EQ(dialogs.messages.back().flags, 0);
    EXPECT_THAT(TakeMessages(), ElementsAre(full));
    form3.File1.Choose({0});
    EXPECT_EQ(form3.List1.ListCount(), 30000);
    EXPECT_THAT(TakeMessages(), ElementsAre(full));
    EXPECT_EQ(state.SlideSearchStop, 0);  // a click does not end a search
}

TEST_F(Adding, ABulkStopsAtTheRowThatFillsAndTakesNothingBack) {
    FillWith(29998);
    Browse({u"a.png", u"b.png", u"c.png"});
    state.SlideSearchActive = 1;
    form3.Command3.Press();
    EXPECT_EQ(form3.List1.ListCount(), 30000);
    EXPECT_EQ(form3.List1.List(29999), u"D:\\p\\b.png");
    EXPECT_THAT(TakeMessages(), ElementsAre(full));
    EXPECT_EQ(state.SlideSearchStop, 1);
    EXPECT_EQ(state.SlideSearchActive, 0);
    form3.Command3.Press();
    EXPECT_EQ(form3.List1.ListCount(), 30000);
    EXPECT_THAT(TakeMessages(), ElementsAre(full));
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_EQ(form3.List1.ListCount(), 29998);
}

TEST_F(Adding, ADropIntoAFullListEndsASearchButNotItsFlag) {
    FillWith(29999);
    state.SlideSearchActive = 1;
    form3.List1.Drop({u"/x/a.tif", u"/x/a.jpg", u"/x/b.jpg"});
    EXPECT_EQ(form3.List1.ListCount(), 30000);
    EXPECT_THAT(TakeMessages(), ElementsAre(full));
    EXPECT_EQ(state.SlideSearchStop, 1);
    EXPECT_EQ(state.SlideSearchActive, 1);
}

TEST_F(Adding, ABulkThatFits) {
    FillWith(29997);
    Browse({u"a.png", u"b.png"});
    state.SlideSearchStop = 1;
    form3.Command3.Press();
    EXPECT_EQ(form3.List1.ListCount(), 29999);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(state.SlideSearchStop, 0);
}

}  // namespace
}  // namespace authoring
