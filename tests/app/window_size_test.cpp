// The main window's size: kept over runs, fitted to the monitor at the first one.
#include "app/window_size.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app_support.h"
#include "model/windows/main_window.h"

namespace app_tests {
namespace {

constexpr int kTwips = 15;
const Text kFile = u"C:\\app\\window.dat";

void PutKept(Program& program, TextView content) {
    program.around.PutText(kFile, content);
}

/// Starts, lets a person do something, and closes the window.
void RunAndClose(Program& program, const std::function<void()>& person, bool roomy = false) {
    program.around.loop.At(10, [&] {
        if (person) {
            person();
        }
        program.form1.Unload();
    });
    try {
        app::RunProgram(program.app, {u"", false, roomy});
    } catch (const platform::ProgramEnd&) {
    }
}

std::string Kept(Program& program) {
    const auto* file = program.around.files.Get(kFile);
    return file ? file->content : "none";
}

platform::Size SizeAtStart(const std::function<void(Program&)>& prepare, bool roomy = false) {
    Program program;
    prepare(program);
    platform::Size size;
    RunAndClose(
        program,
        [&] {
            size = {program.form1.Width / kTwips, program.form1.Height / kTwips};
        },
        roomy);
    return size;
}

TEST(WindowSize, IsKeptWhenAPersonChangedIt) {
    Program program;
    RunAndClose(program, [&] { program.form1.ResizeTo(1000 * kTwips, 700 * kTwips); });
    EXPECT_EQ(Kept(program), "window1\r\n 1000 \r\n 700 \r\n 0 \r\n");
}

TEST(WindowSize, IsNotWrittenWithoutNeed) {
    Program fresh;
    RunAndClose(fresh, nullptr);
    EXPECT_EQ(Kept(fresh), "none");
    Program again;
    PutKept(again, u"window1\r\n 1000 \r\n 700 \r\n 0 \r\n");
    RunAndClose(again, nullptr);
    EXPECT_THAT(again.around.files.written,
                testing::Not(testing::Contains(u"C:\\app\\window.dat")));
}

TEST(WindowSize, ComesBackWithThePreviewThatBelongsToIt) {
    Program program;
    PutKept(program, u"window1\r\n 1000 \r\n 700 \r\n 0 \r\n");
    RunAndClose(program, [&] {
        EXPECT_EQ(program.form1.Width, 15000);
        EXPECT_EQ(program.form1.Height, 10500);
        EXPECT_EQ(program.state.MainBottomMargin, 600) << "of the window as declared";
        EXPECT_EQ(program.form1.Picture1.Width, 15000 - 600);
        EXPECT_EQ(program.form1.Picture1.Height, 10500 - 1450 - 600);
        EXPECT_EQ(program.form1.Left, (1920 * kTwips - 15000) / 2);
        EXPECT_EQ(program.form1.Top, (1080 * kTwips - 10500) / 2);
    });
}

TEST(WindowSize, FitsTheMonitorOfToday) {
    const auto kept = [](TextView content, platform::Rect monitor = {0, 0, 1366, 768}) {
        return SizeAtStart([&](Program& program) {
            program.around.monitors.monitors = {monitor};
            PutKept(program, content);
        });
    };
    const auto same = [](platform::Size a, int width, int height) {
        return a.width == width && a.height == height;
    };
    EXPECT_TRUE(same(kept(u"window1\r\n 1800 \r\n 1000 \r\n 0 \r\n"), 1366, 768));
    EXPECT_TRUE(same(kept(u"window1\r\n 3 \r\n-7 \r\n 0 \r\n"), 400, 300));
    // What makes no sense counts as nothing kept.
    for (const Text nonsense :
         {u"", u"window2\r\n 900 \r\n 600 \r\n 0 \r\n", u"window1\r\n 900 \r\n",
          u"window1\r\nwide\r\n 600 \r\n 0 \r\n", u"window1\r\n 99999999 \r\n 600 \r\n 0 \r\n"}) {
        EXPECT_TRUE(same(kept(nonsense), 840, 586)) << text::ToUtf8(nonsense);
    }
}

TEST(WindowSize, AFirstWindowTakesALargeShareOfTheMonitor) {
    const auto first = [](int width, int height) {
        return SizeAtStart(
            [&](Program& program) {
                program.around.monitors.monitors = {{0, 0, width, height}};
            },
            true);
    };
    // 92 % of 768 is 706.56, 120.56 more than declared; 214.3 go to the width to keep 16 : 9.
    platform::Size size = first(1366, 768);
    EXPECT_EQ(size.width, 840 + 214);
    EXPECT_EQ(size.height, 586 + 120);
    // A preview of 1280 × 720 is large enough on any monitor.
    size = first(3840, 2160);
    EXPECT_EQ(size.width, 1280 + 40);
    EXPECT_EQ(size.height, 720 + 136);
    // No room to grow: as declared, and cut where even that is too large.
    size = first(800, 600);
    EXPECT_EQ(size.width, 800);
    EXPECT_EQ(size.height, 586);
}

TEST(WindowSize, MaximisedWindowKeepsItsOtherSize) {
    for (const bool sizeFirst : {true, false}) {
        Program program;
        RunAndClose(program, [&] {
            program.form1.ResizeTo(1000 * kTwips, 700 * kTwips);
            if (sizeFirst) {
                program.form1.ResizeTo(1920 * kTwips, 1080 * kTwips);
                program.form1.WindowState = 2;
            } else {
                program.form1.WindowState = 2;
                program.form1.ResizeTo(1920 * kTwips, 1040 * kTwips);
            }
        });
        EXPECT_EQ(Kept(program), "window1\r\n 1000 \r\n 700 \r\n 2 \r\n") << sizeFirst;
    }
    Program again;
    PutKept(again, u"window1\r\n 1000 \r\n 700 \r\n 2 \r\n");
    RunAndClose(again, [&] {
        EXPECT_EQ(again.form1.WindowState, 2);
        EXPECT_EQ(again.form1.Width, 15000);
    });
}

TEST(WindowSize, AMinimisedWindowComesBackNormal) {
    Program program;
    RunAndClose(program, [&] {
        program.form1.ResizeTo(1000 * kTwips, 700 * kTwips);
        program.form1.WindowState = 1;
    });
    EXPECT_EQ(Kept(program), "window1\r\n 1000 \r\n 700 \r\n 0 \r\n");
}

}  // namespace
}  // namespace app_tests
