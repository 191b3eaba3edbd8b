// When a photograph was taken, by what its camera wrote into the file, and how that is written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/event_loop.h"

namespace imaging {

/// `count` bytes of a file from `at` on; fewer, or none, beyond its end.
using ReadBytes = std::function<std::string(uint64_t at, size_t count)>;
/// Of an open file.
std::string BytesAt(int fd, uint64_t at, size_t count);

/// The Exif words DateTimeOriginal, else DateTime, of a JPEG, TIFF, PNG or HEIC file (AVIF too).
/// Nullopt where there is no such date, or none that a calendar has. Reads the few places that lead
/// there, never more than 4 MiB, whatever the file says.
std::optional<platform::DateTime> DateTaken(const ReadBytes& read);

/// What has to be put into a picture file at a place for DateTaken to find the date in it.
struct DatePiece {
    int64_t at = 0;
    std::string bytes;
};
DatePiece JpegDate(const platform::DateTime& taken);
DatePiece PngDate(const platform::DateTime& taken);

}  // namespace imaging
