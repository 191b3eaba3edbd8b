// Lists, text, keys, file filters, monitors: each by itself.
#include <gtest/gtest.h>

#include <QListView>

#include "adapters/qt/desktop.h"
#include "adapters/qt/list_binding.h"
#include "adapters/qt/qt_dialogs.h"
#include "adapters/qt/qt_monitors.h"
#include "adapters/qt/qt_text_renderer.h"
#include "adapters/qt/virtual_keys.h"
#include "model/list_controls.h"

namespace {

using namespace qt_adapter;

struct OneList : model::Window {
    OneList() : Window("OneList") {}
    model::ListBox List1{this, "List1"};
};

struct Lists : testing::Test {
    OneList window;
    Gate gate;
    QListView view;

    QStringList Seen() const {
        QStringList rows;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            rows += view.model()->index(row, 0).data().toString();
        }
        return rows;
    }
};

TEST_F(Lists, RowsArePassedOnOneByOne) {
    window.List1.AddItem(u"a");
    ListBinding binding(window.List1, view, {gate});
    EXPECT_EQ(Seen(), QStringList{"a"});
    window.List1.AddItem(u"c");
    window.List1.AddItem(u"b", 1);
    EXPECT_EQ(Seen(), (QStringList{"a", "b", "c"}));
    window.List1.SetRow(0, u"A");
    window.List1.RemoveItem(2);
    EXPECT_EQ(Seen(), (QStringList{"A", "b"}));
    window.List1.Clear();
    EXPECT_TRUE(Seen().isEmpty());
}

TEST_F(Lists, SelectionGoesBothWays) {
    ListBinding binding(window.List1, view, {gate});
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const char16_t* row : {u"a", u"b", u"c"}) {
        window.List1.AddItem(row);
    }
    window.List1.Select(1, true);
    EXPECT_TRUE(view.selectionModel()->isRowSelected(1));
    window.List1.Select(1, false);
    EXPECT_FALSE(view.selectionModel()->isRowSelected(1));
    view.selectionModel()->select(view.model()->index(2, 0), QItemSelectionModel::Select);
    EXPECT_TRUE(window.List1.Selected(2));
    EXPECT_EQ(window.List1.SelCount(), 1);
    view.selectionModel()->setCurrentIndex(view.model()->index(0, 0),
                                           QItemSelectionModel::NoUpdate);
    EXPECT_EQ(window.List1.ListIndex(), 0);
    window.List1.ListIndex = 2;
    EXPECT_EQ(view.currentIndex().row(), 2);
    window.List1.RemoveItem(0);
    EXPECT_TRUE(view.selectionModel()->isRowSelected(1)) << "c moved up, selected";
    EXPECT_FALSE(view.selectionModel()->isRowSelected(0));
}

TEST_F(Lists, SeveralRowsAreOneChange) {
    ListBinding binding(window.List1, view, Site{gate});
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    window.List1.InsertRows(0, {u"a", u"d"});
    window.List1.InsertRows(1, {u"b", u"c"});
    EXPECT_EQ(Seen(), (QStringList{"a", "b", "c", "d"}));
    window.List1.SelectRows(0, 4, true);
    window.List1.SelectRows(2, 1, false);
    window.List1.Reorder(0, {2, 3, 1, 0});
    EXPECT_EQ(Seen(), (QStringList{"c", "d", "b", "a"}));
    for (const int row : {0, 1, 2, 3}) {
        EXPECT_EQ(view.selectionModel()->isRowSelected(row), row != 0) << row;
    }
    window.List1.RemoveRows(1, 2);
    EXPECT_EQ(Seen(), (QStringList{"c", "a"}));
    EXPECT_FALSE(view.selectionModel()->isRowSelected(0));
    EXPECT_TRUE(view.selectionModel()->isRowSelected(1));
}

TEST_F(Lists, ThirtyThousandRowsAndTheirWayBack) {
    ListBinding binding(window.List1, view, {gate});
    for (int i = 0; i < 30000; ++i) {
        window.List1.AddItem(u"/pics/slide.jpg");
    }
    EXPECT_EQ(view.model()->rowCount(), 30000);
    for (int i = 0; i < 29999; ++i) {
        window.List1.RemoveItem(window.List1.ListCount() - 1);
    }
    EXPECT_EQ(Seen(), QStringList{"/pics/slide.jpg"});
}

TEST(Filters, AreConverted) {
    EXPECT_EQ(NameFilters(u"KVSFiles (*.kvs)|*.kvs|画像|*.jpg;*.bmp|すべて(*.*)|*.*"),
              (QStringList{"KVSFiles (*.kvs) (*.kvs)", "画像 (*.jpg *.bmp)", "すべて(*.*) (*)"}));
    EXPECT_TRUE(NameFilters(u"").isEmpty());
    EXPECT_EQ(NameFilters(u"半端"), QStringList{}) << "a caption without its pattern";
    EXPECT_EQ(DefaultSuffix(u"KVS|*.kvs|すべて|*.*"), "kvs");
    EXPECT_EQ(DefaultSuffix(u"すべて|*.*"), "");
    EXPECT_EQ(DefaultSuffix(u"すべて|*"), "");
    EXPECT_EQ(DefaultSuffix(u""), "");
}

TEST(Keys, HaveTheirNumbers) {
    EXPECT_EQ(VirtualKey(Qt::Key_Escape), 27);
    EXPECT_EQ(VirtualKey(Qt::Key_Return), 13);
    EXPECT_EQ(VirtualKey(Qt::Key_Enter), 13);
    EXPECT_EQ(VirtualKey(Qt::Key_Insert), 45);
    EXPECT_EQ(VirtualKey(Qt::Key_Delete), 46);
    EXPECT_EQ(VirtualKey(Qt::Key_Left), 37);
    EXPECT_EQ(VirtualKey(Qt::Key_Down), 40);
    EXPECT_EQ(VirtualKey(Qt::Key_A), 65);
    EXPECT_EQ(VirtualKey(Qt::Key_9), 57);
    EXPECT_EQ(VirtualKey(Qt::Key_F1), 112);
    EXPECT_EQ(VirtualKey(Qt::Key_VolumeUp), 0);
}

TEST(TextDrawing, MeasuresByPixelsAndSubstitutesFonts) {
    QtTextRenderer renderer;
    platform::Font font;
    font.name = u"ＭＳ ゴシック";
    font.sizePoints = 12;  // 16 pixels
    // Of fixed width: a full-width letter is as wide as the size, a half-width one half of it.
    EXPECT_EQ(renderer.Measure(font, u"あいう").width, 48);
    EXPECT_EQ(renderer.Measure(font, u"abc").width, 24);
    EXPECT_EQ(renderer.Measure(font, u"").width, 0);
    EXPECT_GE(renderer.Measure(font, u"").height, 16);
    font.name = u"ＭＳ 明朝";
    EXPECT_EQ(ScreenFont(font).families().first(), "IPAMincho");
    font.name = u"ＭＳ Ｐゴシック";
    EXPECT_EQ(ScreenFont(font).families().first(), "IPAPGothic");
    font.name = u"ＭＳ Ｐ明朝";
    EXPECT_EQ(ScreenFont(font).families().first(), "IPAPMincho");
    font.name = u"No Such Font";
    EXPECT_EQ(ScreenFont(font).families().first(), "IPAPGothic");
}

TEST(TextDrawing, MarksWhatItDrewAndNothingElse) {
    QtTextRenderer renderer;
    platform::Canvas canvas;
    canvas.Resize(200, 100, platform::Rgb(255, 255, 255));
    canvas.TakeChanged();
    platform::Font font;
    font.sizePoints = 15;  // 20 pixels
    renderer.Draw(canvas, 50, 30, font, platform::Rgb(255, 0, 0), u"■■");
    const platform::Rect changed = canvas.TakeChanged();
    int drawn = 0;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 200; ++x) {
            if (canvas.Point(x, y) == platform::Rgb(255, 255, 255)) {
                continue;
            }
            ++drawn;
            ASSERT_TRUE(x >= changed.x && x < changed.x + changed.width && y >= changed.y &&
                        y < changed.y + changed.height)
                << x << "," << y;
            ASSERT_GE(x, 50);
            ASSERT_GE(y, 30);
        }
    }
    EXPECT_GT(drawn, 300) << "two squares of a good 15 pixels";
    EXPECT_EQ(canvas.Point(61, 41), platform::Rgb(255, 0, 0));
    // Beyond every edge: clipped.
    renderer.Draw(canvas, -500, 300, font, 0, u"■");
    platform::Canvas none;
    renderer.Draw(none, 0, 0, font, 0, u"■");
}

TEST(MonitorTable, GivenScreensAreReported) {
    const std::vector<platform::Rect> screens = {{0, 0, 1280, 720}, {1280, 0, 640, 480}};
    QtMonitors given(screens, [] { return nullptr; });
    EXPECT_EQ(given.Enumerate(), screens);
    EXPECT_EQ(given.OfMainWindow(), 0);
    QtMonitors real({}, [] { return nullptr; });
    ASSERT_GE(real.Enumerate().size(), 1u);
    EXPECT_FALSE(real.Enumerate()[0].Empty());
}

}  // namespace
