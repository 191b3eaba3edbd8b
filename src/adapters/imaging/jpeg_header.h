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

}  // namespace imaging
