// Drawings: which part of the page, drawn at which size.
#include <gtest/gtest.h>

#include "adapters/decoder/ghostscript.h"
#include "decoder/decoder_support.h"

namespace {

using decoder::BoundingBox;
using decoder::Box;
using decoder::Picture;
using platform::Size;

constexpr uint32_t kRed = 0xFFFF0000u, kGreen = 0xFF00FF00u, kBlue = 0xFF0000FFu;
constexpr uint32_t kWhite = 0xFFFFFFFFu;

std::optional<Picture> Draw(const std::string& text, Size wanted = {}) {
    return decoder::Decode(sandbox::Kind::Eps,
                           {reinterpret_cast<const uint8_t*>(text.data()), text.size()}, wanted);
}

std::string Text(const FileBytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

uint32_t At(const Picture& picture, int x, int y) {
    return picture.pixels[static_cast<size_t>(y * picture.size.width + x)];
}

/// 60 by 40 points: the left half red, the right blue, the lowest quarter green.
void ExpectDrawing(const std::optional<Picture>& picture, Size size) {
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->size, size);
    const int half = size.width / 2, three = size.height * 3 / 4;
    for (const int y : {0, three - 1}) {
        EXPECT_EQ(At(*picture, 0, y), kRed) << y;
        EXPECT_EQ(At(*picture, half - 1, y), kRed) << y;
        EXPECT_EQ(At(*picture, half, y), kBlue) << y;
        EXPECT_EQ(At(*picture, size.width - 1, y), kBlue) << y;
    }
    for (const int y : {three, size.height - 1}) {
        EXPECT_EQ(At(*picture, 0, y), kGreen) << y;
        EXPECT_EQ(At(*picture, size.width - 1, y), kGreen) << y;
    }
}

TEST(PostScript, DrawsTheBoxAtItsOwnSize) {
    for (const char* file :
         {"eps_plain.eps", "eps_hires.eps", "eps_atend.eps", "eps_cr.eps", "eps_crlf.eps",
          "eps_negative.eps", "eps_not_declared.eps", "eps_dos.eps"}) {
        SCOPED_TRACE(file);
        ExpectDrawing(decoder::Decode(sandbox::Kind::Eps, Sample(file), {}), {60, 40});
    }
}

TEST(PostScript, DrawsAtTheWantedSize) {
    const FileBytes file = Sample("eps_plain.eps");
    for (const Size size : {Size{600, 400}, Size{120, 400}, Size{30, 20}, Size{1920, 1280}}) {
        ExpectDrawing(decoder::Decode(sandbox::Kind::Eps, file, size), size);
    }
}

TEST(PostScript, WithoutALegibleBoxThereIsNoPicture) {
    EXPECT_FALSE(decoder::Decode(sandbox::Kind::Eps, Sample("eps_no_box.eps"), {}));
    EXPECT_FALSE(Draw("%!PS\n%%BoundingBox: (atend)\nshowpage\n"));
    EXPECT_FALSE(Draw("%!PS\n%%BoundingBox: 0 0 20000 20000\nshowpage\n"));  // above the limit
}

TEST(PostScript, WhatDoesNotShowItsPageIsShown) {
    ExpectDrawing(Draw("%!PS\n%%BoundingBox: 0 0 60 40\n0 0 1 setrgbcolor 0 0 60 40 rectfill\n"
                       "1 0 0 setrgbcolor 0 0 30 40 rectfill 0 1 0 setrgbcolor 0 0 60 10 rectfill"),
                  {60, 40});
}

TEST(PostScript, OnlyTheFirstPageCounts) {
    const auto picture = Draw(
        "%!PS\n%%BoundingBox: 0 0 8 8\n1 0 0 setrgbcolor 0 0 8 8 rectfill "
        "showpage { 0 0 8 8 rectfill showpage } loop");
    ASSERT_TRUE(picture);
    EXPECT_EQ(At(*picture, 4, 4), kRed);
}

TEST(PostScript, WhatItPrintsIsNoPicture) {
    const auto picture = Draw(
        "%!PS\n%%BoundingBox: 0 0 8 8\n(P6\\n8 8\\n255\\n) print flush\n"
        "0 0 1 setrgbcolor 0 0 8 8 rectfill showpage\n");
    ASSERT_TRUE(picture);
    EXPECT_EQ(At(*picture, 0, 0), kBlue);
    const auto empty = Draw("%!PS\n%%BoundingBox: 0 0 8 8\nshowpage\n");
    ASSERT_TRUE(empty);
    EXPECT_EQ(At(*empty, 4, 4), kWhite);
}

TEST(PostScript, FilesAndProgramsAreOutOfReach) {
    for (const char* act : {"(/etc/passwd) (r) file", "(/tmp/parapico-written) (w) file",
                            "(%pipe%true) (w) file", "(/etc/passwd) deletefile"}) {
        // The drawing goes on only where the deed was refused.
        const auto picture = Draw(std::string("%!PS\n%%BoundingBox: 0 0 8 8\n{") + act +
                                  "} stopped { 1 0 0 setrgbcolor 0 0 8 8 rectfill } if showpage\n");
        ASSERT_TRUE(picture) << act;
        EXPECT_EQ(At(*picture, 4, 4), kRed) << act;
    }
}

TEST(PostScript, DamagedOnesFail) {
    EXPECT_FALSE(Draw("%!PS\n%%BoundingBox: 0 0 8 8\n0 0 8 rectfill showpage\n"));
    EXPECT_FALSE(Draw("%!PS\n%%BoundingBox: 0 0 8 8\nquit\n"));
    const std::string dos = Text(Sample("eps_dos.eps"));
    for (size_t length = 0; length < 32; ++length) {
        EXPECT_FALSE(Draw(dos.substr(0, length))) << length;
    }
    std::string beyond = dos;
    beyond[7] = '\x7F';  // the drawing's place
    EXPECT_FALSE(Draw(beyond));
}

TEST(PostScript, AnEndlessOneIsGivenUp) {
    const std::string text = "%!PS\n%%BoundingBox: 0 0 8 8\n{} loop showpage\n";
    const std::span bytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
    EXPECT_FALSE(decoder::DrawPostScript(bytes, {}, std::chrono::milliseconds(50)));
}

/// Who waited for its end would wait a day.
TEST(PostScript, WhatGoesOnAfterItsPageIsNotWaitedFor) {
    const std::string text = "%!PS\n%%BoundingBox: 0 0 8 8\nshowpage {} loop\n";
    const std::span bytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
    EXPECT_TRUE(decoder::DrawPostScript(bytes, {}, std::chrono::hours(24)));
}

TEST(PostScript, Boxes) {
    const struct {
        const char* text;
        std::optional<Box> box;
    } rows[] = {
        {"%!PS\n%%BoundingBox: 1 2 3 4\n", Box{1, 2, 3, 4}},
        {"%!PS\n%%BoundingBox:1 2 3 4", Box{1, 2, 3, 4}},
        {"%!PS\r%%BoundingBox:  -1.5\t-2 +3 4e0 \r", Box{-1.5, -2, 3, 4}},
        {"%%BoundingBox: 1 2 3 4\n%%HiResBoundingBox: 1.25 2.5 2.75 3.5\n",
         Box{1.25, 2.5, 2.75, 3.5}},
        {"%%BoundingBox: 1 2 3 4\n%%BoundingBox: 5 6 7 8\n", Box{1, 2, 3, 4}},
        {"%%BoundingBox: (atend)\n%%EndComments\n%%BoundingBox: 5 6 7 8\n", Box{5, 6, 7, 8}},
        {"%%BoundingBox: (atend)\n%%EndComments\n%%BeginDocument: x\n%%BoundingBox: 1 1 2 2\n"
         "%%EndDocument\n%%BoundingBox: 5 6 7 8\n",
         Box{5, 6, 7, 8}},
        {"%%BoundingBox: 1 2 3\n", std::nullopt},
        {"%%BoundingBox: 3 2 1 4\n", std::nullopt},
        {"%%BoundingBox: 0 0 0 0\n", std::nullopt},
        {"%%BoundingBox: nan 0 inf 9\n", std::nullopt},
        {"%%BoundingBox: 0 0 1e300 9\n", std::nullopt},
        {" %%BoundingBox: 1 2 3 4\n", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const std::optional<Box> box = BoundingBox(row.text);
        ASSERT_EQ(box.has_value(), row.box.has_value());
        if (box) {
            EXPECT_EQ(box->left, row.box->left);
            EXPECT_EQ(box->bottom, row.box->bottom);
            EXPECT_EQ(box->right, row.box->right);
            EXPECT_EQ(box->top, row.box->top);
        }
    }
}

}  // namespace
