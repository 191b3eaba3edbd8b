#include "adapters/posix/json_trace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "adapters/posix/json.h"
#include "posix/temporary_folder.h"

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

TEST(JsonTrace, WritesOneObjectALineAtOnce) {
    TemporaryFolder folder;
    folder.Put("trace", "old");
    double now = 0;
    const auto trace = posix_adapter::MakeTraceWriter(folder.Path("trace"), [&] { return now; });
    ASSERT_TRUE(trace);
    trace->Event("start", {});
    now = 1500;
    trace->Event("slide", {{"SlideIndex", 1.0}, {"path", Text(u"画.jpg")}, {"x", -2.5}});
    now = 1500.25;
    trace->Event("sndPlaySound", {{"file", nullptr}, {"unanswered", true}});
    trace->Event("print",
                 {{"value", std::vector<Text>{u"一", u"\"2"}}, {"none", std::vector<Text>()}});
    EXPECT_EQ(folder.Content("trace"),
              "{\"t\":0,\"event\":\"start\"}\n"
              "{\"t\":1500,\"event\":\"slide\",\"SlideIndex\":1,\"path\":\"画.jpg\",\"x\":-2.5}\n"
              "{\"t\":1500.25,\"event\":\"sndPlaySound\",\"file\":null,\"unanswered\":true}\n"
              "{\"t\":1500.25,\"event\":\"print\",\"value\":[\"一\",\"\\\"2\"],\"none\":[]}\n");
}

TEST(JsonTrace, WritesToStandardOutput) {
    ::testing::internal::CaptureStdout();
    posix_adapter::MakeTraceWriter("-", [] { return 7.0; })->Event("end", {});
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "{\"t\":7,\"event\":\"end\"}\n");
}

TEST(JsonTrace, IsNotMadeWhereTheFileCannotBe) {
    TemporaryFolder folder;
    EXPECT_FALSE(posix_adapter::MakeTraceWriter(folder.Path("none/trace"), [] { return 0.0; }));
}

}  // namespace
