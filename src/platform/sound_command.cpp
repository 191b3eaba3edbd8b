#include "platform/sound_command.h"

namespace platform {

namespace {

constexpr int kMostDigits = 9;

Text TakeWord(TextView& rest) {
    const size_t start = rest.find_first_not_of(u' ');
    rest.remove_prefix(start == TextView::npos ? rest.size() : start);
    const Text word(rest.substr(0, rest.find(u' ')));
    rest.remove_prefix(word.size());
    return word;
}

/// `"file" type T alias A`, the quotes included.
SoundCommand ParseFileOpening(TextView rest) {
    const size_t quote = rest.rfind(u'"');
    if (quote == 0) {
        return {};
    }
    SoundCommand command;
    command.verb = u"open";
    command.file = Text(rest.substr(1, quote - 1));
    rest.remove_prefix(quote + 1);
    if (TakeWord(rest) != u"type") {
        return {};
    }
    command.type = TakeWord(rest);
    if (TakeWord(rest) != u"alias") {
        return {};
    }
    command.device = TakeWord(rest);
    return command;
}

}  // namespace

SoundCommand ParseSoundCommand(TextView text) {
    SoundCommand command;
    command.verb = TakeWord(text);
    const Text rest = text::Trim(text);
    if (command.verb == u"open" && rest.starts_with(u'"')) {
        return ParseFileOpening(rest);
    }
    TextView tail = rest;
    command.device = TakeWord(tail);
    command.rest = text::Trim(tail);
    return command;
}

int WholeNumber(TextView value, int otherwise) {
    const Text digits = text::LTrim(value);
    if (digits.empty() || digits.size() > kMostDigits) {
        return otherwise;
    }
    int number = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9') {
            return otherwise;
        }
        number = number * 10 + (digit - u'0');
    }
    return number;
}

}  // namespace platform
