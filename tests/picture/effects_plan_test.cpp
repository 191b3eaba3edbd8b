// Which rectangles the effects draw, in which order, with which pauses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>

#include "effects_support.h"

namespace picture {
namespace {

using picture_tests::Areas;
using picture_tests::RuleAreas;
using platform::Rect;
using platform::Size;
using Rects = std::vector<Rect>;

double NoRandom() {
    ADD_FAILURE() << "only the mosaic draws numbers";
    return 0;
}

/// On which every band of a picture of a few hundred pixels lies.
constexpr Rect kCanvas{-200, -200, 1920, 1080};

EffectPlan Plan(int number, const EffectSettings& settings, Size size, bool erasing = false) {
    return PlanEffect(number, settings, erasing, size, kCanvas, NoRandom);
}

/// Numbers from a list, then 0.
struct Numbers {
    std::deque<double> numbers;
    int drawn = 0;
    double operator()() {
        ++drawn;
        if (numbers.empty()) {
            return 0;
        }
        const double number = numbers.front();
        numbers.pop_front();
        return number;
    }
};

TEST(EffectPlan, FromTheTopEndsOnABandBeyondTheEdge) {
    EXPECT_EQ(Areas(Plan(0, {}, {3, 2})), (Rects{{0, 0, 3, 1}, {0, 1, 3, 1}, {0, 2, 3, 1}}));
}

TEST(EffectPlan, FromTheBottomBeginsOnABandBeyondTheEdge) {
    EXPECT_EQ(Areas(Plan(1, {}, {3, 2})), (Rects{{0, 2, 3, 1}, {0, 1, 3, 1}, {0, 0, 3, 1}}));
}

TEST(EffectPlan, FastWipesFromTheFarEdgeMissTheNearOne) {
    const EffectSettings fastest{.speed = 10};
    EXPECT_EQ(Areas(Plan(0, fastest, {3, 10})), (Rects{{0, 0, 3, 4}, {0, 4, 3, 4}, {0, 8, 3, 4}}));
    EXPECT_EQ(Areas(Plan(1, fastest, {3, 10})), (Rects{{0, 10, 3, 4}, {0, 6, 3, 4}, {0, 2, 3, 4}}));
    EXPECT_EQ(Areas(Plan(2, fastest, {14, 5})), (Rects{{0, 0, 6, 5}, {6, 0, 6, 5}, {12, 0, 6, 5}}));
    EXPECT_EQ(Areas(Plan(3, fastest, {14, 5})), (Rects{{14, 0, 6, 5}, {8, 0, 6, 5}, {2, 0, 6, 5}}));
}

TEST(EffectPlan, CentreOfAnOddWidthRoundsToTheEvenColumn) {
    EXPECT_EQ(Areas(Plan(4, {}, {5, 4})), (Rects{{2, 2, 0, 2},
                                                 {2, 2, 1, 2},
                                                 {2, 2, 2, 3},
                                                 {2, 2, 2, 3},
                                                 {1, 1, 2, 2},
                                                 {1, 3, 3, 2},
                                                 {1, 1, 2, 5},
                                                 {3, 1, 2, 5},
                                                 {0, 0, 4, 2},
                                                 {0, 4, 5, 2},
                                                 {0, 0, 2, 7},
                                                 {4, 0, 2, 7},
                                                 {0, 0, 6, 2},
                                                 {0, 4, 7, 2},
                                                 {0, 0, 2, 7},
                                                 {5, 0, 2, 7}}));
}

TEST(EffectPlan, OutsideBandsRunOverTheRightEdgeAndMeetBetweenPixels) {
    EXPECT_EQ(Areas(Plan(5, {}, {5, 4})), (Rects{{0, 0, 5, 1},
                                                 {0, 4, 5, 1},
                                                 {0, 0, 1, 4},
                                                 {5, 0, 1, 4},
                                                 {1, 1, 5, 1},
                                                 {1, 3, 5, 1},
                                                 {1, 1, 1, 2},
                                                 {4, 1, 1, 2},
                                                 {2, 2, 5, 1},
                                                 {2, 2, 5, 1},
                                                 {2, 2, 1, 0},
                                                 {3, 2, 1, 0},
                                                 {2, 2, 5, 1},
                                                 {2, 2, 5, 1},
                                                 {2, 2, 1, 0},
                                                 {2, 2, 1, 0}}));
}

TEST(EffectPlan, OnePixel) {
    EXPECT_EQ(Areas(Plan(0, {}, {1, 1})), (Rects{{0, 0, 1, 1}, {0, 1, 1, 1}}));
    EXPECT_EQ(Areas(Plan(4, {}, {1, 1})), (Rects{{0, 0, 0, 2},
                                                 {0, 0, 1, 2},
                                                 {0, 0, 2, 3},
                                                 {0, 0, 2, 3},
                                                 {0, 0, 2, 2},
                                                 {0, 1, 3, 2},
                                                 {0, 0, 2, 5},
                                                 {1, 0, 2, 5}}));
    EXPECT_EQ(Areas(Plan(5, {}, {1, 1})), (Rects{{0, 0, 1, 1},
                                                 {0, 1, 1, 1},
                                                 {0, 0, 1, 1},
                                                 {1, 0, 1, 1},
                                                 {0, 0, 1, 1},
                                                 {0, 0, 1, 1},
                                                 {0, 0, 1, 0},
                                                 {0, 0, 1, 0}}));
    // A slit of 2, none of them whole: three passes over the one.
    EXPECT_EQ(Areas(Plan(6, {}, {1, 1})), (Rects{{0, 0, 1, 1}, {0, 1, 1, 1}, {0, 2, 1, 1}}));
}

TEST(EffectPlan, SlitsOfAPictureWithFewerPixelsThanSlits) {
    const auto rows = [](std::initializer_list<int> places) {
        Rects areas;
        for (const int y : places) {
            areas.push_back({0, y, 9, 1});
        }
        return areas;
    };
    EXPECT_EQ(Areas(Plan(6, {}, {9, 7})), rows({0, 2, 4, 6, 1, 3, 5, 7, 2, 4, 6, 8}));
    EXPECT_EQ(Areas(Plan(6, {}, {9, 7}, true)), rows({2, 4, 6, 8, 1, 3, 5, 7, 0, 2, 4, 6}))
        << "erasing goes through the passes from the last to the first";
}

TEST(EffectPlan, UprightSlits) {
    // Slit of 22 / 10 = 2, eleven of them, and one beyond the edge.
    const Rects areas = Areas(Plan(7, {}, {22, 3}));
    ASSERT_EQ(areas.size(), 3u * 12);
    EXPECT_EQ(areas[0], (Rect{0, 0, 1, 3}));
    EXPECT_EQ(areas[11], (Rect{22, 0, 1, 3}));
    EXPECT_EQ(areas[12], (Rect{1, 0, 1, 3}));
    EXPECT_EQ(areas[35], (Rect{24, 0, 1, 3}));
}

TEST(EffectPlan, EveryGeometryAtEverySizeAndSpeed) {
    struct Steps {
        int speed, rows, columns, centre, slits;
    };
    for (const Steps& steps : {Steps{-999, 1, 1, 1, 1}, Steps{6, 1, 1, 1, 1}, Steps{7, 1, 1, 2, 1},
                               Steps{8, 2, 3, 3, 2}, Steps{9, 3, 4, 4, 3}, Steps{10, 4, 6, 5, 4}}) {
        for (const Size size : {Size{1, 1}, Size{1, 50}, Size{50, 1}, Size{3, 2}, Size{5, 3},
                                Size{33, 20}, Size{40, 31}, Size{64, 7}}) {
            for (int number = 0; number < 8; ++number) {
                const int step = number < 2   ? steps.rows
                                 : number < 4 ? steps.columns
                                 : number < 6 ? steps.centre
                                              : steps.slits;
                for (const bool erasing : {false, true}) {
                    EXPECT_EQ(Areas(Plan(number, {.speed = steps.speed}, size, erasing)),
                              RuleAreas(number, step, erasing, size, 10))
                        << number << " at " << steps.speed << ", " << size.width << "x"
                        << size.height;
                }
            }
        }
    }
}

TEST(EffectPlan, MosaicBlocksAtRandom) {
    // 20 by 33 in fives: blocks of 4 by 6, 5 columns and 5 rows, and one more of each at random.
    Numbers numbers{{0, 0, 0.999, 0.999, 0.5, 0.34, 0.166, 0.167}};
    const EffectPlan plan =
        PlanEffect(8, {.blocks = 5}, false, {20, 33}, kCanvas, [&numbers] { return numbers(); });
    ASSERT_EQ(plan.bands.size(), 100u);
    EXPECT_EQ(numbers.drawn, 200);
    EXPECT_EQ(plan.bands[0].area, (Rect{0, 0, 4, 6}));
    EXPECT_EQ(plan.bands[1].area, (Rect{20, 30, 4, 6}));
    EXPECT_EQ(plan.bands[2].area, (Rect{12, 12, 4, 6}));
    EXPECT_EQ(plan.bands[3].area, (Rect{0, 6, 4, 6}));
    EXPECT_TRUE(plan.wholeAtEnd);
}

TEST(EffectPlan, MosaicOfAPictureSmallerThanItsBlocks) {
    // Blocks of 2 by 2; 3 / 2 = 1 column and 7 / 2 = 3 rows, and one more of each.
    Numbers numbers{{0.49, 0.99, 0.5, 0.74}};
    const EffectPlan plan =
        PlanEffect(8, {.blocks = 100}, true, {3, 7}, kCanvas, [&numbers] { return numbers(); });
    ASSERT_EQ(plan.bands.size(), 40000u);
    EXPECT_EQ(plan.bands[0].area, (Rect{0, 6, 2, 2}));
    EXPECT_EQ(plan.bands[1].area, (Rect{2, 4, 2, 2}));
}

TEST(EffectPlan, WhatIsNoEffectDrawsNothing) {
    for (const int number : {-1, 9, 10, 11, 12, 32767, -32768}) {
        EXPECT_TRUE(Plan(number, {}, {10, 10}).bands.empty()) << number;
    }
    for (int number = 0; number < kEffectCount; ++number) {
        EXPECT_TRUE(Plan(number, {}, {0, 0}).bands.empty()) << number;
    }
}

TEST(EffectPlan, SettingsBeyondTheirRangeAreTakenAsTheNearest) {
    Numbers numbers;
    const auto random = [&numbers] { return numbers(); };
    EXPECT_EQ(PlanEffect(8, {.blocks = 32767}, false, {90, 90}, kCanvas, random).bands.size(),
              40000u);
    EXPECT_EQ(PlanEffect(8, {.blocks = -5}, false, {90, 90}, kCanvas, random).bands.size(), 4u);
    EXPECT_EQ(Areas(Plan(6, {.slits = 0}, {3, 30})), Areas(Plan(6, {.slits = 1}, {3, 30})));
    EXPECT_EQ(Areas(Plan(6, {.slits = 9999}, {3, 500})), Areas(Plan(6, {.slits = 100}, {3, 500})));
    EXPECT_EQ(Plan(0, {.speed = -32768}, {3, 3}).bands[0].after,
              Plan(0, {.speed = -999}, {3, 3}).bands[0].after);
    EXPECT_EQ(Areas(Plan(0, {.speed = 32767}, {3, 30})), (Rects{{0, 0, 3, 32761}}));
}

/// Pauses before and after the first band of a 100 by 100 picture.
std::pair<double, double> FirstPauses(int number, const EffectSettings& settings) {
    Numbers numbers;
    const EffectPlan plan =
        PlanEffect(number, settings, false, {100, 100}, kCanvas, [&numbers] { return numbers(); });
    return {plan.bands.at(0).before, plan.bands.at(0).after};
}

TEST(EffectPauses, ByTheDefaultSpeed) {
    // A turn is 2.5 microseconds: 37 × 10 × 2 turns, 0.7 of them, 37 × 15 × 2, 37 × 6 × 2 for the
    // pass and again for the slit, 7000 × 1.08^40 / 10^2.1 = 1207.9.
    const double expected[9][2] = {{0, 1.85},  {0, 1.85}, {0, 1.295}, {0, 1.295}, {2.775, 0},
                                   {2.775, 0}, {2.22, 0}, {2.22, 0},  {3.0175, 0}};
    for (int number = 0; number < kEffectCount; ++number) {
        const auto [before, after] = FirstPauses(number, {});
        EXPECT_NEAR(before, expected[number][0], 1e-9) << number;
        EXPECT_NEAR(after, expected[number][1], 1e-9) << number;
    }
}

TEST(EffectPauses, FromSpeedSevenOnlyTheMosaicPauses) {
    for (const int speed : {7, 8, 10}) {
        for (int number = 0; number < 8; ++number) {
            EXPECT_EQ(FirstPauses(number, {.speed = speed}), std::make_pair(0.0, 0.0)) << number;
        }
    }
    // 7000 × 1.08^3 / 10^2.1 = 70.04 turns; with 100 blocks at full speed 0.44, which is none.
    EXPECT_NEAR(FirstPauses(8, {.speed = 7}).first, 0.175, 1e-9);
    EXPECT_EQ(FirstPauses(8, {.speed = 10, .blocks = 100}).first, 0);
}

TEST(EffectPauses, AtTheSlowestSpeed) {
    EXPECT_NEAR(FirstPauses(0, {.speed = -999}).second, 50.3, 1e-9);
    EXPECT_NEAR(FirstPauses(4, {.speed = -999}).first, 75.45, 1e-9);
    EXPECT_GT(FirstPauses(8, {.speed = -999}).first, 1e20) << "nobody waits for this one";
}

TEST(EffectPauses, TheMosaicsUnitShortensItsOwn) {
    EXPECT_NEAR(FirstPauses(8, {.mosaicDelay = 3}).first, 1.8925, 1e-9);  // 1207.9 - 450
    EXPECT_EQ(FirstPauses(8, {.mosaicDelay = 9}).first, 0);
    EXPECT_NEAR(FirstPauses(0, {.mosaicDelay = 9}).second, 1.85, 1e-9);
}

TEST(EffectPauses, InFixedMode) {
    const double expected[9][2] = {{0, 1}, {0, 1}, {0, 1}, {0, 1}, {2, 0},
                                   {2, 0}, {1, 0}, {1, 0}, {1, 0}};
    for (int number = 0; number < kEffectCount; ++number) {
        const auto [before, after] = FirstPauses(number, {.fixedSpeed = true});
        EXPECT_EQ(before, expected[number][0]) << number;
        EXPECT_EQ(after, expected[number][1]) << number;
    }
}

TEST(EffectPauses, OfTheFixedMosaicEndAfterAQuarter) {
    Numbers numbers;
    const EffectPlan plan = PlanEffect(8, {.fixedSpeed = true}, false, {100, 100}, kCanvas,
                                       [&numbers] { return numbers(); });
    ASSERT_EQ(plan.bands.size(), 400u);
    EXPECT_EQ(plan.bands[99].before, 1);
    EXPECT_EQ(plan.bands[100].before, 0);
    EXPECT_EQ(plan.Length(), 100);
}

double LengthOn(Size screen, int number, Size picture, const EffectSettings& settings = {}) {
    const Rect canvas{(picture.width - screen.width) / 2, (picture.height - screen.height) / 2,
                      screen.width, screen.height};
    return PlanEffect(number, settings, false, picture, canvas, NoRandom).Length();
}

TEST(EffectPlan, NominalLengths) {
    const Size fullHd{1920, 1080};
    // The last band lies below the screen, or beside it.
    EXPECT_NEAR(LengthOn(fullHd, 0, fullHd), 1080 * 1.85, 1e-6);
    EXPECT_NEAR(LengthOn(fullHd, 1, fullHd), 1080 * 1.85, 1e-6);
    EXPECT_NEAR(LengthOn(fullHd, 2, fullHd), 1920 * 1.295, 1e-6);
    // 1920 / 1080 is one column a cycle: 960 moves and the cycle that moves nothing.
    EXPECT_NEAR(LengthOn(fullHd, 4, fullHd), (960 + 1) * 2.775, 1e-6);
    EXPECT_NEAR(LengthOn(fullHd, 5, fullHd), (960 + 1) * 2.775, 1e-6);
    // 109 passes, each with a pause of its own, over 10 slits and one below the screen; the last
    // band of the tenth lies there as well.
    EXPECT_NEAR(LengthOn(fullHd, 6, fullHd), (109 * 11 - 1) * 1.11, 1e-6);
}

TEST(EffectPlan, ATallScreenTakesNoLonger) {
    // Twice the lines of half the pause, in either speed mode.
    const Size tall{3840, 2160};
    EXPECT_NEAR(LengthOn(tall, 0, tall), 2160 * 0.925, 1e-6);
    EXPECT_NEAR(LengthOn(tall, 3, tall), 3840 * 0.6475, 1e-6);
    EXPECT_NEAR(LengthOn(tall, 4, tall), (1920 + 1) * 1.3875, 1e-6);
    EXPECT_NEAR(LengthOn(tall, 0, tall, {.fixedSpeed = true}), 2160 * 0.5, 1e-6);
    EXPECT_NEAR(LengthOn(tall, 5, tall, {.fixedSpeed = true}), (1920 + 1) * 1.0, 1e-6);
    // A small picture as well: relative speeds stay.
    EXPECT_NEAR(LengthOn(tall, 0, {100, 50}), 51 * 0.925, 1e-6);
    Numbers numbers;
    EXPECT_NEAR(
        PlanEffect(8, {}, false, {100, 100}, {0, 0, 3840, 2160}, [&numbers] { return numbers(); })
            .Length(),
        400 * 3.0175 / 2, 1e-6);
}

TEST(EffectPlan, ALowScreenHasFullPauses) {
    const Size low{1280, 720};
    EXPECT_NEAR(LengthOn(low, 0, low), 720 * 1.85, 1e-6);
    EXPECT_NEAR(LengthOn(low, 2, low), 1280 * 1.295, 1e-6);
    EXPECT_NEAR(LengthOn({1280, 1079}, 0, {10, 10}), 11 * 1.85, 1e-6);
    EXPECT_NEAR(LengthOn({1280, 1081}, 0, {10, 10}), 11 * 1.85 * 1080 / 1081, 1e-6);
}

TEST(EffectPlan, RowsBeyondTheScreenCostNothing) {
    // A picture of 3:4 fitted to the width: 2560 rows, of which 1080 are on the screen.
    const Size fullHd{1920, 1080};
    const Size high{1920, 2560};
    EXPECT_NEAR(LengthOn(fullHd, 0, high), 1080 * 1.85, 1e-6);
    EXPECT_NEAR(LengthOn(fullHd, 1, high), 1080 * 1.85, 1e-6);
    EXPECT_NEAR(LengthOn(fullHd, 2, high), 1920 * 1.295, 1e-6);
    // Slits of 256 rows, 257 passes with a pause each. Rows 740 to 1819 are on the screen; those
    // where a slit begins (768, 1024, 1280, 1536, 1792) are drawn twice, as the last row of the
    // slit above as well.
    EXPECT_NEAR(LengthOn(fullHd, 6, high), (1080 + 5 + 257) * 1.11, 1e-6);
    // Where the whole cycle is off the screen: a picture beside it.
    EXPECT_EQ(PlanEffect(4, {}, false, {10, 10}, {50, 0, 1920, 1080}, NoRandom).Length(), 0);
    EXPECT_EQ(PlanEffect(6, {}, false, {10, 10}, {50, 0, 1920, 1080}, NoRandom).Length(), 0);
}

TEST(EffectPlan, BandsBeyondTheScreenAreDrawnAllTheSame) {
    EXPECT_EQ(Areas(PlanEffect(0, {}, false, {5, 40}, {0, 10, 5, 20}, NoRandom)),
              Areas(Plan(0, {}, {5, 40})));
}

TEST(EffectPlan, BlocksBeyondTheScreenCostNothing) {
    // Blocks of 10 by 10; numbers alternate between the first column and the last one, off the
    // screen, in the first row.
    Numbers numbers{{0, 0, 0.999, 0, 0, 0, 0.999, 0}};
    const EffectPlan plan =
        PlanEffect(8, {}, false, {100, 100}, {0, 0, 100, 100}, [&numbers] { return numbers(); });
    EXPECT_NEAR(plan.bands[0].before, 3.0175, 1e-9);
    EXPECT_EQ(plan.bands[1].before, 0);
    EXPECT_NEAR(plan.bands[2].before, 3.0175, 1e-9);
    EXPECT_EQ(plan.bands[3].before, 0);
    EXPECT_NEAR(plan.Length(), 398 * 3.0175, 1e-6);
}

}  // namespace
}  // namespace picture
