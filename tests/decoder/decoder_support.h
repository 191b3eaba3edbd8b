// Samples of every kind, and what they show.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "adapters/decoder/decode.h"

using FileBytes = std::vector<uint8_t>;

/// A file of the samples' folder; a test failure and nothing where it is missing.
FileBytes Sample(const std::string& name);

/// "sources/<name>.ppm": the pixels that a sample was made from.
decoder::Picture Source(const std::string& name);

/// The kind that the beginning of a sample's name says.
sandbox::Kind KindOfSample(const std::string& name);

/// Distances of the colour parts between two pictures of one size.
struct Difference {
    int largest = 256;  // so much where the sizes differ
    double mean = 256;
};
Difference Between(const decoder::Picture& a, const decoder::Picture& b);

/// Names of all samples that are for the decoder, in order.
std::vector<std::string> SampleNames();
