#include "document/line_reader.h"

#include <algorithm>

#include "text/numbers.h"

namespace document {

namespace {

/// Sign, digits, at most one point, at least one digit: no exponent, no prefix.
bool IsDecimal(TextView number) {
    if (!number.empty() && (number.front() == u'-' || number.front() == u'+')) {
        number.remove_prefix(1);
    }
    const auto isDigit = [](char16_t c) { return c >= u'0' && c <= u'9'; };
    const auto digits = std::count_if(number.begin(), number.end(), isDigit);
    const auto points = std::count(number.begin(), number.end(), u'.');
    return digits > 0 && points <= 1 && static_cast<size_t>(digits + points) == number.size();
}

}  // namespace

TextView LineReader::TakeUpTo(size_t end) {
    const TextView taken = TextView(content_).substr(place_, end - place_);
    place_ = end;
    if (place_ < content_.size()) {
        const bool carriageReturn = content_[place_] == u'\r';
        ++place_;
        if (carriageReturn && place_ < content_.size() && content_[place_] == u'\n') {
            ++place_;
        }
    }
    return taken;
}

TextView LineReader::Line() {
    if (AtEnd()) {
        throw ReadFailure{};
    }
    return TakeUpTo(std::min(content_.find_first_of(u"\r\n", place_), content_.size()));
}

TextView LineReader::Item() {
    place_ = std::min(content_.find_first_not_of(u' ', place_), content_.size());
    if (AtEnd()) {
        throw ReadFailure{};
    }
    return TakeUpTo(std::min(content_.find_first_of(u",\r\n", place_), content_.size()));
}

TextView LineReader::ItemOfLine() {
    const TextView item = Item();
    if (content_[place_ - 1] == u',' && !AtEnd()) {
        Line();
    }
    return item;
}

double LineReader::Number() {
    return DecimalNumber(Item());
}

int16_t LineReader::Int16() {
    return ToField16(Number());
}

int32_t LineReader::Int32() {
    const auto value = text::ToInt32(Number());
    if (!value) {
        throw ReadFailure{};
    }
    return *value;
}

int16_t LineReader::Count16() {
    return std::max<int16_t>(Int16(), 0);
}

double DecimalNumber(TextView item) {
    const Text number = text::Trim(item);
    if (number.empty()) {
        return 0;
    }
    const auto value = IsDecimal(number) ? text::Val(number) : std::nullopt;
    if (!value) {
        throw ReadFailure{};
    }
    return *value;
}

int16_t ToField16(double number) {
    const auto value = text::ToInt16(number);
    if (!value) {
        throw ReadFailure{};
    }
    return *value;
}

int16_t NumberOfItem(TextView item) {
    const auto number = text::Val(item);
    const auto value = number ? text::ToInt16(*number) : std::nullopt;
    if (!value) {
        throw ReadFailure{};
    }
    return *value;
}

}  // namespace document
