#include "text/text.h"

#include <algorithm>
#include <array>

namespace text {

namespace {

constexpr char16_t kReplacement = 0xFFFD;

/// One decoded character; length 0 where the bytes at the place are malformed.
struct Sequence {
    char32_t code = 0;
    size_t length = 0;
};

Sequence ReadSequence(std::string_view bytes, size_t at) {
    const auto byte = [&](size_t index) { return static_cast<unsigned char>(bytes[index]); };
    const unsigned lead = byte(at);
    if (lead < 0x80) {
        return {lead, 1};
    }
    size_t length = 0;
    char32_t code = 0;
    char32_t smallest = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, code = lead & 0x1Fu, smallest = 0x80;
    } else if ((lead & 0xF0u) == 0xE0u) {
        length = 3, code = lead & 0x0Fu, smallest = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, code = lead & 0x07u, smallest = 0x10000;
    } else {
        return {};
    }
    if (bytes.size() - at < length) {
        return {};
    }
    for (size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0u) != 0x80u) {
            return {};
        }
        code = (code << 6) | (byte(at + i) & 0x3Fu);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < smallest || code > 0x10FFFF || surrogate) {
        return {};
    }
    return {code, length};
}

void AppendUtf8(std::string& out, char32_t code) {
    const auto push = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
    if (code < 0x80) {
        push(code);
    } else if (code < 0x800) {
        push(0xC0 | (code >> 6));
        push(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        push(0xE0 | (code >> 12));
        push(0x80 | ((code >> 6) & 0x3F));
        push(0x80 | (code & 0x3F));
    } else {
        push(0xF0 | (code >> 18));
        push(0x80 | ((code >> 12) & 0x3F));
        push(0x80 | ((code >> 6) & 0x3F));
        push(0x80 | (code & 0x3F));
    }
}

}  // namespace

Text FromUtf8(std::string_view bytes) {
    Text result;
    result.reserve(bytes.size());
    for (size_t at = 0; at < bytes.size();) {
        const Sequence sequence = ReadSequence(bytes, at);
        if (sequence.length == 0) {
            result.push_back(kReplacement);
            ++at;
            continue;
        }
        if (sequence.code >= 0x10000) {
            const char32_t rest = sequence.code - 0x10000;
            result.push_back(static_cast<char16_t>(0xD800 + (rest >> 10)));
            result.push_back(static_cast<char16_t>(0xDC00 + (rest & 0x3FF)));
        } else {
            result.push_back(static_cast<char16_t>(sequence.code));
        }
        at += sequence.length;
    }
    return result;
}

std::string ToUtf8(TextView value) {
    std::string result;
    result.reserve(value.size() * 3);
    for (size_t i = 0; i < value.size(); ++i) {
        const char16_t unit = value[i];
        const bool high = unit >= 0xD800 && unit <= 0xDBFF;
        const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
        const bool pair =
            high && i + 1 < value.size() && value[i + 1] >= 0xDC00 && value[i + 1] <= 0xDFFF;
        if (pair) {
            const char32_t code = 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) +
                                  (static_cast<char32_t>(value[i + 1]) - 0xDC00);
            AppendUtf8(result, code);
            ++i;
        } else {
            AppendUtf8(result, high || low ? kReplacement : unit);
        }
    }
    return result;
}

bool IsUtf8(std::string_view bytes) {
    for (size_t at = 0; at < bytes.size();) {
        const size_t length = ReadSequence(bytes, at).length;
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

Text LTrim(TextView value) {
    const size_t first = value.find_first_not_of(u' ');
    return first == TextView::npos ? Text() : Text(value.substr(first));
}

Text RTrim(TextView value) {
    const size_t last = value.find_last_not_of(u' ');
    return last == TextView::npos ? Text() : Text(value.substr(0, last + 1));
}

Text Trim(TextView value) {
    return LTrim(RTrim(value));
}

Text Upper(TextView value) {
    Text result(value);
    for (char16_t& c : result) {
        const bool narrow = c >= u'a' && c <= u'z';
        const bool wide = c >= u'ａ' && c <= u'ｚ';
        if (narrow || wide) {
            c = static_cast<char16_t>(c - 0x20);
        }
    }
    return result;
}

Text Left(TextView value, size_t count) {
    return Text(value.substr(0, count));
}

Text Right(TextView value, size_t count) {
    return Text(value.substr(value.size() - std::min(count, value.size())));
}

Text Mid(TextView value, size_t start, size_t count) {
    const size_t from = start == 0 ? 0 : start - 1;
    return from >= value.size() ? Text() : Text(value.substr(from, count));
}

size_t InStr(TextView value, TextView part) {
    const size_t at = value.find(part);
    return at == TextView::npos ? 0 : at + 1;
}

Text KindOf(TextView path) {
    return Upper(Right(path, 3));
}

bool IsVideoKind(TextView path) {
    static constexpr std::array<TextView, 4> kKinds = {u"MP4", u"WMV", u"MOV", u"AVI"};
    return std::find(kKinds.begin(), kKinds.end(), KindOf(path)) != kKinds.end();
}

}  // namespace text
