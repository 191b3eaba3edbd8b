// The end of the program; timer controls on the event loop.
#include <gtest/gtest.h>

#include "app/exit.h"
#include "app/timers.h"
#include "app_support.h"
#include "model/controls.h"
#include "model/windows/control_box.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"

namespace app_tests {
namespace {

using Names = std::vector<std::string>;

TEST(Exit, UnloadsTheWindowsInTheirOrderAfterTheFiles) {
    fakes::FakePlatform around;
    Names unloaded;
    size_t writtenBefore = 0;
    for (model::Window* window : around.app.windows.All()) {
        window->OnUnload = [&, window] {
            if (window->Name() == "form2") {
                writtenBefore = around.files.written.size();
            }
            unloaded.push_back(window->Name());
        };
        window->Load();
    }
    EXPECT_THROW(app::ExitProgram(around.app), platform::ProgramEnd);
    // A recording ends, and the video window goes with the sound, before the files.
    EXPECT_EQ(unloaded,
              (Names{"Form20", "Form24", "form2", "Form3", "Form4", "Form5", "Form6", "Form7",
                     "form8", "Form9", "Form10", "Form11", "Form12", "form13", "Form14"}));
    EXPECT_EQ(around.files.written,
              (std::vector<Text>{u"C:\\app\\uautst.dat", u"C:\\app\\autstart.dat",
                                 u"C:\\app\\wavlist.dat"}));
    EXPECT_EQ(writtenBefore, 3u);
}

TEST(Exit, LeavesNoPictureAndNoMark) {
    fakes::FakePlatform around;
    model::ShowState& state = around.app.state;
    model::Windows& windows = around.app.windows;
    const auto picture = std::make_shared<platform::Bitmap>(4, 4);
    windows.slidescreen.P2.SetPicture(picture);
    windows.form1.Picture1.SetPicture(picture);
    windows.form4.Picture1.SetPicture(picture);
    around.PutPicture(u"C:\\a.png", 8, 8);
    windows.form4.Lead1.imaging->Load(u"C:\\a.png", nullptr);
    windows.form4.Lead2.imaging->Load(u"C:\\a.png", nullptr);
    state.EffectDc = picture;
    state.EffectDcValid = 1;
    state.LeadPictureHeld = 1;
    state.SlideListDirty = 1;
    state.LinkListDirty = 1;
    state.SlideIntervalSec = 7;
    windows.form1.Timer1.Interval = 10;
    EXPECT_THROW(app::ExitProgram(around.app), platform::ProgramEnd);
    EXPECT_EQ(windows.form1.Timer1.Interval, 7000);
    EXPECT_EQ(state.SlideListDirty, 0);
    EXPECT_EQ(state.LinkListDirty, 0);
    EXPECT_EQ(state.EffectDcValid, 0);
    EXPECT_EQ(state.LeadPictureHeld, 0);
    EXPECT_EQ(windows.slidescreen.P2.Picture(), nullptr);
    EXPECT_EQ(windows.form1.Picture1.Picture(), nullptr);
    EXPECT_EQ(windows.form4.Picture1.Picture(), nullptr);
    EXPECT_FALSE(windows.form4.Lead1.imaging->Holds());
    EXPECT_FALSE(windows.form4.Lead2.imaging->Holds());
}

TEST(Exit, WritesTheSoundListAsItIs) {
    fakes::FakePlatform around;
    around.app.state.SoundListCount = 1;
    around.app.state.SoundList.Set(1, u"C:\\曲.mp3");
    EXPECT_THROW(app::ExitProgram(around.app), platform::ProgramEnd);
    const auto* file = around.files.Get(u"C:\\app\\wavlist.dat");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->content, text::EncodeFile(u"WAV3.4\r\n 1 \r\nC:\\曲.mp3\r\n", around.codePage));
}

TEST(Exit, SettingsAndListsAreThereAtTheNextStart) {
    Program first;
    first.around.loop.At(10, [&] {
        first.windows.slidescreen.KeyDown(27);
        first.state.AutoStartFlag = 0;
        first.state.SoundMode = 8;
        first.state.LinkRepeat = 1;
        first.windows.form9.List1.AddItem(u"C:\\show\\one.kvs");
        first.form1.Unload();
    });
    EXPECT_EQ(first.Run(u"C:\\show\\two.kvs"), 0);
    Program second;
    for (const char16_t* name : {u"uautst.dat", u"autstart.dat", u"wavlist.dat"}) {
        const Text path = u"C:\\app\\" + Text(name);
        ASSERT_NE(first.around.files.Get(path), nullptr);
        second.around.files.Put(path, first.around.files.Get(path)->content);
    }
    second.Run();
    EXPECT_EQ(second.state.SoundMode, 8);
    EXPECT_EQ(second.state.LinkRepeat, 1);
    EXPECT_EQ(second.windows.form9.List1.List(0), u"C:\\show\\one.kvs");
    EXPECT_EQ(second.windows.form3.List1.List(1), u"C:\\show\\b.png");
    EXPECT_EQ(second.state.DocumentPath, u"C:\\show\\two.kvs");
    EXPECT_TRUE(second.windows.slidescreen.Visible);
    EXPECT_TRUE(second.state.LinkRunning == 0);
}

TEST(Leave, GoesThroughTheExitFromInsideABox) {
    Program program;
    Program::PutState(program.around, {.slides = {u"C:\\show\\a.png"}});
    program.around.dialogs.whileOpen = [&](const auto&) { app::LeaveProgram(program.app); };
    EXPECT_EQ(program.Run(u"C:\\show\\two.kvs"), 0) << "the box before the show";
    const auto* file = program.around.files.Get(u"C:\\app\\autstart.dat");
    ASSERT_NE(file, nullptr);
    EXPECT_NE(file->content.find("two.kvs"), std::string::npos);
    EXPECT_FALSE(program.form1.Loaded);
}

TEST(Leave, BeforeTheStateWasReadWritesNothing) {
    Program program;
    program.around.files.Put(u"C:\\app\\wavlist.dat", "WAV3.4\r\n");
    program.around.files.MakeUnreadable(u"C:\\app\\wavlist.dat");
    program.around.dialogs.whileOpen = [&](const auto&) { app::LeaveProgram(program.app); };
    EXPECT_EQ(program.Run(), 0);
    EXPECT_EQ(program.around.dialogs.messages.size(), 1u);
    EXPECT_TRUE(program.around.files.written.empty());
}

TEST(Leave, InsideAnExitLetsThatOneGoOn) {
    Program program;
    program.around.files.writeError = u"ディスクの空き領域が不足しています。";
    program.around.dialogs.whileOpen = [&](const auto&) { app::LeaveProgram(program.app); };
    program.around.loop.At(10, [&] { app::LeaveProgram(program.app); });
    EXPECT_EQ(program.Run(), 0);
    EXPECT_EQ(program.around.dialogs.messages.size(), 3u) << "one a file, each once";
}

TEST(SaveState, WritesWhatTheExitWouldAndChangesNothing) {
    Program program;
    program.around.loop.At(10, [&] {
        program.state.SoundMode = 8;
        app::SaveState(program.app);
        EXPECT_EQ(program.state.SoundMode, 8);
        EXPECT_EQ(program.around.files.written.size(), 3u);
    });
    std::string saved;
    program.around.loop.At(20, [&] {
        saved = program.around.files.Get(u"C:\\app\\autstart.dat")->content;
        app::LeaveProgram(program.app);
    });
    EXPECT_EQ(program.Run(), 0);
    EXPECT_EQ(program.around.files.Get(u"C:\\app\\autstart.dat")->content, saved);
    program.around.files.written.clear();
    app::SaveState(program.app);  // the exit has written: nothing is left to say
    EXPECT_TRUE(program.around.files.written.empty());
}

TEST(SaveState, BeforeTheStateWasReadWritesNothing) {
    Program program;
    app::SaveState(program.app);
    EXPECT_TRUE(program.around.files.written.empty());
}

TEST(Exit, AFullDiskIsReportedAndTheOldFilesStay) {
    Program program;
    Program::PutState(program.around, {.slides = {u"C:\\show\\a.png"}});
    const std::string before = program.around.files.Get(u"C:\\app\\autstart.dat")->content;
    program.around.loop.At(10, [&] {
        program.around.files.writeError = u"ディスクの空き領域が不足しています。";
        program.state.ShowEffect = 3;
        program.form1.Unload();
    });
    EXPECT_EQ(program.Run(), 0);
    EXPECT_EQ(program.around.files.Get(u"C:\\app\\autstart.dat")->content, before);
    ASSERT_EQ(program.around.dialogs.messages.size(), 3u);  // one a file
    EXPECT_EQ(program.around.dialogs.messages[1].text, u"ディスクの空き領域が不足しています。");
    EXPECT_EQ(program.around.dialogs.messages[1].flags, 0);
}

TEST(Exit, FollowsTheMenuAndTheCloseButton) {
    for (const bool byMenu : {true, false}) {
        Program program;
        program.around.loop.At(10, [&] {
            if (byMenu) {
                program.form1.nmuEND.Click();
            } else {
                program.form1.Unload();
            }
        });
        EXPECT_EQ(program.Run(), 0) << byMenu;
        EXPECT_FALSE(program.form1.Visible);
        EXPECT_FALSE(program.form1.Loaded);
        EXPECT_EQ(program.around.files.written.size(), 3u);
    }
}

TEST(Exit, EndsARunningShow) {
    Program program;
    program.around.loop.At(10, [&] { program.form1.Unload(); });
    EXPECT_EQ(program.Run(u"C:\\show\\two.kvs"), 0);
    EXPECT_FALSE(program.windows.slidescreen.Visible);
    EXPECT_FALSE(program.windows.slidescreen2.Visible);
}

struct Ticking : fakes::FakePlatform {
    std::vector<double> ticks;
    model::Timer& timer = app.windows.form1.Timer3;
    Ticking() {
        timer.Tick = [this] { ticks.push_back(loop.Milliseconds()); };
    }
};
using Times = std::vector<double>;

TEST(TimerRunner, TicksWhileEnabledWithAnInterval) {
    Ticking around;
    app::TimerRunner runner(around.app);
    around.timer.Enabled = true;  // no interval yet
    around.loop.Run(1000);
    EXPECT_EQ(around.ticks, Times());
    around.timer.Interval = 300;
    around.loop.Run(1000);
    EXPECT_EQ(around.ticks, (Times{1300, 1600, 1900}));
    around.timer.Enabled = false;
    around.loop.Run(1000);
    EXPECT_EQ(around.ticks.size(), 3u);
}

TEST(TimerRunner, ChangeStartsTheIntervalAnew) {
    Ticking around;
    app::TimerRunner runner(around.app);
    around.timer.Interval = 300;
    around.timer.Enabled = true;
    around.loop.Run(200);
    around.timer.Interval = 400;
    around.loop.Run(200);
    around.timer.Interval = 400;  // no change
    around.loop.Run(300);
    EXPECT_EQ(around.ticks, Times{600});
}

TEST(TimerRunner, IntervalOfZeroStops) {
    Ticking around;
    app::TimerRunner runner(around.app);
    around.timer.Interval = 300;
    around.timer.Enabled = true;
    around.timer.Interval = 0;
    around.loop.Run(1000);
    EXPECT_EQ(around.ticks, Times());
    EXPECT_FALSE(around.loop.TimerRuns(&around.timer));
}

TEST(TimerRunner, HandlerMayStopItsOwnTimer) {
    Ticking around;
    app::TimerRunner runner(around.app);
    around.timer.Tick.Anew() = [&] {
        around.ticks.push_back(around.loop.Milliseconds());
        around.timer.Enabled = false;
    };
    around.timer.Interval = 100;
    around.timer.Enabled = true;
    around.loop.Run(1000);
    EXPECT_EQ(around.ticks, Times{100});
}

TEST(TimerRunner, KnowsTheTimersOfEveryWindow) {
    fakes::FakePlatform around;
    app::TimerRunner runner(around.app);
    int found = 0;
    for (model::Window* window : around.app.windows.All()) {
        for (model::Control* control : window->Controls()) {
            if (control->Kind() == model::ControlKind::Timer) {
                auto& timer = static_cast<model::Timer&>(*control);
                timer.Interval = 50;
                timer.Enabled = true;
                EXPECT_TRUE(around.loop.TimerRuns(&timer)) << window->Name() << timer.Name();
                ++found;
            }
        }
    }
    EXPECT_GE(found, 6);
}

TEST(TimerRunner, TakesUpRunningTimersAndLetsThemGoAtItsEnd) {
    Ticking around;
    around.timer.Interval = 100;
    around.timer.Enabled = true;
    {
        app::TimerRunner runner(around.app);
        around.loop.Run(100);
        EXPECT_EQ(around.ticks, Times{100});
    }
    around.loop.Run(1000);
    EXPECT_EQ(around.ticks, Times{100});
}

}  // namespace
}  // namespace app_tests
