// Monitors come, go and cannot be described: where the full screen stands.
#include <gtest/gtest.h>

#include "full_screen_support.h"
#include "model/monitors.h"
#include "model/windows/control_box.h"
#include "model/windows/linked_folder.h"
#include "model/windows/picture_holder.h"

namespace playback_tests {
namespace {

TEST(Monitors, StandInATableOfTwips) {
    Show show;
    UseSecondMonitor(show);
    model::FillMonitorTable(show.app);
    EXPECT_EQ(show.state.MonitorCount, 2);
    EXPECT_EQ(show.state.MonitorLeft[1], 28800);
    EXPECT_EQ(show.state.MonitorTop[1], 0);
    EXPECT_EQ(show.state.MonitorRight[1], 48000);
    EXPECT_EQ(show.state.MonitorBottom[1], 15360);
    EXPECT_EQ(show.state.MonitorsRight, 48000);
    EXPECT_EQ(show.state.MonitorsBottom, 16200);  // of the first, which is higher
    show.monitors.monitors.pop_back();
    model::FillMonitorTable(show.app);
    EXPECT_EQ(show.state.MonitorCount, 1);
    EXPECT_EQ(show.state.MonitorRight[1], 0) << "a monitor that is gone leaves zeros";
}

TEST(Monitors, MoreThanElevenAreLeftOut) {
    Show show;
    show.monitors.monitors.assign(13, {0, 0, 100, 100});
    show.monitors.ofMainWindow = 12;
    StartInScreen(show);
    EXPECT_EQ(show.state.MonitorCount, 11);
    EXPECT_EQ(show.state.MonitorIndex, 0);
}

TEST(Monitors, AWindowStandsInTheMiddleOfTheMainWindowsOne) {
    Show show;
    UseSecondMonitor(show);  // from 28800, 19200 × 15360
    model::Form12& form12 = show.windows.form12;
    form12.Width = 9200;
    form12.Height = 5360;
    model::CentreOnMonitor(show.app, form12);
    EXPECT_EQ(form12.Left, 28800 + 5000);
    EXPECT_EQ(form12.Top, 5000);
    form12.Width = 30000;
    model::CentreOnMonitor(show.app, form12);
    EXPECT_EQ(form12.Left, 28800);
    EXPECT_EQ(form12.Width, 19200) << "it takes the monitor's size";
    form12.Width = 30000;
    model::Centre(form12, {0, 0, 28800, 16200});
    EXPECT_EQ(form12.Left, -600) << "in an area it keeps its own";
}

TEST(Monitors, OneUnpluggedBeforeTheShowIsNotUsed) {
    Show show;
    show.monitors.ofMainWindow = 1;  // the window system has not caught up yet
    StartInScreen(show);
    EXPECT_EQ(show.state.MonitorIndex, 0);
    EXPECT_EQ(show.screen.Left, 0);
    EXPECT_EQ(show.screen.Width, 28800);
}

TEST(Monitors, OneThatTheSystemCannotDescribeIsNotUsed) {
    Show show;
    show.monitors.monitors.push_back({});
    show.monitors.ofMainWindow = 1;
    StartInScreen(show);
    EXPECT_EQ(show.screen.Width, 28800);
    EXPECT_EQ(show.screen.P2.canvas.Height(), 1080);
}

TEST(Monitors, OneUnpluggedDuringAShowHandsItOver) {
    Show show;
    UseSecondMonitor(show);
    show.state.ControlBoxFlag = 0;
    show.state.TextMacroFlag = 0;
    show.files.Put(Show::PathOf(1), "PIC 3000 1500 FF0000");
    StartInScreen(show);
    EXPECT_EQ(show.windows.form4.Picture1.ScaleWidth(), 1280);
    show.monitors.monitors.pop_back();
    show.monitors.ofMainWindow = 0;
    show.monitors.onChanged();
    EXPECT_EQ(show.screen.Left, 0);
    EXPECT_EQ(show.screen.Height, 16200);
    EXPECT_EQ(show.screen.P2.canvas.Width(), 1920);
    EXPECT_EQ(show.windows.form4.Picture1.ScaleWidth(), 1920) << "from the unscaled picture";
    EXPECT_EQ(show.state.PictureX, 0);
    EXPECT_EQ(show.state.PictureY, 60);
    EXPECT_EQ(show.screen.P2.canvas.Point(1919, 60), 0x0000FFu);
    EXPECT_EQ(show.screen.P2.canvas.Point(1919, 59), 0u);
    EXPECT_EQ(show.screen.P3.canvas.Point(1919, 60), 0x0000FFu) << "what pieces uncover";
    EXPECT_EQ(show.state.PreviousPictureOnScreen, 1);
    EXPECT_EQ(show.state.PlacedWidthPx, 1920);
    EXPECT_EQ(show.windows.slidescreen2.Left, 28800 - show.windows.slidescreen2.Width);
    show.screen.Unload();
    show.monitors.onChanged();
    EXPECT_FALSE(show.screen.Loaded) << "nothing comes up by itself";
}

TEST(Monitors, OneUnpluggedLeavesAPileAndAnEffectInProgressAlone) {
    for (const bool pile : {true, false}) {
        Show show;
        UseSecondMonitor(show);
        show.state.OverlayMode = pile ? 1 : 0;
        show.state.ShowEffect = pile ? 11 : 0;
        const auto unplug = [&] {
            show.monitors.monitors.pop_back();
            show.monitors.ofMainWindow = 0;
            show.monitors.onChanged();
        };
        if (!pile) {
            show.loop.At(10, unplug);
        }
        StartInScreen(show);
        if (pile) {
            unplug();
        }
        EXPECT_EQ(show.screen.P2.canvas.Width(), 1920);
        EXPECT_EQ(show.state.PictureX, 635);  // (1280 - 10) / 2, as it was
        EXPECT_EQ(show.screen.P2.canvas.Point(640, 512), 0x808080u);
        show.loop.Run(3500);
        EXPECT_EQ(show.state.PictureX, 955) << "the next picture has its place by the monitor";
    }
}

}  // namespace
}  // namespace playback_tests
