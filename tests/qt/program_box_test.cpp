// The question before a program starts: dead for a second, and nothing answers it by chance.
#include "adapters/qt/program_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcutEvent>

#include "adapters/qt/desktop.h"

namespace {

using platform::ProgramAnswer;
using qt_adapter::ProgramBox;

struct Box : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    double now = 5000;
    std::unique_ptr<ProgramBox> box;

    void Make(bool manyAsked = false) {
        box = std::make_unique<ProgramBox>(
            platform::ProgramQuestion{u"/opt/tool", {u"a b", u"x\ny"}, manyAsked}, nullptr,
            [this] { return now; });
        box->show();
        QApplication::processEvents();
    }
    QPushButton* Button(const char* begin) const {
        for (QPushButton* button : box->findChildren<QPushButton*>()) {
            if (button->text().startsWith(QString::fromUtf8(begin))) {
                return button;
            }
        }
        return nullptr;
    }
    void Key(int key, Qt::KeyboardModifiers modifiers, const char* text = "") {
        QWidget* focus = box->focusWidget() ? box->focusWidget() : box.get();
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, QString::fromUtf8(text));
            QApplication::sendEvent(focus, &event);
        }
    }
    void Press(QWidget& widget) {
        const QPointF place = widget.rect().center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(&widget, &event);
        }
    }
};

TEST_F(Box, IsDeadForASecondAfterItStands) {
    Make();
    EXPECT_FALSE(Button("はい")->isEnabled());
    EXPECT_FALSE(Button("いいえ")->isEnabled());
    now += 999;
    EXPECT_FALSE(box->LooksAlive());
    now += 1;
    EXPECT_TRUE(box->LooksAlive());
    for (QPushButton* button : box->findChildren<QPushButton*>()) {
        EXPECT_TRUE(button->isEnabled());
    }
    EXPECT_EQ(box->focusWidget(), Button("いいえ"));
}

TEST_F(Box, EveryPressInThatSecondBeginsItAnew) {
    Make();
    now += 900;
    Press(*Button("はい"));
    now += 900;
    Key(Qt::Key_Y, Qt::AltModifier);
    now += 900;
    Key(Qt::Key_Return, Qt::NoModifier);
    EXPECT_TRUE(box->isVisible());
    now += 999;
    EXPECT_FALSE(box->LooksAlive());
    now += 1;
    EXPECT_TRUE(box->LooksAlive());
    Press(*Button("はい"));
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(box->Answer(), ProgramAnswer::Yes);
}

TEST_F(Box, LettersAloneMeanNothing) {
    Make(true);
    now += 1000;
    ASSERT_TRUE(box->LooksAlive());
    for (const char* letter : {"y", "n", "s", "a", "q", "e"}) {
        Key(Qt::Key_A + letter[0] - 'a', Qt::NoModifier, letter);
        EXPECT_TRUE(box->isVisible()) << letter;
    }
    for (const QPushButton* button : box->findChildren<QPushButton*>()) {
        EXPECT_EQ(button->shortcut().toString().left(4), "Alt+") << button->text().toStdString();
    }
}

TEST_F(Box, EnterIsNoWhereverTheFocusIs) {
    for (const char* focus : {"はい", "いいえ", "この文書"}) {
        Make();
        now += 1000;
        ASSERT_TRUE(box->LooksAlive());
        Button(focus)->setFocus();
        Key(Qt::Key_Return, Qt::NoModifier);
        EXPECT_FALSE(box->isVisible());
        EXPECT_EQ(box->Answer(), ProgramAnswer::No) << focus;
    }
    Make();
    now += 1000;
    ASSERT_TRUE(box->LooksAlive());
    box->close();
    EXPECT_EQ(box->Answer(), ProgramAnswer::No);
}

TEST_F(Box, EachButtonIsItsAnswer) {
    const std::pair<const char*, ProgramAnswer> rows[] = {
        {"はい", ProgramAnswer::Yes},
        {"いいえ", ProgramAnswer::No},
        {"このショーの間", ProgramAnswer::ForShow},
        {"この文書", ProgramAnswer::Always},
        {"このショーではもう", ProgramAnswer::NoMore},
        {"ショーを終わる", ProgramAnswer::EndShow},
    };
    for (const auto& [caption, answer] : rows) {
        Make(true);
        now += 1000;
        ASSERT_TRUE(box->LooksAlive());
        Press(*Button(caption));
        EXPECT_EQ(box->Answer(), answer) << caption;
    }
    Make(false);
    EXPECT_EQ(Button("このショーではもう"), nullptr);
    EXPECT_EQ(Button("ショーを終わる"), nullptr);
}

TEST_F(Box, ShowsTheProgramAndEachArgument) {
    Make();
    const QString text = box->findChild<QPlainTextEdit*>()->toPlainText();
    EXPECT_EQ(text.toStdString(), "プログラム: /opt/tool\n引数 1: a b\n引数 2: x\xEF\xBF\xBDy");
}

}  // namespace
