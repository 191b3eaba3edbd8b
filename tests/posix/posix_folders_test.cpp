#include "adapters/posix/posix_folders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "adapters/posix/posix_files.h"
#include "posix/temporary_folder.h"

namespace posix_adapter {
namespace {

using Names = std::vector<Text>;

TEST(Patterns, AreComparedWithoutCase) {
    EXPECT_TRUE(MatchesPatterns(u"a.JPG", u"*.png;*.jpg"));
    EXPECT_FALSE(MatchesPatterns(u"a.jpeg", u"*.png;*.jpg"));
    EXPECT_TRUE(MatchesPatterns(u"no extension", u"*.*"));
    EXPECT_TRUE(MatchesPatterns(u"header1.txt", u"header*.txt"));
    EXPECT_TRUE(MatchesPatterns(u"a1b", u"a?b"));
    EXPECT_FALSE(MatchesPatterns(u"ab", u"a?b"));
    EXPECT_FALSE(MatchesPatterns(u"a", u""));
}

struct Folders : testing::Test {
    TemporaryFolder folder;
    PosixFiles files{folder.Path()};
    PosixFolders folders{files};
};

TEST_F(Folders, ListsNamesThatAreNoUtf8) {
    folder.Put("\x8A\x43.jpg", "sea");
    folder.Put("\x8E\x52\xFF.jpg", "mountain");
    folder.Put("\x8E\x52\xFE.jpg", "the same as text");
    folder.Put("album\x83/a.jpg", "x");
    const Names listed{u"\uFFFDC.jpg", u"\uFFFDR\uFFFD.jpg"};
    EXPECT_EQ(folders.Files(folder.TextPath(), u"*.jpg"), listed);
    EXPECT_EQ(folders.Subfolders(folder.TextPath()), Names{u"album\uFFFD"});
    const platform::FolderContent content =
        folders.Read(folder.TextPath(), u"*.jpg", 100, [] { return true; });
    EXPECT_EQ(content.files, listed);
    EXPECT_EQ(content.folders, Names{u"album\uFFFD"});
    for (const Text& name : listed) {
        EXPECT_TRUE(files.Exists(folder.TextPath("") + u"/" + name));
    }
    EXPECT_TRUE(files.Exists(folder.TextPath("") + u"/album\uFFFD/a.jpg"));
}

TEST_F(Folders, ListsWhatIsSeenInNaturalOrder) {
    for (const char* name : {"10.jpg", "2.jpg", "a.TXT", ".hidden.jpg"}) {
        std::ofstream(folder.Path(name)) << "x";
    }
    for (const char* name : {"sub10", "sub2", ".hidden"}) {
        std::filesystem::create_directory(folder.Path(name));
    }
    std::filesystem::create_directory_symlink("sub2", folder.Path("link"));
    std::filesystem::create_symlink("nowhere", folder.Path("broken.jpg"));
    EXPECT_EQ(folders.Files(folder.TextPath(""), u"*.jpg"), (Names{u"2.jpg", u"10.jpg"}));
    EXPECT_EQ(folders.Files(folder.TextPath(""), u"*.*"), (Names{u"2.jpg", u"10.jpg", u"a.TXT"}));
    EXPECT_EQ(folders.Subfolders(folder.TextPath("")), (Names{u"link", u"sub2", u"sub10"}));
    EXPECT_EQ(folders.Files(folder.TextPath("nowhere"), u"*.*"), Names());
    EXPECT_TRUE(folders.IsFolder(folder.TextPath("sub2")));
    EXPECT_FALSE(folders.IsFolder(folder.TextPath("2.jpg")));
    const Text identity = folders.Identity(folder.TextPath("sub2"));
    EXPECT_FALSE(identity.empty());
    EXPECT_EQ(folders.Identity(folder.TextPath("link")), identity) << "a link to it";
    EXPECT_NE(folders.Identity(folder.TextPath("sub10")), identity);
    EXPECT_EQ(folders.Identity(folder.TextPath("2.jpg")), Text());
    EXPECT_EQ(folders.Identity(folder.TextPath("nowhere")), Text());
}

TEST_F(Folders, ReadsSubfoldersAndMatchingFilesAtOnce) {
    for (const char* name : {"10.jpg", "2.JPG", "3.jpeg", "a.TXT", ".hidden.jpg", "jpg", "4.png"}) {
        folder.Put(name, "x");
    }
    folder.Put("sub10/x.jpg", "x");
    std::filesystem::create_directory(folder.Path("sub2.jpg"));
    std::filesystem::create_directory_symlink("..", folder.Path("sub10/up"));
    std::filesystem::create_symlink("2.JPG", folder.Path("link.jpg"));
    std::filesystem::create_symlink("nowhere", folder.Path("broken.jpg"));
    const auto goOn = [] { return true; };
    const auto here = folders.Read(folder.TextPath(""), u"*.jpg;*.PNG", 100, goOn);
    EXPECT_EQ(here.folders, (Names{u"sub2.jpg", u"sub10"}));
    EXPECT_EQ(here.files, (Names{u"2.JPG", u"4.png", u"10.jpg", u"link.jpg"}));
    EXPECT_EQ(here.identity, folders.Identity(folder.TextPath("")));
    EXPECT_EQ(folders.Read(folder.TextPath("sub10/up"), u"*.jpg", 100, goOn).identity,
              here.identity);
    EXPECT_EQ(folders.Read(folder.TextPath(""), u"*.*", 100, goOn).files.size(), 7u);
    EXPECT_EQ(folders.Read(folder.TextPath(""), u"?.j*;a.txt", 100, goOn).files,
              (Names{u"2.JPG", u"3.jpeg", u"a.TXT"}));
    EXPECT_EQ(folders.Read(folder.TextPath(""), u"*.jpg;*.png", 2, goOn).files,
              (Names{u"2.JPG", u"4.png"}));
    EXPECT_EQ(folders.Read(folder.TextPath("gone"), u"*.jpg", 100, goOn).identity, u"");
}

TEST_F(Folders, AReadingKeepsTheFirstNamesOnlyAndEndsWhenAsked) {
    constexpr int kFiles = 3000;
    for (int i = 0; i < kFiles; ++i) {
        folder.Put(std::to_string(i) + ".jpg", "");
    }
    int asked = 0;
    const auto first = folders.Read(folder.TextPath(""), u"*.jpg", 3, [&] { return ++asked > 0; });
    EXPECT_EQ(first.files, (Names{u"0.jpg", u"1.jpg", u"2.jpg"}));
    EXPECT_GE(asked, 5);
    asked = 0;
    const auto some =
        folders.Read(folder.TextPath(""), u"*.jpg", kFiles, [&] { return ++asked < 2; });
    EXPECT_EQ(asked, 2);
    EXPECT_LT(some.files.size(), static_cast<size_t>(kFiles));
}

TEST_F(Folders, PlacesBeginAtHomeAndNameTheDesktopsFolders) {
    std::filesystem::create_directories(folder.Path("home/絵"));
    std::filesystem::create_directories(folder.Path("home/.config"));
    std::ofstream(folder.Path("home/.config/user-dirs.dirs"))
        << "# comment\nXDG_PICTURES_DIR=\"$HOME/絵\"\nXDG_MUSIC_DIR=\"$HOME/gone\"\n"
           "XDG_DESKTOP_DIR=\"$HOME\"\n";
    std::ofstream(folder.Path("drives.conf")) << "D: = " << folder.Path("home") << "\n";
    const std::string oldHome = getenv("HOME") ? getenv("HOME") : "";
    setenv("HOME", (folder.Path("home")).c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
    const std::vector<platform::Place> places = folders.Places();
    EXPECT_EQ(folders.Home(), folder.TextPath("home"));
    EXPECT_EQ(folders.HomeFolders(), folder.TextPath());
    setenv("HOME", oldHome.c_str(), 1);
    ASSERT_GE(places.size(), 4u);
    EXPECT_EQ(places[0].path, folder.TextPath("home"));
    EXPECT_EQ(places[1].kind, platform::Place::Pictures);
    EXPECT_EQ(places[1].path, folder.TextPath("home/絵"));
    EXPECT_EQ(places[places.size() - 2].path, u"D:\\");
    EXPECT_EQ(places.back().path, u"/");
}

}  // namespace
}  // namespace posix_adapter
