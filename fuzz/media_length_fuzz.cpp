// Any bytes as a sound or film whose length is asked for: never a crash, never longer than a day.
#include <cstdlib>
#include <sstream>

#include "adapters/media/media_length.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::istringstream file(std::string(reinterpret_cast<const char*>(data), size));
    constexpr double kDayMs = 24.0 * 3600 * 1000;
    for (const auto reading : {media_adapter::Reading::Whole, media_adapter::Reading::Beginning}) {
        const auto length = media_adapter::LengthOfMedia(file, reading);
        if (length && !(length->milliseconds > 0 && length->milliseconds <= kDayMs)) {
            std::abort();
        }
    }
    return 0;
}
