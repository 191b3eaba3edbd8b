// What a JPEG file's header says about the work that decoding will be.
#pragma once

#include <cstdint>

class QIODevice;

namespace imaging {

struct JpegHeader {
    int width = 0, height = 0;  // as stored
    bool progressive = false;
    int64_t coefficients = 0;  // of all components

    /// Memory that a decoder needs beside its output, in bytes: a progressive file is collected
    /// whole before the first pixel comes out.
    int64_t WorkingBytes() const;
};

/// Walks the segments from the device's start to the frame header. A zero header where there is
/// none. Moves the device.
JpegHeader ReadJpegHeader(QIODevice& device);

/// Whether the device holds the picture up to the mark of its end: one that was cut off has none,
/// and its decoder makes up the rest. Moves the device.
bool HoldsJpegEnd(QIODevice& device);

}  // namespace imaging
