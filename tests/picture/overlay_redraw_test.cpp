// A picture that was processed is shown again.
#include <gtest/gtest.h>

#include <QImage>

#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/posix_files.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "overlay_support.h"
#include "posix/temporary_folder.h"

namespace picture {
namespace {

/// A picture of 20 × 10 pixels stands at (40, 25), and was made grey in the control.
struct Processed : Collage {
    explicit Processed(int16_t mode) : Collage(mode) {
        Add(20, 10, "306090");
        Step(1);
        windows.form4.Lead1.imaging->GrayScale();
        for (model::PictureBox* layer : Layers()) {
            layer->canvas.FillRect({0, 0, 5, 5}, 0x0000FF);
        }
    }
};

constexpr platform::Pixel kGray = 0xFF606060u, kMark = 0xFFFF0000u;

TEST(Redraw, ReachesTheHolderThePreviewAndAllLayers) {
    Processed at(1);
    const platform::BitmapPtr before = at.state.EffectDc;
    RedrawProcessedPicture(at.app);
    ASSERT_NE(at.holder.Picture(), nullptr);
    EXPECT_EQ(at.holder.Picture()->pixels, std::vector<platform::Pixel>(200, kGray));
    EXPECT_EQ(at.form1.Picture1.Picture(), at.holder.Picture());
    EXPECT_EQ(at.state.EffectDc, at.holder.Picture());
    EXPECT_NE(at.state.EffectDc, before);
    EXPECT_EQ(at.state.EffectDcValid, 1);
    for (model::PictureBox* layer : at.Layers()) {
        EXPECT_EQ(at.At(*layer, 40, 25), kGray) << layer->Name();
        EXPECT_EQ(at.At(*layer, 59, 34), kGray);
        EXPECT_NE(at.At(*layer, 39, 25), kGray);
        EXPECT_NE(at.At(*layer, 60, 34), kGray);
        EXPECT_EQ(at.At(*layer, 0, 0), kMark);
    }
}

TEST(Redraw, ClearsTheCanvasOnlyForScreenTextWithoutOverlay) {
    struct Setting {
        int16_t overlayMode, textOriginScreen;
        bool cleared;
    };
    for (const Setting& setting :
         {Setting{0, 1, true}, {0, 0, false}, {1, 1, false}, {4, 1, false}}) {
        Processed at(setting.overlayMode);
        at.state.TextOriginScreen = setting.textOriginScreen;
        RedrawProcessedPicture(at.app);
        EXPECT_EQ(at.OnScreen(0, 0) != kMark, setting.cleared)
            << setting.overlayMode << setting.textOriginScreen;
        EXPECT_EQ(at.At(at.screen.P3, 0, 0), kMark);
        EXPECT_EQ(at.At(at.screen.P4, 0, 0), kMark);
        EXPECT_EQ(at.OnScreen(40, 25), kGray);
    }
}

TEST(Redraw, InTheWindowOnlyThePreviewChanges) {
    Processed at(0);
    at.state.FullScreenActive = 0;
    at.form1.Picture1.canvas.Fill(0x0000FF);
    const int pumps = at.loop.pumps;
    RedrawProcessedPicture(at.app);
    EXPECT_EQ(at.form1.Picture1.canvas.Pixels().Row(0)[0], kGray) << "drawn text is gone";
    EXPECT_EQ(at.OnScreen(40, 25), 0xFF306090u);
    EXPECT_EQ(at.state.EffectDcValid, 0);
    EXPECT_EQ(at.loop.pumps, pumps);
}

TEST(Redraw, WithoutAPictureNothingHappens) {
    Processed at(1);
    at.windows.form4.Lead1.imaging->Clear();
    const platform::BitmapPtr shown = at.holder.Picture();
    RedrawProcessedPicture(at.app);
    EXPECT_EQ(at.holder.Picture(), shown);
    EXPECT_EQ(at.state.EffectDcValid, 1);
}

/// A show of real picture files: the left half of each is mid grey, the right half pure red.
TEST(Redraw, TwoLevelsAreDitheredOnEveryLayer) {
    TemporaryFolder folder;
    posix_adapter::PosixFiles files(folder.Path("program"));
    imaging::QtImaging imaging(files);
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(qRgb(128, 128, 128));
    for (int x = 20; x < 40; ++x) {
        for (int y = 0; y < 20; ++y) {
            image.setPixel(x, y, qRgb(255, 0, 0));
        }
    }
    ASSERT_TRUE(image.save(QString::fromStdString(folder.Path("a.png"))));

    Collage at(3);
    at.windows.form4.Lead1.imaging = imaging.MakeControl();
    at.windows.form4.Lead2.imaging = imaging.MakeControl();
    at.AddSlide(folder.TextPath("a.png"));
    at.StepAt(1, 0, 0);
    at.StepAt(1, 1, 1);
    for (model::PictureBox* layer : at.Layers()) {
        int leftWhites = 0, rightWhites = 0;
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 40; ++x) {
                const platform::Pixel p = at.At(*layer, x, y);
                ASSERT_TRUE(p == kBlack || p == kWhite) << layer->Name() << x << ' ' << y;
                (x < 20 ? leftWhites : rightWhites) += p == kWhite ? 1 : 0;
            }
        }
        // 400 pixels each: half of full brightness, and the 76 of 255 that pure red has. What
        // flows off at the lower edge, or over the border of the halves, is a few pixels.
        EXPECT_NEAR(leftWhites, 201, 12) << layer->Name();
        EXPECT_NEAR(rightWhites, 119, 12);
    }
    EXPECT_EQ(at.OnScreen(60, 40), 0xFF808080u) << "the next picture is not";
    EXPECT_EQ(at.OnScreen(99, 59), 0xFFFF0000u);
}

}  // namespace
}  // namespace picture
