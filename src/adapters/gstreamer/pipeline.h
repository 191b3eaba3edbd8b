// Parts that sound and video are put together from.
#pragma once

#include <gst/gst.h>

#include <functional>
#include <memory>
#include <string>

#include "adapters/gstreamer/handles.h"
#include "adapters/gstreamer/pcm_source.h"

namespace gst_adapter {

enum class StreamEvent { End, Error, SinkError, ClockLost, Playing };

/// An empty pipeline whose events call `onEvent` on whatever thread they happen. Nothing else
/// is kept of its messages.
ElementPtr MakePipeline(std::function<void(StreamEvent)> onEvent);

/// Stops the pipeline, cuts off its events and frees it. May take as long as its sink likes.
void DropPipeline(ElementPtr& pipeline);

/// Goes to the place, in seconds, of a pipeline that was set to pause. Waits up to 5 s until that
/// is possible, so from a worker only; a file that cannot seek stays at its beginning.
void SeekPaused(GstElement& pipeline, double seconds);

/// Adds a source of the samples, linked to the pad "sink" of `to`. `loop`: at the end it begins
/// anew, without a gap. The source begins where it stands.
bool AddPcmSource(GstElement& pipeline, GstElement& to, std::unique_ptr<PcmSource> source,
                  bool loop);

/// Adds reader and instrument for a MIDI file.
bool AddMidiSource(GstElement& pipeline, GstElement& to, const std::string& nativePath);

/// Adds a reader for files of any kind, which never follows a file to the network. `onStream` is
/// called on a thread of the stream for each decoded stream, "audio" or "video", and answers the
/// pad that takes it, or null.
bool AddDecoder(GstElement& pipeline, const std::string& nativePath,
                std::function<PadPtr(const std::string& kind)> onStream);

/// Finds out that a pipeline will never begin to play: the decoder swallows an error that comes
/// while it is still looking at the file, and nothing happens any more.
struct StartWatch {
    static constexpr int kPollMs = 200;
    int polls = 0;
    int idlePolls = 0;
    /// To be asked every kPollMs until the pipeline plays.
    bool Hopeless(GstElement& pipeline);
};

}  // namespace gst_adapter
