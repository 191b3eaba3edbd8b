#include "adapters/posix/iconv_code_page.h"

#include <gtest/gtest.h>

#include <set>

namespace {

const posix_adapter::IconvCodePage& Page() {
    static const posix_adapter::IconvCodePage page;
    return page;
}

TEST(CodePage, KnowsTheCharactersThatTablesDisagreeAbout) {
    EXPECT_EQ(Page().Encode(u"～"), "\x81\x60");
    EXPECT_EQ(Page().Encode(u"\u2015"), "\x81\x5C");  // horizontal bar
    EXPECT_EQ(Page().Encode(u"\u2225"), "\x81\x61");  // parallel to
    EXPECT_EQ(Page().Encode(u"\uFF0D"), "\x81\x7C");  // full-width minus
    EXPECT_EQ(Page().Encode(u"\\"), "\x5C");
    EXPECT_EQ(Page().Encode(u"~"), "\x7E");
    EXPECT_EQ(Page().Encode(u"表"), "\x95\x5C");
    EXPECT_EQ(Page().Encode(u"ｱﾊﾟ"), "\xB1\xCA\xDF");
    EXPECT_EQ(Page().Encode(u"①㈱"), "\x87\x40\x87\x8A");
    EXPECT_EQ(Page().Encode(u"髙"), "\xFB\xFC");
    EXPECT_EQ(Page().Encode(u"画面全体"), "\x89\xE6\x96\xCA\x91\x53\x91\xCC");
}

TEST(CodePage, RefusesLookAlikesAndStrangers) {
    for (const TextView stranger : {u"\u301C", u"\u2014", u"\u2016", u"\u2212", u"\u00A5",
                                    u"\u203E", u"\u00A2", u"é", u"한", u"🙂", u"\uFFFD"}) {
        EXPECT_EQ(Page().Encode(stranger), std::nullopt) << text::ToUtf8(stranger);
        EXPECT_EQ(Page().Encode(Text(u"画") + Text(stranger)), std::nullopt);
    }
}

TEST(CodePage, EveryCharacterComesBackTheSame) {
    std::set<char16_t> known;
    for (unsigned lead = 0; lead < 0x100; ++lead) {
        for (unsigned trail = 0; trail < 0x100; ++trail) {
            const std::string bytes = {static_cast<char>(lead), static_cast<char>(trail)};
            const Text decoded = Page().Decode(bytes);
            for (const char16_t c : decoded) {
                known.insert(c);
            }
        }
    }
    known.erase(u'\uFFFD');
    // ASCII, 63 half-width katakana, the rows of JIS X 0208 with their extensions, and 1880 places
    // for characters of the user's own.
    EXPECT_GT(known.size(), 9000u);
    for (unsigned code = 0; code < 0x10000; ++code) {
        const Text one(1, static_cast<char16_t>(code));
        const std::optional<std::string> bytes = Page().Encode(one);
        ASSERT_EQ(bytes.has_value(), known.contains(one[0])) << std::hex << code;
        if (bytes) {
            ASSERT_EQ(Page().Decode(*bytes), one) << std::hex << code;
        }
    }
    for (unsigned code = 0; code < 0x80; ++code) {
        EXPECT_EQ(Page().Encode(Text(1, static_cast<char16_t>(code))),
                  std::string(1, static_cast<char>(code)));
    }
}

TEST(CodePage, ReplacesBytesThatFormNoCharacterOneByOne) {
    EXPECT_EQ(Page().Decode("\x81"), u"\uFFFD");
    EXPECT_EQ(Page().Decode("a\x81"), u"a\uFFFD");
    EXPECT_EQ(Page().Decode("\x81\x20z"), u"\uFFFD z");
    EXPECT_EQ(Page().Decode("\xFF\x41"),
              u"\uFFFD"
              u"A");
    EXPECT_EQ(Page().Decode("\x95\x5C\x5C"), u"表\\");
    EXPECT_EQ(Page().Decode(std::string_view("a\0b", 3)), Text(u"a\0b", 3));
    EXPECT_EQ(Page().Decode(""), u"");
}

TEST(CodePage, DecodesAnyBytesToAtMostAsManyCharacters) {
    std::string bytes;
    unsigned seed = 5;
    for (int i = 0; i < 200000; ++i) {
        seed = seed * 1664525u + 1013904223u;
        bytes.push_back(static_cast<char>(seed >> 24));
    }
    const Text decoded = Page().Decode(bytes);
    EXPECT_LE(decoded.size(), bytes.size());
    EXPECT_GE(decoded.size() * 2, bytes.size());
}

}  // namespace
