#include "adapters/robot/options.h"

#include <gtest/gtest.h>

namespace robot {
namespace {

std::string Refusal(const std::vector<std::string>& arguments) {
    std::string error;
    return ParseRobotArguments(arguments, error) ? "accepted" : error;
}

TEST(RobotArguments, DefaultsWithAScriptAlone) {
    std::string error;
    const auto options = ParseRobotArguments({"--robot", "a.robot"}, error);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->script, "a.robot");
    EXPECT_EQ(options->trace, "");
    EXPECT_EQ(options->appFolder, "");
    EXPECT_EQ(options->seed, 1u);
    EXPECT_EQ(platform::DateTimeText(options->now), u"2026/01/01 12:00:00");
    EXPECT_EQ(options->screens, (std::vector<platform::Rect>{{0, 0, 1920, 1080}}));
    EXPECT_TRUE(options->cd.empty());
    EXPECT_FALSE(options->title);
    EXPECT_TRUE(options->prepare);
    EXPECT_EQ(options->document, "");
}

TEST(RobotArguments, EveryOptionInAnyOrder) {
    std::string error;
    const auto options = ParseRobotArguments(
        {"旅.kvs", "--title", "--screen", "1280x720,800x600", "--now", "2024-02-29 23:59:58",
         "--seed", "42", "--app-folder", "app", "--trace", "-", "--prepare", "off", "--cd",
         "0:01,3:59,99:00", "--robot", "a.robot"},
        error);
    ASSERT_TRUE(options) << error;
    EXPECT_EQ(options->document, "旅.kvs");
    EXPECT_TRUE(options->title);
    const std::vector<platform::Rect> screens{{0, 0, 1280, 720}, {0, 0, 800, 600}};
    EXPECT_EQ(options->screens, screens);
    EXPECT_EQ(platform::DateTimeText(options->now), u"2024/02/29 23:59:58");
    EXPECT_EQ(options->seed, 42u);
    EXPECT_EQ(options->appFolder, "app");
    EXPECT_EQ(options->trace, "-");
    EXPECT_EQ(options->cd, (std::vector<int>{1, 239, 5940}));
    EXPECT_FALSE(options->prepare);
}

TEST(RobotArguments, AfterTwoDashesStandsTheDocument) {
    std::string error;
    const auto options = ParseRobotArguments({"--robot", "a", "--", "--odd.kvs"}, error);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->document, "--odd.kvs");
}

TEST(RobotArguments, WrongUsageIsReported) {
    EXPECT_EQ(Refusal({}), "the script is missing: --robot SCRIPT");
    EXPECT_EQ(Refusal({"--robot"}), "the value is missing: --robot");
    EXPECT_EQ(Refusal({"--robot", "a", "--speed", "9"}), "unknown option: --speed");
    EXPECT_EQ(Refusal({"--robot", "a", "b", "c"}), "more than one document: c");
    for (const char* value : {"", "x", "-1", "1.5", "99999999999999999999"}) {
        EXPECT_NE(Refusal({"--robot", "a", "--seed", value}), "accepted") << value;
    }
    for (const char* value : {"", "1920", "1920x", "0x100", "100x-1", "100x100,", "40000x100",
                              "1920X1080", "1920x1080x2"}) {
        EXPECT_NE(Refusal({"--robot", "a", "--screen", value}), "accepted") << value;
    }
    std::string hundred;
    for (int track = 0; track < 100; ++track) {
        hundred += track > 0 ? ",1:00" : "1:00";
    }
    EXPECT_EQ(Refusal({"--robot", "a", "--cd", hundred.substr(5)}), "accepted");
    for (const std::string& value :
         std::vector<std::string>{"", "60", "0:00", "1:60", "1:5", "1:005", "-1:00", "100:00",
                                  "1:00,", ",1:00", hundred}) {
        EXPECT_NE(Refusal({"--robot", "a", "--cd", value}), "accepted") << value;
    }
    for (const char* value : {"", "yes", "ON"}) {
        EXPECT_NE(Refusal({"--robot", "a", "--prepare", value}), "accepted") << value;
    }
    for (const char* value : {"", "12:00:00", "2026-13-01 00:00:00", "2026-02-30 00:00:00",
                              "2026-01-01 25:00:00", "2026/01/01 12:00:00", "tomorrow"}) {
        EXPECT_NE(Refusal({"--robot", "a", "--now", value}), "accepted") << value;
    }
}

}  // namespace
}  // namespace robot
