#include "adapters/gstreamer/pipeline.h"

#include <gst/app/gstappsrc.h>
#include <gst/audio/audio.h>
#include <sys/stat.h>

#include <string_view>
#include <utility>

#include "adapters/gstreamer/audio_tail.h"
#include "adapters/gstreamer/library.h"

namespace gst_adapter {

namespace {

constexpr size_t kChunkFrames = 1024;
constexpr guint64 kQueuedSeconds = 1;
constexpr int kMostStartPolls = 100;  // 20 seconds
constexpr int kMostIdlePolls = 3;
constexpr int kStopAttempts = 20;
constexpr gulong kStopPauseUs = 5000;
constexpr double kMidiGain = 0.6;  // the instrument's own default is hardly heard

template <class T>
void Delete(gpointer data) {
    delete static_cast<T*>(data);
}

/// What feeds an appsrc, on its thread.
struct Feed {
    std::unique_ptr<PcmSource> source;
    bool loop = false;
    int64_t framesGiven = 0;
};

size_t ReadChunk(Feed& feed, float* frames) {
    size_t got = feed.source->Read(frames, kChunkFrames);
    while (feed.loop && got < kChunkFrames) {
        // A file without samples is at its end, looped or not.
        const size_t more =
            feed.source->Seek(0)
                ? feed.source->Read(frames + got * static_cast<size_t>(feed.source->channels),
                                    kChunkFrames - got)
                : 0;
        if (more == 0) {
            break;
        }
        got += more;
    }
    return got;
}

void NeedData(GstAppSrc* element, guint, gpointer data) {
    Feed& feed = **static_cast<std::shared_ptr<Feed>*>(data);
    const size_t frameBytes = sizeof(float) * static_cast<size_t>(feed.source->channels);
    GstBuffer* buffer = gst_buffer_new_allocate(nullptr, kChunkFrames * frameBytes, nullptr);
    GstMapInfo map;
    size_t frames = 0;
    if (buffer && gst_buffer_map(buffer, &map, GST_MAP_WRITE)) {
        frames = ReadChunk(feed, reinterpret_cast<float*>(map.data));
        gst_buffer_unmap(buffer, &map);
    }
    if (frames == 0) {
        if (buffer) {
            gst_buffer_unref(buffer);
        }
        gst_app_src_end_of_stream(element);
        return;
    }
    gst_buffer_set_size(buffer, static_cast<gssize>(frames * frameBytes));
    const auto timeOf = [&](int64_t frame) {
        return gst_util_uint64_scale(static_cast<guint64>(frame), GST_SECOND,
                                     static_cast<guint64>(feed.source->rate));
    };
    GST_BUFFER_PTS(buffer) = timeOf(feed.framesGiven);
    feed.framesGiven += static_cast<int64_t>(frames);
    GST_BUFFER_DURATION(buffer) = timeOf(feed.framesGiven) - GST_BUFFER_PTS(buffer);
    gst_app_src_push_buffer(element, buffer);
}

GstBusSyncReply TakeMessage(GstBus*, GstMessage* message, gpointer data) {
    const auto& onEvent = *static_cast<std::function<void(StreamEvent)>*>(data);
    switch (GST_MESSAGE_TYPE(message)) {
        case GST_MESSAGE_EOS:
            onEvent(StreamEvent::End);
            break;
        case GST_MESSAGE_ERROR:
            onEvent(IsFromSink(message) ? StreamEvent::SinkError : StreamEvent::Error);
            break;
        case GST_MESSAGE_CLOCK_LOST:
            onEvent(StreamEvent::ClockLost);
            break;
        case GST_MESSAGE_STATE_CHANGED: {
            GstState now = GST_STATE_NULL;
            gst_message_parse_state_changed(message, nullptr, &now, nullptr);
            if (now == GST_STATE_PLAYING && GST_IS_PIPELINE(GST_MESSAGE_SRC(message))) {
                onEvent(StreamEvent::Playing);
            }
            break;
        }
        default:
            break;
    }
    gst_message_unref(message);
    return GST_BUS_DROP;
}

bool IsFileWithContent(const std::string& nativePath) {
    struct stat status {};
    return stat(nativePath.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

/// Null when the library lacks it.
GstElement* Add(GstElement& pipeline, const char* factory) {
    GstElement* element = gst_element_factory_make(factory, nullptr);
    if (element) {
        gst_bin_add(GST_BIN(&pipeline), element);
    }
    return element;
}

GstElement* AddFile(GstElement& pipeline, const std::string& nativePath) {
    GstElement* file = IsFileWithContent(nativePath) ? Add(pipeline, "filesrc") : nullptr;
    if (file) {
        g_object_set(file, "location", nativePath.c_str(), nullptr);
    }
    return file;
}

void SetUpInstrument(GstElement* element) {
    GstElementFactory* factory = gst_element_get_factory(element);
    if (factory && std::string_view(GST_OBJECT_NAME(factory)) == "fluiddec") {
        g_object_set(element, "synth-gain", kMidiGain, nullptr);
        if (const char* font = SoundFont()) {
            g_object_set(element, "soundfont", font, nullptr);
        }
    }
}

/// The decoder's own enumeration has no public header.
enum AutoplugAnswer : gint { kAutoplugTry = 0, kAutoplugSkip = 2 };

gint ChooseDecoder(GstElement*, GstPad*, GstCaps*, GstElementFactory* factory, gpointer) {
    const gchar* kind = gst_element_factory_get_metadata(factory, GST_ELEMENT_METADATA_KLASS);
    const std::string_view words = kind ? kind : "";
    const bool leavesTheFile = words.find("Adaptive") != std::string_view::npos ||
                               words.find("Network") != std::string_view::npos ||
                               words.find("Source") != std::string_view::npos;
    return leavesTheFile ? kAutoplugSkip : kAutoplugTry;
}

using OnStream = std::function<PadPtr(const std::string&)>;

void LinkStream(GstElement*, GstPad* pad, gpointer data) {
    CapsPtr caps(gst_pad_get_current_caps(pad));
    if (!caps) {
        caps.reset(gst_pad_query_caps(pad, nullptr));
    }
    if (!caps || gst_caps_is_empty(caps.get()) || gst_caps_is_any(caps.get())) {
        return;
    }
    const std::string name = gst_structure_get_name(gst_caps_get_structure(caps.get(), 0));
    const PadPtr taker = (*static_cast<OnStream*>(data))(name.substr(0, name.find('/')));
    if (taker && !gst_pad_is_linked(taker.get())) {
        gst_pad_link(pad, taker.get());
    }
}

}  // namespace

namespace {

/// True while a thread of the stream has work, or may have.
bool AnyThreadRuns(GstElement& pipeline) {
    bool runs = false;
    GstIterator* elements = gst_bin_iterate_recurse(GST_BIN(&pipeline));
    const auto look = [](const GValue* item, gpointer found) {
        gst_element_foreach_pad(
            GST_ELEMENT(g_value_get_object(item)),
            [](GstElement*, GstPad* pad, gpointer result) -> gboolean {
                if (gst_pad_get_task_state(pad) == GST_TASK_STARTED) {
                    *static_cast<bool*>(result) = true;
                }
                return TRUE;
            },
            found);
    };
    while (gst_iterator_foreach(elements, look, &runs) == GST_ITERATOR_RESYNC) {
        gst_iterator_resync(elements);
    }
    gst_iterator_free(elements);
    return runs;
}

}  // namespace

ElementPtr MakePipeline(std::function<void(StreamEvent)> onEvent) {
    ElementPtr pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
    const BusPtr bus(gst_element_get_bus(pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), TakeMessage,
                             new std::function<void(StreamEvent)>(std::move(onEvent)),
                             Delete<std::function<void(StreamEvent)>>);
    return pipeline;
}

void SeekPaused(GstElement& pipeline, double seconds) {
    constexpr GstClockTime kPrerollLimit = 5 * GST_SECOND;
    gst_element_get_state(&pipeline, nullptr, nullptr, kPrerollLimit);
    gst_element_seek_simple(&pipeline, GST_FORMAT_TIME,
                            static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_KEY_UNIT),
                            static_cast<gint64>(seconds * GST_SECOND));
}

void DropPipeline(ElementPtr& pipeline) {
    if (!pipeline) {
        return;
    }
    // A decoder that is still looking at its file may refuse at first.
    for (int attempt = 0; attempt < kStopAttempts; ++attempt) {
        if (gst_element_set_state(pipeline.get(), GST_STATE_NULL) != GST_STATE_CHANGE_FAILURE) {
            break;
        }
        g_usleep(kStopPauseUs);
    }
    const BusPtr bus(gst_element_get_bus(pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), nullptr, nullptr, nullptr);
    pipeline.reset();
}

bool StartWatch::Hopeless(GstElement& pipeline) {
    idlePolls = AnyThreadRuns(pipeline) ? 0 : idlePolls + 1;
    return ++polls > kMostStartPolls || idlePolls > kMostIdlePolls;
}

bool AddPcmSource(GstElement& pipeline, GstElement& to, std::unique_ptr<PcmSource> source,
                  bool loop) {
    GstElement* element = Add(pipeline, "appsrc");
    if (!element) {
        return false;
    }
    const CapsPtr caps(gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING,
                                           GST_AUDIO_NE(F32), "layout", G_TYPE_STRING,
                                           "interleaved", "rate", G_TYPE_INT, source->rate,
                                           "channels", G_TYPE_INT, source->channels, nullptr));
    const guint64 bytesASecond =
        sizeof(float) * static_cast<guint64>(source->rate) * static_cast<guint64>(source->channels);
    g_object_set(element, "caps", caps.get(), "format", GST_FORMAT_TIME, "max-bytes",
                 bytesASecond * kQueuedSeconds, nullptr);
    auto feed = std::make_shared<Feed>();
    feed->source = std::move(source);
    feed->loop = loop;
    GstAppSrcCallbacks callbacks{};
    callbacks.need_data = NeedData;
    gst_app_src_set_callbacks(GST_APP_SRC(element), &callbacks,
                              new std::shared_ptr<Feed>(std::move(feed)),
                              Delete<std::shared_ptr<Feed>>);
    return gst_element_link_pads(element, "src", &to, "sink") != FALSE;
}

bool AddMidiSource(GstElement& pipeline, GstElement& to, const std::string& nativePath) {
    GstElement* file = AddFile(pipeline, nativePath);
    GstElement* parser = Add(pipeline, "midiparse");
    GstElement* instrument = Add(pipeline, "fluiddec");
    if (!file || !parser || !instrument) {
        return false;
    }
    SetUpInstrument(instrument);
    return gst_element_link_many(file, parser, instrument, nullptr) &&
           gst_element_link_pads(instrument, "src", &to, "sink");
}

bool AddDecoder(GstElement& pipeline, const std::string& nativePath, OnStream onStream) {
    GstElement* file = AddFile(pipeline, nativePath);
    GstElement* decoder = Add(pipeline, "decodebin");
    if (!file || !decoder) {
        return false;
    }
    g_signal_connect(decoder, "autoplug-select", G_CALLBACK(ChooseDecoder), nullptr);
    g_signal_connect(decoder, "deep-element-added",
                     G_CALLBACK(+[](GstBin*, GstBin*, GstElement* element, gpointer) {
                         SetUpInstrument(element);
                     }),
                     nullptr);
    g_signal_connect_data(
        decoder, "pad-added", G_CALLBACK(LinkStream), new OnStream(std::move(onStream)),
        [](gpointer data, GClosure*) { Delete<OnStream>(data); }, GConnectFlags{});
    return gst_element_link(file, decoder) != FALSE;
}

}  // namespace gst_adapter
