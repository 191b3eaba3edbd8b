#include <fcntl.h>
#include <sndfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "adapters/gstreamer/pcm_source.h"

namespace gst_adapter {

namespace {

// Beyond these a header lies, and a resampler would ask for absurd amounts of memory.
constexpr int kLowestRate = 100;
constexpr int kHighestRate = 768000;
constexpr int kMostChannels = 64;

/// MPEG audio under whatever name is left to the decoder: read from here it ends early.
bool IsTrusted(const SF_INFO& info) {
    constexpr int kMpegCodings[] = {SF_FORMAT_MPEG_LAYER_I, SF_FORMAT_MPEG_LAYER_II,
                                    SF_FORMAT_MPEG_LAYER_III};
    const int coding = info.format & SF_FORMAT_SUBMASK;
    return std::find(std::begin(kMpegCodings), std::end(kMpegCodings), coding) ==
               std::end(kMpegCodings) &&
           info.samplerate >= kLowestRate && info.samplerate <= kHighestRate &&
           info.channels >= 1 && info.channels <= kMostChannels;
}

class WaveFile : public PcmSource {
public:
    WaveFile(SNDFILE* file, const SF_INFO& info) : file_(file), ownChannels_(info.channels) {
        rate = info.samplerate;
        channels = std::min(info.channels, 2);
    }
    ~WaveFile() override { sf_close(file_); }
    WaveFile(const WaveFile&) = delete;
    WaveFile& operator=(const WaveFile&) = delete;

    size_t Read(float* frames, size_t count) override {
        own_.resize(count * static_cast<size_t>(ownChannels_));
        const sf_count_t got = sf_readf_float(file_, own_.data(), static_cast<sf_count_t>(count));
        const size_t read = got > 0 ? std::min(static_cast<size_t>(got), count) : 0;
        for (size_t frame = 0; frame < read; ++frame) {
            Mix(own_.data() + frame * static_cast<size_t>(ownChannels_),
                frames + frame * static_cast<size_t>(channels));
        }
        return read;
    }

    bool Seek(int64_t frame) override { return sf_seek(file_, frame, SEEK_SET) == frame; }

private:
    static float Sane(float sample) {
        return std::isfinite(sample) ? std::clamp(sample, -1.0f, 1.0f) : 0.0f;
    }

    /// More than two channels: the even ones to the left, the odd ones to the right.
    void Mix(const float* from, float* to) const {
        for (int side = 0; side < channels; ++side) {
            float sum = 0;
            int parts = 0;
            for (int channel = side; channel < ownChannels_; channel += channels) {
                sum += Sane(from[channel]);
                ++parts;
            }
            to[side] = sum / static_cast<float>(parts);
        }
    }

    SNDFILE* file_;
    int ownChannels_;
    std::vector<float> own_;
};

}  // namespace

std::unique_ptr<PcmSource> OpenWaveFile(const std::string& nativePath) {
    // Not blocking: a fifo must not hold the thread for ever.
    const int descriptor = open(nativePath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status {};
    if (descriptor < 0) {
        return nullptr;
    }
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(descriptor);
        return nullptr;
    }
    SF_INFO info{};
    SNDFILE* file = sf_open_fd(descriptor, SFM_READ, &info, SF_TRUE);
    if (!file) {
        return nullptr;
    }
    if (!IsTrusted(info)) {
        sf_close(file);
        return nullptr;
    }
    return std::make_unique<WaveFile>(file, info);
}

}  // namespace gst_adapter
