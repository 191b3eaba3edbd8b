// Leaving the program from any depth, timers, waiting.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <stdexcept>

#include "adapters/qt/desktop.h"

namespace {

using platform::ProgramEnd;
using qt_adapter::Desktop;

struct Loops : testing::Test {
    int argc = 0;
    Desktop desktop{argc, nullptr, {true, {}}};
    platform::EventLoop& loop = desktop.Loop();
    int keys[4] = {};  // their addresses name timers
};

/// Tells when it was destroyed, to show that frames were left in order.
struct Leaves {
    int& count;
    ~Leaves() { ++count; }
};

TEST_F(Loops, ProgramEndLeavesANestedPumpInATimerInABox) {
    int left = 0;
    bool boxReturned = false;
    // Inside the box a timer's handler waits in a pump; in that, another timer ends the program.
    loop.SetTimer(&keys[0], 1, [&] {
        loop.CancelTimer(&keys[0]);
        const Leaves guard{left};
        loop.SetTimer(&keys[1], 1, [&] {
            const Leaves inner{left};
            throw ProgramEnd{7};
        });
        for (;;) {
            loop.PumpEvents();
            loop.Sleep(1);
        }
    });
    int status = 0;
    try {
        const Leaves guard{left};
        desktop.Dialogs().Message(u"続けますか。", platform::kYesNoQuestion, u"確認");
        boxReturned = true;
    } catch (const ProgramEnd& end) {
        status = end.exitStatus;
    }
    EXPECT_EQ(status, 7);
    EXPECT_FALSE(boxReturned);
    EXPECT_EQ(left, 3);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    loop.CancelTimer(&keys[1]);
    // The way out is over: the loop serves again.
    int ticks = 0;
    loop.SetTimer(&keys[2], 1, [&] { ++ticks; });
    loop.RunUntil([&] { return ticks > 1; });
    EXPECT_GE(ticks, 2);
    loop.CancelTimer(&keys[2]);
}

TEST_F(Loops, ProgramEndLeavesTwoBoxesOverEachOther) {
    loop.SetTimer(&keys[0], 1, [&] {
        loop.CancelTimer(&keys[0]);
        loop.SetTimer(&keys[1], 1, [] { throw ProgramEnd{3}; });
        desktop.Dialogs().Input(u"値", u"内側", u"5");
        ADD_FAILURE() << "the inner box returned";
    });
    EXPECT_THROW(desktop.Dialogs().Message(u"外側", platform::kPlain, u""), ProgramEnd);
    loop.CancelTimer(&keys[1]);
}

TEST_F(Loops, ProgramEndLeavesAnIdleProgram) {
    loop.SetTimer(&keys[0], 1, [] { throw ProgramEnd{}; });
    EXPECT_THROW(loop.RunUntil([] { return false; }), ProgramEnd);
    loop.CancelTimer(&keys[0]);
}

TEST_F(Loops, NoHandlerRunsOnTheWayOut) {
    int after = 0;
    loop.SetTimer(&keys[0], 1, [&] {
        loop.CancelTimer(&keys[0]);
        loop.SetTimer(&keys[1], 1, [] { throw ProgramEnd{}; });
        try {
            for (;;) {
                loop.PumpEvents();
                loop.Sleep(1);
            }
        } catch (const ProgramEnd&) {
            // What a frame does while it is left may still touch the loop.
            loop.SetTimer(&keys[2], 1, [&] { ++after; });
            EXPECT_THROW(loop.PumpEvents(), ProgramEnd);
            EXPECT_THROW(loop.Sleep(5), ProgramEnd);
            throw;
        }
    });
    EXPECT_THROW(loop.RunUntil([] { return false; }), ProgramEnd);
    EXPECT_EQ(after, 0);
    for (int& key : keys) {
        loop.CancelTimer(&key);
    }
}

TEST_F(Loops, AnErrorOfAHandlerIsCarriedLikeProgramEnd) {
    loop.SetTimer(&keys[0], 1, [] { throw std::runtime_error("broken"); });
    EXPECT_THROW(loop.RunUntil([] { return false; }), std::runtime_error);
    loop.CancelTimer(&keys[0]);
}

TEST_F(Loops, CancelledTimersStayQuietAndMayCancelThemselves) {
    int first = 0, second = 0;
    loop.SetTimer(&keys[0], 1, [&] {
        ++first;
        loop.CancelTimer(&keys[0]);
    });
    loop.SetTimer(&keys[1], 1, [&] {
        ++second;
        loop.SetTimer(&keys[1], 1, [&] { second += 100; });  // replaces itself
    });
    loop.RunUntil([&] { return first >= 1 && second >= 101; });
    loop.CancelTimer(&keys[1]);
    loop.CancelTimer(&keys[3]);  // never set
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second % 100, 1);
}

TEST_F(Loops, OtherTimersRunWhileOneWaits) {
    bool other = false, outer = false;
    loop.SetTimer(&keys[0], 1, [&] {
        loop.CancelTimer(&keys[0]);
        loop.SetTimer(&keys[1], 1, [&] { other = true; });
        while (!other) {
            loop.PumpEvents();
            loop.Sleep(1);
        }
        outer = true;
    });
    loop.RunUntil([&] { return outer; });
    EXPECT_TRUE(other);
    loop.CancelTimer(&keys[1]);
}

TEST_F(Loops, ClocksAgree) {
    const double start = loop.Milliseconds();
    loop.Sleep(30);
    EXPECT_GE(loop.Milliseconds() - start, 30.0);
    const double seconds = loop.Timer();
    EXPECT_GE(seconds, 0.0);
    EXPECT_LT(seconds, 86400.0);
    const platform::CalendarTime now = platform::ToCalendar(loop.Now());
    EXPECT_GE(now.year, 2024);
    for (int i = 0; i < 1000; ++i) {
        const double random = loop.Rnd();
        ASSERT_GE(random, 0.0);
        ASSERT_LT(random, 1.0);
    }
}

TEST_F(Loops, BoxesAnswerWhatWasPressed) {
    const auto press = [&](QMessageBox::StandardButton button) {
        loop.SetTimer(&keys[0], 1, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box) {
                loop.CancelTimer(&keys[0]);
                EXPECT_EQ(box->text(), QStringLiteral("一行目\n二行目"));
                if (button == QMessageBox::NoButton) {
                    box->close();
                } else {
                    box->button(button)->click();
                }
            }
        });
        return desktop.Dialogs().Message(u"一行目\r\n二行目", platform::kYesNoQuestion, u"題");
    };
    EXPECT_EQ(press(QMessageBox::Yes), platform::Answer::Yes);
    EXPECT_EQ(press(QMessageBox::No), platform::Answer::No);
    EXPECT_EQ(press(QMessageBox::NoButton), platform::Answer::No) << "closed by its frame";
}

TEST_F(Loops, BoxesStandOverTheWindowThatWasLastActive) {
    QWidget first, last;
    const auto parentOfBox = [&] {
        const QWidget* parent = nullptr;
        loop.SetTimer(&keys[0], 1, [&] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                loop.CancelTimer(&keys[0]);
                parent = box->parentWidget();
                box->close();
            }
        });
        desktop.Dialogs().Message(u"本文", platform::kPlain, u"題");
        return parent;
    };
    for (QWidget* window : {&first, &last}) {
        window->show();
        window->activateWindow();
        loop.PumpEvents();
        ASSERT_EQ(QApplication::activeWindow(), window);
    }
    QWidget tool(nullptr, Qt::Tool);
    tool.show();
    tool.activateWindow();
    loop.PumpEvents();
    ASSERT_EQ(QApplication::activeWindow(), &tool);
    EXPECT_EQ(parentOfBox(), &last);
    last.hide();
    tool.activateWindow();
    loop.PumpEvents();
    ASSERT_EQ(QApplication::activeWindow(), &tool);
    EXPECT_EQ(parentOfBox(), &first);
}

TEST_F(Loops, BoxesLookLikeBoxes) {
    Qt::WindowFlags flags;
    QImage sign;
    const auto look = [&](int kind) {
        loop.SetTimer(&keys[0], 1, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                loop.CancelTimer(&keys[0]);
                flags = box->windowFlags();
                sign = box->iconPixmap().toImage();
                for (const QAbstractButton* button : box->buttons()) {
                    EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
                }
                box->close();
            }
        });
        desktop.Dialogs().Message(u"本文", kind, u"題");
        EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Dialog);
        EXPECT_FALSE(flags & Qt::WindowMinMaxButtonsHint);
        EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
        return sign;
    };
    const QImage question = look(platform::kYesNoQuestion);
    const QImage warning = look(platform::kExclamation);
    const QImage information = look(platform::kInformation);
    const QImage stop = look(platform::kStop);
    EXPECT_FALSE(question.isNull());
    EXPECT_NE(question, warning);
    EXPECT_NE(question, information);
    EXPECT_NE(information, stop);
    EXPECT_NE(warning, stop);
    EXPECT_TRUE(look(platform::kPlain).isNull());
}

TEST_F(Loops, BoxesWithoutATitleBearTheProgramsName) {
    QStringList titles;
    const auto close = [&] {
        loop.SetTimer(&keys[0], 1, [&] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                loop.CancelTimer(&keys[0]);
                titles << box->windowTitle();
                box->close();
            }
        });
    };
    close();
    desktop.Dialogs().Message(u"本文", platform::kPlain, u"");
    close();
    desktop.Dialogs().Message(u"本文", platform::kPlain, u"題");
    close();
    EXPECT_EQ(desktop.Dialogs().Input(u"本文", u"", u""), std::nullopt);
    EXPECT_EQ(titles, (QStringList{"パラピコ", "題", "パラピコ"}));
}

TEST_F(Loops, BoxesKeepTheirButtonsOnTheScreen) {
    QString text;
    int height = 0;
    const auto look = [&] {
        loop.SetTimer(&keys[0], 1, [&] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                loop.CancelTimer(&keys[0]);
                const auto* message = qobject_cast<QMessageBox*>(box);
                text = message ? message->text() : box->findChild<QPlainTextEdit*>()->toPlainText();
                height = box->height();
                box->close();
            }
        });
    };
    Text command = u"first ";
    for (int i = 0; i < 4000; ++i) {
        command += u"&x ";
    }
    command += u"\u202Elast";
    look();
    EXPECT_EQ(desktop.AskProgram({u"<b>/t.exe</b>", {command}, true}), platform::ProgramAnswer::No)
        << "closed by its frame";
    EXPECT_LT(height, 500);
    EXPECT_TRUE(text.startsWith("プログラム: <b>/t.exe</b>\n引数 1: first &x")) << "all of it";
    EXPECT_TRUE(text.endsWith(QStringLiteral("&x \uFFFDlast"))) << "no mark of direction";
    look();
    desktop.Dialogs().Message(command + u"\r\n再生", platform::kExclamation, u"");
    EXPECT_LT(height, 500);
    EXPECT_TRUE(text.endsWith(QStringLiteral("last\n再生")));
}

TEST_F(Loops, InputGivesTheLineOrNothing) {
    const auto finish = [&](bool accept) {
        loop.SetTimer(&keys[0], 1, [this, accept] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                loop.CancelTimer(&keys[0]);
                accept ? box->accept() : box->reject();
            }
        });
        return desktop.Dialogs().Input(u"秒", u"間隔", u"３");
    };
    EXPECT_EQ(finish(true), std::optional<Text>(u"３"));
    EXPECT_EQ(finish(false), std::nullopt);
}

}  // namespace
