#include "picture/fit.h"

#include <algorithm>
#include <array>

#include "platform/monitors.h"
#include "text/numbers.h"

namespace picture {

namespace {

constexpr int16_t kOverlaySizeRandom = 5;
constexpr int16_t kOverlaySizeUnlimited = 6;
constexpr std::array<double, 5> kOverlayShare{1.0, 0.8, 0.6, 0.4, 0.2};

/// Limit of one axis in twips.
double Limit(const FitRule& rule, int area) {
    if (rule.pictureScale > 0) {
        return text::Int(area * rule.pictureScale);
    }
    if (rule.overlaySize == kOverlaySizeRandom) {
        return text::Int(area * (0.5 * rule.randomFactor + 0.2));
    }
    if (rule.overlaySize > 0 && rule.overlaySize < static_cast<int16_t>(kOverlayShare.size())) {
        return text::Int(area * kOverlayShare[static_cast<size_t>(rule.overlaySize)]);
    }
    return area;
}

bool Scales(const FitRule& rule, double pw, double ph, double tw, double th) {
    const bool larger = pw > tw || ph > th;
    if (rule.fullScreen) {
        return larger && rule.overlaySize < kOverlaySizeUnlimited && rule.sizeAdjust < 2;
    }
    return rule.sizeAdjust == 1 || (rule.sizeAdjust == 0 && larger);
}

std::optional<int> Pixels(double twips) {
    const std::optional<int16_t> whole = text::ToInt16(twips / platform::kTwipsPerPixel);
    return whole ? std::optional<int>(std::max<int>(1, *whole)) : std::nullopt;
}

}  // namespace

std::optional<platform::Size> FittedSize(const FitRule& rule, platform::Size own) {
    if (own.Empty() || rule.areaTwips.Empty()) {
        return std::nullopt;
    }
    const double pw = static_cast<double>(own.width) * platform::kTwipsPerPixel;
    const double ph = static_cast<double>(own.height) * platform::kTwipsPerPixel;
    const double tw = rule.fullScreen ? Limit(rule, rule.areaTwips.width) : rule.areaTwips.width;
    const double th = rule.fullScreen ? Limit(rule, rule.areaTwips.height) : rule.areaTwips.height;
    if (!Scales(rule, pw, ph, tw, th)) {
        return std::nullopt;
    }
    const double factor = pw / ph > tw / th || rule.sizeAdjust == 1 ? tw / pw : th / ph;
    const std::optional<int> width = Pixels(pw * factor);
    const std::optional<int> height = Pixels(ph * factor);
    if (!width || !height) {
        return std::nullopt;
    }
    return platform::Size{*width, *height};
}

}  // namespace picture
