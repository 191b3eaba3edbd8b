// What scripts expect of the trace, of the exit status, and of kept pictures.
#include <gtest/gtest.h>

#include <filesystem>

#include "robot/robot_run.h"

namespace robot {
namespace {

/// Ends with the script's last line, having traced boxes and windows.
struct Expectations : testing::Test {
    static void Ask(RobotRun& run) {
        run.windows.form1.Command1.Click.Anew() = [&run] {
            run.robot->Trace().Event(
                "message", {{"title", u"題"}, {"text", u"/a/b.png\r\nない"}, {"flags", 36.0}});
        };
    }
    static int Play(RobotRun& run) {
        Ask(run);
        return run.Play();
    }
    static int Play(const std::string& script) {
        RobotRun run(script);
        return Play(run);
    }
};

TEST_F(Expectations, AnEventIsFoundByItsFields) {
    const std::string click = "+100 click Form1.Command1\n";
    for (const char* line :
         {"expect-trace message", "expect-trace message t=100 title=題 flags=36",
          "expect-trace message text=\"/a/b.png\\r\\nない\"", "expect-trace message text~b.png",
          "expect-trace message text~\"png\\r\\nない\" flags=36  # comment",
          "expect-no message title=別", "expect-no message unanswered=true",
          "expect-no message text~\"b.png # c\"", "expect-no dialog"}) {
        EXPECT_EQ(Play(click + line), 0) << line;
    }
    for (const char* line :
         {"expect-trace dialog", "expect-trace message t=99", "expect-trace message title=題題",
          "expect-trace message title~題題", "expect-trace message flags~3",
          "expect-trace message name=x", "expect-no message", "expect-no message text~ない"}) {
        EXPECT_EQ(Play(click + line), 1) << line;
    }
}

TEST_F(Expectations, ALineLooksAtWhatWasUntilThenTheLastOnesAtTheWholeRun) {
    EXPECT_EQ(Play("expect-no message\n+1 click Form1.Command1\n+1 expect-trace message\nquit"), 0);
    EXPECT_EQ(Play("expect-trace message\n+1 click Form1.Command1\nquit"), 1);
    const std::string closed = "expect-trace window name=Form1 state=unloaded\n";
    EXPECT_EQ(Play("+1 quit\n" + closed), 0);
    EXPECT_EQ(Play("+1 click Form1.Command1\n" + closed), 0) << "the end of the script is an end";
    EXPECT_EQ(Play("+1 click Form1.Command1\n+1 " + closed), 1) << "a time is a time";
}

TEST_F(Expectations, TheSlidesAreReportedInTheirOrderAndAllOfThem) {
    const auto play = [](const std::string& lines) {
        RobotRun run("+10 click Form1.Command1\n+5 click Form1.Command1\nquit\n" + lines);
        run.windows.form1.Command1.Click.Anew() = [&run] {
            run.robot->Trace().Event("slide", {{"path", u"C:\\x y\\絵 1.png"}});
        };
        return run.Play();
    };
    EXPECT_EQ(play("expect-slides 10 \"絵 1.png\" 15 \"絵 1.png\""), 0);
    EXPECT_EQ(play("expect-slides 10 \"絵 1.png\"\nexpect-slides 15 \"絵 1.png\""), 0);
    EXPECT_EQ(play("expect-slides 10 \"絵 1.png\""), 1) << "one is not listed";
    EXPECT_EQ(play("expect-slides"), 1);
    EXPECT_EQ(play("expect-slides 10 \"絵 1.png\" 16 \"絵 1.png\""), 1);
    EXPECT_EQ(play("expect-slides 10 \"絵 1.png\" 15 \"絵 1.png\" 20 c.png"), 1);
    EXPECT_EQ(play("expect-trace slide"), 0) << "a script that lists none need not list all";
}

TEST_F(Expectations, TheSoundsOfOneMomentStandTogether) {
    const auto play = [](const std::string& lines) {
        RobotRun run("+10 click Form1.Command1\n+5 click Form1.Command1\nquit\n" + lines);
        run.windows.form1.Command1.Click.Anew() = [&run] {
            platform::Trace& trace = run.robot->Trace();
            trace.Event("sndPlaySound", {{"file", nullptr}, {"flags", 0.0}});
            trace.Event("mci", {{"command", u"open \"/a b/c.mp3\" alias mp3"}});
            trace.Event("mci", {{"command", u"setaudio mp3 volume to 1000"}});
            trace.Event("mci", {{"command", u"setaudio mp3 volume to 980"}});
            trace.Event("mci", {{"command", u"status mp3 mode"}});
            trace.Event("mci", {{"command", u"status mp3 mode"}});
        };
        return run.Play();
    };
    const std::string all =
        "cancel | open \"c.mp3\" alias mp3 | setaudio mp3 volume to 1000 | status mp3 mode";
    EXPECT_EQ(play("expect-sounds 10 " + all + "\nexpect-sounds 15 " + all), 0);
    EXPECT_EQ(play("expect-sounds 10 " + all), 1);
    EXPECT_EQ(play("expect-sounds 10 cancel\nexpect-sounds 15 " + all), 1);
}

TEST_F(Expectations, SayWhatIsWrongAndWhere) {
    RobotRun run(
        "+1 click Form1.Command1\nquit\nexpect-trace dialog\nexpect-no message\n"
        "expect-slides 5 a.png\nexpect-trace message title=別\n");
    EXPECT_EQ(Play(run), 1);
    EXPECT_EQ(run.err.str(), run.Told(3, "no such event among 0 of the name dialog") +
                                 run.Told(4, "there is such an event at 1") +
                                 run.Told(5, "expected 5 a.png, got nothing more") +
                                 run.Told(6, "no such event among 1 of the name message"));
}

TEST_F(Expectations, TheExitStatusIsKnownAtTheEnd) {
    for (const auto& [script, programs, expected] :
         {std::tuple("quit", 1, 1), std::tuple("quit\nexpect-exit 1", 1, 0),
          std::tuple("quit\nexpect-exit 1", 0, 1), std::tuple("quit\nexpect-exit 1", 70, 1),
          std::tuple("quit\nexpect-exit 0", 0, 0),
          std::tuple("quit\nexpect-exit 1\nexpect-trace dialog", 1, 1)}) {
        RobotRun run(script);
        run.programStatus = programs;
        EXPECT_EQ(run.Play(), expected) << script << " " << programs;
    }
    RobotRun early("expect-exit 1\nquit");
    EXPECT_THROW(early.Play(), ScriptError);
}

TEST_F(Expectations, ALineThatIsNoneIsRefused) {
    for (const char* line :
         {"expect-trace", "expect-trace message title", "expect-trace message =x",
          "expect-trace message title= ", "expect-trace message title~\"x", "expect-slides 10",
          "expect-slides ten a.png", "expect-sounds 10", "expect-exit", "golden"}) {
        EXPECT_THROW(ParseScript(line, "x.robot"), ScriptError) << line;
    }
}

TEST_F(Expectations, AKeptPictureLiesBesideTheScriptAndWhatWasSeenInsteadIsLeftThere) {
    namespace fs = std::filesystem;
    const auto play = [](bool same) {
        RobotRun run("golden kept/wipe.png");
        run.picturesAreSame = same;
        const fs::path folder = fs::path(run.scriptFile).parent_path() / "kept";
        const int status = run.Play();
        EXPECT_EQ(run.compared[0], (folder / "wipe.png").string());
        EXPECT_EQ(run.shots[0], "Form1 " + run.compared[1]);
        if (!same) {
            EXPECT_EQ(run.err.str(),
                      run.Told(1, "other pixels than " + (folder / "wipe.png").string() + ": see " +
                                      (folder / "wipe-ACTUAL.png").string()));
        }
        return status;
    };
    EXPECT_EQ(play(true), 0);
    EXPECT_EQ(play(false), 1);
}

}  // namespace
}  // namespace robot
