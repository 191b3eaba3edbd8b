// Every window with a form, walked: each control has its widget and both follow each other.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QUrl>
#include <algorithm>
#include <set>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/form_loader.h"
#include "model/controls.h"
#include "model/menu.h"
#include "model/picture_controls.h"
#include "model/windows/cd_program.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"

namespace {

using model::ControlKind;
using qt_adapter::Desktop;
using qt_adapter::ToQt;
using qt_adapter::WidgetName;

struct Views : testing::Test {
    int argc = 0;
    Desktop desktop{argc, nullptr, {true, {}}};
    model::Windows windows;

    void SetUp() override { desktop.MakeViews(windows); }
    void TearDown() override { desktop.UnmakeViews(); }

    std::vector<model::Window*> Shown() {
        std::vector<model::Window*> shown;
        for (model::Window* window : windows.All()) {
            if (desktop.WidgetOf(*window)) {
                shown.push_back(window);
            }
        }
        return shown;
    }
    QWidget* WidgetOf(model::Control& control) {
        return desktop.WidgetOf(control.Parent())->findChild<QWidget*>(WidgetName(control.Name()));
    }
    QAction* ActionOf(model::MenuEntry& entry) {
        return desktop.WidgetOf(entry.Parent())->findChild<QAction*>(WidgetName(entry.Name()));
    }
};

void ClickAt(QWidget& widget) {
    const QPointF place(widget.rect().center());
    const QPointF global = widget.mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, place, global, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, place, global, Qt::LeftButton, {}, {});
    QApplication::sendEvent(&widget, &press);
    QApplication::sendEvent(&widget, &release);
}

void PressKey(QWidget& widget, int key) {
    QKeyEvent press(QEvent::KeyPress, key, {});
    QApplication::sendEvent(&widget, &press);
}

QWidget* MadeWindow(const QString& name) {
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.begin(), all.end(), [&](const QWidget* widget) {
        return widget->objectName() == name;
    });
    return found == all.end() ? nullptr : *found;
}

TEST(FullScreenShow, MakesNoMainWindow) {
    int argc = 0;
    Desktop desktop(argc, nullptr, {.offscreen = true, .screens = {}});
    model::Windows windows;
    desktop.MakeViews(windows);
    windows.slidescreen.Width = 100 * platform::kTwipsPerPixel;
    windows.slidescreen.Height = 80 * platform::kTwipsPerPixel;
    windows.slidescreen.Show();
    EXPECT_NE(MadeWindow("Slidescreen"), nullptr);
    // The monitor is known by the place that the window would take.
    EXPECT_EQ(desktop.Monitors().OfMainWindow(), 0);
    EXPECT_EQ(MadeWindow("Form1"), nullptr);
    windows.form1.Show();
    EXPECT_NE(MadeWindow("Form1"), nullptr);
    EXPECT_EQ(desktop.Monitors().OfMainWindow(), 0);
    desktop.UnmakeViews();
}

TEST_F(Views, AMaximisedWindowStaysInItsPlaceAndGoesBackToItsOwnSize) {
    model::Form1& form1 = windows.form1;
    constexpr int k = platform::kTwipsPerPixel;
    form1.Width = 900 * k;
    form1.Height = 640 * k;
    form1.Left = 30 * k;
    form1.Top = 40 * k;
    form1.WindowState = model::kWindowMaximised;
    form1.Show();
    QWidget* widget = desktop.WidgetOf(form1);
    ASSERT_NE(widget, nullptr);
    EXPECT_TRUE(widget->isMaximized());
    const QPoint place = widget->pos();
    form1.Left = 300 * k;
    form1.Top = -200 * k;
    EXPECT_EQ(widget->pos(), place);
    form1.WindowState = model::kWindowNormal;
    EXPECT_EQ(widget->size(), QSize(900, 640));
}

TEST_F(Views, WindowsOfThisStageHaveForms) {
    std::set<std::string> names;
    for (model::Window* window : Shown()) {
        names.insert(window->Name());
    }
    EXPECT_TRUE(names.contains("Form1"));
    EXPECT_TRUE(names.contains("Slidescreen"));
    EXPECT_TRUE(names.contains("Slidescreen2"));
}

TEST_F(Views, EveryControlHasAWidgetThatFollowsIt) {
    int walked = 0;
    for (model::Window* window : Shown()) {
        window->Visible = true;
        const QStringList unseen =
            desktop.WidgetOf(*window)->property("unseen").toString().split(' ');
        for (model::Control* each : window->Controls()) {
            if (!qt_adapter::HasWidget(each->Kind()) ||
                unseen.contains(QString::fromStdString(each->Name()))) {
                continue;
            }
            SCOPED_TRACE(window->Name() + "." + each->Name());
            auto& control = static_cast<model::VisibleControl&>(*each);
            control.Visible = true;
            QWidget* widget = WidgetOf(control);
            ASSERT_NE(widget, nullptr);
            EXPECT_FALSE(widget->isHidden());
            control.Visible = false;
            EXPECT_TRUE(widget->isHidden());
            control.Visible = true;
            EXPECT_FALSE(widget->isHidden());
            control.Enabled = false;
            EXPECT_FALSE(widget->isEnabled());
            control.Enabled = true;
            EXPECT_TRUE(widget->isEnabled());
            if (model::PropertyBase* caption = control.FindProperty("Caption")) {
                caption->Write(Text(u"見出し & 10"));
                if (const auto* label = qobject_cast<QLabel*>(widget)) {
                    EXPECT_EQ(label->text(), QStringLiteral("見出し & 10"));
                } else if (const auto* box = qobject_cast<QGroupBox*>(widget)) {
                    EXPECT_EQ(box->title(), QStringLiteral("見出し & 10"));
                } else {
                    EXPECT_EQ(widget->property("text").toString(), QStringLiteral("見出し & 10"));
                }
            }
            ++walked;
        }
        window->Visible = false;
    }
    // 63 slots each, 17 buttons and 3 more in the main window; 7 and 3 in the full-screen one.
    EXPECT_GE(walked, 63 + 63 + 16 + 3 + 7 + 3 + 5);
}

TEST_F(Views, ElementsOfAnArrayStandInLinesInTheirOrder) {
    model::Form14& form14 = windows.form14;
    form14.Command3(7).Caption = Text(u"7");
    form14.Command3(7).Detail = Text(u"4:05");
    form14.Show();
    QApplication::processEvents();
    const QPoint first = WidgetOf(form14.Command3(1))->pos();
    const QPoint fourth = WidgetOf(form14.Command3(4))->pos();
    const QPoint fifth = WidgetOf(form14.Command3(5))->pos();
    EXPECT_EQ(first.y(), fourth.y());
    EXPECT_LT(first.x(), fourth.x());
    EXPECT_EQ(fifth.x(), first.x());
    EXPECT_GT(fifth.y(), first.y());
    auto* button = qobject_cast<QAbstractButton*>(WidgetOf(form14.Command3(7)));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), "7\n4:05");
    int pressed = 0;
    form14.Command3(7).Click = [&] { ++pressed; };
    ClickAt(*button);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(WidgetOf(form14.Command3(1))->nextInFocusChain(), WidgetOf(form14.Command3(2)));
}

TEST_F(Views, EveryElementHasItsRoomHoweverManyThereAre) {
    model::Form14& form14 = windows.form14;
    for (const int tracks : {99, 4, 99}) {
        for (int track = 1; track <= 99; ++track) {
            form14.Command3(track).Visible = track <= tracks;
            form14.Command3(track).Detail = Text(u"1:00");
        }
        form14.Show();
        QApplication::processEvents();
        for (int track = 1; track <= 99; ++track) {
            const QWidget* button = WidgetOf(form14.Command3(track));
            EXPECT_EQ(button->isVisible(), track <= tracks);
            EXPECT_TRUE(track > tracks || button->height() >= button->sizeHint().height()) << track;
        }
        form14.Hide();
    }
}

TEST_F(Views, ControlsThatAreNeverShownGetNoWidget) {
    windows.slidescreen.Visible = true;
    EXPECT_EQ(WidgetOf(windows.slidescreen.P3), nullptr);
    EXPECT_EQ(WidgetOf(windows.slidescreen.P4), nullptr);
}

TEST_F(Views, ClickReachesOnlyAReachableButton) {
    int clicks = 0;
    model::Button& button = windows.form1.Command6;
    button.Click = [&] { ++clicks; };
    windows.form1.Visible = true;
    auto* face = qobject_cast<QAbstractButton*>(WidgetOf(button));
    ASSERT_NE(face, nullptr);
    face->click();
    EXPECT_EQ(clicks, 1);
    button.Enabled = false;
    face->setEnabled(true);  // as if the view were late
    face->click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(Views, ClicksAndKeysOnACanvas) {
    windows.slidescreen.Width = 640 * 15;
    windows.slidescreen.Height = 480 * 15;
    windows.slidescreen.Visible = true;
    int clicks = 0;
    std::vector<int> boxKeys, windowKeys;
    windows.slidescreen.P2.Click.Anew() = [&] { ++clicks; };
    windows.slidescreen.KeyDown.Anew() = [&](int key) { windowKeys.push_back(key); };
    QWidget* canvas = WidgetOf(windows.slidescreen.P2);
    EXPECT_EQ(canvas->size(), QSize(640, 480));
    ClickAt(*canvas);
    EXPECT_EQ(clicks, 1);
    PressKey(*canvas, Qt::Key_Insert);  // no handler on the box: the window's turn
    windows.slidescreen.P2.KeyDown.Anew() = [&](int key) { boxKeys.push_back(key); };
    PressKey(*canvas, Qt::Key_Escape);
    PressKey(*canvas, Qt::Key_A);
    EXPECT_EQ(windowKeys, std::vector<int>{45});
    EXPECT_EQ(boxKeys, (std::vector<int>{27, 65}));
}

TEST_F(Views, ObjectsOverTheCanvasStandWhereTheirPixelsSay) {
    windows.form1.Visible = true;
    model::PictureBox& slot = windows.form1.Picture2(7);
    EXPECT_EQ(WidgetOf(slot), nullptr) << "made only when shown";
    slot.SetSize(30 * 15, 20 * 15);
    slot.Left = 11;
    slot.Top = 12;
    slot.Visible = true;
    QWidget* widget = WidgetOf(slot);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->geometry(), QRect(11, 12, 30, 20));
    EXPECT_EQ(widget->parentWidget(), WidgetOf(windows.form1.Picture1));
    slot.Left = 40;
    EXPECT_EQ(widget->x(), 40);
}

TEST_F(Views, WindowFollowsAndIsFollowed) {
    QWidget* root = desktop.WidgetOf(windows.form1);
    windows.form1.Caption = u"ｽﾗｲﾄﾞ - a.kvs";
    EXPECT_EQ(root->windowTitle(), QStringLiteral("ｽﾗｲﾄﾞ - a.kvs"));
    EXPECT_EQ(root->size(), QSize(840, 586));  // 12600 × 8800 twips
    windows.form1.Visible = true;
    EXPECT_TRUE(root->isVisible());
    int resizes = 0;
    windows.form1.OnResize.Anew() = [&] { ++resizes; };
    windows.form1.Width = 900 * 15;
    EXPECT_EQ(root->width(), 900);
    EXPECT_EQ(resizes, 0) << "the program's own change is no person's";
    root->resize(1000, 700);
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(windows.form1.Width(), 15000);
    EXPECT_EQ(windows.form1.Height(), 10500);
    windows.form1.Visible = false;
    EXPECT_FALSE(root->isVisible());
}

TEST_F(Views, MinimisedAndMaximisedBothWays) {
    windows.form1.Visible = true;
    QWidget* root = desktop.WidgetOf(windows.form1);
    root->setWindowState(Qt::WindowMinimized);
    EXPECT_EQ(windows.form1.WindowState(), 1);
    windows.form1.WindowState = 0;
    EXPECT_FALSE(root->isMinimized());
    windows.form1.WindowState = 2;
    EXPECT_TRUE(root->isMaximized());
    root->setWindowState(Qt::WindowNoState);
    EXPECT_EQ(windows.form1.WindowState(), 0);
}

TEST_F(Views, PointerShapes) {
    QWidget* root = desktop.WidgetOf(windows.form1);
    windows.form1.MousePointer = model::kPointerBusy;
    EXPECT_EQ(root->cursor().shape(), Qt::WaitCursor);
    windows.form1.MousePointer = model::kPointerArrowBusy;
    EXPECT_EQ(root->cursor().shape(), Qt::BusyCursor);
    windows.form1.MousePointer = model::kPointerNormal;
    EXPECT_EQ(root->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Views, CloseButtonUnloadsAndARefusalKeepsTheWindow) {
    windows.form1.Load();
    windows.form1.Visible = true;
    bool stay = true;
    windows.form1.OnQueryUnload.Anew() = [&](bool& refuse) { refuse = stay; };
    QWidget* root = desktop.WidgetOf(windows.form1);
    root->close();
    EXPECT_TRUE(root->isVisible());
    EXPECT_TRUE(windows.form1.Loaded());
    stay = false;
    root->close();
    EXPECT_FALSE(root->isVisible());
    EXPECT_FALSE(windows.form1.Loaded());
}

TEST_F(Views, DroppedFilesArriveAsPaths) {
    windows.form1.Visible = true;
    std::vector<Text> dropped;
    windows.form1.FilesDropped.Anew() = [&](const std::vector<Text>& files) { dropped = files; };
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/pics/夜明け.kvs"), QUrl("http://example.invalid/x")});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(desktop.WidgetOf(windows.form1), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(desktop.WidgetOf(windows.form1), &drop);
    EXPECT_TRUE(dropped.empty()) << "not before the dragging program is let go";
    desktop.Loop().PumpEvents();
    EXPECT_EQ(dropped, std::vector<Text>{u"/pics/夜明け.kvs"});
}

TEST_F(Views, HintStandsOnlyWhileThereIsNothingToShow) {
    windows.form1.Visible = true;
    QWidget* hint = desktop.WidgetOf(windows.form1)->findChild<QWidget*>("hint");
    ASSERT_NE(hint, nullptr);
    for (model::Button* button :
         {&windows.form1.Command1, &windows.form1.Command2, &windows.form1.Command3}) {
        button->Enabled = false;
    }
    EXPECT_FALSE(hint->isHidden());
    int lists = 0;
    windows.form1.Command6.Click = [&] { ++lists; };
    hint->findChild<QAbstractButton*>("hintMake")->click();
    EXPECT_EQ(lists, 1) << "it leads to the slide list";
    windows.form1.MousePointer = model::kPointerBusy;
    EXPECT_TRUE(hint->isHidden());
    windows.form1.MousePointer = model::kPointerNormal;
    windows.form1.Command1.Enabled = true;
    EXPECT_TRUE(hint->isHidden());
}

TEST_F(Views, MenuBarHoldsEveryEntryInOrder) {
    auto* frame = qobject_cast<QMainWindow*>(desktop.WidgetOf(windows.form1));
    ASSERT_NE(frame, nullptr);
    QStringList expectedBar;
    for (model::Control* control : windows.form1.Controls()) {
        if (control->Kind() != ControlKind::MenuEntry) {
            continue;
        }
        auto& entry = static_cast<model::MenuEntry&>(*control);
        SCOPED_TRACE(entry.Name());
        QAction* action = ActionOf(entry);
        ASSERT_NE(action, nullptr);
        EXPECT_EQ(action->text(), ToQt(entry.Caption()));
        if (!entry.ParentEntry()) {
            expectedBar += ToQt(entry.Caption());
        }
        QStringList expectedChildren, children;
        for (model::MenuEntry* child : entry.Children()) {
            expectedChildren += ToQt(child->Caption());
        }
        if (action->menu()) {
            for (QAction* child : action->menu()->actions()) {
                children += child->text();
            }
        }
        EXPECT_EQ(children, expectedChildren);
        entry.Visible = false;
        EXPECT_FALSE(action->isVisible());
        entry.Visible = true;
        EXPECT_TRUE(action->isVisible());
        entry.Enabled = false;
        EXPECT_FALSE(action->isEnabled());
        entry.Enabled = true;
        EXPECT_TRUE(action->isEnabled());
    }
    QStringList bar;
    for (QAction* action : frame->menuBar()->actions()) {
        bar += action->text();
    }
    EXPECT_EQ(bar, expectedBar);
}

TEST_F(Views, MenuBarFitsTheSmallestUsualWindowWithEveryMenuShown) {
    windows.form1.mnuCDM.Visible = true;
    windows.form1.Visible = true;
    QWidget* root = desktop.WidgetOf(windows.form1);
    root->resize(840, 586);
    desktop.Loop().PumpEvents();
    const auto* bar = root->findChild<QMenuBar*>();
    for (QAction* action : bar->actions()) {
        const QRect place = bar->actionGeometry(action);
        EXPECT_FALSE(place.isEmpty()) << action->text().toStdString();
        EXPECT_LE(place.right(), bar->width()) << action->text().toStdString();
    }
}

TEST_F(Views, RadioMarksFollowTheModelOnly) {
    model::MenuArray& array = windows.form1.mnuKUFL;
    array.Check(1);
    EXPECT_TRUE(ActionOf(array(1))->isChecked());
    int chosen = -1;
    array.Click = [&](int index) { chosen = index; };
    ActionOf(array(0))->trigger();
    EXPECT_EQ(chosen, 0);
    EXPECT_FALSE(ActionOf(array(0))->isChecked()) << "the handler refused by doing nothing";
    EXPECT_TRUE(ActionOf(array(1))->isChecked());
    array.Click.Anew() = [&](int index) { array.Check(index); };
    ActionOf(array(0))->trigger();
    EXPECT_TRUE(ActionOf(array(0))->isChecked());
    EXPECT_FALSE(ActionOf(array(1))->isChecked());
    array.Check(-1);
    EXPECT_FALSE(ActionOf(array(0))->isChecked());
}

TEST_F(Views, EntryUnderADisabledMenuCannotBeChosen) {
    int chosen = 0;
    windows.form1.mnuTIME.Click.Anew() = [&] { ++chosen; };
    windows.form1.mnuOPTION.Enabled = false;
    ActionOf(windows.form1.mnuTIME)->trigger();
    EXPECT_EQ(chosen, 0);
    windows.form1.mnuOPTION.Enabled = true;
    ActionOf(windows.form1.mnuTIME)->trigger();
    EXPECT_EQ(chosen, 1);
}

TEST_F(Views, ShotShowsTheCanvasAsItIsNow) {
    QTemporaryDir folder;
    const std::string file = folder.filePath("shot.png").toStdString();
    windows.slidescreen.Width = 320 * 15;
    windows.slidescreen.Height = 200 * 15;
    windows.slidescreen.P2.SetSize(320 * 15, 200 * 15);
    for (model::Control* control : windows.slidescreen.Controls()) {
        if (model::PropertyBase* visible = control->FindProperty("Visible")) {
            visible->Write(control->Name() == "P2");
        }
    }
    windows.slidescreen.Visible = true;
    windows.slidescreen.P2.canvas.Fill(platform::Rgb(10, 20, 30));
    windows.slidescreen.P2.canvas.FillRect({300, 180, 20, 20}, platform::Rgb(200, 100, 50));
    ASSERT_TRUE(desktop.Shot(windows.slidescreen, file));
    const QImage image(QString::fromStdString(file));
    ASSERT_EQ(image.size(), QSize(320, 200));
    EXPECT_EQ(image.pixel(0, 0), qRgb(10, 20, 30));
    EXPECT_EQ(image.pixel(299, 179), qRgb(10, 20, 30));
    EXPECT_EQ(image.pixel(300, 180), qRgb(200, 100, 50));
    EXPECT_EQ(image.pixel(319, 199), qRgb(200, 100, 50));
    EXPECT_FALSE(desktop.Shot(windows.slidescreen, "/nowhere/at/all.png"));
    EXPECT_FALSE(desktop.Shot(windows.form4, file)) << "a window without a form";
}

TEST_F(Views, NewColorsOfTheDesktopReachEveryWidget) {
    windows.form1.SlideCount.Caption = u"1 / 2";
    windows.form1.Visible = true;
    windows.slidescreen2.Visible = true;
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::green);
    dark.setColor(QPalette::ButtonText, Qt::green);
    const std::vector<model::Control*> controls{&windows.form1.SlideCount, &windows.form1.Command6,
                                                &windows.slidescreen2.Command3};
    const auto ink = [&](model::Control& control) {
        const QWidget* widget = WidgetOf(control);
        return widget->palette().color(widget->foregroundRole());
    };
    QApplication::setPalette(dark);
    desktop.Loop().PumpEvents();
    for (model::Control* control : controls) {
        EXPECT_EQ(ink(*control), QColor(Qt::green)) << control->Name();
    }
    QApplication::setPalette(QPalette());
    desktop.Loop().PumpEvents();
    for (model::Control* control : controls) {
        EXPECT_LT(ink(*control).lightness(), 80) << control->Name();
    }
}

TEST_F(Views, MainWindowCanBeMadeSmallerThanItsPicture) {
    windows.form1.Picture1.SetSize(12000, 6750);
    windows.form1.Visible = true;
    QWidget* root = desktop.WidgetOf(windows.form1);
    EXPECT_EQ(WidgetOf(windows.form1.Picture1)->size(), QSize(800, 450));
    root->resize(root->minimumSizeHint());
    EXPECT_LT(root->height(), 300);
    EXPECT_LT(root->width(), 840);
}

TEST_F(Views, ModelOutlivesItsViews) {
    windows.form1.Visible = true;
    windows.form1.Picture2(3).Visible = true;
    desktop.UnmakeViews();
    windows.form1.Caption = u"名残";
    windows.form1.Command1.Enabled = false;
    windows.form1.Picture1.canvas.Fill(0);
    windows.form1.mnuKUFL.Check(0);
    EXPECT_EQ(desktop.WidgetOf(windows.form1), nullptr);
    desktop.MakeViews(windows);
    EXPECT_EQ(desktop.WidgetOf(windows.form1)->windowTitle(), QStringLiteral("名残"));
}

TEST_F(Views, AModalWindowKeepsTheOthersFromInputWhileItIsShown) {
    windows.slidescreen2.Show();
    QWidget* widget = desktop.WidgetOf(windows.form1);
    bool blocked = false;
    int key = 0;
    desktop.Loop().SetTimer(&key, 1, [&] {
        blocked = widget->isModal() && QApplication::activeModalWidget() == widget;
        windows.form1.Hide();
    });
    windows.form1.ShowModal(desktop.Loop());
    desktop.Loop().CancelTimer(&key);
    EXPECT_TRUE(blocked);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    windows.form1.Show();
    EXPECT_FALSE(widget->isModal());
}

}  // namespace
