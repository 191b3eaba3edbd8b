#include "text/natural_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace text {
namespace {

TEST(NaturalOrder, NumbersCountAsNumbersAndCaseDoesNot) {
    const std::vector<Text> wanted{u"",         u"1.jpg",     u"2.jpg", u"10.jpg", u"a",
                                   u"B",        u"c1b2",      u"c1b10", u"c２",    u"c10",
                                   u"img9.png", u"IMG10.png", u"あ"};
    std::vector<Text> names = wanted;
    std::sort(names.begin(), names.end(), [](const Text& a, const Text& b) { return a < b; });
    EXPECT_NE(names, wanted);
    std::sort(names.begin(), names.end(), NaturalLess);
    EXPECT_EQ(names, wanted);
}

TEST(NaturalOrder, NamesThatDifferInZerosOrCaseOnlyStillHaveAnOrder) {
    for (const auto& [a, b] : {std::pair<Text, Text>{u"01", u"1"}, {u"A", u"a"}}) {
        EXPECT_NE(NaturalLess(a, b), NaturalLess(b, a));
    }
    EXPECT_FALSE(NaturalLess(u"a1", u"a1"));
}

TEST(NaturalOrder, NumbersMayBeLongerThanAnyMachineNumber) {
    const Text nines(30, u'9');
    EXPECT_TRUE(NaturalLess(nines, u"1" + Text(30, u'0')));
}

}  // namespace
}  // namespace text
