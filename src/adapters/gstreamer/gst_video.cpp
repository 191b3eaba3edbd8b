#include "adapters/gstreamer/gst_video.h"

#include <gst/app/gstappsink.h>
#include <gst/video/video.h>

#include <mutex>
#include <string>
#include <utility>

#include "adapters/gstreamer/audio_tail.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/pipeline.h"
#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

using platform::VideoState;

namespace {

// A header that asks for more is taken for damage.
constexpr const char* kPictureCaps = "video/x-raw,format=BGRx,width=[1,8192],height=[1,8192]";

/// The newest picture on its way from the stream to the window.
struct Mailbox {
    std::mutex mutex;
    std::shared_ptr<GstBuffer> buffer;
    GstVideoInfo format{};
    std::function<void()> onPicture;  // on a thread of the stream

    void Take(GstSample* sample) {
        GstVideoInfo given;
        GstBuffer* buffered = sample ? gst_sample_get_buffer(sample) : nullptr;
        if (!buffered || !gst_video_info_from_caps(&given, gst_sample_get_caps(sample))) {
            return;
        }
        {
            const std::lock_guard lock(mutex);
            format = given;
            buffer.reset(gst_buffer_ref(buffered), [](GstBuffer* old) { gst_buffer_unref(old); });
        }
        onPicture();
    }
};

struct MappedFrame {
    std::shared_ptr<GstBuffer> buffer;
    GstVideoFrame frame{};
    bool mapped = false;
    ~MappedFrame() {
        if (mapped) {
            gst_video_frame_unmap(&frame);
        }
    }
};

/// A bin with the pad "sink", floating, that hands its pictures to the mailbox; null when the
/// library lacks a part.
GstElement* MakePictureTail(const std::shared_ptr<Mailbox>& mailbox) {
    GstElement* bin = gst_bin_new(nullptr);
    GstElement* parts[] = {
        gst_element_factory_make("videoconvert", nullptr),
        gst_element_factory_make("capsfilter", nullptr),
        gst_element_factory_make("videoflip", nullptr),
        gst_element_factory_make("appsink", nullptr),
    };
    bool whole = true;
    for (GstElement* part : parts) {
        whole = part && gst_bin_add(GST_BIN(bin), part) && whole;
    }
    if (!whole || !gst_element_link_many(parts[0], parts[1], parts[2], parts[3], nullptr)) {
        gst_object_unref(gst_object_ref_sink(bin));
        return nullptr;
    }
    const CapsPtr caps(gst_caps_from_string(kPictureCaps));
    g_object_set(parts[1], "caps", caps.get(), nullptr);
    // Telephones write down how they were held.
    gst_util_set_object_arg(G_OBJECT(parts[2]), "video-direction", "auto");
    g_object_set(parts[3], "max-buffers", 2, "qos", TRUE, nullptr);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_preroll = [](GstAppSink* sink, gpointer data) {
        const SamplePtr sample(gst_app_sink_pull_preroll(sink));
        (*static_cast<std::shared_ptr<Mailbox>*>(data))->Take(sample.get());
        return GST_FLOW_OK;
    };
    callbacks.new_sample = [](GstAppSink* sink, gpointer data) {
        const SamplePtr sample(gst_app_sink_pull_sample(sink));
        (*static_cast<std::shared_ptr<Mailbox>*>(data))->Take(sample.get());
        return GST_FLOW_OK;
    };
    gst_app_sink_set_callbacks(
        GST_APP_SINK(parts[3]), &callbacks, new std::shared_ptr<Mailbox>(mailbox),
        [](gpointer data) { delete static_cast<std::shared_ptr<Mailbox>*>(data); });
    const PadPtr entry(gst_element_get_static_pad(parts[0], "sink"));
    gst_element_add_pad(bin, gst_ghost_pad_new("sink", entry.get()));
    return bin;
}

}  // namespace

struct GstVideo::Core : std::enable_shared_from_this<GstVideo::Core> {
    Core(std::string file, std::shared_ptr<AudioOutput> where, GstVideo* shownBy, Post toPost)
        : path(std::move(file)),
          output(std::move(where)),
          owner(shownBy),
          post(std::move(toPost)) {}

    // Any thread.
    const std::string path;
    const std::shared_ptr<AudioOutput> output;
    const std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>();
    std::atomic<bool> loop{false};
    std::atomic<bool> told{false};  // a call of onFrame is on its way
    std::mutex mutex;
    VideoState state = VideoState::Loading;
    GstVideo* owner;  // null: nobody is told any more
    Post post;

    // The worker's alone.
    ElementPtr pipeline;
    std::shared_ptr<TailState> sound;
    int build = 0;
    bool started = false;
    bool silent = false;
    std::atomic<bool> shown{false};  // since the last beginning
    bool everShown = false;
    StartWatch watch;

    Worker worker;  // last: its thread may be the one that destroys the rest

    void Tell();
    void SetState(VideoState next);
    void Build(double from);
    PadPtr PadFor(const std::string& kind);
    void Drop();
    void Start();
    void Take(StreamEvent event, int ofBuild);
    void AtEnd();
    void Finish();
    void GoOnSilently();
    void Leave();
};

/// The window hears of many pictures by one call.
void GstVideo::Core::Tell() {
    if (told.exchange(true)) {
        return;
    }
    const std::lock_guard lock(mutex);
    if (!owner) {
        return;
    }
    post([self = weak_from_this()] {
        const auto core = self.lock();
        if (!core) {
            return;
        }
        core->told = false;
        // `owner` changes on this thread only.
        if (core->owner && core->owner->onFrame) {
            core->owner->onFrame();
        }
    });
}

void GstVideo::Core::SetState(VideoState next) {
    {
        const std::lock_guard lock(mutex);
        state = next;
    }
    Tell();
}

PadPtr GstVideo::Core::PadFor(const std::string& kind) {
    const ElementPtr first(gst_bin_get_by_name(GST_BIN(pipeline.get()), kind.c_str()));
    if (first) {
        return nullptr;  // of several streams of a kind the first one plays
    }
    GstElement* tail = kind == "video"   ? MakePictureTail(mailbox)
                       : kind == "audio" ? MakeAudioTail(*output, silent, sound)
                                         : nullptr;
    if (!tail) {
        return nullptr;
    }
    gst_object_set_name(GST_OBJECT(tail), kind.c_str());
    gst_bin_add(GST_BIN(pipeline.get()), tail);
    gst_element_sync_state_with_parent(tail);
    return PadPtr(gst_element_get_static_pad(tail, "sink"));
}

void GstVideo::Core::Build(double from) {
    EnsureLibrary();
    const int number = ++build;
    const std::weak_ptr<Core> self = weak_from_this();
    const auto onEvent = [self, number](StreamEvent event) {
        if (const auto core = self.lock()) {
            core->worker.Post([core, event, number] { core->Take(event, number); });
        }
    };
    mailbox->onPicture = [self] {
        if (const auto core = self.lock()) {
            core->shown = true;
            core->Tell();
        }
    };
    pipeline = MakePipeline(onEvent);
    sound = std::make_shared<TailState>();
    started = false;
    shown = false;
    if (!AddDecoder(*pipeline, path, [self](const std::string& kind) {
            const auto core = self.lock();
            return core ? core->PadFor(kind) : nullptr;
        })) {
        onEvent(StreamEvent::Error);
        return;
    }
    gst_element_set_state(pipeline.get(), GST_STATE_PAUSED);
    if (from > 0) {
        SeekPaused(*pipeline, from);
    }
}

void GstVideo::Core::Drop() {
    ++build;
    worker.Poll(0, nullptr);
    DropPipeline(pipeline);
}

void GstVideo::Core::Start() {
    if (pipeline && started) {
        return;
    }
    if (!pipeline) {
        Build(0);
    }
    started = true;
    watch = {};
    worker.Poll(StartWatch::kPollMs, [self = weak_from_this()] {
        const auto core = self.lock();
        if (core && core->pipeline && core->watch.Hopeless(*core->pipeline)) {
            core->Finish();
        }
    });
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
}

void GstVideo::Core::Finish() {
    const bool some = everShown || shown || (sound && sound->heard);
    Drop();
    SetState(some ? VideoState::Stopped : VideoState::Ready);
}

void GstVideo::Core::AtEnd() {
    const bool some = shown || sound->heard;
    if (!loop || !some) {
        Finish();
        return;
    }
    everShown = true;
    shown = false;
    sound->heard = false;
    if (!gst_element_seek_simple(
            pipeline.get(), GST_FORMAT_TIME,
            static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_KEY_UNIT), 0)) {
        // What cannot be wound back is opened anew.
        Drop();
        Start();
    }
}

void GstVideo::Core::GoOnSilently() {
    if (silent) {
        Finish();
        return;
    }
    output->Broke();
    silent = true;
    gint64 seen = 0;
    if (!gst_element_query_position(pipeline.get(), GST_FORMAT_TIME, &seen)) {
        seen = 0;
    }
    const bool goesOn = started;
    Drop();
    Build(static_cast<double>(seen) / GST_SECOND);
    if (goesOn) {
        Start();
    }
}

void GstVideo::Core::Take(StreamEvent event, int ofBuild) {
    if (ofBuild != build || !pipeline) {
        return;
    }
    switch (event) {
        case StreamEvent::Playing:
            worker.Poll(0, nullptr);
            SetState(VideoState::Playing);
            break;
        case StreamEvent::End:
            if (started) {
                AtEnd();
            }
            break;
        case StreamEvent::Error:
            Finish();
            break;
        case StreamEvent::SinkError:
            GoOnSilently();
            break;
        case StreamEvent::ClockLost:
            gst_element_set_state(pipeline.get(), GST_STATE_PAUSED);
            gst_element_set_state(pipeline.get(), started ? GST_STATE_PLAYING : GST_STATE_PAUSED);
            break;
    }
}

/// Nobody is told any more, and everything is freed on the worker.
void GstVideo::Core::Leave() {
    {
        const std::lock_guard lock(mutex);
        owner = nullptr;
        post = nullptr;
    }
    worker.Post([core = shared_from_this()] {
        core->Drop();
        const std::lock_guard lock(core->mailbox->mutex);
        core->mailbox->buffer.reset();
    });
}

GstVideo::GstVideo(platform::Files& files, std::shared_ptr<AudioOutput> output, Post post)
    : files_(files), output_(std::move(output)), post_(std::move(post)) {}

GstVideo::~GstVideo() {
    Close();
}

void GstVideo::SetUrl(TextView path) {
    Close();
    named_ = !path.empty();
    const auto found = named_ ? files_.Find(path) : std::nullopt;
    if (!found) {
        return;
    }
    core_ = std::make_shared<Core>(*found, output_, this, post_);
    core_->loop = loop_;
    if (!core_->worker.Post([core = core_] { core->Build(0); })) {
        core_.reset();
    }
}

void GstVideo::Play() {
    if (!core_) {
        return;
    }
    {
        const std::lock_guard lock(core_->mutex);
        if (core_->state != VideoState::Playing) {
            core_->state = VideoState::Loading;
        }
    }
    core_->worker.Post([core = core_] { core->Start(); });
}

void GstVideo::SetLoop(bool on) {
    loop_ = on;
    if (core_) {
        core_->loop = on;
    }
}

void GstVideo::Close() {
    named_ = false;
    if (core_) {
        core_->Leave();
        core_.reset();
    }
}

VideoState GstVideo::Status() {
    if (!core_) {
        return named_ ? VideoState::Ready : VideoState::Nothing;
    }
    const std::lock_guard lock(core_->mutex);
    return core_->state;
}

platform::Size GstVideo::NaturalSize() {
    if (!core_) {
        return {};
    }
    const std::lock_guard lock(core_->mailbox->mutex);
    const GstVideoInfo& format = core_->mailbox->format;
    if (!core_->mailbox->buffer) {
        return {};
    }
    const int across = GST_VIDEO_INFO_PAR_N(&format);
    const int down = GST_VIDEO_INFO_PAR_D(&format);
    const auto width = static_cast<int>(
        gst_util_uint64_scale_int_round(static_cast<guint64>(GST_VIDEO_INFO_WIDTH(&format)),
                                        across > 0 ? across : 1, down > 0 ? down : 1));
    return {width, GST_VIDEO_INFO_HEIGHT(&format)};
}

platform::VideoFrame GstVideo::Frame() {
    if (!core_) {
        return {};
    }
    auto mapped = std::make_shared<MappedFrame>();
    const std::lock_guard lock(core_->mailbox->mutex);
    mapped->buffer = core_->mailbox->buffer;
    if (!mapped->buffer || !gst_video_frame_map(&mapped->frame, &core_->mailbox->format,
                                                mapped->buffer.get(), GST_MAP_READ)) {
        return {};
    }
    mapped->mapped = true;
    const GstVideoFrame& frame = mapped->frame;
    return {static_cast<const uint8_t*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, 0)),
            GST_VIDEO_FRAME_WIDTH(&frame), GST_VIDEO_FRAME_HEIGHT(&frame),
            GST_VIDEO_FRAME_PLANE_STRIDE(&frame, 0), mapped};
}

}  // namespace gst_adapter
