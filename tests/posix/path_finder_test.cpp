#include "adapters/posix/path_finder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "posix/temporary_folder.h"

namespace {

using posix_adapter::PathFinder;

TEST(FoldCase, LeavesNoCaseApart) {
    EXPECT_EQ(posix_adapter::FoldCase(u"AzÀØΣЯЁⅣＡｚ画１"), u"azàøσяёⅳａｚ画１");
    EXPECT_EQ(posix_adapter::FoldCase(u"×÷ﾊ"), u"×÷ﾊ");
}

class Finding : public ::testing::Test {
protected:
    std::optional<std::string> Find(const std::string& name) {
        return finder_.Find(folder_.TextPath(name));
    }
    TemporaryFolder folder_;
    PathFinder finder_{folder_.Path("program")};
};

TEST_F(Finding, TakesNativePathsAsTheyAre) {
    folder_.Put("Show/写真 1.JPG", "x");
    EXPECT_EQ(Find("Show/写真 1.JPG"), folder_.Path("Show/写真 1.JPG"));
    EXPECT_EQ(Find("Show"), folder_.Path("Show"));
    EXPECT_EQ(Find("Show/"), folder_.Path("Show/"));
    EXPECT_EQ(Find("Show/none.jpg"), std::nullopt);
    EXPECT_EQ(finder_.Find(u""), std::nullopt);
}

TEST_F(Finding, ComparesEachPartWithoutCase) {
    folder_.Put("Show/ＡＢＣ/Photo.JPG", "x");
    EXPECT_EQ(Find("show/ａｂｃ/photo.jpg"), folder_.Path("Show/ＡＢＣ/Photo.JPG"));
    EXPECT_EQ(Find("SHOW/ＡＢＣ/PHOTO.jpg"), folder_.Path("Show/ＡＢＣ/Photo.JPG"));
    EXPECT_EQ(Find("show/photo.jpg"), std::nullopt);
    EXPECT_EQ(Find("show/ＡＢＣ/Photo.JPG/"), std::nullopt);  // a file is no folder
}

TEST_F(Finding, PrefersTheExactNameThenTheFirstInOrder) {
    folder_.Put("a.JPG", "1");
    folder_.Put("A.jpg", "2");
    EXPECT_EQ(Find("a.JPG"), folder_.Path("a.JPG"));
    EXPECT_EQ(Find("A.jpg"), folder_.Path("A.jpg"));
    EXPECT_EQ(Find("a.jpg"), folder_.Path("A.jpg"));
}

TEST_F(Finding, FindsNamesThatTextCannotHold) {
    folder_.Put("odd/a\r\nb.jpg", "x");
    EXPECT_EQ(Find("odd/a\r\nb.jpg"), folder_.Path("odd/a\r\nb.jpg"));
    EXPECT_EQ(Find("odd/a  b.jpg"), folder_.Path("odd/a\r\nb.jpg")) << "as a document keeps it";
    folder_.Put("odd/a  b.jpg", "x");
    EXPECT_EQ(Find("odd/a  b.jpg"), folder_.Path("odd/a  b.jpg"));
    // Bytes that are no UTF-8 stand as U+FFFD.
    folder_.Put("odd/\xE9t\xE9.jpg", "x");
    EXPECT_EQ(finder_.Find(folder_.TextPath("odd/") + u"\uFFFDt\uFFFD.jpg"),
              folder_.Path("odd/\xE9t\xE9.jpg"));
    const std::string longest(251, 'x');
    folder_.Put("odd/" + longest + ".jpg", "x");
    EXPECT_EQ(Find("odd/" + longest + ".JPG"), folder_.Path("odd/" + longest + ".jpg"));
    EXPECT_EQ(Find("odd/" + longest + "x.JPG"), std::nullopt);
    folder_.Put("odd/\"quote'%s.jpg", "x");
    EXPECT_EQ(Find("ODD/\"QUOTE'%s.jpg"), folder_.Path("odd/\"quote'%s.jpg"));
}

TEST_F(Finding, TreatsABackslashAsASeparatorWhereNoFileHasIt) {
    folder_.Put("Sub/a.jpg", "x");
    EXPECT_EQ(Find("sub\\A.JPG"), folder_.Path("Sub/a.jpg"));
    folder_.Put("sub\\a.jpg", "the file with the odd name");
    EXPECT_EQ(Find("sub\\a.jpg"), folder_.Path("sub\\a.jpg"));
}

TEST_F(Finding, SeesFilesThatComeAndGo) {
    folder_.Put("first.jpg", "x");
    EXPECT_EQ(Find("SECOND.jpg"), std::nullopt);
    for (int i = 0; i < 50; ++i) {
        const std::string name = "second" + std::to_string(i) + ".jpg";
        EXPECT_EQ(Find("SECOND" + std::to_string(i) + ".JPG"), std::nullopt);
        folder_.Put(name, "x");
        ASSERT_EQ(Find("SECOND" + std::to_string(i) + ".JPG"), folder_.Path(name));
        std::filesystem::remove(folder_.Path(name));
        ASSERT_EQ(Find("SECOND" + std::to_string(i) + ".JPG"), std::nullopt);
    }
}

/// So that a folder which fills is not read for each of its files.
TEST_F(Finding, KnowsWhatTheProgramMadeWithoutReadingTheFolderAnew) {
    folder_.Put("show/first.jpg", "x");
    const std::string folder = folder_.Path("show");
    EXPECT_EQ(Find("show/FIRST.jpg"), folder_.Path("show/first.jpg"));
    for (int i = 0; i < 3; ++i) {
        const std::string name = "show/New" + std::to_string(i) + ".jpg";
        EXPECT_EQ(finder_.Target(folder_.TextPath(name)), folder_.Path(name));
        struct stat status {};
        ASSERT_EQ(stat(folder.c_str(), &status), 0);
        folder_.Put(name, "x");
        finder_.Added(folder_.Path(name), status.st_mtim);
        EXPECT_EQ(Find("show/NEW" + std::to_string(i) + ".JPG"), folder_.Path(name));
        EXPECT_EQ(Find("show/first.JPG"), folder_.Path("show/first.jpg"));
    }
    std::filesystem::remove(folder_.Path("show/New1.jpg"));
    EXPECT_EQ(Find("show/new1.jpg"), std::nullopt);
    // What others put there in between takes the listing's place: it was not of that moment.
    struct stat before {};
    ASSERT_EQ(stat(folder.c_str(), &before), 0);
    folder_.Put("show/Other.jpg", "x");
    finder_.Added(folder_.Path("show/Other.jpg"), timespec{1, 0});
    EXPECT_EQ(Find("show/other.jpg"), folder_.Path("show/Other.jpg"));
}

TEST_F(Finding, GoesThroughTheDriveTable) {
    folder_.Put("disk/Pics/a.jpg", "x");
    EXPECT_EQ(finder_.Find(u"C:\\pics\\a.jpg"), std::nullopt);
    folder_.Put("program/drives.conf", "# drives\r\n c: = " + folder_.Path("disk") +
                                           "/ \nnonsense\nE: = relative\n\n1: = /\n");
    EXPECT_EQ(finder_.Find(u"C:\\pics\\A.jpg"), folder_.Path("disk/Pics/a.jpg"));
    EXPECT_EQ(finder_.Find(u"c:/Pics\\a.jpg"), folder_.Path("disk/Pics/a.jpg"));
    EXPECT_EQ(finder_.Find(u"C:\\"), folder_.Path("disk"));
    EXPECT_EQ(finder_.Find(u"D:\\pics\\a.jpg"), std::nullopt);
    EXPECT_EQ(finder_.Find(u"E:\\pics\\a.jpg"), std::nullopt);
    EXPECT_EQ(finder_.Find(u"\\\\server\\share\\a.jpg"), std::nullopt);
    std::filesystem::remove(folder_.Path("program/drives.conf"));
    EXPECT_EQ(finder_.Find(u"C:\\pics\\a.jpg"), std::nullopt);
}

TEST_F(Finding, NeverStopsAtAZero) {
    folder_.Put("a.jpg", "x");
    EXPECT_EQ(finder_.Find(folder_.TextPath("a.jpg") + Text(1, u'\0') + u"b"), std::nullopt);
}

TEST_F(Finding, FindsNamesThatAreNoUtf8) {
    folder_.Put("Bild\xE4.JPG", "x");
    EXPECT_EQ(finder_.Find(folder_.TextPath() + u"/bild\uFFFD.jpg"), folder_.Path("Bild\xE4.JPG"));
}

TEST_F(Finding, TargetsExistingFoldersAndNewNames) {
    folder_.Put("Show/old.KVS", "x");
    const auto target = [&](const std::string& name) {
        return finder_.Target(folder_.TextPath(name));
    };
    EXPECT_EQ(target("show/OLD.kvs"), folder_.Path("Show/old.KVS"));
    EXPECT_EQ(target("show/New.kvs"), folder_.Path("Show/New.kvs"));
    EXPECT_EQ(target("show\\New.kvs"), folder_.Path("Show/New.kvs"));
    EXPECT_EQ(target("none\\New.kvs"), folder_.Path("none\\New.kvs"));
    EXPECT_EQ(target("None/Deep/x"), folder_.Path("None/Deep/x"));
    EXPECT_EQ(finder_.Target(u"Q:\\a.kvs"), "");
}

TEST_F(Finding, ManyNamesAnswerFromOneListing) {
    constexpr int kFiles = 3000;
    for (int i = 0; i < kFiles; ++i) {
        folder_.Put("many/IMG" + std::to_string(i) + ".JPG", "");
    }
    for (int i = 0; i < kFiles; ++i) {
        ASSERT_EQ(Find("MANY/img" + std::to_string(i) + ".jpg"),
                  folder_.Path("many/IMG" + std::to_string(i) + ".JPG"));
    }
}

}  // namespace
