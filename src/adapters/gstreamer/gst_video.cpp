#include "adapters/gstreamer/gst_video.h"

#include <chrono>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

#include "adapters/gstreamer/audio_tail.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/picture_slot.h"
#include "adapters/gstreamer/pipeline.h"
#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

using platform::VideoState;

namespace {

constexpr auto kSizePoll = std::chrono::milliseconds(2);

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
    const std::shared_ptr<PictureSlot> pictures = std::make_shared<PictureSlot>();
    std::atomic<bool> loop{false};
    std::atomic<bool> told{false};  // a call of onFrame is on its way
    std::mutex mutex;
    VideoState state = VideoState::Loading;
    GstVideo* owner;  // null: there is nobody left to call
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

/// One call announces many pictures.
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
    GstElement* tail = kind == "video"   ? pictures->MakeTail()
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
    pictures->onPicture = [self] {
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
    // Of a short film that a busy machine plays, all pictures of a round can come too late.
    everShown = everShown || shown || sound->heard;
    if (!loop || !everShown) {
        Finish();
        return;
    }
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

/// Calls the owner no more; everything is freed on the worker.
void GstVideo::Core::Leave() {
    {
        const std::lock_guard lock(mutex);
        owner = nullptr;
        post = nullptr;
    }
    worker.Post([core = shared_from_this()] {
        core->Drop();
        core->pictures->Clear();
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
    core_->pictures->SetRoom(room_);
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
    return core_ ? core_->pictures->NaturalSize() : platform::Size{};
}

void GstVideo::AwaitSize(int milliseconds) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (Status() == VideoState::Loading && NaturalSize().Empty() && Clock::now() < end) {
        std::this_thread::sleep_for(kSizePoll);
    }
}

void GstVideo::SetRoom(platform::Size room) {
    room_ = room;
    if (core_) {
        core_->pictures->SetRoom(room);
    }
}

platform::VideoFrame GstVideo::Frame() {
    return core_ ? core_->pictures->Newest() : platform::VideoFrame{};
}

}  // namespace gst_adapter
