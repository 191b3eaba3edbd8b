// Reading the program's own text files: whole lines, items and numbers, one after the other.
#pragma once

#include <cstddef>
#include <cstdint>

#include "text/text.h"

namespace document {

/// Thrown by a read that fails; caught by the routine that reads the file.
struct ReadFailure {};

/// The file's text as a stream. A line ends at CR LF, LF or CR. Every read throws ReadFailure when
/// it would begin at the end of the text.
class LineReader {
public:
    explicit LineReader(Text content) : content_(std::move(content)) {}
    // Views into the text would dangle in a copy.
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    bool AtEnd() const { return place_ == content_.size(); }

    /// Anything but blanks and line ends is left.
    bool HoldsMore() const { return content_.find_first_not_of(u" \r\n", place_) != Text::npos; }

    /// All characters up to the line's end.
    TextView Line();

    /// Leading blanks dropped; ends at a comma or at the line's end, and the next read begins
    /// after that.
    TextView Item();

    /// An item with the line to itself: what follows its comma is lost.
    TextView ItemOfLine();

    /// An item that holds one decimal number, with or without blanks around it; an empty item is
    /// 0. Rounded to the nearest whole number, halves to even. Fails for anything else, and for a
    /// number that does not fit.
    double Number();
    int16_t Int16();
    int32_t Int32();

    /// Count of entries that follow: never below 0.
    int16_t Count16();

private:
    /// Text from `place_` up to `end`, after which reading goes on.
    TextView TakeUpTo(size_t end);

    Text content_;
    size_t place_ = 0;
};

/// One decimal number with or without blanks around it; nothing but blanks is 0. ReadFailure for
/// anything else.
double DecimalNumber(TextView item);

/// Rounded to the nearest whole number, halves to even. ReadFailure for one that does not fit.
int16_t ToField16(double number);

/// Number of a setting that is read as text: what is no number counts 0; ReadFailure for one that
/// does not fit.
int16_t NumberOfItem(TextView item);

}  // namespace document
