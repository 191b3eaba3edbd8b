// Programs that a show starts: permission, splitting, starting without leftovers.
#include "adapters/posix/program_start.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
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
    EXPECT_TRUE(posix_adapter::StartProgram({script.path, {"a b", "$HOME", "*"}}));
    EXPECT_EQ(script.Output(), "a b|$HOME|*|");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "nobody to wait for";
}

TEST(StartProgram, TellsWhatCannotRun) {
    TemporaryFolder folder;
    folder.Put("text.exe", "no program");
    chmod(folder.Path("text.exe").c_str(), 0755);
    folder.Put("plain.exe", "#!/bin/sh\n");
    for (const std::string& path :
         {std::string(), folder.Path("missing.exe"), folder.Path("text.exe"),
          folder.Path("plain.exe"), folder.Path("")}) {
        EXPECT_FALSE(posix_adapter::StartProgram({path, {}}));
    }
}

/// Programs beside a document, on the search path and in the current folder.
struct Places {
    TemporaryFolder folder;
    posix_adapter::PosixFiles files{folder.Path("home") + "/"};
    std::string oldPath = getenv("PATH");
    std::string oldFolder = std::filesystem::current_path();

    Places() {
        for (const char* name :
             {"show/both", "show/Beside.exe", "show/my prog.exe", "show/sub/deep", "bin/both",
              "bin/Listed", "here/only", "other/late"}) {
            folder.Put(name, "#!/bin/sh\n");
            chmod(folder.Path(name).c_str(), 0755);
        }
        folder.Put("show/listed", "no program: nobody may run it");
        setenv("PATH", (":.:relative:" + folder.Path("bin") + ":" + folder.Path("other")).c_str(),
               1);
        std::filesystem::current_path(folder.Path("here"));
    }
    ~Places() {
        setenv("PATH", oldPath.c_str(), 1);
        std::filesystem::current_path(oldFolder);
    }
    /// Relative to the folder of all; empty for nothing.
    std::string Find(TextView line, const char* document = "show/") {
        const Text beside = *document != '\0' ? folder.TextPath(document) : Text();
        const auto found = posix_adapter::FindProgram(files, line, beside);
        if (!found) {
            return "";
        }
        std::string all = found->path.substr(folder.Path().size() + 1);
        for (const std::string& argument : found->arguments) {
            all += "|" + argument;
        }
        return all;
    }
};

TEST(FindProgram, LooksBesideTheDocumentAndThenOnTheSearchPath) {
    Places places;
    EXPECT_EQ(places.Find(u"both a \"b c\""), "show/both|a|b c");
    EXPECT_EQ(places.Find(u"both", ""), "bin/both") << "no document";
    EXPECT_EQ(places.Find(u"late"), "other/late");
    EXPECT_EQ(places.Find(u"Listed"), "bin/Listed") << "what nobody may run is passed over";
    EXPECT_EQ(places.Find(u"  my prog.exe "), "show/my prog.exe");
    EXPECT_EQ(places.Find(u"\"my prog.exe\" x"), "show/my prog.exe|x");
    EXPECT_EQ(places.Find(u"sub\\deep 1"), "show/sub/deep|1");
    EXPECT_EQ(places.Find(places.folder.TextPath("here/only")), "here/only");
}

TEST(FindProgram, CountsNoCaseWhereNothingHasTheExactName) {
    Places places;
    EXPECT_EQ(places.Find(u"BESIDE.EXE"), "show/Beside.exe");
    EXPECT_EQ(places.Find(u"LISTED -V"), "bin/Listed|-V");
    EXPECT_EQ(places.Find(u"SUB/DEEP"), "show/sub/deep");
}

TEST(FindProgram, NeverTakesTheCurrentFolder) {
    Places places;
    for (const char16_t* line : {u"only", u"./only", u"ONLY", u"here/only", u"..\\here\\only x",
                                 u"nowhere", u"", u"  ", u"\"\"", u"sub", u"C:only"}) {
        EXPECT_EQ(places.Find(line, ""), "") << text::ToUtf8(line);
    }
    EXPECT_EQ(places.Find(u"only"), "");
    EXPECT_EQ(places.Find(u"sub"), "") << "a folder";
}

/// A person who gives one answer and is counted.
struct Person {
    ProgramAnswer answer = ProgramAnswer::No;
    int asked = 0;
    std::vector<bool> waysOut{};  // whether they were offered
    std::function<ProgramAnswer(const platform::ProgramQuestion&)> Ask() {
        return [this](const platform::ProgramQuestion& question) {
            ++asked;
            waysOut.push_back(question.manyAsked);
            return answer;
        };
    }
};

const posix_adapter::FoundProgram kA{"/bin/a", {}}, kB{"/bin/b", {"x y", "z"}};

TEST(ProgramPermission, AsksEachTime) {
    for (const ProgramAnswer answer : {ProgramAnswer::No, ProgramAnswer::Yes}) {
        TemporaryFolder folder;
        ProgramPermission permission(folder.Path() + "/");
        Person person{answer};
        for (int time = 1; time <= 5; ++time) {
            EXPECT_EQ(permission.Allows(kA, u"/one.kvs", person.Ask()), answer);
            EXPECT_EQ(person.asked, time);
        }
        EXPECT_EQ(person.waysOut, (std::vector<bool>{false, false, false, true, true}));
        permission.ForgetShow();
        permission.Allows(kA, u"/one.kvs", person.Ask());
        EXPECT_FALSE(person.waysOut.back()) << "another show";
        EXPECT_EQ(folder.Count(), 0u);
    }
}

TEST(ProgramPermission, ForTheShowHoldsForOneProgramUntilTheShowIsOver) {
    TemporaryFolder folder;
    ProgramPermission permission(folder.Path() + "/");
    Person person{ProgramAnswer::ForShow};
    EXPECT_EQ(permission.Allows(kB, u"/one.kvs", person.Ask()), ProgramAnswer::Yes);
    person.answer = ProgramAnswer::No;
    EXPECT_EQ(permission.Allows(kB, u"/one.kvs", person.Ask()), ProgramAnswer::Yes);
    EXPECT_EQ(person.asked, 1);
    EXPECT_EQ(permission.Allows({"/bin/b", {"x", "y z"}}, u"/one.kvs", person.Ask()),
              ProgramAnswer::No);
    EXPECT_EQ(permission.Allows(kB, u"/two.kvs", person.Ask()), ProgramAnswer::No);
    EXPECT_EQ(permission.Allows({"/home/b", kB.arguments}, u"/one.kvs", person.Ask()),
              ProgramAnswer::No);
    permission.ForgetShow();
    EXPECT_EQ(permission.Allows(kB, u"/one.kvs", person.Ask()), ProgramAnswer::No);
    EXPECT_EQ(person.asked, 5);
}

TEST(ProgramPermission, NoMoreHoldsForEverythingUntilTheShowIsOver) {
    for (const ProgramAnswer answer : {ProgramAnswer::NoMore, ProgramAnswer::EndShow}) {
        TemporaryFolder folder;
        ProgramPermission permission(folder.Path() + "/");
        Person person{answer};
        EXPECT_EQ(permission.Allows(kA, u"/one.kvs", person.Ask()),
                  answer == ProgramAnswer::EndShow ? answer : ProgramAnswer::No);
        EXPECT_EQ(permission.Allows(kB, u"/two.kvs", person.Ask()), ProgramAnswer::No);
        EXPECT_EQ(person.asked, 1);
        permission.ForgetShow();
        permission.Allows(kB, u"/two.kvs", person.Ask());
        EXPECT_EQ(person.asked, 2);
    }
}

TEST(ProgramPermission, AlwaysIsKeptForThatDocumentAndProgram) {
    TemporaryFolder folder;
    Person person{ProgramAnswer::Always};
    ProgramPermission first(folder.Path() + "/");
    const posix_adapter::FoundProgram film{"/動画.exe", {}};
    EXPECT_EQ(first.Allows(film, u"/one.kvs", person.Ask()), ProgramAnswer::Yes);
    EXPECT_EQ(first.Allows(kB, u"/one.kvs", person.Ask()), ProgramAnswer::Yes);
    ProgramPermission nextRun(folder.Path() + "/");
    EXPECT_EQ(nextRun.Allows(film, u"/one.kvs", nullptr), ProgramAnswer::Yes);
    EXPECT_EQ(nextRun.Allows(kB, u"/one.kvs", nullptr), ProgramAnswer::Yes);
    EXPECT_EQ(nextRun.Allows(kB, u"/two.kvs", nullptr), ProgramAnswer::No);
    EXPECT_EQ(nextRun.Allows({"/bin/b", {}}, u"/one.kvs", nullptr), ProgramAnswer::No);
}

TEST(ProgramPermission, NamesThatWouldAllowMoreAreNotKept) {
    TemporaryFolder folder;
    Person person{ProgramAnswer::Always};
    ProgramPermission permission(folder.Path() + "/");
    permission.Allows({"/a\n/evil.kvs\t/b\t", {}}, u"/one.kvs", person.Ask());
    permission.Allows({"/c\td", {}}, u"/one.kvs", person.Ask());
    permission.Allows({"/e", {}}, u"", person.Ask());
    EXPECT_EQ(folder.Count(), 0u);
}

TEST(ProgramPermission, AListThatCannotBeReadIsNotReplaced) {
    TemporaryFolder folder;
    std::filesystem::create_directory(folder.Path("programs.conf"));
    Person person{ProgramAnswer::Always};
    ProgramPermission permission(folder.Path() + "/");
    EXPECT_EQ(permission.Allows(kA, u"/one.kvs", person.Ask()), ProgramAnswer::Yes);
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path("programs.conf")));
    EXPECT_EQ(folder.Count(), 1u);
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
        EXPECT_EQ(permission.Allows(kA, u"/one.kvs", person.Ask()),
                  setting.allows ? ProgramAnswer::Yes : ProgramAnswer::No)
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
        platform::ProgramQuestion seen;
        system.ask = [&](const platform::ProgramQuestion& question) {
            seen = question;
            return ProgramAnswer::Yes;
        };
        const Text path = text::FromUtf8(script.path);
        EXPECT_TRUE(system.Shell(quoted ? u"\"" + path + u"\" \"x y\"" : path, u"/one.kvs"));
        EXPECT_EQ(script.Output(), quoted ? "x y|" : "|");
        EXPECT_EQ(seen.program, path);
        EXPECT_EQ(seen.arguments, quoted ? std::vector<Text>{u"x y"} : std::vector<Text>{});
    }
}

TEST(PosixSystemShell, ShowsWhatIsBesideTheDocument) {
    const Script script;
    PosixSystem system(script.folder.Path("home"), "");
    Text seen;
    system.ask = [&](const platform::ProgramQuestion& question) {
        seen = question.program;
        return ProgramAnswer::No;
    };
    EXPECT_FALSE(system.Shell(u"MY PROG.EXE", script.folder.TextPath("one.kvs")));
    EXPECT_EQ(seen, text::FromUtf8(script.path));
    EXPECT_TRUE(system.FindsProgram(u"MY PROG.EXE", script.folder.TextPath("one.kvs")));
    EXPECT_FALSE(system.FindsProgram(u"MY PROG.EXE", u"/one.kvs"));
}

TEST(PosixSystemShell, StartsNothingThatWasRefused) {
    const Script script;
    PosixSystem system(script.folder.Path("home"), "");
    const Text path = u"\"" + text::FromUtf8(script.path) + u"\"";
    int asked = 0, ended = 0;
    ProgramAnswer answer = ProgramAnswer::No;
    EXPECT_FALSE(system.Shell(path, u"/one.kvs")) << "nobody to ask";
    system.endShow = [&] { ++ended; };
    system.ask = [&](const platform::ProgramQuestion&) {
        ++asked;
        return answer;
    };
    EXPECT_FALSE(system.Shell(path, u"/two.kvs"));
    EXPECT_EQ(ended, 0);
    answer = ProgramAnswer::EndShow;
    EXPECT_FALSE(system.Shell(path, u"/two.kvs"));
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(asked, 2);
    answer = ProgramAnswer::Yes;
    EXPECT_FALSE(system.Shell(u"  ", u"/one.kvs"));
    EXPECT_FALSE(system.Shell(u"no-such-program-anywhere", u"/one.kvs"));
    EXPECT_EQ(asked, 2) << "nothing to ask about";
    EXPECT_EQ(script.folder.Count(), 2u) << "the program and its folder";
}

}  // namespace
