// The full-screen canvas in 1080 lines: its size, pictures and effects on it.
#include <gtest/gtest.h>

#include "model/picture_controls.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effects.h"
#include "picture/load.h"
#include "picture/overlay.h"
#include "picture/screen.h"
#include "support/fake_platform.h"

namespace picture {
namespace {

using platform::Size;

struct Lines : testing::Test, fakes::FakePlatform {
    model::ShowState& state = app.state;
    platform::Canvas& canvas = app.windows.slidescreen.P2.canvas;

    Lines() {
        app.platform.settings.canvasOf1080Lines = true;
        state.SizeAdjust = 0;
    }

    void GoFullScreen(Size monitor) {
        monitors.monitors = {{0, 0, monitor.width, monitor.height}};
        app.windows.slidescreen.Width = monitor.width * platform::kTwipsPerPixel;
        app.windows.slidescreen.Height = monitor.height * platform::kTwipsPerPixel;
        SizeLayers(app);
        state.FullScreenActive = 1;
        state.EffectSpeedFactor = 2;
        state.ShowEffect = 11;
        SizePreview(app);
    }
    void Show(int width, int height) {
        PutPicture(u"C:\\pic\\a.png", width, height);
        state.SlideList.Set(1, u"C:\\pic\\a.png");
        state.SlideListEnd = 2;
        state.SlideIndex = 1;
        imaging.log.clear();
        ASSERT_TRUE(LoadSlidePicture(app));
        CreateEffectContext(app);
        RunShowEffect(app);
    }
    bool Resized(const std::string& line) {
        return std::find(imaging.log.begin(), imaging.log.end(), line) != imaging.log.end();
    }
    Size Holder() {
        const model::PictureBox& box = app.windows.form4.Picture1;
        return {box.ScaleWidth(), box.ScaleHeight()};
    }
    /// The part of the canvas, in pixels, that is not its ground.
    platform::Rect Covered() {
        platform::Rect covered;
        const platform::Bitmap& pixels = canvas.Pixels();
        for (int y = 0; y < pixels.height; ++y) {
            for (int x = 0; x < pixels.width; ++x) {
                if (pixels.Row(y)[x] != 0xFF000000u) {
                    covered = platform::Union(covered, {x, y, 1, 1});
                }
            }
        }
        return covered;
    }
};

TEST_F(Lines, TheCanvasHasThemInTheMonitorsShape) {
    struct Row {
        Size monitor, canvas;
    };
    constexpr Row kRows[] = {
        {{1920, 1080}, {1920, 1080}}, {{3840, 2160}, {1920, 1080}}, {{2560, 1440}, {1920, 1080}},
        {{1366, 768}, {1921, 1080}},  // 1920.9
        {{1080, 1920}, {608, 1080}},  // 607.5
        {{3440, 1440}, {2580, 1080}}, {{800, 600}, {1440, 1080}},   {{1, 2160}, {1, 1080}},
    };
    for (const Row& row : kRows) {
        monitors.monitors = {{0, 0, row.monitor.width, row.monitor.height}};
        EXPECT_EQ(CanvasSize(app), row.canvas) << row.monitor.width;
        EXPECT_EQ(CanvasScale(app).pixels, row.monitor);
    }
    app.platform.settings.canvasOf1080Lines = false;
    monitors.monitors = {{0, 0, 3840, 2160}};
    EXPECT_EQ(CanvasSize(app), (Size{3840, 2160}));
}

TEST_F(Lines, LayersCoverTheWindowPixelByPixel) {
    GoFullScreen({1366, 768});
    EXPECT_EQ(app.windows.slidescreen.P3.ScaleWidth(), 1921);
    EXPECT_EQ(app.windows.slidescreen.P3.Width(), 1921 * 15);
    EXPECT_EQ(app.windows.slidescreen.P3.canvas.Pixels().width, 1366);
    EXPECT_EQ(app.windows.slidescreen.P3.canvas.Pixels().height, 768);
}

TEST_F(Lines, APictureIsFittedInLinesAndMadeInPixels) {
    GoFullScreen({3840, 2160});
    Show(3000, 2000);
    EXPECT_TRUE(Resized("resize 1620 1080 to 3240 2160"));
    EXPECT_EQ(Holder(), (Size{1620, 1080}));
    EXPECT_EQ(state.PictureX, 150);
    EXPECT_EQ(Covered(), (platform::Rect{300, 0, 3240, 2160}));
    Show(800, 600);
    EXPECT_TRUE(Resized("resize 800 600 to 1600 1200")) << "a small one is enlarged with all else";
    EXPECT_EQ(Covered(), (platform::Rect{1120, 480, 1600, 1200}));
}

TEST_F(Lines, ADecoderIsToldThePixels) {
    GoFullScreen({3840, 2160});
    EXPECT_EQ(FitForLoad(app, true)({6000, 4000}), (Size{3240, 2160}));
    EXPECT_EQ(FitForLoad(app, true)({800, 600}), (Size{1600, 1200}));
    EXPECT_EQ(FitForLoad(app, false)({8, 6}), Size()) << "the preview is in pixels";
}

TEST_F(Lines, AMonitorOf1080LinesIsAsWithoutTheSetting) {
    GoFullScreen({1920, 1080});
    Show(3000, 2000);
    EXPECT_TRUE(Resized("resize 1620 1080"));
    EXPECT_TRUE(canvas.Scaling().Plain());
}

TEST_F(Lines, EveryEffectShowsAndErasesThePictureToItsLastPixel) {
    for (const Size monitor : {Size{640, 480}, {341, 256}}) {
        GoFullScreen(monitor);
        state.ShowEffectSpeed = state.EraseEffectSpeed = 7;
        for (int16_t effect = 0; effect < 9; ++effect) {
            canvas.Fill(0);
            state.ShowEffect = state.EraseEffect = effect;
            state.PreviousPictureOnScreen = 0;
            Show(501, 333);
            const platform::Rect place =
                canvas.Scaling().ToPixels(platform::Rect{state.PictureX, state.PictureY, 501, 333});
            EXPECT_EQ(PicturePlace(app), place);
            EXPECT_EQ(Covered(), place) << effect;
            EXPECT_EQ(trace.Of("effect").back().Number("number"), effect);
            state.LastWasVideo = 0;
            state.SlideIndex = 2;
            RunEraseEffect(app);
            EXPECT_TRUE(Covered().Empty()) << effect;
        }
    }
}

TEST_F(Lines, AnEffectGoesThroughTheMonitorsPixels) {
    GoFullScreen({3840, 2160});
    state.ShowEffect = 0;
    state.ShowEffectSpeed = 0;
    state.EffectSpeedFixed = 1;
    Show(1920, 1080);
    int bands = 0;
    canvas.Fill(0);
    canvas.TakeChanged();
    canvas.onChanged = [&] {
        bands += canvas.TakeChanged().height == 1 ? 1 : 0;  // the whole follows at the end
    };
    state.ShowEffect = 0;
    RunShowEffect(app);
    canvas.onChanged = nullptr;
    EXPECT_EQ(bands, 2160);
}

TEST_F(Lines, TheFrameStandsAroundThePicture) {
    GoFullScreen({2560, 1440});
    state.OverlayMode = 1;
    state.OverlayBackText = u"000000";
    Show(301, 201);
    const platform::Scale& scale = canvas.Scaling();
    const int x = state.PictureX, y = state.PictureY;
    const auto at = [&](int unitX, int unitY) {
        return canvas.Pixels().Row(scale.Y(unitY))[scale.X(unitX)];
    };
    EXPECT_EQ(at(x - 2, y + 5), 0xFFFFFFFFu);
    EXPECT_EQ(canvas.Pixels().Row(scale.Y(y + 5))[scale.X(x) - 1], 0xFFFFFFFFu) << "no seam";
    EXPECT_EQ(at(x, y + 5), 0xFF808080u);
    EXPECT_EQ(canvas.Pixels().Row(scale.Y(y + 5))[scale.X(x + 301) - 1], 0xFF808080u);
}

TEST_F(Lines, BackInTheWindowThePictureIsThePreviewsAgain) {
    GoFullScreen({3840, 2160});
    state.SizeAdjust = 2;
    Show(800, 600);
    EXPECT_EQ(app.windows.form4.Picture1.Picture()->width, 1600);
    state.FullScreenActive = 0;
    RefitHeldPicture(app, false);
    EXPECT_EQ(app.windows.form4.Picture1.Picture()->width, 800);
    EXPECT_EQ(Holder(), (Size{800, 600}));
}

TEST_F(Lines, AFilterShowsThePictureInItsPlace) {
    GoFullScreen({2560, 1440});
    Show(301, 201);
    const platform::Rect before = Covered();
    app.windows.form4.Lead1.imaging->GrayScale();
    RedrawProcessedPicture(app);
    EXPECT_EQ(Covered(), before);
    EXPECT_EQ(Holder(), (Size{301, 201}));
}

}  // namespace
}  // namespace picture
