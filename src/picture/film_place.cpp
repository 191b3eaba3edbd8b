#include "picture/film_place.h"

#include <algorithm>

#include "platform/video.h"

namespace picture {

namespace {

using platform::Rect;
using platform::Size;

constexpr Size kUsual{960, 540};
constexpr int kPercentFromWindow = 80;
constexpr int kPercentBeside = 50;

/// As it is where the room does, else made smaller.
Size Within(Size own, Size room) {
    return own.width <= room.width && own.height <= room.height ? own : platform::Fitted(own, room);
}

}  // namespace

FilmPlace PlaceFilm(const FilmRule& rule) {
    const Size monitor{rule.monitor.width, rule.monitor.height};
    if (rule.slide && rule.fullScreen) {
        const Size own = rule.own.Empty() ? monitor : rule.own;
        const Size film = rule.ownSize ? Within(own, monitor) : platform::Fitted(own, monitor);
        return {rule.monitor, Centred(film, {0, 0, monitor.width, monitor.height})};
    }
    const int percent = rule.slide ? kPercentFromWindow : kPercentBeside;
    const Size room{monitor.width * percent / 100, monitor.height * percent / 100};
    const Size film = Within(rule.own.Empty() ? kUsual : rule.own, room);
    return {Centred(film, rule.monitor), {0, 0, film.width, film.height}};
}

}  // namespace picture
