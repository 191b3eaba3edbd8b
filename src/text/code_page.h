// Bytes of text files: which encoding they are in, and both ways of converting.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text.h"

namespace text {

/// The system's ANSI code page (CP932, where ～ is U+FF5E). Implemented by an adapter.
class CodePage {
public:
    virtual ~CodePage() = default;

    /// Nullopt as soon as one character has no form in the code page.
    virtual std::optional<std::string> Encode(TextView value) const = 0;

    /// Bytes that form no character become U+FFFD, one each; never fails.
    virtual Text Decode(std::string_view bytes) const = 0;
};

/// Bytes of one of the program's own files: a UTF-8 byte-order mark means UTF-8, otherwise the
/// code page. The mark is dropped.
Text DecodeFile(std::string_view bytes, const CodePage& codePage);

/// As DecodeFile, but a file without a mark counts as UTF-8 when all of it is well-formed UTF-8
/// and it holds a sequence of three bytes or more: for files that people write by hand.
Text DecodeHandWrittenFile(std::string_view bytes, const CodePage& codePage);

/// UTF-8 with a byte-order mark first.
std::string MarkedUtf8(TextView value);

/// Bytes to write: the code page, or, where one character has no form in it, the whole text as
/// UTF-8 with a byte-order mark first.
std::string EncodeFile(TextView value, const CodePage& codePage);

}  // namespace text
