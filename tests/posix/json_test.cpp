#include "adapters/posix/json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(Json, EscapesText) {
    EXPECT_EQ(posix_adapter::JsonText(u"画\"\\\r\n\t\u0001\u007F/"),
              "\"画\\\"\\\\\\r\\n\\t\\u0001\x7F/\"");
    EXPECT_EQ(posix_adapter::JsonText(u""), "\"\"");
    EXPECT_EQ(posix_adapter::JsonText(Text(1, u'\0')), "\"\\u0000\"");
    EXPECT_EQ(posix_adapter::JsonText(Text(1, 0xD800)), "\"\uFFFD\"");
}

TEST(Json, PrintsNumbers) {
    EXPECT_EQ(posix_adapter::JsonNumber(0), "0");
    EXPECT_EQ(posix_adapter::JsonNumber(-0.0), "0");
    EXPECT_EQ(posix_adapter::JsonNumber(-30), "-30");
    EXPECT_EQ(posix_adapter::JsonNumber(16777215), "16777215");
    EXPECT_EQ(posix_adapter::JsonNumber(2.5), "2.5");
    EXPECT_EQ(posix_adapter::JsonNumber(0.1), "0.1");
    EXPECT_EQ(posix_adapter::JsonNumber(1e300), "1e+300");
    EXPECT_EQ(posix_adapter::JsonNumber(std::nan("")), "null");
    EXPECT_EQ(posix_adapter::JsonNumber(std::numeric_limits<double>::infinity()), "null");
}

}  // namespace
