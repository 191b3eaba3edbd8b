#include "adapters/gstreamer/recorder.h"

#include <fcntl.h>
#include <gst/app/gstappsink.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <mutex>
#include <utility>

#include "adapters/gstreamer/handles.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/pipeline.h"
#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kMsPerSecond = 1000;
constexpr double kFullAmplitude = 32768;

/// A file on a disk, without a name. -1: none can be made.
int OpenTemporary() {
    const char* chosen = std::getenv("TMPDIR");
    for (const char* folder : {chosen && *chosen ? chosen : "/var/tmp", "/var/tmp", "/tmp"}) {
        int file = open(folder, O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
        if (file < 0) {  // some disks have names only; mkostemp fills the six letters in
            std::string name = std::string(folder) + "/parapico-XXXXXX";
            file = mkostemp(name.data(), O_CLOEXEC);
            if (file >= 0) {
                unlink(name.c_str());
            }
        }
        if (file >= 0) {
            return file;
        }
    }
    return -1;
}

bool WriteAll(int file, const char* bytes, size_t size) {
    while (size > 0) {
        const ssize_t written = write(file, bytes, size);
        if (written < 0 && errno != EINTR) {
            return false;
        }
        const auto done = static_cast<size_t>(std::max<ssize_t>(written, 0));
        bytes += done;
        size -= done;
    }
    return true;
}

/// Of samples of 16 bits in this machine's order.
int PeakOf(const char* bytes, size_t size) {
    const auto* samples = reinterpret_cast<const int16_t*>(bytes);
    int peak = 0;
    for (size_t i = 0; i < size / sizeof(int16_t); ++i) {
        peak = std::max(peak, std::abs(static_cast<int>(samples[i])));
    }
    return peak;
}

/// The content of an open file, for as long as it lives. Null where it cannot be had.
class Mapped {
public:
    Mapped(int file, size_t size)
        : size_(size), start_(mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0)) {}
    ~Mapped() {
        if (Valid()) {
            munmap(start_, size_);
        }
    }
    Mapped(const Mapped&) = delete;
    Mapped& operator=(const Mapped&) = delete;
    bool Valid() const { return start_ != MAP_FAILED; }
    std::string_view Content() const { return {static_cast<const char*>(start_), size_}; }

private:
    size_t size_;
    void* start_;
};

}  // namespace

struct Recorder::Core : std::enable_shared_from_this<Recorder::Core> {
    explicit Core(Microphones from) : microphones(std::move(from)) {}
    ~Core() {
        if (file >= 0) {
            close(file);
        }
    }
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;

    const Microphones microphones;
    // Any thread.
    std::mutex mutex;
    platform::WaveFormat format;
    int file = -1;
    uint32_t bytes = 0;  // of samples
    int peak = 0;
    bool taking = false;
    Clock::time_point lastSample;  // or the beginning

    // The worker's alone.
    ElementPtr pipeline;
    size_t source = 0;
    int build = 0;  // counts pipelines: an event that comes late belongs to an older one

    Worker worker;  // last: its thread may be the one that destroys the rest

    void Start();
    bool Build();
    void Drop();
    void TakeEvent(StreamEvent event, int ofBuild);
    void TakeSamples(const char* samples, size_t size);
    static GstFlowReturn NewSample(GstAppSink* sink, gpointer data);
};

GstFlowReturn Recorder::Core::NewSample(GstAppSink* sink, gpointer data) {
    const auto core = static_cast<std::weak_ptr<Core>*>(data)->lock();
    const SamplePtr sample(gst_app_sink_pull_sample(sink));
    GstBuffer* buffer = sample ? gst_sample_get_buffer(sample.get()) : nullptr;
    GstMapInfo map;
    if (core && buffer && gst_buffer_map(buffer, &map, GST_MAP_READ)) {
        core->TakeSamples(reinterpret_cast<const char*>(map.data), map.size);
        gst_buffer_unmap(buffer, &map);
    }
    return GST_FLOW_OK;
}

void Recorder::Core::TakeSamples(const char* samples, size_t size) {
    const std::lock_guard lock(mutex);
    if (!taking) {
        return;
    }
    if (size > platform::kMostWaveBytes - bytes || !WriteAll(file, samples, size)) {
        taking = false;
        return;
    }
    bytes += static_cast<uint32_t>(size);
    peak = std::max(peak, PeakOf(samples, size));
    lastSample = Clock::now();
}

/// False when a part is missing.
bool Recorder::Core::Build() {
    EnsureLibrary();
    const int number = ++build;
    const std::weak_ptr<Core> self = weak_from_this();
    pipeline = MakePipeline([self, number](StreamEvent event) {
        if (const auto core = self.lock()) {
            core->worker.Post([core, event, number] { core->TakeEvent(event, number); });
        }
    });
    GstElement* parts[] = {
        gst_parse_bin_from_description(microphones.sources[source].c_str(), TRUE, nullptr),
        gst_element_factory_make("audioconvert", nullptr),
        gst_element_factory_make("audioresample", nullptr),
        gst_element_factory_make("appsink", nullptr),
    };
    bool whole = true;
    for (GstElement* part : parts) {
        if (part) {
            gst_bin_add(GST_BIN(pipeline.get()), part);
        }
        whole = whole && part;
    }
    if (!whole) {
        return false;
    }
    auto& [input, convert, resample, sink] = parts;
    const platform::WaveFormat wanted = [this] {
        const std::lock_guard lock(mutex);
        return format;
    }();
    const CapsPtr caps(gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, "S16LE",
                                           "layout", G_TYPE_STRING, "interleaved", "rate",
                                           G_TYPE_INT, wanted.samplesPerSecond, "channels",
                                           G_TYPE_INT, wanted.channels, nullptr));
    g_object_set(sink, "caps", caps.get(), "sync", FALSE, nullptr);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = NewSample;
    gst_app_sink_set_callbacks(
        GST_APP_SINK(sink), &callbacks, new std::weak_ptr<Core>(self),
        [](gpointer data) { delete static_cast<std::weak_ptr<Core>*>(data); });
    return gst_element_link_many(input, convert, resample, sink, nullptr) &&
           gst_element_set_state(pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
}

void Recorder::Core::Drop() {
    ++build;
    if (pipeline) {
        DropPipeline(pipeline);
    }
}

void Recorder::Core::Start() {
    Drop();
    while (source < microphones.sources.size() && !Build()) {
        Drop();
        ++source;
    }
    if (source == microphones.sources.size()) {
        source = 0;
        const std::lock_guard lock(mutex);
        taking = false;
    }
}

void Recorder::Core::TakeEvent(StreamEvent event, int ofBuild) {
    if (ofBuild != build || !pipeline || event == StreamEvent::Playing) {
        return;
    }
    if (event == StreamEvent::ClockLost) {
        gst_element_set_state(pipeline.get(), GST_STATE_PAUSED);
        gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
        return;
    }
    Drop();
    bool another = false;
    {
        const std::lock_guard lock(mutex);
        another = taking && bytes == 0;  // this one has never worked
        taking = another;
    }
    if (another) {
        ++source;
        Start();
    }
}

Recorder::Recorder(Microphones microphones)
    : core_(std::make_shared<Core>(std::move(microphones))) {}

Recorder::~Recorder() {
    Stop();
}

void Recorder::SetFormat(const platform::WaveFormat& format) {
    const std::lock_guard lock(core_->mutex);
    if (core_->bytes == 0 && !core_->taking) {
        core_->format = format;
    }
}

void Recorder::Record() {
    const std::lock_guard lock(core_->mutex);
    if (core_->taking) {
        return;
    }
    if (core_->file < 0) {
        core_->file = OpenTemporary();
    }
    const off_t end = static_cast<off_t>(platform::kWaveHeaderBytes) + core_->bytes;
    core_->lastSample = Clock::now();
    core_->taking = lseek(core_->file, end, SEEK_SET) == end &&
                    core_->worker.Post([core = core_] { core->Start(); });
}

void Recorder::Stop() {
    {
        const std::lock_guard lock(core_->mutex);
        core_->taking = false;
    }
    core_->worker.Post([core = core_] { core->Drop(); });
}

std::optional<platform::RecordingState> Recorder::State() {
    const std::lock_guard lock(core_->mutex);
    if (core_->taking && Clock::now() - core_->lastSample > core_->microphones.patience) {
        core_->taking = false;
    }
    if (!core_->taking) {
        return std::nullopt;
    }
    platform::RecordingState state;
    state.milliseconds = kMsPerSecond * core_->bytes / core_->format.BytesPerSecond();
    state.peak = std::exchange(core_->peak, 0) / kFullAmplitude;
    return state;
}

bool Recorder::Save(platform::Files& files, TextView path) {
    const std::lock_guard lock(core_->mutex);
    const std::string header = platform::WaveHeader(core_->format, core_->bytes);
    if (core_->bytes == 0 || pwrite(core_->file, header.data(), header.size(), 0) !=
                                 static_cast<ssize_t>(header.size())) {
        return false;
    }
    const Mapped content(core_->file, header.size() + core_->bytes);
    platform::FileError error;
    return content.Valid() && files.Write(path, content.Content(), error);
}

}  // namespace gst_adapter
