// What the user chose in the program's own settings file. Read once, at the start.
#pragma once

namespace platform {

struct UserSettings {
    /// macro-scale = 1080: the full-screen canvas is reckoned in 1080 lines, however many pixels
    /// the monitor has. Otherwise in the monitor's pixels.
    bool canvasOf1080Lines = false;
    /// film = own size: slides' films in full screen are not enlarged. Otherwise they fill the
    /// monitor.
    bool filmsKeepTheirSize = false;
};

}  // namespace platform
