// The box above Form3's list.
#include "authoring/shared/list_filter.h"

#include <gtest/gtest.h>

#include "list_desk.h"

namespace authoring {
namespace {

Paths Seen(const ListDesk& desk) {
    Paths seen;
    for (int row = 0; row < desk.form3.List1.ListCount(); ++row) {
        if (desk.form3.List1.Seen(row)) {
            seen.push_back(desk.form3.List1.List(row));
        }
    }
    const Text caption = desk.form3.SeenCount.Caption;
    if (desk.form3.Filter.Content().empty()) {
        EXPECT_FALSE(desk.form3.SeenCount.Visible);
    } else {
        EXPECT_TRUE(desk.form3.SeenCount.Visible);
        EXPECT_EQ(caption, u"（" + text::FromUtf8(std::to_string(seen.size())) + u"枚を表示）");
    }
    return seen;
}

TEST(Filter, NamesAndFoldersAreLookedThrough) {
    ListDesk desk({u"/trip/a.jpg", u"/home/Trip2.jpg", u"/home/b.jpg", u"/ﾃｽﾄ/c.jpg"});
    desk.form3.Filter.Enter(u"tRiP");
    EXPECT_EQ(Seen(desk), (Paths{u"/trip/a.jpg", u"/home/Trip2.jpg"}));
    desk.form3.Filter.Enter(u"テスト");
    EXPECT_EQ(Seen(desk), Paths{u"/ﾃｽﾄ/c.jpg"});
    desk.form3.Filter.Enter(u"ｂ");
    EXPECT_EQ(Seen(desk), Paths{u"/home/b.jpg"});
    desk.form3.Filter.Enter(u"nowhere");
    EXPECT_EQ(Seen(desk), Paths{});
    EXPECT_EQ(desk.form3.List1.ListCount(), 4) << "all rows and numbers stay";
    EXPECT_EQ(desk.Steps(), 0u);
    desk.form3.Filter.Enter(u"");
    EXPECT_EQ(Seen(desk).size(), 4u);
}

TEST(Filter, ScrollsToTheCurrentRowOrElseToTheFirstHit) {
    ListDesk desk({u"a0", u"b1", u"a2", u"a3", u"b4"});
    desk.form3.List1.TopIndex = 4;
    desk.form3.Filter.Enter(u"b");
    EXPECT_EQ(desk.form3.List1.TopIndex, 1);
    desk.form3.List1.Choose({4});
    desk.form3.Filter.Enter(u"");
    EXPECT_EQ(desk.form3.List1.TopIndex, 4);
    desk.form3.Filter.Enter(u"a");
    EXPECT_EQ(desk.form3.List1.TopIndex, 0) << "the current row is hidden";
    desk.form3.Filter.Enter(u"none");
    EXPECT_EQ(desk.form3.List1.TopIndex, 0);
}

TEST(Filter, PreviewAndButtonsAreOfWhatIsSeen) {
    ListDesk desk;
    desk.PutPicture(u"/a.png", 4, 3);
    desk.PutPicture(u"/b.png", 4, 3);
    desk.Fill({u"/a.png", u"/b.png", u"/c.mp4"});
    desk.form3.List1.Choose({1, 0});
    EXPECT_EQ(desk.state.LastPreviewPath, u"/a.png");
    EXPECT_FALSE(desk.form3.Command25.Enabled) << "two rows";
    desk.form3.Filter.Enter(u"b.");
    EXPECT_TRUE(desk.form3.Command25.Enabled) << "one of them is seen";
    EXPECT_EQ(desk.state.LastPreviewPath, u"/b.png");
    desk.form3.Filter.Enter(u"c.");
    EXPECT_FALSE(desk.form3.Command25.Enabled);
    EXPECT_FALSE(desk.form3.Command18.Enabled);
    EXPECT_EQ(desk.form3.Image1.Picture(), nullptr);
    desk.form3.Filter.Enter(u"");
    EXPECT_EQ(desk.state.LastPreviewPath, u"/a.png");
    EXPECT_FALSE(desk.form3.Command25.Enabled);
    EXPECT_NE(desk.form3.Image1.Picture(), nullptr);
}

TEST(Filter, EscEmptiesIt) {
    ListDesk desk({u"a", u"b"});
    desk.form3.Filter.Enter(u"a");
    desk.form3.Filter.PressKey(13);
    EXPECT_EQ(Seen(desk).size(), 1u);
    desk.form3.Filter.PressKey(27);
    EXPECT_EQ(desk.form3.Filter.Content(), u"");
    EXPECT_EQ(Seen(desk).size(), 2u);
}

TEST(Filter, TheCountFollowsTheRows) {
    ListDesk desk({u"a1", u"b2", u"c1"});
    const document::EditedList list = document::SlideRows(desk.app);
    desk.form3.Filter.Enter(u"1");
    EXPECT_EQ(Seen(desk).size(), 2u);
    document::AppendRows(list, {{u"d1", {}}, {u"e2", {}}, {u"f1", {}}});
    EXPECT_EQ(Seen(desk).size(), 4u);
    document::RemoveRows(list, {0, 1, 3});
    EXPECT_EQ(Seen(desk), (Paths{u"c1", u"f1"}));
    document::ReplaceRows(list, {0}, {{u"c2", {}}});
    EXPECT_EQ(Seen(desk), Paths{u"f1"});
    document::ReorderRows(list, {2, 1, 0});
    EXPECT_EQ(Seen(desk), Paths{u"f1"});
    document::Undo(list);
    document::Undo(list);
    document::Undo(list);
    EXPECT_EQ(Seen(desk).size(), 4u);
}

TEST(Filter, AListThatBecomesEmptyHasNone) {
    ListDesk desk({u"a1", u"b2"});
    desk.form3.Filter.Enter(u"1");
    document::ClearRows(document::SlideRows(desk.app));
    EXPECT_EQ(desk.form3.Filter.Content(), u"");
    document::AppendRows(document::SlideRows(desk.app), {{u"b2", {}}});
    EXPECT_EQ(Seen(desk), Paths{u"b2"});
    document::ClearRows(document::SlideRows(desk.app));
    desk.form3.Filter.Enter(u"1");
    EXPECT_EQ(desk.form3.Filter.Content(), u"1") << "it may be filled before the list is";
}

}  // namespace
}  // namespace authoring
