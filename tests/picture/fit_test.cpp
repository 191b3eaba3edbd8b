#include "picture/fit.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace platform {

void PrintTo(const Size& size, std::ostream* out) {
    *out << size.width << "x" << size.height;
}

}  // namespace platform

namespace picture {
namespace {

using platform::Size;

constexpr Size kStays{0, 0};

struct Case {
    const char* what;
    FitRule rule;
    Size own;
    Size fitted;  // kStays: not scaled
};

/// Full screen of 1920 × 1080 pixels.
FitRule Screen(int16_t sizeAdjust, int16_t overlaySize = 0, double pictureScale = 0,
               double randomFactor = 0) {
    FitRule rule;
    rule.fullScreen = true;
    rule.sizeAdjust = sizeAdjust;
    rule.overlaySize = overlaySize;
    rule.pictureScale = pictureScale;
    rule.randomFactor = randomFactor;
    rule.areaTwips = {28800, 16200};
    return rule;
}

/// Preview of 800 × 450 pixels.
FitRule Preview(int16_t sizeAdjust) {
    FitRule rule;
    rule.sizeAdjust = sizeAdjust;
    rule.areaTwips = {12000, 6750};
    return rule;
}

FitRule WithOverlay(FitRule rule, int16_t mode, int16_t size, double scale = 0) {
    rule.overlayMode = mode;
    rule.overlaySize = size;
    rule.pictureScale = scale;
    return rule;
}

FitRule WithArea(FitRule rule, Size twips) {
    rule.areaTwips = twips;
    return rule;
}

void Check(const std::vector<Case>& cases) {
    for (const Case& one : cases) {
        EXPECT_EQ(FittedSize(one.rule, one.own).value_or(kStays), one.fitted) << one.what;
    }
}

TEST(FitFullScreen, InsideTheScreen) {
    Check({
        {"height binds", Screen(0), {4000, 3000}, {1440, 1080}},
        {"width binds", Screen(0), {3840, 1080}, {1920, 540}},
        {"same proportions", Screen(0), {3840, 2160}, {1920, 1080}},
        {"one pixel too wide", Screen(0), {1921, 1080}, {1920, 1079}},
        {"one pixel too high", Screen(0), {1920, 1081}, {1918, 1080}},
        {"exactly the screen", Screen(0), {1920, 1080}, kStays},
        {"smaller", Screen(0), {640, 480}, kStays},
        {"one pixel", Screen(0), {1, 1}, kStays},
    });
}

TEST(FitFullScreen, ToTheWidthMayRunOverTheBottom) {
    Check({
        {"runs over", Screen(1), {4000, 3000}, {1920, 1440}},
        {"tall: the width counts, even upwards", Screen(1), {1000, 3000}, {1920, 5760}},
        {"wide", Screen(1), {3840, 1080}, {1920, 540}},
        {"fits and stays", Screen(1), {800, 600}, kStays},
    });
}

TEST(FitFullScreen, NoAdjustmentWinsOverEverything) {
    Check({
        {"plain", Screen(2), {4000, 3000}, kStays},
        {"overlay", WithOverlay(Screen(2), 1, 1), {4000, 3000}, kStays},
        {"macro's scale", WithOverlay(Screen(2), 1, 0, 0.5), {4000, 3000}, kStays},
    });
}

TEST(FitFullScreen, ShareOfTheScreen) {
    Check({
        {"100 %", Screen(0, 0), {4000, 3000}, {1440, 1080}},
        {"80 %", Screen(0, 1), {4000, 3000}, {1152, 864}},
        {"60 %", Screen(0, 2), {4000, 3000}, {864, 648}},
        {"40 %", Screen(0, 3), {4000, 3000}, {576, 432}},
        {"20 %", Screen(0, 4), {4000, 3000}, {288, 216}},
        {"20 %, to the width", Screen(1, 4), {4000, 3000}, {384, 288}},
        {"20 %, fits", Screen(0, 4), {384, 216}, kStays},
        {"20 %, one pixel too high", Screen(0, 4), {300, 217}, {299, 216}},
        {"drawn, lowest: a fifth", Screen(0, 5, 0, 0.0), {4000, 3000}, {288, 216}},
        {"drawn, 0.6: a half", Screen(0, 5, 0, 0.6), {4000, 3000}, {720, 540}},
        {"no limit", Screen(0, 6), {4000, 3000}, kStays},
        {"no limit, to the width", Screen(1, 6), {4000, 3000}, kStays},
        {"the share holds without overlay too",
         WithOverlay(Screen(0), 0, 2),
         {4000, 3000},
         {864, 648}},
        {"and with it", WithOverlay(Screen(0), 4, 2), {4000, 3000}, {864, 648}},
    });
}

TEST(FitFullScreen, MacroScaleReplacesTheShare) {
    Check({
        {"half", Screen(0, 0, 0.5), {4000, 3000}, {720, 540}},
        {"half, whatever the share", Screen(0, 4, 0.5), {4000, 3000}, {720, 540}},
        {"half, whatever was drawn", Screen(0, 5, 0.5, 0.9), {4000, 3000}, {720, 540}},
        {"double", Screen(0, 0, 2.0), {4000, 3000}, {2880, 2160}},
        {"double never enlarges", Screen(0, 0, 2.0), {1920, 1080}, kStays},
        {"no limit stays no limit", Screen(0, 6, 0.5), {4000, 3000}, kStays},
        // 28800 × 0.3336 = 9607.68 twips: whole twips are 640.47 pixels, not 640.51.
        {"limits are whole twips", Screen(0, 0, 0.3336), {2000, 500}, {640, 160}},
    });
}

TEST(FitPreview, InsideTheWidthAndNever) {
    Check({
        {"inside, width binds", Preview(0), {1600, 600}, {800, 300}},
        {"inside, height binds", Preview(0), {900, 900}, {450, 450}},
        {"inside, fits", Preview(0), {400, 300}, kStays},
        {"inside, exact", Preview(0), {800, 450}, kStays},
        {"inside, one pixel too wide", Preview(0), {801, 450}, {800, 449}},
        {"width, down", Preview(1), {1600, 600}, {800, 300}},
        {"width, up", Preview(1), {400, 300}, {800, 600}},
        {"width, always", Preview(1), {800, 450}, {800, 450}},
        {"width, one pixel", Preview(1), {1, 1}, {800, 800}},
        {"never", Preview(2), {1600, 600}, kStays},
        {"never, small", Preview(2), {1, 1}, kStays},
    });
}

TEST(FitPreview, KnowsNoShareAndNoMacroScale) {
    Check({
        {"share", WithOverlay(Preview(0), 1, 4), {1600, 600}, {800, 300}},
        {"no limit", WithOverlay(Preview(0), 1, 6), {1600, 600}, {800, 300}},
        {"macro's scale", WithOverlay(Preview(0), 0, 0, 0.1), {1600, 600}, {800, 300}},
        {"overlay alone does not scale", WithOverlay(Preview(2), 4, 1), {1600, 600}, kStays},
    });
}

TEST(FitRounding, NearestPixelTiesToEven) {
    Check({
        {"1080.5 down", Screen(1), {3840, 2161}, {1920, 1080}},
        {"1081.5 up", Screen(1), {3840, 2163}, {1920, 1082}},
        {"12007 twips are 800.47 pixels",
         WithArea(Preview(1), {12007, 6750}),
         {1600, 600},
         {800, 300}},
        {"12008 twips are 800.53 pixels",
         WithArea(Preview(1), {12008, 6750}),
         {1600, 600},
         {801, 300}},
    });
}

TEST(FitRounding, ExtremeShapes) {
    Check({
        {"a line: at least one pixel high", Screen(0), {40000, 10}, {1920, 1}},
        {"a column: at least one pixel wide", Screen(0), {10, 40000}, {1, 1080}},
        {"a column to the width passes 16 bits", Screen(1), {10, 40000}, kStays},
        {"highest of 16 bits", Screen(1), {1920, 32767}, {1920, 32767}},
        {"one more", Screen(1), {1920, 32768}, kStays},
        {"32766.5 rounds down to even", Screen(1), {3840, 65533}, {1920, 32766}},
        {"32767.5 rounds up and out", Screen(1), {3840, 65535}, kStays},
        {"no picture", Screen(0), {0, 0}, kStays},
        {"no preview", WithArea(Preview(1), {0, 0}), {100, 100}, kStays},
    });
}

}  // namespace
}  // namespace picture
