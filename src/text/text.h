// UTF-16 text as the file formats count it: one char16_t is one character position.
#pragma once

#include <string>
#include <string_view>

namespace text {

using Text = std::u16string;
using TextView = std::u16string_view;

/// UTF-8 to UTF-16. Malformed bytes become U+FFFD; never fails.
Text FromUtf8(std::string_view bytes);

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD; never fails.
std::string ToUtf8(TextView value);

/// True when the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

/// Without leading / trailing / surrounding blanks (U+0020 only).
Text LTrim(TextView value);
Text RTrim(TextView value);
Text Trim(TextView value);

/// Upper case of a-z and of the full-width ａ-ｚ; other characters stay.
Text Upper(TextView value);

/// First, last `count` characters; from 1-based `start`, `count` characters (default: to the end).
/// Counts that reach beyond the text take what is there; never fail.
Text Left(TextView value, size_t count);
Text Right(TextView value, size_t count);
Text Mid(TextView value, size_t start, size_t count = std::u16string::npos);

/// 1-based position of `part` in `value`, 0 when it is not there.
size_t InStr(TextView value, TextView part);

/// Last three characters in upper case: how file kinds are told apart.
Text KindOf(TextView path);

/// True for the kinds that are played as a video: MP4, WMV, MOV, AVI.
bool IsVideoKind(TextView path);

}  // namespace text

// The one type that every floor speaks.
using Text = text::Text;
using TextView = text::TextView;
