#include "adapters/decoder/msp.h"

#include <algorithm>
#include <string_view>

namespace decoder {

namespace {

using Bytes = std::span<const uint8_t>;

constexpr size_t kHeadBytes = 32;

size_t Little16(Bytes data, size_t at) {
    return data[at] | static_cast<size_t>(data[at + 1]) << 8;
}

/// A zero, a count and a byte are a run; another number is a count of bytes that follow. What the
/// row does not say stays white.
void UnpackRow(Bytes packed, std::span<uint8_t> row) {
    size_t at = 0, filled = 0;
    while (at + 1 < packed.size() && filled < row.size()) {
        const size_t room = row.size() - filled;
        if (packed[at] == 0) {
            if (at + 2 >= packed.size()) {
                return;
            }
            const size_t count = std::min<size_t>(packed[at + 1], room);
            std::fill_n(row.begin() + static_cast<ptrdiff_t>(filled), count, packed[at + 2]);
            filled += count;
            at += 3;
        } else {
            const size_t count = std::min({size_t{packed[at]}, packed.size() - at - 1, room});
            std::ranges::copy(packed.subspan(at + 1, count),
                              row.begin() + static_cast<ptrdiff_t>(filled));
            filled += count;
            at += 1 + size_t{packed[at]};
        }
    }
}

}  // namespace

std::optional<Picture> DecodeMsp(Bytes file) {
    if (file.size() < kHeadBytes) {
        return std::nullopt;
    }
    const std::string_view mark(reinterpret_cast<const char*>(file.data()), 4);
    const bool packed = mark == "LinS";
    if (!packed && mark != "DanM") {
        return std::nullopt;
    }
    const size_t width = Little16(file, 4), height = Little16(file, 6);
    const size_t lineBytes = (width + 7) / 8;
    Bytes rest = file.subspan(kHeadBytes);
    if (width == 0 || height == 0 || static_cast<int64_t>(width * height) > kMostPixels ||
        rest.size() < (packed ? 2 * height : 1)) {
        return std::nullopt;
    }
    const Bytes lengths = packed ? rest.first(2 * height) : Bytes();
    rest = rest.subspan(lengths.size());
    Picture picture{{static_cast<int>(width), static_cast<int>(height)}, 1, {}};
    picture.pixels.reserve(width * height);
    std::vector<uint8_t> line(lineBytes);
    for (size_t y = 0; y < height; ++y) {
        std::ranges::fill(line, uint8_t{0xFF});
        const size_t stored = std::min(packed ? Little16(lengths, 2 * y) : lineBytes, rest.size());
        if (packed) {
            UnpackRow(rest.first(stored), line);
        } else {
            std::ranges::copy(rest.first(stored), line.begin());
        }
        rest = rest.subspan(stored);
        for (size_t x = 0; x < width; ++x) {
            const bool white = (line[x / 8] >> (7 - x % 8) & 1) != 0;
            picture.pixels.push_back(white ? 0xFFFFFFFFu : 0xFF000000u);
        }
    }
    return picture;
}

}  // namespace decoder
