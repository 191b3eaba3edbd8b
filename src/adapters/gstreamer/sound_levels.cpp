#include "adapters/gstreamer/sound_levels.h"

#include <gst/app/gstappsink.h>
#include <gst/audio/audio.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>
#include <string_view>

#include "adapters/gstreamer/handles.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/pcm_source.h"
#include "adapters/gstreamer/pipeline.h"

namespace gst_adapter {

namespace {

constexpr int kMomentsASecond = 50;
constexpr size_t kMostMoments = size_t{kMomentsASecond} * 3600 * kLongestHours;
constexpr size_t kBlockFrames = 4096;
constexpr GstClockTime kWait = 100 * GST_MSECOND;
constexpr int kMostWaits = 100;  // without a sample

/// The loudest sample of each moment.
class Moments {
public:
    /// False when there is no room for more.
    bool Add(const float* samples, size_t frames, size_t channels, int rate) {
        const size_t long_ = std::max<size_t>(1, static_cast<size_t>(rate / kMomentsASecond));
        for (size_t frame = 0; frame < frames; ++frame) {
            for (size_t channel = 0; channel < channels; ++channel) {
                const float sample = std::fabs(samples[frame * channels + channel]);
                loudest_ = sample > loudest_ ? sample : loudest_;  // no number is not louder
            }
            if (++frames_ == long_) {
                Close();
            }
        }
        return moments_.size() < kMostMoments;
    }

    std::vector<uint8_t> In(size_t parts) {
        if (frames_ > 0) {
            Close();
        }
        std::vector<uint8_t> levels;
        for (size_t part = 0; part < parts && !moments_.empty(); ++part) {
            const size_t first = part * moments_.size() / parts;
            const size_t end = std::max(first + 1, (part + 1) * moments_.size() / parts);
            levels.push_back(*std::max_element(
                moments_.begin() + static_cast<std::ptrdiff_t>(first),
                moments_.begin() + static_cast<std::ptrdiff_t>(std::min(end, moments_.size()))));
        }
        return levels;
    }

private:
    void Close() {
        moments_.push_back(static_cast<uint8_t>(std::lround(std::min(loudest_, 1.0f) * 255.0f)));
        loudest_ = 0;
        frames_ = 0;
    }

    std::vector<uint8_t> moments_;
    float loudest_ = 0;
    size_t frames_ = 0;  // of the moment that is not over
};

/// False when it was ended.
bool Read(PcmSource& source, Moments& moments, const std::function<bool()>& goOn) {
    const auto channels = static_cast<size_t>(source.channels);
    std::vector<float> block(kBlockFrames * channels);
    while (goOn()) {
        const size_t frames = source.Read(block.data(), kBlockFrames);
        if (frames == 0 || !moments.Add(block.data(), frames, channels, source.rate)) {
            return true;
        }
    }
    return false;
}

/// Takes a sample that the pipeline has decoded, one channel.
bool Add(GstSample& sample, Moments& moments) {
    int rate = 0;
    const GstCaps* caps = gst_sample_get_caps(&sample);
    GstBuffer* buffer = gst_sample_get_buffer(&sample);
    GstMapInfo map;
    if (!caps || !buffer ||
        !gst_structure_get_int(gst_caps_get_structure(caps, 0), "rate", &rate) ||
        !gst_buffer_map(buffer, &map, GST_MAP_READ)) {
        return true;
    }
    const bool room =
        moments.Add(reinterpret_cast<const float*>(map.data), map.size / sizeof(float), 1, rate);
    gst_buffer_unmap(buffer, &map);
    return room;
}

/// The end of the pipeline: `entry` takes samples of any form. Null when the library lacks a part.
GstAppSink* AddListener(GstElement& pipeline, GstElement*& entry) {
    entry = gst_element_factory_make("audioconvert", nullptr);
    GstElement* sink = gst_element_factory_make("appsink", nullptr);
    if (!entry || !sink) {
        for (GstElement* part : {entry, sink}) {
            if (part) {
                gst_object_unref(gst_object_ref_sink(part));
            }
        }
        return nullptr;
    }
    const CapsPtr caps(gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING,
                                           GST_AUDIO_NE(F32), "layout", G_TYPE_STRING,
                                           "interleaved", "channels", G_TYPE_INT, 1, nullptr));
    constexpr guint kHeldBuffers = 50;
    g_object_set(sink, "caps", caps.get(), "sync", FALSE, "max-buffers", kHeldBuffers, nullptr);
    gst_bin_add_many(GST_BIN(&pipeline), entry, sink, nullptr);
    return gst_element_link(entry, sink) ? GST_APP_SINK(sink) : nullptr;
}

bool Listen(const std::string& nativePath, Moments& moments, const std::function<bool()>& goOn) {
    const auto failed = std::make_shared<std::atomic<bool>>(false);
    ElementPtr pipeline = MakePipeline([failed](StreamEvent event) {
        if (event == StreamEvent::Error || event == StreamEvent::SinkError) {
            *failed = true;
        }
    });
    GstElement* entry = nullptr;
    GstAppSink* sink = AddListener(*pipeline, entry);
    const bool made =
        sink && AddDecoder(*pipeline, nativePath, [entry](const std::string& kind) {
            return PadPtr(kind == "audio" ? gst_element_get_static_pad(entry, "sink") : nullptr);
        });
    if (made) {
        gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    }
    bool goes = true;
    for (int waits = 0; made && waits < kMostWaits && !*failed;) {
        goes = goOn();
        if (!goes || gst_app_sink_is_eos(sink)) {
            break;
        }
        const SamplePtr sample(gst_app_sink_try_pull_sample(sink, kWait));
        waits = sample ? 0 : waits + 1;
        if (sample && !Add(*sample, moments)) {
            break;
        }
    }
    DropPipeline(pipeline);
    return goes;
}

}  // namespace

std::vector<uint8_t> LevelsOf(const std::string& nativePath, size_t parts,
                              const std::function<bool()>& goOn) {
    Moments moments;
    if (const std::unique_ptr<PcmSource> wave = OpenWaveFile(nativePath)) {
        return Read(*wave, moments, goOn) ? moments.In(parts) : std::vector<uint8_t>();
    }
    EnsureLibrary();
    return Listen(nativePath, moments, goOn) ? moments.In(parts) : std::vector<uint8_t>();
}

}  // namespace gst_adapter
