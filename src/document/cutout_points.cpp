#include "document/cutout_points.h"

#include <algorithm>

#include "document/line_reader.h"
#include "text/numbers.h"

namespace document {

namespace {

int32_t Coordinate(TextView field) {
    return text::ToInt32(text::SafeNumber(field)).value_or(0);
}

}  // namespace

Text CutoutHeaderOf(TextView content) {
    const size_t end = std::min(content.find_first_of(u",\r\n"), content.size());
    return text::Trim(content.substr(0, end));
}

std::optional<std::vector<CutoutPoint>> ReadCutoutPoints(TextView content) {
    std::vector<CutoutPoint> points;
    LineReader reader{Text(content)};
    try {
        if (text::Trim(reader.Item()) != kCutoutHeader) {
            return std::nullopt;
        }
    } catch (const ReadFailure&) {
        return std::nullopt;
    }
    try {
        while (points.size() < kCutoutPointsMost) {
            const TextView x = reader.Item();
            if (!text::Trim(x).empty()) {
                points.push_back({Coordinate(x), Coordinate(reader.Item())});
            }
        }
    } catch (const ReadFailure&) {
        // The end of the file.
    }
    return points;
}

}  // namespace document
