#include "adapters/gstreamer/audio_tail.h"

#include <gst/audio/audio.h>

#include <algorithm>
#include <string_view>

#include "adapters/gstreamer/handles.h"

namespace gst_adapter {

namespace {

constexpr std::string_view kSinkName = "device";
constexpr float kRampSeconds = 0.03f;  // from silence to full volume

void ApplyVolume(TailState& state, float* samples, size_t frames) {
    const float target = state.volume->load(std::memory_order_relaxed);
    const float step = 1.0f / (kRampSeconds * static_cast<float>(state.rate));
    for (size_t frame = 0; frame < frames; ++frame) {
        state.gain += std::clamp(target - state.gain, -step, step);
        for (int channel = 0; channel < state.channels; ++channel) {
            *samples++ *= state.gain;
        }
    }
}

/// True when the samples stay as they are.
bool AtFullVolume(TailState& state) {
    if (state.gain < 0) {
        state.gain = state.volume->load(std::memory_order_relaxed);
    }
    return state.gain == 1.0f && state.volume->load(std::memory_order_relaxed) == 1.0f;
}

void TakeBuffer(TailState& state, GstPadProbeInfo* info) {
    GstBuffer* buffer = GST_PAD_PROBE_INFO_BUFFER(info);
    state.heard = true;
    if (GST_BUFFER_PTS_IS_VALID(buffer) && GST_BUFFER_DURATION_IS_VALID(buffer)) {
        const guint64 end = gst_segment_to_stream_time(
            &state.segment, GST_FORMAT_TIME,
            std::min(GST_BUFFER_PTS(buffer) + GST_BUFFER_DURATION(buffer),
                     GST_CLOCK_TIME_IS_VALID(state.segment.stop) ? state.segment.stop
                                                                 : GST_CLOCK_TIME_NONE));
        if (GST_CLOCK_TIME_IS_VALID(end)) {
            state.lastEnd = static_cast<int64_t>(end);
        }
    }
    if (state.channels == 0 || state.rate == 0 || AtFullVolume(state)) {
        return;
    }
    buffer = gst_buffer_make_writable(buffer);
    GST_PAD_PROBE_INFO_DATA(info) = buffer;
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_READWRITE)) {
        ApplyVolume(state, reinterpret_cast<float*>(map.data),
                    map.size / sizeof(float) / static_cast<size_t>(state.channels));
        gst_buffer_unmap(buffer, &map);
    }
}

void TakeEvent(TailState& state, GstEvent* event) {
    switch (GST_EVENT_TYPE(event)) {
        case GST_EVENT_CAPS: {
            GstCaps* caps = nullptr;
            GstAudioInfo format;
            gst_event_parse_caps(event, &caps);
            if (gst_audio_info_from_caps(&format, caps)) {
                state.channels = format.channels;
                state.rate = format.rate;
            }
            break;
        }
        case GST_EVENT_SEGMENT:
            gst_event_copy_segment(event, &state.segment);
            state.endTime = -1;
            break;
        case GST_EVENT_EOS:
            state.endTime = state.lastEnd;
            if (state.onEndKnown) {
                state.onEndKnown();
            }
            break;
        default:
            break;
    }
}

GstPadProbeReturn Probe(GstPad*, GstPadProbeInfo* info, gpointer data) {
    TailState& state = **static_cast<std::shared_ptr<TailState>*>(data);
    if ((GST_PAD_PROBE_INFO_TYPE(info) & GST_PAD_PROBE_TYPE_BUFFER) != 0) {
        TakeBuffer(state, info);
    } else {
        TakeEvent(state, GST_PAD_PROBE_INFO_EVENT(info));
    }
    return GST_PAD_PROBE_OK;
}

void WatchPad(GstElement& element, const std::shared_ptr<TailState>& state) {
    const PadPtr pad(gst_element_get_static_pad(&element, "src"));
    gst_pad_add_probe(pad.get(),
                      static_cast<GstPadProbeType>(GST_PAD_PROBE_TYPE_BUFFER |
                                                   GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM),
                      Probe, new std::shared_ptr<TailState>(state),
                      [](gpointer data) { delete static_cast<std::shared_ptr<TailState>*>(data); });
}

}  // namespace

GstElement* MakeAudioTail(AudioOutput& output, bool silent,
                          const std::shared_ptr<TailState>& state) {
    GstElement* bin = gst_bin_new(nullptr);
    GstElement* parts[] = {
        gst_element_factory_make("audioconvert", nullptr),
        gst_element_factory_make("audioresample", nullptr),
        gst_element_factory_make("capsfilter", nullptr),
        gst_element_factory_make("audioconvert", nullptr),  // for sinks that take no floats
        output.MakeSink(silent),
    };
    if (parts[4]) {
        gst_object_set_name(GST_OBJECT(parts[4]), kSinkName.data());  // while it has no parent
    }
    for (GstElement* part : parts) {
        if (part) {
            gst_bin_add(GST_BIN(bin), part);
        }
    }
    if (std::find(std::begin(parts), std::end(parts), nullptr) != std::end(parts)) {
        gst_object_unref(gst_object_ref_sink(bin));
        return nullptr;
    }
    gst_element_link_many(parts[0], parts[1], parts[2], parts[3], parts[4], nullptr);
    const CapsPtr caps(gst_caps_from_string(
        "audio/x-raw,format=" GST_AUDIO_NE(F32) ",layout=interleaved,channels=[1,2]"));
    g_object_set(parts[2], "caps", caps.get(), nullptr);
    gst_segment_init(&state->segment, GST_FORMAT_TIME);
    WatchPad(*parts[2], state);
    const PadPtr entry(gst_element_get_static_pad(parts[0], "sink"));
    gst_element_add_pad(bin, gst_ghost_pad_new("sink", entry.get()));
    return bin;
}

bool IsFromSink(GstMessage* message) {
    // A sink may be a bin: look at everything around the source, too.
    bool found = false;
    GstObject* object = GST_MESSAGE_SRC(message);
    if (object) {
        gst_object_ref(object);
    }
    while (object && !found) {
        gchar* name = gst_object_get_name(object);
        found = name && kSinkName == name;
        g_free(name);
        GstObject* parent = gst_object_get_parent(object);
        gst_object_unref(object);
        object = parent;
    }
    if (object) {
        gst_object_unref(object);
    }
    return found;
}

}  // namespace gst_adapter
