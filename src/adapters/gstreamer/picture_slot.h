// Pictures on their way from a stream to the window: brought to the size that they are shown in
// while they are still in the film's own colours, which are fewer bytes, then to the screen's.
#pragma once

#include <gst/gst.h>
#include <gst/video/video.h>

#include <functional>
#include <memory>
#include <mutex>

#include "adapters/gstreamer/handles.h"
#include "platform/video.h"

namespace gst_adapter {

class PictureSlot : public std::enable_shared_from_this<PictureSlot> {
public:
    /// Called on a thread of the stream when a picture has come. To be set before MakeTail.
    std::function<void()> onPicture;

    /// A bin with the pad "sink", floating, that puts its pictures here; null when the library
    /// lacks a part. Of several tails the last one counts.
    GstElement* MakeTail();

    // Any thread.

    /// As Video::SetRoom; until then pictures come no larger than 1920 x 1080.
    void SetRoom(platform::Size room);
    /// As Video::NaturalSize.
    platform::Size NaturalSize();
    /// As Video::Frame.
    platform::VideoFrame Newest();
    /// Lets the newest picture go.
    void Clear();

private:
    void TakeSample(GstSample* sample);
    void TakeEvent(GstEvent& event);
    void Turn(const GstTagList& tags);
    void Fit();
    platform::Size ShownSize() const;

    std::mutex mutex_;
    std::shared_ptr<GstBuffer> newest_;
    GstVideoInfo format_{};  // of the newest picture
    platform::Size room_;
    platform::Size own_;  // of the film, square pixels, not yet turned
    GstVideoOrientationMethod turn_ = GST_VIDEO_ORIENTATION_IDENTITY;
    bool turnIsTheStreams_ = false;  // said of it, not of the whole file
    ElementPtr scale_, flip_, size_;
};

}  // namespace gst_adapter
