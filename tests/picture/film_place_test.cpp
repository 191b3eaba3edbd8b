// Where films stand.
#include "picture/film_place.h"

#include <gtest/gtest.h>

#include "platform/video.h"

namespace {

using picture::FilmPlace;
using picture::FilmRule;
using picture::PlaceFilm;
using platform::Fitted;
using platform::Rect;
using platform::Size;

constexpr Rect kFullHd{0, 0, 1920, 1080};

TEST(Fitted, TakesTheWholeOfOneSide) {
    EXPECT_EQ(Fitted({960, 540}, {1920, 1080}), (Size{1920, 1080}));
    EXPECT_EQ(Fitted({720, 576}, {1920, 1080}), (Size{1350, 1080}));
    EXPECT_EQ(Fitted({1080, 1920}, {1366, 768}), (Size{432, 768}));
    EXPECT_EQ(Fitted({1920, 800}, {1280, 1024}), (Size{1280, 533}));  // 533.3
    EXPECT_EQ(Fitted({641, 359}, {320, 200}), (Size{320, 179}));      // 179.2
    EXPECT_EQ(Fitted({3, 2}, {1, 1}), (Size{1, 1}));
}

TEST(Fitted, ExtremesKeepAPixel) {
    EXPECT_EQ(Fitted({8192, 1}, {100, 100}), (Size{100, 1}));
    EXPECT_EQ(Fitted({1, 8192}, {100, 100}), (Size{1, 100}));
    EXPECT_EQ(Fitted({1 << 24, 1 << 24}, {7680, 4320}), (Size{4320, 4320}));
    EXPECT_TRUE(Fitted({0, 10}, {100, 100}).Empty());
    EXPECT_TRUE(Fitted({10, 10}, {100, 0}).Empty());
}

TEST(FilmPlace, ASlideInFullScreenHasTheMonitor) {
    for (const Size own : {Size{960, 540}, Size{3840, 2160}, Size{1920, 1080}, Size{}}) {
        const FilmPlace place =
            PlaceFilm({.slide = true, .fullScreen = true, .own = own, .monitor = kFullHd});
        EXPECT_EQ(place.window, kFullHd);
        EXPECT_EQ(place.film, kFullHd);
    }
    const Rect second{1920, 56, 1280, 1024};
    const FilmPlace place =
        PlaceFilm({.slide = true, .fullScreen = true, .own = {720, 1280}, .monitor = second});
    EXPECT_EQ(place.window, second);
    EXPECT_EQ(place.film, (Rect{352, 0, 576, 1024}));  // in the window, not on the desktop
}

TEST(FilmPlace, OwnSizeIsNeitherEnlargedNorCutOff) {
    const auto film = [](Size own) {
        const FilmPlace place = PlaceFilm(
            {.slide = true, .fullScreen = true, .ownSize = true, .own = own, .monitor = kFullHd});
        EXPECT_EQ(place.window, kFullHd);
        return place.film;
    };
    EXPECT_EQ(film({961, 541}), (Rect{479, 269, 961, 541}));
    EXPECT_EQ(film({7680, 4320}), kFullHd);
    EXPECT_EQ(film({1000, 1081}), (Rect{460, 0, 999, 1080}));  // 999.07
    EXPECT_EQ(film({}), kFullHd);
}

TEST(FilmPlace, FromTheMainWindowAtMost80Percent) {
    const auto window = [](Size own) {
        const FilmPlace place = PlaceFilm({.slide = true, .own = own, .monitor = kFullHd});
        EXPECT_EQ(place.film, (Rect{0, 0, place.window.width, place.window.height}));
        return place.window;
    };
    EXPECT_EQ(window({640, 480}), (Rect{640, 300, 640, 480}));
    EXPECT_EQ(window({1536, 864}), (Rect{192, 108, 1536, 864}));
    EXPECT_EQ(window({1537, 864}), (Rect{192, 108, 1536, 863}));  // 863.4
    EXPECT_EQ(window({3840, 2160}), (Rect{192, 108, 1536, 864}));
    EXPECT_EQ(window({1080, 1920}), (Rect{717, 108, 486, 864}));
    EXPECT_EQ(window({}), (Rect{480, 270, 960, 540}));
}

TEST(FilmPlace, BesideASlideAtMostHalf) {
    for (const bool fullScreen : {false, true}) {
        const auto window = [fullScreen](Size own) {
            return PlaceFilm({.slide = false,
                              .fullScreen = fullScreen,
                              .ownSize = true,
                              .own = own,
                              .monitor = {100, 0, 1367, 769}})
                .window;
        };
        EXPECT_EQ(window({320, 240}), (Rect{623, 264, 320, 240}));
        EXPECT_EQ(window({1920, 1080}), (Rect{442, 192, 683, 384}));
        EXPECT_EQ(window({}), (Rect{442, 192, 683, 384}));
    }
}

}  // namespace
