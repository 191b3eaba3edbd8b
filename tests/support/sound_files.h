// Sound files, whole and damaged, and what becomes of them: both sound devices are held against
// this.
#pragma once

#include <string>
#include <vector>

#include "support/media_bytes.h"

namespace media {

/// Where a file ends that was opened under a type and played.
enum class Fate {
    NotOpened,  // its alias answers nothing
    Stopped,    // it opens, and is over without a sample
    Plays,
};

struct SoundFile {
    const char* name;  // "folder" and "gone" are none
    std::string bytes;
    Fate waveaudio, sequencer, mpegVideo;
};

inline std::string Noise(size_t bytes) {
    std::string noise;
    for (uint32_t i = 0; i < bytes; ++i) {
        noise += static_cast<char>((i * 2654435761u) >> 13);
    }
    return noise;
}

inline std::vector<SoundFile> SoundFiles() {
    using enum Fate;
    const std::string wave = Wav(500), midi = Midi({Note(480)}), mp3 = Mp3(40);
    return {
        {"whole.wav", wave, Plays, Stopped, Plays},
        {"whole.mid", midi, Plays, Plays, Plays},
        {"whole.mp3", mp3, Plays, Stopped, Plays},
        {"half.wav", wave.substr(0, wave.size() / 2), Plays, Stopped, Plays},
        {"lying_size.wav", std::string(wave).replace(40, 4, "\xFF\xFF\xFF\x7F"), Plays, Stopped,
         Plays},
        {"half.mp3", mp3.substr(0, mp3.size() / 2), Plays, Stopped, Plays},
        {"header_only.wav", wave.substr(0, 44), Stopped, Stopped, Stopped},
        {"no_samples.wav", Wav(0), Stopped, Stopped, Stopped},
        {"cut_header.wav", wave.substr(0, 30), Stopped, Stopped, Stopped},
        {"no_format.wav", wave.substr(0, 12) + wave.substr(36), Stopped, Stopped, Stopped},
        {"no_rate.wav", std::string(wave).replace(24, 8, 8, '\0'), Stopped, Stopped, Stopped},
        {"header_only.mid", midi.substr(0, 14), Stopped, Stopped, Stopped},
        {"cut_header.mid", midi.substr(0, 9), Stopped, Stopped, Stopped},
        {"cut_frame.mp3", mp3.substr(0, 100), Stopped, Stopped, Stopped},
        {"empty.wav", "", Stopped, Stopped, Stopped},
        {"mark_only.wav", "RIFF", Stopped, Stopped, Stopped},
        {"text.wav", "no sound", Stopped, Stopped, Stopped},
        {"page.mp3", "<!DOCTYPE html><html><body>404</body></html>", Stopped, Stopped, Stopped},
        {"list.mp3", "#EXTM3U\n#EXTINF:10,\nhttp://127.0.0.1/a.ts\n", Stopped, Stopped, Stopped},
        {"zeros.wav", std::string(100000, '\0'), Stopped, Stopped, Stopped},
        {"noise.mp3", Noise(20000), Stopped, Stopped, Stopped},
        {"quote\"s.wav", wave, Plays, Stopped, Plays},
        {"\"both ends\"", wave, Plays, Stopped, Plays},
        {"x\" type sequencer alias mid.wav", wave, Plays, Stopped, Plays},
        {"folder", "", Stopped, Stopped, Stopped},
        {"gone", "", NotOpened, NotOpened, NotOpened},
    };
}

}  // namespace media
