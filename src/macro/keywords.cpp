#include "macro/keywords.h"

#include <algorithm>

#include "macro/text_words.h"
#include "text/numbers.h"

namespace macro {

namespace {

Flow RunKeyword(const Keyword& keyword, Run& run) {
    run.app.platform.trace.Event(
        "macro", {{"line", double(run.lineNumber)}, {"keyword", Text(keyword.name)}});
    const NumberRead number = ReadNumber(keyword, run.MacroLineUpper, run.ArgStart);
    if (number.fails) {
        return Flow::Failed;
    }
    const Flow flow = number.ignored ? Flow::GoOn : keyword.handler(run, number.value);
    if (!keyword.setsLine) {
        ClearLine(run);
    }
    return flow;
}

}  // namespace

NumberRead ReadNumber(const Keyword& keyword, TextView upperLine, size_t argStart) {
    NumberRead read;
    if (keyword.form != Form::Number) {
        return read;
    }
    double& value = read.value;
    value = text::SafeNumber(text::Mid(upperLine, argStart, keyword.digits));
    if (keyword.number == Number::Down) {
        value = text::Int(value + 0.1);
    } else if (keyword.number == Number::Whole) {
        value = text::RoundHalfEven(value);
    }
    const bool outside = value < keyword.range.lowest || value > keyword.range.highest;
    switch (keyword.badValue.kind) {
        case BadValue::Unbounded:
            break;
        case BadValue::Clipped:
            value = std::clamp(value, keyword.range.lowest, keyword.range.highest);
            break;
        case BadValue::Ignored:
            read.ignored = outside;
            break;
        case BadValue::Replaced:
            value = outside ? keyword.badValue.replacement : value;
            break;
    }
    read.fails = keyword.number != Number::Real && !text::ToInt16(value);
    return read;
}

double NumberArgument(const Run& run, size_t digits) {
    return text::SafeNumber(text::Mid(run.MacroLineUpper, run.ArgStart, digits));
}

Flow RunKeywords(Run& run) {
    for (const Keyword& keyword : Keywords()) {
        if (keyword.name == u"CURRENTY") {
            MovePensToMargin(run);
        }
        if (!run.MacroLineUpper.starts_with(keyword.name)) {
            continue;
        }
        if (const Flow flow = RunKeyword(keyword, run); flow != Flow::GoOn) {
            return flow;
        }
    }
    return Flow::GoOn;
}

}  // namespace macro
