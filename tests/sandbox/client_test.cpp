// The program's side against processes that serve, and against all that do not.
#include "adapters/sandbox/client.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "adapters/sandbox/transfer.h"
#include "sandbox/sandbox_support.h"

namespace {

using sandbox::Client;
using sandbox::Kind;
using sandbox::Outcome;
using sandbox::Result;

/// Generous for those that are to answer; those that hang are given the short one.
constexpr int kLongLimit = 600000, kShortLimit = 300;

sandbox::ClientOptions StandIn(const std::string& manner, int limit = kLongLimit) {
    return {PARAPICO_STAND_IN, {manner}, limit};
}

Result Decode(Client& client, const std::string& content = "picture", Kind kind = Kind::Pcx,
              platform::Size wanted = {}) {
    const sandbox::Descriptor file = FileOf(content);
    return client.Decode(kind, file.Get(), wanted);
}

TEST(SandboxClient, APictureComes) {
    Client client(StandIn("limited"));
    const Result result = Decode(client);
    ASSERT_EQ(result.outcome, Outcome::Decoded);
    EXPECT_EQ(result.bitsPerPixel, 4);
    EXPECT_EQ(result.pixels->width, 2);
    EXPECT_EQ(result.pixels->height, 1);
    EXPECT_THAT(result.pixels->pixels, testing::ElementsAre(0xFF102030u, 0xFF405060u));
}

TEST(SandboxClient, ADrawingHasAProcessOfItsOwnAndIsToldTheSize) {
    Client client(StandIn("limited"));
    ASSERT_EQ(Decode(client).outcome, Outcome::Decoded);
    EXPECT_EQ(Children().size(), 1u);
    const Result result = Decode(client, "wanted", Kind::Eps, {18, 7});
    ASSERT_EQ(result.outcome, Outcome::Decoded);
    EXPECT_EQ(result.pixels->pixels[0], 0xFF001207u);
    EXPECT_EQ(Children().size(), 2u);
    EXPECT_EQ(Decode(client, "wanted", Kind::Eps).pixels->pixels[0], 0xFF000000u);
    EXPECT_EQ(Decode(client, "wanted", Kind::Eps, {40000, 40000}).outcome, Outcome::Failed);
}

TEST(SandboxClient, ADrawingIsMeasured) {
    Client client(StandIn("limited"));
    const Result result = client.Measure(Kind::Svg, FileOf("100000x3").Get());
    EXPECT_EQ(result.outcome, Outcome::Decoded);
    EXPECT_EQ(result.size, (platform::Size{100000, 3}));
    EXPECT_FALSE(result.pixels);
    for (const char* word : {"0x3", "-1x-1", "no size"}) {
        EXPECT_EQ(client.Measure(Kind::Svg, FileOf(word).Get()).outcome, Outcome::Failed) << word;
    }
    EXPECT_EQ(client.Measure(Kind::Pcx, FileOf("1x1").Get()).outcome, Outcome::Failed);
}

TEST(SandboxClient, OneProcessServesAllPictures) {
    Client client(StandIn("limited"));
    for (const char* word : {"picture", "no such word", "throw", "too few pixels", "picture"}) {
        Decode(client, word);
    }
    const auto before = Children();
    ASSERT_EQ(before.size(), 1u);
    EXPECT_EQ(Decode(client, "throw").outcome, Outcome::Failed);
    EXPECT_EQ(Decode(client, "too few pixels").outcome, Outcome::Failed);
    EXPECT_EQ(Decode(client, "").outcome, Outcome::Failed);
    EXPECT_EQ(Decode(client).outcome, Outcome::Decoded);
    EXPECT_EQ(Children(), before);
}

TEST(SandboxClient, TheProcessOpensNoFile) {
    Client client(StandIn("limited"));
    for (const Kind kind : {Kind::Pcx, Kind::Eps, Kind::Svg}) {
        const Result result = Decode(client, "open", kind);
        ASSERT_EQ(result.outcome, Outcome::Decoded);
        EXPECT_EQ(result.pixels->pixels[0], 0xFF000000u);
    }
}

TEST(SandboxClient, ACrashAndASpinCostOnePicture) {
    Client client(StandIn("limited"));
    for (const char* word : {"crash", "spin"}) {
        EXPECT_EQ(Decode(client, word).outcome, Outcome::Died) << word;
        EXPECT_TRUE(Children().empty());
        EXPECT_EQ(Decode(client).outcome, Outcome::Decoded);
    }
}

TEST(SandboxClient, BadProcessesAreSeenThroughAndEnded) {
    const std::pair<const char*, Outcome> manners[] = {{"ends at once", Outcome::Died},
                                                       {"crash", Outcome::Died},
                                                       {"close", Outcome::Died},
                                                       {"half, then crash", Outcome::Lied},
                                                       {"garbage", Outcome::Lied},
                                                       {"short", Outcome::Lied},
                                                       {"long", Outcome::Lied},
                                                       {"no descriptor", Outcome::Lied},
                                                       {"two descriptors", Outcome::Lied},
                                                       {"many descriptors", Outcome::Lied},
                                                       {"pipe", Outcome::Lied},
                                                       {"other serial", Outcome::Lied},
                                                       {"larger", Outcome::Lied},
                                                       {"smaller", Outcome::Lied},
                                                       {"beyond the bound", Outcome::Lied},
                                                       {"negative", Outcome::Lied},
                                                       {"odd depth", Outcome::Lied}};
    const int descriptors = OpenDescriptors();
    for (const auto& [manner, outcome] : manners) {
        SCOPED_TRACE(manner);
        Client client(StandIn(manner));
        for (int i = 0; i < 3; ++i) {
            const Result result = Decode(client);
            // Whether a process that ends at once is asked first is a race.
            EXPECT_TRUE(result.outcome == outcome || (std::string(manner) == "ends at once" &&
                                                      result.outcome == Outcome::Missing));
            EXPECT_FALSE(result.pixels);
            EXPECT_TRUE(Children().empty());
            EXPECT_EQ(OpenDescriptors(), descriptors);
        }
    }
}

TEST(SandboxClient, AFileWithANameIsNoPixels) {
    Client client(StandIn("plain file"));
    EXPECT_EQ(Decode(client).outcome, Outcome::Lied);
}

uint32_t FirstPixel(Client& client, const std::string& word, Kind kind = Kind::Pcx) {
    const Result result = Decode(client, word, kind);
    EXPECT_EQ(result.outcome, Outcome::Decoded) << word;
    return result.pixels ? result.pixels->pixels[0] & 0xFFFFFFu : 0;
}

TEST(SandboxClient, AProcessThatKeepsMuchMemoryEndsAfterItsAnswer) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer's own memory has no limit";
#endif
    Client client(StandIn("limited"));
    EXPECT_EQ(FirstPixel(client, "count"), 1u);
    Decode(client, "keep little");
    EXPECT_EQ(FirstPixel(client, "count"), 3u);
    for (const char* word : {"keep resident", "keep addresses"}) {
        Decode(client, word);
        EXPECT_EQ(FirstPixel(client, "count"), 1u) << word;
        EXPECT_EQ(FirstPixel(client, "count"), 2u) << word;
    }
    // What adds up.
    for (int i = 0; i < 5; ++i) {
        Decode(client, "keep little");
    }
    EXPECT_LT(FirstPixel(client, "count"), 3u);
}

TEST(SandboxClient, AHelperThatGoesOnEndsAfterTheAnswerWithItsProcess) {
    Client client(StandIn("limited"));
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(FirstPixel(client, "count", Kind::Eps), 1u);
        const auto helper = static_cast<pid_t>(FirstPixel(client, "helper", Kind::Eps));
        ASSERT_GT(helper, 1);
        EXPECT_TRUE(IsGone(helper));
    }
}

TEST(SandboxClient, AHangEndsAtTheLimit) {
    Client client(StandIn("hang", kShortLimit));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Decode(client).outcome, Outcome::Late);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(kShortLimit));
    EXPECT_TRUE(Children().empty());
}

TEST(SandboxClient, AnAnswerTooManyIsNotTheNextPictures) {
    Client client(StandIn("twice"));
    EXPECT_EQ(Decode(client).outcome, Outcome::Decoded);
    EXPECT_EQ(Decode(client).outcome, Outcome::Lied);
    EXPECT_EQ(Decode(client).outcome, Outcome::Decoded);
}

TEST(SandboxClient, MemoryThatShrinksMeanwhileHarmsNobody) {
    Client client(StandIn("shrinking"));
    for (int i = 0; i < 20; ++i) {
        const Result result = Decode(client);
        EXPECT_TRUE(result.outcome == Outcome::Decoded || result.outcome == Outcome::Lied);
    }
}

TEST(SandboxClient, AProcessThatWasKilledBetweenPicturesIsReplacedUnseen) {
    Client client(StandIn("limited"));
    ASSERT_EQ(Decode(client).outcome, Outcome::Decoded);
    const auto children = Children();
    ASSERT_EQ(children.size(), 1u);
    kill(children[0], SIGKILL);
    // Its end of the socket closes a moment later.
    for (int i = 0;
         i < 60000 && std::filesystem::exists("/proc/" + std::to_string(children[0]) + "/fd/3");
         ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    EXPECT_EQ(Decode(client).outcome, Outcome::Decoded);
    EXPECT_EQ(Children().size(), 1u);
}

TEST(SandboxClient, WhatTheProcessStartedGoesWithIt) {
    Client client(StandIn("with child"));
    const Result result = Decode(client, "picture", Kind::Eps);
    ASSERT_EQ(result.outcome, Outcome::Decoded);
    const auto child = static_cast<pid_t>(result.pixels->pixels[0] & 0xFFFFFFu);
    EXPECT_EQ(kill(child, 0), 0);
    EXPECT_EQ(Decode(client, "picture", Kind::Eps).outcome, Outcome::Died);
    EXPECT_TRUE(IsGone(child));
}

TEST(SandboxClient, WithoutAnExecutableNothingIsDecoded) {
    for (const char* program : {"/nonexistent/decoder", "/etc/passwd", "/"}) {
        Client client({program, {}, kLongLimit});
        EXPECT_EQ(Decode(client).outcome, Outcome::Missing) << program;
        EXPECT_EQ(Decode(client).outcome, Outcome::Missing) << program;
    }
    EXPECT_TRUE(Children().empty());
    Client client(StandIn("limited"));
    EXPECT_EQ(Decode(client, "picture", Kind::None).outcome, Outcome::Failed);
}

TEST(SandboxClient, AnExecutableThatDoesNotStartIsReportedOnce) {
    static int round = 0;  // each executable is reported once in the life of the program
    const std::string missing = "/nonexistent/teller" + std::to_string(++round);
    const auto told = [](const std::string& program) {
        Client client({program, {}, kLongLimit});
        testing::internal::CaptureStderr();
        Decode(client);
        Decode(client);
        return testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(told(missing), "parapico: the decoder " + missing +
                                 " could not be started (No such file or directory); pictures that "
                                 "need it are unreadable\n");
    EXPECT_EQ(told(missing), "");
    EXPECT_NE(told(missing + "/other"), "");
}

TEST(SandboxClient, ManyPicturesAndCrashesLeaveNothingBehind) {
    Client client(StandIn("limited"));
    ASSERT_EQ(Decode(client).outcome, Outcome::Decoded);
    const int descriptors = OpenDescriptors();
    for (int i = 0; i < 200; ++i) {
        const bool crash = i % 4 == 3;
        EXPECT_EQ(Decode(client, crash ? "crash" : "picture").outcome,
                  crash ? Outcome::Died : Outcome::Decoded);
    }
    ASSERT_EQ(Decode(client).outcome, Outcome::Decoded);
    EXPECT_EQ(OpenDescriptors(), descriptors);
    EXPECT_EQ(Children().size(), 1u);
}

TEST(SandboxClient, TheProcessGetsNothingOfTheProgram) {
    setenv("PARAPICO_TEST_SECRET", "1", 1);
    const sandbox::Descriptor leak(dup(STDIN_FILENO));  // not closed on exec
    {
        Client client(StandIn("limited"));
        ASSERT_EQ(Decode(client).outcome, Outcome::Decoded);
        const auto children = Children();
        ASSERT_EQ(children.size(), 1u);
        const std::string process = "/proc/" + std::to_string(children[0]);
        // What belongs to the picture is closed a moment after the answer.
        std::vector<std::string> open;
        for (int i = 0; i < 60000 && open.size() != 5; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(i == 0 ? 0 : 1));
            open.clear();
            for (const auto& entry : std::filesystem::directory_iterator(process + "/fd")) {
                open.push_back(entry.path().filename());
            }
        }
        EXPECT_THAT(open, testing::UnorderedElementsAre("0", "1", "2", "3", "4"));
        // The one that it opened itself, of what it uses.
        EXPECT_EQ(std::filesystem::read_symlink(process + "/fd/4"), process + "/statm");
        for (const char* standard : {"/fd/0", "/fd/1", "/fd/2"}) {
            EXPECT_EQ(std::filesystem::read_symlink(process + standard), "/dev/null");
        }
        std::string environment(65536, '\0');
        FILE* file = std::fopen((process + "/environ").c_str(), "r");
        ASSERT_TRUE(file);
        environment.resize(std::fread(environment.data(), 1, environment.size(), file));
        std::fclose(file);
        EXPECT_THAT(environment, testing::HasSubstr("LC_ALL=C.UTF-8"));
        EXPECT_THAT(environment, testing::Not(testing::HasSubstr("PARAPICO_TEST_SECRET")));
    }
    EXPECT_TRUE(Children().empty());
}

TEST(SandboxClient, EachThreadCanHaveItsOwn) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            Client client(StandIn("limited"));
            for (int j = 0; j < 20; ++j) {
                EXPECT_EQ(Decode(client).outcome, Outcome::Decoded);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_TRUE(Children().empty());
}

TEST(SandboxClient, ProcessesEndWithTheProgram) {
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const sandbox::Descriptor in(ends[0]);
    sandbox::Descriptor out(ends[1]);
    const pid_t program = fork();
    if (program == 0) {
        // Closed without a message, as by a program that crashes.
        Client client(StandIn("limited"));
        Decode(client);
        Decode(client, "picture", Kind::Eps);
        const auto children = Children();
        const bool told = write(out.Get(), children.data(), 2 * sizeof(pid_t)) == 8;
        raise(SIGKILL);
        _exit(told ? 0 : 1);
    }
    pid_t children[2] = {0, 0};
    ASSERT_EQ(read(in.Get(), children, sizeof children), 8);
    for (const pid_t child : children) {
        ASSERT_GT(child, 0);
        EXPECT_TRUE(IsGone(child));
    }
    sandbox::EndProcess({program, sandbox::Descriptor()});
}

}  // namespace
