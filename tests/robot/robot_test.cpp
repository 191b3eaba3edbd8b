#include "adapters/robot/robot.h"

#include <gtest/gtest.h>

#include "model/list_controls.h"
#include "model/picture_controls.h"
#include "model/windows/background_sound.h"
#include "model/windows/control_box.h"
#include "model/windows/link_list.h"
#include "model/windows/linked_folder.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/text_display.h"
#include "robot/robot_run.h"

namespace robot {
namespace {

/// The acts that reached nothing: "click Form1.Command1".
std::vector<Text> Unheard(const RobotRun& run) {
    std::vector<Text> acts;
    for (const auto& line : run.around.trace.Of("act")) {
        acts.push_back(line.String("action") + u" " + line.String("name"));
    }
    return acts;
}

TEST(Robot, LinesRunAtTheirTimes) {
    RobotRun run(
        "click Form1.Command1\n"
        "@1500 click Form1.Command1\n"
        "+200 click Form1.Command1\n"
        "click Form1.Command1\n"
        "@100 click Form1.Command1\n"  // never before the line before it
        "@1800 click Form1.Command1\n");
    run.windows.form1.Command1.Enabled = true;
    std::vector<double> clicks;
    run.windows.form1.Command1.Click = [&] { clicks.push_back(run.Loop().Milliseconds()); };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(clicks, (std::vector<double>{0, 1500, 1700, 1700, 1700, 1800}));
    EXPECT_EQ(run.err.str(), "");
}

TEST(Robot, DelayCountsFromTheMomentTheLineBeforeBegan) {
    RobotRun run("click Form1.Command1\n+100 click Form1.Command3\n+1000 print SlideIndex\n");
    run.windows.form1.Command3.Enabled = true;
    bool stopped = false;
    double leftAt = 0;
    run.windows.form1.Command1.Click = [&] {
        while (!stopped) {
            run.Loop().PumpEvents();
            run.Loop().Sleep(20);
        }
        leftAt = run.Loop().Milliseconds();
    };
    run.windows.form1.Command3.Click = [&] { stopped = true; };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(leftAt, 120);  // stopped inside the pump at 100, one more sleep
    EXPECT_EQ(run.Loop().Milliseconds(), 1100);
}

TEST(Robot, NextLineSeesAHandlerThatTookNoTimeAsDone) {
    RobotRun run("click Form1.Command1\nexpect SlideIndex 5\n");
    run.windows.form1.Command1.Click = [&] {
        run.Loop().PumpEvents();
        run.around.app.state.SlideIndex = 5;
    };
    EXPECT_EQ(run.Play(), 0);
}

TEST(Robot, WhatCannotBeReachedHasNoEffect) {
    RobotRun run(
        "click Form1.Command1\nclick Form1.Command2\nclick Form3.Command16\nclick Form3\n"
        "key Form3.List1 46\nclose Form9\nset Form8.Text1 a\ndrop Form3 a.jpg\n");
    model::Windows& windows = run.windows;
    int happened = 0;
    const auto count = [&] { ++happened; };
    windows.form1.Command1.Enabled = false;
    windows.form1.Command1.Click = count;
    windows.form1.Command2.Visible = false;
    windows.form1.Command2.Click = count;
    windows.form3.Load();  // loaded but never shown
    windows.form3.Command16.Click = count;
    windows.form3.Click = count;
    windows.form3.List1.KeyDown = [&](int) { ++happened; };
    windows.form3.FilesDropped = [&](const std::vector<Text>&) { ++happened; };
    windows.form9.OnUnload = count;
    windows.form8.Text1.Change = count;
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(happened, 0);
    EXPECT_EQ(windows.form8.Text1.Content(), u"");
    EXPECT_EQ(Unheard(run).size(), 8u);
}

TEST(Robot, WhatNobodyListensToIsTraced) {
    RobotRun run(
        "click Form1.SlideCount\ndrop Form1.Label1 a.jpg\nclick Form1.Command1\nclick Form3.List1\n"
        "set Form8.Text1 a\nclick Form3.Check1\nmenu mnuTIME\nrclick Form1.Command1\n"
        "drop Form1 a.jpg\nmove Form3.List1 0\n");
    model::Windows& windows = run.windows;
    windows.form3.Show();
    windows.form8.Show();
    windows.form3.List1.AddItem(u"a");
    windows.form3.List1.Select(0, true);
    windows.form1.Command1.Click = [] {};
    windows.form3.List1.Click = [] {};
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(Unheard(run), (std::vector<Text>{u"click Form1.SlideCount", u"drop Form1.Label1",
                                               u"menu Form1.mnuTIME", u"rclick Form1.Command1",
                                               u"drop Form1", u"move Form3.List1"}));
}

TEST(Robot, ActsDuringAHandlerThatOnlyPumps) {
    RobotRun run("click Form1.Command1\nduring click Form1.Command3\nexpect SlideIndex 7\n");
    model::Form1& form1 = run.windows.form1;
    form1.Command3.Enabled = true;
    bool stopped = false;
    int pumps = 0;
    form1.Command1.Click = [&] {
        while (!stopped && pumps < 5) {
            run.Loop().PumpEvents();
            ++pumps;
        }
        run.around.app.state.SlideIndex = 7;
    };
    form1.Command3.Click = [&] { stopped = true; };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(pumps, 1);
    EXPECT_EQ(run.Loop().Milliseconds(), 0);
}

TEST(Robot, PlacesOfPressesReachThePicture) {
    RobotRun run("click Form1.Picture1 3 4\nrclick Form1.Picture1 5 6\nclick Form1.Picture1\n");
    model::PictureBox& picture = run.windows.form1.Picture1;
    picture.SetSize(3000, 1500);  // 200 x 100 pixels
    std::string order;
    const auto note = [&](const char* what, const model::MousePress& press) {
        order += std::string(what) + (press.right ? "r" : "l") + std::to_string(press.x) + "," +
                 std::to_string(press.y) + " ";
    };
    picture.MouseDown = [&](const model::MousePress& press) { note("d", press); };
    picture.MouseUp = [&](const model::MousePress& press) { note("u", press); };
    picture.Click = [&] { order += "c "; };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(order, "dl3,4 ul3,4 c dr5,6 ur5,6 dl100,50 ul100,50 c ");
}

TEST(Robot, BrowsesFolders) {
    RobotRun run(
        "set Form12.Drive1 /show\nexpect Form12.Drive1.Drive /show\nset Form12.Dir1 /show/b\n"
        "expect Form12.Dir1.Path /show/b\nselect Form12.Drive1 1\nexpect Form12.Drive1.Drive "
        "C:\\\n");
    model::Form12& form12 = run.windows.form12;
    run.around.PutPicture(u"/show\\b\\1.jpg", 10, 10);
    form12.Drive1.folders = form12.Dir1.folders = &run.around.folders;
    form12.Show();
    form12.Drive1.Refresh();
    EXPECT_EQ(run.Play(), 0) << run.err.str();
}

TEST(Robot, MouseAndKeysReachEveryKindOfControl) {
    RobotRun run(
        "click Form1 5 6\nclick Form1.Picture1\ndblclick Form3.List1\ndblclick Form1.Command1\n"
        "rclick Form1.Picture1\nkey Form1 27\nkey Slidescreen.P2 13\nkey Form3.List1 46\n"
        "key Form1.Command1 9\n");
    model::Windows& windows = run.windows;
    windows.form3.Show();
    windows.slidescreen.Show();
    std::string order;
    windows.form1.Click = [&] { order += "w"; };
    windows.form1.Picture1.Click = [&] { order += "p"; };
    windows.form3.List1.Click = [&] { order += "l"; };
    windows.form3.List1.DblClick = [&] { order += "L"; };
    windows.form1.Command1.Click = [&] { order += "b"; };
    windows.form1.KeyDown = [&](int code) { order += std::to_string(code); };
    windows.slidescreen.P2.KeyDown = [&](int code) { order += std::to_string(code); };
    windows.form3.List1.KeyDown = [&](int code) { order += std::to_string(code); };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(order, "wplLbb271346");
    // Nothing listens to the right button, nor to keys on a button.
    EXPECT_EQ(Unheard(run), (std::vector<Text>{u"rclick Form1.Picture1", u"key Form1.Command1"}));
}

TEST(Robot, SecondPressOfADoubleClickNeedsTheControlToBeStillThere) {
    RobotRun run("dblclick Form1.Command1\n");
    int clicks = 0;
    run.windows.form1.Command1.Click = [&] {
        ++clicks;
        run.windows.form1.Command1.Enabled = false;
    };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(clicks, 1);
}

TEST(Robot, ChecksAndOptionsChangeBeforeTheirClick) {
    RobotRun run(
        "click Form3.Check1\nclick Form3.Check1\nset Form3.Check1 1\nset Form3.Check1 true\n"
        "set Form3.Check1 0\nclick Form15.Option2\nset Form15.Option1 1\nset Form15.Option1 1\n");
    model::Windows& windows = run.windows;
    windows.form3.Show();
    windows.form15.Show();
    windows.form15.Option1.Value = true;
    std::string order;
    windows.form3.Check1.Click = [&] { order += std::to_string(windows.form3.Check1.Value()); };
    const auto options = [&] {
        order += windows.form15.Option1.Value ? "a" : "-";
        order += windows.form15.Option2.Value ? "b" : "-";
    };
    windows.form15.Option1.Click = options;
    windows.form15.Option2.Click = options;
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(order, "1010-ba-");
}

TEST(Robot, TextsTellAChangeOnly) {
    RobotRun run("set Form8.Text1 \"あ b\"\nset Form8.Text1 あ b\nset Form8.Text1\n");
    run.windows.form8.Show();
    std::vector<Text> changes;
    run.windows.form8.Text1.Change = [&] { changes.push_back(run.windows.form8.Text1.Content()); };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(changes, (std::vector<Text>{u"あ b", u""}));
}

TEST(Robot, SelectTakesExactlyTheRows) {
    RobotRun run("select Form3.List1 2 0\n+0 expect Form3.List1.SelCount 2\n");
    model::ListBox& list = run.windows.form3.List1;
    run.windows.form3.Show();
    for (const char16_t* row : {u"a", u"b", u"c"}) {
        list.AddItem(row);
    }
    list.Select(1, true);
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    EXPECT_EQ(run.Play(), 0) << run.err.str();
    EXPECT_TRUE(list.Selected(0));
    EXPECT_FALSE(list.Selected(1));
    EXPECT_TRUE(list.Selected(2));
    EXPECT_EQ(list.ListIndex, 0);
    EXPECT_EQ(clicks, 1);
}

TEST(Robot, RowThatIsNotThereIsAFaultOfTheScript) {
    RobotRun run("select Form3.List1 0\nexpect SlideIndex 0\n");
    run.windows.form3.Show();
    EXPECT_EQ(run.Play(), 2);
    EXPECT_EQ(run.err.str(), run.Told(1, "no such row: 0"));
}

TEST(Robot, MenuEntriesNeedThemselvesAndTheirMenusInReach) {
    const std::string script = "menu mnuOPEN\nmenu mnuKUFL 1\nmenu mnuKUFL(0)\n";
    const auto play = [&](auto prepare) {
        RobotRun run(script);
        std::string chosen;
        run.windows.form1.mnuOPEN.Click = [&] { chosen += "o"; };
        run.windows.form1.mnuKUFL.Click = [&](int index) { chosen += std::to_string(index); };
        prepare(run.windows.form1);
        EXPECT_EQ(run.Play(), 0) << run.err.str();
        return chosen;
    };
    EXPECT_EQ(play([](model::Form1&) {}), "o10");
    EXPECT_EQ(play([](model::Form1& form) { form.mnuOPEN.Enabled = false; }), "10");
    EXPECT_EQ(play([](model::Form1& form) { form.mnuOPTION.Enabled = false; }), "o");
    EXPECT_EQ(play([](model::Form1& form) { form.mnuKUFLHead.Visible = false; }), "o");
    EXPECT_EQ(play([](model::Form1& form) { form.mnuKUFL(1).Visible = false; }), "o0");
    EXPECT_EQ(play([](model::Form1& form) { form.Hide(); }), "");
}

TEST(Robot, ModalWindowTakesAllInput) {
    RobotRun run(
        "click Form1.Command1\nmenu mnuOPEN\nclick Form3\n+5 click Form9\nclick Form1.Command1\n");
    model::Windows& windows = run.windows;
    std::optional<model::Property<bool>> own;  // where windows have no such property themselves
    model::PropertyBase* modal = windows.form3.FindProperty("Modal");
    if (!modal) {
        own.emplace(windows.form3, "Modal");
        modal = &*own;
    }
    modal->Write(true);
    std::string order;
    windows.form9.Show();
    windows.form9.Click = [&] { order += '9'; };
    windows.form1.mnuOPEN.Click = [&] { order += 'o'; };
    windows.form1.Command1.Click = [&] {
        order += '(';
        windows.form3.Show();
        run.Loop().RunUntil([&] { return !windows.form3.Visible; });
        order += ')';
        windows.form1.Command1.Click.Anew() = [&] { order += '1'; };
    };
    windows.form3.Click = [&] {
        order += '3';
        windows.form3.Unload();
    };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(order, "(3)91");
}

TEST(Robot, CloseIsTheFramesButtonAndMayBeRefused) {
    RobotRun run("close Form3\nclose Slidescreen2\n");
    run.windows.form3.Show();
    run.windows.slidescreen2.Show();
    run.windows.slidescreen2.OnQueryUnload = [](bool& stay) { stay = true; };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_FALSE(run.windows.form3.Loaded);
    EXPECT_TRUE(run.windows.slidescreen2.Visible);
}

TEST(Robot, PathsOfAPersonAreWhole) {
    RobotRun run(
        "drop Form1.Picture1 a.jpg \"b c.jpg\" /d.jpg C:\\e.jpg\n"
        "choose sub/../x.kvs\nclick Form1.Command1\n");
    const Text here = text::FromUtf8(std::filesystem::current_path().string());
    std::vector<Text> dropped;
    std::optional<Text> chosen;
    run.windows.form1.FilesDropped = [&](const std::vector<Text>& paths) { dropped = paths; };
    run.windows.form1.Command1.Click = [&] { chosen = run.robot->Dialogs().ChooseFile({}); };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(dropped,
              (std::vector<Text>{here + u"/a.jpg", here + u"/b c.jpg", u"/d.jpg", u"C:\\e.jpg"}));
    EXPECT_EQ(chosen, here + u"/x.kvs");
}

TEST(Robot, QueuedAnswersMeetTheirBoxes) {
    RobotRun run("answer no\ninput 七\ninput\nclick Form1.Command1\n");
    std::string got;
    run.windows.form1.Command1.Click = [&] {
        virtual_adapter::VirtualDialogs& dialogs = run.robot->Dialogs();
        got += dialogs.Message(u"?", platform::kYesNoQuestion, u"") == platform::Answer::No;
        got += dialogs.Input(u"", u"", u"1") == Text(u"七");
        got += dialogs.Input(u"", u"", u"1") == std::nullopt;
    };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(got, std::string(3, 1));
}

TEST(Robot, PrintsJsonAndTracesIt) {
    RobotRun run("print SlideIndex\nprint Form1.Command1.Enabled\nprint Form3.List1\n");
    run.windows.form3.List1.AddItem(u"あ");
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(run.out.str(), "0\ntrue\n[\"あ\"]\n");
    const auto lines = run.around.trace.Of("print");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].String("name"), u"SlideIndex");
    EXPECT_EQ(lines[2].fields[1].second,
              decltype(platform::TraceField::value)(std::vector<Text>{u"あ"}));
}

TEST(Robot, FailedExpectationIsReportedAndTheRunGoesOn) {
    RobotRun run(
        "expect SlideIndex 0\nexpect SlideIndex 4\nexpect Form1.Caption パラ ピコ\nprint "
        "SlideIndex\n");
    run.windows.form1.Caption = u"題";
    EXPECT_EQ(run.Play(), 1);
    EXPECT_EQ(run.err.str(), run.Told(2, "expected SlideIndex 4, got 0") +
                                 run.Told(3, "expected Form1.Caption パラ ピコ, got \"題\""));
    EXPECT_EQ(run.out.str(), "0\n");
    const auto lines = run.around.trace.Of("expect");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1].String("name"), u"SlideIndex");
    EXPECT_EQ(lines[1].Number("value"), 0);
    EXPECT_EQ(lines[1].String("expected"), u"4");
    EXPECT_EQ(lines[0].fields.back().second, decltype(platform::TraceField::value)(true));
    EXPECT_EQ(lines[1].fields.back().second, decltype(platform::TraceField::value)(false));
}

TEST(Robot, ExpectationThatIsNeverReachedFailsTheRun) {
    RobotRun run("click Form1.Command1\n+10 print SlideIndex\nexpect SlideIndex 0\n");
    run.windows.form1.Command1.Click = [] { throw platform::ProgramEnd{}; };
    EXPECT_EQ(run.Play(), 1);
    EXPECT_EQ(run.err.str(), run.Told(3, "never reached: the program had ended"));
    EXPECT_EQ(run.robot->ExitStatus(0), 1);
    EXPECT_EQ(run.err.str(), run.Told(3, "never reached: the program had ended"));  // told once
}

TEST(Robot, QuitAndTheEndOfTheScriptCloseTheMainWindow) {
    for (const char* script : {"+10 quit\n", "+10 print SlideIndex\n", "@10 quit\n+5 quit\n"}) {
        RobotRun run(script);
        std::vector<double> closed;
        run.windows.form1.OnUnload = [&] {
            closed.push_back(run.Loop().Milliseconds());
            run.Loop().PumpEvents();  // closing down waits, and the robot lets it
            run.Loop().Sleep(7);
            run.Loop().PumpEvents();
        };
        EXPECT_EQ(run.Play(), 0);
        EXPECT_EQ(closed, std::vector<double>{10}) << script;
        EXPECT_EQ(run.Loop().Milliseconds(), 17);
    }
}

TEST(Robot, EmptyScriptEndsWhenTheProgramIsIdle) {
    RobotRun run("# nothing\n");
    run.Loop().PumpEvents();
    EXPECT_EQ(run.Play(), 0);
    EXPECT_FALSE(run.windows.form1.Loaded);
}

TEST(Robot, QuitEndsEvenAProgramThatWantsToStay) {
    RobotRun run("quit\n");
    run.windows.form1.OnQueryUnload = [](bool& stay) { stay = true; };
    EXPECT_EQ(run.Play(), 0);
}

TEST(Robot, ShotsShowTheFullScreenWindowFirst) {
    RobotRun run("shot a.png\nclick Form1.Command4\nshot b.png\nshot c.png Form1\n");
    run.windows.form1.Command4.Click = [&] { run.windows.slidescreen.Show(); };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(run.shots,
              (std::vector<std::string>{"Form1 a.png", "Slidescreen b.png", "Form1 c.png"}));
}

TEST(Robot, ShotThatCannotBeSavedIsAFault) {
    RobotRun run("shot a.png\n");
    run.shotsWork = false;
    EXPECT_EQ(run.Play(), 2);
    EXPECT_EQ(run.err.str(), run.Told(1, "no picture of Form1 could be saved as a.png"));
}

TEST(Robot, NamesAreCheckedBeforeTheProgramStarts) {
    for (const char* line :
         {"click Form99",         "click Form1.Command99", "click Form1.Timer1",
          "click Form1.mnuOPEN",  "menu mnuNOTHING",       "menu mnuKUFL 2",
          "menu mnuFILE",         "menu Command1",         "menu Form3.mnuOPEN",
          "menu Form99.mnuOPEN",  "menu Form3.mnuSORT",    "select Form1.Command1 0",
          "set Form1.Command1 1", "set Form3.Check1 2",    "set Form15.Option1 0",
          "print Nonsense",       "print Form1.Command1",  "expect Form1.Command1.Colour 1",
          "shot a.png Form99",    "close Form99"}) {
        RobotRun run(std::string("quit\n") + line + "\n");
        try {
            run.Play();
            ADD_FAILURE() << line;
        } catch (const ScriptError& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(run.scriptFile + ":2: "))
                << error.what();
        }
    }
}

TEST(Robot, ScriptThatCannotBeReadIsRefused) {
    fakes::FakeTrace trace;
    RobotOptions options;
    options.script = "no such file.robot";
    EXPECT_THROW(Robot(options, trace), ScriptError);
    options.script = std::filesystem::temp_directory_path().string();
    EXPECT_THROW(Robot(options, trace), ScriptError);
    EXPECT_THROW(RobotRun("quit\nnonsense\n"), ScriptError);
}

TEST(Robot, TemporaryProgramFolderLivesAsLongAsTheRobot) {
    std::string folder;
    {
        RobotRun run("quit\n");
        folder = run.robot->AppFolder();
        EXPECT_TRUE(std::filesystem::is_directory(folder));
        std::ofstream(folder + "/autstart.dat") << "x";
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
    RobotOptions options;
    options.appFolder = "given";
    RobotRun run("quit\n", options);
    EXPECT_EQ(run.robot->AppFolder(), "given");
}

TEST(Robot, MillionTicksLeaveNothingBehind) {
    RobotRun run("@1000000 print SlideIndex\n");
    const int key = 0;
    int ticks = 0;
    run.robot->Loop().SetTimer(&key, 1, [&] { ++ticks; });
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(ticks, 1000000);
}

TEST(Robot, TheDiscOfTheOptionsLiesInTheDrive) {
    RobotOptions options;
    options.cd = {4, 60, 2};
    RobotRun run("quit\n", options);
    platform::Sound& sound = run.robot->Sound();
    sound.MciSendString(u"open cdaudio");
    EXPECT_EQ(sound.MciSendString(u"status cdaudio number of tracks"), u"3");
    EXPECT_EQ(run.around.trace.Of("mci").size(), 2u) << "what is asked of it is traced";
}

}  // namespace
}  // namespace robot
