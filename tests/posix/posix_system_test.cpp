#include "adapters/posix/posix_system.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include <optional>

#include "posix/temporary_folder.h"

namespace {

using posix_adapter::PosixSystem;
using posix_adapter::ProgramFolder;

/// An environment variable set for one test.
class Variable {
public:
    Variable(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* before = getenv(name)) {
            before_ = before;
        }
        Set(value);
    }
    ~Variable() { Set(before_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void Set(const std::optional<std::string>& value) {
        if (value) {
            setenv(name_, value->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }
    const char* name_;
    std::optional<std::string> before_;
};

TEST(ProgramFolderRule, GoesFromTheNarrowestWishToTheWidest) {
    const Variable home("HOME", "/home/someone");
    const Variable data("XDG_DATA_HOME", std::nullopt);
    const Variable own("PARAPICO_HOME", std::nullopt);
    EXPECT_EQ(ProgramFolder(""), "/home/someone/.local/share/parapico/");
    {
        const Variable given("XDG_DATA_HOME", "/data");
        EXPECT_EQ(ProgramFolder(""), "/data/parapico/");
    }
    {
        const Variable relative("XDG_DATA_HOME", "data");
        EXPECT_EQ(ProgramFolder(""), "/home/someone/.local/share/parapico/");
    }
    {
        const Variable given("PARAPICO_HOME", "/own");
        EXPECT_EQ(ProgramFolder(""), "/own/");
        EXPECT_EQ(ProgramFolder("/line/"), "/line/");
    }
    const std::filesystem::path executable =
        std::filesystem::read_symlink("/proc/self/exe").parent_path();
    std::ofstream(executable / "portable.txt");
    const std::string portable = ProgramFolder("");
    std::filesystem::remove(executable / "portable.txt");
    EXPECT_EQ(portable, executable.string() + "/");
}

TEST(AppFolder, IsMadeAndFilledAtTheFirstCall) {
    TemporaryFolder folder;
    folder.Put("assets/vue1.wav", "sound");
    folder.Put("assets/help/マクロ.txt", "help");
    PosixSystem system(folder.Path("new/deep/"), folder.Path("assets"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("new")));
    EXPECT_EQ(system.AppFolder(), folder.TextPath("new/deep/"));
    EXPECT_EQ(folder.Content("new/deep/vue1.wav"), "sound");
    EXPECT_EQ(folder.Content("new/deep/help/マクロ.txt"), "help");
}

TEST(AppFolder, RespectsWhatTheUserDidToIt) {
    TemporaryFolder folder;
    folder.Put("assets/a.wav", "shipped");
    folder.Put("assets/b.wav", "shipped");
    folder.Put("home/b.wav", "mine");
    PosixSystem(folder.Path("home"), folder.Path("assets")).AppFolder();
    EXPECT_EQ(folder.Content("home/a.wav"), "shipped");
    EXPECT_EQ(folder.Content("home/b.wav"), "mine");
    std::filesystem::remove(folder.Path("home/a.wav"));
    folder.Put("assets/c.wav", "of the next version");
    PosixSystem(folder.Path("home"), folder.Path("assets")).AppFolder();
    EXPECT_FALSE(std::filesystem::exists(folder.Path("home/a.wav")));
    EXPECT_EQ(folder.Content("home/c.wav"), "of the next version");
}

TEST(AppFolder, IsAnsweredWhereTheDiskRefuses) {
    TemporaryFolder folder;
    folder.Put("file", "x");
    folder.Put("assets/a.wav", "x");
    PosixSystem system(folder.Path("file/below"), folder.Path("assets"));
    EXPECT_EQ(system.AppFolder(), folder.TextPath("file/below/"));
    PosixSystem bare(folder.Path("bare"), folder.Path("none"));
    EXPECT_EQ(bare.AppFolder(), folder.TextPath("bare/"));
}

TEST(PreviousInstance, SeesAnotherOneOfTheSameFolderOnly) {
    TemporaryFolder folder;
    for (const bool runtimeFolder : {true, false}) {
        const Variable runtime("XDG_RUNTIME_DIR",
                               runtimeFolder ? std::optional(folder.Path()) : std::nullopt);
        std::optional<PosixSystem> first(std::in_place, folder.Path("one"), "");
        PosixSystem second(folder.Path("one"), ""), other(folder.Path("two"), "");
        EXPECT_FALSE(first->PreviousInstance());
        EXPECT_TRUE(second.PreviousInstance());
        EXPECT_FALSE(other.PreviousInstance());
        EXPECT_FALSE(first->PreviousInstance());
        first.reset();
        EXPECT_TRUE(second.PreviousInstance());  // decided at start
        EXPECT_FALSE(PosixSystem(folder.Path("one"), "").PreviousInstance());
    }
}

TEST(PreviousInstance, EndsWithACrash) {
    TemporaryFolder folder;
    const Variable runtime("XDG_RUNTIME_DIR", folder.Path());
    const pid_t child = fork();
    if (child == 0) {
        PosixSystem system(folder.Path("one"), "");
        const bool previous = system.PreviousInstance();
        signal(SIGKILL, SIG_DFL);
        if (!previous) {
            raise(SIGKILL);
        }
        _exit(1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_FALSE(PosixSystem(folder.Path("one"), "").PreviousInstance());
}

}  // namespace
