#include "platform/wave_format.h"

#include <algorithm>

#include "platform/sound_command.h"

namespace platform {

namespace {

constexpr int kBits = 16;
constexpr int kLowestRate = 8000, kHighestRate = 192000;

std::string Little(uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i));
    }
    return text;
}

Text TakeWord(TextView& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(u' '), rest.size()));
    const Text word(rest.substr(0, rest.find(u' ')));
    rest.remove_prefix(word.size());
    return word;
}

}  // namespace

bool ReadWaveFormat(TextView words, WaveFormat& format) {
    WaveFormat read = format;
    int bits = kBits;
    for (Text name = TakeWord(words); !name.empty(); name = TakeWord(words)) {
        const int value = WholeNumber(TakeWord(words), -1);
        if (name == u"channels") {
            read.channels = value;
        } else if (name == u"samplespersec") {
            read.samplesPerSecond = value;
        } else if (name == u"bitspersample") {
            bits = value;
        }
    }
    if (read.channels < 1 || read.channels > 2 || read.samplesPerSecond < kLowestRate ||
        read.samplesPerSecond > kHighestRate || bits != kBits) {
        return false;
    }
    format = read;
    return true;
}

std::string WaveHeader(const WaveFormat& format, uint32_t dataBytes) {
    constexpr uint32_t kBeforeData = kWaveHeaderBytes - 8, kFormatBytes = 16, kPcm = 1;
    return "RIFF" + Little(kBeforeData + dataBytes, 4) + "WAVEfmt " + Little(kFormatBytes, 4) +
           Little(kPcm, 2) + Little(static_cast<uint32_t>(format.channels), 2) +
           Little(static_cast<uint32_t>(format.samplesPerSecond), 4) +
           Little(static_cast<uint32_t>(format.BytesPerSecond()), 4) +
           Little(static_cast<uint32_t>(format.FrameBytes()), 2) + Little(kBits, 2) + "data" +
           Little(dataBytes, 4);
}

std::string EmptyWaveFile() {
    return WaveHeader({1, 22050}, 0);
}

}  // namespace platform
