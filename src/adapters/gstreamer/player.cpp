#include "adapters/gstreamer/player.h"

#include <mutex>
#include <utility>

#include "adapters/gstreamer/audio_tail.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/pipeline.h"
#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

namespace {

constexpr int kEndPollMs = 20;
constexpr int kPositionPollMs = 100;
constexpr int kStalledPolls = 250;  // five seconds without progress after the last sample

}  // namespace

struct Player::Core : std::enable_shared_from_this<Player::Core> {
    Core(Media what, std::shared_ptr<AudioOutput> where)
        : media(std::move(what)), output(std::move(where)), wantsPosition(media.wantsPosition) {}

    // Any thread.
    const Media media;
    const std::shared_ptr<AudioOutput> output;
    const std::shared_ptr<std::atomic<float>> volume = std::make_shared<std::atomic<float>>(1.0f);
    std::atomic<double> position{0};
    std::atomic<bool> wantsPosition;
    std::mutex mutex;
    bool playing = false;
    int request = 0;  // counts Play and Stop: an end that comes late belongs to an older one

    // The worker's alone.
    ElementPtr pipeline;
    std::shared_ptr<TailState> tail;
    PadPtr gate;           // where samples are held back until Play
    gulong gateProbe = 0;  // 0: open
    int build = 0;         // counts pipelines: an event that comes late belongs to an older one
    bool started = false;
    bool silent = false;
    int startedRequest = 0;
    double offset = 0;  // seconds of the piece before this pipeline's time 0
    gint64 lastPosition = -1;
    int stalled = 0;
    bool running = false;  // this pipeline has come to play
    StartWatch watch;

    Worker worker;  // last: its thread may be the one that destroys the rest

    void Build(double from);
    bool AddSource(GstElement& entry, double from);
    void CloseGate(GstElement& entry);
    void OpenGate();
    void Drop();
    void Start(int forRequest, double from = 0);
    void Finish();
    void Take(StreamEvent event, int ofBuild);
    void GoOnSilently();
    void PollNow();
    void SetPolling();
};

bool Player::Core::AddSource(GstElement& entry, double from) {
    if (media.open || media.kind == Media::Kind::Wave) {
        std::unique_ptr<PcmSource> source =
            media.open ? media.open() : OpenWaveFile(media.nativePath);
        if (source) {
            if (from > 0) {
                source->Seek(static_cast<int64_t>(from * source->rate));
                offset = from;
            }
            return AddPcmSource(*pipeline, entry, std::move(source), media.loop);
        }
        if (media.open) {
            return false;
        }
    }
    if (media.kind == Media::Kind::Midi) {
        return AddMidiSource(*pipeline, entry, media.nativePath);
    }
    // The entry outlives the decoder's signals: both are parts of one pipeline.
    return AddDecoder(*pipeline, media.nativePath, [&entry](const std::string& kind) {
        return PadPtr(kind == "audio" ? gst_element_get_static_pad(&entry, "sink") : nullptr);
    });
}

/// A sink that pauses would ask for the first samples at once, and they would keep the volume of
/// that moment however it is set before Play.
void Player::Core::CloseGate(GstElement& entry) {
    constexpr auto kSamples = static_cast<GstPadProbeType>(
        GST_PAD_PROBE_TYPE_BLOCK | GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_BUFFER_LIST);
    gate.reset(gst_element_get_static_pad(&entry, "sink"));
    gateProbe = gst_pad_add_probe(
        gate.get(), kSamples, [](GstPad*, GstPadProbeInfo*, gpointer) { return GST_PAD_PROBE_OK; },
        nullptr, nullptr);
}

void Player::Core::OpenGate() {
    if (gateProbe != 0) {
        gst_pad_remove_probe(gate.get(), gateProbe);
        gateProbe = 0;
    }
    gate.reset();
}

void Player::Core::Build(double from) {
    EnsureLibrary();
    const int number = ++build;
    const std::weak_ptr<Core> self = weak_from_this();
    const auto post = [self, number](StreamEvent event) {
        if (const auto core = self.lock()) {
            core->worker.Post([core, event, number] { core->Take(event, number); });
        }
    };
    pipeline = MakePipeline(post);
    tail = std::make_shared<TailState>();
    tail->volume = volume;
    tail->onEndKnown = [self] {
        if (const auto core = self.lock()) {
            core->worker.Post([core] { core->SetPolling(); });
        }
    };
    offset = 0;
    lastPosition = -1;
    started = false;
    running = false;
    watch = {};
    GstElement* entry = MakeAudioTail(*output, silent, tail);
    if (entry) {
        gst_bin_add(GST_BIN(pipeline.get()), entry);
    }
    if (!entry || !AddSource(*entry, from)) {
        post(StreamEvent::Error);
        return;
    }
    if (from == 0) {  // a seek needs the samples, and nothing is set before going on
        CloseGate(*entry);
    }
    gst_element_set_state(pipeline.get(), GST_STATE_PAUSED);
    if (from > 0 && offset == 0) {
        SeekPaused(*pipeline, from);
    }
}

void Player::Core::Drop() {
    ++build;
    worker.Poll(0, nullptr);
    DropPipeline(pipeline);
    OpenGate();  // after the pipeline's end: nothing of it is heard any more
}

void Player::Core::Start(int forRequest, double from) {
    if (!pipeline || started || from > 0) {
        Drop();
        Build(from);
    }
    started = true;
    startedRequest = forRequest;
    stalled = 0;
    OpenGate();
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    SetPolling();
}

void Player::Core::Finish() {
    Drop();
    const std::lock_guard lock(mutex);
    if (request == startedRequest) {
        playing = false;
    }
}

void Player::Core::Take(StreamEvent event, int ofBuild) {
    if (ofBuild != build || !pipeline) {
        return;
    }
    switch (event) {
        case StreamEvent::End:
            // Samples that this program reads loop without coming to an end.
            if (media.loop && started && tail->heard) {
                Start(startedRequest);
            } else if (started) {
                Finish();
            }
            break;
        case StreamEvent::Error:
            if (started) {
                Finish();
            } else {
                Drop();  // Play tries again, and finds the same
            }
            break;
        case StreamEvent::SinkError:
            GoOnSilently();
            break;
        case StreamEvent::ClockLost:
            gst_element_set_state(pipeline.get(), GST_STATE_PAUSED);
            gst_element_set_state(pipeline.get(), started ? GST_STATE_PLAYING : GST_STATE_PAUSED);
            break;
        case StreamEvent::Playing:
            running = true;
            SetPolling();
            break;
    }
}

void Player::Core::GoOnSilently() {
    if (silent) {
        Finish();
        return;
    }
    output->Broke();
    silent = true;
    gint64 heard = 0;
    if (!gst_element_query_position(pipeline.get(), GST_FORMAT_TIME, &heard) || heard < 0) {
        heard = lastPosition > 0 ? lastPosition : 0;
    }
    const double from = offset + static_cast<double>(heard) / GST_SECOND;
    const bool goesOn = started;
    Drop();
    Build(from);
    if (goesOn && pipeline) {
        Start(startedRequest);
    }
}

void Player::Core::SetPolling() {
    if (!pipeline || !started) {
        return;
    }
    const int interval = tail->endTime >= 0 ? kEndPollMs
                         : !running         ? StartWatch::kPollMs
                         : wantsPosition    ? kPositionPollMs
                                            : 0;
    worker.Poll(interval, [self = weak_from_this()] {
        if (const auto core = self.lock()) {
            core->PollNow();
        }
    });
}

void Player::Core::PollNow() {
    if (pipeline && !running && tail->endTime < 0 && watch.Hopeless(*pipeline)) {
        Take(StreamEvent::Error, build);
        return;
    }
    gint64 heard = -1;
    if (!pipeline || !gst_element_query_position(pipeline.get(), GST_FORMAT_TIME, &heard)) {
        heard = -1;
    }
    if (heard >= 0) {
        position = offset + static_cast<double>(heard) / GST_SECOND;
    }
    // Some sinks tell the end seconds late: what the listener hears counts.
    const gint64 end = tail->endTime;
    stalled = heard == lastPosition && end >= 0 ? stalled + 1 : 0;
    lastPosition = heard;
    if (end >= 0 && (heard >= end || stalled > kStalledPolls)) {
        Take(StreamEvent::End, build);
    }
}

Player::Player(Media media, std::shared_ptr<AudioOutput> output)
    : core_(std::make_shared<Core>(std::move(media), std::move(output))) {
    core_->worker.Post([core = core_] { core->Build(0); });
}

Player::~Player() {
    Stop();
}

void Player::Play(double from) {
    const std::lock_guard lock(core_->mutex);
    const int request = ++core_->request;
    core_->position = from;
    core_->playing =
        core_->worker.Post([core = core_, request, from] { core->Start(request, from); });
}

void Player::Stop() {
    const std::lock_guard lock(core_->mutex);
    ++core_->request;
    core_->playing = false;
    core_->worker.Post([core = core_] { core->Drop(); });
}

void Player::SetVolume(double amplitude) {
    *core_->volume = static_cast<float>(amplitude);
}

bool Player::Playing() const {
    const std::lock_guard lock(core_->mutex);
    return core_->playing;
}

double Player::Position() const {
    return core_->position;
}

void Player::WantPosition() {
    if (!core_->wantsPosition.exchange(true)) {
        core_->worker.Post([core = core_] { core->SetPolling(); });
    }
}

}  // namespace gst_adapter
