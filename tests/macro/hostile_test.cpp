// Macro files that nobody wrote by hand: they end, and cost no more than their length.
#include <gtest/gtest.h>

#include "macro/check.h"
#include "macro_support.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;

struct Hostile : testing::Test, MacroShow {
    void PlayBytes(const std::string& bytes) {
        fake.files.Put(u"C:\\show\\p1.txt", bytes);
        macro::RunTextMacro(app);
    }
    int PenX() const { return form1.Picture1.canvas.penX; }
};

TEST_F(Hostile, TenMegabytesOfOneLine) {
    PlayBytes("CurrentX=7" + std::string(10 << 20, 'x'));
    EXPECT_EQ(PenX(), 7);
    PlayBytes("CurrentX=8\r\n" + std::string(10 << 20, 'x'));
    EXPECT_EQ(PenX(), 8);
    EXPECT_EQ(fake.loop.pumps, 3);
}

TEST_F(Hostile, TabsOfOneLineDoNotMultiplyItsCost) {
    PlayBytes("Tab=10\r\nCurrentX=9\r\n" + std::string(1 << 20, '\t'));
    EXPECT_EQ(PenX(), 9);
}

TEST_F(Hostile, ZeroBytesAreCharacters) {
    using namespace std::string_literals;
    PlayBytes("\0CurrentX=3\r\n"s);
    EXPECT_EQ(PenX(), 0);
    PlayBytes("CurrentX=4\0\0\0\r\nCurrentY=5"s);
    EXPECT_EQ(PenX(), 4);
    EXPECT_EQ(form1.Picture1.canvas.penY, 5);
    PlayBytes(std::string(1 << 20, '\0'));
    EXPECT_EQ(Now(), 0);
}

TEST_F(Hostile, LoopsWithinLoopsRunTheLastOnly) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i) {
        bytes += "Loop=32767\r\n";
    }
    bytes += "Loop=2\r\nMovX=1\r\n";
    for (int i = 0; i < 1000; ++i) {
        bytes += "EndLoop\r\n";
    }
    PlayBytes(bytes);
    EXPECT_EQ(PenX(), 2);
}

TEST_F(Hostile, LongestLoopCanBeStopped) {
    fake.loop.onPump = [this] { state.StopRequest = fake.loop.pumps > 5000 ? 1 : 0; };
    PlayBytes("Loop=32767\r\nMovX=1\r\nEndLoop\r\n");
    EXPECT_EQ(fake.loop.pumps, 5001);
    EXPECT_EQ(state.MacroEndShow, 0);
}

TEST_F(Hostile, LastLineNeedsNoEnd) {
    PlayBytes("CurrentX=37");
    EXPECT_EQ(PenX(), 37);
    PlayBytes("CurrentX=38\r");
    EXPECT_EQ(PenX(), 38);
    PlayBytes("\x83");  // half of a character
    EXPECT_EQ(Now(), 0);
}

TEST_F(Hostile, CheckTakesThemToo) {
    const macro::CheckedSlide slide{u"C:\\show\\", 1, 3};
    EXPECT_EQ(macro::CheckMacro(fake.files, slide, Text(1 << 20, u'x')).size(), 1u);
    EXPECT_EQ(macro::CheckMacro(fake.files, slide, Text(1 << 20, u'\n')).size(), 0u);
    EXPECT_EQ(macro::CheckMacro(fake.files, slide, Text(1000, u'\0')).size(), 1u);
    Text commas = u"GRAD(" + Text(1 << 20, u',');
    macro::CheckMacro(fake.files, slide, commas);
    Text quotes = u"MOVIE(" + Text(1 << 16, u'"');
    macro::CheckMacro(fake.files, slide, quotes);
}

}  // namespace
