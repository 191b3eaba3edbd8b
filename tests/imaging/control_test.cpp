// What a control holds, and when it decodes.
#include <gtest/gtest.h>

#include "imaging/imaging_support.h"

namespace {

using platform::BitmapPtr;
using platform::Pixel;
using platform::Size;

constexpr Pixel kRed = 0xFFFF0000u, kBlack = 0xFF000000u, kWhite = 0xFFFFFFFFu;

class Control : public ::testing::Test {
protected:
    Text PutJpeg(int width, int height) {
        return folder_.Put("a.jpg", Encoded(Quarters(width, height), "jpg", 95));
    }
    static platform::FitFunction Fit(int width, int height) {
        return [=](Size) { return Size{width, height}; };
    }

    ImagingFolder folder_;
    std::unique_ptr<platform::ImagingControl> control_ = folder_.Control();
};

TEST_F(Control, VersionEndsInItsNumber) {
    EXPECT_EQ(text::Right(folder_.Imaging().VersionText(), 4), u"1997");
}

TEST_F(Control, HoldsNothingAtFirstAndAfterAFailure) {
    EXPECT_FALSE(control_->Holds());
    EXPECT_EQ(control_->Picture(), nullptr);
    control_->Resize(5, 5, 0);
    control_->SetColorResolution(1, 1, 1, 0);
    EXPECT_FALSE(control_->Holds());
    ASSERT_TRUE(control_->Load(PutJpeg(64, 32), {}));
    EXPECT_FALSE(control_->ReadInformation(folder_.Folder().TextPath("none")));
    EXPECT_TRUE(control_->Holds());
    EXPECT_FALSE(control_->Load(folder_.Folder().TextPath("none"), {}));
    EXPECT_FALSE(control_->Holds());
    EXPECT_EQ(control_->HeldSize(), Size());
}

TEST_F(Control, ResizeToTheFittedSizeCostsNothing) {
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(100, 50)));
    EXPECT_EQ(control_->HeldSize(), (Size{400, 200}));
    std::filesystem::remove(folder_.Folder().Path("a.jpg"));
    control_->Resize(100, 50, 0);
    const BitmapPtr fitted = control_->Picture();
    ASSERT_EQ(fitted->width, 100);
    control_->Resize(100, 50, 0);
    EXPECT_EQ(control_->Picture(), fitted);
}

TEST_F(Control, CountsAsOneSizeAndHasThePixelsOfAnother) {
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(200, 100)));
    control_->ResizeTo({100, 50}, {200, 100});
    EXPECT_EQ(control_->HeldSize(), (Size{100, 50}));
    const BitmapPtr decoded = control_->Picture();
    EXPECT_EQ(decoded->width, 200);
    control_->ResizeTo({100, 50}, {200, 100});
    EXPECT_EQ(control_->Picture(), decoded) << "nothing to do";
    control_->GrayScale();
    EXPECT_EQ(control_->HeldSize(), (Size{100, 50})) << "filters keep it";
    const auto copy = folder_.Control();
    copy->CopyFrom(*control_);
    EXPECT_EQ(copy->HeldSize(), (Size{100, 50}));
    // More pixels than memory is for: left as it is.
    control_->ResizeTo({100, 50}, {2000000, 1000000});
    EXPECT_EQ(control_->Picture()->width, 200);
    control_->ResizeTo({100, 50}, {100, 50});
    EXPECT_EQ(control_->Picture()->width, 100);
    control_->Resize(30, 20, 0);
    EXPECT_EQ(control_->HeldSize(), (Size{30, 20}));
}

TEST_F(Control, DecodesWholeOnDemand) {
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(20, 10)));
    const BitmapPtr whole = control_->Picture();
    ASSERT_EQ(whole->width, 400);
    // Sharp at the border of two quarters, which 20 × 10 pixels could not tell.
    EXPECT_LE(Distance(whole->Row(50)[195], kRed), 40);
    EXPECT_GE(Distance(whole->Row(50)[205], kRed), 200);
    control_->Load(PutJpeg(400, 200), Fit(20, 10));
    control_->Resize(400, 100, 0);
    EXPECT_LE(Distance(control_->Picture()->Row(25)[195], kRed), 40);
}

TEST_F(Control, ScalesUpWhatItHoldsWhenTheFileIsGoneOrAnother) {
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(100, 50)));
    std::filesystem::remove(folder_.Folder().Path("a.jpg"));
    ASSERT_EQ(control_->Picture()->width, 400);
    EXPECT_LE(Distance(control_->Picture()->Row(50)[100], kRed), 12);
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(100, 50)));
    QImage other(400, 200, QImage::Format_RGB32);
    other.fill(Qt::white);
    std::filesystem::remove(folder_.Folder().Path("a.jpg"));
    folder_.Put("a.jpg", Encoded(other, "jpg"));
    EXPECT_LE(Distance(control_->Picture()->Row(50)[100], kRed), 12);
}

TEST_F(Control, IgnoresAnAnswerThatIsNotSmaller) {
    for (const Size answer :
         {Size{}, Size{400, 200}, Size{900, 450}, Size{-3, 9}, Size{100, 900}}) {
        ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(answer.width, answer.height)));
        std::filesystem::remove(folder_.Folder().Path("a.jpg"));
        EXPECT_EQ(control_->HeldSize(), (Size{400, 200}));
        EXPECT_LE(Distance(control_->Picture()->Row(50)[195], kRed), 40);
    }
}

TEST_F(Control, ResizesSmoothlyBothWays) {
    QImage stripes(100, 100, QImage::Format_RGB32);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            stripes.setPixel(x, y, x % 2 == 0 ? kWhite : kBlack);
        }
    }
    ASSERT_TRUE(control_->Load(folder_.Put("a.png", Encoded(stripes, "png")), Fit(10, 10)));
    control_->Resize(10, 10, 0);
    EXPECT_EQ(control_->HeldSize(), (Size{10, 10}));
    // Each pixel covers five white and five black columns.
    EXPECT_LE(Distance(control_->Picture()->Row(5)[5], 0xFF808080u), 3);
    control_->Resize(30, 7, 0);
    EXPECT_EQ(control_->Picture()->width, 30);
    EXPECT_EQ(control_->Picture()->height, 7);
    control_->Resize(0, -5, 0);
    EXPECT_EQ(control_->HeldSize(), (Size{1, 1}));
    control_->Resize(2000000, 2000000, 0);  // more than memory is for: left as it is
    EXPECT_EQ(control_->HeldSize(), (Size{1, 1}));
}

TEST_F(Control, CopiesShareThePixelsAndGoTheirOwnWays) {
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(100, 50)));
    const auto copy = folder_.Control();
    copy->CopyFrom(*control_);
    EXPECT_EQ(copy->HeldSize(), (Size{400, 200}));
    control_->Resize(100, 50, 0);
    copy->Resize(100, 50, 0);
    EXPECT_EQ(copy->Picture(), control_->Picture());
    copy->CopyFrom(*control_);
    copy->Resize(30, 30, 0);
    EXPECT_EQ(control_->HeldSize(), (Size{100, 50}));
    control_->Clear();
    EXPECT_TRUE(copy->Holds());
    EXPECT_FALSE(control_->Holds());
}

TEST_F(Control, CopiesDecodeWholeOnlyOnce) {
    ASSERT_TRUE(control_->Load(PutJpeg(400, 200), Fit(100, 50)));
    const auto copy = folder_.Control();
    copy->CopyFrom(*control_);
    const BitmapPtr whole = control_->Picture();
    std::filesystem::remove(folder_.Folder().Path("a.jpg"));
    EXPECT_EQ(copy->Picture(), whole);
}

TEST_F(Control, TwoLevelsKeepTheBrightnessAndStayTwoLevels) {
    QImage grey(64, 64, QImage::Format_RGB32);
    grey.fill(qRgb(64, 64, 64));
    ASSERT_TRUE(control_->Load(folder_.Put("a.png", Encoded(grey, "png")), {}));
    control_->SetColorResolution(1, 1, 1, 0);
    EXPECT_EQ(control_->BitsPerPixel(), 1);
    const auto whites = [&] {
        int count = 0;
        for (const Pixel p : control_->Picture()->pixels) {
            EXPECT_TRUE(p == kBlack || p == kWhite);
            count += p == kWhite ? 1 : 0;
        }
        return count;
    };
    // A quarter of full brightness; what flows off at the border is lost.
    EXPECT_NEAR(whites(), 64 * 64 * 64 / 255, 64);
    control_->Resize(100, 30, 0);
    EXPECT_NEAR(whites(), 100 * 30 * 64 / 255, 200);
    EXPECT_EQ(control_->BitsPerPixel(), 1);
    control_->SetColorResolution(24, 4, 0, 0);
    EXPECT_EQ(control_->BitsPerPixel(), 24);
    EXPECT_NEAR(whites(), 100 * 30 * 64 / 255, 200);
}

TEST_F(Control, TwoLevelsOfPureColoursAreExact) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixel(1, 0, qRgb(0, 0, 0));
    ASSERT_TRUE(control_->Load(folder_.Put("a.bmp", Encoded(image, "bmp")), {}));
    control_->SetColorResolution(1, 1, 1, 0);
    EXPECT_EQ(control_->Picture()->pixels, (std::vector<Pixel>{kWhite, kBlack, kWhite, kWhite}));
}

}  // namespace
