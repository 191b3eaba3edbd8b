#include "macro/call_shape.h"

#include <algorithm>

namespace macro {

namespace {

constexpr TextView kBlanks = u" \t　";

bool IsComment(TextView line, size_t at) {
    return line.substr(at).starts_with(u"//");
}

/// Reads the field at `at` up to the comma, bracket or comment after it, where `at` then stands.
CallField TakeField(TextView line, size_t& at) {
    const size_t start = at;
    CallField field;
    at = std::min(line.find_first_not_of(kBlanks, at), line.size());
    size_t innerEnd = TextView::npos;
    const size_t innerStart = at + 1;
    if (at < line.size() && line[at] == u'"') {
        field.quoted = true;
        innerEnd = line.find(u'"', innerStart);
        field.closed = innerEnd != TextView::npos;
        at = field.closed ? innerEnd + 1 : line.size();
    }
    while (at < line.size() && line[at] != u',' && line[at] != u')' && !IsComment(line, at)) {
        ++at;
    }
    field.text = Bare(line.substr(start, at - start));
    if (!field.quoted) {
        field.inner = field.text;
    } else if (field.closed) {
        field.inner = line.substr(innerStart, innerEnd - innerStart);
        field.stray = Bare(line.substr(innerEnd + 1, at - innerEnd - 1));
    } else {
        field.inner = line.substr(innerStart);
    }
    return field;
}

}  // namespace

TextView Bare(TextView part) {
    const size_t first = std::min(part.find_first_not_of(kBlanks), part.size());
    const size_t last = part.find_last_not_of(kBlanks);
    return part.substr(first, last == TextView::npos ? 0 : last - first + 1);
}

CallShape ShapeOf(TextView line, size_t length) {
    CallShape shape;
    size_t at = line.find(u'(', length);
    const size_t comment = line.find(u"//", length);
    if (at == TextView::npos || comment < at) {
        shape.ahead =
            Bare(line.substr(length, comment == TextView::npos ? comment : comment - length));
        return shape;
    }
    shape.opened = true;
    shape.ahead = Bare(line.substr(length, at - length));
    const size_t start = ++at;
    while (true) {
        shape.fields.push_back(TakeField(line, at));
        if (at >= line.size() || line[at] != u',') {
            break;
        }
        ++at;
    }
    shape.closed = at < line.size() && line[at] == u')';
    shape.all = line.substr(start, at - start);
    return shape;
}

}  // namespace macro
