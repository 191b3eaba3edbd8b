// What a row says of a show without opening it.
#include "document/show_facts.h"

#include <gtest/gtest.h>

#include "document_support.h"

namespace document {
namespace {

using namespace document_tests;

/// Accepted as the program would; and nothing is said of what is refused.
void ExpectTheReadersWord(const std::string& bytes) {
    Program program;
    const ShowFacts facts = FactsOfShow(text::DecodeFile(bytes, program.codePage));
    program.files.Put(kPath, bytes);
    program.app.state.BaseFolder = kBase;
    ReadShowDocument(program.app, kPath);
    EXPECT_EQ(facts.accepted, program.Accepted());
    EXPECT_TRUE(facts.accepted || (facts.pictures == 0 && facts.films == 0 && facts.first.empty()));
}

// The oldest form: no block of lines stands between the default sound and the slides.
TEST(ShowFacts, OfTheOldestForm) {
    const ShowFacts facts = FactsOfShow(
        u"1vue2\r\nx.kvs\r\n 4000 \r\n 1 \r\n 0 \r\n*.wav\r\n 2 \r\nC:\\a.bmp\r\nC:\\b.avi\r\n");
    EXPECT_TRUE(facts.accepted);
    EXPECT_EQ(facts.pictures, 1);
    EXPECT_EQ(facts.films, 1);
    EXPECT_EQ(facts.intervalMs, 4000);
    EXPECT_EQ(facts.first, u"C:\\a.bmp");
}

// "vue316" has nine, two and one line more.
TEST(ShowFacts, OfAFormBetween) {
    Text content = u"1vue316\r\nx.kvs\r\n 500 \r\n 1 \r\n 0 \r\n*.wav\r\n";
    for (int line = 0; line < 9 + 2 + 1; ++line) {
        content += u" 7 \r\n";
    }
    const ShowFacts facts = FactsOfShow(content + u" 1 \r\na.png\r\n");
    EXPECT_TRUE(facts.accepted);
    EXPECT_EQ(facts.pictures, 1);
    EXPECT_EQ(facts.intervalMs, 1000);  // the shortest interval
}

TEST(ShowFacts, AFileThatEndsBeforeItsLastSlideIsNotAccepted) {
    const Text content = u"1vue2\r\nx.kvs\r\n 4000 \r\n 1 \r\n 0 \r\n*.wav\r\n 2 \r\nC:\\a.bmp\r\n";
    EXPECT_FALSE(FactsOfShow(content).accepted);
    for (size_t length = 0; length < content.size(); ++length) {
        EXPECT_FALSE(FactsOfShow(content.substr(0, length)).accepted) << length;
    }
}

TEST(ShowFacts, AreAcceptedAsTheReaderDoesCutAtEveryByte) {
    Program made;
    for (const Lines& lines : {FullDocument(), Without(FullDocument(), 47, 48)}) {
        const std::string whole = text::EncodeFile(TextOf(lines), made.codePage);
        for (size_t length = 0; length <= whole.size(); ++length) {
            SCOPED_TRACE(length);
            ExpectTheReadersWord(whole.substr(0, length));
        }
    }
}

TEST(ShowFacts, AreAcceptedAsTheReaderDoesGarbledAtEveryByte) {
    Program made;
    const std::string whole = text::EncodeFile(TextOf(FullDocument()), made.codePage);
    for (size_t place = 0; place < whole.size(); ++place) {
        for (const char garbage : {'x', '9', ',', '\n'}) {
            SCOPED_TRACE(std::to_string(place) + " " + garbage);
            std::string bytes = whole;
            bytes[place] = garbage;
            ExpectTheReadersWord(bytes);
        }
    }
}

TEST(ShowFacts, OtherFilesAreNotAccepted) {
    EXPECT_FALSE(FactsOfShow(u"").accepted);
    EXPECT_FALSE(FactsOfShow(u"1vue3167\r\nlist.kvl\r\n 1 \r\na.kvs\r\n").accepted);
    EXPECT_FALSE(FactsOfShow(u"1vue4\r\nx\r\n 1 \r\n").accepted);
}

}  // namespace
}  // namespace document
