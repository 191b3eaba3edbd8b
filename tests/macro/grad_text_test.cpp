// Texts whose colour runs from one to another.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro_support.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;
using platform::Rgb;
using testing::ElementsAre;
using testing::IsEmpty;

struct Grad : testing::Test, MacroShow {
    /// Colours in which the texts were printed in the window, in order.
    std::vector<platform::Color> Colors() const {
        std::vector<platform::Color> colors;
        for (const auto& line : fake.textRenderer.drawn) {
            if (line.canvas == &form1.Picture1.canvas) {
                colors.push_back(line.color);
            }
        }
        return colors;
    }
    /// Plays one GRAD and answers the texts printed in the window, put together.
    Text Printed(TextView line) {
        fake.textRenderer.drawn.clear();
        Play(line);
        Text all;
        for (const auto& print : fake.textRenderer.drawn) {
            all += print.canvas == &form1.Picture1.canvas ? print.text : Text();
        }
        return all;
    }
};

TEST_F(Grad, EveryCharacterIsAStepFurtherTheFirstToo) {
    GoFullScreen();
    Play(u"CurrentX=20\nGrad(255,0,10,0,255,10,\"abc\")\n");
    EXPECT_THAT(Colors(), ElementsAre(Rgb(170, 85, 10), Rgb(85, 170, 10), Rgb(0, 255, 10)));
    const auto& drawn = fake.textRenderer.drawn;
    ASSERT_EQ(drawn.size(), 6u);
    const int lefts[] = {60, 20, 70, 30, 80, 40};  // full screen, window, the next character
    for (size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(drawn[i].x, lefts[i]);
        EXPECT_EQ(drawn[i].y, i % 2 == 0 ? 30 : 0);
    }
    EXPECT_EQ(drawn[4].text, u"c") << "its case is kept";
    EXPECT_EQ(screen.P2.canvas.color, Rgb(0, 255, 10));
    EXPECT_EQ(form1.Picture1.canvas.color, Rgb(0, 255, 10));
}

TEST_F(Grad, StepsAreRoundedDown) {
    Play(u"Grad(0,255,0,255,0,0,\"ab\")\n");
    EXPECT_THAT(Colors(), ElementsAre(Rgb(127, 127, 0), Rgb(254, 0, 0)))
        << "127 up; 128 down, and not below 0";
}

TEST_F(Grad, NumbersAreClippedAndMissingOnesNothing) {
    Play(u"Grad(-5,,999,300,x,0,\"a\")\n");
    EXPECT_THAT(Colors(), ElementsAre(Rgb(255, 0, 0)));
}

TEST_F(Grad, TextStandsInQuotesOrBeforeTheLastBracket) {
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0,\"a)b, c\") // \r\n"), u"a)b, c");
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0, \"x\")"), u"x");
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0,plain)\r\n"), u"plain");
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0,\"open)\r\n"), u"open");
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0,no end\r\n"), u"no end");
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0,\"\")"), u"");
    EXPECT_EQ(Printed(u"Grad(0,0,0,0,0,0)"), u"");
    EXPECT_EQ(Printed(u"Grad"), u"");
}

TEST_F(Grad, AnEmptyTextChangesNoColour) {
    Play(u"QBColor=12\nGrad(0,0,0,0,0,0,\"\")\n");
    EXPECT_EQ(form1.Picture1.canvas.color, Rgb(255, 0, 0));
    EXPECT_THAT(fake.trace.Of("text"), IsEmpty());
}

TEST_F(Grad, TwoCodeUnitsThatBelongTogetherAreOneCharacter) {
    Play(u"Grad(0,0,0,100,0,0,\"𠮷野\")\n");
    ASSERT_EQ(fake.textRenderer.drawn.size(), 4u);
    EXPECT_EQ(fake.textRenderer.drawn[0].text, u"𠮷");
    EXPECT_EQ(fake.textRenderer.drawn[0].color, Rgb(50, 0, 0));
}

TEST_F(Grad, ShadowOfEachCharacterComesJustBeforeIt) {
    Play(u"Kage=1\nQBColor=15\nGrad(0,0,0,200,0,0,\"ab\")\n");
    EXPECT_THAT(Colors(), ElementsAre(0u, Rgb(100, 0, 0), 0u, Rgb(200, 0, 0)));
    EXPECT_EQ(fake.textRenderer.drawn[4].x, 15) << "the second shadow";
    EXPECT_EQ(fake.textRenderer.drawn[4].y, 3);
}

TEST_F(Grad, OutlineOfEachCharacterHasTheSameLimits) {
    Play(u"Kage=3\nZureX=-2\nZureY=11\nGrad(0,0,0,200,0,0,\"ab\")\n");
    EXPECT_EQ(fake.textRenderer.drawn.size(), 2u * 2 * (4 * 3 * 11 + 1));
    EXPECT_EQ(fake.textRenderer.drawn[0].color, Rgb(230, 230, 230));
}

TEST_F(Grad, InTheTextSectionTheNextLineIsOneDown) {
    Play(u"LineSpace=5\n[テキスト]\nGrad(0,0,0,200,0,0,\"ab\")\nnext\n");
    EXPECT_EQ(fake.textRenderer.drawn.back().x, 0);
    EXPECT_EQ(fake.textRenderer.drawn.back().y, 40) << "its own line was emptied: no space";
    EXPECT_EQ(fake.textRenderer.drawn.back().color, Rgb(200, 0, 0)) << "the last colour stays";
}

TEST_F(Grad, IsTracedAsOneText) {
    Play(u"CurrentX=20\nGrad(0,0,0,200,0,0,\"ab\")\n");
    const auto texts = fake.trace.Of("text");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].String("text"), u"ab");
    EXPECT_EQ(texts[0].Number("x"), 20);
    EXPECT_EQ(texts[0].Number("colour"), 200);
}

}  // namespace
