#include "adapters/robot/script.h"

#include <gtest/gtest.h>

namespace robot {
namespace {

std::string Refusal(const std::string& script) {
    try {
        ParseScript(script, "x.robot");
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "accepted";
}

TEST(Script, CommentsBlankLinesMarkAndCarriageReturnsAreNoActions) {
    const auto script = ParseScript(
        "\xEF\xBB\xBF# a comment\r\n\r\n   \t\n  quit # at the end\r\n#quit\nquit", "x.robot");
    ASSERT_EQ(script.size(), 2u);
    EXPECT_EQ(script[0].kind, ActionKind::Quit);
    EXPECT_EQ(script[0].line, 4);
    EXPECT_EQ(script[1].line, 6);
    EXPECT_TRUE(ParseScript("", "x.robot").empty());
}

TEST(Script, TimesStandInFront) {
    const auto script = ParseScript("quit\n@1500 quit\n +200   quit\n", "x.robot");
    ASSERT_EQ(script.size(), 3u);
    EXPECT_EQ(script[0].due.kind, Due::Next);
    EXPECT_EQ(script[1].due.kind, Due::Absolute);
    EXPECT_EQ(script[1].due.milliseconds, 1500);
    EXPECT_EQ(script[2].due.kind, Due::After);
    EXPECT_EQ(script[2].due.milliseconds, 200);
}

TEST(Script, TargetsNameWindowAndControl) {
    const auto script = ParseScript(
        "click Form1\ndblclick Form1.Picture2(3) 10 -2\nkey Slidescreen.P2 27\nclose Form3\n"
        "rclick Form5.Picture1\nkey Form1 13",
        "x.robot");
    ASSERT_EQ(script.size(), 6u);
    EXPECT_EQ(script[0].window, "Form1");
    EXPECT_EQ(script[0].control, "");
    EXPECT_TRUE(script[0].numbers.empty());
    EXPECT_EQ(script[1].kind, ActionKind::DoubleClick);
    EXPECT_EQ(script[1].control, "Picture2(3)");
    EXPECT_EQ(script[1].numbers, (std::vector{10, -2}));
    EXPECT_EQ(script[2].numbers, std::vector{27});
    EXPECT_EQ(script[2].control, "P2");
    EXPECT_EQ(script[3].kind, ActionKind::Close);
    EXPECT_EQ(script[4].kind, ActionKind::RightClick);
    EXPECT_EQ(script[5].control, "");
}

TEST(Script, MenuEntriesTakeAnIndexEitherWay) {
    const auto script = ParseScript(
        "menu mnuOPEN\nmenu mnuKUFL 1\nmenu mnuKUFL(1)\nmenu Form3.mnuFACE 0", "x.robot");
    ASSERT_EQ(script.size(), 4u);
    EXPECT_EQ(script[0].window, "Form1");
    EXPECT_EQ(script[0].name, "mnuOPEN");
    EXPECT_EQ(script[1].name, "mnuKUFL(1)");
    EXPECT_EQ(script[2].name, "mnuKUFL(1)");
    EXPECT_EQ(script[3].window, "Form3");
    EXPECT_EQ(script[3].name, "mnuFACE(0)");
}

TEST(Script, TextsReachToTheEndOfTheLineOrStandInQuotes) {
    const auto script = ParseScript(
        "set Form8.Text1  two words  \n"
        "set Form8.Text1 \" # \\u3042\\\"\"  # comment\n"
        "set Form8.Text1\n"
        "input\n"
        "input \"\"\n"
        "choose C# 写真.kvs\n"
        "choose \"a b.jpg\" \"c.jpg\"\n"
        "choose\n"
        "drop Form1 a.kvs \"b c.kvs\"\n"
        "select Form3.List1 2 0\n"
        "expect Form1.Caption \"a # b\"  # comment\n"
        "expect DocumentName two  words\n"
        "shot \"a b.png\" Form3\n"
        "shot a.png\n"
        "answer cancel",
        "x.robot");
    ASSERT_EQ(script.size(), 15u);
    EXPECT_EQ(script[0].text, u"two words");
    EXPECT_EQ(script[1].text, u" # あ\"");
    EXPECT_EQ(script[2].text, u"");
    EXPECT_EQ(script[3].text, std::nullopt);
    EXPECT_EQ(script[4].text, u"");
    EXPECT_EQ(script[5].paths, std::vector<Text>{u"C# 写真.kvs"});
    EXPECT_EQ(script[6].paths, (std::vector<Text>{u"a b.jpg", u"c.jpg"}));
    EXPECT_TRUE(script[7].paths.empty());
    EXPECT_EQ(script[8].paths, (std::vector<Text>{u"a.kvs", u"b c.kvs"}));
    EXPECT_EQ(script[9].numbers, (std::vector{2, 0}));
    EXPECT_EQ(script[10].text, u"\"a # b\"");
    EXPECT_EQ(script[11].text, u"two  words");
    EXPECT_EQ(script[12].text, u"a b.png");
    EXPECT_EQ(script[12].window, "Form3");
    EXPECT_EQ(script[13].window, "");
    EXPECT_EQ(script[14].text, u"cancel");
}

TEST(Script, BadLinesAreRefusedWithTheirPlace) {
    EXPECT_EQ(Refusal("quit\n\njump Form1\n"), "x.robot:3: unknown action: jump");
    EXPECT_EQ(Refusal("@1x quit"), "x.robot:1: this is no whole number: 1x");
    EXPECT_EQ(Refusal("@-5 quit"), "x.robot:1: a time cannot be below 0");
    EXPECT_EQ(Refusal("+99999999999 quit"), "x.robot:1: this is no whole number: 99999999999");
    for (const char* line : {"@100",
                             "click",
                             "click Form1.",
                             "click .Command1",
                             "click Form1 3",
                             "click Form1 3 x",
                             "click Form1 1 2 3",
                             "key Form1",
                             "key Form1 esc",
                             "menu",
                             "menu mnuKUFL one",
                             "select Form3.List1 x",
                             "select Form3 1",
                             "set Form1 1",
                             "drop Form1",
                             "close",
                             "close Form1.Command1",
                             "answer",
                             "answer maybe",
                             "answer yes no",
                             "print",
                             "print A B",
                             "expect SlideIndex",
                             "shot",
                             "shot a.png Form1.Command1",
                             "quit now",
                             "drop Form1 \"open",
                             "input \"bad \\q escape\"",
                             "shot a \xFF"}) {
        EXPECT_TRUE(Refusal(line).starts_with("x.robot:1: ")) << line << ": " << Refusal(line);
    }
}

TEST(Script, ManyGarbledScriptsAreReadOrRefusedWithoutHarm) {
    const std::string good =
        "@1500 click Form1.Picture2(3) 1 2 # x\n+2 set Form8.Text1 \"a\\u0041\"\ndrop A \"b\" c\n"
        "expect A [\"1\", \"2\"]\nselect F.L 1 2\n";
    for (size_t i = 0; i < good.size(); ++i) {
        Refusal(good.substr(0, i));
        for (const char c : {'\0', '"', '\\', '#', '\xE3', '@', '.', ' ', '\n'}) {
            std::string bad = good;
            bad[i] = c;
            const std::string refusal = Refusal(bad);
            EXPECT_TRUE(refusal == "accepted" || refusal.starts_with("x.robot:")) << refusal;
        }
    }
}

}  // namespace
}  // namespace robot
