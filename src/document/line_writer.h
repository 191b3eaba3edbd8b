// Text of the program's own files: one value a line, lines ended by CR LF.
#pragma once

#include "text/numbers.h"

namespace document {

class LineWriter {
public:
    void Line(TextView line) {
        content_ += line;
        content_ += u"\r\n";
    }
    /// With a blank for a plus sign in front and a blank behind.
    void Number(double value) { Line(text::PrintedNumber(value)); }

    const Text& Content() const { return content_; }

private:
    Text content_;
};

}  // namespace document
