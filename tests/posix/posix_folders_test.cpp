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
