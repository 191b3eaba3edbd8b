// The sink "testsink": keeps its samples, and fails or dawdles when a test asks for it. It passes
// no time: a stream runs through it as fast as it is read.
#include <gst/audio/audio.h>
#include <gst/base/gstbasesink.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "adapters/gstreamer/library.h"
#include "gstreamer/gstreamer_support.h"

namespace gst_tests {

namespace {

std::mutex mutex;
std::condition_variable changed;
TestSink seen;

void WaitWhile(std::unique_lock<std::mutex>& lock, const bool& held) {
    changed.wait_for(lock, std::chrono::milliseconds(kHangMs), [&] { return !held; });
}

struct SinkElement {
    GstBaseSink parent;
    int buffers;
};
struct SinkClass {
    GstBaseSinkClass parent;
};

GstElementClass* parentClass = nullptr;

int Pace() {
    const std::lock_guard lock(mutex);
    return seen.bufferTakesMs;
}

GstFlowReturn Render(GstBaseSink* base, GstBuffer* buffer) {
    auto* self = reinterpret_cast<SinkElement*>(base);
    std::this_thread::sleep_for(std::chrono::milliseconds(Pace()));
    std::unique_lock lock(mutex);
    ++seen.arrived;
    WaitWhile(lock, seen.holdsBuffers);
    if (seen.breakAfterBuffers >= 0 && ++self->buffers > seen.breakAfterBuffers) {
        GST_ELEMENT_ERROR(base, RESOURCE, WRITE, ("the device is gone"), (nullptr));
        return GST_FLOW_ERROR;
    }
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_READ)) {
        const auto* samples = reinterpret_cast<const float*>(map.data);
        seen.samples.insert(seen.samples.end(), samples, samples + map.size / sizeof(float));
        gst_buffer_unmap(buffer, &map);
    }
    return GST_FLOW_OK;
}

GstFlowReturn Preroll(GstBaseSink*, GstBuffer*) {
    const std::lock_guard lock(mutex);
    ++seen.prerolled;
    return GST_FLOW_OK;
}

gboolean SetCaps(GstBaseSink* base, GstCaps* caps) {
    GstAudioInfo format;
    const std::lock_guard lock(mutex);
    if (seen.refusesFormat) {
        GST_ELEMENT_ERROR(base, RESOURCE, OPEN_WRITE, ("the device is taken"), (nullptr));
        ++seen.refused;
        return FALSE;
    }
    if (gst_audio_info_from_caps(&format, caps)) {
        seen.channels = format.channels;
        seen.rate = format.rate;
    }
    return TRUE;
}

GstStateChangeReturn ChangeState(GstElement* element, GstStateChange change) {
    if (change == GST_STATE_CHANGE_NULL_TO_READY) {
        std::unique_lock lock(mutex);
        ++seen.opened;
        ++seen.stillOpening;
        WaitWhile(lock, seen.holdsOpening);
        --seen.stillOpening;
    }
    return parentClass->change_state(element, change);
}

void InitClass(gpointer data, gpointer) {
    auto* element = static_cast<GstElementClass*>(data);
    parentClass = static_cast<GstElementClass*>(g_type_class_peek_parent(data));
    gst_element_class_set_static_metadata(element, "test sink", "Sink/Audio", "keeps samples",
                                          "the tests");
    GstCaps* caps = gst_caps_from_string("audio/x-raw,format=" GST_AUDIO_NE(F32));
    gst_element_class_add_pad_template(
        element, gst_pad_template_new("sink", GST_PAD_SINK, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
    element->change_state = ChangeState;
    GST_BASE_SINK_CLASS(data)->preroll = Preroll;
    GST_BASE_SINK_CLASS(data)->render = Render;
    GST_BASE_SINK_CLASS(data)->set_caps = SetCaps;
}

void Register() {
    static std::once_flag once;
    std::call_once(once, [] {
        gst_adapter::EnsureLibrary();
        static const GTypeInfo kInfo = {sizeof(SinkClass),
                                        nullptr,
                                        nullptr,
                                        InitClass,
                                        nullptr,
                                        nullptr,
                                        sizeof(SinkElement),
                                        0,
                                        [](GTypeInstance* self, gpointer) {
                                            gst_base_sink_set_sync(GST_BASE_SINK(self), FALSE);
                                        },
                                        nullptr};
        const GType type =
            g_type_register_static(GST_TYPE_BASE_SINK, "ParapicoTestSink", &kInfo, GTypeFlags{});
        gst_element_register(nullptr, "testsink", GST_RANK_NONE, type);
    });
}

}  // namespace

void ResetTestSink() {
    Register();
    const std::lock_guard lock(mutex);
    seen = TestSink{};
    changed.notify_all();
}

TestSink SeenByTestSink() {
    const std::lock_guard lock(mutex);
    return seen;
}

void MakeTestSinkRefuse() {
    const std::lock_guard lock(mutex);
    seen.refusesFormat = true;
}

void SetTestSink(int breakAfterBuffers, int bufferTakesMs) {
    const std::lock_guard lock(mutex);
    seen.breakAfterBuffers = breakAfterBuffers;
    seen.bufferTakesMs = bufferTakesMs;
}

void HoldTestSink(Hold what) {
    const std::lock_guard lock(mutex);
    seen.holdsOpening = what == Hold::Opening;
    seen.holdsBuffers = what == Hold::Buffers;
    changed.notify_all();
}

}  // namespace gst_tests
