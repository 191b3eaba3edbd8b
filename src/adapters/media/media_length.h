// How long a sound or video file plays, by what stands in it.
#pragma once

#include <istream>
#include <optional>

#include "platform/files.h"

namespace media_adapter {

enum class MediaKind { Wav, Midi, Mp3, Mp4 };

struct MediaLength {
    MediaKind kind;
    double milliseconds;  // above 0, at most 24 hours
    bool exact = true;    // false: reckoned from the file's size
};

/// How far an MP3 is read.
enum class Reading {
    Whole,      // all frames; of a file longer than 64 MiB the frames of that beginning
    Beginning,  // the count of frames that stands in the first one, else that one's bit rate
};

/// Told by the content alone: WAV by its header, with sizes that lie cut to what is there; MIDI by
/// its ticks and tempos; MP3 by its frames; MP4 and MOV by their movie header. Nullopt for
/// everything else and for what is broken. The stream must be able to seek. Never throws, never
/// reads a file for long.
std::optional<MediaLength> LengthOfMedia(std::istream& file, Reading reading = Reading::Whole);

/// The same of an existing plain file.
std::optional<MediaLength> LengthOfMediaFile(platform::Files& files, TextView path);

/// An existing plain file that begins as a film does: MP4 and MOV, AVI, WMV.
bool LooksLikeVideo(platform::Files& files, TextView path);

}  // namespace media_adapter
