// The search of a folder tree.
#include <new>

#include "model/windows/file_search.h"
#include "slide_list_support.h"

namespace authoring {
namespace {

struct TreeSearch : SlideListTest {
    Text asked = u"*.PNG";  // what the dialog leaves

    void SetUp() override {
        SlideListTest::SetUp();
        windows.form18.HasView = true;
        windows.form18.OnActivate = [this] {
            state.SearchPattern = asked;
            windows.form18.Unload();
        };
        for (const char16_t* path :
             {u"D:\\t\\1.png", u"D:\\t\\a\\2.png", u"D:\\t\\a\\x\\3.png", u"D:\\t\\b\\4.png",
              u"D:\\t\\b\\5.png", u"D:\\t\\empty\\deep\\6.png"}) {
            files.Put(path, "x");
        }
        form3.Dir1.Open(u"D:\\t");
    }
    void Search() { form3.Command8.Press(); }
    /// Acts at the yield in front of the n-th folder, from 1.
    void AtYield(int n, std::function<void()> act) {
        loop.onPump = [this, n, act = std::move(act), count = 0]() mutable {
            if (state.SlideSearchActive == 1 && ++count == n) {
                act();
            }
        };
    }
};

TEST_F(TreeSearch, FilesComeAfterThoseOfTheSubfoldersWhichAreWalkedFromTheLastOn) {
    Search();
    EXPECT_THAT(Rows(),
                ElementsAre(u"D:\\t\\empty\\deep\\6.png", u"D:\\t\\b\\4.png", u"D:\\t\\b\\5.png",
                            u"D:\\t\\a\\x\\3.png", u"D:\\t\\a\\2.png", u"D:\\t\\1.png"));
    EXPECT_EQ(state.SlideSearchActive, 0);
    EXPECT_EQ(windows.Pointer(), 0);
    EXPECT_EQ(form3.Command8.Caption(), u"検索");
    EXPECT_FALSE(form3.Label1.Visible);
    EXPECT_TRUE(form3.File1.Pattern().starts_with(u"*.png;*.psd"));
    EXPECT_EQ(form3.Dir1.Path(), u"D:\\t");
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_FALSE(document::UndoSlideRows(app));
}

TEST_F(TreeSearch, SaysWhereItIsAndWhatItFound) {
    std::vector<Text> where, what;
    loop.onPump = [&] {
        const bool elsewhere = where.empty() || where.back() != form3.Searched.Caption();
        if (state.SlideSearchActive == 1 && elsewhere) {
            EXPECT_TRUE(form3.Label1.Visible);
            where.push_back(form3.Searched.Caption);
            what.push_back(form3.Found.Caption);
        }
    };
    Search();
    EXPECT_THAT(where, ElementsAre(u"D:\\t", u"D:\\t\\empty", u"D:\\t\\empty\\deep", u"D:\\t\\b",
                                   u"D:\\t\\a", u"D:\\t\\a\\x"));
    EXPECT_EQ(what.front(), u"0 フォルダ、0 枚");
    EXPECT_EQ(what[3], u"3 フォルダ、1 枚") << "empty, deep and the root";
    EXPECT_EQ(what.back(), u"5 フォルダ、3 枚");
    EXPECT_EQ(form3.Searched.Caption(), u"");
    EXPECT_EQ(form3.Found.Caption(), u"");
}

TEST_F(TreeSearch, ACancelledDialogSearchesNothing) {
    asked.clear();
    Search();
    EXPECT_THAT(folders.read, IsEmpty());
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(TreeSearch, WhatIsSeenWhileItRuns) {
    bool seen = false;
    AtYield(2, [&] {
        seen = true;
        EXPECT_EQ(form3.Command8.Caption(), u"中止");
        EXPECT_TRUE(form3.Label1.Visible);
    });
    Search();
    EXPECT_TRUE(seen);
}

TEST_F(TreeSearch, ItYieldsOnceAFolder) {
    int pumps = 0;
    loop.onPump = [&] { pumps += state.SlideSearchActive; };
    Search();
    EXPECT_GE(pumps, 6);
}

TEST_F(TreeSearch, ASecondPressStopsItAndKeepsWhatWasAdded) {
    AtYield(7, [&] {  // a yield while a folder is read counts, too
        const auto rows = Rows();
        form3.Command8.Press();
        EXPECT_EQ(state.SlideSearchActive, 0);
        EXPECT_EQ(Rows(), rows);
    });
    Search();
    EXPECT_THAT(Rows(), ElementsAre(u"D:\\t\\empty\\deep\\6.png"));
    EXPECT_EQ(form3.Command8.Caption(), u"検索");
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(TreeSearch, AFileOrADropComesInTheMiddle) {
    AtYield(7, [&] { form3.List1.Drop({u"/x/drop.jpg"}); });
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 7);
    EXPECT_EQ(form3.List1.List(1), u"/x/drop.jpg");
    EXPECT_TRUE(document::UndoSlideRows(app));  // a part of the search's step
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(TreeSearch, AFullListIsReportedOnceAndEndsIt) {
    FillWith(29998);
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 30000);
    EXPECT_EQ(form3.List1.List(29999), u"D:\\t\\b\\4.png");
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ﾊﾟﾗﾋﾟｺ|これ以上登録できません"));
    EXPECT_EQ(state.SlideSearchActive, 0);
    EXPECT_EQ(state.SlideSearchStop, 0);  // used up by the next folder
}

TEST_F(TreeSearch, AStopOfAnEarlierBulkDoesNotCount) {
    state.SlideSearchStop = 1;
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 6);
}

TEST_F(TreeSearch, TwoFoldersOfTheSystemAreLeftOut) {
    for (const char16_t* path : {u"D:\\t\\Windows\\WinSxS\\7.png", u"D:\\t\\windows.old\\8.png",
                                 u"D:\\t\\Windows\\9.png", u"D:\\t\\WinSxS\\10.png"}) {
        files.Put(path, "x");
    }
    state.SearchWindowsFolderFlag = 1;
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 8);
    EXPECT_THAT(Rows(), testing::IsSupersetOf(
                            {Text(u"D:\\t\\WinSxS\\10.png"), Text(u"D:\\t\\Windows\\9.png")}));
}

TEST_F(TreeSearch, AFolderThatContainsItselfIsEnteredOnce) {
    files.Put(u"D:\\t\\loop\\mark.png", "x");
    folders.links[u"D:\\t\\loop"] = u"D:\\t";
    folders.links[u"D:\\t"] = u"D:\\t";
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 6);
}

TEST_F(TreeSearch, AFolderThatCannotBeReadIsPassedOver) {
    folders.unreadable.insert(u"D:\\t\\b");
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 4);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(TreeSearch, ItEndsInOrderWhenTheProgramDoes) {
    AtYield(2, [] { throw platform::ProgramEnd{}; });
    EXPECT_THROW(Search(), platform::ProgramEnd);
    EXPECT_EQ(state.SlideSearchActive, 0);
    EXPECT_EQ(form3.Command8.Caption(), u"検索");
    EXPECT_EQ(form3.history.depth, 0);
}

TEST_F(TreeSearch, WithoutMemoryForMoreRowsItEndsAndKeepsThoseItHas) {
    AtYield(7, [] { throw std::bad_alloc(); });
    Search();
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].flags, platform::kPlain);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(u"|ﾘｽﾄ ﾎﾞｯｸｽがいっぱいになりました。検索を中止します。"));
    EXPECT_THAT(Rows(), ElementsAre(u"D:\\t\\empty\\deep\\6.png"));
    EXPECT_EQ(form3.List2.ListCount(), 1);
    EXPECT_EQ(state.SlideSearchActive, 0);
    EXPECT_EQ(windows.Pointer(), 0);
    EXPECT_EQ(form3.Command8.Caption(), u"検索");
    EXPECT_FALSE(form3.Label1.Visible);
    EXPECT_TRUE(form3.File1.Pattern().starts_with(u"*.png;*.psd"));
    EXPECT_EQ(form3.history.depth, 0);
    EXPECT_TRUE(document::UndoSlideRows(app));
    EXPECT_THAT(Rows(), IsEmpty());
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 6) << "the next one searches as ever";
}

TEST_F(TreeSearch, InsertsInFrontOfTheOneSelectedRow) {
    Fill({u"old.png"});
    form3.Check6.Press();
    form3.List1.Choose({0});
    Search();
    EXPECT_EQ(form3.List1.ListCount(), 7);
    EXPECT_EQ(form3.List1.List(6), u"old.png");
    EXPECT_EQ(form3.List1.ListIndex, 6);
}

}  // namespace
}  // namespace authoring
