#include "platform/file_inquiry.h"

namespace platform {

/// FNV-1a, 64 bits.
uint64_t BeginningSum(std::string_view bytes) {
    uint64_t sum = 0xCBF29CE484222325u;
    for (const char byte : bytes.substr(0, kBeginningBytes)) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
    }
    return sum;
}

}  // namespace platform
