// When a pipeline that does not begin to play is given up.
#include "adapters/gstreamer/pipeline.h"

#include <gtest/gtest.h>

#include "adapters/gstreamer/library.h"

namespace {

using namespace gst_adapter;

TEST(GstPipeline, OneWithoutAnyThreadIsGivenUpAtTheFourthLook) {
    EnsureLibrary();
    const ElementPtr pipeline = MakePipeline([](StreamEvent) {});
    StartWatch watch;
    for (int look = 1; look <= 3; ++look) {
        EXPECT_FALSE(watch.Hopeless(*pipeline)) << look;
    }
    EXPECT_TRUE(watch.Hopeless(*pipeline));
}

TEST(GstPipeline, OneThatWorksOnIsGivenUpAfterTwentySeconds) {
    EnsureLibrary();
    const ElementPtr pipeline(
        GST_ELEMENT(gst_object_ref_sink(gst_parse_launch("audiotestsrc ! fakesink", nullptr))));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    gst_element_get_state(pipeline.get(), nullptr, nullptr, GST_CLOCK_TIME_NONE);
    StartWatch watch;
    for (int look = 1; look <= 20000 / StartWatch::kPollMs; ++look) {
        EXPECT_FALSE(watch.Hopeless(*pipeline)) << look;
    }
    EXPECT_TRUE(watch.Hopeless(*pipeline));
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
}

}  // namespace
