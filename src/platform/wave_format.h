// The wave files that the program writes: samples of 16 bits, their header.
#pragma once

#include <cstdint>
#include <string>

#include "text/text.h"

namespace platform {

struct WaveFormat {
    int channels = 1;
    int samplesPerSecond = 44100;

    friend bool operator==(const WaveFormat&, const WaveFormat&) = default;
    int FrameBytes() const { return channels * 2; }
    int BytesPerSecond() const { return samplesPerSecond * FrameBytes(); }
};

/// Bytes of a header, and the most samples that fit a file after it.
constexpr size_t kWaveHeaderBytes = 44;
constexpr uint32_t kMostWaveBytes = 0xFFFFFFFFu - kWaveHeaderBytes;

/// Reads "channels 2 samplespersec 44100 …"; what follows from these two is passed over. One or two
/// channels of 16 bits, 8000 to 192000 samples a second. False, and nothing changes, for others.
bool ReadWaveFormat(TextView words, WaveFormat& format);

/// The header of a file with so many bytes of samples.
std::string WaveHeader(const WaveFormat& format, uint32_t dataBytes);

/// A file without one sample, for recorders that record into a file that is there: one channel,
/// 22050 samples a second.
std::string EmptyWaveFile();

}  // namespace platform
