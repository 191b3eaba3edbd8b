// How windows stand from one run to the next.
#include "authoring/shared/window_memory.h"

#include <gtest/gtest.h>

#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

constexpr const char16_t* kFile = u"C:\\program\\layout.dat";

/// One run of the program with the files of the one before.
struct ProgramRun {
    fakes::FakePlatform around;
    model::Form3& form3 = around.app.windows.form3;
    WindowMemory memory{around.app, {&form3}};

    explicit ProgramRun(const std::string& kept = {}) {
        around.app.state.AppFolder = u"C:\\program\\";
        form3.List1.face = [](int) { return model::RowFace{}; };
        if (!kept.empty()) {
            around.files.Put(kFile, kept);
        }
    }
    std::string Kept() {
        const auto* file = around.files.Get(kFile);
        return file ? file->content : std::string();
    }
};

std::string Arranged() {
    ProgramRun run;
    run.form3.Show();
    run.form3.ResizeTo(15000, 12000);
    run.form3.Panes1.Move(u"300,700");
    run.form3.List1.AsGrid = true;
    run.form3.Hide();
    return run.Kept();
}

TEST(WindowMemory, BringsBackWhatAPersonArranged) {
    ProgramRun next(Arranged());
    next.form3.OnLoad = [&] { EXPECT_EQ(next.form3.Width, 15000) << "before the window's own"; };
    next.form3.Show();
    EXPECT_EQ(next.form3.Width, 15000);
    EXPECT_EQ(next.form3.Height, 12000);
    EXPECT_EQ(next.form3.WindowState, model::kWindowNormal);
    EXPECT_EQ(next.form3.Panes1.Sizes(), u"300,700");
    EXPECT_EQ(next.form3.Panes2.Sizes(), u"") << "never moved";
    EXPECT_TRUE(next.form3.List1.AsGrid);
    EXPECT_FALSE(next.form3.List2.AsGrid);
}

TEST(WindowMemory, AMaximisedWindowKeepsTheSizeThatItGoesBackTo) {
    ProgramRun run(Arranged());
    run.form3.Show();
    run.form3.WindowState = model::kWindowMaximised;
    run.form3.ResizeTo(28800, 16200);
    run.form3.Hide();
    ProgramRun next(run.Kept());
    next.form3.Show();
    EXPECT_EQ(next.form3.WindowState, model::kWindowMaximised);
    EXPECT_EQ(next.form3.Width, 15000);
    EXPECT_EQ(next.form3.Height, 12000);
    next.form3.WindowState = model::kWindowMinimised;
    next.form3.Hide();
    ProgramRun last(next.Kept());
    last.form3.Show();
    EXPECT_EQ(last.form3.WindowState, model::kWindowMaximised)
        << "nobody wants it to come up small";
}

TEST(WindowMemory, WritesOnlyWhatIsNew) {
    ProgramRun run(Arranged());
    run.form3.Show();
    run.form3.Hide();
    EXPECT_TRUE(run.around.files.written.empty());
    run.form3.Show();
    run.form3.Panes2.Move(u"1,2,3");
    run.form3.Unload();
    EXPECT_EQ(run.around.files.written.size(), 1u);
    EXPECT_NE(run.Kept().find("1,2,3"), std::string::npos);
}

TEST(WindowMemory, KeepsWhatIsOfOtherWindows) {
    ProgramRun run("layout1\r\n 1 \r\nForm99.Panes1.Sizes\r\n5,5\r\n");
    run.form3.Show();
    run.form3.ResizeTo(15000, 12000);
    run.form3.Hide();
    EXPECT_NE(run.Kept().find("Form99.Panes1.Sizes\r\n5,5"), std::string::npos);
}

TEST(WindowMemory, DamageIsNoMemory) {
    const std::string whole = Arranged();
    for (const std::string& damaged :
         {std::string("browser1\r\n"), whole.substr(0, whole.size() - 20), std::string(1, '\0'),
          std::string("layout1\r\nmany\r\n"), std::string(100000, 'x')}) {
        ProgramRun run(damaged);
        run.form3.Show();
        EXPECT_EQ(run.form3.Width, 0);
        EXPECT_EQ(run.form3.Panes1.Sizes(), u"");
        EXPECT_FALSE(run.form3.List1.AsGrid);
    }
    struct Row {
        const char *width, *height, *state, *sizes;
    };
    for (const Row& row : {Row{"0", "12000", "1", "1;2"}, Row{"15000", "-5", "3", "abc"},
                           Row{"99999999999999999999", "12000", "", ""},
                           Row{"15000", "99999", "-2", "１,２"}, Row{"15 000", "1e4", "x", " "}}) {
        ProgramRun run(std::string("layout1\r\n 4 \r\nForm3.Width\r\n") + row.width +
                       "\r\nForm3.Height\r\n" + row.height + "\r\nForm3.WindowState\r\n" +
                       row.state + "\r\nForm3.Panes1.Sizes\r\n" + row.sizes + "\r\n");
        run.form3.Show();
        EXPECT_EQ(run.form3.Width, 0) << row.width;
        EXPECT_EQ(run.form3.Height, 0) << row.height;
        EXPECT_EQ(run.form3.WindowState, model::kWindowNormal) << row.state;
        EXPECT_EQ(run.form3.Panes1.Sizes(), u"") << row.sizes;
    }
}

TEST(WindowMemory, AWindowIsNoLargerThanTheMonitor) {
    ProgramRun run("layout1\r\n 2 \r\nForm3.Width\r\n60000\r\nForm3.Height\r\n40000\r\n");
    run.form3.Show();
    EXPECT_EQ(run.form3.Width, 0) << "of a larger monitor: the window's own size";
}

}  // namespace
}  // namespace authoring
