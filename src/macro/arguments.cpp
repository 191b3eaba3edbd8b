#include "macro/arguments.h"

#include <algorithm>

#include "text/numbers.h"

namespace macro {

TextView BeforeComment(TextView line) {
    return line.substr(0, line.find(u"//"));
}

TextView Quoted(TextView line) {
    const size_t first = line.find(u'"');
    if (first == TextView::npos) {
        return {};
    }
    const size_t last = line.find(u'"', first + 1);
    return last == TextView::npos ? TextView() : line.substr(first + 1, last - first - 1);
}

std::vector<TextView> CallFields(TextView line, size_t most) {
    const size_t open = line.find(u'(');
    if (open == TextView::npos) {
        return {};
    }
    const size_t close = line.rfind(u')');
    const bool closed = close != TextView::npos && close > open;
    TextView rest =
        closed ? line.substr(open + 1, close - open - 1) : WithoutLineEnd(line.substr(open + 1));
    std::vector<TextView> fields;
    while (fields.size() + 1 < most) {
        const size_t comma = rest.find(u',');
        if (comma == TextView::npos) {
            break;
        }
        fields.push_back(rest.substr(0, comma));
        rest.remove_prefix(comma + 1);
    }
    fields.push_back(rest);
    return fields;
}

TextView WithoutLineEnd(TextView line) {
    while (!line.empty() && (line.back() == u'\r' || line.back() == u'\n')) {
        line.remove_suffix(1);
    }
    return line;
}

Text Unquoted(TextView value) {
    Text result = text::Trim(value);
    if (!result.empty() && result.front() == u'"') {
        result.erase(0, 1);
    }
    if (!result.empty() && result.back() == u'"') {
        result.pop_back();
    }
    return result;
}

Text Unwrapped(TextView value) {
    Text result = text::Trim(value);
    if (!result.empty() && result.front() == u'"') {
        result.erase(0, 1);
        if (!result.empty()) {
            result.pop_back();
        }
    }
    return result;
}

Text CallText(TextView line, size_t before, Text (*otherwise)(TextView)) {
    const auto fields = CallFields(line, before + 1);
    if (fields.size() <= before) {
        return {};
    }
    const TextView field = fields[before];
    TextView rest = line.substr(static_cast<size_t>(field.data() - line.data()));
    rest.remove_prefix(std::min(rest.find_first_not_of(u' '), rest.size()));
    const size_t closing = rest.starts_with(u'"') ? rest.find(u'"', 1) : TextView::npos;
    return closing == TextView::npos ? otherwise(field) : Text(rest.substr(1, closing - 1));
}

double NumberField(const std::vector<TextView>& fields, size_t index) {
    return index < fields.size() ? text::SafeNumber(fields[index]) : 0;
}

}  // namespace macro
