#include "adapters/posix/posix_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "posix/ordinary_user.h"
#include "posix/temporary_folder.h"

namespace {

using platform::FileError;
using posix_adapter::PosixFiles;

constexpr size_t kNoLimit = 1u << 20;

class FilesTest : public ::testing::Test {
protected:
    Text At(const std::string& name) const { return folder_.TextPath(name); }

    TemporaryFolder folder_;
    PosixFiles files_{folder_.Path("program")};
    FileError error_;
    std::string content_ = "untouched";
};

TEST_F(FilesTest, ReadsWholeFiles) {
    const std::string bytes("a\0b\r\n", 5);
    folder_.Put("写真.dat", bytes);
    folder_.Put("empty", "");
    folder_.Put("big", std::string(300000, 'x'));
    EXPECT_TRUE(files_.Read(At("写真.dat"), content_, error_, kNoLimit));
    EXPECT_EQ(content_, bytes);
    EXPECT_TRUE(files_.Read(At("EMPTY"), content_, error_, kNoLimit));
    EXPECT_EQ(content_, "");
    EXPECT_TRUE(files_.Read(At("big"), content_, error_, 300000));
    EXPECT_EQ(content_, std::string(300000, 'x'));
    // A file that tells no size.
    EXPECT_TRUE(files_.Read(u"/proc/self/status", content_, error_, kNoLimit));
    EXPECT_NE(content_.find("Pid:"), std::string::npos);
}

TEST_F(FilesTest, TellsWhyReadingFailed) {
    folder_.Put("big", std::string(1000, 'x'));
    mkfifo(folder_.Path("fifo").c_str(), 0600);
    EXPECT_FALSE(files_.Read(At("none"), content_, error_, kNoLimit));
    EXPECT_EQ(error_.message, u"ファイルが見つかりません。");
    EXPECT_FALSE(files_.Read(At(""), content_, error_, kNoLimit));
    EXPECT_EQ(error_.message, u"フォルダはファイルとして扱えません。");
    EXPECT_FALSE(files_.Read(At("big"), content_, error_, 999));
    EXPECT_EQ(error_.message, u"ファイルが大きすぎます。");
    EXPECT_FALSE(files_.Read(At("fifo"), content_, error_, kNoLimit));
    EXPECT_EQ(error_.message, u"通常のファイルではありません。");
    EXPECT_FALSE(files_.Read(u"/dev/zero", content_, error_, kNoLimit));
    EXPECT_EQ(content_, "untouched");
}

TEST_F(FilesTest, TellsPlainFilesApart) {
    folder_.Put("Sub/Photo.JPG", "x");
    mkfifo(folder_.Path("fifo").c_str(), 0600);
    std::filesystem::create_symlink(folder_.Path("Sub/Photo.JPG"), folder_.Path("link"));
    std::filesystem::create_symlink(folder_.Path("gone"), folder_.Path("dangling"));
    EXPECT_EQ(files_.Dir(At("sub\\photo.jpg")), u"Photo.JPG");
    EXPECT_EQ(files_.Dir(At("link")), u"link");
    EXPECT_TRUE(files_.Exists(At("sub/PHOTO.jpg")));
    for (const char* none : {"Sub", "fifo", "dangling", "none"}) {
        EXPECT_EQ(files_.Dir(At(none)), u"") << none;
        EXPECT_FALSE(files_.Exists(At(none))) << none;
        EXPECT_EQ(files_.Readable(At(none)), 0) << none;
        EXPECT_EQ(files_.LastWrite(At(none)), std::nullopt) << none;
    }
    EXPECT_FALSE(files_.Exists(u"/dev/null"));
}

TEST_F(FilesTest, ReadableTellsThreeThings) {
    folder_.Put("long", std::string(100, 'x'));
    folder_.Put("short", "x");
    folder_.Put("empty", "");
    folder_.Put("closed", "x");
    chmod(folder_.Path("closed").c_str(), 0);
    chmod(folder_.Path().c_str(), 0755);
    EXPECT_EQ(files_.Readable(At("long")), 1);
    EXPECT_EQ(files_.Readable(At("short")), 1);
    EXPECT_EQ(files_.Readable(At("empty")), 1);
    EXPECT_EQ(files_.Readable(At("none")), 0);
    const posix_adapter::AsOrdinaryUser user;
    ASSERT_TRUE(user.Done());
    EXPECT_EQ(files_.Readable(At("closed")), 2);
    EXPECT_FALSE(files_.Read(At("closed"), content_, error_, kNoLimit));
    EXPECT_EQ(error_.message, u"アクセスが許可されていません。");
}

TEST_F(FilesTest, TellsByWhatAFileBegins) {
    folder_.Put("a", "\xFF\xD8rest");
    folder_.Put("short", "\xFF");
    EXPECT_TRUE(files_.BeginsWith(At("A"), "\xFF\xD8"));
    EXPECT_FALSE(files_.BeginsWith(At("a"), "\xFF\xD9"));
    EXPECT_TRUE(files_.BeginsWith(At("short"), "\xFF"));
    for (const char* none : {"short", "none", ""}) {
        EXPECT_FALSE(files_.BeginsWith(At(none), "\xFF\xD8")) << none;
    }
}

TEST_F(FilesTest, LastWriteIsLocalTime) {
    folder_.Put("a", "x");
    setenv("TZ", "JST-9", 1);
    tzset();
    const timespec times[2] = {{1000000000, 900000000}, {1000000000, 900000000}};
    utimensat(AT_FDCWD, folder_.Path("a").c_str(), times, 0);
    const auto written = files_.LastWrite(At("a"));
    unsetenv("TZ");
    tzset();
    ASSERT_TRUE(written);
    EXPECT_EQ(platform::DateTimeText(*written), u"2001/09/09 10:46:40");
}

TEST_F(FilesTest, WritesNewAndOldFiles) {
    EXPECT_TRUE(files_.Write(At("新規.kvs"), "one", error_));
    EXPECT_EQ(folder_.Content("新規.kvs"), "one");
    EXPECT_TRUE(files_.Write(At("新規.KVS"), std::string_view("t\0wo", 4), error_));
    EXPECT_EQ(folder_.Content("新規.kvs"), std::string("t\0wo", 4));
    EXPECT_TRUE(files_.Write(At("新規.kvs"), "", error_));
    EXPECT_EQ(folder_.Content("新規.kvs"), "");
    EXPECT_EQ(folder_.Count(), 1u);
}

TEST_F(FilesTest, ANewFileHasTheModeOfTheProcess) {
    const mode_t mask = umask(027);
    EXPECT_TRUE(files_.Write(At("new"), "x", error_));
    umask(mask);
    struct stat status {};
    stat(folder_.Path("new").c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(FilesTest, KeepsModeOwnerAndLinks) {
    folder_.Put("real/file", "old");
    chmod(folder_.Path("real/file").c_str(), 0604);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(folder_.Path("real/file").c_str(), 1234, 2345), 0);
    }
    struct stat before {
    }, after{};
    stat(folder_.Path("real/file").c_str(), &before);
    std::filesystem::create_symlink("real/file", folder_.Path("second"));
    std::filesystem::create_symlink("second", folder_.Path("first"));
    EXPECT_TRUE(files_.Write(At("first"), "new", error_));
    EXPECT_EQ(folder_.Content("real/file"), "new");
    EXPECT_EQ(std::filesystem::read_symlink(folder_.Path("first")), "second");
    EXPECT_EQ(std::filesystem::read_symlink(folder_.Path("second")), "real/file");
    stat(folder_.Path("real/file").c_str(), &after);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(folder_.Count("real"), 1u);
}

TEST_F(FilesTest, WritesThroughALinkToNothingYet) {
    std::filesystem::create_symlink("later", folder_.Path("link"));
    EXPECT_TRUE(files_.Write(At("link"), "x", error_));
    EXPECT_EQ(folder_.Content("later"), "x");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("link")));
    std::filesystem::create_symlink("circle", folder_.Path("circle"));
    EXPECT_FALSE(files_.Write(At("circle"), "x", error_));
    EXPECT_EQ(error_.message, u"シンボリックリンクが循環しています。");
}

TEST_F(FilesTest, TellsWhyWritingFailed) {
    std::filesystem::create_directory(folder_.Path("sub"));
    folder_.Put("plain", "x");
    mkfifo(folder_.Path("fifo").c_str(), 0600);
    const size_t before = folder_.Count();
    const auto failure = [&](const Text& path) {
        error_.message.clear();
        return files_.Write(path, "new", error_) ? Text(u"written") : error_.message;
    };
    EXPECT_EQ(failure(At("sub")), u"フォルダはファイルとして扱えません。");
    EXPECT_EQ(failure(At("vanished/a.kvs")), u"フォルダが見つかりません。");
    EXPECT_EQ(failure(At("plain/a.kvs")), u"フォルダが見つかりません。");
    EXPECT_EQ(failure(At("fifo")), u"通常のファイルではありません。");
    EXPECT_EQ(failure(u"/dev/full"), u"通常のファイルではありません。");
    EXPECT_EQ(failure(At(std::string(300, 'n'))), u"ファイル名が長すぎます。");
    EXPECT_EQ(failure(u"Q:\\a.kvs"), u"ファイルが見つかりません。");
    EXPECT_EQ(failure(u""), u"ファイルが見つかりません。");
    EXPECT_EQ(failure(At("a") + Text(1, u'\0') + u"b"), u"ファイル名が正しくありません。");
    EXPECT_EQ(folder_.Count(), before);
    EXPECT_EQ(folder_.Content("plain"), "x");
}

TEST_F(FilesTest, AFullDiskLeavesTheOldFileWhole) {
    folder_.Put("show.kvs", "the old content");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{10000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool written = files_.Write(At("show.kvs"), std::string(50000, 'n'), error_);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(written);
    EXPECT_EQ(error_.message, u"ファイルが大きすぎます。");
    EXPECT_FALSE(error_.whileOpening);
    EXPECT_EQ(folder_.Content("show.kvs"), "the old content");
    EXPECT_EQ(folder_.Count(), 1u);
}

TEST_F(FilesTest, AReadOnlyFolderOrFileIsLeftAlone) {
    folder_.Put("locked/show.kvs", "old");
    folder_.Put("open/show.kvs", "old");
    chmod(folder_.Path().c_str(), 0755);
    chmod(folder_.Path("locked").c_str(), 0555);
    chmod(folder_.Path("locked/show.kvs").c_str(), 0666);
    chmod(folder_.Path("open").c_str(), 0777);
    chmod(folder_.Path("open/show.kvs").c_str(), 0444);
    {
        const posix_adapter::AsOrdinaryUser user;
        ASSERT_TRUE(user.Done());
        EXPECT_FALSE(files_.Write(At("locked/show.kvs"), "new", error_));
        EXPECT_EQ(error_.message, u"アクセスが許可されていません。");
        EXPECT_FALSE(files_.Write(At("locked/new.kvs"), "new", error_));
        EXPECT_FALSE(files_.Write(At("open/show.kvs"), "new", error_));
        EXPECT_TRUE(files_.Write(At("open/new.kvs"), "new", error_));
    }
    EXPECT_EQ(folder_.Content("locked/show.kvs"), "old");
    EXPECT_EQ(folder_.Content("open/show.kvs"), "old");
    EXPECT_EQ(folder_.Count("locked"), 1u);
    EXPECT_EQ(folder_.Count("open"), 2u);
    chmod(folder_.Path("locked").c_str(), 0755);
}

TEST_F(FilesTest, ALostConnectionToTheFolderFailsCleanly) {
    folder_.Put("gone/show.kvs", "old");
    EXPECT_TRUE(files_.Exists(At("GONE/show.kvs")));
    std::filesystem::remove_all(folder_.Path("gone"));
    EXPECT_FALSE(files_.Exists(At("GONE/show.kvs")));
    EXPECT_FALSE(files_.Write(At("GONE/show.kvs"), "new", error_));
    EXPECT_EQ(error_.message, u"フォルダが見つかりません。");
    EXPECT_TRUE(error_.whileOpening);
}

}  // namespace
