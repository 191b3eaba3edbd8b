// Where a film stands on its monitor, and how large. Pure arithmetic.
#pragma once

#include "platform/canvas.h"
#include "platform/imaging.h"

namespace picture {

struct FilmRule {
    bool slide = true;  // false: beside a slide, whose buttons must stay in reach
    bool fullScreen = false;
    bool ownSize = false;    // of slides in full screen: not enlarged
    platform::Size own;      // pixels of the film; empty while unknown
    platform::Rect monitor;  // pixels
};

struct FilmPlace {
    platform::Rect window;  // on the desktop
    platform::Rect film;    // in the window
};

/// A slide's film in full screen has the whole monitor as its window and is fitted to it, or keeps
/// its own size if that is not larger. All others have a window of their own size in the middle of
/// the monitor, but at most 80 % of its width and height, and half of them beside a slide. One of
/// unknown size counts as 960 x 540, and in full screen as large as the monitor.
FilmPlace PlaceFilm(const FilmRule& rule);

}  // namespace picture
