// The orders into which a person brings the rows of Form3.
#include "authoring/shared/list_sorting.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "list_desk.h"

namespace authoring {
namespace {

platform::DateTime Day(int day) {
    return platform::FromCalendar({2026, 3, day, 0, 0, 0});
}

TEST(Sorting, ByNameInNaturalOrderWithoutCase) {
    ListDesk desk(
        {u"C:\\b\\10.jpg", u"C:\\a\\B.jpg", u"C:\\z\\2.jpg", u"C:\\c\\a.jpg", u"C:\\d\\b.jpg"});
    desk.form3.mnuSORTNAME.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"C:\\z\\2.jpg", u"C:\\b\\10.jpg", u"C:\\c\\a.jpg",
                                  u"C:\\a\\B.jpg", u"C:\\d\\b.jpg"}))
        << "rows with the same name keep their order";
    EXPECT_EQ(desk.Steps(), 1u);
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows()[0], u"C:\\b\\10.jpg");
}

TEST(Sorting, ByFolderThenName) {
    ListDesk desk({u"/p/b/1.jpg", u"/p/a b/1.jpg", u"/p/a/c/1.jpg", u"/p/A/10.jpg", u"/p/a/9.jpg",
                   u"/p/z.jpg"});
    desk.form3.mnuSORTFOLDER.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"/p/z.jpg", u"/p/a/9.jpg", u"/p/A/10.jpg", u"/p/a/c/1.jpg",
                                  u"/p/a b/1.jpg", u"/p/b/1.jpg"}));
}

TEST(Sorting, SeveralSelectedRowsShareTheirPlaces) {
    ListDesk desk({u"d", u"x", u"b", u"y", u"a"});
    desk.form3.List1.Choose({0, 2, 4});
    desk.form3.mnuSORTNAME.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"x", u"b", u"y", u"d"}));
    EXPECT_EQ(desk.Selected(), (Paths{u"a", u"b", u"d"}));
    EXPECT_EQ(desk.form3.List1.List(desk.form3.List1.ListIndex), u"a") << "the current row";
}

TEST(Sorting, OneSelectedRowGoesAlong) {
    ListDesk desk({u"c", u"b", u"a"});
    desk.form3.List1.Choose({0});
    desk.form3.mnuSORTNAME.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b", u"c"}));
    EXPECT_EQ(desk.Selected(), Paths{u"c"});
    EXPECT_EQ(desk.form3.List1.ListIndex, 2);
    desk.form3.mnuSORTNAME.Choose();
    EXPECT_EQ(desk.Steps(), 1u) << "what is in order is no step";
}

TEST(Sorting, OfSelectedRowsThoseThatAreSeen) {
    ListDesk desk({u"d1", u"c1", u"b2", u"a1"});
    desk.form3.List1.Choose({0, 1, 2, 3});
    desk.form3.Filter.Enter(u"1");
    desk.form3.mnuSORTNAME.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"a1", u"c1", u"b2", u"d1"}));
}

TEST(Sorting, ByDatesWithThoseWithoutOneLast) {
    ListDesk desk({u"gone1", u"c", u"a", u"gone2", u"b", u"c2"});
    int day = 9;
    for (const char16_t* path : {u"a", u"b", u"c", u"c2"}) {
        desk.files.Put(path, "");
        desk.files.SetDate(path, Day(day--));
    }
    desk.files.SetDate(u"c2", Day(7));
    desk.form3.mnuSORTDATE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"c", u"c2", u"b", u"a", u"gone1", u"gone2"}));
    desk.fileInquiry.taken = {{u"b", Day(1)}, {u"c", Day(2)}};
    desk.form3.mnuSORTTAKEN.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"b", u"c", u"c2", u"a", u"gone1", u"gone2"}));
    EXPECT_EQ(desk.Steps(), 2u);
    EXPECT_EQ(desk.state.SlideSearchActive, 0);
    EXPECT_EQ(desk.form3.Command8.Caption(), u"検索");
    EXPECT_FALSE(desk.form3.Label1.Visible);
    EXPECT_EQ(desk.form3.Label1.Caption(), u"検索中");
}

TEST(Sorting, AskingCanBeStopped) {
    ListDesk desk({u"b", u"a"});
    bool seen = false;
    desk.loop.onPump = [&] {
        seen = seen || (desk.form3.Label1.Visible && desk.form3.Command8.Caption() == u"中止");
        desk.form3.Undo.Enabled = true;
        desk.form3.Undo.Press();
    };
    desk.form3.mnuSORTDATE.Choose();
    EXPECT_TRUE(seen);
    EXPECT_EQ(desk.Rows(), (Paths{u"b", u"a"}));
    EXPECT_EQ(desk.Steps(), 0u);
}

TEST(Sorting, RowsThatCameMeanwhileAreSortedToo) {
    ListDesk desk({u"b", u"a"});
    desk.files.Put(u"a", "");
    desk.files.Put(u"b", "");
    desk.loop.onPump = [&] {
        if (desk.form3.List1.ListCount() == 2) {
            document::InsertRows(document::SlideRows(desk.app), 0,
                                 {{u"n", ListDesk::ScheduleOf(u"n")}});
        }
    };
    desk.form3.mnuSORTDATE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b", u"n"}));
}

TEST(Sorting, ShufflesByTheProgramsNumbers) {
    ListDesk desk({u"a", u"b", u"c", u"d"});
    // Draws of 4, 3 and 2 rows that are left: place 0, 1, 0.
    desk.loop.randomNumbers = {0.0, 0.5, 0.4};
    desk.form3.mnuSHUFFLE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"c", u"d", u"b", u"a"}));
    EXPECT_EQ(desk.Steps(), 1u);
}

TEST(Sorting, Reverses) {
    ListDesk desk({u"a", u"b", u"c", u"d", u"e"});
    desk.form3.mnuREVERSE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"e", u"d", u"c", u"b", u"a"}));
    desk.form3.List1.Choose({1, 4});
    desk.form3.mnuREVERSE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"e", u"a", u"c", u"b", u"d"}));
}

TEST(Sorting, AnEmptyListStays) {
    ListDesk desk;
    for (model::MenuEntry* entry : desk.form3.mnuSORT.Children()) {
        entry->Choose();
    }
    EXPECT_EQ(desk.Steps(), 0u);
}

}  // namespace
}  // namespace authoring
