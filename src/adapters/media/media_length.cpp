#include "adapters/media/media_length.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace media_adapter {

namespace {

constexpr double kLongestMs = 24.0 * 3600 * 1000;
constexpr size_t kMostBytesHeld = 64u << 20;
/// Chunks or boxes after which a file is taken for a hostile one.
constexpr int kMostParts = 10000;

/// Big-endian and little-endian numbers of a byte string; 0 beyond its end.
uint8_t Byte(std::string_view bytes, size_t at) {
    return at < bytes.size() ? static_cast<uint8_t>(bytes[at]) : 0;
}
uint32_t Big(std::string_view bytes, size_t at, int count) {
    uint32_t value = 0;
    for (int i = 0; i < count; ++i) {
        value = value << 8 | Byte(bytes, at + static_cast<size_t>(i));
    }
    return value;
}
uint32_t Little(std::string_view bytes, size_t at, int count) {
    uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | Byte(bytes, at + static_cast<size_t>(i));
    }
    return value;
}

std::string ReadAt(std::istream& file, uint64_t at, size_t count) {
    std::string bytes(count, '\0');
    file.clear();
    file.seekg(static_cast<std::streamoff>(at));
    file.read(bytes.data(), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<size_t>(std::max<std::streamsize>(0, file.gcount())));
    return bytes;
}

uint64_t SizeOf(std::istream& file) {
    file.clear();
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    return size > 0 ? static_cast<uint64_t>(size) : 0;
}

double WavMilliseconds(std::istream& file, uint64_t size) {
    constexpr size_t kFormatBytes = 16;
    double bytesPerSecond = 0;
    uint64_t at = 12;
    for (int part = 0; part < kMostParts && at + 8 <= size; ++part) {
        const std::string head = ReadAt(file, at, 8);
        const uint64_t length = Little(head, 4, 4);
        at += 8;
        if (head.starts_with("fmt ")) {
            const std::string format = ReadAt(file, at, kFormatBytes);
            bytesPerSecond = Little(format, 8, 4);
        } else if (head.starts_with("data")) {
            const uint64_t there = std::min(length, size - at);
            return bytesPerSecond > 0 ? 1000.0 * static_cast<double>(there) / bytesPerSecond : 0;
        }
        at += length + length % 2;
    }
    return 0;
}

/// What a MIDI track says about time.
struct Tempo {
    double tick;
    double microseconds;  // per quarter note
};

/// One track's bytes, event by event; stops at the first that is broken.
class MidiTrack {
public:
    explicit MidiTrack(std::string_view bytes) : bytes_(bytes) {}

    /// Adds the tempos that stand in the track; answers its last tick.
    double Read(double start, std::vector<Tempo>& tempos) {
        double tick = start;
        while (at_ < bytes_.size()) {
            tick += Number();
            if (at_ >= bytes_.size() || !Event(tick, tempos)) {
                break;
            }
        }
        return tick;
    }

private:
    static constexpr uint8_t kMeta = 0xFF, kTempo = 0x51, kTrackEnd = 0x2F;

    /// Seven bits a byte, at most four of them.
    uint32_t Number() {
        uint32_t value = 0;
        for (int i = 0; i < 4 && at_ < bytes_.size(); ++i) {
            const uint8_t byte = Byte(bytes_, at_++);
            value = value << 7 | (byte & 0x7Fu);
            if (byte < 0x80) {
                break;
            }
        }
        return value;
    }

    /// False at the end of the track.
    bool Event(double tick, std::vector<Tempo>& tempos) {
        uint8_t status = Byte(bytes_, at_);
        if (status >= 0x80) {
            ++at_;
        } else {
            status = running_;
        }
        if (status == kMeta) {
            const uint8_t type = Byte(bytes_, at_++);
            const uint32_t length = Number();
            if (type == kTempo && length == 3) {
                tempos.push_back({tick, static_cast<double>(Big(bytes_, at_, 3))});
            }
            at_ += length;
            return type != kTrackEnd;
        }
        if (status >= 0xF0) {
            at_ += Number();
            return true;
        }
        running_ = status;
        const bool oneByte = (status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0;
        at_ += oneByte ? 1 : 2;
        return status >= 0x80;
    }

    std::string_view bytes_;
    size_t at_ = 0;
    uint8_t running_ = 0;
};

double MidiMilliseconds(std::string_view bytes) {
    constexpr double kUsualTempo = 500000;
    const bool oneAfterTheOther = Big(bytes, 8, 2) == 2;
    const uint32_t division = Big(bytes, 12, 2);
    std::vector<Tempo> tempos;
    double end = 0;
    size_t at = 8 + Big(bytes, 4, 4);
    for (int part = 0; part < kMostParts && at + 8 <= bytes.size(); ++part) {
        const uint32_t length = Big(bytes, at + 4, 4);
        if (bytes.substr(at, 4) == "MTrk") {
            MidiTrack track(bytes.substr(at + 8, length));
            end = std::max(end, track.Read(oneAfterTheOther ? end : 0, tempos));
        }
        at += 8 + size_t(length);
    }
    if (division & 0x8000u) {
        const double perSecond = (256.0 - (division >> 8)) * (division & 0xFFu);
        return perSecond > 0 ? 1000 * end / perSecond : 0;
    }
    if (division == 0) {
        return 0;
    }
    std::stable_sort(tempos.begin(), tempos.end(),
                     [](const Tempo& a, const Tempo& b) { return a.tick < b.tick; });
    double microseconds = 0;
    Tempo now{0, kUsualTempo};
    for (const Tempo& next : tempos) {
        microseconds += (next.tick - now.tick) * now.microseconds / division;
        now = next;
    }
    microseconds += (end - now.tick) * now.microseconds / division;
    return microseconds / 1000;
}

struct Mp3Frame {
    size_t bytes = 0;  // 0: no whole frame
    double milliseconds = 0;
};

Mp3Frame FrameAt(std::string_view bytes, size_t at) {
    // Kilobits a second: layers I, II, III of version 1, layer I and layers II, III of version 2.
    static constexpr int kRates[5][16] = {
        {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0},
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},
        {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0},
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},
        {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0}};
    static constexpr int kSamplesASecond[3] = {44100, 48000, 32000};
    const uint32_t head = Big(bytes, at, 4);
    const uint32_t version = head >> 19 & 3;  // 0: 2.5, 2: 2, 3: 1
    const uint32_t layer = 4 - (head >> 17 & 3);
    const uint32_t frequency = head >> 10 & 3;
    if (at + 4 > bytes.size() || head >> 21 != 0x7FF || version == 1 || layer == 4 ||
        frequency == 3) {
        return {};
    }
    const bool first = version == 3;
    const int rate = kRates[first ? layer - 1 : layer == 1 ? 3 : 4][head >> 12 & 15] * 1000;
    const int hertz = kSamplesASecond[frequency] >> (first ? 0 : version == 2 ? 1 : 2);
    if (rate == 0) {
        return {};
    }
    const int samples = layer == 1 ? 384 : layer == 3 && !first ? 576 : 1152;
    const int padding = static_cast<int>(head >> 9 & 1) * (layer == 1 ? 4 : 1);
    const int length =
        (layer == 1 ? samples / 32 * rate / 8 / hertz * 4 : samples / 8 * rate / hertz) + padding;
    const auto frameBytes = static_cast<size_t>(length);
    return frameBytes <= bytes.size() - at ? Mp3Frame{frameBytes, 1000.0 * samples / hertz}
                                           : Mp3Frame{};
}

/// A tag in front: its length stands in four times seven bits.
size_t TagBytes(std::string_view bytes) {
    if (!bytes.starts_with("ID3")) {
        return 0;
    }
    size_t length = 0;
    for (size_t i = 6; i < 10; ++i) {
        length = length << 7 | (Byte(bytes, i) & 0x7Fu);
    }
    return length + 10;
}

/// An MP3 from its first frame on.
struct Mp3Beginning {
    std::string bytes;
    uint64_t at = 0;  // of the first frame in the file
    Mp3Frame frame;   // whole unless there is none
};

/// `most`: bytes that are read after a tag in front.
Mp3Beginning BeginMp3(std::istream& file, uint64_t size, size_t most) {
    constexpr size_t kFarthestFirstFrame = 65536;
    const size_t tag = TagBytes(ReadAt(file, 0, 10));
    const uint64_t there = size - std::min<uint64_t>(size, tag);
    std::string bytes = ReadAt(file, tag, static_cast<size_t>(std::min<uint64_t>(there, most)));
    for (size_t at = 0; at < std::min(bytes.size(), kFarthestFirstFrame); ++at) {
        const Mp3Frame frame = FrameAt(bytes, at);
        if (frame.bytes > 0 &&
            (at + frame.bytes >= bytes.size() || FrameAt(bytes, at + frame.bytes).bytes > 0)) {
            return {bytes.substr(at), tag + at, frame};
        }
    }
    return {};
}

/// What the writer of a file says in a first frame that is not heard.
struct Mp3Index {
    bool there = false;
    uint32_t frames = 0, bytes = 0;  // 0: not said
};

Mp3Index IndexIn(std::string_view frame) {
    constexpr size_t kOfOther = 36;
    const bool first = (Byte(frame, 1) >> 3 & 3) == 3;
    const bool mono = Byte(frame, 3) >> 6 == 3;
    const size_t at = 4 + (first ? (mono ? 17 : 32) : (mono ? 9 : 17));
    const std::string_view mark = frame.substr(std::min(at, frame.size()), 4);
    if (mark == "Xing" || mark == "Info") {
        const uint32_t said = Big(frame, at + 4, 4);
        const bool frames = (said & 1) != 0, bytes = (said & 2) != 0;
        return {true, frames ? Big(frame, at + 8, 4) : 0,
                bytes ? Big(frame, at + (frames ? 12 : 8), 4) : 0};
    }
    if (frame.substr(std::min(kOfOther, frame.size()), 4) == "VBRI") {
        return {true, Big(frame, kOfOther + 14, 4), Big(frame, kOfOther + 10, 4)};
    }
    return {};
}

MediaLength Mp3ByBeginning(std::istream& file, uint64_t size) {
    constexpr size_t kRead = 80000;          // more than the farthest first frame
    constexpr uint32_t kSmallestFrame = 24;  // bytes
    const Mp3Beginning mp3 = BeginMp3(file, size, kRead);
    if (mp3.frame.bytes == 0) {
        return {MediaKind::Mp3, 0};
    }
    const uint64_t there = size - std::min(size, mp3.at);
    const Mp3Index index = IndexIn(std::string_view(mp3.bytes).substr(0, mp3.frame.bytes));
    const bool whole = index.bytes <= there && uint64_t(index.frames) * kSmallestFrame <= there;
    if (index.frames > 0 && whole) {
        return {MediaKind::Mp3, index.frames * mp3.frame.milliseconds};
    }
    return {
        MediaKind::Mp3,
        static_cast<double>(there) / static_cast<double>(mp3.frame.bytes) * mp3.frame.milliseconds,
        false};
}

MediaLength Mp3ByFrames(std::istream& file, uint64_t size) {
    const Mp3Beginning mp3 = BeginMp3(file, size, kMostBytesHeld);
    const std::string_view bytes = mp3.bytes;
    const bool silent = IndexIn(bytes.substr(0, mp3.frame.bytes)).there;
    double milliseconds = silent ? -mp3.frame.milliseconds : 0;
    size_t at = 0;
    for (Mp3Frame frame = mp3.frame; frame.bytes > 0; frame = FrameAt(bytes, at)) {
        milliseconds += frame.milliseconds;
        at += frame.bytes;
    }
    const bool exact = size <= mp3.at + bytes.size();
    if (at > 0 && !exact) {
        milliseconds *= static_cast<double>(size - mp3.at) / static_cast<double>(at);
    }
    return {MediaKind::Mp3, milliseconds, exact};
}

/// Where the inside of the box of that name lies between two places; an empty range without one.
struct Range {
    uint64_t from = 0, to = 0;
};

Range FindBox(std::istream& file, Range inside, std::string_view name) {
    uint64_t at = inside.from;
    for (int part = 0; part < kMostParts && at + 8 <= inside.to; ++part) {
        const std::string head = ReadAt(file, at, 16);
        uint64_t length = Big(head, 0, 4);
        uint64_t headBytes = 8;
        if (length == 1) {
            length = uint64_t(Big(head, 8, 4)) << 32 | Big(head, 12, 4);
            headBytes = 16;
        } else if (length == 0) {
            length = inside.to - at;
        }
        if (length < headBytes || length > inside.to - at) {
            length = inside.to - at;  // cut off
        }
        if (std::string_view(head).substr(4, 4) == name) {
            return {std::min(at + headBytes, inside.to), at + length};
        }
        at += length;
    }
    return {};
}

double Mp4Milliseconds(std::istream& file, uint64_t size) {
    const Range header = FindBox(file, FindBox(file, {0, size}, "moov"), "mvhd");
    const std::string bytes = ReadAt(file, header.from, 32);
    if (header.to - header.from < 20) {
        return 0;
    }
    const bool wide = Byte(bytes, 0) == 1;
    const double scale = Big(bytes, wide ? 20 : 12, 4);
    const double high = wide ? Big(bytes, 24, 4) : 0;
    const double length = high * 4294967296.0 + Big(bytes, wide ? 28 : 16, 4);
    const bool unknown = length == (wide ? 18446744073709551615.0 : 4294967295.0);
    return scale > 0 && !unknown ? 1000 * length / scale : 0;
}

/// A box of the kinds that stand first.
bool IsMp4(std::string_view head) {
    static constexpr std::string_view kFirst[] = {"ftyp", "moov", "mdat", "free", "skip", "wide"};
    return head.size() >= 8 &&
           std::find(std::begin(kFirst), std::end(kFirst), head.substr(4, 4)) != std::end(kFirst);
}

std::optional<std::ifstream> OpenFile(platform::Files& files, TextView path) {
    const std::optional<std::string> native = files.Exists(path) ? files.Find(path) : std::nullopt;
    if (!native) {
        return std::nullopt;
    }
    std::ifstream file(*native, std::ios::binary);
    return file ? std::optional(std::move(file)) : std::nullopt;
}

}  // namespace

std::optional<MediaLength> LengthOfMediaFile(platform::Files& files, TextView path) {
    std::optional<std::ifstream> file = OpenFile(files, path);
    return file ? LengthOfMedia(*file) : std::nullopt;
}

bool LooksLikeVideo(platform::Files& files, TextView path) {
    constexpr std::string_view kAsf("\x30\x26\xB2\x75", 4);
    std::optional<std::ifstream> file = OpenFile(files, path);
    const std::string head = file ? ReadAt(*file, 0, 12) : std::string();
    return IsMp4(head) || head.starts_with(kAsf) ||
           (head.starts_with("RIFF") && head.ends_with("AVI "));
}

std::optional<MediaLength> LengthOfMedia(std::istream& file, Reading reading) {
    const uint64_t size = SizeOf(file);
    const std::string head = ReadAt(file, 0, 12);
    const auto whole = [&] {
        return ReadAt(file, 0, static_cast<size_t>(std::min<uint64_t>(size, kMostBytesHeld)));
    };
    MediaLength found{};
    if (head.starts_with("RIFF") && head.ends_with("WAVE")) {
        found = {MediaKind::Wav, WavMilliseconds(file, size)};
    } else if (head.starts_with("MThd")) {
        found = {MediaKind::Midi, MidiMilliseconds(whole())};
    } else if (IsMp4(head)) {
        found = {MediaKind::Mp4, Mp4Milliseconds(file, size)};
    } else if (head.starts_with("ID3") || (head.size() > 1 && Big(head, 0, 2) >> 5 == 0x7FF)) {
        found = reading == Reading::Whole ? Mp3ByFrames(file, size) : Mp3ByBeginning(file, size);
    }
    if (!(found.milliseconds > 0)) {
        return std::nullopt;
    }
    found.milliseconds = std::min(found.milliseconds, kLongestMs);
    return found;
}

}  // namespace media_adapter
