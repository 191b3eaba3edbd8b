// A player whose files take their time on the virtual clock and show no picture.
#pragma once

#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/trace.h"
#include "platform/video.h"

namespace virtual_adapter {

/// What there is to know of a film.
struct Film {
    double milliseconds = 0;      // of its length; 0: it cannot be played
    platform::Size natural = {};  // empty where it says none
    double sizeKnownAfter = 0;    // ms from its opening
    double loadingMs = 0;         // from Play to the first picture
};

/// Traces event "video" with its action ("open", "play", "loop", "close"), the file, for "open" its
/// width and height in pixels where it says them, and for "play" its milliseconds; a file that
/// cannot be played has none.
class VirtualVideo : public platform::Video {
public:
    VirtualVideo(platform::Trace& trace, platform::EventLoop& loop) : trace_(trace), loop_(loop) {}

    /// Where films are found; without it none can be played.
    void Follow(platform::Files& files) { files_ = &files; }

    void SetUrl(TextView path) override;
    void Play() override;
    void SetLoop(bool on) override;
    void Close() override;
    platform::VideoState Status() override;
    platform::Size NaturalSize() override;
    void AwaitSize(int) override {}
    void SetRoom(platform::Size) override {}
    platform::VideoFrame Frame() override { return {}; }

protected:
    /// The film in that file, by what stands in it. Asked once for each opening.
    virtual Film FilmIn(TextView path);

private:
    platform::Trace& trace_;
    platform::EventLoop& loop_;
    platform::Files* files_ = nullptr;
    Text path_;
    Film film_;
    bool loopOn_ = false;
    bool played_ = false;
    double opened_ = 0, started_ = 0;  // ms of the loop
};

}  // namespace virtual_adapter
