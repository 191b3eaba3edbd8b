// Controls: properties that announce themselves, lists, menus, pictures.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/controls.h"
#include "model/grid.h"
#include "model/list_controls.h"
#include "model/menu.h"
#include "model/picture_controls.h"
#include "model/scroll_bar.h"
#include "model/window.h"

namespace model {
namespace {

/// Writes down what it hears: "Enabled", "inserted 2".
class Ear : public Listener {
public:
    explicit Ear(Control& control) : control_(control) { control.Listen(this); }
    ~Ear() override { control_.Unlisten(this); }
    void PropertyChanged(Control&, PropertyBase& property) override {
        heard.emplace_back(property.Name());
    }
    void RowsChanged(Control&, const RowChange& change) override {
        static const char* const kNames[] = {"inserted", "removed", "replaced", "cleared"};
        heard.push_back(std::string(kNames[change.kind]) + " " + std::to_string(change.row) +
                        (change.count > 1 ? " and on: " + std::to_string(change.count) : ""));
    }
    std::vector<std::string> heard;

private:
    Control& control_;
};

using Heard = std::vector<std::string>;
using Rows = std::vector<Text>;

struct SampleWindow : Window {
    SampleWindow() : Window("Sample", u"caption") {}
    Button Command1{this, "Command1", u"OK"};
    ListBox List1{this, "List1"};
    TextBox Text1{this, "Text1"};
    PictureBox Picture1{this, "Picture1"};
    PictureBox Holder{this, "Holder", true};
    ControlArray<PictureBox> Slot{this, "Slot", 3, 2};
    Timer Timer1{this, "Timer1", 500, true};
    MenuEntry mnuHead{this, "mnuKOU", u"頭"};
    MenuArray mnuKOU{this, "mnuKOU", mnuHead, {u"一", u"二", u"三"}};

    Rows List() const { return {List1.Rows().begin(), List1.Rows().end()}; }
};

TEST(Property, AnnouncesChangesOnly) {
    SampleWindow window;
    Ear ear(window.Command1);
    window.Command1.Enabled = true;  // as it was
    EXPECT_EQ(ear.heard, Heard());
    window.Command1.Enabled = false;
    window.Command1.Caption = u"いいえ";
    window.Command1.Caption = u"いいえ";
    EXPECT_EQ(ear.heard, (Heard{"Enabled", "Caption"}));
}

TEST(Property, IsFoundWithoutRegardToCase) {
    SampleWindow window;
    EXPECT_EQ(window.Command1.FindProperty("cAPTION"), &window.Command1.Caption);
    EXPECT_EQ(window.Text1.FindProperty("Text"), &window.Text1.Content);
    EXPECT_EQ(window.Command1.FindProperty("Captio"), nullptr);
}

TEST(Property, TakesValuesOfItsKindFromOutside) {
    SampleWindow window;
    EXPECT_TRUE(window.Command1.Left.Write(12.0));
    EXPECT_EQ(window.Command1.Left, 12);
    EXPECT_FALSE(window.Command1.Left.Write(Text(u"12")));
    EXPECT_FALSE(window.Command1.Enabled.Write(0.0));
    EXPECT_TRUE(window.Command1.Enabled.Write(false));
    EXPECT_EQ(window.Command1.Enabled.Read(), Value(false));
    EXPECT_EQ(window.Command1.Left.Read(), Value(12.0));
    EXPECT_EQ(window.Command1.Caption.Read(), Value(Text(u"OK")));
}

TEST(Event, WithoutHandlerDoesNothing) {
    Event<int> event;
    event(3);
    int got = 0;
    event = [&](int value) { got = value; };
    event(4);
    EXPECT_EQ(got, 4);
}

TEST(ListBox, KeepsRowsInOrderAndTellsEachChange) {
    SampleWindow window;
    Ear ear(window.List1);
    window.List1.AddItem(u"b");
    window.List1.AddItem(u"a", 0);
    window.List1.AddItem(u"d", 99);  // beyond the end: at the end
    window.List1.AddItem(u"c", 2);
    window.List1.SetRow(0, u"A");
    EXPECT_EQ(window.List(), (Rows{u"A", u"b", u"c", u"d"}));
    window.List1.RemoveItem(1);
    EXPECT_EQ(window.List(), (Rows{u"A", u"c", u"d"}));
    EXPECT_EQ(ear.heard, (Heard{"inserted 0", "inserted 0", "inserted 2", "inserted 2",
                                "replaced 0", "removed 1"}));
}

TEST(ListBox, SeveralRowsAreOneChange) {
    SampleWindow window;
    Ear ear(window.List1);
    window.List1.InsertRows(0, {u"a", u"d", u"e"});
    window.List1.InsertRows(1, {u"b", u"c"});
    window.List1.InsertRows(2, {});
    EXPECT_EQ(window.List(), (Rows{u"a", u"b", u"c", u"d", u"e"}));
    window.List1.SelectRows(1, 2, true);
    window.List1.SelectRows(1, 2, true);  // as they are
    window.List1.SelectRows(3, 9, true);
    window.List1.SelectRows(4, 1, false);
    window.List1.Reorder(1, {3, 1, 4, 2});
    EXPECT_EQ(window.List(), (Rows{u"a", u"d", u"b", u"e", u"c"}));
    EXPECT_EQ(window.List1.SelectedRows(), (std::vector<int>{1, 2, 4})) << "d, b and c";
    window.List1.ListIndex = 4;
    EXPECT_EQ(window.List1.RemoveRows(2, 2), (Rows{u"b", u"e"}));
    EXPECT_EQ(window.List(), (Rows{u"a", u"d", u"c"}));
    EXPECT_EQ(window.List1.SelectedRows(), (std::vector<int>{1, 2}));
    EXPECT_EQ(window.List1.ListIndex, 2);
    EXPECT_EQ(ear.heard,
              (Heard{"inserted 0 and on: 3", "inserted 1 and on: 2", "replaced 1 and on: 2",
                     "replaced 3 and on: 2", "replaced 4", "replaced 1 and on: 4", "ListIndex",
                     "removed 2 and on: 2", "ListIndex"}));
}

TEST(ListBox, RowsThatAreNotThereAreNobodysBusiness) {
    SampleWindow window;
    window.List1.AddItem(u"a");
    Ear ear(window.List1);
    for (int row : {-1, 1}) {
        window.List1.RemoveItem(row);
        window.List1.SetRow(row, u"x");
        window.List1.Select(row, true);
        EXPECT_EQ(window.List1.List(row), u"");
        EXPECT_FALSE(window.List1.Selected(row));
    }
    EXPECT_EQ(ear.heard, Heard());
    EXPECT_EQ(window.List1.ListCount(), 1);
}

TEST(ListBox, SelectionMovesWithItsRow) {
    SampleWindow window;
    for (const char16_t* row : {u"a", u"b", u"c"}) {
        window.List1.AddItem(row);
    }
    window.List1.Select(1, true);
    window.List1.Select(2, true);
    window.List1.AddItem(u"0", 0);
    EXPECT_FALSE(window.List1.Selected(1));
    EXPECT_TRUE(window.List1.Selected(2));
    EXPECT_EQ(window.List1.SelCount(), 2);
    window.List1.RemoveItem(2);
    EXPECT_EQ(window.List1.SelCount(), 1);
    EXPECT_TRUE(window.List1.Selected(2));
}

TEST(ListBox, CurrentRowNeverLiesBeyondTheEnd) {
    SampleWindow window;
    window.List1.AddItem(u"a");
    window.List1.AddItem(u"b");
    window.List1.ListIndex = 1;
    window.List1.RemoveItem(1);
    EXPECT_EQ(window.List1.ListIndex, 0);
    window.List1.RemoveItem(0);
    EXPECT_EQ(window.List1.ListIndex, -1);
}

TEST(ListBox, ClearForgetsRowsSelectionAndPlace) {
    SampleWindow window;
    window.List1.AddItem(u"a");
    window.List1.Select(0, true);
    window.List1.ListIndex = 0;
    window.List1.TopIndex = 5;
    Ear ear(window.List1);
    window.List1.Clear();
    EXPECT_EQ(window.List1.ListCount(), 0);
    EXPECT_EQ(window.List1.SelCount(), 0);
    EXPECT_EQ(window.List1.ListIndex, -1);
    EXPECT_EQ(window.List1.TopIndex, 0);
    ASSERT_FALSE(ear.heard.empty());
    EXPECT_EQ(ear.heard.front(), "cleared 0");
}

TEST(ListBox, AChoiceSelectsExactlyTheseRows) {
    SampleWindow window;
    ListBox many(&window, "List2", kSelectMany);
    int clicks = 0;
    for (ListBox* list : {&window.List1, &many}) {
        for (const char16_t* row : {u"a", u"b", u"c"}) {
            list->AddItem(row);
        }
        list->Click = [&] { ++clicks; };
        list->Select(0, true);
        EXPECT_TRUE(list->Choose({1, 2}));
        EXPECT_EQ(list->ListIndex, 2);
    }
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(window.List1.SelectedRows(), (std::vector<int>{2}));  // one at the most
    EXPECT_EQ(many.SelectedRows(), (std::vector<int>{1, 2}));
    EXPECT_TRUE(many.Choose({}));
    EXPECT_EQ(many.SelCount(), 0);
    EXPECT_EQ(many.ListIndex, 2);
    EXPECT_EQ(clicks, 2) << "to choose nothing is no click";
    many.Enabled = false;
    EXPECT_FALSE(many.Choose({0}));
    EXPECT_EQ(many.SelCount(), 0);
}

TEST(ListBox, DragsItsSelectedRowsOnly) {
    SampleWindow window;
    window.List1.AddItem(u"a");
    std::vector<int> places;
    window.List1.RowsDragged = [&](int before) { places.push_back(before); };
    EXPECT_FALSE(window.List1.DragTo(0));  // nothing is selected
    window.List1.Select(0, true);
    EXPECT_TRUE(window.List1.DragTo(7));
    EXPECT_EQ(places, (std::vector<int>{1}));  // no place lies beyond the end
}

TEST(OptionButton, LeavesTheOthersOfItsFrameOnly) {
    SampleWindow window;
    Frame frame(&window, "Frame1");
    OptionButton inA(&window, "Option1", u"a", &frame);
    OptionButton inB(&window, "Option2", u"b", &frame);
    OptionButton outside(&window, "Option3", u"c");
    outside.Press();
    inA.Press();
    EXPECT_TRUE(inA.Value && outside.Value);
    inB.Press();
    EXPECT_TRUE(inB.Value && outside.Value);
    EXPECT_FALSE(inA.Value);
}

TEST(Acts, DoNothingOnWhatCannotBeReached) {
    SampleWindow window;
    int heard = 0;
    window.Command1.Click = [&] { ++heard; };
    window.Command1.KeyDown = [&](int) { ++heard; };
    window.Command1.FilesDropped = [&](const std::vector<Text>&) { ++heard; };
    for (Property<bool>* shut : {&window.Command1.Enabled, &window.Command1.Visible}) {
        *shut = false;
        EXPECT_FALSE(window.Command1.Press());
        EXPECT_FALSE(window.Command1.PressAgain());
        EXPECT_FALSE(window.Command1.PressKey(13));
        EXPECT_FALSE(window.Command1.Drop({u"a"}));
        *shut = true;
    }
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(window.Command1.Press());
    EXPECT_FALSE(window.Command1.Press({.right = true}));
    EXPECT_EQ(heard, 1);
    EXPECT_FALSE(window.Text1.PressKey(13));  // nobody listens
}

TEST(Acts, TextsOfAPersonAreReportedOnce) {
    SampleWindow window;
    int changes = 0;
    window.Text1.Change = [&] { ++changes; };
    EXPECT_TRUE(window.Text1.Enter(u"a"));
    EXPECT_TRUE(window.Text1.Enter(u"a"));
    window.Text1.Content = u"b";  // the program's own
    EXPECT_EQ(changes, 1);
}

TEST(Acts, AMenuEntryNeedsAllMenusAboveIt) {
    SampleWindow window;
    int chosen = 0;
    window.mnuKOU.Click = [&](int) { ++chosen; };
    window.mnuHead.Visible = false;
    EXPECT_FALSE(window.mnuKOU(1).Choose());
    window.mnuHead.Visible = true;
    window.mnuHead.Enabled = false;
    EXPECT_FALSE(window.mnuKOU(1).Choose());
    window.mnuHead.Enabled = true;
    EXPECT_TRUE(window.mnuKOU(1).Choose());
    EXPECT_EQ(chosen, 1);
}

TEST(Grid, KeepsItsHeaderAndTellsEachChange) {
    SampleWindow window;
    Grid grid(&window, "Grid1", {u"no", u"name"});
    Ear ear(grid);
    grid.AddRow({u"1", u"a"});
    grid.InsertRow(0, {u"0"});  // never before the header
    grid.SetText(2, 1, u"b");
    grid.RemoveRow(0);
    grid.RemoveRow(3);
    EXPECT_EQ(ear.heard, (Heard{"inserted 1", "inserted 1", "replaced 2"}));
    EXPECT_EQ(grid.TextMatrix(0, 1), u"name");
    EXPECT_EQ(grid.TextMatrix(1, 0), u"0");
    EXPECT_EQ(grid.TextMatrix(1, 1), u"");
    EXPECT_EQ(grid.TextMatrix(2, 1), u"b");
    EXPECT_EQ(grid.TextMatrix(3, 0), u"");
    int clicks = 0;
    grid.Click = [&] { ++clicks; };
    EXPECT_TRUE(grid.Choose(1, 0, 2, 1));
    EXPECT_FALSE(grid.Choose(1, 0, 3, 1));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(grid.RowSel, 2);
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row, 0);
}

TEST(ScrollBar, StopsAtItsEndsAndTellsEveryChange) {
    SampleWindow window;
    ScrollBar bar(&window, "HScroll1", 0, 100);
    int changes = 0;
    bar.Change = [&] { ++changes; };
    EXPECT_TRUE(bar.MoveTo(500));
    EXPECT_EQ(bar.Value, 100);
    bar.MoveTo(100);
    bar.Value = 3;  // the program's own changes are announced too
    EXPECT_EQ(changes, 2);
    bar.MoveTo(-1);
    EXPECT_EQ(bar.Value, 0);
}

TEST(MenuArray, ChecksOneEntry) {
    SampleWindow window;
    window.mnuKOU.Check(1);
    EXPECT_FALSE(window.mnuKOU(0).Checked);
    EXPECT_TRUE(window.mnuKOU(1).Checked);
    window.mnuKOU.Check(2);
    EXPECT_FALSE(window.mnuKOU(1).Checked);
    EXPECT_TRUE(window.mnuKOU(2).Checked);
    window.mnuKOU.Check(-1);
    EXPECT_FALSE(window.mnuKOU(2).Checked);
}

TEST(MenuArray, TellsWhichEntryWasChosen) {
    SampleWindow window;
    std::vector<int> chosen;
    window.mnuKOU.Click.Anew() = [&](int index) { chosen.push_back(index); };
    window.mnuKOU(2).Click();
    window.mnuKOU(0).Click();
    EXPECT_EQ(chosen, (std::vector<int>{2, 0}));
    EXPECT_FALSE(window.mnuKOU(2).Checked);  // the handler moves the check
}

TEST(MenuArray, EntriesStandUnderTheirHead) {
    SampleWindow window;
    ASSERT_EQ(window.mnuHead.Children().size(), 3u);
    EXPECT_EQ(window.mnuHead.Children()[1], &window.mnuKOU(1));
    EXPECT_EQ(window.mnuKOU(1).ParentEntry(), &window.mnuHead);
    EXPECT_EQ(window.mnuKOU(1).Name(), "mnuKOU(1)");
    EXPECT_EQ(window.mnuKOU(1).Caption(), u"二");
    EXPECT_EQ(window.FindControl("mnuKOU"), &window.mnuHead);
    EXPECT_EQ(window.FindControl("MNUKOU(2)"), &window.mnuKOU(2));
}

TEST(ControlArray, CountsFromItsFirstIndex) {
    SampleWindow window;
    EXPECT_EQ(window.Slot(3).Name(), "Slot(3)");
    EXPECT_EQ(window.FindControl("Slot(4)"), &window.Slot(4));
    EXPECT_EQ(window.FindControl("Slot(2)"), nullptr);
    EXPECT_THROW(window.Slot(5), std::out_of_range);
    EXPECT_EQ(window.Slot.Count(), 2);
}

platform::BitmapPtr OnePixel(int width, int height, platform::Color color) {
    return std::make_shared<platform::Bitmap>(width, height, platform::ToPixel(color));
}

TEST(PictureBox, SizeIsKeptInTwipsAndPixels) {
    SampleWindow window;
    window.Picture1.BackColor = 0x0000FF;
    window.Picture1.SetSize(150, 90);
    EXPECT_EQ(window.Picture1.Width, 150);
    EXPECT_EQ(window.Picture1.ScaleWidth(), 10);
    EXPECT_EQ(window.Picture1.ScaleHeight(), 6);
    EXPECT_EQ(window.Picture1.canvas.Point(9, 5), 0x0000FFu);
    window.Picture1.SetSize(-15, 90);
    EXPECT_EQ(window.Picture1.ScaleWidth(), 0);
}

TEST(PictureBox, DrawingGoesWhenThePictureComes) {
    SampleWindow window;
    window.Picture1.SetSize(150, 150);
    window.Picture1.canvas.FillRect({0, 0, 10, 10}, 0x00FF00);
    window.Picture1.SetPicture(OnePixel(2, 2, 0xFF0000));
    EXPECT_EQ(window.Picture1.canvas.Point(1, 1), 0xFF0000u);
    EXPECT_EQ(window.Picture1.canvas.Point(2, 2), 0u);  // back colour
    window.Picture1.canvas.FillRect({0, 0, 10, 10}, 0x00FF00);
    window.Picture1.Cls();
    EXPECT_EQ(window.Picture1.canvas.Point(1, 1), 0xFF0000u);  // the picture stays
    window.Picture1.SetPicture(nullptr);
    EXPECT_EQ(window.Picture1.canvas.Point(1, 1), 0u);
}

TEST(PictureBox, GrowingShowsThePictureWhereItWasCutOff) {
    SampleWindow window;
    window.Picture1.SetSize(150, 150);
    window.Picture1.SetPicture(OnePixel(8, 8, 0xFF0000));
    window.Picture1.SetSize(60, 30);  // 4 x 2 pixels
    window.Picture1.canvas.FillRect({0, 0, 4, 2}, 0x00FF00);
    window.Picture1.SetSize(150, 150);
    EXPECT_EQ(window.Picture1.canvas.Point(3, 1), 0x00FF00u);  // the drawing that was left
    EXPECT_EQ(window.Picture1.canvas.Point(4, 0), 0xFF0000u);
    EXPECT_EQ(window.Picture1.canvas.Point(0, 2), 0xFF0000u);
    EXPECT_EQ(window.Picture1.canvas.Point(7, 7), 0xFF0000u);
    EXPECT_EQ(window.Picture1.canvas.Point(8, 7), 0u);  // back colour
    window.Picture1.SetSize(0, 0);
    window.Picture1.SetSize(150, 150);
    EXPECT_EQ(window.Picture1.canvas.Point(0, 0), 0xFF0000u);
}

TEST(PictureBox, HolderTakesThePicturesSize) {
    SampleWindow window;
    window.Holder.SetPicture(OnePixel(20, 30, 0));
    EXPECT_EQ(window.Holder.ScaleWidth(), 20);
    EXPECT_EQ(window.Holder.ScaleHeight(), 30);
    EXPECT_EQ(window.Holder.Width, 300);
    EXPECT_EQ(window.Holder.Height, 450);
    window.Holder.SetPicture(nullptr);
    EXPECT_EQ(window.Holder.ScaleWidth(), 0);
    EXPECT_EQ(window.Holder.Width, 0);
}

}  // namespace
}  // namespace model
