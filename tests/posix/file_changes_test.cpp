// Copying, moving, trashing: whole or not at all.
#include "adapters/posix/posix_file_changes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "adapters/posix/posix_files.h"
#include "adapters/posix/watched_work.h"
#include "posix/ordinary_user.h"
#include "posix/temporary_folder.h"

namespace posix_adapter {
namespace {

using platform::FileError;
using platform::Outcome;
using platform::Progress;

/// No file may become longer than this.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

constexpr const char* kNames[] = {"plain.jpg",   "100%.jpg", "a#b.jpg",      "with space.jpg",
                                  "写真 ～.jpg", "x\ny.jpg", "%41\"'&?;.jpg"};

struct FileChanges : testing::TestWithParam<bool> {
    TemporaryFolder folder;
    PosixFiles files{folder.Path("program")};
    PosixFileChanges changes{files, TrashIn(folder.Path("trash")), GetParam()};
    FileError error;
    platform::Report goesOn = [](const Progress&) { return true; };

    Text At(const std::string& name) const { return folder.TextPath(name); }
};

TEST_P(FileChanges, CopiesWithDateAndPermissions) {
    for (const char* name : kNames) {
        folder.Put(std::string("from/") + name, std::string("bytes of ") + name);
        const std::string from = folder.Path(std::string("from/") + name);
        chmod(from.c_str(), 0640);
        const timespec times[2] = {{1000000000, 0}, {1234567890, 5000}};
        utimensat(AT_FDCWD, from.c_str(), times, 0);
        std::filesystem::create_directories(folder.Path("to"));
        const Text to = At(std::string("to/") + name);
        EXPECT_EQ(changes.Copy(text::FromUtf8(from), to, goesOn, error), Outcome::Done) << name;
        EXPECT_EQ(folder.Content(std::string("to/") + name), std::string("bytes of ") + name);
        EXPECT_TRUE(std::filesystem::exists(from));
        struct stat status {};
        ASSERT_EQ(stat(folder.Path(std::string("to/") + name).c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0640u);
        EXPECT_EQ(status.st_mtim.tv_sec, 1234567890);
        EXPECT_EQ(status.st_mtim.tv_nsec, 5000);
    }
    EXPECT_EQ(folder.Count("to"), std::size(kNames)) << "nothing else lies there";
}

mode_t ModeOf(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0;
}

TEST_P(FileChanges, ACopyIsNeverWiderOpenThanItsSource) {
    folder.Put("secret", std::string(3 << 20, 's'));
    chmod(folder.Path("secret").c_str(), 0600);
    std::vector<mode_t> seen;
    const auto look = [&](const Progress&) {
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
            if (entry.path().extension() == ".tmp") {
                seen.push_back(ModeOf(entry.path()));
            }
        }
        return true;
    };
    EXPECT_EQ(changes.Copy(At("secret"), At("copy"), look, error), Outcome::Done);
    EXPECT_EQ(ModeOf(folder.Path("copy")), 0600u);
    EXPECT_EQ(std::count(seen.begin(), seen.end(), 0600u), std::ssize(seen));
}

TEST_P(FileChanges, WhatIsReplacedLendsItsPermissions) {
    folder.Put("from", "new");
    chmod(folder.Path("from").c_str(), 0444);
    folder.Put("to", "old");
    chmod(folder.Path("to").c_str(), 0600);
    EXPECT_EQ(changes.Copy(At("from"), At("to"), goesOn, error), Outcome::Done);
    EXPECT_EQ(folder.Content("to"), "new");
    EXPECT_EQ(ModeOf(folder.Path("to")), 0600u);
}

TEST_P(FileChanges, AFolderWithTooLongANameIsAFailure) {
    EXPECT_FALSE(changes.MakeFolder(At(std::string(300, 'x')), error));
    EXPECT_FALSE(error.message.empty());
}

TEST_P(FileChanges, AFolderIsNotPutIntoTheTrash) {
    folder.Put("folder/file", "kept");
    Text kept;
    EXPECT_FALSE(changes.Trash(At("folder"), kept, error));
    EXPECT_EQ(folder.Content("folder/file"), "kept");
}

TEST_P(FileChanges, AStopLeavesTheOldFile) {
    folder.Put("big", std::string(8 << 20, 'x'));
    folder.Put("old", "old");
    const auto stop = [](const Progress&) { return false; };
    EXPECT_EQ(changes.Copy(At("big"), At("old"), stop, error), Outcome::Stopped);
    EXPECT_EQ(folder.Content("old"), "old");
    EXPECT_EQ(changes.Copy(At("big"), At("new"), stop, error), Outcome::Stopped);
    EXPECT_EQ(folder.Count(), 2u);
    EXPECT_EQ(changes.Copy(At("big"), At("old"), goesOn, error), Outcome::Done);
    EXPECT_EQ(folder.Content("old").size(), 8u << 20);
}

TEST_P(FileChanges, AReportThatThrowsStopsTheCopy) {
    folder.Put("big", std::string(8 << 20, 'x'));
    int reports = 0;
    const auto leave = [&](const Progress&) -> bool {
        if (++reports == (GetParam() ? 2 : 1)) {
            throw platform::ProgramEnd{3};
        }
        return true;
    };
    try {
        changes.Copy(At("big"), At("new"), leave, error);
        // A fast disk was done by then.
        EXPECT_EQ(folder.Count(), 2u);
    } catch (const platform::ProgramEnd& end) {
        EXPECT_EQ(end.exitStatus, 3);
        EXPECT_FALSE(std::filesystem::exists(folder.Path("new.tmp")));
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        EXPECT_NE(entry.path().extension(), ".tmp") << "no half file stays";
    }
}

TEST_P(FileChanges, AFullDiskLeavesTheOldFile) {
    folder.Put("big", std::string(3 << 20, 'x'));
    folder.Put("old", "old");
    const FullDisk full(2 << 20);
    EXPECT_EQ(changes.Copy(At("big"), At("old"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(error.message, u"ファイルが大きすぎます。");
    EXPECT_EQ(folder.Content("old"), "old");
    EXPECT_EQ(folder.Count(), 2u);
}

TEST_P(FileChanges, RefusesWhatCannotBeCopied) {
    folder.Put("a", "a");
    folder.Put("sub/b", "b");
    std::filesystem::create_symlink("a", folder.Path("link"));
    std::filesystem::create_hard_link(folder.Path("a"), folder.Path("twin"));
    mkfifo(folder.Path("fifo").c_str(), 0600);
    EXPECT_EQ(changes.Copy(At("none"), At("c"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(error.message, u"ファイルが見つかりません。");
    EXPECT_EQ(changes.Copy(At("sub"), At("c"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(changes.Copy(At("fifo"), At("c"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(changes.Copy(At("a"), At("sub"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(error.message, u"フォルダはファイルとして扱えません。");
    EXPECT_EQ(changes.Copy(At("a"), At("none/c"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(error.message, u"フォルダが見つかりません。");
    for (const char* same : {"a", "link", "twin"}) {
        EXPECT_EQ(changes.Copy(At("a"), At(same), goesOn, error), Outcome::Failed) << same;
        EXPECT_EQ(changes.Move(At("a"), At(same), goesOn, error), Outcome::Failed) << same;
        EXPECT_EQ(error.message, u"同じ名前のファイルがすでにあります。");
        EXPECT_EQ(folder.Content("a"), "a");
    }
    EXPECT_EQ(changes.Copy(At("a"), u"", goesOn, error), Outcome::Failed);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("c")));
}

TEST_P(FileChanges, MovesAndReplaces) {
    for (const char* name : kNames) {
        folder.Put(std::string("from/") + name, name);
        folder.Put("to/there", "old");
        EXPECT_EQ(changes.Move(At(std::string("from/") + name), At("to/there"), goesOn, error),
                  Outcome::Done);
        EXPECT_EQ(folder.Content("to/there"), name);
        EXPECT_EQ(folder.Count("from"), 0u);
    }
    folder.Put("real", "content");
    std::filesystem::create_symlink("real", folder.Path("link"));
    EXPECT_EQ(changes.Move(At("link"), At("to/file"), goesOn, error), Outcome::Done);
    EXPECT_EQ(folder.Content("to/file"), "content") << "the link would mean nothing there";
    EXPECT_FALSE(std::filesystem::is_symlink(folder.Path("to/file")));
    EXPECT_FALSE(std::filesystem::is_symlink(folder.Path("link")));
    EXPECT_EQ(folder.Content("real"), "content");
}

TEST_P(FileChanges, FoldersWithoutPermissionStayAsTheyAre) {
    folder.Put("closed/a", "a");
    folder.Put("open/b", "b");
    chmod(folder.Path().c_str(), 0755);
    chmod(folder.Path("closed").c_str(), 0555);
    chmod(folder.Path("open").c_str(), 0777);
    const AsOrdinaryUser user;
    if (!user.Done()) {
        GTEST_SKIP();
    }
    EXPECT_FALSE(changes.CanWrite(At("closed")));
    EXPECT_FALSE(changes.CanWrite(At("closed/new")));
    EXPECT_FALSE(changes.CanWrite(At("closed/a")));
    EXPECT_TRUE(changes.CanWrite(At("open")));
    EXPECT_TRUE(changes.CanWrite(At("open/new")));
    EXPECT_EQ(changes.Move(At("closed/a"), At("open/a"), goesOn, error), Outcome::Failed);
    EXPECT_EQ(error.message, u"アクセスが許可されていません。");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("open/a")));
    EXPECT_EQ(changes.Copy(At("open/b"), At("closed/b"), goesOn, error), Outcome::Failed);
    Text kept;
    EXPECT_FALSE(changes.Trash(At("closed/a"), kept, error));
    EXPECT_FALSE(changes.MakeFolder(At("closed/sub"), error));
    EXPECT_EQ(error.message, u"アクセスが許可されていません。");
    EXPECT_EQ(folder.Content("closed/a"), "a");
}

TEST_P(FileChanges, TrashKeepsAndGivesBack) {
    for (const char* name : kNames) {
        folder.Put(name, name);
        Text kept;
        ASSERT_TRUE(changes.Trash(At(name), kept, error)) << name;
        EXPECT_EQ(kept, At(std::string("trash/") + name));
        EXPECT_FALSE(std::filesystem::exists(folder.Path(name)));
        folder.Put(name, "another");
        EXPECT_FALSE(changes.Restore(kept, At(name), error)) << "nothing is replaced";
        EXPECT_EQ(error.message, u"同じ名前のファイルがすでにあります。");
        Text second;
        ASSERT_TRUE(changes.Trash(At(name), second, error));
        EXPECT_EQ(second, kept + u"-2");
        ASSERT_TRUE(changes.Restore(kept, At(name), error));
        EXPECT_EQ(folder.Content(name), name);
    }
    Text kept;
    EXPECT_FALSE(changes.Trash(At("none"), kept, error));
    EXPECT_EQ(error.message, u"ファイルが見つかりません。");
}

TEST_P(FileChanges, WhereThereIsNoTrashTheFileIsDeleted) {
    PosixFileChanges without(files, [](const std::string&, std::string&) { return ENOTSUP; });
    folder.Put("a", "a");
    folder.Put("sub/b", "b");
    Text kept = u"something";
    EXPECT_TRUE(without.Trash(At("a"), kept, error));
    EXPECT_EQ(kept, u"");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("a")));
    EXPECT_FALSE(without.Trash(At("sub"), kept, error)) << "a folder is never deleted for good";
    EXPECT_EQ(folder.Content("sub/b"), "b");
}

TEST_P(FileChanges, MakesFoldersWithThoseAbove) {
    EXPECT_TRUE(changes.MakeFolder(At("新しい/二 つ"), error));
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path("新しい/二 つ")));
    EXPECT_TRUE(changes.MakeFolder(At("新しい/二 つ"), error)) << "it is there";
    folder.Put("file", "x");
    EXPECT_FALSE(changes.MakeFolder(At("file"), error));
    EXPECT_FALSE(changes.MakeFolder(At("file/below"), error));
    EXPECT_EQ(folder.Content("file"), "x");
}

INSTANTIATE_TEST_SUITE_P(Threads, FileChanges, testing::Bool(),
                         [](const auto& given) { return given.param ? "Own" : "None"; });

TEST(WatchedWork, AStopIsAnsweredThoughTheWorkHangs) {
    const auto hanging = std::make_shared<std::atomic<bool>>(true);
    const auto committed = std::make_shared<std::atomic<int>>(0);
    int error = 0;
    int reports = 0;
    const Outcome outcome = RunWatched(
        [=](WatchedWork& watched) {
            while (*hanging) {
                usleep(1000);
            }
            *committed = watched.MayCommit() ? 1 : 2;
            return 0;
        },
        [&](const Progress&) { return ++reports < 3; }, true, error);
    EXPECT_EQ(outcome, Outcome::Stopped) << "while the work still hangs";
    *hanging = false;
    while (*committed == 0) {
        usleep(1000);
    }
    EXPECT_EQ(*committed, 2) << "it must not change anything any more";
}

TEST(WatchedWork, ReportsWhatIsDone) {
    int error = 0;
    int64_t seen = 0;
    const auto met = std::make_shared<std::atomic<bool>>(false);
    const Outcome outcome = RunWatched(
        [=](WatchedWork& watched) {
            watched.whole = 10;
            watched.done = 7;
            while (!*met) {
                usleep(1000);
            }
            return watched.MayCommit() ? 0 : ECANCELED;
        },
        [&](const Progress& progress) {
            seen = progress.done;
            *met = *met || (progress.done == 7 && progress.whole == 10);
            return true;
        },
        true, error);
    EXPECT_EQ(outcome, Outcome::Done);
    EXPECT_EQ(seen, 7);
}

}  // namespace
}  // namespace posix_adapter
