// The tree of folders as it follows the disk.
#include <gtest/gtest.h>

#include <QTreeView>

#include "adapters/qt/browser_binding.h"
#include "adapters/qt/desktop.h"
#include "support/fake_platform.h"
#include "widget_acts.h"

namespace qt_adapter {
namespace {

struct TreeWindow : model::Window {
    TreeWindow() : Window("Test") { Visible = true; }
    model::FolderList Dir1{this, "Dir1"};
};

struct FolderTreeView : testing::Test {
    int argc = 0;
    Desktop desktop{argc, nullptr, {true, {}}};
    Gate gate;
    fakes::FakePlatform around;
    TreeWindow window;
    model::FolderList& dir = window.Dir1;
    QTreeView tree;
    std::unique_ptr<FolderBinding> binding;
    int changes = 0;

    void SetUp() override {
        around.PutPicture(u"C:\\Users\\me\\a.png", 1, 1);
        around.PutPicture(u"C:\\Users\\me\\pics\\c.png", 1, 1);
        dir.folders = &around.folders;
    }
    void Bind() {
        tree.resize(300, 200);
        binding = std::make_unique<FolderBinding>(dir, tree, Site{gate});
        tree.show();
        desktop.Loop().PumpEvents();
        dir.Change = [this] { ++changes; };
    }
};

TEST_F(FolderTreeView, FoldersComeAndGoInTheTree) {
    around.PutPicture(u"C:\\Users\\me\\pics\\sub\\d.png", 1, 1);
    dir.Path = u"C:\\Users\\me\\pics";
    Bind();
    const QModelIndex me = tree.currentIndex().parent();
    const auto names = [&] {
        QStringList all;
        for (int row = 0; row < tree.model()->rowCount(me); ++row) {
            all << me.model()->index(row, 0, me).data().toString();
        }
        return all;
    };
    for (const char16_t* name : {u"album", u"beach", u"new", u"x", u"y"}) {
        around.PutPicture(Text(u"C:\\Users\\me\\") + name + u"\\e.png", 1, 1);
    }
    EXPECT_EQ(names(), QStringList{"pics"});
    acts::Key(tree, Qt::Key_F5);
    EXPECT_EQ(names(), (QStringList{"album", "beach", "new", "pics", "x", "y"}));
    EXPECT_EQ(tree.currentIndex().data(), "pics");
    EXPECT_EQ(tree.currentIndex().row(), 3);
    EXPECT_TRUE(tree.isExpanded(tree.currentIndex()));
    EXPECT_EQ(tree.model()->index(0, 0, tree.currentIndex()).data(), "sub");
    for (const char16_t* name : {u"album", u"beach", u"x"}) {
        around.files.Remove(Text(u"C:\\Users\\me\\") + name + u"\\e.png");
    }
    around.PutPicture(u"C:\\Users\\me\\pics\\sub\\deep\\f.png", 1, 1);
    around.PutPicture(u"C:\\Users\\me\\pics\\below\\f.png", 1, 1);
    dir.Refresh();
    EXPECT_EQ(names(), (QStringList{"new", "pics", "y"}));
    EXPECT_EQ(tree.currentIndex().data(), "pics");
    EXPECT_EQ(tree.model()->rowCount(tree.currentIndex()), 2);
    EXPECT_EQ(changes, 0) << "the person is where they were";
}

TEST_F(FolderTreeView, TheFolderThatAPersonIsInComesBack) {
    dir.Path = u"C:\\Users\\me\\pics";
    Bind();
    around.files.Remove(u"C:\\Users\\me\\pics\\c.png");
    dir.Refresh();
    EXPECT_FALSE(tree.currentIndex().isValid()) << "no other is shown as if they were in it";
    EXPECT_EQ(dir.Path(), u"C:\\Users\\me\\pics");
    around.PutPicture(u"C:\\Users\\me\\pics\\c.png", 1, 1);
    dir.Refresh();
    EXPECT_EQ(tree.currentIndex().data(), "pics");
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace qt_adapter
