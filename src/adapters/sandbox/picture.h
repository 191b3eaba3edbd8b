// A decoded picture on its way to the program.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/imaging.h"

namespace sandbox {

struct Picture {
    platform::Size size;
    int bitsPerPixel = 24;         // as the file stores it: 1, 4, 8, 16, 24, 32, 48, 64
    std::vector<uint32_t> pixels;  // 0xFFRRGGBB, row by row; what is transparent lies over white
};

}  // namespace sandbox
