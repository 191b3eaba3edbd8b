// Each kind of control and its widget: what a person does reaches the model's act, what the logic
// sets is seen.
#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTreeView>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/image_widget.h"
#include "model/controls.h"
#include "model/grid.h"
#include "model/list_controls.h"
#include "model/picture_controls.h"
#include "model/scroll_bar.h"
#include "model/window.h"
#include "qt/widget_acts.h"
#include "support/fake_platform.h"

namespace {

using Numbers = std::vector<int>;

struct SampleWindow : model::Window {
    SampleWindow() : Window("Sample") { Visible = true; }
    model::Grid Grid1{this, "Grid1", {u"番号", u"スライド"}};
    model::Calendar Calendar1{this, "Calendar1"};
    model::ScrollBar HScroll1{this, "HScroll1", 10, 90};
    model::Image Image1{this, "Image1"};
    model::PictureBox Picture1{this, "Picture1"};
    model::TextBox Text1{this, "Text1"};
    model::ListBox List1{this, "List1", model::kSelectMany};
    model::ListBox List2{this, "List2"};
    model::ComboBox Combo1{this, "Combo1"};
    model::FileList File1{this, "File1", model::kSelectMany};
    model::FolderList Dir1{this, "Dir1"};
    model::DriveList Drive1{this, "Drive1"};
    model::Label Notice{this, "Notice"};
};

struct ControlViews : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    qt_adapter::Gate gate;
    fakes::FakePlatform around;
    SampleWindow window;
    std::unique_ptr<qt_adapter::ControlBinding> binding;
    int clicks = 0, doubleClicks = 0;

    void Bind(model::VisibleControl& control, QWidget& widget, QSize size = {300, 200}) {
        control.Click = [this] { ++clicks; };
        control.DblClick = [this] { ++doubleClicks; };
        widget.resize(size);
        binding = qt_adapter::MakeBinding(control, widget, {gate});
        ASSERT_NE(binding, nullptr);
        widget.show();
        Pump();
    }
    /// A widget that outlives its binding.
    template <class Widget, class... Arguments>
    Widget& Make(Arguments... arguments) {
        auto made = std::make_unique<Widget>(arguments...);
        Widget& widget = *made;
        made_ = std::move(made);
        return widget;
    }
    void Pump() { desktop.Loop().PumpEvents(); }
    void TearDown() override { binding.reset(); }

private:
    std::unique_ptr<QWidget> made_;
};

/// Two columns, three rows under the header.
struct GridView : ControlViews {
    QTableView table;
    model::Grid& grid = window.Grid1;

    void SetUp() override {
        for (const char16_t* name : {u"a.png", u"b.png", u"c.png"}) {
            grid.AddRow({u"", name});
        }
        Bind(grid, table);
    }
    QPoint Cell(int row, int col) {
        return table.visualRect(table.model()->index(row - 1, col)).center();
    }
    Numbers Range() { return {grid.Row, grid.Col, grid.RowSel, grid.ColSel}; }
};

TEST_F(GridView, AClickChoosesACell) {
    acts::Click(*table.viewport(), Cell(2, 1));
    Pump();
    EXPECT_EQ(Range(), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(clicks, 1);
    acts::Click(*table.viewport(), Cell(2, 1));
    EXPECT_EQ(clicks, 2) << "also on the cell that is chosen already";
}

TEST_F(GridView, DraggingChoosesARangeThatBeginsWhereTheMouseWentDown) {
    acts::Drag(*table.viewport(), Cell(1, 0), Cell(3, 1));
    Pump();
    EXPECT_EQ(Range(), (Numbers{1, 0, 3, 1}));
    EXPECT_EQ(clicks, 1) << "one for the whole way";
    acts::Drag(*table.viewport(), Cell(3, 1), Cell(2, 0));
    Pump();
    EXPECT_EQ(Range(), (Numbers{3, 1, 2, 0}));
    EXPECT_EQ(clicks, 2);
}

TEST_F(GridView, AClickOnTheHeaderIsOneOnRow0) {
    QHeaderView& header = *table.horizontalHeader();
    const QPoint place(header.sectionViewportPosition(1) + 5, header.height() / 2);
    acts::Click(*header.viewport(), place);
    Pump();
    EXPECT_EQ(Range(), (Numbers{0, 1, 0, 1}));
    EXPECT_EQ(clicks, 1);
}

TEST_F(GridView, ADoubleClickIsAClickAndADoubleClick) {
    acts::Click(*table.viewport(), Cell(1, 1));
    acts::ClickAgain(*table.viewport(), Cell(1, 1));
    Pump();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(GridView, KeysChooseToo) {
    Numbers keys;
    grid.KeyDown = [&](int key) { keys.push_back(key); };
    acts::Click(*table.viewport(), Cell(1, 0));
    acts::Key(table, Qt::Key_Down);
    Pump();
    EXPECT_EQ(Range(), (Numbers{2, 0, 2, 0}));
    acts::Key(table, Qt::Key_Right, Qt::ShiftModifier);
    Pump();
    EXPECT_EQ(Range(), (Numbers{2, 0, 2, 1}));
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(keys, (Numbers{40, 39}));
}

TEST_F(GridView, CellsAreEditedWhereSomebodyHears) {
    const QModelIndex cell = table.model()->index(1, 0);
    EXPECT_FALSE(cell.flags() & Qt::ItemIsEditable);
    Numbers place;
    Text typed;
    grid.CellEdited = [&](int row, int col, const Text& value) {
        place = {row, col};
        typed = value;
    };
    EXPECT_TRUE(cell.flags() & Qt::ItemIsEditable);
    table.model()->setData(cell, "7", Qt::EditRole);
    EXPECT_EQ(place, (Numbers{2, 0}));
    EXPECT_EQ(typed, u"7");
}

TEST_F(GridView, ShowsWhatTheProgramSets) {
    QAbstractItemModel& cells = *table.model();
    EXPECT_EQ(cells.rowCount(), 3);
    EXPECT_EQ(cells.headerData(1, Qt::Horizontal), QStringLiteral("スライド"));
    EXPECT_EQ(cells.index(1, 1).data(), "b.png");
    grid.SetText(2, 0, u"２");
    grid.InsertRow(1, {u"先", u"z.png"});
    EXPECT_EQ(cells.rowCount(), 4);
    EXPECT_EQ(cells.index(0, 1).data(), "z.png");
    EXPECT_EQ(cells.index(2, 0).data(), QStringLiteral("２"));
    grid.RemoveRow(1);
    grid.Row = 1;
    grid.RowSel = 2;
    grid.ColSel = 1;
    EXPECT_EQ(table.selectionModel()->selectedIndexes().size(), 4);
    EXPECT_EQ(clicks, 0);
    grid.Clear();
    EXPECT_EQ(cells.rowCount(), 0);
}

TEST_F(GridView, FollowsAHandlerThatChoosesOtherCells) {
    grid.Click.Anew() = [this] {
        grid.Row = 3;
        grid.RowSel = 3;
    };
    acts::Click(*table.viewport(), Cell(1, 0));
    Pump();
    EXPECT_EQ(table.currentIndex().row(), 2);
    EXPECT_EQ(Range(), (Numbers{3, 0, 3, 0}));
}

TEST_F(GridView, IsDeadWhileItIsDisabled) {
    grid.Enabled = false;
    table.setEnabled(true);  // as if the view were late
    acts::Click(*table.viewport(), Cell(2, 1));
    Pump();
    EXPECT_EQ(Range(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(clicks, 0);
}

TEST_F(ControlViews, CalendarBothWays) {
    auto& month = Make<QCalendarWidget>();
    window.Calendar1.Value = u"2026/02/03";
    Bind(window.Calendar1, month, {400, 300});
    EXPECT_EQ(month.selectedDate(), QDate(2026, 2, 3));
    window.Calendar1.Value = u"2026/03/10";
    EXPECT_EQ(month.selectedDate(), QDate(2026, 3, 10));
    EXPECT_EQ(clicks, 0);
    auto* days = month.findChild<QTableView*>();
    ASSERT_NE(days, nullptr);
    QModelIndex day;  // the 20th: the only cell with that number
    for (int row = 1; row < days->model()->rowCount(); ++row) {
        for (int col = 0; col < days->model()->columnCount(); ++col) {
            const QModelIndex cell = days->model()->index(row, col);
            day = cell.data().toInt() == 20 ? cell : day;
        }
    }
    acts::Click(*days->viewport(), days->visualRect(day).center());
    Pump();
    EXPECT_EQ(window.Calendar1.Value(), u"2026/03/20");
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlViews, ScrollBarBothWays) {
    auto& bar = Make<QScrollBar>(Qt::Horizontal);
    model::ScrollBar& scroll = window.HScroll1;
    scroll.SmallChange = 3;
    scroll.LargeChange = 20;
    Bind(scroll, bar, {200, 20});
    EXPECT_EQ(bar.minimum(), 10);
    EXPECT_EQ(bar.maximum(), 90);
    int changes = 0;
    scroll.Change = [&] { ++changes; };
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);  // what its arrow does
    EXPECT_EQ(scroll.Value(), 13);
    acts::Key(bar, Qt::Key_PageUp);
    EXPECT_EQ(scroll.Value(), 10);
    acts::Key(bar, Qt::Key_PageDown);
    EXPECT_EQ(scroll.Value(), 30);
    acts::Key(bar, Qt::Key_End);
    EXPECT_EQ(scroll.Value(), 90);
    EXPECT_EQ(changes, 4);
    scroll.Value = 42;
    EXPECT_EQ(bar.value(), 42);
    EXPECT_EQ(changes, 5);
    scroll.Max = 40;
    EXPECT_EQ(bar.maximum(), 40);
    EXPECT_EQ(scroll.Value(), 40);
    EXPECT_EQ(changes, 6);
}

std::vector<std::string> heard;

void WriteDown(model::PointedControl& control) {
    heard.clear();
    const auto note = [](const char* what) {
        return [what](const model::MousePress& press) {
            heard.push_back(std::string(what) + (press.right ? " right " : " ") +
                            std::to_string(press.x) + " " + std::to_string(press.y));
        };
    };
    control.MouseDown = note("down");
    control.MouseMove = note("move");
    control.MouseUp = note("up");
    control.Click.Anew() = [] { heard.emplace_back("click"); };
    control.DblClick.Anew() = [] { heard.emplace_back("double click"); };
}

using Heard = std::vector<std::string>;

TEST_F(ControlViews, AnImageStretchesItsPictureAndTellsOfTheMouse) {
    auto& widget = Make<qt_adapter::ImageWidget>();
    Bind(window.Image1, widget, {40, 20});
    auto picture = std::make_shared<platform::Bitmap>(2, 1);
    picture->Row(0)[0] = 0xFF0000;
    picture->Row(0)[1] = 0x0000FF;
    window.Image1.SetPicture(picture);
    const QImage seen = widget.grab().toImage();
    EXPECT_EQ(seen.pixel(1, 1), qRgb(255, 0, 0));
    EXPECT_EQ(seen.pixel(1, 18), qRgb(255, 0, 0));
    EXPECT_EQ(seen.pixel(38, 10), qRgb(0, 0, 255));
    WriteDown(window.Image1);
    acts::Drag(widget, {3, 4}, {13, 8});
    EXPECT_EQ(heard, (Heard{"down 3 4", "move 8 6", "move 13 8", "up 13 8", "click"}));
    heard.clear();
    acts::Drag(widget, {3, 4}, {53, 4});
    EXPECT_EQ(heard.back(), "up 53 4") << "let go outside: no click";
    heard.clear();
    acts::Click(widget, {3, 4}, Qt::RightButton);
    EXPECT_EQ(heard, (Heard{"down right 3 4", "up right 3 4"}));
    heard.clear();
    acts::ClickAgain(widget, {3, 4});
    EXPECT_EQ(heard, (Heard{"down 3 4", "double click"}));
}

TEST_F(ControlViews, APictureBoxTellsOfTheMouseByItsPixels) {
    auto& widget = Make<qt_adapter::CanvasWidget>();
    window.Picture1.SetSize(100 * 15, 50 * 15);
    Bind(window.Picture1, widget, {100, 50});
    WriteDown(window.Picture1);
    acts::Drag(widget, {10, 20}, {20, 30});
    EXPECT_EQ(heard, (Heard{"down 10 20", "move 15 25", "move 20 30", "up 20 30", "click"}));
    heard.clear();
    acts::Drag(widget, {10, 20}, {20, 30}, Qt::RightButton);
    EXPECT_EQ(heard, (Heard{"down right 10 20", "move right 15 25", "move right 20 30",
                            "up right 20 30"}));
    heard.clear();
    window.Picture1.Enabled = false;
    widget.setEnabled(true);
    acts::Click(widget, {1, 1});
    EXPECT_EQ(heard, Heard{});
}

TEST_F(ControlViews, LinesOfTextEndWithCarriageReturnAndLineFeed) {
    auto& edit = Make<QPlainTextEdit>();
    window.Text1.Content = u"一\r\n二";
    Bind(window.Text1, edit);
    EXPECT_EQ(edit.toPlainText(), QStringLiteral("一\n二"));
    int changes = 0;
    window.Text1.Change = [&] { ++changes; };
    edit.moveCursor(QTextCursor::End);
    acts::Key(edit, Qt::Key_Return, {}, "\r");
    acts::Key(edit, Qt::Key_A, {}, "a");
    EXPECT_EQ(window.Text1.Content(), u"一\r\n二\r\na");
    EXPECT_EQ(changes, 2);
    window.Text1.Content = u"新";
    EXPECT_EQ(edit.toPlainText(), QStringLiteral("新"));
    EXPECT_EQ(changes, 2) << "the program's own change is no person's";
    window.Text1.Content = u"一\n二";
    EXPECT_EQ(window.Text1.Content(), u"一\n二") << "nobody typed the line's other end";
    EXPECT_EQ(changes, 2);
}

/// Five rows: a, b, c, d, e.
struct ListView : ControlViews {
    QListView view;
    model::ListBox* list = nullptr;

    void Show(model::ListBox& shown) {
        list = &shown;
        for (const char16_t* row : {u"a", u"b", u"c", u"d", u"e"}) {
            shown.AddItem(row);
        }
        Bind(shown, view);
    }
    QPoint Row(int row) { return view.visualRect(view.model()->index(row, 0)).center(); }
    void Press(int row, Qt::KeyboardModifiers modifiers = {}) {
        acts::Click(*view.viewport(), Row(row), Qt::LeftButton, modifiers);
        Pump();
    }
    Numbers Highlighted() {
        Numbers rows;
        for (const QModelIndex& index : view.selectionModel()->selectedIndexes()) {
            rows.push_back(index.row());
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }
};

TEST_F(ListView, SeveralRowsWithCtrlAndShift) {
    Show(window.List1);
    Press(1);
    EXPECT_EQ(list->SelectedRows(), Numbers{1});
    EXPECT_EQ(list->ListIndex, 1);
    Press(3, Qt::ControlModifier);
    EXPECT_EQ(list->SelectedRows(), (Numbers{1, 3}));
    Press(4, Qt::ShiftModifier);
    EXPECT_EQ(list->SelectedRows(), (Numbers{1, 3, 4}));
    EXPECT_EQ(clicks, 3);
    list->Select(0, true);
    list->Select(4, false);
    EXPECT_EQ(Highlighted(), (Numbers{0, 1, 3}));
    EXPECT_EQ(clicks, 3);
}

TEST_F(ListView, OneRowWhereOnlyOneCanBeSelected) {
    Show(window.List2);
    Press(1);
    Press(3, Qt::ControlModifier);
    EXPECT_EQ(list->SelectedRows(), Numbers{3});
    list->ListIndex = 2;
    EXPECT_EQ(Highlighted(), Numbers{2}) << "the current row is the selected one";
    list->SetRow(2, u"c c");
    EXPECT_EQ(Highlighted(), Numbers{2});
}

TEST_F(ListView, KeysGoThroughTheRowsAndAreHeard) {
    Show(window.List1);
    Numbers keys;
    list->KeyDown = [&](int key) { keys.push_back(key); };
    Press(0);
    acts::Key(view, Qt::Key_Down);
    Pump();
    EXPECT_EQ(list->ListIndex, 1);
    EXPECT_EQ(list->SelectedRows(), Numbers{1});
    EXPECT_EQ(clicks, 2);
    acts::Key(view, Qt::Key_Delete);
    EXPECT_EQ(keys, (Numbers{40, 46}));
}

TEST_F(ListView, TheKeyboardsComingIsNoChoice) {
    Show(window.List1);
    view.activateWindow();
    Pump();
    ASSERT_TRUE(view.hasFocus());
    EXPECT_EQ(list->ListIndex, -1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(ListView, ADoubleClickIsAClickAndADoubleClick) {
    Show(window.List1);
    Press(2);
    acts::ClickAgain(*view.viewport(), Row(2));
    Pump();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(ListView, RowsAreDraggedWhereSomebodyHears) {
    Show(window.List1);
    QAbstractItemModel& rows = *view.model();
    const QModelIndex row = rows.index(1, 0);
    EXPECT_FALSE(row.flags() & Qt::ItemIsDragEnabled);
    Numbers dragged;
    list->RowsDragged = [&](int before) { dragged.push_back(before); };
    EXPECT_TRUE(row.flags() & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(row.flags() & Qt::ItemIsDropEnabled) << "between rows, not on one";
    EXPECT_TRUE(rows.flags({}) & Qt::ItemIsDropEnabled);
    Press(1);
    const std::unique_ptr<QMimeData> data(rows.mimeData({row}));
    EXPECT_FALSE(rows.dropMimeData(data.get(), Qt::MoveAction, 4, 0, {})) << "the program moves it";
    EXPECT_TRUE(dragged.empty()) << "not before the toolkit is done with the dragging";
    Pump();
    EXPECT_EQ(dragged, Numbers{4});
    rows.dropMimeData(data.get(), Qt::MoveAction, -1, -1, {});  // below the last row
    Pump();
    EXPECT_EQ(dragged, (Numbers{4, 5}));
    EXPECT_EQ(rows.rowCount(), 5);
    EXPECT_EQ(view.dragDropMode(), QAbstractItemView::InternalMove);
}

TEST_F(ListView, PicturesOfRowsStandBeforeTheirTexts) {
    Show(window.List1);
    QAbstractItemModel& rows = *view.model();
    EXPECT_FALSE(rows.index(0, 0).data(Qt::DecorationRole).isValid());
    const int plain = view.visualRect(rows.index(0, 0)).height();
    list->PictureWidth = 80;
    list->PictureHeight = 60;
    const auto picture = std::make_shared<platform::Bitmap>(40, 60, 0xFF00C000u);
    list->SetRowPicture(1, picture);
    Pump();
    EXPECT_GE(view.visualRect(rows.index(0, 0)).height(), 60) << "rows without one keep the room";
    const auto shown = rows.index(1, 0).data(Qt::DecorationRole).value<QImage>();
    ASSERT_EQ(shown.size(), QSize(80, 60));
    EXPECT_EQ(shown.pixel(19, 30), qRgba(0, 0, 0, 0));
    EXPECT_EQ(shown.pixel(20, 30), qRgb(0, 0xC0, 0));
    EXPECT_EQ(shown.pixel(59, 30), qRgb(0, 0xC0, 0));
    EXPECT_EQ(shown.pixel(60, 30), qRgba(0, 0, 0, 0));
    const QImage seen = view.viewport()->grab().toImage();
    const QRect place = view.visualRect(rows.index(1, 0));
    int green = 0;
    for (int x = place.left(); x <= place.right(); ++x) {
        green += seen.pixel(x, place.center().y()) == qRgb(0, 0xC0, 0) ? 1 : 0;
    }
    EXPECT_EQ(green, 40);
    list->AddItem(u"0", 0);
    EXPECT_EQ(list->RowPicture(2), picture) << "it goes with its row";
    list->RemoveItem(2);
    EXPECT_EQ(list->RowPicture(2), nullptr);
    list->PictureHeight = 0;
    Pump();
    EXPECT_EQ(view.visualRect(rows.index(0, 0)).height(), plain);
}

TEST_F(ControlViews, AFoldedListBothWays) {
    auto& box = Make<QComboBox>();
    for (const char16_t* row : {u"等速", u"加速", u"減速"}) {
        window.Combo1.AddItem(row);
    }
    Bind(window.Combo1, box, {200, 30});
    EXPECT_EQ(box.currentIndex(), -1);
    window.Combo1.ListIndex = 1;
    EXPECT_EQ(box.currentText(), QStringLiteral("加速"));
    EXPECT_EQ(clicks, 0);
    acts::Key(box, Qt::Key_Down);
    EXPECT_EQ(window.Combo1.ListIndex, 2);
    EXPECT_EQ(clicks, 1);
    window.Combo1.SetRow(2, u"停止");
    EXPECT_EQ(box.currentText(), QStringLiteral("停止"));
    window.Combo1.RemoveItem(0);
    EXPECT_EQ(box.count(), 2);
    EXPECT_EQ(box.currentIndex(), window.Combo1.ListIndex);
}

struct BrowserViews : ControlViews {
    void SetUp() override {
        around.PutPicture(u"C:\\Users\\me\\a.png", 1, 1);
        around.PutPicture(u"C:\\Users\\me\\b.png", 1, 1);
        around.PutPicture(u"C:\\Users\\me\\pics\\c.png", 1, 1);
    }
};

TEST_F(BrowserViews, FilesOfAFolder) {
    auto& view = Make<QListView>();
    model::FileList& files = window.File1;
    files.folders = &around.folders;
    Bind(files, view);
    files.Path = u"C:\\Users\\me";
    ASSERT_EQ(view.model()->rowCount(), 2);
    EXPECT_EQ(view.model()->index(1, 0).data(), "b.png");
    acts::Click(*view.viewport(), view.visualRect(view.model()->index(1, 0)).center());
    EXPECT_EQ(files.SelectedRows(), Numbers{1});
    EXPECT_EQ(clicks, 1);
    files.Path = u"C:\\Users\\me\\pics";
    EXPECT_EQ(view.model()->index(0, 0).data(), "c.png");
}

TEST_F(BrowserViews, FoldersAsATree) {
    auto& tree = Make<QTreeView>();
    model::FolderList& dir = window.Dir1;
    dir.folders = &around.folders;
    dir.Path = u"C:\\Users\\me";
    Bind(dir, tree);
    EXPECT_EQ(tree.currentIndex().data(), "me");
    int changes = 0;
    dir.Change = [&] { ++changes; };
    const QModelIndex below = tree.model()->index(0, 0, tree.currentIndex());
    ASSERT_EQ(below.data(), "pics");
    acts::Click(*tree.viewport(), tree.visualRect(below).center());
    Pump();
    EXPECT_EQ(dir.Path(), u"C:\\Users\\me\\pics");
    EXPECT_EQ(changes, 1);
    acts::Key(tree, Qt::Key_Up);
    EXPECT_EQ(dir.Path(), u"C:\\Users\\me");
    dir.Path = u"C:\\";
    EXPECT_EQ(tree.currentIndex().data(), "C:\\");
    EXPECT_FALSE(tree.currentIndex().parent().isValid());
    EXPECT_EQ(changes, 3);
}

TEST_F(BrowserViews, PlacesByTheirLabels) {
    auto& box = Make<QComboBox>();
    model::DriveList& drive = window.Drive1;
    drive.folders = &around.folders;
    drive.Refresh();
    Bind(drive, box, {200, 30});
    ASSERT_EQ(box.count(), 2);
    EXPECT_EQ(box.itemText(0), QStringLiteral("ホーム"));
    EXPECT_FALSE(box.itemIcon(0).isNull());
    drive.Drive = u"C:\\Users\\me";
    EXPECT_EQ(box.currentIndex(), 0);
    int changes = 0;
    drive.Change = [&] { ++changes; };
    acts::Key(box, Qt::Key_Down);
    EXPECT_EQ(drive.Drive(), u"C:\\");
    EXPECT_EQ(changes, 1);
}

TEST_F(ControlViews, AWidgetThatDoesNotFitIsNotTied) {
    auto& box = Make<QComboBox>();
    EXPECT_EQ(qt_adapter::MakeBinding(window.Grid1, box, {gate}), nullptr);
}

TEST_F(ControlViews, NewWordsPass) {
    QLabel label;
    label.setProperty("passes", 1);
    window.Notice.Caption = u"前のこと";
    Bind(window.Notice, label);
    window.Notice.Caption = Text();
    window.Notice.Caption = u"保存しました";
    EXPECT_EQ(label.text(), "保存しました");
    while (!label.text().isEmpty()) {
        desktop.Loop().PumpEvents();
    }
    window.Notice.Enabled = false;
    EXPECT_EQ(label.text(), "") << "what has passed does not come back";
    EXPECT_EQ(window.Notice.Caption(), u"保存しました");
}

}  // namespace
