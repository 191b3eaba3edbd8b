// Form24: how a video begins, ends, fails and is left.
#include "picture/video_window.h"

#include <gtest/gtest.h>

#include "app/timers.h"
#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/windows/slide_list.h"
#include "model/windows/video_window.h"
#include "support/fake_platform.h"

namespace {

using Log = std::vector<std::string>;
using platform::VideoState;

constexpr int kEnter = 13;
constexpr int kEscape = 27;

/// A video of 2 s; the window polls every 100 ms, its guard lasts 500 ms.
struct Cinema : fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Form24& form24 = app.windows.form24;
    model::Player& player = form24.WindowsMediaPlayer1;
    app::TimerRunner timers{app};

    Cinema() {
        picture::AttachVideoWindow(app);
        files.Put(u"C:\\v\\m.mp4", "");
    }
    /// Plays as a slide does; answers the moment at which the window was gone.
    double Play() {
        picture::PlayVideo(app, u"C:\\v\\film.mp4");
        EXPECT_FALSE(form24.Loaded);
        EXPECT_EQ(video.path, u"") << "the player is closed";
        return loop.Milliseconds();
    }
};

TEST(VideoWindow, PlaysToItsEndAndGoes) {
    Cinema cinema;
    cinema.state.VideoStoppedByUser = 1;
    bool modal = false;
    cinema.loop.At(1000, [&] { modal = cinema.form24.Modal && cinema.form24.Visible; });
    EXPECT_EQ(cinema.Play(), 2000);
    EXPECT_TRUE(modal);
    EXPECT_EQ(cinema.video.log, (Log{"open C:\\v\\film.mp4", "play", "loop 0", "close"}));
    EXPECT_EQ(cinema.state.VideoStoppedByUser, 0);
    EXPECT_TRUE(cinema.dialogs.messages.empty());
    EXPECT_EQ(cinema.player.uiMode(), u"none");
    EXPECT_EQ(cinema.player.URL(), u"C:\\v\\film.mp4");
    EXPECT_EQ(cinema.state.VideoStarted, 0) << "ready for the next one";
}

TEST(VideoWindow, WaitsForASlowStart) {
    Cinema cinema;
    cinema.video.film.loadingMs = 3000;
    EXPECT_EQ(cinema.Play(), 5000);
    EXPECT_TRUE(cinema.dialogs.messages.empty());
}

TEST(VideoWindow, EveryEndOfThePlayerClosesIt) {
    for (const VideoState end : {VideoState::Ready, VideoState::Stopped, VideoState::Paused}) {
        Cinema cinema;
        cinema.loop.At(650, [&] { cinema.video.state = end; });
        EXPECT_EQ(cinema.Play(), 700);
        EXPECT_TRUE(cinema.dialogs.messages.empty());
    }
}

TEST(VideoWindow, AFileThatDoesNotPlayIsReportedAndEndsTheShow) {
    Cinema cinema;
    cinema.video.film.milliseconds = 0;
    EXPECT_EQ(cinema.Play(), 100);
    ASSERT_EQ(cinema.dialogs.messages.size(), 1u);
    EXPECT_EQ(cinema.dialogs.messages[0].text,
              u"以下の動画が再生できません。C:\\v\\film.mp4\r\n"
              u"動画ファイルを確認してください。");
    EXPECT_EQ(cinema.dialogs.messages[0].title, u"動画再生エラー");
    EXPECT_EQ(cinema.dialogs.messages[0].flags, 48);
    EXPECT_EQ(cinema.state.VideoStoppedByUser, 1);
}

TEST(VideoWindow, TheFailureIsReportedOnceHoweverLongItsBoxStands) {
    Cinema cinema;
    cinema.video.film.milliseconds = 0;
    cinema.dialogs.whileOpen = [&](const auto&) { cinema.loop.Run(5000); };
    EXPECT_EQ(cinema.Play(), 5100);
    EXPECT_EQ(cinema.dialogs.messages.size(), 1u);
}

TEST(VideoWindow, ClicksCloseItAfterTheGuard) {
    for (const bool onPlayer : {false, true}) {
        Cinema cinema;
        const auto click = [&] { onPlayer ? cinema.player.Click() : cinema.form24.Click(); };
        cinema.loop.At(499, click);
        cinema.loop.At(501, click);
        EXPECT_EQ(cinema.Play(), 600);
        EXPECT_EQ(cinema.state.VideoStoppedByUser, 0) << "the show goes on";
    }
}

TEST(VideoWindow, Keys) {
    struct Setting {
        bool onPlayer;
        int key;
        double end;
        int16_t endsShow;
    };
    for (const Setting& setting : {Setting{false, kEscape, 300, 0},
                                   {false, kEnter, 2000, 0},
                                   {true, kEscape, 300, 1},
                                   {true, kEnter, 300, 1},
                                   {true, 32, 2000, 0}}) {
        Cinema cinema;
        cinema.loop.At(250, [&] {
            setting.onPlayer ? cinema.player.KeyDown(setting.key)
                             : cinema.form24.KeyDown(setting.key);
        });
        EXPECT_EQ(cinema.Play(), setting.end) << setting.onPlayer << setting.key;
        EXPECT_EQ(cinema.state.VideoStoppedByUser, setting.endsShow);
    }
}

TEST(VideoWindow, AWindowThatIsClosedByItsFrameTakesThePlayerAlong) {
    Cinema cinema;
    cinema.loop.At(1234, [&] { cinema.form24.Unload(); });
    EXPECT_EQ(cinema.Play(), 1234);
    EXPECT_EQ(cinema.video.log.back(), "close");
    EXPECT_FALSE(cinema.form24.Timer1.Enabled);
    EXPECT_FALSE(cinema.form24.Timer2.Enabled);
}

TEST(VideoWindow, StandsInTheMiddleOfTheMonitorInUse) {
    Cinema cinema;
    cinema.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 100, 1280, 1024}};
    cinema.monitors.ofMainWindow = 1;
    cinema.video.film.natural = {800, 600};
    cinema.Play();
    EXPECT_EQ(cinema.form24.Left(), (1920 + (1280 - 800) / 2) * 15);
    EXPECT_EQ(cinema.form24.Top(), (100 + (1024 - 600) / 2) * 15);
    EXPECT_EQ(cinema.form24.Width(), 800 * 15);
    EXPECT_EQ(cinema.form24.Height(), 600 * 15);
    EXPECT_GT(cinema.video.awaited, 0);
}

TEST(VideoWindow, InFullScreenASlideCoversTheMonitorOfTheShow) {
    Cinema cinema;
    cinema.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 100, 1280, 1024}};
    cinema.state.FullScreenActive = 1;
    cinema.state.MonitorIndex = 1;
    cinema.video.film.natural = {800, 600};
    cinema.Play();
    EXPECT_EQ(cinema.form24.Left(), 1920 * 15);
    EXPECT_EQ(cinema.form24.Top(), 100 * 15);
    EXPECT_EQ(cinema.form24.Width(), 1280 * 15);
    EXPECT_EQ(cinema.form24.Height(), 1024 * 15);
    EXPECT_EQ(cinema.player.Width(), 1280 * 15);
    EXPECT_EQ(cinema.player.Height(), 960 * 15);
    EXPECT_EQ(cinema.player.Top(), 32 * 15);
    EXPECT_EQ(cinema.video.awaited, 0) << "its window needs no size";
}

TEST(VideoWindow, AFilmThatKeepsItsSizeStandsOnBlack) {
    Cinema cinema;
    cinema.monitors.monitors = {{0, 0, 1920, 1080}};
    cinema.state.FullScreenActive = 1;
    cinema.video.film.natural = {800, 600};
    for (const bool keeps : {true, false}) {
        cinema.app.platform.settings.filmsKeepTheirSize = keeps;
        cinema.Play();
        EXPECT_EQ(cinema.form24.Width(), 1920 * 15);
        EXPECT_EQ(cinema.form24.Height(), 1080 * 15);
        EXPECT_EQ(cinema.player.Width() / 15, keeps ? 800 : 1440);
    }
}

TEST(VideoWindow, ASizeThatIsKnownLateIsTakenAtTheNextPoll) {
    Cinema cinema;
    cinema.monitors.monitors = {{0, 0, 1920, 1080}};
    cinema.video.film.natural = {800, 600};
    cinema.video.film.sizeKnownAfter = 350;
    std::vector<int> widths;
    for (const double moment : {10, 399, 401}) {
        cinema.loop.At(moment, [&] { widths.push_back(cinema.form24.Width() / 15); });
    }
    cinema.Play();
    EXPECT_EQ(widths, (std::vector<int>{960, 960, 800}));
    EXPECT_EQ(cinema.form24.Left(), (1920 - 800) / 2 * 15);
}

TEST(VideoWindow, FilmsBesideASlideLeaveHalfTheMonitor) {
    for (const bool macro : {false, true}) {
        Cinema cinema;
        cinema.monitors.monitors = {{0, 0, 1920, 1080}};
        cinema.state.FullScreenActive = 1;
        cinema.video.film.natural = {1920, 1080};
        if (macro) {
            picture::ShowMacroMovie(cinema.app, u"C:\\v\\m.mp4", 2);
        } else {
            picture::ShowVideo(cinema.app, u"C:\\v\\m.mp4");
        }
        EXPECT_EQ(cinema.form24.Width(), 960 * 15);
        EXPECT_EQ(cinema.form24.Height(), 540 * 15);
        EXPECT_EQ(cinema.form24.Left(), 480 * 15);
        cinema.form24.Unload();
        // The slide after it covers the monitor again.
        cinema.Play();
        EXPECT_EQ(cinema.form24.Width(), 1920 * 15);
    }
}

TEST(VideoWindow, GuardsAgainstTheSecondClickFor500Ms) {
    Cinema cinema;
    model::Timer& guard = cinema.app.windows.form3.Timer1;
    guard.Enabled = true;
    bool meanwhile = true;
    cinema.loop.At(1000, [&] { meanwhile = guard.Enabled; });
    cinema.Play();
    EXPECT_FALSE(meanwhile);
    EXPECT_TRUE(guard.Enabled);
    cinema.loop.Run(499);
    EXPECT_TRUE(guard.Enabled);
    cinema.loop.Run(1);
    EXPECT_FALSE(guard.Enabled);
}

TEST(VideoWindow, APendingRequestKeepsItFromPlaying) {
    Cinema cinema;
    cinema.state.VideoCloseRequest = 1;
    EXPECT_EQ(cinema.Play(), 0);
    EXPECT_EQ(cinema.video.log, (Log{"open C:\\v\\film.mp4", "loop 0", "close"}));
    EXPECT_EQ(cinema.state.VideoCloseRequest, 0);
}

TEST(VideoWindow, AClickedVideoPlaysBesideTheShow) {
    Cinema cinema;
    picture::ShowVideo(cinema.app, u"C:\\v\\a.avi");
    EXPECT_EQ(cinema.loop.Milliseconds(), 0);
    EXPECT_TRUE(cinema.form24.Visible);
    EXPECT_FALSE(cinema.form24.Modal);
    cinema.loop.Run(1000);
    picture::ShowVideo(cinema.app, u"C:\\v\\b.avi");  // in place of the first
    cinema.loop.Run(1999);
    EXPECT_TRUE(cinema.form24.Visible);
    cinema.loop.Run(1);
    EXPECT_FALSE(cinema.form24.Visible);
    EXPECT_EQ(cinema.video.log, (Log{"open C:\\v\\a.avi", "play", "loop 0", "close",
                                     "open C:\\v\\b.avi", "play", "loop 0", "close"}));
}

TEST(MacroMovie, OpenGoesOnAndStaysUntilItIsClosed) {
    for (const int mode : {0, 2}) {
        Cinema cinema;
        cinema.app.windows.SetPointer(model::kPointerBusy);
        picture::ShowMacroMovie(cinema.app, u"C:\\v\\m.mp4", mode);
        EXPECT_EQ(cinema.loop.Milliseconds(), 0);
        EXPECT_EQ(cinema.app.windows.Pointer(), model::kPointerNormal);
        EXPECT_EQ(cinema.state.MacroMovieActive, 1);
        EXPECT_EQ(cinema.video.log,
                  (Log{"open C:\\v\\m.mp4", mode == 2 ? "loop 1" : "loop 0", "play"}));
        cinema.loop.Run(60000);
        EXPECT_TRUE(cinema.form24.Visible);
        picture::ShowMacroMovie(cinema.app, u"", 0);
        EXPECT_FALSE(cinema.form24.Loaded);
        EXPECT_FALSE(cinema.video.looping);
        EXPECT_EQ(cinema.video.path, u"");
        EXPECT_EQ(cinema.state.MacroMovieActive, 0);
    }
}

TEST(MacroMovie, ModalWaitsForTheEnd) {
    Cinema cinema;
    picture::ShowMacroMovie(cinema.app, u"C:\\v\\m.mp4", 1);
    EXPECT_EQ(cinema.loop.Milliseconds(), 2000);
    EXPECT_FALSE(cinema.form24.Loaded);
}

TEST(MacroMovie, AClickClosesIt) {
    Cinema cinema;
    picture::ShowMacroMovie(cinema.app, u"C:\\v\\m.mp4", 2);
    cinema.loop.Run(700);
    cinema.player.Click();
    cinema.loop.Run(100);
    EXPECT_FALSE(cinema.form24.Loaded);
}

TEST(MacroMovie, AnotherModeOnlyOpens) {
    for (const int mode : {-1, 3}) {
        Cinema cinema;
        picture::ShowMacroMovie(cinema.app, u"C:\\v\\m.mp4", mode);
        EXPECT_FALSE(cinema.form24.Visible);
        EXPECT_EQ(cinema.video.log, (Log{"open C:\\v\\m.mp4", "loop 0"}));
    }
}

TEST(MacroMovie, AMissingFileIsPassedOverInSilence) {
    for (const int mode : {0, 1, 2}) {
        Cinema cinema;
        picture::ShowMacroMovie(cinema.app, u"C:\\v\\gone.mp4", mode);
        cinema.loop.Run(1000);
        EXPECT_EQ(cinema.loop.Milliseconds(), 1000);
        EXPECT_FALSE(cinema.form24.Visible);
        EXPECT_TRUE(cinema.dialogs.messages.empty());
        EXPECT_EQ(cinema.state.VideoStoppedByUser, 0);
    }
}

TEST(MacroMovie, ClosingWithNothingOpenIsHarmless) {
    Cinema cinema;
    picture::ShowMacroMovie(cinema.app, u"", 0);
    EXPECT_FALSE(cinema.form24.Loaded);
    EXPECT_FALSE(cinema.app.windows.form3.Timer1.Enabled);
}

}  // namespace
