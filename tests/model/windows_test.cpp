// The life of a window, and the program's windows by name.
#include "model/windows.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "model/windows/background_sound.h"
#include "model/windows/control_box.h"
#include "model/windows/linked_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/recording.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "platform/event_loop.h"

namespace model {
namespace {

using Told = std::vector<std::string>;

struct Sample : Window {
    Sample() : Window("Sample") {
        OnLoad = [this] { told.push_back(Visible ? "load, visible" : "load"); };
        OnResize = [this] { told.push_back("resize"); };
        OnActivate = [this] { told.push_back("activate"); };
        OnUnload = [this] { told.push_back(Visible ? "unload" : "unload, hidden"); };
    }
    Told told;
};

TEST(Window, StartsUnloadedAndHidden) {
    Sample window;
    EXPECT_FALSE(window.Loaded);
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(window.Reachable());
    EXPECT_EQ(window.Kind(), ControlKind::Window);
    EXPECT_EQ(&window.Parent(), &window);
}

TEST(Window, FirstShowLoadsResizesAndActivates) {
    Sample window;
    window.Show();
    EXPECT_EQ(window.told, (Told{"load", "resize", "activate"}));
    window.Show();  // visible already
    EXPECT_EQ(window.told.size(), 3u);
}

TEST(Window, ShownAgainAfterHidingIsOnlyActivated) {
    Sample window;
    window.Show();
    window.told.clear();
    window.Hide();
    EXPECT_TRUE(window.Loaded);
    window.Show();
    EXPECT_EQ(window.told, Told{"activate"});
}

TEST(Window, LoadHappensOnce) {
    Sample window;
    window.Load();
    window.Load();
    window.Show();
    EXPECT_EQ(window.told, (Told{"load", "resize", "activate"}));
}

TEST(Window, UnloadEndsItsLifeUntilTheNextLoad) {
    Sample window;
    window.Show();
    window.told.clear();
    EXPECT_TRUE(window.Unload());
    EXPECT_FALSE(window.Loaded);
    EXPECT_FALSE(window.Visible);
    EXPECT_TRUE(window.Unload());  // nothing left to do
    EXPECT_EQ(window.told, Told{"unload"});
    window.Show();
    EXPECT_EQ(window.told, (Told{"unload", "load", "resize", "activate"}));
}

TEST(Window, HiddenWindowIsUnloadedToo) {
    Sample window;
    window.Load();
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(window.told, (Told{"load", "unload, hidden"}));
}

TEST(Window, HandlerMayRefuseTheUnload) {
    Sample window;
    window.OnQueryUnload.Anew() = [](bool& stay) { stay = true; };
    window.Show();
    EXPECT_FALSE(window.Unload());
    EXPECT_TRUE(window.Visible);
    EXPECT_TRUE(window.Loaded);
}

TEST(Window, UnloadInsideItsUnloadDoesNothing) {
    Sample window;
    int unloads = 0;
    window.OnUnload.Anew() = [&] {
        ++unloads;
        EXPECT_TRUE(window.Unloading());
        EXPECT_TRUE(window.Unload());
    };
    window.Show();
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(window.Unloading());
}

TEST(Window, LeavingItsUnloadByAnExceptionLeavesNoMark) {
    Sample window;
    window.OnUnload.Anew() = [] { throw platform::ProgramEnd{}; };
    window.Show();
    EXPECT_THROW(window.Unload(), platform::ProgramEnd);
    EXPECT_FALSE(window.Unloading());
}

TEST(Window, ResizeIsToldOnAChangeOnly) {
    Sample window;
    window.ResizeTo(3000, 1500);
    window.ResizeTo(3000, 1500);
    window.ResizeTo(3000, 1515);
    EXPECT_EQ(window.told, (Told{"resize", "resize"}));
    EXPECT_EQ(window.Width, 3000);
    EXPECT_EQ(window.Height, 1515);
}

TEST(Windows, HaveGivenNames) {
    const std::set<std::string> expected{
        "Form1",  "form2",  "Form3",  "Form4",       "Form5",        "Form6",        "Form7",
        "form8",  "Form9",  "Form10", "Form11",      "Form12",       "form13",       "Form14",
        "Form15", "Form16", "form17", "Form18",      "Form19",       "Form20",       "Form21",
        "Form22", "Form23", "Form24", "Slidescreen", "Slidescreen2", "RelinkPreview"};
    Windows windows;
    std::set<std::string> names;
    for (Window* window : windows.All()) {
        names.insert(window->Name());
        EXPECT_EQ(windows.Find(window->Name()), window);
    }
    EXPECT_EQ(names, expected);
}

TEST(Windows, AreFoundWithoutRegardToCase) {
    Windows windows;
    EXPECT_EQ(windows.Find("FORM8"), &windows.form8);
    EXPECT_EQ(windows.Find("slidescreen2"), &windows.slidescreen2);
    EXPECT_EQ(windows.Find("Form25"), nullptr);
    EXPECT_EQ(windows.Find(""), nullptr);
}

TEST(Windows, ControlsOfAWindowHaveDifferentNames) {
    Windows windows;
    for (Window* window : windows.All()) {
        std::set<std::string> names;
        for (Control* control : window->Controls()) {
            EXPECT_TRUE(names.insert(control->Name()).second)
                << window->Name() << '.' << control->Name();
            EXPECT_EQ(&control->Parent(), window);
        }
    }
}

TEST(Windows, MousePointerIsOneForAll) {
    Windows windows;
    windows.SetPointer(kPointerBusy);
    EXPECT_EQ(windows.Pointer(), 11);
    EXPECT_EQ(windows.slidescreen.MousePointer, 11);
    windows.SetPointer(kPointerNormal);
    EXPECT_EQ(windows.Pointer(), 0);
}

TEST(MainWindow, ButtonsBearTheirCaptions) {
    Windows windows;
    const Form1& form1 = windows.form1;
    EXPECT_EQ(form1.Command1.Caption(), u"START");
    EXPECT_EQ(form1.Command2.Caption(), u"PAUSE");
    EXPECT_EQ(form1.Command3.Caption(), u"STOP");
    EXPECT_EQ(form1.Command4.Caption(), u"画面全体");
    EXPECT_EQ(form1.Command5.Caption(), u"前画面");
    EXPECT_EQ(form1.Command7.Caption(), u"次画面");
    EXPECT_EQ(form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
}

TEST(MainWindow, FileMenuHasItsEntriesInOrder) {
    Windows windows;
    std::vector<std::pair<std::string, Text>> entries;
    for (const MenuEntry* entry : windows.form1.mnuFILE.Children()) {
        entries.emplace_back(entry->Name(), entry->Caption());
    }
    EXPECT_EQ(entries,
              (std::vector<std::pair<std::string, Text>>{{"mnuNEW", u"新規作成(&N)"},
                                                         {"mnuOPEN", u"KVSﾌｧｲﾙを開く(&O)"},
                                                         {"mnuSAVE", u"KVSﾌｧｲﾙを保存(&S)"},
                                                         {"mnuHAIHU", u"KVSﾌｧｲﾙを配布保存(&H)"},
                                                         {"nmuEND", u"終了(&X)"}}));
}

TEST(MainWindow, RadioMenusHaveAnEntryForEveryValue) {
    Windows windows;
    Form1& form1 = windows.form1;
    EXPECT_EQ(form1.mnuFULL_FL.Count(), 2);
    EXPECT_EQ(form1.mnuYOMI.Count(), 2);
    EXPECT_EQ(form1.mnuKOU.Count(), 10);
    EXPECT_EQ(form1.mnuHKO.Count(), 12);
    EXPECT_EQ(form1.mnuSYOUKO.Count(), 13);
    EXPECT_EQ(form1.mnuSIZE.Count(), 3);
    EXPECT_EQ(form1.mnuKASANE.Count(), 5);
    EXPECT_EQ(form1.mnuKAIRO.Count(), 10);
    EXPECT_EQ(form1.mnuKASAS.Count(), 7);
    EXPECT_EQ(form1.mnuCDRND.Count(), 3);
    EXPECT_EQ(form1.mnuSYOUKO(11).Caption(), u"表示効果連動");
    EXPECT_EQ(form1.mnuSYOUKO(12).Caption(), u"なし");
    EXPECT_EQ(form1.mnuHKO(11).Caption(), u"なし");
    EXPECT_EQ(form1.Picture2.Count(), 63);
    EXPECT_EQ(windows.slidescreen.Picture1.Count(), 63);
}

}  // namespace
}  // namespace model
