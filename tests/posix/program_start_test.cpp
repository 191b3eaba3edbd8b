// Programs that a show starts: permission, splitting, starting without leftovers.
#include "adapters/posix/program_start.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "adapters/posix/posix_files.h"
#include "adapters/posix/posix_system.h"
#include "adapters/posix/settings_file.h"
#include "temporary_folder.h"

namespace {

using platform::ProgramAnswer;
using posix_adapter::PosixSystem;
using posix_adapter::ProgramPermission;
using Words = std::vector<std::string>;

TEST(CommandLine, IsSplitAtBlanksOutsideQuotes) {
    EXPECT_EQ(posix_adapter::SplitCommandLine("  prog  a \"b c\" d\"e f\"g \"\" "),
              (Words{"prog", "a", "b c", "de fg", ""}));
    EXPECT_EQ(posix_adapter::SplitCommandLine("\"/a b/c.exe\" $HOME;ls 'x"),
              (Words{"/a b/c.exe", "$HOME;ls", "'x"}));
    EXPECT_EQ(posix_adapter::SplitCommandLine("\"open end"), Words{"open end"});
    EXPECT_TRUE(posix_adapter::SplitCommandLine("   ").empty());
}

/// A program that writes its arguments into a file, and says when it has.
struct Script {
    TemporaryFolder folder;
    std::string path = folder.Path("my prog.exe");

    Script() {
        folder.Put("my prog.exe", "#!/bin/sh\nprintf '%s|' \"$@\" >\"" + folder.Path("out.new") +
                                      "\"\nmv \"" + folder.Path("out.new") + "\" \"" +
                                      folder.Path("out") + "\"\n");
        chmod(path.c_str(), 0755);
    }
    std::string Output() const {
        for (int i = 0; i < 3000 && access(folder.Path("out").c_str(), F_OK) != 0; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return folder.Content("out");
    }
};

TEST(StartProgram, HandsTheArgumentsOverAndLeavesNoChild) {
    const Script script;
    EXPECT_TRUE(posix_adapter::StartProgram({script.path, "a b", "$HOME", "*"}));
    EXPECT_EQ(script.Output(), "a b|$HOME|*|");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "nobody to wait for";
}

TEST(StartProgram, TellsWhatCannotRun) {
    TemporaryFolder folder;
    folder.Put("text.exe", "no program");
    chmod(folder.Path("text.exe").c_str(), 0755);
    folder.Put("plain.exe", "#!/bin/sh\n");
    for (const Words& words : {Words{}, Words{""}, Words{folder.Path("missing.exe")},
                               Words{folder.Path("text.exe")}, Words{folder.Path("plain.exe")},
                               Words{folder.Path("")}, Words{"no-such-program-anywhere"}}) {
        EXPECT_FALSE(posix_adapter::StartProgram(words));
    }
    EXPECT_TRUE(posix_adapter::StartProgram({"true"})) << "found by the search path";
}

/// A person who gives one answer and is counted.
struct Person {
    ProgramAnswer answer = ProgramAnswer::No;
    int asked = 0;
    std::function<ProgramAnswer(TextView)> Ask() {
        return [this](TextView) {
            ++asked;
            return answer;
        };
    }
};

TEST(ProgramPermission, AsksOnceForEachDocumentAndCommand) {
    for (const ProgramAnswer answer : {ProgramAnswer::No, ProgramAnswer::Yes}) {
        TemporaryFolder folder;
        ProgramPermission permission(folder.Path() + "/");
        Person person{answer};
        for (int twice = 0; twice < 2; ++twice) {
            EXPECT_EQ(permission.Allows(u"a.exe", u"/one.kvs", person.Ask()),
                      answer == ProgramAnswer::Yes);
        }
        EXPECT_EQ(person.asked, 1);
        permission.Allows(u"b.exe", u"/one.kvs", person.Ask());
        permission.Allows(u"a.exe", u"/two.kvs", person.Ask());
        EXPECT_EQ(person.asked, 3);
        ProgramPermission nextRun(folder.Path() + "/");
        nextRun.Allows(u"a.exe", u"/one.kvs", person.Ask());
        EXPECT_EQ(person.asked, 4) << "kept for the run only";
    }
}

TEST(ProgramPermission, AlwaysIsKeptForThatDocumentAndCommand) {
    TemporaryFolder folder;
    Person person{ProgramAnswer::Always};
    ProgramPermission first(folder.Path() + "/");
    EXPECT_TRUE(first.Allows(u"C:\\動画.exe", u"/one.kvs", person.Ask()));
    EXPECT_TRUE(first.Allows(u"b.exe", u"/one.kvs", person.Ask()));
    ProgramPermission nextRun(folder.Path() + "/");
    EXPECT_TRUE(nextRun.Allows(u"C:\\動画.exe", u"/one.kvs", nullptr));
    EXPECT_TRUE(nextRun.Allows(u"b.exe", u"/one.kvs", nullptr));
    EXPECT_FALSE(nextRun.Allows(u"b.exe", u"/two.kvs", nullptr));
    EXPECT_FALSE(nextRun.Allows(u"b.ex", u"/one.kvs", nullptr));
}

TEST(ProgramPermission, NamesThatWouldAllowMoreAreNotKept) {
    TemporaryFolder folder;
    Person person{ProgramAnswer::Always};
    ProgramPermission permission(folder.Path() + "/");
    permission.Allows(u"a.exe\n/evil.kvs\tb.exe", u"/one.kvs", person.Ask());
    permission.Allows(u"c\td.exe", u"/one.kvs", person.Ask());
    permission.Allows(u"e.exe", u"", person.Ask());
    EXPECT_EQ(folder.Count(), 0u);
}

TEST(ProgramPermission, FollowsTheSetting) {
    struct Setting {
        const char* file;
        bool allows;
        int asked;
    };
    for (const Setting& setting : {Setting{"programs=allow\n", true, 0},
                                   {"# programs=allow\n programs = deny \r\n", false, 0},
                                   {"programs=ask\n", false, 1},
                                   {"other=allow\n", false, 1},
                                   {"programs=nonsense", false, 1}}) {
        TemporaryFolder folder;
        folder.Put("settings.conf", setting.file);
        ProgramPermission permission(folder.Path() + "/");
        Person person;
        EXPECT_EQ(permission.Allows(u"a.exe", u"/one.kvs", person.Ask()), setting.allows)
            << setting.file;
        EXPECT_EQ(person.asked, setting.asked) << setting.file;
    }
}

TEST(UserSetting, IsTheFirstLineOfItsKey) {
    TemporaryFolder folder;
    EXPECT_EQ(posix_adapter::UserSetting(folder.Path() + "/", "cd"), "");
    folder.Put("settings.conf", "no line\n=x\ncd = /a b/c.cue \ncd=2\n");
    EXPECT_EQ(posix_adapter::UserSetting(folder.Path() + "/", "cd"), "/a b/c.cue");
    EXPECT_EQ(posix_adapter::UserSetting(folder.Path() + "/", "c"), "");
}

TEST(PosixSystemShell, StartsAPathWithBlanksAndArguments) {
    for (const bool quoted : {false, true}) {
        const Script script;
        PosixSystem system(script.folder.Path("home"), "");
        posix_adapter::PosixFiles files(script.folder.Path("home") + "/");
        system.FindWith(files);
        system.ask = [](TextView) { return ProgramAnswer::Yes; };
        const Text path = text::FromUtf8(script.path);
        EXPECT_TRUE(system.Shell(quoted ? u"\"" + path + u"\" \"x y\"" : path, u"/one.kvs"));
        EXPECT_EQ(script.Output(), quoted ? "x y|" : "|");
    }
}

TEST(PosixSystemShell, StartsNothingThatWasRefused) {
    const Script script;
    PosixSystem system(script.folder.Path("home"), "");
    const Text path = u"\"" + text::FromUtf8(script.path) + u"\"";
    EXPECT_FALSE(system.Shell(path, u"/one.kvs")) << "nobody to ask";
    system.ask = [](TextView) { return ProgramAnswer::No; };
    EXPECT_FALSE(system.Shell(path, u"/two.kvs"));
    system.ask = [](TextView) { return ProgramAnswer::Yes; };
    EXPECT_FALSE(system.Shell(u"  ", u"/one.kvs"));
    EXPECT_EQ(script.folder.Count(), 2u) << "the program and its folder";
}

}  // namespace
