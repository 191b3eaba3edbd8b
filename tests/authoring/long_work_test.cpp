// Long work on the virtual clock, with a scripted person at its stop.
#include "authoring/shared/long_work.h"

#include <gtest/gtest.h>

#include "model/windows/linked_folder.h"
#include "model/windows/slide_list.h"
#include "robot/robot_run.h"

namespace authoring {
namespace {

using platform::Outcome;

/// Form12 plays the window: Command1 begins the work, Command2 is its stop.
struct LongWorks : testing::Test {
    std::unique_ptr<robot::RobotRun> run;
    bool stop = false;
    int64_t done = -1;

    model::Form12& Window() { return run->windows.form12; }
    /// Only Form12 and Form3 have labels to tell by.
    LongWorkFace Face() {
        return {Window(), &Window().Label1, &run->windows.form3.Label4, &Window().Command2};
    }
    void Pass(int milliseconds) {
        run->Loop().Sleep(milliseconds);
        run->around.loop.Sleep(milliseconds);
    }
    void Play(const std::string& script, const std::function<void(LongWork&)>& work) {
        run = std::make_unique<robot::RobotRun>(script);
        // The program's own loop is the fake one; the script is played by the robot's.
        run->around.loop.onPump = [this] { run->Loop().PumpEvents(); };
        model::Form12& window = Window();
        window.Show();
        window.Label1.Visible = false;
        run->windows.form3.Label4.Visible = false;
        window.Command2.Visible = false;
        window.Command2.Click = [this] { stop = true; };
        window.Command1.Click = [this, work] {
            LongWork one(run->around.app, Face(), [this] { return stop; });
            work(one);
        };
        EXPECT_EQ(run->Play(), 0) << run->err.str();
    }
};

TEST_F(LongWorks, ShowsItselfWhileItRuns) {
    Play(
        "click Form12.Command1\n"
        "during expect Form12.Label1.Visible true\n"
        "during expect Form3.Label4.Caption \"0 / 5\"\n"
        "during expect Form12.Command2.Visible true\n"
        "during expect Form12.MousePointer 11\n"
        "during expect Form1.MousePointer 11\n"
        "expect Form3.Label4.Caption \"5 / 5\"\n"
        "expect Form12.Label1.Visible false\n"
        "expect Form3.Label4.Visible false\n"
        "expect Form12.Command2.Visible false\n"
        "expect Form12.MousePointer 0\n"
        "expect Form1.MousePointer 0\n",
        [this](LongWork& work) { done = ForEachPiece(work, 5, [](int64_t) { return true; }); });
    EXPECT_EQ(done, 5);
}

TEST_F(LongWorks, AStopEndsItAheadOfTheNextPiece) {
    std::vector<int64_t> pieces;
    // Pieces of 20 ms: the stop comes within the third.
    Play("click Form12.Command1\n+50 click Form12.Command2\n", [&](LongWork& work) {
        done = ForEachPiece(work, 100, [&](int64_t piece) {
            pieces.push_back(piece);
            Pass(20);
            return true;
        });
        EXPECT_TRUE(work.Stopped());
        EXPECT_EQ(run->Loop().Milliseconds(), 60);
        EXPECT_FALSE(work.GoOn(50, 100)) << "it stays stopped";
    });
    EXPECT_EQ(done, 3);
    EXPECT_EQ(pieces, (std::vector<int64_t>{0, 1, 2}));
    EXPECT_FALSE(Window().Command2.Visible);
}

TEST_F(LongWorks, AStopBeforeTheFirstPieceDoesNone) {
    Play("click Form12.Command1\nduring click Form12.Command2\n",
         [&](LongWork& work) { done = ForEachPiece(work, 100, [](int64_t) { return true; }); });
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(stop);
}

TEST_F(LongWorks, ClosingTheWindowStopsIt) {
    Play("click Form12.Command1\nduring close Form12\n",
         [&](LongWork& work) { done = ForEachPiece(work, 100, [](int64_t) { return true; }); });
    EXPECT_EQ(done, 0);
}

TEST_F(LongWorks, APieceThatFailsEndsIt) {
    Play("click Form12.Command1\n", [&](LongWork& work) {
        done = ForEachPiece(work, 100, [](int64_t piece) { return piece < 7; });
        EXPECT_FALSE(work.Stopped());
    });
    EXPECT_EQ(done, 7);
}

TEST_F(LongWorks, ACopyStopsInItsMiddleAndLeavesNoHalfFile) {
    Outcome outcome = Outcome::Done;
    Play("click Form12.Command1\n+5 click Form12.Command2\n", [&](LongWork& work) {
        fakes::FakePlatform& around = run->around;
        around.files.Put(u"C:\\a.jpg", "content");
        around.files.Put(u"C:\\old.jpg", "old");
        platform::FileError error;
        ASSERT_TRUE(work.GoOn(0, 1));
        Pass(10);
        outcome = around.app.platform.fileChanges.Copy(u"C:\\a.jpg", u"C:\\old.jpg", work.Report(),
                                                       error);
        EXPECT_EQ(around.files.Get(u"C:\\old.jpg")->content, "old");
    });
    EXPECT_EQ(outcome, Outcome::Stopped);
}

TEST_F(LongWorks, TheProgramsEndGoesThroughIt) {
    Play("click Form12.Command1\nduring quit\n", [&](LongWork& work) {
        done = ForEachPiece(work, 100, [](int64_t) { return true; });
        FAIL() << "the end does not come back here";
    });
    EXPECT_EQ(run->windows.Pointer(), model::kPointerNormal);
    EXPECT_FALSE(Window().Label1.Visible);
}

TEST_F(LongWorks, TheTextFollowsAsFastAsAnEyeOnly) {
    std::vector<Text> seen;
    Play("click Form12.Command1\n", [&](LongWork& work) {
        for (int64_t i = 0; i < 10; ++i) {
            work.GoOn(i, 0);
            const Text& shown = run->windows.form3.Label4.Caption;
            if (seen.empty() || seen.back() != shown) {
                seen.push_back(shown);
            }
            Pass(20);
        }
    });
    // At 0, 60, 120 and 180 ms.
    EXPECT_EQ(seen, (std::vector<Text>{u"0", u"3", u"6", u"9"}));
}

}  // namespace
}  // namespace authoring
