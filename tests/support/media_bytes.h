// Bytes of small media files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace media {

inline std::string Big(uint64_t value, int count) {
    std::string bytes;
    for (int i = count - 1; i >= 0; --i) {
        bytes += i < 8 ? static_cast<char>(value >> (8 * i) & 0xFF) : '\0';
    }
    return bytes;
}
inline std::string Little(uint64_t value, int count) {
    const std::string big = Big(value, count);
    return {big.rbegin(), big.rend()};
}

/// 8000 bytes a second, one channel; `before`: chunks in front of the samples.
inline std::string Wav(int milliseconds, const std::string& before = {}) {
    const std::string samples(static_cast<size_t>(milliseconds) * 8, '\x80');
    const std::string body = "WAVEfmt " + Little(16, 4) + Little(1, 2) + Little(1, 2) +
                             Little(8000, 4) + Little(8000, 4) + Little(1, 2) + Little(8, 2) +
                             before + "data" + Little(samples.size(), 4) + samples;
    return "RIFF" + Little(body.size(), 4) + body;
}

inline std::string Ticks(uint32_t value) {
    std::string bytes(1, static_cast<char>(value & 0x7F));
    while (value >>= 7) {
        bytes.insert(bytes.begin(), static_cast<char>((value & 0x7F) | 0x80));
    }
    return bytes;
}
/// A note that many ticks after the event before.
inline std::string Note(uint32_t ticks) {
    return Ticks(ticks) + "\x90\x40\x40";
}
inline std::string Tempo(uint32_t ticks, uint32_t microseconds) {
    return Ticks(ticks) + "\xFF\x51\x03" + Big(microseconds, 3);
}
/// 480 ticks a quarter note.
inline std::string Midi(const std::vector<std::string>& tracks) {
    std::string file = "MThd" + Big(6, 4) + Big(tracks.size() > 1 ? 1 : 0, 2) +
                       Big(tracks.size(), 2) + Big(480, 2);
    for (const std::string& events : tracks) {
        const std::string track = events + std::string("\0\xFF\x2F\0", 4);
        file += "MTrk" + Big(track.size(), 4) + track;
    }
    return file;
}

/// Frames of 128 kbit/s at 44100 Hz, 417 bytes each.
inline std::string Mp3(int frames) {
    std::string file;
    for (int i = 0; i < frames; ++i) {
        file += std::string("\xFF\xFB\x90\x00", 4) + std::string(413, '\0');
    }
    return file;
}

inline std::string Box(const std::string& kind, const std::string& body) {
    return Big(body.size() + 8, 4) + kind + body;
}
/// A film without a picture that says how long it is.
inline std::string Mp4(uint32_t milliseconds) {
    const std::string header = Big(0, 12) + Big(1000, 4) + Big(milliseconds, 4) + Big(0, 80);
    return Box("ftyp", "isom" + Big(512, 4)) + Box("moov", Box("mvhd", header));
}

}  // namespace media
