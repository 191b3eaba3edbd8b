// The desktop's trash: notes of where things came from, and nothing lost where it cannot be used.
#include "adapters/posix/desktop_trash.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <optional>

#include "adapters/posix/posix_file_changes.h"
#include "adapters/posix/posix_files.h"
#include "posix/ordinary_user.h"
#include "posix/temporary_folder.h"

namespace posix_adapter {
namespace {

namespace fs = std::filesystem;

class DataFolder {
public:
    explicit DataFolder(const std::string& folder) {
        if (const char* before = std::getenv("XDG_DATA_HOME")) {
            before_ = before;
        }
        setenv("XDG_DATA_HOME", folder.c_str(), 1);
    }
    ~DataFolder() {
        if (before_) {
            setenv("XDG_DATA_HOME", before_->c_str(), 1);
        } else {
            unsetenv("XDG_DATA_HOME");
        }
    }

private:
    std::optional<std::string> before_;
};

struct DesktopTrash : testing::Test {
    TemporaryFolder folder;
    DataFolder data{folder.Path("data")};
    PosixFiles files{folder.Path("program")};
    PosixFileChanges changes{files, MoveToDesktopTrash};
    platform::FileError error;
    Text kept;

    bool Trash(const std::string& name) {
        return changes.Trash(folder.TextPath(name), kept, error);
    }
};

TEST_F(DesktopTrash, ANoteSaysWhereItCameFrom) {
    folder.Put("100%#写 真.jpg", "picture");
    ASSERT_TRUE(Trash("100%#写 真.jpg"));
    EXPECT_EQ(kept, folder.TextPath("data/Trash/files/100%#写 真.jpg"));
    EXPECT_FALSE(fs::exists(folder.Path("100%#写 真.jpg")));
    const std::string note = folder.Content("data/Trash/info/100%#写 真.jpg.trashinfo");
    EXPECT_TRUE(note.starts_with("[Trash Info]\nPath=" + folder.Path("100%25%23%E5%86%99%20") +
                                 "%E7%9C%9F.jpg\nDeletionDate=20"))
        << note;
    ASSERT_TRUE(changes.Restore(kept, folder.TextPath("100%#写 真.jpg"), error));
    EXPECT_EQ(folder.Content("100%#写 真.jpg"), "picture");
    EXPECT_EQ(folder.Count("data/Trash/files"), 0u);
    EXPECT_EQ(folder.Count("data/Trash/info"), 0u) << "the note goes with it";
}

TEST_F(DesktopTrash, EqualNamesAreNumbered) {
    for (const char* content : {"first", "second", "third"}) {
        folder.Put("a.jpg", content);
        ASSERT_TRUE(Trash("a.jpg")) << content;
    }
    EXPECT_EQ(folder.Content("data/Trash/files/a.jpg"), "first");
    EXPECT_EQ(folder.Content("data/Trash/files/a-2.jpg"), "second");
    EXPECT_EQ(folder.Content("data/Trash/files/a-3.jpg"), "third");
    EXPECT_EQ(folder.Count("data/Trash/info"), 3u);
}

TEST_F(DesktopTrash, ATrashThatIsNoFolderLosesNothing) {
    for (const char* part : {"data/Trash", "data/Trash/files", "data/Trash/info"}) {
        fs::remove_all(folder.Path("data"));
        folder.Put(part, "in the way");
        folder.Put("a.jpg", "kept");
        EXPECT_FALSE(Trash("a.jpg")) << part;
        EXPECT_FALSE(error.message.empty());
        EXPECT_EQ(folder.Content("a.jpg"), "kept") << part;
    }
}

TEST_F(DesktopTrash, ATrashThatCannotBeWrittenLosesNothing) {
    if (geteuid() == 0) {
        ASSERT_EQ(chown(folder.Path().c_str(), kNobody, kNobody), 0);
    }
    const AsOrdinaryUser user;
    ASSERT_TRUE(user.Done());
    for (const char* part : {"data/Trash", "data/Trash/files", "data/Trash/info"}) {
        fs::create_directories(folder.Path("data/Trash/files"));
        fs::create_directories(folder.Path("data/Trash/info"));
        folder.Put("a.jpg", "kept");
        chmod(folder.Path(part).c_str(), 0555);
        EXPECT_FALSE(Trash("a.jpg")) << part;
        EXPECT_EQ(folder.Content("a.jpg"), "kept") << part;
        chmod(folder.Path(part).c_str(), 0755);
        EXPECT_EQ(folder.Count("data/Trash/files"), 0u);
        EXPECT_EQ(folder.Count("data/Trash/info"), 0u) << "no note without its file";
    }
}

TEST_F(DesktopTrash, FailuresAreNamed) {
    std::string place;
    EXPECT_EQ(MoveToDesktopTrash(folder.Path("none"), place), ENOENT);
    fs::create_directories(folder.Path("inner"));
    EXPECT_EQ(MoveToDesktopTrash(folder.Path("inner"), place), EISDIR);
}

}  // namespace
}  // namespace posix_adapter
