#include "adapters/decoder/boxed_depth.h"

#include <algorithm>
#include <string_view>

namespace decoder {

BoxedDepth BoxedDepthOf(std::span<const uint8_t> file) {
    const std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
    BoxedDepth depth;
    const auto add = [&depth](int bits, bool grey) {
        depth.bits = std::max(depth.bits, bits);
        depth.grey = depth.grey && grey;
    };
    constexpr std::string_view kHevc = "hvcC", kAv1 = "av1C";
    constexpr size_t kHevcForm = 4 + 16, kHevcBits = 4 + 17, kAv1Bits = 4 + 2;
    for (size_t at = text.find(kHevc); at < text.size(); at = text.find(kHevc, at + 1)) {
        if (at + kHevcBits < file.size()) {
            add(8 + (file[at + kHevcBits] & 7), (file[at + kHevcForm] & 3) == 0);
        }
    }
    for (size_t at = text.find(kAv1); at < text.size(); at = text.find(kAv1, at + 1)) {
        if (at + kAv1Bits < file.size()) {
            const int flags = file[at + kAv1Bits];
            const bool high = (flags & 0x40) != 0, highest = (flags & 0x20) != 0;
            add(!high ? 8 : highest ? 12 : 10, (flags & 0x10) != 0);
        }
    }
    return depth;
}

}  // namespace decoder
