#include "adapters/virtual/virtual_video.h"

#include <fstream>

#include "adapters/media/media_length.h"
#include "adapters/virtual/film_size.h"

namespace virtual_adapter {

using media_adapter::LengthOfMediaFile;
using media_adapter::LooksLikeVideo;
using media_adapter::MediaLength;

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
    opened_ = loop_.Milliseconds();
    film_ = FilmIn(path);
    if (film_.natural.Empty()) {
        trace_.Event("video", {{"action", Text(u"open")}, {"file", path_}});
    } else {
        trace_.Event("video", {{"action", Text(u"open")},
                               {"file", path_},
                               {"width", double(film_.natural.width)},
                               {"height", double(film_.natural.height)}});
    }
}

Film VirtualVideo::FilmIn(TextView path) {
    if (!files_ || !LooksLikeVideo(*files_, path)) {
        return {};
    }
    const std::optional<MediaLength> length = LengthOfMediaFile(*files_, path);
    std::ifstream file(files_->Find(path).value_or(std::string()), std::ios::binary);
    return {length ? length->milliseconds : kUnknownLengthMs, SizeOfFilm(file)};
}

void VirtualVideo::Play() {
    if (path_.empty()) {
        return;
    }
    played_ = true;
    started_ = loop_.Milliseconds();
    trace_.Event(
        "video",
        {{"action", Text(u"play")}, {"file", path_}, {"milliseconds", film_.milliseconds}});
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
    using platform::VideoState;
    if (path_.empty()) {
        return VideoState::Nothing;
    }
    if (film_.milliseconds == 0) {
        return VideoState::Ready;
    }
    const double played = loop_.Milliseconds() - started_ - film_.loadingMs;
    if (!played_ || played < 0) {
        return VideoState::Loading;
    }
    // Not Ready: a video that is over before anybody asked would be taken for one that cannot play.
    return played >= film_.milliseconds && !loopOn_ ? VideoState::Stopped : VideoState::Playing;
}

platform::Size VirtualVideo::NaturalSize() {
    const bool known = loop_.Milliseconds() - opened_ >= film_.sizeKnownAfter;
    return path_.empty() || !known ? platform::Size{} : film_.natural;
}

}  // namespace virtual_adapter
