// The title panel: what is drawn, how long it stays, and what comes after it.
#include "app/title_screen.h"

#include <gtest/gtest.h>

#include <numeric>

#include "app_support.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"

namespace app_tests {
namespace {

using platform::Rgb;

/// Pixels of a place in the panel, whose origin is (1000, 1200) twips.
int X(int twips) {
    return (1000 + twips) / 15;
}
int Y(int twips) {
    return (1200 + twips) / 15;
}

/// A preview as the main window has it, and what the last pump before the wait saw.
struct Title : fakes::FakePlatform {
    model::PictureBox& preview = app.windows.form1.Picture1;
    std::vector<double> pumpTimes;
    platform::Bitmap seen;
    int pointer = -1;
    bool redraw = true;

    Title() {
        preview.SetSize(12000, 6750);
        loop.onPump = [this] {
            pumpTimes.push_back(loop.Milliseconds());
            seen = preview.canvas.Pixels();
            pointer = app.windows.Pointer();
            redraw = preview.AutoRedraw;
        };
    }
    platform::Color Seen(int x, int y) const { return platform::ToColor(seen.Row(y)[x]); }
};

TEST(TitleScreen, DrawsPanelFrameAndShadow) {
    Title title;
    app::ShowTitleScreen(title.app);
    EXPECT_EQ(title.Seen(X(2000), Y(2000)), Rgb(230, 230, 250));
    EXPECT_EQ(title.Seen(X(1016), Y(716)), Rgb(230, 230, 250));
    EXPECT_EQ(title.Seen(X(1000), Y(700)), Rgb(0, 0, 0));
    EXPECT_EQ(title.Seen(X(4000), Y(2000)), Rgb(0, 0, 0));
    EXPECT_EQ(title.Seen(X(1000 + 1014), Y(2716)), Rgb(150, 150, 150));  // a start of the fan below
    EXPECT_EQ(title.Seen(X(4016), Y(3010 - 300)), Rgb(150, 150, 150));   // of the fan at the right
    EXPECT_EQ(title.Seen(X(5516), Y(3200)), Rgb(0, 0, 0));               // where the edges meet
    EXPECT_EQ(title.pointer, 11);
    EXPECT_FALSE(title.redraw);
}

TEST(TitleScreen, WritesNameAndVersionWithTheirTrails) {
    Title title;
    app::ShowTitleScreen(title.app);
    const auto& drawn = title.textRenderer.drawn;
    ASSERT_EQ(drawn.size(), 100u + 1 + 50 + 1);
    EXPECT_EQ(drawn[0].text, u"パラピコ");
    EXPECT_EQ(drawn[0].x, X(500));
    EXPECT_EQ(drawn[0].y, Y(1100));
    EXPECT_EQ(drawn[0].color, Rgb(20, 20, 20));
    EXPECT_EQ(drawn[100].text, u"パラピコ");
    EXPECT_EQ(drawn[100].x, X(400));
    EXPECT_EQ(drawn[100].y, Y(1000));
    EXPECT_EQ(drawn[100].color, Rgb(150, 150, 255));
    EXPECT_EQ(drawn[101].text, u"for Windows Ver.9.10");
    EXPECT_EQ(drawn[101].x, X(1650));
    EXPECT_EQ(drawn[101].y, Y(2150));
    EXPECT_EQ(drawn[101].color, Rgb(80, 80, 80));
    EXPECT_EQ(drawn[151].x, X(1600));
    EXPECT_EQ(drawn[151].y, Y(2100));
    EXPECT_EQ(drawn[151].color, Rgb(0, 255, 255));
}

TEST(TitleScreen, StaysTwoSecondsWithoutPumping) {
    Title title;
    app::ShowTitleScreen(title.app);
    EXPECT_EQ(title.loop.Milliseconds(), 2000);
    ASSERT_FALSE(title.pumpTimes.empty());
    EXPECT_EQ(title.pumpTimes.back(), 0);
    // The window repaints while the shadow's fans grow: 98 and 144 lines.
    EXPECT_GE(title.pumpTimes.size(), 98u + 144);
}

TEST(TitleScreen, StaysTwoSecondsOverMidnight) {
    for (int second : {57, 58, 59}) {
        Title title;
        title.loop.start = platform::FromCalendar({2026, 1, 1, 23, 59, second});
        app::ShowTitleScreen(title.app);
        EXPECT_EQ(title.loop.Milliseconds(), 2000) << second;
    }
}

TEST(TitleScreen, LeavesAnEmptyPreviewBehind) {
    Title title;
    title.app.state.MosaicDelayUnit = 9;
    app::ShowTitleScreen(title.app);
    EXPECT_EQ(title.app.state.SplashDone, 1);
    EXPECT_EQ(title.app.state.LowColorFlag, 0);
    EXPECT_EQ(title.app.state.MosaicDelayUnit, 0);
    EXPECT_EQ(title.app.windows.Pointer(), 0);
    EXPECT_TRUE(title.preview.AutoRedraw);
    EXPECT_EQ(title.preview.canvas.Point(X(2000), Y(2000)), 0u);
    EXPECT_EQ(title.preview.canvas.Point(X(1000 + 1014), Y(2716)), 0u);
}

TEST(TitleScreen, ComesOnce) {
    Title title;
    app::ShowTitleScreen(title.app);
    const size_t drawn = title.textRenderer.drawn.size();
    title.app.state.MosaicDelayUnit = 9;
    app::ShowTitleScreen(title.app);
    EXPECT_EQ(title.textRenderer.drawn.size(), drawn);
    EXPECT_EQ(title.loop.Milliseconds(), 2000);
    EXPECT_EQ(title.app.state.MosaicDelayUnit, 9);
}

TEST(TitleScreen, ResizeWhileItIsDrawnDoesNotDrawItAgain) {
    Title title;
    auto pump = title.loop.onPump;
    title.loop.onPump = [&] { app::ShowTitleScreen(title.app); };
    app::ShowTitleScreen(title.app);
    EXPECT_EQ(title.textRenderer.drawn.size(), 152u);
}

TEST(TitleScreen, PoorDisplayEndsTheProgram) {
    for (const platform::Color shown : {Rgb(255, 255, 255), Rgb(128, 128, 128)}) {
        Title title;
        platform::Canvas& canvas = title.preview.canvas;
        canvas.TakeChanged();
        // Such a display turns the panel's colour into its nearest.
        canvas.onChanged = [&] { canvas.Fill(shown); };
        EXPECT_THROW(app::ShowTitleScreen(title.app), platform::ProgramEnd);
        EXPECT_EQ(title.app.state.LowColorFlag, 1);
        ASSERT_EQ(title.dialogs.messages.size(), 1u);
        EXPECT_EQ(title.dialogs.messages[0].text,
                  u"２５６色以下の環境では使用できません。\r\n"
                  u"カラーパレットを High Color以上に設定してください。");
        EXPECT_EQ(title.dialogs.messages[0].flags, 16);
    }
}

TEST(TitleScreen, SmallPreviewIsNoPoorDisplay) {
    Title title;
    title.preview.SetSize(150, 150);
    app::ShowTitleScreen(title.app);
    EXPECT_TRUE(title.dialogs.messages.empty());
    EXPECT_EQ(title.app.state.SplashDone, 1);
}

TEST(TitleScreen, ComesUpWithTheMainWindow) {
    Program program;
    EXPECT_EQ(program.Run(u"", true, 5000), Program::kTimeOut);
    EXPECT_EQ(program.around.textRenderer.drawn.size(), 152u);
    const auto& sleeps = program.around.loop.sleeps;
    EXPECT_EQ(std::accumulate(sleeps.begin(), sleeps.end(), 0), 2000);
    EXPECT_EQ(program.form1.Picture1.ScaleWidth(), 800);
}

TEST(TitleScreen, CanBeLeftOut) {
    Program program;
    program.Run(u"", false, 5000);
    EXPECT_TRUE(program.around.textRenderer.drawn.empty());
    EXPECT_TRUE(program.around.loop.sleeps.empty());
}

}  // namespace
}  // namespace app_tests
