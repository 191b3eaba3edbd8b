// What is known of files, found out by the way.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event_loop.h"
#include "text/text.h"

namespace platform {

/// How long a piece of sound plays.
struct PieceLength {
    double seconds = 0;
    bool exact = true;  // false: reckoned from the file's size
};

/// Parts into which a piece's loudness is divided.
constexpr size_t kSoundParts = 1000;

struct FileFacts {
    bool there = false;  // a plain file that was found
    int64_t size = 0;    // bytes
    std::optional<DateTime> changed;
    std::optional<DateTime> taken;      // by the camera; only where it was asked for
    std::optional<uint64_t> beginning;  // BeginningSum; only where it was asked for
    /// All bytes of the file, of kMostContent at most; only where it was asked for. Null where they
    /// cannot be read or are more.
    std::shared_ptr<const std::string> content;
    std::optional<PieceLength> length;  // of a sound; only where it was asked for
    /// Loudest sample of each of kSoundParts equal parts, 255 for full; only where it was asked
    /// for, and empty where it cannot be found out.
    std::vector<uint8_t> levels;
};

/// Bytes of a file's beginning by which it is known again under another name.
constexpr size_t kBeginningBytes = 4096;
/// Of at most that many bytes. Equal bytes have equal sums, in every run.
uint64_t BeginningSum(std::string_view bytes);

/// Bytes of a document that is not too large to be looked at beside others.
constexpr int64_t kMostContent = 16 << 20;

/// Looks at files on workers, since a disk can be asleep or far away.
class FileInquiry {
public:
    virtual ~FileInquiry() = default;

    /// All but the first open the file; they answer what Presence does, too. SoundLength looks at
    /// a sound's beginning, WholeSoundLength reads all of it, SoundLevels plays it out unheard.
    enum What {
        Presence,
        DateTaken,
        Beginning,
        Content,
        SoundLength,
        WholeSoundLength,
        SoundLevels
    };
    using Ready = std::function<void(const Text& path, const FileFacts& facts)>;

    /// `ready` is called once for each path, on the caller's thread: later from the event loop, in
    /// the robot at once from within. What was asked last is answered first. Paths are found as by
    /// Files.
    virtual void Ask(const void* owner, std::vector<Text> paths, What what, Ready ready) = 0;

    /// No answer comes to that owner any more, as it must say before it goes.
    virtual void Forget(const void* owner) = 0;
};

}  // namespace platform
