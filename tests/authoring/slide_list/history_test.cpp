// Undo, redo and dragged rows of Form3.
#include "authoring/slide_list/history.h"

#include <gtest/gtest.h>

#include "app/app_support.h"
#include "authoring/slide_list/documents.h"
#include "list_desk.h"
#include "model/windows/main_window.h"

namespace authoring {
namespace {

TEST(History, ButtonsAndEntriesAreEnabledWhileThereIsSomething) {
    ListDesk desk({u"a", u"b"});
    model::Form3& form3 = desk.form3;
    const auto enabled = [&] {
        EXPECT_EQ(form3.Undo.Enabled(), form3.mnuUNDO.Enabled());
        EXPECT_EQ(form3.Redo.Enabled(), form3.mnuREDO.Enabled());
        return std::pair(form3.Undo.Enabled(), form3.Redo.Enabled());
    };
    EXPECT_EQ(enabled(), std::pair(false, false));
    document::RemoveRows(document::SlideRows(desk.app), {0});
    EXPECT_EQ(enabled(), std::pair(true, false));
    form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b"}));
    EXPECT_EQ(enabled(), std::pair(false, true));
    form3.mnuREDO.Choose();
    EXPECT_EQ(desk.Rows(), Paths{u"b"});
    EXPECT_EQ(enabled(), std::pair(true, false));
    form3.mnuUNDO.Choose();
    form3.Redo.Press();
    EXPECT_EQ(enabled(), std::pair(true, false));
    document::ForgetSteps(document::SlideRows(desk.app));
    EXPECT_EQ(enabled(), std::pair(false, false));
    EXPECT_EQ(form3.mnuUNDO.Shortcut(), u"Ctrl+Z");
    EXPECT_EQ(form3.mnuREDO.Shortcut(), u"Ctrl+Shift+Z; Ctrl+Y");
}

TEST(History, DraggedRowsKeepOrderScheduleAndSelection) {
    ListDesk desk({u"a", u"b", u"c", u"d", u"e"});
    desk.form3.List1.Choose({1, 3});
    EXPECT_TRUE(desk.form3.List1.DragTo(0));
    EXPECT_EQ(desk.Rows(), (Paths{u"b", u"d", u"a", u"c", u"e"}));
    EXPECT_EQ(desk.Selected(), (Paths{u"b", u"d"}));
    EXPECT_EQ(desk.form3.List1.ListIndex, 1);
    EXPECT_EQ(desk.Steps(), 1u);
    desk.form3.List1.DragTo(5);
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"c", u"e", u"b", u"d"}));
    desk.form3.Undo.Press();
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b", u"c", u"d", u"e"}));
    EXPECT_EQ(desk.Selected(), (Paths{u"b", u"d"}));
    EXPECT_EQ(desk.form3.List1.ListIndex, 3);
}

TEST(History, DraggingTakesTheSelectedRowsThatAreSeen) {
    ListDesk desk({u"a1", u"b2", u"c1", u"d2"});
    desk.form3.List1.Choose({1, 2});
    desk.form3.Filter.Enter(u"2");
    desk.form3.List1.DragTo(0);
    EXPECT_EQ(desk.Rows(), (Paths{u"b2", u"a1", u"c1", u"d2"}));
}

TEST(History, AnOpeningIsAStep) {
    ListDesk desk({u"a", u"b"});
    desk.state.DocumentPath = u"D:\\old.kvs";
    desk.state.DocumentName = u"old.kvs";
    desk.state.BaseFolder = u"D:\\";
    desk.state.DocumentFileDate = u"2026/01/01 10:00:00";
    desk.PutText(u"C:\\show\\new.kvs", app_tests::ShowOf({u"x.png", u"y.png"}));
    OpenDocument(desk.app, u"C:\\show\\new.kvs");
    const Text date = desk.state.DocumentFileDate;
    const Text caption = desk.app.windows.form1.Caption;
    EXPECT_EQ(desk.form3.List1.List(0), u"C:\\show\\x.png");
    EXPECT_EQ(desk.Steps(), 1u);
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b"}));
    EXPECT_EQ(desk.state.DocumentPath, u"D:\\old.kvs");
    EXPECT_EQ(desk.state.DocumentName, u"old.kvs");
    EXPECT_EQ(desk.state.BaseFolder, u"D:\\");
    EXPECT_EQ(desk.state.DocumentFileDate, u"2026/01/01 10:00:00");
    EXPECT_NE(desk.app.windows.form1.Caption().find(u"old.kvs"), Text::npos);
    desk.form3.Redo.Press();
    EXPECT_EQ(desk.form3.List1.List(1), u"C:\\show\\y.png");
    EXPECT_EQ(desk.state.DocumentPath, u"C:\\show\\new.kvs");
    EXPECT_EQ(desk.state.DocumentFileDate, date);
    EXPECT_EQ(desk.app.windows.form1.Caption(), caption);
}

TEST(History, ARefusedDocumentIsNoStep) {
    ListDesk desk({u"a", u"b"});
    document::RemoveRows(document::SlideRows(desk.app), {0});
    desk.form3.Undo.Press();
    desk.PutText(u"C:\\show\\bad.kvs", u"vue\r\n");
    OpenDocument(desk.app, u"C:\\show\\bad.kvs");
    OpenDocument(desk.app, u"C:\\show\\missing.kvs");
    EXPECT_EQ(desk.state.BaseFolder, u"C:\\show\\");
    EXPECT_FALSE(desk.form3.Undo.Enabled);
    EXPECT_TRUE(desk.form3.Redo.Enabled) << "nothing was done that would end it";
    // One that fails on its way has emptied the list: that can be taken back.
    desk.PutText(u"C:\\show\\short.kvs", u"21vue3167893\r\nx\r\n");
    OpenDocument(desk.app, u"C:\\show\\short.kvs");
    EXPECT_EQ(desk.Rows(), Paths{});
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b"}));
}

TEST(History, ASavedDocumentComesBackAsItIsOnTheDisk) {
    ListDesk desk;
    desk.PutText(u"C:\\show\\new.kvs", app_tests::ShowOf({u"x.png", u"y.png"}));
    OpenDocument(desk.app, u"C:\\show\\new.kvs");
    const Text opened = desk.state.DocumentFileDate;
    desk.form3.Command4.Press();
    document::AppendRows(document::SlideRows(desk.app), {{u"z.png", model::BlankScheduleRow()}});
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\new.kvs")};
    desk.form3.Command7.Press();
    const Text saved = desk.state.DocumentFileDate;
    ASSERT_NE(saved, opened);
    desk.form3.Undo.Press();
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.form3.List1.ListCount(), 2);
    EXPECT_EQ(desk.state.DocumentPath, u"C:\\show\\new.kvs");
    EXPECT_EQ(desk.state.DocumentFileDate, saved) << "or a show would read it anew";
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\new.kvs")};
    desk.form3.Command7.Press();
    const Text again = desk.state.DocumentFileDate;
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.state.DocumentPath, u"");
    desk.form3.Redo.Press();
    EXPECT_EQ(desk.state.DocumentFileDate, again);
}

TEST(History, NewIsAStepWithoutItsSettings) {
    ListDesk desk({u"a", u"b"});
    desk.state.DocumentName = u"old.kvs";
    desk.state.DocumentPath = u"D:\\old.kvs";
    desk.state.ShowEffect = 3;
    desk.dialogs.answers = {platform::Answer::Yes};
    EXPECT_TRUE(NewDocument(desk.app));
    EXPECT_EQ(desk.Rows(), Paths{});
    EXPECT_EQ(desk.state.DocumentName, u"");
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b"}));
    EXPECT_EQ(desk.state.DocumentName, u"old.kvs");
    EXPECT_EQ(desk.state.ShowEffect, 9) << "settings stay new";
}

TEST(History, AReaderOfItsOwnIsNone) {
    ListDesk desk({u"a"});
    document::RemoveRows(document::SlideRows(desk.app), {0});
    {
        document::SlideIntake intake(desk.app);
        intake.Add(u"x");
    }
    EXPECT_FALSE(desk.form3.Undo.Enabled);
    EXPECT_EQ(desk.form3.List1.ListCount(), 1);
}

TEST(History, WhileASearchRunsItOnlyStopsIt) {
    ListDesk desk({u"a", u"b"});
    document::RemoveRows(document::SlideRows(desk.app), {0});
    desk.state.SlideSearchActive = 1;
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.state.SlideSearchActive, 0);
    EXPECT_EQ(desk.Rows(), Paths{u"b"});
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows(), (Paths{u"a", u"b"}));
}

}  // namespace
}  // namespace authoring
