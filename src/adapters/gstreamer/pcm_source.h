// Samples that this program reads itself and hands to the pipeline.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace gst_adapter {

class PcmSource {
public:
    virtual ~PcmSource() = default;
    int rate = 0;      // frames a second
    int channels = 0;  // 1 or 2
    /// Up to `count` frames, interleaved, -1 to 1; 0 at the end or when reading fails.
    virtual size_t Read(float* frames, size_t count) = 0;
    /// False where the frame cannot be reached; the next Read then gives nothing useful.
    virtual bool Seek(int64_t frame) = 0;
};

/// A wave file of any coding that libsndfile reads, however its sizes lie; null for all others.
std::unique_ptr<PcmSource> OpenWaveFile(const std::string& nativePath);

}  // namespace gst_adapter
