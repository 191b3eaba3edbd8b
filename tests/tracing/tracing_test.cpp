// What the trace gets of windows and of the system.
#include <gtest/gtest.h>

#include "adapters/tracing/traced_sound.h"
#include "adapters/tracing/traced_system.h"
#include "adapters/tracing/window_tracer.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/video_window.h"
#include "support/fake_platform.h"

namespace tracing {
namespace {

using Line = fakes::FakeTrace::Line;

TEST(WindowTracer, TellsShownHiddenAndUnloaded) {
    fakes::FakePlatform around;
    WindowTracer tracer(around.trace);
    model::Windows& windows = around.app.windows;
    tracer.Attach(windows);
    windows.form3.Load();  // not to be seen yet
    windows.form3.Show();
    windows.form3.Show();
    windows.form3.Hide();
    windows.form3.Show();
    windows.form3.Unload();
    windows.form9.Load();
    windows.form9.Unload();
    windows.form3.Command16.Visible = false;  // a control is no window
    std::vector<Text> told;
    for (const Line& line : around.trace.Of("window")) {
        told.push_back(line.String("name") + u" " + line.String("state"));
    }
    EXPECT_EQ(told, (std::vector<Text>{u"Form3 shown", u"Form3 hidden", u"Form3 shown",
                                       u"Form3 unloaded", u"Form9 unloaded"}));
}

TEST(WindowTracer, KnowsTheModalWindowOnTop) {
    fakes::FakePlatform around;
    WindowTracer tracer(around.trace);
    model::Windows& windows = around.app.windows;
    tracer.Attach(windows);
    windows.form1.Show();
    model::Window* seen = nullptr;
    around.loop.At(10, [&] {
        seen = tracer.ModalWindow();
        windows.form3.Show();  // not modal: the modal one stays the one that takes input
        EXPECT_EQ(tracer.ModalWindow(), &windows.form24);
        windows.form24.Unload();
    });
    windows.form24.ShowModal(around.loop);
    EXPECT_EQ(seen, &windows.form24);
    EXPECT_EQ(tracer.ModalWindow(), nullptr);
    EXPECT_EQ(around.loop.Milliseconds(), 10);
    EXPECT_FALSE(windows.form24.Modal());
}

TEST(TracedSound, TellsCommandsWithTheirResultsAndSounds) {
    fakes::FakePlatform around;
    around.sound.answer = [](TextView) -> Text { return u"stopped"; };
    TracedSound sound(around.sound, around.trace);
    EXPECT_EQ(sound.MciSendString(u"status wav mode"), u"stopped");
    sound.SndPlaySound(u"a.wav", 3);
    sound.SndPlaySound(std::nullopt, 0);
    ASSERT_EQ(around.trace.lines.size(), 3u);
    EXPECT_EQ(around.trace.lines[0].event, "mci");
    EXPECT_EQ(around.trace.lines[0].String("command"), u"status wav mode");
    EXPECT_EQ(around.trace.lines[0].String("result"), u"stopped");
    EXPECT_EQ(around.trace.lines[1].event, "sndPlaySound");
    EXPECT_EQ(around.trace.lines[1].String("file"), u"a.wav");
    EXPECT_EQ(around.trace.lines[1].Number("flags"), 3);
    EXPECT_TRUE(std::holds_alternative<std::nullptr_t>(around.trace.lines[2].fields[0].second));
    EXPECT_EQ(around.sound.played.size(), 2u);
}

TEST(TracedSystem, TellsTextsAndStartsWhereItMay) {
    for (const bool starts : {false, true}) {
        fakes::FakePlatform around;
        TracedSystem system(around.system, around.trace, starts);
        EXPECT_TRUE(system.Shell(u"a.exe b", u"C:\\x.kvs"));
        EXPECT_TRUE(around.trace.Of("shell").empty()) << "what starts it tells";
        EXPECT_TRUE(system.OpenText(u"/a.txt"));
        const auto told = around.trace.Of("shell");
        ASSERT_EQ(told.size(), 1u);
        EXPECT_EQ(told[0].String("command"), u"NOTEPAD.EXE /a.txt");
        system.ForgetShow();
        EXPECT_EQ(around.system.forgotten, 1);
        EXPECT_EQ(around.system.started.size(), starts ? 1u : 0u);
        EXPECT_EQ(system.AppFolder(), around.system.appFolder);
    }
}

}  // namespace
}  // namespace tracing
