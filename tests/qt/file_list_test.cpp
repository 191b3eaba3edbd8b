// The list of files as it is shown: names or thumbnails.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QKeyEvent>
#include <QListView>
#include <QToolButton>

#include "adapters/imaging/thumbnailer.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/posix_folders.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/file_list_binding.h"
#include "posix/temporary_folder.h"

namespace qt_adapter {
namespace {

struct FilesWindow : model::Window {
    FilesWindow() : Window("Test") {}
    model::FileList File1{this, "File1"};
};

/// A list of 40 pictures, flat and each of its own shade of red.
struct FileListView : testing::Test {
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    Desktop desktop{argc, argv, {.offscreen = true, .screens = {}}};
    Gate gate;
    TemporaryFolder folder;
    posix_adapter::PosixFiles files{folder.Path("program")};
    posix_adapter::PosixFolders folders{files};
    imaging::Thumbnailer thumbnails{{.programFolder = folder.Path("program")}};
    FilesWindow window;
    QListView view;
    std::unique_ptr<FileListBinding> binding;
    std::vector<Text> clicked;

    void SetUp() override {
        std::filesystem::create_directories(folder.Path("show"));
        for (int i = 1; i <= 40; ++i) {
            QImage image(300, 200, QImage::Format_RGB32);
            image.fill(QColor(i * 6, 0, 0));
            ASSERT_TRUE(image.save(QString::fromStdString(folder.Path(
                "show/" + std::string(i % 2 ? "A" : "b") + std::to_string(i) + ".png"))));
        }
        folder.Put("show/z bad.png", "no picture");
        folder.Put("show/.hidden.png", "x");
        view.resize(640, 420);
        window.File1.folders = &folders;
        window.File1.thumbnails = &thumbnails;
        window.File1.Click = [this] {
            clicked.push_back(window.File1.List(window.File1.ListIndex));
        };
        binding = std::make_unique<FileListBinding>(window.File1, view, Site{gate});
        window.File1.Path = folder.TextPath("show");
        view.show();
    }
    void Key(int key, const QString& text = {}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&view, &press);
    }
    QColor At(const QImage& shot, int row) const {
        const QRect cell = view.visualRect(view.model()->index(row, 0));
        return shot.pixelColor(cell.center().x(), cell.top() + 60);
    }
};

TEST_F(FileListView, ShowsThumbnailsOfWhatIsSeen) {
    EXPECT_EQ(view.model()->rowCount(), 41);
    EXPECT_EQ(view.model()->index(0, 0).data().toString(), "A1.png");
    EXPECT_EQ(view.model()->index(1, 0).data().toString(), "A3.png") << "3 before 11";
    EXPECT_TRUE(view.model()->index(0, 0).data(Qt::DecorationRole).isNull());
    ASSERT_TRUE(window.File1.ShowPictures(true));
    const QImage shot = view.viewport()->grab().toImage();
    EXPECT_EQ(At(shot, 0), QColor(6, 0, 0));
    EXPECT_EQ(At(shot, 1), QColor(18, 0, 0));
    const int seen = thumbnails.Made();
    EXPECT_GE(seen, 6);
    EXPECT_LE(seen, 20) << "those out of sight are not made";
    view.scrollToBottom();
    const QImage end = view.viewport()->grab().toImage();
    EXPECT_EQ(At(end, 39), QColor(240, 0, 0));
    EXPECT_LT(thumbnails.Made(), 41);
    const int made = thumbnails.Made();
    view.viewport()->grab();
    EXPECT_EQ(thumbnails.Made(), made) << "also of one that has none nothing is asked twice";
    ASSERT_TRUE(window.File1.ShowPictures(false));
    EXPECT_TRUE(view.model()->index(0, 0).data(Qt::DecorationRole).isNull());
    EXPECT_EQ(view.viewMode(), QListView::ListMode);
}

TEST_F(FileListView, TheSwitchIsInSight) {
    auto* button = view.findChild<QToolButton*>();
    ASSERT_TRUE(button);
    int told = 0;
    window.File1.PicturesChanged = [&] { ++told; };
    button->click();
    EXPECT_TRUE(window.File1.Pictures);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(view.viewMode(), QListView::IconMode);
    button->click();
    EXPECT_FALSE(window.File1.Pictures);
}

TEST_F(FileListView, LettersJumpAndEnterClicks) {
    view.setFocus();
    Key(Qt::Key_B, "b");
    Key(Qt::Key_1, "1");
    EXPECT_EQ(window.File1.List(window.File1.ListIndex), u"b10.png") << "without case";
    Key(Qt::Key_Down);
    EXPECT_EQ(window.File1.List(window.File1.ListIndex), u"b12.png");
    QCoreApplication::processEvents();
    EXPECT_TRUE(clicked.empty()) << "moving adds nothing";
    Key(Qt::Key_Return, "\r");
    EXPECT_EQ(clicked, std::vector<Text>{u"b12.png"});
}

TEST_F(FileListView, AnotherFolderHasItsOwnPictures) {
    window.File1.ShowPictures(true);
    view.viewport()->grab();
    QImage blue(300, 200, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    std::filesystem::create_directories(folder.Path("more"));
    ASSERT_TRUE(blue.save(QString::fromStdString(folder.Path("more/A1.png"))));
    window.File1.Path = folder.TextPath("more");
    EXPECT_EQ(At(view.viewport()->grab().toImage(), 0), QColor(Qt::blue));
}

}  // namespace
}  // namespace qt_adapter
