// Files dropped on the main window.
#include <gtest/gtest.h>

#include "app_support.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"

namespace app_tests {
namespace {

struct Dropping : Program {
    /// Drops when the program is idle; answers what `then` sees afterwards.
    void Drop(const std::vector<Text>& files, const std::function<void()>& then) {
        around.loop.At(10, [this, files, then] {
            form1.FilesDropped(files);
            then();
            throw platform::ProgramEnd{};
        });
        EXPECT_EQ(Run(), 0);
    }
};

TEST(DroppedFiles, AShowOpensAndCanBeStarted) {
    Dropping program;
    program.Drop({u"C:\\show\\two.kvs"}, [&] {
        EXPECT_EQ(program.state.DocumentName, u"two.kvs");
        EXPECT_EQ(program.state.BaseFolder, u"C:\\show\\");
        EXPECT_EQ(program.windows.form3.List1.ListCount(), 2);
        EXPECT_EQ(program.windows.form3.Label4.Caption(), u"2");
        EXPECT_TRUE(program.form1.Command1.Enabled);
        EXPECT_TRUE(program.form1.Command4.Enabled);
        EXPECT_FALSE(program.windows.slidescreen.Visible);
        EXPECT_EQ(program.form1.SlideCount.Caption(), u"2 枚");
        EXPECT_TRUE(program.around.dialogs.messages.empty());
    });
}

TEST(DroppedFiles, TheFirstDocumentAmongThemCounts) {
    Dropping program;
    program.Drop({u"C:\\show\\a.png", u"C:\\show\\one.kvs", u"C:\\show\\two.kvs"},
                 [&] { EXPECT_EQ(program.state.DocumentName, u"one.kvs"); });
}

TEST(DroppedFiles, WithoutADocumentTheFirstIsRefused) {
    Dropping program;
    program.state.RandomFlag = 0;
    program.Drop({u"C:\\show\\a.png", u"C:\\show\\b.png"}, [&] {
        ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
        const auto& box = program.around.dialogs.messages[0];
        EXPECT_EQ(box.text, u"C:\\show\\a.png\r\nこのファイル名は適合しません。");
        EXPECT_EQ(box.title, u"ファイルを開く");
        EXPECT_EQ(program.windows.form3.List1.ListCount(), 0);
    });
}

TEST(DroppedFiles, NothingDroppedIsNothing) {
    Dropping program;
    program.Drop({}, [&] { EXPECT_TRUE(program.around.dialogs.messages.empty()); });
}

TEST(DroppedFiles, NotWhileAShowIsUnderWayOrTheProgramBusy) {
    for (const bool busy : {true, false}) {
        Dropping program;
        program.around.loop.At(5, [&] {
            program.form1.mnuOPEN.Visible = busy;
            program.form1.MousePointer = busy ? model::kPointerBusy : model::kPointerNormal;
        });
        program.Drop({u"C:\\show\\two.kvs"}, [&] {
            EXPECT_EQ(program.state.DocumentName, u"") << busy;
            program.form1.MousePointer = model::kPointerNormal;
        });
    }
}

TEST(DroppedFiles, NotWhileTheSlideListIsBeingMade) {
    Dropping program;
    program.around.loop.At(5, [&] { program.state.SlideListWindowOpen = 1; });
    program.Drop({u"C:\\show\\two.kvs"}, [&] {
        ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
        EXPECT_EQ(program.around.dialogs.messages[0].text,
                  u"ファイル選択を終了させてから行って下さい。");
        EXPECT_EQ(program.state.DocumentName, u"");
    });
}

TEST(DroppedFiles, AListOfShowsPlays) {
    Dropping program;
    program.around.PutText(u"C:\\show\\all.kvl",
                           u"1vue3167\r\nall.kvl\r\n 2 \r\none.kvs\r\ntwo.kvs\r\n");
    program.Drop({u"C:\\show\\all.kvl"}, [&] {
        EXPECT_EQ(program.state.LinkRunning, 1);
        EXPECT_EQ(program.state.LinkEnd, 3);
        EXPECT_EQ(program.state.LinkList(2), u"C:\\show\\two.kvs");
        EXPECT_EQ(program.state.DocumentName, u"one.kvs");
        EXPECT_TRUE(program.windows.slidescreen.Visible);
    });
}

TEST(DroppedFiles, ARefusedOrEmptyListOfShowsPlaysNothing) {
    for (const Text content : {u"9vueX\r\n", u"1vue3167\r\nall.kvl\r\n 0 \r\n"}) {
        Dropping program;
        program.around.PutText(u"C:\\show\\all.kvl", content);
        program.Drop({u"C:\\show\\all.kvl"}, [&] {
            EXPECT_EQ(program.state.LinkRunning, 0);
            EXPECT_FALSE(program.windows.slidescreen.Visible);
        });
    }
}

TEST(SlideCount, OneTextForAWholeDocument) {
    Dropping program;
    struct Counter : model::Listener {
        int changes = 0;
        void PropertyChanged(model::Control&, model::PropertyBase&) override { ++changes; }
    } counter;
    program.form1.SlideCount.Listen(&counter);
    program.Drop({u"C:\\show\\two.kvs"}, [&] { EXPECT_EQ(counter.changes, 1); });
    program.form1.SlideCount.Unlisten(&counter);
}

TEST(SlideCount, CountsWhatIsPlayedInAShow) {
    Dropping program;
    program.Drop({u"C:\\show\\two.kvs"}, [&] {
        program.state.SlideListEnd = 6;  // with entries that the window's list leaves out
        program.form1.ShownSlide = 3;
        EXPECT_EQ(program.form1.SlideCount.Caption(), u"3 / 5");
        program.form1.ShownSlide = 0;
        EXPECT_EQ(program.form1.SlideCount.Caption(), u"2 枚");
        program.windows.form3.List1.AddItem(u"C:\\c.png");
        EXPECT_EQ(program.form1.SlideCount.Caption(), u"3 枚");
        program.windows.form3.List1.Clear();
        EXPECT_EQ(program.form1.SlideCount.Caption(), u"");
    });
}

}  // namespace
}  // namespace app_tests
