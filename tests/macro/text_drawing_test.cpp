// Lines of the text section: where and in which colours they are drawn, and the waits after them.
// A character is half its size in points wide, a line twice the size high: 10 and 40 pixels at the
// size that a slide begins with.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "macro/printing.h"
#include "macro_support.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;
using platform::Rgb;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr platform::Color kWhite = 0xFFFFFF;

struct Drawing : testing::Test, MacroShow {
    const platform::Canvas* inWindow = &form1.Picture1.canvas;
    const platform::Canvas* onScreen = &screen.P2.canvas;

    /// What was drawn on the canvas, as "x,y text colour".
    std::vector<std::string> On(const platform::Canvas* canvas) const {
        std::vector<std::string> lines;
        for (const auto& line : fake.textRenderer.drawn) {
            if (line.canvas == canvas) {
                char colour[16];
                std::snprintf(colour, sizeof colour, " %06X", line.color);
                lines.push_back(std::to_string(line.x) + "," + std::to_string(line.y) + " " +
                                text::ToUtf8(line.text) + colour);
            }
        }
        return lines;
    }
    /// Places of the prints of one colour on the canvas, in order.
    std::vector<std::pair<int, int>> Places(const platform::Canvas* canvas,
                                            platform::Color color) const {
        std::vector<std::pair<int, int>> places;
        for (const auto& line : fake.textRenderer.drawn) {
            if (line.canvas == canvas && line.color == color) {
                places.emplace_back(line.x, line.y);
            }
        }
        return places;
    }
};

TEST_F(Drawing, LinesGoOnBothCanvasesOneUnderTheOther) {
    Play(u"CurrentX=7\r\n[テキスト]\r\nAB\r\n\r\n あ\r\nlast");
    const std::vector<std::string> wanted = {"7,0 AB FFFFFF", "7,80  あ FFFFFF",
                                             "7,120 last FFFFFF"};
    EXPECT_EQ(On(inWindow), wanted);
    EXPECT_EQ(On(onScreen), wanted);
    EXPECT_EQ(fake.textRenderer.drawn[0].canvas, onScreen) << "the full screen's comes first";
    EXPECT_EQ(form1.Picture1.canvas.penY, 160);
    EXPECT_EQ(fake.textRenderer.drawn[0].font.name, u"ＭＳ ゴシック");
    EXPECT_EQ(fake.textRenderer.drawn[0].font.sizePoints, 20);
}

TEST_F(Drawing, OnlyTheFullScreensCanvasCountsFromThePicture) {
    GoFullScreen();
    Play(u"CurrentX=7\n[テキスト]\nCurrentY=100\nA\n");
    EXPECT_THAT(On(onScreen), ElementsAre("47,170 A FFFFFF"));
    EXPECT_THAT(On(inWindow), ElementsAre("7,140 A FFFFFF"))
        << "one line below 100: the word's own line comes first";
}

TEST_F(Drawing, SpaceComesAfterEveryLineThatIsNotEmpty) {
    Play(u"LineSpace=5\n[テキスト]\nA\n\nB\nQBColor=12\nC\n");
    EXPECT_THAT(On(inWindow), ElementsAre("0,0 A FFFFFF", "0,85 B FFFFFF", "0,170 C 0000FF"))
        << "neither the empty line nor the one of a word takes the space";
}

TEST_F(Drawing, ACarriageReturnAloneCountsAsALine) {
    Play(u"LineSpace=5\r\n[テキスト]\r\nA\r\n\r\nB\r\n");
    EXPECT_THAT(On(inWindow), ElementsAre("0,0 A FFFFFF", "0,90 B FFFFFF"));
}

TEST_F(Drawing, CarriageReturnAndTabLeaveNoMark) {
    Play(u"[テキスト]\r\nA\tB\rC\r\n");
    EXPECT_THAT(On(inWindow), ElementsAre("0,0 A BC FFFFFF"));
    const auto texts = fake.trace.Of("text");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].String("text"), u"A\tBC");
}

TEST_F(Drawing, LastLineOfTheFileIsDrawnWithoutALineEnd) {
    Play(u"[テキスト]\nlast\n");
    EXPECT_THAT(On(inWindow), ElementsAre("0,0 last FFFFFF"));
}

TEST_F(Drawing, ALineFeedOrTabThatEndsTheFileIsText) {
    Play(u"LineSpace=5\n[テキスト]\nA\n\nB");
    EXPECT_EQ(form1.Picture1.canvas.penY, 45 + 40 + 45) << "an empty line takes no space";
    Play(u"LineSpace=5\n[テキスト]\nA\n\n");
    EXPECT_EQ(form1.Picture1.canvas.penY, 45 + 45) << "the last line holds its line feed";
    Play(u"Tab=4\n[テキスト]\nA\tB\t");
    EXPECT_EQ(fake.trace.Of("text").back().String("text"), u"A   B\t");
}

TEST_F(Drawing, TextBeforeItsSectionIsNotDrawn) {
    Play(u"not a word\n[テキスト] more\n");
    EXPECT_THAT(fake.textRenderer.drawn, IsEmpty());
}

TEST_F(Drawing, PensMoveOnCanvasesWithoutPixels) {
    form1.Picture1.SetSize(0, 0);
    screen.P2.SetSize(0, 0);
    Play(u"[テキスト]\nA\nB\n");
    EXPECT_EQ(On(inWindow).size(), 2u);
    EXPECT_EQ(On(onScreen).size(), 2u);
    EXPECT_EQ(form1.Picture1.canvas.penY, 80);
    EXPECT_EQ(screen.P2.canvas.penY, 80);
}

TEST_F(Drawing, ShadowIsBlackAndTheTextTakesTheColourOfTheWords) {
    Play(u"Kage=1\nQBColor=14\n[テキスト]\nA\n");
    EXPECT_THAT(On(onScreen), ElementsAre("5,3 A 000000", "0,0 A 00FFFF"));
    EXPECT_THAT(On(inWindow), ElementsAre("5,3 A 000000", "0,0 A 00FFFF"));
    EXPECT_EQ(form1.Picture1.canvas.color, 0x00FFFFu);
}

TEST_F(Drawing, WithoutAColourOfItsOwnAShadowedTextIsBlack) {
    Play(u"Kage=1\n[テキスト]\nA\n");
    EXPECT_THAT(On(inWindow), ElementsAre("5,3 A 000000", "0,0 A 000000"));
    fake.textRenderer.drawn.clear();
    Play(u"Kage=2\n[テキスト]\nA\n");
    EXPECT_EQ(fake.textRenderer.drawn.back().color, 0u);
}

TEST_F(Drawing, ShadowFallsToTheLeftAndUpWithNegativeOffsets) {
    Play(u"Kage=1\nZureX=-4\nZureY=-2\nQBColor=15\n[テキスト]\nA\n");
    EXPECT_THAT(On(inWindow), ElementsAre("-4,-2 A 000000", "0,0 A FFFFFF"));
}

TEST_F(Drawing, OutlineIsPrintedFourTimesForEveryStep) {
    Play(u"Kage=2\nQBColor=15\nCurrentX=100\nCurrentY=50\n[テキスト]\nA\n");
    for (const platform::Canvas* canvas : {onScreen, inWindow}) {
        const auto places = Places(canvas, Rgb(20, 20, 20));
        ASSERT_EQ(places.size(), 4u * 6 * 4) << "0 to 5 across, 0 to 3 down";
        EXPECT_EQ(places[0], std::pair(100, 50));
        EXPECT_EQ(places[3], std::pair(100, 50));
        EXPECT_EQ(places[4], std::pair(100, 51)) << "down first";
        EXPECT_EQ(places[5], std::pair(100, 49));
        EXPECT_EQ(places[92], std::pair(105, 53));
        EXPECT_EQ(places[93], std::pair(95, 47));
        EXPECT_EQ(places[94], std::pair(105, 47));
        EXPECT_EQ(places[95], std::pair(95, 53));
        EXPECT_EQ(std::set(places.begin(), places.end()).size(), 11u * 7);
        EXPECT_EQ(On(canvas).back(), "100,50 A FFFFFF");
    }
}

TEST_F(Drawing, OutlinesHaveTheirColours) {
    Play(u"Kage=3\nQBColor=1\nZureX=0\nZureY=0\n[テキスト]\nA\nBorderColor=12\nB\n");
    EXPECT_EQ(Places(inWindow, Rgb(230, 230, 230)).size(), 4u);
    EXPECT_EQ(Places(inWindow, Rgb(255, 0, 0)).size(), 4u);
    // Of the show, so the next slide has it too.
    fake.textRenderer.drawn.clear();
    Play(u"Kage=2\nZureX=0\nZureY=0\n[テキスト]\nA\n");
    EXPECT_EQ(Places(inWindow, Rgb(255, 0, 0)).size(), 4u);
}

TEST_F(Drawing, OutlineMakesItsOffsetsPositiveAndSmallForGood) {
    Play(u"Kage=2\nZureX=-4\nZureY=50\nQBColor=15\n[テキスト]\nA\nKage=1\nB\n");
    EXPECT_EQ(Places(inWindow, Rgb(20, 20, 20)).size(), 4u * 5 * 11);
    EXPECT_THAT(Places(inWindow, 0), ElementsAre(std::pair(4, 90)))
        << "the shadow of the third line has the outline's offsets: 4 and 10";
}

TEST_F(Drawing, EmptyLinesDrawNothing) {
    Play(u"Kage=2\n[テキスト]\n\n\r\n");
    EXPECT_THAT(fake.textRenderer.drawn, IsEmpty());
    EXPECT_THAT(fake.trace.Of("text"), IsEmpty());
}

TEST_F(Drawing, TellsOfEveryLineThatIsSeen) {
    GoFullScreen();
    Play(u"Kage=1\nRGB(1,2,3)\nFontNo=2\nFontSize=30.5\nCurrentX=8\n[テキスト]\nA\r\n  　\t\nB\n");
    const auto texts = fake.trace.Of("text");
    ASSERT_EQ(texts.size(), 2u) << "blanks are not seen";
    EXPECT_EQ(texts[0].Number("x"), 48);
    EXPECT_EQ(texts[0].Number("y"), 30) << "of the line, not of its shadow";
    EXPECT_EQ(texts[0].String("text"), u"A");
    EXPECT_EQ(texts[0].Number("colour"), 0x030201);
    EXPECT_EQ(texts[0].String("font"), u"ＭＳ 明朝");
    EXPECT_EQ(texts[0].Number("size"), 30.5);
    EXPECT_EQ(texts[1].Number("y"), 30 + 2 * 61);
    state.FullScreenActive = 0;
    Play(u"CurrentX=8\n[テキスト]\nA\n");
    EXPECT_EQ(fake.trace.Of("text").back().Number("x"), 8) << "the canvas of the mode in force";
}

TEST_F(Drawing, WaitsAfterEveryLineThatIsNotEmpty) {
    Play(u"Delay=0.1\n[テキスト]\nA\n\nQBColor=1\nB\n");
    // The tick comes in the pump at 100 ms; 20 ms more pass before the flag is looked at.
    EXPECT_EQ(Now(), 240);
    EXPECT_EQ(form1.Timer3.Interval(), 100);
    EXPECT_FALSE(form1.Timer3.Enabled);
    EXPECT_EQ(state.MacroDelayWaiting, 0);
}

TEST_F(Drawing, AClickOnAJumpEndsTheWaitAndTheSlide) {
    fake.loop.At(500, [this] {
        EXPECT_EQ(state.MacroDelayWaiting, 1);
        state.SlideIndex = 0;
        state.MacroJumpChosen = 1;
        state.MacroDelayWaiting = 0;
    });
    Play(u"Delay=5\n[テキスト]\nA\nB\n");
    EXPECT_THAT(On(inWindow), ElementsAre("0,0 A FFFFFF"));
    EXPECT_EQ(state.MacroEndShow, 1);
    EXPECT_EQ(form1.Timer1.Interval(), 100);
    EXPECT_FALSE(form1.Timer3.Enabled);
    EXPECT_LT(Now(), 600);
}

TEST_F(Drawing, StoppingEndsTheWaitAndTheRun) {
    fake.loop.At(500, [this] { state.StopRequest = 1; });
    Play(u"Delay=5\n[テキスト]\nA\nB\n");
    EXPECT_THAT(On(inWindow), ElementsAre("0,0 A FFFFFF"));
    EXPECT_EQ(state.MacroEndShow, 0);
    EXPECT_LT(Now(), 600);
}

TEST_F(Drawing, ClosingTheFullScreenForgetsTheChoice) {
    GoFullScreen();
    fake.loop.At(500, [this] {
        state.FullScreenClosed = 1;
        state.MacroJumpChosen = 1;
        state.MacroButtonsShown = 1;
    });
    Play(u"Delay=5\n[テキスト]\nA\nB\n");
    EXPECT_EQ(state.MacroJumpChosen, 0);
    EXPECT_EQ(state.MacroButtonsShown, 0);
    EXPECT_EQ(state.MacroEndShow, 0);
    EXPECT_EQ(On(inWindow).size(), 1u);
}

TEST_F(Drawing, ALoopThatNeverStopsPrintingKeepsThePensSane) {
    Play(u"FontSize=2048\nLoop=10000\n[テキスト]\nA\nEndLoop\n");
    EXPECT_EQ(form1.Picture1.canvas.penY, 1 << 24);
}

}  // namespace
