// Files that are no pictures, or only part of one.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "imaging/imaging_support.h"

namespace {

using platform::Size;

class Damaged : public ::testing::Test {
protected:
    bool Loads(const Text& path, const platform::FitFunction& fit = {}) {
        const bool loaded = control_->Load(path, fit);
        EXPECT_EQ(control_->Holds(), loaded);
        if (loaded) {
            // A decoder may fill up what is missing, but never another size.
            const platform::BitmapPtr picture = control_->Picture();
            const Size size = control_->HeldSize();
            EXPECT_TRUE(picture && picture->width == size.width && picture->height == size.height);
        }
        return loaded;
    }

    ImagingFolder folder_;
    std::unique_ptr<platform::ImagingControl> control_ = folder_.Control();
};

TEST_F(Damaged, WhatIsNoPictureIsRefused) {
    mkfifo(folder_.Folder().Path("fifo.jpg").c_str(), 0600);
    std::filesystem::create_directory(folder_.Folder().Path("folder.jpg"));
    for (const Text& path :
         {folder_.Put("zero.jpg", ""), folder_.Put("text.jpg", "This is a text.\r\n"),
          folder_.Put("sound.jpg", QByteArray("RIFF\x24\0\0\0WAVEfmt ", 16)),
          folder_.Put("start.jpg", QByteArray("\xFF\xD8\xFF", 3)),
          folder_.Put("bm.bmp", "BM is how this text begins"),
          folder_.Folder().TextPath("fifo.jpg"), folder_.Folder().TextPath("folder.jpg"),
          folder_.Folder().TextPath("none.jpg"), Text(u"/dev/zero"), Text(u"")}) {
        EXPECT_FALSE(control_->ReadInformation(path)) << text::ToUtf8(path);
        EXPECT_FALSE(Loads(path)) << text::ToUtf8(path);
    }
    EXPECT_FALSE(Loads(folder_.Put("svg.svg", "<svg"))) << "only drawing it shows that";
}

TEST_F(Damaged, TheRowsThatACutBmpLacksAreWhiteOrItsFirstColour) {
    for (const auto format : {QImage::Format_RGB32, QImage::Format_Indexed8}) {
        QImage image(40, 30, format);
        if (format == QImage::Format_Indexed8) {
            image.setColorTable({qRgb(255, 255, 255), qRgb(200, 0, 0)});
        }
        image.fill(format == QImage::Format_Indexed8 ? 1u : 0xFFC80000u);
        const QByteArray whole = Encoded(image, "bmp");
        const int rowBytes = format == QImage::Format_Indexed8 ? 40 : 3 * 40;
        const Text path = folder_.Put("cut.bmp", whole.left(whole.size() - 10 * rowBytes));
        // What the memory held before must not show.
        for (int round = 0; round < 3; ++round) {
            std::vector<char> dirt(40 * 30 * 4, static_cast<char>(0x55 + round));
            dirt = {};
            ASSERT_TRUE(control_->Load(path, {}));
            EXPECT_EQ(control_->Picture()->Row(0)[20], 0xFFFFFFFFu) << "stored last";
            EXPECT_EQ(control_->Picture()->Row(29)[20], 0xFFC80000u);
        }
    }
}

TEST_F(Damaged, ACutBmpFromTheTopDownLacksItsLowestRows) {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(0xFFC80000u);
    QByteArray whole = Encoded(image, "bmp");
    const int32_t height = -30;  // its place in the header
    std::memcpy(whole.data() + 22, &height, sizeof height);
    const Text path = folder_.Put("cut.bmp", whole.left(whole.size() - 10 * 3 * 40));
    for (int round = 0; round < 3; ++round) {
        std::vector<char> dirt(40 * 30 * 4, static_cast<char>(0x55 + round));
        dirt = {};
        ASSERT_TRUE(control_->Load(path, {}));
        EXPECT_EQ(control_->Picture()->Row(0)[20], 0xFFC80000u);
        EXPECT_EQ(control_->Picture()->Row(29)[20], 0xFFFFFFFFu);
    }
}

TEST_F(Damaged, HugeHeadersAreRefusedUndecoded) {
    EXPECT_FALSE(Loads(folder_.Put("huge.png", PngHeader(30000, 30000))));
    EXPECT_FALSE(Loads(folder_.Put("huge.png", PngHeader(2000000000, 2000000000))));
    EXPECT_FALSE(Loads(folder_.Put("huge.png", PngHeader(30000, 30000)), [](Size) {
        return Size{300, 300};
    }));
    EXPECT_FALSE(Loads(folder_.Put(
        "huge.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='99999' height='99999'/>")));
    // The same for a drawing that is wanted small is no work at all.
    ASSERT_TRUE(control_->Load(folder_.Folder().TextPath("huge.svg"), [](Size) {
        return Size{300, 300};
    }));
    control_->Resize(300, 300, 0);
    EXPECT_EQ(control_->Picture()->width, 300);
}

TEST_F(Damaged, AHugeJpegIsShownSmallAndNeverWhole) {
    const Text path = folder_.Put("huge.jpg", FlatJpeg(30000, 30000, "\x60"));
    EXPECT_FALSE(Loads(path));
    ASSERT_TRUE(control_->Load(path, [](Size own) {
        EXPECT_EQ(own, (Size{30000, 30000}));
        return Size{300, 300};
    }));
    EXPECT_EQ(control_->HeldSize(), (Size{30000, 30000}));
    EXPECT_EQ(control_->Picture()->width, 300);  // all that can be had
    control_->Resize(300, 300, 0);
    EXPECT_LE(Distance(control_->Picture()->Row(150)[150], 0xFF606060u), 2);
    control_->Resize(600, 600, 0);
    EXPECT_EQ(control_->Picture()->width, 600);
}

TEST_F(Damaged, EveryTruncationIsSurvived) {
    QImage image = Quarters(40, 30);
    image.setPixel(3, 3, qRgb(9, 99, 199));
    const QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>"
        "<rect width='20' height='20' fill='#f00'/></svg>";
    std::vector<std::pair<std::string, QByteArray>> pictures = {
        {"svg", svg},
        {"gif", TinyGif(std::string("\1\2\0\3", 4))},
        {"inks", FlatJpeg(16, 16, "\x01\xFF\xFF\xFF")},
        {"turned", WithOrientation(Encoded(image, "jpg"), 6)},
        {"tiff inks", CmykTiff(2, 1, std::string(8, '\x50'))}};
    for (const char* kind : {"png", "jpg", "bmp", "tiff", "webp"}) {
        pictures.emplace_back(kind, Encoded(image, kind));
    }
    for (const auto& [name, bytes] : pictures) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(Loads(folder_.Put("whole", bytes)));
        const qsizetype step = std::max<qsizetype>(bytes.size() / 150, 1);
        for (qsizetype length = 0; length < bytes.size(); length += step) {
            const Text path = folder_.Put("part", bytes.left(length));
            const bool half = length % 2 == 0;
            Loads(path, [half](Size own) {
                return half ? Size{own.width / 2, own.height / 2} : Size{};
            });
        }
        // Less than the header is never a picture.
        EXPECT_FALSE(Loads(folder_.Put("part", bytes.left(6))));
    }
}

TEST_F(Damaged, ChangedBytesAreSurvived) {
    const QImage image = Quarters(24, 24);
    unsigned seed = 7;
    const auto random = [&seed] { return (seed = seed * 1664525u + 1013904223u) >> 16; };
    for (const char* kind : {"png", "jpg", "bmp", "tiff", "webp"}) {
        SCOPED_TRACE(kind);
        const QByteArray bytes = Encoded(image, kind);
        for (int i = 0; i < 150; ++i) {
            QByteArray changed = bytes;
            for (int j = 0; j < 3; ++j) {
                changed[static_cast<qsizetype>(random() % bytes.size())] =
                    static_cast<char>(random());
            }
            Loads(folder_.Put("changed", changed), [](Size) { return Size{12, 12}; });
        }
    }
}

}  // namespace
