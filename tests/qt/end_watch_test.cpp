// The end that comes from outside: signals and the session, inside pumps and boxes.
#include "adapters/qt/end_watch.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QApplication>
#include <QDialog>
#include <thread>

#include "adapters/qt/desktop.h"

namespace {

using platform::ProgramEnd;
using qt_adapter::Desktop;

struct EndFromOutside : testing::Test {
    int argc = 0;
    Desktop desktop{argc, nullptr, {true, {}}};
    int saved = 0, left = 0;
    int key = 0;

    EndFromOutside() {
        desktop.WatchEnd({[this] {
                              ++left;
                              throw ProgramEnd{5};
                          },
                          [this] { ++saved; }});
    }
    ~EndFromOutside() override { desktop.UnwatchEnd(); }

    int StatusOf(const std::function<void()>& program) {
        try {
            program();
        } catch (const ProgramEnd& end) {
            return end.exitStatus;
        }
        return 0;
    }
    void Idle() {
        desktop.Loop().RunUntil([] { return false; });
    }
};

TEST_F(EndFromOutside, SignalsLeaveAnIdleProgram) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        raise(number);
        EXPECT_EQ(StatusOf([this] { Idle(); }), 5);
    }
    EXPECT_EQ(left, 3);
}

TEST_F(EndFromOutside, ASignalClosesTheBoxThatWaits) {
    desktop.Loop().SetTimer(&key, 1, [this] {
        desktop.Loop().CancelTimer(&key);
        std::thread([] { raise(SIGTERM); }).join();
    });
    bool answered = false;
    EXPECT_EQ(StatusOf([&] {
                  desktop.Dialogs().Message(u"続けますか。", platform::kYesNoQuestion, u"確認");
                  answered = true;
              }),
              5);
    EXPECT_FALSE(answered);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(EndFromOutside, TheSessionsCommandLeaves) {
    desktop.Loop().SetTimer(&key, 1, [this] {
        desktop.Loop().CancelTimer(&key);
        QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
    });
    EXPECT_EQ(StatusOf([this] { Idle(); }), 5);
    EXPECT_EQ(saved, 0);
}

TEST_F(EndFromOutside, TheLastMomentSavesOnce) {
    qt_adapter::SaveAtLast();
    EXPECT_EQ(saved, 1);
    qt_adapter::SaveAtLast();
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(left, 0);
}

TEST_F(EndFromOutside, AnotherThreadWaitsForTheProgramsOwnToSave) {
    std::thread other(qt_adapter::SaveAtLast);
    while (saved == 0) {
        desktop.Loop().PumpEvents();
    }
    other.join();
    EXPECT_EQ(saved, 1);
}

/// A leaving that itself asks something: the box that it brings up does not come, since nobody is
/// there.
TEST(EndFromOutsideAlone, BoxesOfTheLeavingDoNotWait) {
    int argc = 0;
    Desktop desktop(argc, nullptr, {true, {}});
    platform::Answer answer = platform::Answer::Yes;
    desktop.WatchEnd({[&] {
                          answer = desktop.Dialogs().Message(u"書けません。",
                                                             platform::kYesNoQuestion, u"");
                          EXPECT_FALSE(desktop.Dialogs().Input(u"?", u"", u"x"));
                          throw ProgramEnd{};
                      },
                      [] {}});
    raise(SIGTERM);
    EXPECT_THROW(desktop.Loop().RunUntil([] { return false; }), ProgramEnd);
    EXPECT_EQ(answer, platform::Answer::No);
    desktop.UnwatchEnd();
}

/// A box of an exit that the person began: the signal closes it, and the exit goes on.
TEST(EndFromOutsideAlone, ASignalInsideAnExitAnswersItsBoxes) {
    int argc = 0;
    Desktop desktop(argc, nullptr, {true, {}});
    int key = 0, asked = 0;
    desktop.WatchEnd({[] {}, [] {}});  // an exit that runs already: leaving returns
    desktop.Loop().SetTimer(&key, 1, [&] {
        desktop.Loop().CancelTimer(&key);
        raise(SIGTERM);
    });
    desktop.Dialogs().Message(u"書けません。", platform::kPlain, u"");
    ++asked;
    desktop.Dialogs().Message(u"書けません。", platform::kPlain, u"");
    ++asked;
    EXPECT_EQ(asked, 2);
    desktop.UnwatchEnd();
}

}  // namespace
