// What a row says of a show without opening it.
#include "document/show_facts.h"

#include <gtest/gtest.h>

namespace document {
namespace {

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

TEST(ShowFacts, OtherFilesAreNotAccepted) {
    EXPECT_FALSE(FactsOfShow(u"").accepted);
    EXPECT_FALSE(FactsOfShow(u"1vue3167\r\nlist.kvl\r\n 1 \r\na.kvs\r\n").accepted);
    EXPECT_FALSE(FactsOfShow(u"1vue4\r\nx\r\n 1 \r\n").accepted);
}

}  // namespace
}  // namespace document
