#include "text/code_page.h"

#include <gtest/gtest.h>

namespace {

/// Latin-1, so that what a rule leaves to the code page differs from UTF-8.
class Latin : public text::CodePage {
public:
    std::optional<std::string> Encode(TextView value) const override {
        std::string bytes;
        for (const char16_t c : value) {
            if (c > 0xFF) {
                return std::nullopt;
            }
            bytes.push_back(static_cast<char>(c));
        }
        return bytes;
    }
    Text Decode(std::string_view bytes) const override {
        Text value;
        for (const char c : bytes) {
            value.push_back(static_cast<unsigned char>(c));
        }
        return value;
    }
};

TEST(DecodeFile, TakesTheMarkForUtf8) {
    EXPECT_EQ(text::DecodeFile("\xEF\xBB\xBF\xE7\x94\xBB", Latin()), u"画");
    EXPECT_EQ(text::DecodeFile("\xE7\x94\xBB", Latin()), u"\u00E7\u0094\u00BB");
    EXPECT_EQ(text::DecodeFile("", Latin()), u"");
}

TEST(DecodeHandWrittenFile, WantsAThreeByteSequence) {
    EXPECT_EQ(text::DecodeHandWrittenFile("a\xE7\x94\xBB", Latin()), u"a画");
    EXPECT_EQ(text::DecodeHandWrittenFile("a\xF0\xA0\xAE\xB7", Latin()), u"a𠮷");
    // é alone could be two half-width katakana.
    EXPECT_EQ(text::DecodeHandWrittenFile("\xC3\xA9", Latin()), u"\u00C3\u00A9");
    // One byte that does not fit, and all of it is the code page's.
    EXPECT_EQ(text::DecodeHandWrittenFile("\xE7\x94\xBB\x80", Latin()),
              u"\u00E7\u0094\u00BB\u0080");
    EXPECT_EQ(text::DecodeHandWrittenFile("\xEF\xBB\xBF\xC3\xA9", Latin()), u"é");
    EXPECT_EQ(text::DecodeHandWrittenFile("plain", Latin()), u"plain");
}

TEST(EncodeFile, FallsBackToUtf8WithAMark) {
    EXPECT_EQ(text::EncodeFile(u"aé", Latin()), "a\xE9");
    EXPECT_EQ(text::EncodeFile(u"é画", Latin()), "\xEF\xBB\xBF\xC3\xA9\xE7\x94\xBB");
}

}  // namespace
