// The form of the slide list's window: everything is there, has a name, fits, and is reached in the
// order of the eye; its panes, its preview, and the widgets that stand for entries of its menus.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/form_words.h"
#include "adapters/qt/glyph_icon.h"
#include "adapters/qt/glyph_shapes.h"
#include "model/windows.h"
#include "model/windows/slide_list.h"
#include "qt/widget_acts.h"

namespace {

struct SlideListForm : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    model::Windows windows;
    model::Form3& form3 = windows.form3;
    QWidget* root = nullptr;

    void SetUp() override {
        form3.List1.face = [](int) { return model::RowFace{}; };
        desktop.MakeViews(windows);
        root = desktop.WidgetOf(form3);
        ASSERT_NE(root, nullptr);
        form3.Visible = true;
        Pump();
    }
    void TearDown() override { desktop.UnmakeViews(); }
    void Pump() { desktop.Loop().PumpEvents(); }
    template <class Widget = QWidget>
    Widget& Find(const char* name) {
        return *root->findChild<Widget*>(name);
    }
    /// What Tab reaches, from `first` on.
    QStringList TabOrder(const char* first) {
        QStringList names;
        QWidget* const begin = &Find(first);
        QWidget* widget = begin;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().isEmpty()) {
                names += widget->objectName();
            }
            widget = widget->nextInFocusChain();
        } while (widget != begin);
        return names;
    }
};

TEST_F(SlideListForm, HasEveryControl) {
    const QStringList unseen = qt_adapter::Words(*root, "unseen");
    EXPECT_EQ(unseen, (QStringList{"List2", "Picture1"}));
    for (const model::Control* control : form3.Controls()) {
        const QString name = QString::fromStdString(control->Name());
        if (qt_adapter::HasWidget(control->Kind())) {
            EXPECT_NE(root->findChild<QWidget*>(name) != nullptr, unseen.contains(name))
                << control->Name();
        }
    }
}

TEST_F(SlideListForm, NamesAndExplainsWhatCanBePressed) {
    for (const QAbstractButton* button : root->findChildren<QAbstractButton*>()) {
        const bool own = form3.FindControl(button->objectName().toStdString()) != nullptr;
        if (own || button->property("entry").isValid() || button->property("menu").isValid()) {
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
            EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty())
                << button->objectName().toStdString();
        }
    }
    EXPECT_EQ(Find("Command13").accessibleName(), "上へ") << "its caption is an arrow";
    EXPECT_EQ(Find("Command16").accessibleName(), "ﾃｷｽﾄ編集");
}

TEST_F(SlideListForm, EveryIconHasItsShape) {
    for (model::Window* window : windows.All()) {
        QWidget* form = desktop.WidgetOf(*window);
        for (const QWidget* widget : form ? form->findChildren<QWidget*>() : QWidgetList()) {
            const QString glyph = widget->property("glyph").toString();
            EXPECT_TRUE(glyph.isEmpty() || !qt_adapter::ShapeOf(glyph).Empty())
                << glyph.toStdString();
        }
    }
}

TEST_F(SlideListForm, IsWalkedInTheOrderOfTheEye) {
    const QStringList order = TabOrder("Command15");
    const QStringList wanted{
        "Command15", "Command6",  "Undo",      "Redo",      "Drive1",    "Dir1",     "File1",
        "Command3",  "Command8",  "Check6",    "Check1",    "Filter",    "face0",    "face1",
        "List1",     "Relink",    "Command13", "Command14", "Command5",  "Command4", "Command16",
        "Command12", "Command21", "Check2",    "Check5",    "Command10", "Command1", "Command2"};
    QStringList found;
    for (const QString& name : order) {
        if (wanted.contains(name)) {
            found += name;
        }
    }
    EXPECT_EQ(found, wanted) << found.join(' ').toStdString();
}

TEST_F(SlideListForm, FitsAtItsSmallest) {
    root->resize(1, 1);
    Pump();
    EXPECT_EQ(root->size(), QSize(802, 583)) << "12030 by 8745 twips";
    const QWidget& prompt = Find("Label6");
    EXPECT_GE(prompt.width(), prompt.sizeHint().width()) << "all of the prompt";
    for (const QWidget* widget : root->findChildren<QWidget*>()) {
        const bool own = form3.FindControl(widget->objectName().toStdString()) != nullptr;
        if (!own || !widget->isVisible() || widget->property("placed").toBool()) {
            continue;
        }
        SCOPED_TRACE(widget->objectName().toStdString());
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()));
        if (qobject_cast<const QAbstractButton*>(widget)) {
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width());
        }
    }
}

TEST_F(SlideListForm, PanesAreSharedOutAndMoved) {
    auto& splitter = Find<QSplitter>("Panes1");
    const auto share = [&] {
        const QList<int> sizes = splitter.sizes();
        return 100.0 * sizes[0] / (sizes[0] + sizes[1]);
    };
    EXPECT_NEAR(share(), 34, 1) << "as the form has it";
    form3.Panes1.Sizes = u"1,1";
    EXPECT_NEAR(share(), 50, 1);
    root->resize(1600, 900);
    Pump();
    EXPECT_NEAR(share(), 50, 1) << "of any size";
    int moves = 0;
    form3.Panes1.Moved = [&] { ++moves; };
    QWidget& bar = *splitter.handle(1);
    EXPECT_EQ(bar.focusPolicy(), Qt::TabFocus);
    const int before = splitter.sizes()[0];
    acts::Key(bar, Qt::Key_Left);
    EXPECT_EQ(splitter.sizes()[0], before - 16);
    EXPECT_EQ(moves, 1);
    const QList<int> sizes = splitter.sizes();
    EXPECT_EQ(qt_adapter::ToQt(form3.Panes1.Sizes()), QString("%1,%2").arg(sizes[0]).arg(sizes[1]));
    acts::Drag(bar, {2, 20}, {52, 20});
    EXPECT_GT(splitter.sizes()[0], before + 20);
    acts::ClickAgain(bar, {2, 20});
    EXPECT_NEAR(share(), 34, 1) << "a double click brings the form's shares back";
    EXPECT_TRUE(form3.Panes1.Sizes().empty());
    form3.Panes1.Sizes = u"nonsense";
    EXPECT_NEAR(share(), 34, 1);
}

TEST_F(SlideListForm, ThePreviewHasTheRoomOfItsFrame) {
    QWidget& image = Find("Image1");
    const QWidget& room = *image.parentWidget();
    EXPECT_EQ(form3.Frame1.Width(), room.width() * 15);
    EXPECT_EQ(form3.Frame1.Height(), room.height() * 15);
    const int before = form3.Frame1.Width;
    form3.Panes1.Sizes = u"2,1";
    Pump();
    EXPECT_GT(form3.Frame1.Width(), before);
    EXPECT_EQ(form3.Frame1.Width(), room.width() * 15);
    form3.Image1.Left = 300;
    form3.Image1.Top = 150;
    form3.Image1.Width = 1500;
    form3.Image1.Height = 750;
    EXPECT_EQ(image.geometry(), QRect(20, 10, 100, 50));
}

TEST_F(SlideListForm, ButtonsStandForEntries) {
    auto& lines = Find<QToolButton>("face0");
    auto& grid = Find<QToolButton>("face1");
    int chosen = -1;
    form3.mnuFACE.Click = [&](int index) { chosen = index; };
    form3.mnuFACE.Check(0);
    EXPECT_TRUE(lines.isChecked());
    EXPECT_FALSE(grid.isChecked());
    grid.click();
    EXPECT_EQ(chosen, 1);
    EXPECT_TRUE(lines.isChecked()) << "the model did not move the mark";
    EXPECT_FALSE(grid.isChecked());
    form3.mnuFACE.Check(1);
    EXPECT_TRUE(grid.isChecked());
    EXPECT_NE(Find<QToolButton>("sorting").menu(), nullptr);
    form3.mnuSORT.Enabled = false;
    EXPECT_FALSE(Find("sorting").isEnabled());
}

TEST_F(SlideListForm, TheTitleNamesTheShow) {
    EXPECT_EQ(root->windowTitle(), "スライドリスト");
    form3.Document.Caption = u"海.kvs";
    EXPECT_EQ(root->windowTitle(), "海.kvs - スライドリスト");
    EXPECT_EQ(Find<QLabel>("Document").text(), "海.kvs");
    EXPECT_EQ(qt_adapter::ToQt(form3.Caption()), "スライドリスト");
    form3.Document.Caption = Text();
    EXPECT_EQ(root->windowTitle(), "スライドリスト");
}

TEST_F(SlideListForm, ASearchIsSeenBelowTheList) {
    form3.Label1.Visible = false;
    Pump();
    EXPECT_FALSE(Find("work").isVisible());
    form3.Label1.Visible = true;
    form3.Searched.Caption = Text(300, u'深');
    form3.Found.Caption = u"3 フォルダ、12 枚";
    Pump();
    EXPECT_TRUE(Find("work").isVisible());
    EXPECT_TRUE(Find("work").parentWidget()->rect().contains(Find("work").geometry()));
    EXPECT_TRUE(Find<QLabel>("Searched").text().contains(u'…')) << "what is too long is cut";
    EXPECT_EQ(Find<QLabel>("Searched").toolTip().size(), 300);
    EXPECT_EQ(Find<QLabel>("Found").text(), "3 フォルダ、12 枚");
    const auto sign = [&] {
        return Find<QAbstractButton>("Command8").icon().pixmap(18, 18).toImage();
    };
    const QImage search = sign();
    form3.Command8.Caption = u"中止";
    EXPECT_EQ(sign(), qt_adapter::GlyphIcon("stop").pixmap(18, 18).toImage());
    form3.Command8.Caption = u"検索";
    EXPECT_EQ(sign(), search);
}

TEST_F(SlideListForm, TheContextMenuHasGroups) {
    int raised = 0;
    form3.Command13.Click = [&] { ++raised; };
    form3.Command14.Enabled = false;
    QStringList words;
    const auto open = [&](const QString& chosen) {
        words.clear();
        QTimer::singleShot(0, root, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* action : menu->actions()) {
                words += action->isSeparator() ? "-" : action->text();
                if (!chosen.isEmpty() && action->text().startsWith(chosen)) {
                    EXPECT_TRUE(action->isEnabled());
                    action->trigger();
                }
                EXPECT_FALSE(action->text().startsWith("↓") && action->isEnabled());
            }
            menu->close();
        });
        QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(5, 5),
                              Find("List1").mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&Find("List1"), &key);
    };
    open("↑");
    EXPECT_EQ(words.join(' '),
              "元に戻す(&U) やり直す(&R) - 切り取り(&T) コピー(&C) 貼り付け(&P) 選択取消(&D) - "
              "↑  上へ ↓  下へ 並べ替え(&S) - ﾃｷｽﾄ編集 縮小変換コピー - "
              "すべて選択(&A) 見つからないファイルを探す(&M)…");
    EXPECT_EQ(raised, 1);
}

TEST_F(SlideListForm, GoesBackToItsPlace) {
    form3.Visible = false;
    form3.Left = 150 * 15;
    form3.Top = 90 * 15;
    form3.Visible = true;
    Pump();
    const QRect before = root->geometry();
    form3.WindowState = model::kWindowMaximised;
    Pump();
    EXPECT_TRUE(root->isMaximized());
    form3.WindowState = model::kWindowNormal;
    form3.ResizeTo(12030, 8745);
    Pump();
    EXPECT_FALSE(root->isMaximized());
    EXPECT_EQ(root->geometry(), QRect(before.topLeft(), QSize(802, 583)));
    EXPECT_EQ(form3.Left(), 150 * 15);
    EXPECT_EQ(form3.Top(), 90 * 15);
}

TEST_F(SlideListForm, KeysOfRowsAreTheListsAlone) {
    const auto entry = [&](const char* name) { return root->findChild<QAction*>(name); };
    auto& list = Find<QListView>("List1");
    for (const char* name : {"mnuCUT", "mnuCOPY", "mnuPASTE", "mnuREMOVE", "mnuALL"}) {
        EXPECT_EQ(entry(name)->shortcutContext(), Qt::WidgetWithChildrenShortcut) << name;
        EXPECT_TRUE(list.actions().contains(entry(name))) << name;
    }
    EXPECT_EQ(entry("mnuUNDO")->shortcutContext(), Qt::WindowShortcut);
    EXPECT_EQ(list.contextMenuPolicy(), Qt::CustomContextMenu);
}

TEST_F(SlideListForm, TheFilterIsEmptiedByEsc) {
    auto& filter = Find<QLineEdit>("Filter");
    std::vector<Text> typed;
    form3.Filter.Change = [&] { typed.push_back(form3.Filter.Content); };
    filter.setText("京都");
    acts::Key(filter, Qt::Key_Escape);
    EXPECT_EQ(filter.text(), "");
    EXPECT_EQ(typed, (std::vector<Text>{u"京都", u""}));
    EXPECT_TRUE(filter.isClearButtonEnabled());
    EXPECT_FALSE(filter.placeholderText().isEmpty());
}

}  // namespace
