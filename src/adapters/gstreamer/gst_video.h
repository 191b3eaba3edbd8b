// Video on GStreamer. Every call returns at once; the work is done by a worker for each file, and
// pictures come through a slot that holds the newest one.
#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include "adapters/gstreamer/audio_output.h"
#include "platform/files.h"
#include "platform/video.h"

namespace gst_adapter {

class GstVideo : public platform::Video {
public:
    /// Runs a call on the user-interface thread, later; callable from any thread.
    using Post = std::function<void(std::function<void()>)>;

    GstVideo(platform::Files& files, std::shared_ptr<AudioOutput> output, Post post);
    GstVideo(const GstVideo&) = delete;
    GstVideo& operator=(const GstVideo&) = delete;
    /// Ends what plays, some time later, and calls nobody any more.
    ~GstVideo() override;

    /// A file that shows or sounds nothing is Ready; one that had begun is Stopped at its end or
    /// where it breaks off.
    void SetUrl(TextView path) override;
    void Play() override;
    void SetLoop(bool on) override;
    void Close() override;
    platform::VideoState Status() override;
    platform::Size NaturalSize() override;
    void AwaitSize(int milliseconds) override;
    void SetRoom(platform::Size room) override;
    platform::VideoFrame Frame() override;

private:
    struct Core;

    platform::Files& files_;
    std::shared_ptr<AudioOutput> output_;
    Post post_;
    std::shared_ptr<Core> core_;  // null without a file that was found
    bool named_ = false;          // SetUrl gave a name, found or not
    bool loop_ = false;
    platform::Size room_;
};

}  // namespace gst_adapter
