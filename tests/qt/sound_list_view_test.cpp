// The form of the sound list's window: everything is there, has a name, fits; its rows have no room
// for pictures; and the bar of the preview.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QListView>

#include "adapters/qt/binding_table.h"
#include "adapters/qt/desktop.h"
#include "model/windows.h"
#include "model/windows/sound_list.h"
#include "qt/widget_acts.h"

namespace {

struct SoundListForm : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    model::Windows windows;
    model::Form10& form10 = windows.form10;
    QWidget* root = nullptr;

    void SetUp() override {
        form10.List1.face = [](int) { return model::RowFace{}; };
        desktop.MakeViews(windows);
        root = desktop.WidgetOf(form10);
        ASSERT_NE(root, nullptr);
        form10.Visible = true;
        Pump();
    }
    void TearDown() override { desktop.UnmakeViews(); }
    void Pump() { desktop.Loop().PumpEvents(); }
    QAbstractSlider& Bar() { return *root->findChild<QAbstractSlider*>("Position"); }
};

TEST_F(SoundListForm, HasEveryControl) {
    for (const model::Control* control : form10.Controls()) {
        if (qt_adapter::HasWidget(control->Kind())) {
            EXPECT_NE(root->findChild<QWidget*>(QString::fromStdString(control->Name())), nullptr)
                << control->Name();
        }
    }
}

TEST_F(SoundListForm, NamesAndExplainsWhatCanBePressed) {
    for (const QAbstractButton* button : root->findChildren<QAbstractButton*>()) {
        if (form10.FindControl(button->objectName().toStdString()) != nullptr) {
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
            EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty())
                << button->objectName().toStdString();
        }
    }
    EXPECT_EQ(Bar().accessibleName(), "再生位置");
}

TEST_F(SoundListForm, FitsAtItsSmallest) {
    root->resize(1, 1);
    Pump();
    EXPECT_EQ(root->size(), QSize(802, 583)) << "12030 by 8745 twips";
    for (const QWidget* widget : root->findChildren<QWidget*>()) {
        if (form10.FindControl(widget->objectName().toStdString()) && widget->isVisible()) {
            EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
                << widget->objectName().toStdString();
        }
    }
}

TEST_F(SoundListForm, ItsRowsHaveTwoLinesAndNoPicture) {
    form10.List1.InsertRows(0, {u"a.wav"});
    Pump();
    const auto& list = *root->findChild<QListView*>("List1");
    const int line = list.fontMetrics().height();
    const int height = list.visualRect(list.model()->index(0, 0)).height();
    EXPECT_GE(height, 2 * line);
    EXPECT_LT(height, 2 * line + 16);
}

TEST_F(SoundListForm, APressOnTheBarChoosesThePlace) {
    std::vector<int> places;
    form10.Position.Change = [&] { places.push_back(form10.Position.Value); };
    form10.Position.Max = 10000;
    form10.Position.Enabled = true;
    form10.Position.SetLevels({0, 128, 255});
    Pump();
    QAbstractSlider& bar = Bar();
    acts::Click(bar, {(bar.width() - 1) / 2, 10});
    ASSERT_EQ(places.size(), 1u);
    EXPECT_NEAR(places[0], 5000, 20);
    // A drag chooses where it ends.
    acts::Drag(bar, {0, 10}, {bar.width() + 50, 10});
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(places[1], 10000);
    EXPECT_EQ(form10.Position.Value(), 10000);
    acts::Click(bar, {10, 10}, Qt::RightButton);
    EXPECT_EQ(places.size(), 2u);
    EXPECT_FALSE(root->grab().isNull());
}

TEST_F(SoundListForm, TheArrowKeysMoveTheBar) {
    form10.Position.SmallChange = 5000;
    form10.Position.Max = 20000;
    form10.Position.Enabled = true;
    Pump();
    acts::Key(Bar(), Qt::Key_Right);
    EXPECT_EQ(form10.Position.Value(), 5000);
    acts::Key(Bar(), Qt::Key_Left);
    EXPECT_EQ(form10.Position.Value(), 0);
}

}  // namespace
