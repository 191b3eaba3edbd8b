#include "adapters/gstreamer/cd_audio.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

namespace {

constexpr int kDiscLimitMs = 15000;  // a drive that spins up
constexpr int kPumpMs = 10;
constexpr int kSectorsAtOnce = 16;
constexpr int kUnreadableInARow =
    5;  // chunks, each replaced by silence, until the disc is given up
constexpr int kFullVolume = 1000;

struct Span {
    int sector = 0;
    int sectors = 0;
};

/// Sectors of a disc, one span after the other.
class DiscSource : public PcmSource {
public:
    /// `lost` becomes true where the disc is given up.
    DiscSource(std::shared_ptr<Disc> disc, std::vector<Span> spans,
               std::shared_ptr<std::atomic<bool>> lost)
        : disc_(std::move(disc)), spans_(std::move(spans)), lost_(std::move(lost)) {
        rate = kDiscRate;
        channels = 2;
    }

    size_t Read(float* frames, size_t count) override {
        if (used_ == samples_.size() && !Fill()) {
            return 0;
        }
        const size_t taken = std::min(count * 2, samples_.size() - used_);
        for (size_t i = 0; i < taken; ++i) {
            frames[i] = static_cast<float>(samples_[used_ + i]) / 32768.0f;
        }
        used_ += taken;
        return taken / 2;
    }

    bool Seek(int64_t frame) override {
        used_ = 0;
        samples_.clear();
        span_ = 0;
        done_ = 0;
        int64_t sector = frame / kFramesPerSector;
        while (span_ < spans_.size() && sector >= spans_[span_].sectors) {
            sector -= spans_[span_++].sectors;
        }
        done_ = static_cast<int>(sector);
        return span_ < spans_.size();
    }

private:
    bool Fill() {
        if (span_ < spans_.size() && done_ >= spans_[span_].sectors) {
            ++span_;
            done_ = 0;
        }
        if (unreadable_ >= kUnreadableInARow) {
            *lost_ = true;
            return false;
        }
        if (span_ >= spans_.size()) {
            return false;
        }
        const int count = std::min(kSectorsAtOnce, spans_[span_].sectors - done_);
        samples_.assign(static_cast<size_t>(count) * kFramesPerSector * 2, 0);
        if (disc_->Read(spans_[span_].sector + done_, count, samples_.data())) {
            unreadable_ = 0;
        } else {
            std::fill(samples_.begin(), samples_.end(), int16_t{0});
            ++unreadable_;
        }
        done_ += count;
        used_ = 0;
        return !samples_.empty();
    }

    std::shared_ptr<Disc> disc_;
    std::vector<Span> spans_;
    std::shared_ptr<std::atomic<bool>> lost_;
    size_t span_ = 0;
    int done_ = 0;  // sectors of the span that were read
    int unreadable_ = 0;
    std::vector<int16_t> samples_;
    size_t used_ = 0;
};

}  // namespace

struct CdAudio::Shared {
    std::mutex mutex;
    bool known = false;  // the drive has answered
    platform::TrackTable tracks;
    std::shared_ptr<Disc> disc;
    std::atomic<bool> lost{false};  // it could not be read any more
    Worker worker;
};

CdAudio::CdAudio(OpenDisc openDisc, std::string device, std::shared_ptr<AudioOutput> output,
                 platform::EventLoop& loop)
    : openDisc_(std::move(openDisc)),
      device_(std::move(device)),
      output_(std::move(output)),
      loop_(loop) {}

Text CdAudio::Send(const platform::SoundCommand& command) {
    if (command.verb == u"open") {
        Open();
    } else if (!shared_) {
        return {};
    } else if (command.verb == u"status") {
        return Status(command.rest);
    } else if (command.verb == u"set") {
        byTracks_ = command.rest == u"time format tmsf";
    } else if (command.verb == u"setaudio" && command.rest.starts_with(u"volume to ")) {
        const int volume = platform::WholeNumber(TextView(command.rest).substr(10), -1);
        if (volume >= 0 && volume <= kFullVolume) {
            volume_ = static_cast<double>(volume) / kFullVolume;
            if (player_) {
                player_->SetVolume(volume_);
            }
        }
    } else if (command.verb == u"play" && command.rest.starts_with(u"from ")) {
        Play(TextView(command.rest).substr(5));
    } else if (command.verb == u"stop") {
        startSector_ = Sector();
        player_.reset();
    } else if (command.verb == u"close") {
        Close();
    }
    return {};
}

void CdAudio::Open() {
    if (shared_) {
        const std::lock_guard lock(shared_->mutex);
        if (!shared_->known || (shared_->disc && shared_->tracks.Count() > 0 && !shared_->lost)) {
            return;
        }
    }
    // Also where it is open without a disc, or lost it: one may have been put in.
    const bool again = shared_ != nullptr;
    Close();
    shared_ = std::make_shared<Shared>();
    byTracks_ = false;
    volume_ = again ? volume_ : 1;
    const bool asked = shared_->worker.Post([shared = shared_, open = openDisc_, name = device_] {
        std::shared_ptr<Disc> disc = open ? open(name) : nullptr;
        const std::lock_guard lock(shared->mutex);
        shared->disc = std::move(disc);
        if (shared->disc) {
            shared->tracks = platform::TrackTable(shared->disc->tracks);
        }
        shared->known = true;
    });
    if (!asked) {
        shared_->known = true;
    }
}

void CdAudio::Close() {
    player_.reset();
    startSector_ = 0;
    if (shared_) {
        // The disc is let go on the worker, as a drive may take its time for that as well.
        shared_->worker.Post([shared = shared_] {
            std::shared_ptr<Disc> disc;
            const std::lock_guard lock(shared->mutex);
            disc.swap(shared->disc);
        });
        shared_.reset();
    }
}

/// True with a disc. Handlers run while the drive is waited for, and may close the device.
bool CdAudio::WaitForDisc() {
    const double limit = loop_.Milliseconds() + kDiscLimitMs;
    for (;;) {
        const std::shared_ptr<Shared> shared = shared_;
        if (!shared) {
            return false;
        }
        {
            const std::lock_guard lock(shared->mutex);
            if (shared->known) {
                return shared->tracks.Count() > 0;
            }
        }
        if (loop_.Milliseconds() >= limit) {
            return false;
        }
        loop_.Sleep(kPumpMs);
        loop_.PumpEvents();
    }
}

void CdAudio::Play(TextView range) {
    if (!WaitForDisc()) {
        return;
    }
    const std::optional<platform::SectorRange> asked = shared_->tracks.Range(range, byTracks_);
    if (!asked) {
        return;
    }
    std::vector<Span> spans;
    for (const DiscTrack& track : shared_->tracks.Tracks()) {
        const int from = std::max(asked->start, track.firstSector);
        const int until = std::min(asked->end, track.firstSector + track.sectors);
        if (track.audio && from < until) {  // data would be noise
            spans.push_back({from, until - from});
        }
    }
    Media media;
    media.wantsPosition = true;
    media.open = [shared = shared_, spans]() -> std::unique_ptr<PcmSource> {
        const std::lock_guard lock(shared->mutex);
        if (!shared->disc || spans.empty()) {
            return nullptr;
        }
        return std::make_unique<DiscSource>(
            shared->disc, spans, std::shared_ptr<std::atomic<bool>>(shared, &shared->lost));
    };
    startSector_ = spans.empty() ? asked->start : spans.front().sector;
    player_ = std::make_unique<Player>(std::move(media), output_);
    player_->SetVolume(volume_);
    player_->Play();
}

int CdAudio::Sector() const {
    const double seconds = player_ ? player_->Position() : 0;
    return startSector_ + static_cast<int>(seconds * kSectorsPerSecond);
}

Text CdAudio::Status(TextView what) {
    const bool disc = WaitForDisc();
    if (!shared_) {
        return {};
    }
    if (what == u"ready") {
        return disc ? u"true" : u"false";
    }
    if (what == u"mode") {
        return !disc ? u"not ready" : player_ && player_->Playing() ? u"playing" : u"stopped";
    }
    return disc ? shared_->tracks.Status(what, Sector(), byTracks_) : Text();
}

}  // namespace gst_adapter
