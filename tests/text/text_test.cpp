#include "text/text.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, ConvertsEveryCharacterThereAndBack) {
    for (char32_t code = 0; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 37) {
        if (code >= 0xD800 && code <= 0xDFFF) {
            continue;
        }
        Text value;
        if (code < 0x10000) {
            value.push_back(static_cast<char16_t>(code));
        } else {
            value.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
            value.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
        }
        const std::string bytes = text::ToUtf8(value);
        ASSERT_TRUE(text::IsUtf8(bytes)) << static_cast<uint32_t>(code);
        ASSERT_EQ(text::FromUtf8(bytes), value) << static_cast<uint32_t>(code);
    }
}

TEST(Utf8, WritesTheKnownForms) {
    EXPECT_EQ(text::ToUtf8(u"Aé画𠮷"), "\x41\xC3\xA9\xE7\x94\xBB\xF0\xA0\xAE\xB7");
}

TEST(Utf8, ReplacesMalformedBytesOneByOne) {
    EXPECT_EQ(text::FromUtf8("a\x80z"), u"a\uFFFDz");
    EXPECT_EQ(text::FromUtf8("\xE7\x94"), u"\uFFFD\uFFFD");            // cut off
    EXPECT_EQ(text::FromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");            // longer than needed
    EXPECT_EQ(text::FromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");  // a surrogate
    EXPECT_EQ(text::FromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_FALSE(text::IsUtf8("\xF5"));
    EXPECT_TRUE(text::IsUtf8(""));
}

TEST(Utf8, ReplacesALoneSurrogate) {
    EXPECT_EQ(text::ToUtf8(Text{u'a', 0xD800, u'b'}),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(text::ToUtf8(Text{0xDC00}), "\xEF\xBF\xBD");
}

TEST(Trim, TakesBlanksOnly) {
    EXPECT_EQ(text::LTrim(u"  a b "), u"a b ");
    EXPECT_EQ(text::RTrim(u"  a b "), u"  a b");
    EXPECT_EQ(text::Trim(u"  a b "), u"a b");
    EXPECT_EQ(text::Trim(u"\ta　"), u"\ta　");
    EXPECT_EQ(text::Trim(u"   "), u"");
}

TEST(Upper, FoldsNarrowAndWideLetters) {
    EXPECT_EQ(text::Upper(u"abz{`ａｚあé1"), u"ABZ{`ＡＺあé1");
}

TEST(Parts, ReachNoFurtherThanTheText) {
    EXPECT_EQ(text::Left(u"abc", 2), u"ab");
    EXPECT_EQ(text::Left(u"abc", 9), u"abc");
    EXPECT_EQ(text::Right(u"abc", 2), u"bc");
    EXPECT_EQ(text::Right(u"abc", 9), u"abc");
    EXPECT_EQ(text::Mid(u"abcd", 2, 2), u"bc");
    EXPECT_EQ(text::Mid(u"abcd", 4), u"d");
    EXPECT_EQ(text::Mid(u"abcd", 5), u"");
    EXPECT_EQ(text::Mid(u"abcd", 99, 3), u"");
}

TEST(InStr, CountsFromOne) {
    EXPECT_EQ(text::InStr(u"a.b.c", u"."), 2u);
    EXPECT_EQ(text::InStr(u"abc", u"x"), 0u);
}

TEST(Kind, IsTheLastThreeCharacters) {
    EXPECT_EQ(text::KindOf(u"x.jpeg"), u"PEG");
    EXPECT_EQ(text::KindOf(u"a.kvs"), u"KVS");
    EXPECT_EQ(text::KindOf(u"io"), u"IO");
    for (const TextView video : {u"a.mp4", u"a.Wmv", u"a.MOV", u"aavi"}) {
        EXPECT_TRUE(text::IsVideoKind(video));
    }
    EXPECT_FALSE(text::IsVideoKind(u"a.avi "));
    EXPECT_FALSE(text::IsVideoKind(u"a.mpg"));
}

}  // namespace
