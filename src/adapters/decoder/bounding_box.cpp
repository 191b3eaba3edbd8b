// Reads the comments of a drawing that say what part of the page it covers.
#include <charconv>
#include <cmath>

#include "adapters/decoder/ghostscript.h"

namespace decoder {

namespace {

/// Lines end with CR, LF or both.
std::string_view TakeLine(std::string_view& rest) {
    const size_t end = rest.find_first_of("\r\n");
    const std::string_view line = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return line;
}

std::optional<Box> BoxOf(std::string_view numbers) {
    Box box;
    for (double* number : {&box.left, &box.bottom, &box.right, &box.top}) {
        const size_t start = numbers.find_first_not_of(" \t+");
        if (start == std::string_view::npos) {
            return std::nullopt;
        }
        numbers.remove_prefix(start);
        const auto [end, error] =
            std::from_chars(numbers.data(), numbers.data() + numbers.size(), *number);
        if (error != std::errc{}) {
            return std::nullopt;
        }
        numbers.remove_prefix(static_cast<size_t>(end - numbers.data()));
    }
    constexpr double kMostPoints = 100000;
    for (const double side : {box.left, box.bottom, box.right, box.top}) {
        if (!(std::abs(side) <= kMostPoints)) {
            return std::nullopt;
        }
    }
    return box.right > box.left && box.top > box.bottom ? std::optional(box) : std::nullopt;
}

}  // namespace

std::optional<Box> BoundingBox(std::string_view postScript) {
    constexpr std::string_view kFine = "%%HiResBoundingBox:", kCoarse = "%%BoundingBox:";
    std::optional<Box> fine, coarse;
    bool inHead = true;
    int depth = 0;  // of drawings within the drawing, which have boxes of their own
    while (!postScript.empty()) {
        const std::string_view line = TakeLine(postScript);
        if (!line.starts_with("%%")) {
            continue;
        }
        if (line.starts_with("%%EndComments")) {
            inHead = false;
        } else if (line.starts_with("%%BeginDocument")) {
            ++depth;
        } else if (line.starts_with("%%EndDocument")) {
            --depth;
        } else if (depth <= 0) {
            // The first in the head counts; one that is put off, "(atend)", the last one there is.
            for (const auto& [name, box] : {std::pair{kFine, &fine}, {kCoarse, &coarse}}) {
                if (line.starts_with(name) && (!inHead || !box->has_value())) {
                    const std::optional<Box> read = BoxOf(line.substr(name.size()));
                    *box = read ? read : *box;
                }
            }
        }
        if (!inHead && (fine || coarse) && depth == 0 && line.starts_with("%%EndComments")) {
            break;
        }
    }
    return fine ? fine : coarse;
}

}  // namespace decoder
