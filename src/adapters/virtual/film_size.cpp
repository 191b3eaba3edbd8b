#include "adapters/virtual/film_size.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace virtual_adapter {

namespace {

using platform::Size;

constexpr size_t kMostHeaderBytes = 16u << 20;
constexpr size_t kStartBytes = 65536;
/// Boxes after which a file is taken for a hostile one.
constexpr int kMostBoxes = 10000;
constexpr uint32_t kLongestSide = 8192;

uint32_t Byte(std::string_view bytes, size_t at) {
    return at < bytes.size() ? static_cast<uint8_t>(bytes[at]) : 0;
}
uint32_t Big(std::string_view bytes, size_t at) {
    return Byte(bytes, at) << 24 | Byte(bytes, at + 1) << 16 | Byte(bytes, at + 2) << 8 |
           Byte(bytes, at + 3);
}
uint32_t Little(std::string_view bytes, size_t at) {
    return Byte(bytes, at + 3) << 24 | Byte(bytes, at + 2) << 16 | Byte(bytes, at + 1) << 8 |
           Byte(bytes, at);
}

std::string ReadAt(std::istream& file, uint64_t at, size_t count) {
    std::string bytes(count, '\0');
    file.clear();
    file.seekg(static_cast<std::streamoff>(at));
    file.read(bytes.data(), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<size_t>(std::max<std::streamsize>(0, file.gcount())));
    return bytes;
}

Size Known(uint32_t width, uint32_t height) {
    return width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide
               ? Size{static_cast<int>(width), static_cast<int>(height)}
               : Size{};
}

/// The inside of the box of that name; empty without one.
std::string ReadBoxOfFile(std::istream& file, std::string_view name) {
    uint64_t at = 0;
    for (int box = 0; box < kMostBoxes; ++box) {
        const std::string head = ReadAt(file, at, 16);
        uint64_t length = Big(head, 0);
        const uint64_t headBytes = length == 1 ? 16 : 8;
        if (length == 1) {
            length = uint64_t{Big(head, 8)} << 32 | Big(head, 12);
        }
        if (head.size() < 8 || std::string_view(head).substr(4, 4) == name) {
            const uint64_t inside = length > headBytes ? length - headBytes : kMostHeaderBytes;
            return head.size() < 8
                       ? std::string()
                       : ReadAt(file, at + headBytes, std::min<uint64_t>(inside, kMostHeaderBytes));
        }
        if (length < headBytes || length > UINT64_MAX / 2 - at) {
            return {};
        }
        at += length;
    }
    return {};
}

/// Takes the boxes off one after the other and answers the inside of the next one of that name.
std::string_view NextBox(std::string_view& boxes, std::string_view name) {
    while (boxes.size() >= 8) {
        const size_t length = std::clamp<size_t>(Big(boxes, 0), 8, boxes.size());
        const std::string_view box = boxes.substr(0, length);
        boxes.remove_prefix(length);
        if (box.substr(4, 4) == name) {
            return box.substr(8);
        }
    }
    boxes = {};  // what is left is no box
    return {};
}

std::string_view Inside(std::string_view boxes, std::string_view name) {
    return NextBox(boxes, name);
}

Size SizeOfMp4(std::istream& file) {
    const std::string movie = ReadBoxOfFile(file, "moov");
    std::string_view rest = movie;
    while (!rest.empty()) {
        const std::string_view track = NextBox(rest, "trak");
        if (Inside(Inside(track, "mdia"), "hdlr").substr(0, 12).ends_with("vide")) {
            const std::string_view header = Inside(track, "tkhd");
            const size_t matrix = Byte(header, 0) == 1 ? 52 : 40;
            const Size size = Known(Big(header, matrix + 36) >> 16, Big(header, matrix + 40) >> 16);
            const bool onItsSide = Big(header, matrix) == 0 && Big(header, matrix + 16) == 0;
            return onItsSide ? Size{size.height, size.width} : size;
        }
    }
    return {};
}

Size SizeOfAvi(std::string_view start) {
    return start.substr(24, 4) == "avih" ? Known(Little(start, 64), Little(start, 68)) : Size{};
}

Size SizeOfWmv(std::string_view start) {
    constexpr std::string_view kStream(
        "\x91\x07\xDC\xB7\xB7\xA9\xCF\x11\x8E\xE6\x00\xC0\x0C\x20\x53\x65", 16);
    constexpr std::string_view kPictures(
        "\xC0\xEF\x19\xBC\x4D\x5B\xCF\x11\xA8\xFD\x00\x80\x5F\x5C\x44\x2B", 16);
    constexpr size_t kTypeAt = 24, kSizeAt = 78;
    for (size_t at = start.find(kStream); at != std::string_view::npos;
         at = start.find(kStream, at + 1)) {
        if (start.substr(std::min(at + kTypeAt, start.size()), 16) == kPictures) {
            return Known(Little(start, at + kSizeAt), Little(start, at + kSizeAt + 4));
        }
    }
    return {};
}

}  // namespace

Size SizeOfFilm(std::istream& file) {
    const std::string start = ReadAt(file, 0, kStartBytes);
    if (start.starts_with("RIFF")) {
        return start.size() > 28 ? SizeOfAvi(start) : Size{};
    }
    return start.starts_with("\x30\x26\xB2\x75") ? SizeOfWmv(start) : SizeOfMp4(file);
}

}  // namespace virtual_adapter
