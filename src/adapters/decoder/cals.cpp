#include "adapters/decoder/cals.h"

#include <array>
#include <charconv>
#include <string_view>

#include "adapters/decoder/graphicsmagick.h"

namespace decoder {

namespace {

using Bytes = std::span<const uint8_t>;

constexpr size_t kHeadBytes = 2048;

/// The two numbers of a line such as "rpelcnt: 001728,002200".
struct Pair {
    int first = -1, second = -1;
};
Pair PairOf(std::string_view head, std::string_view name) {
    const size_t at = head.find(name);
    if (at == std::string_view::npos) {
        return {};
    }
    std::string_view rest = head.substr(at + name.size(), 64);
    Pair pair;
    for (int* number : {&pair.first, &pair.second}) {
        rest.remove_prefix(std::min(rest.find_first_not_of(" ,"), rest.size()));
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), *number);
        if (error != std::errc{}) {
            return {};
        }
        rest.remove_prefix(static_cast<size_t>(end - rest.data()));
    }
    return pair;
}

/// Degrees in which a line runs and in which lines follow one another (0 to the right, 90 up), and
/// the number that a TIFF has for it.
struct Direction {
    int line, lines, orientation;
};
constexpr Direction kDirections[] = {
    {0, 270, 1}, {180, 270, 2}, {180, 90, 3}, {0, 90, 4},
    {270, 0, 5}, {270, 180, 6}, {90, 180, 7}, {90, 0, 8},
};

void Put(std::vector<uint8_t>& out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        out.push_back(static_cast<uint8_t>(value >> (8 * i)));
    }
}

}  // namespace

// The library's own reader of this kind makes a temporary file; a TIFF around the same data in
// memory needs none.
std::optional<Picture> DecodeCals(Bytes file) {
    if (file.size() <= kHeadBytes) {
        return std::nullopt;
    }
    const std::string_view head(reinterpret_cast<const char*>(file.data()), kHeadBytes);
    const Pair size = PairOf(head, "rpelcnt:"), way = PairOf(head, "rorient:");
    if (size.first <= 0 || size.second <= 0 || int64_t{size.first} * size.second > kMostPixels) {
        return std::nullopt;
    }
    int orientation = 1;
    for (const Direction& known : kDirections) {
        if (known.line == way.first && known.lines == way.second) {
            orientation = known.orientation;
        }
    }
    const Bytes data = file.subspan(kHeadBytes);
    struct Entry {
        uint16_t tag, type;
        uint32_t value;
    };
    constexpr uint16_t kShort = 3, kLong = 4;
    constexpr uint32_t kEntries = 10, kDataAt = 8 + 2 + 12 * kEntries + 4;
    const std::array<Entry, kEntries> entries = {{
        {0x100, kLong, static_cast<uint32_t>(size.first)},
        {0x101, kLong, static_cast<uint32_t>(size.second)},
        {0x102, kShort, 1},
        {0x103, kShort, 4},  // the fax coding in two dimensions
        {0x106, kShort, 0},  // 0 is white
        {0x111, kLong, kDataAt},
        {0x112, kShort, static_cast<uint32_t>(orientation)},
        {0x115, kShort, 1},
        {0x116, kLong, static_cast<uint32_t>(size.second)},
        {0x117, kLong, static_cast<uint32_t>(data.size())},
    }};
    std::vector<uint8_t> tiff = {'I', 'I', 42, 0, 8, 0, 0, 0};
    tiff.reserve(kDataAt + data.size());
    Put(tiff, kEntries, 2);
    for (const Entry& entry : entries) {
        Put(tiff, entry.tag, 2);
        Put(tiff, entry.type, 2);
        Put(tiff, 1, 4);
        Put(tiff, entry.value, 4);
    }
    Put(tiff, 0, 4);
    tiff.insert(tiff.end(), data.begin(), data.end());
    std::optional<Picture> picture = DecodeByMagick("TIFF", tiff);
    if (picture) {
        picture->bitsPerPixel = 1;
    }
    return picture;
}

}  // namespace decoder
