// The scrolling text line: what each tick of its timers does.
#include <gtest/gtest.h>

#include "app/timers.h"
#include "macro/telop.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "playback/full_screen.h"
#include "playback/transport.h"
#include "support/fake_platform.h"

namespace {

/// A canvas of 100 pixels, a text 30 pixels wide, 25 pixels a tick of 50 ms.
struct Telop : testing::Test {
    fakes::FakePlatform fake;
    Application& app = fake.app;
    model::Form1& form1 = app.windows.form1;
    model::Slidescreen& screen = app.windows.slidescreen;
    app::TimerRunner timers{app};

    Telop() {
        playback::AttachTransport(app);
        playback::AttachFullScreen(app);
        form1.Picture1.SetSize(100 * 15, 40 * 15);
        screen.P2.SetSize(200 * 15, 40 * 15);
        app.state.TelopStep = 25;
        app.state.TelopText = u"next";
        for (model::Label* label : {&form1.Label1, &screen.Label1}) {
            label->Caption = u"now";
            label->Width = 30;
            label->Visible = true;
        }
        form1.Label1.Left = 100;
        screen.Label1.Left = 0;
    }
};

TEST_F(Telop, MovesByItsStepAndComesInAgainFromTheRight) {
    form1.Timer4.Interval = 50;
    form1.Timer4.Enabled = true;
    fake.loop.Run(50);
    EXPECT_EQ(form1.Label1.Left(), 75);
    fake.loop.Run(150);
    EXPECT_EQ(form1.Label1.Left(), 0);
    fake.loop.Run(50);
    EXPECT_EQ(form1.Label1.Left(), -25) << "five pixels are still to be seen";
    EXPECT_EQ(form1.Label1.Caption(), u"now");
    fake.loop.Run(50);
    EXPECT_EQ(form1.Label1.Left(), 100);
    EXPECT_EQ(form1.Label1.Caption(), u"next");
    EXPECT_TRUE(form1.Timer4.Enabled);
    EXPECT_EQ(screen.Label1.Left(), 0) << "the other window's line stands still";
}

TEST_F(Telop, ALineThatEndsExactlyAtTheEdgeIsStillThere) {
    form1.Label1.Left = -5;
    macro::ScrollTelopInWindow(app);
    EXPECT_EQ(form1.Label1.Left(), -30);
    EXPECT_EQ(form1.Label1.Caption(), u"now");
}

TEST_F(Telop, OneThatRunsOnceEndsAfterTheEdge) {
    app.state.TelopRunning = 1;
    screen.Timer1.Interval = 50;
    screen.Timer1.Enabled = true;
    fake.loop.Run(100);
    EXPECT_EQ(screen.Label1.Left(), -50);
    EXPECT_EQ(app.state.TelopRunning, 0);
    EXPECT_EQ(screen.Label1.Caption(), u"");
    EXPECT_EQ(form1.Label1.Caption(), u"");
    EXPECT_FALSE(screen.Label1.Visible);
    EXPECT_TRUE(form1.Label1.Visible) << "only its own label is hidden";
    EXPECT_FALSE(screen.Timer1.Enabled);
}

TEST_F(Telop, ItComesBackAtItsOwnCanvassEdge) {
    screen.Label1.Left = -29;
    macro::ScrollTelopOnScreen(app);
    EXPECT_EQ(screen.Label1.Left(), 200);
}

TEST_F(Telop, CancellingEndsBothLines) {
    app.state.TelopRunning = 1;
    form1.Timer4.Enabled = true;
    screen.Timer1.Enabled = true;
    macro::CancelTelop(app);
    for (model::Label* label : {&form1.Label1, &screen.Label1}) {
        EXPECT_EQ(label->Caption(), u"");
        EXPECT_FALSE(label->Visible);
    }
    EXPECT_FALSE(form1.Timer4.Enabled);
    EXPECT_FALSE(screen.Timer1.Enabled);
    EXPECT_EQ(app.state.TelopRunning, 0);
}

}  // namespace
