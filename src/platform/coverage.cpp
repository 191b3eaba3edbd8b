#include "platform/coverage.h"

#include <algorithm>
#include <map>
#include <set>

namespace platform {

namespace {

// Below so many prints, or with offsets further apart, plain prints are as quick.
constexpr size_t kFewPrints = 5;
constexpr int kFarApart = 255;  // pixels

struct Parts {
    uint32_t red, green, blue;
    explicit Parts(Pixel pixel)
        : red(pixel >> 16 & 0xFF), green(pixel >> 8 & 0xFF), blue(pixel & 0xFF) {}
};

/// Nearest whole mixture. A part that equals the colour's stays, whatever the coverage, and full
/// coverage gives the colour: Stamps builds on that.
uint32_t Mix(uint32_t under, uint32_t over, uint32_t coverage) {
    return (over * coverage + under * (255 - coverage) + 127) / 255;
}

void Lay(Pixel& pixel, const Parts& over, uint32_t coverage) {
    const Parts under(pixel);
    pixel = 0xFF000000u | Mix(under.red, over.red, coverage) << 16 |
            Mix(under.green, over.green, coverage) << 8 | Mix(under.blue, over.blue, coverage);
}

Rect Bounds(const Canvas& canvas) {
    const Size& pixels = canvas.Scaling().pixels;
    return {0, 0, pixels.width, pixels.height};
}

void StampOnce(Canvas& canvas, const Coverage& shape, Color color, Offset offset) {
    const Rect moved = {shape.x + offset.x, shape.y + offset.y, shape.width, shape.height};
    const Rect area = Intersection(moved, Bounds(canvas));
    const Parts over(ToPixel(color));
    for (int y = area.y; y < area.y + area.height; ++y) {
        const uint8_t* values = shape.values.data() +
                                static_cast<ptrdiff_t>(y - moved.y) * shape.width +
                                (area.x - moved.x);
        Pixel* row = canvas.Writable().Row(y) + area.x;
        for (int x = 0; x < area.width; ++x) {
            if (values[x] != 0) {
                Lay(row[x], over, values[x]);
            }
        }
    }
    canvas.Touch(area);
}

/// Bits of rows, 64 to a word, with one word more than a row needs.
struct BitRows {
    size_t words;
    std::vector<uint64_t> bits;

    BitRows(int width, int height)
        : words(static_cast<size_t>(width) / 64 + 2), bits(words * static_cast<size_t>(height)) {}
    uint64_t* Row(int y) { return bits.data() + words * static_cast<size_t>(y); }
    const uint64_t* Row(int y) const { return bits.data() + words * static_cast<size_t>(y); }
};

bool Bit(const uint64_t* row, int x) {
    return row[x / 64] >> (x % 64) & 1;
}

/// `target` takes up the bits of `source` moved to the right.
void OrMoved(uint64_t* target, const uint64_t* source, size_t words, int by) {
    const auto whole = static_cast<size_t>(by / 64);
    const int rest = by % 64;
    uint64_t carried = 0;
    for (size_t i = 0; i + whole < words; ++i) {
        target[i + whole] |= source[i] << rest | carried;
        carried = rest == 0 ? 0 : source[i] >> (64 - rest);
    }
}

/// All the prints of one Stamp. Once a pixel was covered wholly it has the colour and keeps it;
/// what no print covers stays. Only the pixels between those two need every print, in order.
class Stamps {
public:
    Stamps(const Coverage& shape, std::span<const Offset> offsets)
        : shape_(shape), offsets_(offsets) {
        const auto [left, right] = std::minmax_element(
            offsets.begin(), offsets.end(), [](Offset a, Offset b) { return a.x < b.x; });
        const auto [top, bottom] = std::minmax_element(
            offsets.begin(), offsets.end(), [](Offset a, Offset b) { return a.y < b.y; });
        least_ = {left->x, top->y};
        spread_ = {right->x - left->x, bottom->y - top->y};
    }

    bool WorthWhile() const {
        return offsets_.size() >= kFewPrints && spread_.x <= kFarApart && spread_.y <= kFarApart;
    }

    void Lay(Canvas& canvas, Color color) const {
        // All that any print reaches.
        const Rect reach = {shape_.x + least_.x, shape_.y + least_.y, shape_.width + spread_.x,
                            shape_.height + spread_.y};
        const Rect area = Intersection(reach, Bounds(canvas));
        if (area.Empty()) {
            return;
        }
        const BitRows whole = Spread(255, reach);
        const BitRows any = Spread(1, reach);
        const std::vector<uint8_t> framed = Framed();
        const std::vector<ptrdiff_t> places = Places();
        const Pixel pixel = ToPixel(color);
        const Parts over(pixel);
        for (int y = area.y; y < area.y + area.height; ++y) {
            const uint64_t* wholeRow = whole.Row(y - reach.y);
            const uint64_t* anyRow = any.Row(y - reach.y);
            Pixel* row = canvas.Writable().Row(y);
            for (int x = area.x; x < area.x + area.width; ++x) {
                const int column = x - reach.x;
                if (Bit(wholeRow, column)) {
                    row[x] = pixel;
                } else if (Bit(anyRow, column)) {
                    const uint8_t* from = framed.data() +
                                          static_cast<ptrdiff_t>(y - reach.y) * FramedWidth() +
                                          column;
                    for (const ptrdiff_t place : places) {
                        if (from[place] != 0) {
                            platform::Lay(row[x], over, from[place]);
                        }
                    }
                }
            }
        }
        canvas.Touch(area);
    }

private:
    int FramedWidth() const { return shape_.width + 2 * spread_.x; }

    /// Pixels of the reach over which some print lays `least` coverage or more.
    BitRows Spread(uint8_t least, const Rect& reach) const {
        BitRows shapeBits(reach.width, shape_.height);
        for (int y = 0; y < shape_.height; ++y) {
            const uint8_t* values = shape_.values.data() + static_cast<ptrdiff_t>(y) * shape_.width;
            uint64_t* row = shapeBits.Row(y);
            for (int x = 0; x < shape_.width; ++x) {
                row[x / 64] |= uint64_t{values[x] >= least} << (x % 64);
            }
        }
        // By rows: those of an outline have the same columns, which are then spread only once.
        std::map<int, std::set<int>> columnsOfRow;
        for (const Offset& offset : offsets_) {
            columnsOfRow[offset.y - least_.y].insert(offset.x - least_.x);
        }
        BitRows spread(reach.width, reach.height);
        BitRows across(reach.width, shape_.height);
        const std::set<int>* spreadColumns = nullptr;
        for (const auto& [down, columns] : columnsOfRow) {
            if (spreadColumns == nullptr || *spreadColumns != columns) {
                std::fill(across.bits.begin(), across.bits.end(), 0);
                for (const int column : columns) {
                    for (int y = 0; y < shape_.height; ++y) {
                        OrMoved(across.Row(y), shapeBits.Row(y), across.words, column);
                    }
                }
                spreadColumns = &columns;
            }
            for (int y = 0; y < shape_.height; ++y) {
                OrMoved(spread.Row(y + down), across.Row(y), spread.words, 0);
            }
        }
        return spread;
    }

    /// The shape with nothing around it as far as the prints lie apart.
    std::vector<uint8_t> Framed() const {
        const auto width = static_cast<size_t>(FramedWidth());
        std::vector<uint8_t> framed(width * static_cast<size_t>(shape_.height + 2 * spread_.y));
        for (int y = 0; y < shape_.height; ++y) {
            std::copy_n(shape_.values.data() + static_cast<ptrdiff_t>(y) * shape_.width,
                        shape_.width,
                        framed.data() + static_cast<size_t>(y + spread_.y) * width + spread_.x);
        }
        return framed;
    }

    /// Where in the framed shape, counted from a pixel of the reach, each print has its coverage.
    std::vector<ptrdiff_t> Places() const {
        std::vector<ptrdiff_t> places;
        for (const Offset& offset : offsets_) {
            const ptrdiff_t down = spread_.y - (offset.y - least_.y);
            places.push_back(down * FramedWidth() + spread_.x - (offset.x - least_.x));
        }
        return places;
    }

    const Coverage& shape_;
    std::span<const Offset> offsets_;
    Offset least_, spread_;
};

}  // namespace

void Stamp(Canvas& canvas, const Coverage& shape, Color color, std::span<const Offset> offsets) {
    if (offsets.empty() || shape.values.empty() || canvas.Pixels().Empty()) {
        return;
    }
    const Stamps stamps(shape, offsets);
    if (stamps.WorthWhile()) {
        stamps.Lay(canvas, color);
        return;
    }
    for (const Offset& offset : offsets) {
        StampOnce(canvas, shape, color, offset);
    }
}

}  // namespace platform
