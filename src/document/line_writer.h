// Text of the program's own files: one value a line, lines ended by CR LF.
#pragma once

#include <algorithm>
#include <cstddef>

#include "text/numbers.h"

namespace document {

class LineWriter {
public:
    /// A line end inside the value, which a file's name can hold, becomes a blank: later lines
    /// stay in their places.
    void Line(TextView line) {
        const size_t start = content_.size();
        content_ += line;
        const auto isLineEnd = [](char16_t c) { return c == u'\r' || c == u'\n'; };
        std::replace_if(content_.begin() + static_cast<std::ptrdiff_t>(start), content_.end(),
                        isLineEnd, u' ');
        content_ += u"\r\n";
    }
    /// With a blank for a plus sign in front and a blank at the end.
    void Number(double value) { Line(text::PrintedNumber(value)); }

    const Text& Content() const { return content_; }

private:
    Text content_;
};

}  // namespace document
