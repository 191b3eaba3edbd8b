#include "document/interval.h"

#include <algorithm>

#include "model/windows/main_window.h"
#include "text/numbers.h"

namespace document {

namespace {

constexpr int32_t kShortestMs = 1000;
constexpr double kLongestMs = 2147483647;

}  // namespace

int32_t KeptInterval(int32_t milliseconds) {
    return std::max(milliseconds, kShortestMs);
}

void TakeInterval(Application& app, int32_t milliseconds) {
    const int32_t interval = KeptInterval(milliseconds);
    app.state.SlideIntervalSec =
        std::max<int32_t>(1, static_cast<int32_t>(text::RoundHalfEven(interval / 1000.0)));
    app.windows.form1.Timer1.Interval = interval;
}

double IntervalMs(const model::ShowState& state) {
    // Readers take 32 bits: the longest interval of a file comes back as it was.
    return std::min(state.SlideIntervalSec * 1000.0, kLongestMs);
}

}  // namespace document
