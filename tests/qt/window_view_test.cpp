// A window with a control of every kind: what the window system reports, drops, the keyboard's
// way through it; and the sizes of the program's own windows.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDropEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>
#include <QWindow>
#include <set>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/form_loader.h"
#include "adapters/qt/window_view.h"
#include "model/controls.h"
#include "model/grid.h"
#include "model/list_controls.h"
#include "model/menu.h"
#include "model/panes.h"
#include "model/picture_controls.h"
#include "model/scroll_bar.h"
#include "model/windows.h"
#include "model/windows/linked_folder.h"
#include "qt/widget_acts.h"

namespace {

using model::ControlKind;
using Paths = std::vector<Text>;

struct EveryKind : model::Window {
    EveryKind() : Window("EveryKind", u"各種") { EnterPresses = &Command1; }
    model::Frame Frame1{this, "Frame1", u"枠"};
    model::OptionButton Option1{this, "Option1", u"選択", &Frame1};
    model::CheckBox Check1{this, "Check1", u"確認"};
    model::Label Label1{this, "Label1", u"名札"};
    model::TextBox Text1{this, "Text1"};
    model::ListBox List1{this, "List1", model::kSelectMany};
    model::FileList File1{this, "File1"};
    model::FolderList Dir1{this, "Dir1"};
    model::Grid Grid1{this, "Grid1", {u"番号"}};
    model::ComboBox Combo1{this, "Combo1"};
    model::DriveList Drive1{this, "Drive1"};
    model::Calendar Calendar1{this, "Calendar1"};
    model::ScrollBar HScroll1{this, "HScroll1"};
    model::PictureBox Picture1{this, "Picture1"};
    model::Image Image1{this, "Image1"};
    model::Player Player1{this, "Player1"};
    model::Button Command1{this, "Command1", u"押す"};
    model::Panes Panes1{this, "Panes1"};
    model::MenuEntry mnuALL{this, "mnuALL", u"全部"};
    model::Timer Timer1{this, "Timer1"};
    model::LeadControl LEAD1{this, "LEAD1"};
};

struct WindowViews : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    qt_adapter::Gate gate;
    qt_adapter::FormLoader loader{nullptr};
    EveryKind window, other;
    std::unique_ptr<qt_adapter::WindowView> view, otherView;

    void SetUp() override {
        const auto viewOf = [this](const QString& name) {
            return name == "EveryKind" ? view.get() : nullptr;
        };
        view = std::make_unique<qt_adapter::WindowView>(window, loader, gate, viewOf);
        otherView = std::make_unique<qt_adapter::WindowView>(other, loader, gate, viewOf);
    }
    void TearDown() override {
        otherView.reset();
        view.reset();
    }
    void Pump() { desktop.Loop().PumpEvents(); }
    void Show() {
        window.Show();
        Pump();
    }
    QWidget& Root() { return *view->Widget(); }
    template <class Widget = QWidget>
    Widget& Find(const char* name) {
        return *Root().findChild<Widget*>(name);
    }
};

TEST_F(WindowViews, EveryKindOfControlIsThereAndShown) {
    std::set<ControlKind> kinds{ControlKind::Window};
    for (const model::Control* control : window.Controls()) {
        kinds.insert(control->Kind());
    }
    constexpr int kLast = static_cast<int>(ControlKind::Imaging);
    EXPECT_EQ(static_cast<int>(kinds.size()), kLast + 1) << "each kind has its class";
    testing::internal::CaptureStderr();
    Show();
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find("does not fit"), std::string::npos) << said;
    for (model::Control* control : window.Controls()) {
        if (qt_adapter::HasWidget(control->Kind())) {
            EXPECT_TRUE(Find(control->Name().c_str()).isVisible()) << control->Name();
        }
    }
    for (const ControlKind kind :
         {ControlKind::Window, ControlKind::Timer, ControlKind::MenuEntry, ControlKind::Imaging}) {
        EXPECT_FALSE(qt_adapter::HasWidget(kind));
    }
    EXPECT_EQ(Root().findChild<QMenuBar*>()->actions().size(), 1);
}

TEST_F(WindowViews, PaintingIsHeardOnceItIsDone) {
    int painted = 0;
    window.OnPaint = [&] { ++painted; };
    Show();
    EXPECT_GE(painted, 1);
    painted = 0;
    QExposeEvent uncovered(QRegion(0, 0, 50, 50));
    QApplication::sendEvent(Root().windowHandle(), &uncovered);
    EXPECT_EQ(painted, 0) << "not before the toolkit is done";
    Pump();
    EXPECT_EQ(painted, 1);
}

TEST_F(WindowViews, ComingAndLeavingAmongTheProgramsOwnWindows) {
    std::vector<std::string> heard;
    window.OnActivate = [&] { heard.emplace_back("activate"); };
    window.OnDeactivate = [&] { heard.emplace_back("deactivate"); };
    Show();
    EXPECT_EQ(heard, std::vector<std::string>{"activate"}) << "once, by its showing";
    other.Show();
    Pump();
    EXPECT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard.back(), "deactivate");
    other.Hide();
    Root().activateWindow();
    Pump();
    EXPECT_EQ(heard.size(), 3U);
    EXPECT_EQ(heard.back(), "activate");
    // Away to a box and back, which is no window of the model's.
    QWidget box;
    box.show();
    box.activateWindow();
    Pump();
    Root().activateWindow();
    Pump();
    EXPECT_EQ(heard.size(), 3U);
}

TEST_F(WindowViews, HiddenAndShownAgainIsOneComing) {
    int comings = 0;
    window.OnActivate = [&] { ++comings; };
    Show();
    other.Show();
    Pump();
    window.Hide();
    Pump();
    window.Show();
    Pump();
    EXPECT_EQ(comings, 2);
}

/// Files let go over the widget, as the toolkit reports it.
bool DropOn(QWidget& widget, QWidget& root, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    const QPoint place = widget.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    const QPoint below = widget.mapTo(&root, place);
    QDragMoveEvent move(below, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&root, &move);
    if (!move.isAccepted()) {
        return false;
    }
    QDropEvent drop(QPointF(below), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&root, &drop);
    return true;
}

TEST_F(WindowViews, FilesDroppedOnAListOrATextReachIt) {
    Paths onList, onText, onWindow;
    window.List1.FilesDropped = [&](const Paths& paths) { onList = paths; };
    window.Text1.FilesDropped = [&](const Paths& paths) { onText = paths; };
    Show();
    const QList<QUrl> files{QUrl::fromLocalFile("/pics/a.png"),
                            QUrl::fromLocalFile("/pics/夜.png")};
    const Paths paths{u"/pics/a.png", u"/pics/夜.png"};
    auto& list = Find<QAbstractScrollArea>("List1");
    auto& text = Find<QPlainTextEdit>("Text1");
    EXPECT_TRUE(DropOn(*list.viewport(), Root(), files));
    Pump();
    EXPECT_EQ(onList, paths);
    EXPECT_TRUE(DropOn(*text.viewport(), Root(), files));
    Pump();
    EXPECT_EQ(onText, paths);
    EXPECT_EQ(text.toPlainText(), QString()) << "they are not written into it";
    EXPECT_FALSE(DropOn(Find("Command1"), Root(), files)) << "nobody takes them there";
    window.FilesDropped = [&](const Paths& dropped) { onWindow = dropped; };
    EXPECT_TRUE(DropOn(Find("Command1"), Root(), files));
    Pump();
    EXPECT_EQ(onWindow, paths);
    onList.clear();
    window.List1.Enabled = false;
    EXPECT_TRUE(DropOn(*list.viewport(), Root(), files));
    Pump();
    EXPECT_EQ(onList, Paths{}) << "the window took them";
}

TEST_F(WindowViews, TheKeyboardGoesByTheFormsOrder) {
    Show();
    ASSERT_TRUE(Root().isActiveWindow());
    EXPECT_NE(QApplication::focusWidget(), nullptr) << "somebody hears the keys from the start";
    struct Step {
        const char* from;
        const char* to;
    };
    // Out of a text of several lines no Tab leads: it is a letter there.
    for (const Step& step : {Step{"Check1", "Text1"}, Step{"List1", "Command1"}}) {
        Find(step.from).setFocus();
        acts::Key(Find(step.from), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &Find(step.to)) << step.to;
    }
}

TEST_F(WindowViews, EnterPressesTheButtonThatTheWindowNames) {
    int presses = 0;
    window.Command1.Click = [&] { ++presses; };
    Show();
    acts::Key(Find("Check1"), Qt::Key_Return);
    EXPECT_EQ(presses, 1);
}

TEST_F(WindowViews, ADialogBeginsAtItsFirstControlEachTime) {
    Show();
    QWidget* first = Root().focusWidget();
    ASSERT_NE(first, nullptr);
    Find("Command1").setFocus();
    EXPECT_NE(first, &Find("Command1"));
    window.Hide();
    window.Show();
    Pump();
    EXPECT_EQ(Root().focusWidget(), first);
}

TEST_F(WindowViews, TheProgramGivesAButtonTheKeyboard) {
    Show();
    Find("Text1").setFocus();
    EXPECT_TRUE(window.Command1.SetFocus());
    EXPECT_EQ(QApplication::focusWidget(), &Find("Command1"));
}

/// Form12's Enter is that of its OK, unless the cancel button has the keyboard.
TEST(OwnWindows, EnterPressesTheButtonThatHasTheKeyboard) {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    model::Windows windows;
    desktop.MakeViews(windows);
    model::Form12& form12 = windows.form12;
    std::string pressed;
    form12.Command1.Click = [&] { pressed += "ok "; };
    form12.Command2.Click = [&] { pressed += "cancel "; };
    form12.Show();
    for (const char* name : {"Check1", "Command2", "Command1"}) {
        auto* widget = desktop.WidgetOf(form12)->findChild<QWidget*>(name);
        widget->setFocus();
        acts::Key(*widget, Qt::Key_Return);
    }
    EXPECT_EQ(pressed, "ok cancel ok ");
    desktop.UnmakeViews();
}

TEST_F(WindowViews, KeysAreHeardByTheControlThatHasThem) {
    std::vector<int> keys;
    window.Check1.KeyDown = [&](int key) { keys.push_back(key); };
    window.Text1.KeyDown = [&](int key) { keys.push_back(key); };
    window.Combo1.KeyDown = [&](int key) { keys.push_back(key); };
    Show();
    acts::Key(Find("Check1"), Qt::Key_F1);
    acts::Key(Find("Text1"), Qt::Key_Escape);
    acts::Key(Find("Combo1"), Qt::Key_Delete);
    EXPECT_EQ(keys, (std::vector<int>{112, 27, 46}));
}

/// All forms of the program, at the smallest size that a person can give them.
TEST(OwnWindows, CannotBeMadeTooSmallForTheirControls) {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    model::Windows windows;
    desktop.MakeViews(windows);
    for (model::Window* window : windows.All()) {
        QWidget* root = desktop.WidgetOf(*window);
        if (!root || !root->layout() || root->property("coversMonitor").toBool() ||
            root->property("windowKind").isValid() || qobject_cast<QMainWindow*>(root)) {
            continue;
        }
        SCOPED_TRACE(window->Name());
        window->Visible = true;
        desktop.Loop().PumpEvents();
        root->resize(1, 1);
        desktop.Loop().PumpEvents();
        for (const QWidget* widget : root->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (widget->isVisible()) {
                SCOPED_TRACE(widget->objectName().toStdString());
                EXPECT_TRUE(root->rect().contains(widget->geometry()));
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
            }
        }
        window->Visible = false;
    }
    desktop.UnmakeViews();
}

}  // namespace
