// A bar that shows how loud a piece of sound is from its beginning to its end, and where it plays.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "model/scroll_bar.h"

namespace model {

/// Value is milliseconds of the piece, Max all of it.
class SoundBar : public ScrollBar {
public:
    using ScrollBar::ScrollBar;
    /// What is seen changed beside the properties. Attached by the view.
    Event<> Refresh;

    /// Loudest sample of equal parts of the piece, 255 for full; empty: not known.
    const std::vector<uint8_t>& Levels() const { return levels_; }
    void SetLevels(std::vector<uint8_t> levels) {
        levels_ = std::move(levels);
        Refresh();
    }

private:
    std::vector<uint8_t> levels_;
};

}  // namespace model
