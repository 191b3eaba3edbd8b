// Cut, copy, paste and select all of Form3's rows.
#include "authoring/shared/list_clipboard.h"

#include <gtest/gtest.h>

#include "list_desk.h"

namespace authoring {
namespace {

struct ClipDesk : ListDesk {
    using ListDesk::ListDesk;
    void PutFiles(const Paths& paths) {
        for (const Text& path : paths) {
            files.Put(path, "");
        }
        clipboard.PutFiles(paths);
    }
};

TEST(ClipboardRows, CopyPutsTheSelectedFilesThere) {
    ClipDesk desk({u"/p/a.jpg", u"/p/b.jpg", u"/p/c.jpg"});
    desk.form3.List1.Choose({0, 2});
    desk.form3.mnuCOPY.Choose();
    EXPECT_EQ(desk.clipboard.files, (Paths{u"/p/a.jpg", u"/p/c.jpg"}));
    EXPECT_EQ(desk.Steps(), 0u);
    desk.form3.List1.Choose({});
    desk.form3.mnuCOPY.Choose();
    EXPECT_EQ(desk.clipboard.files.size(), 2u) << "without rows it stays as it is";
    EXPECT_EQ(desk.form3.mnuCOPY.Shortcut(), u"Ctrl+C");
    EXPECT_EQ(desk.form3.mnuCUT.Shortcut(), u"Ctrl+X");
    EXPECT_EQ(desk.form3.mnuPASTE.Shortcut(), u"Ctrl+V");
    EXPECT_EQ(desk.form3.mnuALL.Shortcut(), u"Ctrl+A");
}

TEST(ClipboardRows, OwnRowsComeBackWithTheirSchedules) {
    ClipDesk desk({u"/p/a.tif", u"/p/b.jpg", u"/p/c.jpg"});
    desk.form3.List1.Choose({0, 1});
    desk.form3.mnuCOPY.Choose();
    desk.form3.List1.Choose({2});
    desk.form3.mnuPASTE.Choose();  // whatever they are, and there or not
    EXPECT_EQ(desk.Rows(),
              (Paths{u"/p/a.tif", u"/p/b.jpg", u"/p/a.tif", u"/p/b.jpg", u"/p/c.jpg"}));
    EXPECT_EQ(desk.Selected(), Paths{u"/p/c.jpg"}) << "the selected row stays it";
    EXPECT_EQ(desk.form3.List1.TopIndex, 0);
    EXPECT_EQ(desk.Steps(), 1u);
    desk.form3.List1.Choose({0, 1});
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.Rows().back(), u"/p/b.jpg") << "at the end unless one row is selected";
    EXPECT_EQ(desk.form3.List1.TopIndex, 5) << "where it is seen";
}

TEST(ClipboardRows, CutIsOneStep) {
    ClipDesk desk({u"/p/a.jpg", u"/p/b.jpg", u"/p/c.jpg"});
    desk.form3.List1.Choose({0, 1});
    desk.form3.mnuCUT.Choose();
    EXPECT_EQ(desk.Rows(), Paths{u"/p/c.jpg"});
    EXPECT_EQ(desk.Steps(), 1u);
    EXPECT_EQ(desk.clipboard.files, (Paths{u"/p/a.jpg", u"/p/b.jpg"}));
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"/p/c.jpg", u"/p/a.jpg", u"/p/b.jpg"}));
    desk.form3.Undo.Press();
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"/p/a.jpg", u"/p/b.jpg", u"/p/c.jpg"}));
    EXPECT_EQ(desk.Selected(), (Paths{u"/p/a.jpg", u"/p/b.jpg"}));
}

TEST(ClipboardRows, OtherFilesCountIfTheyAreThereAndOfTheListsKinds) {
    ClipDesk desk({u"/p/x.jpg"});
    desk.PutFiles({u"/p/a.JPG", u"/p/b.tif", u"/p/c.mp4", u"/p/d.txt"});
    desk.clipboard.files.push_back(u"/p/gone.png");
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"/p/x.jpg", u"/p/a.JPG!", u"/p/c.mp4!"}));
    EXPECT_EQ(desk.form3.List2.List(1), Text(30, u' '));
    EXPECT_EQ(desk.Steps(), 1u);
}

TEST(ClipboardRows, WhatAnotherProgramPutThereIsNotOurs) {
    ClipDesk desk({u"/p/a.jpg"});
    desk.form3.List1.Choose({0});
    desk.form3.mnuCOPY.Choose();
    desk.PutFiles({u"/p/b.jpg"});
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"/p/b.jpg!", u"/p/a.jpg"}));
    desk.clipboard.PutText(u"words");
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.form3.List1.ListCount(), 2);
}

TEST(ClipboardRows, TheListTakesAsManyAsItHasRoomFor) {
    ClipDesk desk({u"/p/a.jpg", u"/p/b.jpg"});
    desk.state.SlideListLimit = 3;
    desk.form3.List1.Choose({0, 1});
    desk.form3.mnuCOPY.Choose();
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.Rows(), (Paths{u"/p/a.jpg", u"/p/b.jpg", u"/p/a.jpg"}));
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text, u"これ以上登録できません");
    EXPECT_EQ(desk.dialogs.messages[0].title, u"ﾊﾟﾗﾋﾟｺ");
    EXPECT_EQ(desk.dialogs.messages[0].flags, platform::kPlain);
    EXPECT_EQ(desk.state.SlideSearchStop, 1);
    desk.form3.mnuPASTE.Choose();
    EXPECT_EQ(desk.form3.List1.ListCount(), 3);
    EXPECT_EQ(desk.dialogs.messages.size(), 2u);
}

TEST(ClipboardRows, AllAreThoseThatAreSeen) {
    ClipDesk desk({u"a1", u"b2", u"c1", u"d1"});
    desk.form3.mnuALL.Choose();
    EXPECT_EQ(desk.form3.List1.SelCount(), 4);
    desk.form3.Filter.Enter(u"1");
    desk.form3.mnuALL.Choose();
    EXPECT_EQ(desk.Selected(), (Paths{u"a1", u"c1", u"d1"}));
    desk.form3.mnuREMOVE.Choose();
    EXPECT_EQ(desk.Rows(), Paths{u"b2"});
}

}  // namespace
}  // namespace authoring
