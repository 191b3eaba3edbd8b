// The manual that is shipped is the one that the words themselves make.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "adapters/posix/iconv_code_page.h"
#include "macro/keywords.h"
#include "macro/manual.h"

namespace {

std::string Shipped() {
    std::ifstream file(PARAPICO_SOURCE_DIR "/assets/マクロ.txt", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

size_t Count(TextView text, TextView part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != TextView::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

TEST(Manual, ShippedFileIsByteByByteWhatTheWordsMake) {
    EXPECT_TRUE(Shipped() == text::MarkedUtf8(macro::Manual()))
        << "build the target `manual` and commit assets/マクロ.txt";
    EXPECT_TRUE(Shipped().starts_with("\xEF\xBB\xBF")) << "editors must not guess";
}

TEST(Manual, EveryCharacterHasAFormInTheCodePage) {
    EXPECT_TRUE(posix_adapter::IconvCodePage().Encode(macro::Manual()));
}

TEST(Manual, LinesEndInCarriageReturnAndLineFeed) {
    const Text manual = macro::Manual();
    EXPECT_EQ(Count(manual, u"\n"), Count(manual, u"\r\n"));
    EXPECT_EQ(Count(manual, u"\r"), Count(manual, u"\r\n"));
    EXPECT_TRUE(manual.ends_with(u"\r\n"));
}

TEST(Manual, EveryWordHasExactlyOneEntryUnderASubject) {
    const Text manual = macro::Manual();
    for (const macro::Keyword& keyword : macro::Keywords()) {
        const Text head = u"\r\n  " + Text(keyword.name) + Text(keyword.arguments) + u"\r\n      ";
        EXPECT_EQ(Count(manual, head), 1u) << text::ToUtf8(keyword.name);
        EXPECT_GT(keyword.documentation.size(), 4u) << text::ToUtf8(keyword.name);
    }
    EXPECT_EQ(Count(manual, u"【そのほか】"), 0u) << "give the new word a subject in manual.cpp";
}

/// What the entry of a word says, up to the next one.
Text EntryOf(TextView head) {
    const Text manual = macro::Manual();
    const size_t start = manual.find(u"\r\n  " + Text(head) + u"\r\n");
    return start == Text::npos ? Text()
                               : manual.substr(start, manual.find(u"\r\n\r\n", start) - start);
}

TEST(Manual, EntriesTellRangeOtherValuesAndHowLong) {
    EXPECT_EQ(EntryOf(u"QBCOLOR=n"),
              u"\r\n  QBCOLOR=n\r\n      文字の色番号。\r\n"
              u"      値　　：0～15（小数は切り捨て）\r\n      範囲外：10 になります\r\n"
              u"      有効　：このスライドの間");
    const struct {
        const char16_t* head;
        const char16_t* says;
    } cases[] = {
        {u"LINESPACE=n", u"近いほうの端の値になります"},
        {u"LINESPACE=n", u"次に変えるか START するまで"},
        {u"SLEEP=n", u"この行は無視されます"},
        {u"KOUKASP=n", u"-60～10"},
        {u"KOUKASP=n", u"メニューの設定そのものが変わります"},
        {u"OVERLAP=n", u"値は覚えられますが"},
        {u"CURRENTX=n", u"どの数でも"},
    };
    for (const auto& row : cases) {
        EXPECT_NE(EntryOf(row.head).find(row.says), Text::npos) << text::ToUtf8(row.says);
    }
}

}  // namespace
