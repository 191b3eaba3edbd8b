// Clipboard, trash and wallpaper of the desktop.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <cerrno>
#include <cstdlib>

#include "adapters/posix/posix_file_changes.h"
#include "adapters/posix/posix_files.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/desktop_wallpaper.h"
#include "adapters/qt/qt_clipboard.h"
#include "posix/temporary_folder.h"

namespace qt_adapter {
namespace {

/// A variable of the process for as long as the object lives.
class Variable {
public:
    Variable(const char* name, const std::string& value) : name_(name), before_(qgetenv(name)) {
        was_ = qEnvironmentVariableIsSet(name);
        value.empty() ? unsetenv(name) : setenv(name, value.c_str(), 1);
    }
    ~Variable() { was_ ? setenv(name_, before_.constData(), 1) : unsetenv(name_); }

private:
    const char* name_;
    QByteArray before_;
    bool was_;
};

struct DeskTest : testing::Test {
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    Desktop desktop{argc, argv, {.offscreen = true, .screens = {}}};
    TemporaryFolder folder;
    posix_adapter::PosixFiles files{folder.Path("program")};
    platform::FileError error;
};

TEST_F(DeskTest, ClipboardHoldsTextPictureOrFiles) {
    QtClipboard clipboard;
    clipboard.PutText(u"表\t計算");
    EXPECT_EQ(clipboard.GetText(), u"表\t計算");
    auto picture = std::make_shared<platform::Bitmap>(3, 2, 0xFF102030u);
    clipboard.PutPicture(picture);
    picture.reset();
    const QImage shown = QGuiApplication::clipboard()->image();
    EXPECT_EQ(shown.size(), QSize(3, 2));
    EXPECT_EQ(shown.pixel(2, 1), 0xFF102030u);
    EXPECT_EQ(clipboard.GetText(), u"");
    const std::vector<Text> paths{u"/a b/100%#\n写.jpg", u"/c.png"};
    clipboard.PutFiles(paths);
    EXPECT_EQ(clipboard.GetFiles(), paths);
    EXPECT_EQ(clipboard.GetText(), u"/a b/100%#\n写.jpg\n/c.png");
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->data("x-special/gnome-copied-files"),
              "copy\nfile:///a%20b/100%25%23%0A%E5%86%99.jpg\nfile:///c.png");
    clipboard.PutPicture(nullptr);
    EXPECT_TRUE(clipboard.GetFiles().empty());
}

struct Wallpapers : DeskTest {
    Variable path{"PATH", folder.Path("bin") + ":/usr/bin:/bin"};
    // None at all: the process's one connection would go to whatever stands here.
    Variable noBus{"DBUS_SESSION_BUS_ADDRESS", ""};
    Variable noRuntime{"XDG_RUNTIME_DIR", ""};
    DesktopWallpaper wallpaper{files};

    /// A program that notes what it is called with, and prints a value when asked for one.
    void PutProgram(const std::string& program, const std::string& prints) {
        folder.Put("bin/" + program, "#!/bin/sh\nfor a in \"$@\"; do printf '%s|' \"$a\" >>'" +
                                         folder.Path("calls") + "'; done\necho >>'" +
                                         folder.Path("calls") + "'\ncat <<'END'\n" + prints +
                                         "\nEND\n");
        chmod(folder.Path("bin/" + program).c_str(), 0755);
    }
    std::string Calls() {
        const std::string calls = folder.Content("calls");
        std::filesystem::remove(folder.Path("calls"));
        return calls;
    }
};

TEST_F(Wallpapers, AreASettingOfTheDesktop) {
    const Variable desktopName("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    PutProgram("gsettings", "'file:///before.png'");
    folder.Put("写 100%.bmp", "x");
    const std::string url = "file://" + folder.Path() + "/%E5%86%99%20100%25.bmp";
    const std::string key = "org.gnome.desktop.background|picture-uri";
    const std::string get = "get|" + key + "|\n", set = "set|" + key + "|" + url + "|\n";
    const std::string getDark = "get|" + key + "-dark|\n";
    const std::string setDark = "set|" + key + "-dark|" + url + "|\n";
    ASSERT_TRUE(wallpaper.Set(folder.TextPath("写 100%.bmp"), false, error));
    EXPECT_EQ(Calls(), get + set + getDark + setDark);
    wallpaper.PutBack();
    EXPECT_EQ(Calls(),
              "set|" + key + "|file:///before.png|\nset|" + key + "-dark|file:///before.png|\n");
    wallpaper.PutBack();
    EXPECT_EQ(Calls(), "") << "once";
    ASSERT_TRUE(wallpaper.Set(folder.TextPath("写 100%.bmp"), false, error));
    ASSERT_TRUE(wallpaper.Set(folder.TextPath("写 100%.bmp"), true, error));
    Calls();
    wallpaper.PutBack();
    EXPECT_EQ(Calls(), "") << "a lasting one stays";
    EXPECT_FALSE(wallpaper.Set(folder.TextPath("none.bmp"), true, error));
    EXPECT_EQ(error.message, u"ファイルが見つかりません。");
}

TEST_F(Wallpapers, OfEveryMonitor) {
    const Variable desktopName("XDG_CURRENT_DESKTOP", "XFCE");
    PutProgram("xfconf-query",
               "/backdrop/screen0/monitorA/workspace0/last-image\n"
               "/backdrop/screen0/monitorA/workspace0/image-style\n"
               "/backdrop/screen0/monitorB/workspace0/last-image");
    folder.Put("a.bmp", "x");
    ASSERT_TRUE(wallpaper.Set(folder.TextPath("a.bmp"), true, error));
    const std::string calls = Calls();
    for (const char* monitor : {"A", "B"}) {
        EXPECT_NE(calls.find(std::string("-p|/backdrop/screen0/monitor") + monitor +
                             "/workspace0/last-image|-s|" + folder.Path("a.bmp") + "|"),
                  std::string::npos);
    }
    EXPECT_EQ(calls.find("image-style"), std::string::npos);
}

TEST_F(Wallpapers, WithoutADesktopThereIsAMessage) {
    const Variable desktopName("XDG_CURRENT_DESKTOP", "none");
    folder.Put("a.bmp", "x");
    EXPECT_FALSE(wallpaper.Set(folder.TextPath("a.bmp"), true, error));
    EXPECT_EQ(error.message, u"このデスクトップの壁紙は変更できません。");
}

}  // namespace
}  // namespace qt_adapter
