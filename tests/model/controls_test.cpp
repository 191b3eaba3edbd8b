// Controls: properties that announce themselves, lists, menus, pictures.
#include "model/control.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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
        heard.push_back(std::string(kNames[change.kind]) + " " + std::to_string(change.row));
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
    window.List1.AddItem(u"d", 99);  // behind the end: at the end
    window.List1.AddItem(u"c", 2);
    window.List1.SetRow(0, u"A");
    EXPECT_EQ(window.List(), (Rows{u"A", u"b", u"c", u"d"}));
    window.List1.RemoveItem(1);
    EXPECT_EQ(window.List(), (Rows{u"A", u"c", u"d"}));
    EXPECT_EQ(ear.heard, (Heard{"inserted 0", "inserted 0", "inserted 2", "inserted 2",
                                "replaced 0", "removed 1"}));
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

TEST(ListBox, CurrentRowNeverLiesBehindTheEnd) {
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
    window.mnuKOU.Click = [&](int index) { chosen.push_back(index); };
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
