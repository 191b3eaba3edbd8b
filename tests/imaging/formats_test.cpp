// Every kind of file, depth and orientation comes out as the opaque colours that it means.
#include <gtest/gtest.h>

#include "imaging/imaging_support.h"

namespace {

using platform::BitmapPtr;
using platform::Pixel;
using platform::Size;

constexpr Pixel kRed = 0xFFFF0000u, kGreen = 0xFF00FF00u, kBlue = 0xFF0000FFu;
constexpr Pixel kBlack = 0xFF000000u, kWhite = 0xFFFFFFFFu;

class Formats : public ::testing::Test {
protected:
    BitmapPtr Load(const std::string& name, const QByteArray& bytes) {
        const Text path = folder_.Put(name, bytes);
        EXPECT_TRUE(control_->ReadInformation(path)) << name;
        EXPECT_TRUE(control_->Load(path, {})) << name;
        return control_->Picture();
    }
    /// The colours in the middle of the four quarters: top left, top right, and below.
    static void ExpectQuarters(const BitmapPtr& picture, std::array<Pixel, 4> expected,
                               int tolerance) {
        ASSERT_TRUE(picture);
        for (size_t i = 0; i < 4; ++i) {
            const int x = picture->width * (i % 2 == 0 ? 1 : 3) / 4;
            const int y = picture->height * (i < 2 ? 1 : 3) / 4;
            EXPECT_LE(Distance(picture->Row(y)[x], expected[i]), tolerance) << i;
        }
    }

    ImagingFolder folder_;
    std::unique_ptr<platform::ImagingControl> control_ = folder_.Control();
};

TEST_F(Formats, KindsAreToldByContentAndNotByName) {
    const QImage image = Quarters(48, 32);
    for (const char* format : {"png", "bmp", "tiff", "jpg", "webp"}) {
        const QByteArray bytes = Encoded(image, format, 100);
        ASSERT_FALSE(bytes.isEmpty()) << format;
        for (const char* name : {"a.jpg", "a.png", "a.jff", "a.jtf", "a.tga", "noname"}) {
            SCOPED_TRACE(std::string(format) + " as " + name);
            const BitmapPtr picture = Load(name, bytes);
            EXPECT_EQ(control_->HeldSize(), (Size{48, 32}));
            EXPECT_EQ(picture->width, 48);
            EXPECT_EQ(picture->height, 32);
            ExpectQuarters(picture, {kRed, kGreen, kBlue, kBlack}, 6);
        }
    }
}

TEST_F(Formats, Gif) {
    const BitmapPtr picture = Load("a.gif", TinyGif(std::string("\1\2\0\3", 4)));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->pixels, (std::vector<Pixel>{kRed, kGreen, kWhite, kWhite}));
}

TEST_F(Formats, DepthsAreTheFiles) {
    const QImage image = Quarters(16, 16);
    const auto depth = [&](QImage::Format format, const char* kind) {
        Load("depth", Encoded(image.convertToFormat(format), kind));
        return control_->BitsPerPixel();
    };
    EXPECT_EQ(depth(QImage::Format_RGB32, "png"), 24);
    EXPECT_EQ(depth(QImage::Format_ARGB32, "png"), 32);
    EXPECT_EQ(depth(QImage::Format_Grayscale8, "png"), 8);
    EXPECT_EQ(depth(QImage::Format_Mono, "png"), 1);
    EXPECT_EQ(depth(QImage::Format_Mono, "bmp"), 1);
    EXPECT_EQ(depth(QImage::Format_RGB32, "bmp"), 24);
    EXPECT_EQ(depth(QImage::Format_RGB32, "jpg"), 24);
    EXPECT_EQ(depth(QImage::Format_Grayscale8, "jpg"), 8);
    EXPECT_EQ(depth(QImage::Format_Grayscale16, "png"), 16);
}

TEST_F(Formats, SixteenBitsAndGrey) {
    QImage grey(4, 4, QImage::Format_Grayscale16);
    QImage colour(4, 4, QImage::Format_RGBX64);
    grey.fill(QColor::fromRgba64(0x4040, 0x4040, 0x4040));
    colour.fill(QColor::fromRgba64(0x1010, 0x8080, 0xF0F0));
    for (const char* kind : {"png", "tiff"}) {
        SCOPED_TRACE(kind);
        EXPECT_LE(Distance(Load("grey", Encoded(grey, kind))->pixels[5], 0xFF404040u), 1);
        EXPECT_LE(Distance(Load("colour", Encoded(colour, kind))->pixels[5], 0xFF1080F0u), 1);
    }
}

TEST_F(Formats, PalettesAndOneBit) {
    QImage palette(2, 1, QImage::Format_Indexed8);
    palette.setColorTable({qRgb(10, 20, 30), qRgb(200, 100, 50)});
    palette.setPixel(0, 0, 1);
    palette.setPixel(1, 0, 0);
    QImage mono(2, 1, QImage::Format_Mono);
    mono.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    mono.setPixel(0, 0, 1);
    mono.setPixel(1, 0, 0);
    for (const char* kind : {"png", "bmp"}) {
        SCOPED_TRACE(kind);
        EXPECT_EQ(Load("palette", Encoded(palette, kind))->pixels,
                  (std::vector<Pixel>{0xFFC86432u, 0xFF0A141Eu}));
        EXPECT_EQ(Load("mono", Encoded(mono, kind))->pixels, (std::vector<Pixel>{kBlue, kRed}));
    }
}

TEST_F(Formats, AlphaLiesOverWhite) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(255, 0, 0, 0));
    image.setPixel(1, 0, qRgba(0, 0, 0, 128));
    image.setPixel(2, 0, qRgba(0, 0, 255, 255));
    for (const char* kind : {"png", "tiff"}) {
        SCOPED_TRACE(kind);
        const BitmapPtr picture = Load("alpha", Encoded(image, kind));
        EXPECT_EQ(picture->pixels[0], kWhite);
        EXPECT_LE(Distance(picture->pixels[1], 0xFF7F7F7Fu), 1);
        EXPECT_EQ(picture->pixels[2], kBlue);
    }
}

TEST_F(Formats, InksBecomeColours) {
    // Stored inverted: no cyan left out means red is gone.
    const BitmapPtr jpeg = Load("inks.jpg", FlatJpeg(16, 8, "\x01\xFF\xFF\xFF"));
    EXPECT_LE(Distance(jpeg->Row(3)[3], 0xFF00FFFFu), 3);
    const BitmapPtr dark = Load("dark.jpg", FlatJpeg(8, 8, "\xFF\xFF\xFF\x80"));
    EXPECT_LE(Distance(dark->Row(3)[3], 0xFF808080u), 3);
    const BitmapPtr tiff = Load("inks.tif", CmykTiff(2, 1, std::string("\xFF\0\0\0\0\xFF\0\0", 8)));
    EXPECT_LE(Distance(tiff->pixels[0], 0xFF00FFFFu), 3);
    EXPECT_LE(Distance(tiff->pixels[1], 0xFFFF00FFu), 3);
}

TEST_F(Formats, GreyJpeg) {
    const BitmapPtr picture = Load("grey.jpg", FlatJpeg(20, 12, "\x60"));
    EXPECT_LE(Distance(picture->Row(11)[19], 0xFF606060u), 1);
}

/// What must stand in the four quarters after turning, from red, green / blue, black as stored.
struct Turn {
    int orientation;
    std::array<Pixel, 4> quarters;
    bool sideways;
};
constexpr Turn kTurns[] = {
    {1, {kRed, kGreen, kBlue, kBlack}, false}, {2, {kGreen, kRed, kBlack, kBlue}, false},
    {3, {kBlack, kBlue, kGreen, kRed}, false}, {4, {kBlue, kBlack, kRed, kGreen}, false},
    {5, {kRed, kBlue, kGreen, kBlack}, true},  {6, {kBlue, kRed, kBlack, kGreen}, true},
    {7, {kBlack, kGreen, kBlue, kRed}, true},  {8, {kGreen, kBlack, kRed, kBlue}, true},
};

TEST_F(Formats, OrientationIsApplied) {
    const QByteArray jpeg = Encoded(Quarters(64, 32), "jpg", 100);
    for (const Turn& turn : kTurns) {
        SCOPED_TRACE(turn.orientation);
        const Size own = turn.sideways ? Size{32, 64} : Size{64, 32};
        const Text path = folder_.Put("turned.jpg", WithOrientation(jpeg, turn.orientation));
        ASSERT_TRUE(control_->Load(path, {}));
        EXPECT_EQ(control_->HeldSize(), own);
        ExpectQuarters(control_->Picture(), turn.quarters, 6);
        // The same decoded scaled.
        Size asked;
        const auto half = [&](Size size) {
            asked = size;
            return Size{size.width / 2, size.height / 2};
        };
        ASSERT_TRUE(control_->Load(path, half));
        EXPECT_EQ(asked, own);
        EXPECT_EQ(control_->HeldSize(), own);
        control_->Resize(own.width / 2, own.height / 2, 0);
        const BitmapPtr scaled = control_->Picture();
        EXPECT_EQ(scaled->width, own.width / 2);
        EXPECT_EQ(scaled->height, own.height / 2);
        ExpectQuarters(scaled, turn.quarters, 12);
    }
}

TEST_F(Formats, TiffOrientationIsApplied) {
    // Top right quarter first: the same bytes with the orientation entry of a turn by 90 degrees.
    QByteArray tiff = CmykTiff(2, 1, std::string("\xFF\0\0\0\0\xFF\0\0", 8));
    // The entry for the planes (0x11C) is at place 9; turned into 0x112 it must keep its order.
    const qsizetype entries = 8 + 2;
    QByteArray entry = tiff.mid(entries + 9 * 12, 12);
    entry[1] = '\x12';
    entry[9] = '\x06';
    tiff.remove(entries + 9 * 12, 12);
    tiff.insert(entries + 6 * 12, entry);
    const BitmapPtr picture = Load("turned.tif", tiff);
    ASSERT_EQ(picture->width, 1);
    ASSERT_EQ(picture->height, 2);
    EXPECT_LE(Distance(picture->pixels[0], 0xFF00FFFFu), 3);
    EXPECT_LE(Distance(picture->pixels[1], 0xFFFF00FFu), 3);
}

TEST_F(Formats, DrawingsAreSharpAtEverySize) {
    const QByteArray svg =
        "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>"
        "<rect x='0' y='0' width='20' height='20' fill='#ff0000'/></svg>";
    const BitmapPtr own = Load("drawing.txt", svg);
    EXPECT_EQ(control_->HeldSize(), (Size{40, 20}));
    EXPECT_EQ(own->Row(10)[19], kRed);
    EXPECT_EQ(own->Row(10)[20], kWhite);
    const Text path = folder_.Put("drawing.svg", svg);
    ASSERT_TRUE(control_->Load(path, [](Size) { return Size{400, 200}; }));
    EXPECT_EQ(control_->HeldSize(), (Size{40, 20}));
    control_->Resize(400, 200, 0);
    EXPECT_EQ(control_->Picture()->Row(100)[199], kRed);
    EXPECT_EQ(control_->Picture()->Row(100)[200], kWhite);
    control_->Resize(800, 400, 0);
    EXPECT_EQ(control_->Picture()->Row(200)[399], kRed);
    EXPECT_EQ(control_->Picture()->Row(200)[400], kWhite);
}

}  // namespace
