// A player that can play no file.
#pragma once

#include "platform/video.h"

namespace virtual_adapter {

class NoVideo : public platform::Video {
public:
    void SetUrl(TextView path) override { open_ = !path.empty(); }
    void Play() override {}
    void SetLoop(bool) override {}
    void Close() override { open_ = false; }
    platform::VideoState Status() override {
        return open_ ? platform::VideoState::Ready : platform::VideoState::Nothing;
    }
    platform::Size NaturalSize() override { return {}; }
    void AwaitSize(int) override {}
    void SetRoom(platform::Size) override {}
    platform::VideoFrame Frame() override { return {}; }

private:
    bool open_ = false;
};

}  // namespace virtual_adapter
