// The browser that windows share, and what it remembers.
#include "authoring/shared/file_browser.h"

#include <gtest/gtest.h>

#include "authoring/shared/browser_memory.h"
#include "model/window.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

using platform::Place;

struct BrowserWindow : model::Window {
    BrowserWindow() : Window("Test") {}
    model::DriveList Drive1{this, "Drive1"};
    model::FolderList Dir1{this, "Dir1"};
    model::FileList File1{this, "File1"};
};

struct Browser : testing::Test {
    fakes::FakePlatform around;
    Application& app = around.app;
    BrowserWindow window;
    int changes = 0;

    void SetUp() override {
        around.PutPicture(u"C:\\Users\\me\\10.jpg", 10, 10);
        around.PutPicture(u"D:\\show\\a.jpg", 10, 10);
        around.PutPicture(u"D:\\show\\sub\\b.jpg", 10, 10);
        around.PutPicture(u"E:\\other\\c.jpg", 10, 10);
        around.folders.places.push_back({Place::Disk, u"D:\\show", u"show"});
        window.Load();
        window.Visible = true;
        AttachBrowser(window.Drive1, window.Dir1, window.File1, [this] { ++changes; });
    }
    std::vector<Text> PlacesOfKind(Place::Kind kind) {
        std::vector<Text> paths;
        for (const Place& place : window.Drive1.Places()) {
            if (place.kind == kind) {
                paths.push_back(place.path);
            }
        }
        return paths;
    }
    void Open(const Text& folder) {
        OpenBrowser(app, window.Drive1, window.Dir1, window.File1, folder);
    }
};

TEST_F(Browser, OpensAtAFolderWithItsPlace) {
    Open(u"D:\\show\\sub");
    EXPECT_EQ(window.Drive1.Drive(), u"D:\\show");
    EXPECT_EQ(window.Drive1.ListIndex(), 2);
    EXPECT_EQ(window.Dir1.Path(), u"D:\\show\\sub");
    EXPECT_EQ(window.File1.Path(), u"D:\\show\\sub");
    EXPECT_EQ(window.File1.List(0), u"b.jpg");
    EXPECT_EQ(changes, 1);
}

TEST_F(Browser, ThePlaceFollowsAFolderThatIsOpenedElsewhere) {
    Open(u"C:\\Users\\me");
    EXPECT_EQ(window.Drive1.Drive(), u"C:\\Users\\me");
    EXPECT_TRUE(window.Dir1.Open(u"D:\\show\\sub"));
    EXPECT_EQ(window.Drive1.Drive(), u"D:\\show");
    EXPECT_EQ(window.Drive1.ListIndex(), 2);
    EXPECT_EQ(window.Dir1.Path(), u"D:\\show\\sub") << "the folder stays";
    EXPECT_TRUE(window.Dir1.Open(u"C:\\Users"));
    EXPECT_EQ(window.Drive1.Drive(), u"C:\\");
    EXPECT_EQ(window.Dir1.Path(), u"C:\\Users");
    EXPECT_TRUE(window.Dir1.Open(u"E:\\other"));
    EXPECT_EQ(window.Drive1.Drive(), u"C:\\") << "no place holds it";
    EXPECT_EQ(changes, 4);
    // The place that stands there already leads to its own folder again.
    EXPECT_TRUE(window.Drive1.Choose({0}));
    EXPECT_EQ(window.Dir1.Path(), u"C:\\Users\\me");
    EXPECT_TRUE(window.Dir1.Open(u"C:\\Users"));
    EXPECT_TRUE(window.Drive1.Choose({1}));
    EXPECT_EQ(window.Dir1.Path(), u"C:\\");
}

TEST_F(Browser, APlaceIsOpenedAgainFromBelowIt) {
    Open(u"D:\\show\\sub");
    EXPECT_TRUE(window.Drive1.Choose({2}));
    EXPECT_EQ(window.Dir1.Path(), u"D:\\show") << "though the box showed that place already";
}

TEST_F(Browser, APathIsADriveToo) {
    Open(u"C:\\Users\\me");
    EXPECT_TRUE(window.Drive1.Open(u"D:\\show\\sub"));
    EXPECT_EQ(window.Drive1.Drive(), u"D:\\show\\sub");
    EXPECT_EQ(window.Dir1.Path(), u"D:\\show\\sub");
    EXPECT_EQ(window.Drive1.ListIndex(), 2) << "the place that it lies in is shown";
}

TEST_F(Browser, RemembersTheLastFolderAndThoseUsedMost) {
    for (const TextView folder : {u"D:\\show\\sub\\", u"D:\\show\\sub", u"E:\\other"}) {
        RememberFolder(app, Text(folder));
    }
    Open(u"C:\\Users\\me");
    EXPECT_EQ(PlacesOfKind(Place::Last), std::vector<Text>{u"E:\\other"});
    EXPECT_EQ(PlacesOfKind(Place::Used), std::vector<Text>{u"D:\\show\\sub"});
    EXPECT_EQ(window.Drive1.Places()[0].kind, Place::Home) << "home stays first";
    EXPECT_EQ(window.Dir1.Path(), u"C:\\Users\\me") << "and the browser opens there";
    around.files.Remove(u"E:\\other\\c.jpg");
    Open(u"C:\\Users\\me");
    EXPECT_TRUE(PlacesOfKind(Place::Last).empty()) << "it is gone";
    // A folder among the desktop's places stands there once.
    RememberFolder(app, u"D:\\show");
    Open(u"C:\\Users\\me");
    EXPECT_TRUE(PlacesOfKind(Place::Last).empty());
    EXPECT_EQ(PlacesOfKind(Place::Disk), std::vector<Text>{u"D:\\show"});
}

TEST_F(Browser, TheDocumentsFolderIsAPlace) {
    app.state.BaseFolder = u"D:\\show\\sub\\";
    Open(u"C:\\Users\\me");
    EXPECT_TRUE(PlacesOfKind(Place::Document).empty()) << "no document is open";
    app.state.DocumentName = u"a.kvs";
    RememberFolder(app, u"D:\\show\\sub");
    Open(u"C:\\Users\\me");
    EXPECT_EQ(PlacesOfKind(Place::Document), std::vector<Text>{u"D:\\show\\sub"});
    EXPECT_TRUE(PlacesOfKind(Place::Last).empty()) << "each folder once";
    EXPECT_EQ(window.Drive1.Places()[1].label, u"sub（ショーのフォルダ）");
}

TEST_F(Browser, CountsAreBoundedAndTheOldestGoes) {
    for (int i = 0; i < 40; ++i) {
        RememberFolder(app, u"D:\\" + text::FromUtf8(std::to_string(i)));
    }
    BrowserMemory memory = ReadBrowserMemory(app);
    ASSERT_EQ(memory.used.size(), 30u);
    EXPECT_EQ(memory.used.front().folder, u"D:\\39");
    EXPECT_EQ(memory.used.back().folder, u"D:\\10");
    EXPECT_EQ(memory.last, u"D:\\39");
    for (int i = 0; i < 100; ++i) {
        RememberFolder(app, u"D:\\20");
    }
    memory = ReadBrowserMemory(app);
    EXPECT_EQ(memory.used.front().folder, u"D:\\20");
    EXPECT_EQ(memory.used.front().times, 50) << "halved at 101";
    EXPECT_EQ(memory.used.size(), 30u);
}

TEST_F(Browser, ADamagedMemoryIsNone) {
    RememberFolder(app, u"D:\\show\\sub");
    const Text file = u"C:\\app\\browser.dat";
    const std::string whole = around.files.Get(file)->content;
    for (size_t length = 0; length < whole.size(); ++length) {
        around.files.Put(file, whole.substr(0, length));
        ReadBrowserMemory(app);
    }
    around.files.Put(file, "browser9" + whole.substr(8));
    EXPECT_TRUE(ReadBrowserMemory(app).used.empty());
    around.files.MakeUnreadable(file);
    EXPECT_TRUE(ReadBrowserMemory(app).last.empty());
    RememberFolder(app, u"D:\\a\nb");
    RememberFolder(app, u"");
}

TEST_F(Browser, RemembersHowFilesAreShown) {
    Open(u"D:\\show");
    EXPECT_FALSE(window.File1.Pictures);
    EXPECT_EQ(window.File1.thumbnails, &around.thumbnails);
    EXPECT_TRUE(window.File1.ShowPictures(true));
    EXPECT_TRUE(window.File1.Pictures);
    BrowserWindow another;
    AttachBrowser(another.Drive1, another.Dir1, another.File1);
    OpenBrowser(app, another.Drive1, another.Dir1, another.File1, u"D:\\show");
    EXPECT_TRUE(another.File1.Pictures);
    window.File1.Enabled = false;
    EXPECT_FALSE(window.File1.ShowPictures(false));
    EXPECT_TRUE(window.File1.Pictures);
}

}  // namespace
}  // namespace authoring
