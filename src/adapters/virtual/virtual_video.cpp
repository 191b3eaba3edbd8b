#include "adapters/virtual/virtual_video.h"

#include <fstream>

#include "adapters/virtual/film_size.h"
#include "adapters/virtual/media_length.h"

namespace virtual_adapter {

namespace {

/// Of a video that does not tell its length.
constexpr double kUnknownLengthMs = 2000;

}  // namespace

void VirtualVideo::SetUrl(TextView path) {
    if (path.empty()) {
        Close();
        return;
    }
    path_ = path;
    played_ = false;
    milliseconds_ = 0;
    if (files_ && LooksLikeVideo(*files_, path)) {
        const std::optional<MediaLength> length = LengthOfMediaFile(*files_, path);
        milliseconds_ = length ? length->milliseconds : kUnknownLengthMs;
    }
    natural_ = milliseconds_ > 0 ? SizeOf(path) : platform::Size{};
    if (natural_.Empty()) {
        trace_.Event("video", {{"action", Text(u"open")}, {"file", path_}});
    } else {
        trace_.Event("video", {{"action", Text(u"open")},
                               {"file", path_},
                               {"width", double(natural_.width)},
                               {"height", double(natural_.height)}});
    }
}

platform::Size VirtualVideo::SizeOf(TextView path) const {
    const std::optional<std::string> native = files_->Find(path);
    std::ifstream file(native.value_or(std::string()), std::ios::binary);
    return SizeOfFilm(file);
}

void VirtualVideo::Play() {
    if (path_.empty()) {
        return;
    }
    played_ = true;
    started_ = loop_.Milliseconds();
    trace_.Event("video",
                 {{"action", Text(u"play")}, {"file", path_}, {"milliseconds", milliseconds_}});
}

void VirtualVideo::SetLoop(bool on) {
    if (on != loopOn_) {
        loopOn_ = on;
        trace_.Event("video", {{"action", Text(u"loop")}, {"on", on}});
    }
}

void VirtualVideo::Close() {
    if (!path_.empty()) {
        trace_.Event("video", {{"action", Text(u"close")}, {"file", path_}});
    }
    path_.clear();
    played_ = false;
}

platform::VideoState VirtualVideo::Status() {
    if (path_.empty()) {
        return platform::VideoState::Nothing;
    }
    if (milliseconds_ == 0) {
        return platform::VideoState::Ready;
    }
    if (!played_) {
        return platform::VideoState::Loading;
    }
    const bool over = loop_.Milliseconds() - started_ >= milliseconds_;
    // Not Ready: a video that is over before anybody asked would be taken for one that cannot play.
    return over && !loopOn_ ? platform::VideoState::Stopped : platform::VideoState::Playing;
}

}  // namespace virtual_adapter
