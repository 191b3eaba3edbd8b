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
#include "posix/ordinary_user.h"
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
    QWidget form;
    QListView& view = *new QListView(&form);
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
        form.resize(640, 300);
        view.resize(640, 300);
        view.setObjectName("File1");
        view.setProperty("emptyWords", "空です");
        for (const bool pictures : {false, true}) {
            auto* button = new QToolButton(&form);
            button->setObjectName(pictures ? "pictures" : "names");
            button->setProperty("ofFiles", "File1");
            button->setProperty("asPictures", pictures);
        }
        window.File1.folders = &folders;
        window.File1.thumbnails = &thumbnails;
        window.File1.Click = [this] {
            clicked.push_back(window.File1.List(window.File1.ListIndex));
        };
        binding = std::make_unique<FileListBinding>(window.File1, view, Site{gate});
        window.File1.Path = folder.TextPath("show");
        form.show();
    }
    void TearDown() override { binding.reset(); }
    QToolButton& Button(const char* wanted) { return *form.findChild<QToolButton*>(wanted); }
    QString Hint() {
        QCoreApplication::processEvents();
        const auto& hint = *view.viewport()->findChild<EmptyHint*>();
        return hint.isVisible() ? hint.Words() : QString();
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
    int told = 0;
    window.File1.PicturesChanged = [&] { ++told; };
    EXPECT_TRUE(Button("names").isChecked());
    Button("pictures").click();
    EXPECT_TRUE(window.File1.Pictures);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(view.viewMode(), QListView::IconMode);
    EXPECT_TRUE(Button("pictures").isChecked());
    EXPECT_FALSE(Button("names").isChecked());
    Button("pictures").click();
    EXPECT_TRUE(Button("pictures").isChecked()) << "it stays what it is";
    Button("names").click();
    EXPECT_FALSE(window.File1.Pictures);
    EXPECT_EQ(view.viewMode(), QListView::ListMode);
}

TEST_F(FileListView, NamesHaveRoomAndThumbnailsCanBeMadeOut) {
    EXPECT_GE(view.visualRect(view.model()->index(0, 0)).height(), 20);
    window.File1.ShowPictures(true);
    EXPECT_GE(view.iconSize().width(), 80);
    EXPECT_LE(view.iconSize().width(), 96);
}

TEST_F(FileListView, WithoutTheButtonsThereAreNamesAlone) {
    binding.reset();
    delete &Button("names");
    delete &Button("pictures");
    window.File1.Pictures = true;
    binding = std::make_unique<FileListBinding>(window.File1, view, Site{gate});
    EXPECT_EQ(view.viewMode(), QListView::ListMode);
    EXPECT_TRUE(view.actions().isEmpty());
}

TEST_F(FileListView, SaysWhyItIsEmpty) {
    EXPECT_EQ(Hint(), "");
    std::filesystem::create_directories(folder.Path("none"));
    window.File1.Path = folder.TextPath("none");
    EXPECT_EQ(Hint(), "空です");
    std::filesystem::create_directories(folder.Path("closed"));
    std::filesystem::permissions(folder.Path("closed"), std::filesystem::perms::none);
    std::filesystem::permissions(folder.Path("."), std::filesystem::perms::all);
    {
        const posix_adapter::AsOrdinaryUser rights;
        ASSERT_TRUE(rights.Done());
        window.File1.Path = folder.TextPath("closed");
        EXPECT_EQ(Hint(), "このフォルダは読めません\n読み取りが許可されていません。");
    }
    window.File1.Path = folder.TextPath("gone");
    EXPECT_EQ(Hint(), "このフォルダはなくなりました");
    window.File1.Path = folder.TextPath("show");
    EXPECT_EQ(Hint(), "");
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
