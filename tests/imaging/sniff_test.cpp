#include "adapters/imaging/sniff.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using imaging::Kind;
using imaging::SniffKind;
using namespace std::string_view_literals;

TEST(Sniff, KnowsEachKindByItsFirstBytes) {
    EXPECT_EQ(SniffKind("\x89PNG\r\n\x1A\n...."sv), Kind::Png);
    EXPECT_EQ(SniffKind("\xFF\xD8\xFF\xE0"sv), Kind::Jpeg);
    EXPECT_EQ(SniffKind("BM...."sv), Kind::Bmp);
    EXPECT_EQ(SniffKind("II*\0"sv), Kind::Tiff);
    EXPECT_EQ(SniffKind("MM\0*"sv), Kind::Tiff);
    EXPECT_EQ(SniffKind("GIF87a"sv), Kind::Gif);
    EXPECT_EQ(SniffKind("GIF89a"sv), Kind::Gif);
    EXPECT_EQ(SniffKind("RIFF\x10\0\0\0WEBPVP8 "sv), Kind::WebP);
}

TEST(Sniff, TakesNothingElse) {
    for (const std::string_view other :
         {""sv, "\xFF\xD8"sv, "\x89PNG"sv, "GIF90a"sv, "RIFF\x10\0\0\0WAVEfmt "sv, "hello"sv,
          "<html><svg/></html>"sv, "<svgx>"sv, "<?xml"sv, "<!-- svg"sv}) {
        EXPECT_EQ(SniffKind(other), Kind::None) << other;
    }
    EXPECT_STREQ(imaging::ReaderName(Kind::None), "");
}

TEST(Sniff, FindsSvgAfterWhatMayPrecedeIt) {
    EXPECT_EQ(SniffKind("<svg xmlns='x'>"), Kind::Svg);
    EXPECT_EQ(SniffKind("\xEF\xBB\xBF\r\n <?xml version='1.0'?>\n<!-- <html> -->\n<svg>"),
              Kind::Svg);
    EXPECT_EQ(SniffKind("<!DOCTYPE svg PUBLIC 'a' 'b'><svg/>"), Kind::Svg);
    EXPECT_EQ(SniffKind("<!DOCTYPE svg [<!ENTITY a 'b'>\n]><svg/>"), Kind::Svg);
    EXPECT_EQ(SniffKind("<s:svg xmlns:s='x'>"), Kind::Svg);
}

}  // namespace
