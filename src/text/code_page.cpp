#include "text/code_page.h"

#include <algorithm>
#include <utility>

namespace text {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// True for a lead byte of a sequence of three bytes or more.
bool IsLongLead(char c) {
    return static_cast<unsigned char>(c) >= 0xE0;
}

}  // namespace

Text DecodeFile(std::string_view bytes, const CodePage& codePage) {
    if (bytes.starts_with(kByteOrderMark)) {
        return FromUtf8(bytes.substr(kByteOrderMark.size()));
    }
    return codePage.Decode(bytes);
}

Text DecodeHandWrittenFile(std::string_view bytes, const CodePage& codePage) {
    // Two-byte sequences alone prove nothing: half-width katakana in the code page look the same.
    if (std::any_of(bytes.begin(), bytes.end(), IsLongLead) && IsUtf8(bytes) &&
        !bytes.starts_with(kByteOrderMark)) {
        return FromUtf8(bytes);
    }
    return DecodeFile(bytes, codePage);
}

std::string MarkedUtf8(TextView value) {
    return std::string(kByteOrderMark) + ToUtf8(value);
}

std::string EncodeFile(TextView value, const CodePage& codePage) {
    if (auto encoded = codePage.Encode(value)) {
        return std::move(*encoded);
    }
    return MarkedUtf8(value);
}

}  // namespace text
