// Which file stands for one that is missing.
#include "authoring/slide_list/relink_match.h"

#include <gtest/gtest.h>

namespace authoring {
namespace {

TEST(FoldersAlike, CountsFromTheFileUpwards) {
    EXPECT_EQ(FoldersAlike(u"/a/b/c/x.jpg", u"/z/b/c/y.jpg"), 2);
    EXPECT_EQ(FoldersAlike(u"/a/b/x.jpg", u"/a/c/x.jpg"), 0) << "the file's own folder differs";
    EXPECT_EQ(FoldersAlike(u"C:\\Pics\\Trip\\x.jpg", u"/home/me/pics/trip/x.jpg"), 2);
    EXPECT_EQ(FoldersAlike(u"C:\\x.jpg", u"D:\\x.jpg"), 0);
    EXPECT_EQ(FoldersAlike(u"x.jpg", u"/a/x.jpg"), 0);
    EXPECT_EQ(FoldersAlike(u"/a/b/x.jpg", u"/a/b/x.jpg"), 2);
}

TEST(FolderMove, IsWhatStandsAboveTheFoldersThatAreAlike) {
    EXPECT_EQ(MoveOf(u"/old/trip/1/x.jpg", u"/new/disk/trip/1/x.jpg"),
              (FolderMove{u"/old/", u"/new/disk/"}));
    EXPECT_EQ(MoveOf(u"C:\\pics\\a\\x.jpg", u"/home/me/b/x.jpg"),
              (FolderMove{u"C:\\pics\\a\\", u"/home/me/b/"}));
}

TEST(FolderMove, LeadsToFilesBelow) {
    const FolderMove move{u"C:\\pics\\", u"/home/me/"};
    EXPECT_EQ(PathAfter(move, u"C:\\pics\\a\\x.jpg"), u"/home/me/a/x.jpg");
    EXPECT_EQ(PathAfter(move, u"c:\\PICS\\x.jpg"), u"/home/me/x.jpg");
    EXPECT_EQ(PathAfter(move, u"C:\\other\\x.jpg"), std::nullopt);
    EXPECT_EQ(PathAfter({u"/a/", u"/b/"}, u"/a/c\\d.jpg"), u"/b/c\\d.jpg")
        << "no separator in a native path";
}

TEST(NameSearch, TakesTheFileWhoseFoldersAreMostAlike) {
    NameSearch search({u"/old/2020/trip/A.jpg", u"/old/2021/a.jpg", u"/old/b.jpg"});
    search.Look(u"/new/trip", u"a.JPG");
    search.Look(u"/new/2020/trip", u"a.jpg");
    search.Look(u"/new/2021", u"a.jpg");
    search.Look(u"/new", u"c.jpg");
    const Findings& found = search.Found();
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found.at(u"/old/2020/trip/A.jpg").path, u"/new/2020/trip/a.jpg");
    EXPECT_EQ(found.at(u"/old/2020/trip/A.jpg").choices, 1);
    EXPECT_EQ(found.at(u"/old/2021/a.jpg").path, u"/new/2021/a.jpg");
}

TEST(NameSearch, OfEqualOnesTheFirstCountsWithTheirNumber) {
    NameSearch search({u"/old/a.jpg"});
    search.Look(u"/x", u"a.jpg");
    search.Look(u"/y", u"a.jpg");
    search.Look(u"/z", u"a.jpg");
    EXPECT_EQ(search.Found().at(u"/old/a.jpg").path, u"/x/a.jpg");
    EXPECT_EQ(search.Found().at(u"/old/a.jpg").choices, 3);
    search.Look(u"/z/old", u"a.jpg");
    EXPECT_EQ(search.Found().at(u"/old/a.jpg").path, u"/z/old/a.jpg");
    EXPECT_EQ(search.Found().at(u"/old/a.jpg").choices, 1);
}

}  // namespace
}  // namespace authoring
