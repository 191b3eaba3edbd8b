// Which effect is run, and where the picture goes.
#include "picture/effect_choice.h"

#include <gtest/gtest.h>

#include "effects_support.h"

namespace picture {
namespace {

using picture_tests::Screening;

TEST(EffectPlace, MiddleRoundsHalfPixelsToTheEvenOne) {
    struct Case {
        int room, picture, offset;
    };
    for (const Case& c : {Case{100, 40, 30},
                          {100, 41, 30},
                          {100, 39, 30},
                          {100, 43, 28},
                          {100, 100, 0},
                          {100, 103, -2},
                          {100, 301, -100},
                          {100, 1, 50}}) {
        Screening at({c.room, c.room}, {c.picture, c.picture});
        PlacePicture(at.app);
        EXPECT_EQ(at.state.PictureX, c.offset) << c.picture;
        EXPECT_EQ(at.state.PictureY, c.offset) << c.picture;
    }
}

TEST(EffectPlace, AtRandomXFirst) {
    Screening at({200, 100}, {40, 60});
    at.state.PicturePosition = 1;
    at.loop.randomNumbers = {0.25, 0.999};
    PlacePicture(at.app);
    EXPECT_EQ(at.state.PictureX, 40);
    EXPECT_EQ(at.state.PictureY, 40);  // 39.96
}

TEST(EffectPlace, AMacrosPlaceGoesFirst) {
    Screening at({200, 100}, {40, 60});
    at.state.PicturePosition = 1;
    at.state.PicturePositionFixed = 1;
    at.state.PicturePositionXFactor = 1;
    at.state.PicturePositionYFactor = 0.1;
    at.loop.randomNumbers = {0.5};
    PlacePicture(at.app);
    EXPECT_EQ(at.state.PictureX, 160);
    EXPECT_EQ(at.state.PictureY, 4);
    EXPECT_EQ(at.loop.randomNumbers.size(), 1u) << "nothing is drawn at random";
}

TEST(EffectChoice, RandomRangeAndItsUnevenEnds) {
    struct Case {
        double number;
        int effect;
    };
    // Int(r × 8 + 0.8): 0 below 0.025, 1 below 0.15, …, 8 from 0.9 on.
    for (const Case& c : {Case{0, 0},
                          {0.0249, 0},
                          {0.0251, 1},
                          {0.1499, 1},
                          {0.1501, 2},
                          {0.5, 4},
                          {0.8999, 7},
                          {0.9001, 8},
                          {0.999999, 8}}) {
        Screening at({10, 10}, {4, 4});
        at.state.ShowEffect = 9;
        at.state.EraseEffect = 9;
        at.loop.randomNumbers = {c.number, c.number};
        ChooseShowEffect(at.app);
        ChooseEraseEffect(at.app);
        EXPECT_EQ(at.state.CurrentShowEffect, c.effect) << c.number;
        EXPECT_EQ(at.state.CurrentEraseEffect, c.effect) << c.number;
    }
}

TEST(EffectChoice, SequencesRunApartAndBeginAnewInANewWindow) {
    Screening at({10, 10}, {4, 4});
    at.state.ShowEffect = 10;
    at.state.EraseEffect = 10;
    RestartEffects(at.state);
    for (int i = 0; i < 12; ++i) {
        ChooseShowEffect(at.app);
        EXPECT_EQ(at.state.CurrentShowEffect, i % 9);
    }
    for (int i = 0; i < 10; ++i) {
        ChooseEraseEffect(at.app);
        EXPECT_EQ(at.state.CurrentEraseEffect, i % 9);
    }
    RestartEffects(at.state);
    ChooseShowEffect(at.app);
    ChooseEraseEffect(at.app);
    EXPECT_EQ(at.state.CurrentShowEffect, 0);
    EXPECT_EQ(at.state.CurrentEraseEffect, 0);
    EXPECT_EQ(at.state.EraseSkipOnce, 1);
}

TEST(EffectChoice, ANamedEffectLeavesSequenceAndRandomNumbersAlone) {
    Screening at({10, 10}, {4, 4});
    at.state.NextShowEffect = 3;
    at.loop.randomNumbers = {0.5};
    for (const int16_t effect : {0, 8, 11, 12, -1}) {
        at.state.ShowEffect = effect;
        ChooseShowEffect(at.app);
        EXPECT_EQ(at.state.CurrentShowEffect, effect);
    }
    EXPECT_EQ(at.state.NextShowEffect, 3);
    EXPECT_EQ(at.loop.randomNumbers.size(), 1u);
}

TEST(EffectChoice, EraseAsShownExchangesCentreAndOutside) {
    Screening at({10, 10}, {4, 4});
    at.state.EraseEffect = 11;
    const int expected[] = {0, 1, 2, 3, 5, 4, 6, 7, 8, 9, 10, 11};
    for (int16_t shown = 0; shown < 12; ++shown) {
        at.state.CurrentShowEffect = shown;
        ChooseEraseEffect(at.app);
        EXPECT_EQ(at.state.CurrentEraseEffect, expected[shown]);
    }
}

}  // namespace
}  // namespace picture
