#include "adapters/decoder/pct_bitmap.h"

#include <algorithm>

namespace decoder {

namespace {

using Bytes = std::span<const uint8_t>;

/// Reads on from the start; beyond the end there are zeros.
struct Reader {
    Bytes data;
    size_t at = 0;
    int Byte() { return at < data.size() ? data[at++] : (++at, 0); }
    int Word() {
        const int high = Byte();
        return high << 8 | Byte();
    }
    bool Ended() const { return at > data.size(); }
};

struct Frame {
    int top, left, bottom, right;
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
};
Frame FrameOf(Reader& reader) {
    Frame frame{};
    for (int* side : {&frame.top, &frame.left, &frame.bottom, &frame.right}) {
        *side = static_cast<int16_t>(reader.Word());
    }
    return frame;
}

/// Operations that draw nothing, and the bytes that follow each; a negative number: as many as the
/// word that follows says, itself included.
struct Silent {
    int operation, bytes;
};
constexpr Silent kSilent[] = {
    {0x00, 0}, {0x01, -1}, {0x02, 8}, {0x03, 2}, {0x04, 1}, {0x05, 2},
    {0x06, 4}, {0x07, 4},  {0x08, 2}, {0x09, 8}, {0x0A, 8}, {0x0B, 4},
    {0x0C, 4}, {0x0D, 2},  {0x0E, 4}, {0x0F, 4}, {0x10, 8}, {0xA0, 2},
};
constexpr int kBits = 0x90, kPartOfBits = 0x91, kPackedBits = 0x98, kPackedPart = 0x99;

/// Of version 2 alone.
constexpr Silent kLaterSilent[] = {{0x1A, 6}, {0x1B, 6}, {0x1C, 0},   {0x1D, 6},
                                   {0x1E, 0}, {0x1F, 6}, {0x0C00, 24}};

/// The first operation that draws.
int SkipSilent(Reader& reader) {
    while (!reader.Ended()) {
        const int operation = reader.Byte();
        const auto* known = std::ranges::find(kSilent, operation, &Silent::operation);
        if (known == std::end(kSilent)) {
            return operation;
        }
        reader.at += known->bytes >= 0 ? static_cast<size_t>(known->bytes)
                                       : static_cast<size_t>(std::max(reader.Word() - 2, 0));
    }
    return -1;
}

/// The same in version 2, where operations are words and begin at even bytes.
int SkipLaterSilent(Reader& reader) {
    while (!reader.Ended()) {
        const int operation = reader.Word();
        const auto* known = std::ranges::find(kSilent, operation, &Silent::operation);
        if (known == std::end(kSilent)) {
            known = std::ranges::find(kLaterSilent, operation, &Silent::operation);
            if (known == std::end(kLaterSilent)) {
                return operation;
            }
        }
        reader.at += known->bytes >= 0 ? static_cast<size_t>(known->bytes)
                                       : static_cast<size_t>(std::max(reader.Word() - 2, 0));
        reader.at += reader.at % 2;
    }
    return -1;
}

/// Numbers up to 127 are one less than the bytes that follow; 129 and more repeat the next one.
void UnpackRow(Reader& reader, std::span<uint8_t> row) {
    const size_t length = static_cast<size_t>(row.size() > 250 ? reader.Word() : reader.Byte());
    const size_t end = reader.at + length;
    size_t filled = 0;
    while (reader.at < end && filled < row.size()) {
        const int count = reader.Byte();
        const bool run = count > 128;
        const int value = run ? reader.Byte() : 0;
        const int times = run ? 257 - count : count == 128 ? 0 : count + 1;
        for (int i = 0; i < times && filled < row.size(); ++i) {
            row[filled++] = static_cast<uint8_t>(run ? value : reader.Byte());
        }
    }
    reader.at = end;
}

}  // namespace

std::optional<Picture> DecodePctBitmap(Bytes file) {
    Reader reader{file};
    reader.Word();
    const Frame page = FrameOf(reader);
    if (reader.Word() != 0x1101) {
        return std::nullopt;
    }
    const int operation = SkipSilent(reader);
    const int lineBytes = reader.Word();
    const Frame bounds = FrameOf(reader), from = FrameOf(reader), to = FrameOf(reader);
    reader.Word();
    // Rows this short are never packed, and their high bit would say that colours follow.
    constexpr int kShortestPacked = 8;
    const bool fits = lineBytes < 0x4000 && bounds.Width() > 0 && bounds.Height() > 0 &&
                      (bounds.Width() + 7) / 8 <= lineBytes && from.top == bounds.top &&
                      from.left == bounds.left && from.Width() == page.Width() &&
                      from.Height() == page.Height() && to.Width() == page.Width() &&
                      to.Height() == page.Height() && from.Width() <= bounds.Width() &&
                      from.Height() <= bounds.Height();
    if ((operation != kBits && operation != kPackedBits) || reader.Ended() || !fits ||
        page.Width() <= 0 || page.Height() <= 0 ||
        int64_t{page.Width()} * page.Height() > kMostPixels) {
        return std::nullopt;
    }
    Picture picture{{page.Width(), page.Height()}, 1, {}};
    std::vector<uint8_t> row(static_cast<size_t>(lineBytes));
    for (int y = 0; y < page.Height(); ++y) {
        std::ranges::fill(row, uint8_t{0});
        if (operation == kPackedBits && lineBytes >= kShortestPacked) {
            UnpackRow(reader, row);
        } else {
            std::ranges::generate(row, [&] { return static_cast<uint8_t>(reader.Byte()); });
        }
        for (int x = 0; x < page.Width(); ++x) {
            const bool black = (row[static_cast<size_t>(x) / 8] >> (7 - x % 8) & 1) != 0;
            picture.pixels.push_back(black ? 0xFF000000u : 0xFFFFFFFFu);
        }
    }
    return picture;
}

int PctPaletteDepth(Bytes file) {
    Reader reader{file};
    reader.Word();
    FrameOf(reader);
    if (reader.Word() != 0x0011 || reader.Word() != 0x02FF) {
        return 0;
    }
    const int operation = SkipLaterSilent(reader);
    if (operation != kBits && operation != kPartOfBits && operation != kPackedBits &&
        operation != kPackedPart) {
        return 0;
    }
    constexpr int kColours = 0x8000;
    if ((reader.Word() & kColours) == 0) {
        return 1;
    }
    // The bounds, version, packing, resolution and form of the pixels.
    reader.at += 8 + 2 + 2 + 4 + 8 + 2;
    const int bits = reader.Word();
    return bits == 1 ? 1 : bits == 2 || bits == 4 ? 4 : bits == 8 ? 8 : 0;
}

}  // namespace decoder
