// How loud a piece of sound is from its beginning to its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace gst_adapter {

/// Plays the file out unheard, as fast as it goes, and answers the loudest sample of each of so
/// many equal parts, 255 for full. `goOn` is asked often; false ends it. Empty where it was ended
/// or nothing can be heard. Of a piece of more than kLongestHours the beginning. From a worker
/// only.
std::vector<uint8_t> LevelsOf(const std::string& nativePath, size_t parts,
                              const std::function<bool()>& goOn);

constexpr int kLongestHours = 4;

}  // namespace gst_adapter
