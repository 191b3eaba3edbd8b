// A list whose rows have faces, of which some are not seen, and what is dragged over it.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QListView>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>
#include <QUrl>
#include <set>

#include "adapters/qt/convert.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/list_binding.h"
#include "document/row_edits.h"
#include "model/controls.h"
#include "model/list_controls.h"
#include "model/row_history.h"
#include "model/window.h"
#include "qt/widget_acts.h"

namespace {

using Numbers = std::vector<int>;

struct FaceWindow : model::Window {
    FaceWindow() : Window("Faces") { Visible = true; }
    model::CheckBox Check6{this, "Check6"};
    model::ListBox List1{this, "List1", model::kSelectMany};
    model::Label Label4{this, "Label4"};
};

struct FaceView : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    qt_adapter::Gate gate;
    FaceWindow window;
    model::ListBox& list = window.List1;
    qt_adapter::FaceView view;
    std::unique_ptr<qt_adapter::ListBinding> binding;
    std::set<int> asked;  // rows whose faces were wanted

    void SetUp() override {
        list.face = [this](int row) {
            asked.insert(row);
            model::RowFace face;
            face.title = list.List(row);
            face.detail = u"/写真";
            face.marks = row == 1 ? model::kMarkMissing | model::kMarkFilm : 0u;
            return face;
        };
        view.setProperty("emptyWords", "空です");
        view.setProperty("noneSeenWords", "ありません");
        view.setProperty("insertsWhile", "Check6");
    }
    void TearDown() override { binding.reset(); }
    void Show(std::initializer_list<const char16_t*> rows = {u"a1", u"b1", u"a2", u"b2", u"a3"}) {
        for (const char16_t* row : rows) {
            list.AddItem(row);
        }
        binding = std::make_unique<qt_adapter::ListBinding>(list, view, qt_adapter::Site{gate});
        view.resize(400, 400);
        view.show();
        Pump();
    }
    void Pump() { desktop.Loop().PumpEvents(); }
    void ShowOnly(char16_t letter) {
        list.ShowOnly([letter](const Text& row) { return row.find(letter) != Text::npos; });
    }
    QStringList Seen() const {
        QStringList rows;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            rows += view.model()->index(row, 0).data().toString();
        }
        return rows;
    }
    QStringList SelectedInView() const {
        QStringList rows;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (view.selectionModel()->isRowSelected(row)) {
                rows += view.model()->index(row, 0).data().toString();
            }
        }
        return rows;
    }
    QRect Place(int row) const { return view.visualRect(view.model()->index(row, 0)); }
    void Click(int row, Qt::KeyboardModifiers modifiers = {}) {
        acts::Click(*view.viewport(), Place(row).center(), Qt::LeftButton, modifiers);
        Pump();
    }
    const QWidget& Mark() const { return *view.findChild<QWidget*>("insertionMark"); }
    template <class Drag>
    bool DragOver(const QMimeData& data, QPoint place) {
        Drag drag(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &drag);
        return drag.isAccepted();
    }
    void DropOn(const QMimeData& data, QPoint place) {
        DragOver<QDragEnterEvent>(data, place);
        QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &drop);
        Pump();
    }
};

TEST_F(FaceView, RowsThatAreNotSeenAreLeftOut) {
    Show();
    ShowOnly(u'b');
    EXPECT_EQ(Seen(), (QStringList{"b1", "b2"}));
    list.AddItem(u"a4");
    list.AddItem(u"b3");
    EXPECT_EQ(Seen(), (QStringList{"b1", "b2", "b3"}));
    list.InsertRows(0, {u"b0", u"a0", u"b0b"});
    EXPECT_EQ(Seen(), (QStringList{"b0", "b0b", "b1", "b2", "b3"}));
    list.RemoveRows(1, 2);  // one of them is not seen
    EXPECT_EQ(Seen(), (QStringList{"b0", "b1", "b2", "b3"}));
    list.SetRow(0, u"a0");
    EXPECT_EQ(Seen(), (QStringList{"b1", "b2", "b3"})) << "is not seen any more";
    list.SetRow(1, u"b9");  // was a1
    EXPECT_EQ(Seen(), (QStringList{"b9", "b1", "b2", "b3"}));
    list.Reorder(0, {3, 2, 1, 0});  // a2, b1, b9, a0 from here on
    EXPECT_EQ(Seen(), (QStringList{"b1", "b9", "b2", "b3"}));
    list.ShowOnly({});
    EXPECT_EQ(Seen(), (QStringList{"a2", "b1", "b9", "a0", "b2", "a3", "a4", "b3"}));
}

TEST_F(FaceView, AFilterThatHoldsForAllStillWatchesNewRows) {
    Show({u"b1", u"b2"});
    ShowOnly(u'b');
    list.AddItem(u"a1", 1);
    EXPECT_EQ(Seen(), (QStringList{"b1", "b2"}));
    list.RemoveRows(0, 1);
    EXPECT_EQ(Seen(), QStringList{"b2"});
}

TEST_F(FaceView, NumbersStayTheLists) {
    Show();
    list.SelectRows(3, 1, true);
    list.ListIndex = 3;
    list.Select(0, true);
    ShowOnly(u'b');
    EXPECT_EQ(list.SelectedRows(), (Numbers{0, 3}));
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(view.currentIndex().row(), 1);
    EXPECT_EQ(SelectedInView(), QStringList{"b2"});
    list.ListIndex = 2;
    EXPECT_FALSE(view.currentIndex().isValid()) << "a row that is not seen";
    list.ShowOnly({});
    EXPECT_EQ(view.currentIndex().row(), 2);
    EXPECT_EQ(SelectedInView(), (QStringList{"a1", "b2"}));
}

TEST_F(FaceView, APersonSelectsSeenRowsAlone) {
    Show();
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    list.Select(0, true);
    ShowOnly(u'b');
    Click(1);
    EXPECT_EQ(list.SelectedRows(), Numbers{3});
    EXPECT_EQ(list.ListIndex(), 3);
    Click(0, Qt::ShiftModifier);
    EXPECT_EQ(list.SelectedRows(), (Numbers{1, 3}));
    EXPECT_EQ(clicks, 2);
    view.selectAll();
    Pump();
    EXPECT_EQ(list.SelectedRows(), (Numbers{1, 3}));
}

TEST_F(FaceView, RightPressesAndKeysThatSelectAreClicks) {
    Show();
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    acts::Click(*view.viewport(), Place(2).center(), Qt::RightButton);
    Pump();
    EXPECT_EQ(list.SelectedRows(), Numbers{2});
    EXPECT_EQ(clicks, 1);
    acts::Click(*view.viewport(), Place(2).center(), Qt::RightButton);
    Pump();
    EXPECT_EQ(clicks, 1) << "it was selected already";
    acts::Key(view, Qt::Key_Down, Qt::ShiftModifier);
    Pump();
    EXPECT_EQ(list.SelectedRows(), (Numbers{2, 3}));
    EXPECT_EQ(clicks, 2) << "row and selection are one change";
    acts::Key(view, Qt::Key_Space, Qt::ControlModifier, " ");
    Pump();
    EXPECT_EQ(list.SelectedRows(), Numbers{2});
    EXPECT_EQ(clicks, 3);
}

TEST_F(FaceView, FacesOfRowsInSightAloneAreAskedFor) {
    for (int row = 0; row < 30000; ++row) {
        list.AddItem(u"/写真/絵.jpg");
    }
    Show({});
    view.grab();
    EXPECT_FALSE(asked.empty());
    EXPECT_LT(asked.size(), 14U);
    asked.clear();
    list.AsGrid = true;
    view.grab();
    EXPECT_LT(asked.size(), 20U);
    asked.clear();
    list.TopIndex = 20000;
    view.grab();
    EXPECT_TRUE(asked.count(20000));
    EXPECT_LT(*asked.rbegin() - *asked.begin(), 40);
    asked.clear();
    list.AddItem(u"/写真/最後.jpg");
    ShowOnly(u'最');
    view.grab();
    EXPECT_EQ(asked, std::set<int>{30000});
}

TEST_F(FaceView, ARowIsOneLine) {
    Show({u"a\r\nb"});
    EXPECT_EQ(Seen(), QStringList{"a  b"});
    EXPECT_EQ(list.List(0), u"a\r\nb");
}

/// Flat pictures of one colour, at once.
struct FlatThumbnails : platform::Thumbnails {
    platform::Pixel colour = 0xFFFF0000u;
    std::set<Text> wanted;
    void Want(const void*, const std::vector<Text>& paths, int side, Ready ready) override {
        for (const Text& path : paths) {
            wanted.insert(path);
            ready(path, std::make_shared<platform::Bitmap>(side, side, colour));
        }
    }
};

TEST_F(FaceView, AFileThatHasChangedIsShownAnew) {
    FlatThumbnails thumbnails;
    list.thumbnails = &thumbnails;
    list.face = [this](int row) {
        model::RowFace face;
        face.file = list.List(row);
        return face;
    };
    Show();
    const auto shows = [&](QRgb colour) {
        const QImage image = view.grab().toImage();
        const QRect place = Place(0);
        for (int x = place.left(); x < place.right(); ++x) {
            if (image.pixel(x, place.center().y()) == colour) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(shows(0xFFFF0000u));
    thumbnails.wanted.clear();
    thumbnails.colour = 0xFF0000FFu;
    list.FacesChanged(0, 1);
    EXPECT_TRUE(shows(0xFFFF0000u));
    EXPECT_TRUE(thumbnails.wanted.empty()) << "the marks of one row are no other picture";
    list.FacesChanged(0, list.ListCount());
    EXPECT_TRUE(shows(0xFF0000FFu));
    EXPECT_EQ(thumbnails.wanted.size(), 5u);
    thumbnails.wanted.clear();
    shows(0);
    EXPECT_TRUE(thumbnails.wanted.empty()) << "once";
    binding.reset();
}

TEST_F(FaceView, ARowWithoutAFileHasPlainGround) {
    struct NoThumbnails : platform::Thumbnails {
        std::set<Text> wanted;
        void Want(const void*, const std::vector<Text>& paths, int, Ready ready) override {
            for (const Text& path : paths) {
                wanted.insert(path);
                ready(path, nullptr);
            }
        }
    } thumbnails;
    list.thumbnails = &thumbnails;
    list.face = [this](int row) {
        model::RowFace face;
        face.file = row == 0 ? Text() : list.List(row);
        return face;
    };
    Show({u"空", u"/写真/絵.jpg"});
    Pump();
    const auto darkest = [&](int row) {
        const QImage image = view.grab(Place(row)).toImage();
        int least = 255;
        for (int x = 40; x < 80; ++x) {  // within the picture's square
            least = std::min(least, qGray(image.pixel(x, image.height() / 2)));
        }
        return least;
    };
    EXPECT_EQ(thumbnails.wanted, std::set<Text>{u"/写真/絵.jpg"});
    EXPECT_GT(darkest(0), darkest(1)) << "the broken picture stands in the second row alone";
    binding.reset();
}

TEST_F(FaceView, TheFirstRowFollowsOnceRowsHaveCome) {
    Show({});
    const auto top = [&] { return view.indexAt(QPoint(1, 1)).row(); };
    for (int row = 0; row < 300; ++row) {
        list.AddItem(u"/写真/絵.jpg");
        list.TopIndex = row / 2;
    }
    EXPECT_EQ(list.TopIndex, 149) << "the view's own place is no news";
    Pump();
    EXPECT_EQ(top(), 149);
    EXPECT_EQ(list.TopIndex, 149);
    list.TopIndex = 50;
    EXPECT_EQ(top(), 50) << "at once where no row came or went";
    list.RemoveRows(0, 280);
    Pump();
    EXPECT_LT(top(), 20);
}

TEST_F(FaceView, UndoBringsBackThePlace) {
    Show({});
    for (int row = 0; row < 300; ++row) {
        list.AddItem(u"/写真/絵.jpg");
    }
    Pump();
    list.Select(5, true);
    list.ListIndex = 5;
    list.TopIndex = 100;
    Pump();
    model::RowHistory history;
    const document::EditedList edited{list, nullptr, window.Label4, history, {}};
    document::AppendRows(edited, std::vector<model::ListRow>(200, {u"/写真/新.jpg", {}}));
    Pump();
    Click(103);
    EXPECT_EQ(list.SelectedRows(), Numbers{103});
    EXPECT_TRUE(document::Undo(edited));
    Pump();
    EXPECT_EQ(list.ListCount(), 300);
    EXPECT_EQ(list.SelectedRows(), Numbers{5}) << "which is out of sight";
    EXPECT_EQ(list.ListIndex(), 5);
    EXPECT_EQ(list.TopIndex(), 100);
    EXPECT_EQ(view.indexAt(QPoint(1, 1)).row(), 100);
}

TEST_F(FaceView, KeysWalkThroughTheGrid) {
    Show({u"a", u"b", u"c", u"d", u"e"});  // two in a line
    list.AsGrid = true;
    list.ListIndex = 1;
    const auto key = [&](int code, Qt::KeyboardModifiers modifiers = {}) {
        acts::Key(view, code, modifiers);
        Pump();
        return list.ListIndex();
    };
    EXPECT_EQ(key(Qt::Key_Right), 2);
    EXPECT_EQ(key(Qt::Key_Down), 4);
    EXPECT_EQ(key(Qt::Key_Down), 4);
    EXPECT_EQ(key(Qt::Key_Up), 2);
    EXPECT_EQ(key(Qt::Key_Right), 3);
    EXPECT_EQ(key(Qt::Key_Down), 4) << "the last line is shorter";
    EXPECT_EQ(key(Qt::Key_Home), 0);
    EXPECT_EQ(key(Qt::Key_Left), 0);
    EXPECT_EQ(key(Qt::Key_Down, Qt::ShiftModifier), 2);
    EXPECT_EQ(list.SelectedRows(), (Numbers{0, 1, 2})) << "in the order of the rows";
    list.AsGrid = false;
    EXPECT_EQ(key(Qt::Key_Right), 2) << "lines have one column";
    EXPECT_EQ(key(Qt::Key_End), 4);
}

TEST_F(FaceView, AFrameSelectsWhatItTouches) {
    Show({u"a", u"b", u"c", u"d", u"e"});
    list.AsGrid = true;
    view.resize(600, 600);  // three in a line
    Pump();
    acts::Drag(*view.viewport(), Place(4).bottomRight() + QPoint(40, 40), Place(1).center());
    Pump();
    EXPECT_EQ(list.SelectedRows(), (Numbers{1, 2, 4}));
}

TEST_F(FaceView, StandsBesideEachOtherInAGrid) {
    Show();
    EXPECT_EQ(Place(0).left(), Place(1).left());
    EXPECT_LT(Place(0).bottom(), Place(1).top() + 1);
    list.AsGrid = true;
    EXPECT_EQ(Place(0).top(), Place(1).top());
    EXPECT_LT(Place(0).right(), Place(1).left() + 1);
    EXPECT_GT(Place(4).top(), Place(0).top()) << "what has no room goes below";
    list.AsGrid = false;
    EXPECT_EQ(Place(0).left(), Place(1).left());
}

TEST_F(FaceView, SaysItsMarksInWords) {
    Show();
    EXPECT_EQ(view.model()->index(1, 0).data(Qt::AccessibleTextRole).toString(),
              "b1、ファイルが見つかりません、動画、/写真");
    EXPECT_EQ(view.model()->index(0, 0).data(Qt::AccessibleTextRole).toString(), "a1、/写真");
    const auto help = [&](QPoint place) {
        QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(help(Place(1).center()), "b1");
    // The two marks end at the right edge of the first line of words: film, and missing before it.
    const QPoint edge(Place(1).right() - 18,
                      Place(1).center().y() - view.fontMetrics().height() / 2);
    EXPECT_EQ(help(edge), "動画");
    EXPECT_EQ(help(edge - QPoint(20, 0)), "ファイルが見つかりません");
}

TEST_F(FaceView, WordsStandInPlaceOfRows) {
    Show({});
    const auto& hint = *view.viewport()->findChild<qt_adapter::EmptyHint*>();
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ(hint.Words(), "空です");
    EXPECT_EQ(hint.accessibleName(), "空です");
    EXPECT_EQ(hint.size(), view.viewport()->size());
    list.AddItem(u"a");
    EXPECT_FALSE(hint.isVisible());
    ShowOnly(u'b');
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ(hint.Words(), "ありません");
}

/// Has no picture of one file, and takes its time for another.
struct SlowThumbnails : platform::Thumbnails {
    void Want(const void*, const std::vector<Text>& paths, int, Ready ready) override {
        for (const Text& path : paths) {
            if (path != u"slow.jpg") {
                ready(path, nullptr);
            }
        }
    }
};

TEST_F(FaceView, WhatCannotBeShownDoesNotLookLikeWhatComes) {
    SlowThumbnails thumbnails;
    list.thumbnails = &thumbnails;
    list.face = [this](int row) {
        model::RowFace face;
        face.file = list.List(row);
        return face;
    };
    Show({u"slow.jpg", u"damaged.jpg", u"film.mp4"});
    view.grab();
    const auto sign = [&](int row) {
        return view.model()->index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    EXPECT_NE(sign(0), sign(1));
    EXPECT_NE(sign(1), sign(2));
    EXPECT_NE(sign(0), sign(2));
    const QPoint place = Place(1).center();
    QHelpEvent help(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &help);
    EXPECT_EQ(QToolTip::text(), "damaged.jpg\n画像を読めません");
    binding.reset();
}

TEST_F(FaceView, RowsAreLetGoBetweenRows) {
    Show();
    Numbers dragged;
    const std::unique_ptr<QMimeData> rows(view.model()->mimeData({}));
    EXPECT_FALSE(DragOver<QDragEnterEvent>(*rows, {5, 5})) << "nobody hears";
    list.RowsDragged = [&](int before) { dragged.push_back(before); };
    Click(4);
    EXPECT_TRUE(DragOver<QDragEnterEvent>(*rows, Place(1).center() - QPoint(0, 5)));
    EXPECT_TRUE(Mark().isVisible());
    EXPECT_NEAR(Mark().geometry().center().y(), Place(1).top(), 2) << "in front of it";
    EXPECT_TRUE(DragOver<QDragMoveEvent>(*rows, Place(1).center() + QPoint(0, 5)));
    EXPECT_NEAR(Mark().geometry().center().y(), Place(2).top(), 2) << "after it";
    DropOn(*rows, Place(1).center() + QPoint(0, 5));
    EXPECT_EQ(dragged, Numbers{2});
    EXPECT_FALSE(Mark().isVisible());
    DropOn(*rows, Place(4).center() + QPoint(0, 5));
    EXPECT_EQ(dragged, (Numbers{2, 5})) << "the end";
    ShowOnly(u'a');  // a1, a2, a3
    DropOn(*rows, Place(1).center() - QPoint(0, 5));
    EXPECT_EQ(dragged, (Numbers{2, 5, 2})) << "in front of the seen a2";
    list.AsGrid = true;
    EXPECT_TRUE(DragOver<QDragEnterEvent>(*rows, Place(1).center() + QPoint(5, 0)));
    EXPECT_NEAR(Mark().geometry().center().x(), Place(1).right(), 4);
    QDragLeaveEvent leave;
    QApplication::sendEvent(view.viewport(), &leave);
    EXPECT_FALSE(Mark().isVisible());
    EXPECT_EQ(dragged.size(), 3U);
}

TEST_F(FaceView, FilesShowWhereTheyGo) {
    Show();
    std::vector<Text> dropped;
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/写真/x.jpg")});
    EXPECT_FALSE(DragOver<QDragEnterEvent>(files, {5, 5})) << "nobody takes them";
    list.FilesDropped = [&](const std::vector<Text>& paths) { dropped = paths; };
    list.Select(1, true);
    EXPECT_TRUE(DragOver<QDragEnterEvent>(files, Place(0).center()));
    EXPECT_NEAR(Mark().geometry().center().y(), Place(4).bottom(), 4) << "to the end";
    window.Check6.Value = 1;
    EXPECT_TRUE(DragOver<QDragMoveEvent>(files, Place(0).center()));
    EXPECT_NEAR(Mark().geometry().center().y(), Place(1).top(), 4) << "before the selected row";
    list.Select(2, true);
    EXPECT_TRUE(DragOver<QDragMoveEvent>(files, Place(0).center()));
    EXPECT_NEAR(Mark().geometry().center().y(), Place(4).bottom(), 4) << "two are selected";
    DropOn(files, Place(0).center());
    EXPECT_EQ(dropped, std::vector<Text>{u"/写真/x.jpg"});
    EXPECT_FALSE(Mark().isVisible());
    dropped.clear();
    window.Enabled = false;
    EXPECT_FALSE(DragOver<QDragEnterEvent>(files, {5, 5})) << "the window cannot be reached";
}

TEST_F(FaceView, ScrollsWhileADragIsHeldAtTheEdge) {
    for (int row = 0; row < 100; ++row) {
        list.AddItem(u"絵");
    }
    Show({});
    list.RowsDragged = [](int) {};
    const std::unique_ptr<QMimeData> rows(view.model()->mimeData({}));
    const QScrollBar& bar = *view.verticalScrollBar();
    DragOver<QDragEnterEvent>(*rows, {50, view.viewport()->height() / 2});
    DragOver<QDragMoveEvent>(*rows, {50, view.viewport()->height() - 3});
    while (bar.value() < 100) {
        desktop.Loop().PumpEvents();
    }
    DragOver<QDragMoveEvent>(*rows, {50, 3});
    while (bar.value() > 0) {
        desktop.Loop().PumpEvents();
    }
    EXPECT_NEAR(Mark().geometry().top(), 0, 2);
}

}  // namespace
