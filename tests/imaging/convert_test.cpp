// One picture file made of another: kind, size, depth, alpha, orientation, colour profile, and
// whole or not at all.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <atomic>
#include <cmath>
#include <filesystem>
#include <utility>

#include "adapters/imaging/exif_date.h"
#include "imaging_support.h"

namespace {

using platform::Conversion;
using platform::Converted;
using platform::Size;

/// Into 40 x 30, never enlarged.
Size Small(Size own) {
    const double factor = std::min(40.0 / own.width, 30.0 / own.height);
    return factor < 1 ? Size{static_cast<int>(std::lround(own.width * factor)),
                             static_cast<int>(std::lround(own.height * factor))}
                      : own;
}

struct Convert : testing::Test {
    ImagingFolder folder;
    platform::FileError error;

    Converted Make(const std::string& from, const std::string& to, Conversion::Kind kind,
                   const platform::FitFunction& fit = {}, const platform::Report& report = {}) {
        return folder.Imaging().Convert(folder.Folder().TextPath(from),
                                        folder.Folder().TextPath(to), {kind, fit}, report, error);
    }
    QImage Read(const std::string& name, const char* format) {
        QImageReader reader(QString::fromStdString(folder.Folder().Path(name)), format);
        reader.setAutoTransform(true);
        return reader.read();
    }
    void ExpectQuarters(const QImage& image, int tolerance) {
        const unsigned expected[] = {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, 0xFF000000u};
        for (int i = 0; i < 4; ++i) {
            const QRgb pixel = image.pixel(image.width() * (i % 2 == 0 ? 1 : 3) / 4,
                                           image.height() * (i < 2 ? 1 : 3) / 4);
            EXPECT_LE(Distance(pixel | 0xFF000000u, expected[i]), tolerance) << i;
        }
    }
};

TEST_F(Convert, IntoEachKindWhateverTheNames) {
    folder.Put("a.tif", Encoded(Quarters(80, 60), "tiff"));
    const struct {
        Conversion::Kind kind;
        const char* format;
    } rows[] = {{Conversion::Bmp, "bmp"}, {Conversion::Jpeg, "jpeg"}, {Conversion::Png, "png"}};
    for (const auto& row : rows) {
        ASSERT_EQ(Make("a.tif", "out", row.kind), Converted::Done) << row.format;
        EXPECT_EQ(Read("out", row.format).size(), QSize(80, 60));
        ExpectQuarters(Read("out", row.format), 10);
        ASSERT_EQ(Make("a.tif", "out", row.kind, Small), Converted::Done) << row.format;
        EXPECT_EQ(Read("out", row.format).size(), QSize(40, 30));
        ExpectQuarters(Read("out", row.format), 10);
    }
}

TEST_F(Convert, AJpegStandsUpright) {
    folder.Put("a.jpg", WithOrientation(Encoded(Quarters(60, 80), "jpg", 95), 6));
    for (const auto& fit : {platform::FitFunction(), platform::FitFunction(Small)}) {
        ASSERT_EQ(Make("a.jpg", "b.jpg", Conversion::Jpeg, fit), Converted::Done);
        const QImage image = Read("b.jpg", "jpeg");
        EXPECT_EQ(image.size(), fit ? QSize(40, 30) : QSize(80, 60));
        // A quarter of a turn to the right: what was at the bottom left is at the top left.
        EXPECT_LE(Distance(image.pixel(10, 7) | 0xFF000000u, 0xFF0000FFu), 6);
        EXPECT_LE(Distance(image.pixel(image.width() - 10, 7) | 0xFF000000u, 0xFFFF0000u), 6);
    }
}

TEST_F(Convert, TheColourProfileIsCarriedOver) {
    QImage image = Quarters(80, 60);
    image.setColorSpace(QColorSpace::AdobeRgb);
    for (const char* source : {"png", "jpg", "tiff"}) {
        folder.Put("a", Encoded(image, source, 100));
        for (const auto& fit : {platform::FitFunction(), platform::FitFunction(Small)}) {
            ASSERT_EQ(Make("a", "b.png", Conversion::Png, fit), Converted::Done);
            EXPECT_EQ(Read("b.png", "png").colorSpace().primaries(),
                      QColorSpace::Primaries::AdobeRgb)
                << source;
            ASSERT_EQ(Make("a", "b.jpg", Conversion::Jpeg, fit), Converted::Done);
            EXPECT_EQ(Read("b.jpg", "jpeg").colorSpace().primaries(),
                      QColorSpace::Primaries::AdobeRgb)
                << source;
        }
    }
}

/// Whatever a source's depth: one colour on the left, another on the right, half seen through.
TEST_F(Convert, EveryDepthIsReducedInItsColours) {
    constexpr QRgb kLeft = 0xFFC86432u, kRight = 0xFF3264C8u, kHalf = 0x80C86432u;
    const auto halves = [](QRgb left, QRgb right) {
        QImage image(800, 600, QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, x < 400 ? left : right);
            }
        }
        return image;
    };
    const auto twoColours = [](QImage::Format format, QRgb left, QRgb right) {
        QImage image(800, 600, format);
        image.setColorTable({left, right});
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, x < 400 ? 0 : 1);
            }
        }
        return image;
    };
    const QRgb grey = 0xFF000000u, white = 0xFFFFFFFFu;
    const struct {
        const char* what;
        QImage image;
        QRgb left, right;
    } rows[] = {
        {"1 bit", twoColours(QImage::Format_Mono, kLeft, kRight), kLeft, kRight},
        {"1 bit, grey", twoColours(QImage::Format_Mono, grey, white), grey, white},
        {"1 bit with alpha", twoColours(QImage::Format_Mono, kHalf, kRight), kHalf, kRight},
        {"palette", twoColours(QImage::Format_Indexed8, kLeft, kRight), kLeft, kRight},
        {"palette with alpha", twoColours(QImage::Format_Indexed8, kHalf, kRight), kHalf, kRight},
        {"24 bits", halves(kLeft, kRight).convertToFormat(QImage::Format_RGB888), kLeft, kRight},
        {"32 bits", halves(kHalf, kRight), kHalf, kRight},
        {"48 bits", halves(kLeft, kRight).convertToFormat(QImage::Format_RGBX64), kLeft, kRight},
        {"64 bits", halves(kHalf, kRight).convertToFormat(QImage::Format_RGBA64), kHalf, kRight},
    };
    for (const auto& row : rows) {
        folder.Put("a.png", Encoded(row.image, "png"));
        ASSERT_EQ(Make("a.png", "b.png", Conversion::Png, Small), Converted::Done) << row.what;
        const QImage image = Read("b.png", "png");
        EXPECT_EQ(image.size(), QSize(40, 30)) << row.what;
        for (const auto& [x, expected] : {std::pair{10, row.left}, std::pair{30, row.right}}) {
            const QRgb seen = image.pixel(x, 15);
            EXPECT_LE(Distance(seen | 0xFF000000u, expected | 0xFF000000u), 3)
                << row.what << " at " << x << ": " << std::hex << seen;
            EXPECT_NEAR(qAlpha(seen), qAlpha(expected), 1) << row.what << " at " << x;
        }
    }
}

/// A BMP has no room for a profile: its colours are what they look like.
TEST_F(Convert, ABmpHasTheColoursOfAPlainScreen) {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(0xFF40A040u);
    image.setColorSpace(QColorSpace::AdobeRgb);
    folder.Put("a.png", Encoded(image, "png"));
    ASSERT_EQ(Make("a.png", "b.bmp", Conversion::Bmp), Converted::Done);
    const QRgb pixel = Read("b.bmp", "bmp").pixel(4, 4);
    QImage seen = image;
    seen.convertToColorSpace(QColorSpace::SRgb);
    EXPECT_LE(Distance(pixel, seen.pixel(4, 4)), 2);
    EXPECT_GT(Distance(pixel, 0xFF40A040u), 10);
}

TEST_F(Convert, InksLeaveNoProfile) {
    folder.Put("a.jpg", FlatJpeg(16, 16, std::string("\xFF\0\0\xFF", 4)));
    ASSERT_EQ(Make("a.jpg", "b.jpg", Conversion::Jpeg), Converted::Done);
    EXPECT_NE(Read("b.jpg", "jpeg").colorSpace().iccProfile().mid(16, 4), "CMYK");
}

TEST_F(Convert, APngStaysTransparentAndElsewhereWhiteShowsThrough) {
    QImage image(80, 60, QImage::Format_ARGB32);
    image.fill(qRgba(255, 0, 0, 128));
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 40; ++x) {
            image.setPixel(x, y, qRgba(0, 0, 0, 0));
        }
    }
    QImage palette(80, 60, QImage::Format_Indexed8);
    palette.setColorTable({qRgba(0, 0, 0, 0), qRgba(255, 0, 0, 128)});
    for (int y = 0; y < 60; ++y) {
        std::fill_n(palette.scanLine(y), 40, uchar{0});
        std::fill_n(palette.scanLine(y) + 40, 40, uchar{1});
    }
    for (const QImage& source : {image, palette}) {
        folder.Put("a.png", Encoded(source, "png"));
        for (const auto& fit : {platform::FitFunction(), platform::FitFunction(Small)}) {
            ASSERT_EQ(Make("a.png", "b.png", Conversion::Png, fit), Converted::Done);
            const QImage png = Read("b.png", "png");
            EXPECT_EQ(qAlpha(png.pixel(5, 5)), 0);
            EXPECT_NEAR(qAlpha(png.pixel(png.width() - 5, 5)), 128, 1);
            ASSERT_EQ(Make("a.png", "b.bmp", Conversion::Bmp, fit), Converted::Done);
            const QImage bmp = Read("b.bmp", "bmp");
            EXPECT_EQ(bmp.pixel(5, 5), 0xFFFFFFFFu);
            EXPECT_LE(Distance(bmp.pixel(bmp.width() - 5, 5), 0xFFFF7F7Fu), 2);
        }
    }
}

TEST_F(Convert, TheDepthStaysUnlessNewColoursArise) {
    const QImage image = Quarters(80, 60);
    const auto depth = [&](QImage::Format format, Conversion::Kind kind, const char* name,
                           const platform::FitFunction& fit = {}) {
        folder.Put("a.png", Encoded(image.convertToFormat(format), "png"));
        EXPECT_EQ(Make("a.png", "b", kind, fit), Converted::Done);
        return Read("b", name).depth();
    };
    EXPECT_EQ(depth(QImage::Format_Mono, Conversion::Bmp, "bmp"), 1);
    EXPECT_EQ(depth(QImage::Format_Indexed8, Conversion::Bmp, "bmp"), 8);
    EXPECT_EQ(depth(QImage::Format_Grayscale8, Conversion::Bmp, "bmp"), 8);
    EXPECT_EQ(depth(QImage::Format_RGB32, Conversion::Bmp, "bmp"), 32);
    EXPECT_EQ(depth(QImage::Format_Mono, Conversion::Png, "png"), 1);
    EXPECT_EQ(depth(QImage::Format_RGBX64, Conversion::Png, "png"), 64);
    EXPECT_EQ(depth(QImage::Format_Grayscale16, Conversion::Png, "png"), 16);
    EXPECT_EQ(depth(QImage::Format_Grayscale16, Conversion::Bmp, "bmp"), 8);
    EXPECT_EQ(depth(QImage::Format_Grayscale8, Conversion::Jpeg, "jpeg"), 8);
    EXPECT_EQ(depth(QImage::Format_Indexed8, Conversion::Jpeg, "jpeg"), 32) << "it has colours";
    EXPECT_EQ(depth(QImage::Format_Grayscale8, Conversion::Bmp, "bmp", Small), 8);
    EXPECT_EQ(depth(QImage::Format_Indexed8, Conversion::Bmp, "bmp", Small), 32);
}

TEST_F(Convert, TheSameKindOnlyWhereSomethingChanges) {
    folder.Put("a.jpg", Encoded(Quarters(80, 60), "jpg", 95));
    folder.Put("small.png", Encoded(Quarters(20, 20), "png"));
    EXPECT_EQ(Make("a.jpg", "b.jpg", Conversion::Same), Converted::Needless);
    EXPECT_EQ(Make("small.png", "b.png", Conversion::Same, Small), Converted::Needless);
    EXPECT_FALSE(std::filesystem::exists(folder.Folder().Path("b.jpg")) ||
                 std::filesystem::exists(folder.Folder().Path("b.png")));
    for (const char* format : {"jpg", "png", "bmp", "tiff"}) {
        folder.Put("a", Encoded(Quarters(80, 60), format, 95));
        ASSERT_EQ(Make("a", "b", Conversion::Same, Small), Converted::Done) << format;
        EXPECT_EQ(Read("b", format).size(), QSize(40, 30)) << format;
    }
    folder.Put("a.gif", TinyGif(std::string("\1\2\0\3", 4)));
    const auto one = [](Size) { return Size{1, 1}; };
    EXPECT_EQ(Make("a.gif", "b.gif", Conversion::Same, one), Converted::NoWriter);
    EXPECT_EQ(Make("a.gif", "b.gif", Conversion::Same), Converted::Needless);
}

TEST_F(Convert, OntoItself) {
    folder.Put("a.jpg", Encoded(Quarters(80, 60), "jpg", 95));
    ASSERT_EQ(Make("a.jpg", "a.jpg", Conversion::Jpeg, Small), Converted::Done);
    EXPECT_EQ(Read("a.jpg", "jpeg").size(), QSize(40, 30));
    EXPECT_EQ(folder.Folder().Count(), 1u);
}

TEST_F(Convert, WhatIsNoPictureIsUnreadable) {
    folder.Put("a.jpg", "no picture");
    folder.Put("b.png", Encoded(Quarters(80, 60), "png").left(60));
    folder.Put("huge.png", PngHeader(100000, 100000));
    for (const char* name : {"a.jpg", "b.png", "huge.png", "gone.bmp"}) {
        EXPECT_EQ(Make(name, "out.png", Conversion::Png), Converted::Unreadable) << name;
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Folder().Path("out.png")));
}

/// Their decoders would make up what is missing.
TEST_F(Convert, WhatWasCutOffIsUnreadable) {
    QImage image = Quarters(80, 60);
    for (int y = 0; y < 60; ++y) {
        image.setPixel(y, y, qRgb(y * 4, 255 - y * 3, y));
    }
    const auto cut = [&](const char* name, const QByteArray& bytes, qsizetype most) {
        folder.Put(name, bytes.left(most));
        return Make(name, "out.png", Conversion::Png);
    };
    const QByteArray jpeg = Encoded(image, "jpg", 95);
    EXPECT_EQ(cut("a.jpg", jpeg, jpeg.size() / 2), Converted::Unreadable);
    EXPECT_EQ(cut("a.jpg", jpeg, jpeg.size() - 2), Converted::Unreadable);
    EXPECT_EQ(cut("a.jpg", jpeg, jpeg.size()), Converted::Done);
    EXPECT_EQ(cut("a.jpg", jpeg + "more", jpeg.size() + 4), Converted::Done);
    // The end of a small picture within it does not count.
    QByteArray outer = jpeg.left(2);
    outer.append("\xFF\xE1", 2).append(static_cast<char>((jpeg.size() + 2) >> 8));
    outer.append(static_cast<char>((jpeg.size() + 2) & 255)).append(jpeg).append(jpeg.mid(2));
    EXPECT_EQ(cut("a.jpg", outer, outer.size() - 2), Converted::Unreadable);
    EXPECT_EQ(cut("a.jpg", outer, outer.size()), Converted::Done);
    for (const QImage::Format format :
         {QImage::Format_RGB888, QImage::Format_Indexed8, QImage::Format_Mono}) {
        const QByteArray bmp = Encoded(image.convertToFormat(format), "bmp");
        EXPECT_EQ(cut("a.bmp", bmp, bmp.size() - 80), Converted::Unreadable) << format;
        EXPECT_EQ(cut("a.bmp", bmp, bmp.size()), Converted::Done) << format;
    }
}

/// With nothing said of a turn: the pixels were turned.
TEST_F(Convert, TheDateTakenIsCarriedOver) {
    const auto taken = platform::FromCalendar({2024, 5, 6, 7, 8, 9});
    const auto dated = [&](const QByteArray& picture, const imaging::DatePiece& date) {
        return picture.left(date.at) + QByteArray::fromStdString(date.bytes) + picture.mid(date.at);
    };
    const QImage image = Quarters(80, 60);
    const QByteArray sources[] = {
        dated(WithOrientation(Encoded(image, "jpg", 95), 3), imaging::JpegDate(taken)),
        dated(Encoded(image, "png"), imaging::PngDate(taken))};
    for (const QByteArray& source : sources) {
        folder.Put("a", source);
        for (const auto& fit : {platform::FitFunction(), platform::FitFunction(Small)}) {
            for (const auto kind : {Conversion::Jpeg, Conversion::Png}) {
                ASSERT_EQ(Make("a", "b", kind, fit), Converted::Done);
                const std::string made = folder.Folder().Content("b");
                const auto date = imaging::DateTaken([&](uint64_t at, size_t count) {
                    return at < made.size() ? made.substr(at, count) : std::string();
                });
                ASSERT_TRUE(date);
                EXPECT_EQ(platform::DateTimeText(*date), u"2024/05/06 07:08:09");
                const QImage picture = Read("b", kind == Conversion::Jpeg ? "jpeg" : "png");
                EXPECT_EQ(picture.size(), fit ? QSize(40, 30) : QSize(80, 60));
            }
        }
    }
    QImageReader reader(QString::fromStdString(folder.Folder().Path("b")));
    EXPECT_EQ(reader.transformation(), QImageIOHandler::TransformationNone);
    folder.Put("a", Encoded(image, "jpg"));
    ASSERT_EQ(Make("a", "b", Conversion::Jpeg), Converted::Done);
    EXPECT_EQ(folder.Folder().Content("b").find("Exif"), std::string::npos) << "without one, none";
}

TEST_F(Convert, LeavesTheOldFileWhateverFails) {
    folder.Put("a.png", Encoded(Quarters(800, 600), "png"));
    folder.Put("old.bmp", "old");
    const auto goOn = [](const platform::Progress&) { return true; };
    const auto stop = [](const platform::Progress&) { return false; };
    EXPECT_EQ(Make("a.png", "old.bmp", Conversion::Bmp, {}, stop), Converted::Stopped);
    EXPECT_EQ(Make("a.png", "none/b.bmp", Conversion::Bmp), Converted::Failed);
    EXPECT_EQ(error.message, u"フォルダが見つかりません。");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(Make("a.png", "old.bmp", Conversion::Bmp), Converted::Failed);
    EXPECT_EQ(Make("a.png", "old.bmp", Conversion::Bmp, {}, goOn), Converted::Failed);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(error.message.empty());
    EXPECT_EQ(folder.Folder().Content("old.bmp"), "old");
    EXPECT_EQ(folder.Folder().Count(), 2u);
}

/// What is decoded in the sandbox is converted, too.
TEST_F(Convert, AKindThatTheToolkitDoesNotRead) {
    const std::string pcx = std::string("\x0A\x05\x01\x08\0\0\0\0\x03\0\x01\0", 12) +
                            std::string(53, '\0') + std::string("\x01\x04\0\x01\0", 5) +
                            std::string(58, '\0') + std::string("\1\1\2\2\1\1\2\2", 8) + '\x0C' +
                            std::string("\0\0\0\xC8\x64\x32\x0A\x14\x1E", 9) +
                            std::string(759, '\0');
    folder.Put("a.pcx", QByteArray::fromStdString(pcx));
    ASSERT_EQ(Make("a.pcx", "b.bmp", Conversion::Bmp), Converted::Done);
    const QImage bmp = Read("b.bmp", "bmp");
    ASSERT_EQ(bmp.size(), QSize(4, 2));
    EXPECT_EQ(bmp.depth(), 8);
    EXPECT_EQ(bmp.pixel(0, 0), 0xFFC86432u);
    EXPECT_EQ(bmp.pixel(3, 1), 0xFF0A141Eu);
}

}  // namespace
