// Texts at any angle and in any width.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro_support.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;
using platform::Rgb;
using platform::Turn;
using testing::IsEmpty;

struct Rotated : testing::Test, MacroShow {
    const std::vector<fakes::FakeTextRenderer::Line>& drawn = fake.textRenderer.drawn;
};

TEST_F(Rotated, DrawsAtThePensOfBothCanvases) {
    GoFullScreen();
    Play(u"CurrentX=20\nCurrentY=10\nTextOut(40,8,30, \"Ａa) \") \n");
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].canvas, &form1.Picture1.canvas) << "the window's comes first";
    EXPECT_EQ(drawn[0].x, 20);
    EXPECT_EQ(drawn[0].y, 10);
    EXPECT_EQ(drawn[0].turn, (Turn{40, 8, 300}));
    EXPECT_EQ(drawn[0].color, 0xFFFFFFu);
    EXPECT_EQ(drawn[1].canvas, &screen.P2.canvas);
    EXPECT_EQ(drawn[1].x, 60);
    EXPECT_EQ(drawn[1].y, 40);
    EXPECT_EQ(drawn[1].text, u"Ａa)    ") << "a blank more for each of the three narrow ones";
    EXPECT_EQ(screen.P2.canvas.penY, 40);
}

TEST_F(Rotated, NumbersAreClipped) {
    Play(u"TextOut(1000,-5,400,\"あ\")\nTextOut(,,-1,\"い\")\nTextOut(2.5,1.5,12.3,\"う\")\n");
    ASSERT_EQ(drawn.size(), 6u);
    EXPECT_EQ(drawn[0].turn, (Turn{999, 0, 3600}));
    EXPECT_EQ(drawn[2].turn, (Turn{0, 0, 0}));
    EXPECT_EQ(drawn[4].turn, (Turn{2, 2, 123}));
    EXPECT_EQ(drawn[0].text, u"あ") << "a wide character needs no blank";
}

TEST_F(Rotated, TextEndsAtItsQuoteWhateverACommentHolds) {
    Play(
        u"TextOut(12,6,20,\"絵\")  //(文字高さ,文字幅,回転角度,文字列)\n"
        u"TextOut(1,1,1,\"図\") (x)\nTextOut(1,1,1, \"a\"b\")\nTextOut(1,1,1,\"絵)\n");
    ASSERT_EQ(drawn.size(), 8u);
    EXPECT_EQ(drawn[0].text, u"絵");
    EXPECT_EQ(drawn[0].turn, (Turn{12, 6, 200}));
    EXPECT_EQ(drawn[2].text, u"図");
    EXPECT_EQ(drawn[4].text, u"a ");
    EXPECT_EQ(drawn[6].text, u"絵") << "up to the last ')' where no quote closes it";
}

TEST_F(Rotated, TextMayHaveCommasAndNoQuotes) {
    Play(u"TextOut(1,1,1,a,b)\n");
    EXPECT_EQ(drawn.at(0).text, u"a,b   ");
    fake.textRenderer.drawn.clear();
    Play(u"TextOut(1,1,1,\"\")\nTextOut(1,1)\nTextOut\n");
    EXPECT_THAT(drawn, IsEmpty());
    EXPECT_EQ(fake.trace.Of("text").size(), 1u);
}

TEST_F(Rotated, UnderliningIsForTheFullScreenOnly) {
    Play(u"FontUnderLine=1\nFontBold=1\nFontItalic=1\nFontNo=2\nTextOut(40,0,0,\"あ\")\n");
    EXPECT_FALSE(drawn.at(0).font.underline);
    EXPECT_TRUE(drawn.at(1).font.underline);
    for (const auto& line : drawn) {
        EXPECT_TRUE(line.font.bold && line.font.italic);
        EXPECT_EQ(line.font.name, u"ＭＳ 明朝");
    }
    EXPECT_TRUE(form1.Picture1.canvas.font.underline) << "only this text goes without";
}

TEST_F(Rotated, ShadowsDifferAndTheTextKeepsTheCanvassColour) {
    Play(u"Kage=1\nTextOut(40,0,0,\"あ\")\n[テキスト]\nB\n");
    ASSERT_EQ(drawn.size(), 8u);
    EXPECT_EQ(drawn[0].color, Rgb(20, 20, 20));
    EXPECT_EQ(drawn[0].x, 5);
    EXPECT_EQ(drawn[0].y, 3);
    EXPECT_EQ(drawn[1].color, 0u);
    EXPECT_EQ(drawn[2].color, 0xFFFFFFu);
    EXPECT_EQ(drawn[2].x, 0);
    EXPECT_EQ(drawn[3].color, 0xFFFFFFu);
    EXPECT_EQ(drawn[7].color, 0xFFFFFFu) << "and the lines after it take it over";
}

TEST_F(Rotated, OutlineIsDrawnOnceMoreAtItsLastPlace) {
    Play(u"Kage=2\nZureX=-1\nZureY=2\nQBColor=15\nTextOut(40,0,0,\"あ\")\n");
    ASSERT_EQ(drawn.size(), 2u * (4 * 2 * 3 + 1 + 1));
    EXPECT_EQ(drawn[0].color, Rgb(20, 20, 20));
    for (const size_t last : {23u, 24u}) {
        EXPECT_EQ(drawn[last].x, -1);
        EXPECT_EQ(drawn[last].y, 2);
    }
    EXPECT_EQ(drawn[25].canvas, &screen.P2.canvas);
    EXPECT_EQ(drawn[50].x, 0);
    EXPECT_EQ(drawn[50].color, 0xFFFFFFu);
    EXPECT_EQ(drawn[51].color, 0xFFFFFFu);
}

TEST_F(Rotated, OutlinedTextWithoutAColourIsBlack) {
    Play(u"Kage=2\nTextOut(40,0,0,\"あ\")\n");
    EXPECT_EQ(drawn.back().color, 0u);
}

TEST_F(Rotated, CountsAsALineOfTheTextSection) {
    Play(u"LineSpace=5\nDelay=0.1\n[テキスト]\nTextOut(40,0,90,\"あ\")\nB\n");
    EXPECT_EQ(drawn.back().y, 45);
    EXPECT_EQ(Now(), 240) << "both wait";
    const auto texts = fake.trace.Of("text");
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].String("text"), u"あ");
}

TEST_F(Rotated, DoesNotMoveThePensOutsideTheTextSection) {
    Play(u"CurrentY=10\nTextOut(40,0,90,\"あ\")\n");
    EXPECT_EQ(form1.Picture1.canvas.penY, 10);
}

}  // namespace
