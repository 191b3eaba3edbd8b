// The end of every sound's way: conversion, volume, sink.
#pragma once

#include <gst/gst.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "adapters/gstreamer/audio_output.h"

namespace gst_adapter {

/// Shared between the program and the threads of the stream.
struct TailState {
    /// Amplitude, 0 to 1, of the whole piece, whose pipelines may follow each other. A change takes
    /// effect over some milliseconds, so that steps do not click; the first sample has it at once.
    std::shared_ptr<const std::atomic<float>> volume = std::make_shared<std::atomic<float>>(1.0f);
    /// Stream time in nanoseconds at which the last sample will have been heard; -1: not known yet.
    std::atomic<int64_t> endTime{-1};
    /// True once there was a sample.
    std::atomic<bool> heard{false};
    /// Called on a thread of the stream when endTime becomes known.
    std::function<void()> onEndKnown;

    // Of the thread of the stream alone.
    float gain = -1.0f;  // below 0: no sample yet
    int channels = 0;
    int rate = 0;
    GstSegment segment{};
    int64_t lastEnd = 0;
};

/// A bin with the pad "sink", floating; null when the library lacks a part. `silent`: see
/// AudioOutput::MakeSink. From a worker only.
GstElement* MakeAudioTail(AudioOutput& output, bool silent,
                          const std::shared_ptr<TailState>& state);

/// True for a message that comes from the sink of an audio tail.
bool IsFromSink(GstMessage* message);

}  // namespace gst_adapter
