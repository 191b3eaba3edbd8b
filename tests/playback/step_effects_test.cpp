// Effects within slide steps: what is erased, and a full screen that is left in the midst of one.
#include <gtest/gtest.h>

#include <functional>

#include "document/show_document.h"
#include "model/windows/main_window.h"
#include "show_support.h"

namespace playback_tests {
namespace {

struct EffectShow : Show {
    explicit EffectShow(int slides = 3) : Show(slides) {
        state.ShowEffect = 11;
        state.EraseEffect = 0;
        state.FullStartConfirm = 1;
        state.AlwaysFullFlag = 0;
    }
    /// "show 3", "erase 0" and so on, in order.
    std::vector<std::string> Effects() const {
        std::vector<std::string> effects;
        for (const auto& line : trace.Of("effect")) {
            effects.push_back(text::ToUtf8(line.String("which")) + " " +
                              std::to_string(static_cast<int>(line.Number("number"))));
        }
        return effects;
    }
};

using Effects = std::vector<std::string>;

TEST(StepEffects, TheFirstPictureErasesNothingTheSecondDoes) {
    EffectShow show;
    show.GoFullScreen();
    show.Step(1);
    EXPECT_EQ(show.Effects(), Effects{});
    show.Step(2);
    EXPECT_EQ(show.Effects(), Effects{"erase 0"});
    show.Step(1);
    EXPECT_EQ(show.Effects(), (Effects{"erase 0", "erase 0"}));
}

TEST(StepEffects, ANewFullScreenSkipsTheEraseAndBeginsTheSequenceAnew) {
    EffectShow show;
    show.state.ShowEffect = 10;
    show.GoFullScreen();
    show.Step(1);
    show.Step(2);
    show.screen.Unload();
    show.GoFullScreen();
    show.state.StopRequest = 0;
    show.Step(1);
    EXPECT_EQ(show.Effects(), (Effects{"show 0", "erase 0", "show 1", "show 0"}));
}

TEST(StepEffects, AnEmptyScreenIsNotErased) {
    struct Case {
        const char* what;
        std::function<void(EffectShow&)> empties;
    };
    const Case cases[] = {
        {"closed and opened",
         [](EffectShow& show) {
             show.screen.Unload();
             show.GoFullScreen();
             show.state.StopRequest = 0;
         }},
        {"a document was read",
         [](EffectShow& show) {
             document::WriteShowDocument(show.app, u"C:\\show\\a.kvs");
             document::ReadShowDocument(show.app, u"C:\\show\\a.kvs");
             show.state.EraseEffect = 0;
         }},
        {"a macro asked for a clean screen",
         [](EffectShow& show) { show.state.ResetScreenOnce = 1; }},
        {"the picture was erased before a missing film",
         [](EffectShow& show) {
             show.AddSlide(u"C:\\pic\\gone.mp4");
             show.Step(4);
             show.state.StepBusy = 0;
             EXPECT_EQ(show.Effects(), Effects{"erase 0"});
             EXPECT_EQ(show.state.PreviousPictureOnScreen, 0);
             show.Step(4);
             show.state.StepBusy = 0;
             show.trace.lines.clear();
         }},
    };
    for (const Case& one : cases) {
        EffectShow show;
        show.GoFullScreen();
        show.Step(2);
        EXPECT_EQ(show.state.PreviousPictureOnScreen, 1) << one.what;
        one.empties(show);
        show.Step(3);
        EXPECT_EQ(show.Effects(), Effects{}) << one.what;
        EXPECT_EQ(show.state.PreviousPictureOnScreen, 1) << one.what;
        show.Step(2);
        EXPECT_EQ(show.Effects(), Effects{"erase 0"}) << one.what;
    }
}

TEST(StepEffects, AfterAFailingPictureTheOldOneIsErasedAsItStood) {
    EffectShow show;
    show.Break(2);
    show.state.ListErrorDelete = 1;
    show.GoFullScreen();
    show.Step(1);
    show.Step(2);
    EXPECT_EQ(show.Effects(), Effects{}) << "the old picture stays";
    EXPECT_EQ(show.screen.P2.canvas.Point(960, 540), 0x808080u);
    show.Step(2);
    EXPECT_EQ(show.Effects(), Effects{"erase 0"});
    EXPECT_NEAR(show.loop.Milliseconds(), 11 * 1.85, 1) << "of 10 rows and one below";
}

TEST(StepEffects, APictureThatComesWithAnotherModeIsNotMutedOntoCleanGround) {
    EffectShow show;
    show.state.OverlayMode = 2;
    show.GoFullScreen();
    show.Step(1);
    document::WriteShowDocument(show.app, u"C:\\show\\a.kvs");
    document::ReadShowDocument(show.app, u"C:\\show\\a.kvs");
    show.imaging.log.clear();
    show.Step(2);
    EXPECT_EQ(std::count(show.imaging.log.begin(), show.imaging.log.end(), "gray"), 0);
}

TEST(StepEffects, AfterAVideoNothingIsErased) {
    EffectShow show(1);
    show.files.Put(u"C:\\pic\\v.mp4", "video");
    show.AddSlide(u"C:\\pic\\v.mp4");
    show.PutPicture(u"C:\\pic\\9.png", 10, 10);
    show.AddSlide(u"C:\\pic\\9.png");
    show.GoFullScreen();
    show.Step(1);
    show.Step(2);
    EXPECT_EQ(show.Effects(), Effects{"erase 0"}) << "the picture goes before the video";
    show.state.StepBusy = 0;
    show.Step(3);
    EXPECT_EQ(show.Effects(), Effects{"erase 0"});
    EXPECT_EQ(show.state.LastWasVideo, 0);
    show.Step(1);
    EXPECT_EQ(show.Effects(), (Effects{"erase 0", "erase 0"}));
}

TEST(StepEffects, WithOverlapNothingIsErased) {
    EffectShow show;
    show.state.OverlayMode = 1;
    show.GoFullScreen();
    show.Step(1);
    show.Step(2);
    EXPECT_EQ(show.Effects(), Effects{});
}

TEST(StepEffects, OutsideTheFullScreenThereAreNone) {
    EffectShow show;
    show.state.ShowEffect = 0;
    show.Step(1);
    show.Step(2);
    EXPECT_EQ(show.Effects(), Effects{});
    EXPECT_EQ(show.loop.Milliseconds(), 0);
}

TEST(StepEffects, AClickDuringAnEffectShowsThePictureAndClosesNothing) {
    EffectShow show;
    show.state.ShowEffect = 0;
    show.state.ShowEffectSpeed = -999;  // 11 bands of 50.3 ms
    show.GoFullScreen();
    show.loop.At(100, [&] { show.screen.P2.Click(); });
    show.Step(1);
    EXPECT_LT(show.loop.Milliseconds(), 120);
    EXPECT_TRUE(show.screen.Visible || show.state.FullScreenActive == 1);
    EXPECT_EQ(show.state.FullScreenClosed, 0);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(StepEffects, TheWindowCanBeClosedAtAnyYield) {
    // The first show effect begins at 0, the erase at 3000 or later, the next show after it.
    for (const bool endsShow : {true, false}) {
        for (double moment = 20; moment < 4300;
             moment += moment < 600 || moment > 3000 ? 60 : 600) {
            EffectShow show;
            show.state.AlwaysFullFlag = endsShow ? 0 : 1;
            show.state.ShowEffect = 4;
            show.state.ShowEffectSpeed = -999;  // 6 cycles or so of 75.45 ms
            show.state.EraseEffectSpeed = -999;
            show.loop.At(moment, [&] { show.screen.Unload(); });
            playback::Command4_Click(show.app);
            show.loop.Run(10000);
            EXPECT_FALSE(show.screen.Visible) << moment;
            EXPECT_TRUE(show.form1.Visible) << moment;
            EXPECT_EQ(show.state.FullScreenActive, 0) << moment;
            EXPECT_EQ(show.state.StepBusy, 0) << moment;
            EXPECT_EQ(show.state.EffectDcValid, 0) << moment;
            EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal) << moment;
            EXPECT_EQ(show.form1.Command1.Enabled, endsShow) << moment;
        }
    }
}

}  // namespace
}  // namespace playback_tests
