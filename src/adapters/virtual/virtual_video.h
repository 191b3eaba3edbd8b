// A player whose files take their time on the virtual clock and show no picture.
#pragma once

#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/trace.h"
#include "platform/video.h"

namespace virtual_adapter {

/// Traces event "video" with its action ("open", "play", "loop", "close"), the file, for "open" its
/// width and height in pixels where it says them, and for "play" its milliseconds; a file that
/// cannot be played has none.
class VirtualVideo : public platform::Video {
public:
    VirtualVideo(platform::Trace& trace, platform::EventLoop& loop) : trace_(trace), loop_(loop) {}

    /// Where files are found; without it none can be played.
    void Follow(platform::Files& files) { files_ = &files; }

    void SetUrl(TextView path) override;
    void Play() override;
    void SetLoop(bool on) override;
    void Close() override;
    platform::VideoState Status() override;
    platform::Size NaturalSize() override { return path_.empty() ? platform::Size{} : natural_; }
    void AwaitSize(int) override {}
    void SetRoom(platform::Size) override {}
    platform::VideoFrame Frame() override { return {}; }

private:
    platform::Size SizeOf(TextView path) const;

    platform::Trace& trace_;
    platform::EventLoop& loop_;
    platform::Files* files_ = nullptr;
    Text path_;
    platform::Size natural_;  // of the file; empty where it says none
    bool loopOn_ = false;
    bool played_ = false;
    double started_ = 0;       // ms of the loop
    double milliseconds_ = 0;  // 0: the file cannot be played
};

}  // namespace virtual_adapter
