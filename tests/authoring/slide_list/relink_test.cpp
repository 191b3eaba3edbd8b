// Rows of Form3 whose files lie elsewhere now.
#include "authoring/slide_list/relink.h"

#include <gtest/gtest.h>

#include "authoring/slide_list/documents.h"
#include "list_desk.h"

namespace authoring {
namespace {

struct RelinkDesk : ListDesk {
    model::RelinkPreview& preview = app.windows.relinkPreview;
    Paths shown;  // rows of the window when it came up last
    Text said;    // its words then
    int times = 0;

    using ListDesk::ListDesk;
    /// Presses the button; the window is answered by these buttons in turn.
    void Relink(const std::vector<model::Button*>& answers) {
        double moment = 0;
        for (model::Button* answer : answers) {
            loop.After(moment += 10, [this, answer] {
                ++times;
                shown.assign(preview.List1.Rows().begin(), preview.List1.Rows().end());
                said = preview.Label1.Caption;
                answer->Press();
            });
        }
        form3.Relink.Press();
    }
    void Put(const Paths& paths) {
        for (const Text& path : paths) {
            files.Put(path, text::ToUtf8(path));
        }
    }
};

TEST(Relink, NothingMissingIsSaid) {
    RelinkDesk desk({u"D:\\a.jpg"});
    desk.Put({u"D:\\a.jpg"});
    desk.Relink({});
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text, u"見つからないファイルはありません。");
    EXPECT_TRUE(desk.dialogs.requests.empty());
}

TEST(Relink, ShowsWhatWouldChangeAndChangesItAtOnce) {
    RelinkDesk desk({u"D:\\old\\a.jpg", u"D:\\here.jpg", u"D:\\old\\b.jpg", u"D:\\old\\a.jpg",
                     u"D:\\old\\none.jpg"});
    desk.Put({u"D:\\here.jpg", u"E:\\new\\A.jpg", u"E:\\new\\deep\\b.jpg"});
    desk.dialogs.fileAnswers = {u"E:\\new"};
    desk.Relink({&desk.preview.Command1});
    EXPECT_EQ(desk.shown, (Paths{u"D:\\old\\a.jpg → E:\\new\\A.jpg",
                                 u"D:\\old\\b.jpg → E:\\new\\deep\\b.jpg"}));
    EXPECT_EQ(desk.said, u"見つからないファイル 3個のうち、2個が次の場所で見つかりました。");
    ASSERT_EQ(desk.Steps(), 1u);
    EXPECT_EQ(desk.form3.List1.List(0), u"E:\\new\\A.jpg");
    EXPECT_EQ(desk.form3.List1.List(3), u"E:\\new\\A.jpg") << "every row of the file";
    EXPECT_EQ(desk.form3.List1.List(4), u"D:\\old\\none.jpg");
    EXPECT_EQ(desk.form3.List2.List(0), ListDesk::ScheduleOf(u"D:\\old\\a.jpg"));
    desk.form3.Undo.Press();
    EXPECT_EQ(desk.Rows()[0], u"D:\\old\\a.jpg");
    EXPECT_EQ(desk.state.SlideSearchActive, 0);
}

TEST(Relink, CancelChangesNothing) {
    RelinkDesk desk({u"D:\\old\\a.jpg"});
    desk.Put({u"E:\\new\\a.jpg"});
    desk.dialogs.fileAnswers = {std::nullopt};
    desk.Relink({});
    EXPECT_EQ(desk.times, 0);
    desk.dialogs.fileAnswers = {u"E:\\new"};
    desk.Relink({&desk.preview.Command2});
    EXPECT_EQ(desk.times, 1);
    EXPECT_EQ(desk.Rows(), Paths{u"D:\\old\\a.jpg"});
    EXPECT_EQ(desk.Steps(), 0u);
}

TEST(Relink, AFolderWithoutThemIsSaid) {
    RelinkDesk desk({u"D:\\old\\a.jpg"});
    desk.Put({u"E:\\new\\b.jpg"});
    desk.dialogs.fileAnswers = {u"E:\\new"};
    desk.Relink({});
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text,
              u"E:\\new\r\nこのフォルダの中には見つかりませんでした。");
    EXPECT_EQ(desk.times, 0);
}

TEST(Relink, TheOldFolderLeadsToFurtherFiles) {
    RelinkDesk desk({u"D:\\old\\trip\\a.jpg"});
    desk.Put({u"E:\\new\\trip\\a.jpg", u"E:\\new\\trip\\b.jpg", u"E:\\new\\far\\c.jpg"});
    desk.dialogs.fileAnswers = {u"E:\\new"};
    desk.Relink({&desk.preview.Command1});
    desk.Fill({u"D:\\old\\trip\\b.jpg", u"D:\\old\\far\\c.jpg", u"D:\\other\\b.jpg"});
    desk.dialogs.requests.clear();
    desk.Relink({&desk.preview.Command1});
    EXPECT_TRUE(desk.dialogs.requests.empty()) << "without a folder";
    EXPECT_EQ(desk.form3.List1.List(0), u"E:\\new\\trip\\b.jpg");
    EXPECT_EQ(desk.form3.List1.List(1), u"E:\\new\\far\\c.jpg");
    EXPECT_EQ(desk.form3.List1.List(2), u"D:\\other\\b.jpg");
}

TEST(Relink, MoreFoldersCanBeSearched) {
    RelinkDesk desk({u"D:\\old\\a.jpg", u"D:\\old\\b.jpg"});
    desk.Put({u"E:\\one\\a.jpg", u"E:\\two\\b.jpg"});
    desk.dialogs.fileAnswers = {u"E:\\one", u"E:\\two"};
    desk.Relink({&desk.preview.Command3, &desk.preview.Command1});
    EXPECT_EQ(desk.times, 2);
    EXPECT_EQ(desk.form3.List1.List(0), u"E:\\one\\a.jpg");
    EXPECT_EQ(desk.form3.List1.List(1), u"E:\\two\\b.jpg");
    EXPECT_EQ(desk.Steps(), 1u);
    EXPECT_FALSE(desk.preview.Command3.Visible) << "none is missing any more";
}

TEST(Relink, ThoseWithSeveralChoicesCanBeLeftOut) {
    RelinkDesk desk({u"D:\\old\\a.jpg", u"D:\\old\\b.jpg"});
    desk.Put({u"E:\\n\\1\\a.jpg", u"E:\\n\\2\\a.jpg", u"E:\\n\\b.jpg"});
    desk.dialogs.fileAnswers = {u"E:\\n"};
    desk.loop.After(10, [&] {
        EXPECT_TRUE(desk.preview.Visible);
        EXPECT_TRUE(desk.preview.Check1.Visible);
        EXPECT_EQ(desk.preview.Check1.Caption(), u"候補が複数あるファイル（1個）も変更する");
        EXPECT_EQ(desk.preview.List1.ListCount(), 2);
        EXPECT_EQ(desk.preview.List1.face(0).aside, u"候補 2");
        EXPECT_EQ(desk.preview.List1.face(0).file, u"E:\\n\\1\\a.jpg");
        desk.preview.Check1.Press();
        EXPECT_EQ(desk.preview.List1.ListCount(), 1);
        desk.preview.Command1.Press();
    });
    desk.form3.Relink.Press();
    EXPECT_EQ(desk.form3.List1.List(0), u"D:\\old\\a.jpg");
    EXPECT_EQ(desk.form3.List1.List(1), u"E:\\n\\b.jpg");
}

TEST(Relink, ARenamedFileIsKnownBySizeAndBeginning) {
    RelinkDesk desk({u"D:\\old\\a.jpg", u"D:\\old\\b.jpg"});
    desk.files.Put(u"D:\\old\\a.jpg", "first content");
    desk.files.Put(u"D:\\old\\b.jpg", "other content");
    desk.dialogs.fileAnswers = {u"D:\\show.kvs"};
    SaveDocument(desk.app);
    ASSERT_TRUE(desk.files.Get(u"C:\\app\\known.dat"));
    desk.files.Remove(u"D:\\old\\a.jpg");
    desk.files.Remove(u"D:\\old\\b.jpg");
    desk.files.Put(u"E:\\new\\x.jpg", "same length!!");
    desk.files.Put(u"E:\\new\\y.JPG", "first content");
    desk.dialogs.fileAnswers = {u"E:\\new"};
    desk.Relink({&desk.preview.Command1});
    EXPECT_EQ(desk.shown, Paths{u"D:\\old\\a.jpg → E:\\new\\y.JPG"});
    EXPECT_EQ(desk.form3.List1.List(0), u"E:\\new\\y.JPG");
    EXPECT_EQ(desk.form3.List1.List(1), u"D:\\old\\b.jpg");
}

TEST(Relink, AStopKeepsWhatWasFoundUntilThen) {
    RelinkDesk desk({u"D:\\old\\a.jpg", u"D:\\old\\b.jpg"});
    desk.Put({u"E:\\n\\a.jpg", u"E:\\n\\sub\\b.jpg"});
    desk.dialogs.fileAnswers = {u"E:\\n"};
    int pumps = 0;
    desk.loop.onPump = [&] {
        if (desk.state.SlideSearchActive == 1 &&
            desk.form3.Label1.Caption().starts_with(u"検索中") && ++pumps == 2) {
            desk.form3.mnuRELINK.Choose();  // as any command, it stops
        }
    };
    desk.Relink({&desk.preview.Command1});
    EXPECT_EQ(desk.shown.size(), 1u);
    EXPECT_EQ(desk.form3.List1.List(0), u"E:\\n\\a.jpg");
    EXPECT_EQ(desk.form3.List1.List(1), u"D:\\old\\b.jpg");
}

}  // namespace
}  // namespace authoring
