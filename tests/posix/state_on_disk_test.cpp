// The state files on a real disk: programs that leave at once, that are killed while they write,
// folders that are gone.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <set>

#include "adapters/posix/posix_files.h"
#include "document/state_files.h"
#include "model/windows/link_list.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"
#include "temporary_folder.h"

namespace {

/// A program on this disk whose state names its slides.
struct DiskProgram {
    fakes::FakePlatform around;
    posix_adapter::PosixFiles files;
    Application app{platform::Platform{around.loop, files, around.dialogs, around.monitors,
                                       around.imaging, around.textRenderer, around.sound,
                                       around.video, around.system, around.trace, around.codePage,
                                       around.folders, around.fileChanges, around.clipboard,
                                       around.wallpaper, around.thumbnails, around.fileInquiry}};

    DiskProgram(const std::string& folder, const char16_t* slide, int slides)
        : files(folder + "/") {
        model::SetStartDefaults(app.state);
        app.state.AppFolder = text::FromUtf8(folder + "/");
        for (int i = 0; i < slides; ++i) {
            app.windows.form3.List1.AddItem(slide);
            app.windows.form3.List2.AddItem(model::BlankScheduleRow());
        }
    }
};

/// Runs `work` in a process of its own, with a pipe to tell by; answers its number.
pid_t Fork(int pipeEnd, const std::function<void(int)>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work(pipeEnd);
        _exit(0);
    }
    return child;
}

TEST(StateOnDisk, ProgramsThatLeaveAtOnceLeaveOneWholeFile) {
    const TemporaryFolder folder;
    std::set<std::string> whole;
    for (const char16_t* slide : {u"/a.png", u"/some/longer/name.png"}) {
        DiskProgram program(folder.Path(), slide, 300);
        document::WriteStateFile(program.app);
        whole.insert(folder.Content("autstart.dat"));
    }
    ASSERT_EQ(whole.size(), 2u);
    std::vector<pid_t> children;
    for (const char16_t* slide : {u"/a.png", u"/some/longer/name.png"}) {
        children.push_back(Fork(-1, [&](int) {
            DiskProgram program(folder.Path(), slide, 300);
            for (int i = 0; i < 40; ++i) {
                document::WriteStateFile(program.app);
            }
        }));
    }
    for (int i = 0; i < 200; ++i) {
        EXPECT_TRUE(whole.contains(folder.Content("autstart.dat")));
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_TRUE(whole.contains(folder.Content("autstart.dat")));
    EXPECT_EQ(folder.Count(), 1u);  // no temporary file stays behind
}

TEST(StateOnDisk, AKilledProgramCostsNothingOfTheRunBefore) {
    for (int writes = 1; writes <= 8; ++writes) {
        const TemporaryFolder folder;
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = Fork(ends[1], [&](int tell) {
            DiskProgram program(folder.Path(), u"/a.png", 20000);
            while (true) {
                document::WriteStateFile(program.app);
                if (write(tell, "w", 1) != 1) {
                    return;
                }
            }
        });
        char told = 0;
        for (int i = 0; i < writes; ++i) {
            ASSERT_EQ(read(ends[0], &told, 1), 1);
        }
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(ends[0]);
        close(ends[1]);
        DiskProgram next(folder.Path(), u"", 0);
        document::ReadStateFile(next.app);
        EXPECT_EQ(next.app.windows.form3.List1.ListCount(), 20000);
        EXPECT_EQ(next.app.windows.form3.List1.List(19999), u"/a.png");
    }
}

TEST(StateOnDisk, AFullDiskKeepsTheStateOfTheRunBefore) {
    const TemporaryFolder folder;
    DiskProgram before(folder.Path(), u"/before.png", 3);
    ASSERT_TRUE(document::WriteStateFile(before.app));
    DiskProgram program(folder.Path(), u"/after.png", 5000);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{10000, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool written = document::WriteStateFile(program.app);
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_FALSE(written);
    EXPECT_EQ(program.around.dialogs.messages.size(), 1u);
    DiskProgram next(folder.Path(), u"", 0);
    document::ReadStateFile(next.app);
    EXPECT_EQ(next.app.windows.form3.List1.ListCount(), 3);
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(StateOnDisk, AMissingFolderIsSilentAtTheStartAndReportedAtTheEnd) {
    const TemporaryFolder folder;
    DiskProgram program(folder.Path("gone"), u"/a.png", 1);
    document::ReadSoundListFile(program.app);
    document::ReadLinkStateFile(program.app);
    document::ReadStateFile(program.app);
    EXPECT_TRUE(program.around.dialogs.messages.empty());
    EXPECT_FALSE(document::WriteStateFile(program.app));
    ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.around.dialogs.messages[0].text, u"フォルダが見つかりません。");
}

TEST(StateOnDisk, AFolderOrGarbageInAFilesPlaceIsSetAside) {
    const TemporaryFolder folder;
    folder.Put("autstart.dat/inside", "mine");
    folder.Put("UAUTST.DAT", "garbage\n");
    DiskProgram program(folder.Path(), u"/a.png", 1);
    document::ReadLinkStateFile(program.app);
    document::ReadStateFile(program.app);
    EXPECT_TRUE(program.around.dialogs.messages.empty());
    document::WriteLinkStateFile(program.app);
    EXPECT_TRUE(document::WriteStateFile(program.app));
    EXPECT_EQ(program.around.dialogs.messages.size(), 2u);
    EXPECT_EQ(folder.Count(), 4u);
    EXPECT_EQ(folder.Content("autstart.dat.kept-2026-01-01/inside"), "mine");
    EXPECT_EQ(folder.Content("UAUTST.DAT.kept-2026-01-01"), "garbage\n");
    EXPECT_TRUE(folder.Content("autstart.dat").starts_with("V2.1a3567893sp6\r\n"));
}

TEST(RenameAside, NeverReplacesAnything) {
    const TemporaryFolder folder;
    for (const char* content : {"1", "2", "3"}) {
        folder.Put("a", content);
        std::string kept;
        EXPECT_EQ(posix_adapter::RenameAside(folder.Path("a"), ".kept", kept), 0);
        EXPECT_EQ(folder.Content(kept.substr(folder.Path().size() + 1)), content);
    }
    EXPECT_EQ(folder.Content("a.kept"), "1");
    EXPECT_EQ(folder.Content("a.kept-2"), "2");
    EXPECT_EQ(folder.Content("a.kept-3"), "3");
    std::string kept;
    EXPECT_EQ(posix_adapter::RenameAside(folder.Path("a"), ".kept", kept), ENOENT);
}

TEST(StateOnDisk, OtherSpellingsOfTheNamesAreTheSameFiles) {
    const TemporaryFolder folder;
    folder.Put("Uautst.dat", "KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 1 \r\nb.kvs\r\n");
    DiskProgram program(folder.Path(), u"/a.png", 1);
    document::ReadLinkStateFile(program.app);
    EXPECT_EQ(program.app.state.LinkAutoFlag, 1);
    EXPECT_EQ(program.app.windows.form9.List1.List(0), folder.TextPath("b.kvs"));
    document::WriteLinkStateFile(program.app);
    EXPECT_EQ(folder.Count(), 1u);
    EXPECT_NE(folder.Content("Uautst.dat").find("/b.kvs\r\n"), std::string::npos);
}

}  // namespace
