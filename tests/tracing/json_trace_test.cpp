#include "adapters/tracing/json_trace.h"

#include <gtest/gtest.h>

#include "posix/temporary_folder.h"

namespace {

TEST(JsonTrace, WritesOneObjectALineAtOnce) {
    TemporaryFolder folder;
    folder.Put("trace", "old");
    double now = 0;
    const auto trace = tracing::MakeTraceWriter(folder.Path("trace"), [&] { return now; });
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
    tracing::MakeTraceWriter("-", [] { return 7.0; })->Event("end", {});
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "{\"t\":7,\"event\":\"end\"}\n");
}

TEST(JsonTrace, IsNotMadeWhereTheFileCannotBe) {
    TemporaryFolder folder;
    EXPECT_FALSE(tracing::MakeTraceWriter(folder.Path("none/trace"), [] { return 0.0; }));
}

}  // namespace
