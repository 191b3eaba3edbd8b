#include "adapters/imaging/exif_date.h"

#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace imaging {

using platform::DateTime;

namespace {

constexpr size_t kMostBytes = 4u << 20;
constexpr size_t kMostReads = 4096;
constexpr int kMostParts = 256;  // segments, chunks or boxes before the one that is looked for
constexpr size_t kLargestMeta = 1u << 20;
constexpr size_t kDateLength = 19;  // "2026:01:31 08:00:00"
constexpr std::string_view kExifMark("Exif\0\0", 6);

constexpr uint64_t kExif = 0x8769, kVersion = 0x9000, kTaken = 0x9003, kChanged = 0x0132;
constexpr uint64_t kAscii = 2, kLong = 4, kUndefined = 7;  // kinds of values
constexpr size_t kEntry = 12;

/// A file, as far as the bounds allow.
class Source {
public:
    explicit Source(const ReadBytes& read) : read_(read) {}

    /// Exactly `count` bytes, or none.
    std::string Exactly(uint64_t at, size_t count) {
        if (count > left_ || reads_ == 0) {
            return {};
        }
        left_ -= count;
        --reads_;
        std::string bytes = read_(at, count);
        return bytes.size() == count ? bytes : std::string();
    }

private:
    const ReadBytes& read_;
    size_t left_ = kMostBytes;
    size_t reads_ = kMostReads;
};

/// Number of `count` bytes at a place; 0 beyond the end.
uint64_t Number(std::string_view bytes, size_t at, size_t count, bool littleEndian = false) {
    if (at > bytes.size() || count > bytes.size() - at) {
        return 0;
    }
    uint64_t value = 0;
    for (size_t i = 0; i < count; ++i) {
        const size_t place = at + (littleEndian ? count - 1 - i : i);
        value = value << 8 | static_cast<unsigned char>(bytes[place]);
    }
    return value;
}

std::optional<DateTime> ReadDate(std::string_view words) {
    Text text;
    for (size_t i = 0; i < words.size(); ++i) {
        const bool colon = i == 4 || i == 7 || i == 13 || i == 16;
        const bool digit = words[i] >= '0' && words[i] <= '9';
        if (i == 10 ? words[i] != ' ' : colon ? words[i] != ':' : !digit) {
            return std::nullopt;
        }
        text += i == 4 || i == 7 ? u'/' : static_cast<char16_t>(words[i]);
    }
    DateTime value;
    return words.size() == kDateLength && platform::ReadDateTime(text, value) ? std::optional(value)
                                                                              : std::nullopt;
}

/// The words of a TIFF file, or of one that lies within another file from `base` on.
class Tiff {
public:
    Tiff(Source& source, uint64_t base) : source_(source), base_(base) {}

    std::optional<DateTime> Taken() {
        const std::string head = source_.Exactly(base_, 8);
        little_ = head.starts_with("II");
        if (!(little_ || head.starts_with("MM")) || Number(head, 2, 2, little_) != 42) {
            return std::nullopt;
        }
        const std::string main = Directory(Number(head, 4, 4, little_));
        if (const uint64_t place = Offset(main, kExif, kLong, 1)) {
            if (const auto taken = Date(Directory(place), kTaken)) {
                return taken;
            }
        }
        return Date(main, kChanged);
    }

private:
    /// The entries of the directory there.
    std::string Directory(uint64_t at) {
        const std::string count = source_.Exactly(base_ + at, 2);
        return source_.Exactly(base_ + at + 2, Number(count, 0, 2, little_) * kEntry);
    }

    /// What the entry's last four bytes say; 0 without an entry of that kind.
    uint64_t Offset(std::string_view directory, uint64_t tag, uint64_t kind, uint64_t least) const {
        for (size_t at = 0; at + kEntry <= directory.size(); at += kEntry) {
            if (Number(directory, at, 2, little_) == tag &&
                Number(directory, at + 2, 2, little_) == kind &&
                Number(directory, at + 4, 4, little_) >= least) {
                return Number(directory, at + 8, 4, little_);
            }
        }
        return 0;
    }

    std::optional<DateTime> Date(std::string_view directory, uint64_t tag) {
        const uint64_t at = Offset(directory, tag, kAscii, kDateLength);
        return at == 0 ? std::nullopt : ReadDate(source_.Exactly(base_ + at, kDateLength));
    }

    Source& source_;
    const uint64_t base_;
    bool little_ = false;
};

/// Where the TIFF words begin; 0: there are none.
uint64_t InJpeg(Source& source) {
    constexpr uint64_t kApp1 = 0xE1, kStartOfScan = 0xDA, kEndOfImage = 0xD9, kFill = 0xFF;
    uint64_t at = 2;
    for (int i = 0; i < kMostParts; ++i) {
        const std::string head = source.Exactly(at, 4);
        const uint64_t marker = Number(head, 1, 1), length = Number(head, 2, 2);
        if (Number(head, 0, 1) != kFill || marker == kStartOfScan || marker == kEndOfImage) {
            return 0;
        }
        if (marker == kFill) {
            ++at;
            continue;
        }
        if (marker == kApp1 && source.Exactly(at + 4, kExifMark.size()) == kExifMark) {
            return at + 4 + kExifMark.size();
        }
        if (length < 2) {
            return 0;
        }
        at += 2 + length;
    }
    return 0;
}

uint64_t InPng(Source& source) {
    uint64_t at = 8;
    for (int i = 0; i < kMostParts; ++i) {
        const std::string head = source.Exactly(at, 8);
        if (head.empty() || head.ends_with("IEND")) {
            return 0;
        }
        if (head.ends_with("eXIf")) {
            return at + 8;
        }
        at += Number(head, 0, 4) + 12;
    }
    return 0;
}

/// The next box of `boxes`, which loses it: its kind and content. Empty at the end.
struct Box {
    std::string_view kind, content;
};
Box NextBox(std::string_view& boxes) {
    const uint64_t size = Number(boxes, 0, 4);
    if (size < 8 || size > boxes.size()) {
        boxes = {};
        return {};
    }
    const Box box{boxes.substr(4, 4), boxes.substr(8, size - 8)};
    boxes.remove_prefix(size);
    return box;
}

std::string_view BoxIn(std::string_view boxes, std::string_view kind) {
    while (!boxes.empty()) {
        const Box box = NextBox(boxes);
        if (box.kind == kind) {
            return box.content;
        }
    }
    return {};
}

/// Number of the item that holds the Exif words; 0: none.
uint64_t ExifItem(std::string_view info) {
    const size_t countBytes = Number(info, 0, 1) == 0 ? 2 : 4;
    std::string_view entries = info.substr(std::min(info.size(), 4 + countBytes));
    while (!entries.empty()) {
        const Box entry = NextBox(entries);
        const size_t idBytes = Number(entry.content, 0, 1) == 3 ? 4 : 2;
        if (entry.kind == "infe" && entry.content.size() >= 10 + idBytes &&
            entry.content.substr(6 + idBytes, 4) == "Exif") {
            return Number(entry.content, 4, idBytes);
        }
    }
    return 0;
}

/// Where the item lies in the file; 0 where that is nowhere, or in several pieces.
uint64_t PlaceOfItem(std::string_view table, uint64_t wanted) {
    const uint64_t version = Number(table, 0, 1);
    const auto half = [&](size_t at, int shift) { return Number(table, at, 1) >> shift & 15; };
    const size_t offsetBytes = half(4, 4), lengthBytes = half(4, 0), baseBytes = half(5, 4);
    const size_t indexBytes = version == 0 ? 0 : half(5, 0);
    const size_t idBytes = version < 2 ? 2 : 4;
    size_t at = 6;
    const auto next = [&](size_t count) {
        const uint64_t value = count > 8 ? 0 : Number(table, at, count);
        at += count;
        return value;
    };
    const uint64_t items = next(idBytes);
    for (uint64_t i = 0; i < items && at < table.size(); ++i) {
        const uint64_t id = next(idBytes);
        const uint64_t method = version == 0 ? 0 : next(2) & 15;
        next(2);  // which file: this one
        const uint64_t base = next(baseBytes);
        const uint64_t extents = next(2);
        const size_t first = at + indexBytes;
        if (id == wanted) {
            const uint64_t offset = offsetBytes > 8 ? 0 : Number(table, first, offsetBytes);
            return method == 0 && extents == 1 ? base + offset : 0;
        }
        at += extents * (indexBytes + offsetBytes + lengthBytes);
    }
    return 0;
}

uint64_t InHeic(Source& source) {
    uint64_t at = 0;
    for (int i = 0; i < kMostParts; ++i) {
        const std::string head = source.Exactly(at, 8);
        const uint64_t size = Number(head, 0, 4);
        if (size < 12) {
            return 0;  // the end, or one so large that it has pixels
        }
        if (!head.ends_with("meta")) {
            at += size;
            continue;
        }
        const std::string meta =
            size > kLargestMeta ? std::string() : source.Exactly(at + 12, size - 12);
        const uint64_t item = ExifItem(BoxIn(meta, "iinf"));
        const uint64_t place = item == 0 ? 0 : PlaceOfItem(BoxIn(meta, "iloc"), item);
        const std::string skip = place == 0 ? std::string() : source.Exactly(place, 4);
        return skip.empty() ? 0 : place + 4 + Number(skip, 0, 4);
    }
    return 0;
}

std::string Bytes(uint64_t value, size_t count) {
    std::string bytes;
    for (size_t i = count; i-- > 0;) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return bytes;
}

/// TIFF words with the date alone: nothing of how the picture would have to be turned.
std::string ExifOf(const DateTime& taken) {
    const platform::CalendarTime date = platform::ToCalendar(taken);
    char words[64];
    std::snprintf(words, sizeof words, "%04d:%02d:%02d %02d:%02d:%02d", date.year, date.month,
                  date.day, date.hour, date.minute, date.second);
    const auto entry = [](uint64_t tag, uint64_t kind, uint64_t count, const std::string& value) {
        return Bytes(tag, 2) + Bytes(kind, 2) + Bytes(count, 4) + value;
    };
    constexpr size_t kMain = 8, kInner = kMain + 2 + kEntry + 4,
                     kDate = kInner + 2 + 2 * kEntry + 4;
    return "MM" + Bytes(42, 2) + Bytes(kMain, 4) +                    //
           Bytes(1, 2) + entry(kExif, kLong, 1, Bytes(kInner, 4)) +   //
           Bytes(0, 4) +                                              //
           Bytes(2, 2) + entry(kVersion, kUndefined, 4, "0232") +     //
           entry(kTaken, kAscii, kDateLength + 1, Bytes(kDate, 4)) +  //
           Bytes(0, 4) + std::string(words, kDateLength) + std::string(1, '\0');
}

/// The checksum of PNG chunks.
uint32_t Crc(std::string_view bytes) {
    constexpr uint32_t kPolynomial = 0xEDB88320u;
    uint32_t crc = ~0u;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = crc >> 1 ^ ((crc & 1) != 0 ? kPolynomial : 0);
        }
    }
    return ~crc;
}

}  // namespace

std::string BytesAt(int fd, uint64_t at, size_t count) {
    std::string bytes(count, '\0');
    const ssize_t length = pread(fd, bytes.data(), count, static_cast<off_t>(at));
    bytes.resize(length > 0 ? static_cast<size_t>(length) : 0);
    return bytes;
}

DatePiece JpegDate(const DateTime& taken) {
    constexpr int64_t kAfterStart = 2;
    const std::string content = std::string(kExifMark) + ExifOf(taken);
    return {kAfterStart, "\xFF\xE1" + Bytes(content.size() + 2, 2) + content};
}

DatePiece PngDate(const DateTime& taken) {
    constexpr int64_t kAfterHeader = 33;
    const std::string exif = ExifOf(taken), content = "eXIf" + exif;
    return {kAfterHeader, Bytes(exif.size(), 4) + content + Bytes(Crc(content), 4)};
}

std::optional<DateTime> DateTaken(const ReadBytes& read) {
    Source source(read);
    const std::string mark = source.Exactly(0, 12);
    if (mark.starts_with("II") || mark.starts_with("MM")) {
        return Tiff(source, 0).Taken();
    }
    const uint64_t base = mark.starts_with("\xFF\xD8")                            ? InJpeg(source)
                          : mark.starts_with("\x89PNG\r\n\x1A\n")                 ? InPng(source)
                          : std::string_view(mark).substr(0, 8).ends_with("ftyp") ? InHeic(source)
                                                                                  : 0;
    return base == 0 ? std::nullopt : Tiff(source, base).Taken();
}

}  // namespace imaging
