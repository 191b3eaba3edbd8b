#include "platform/sound_command.h"

#include <optional>

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

/// ` type T alias A`.
SoundCommand ParseOpening(TextView verb, TextView file, TextView rest) {
    SoundCommand command;
    command.verb = Text(verb);
    command.file = Text(file);
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

/// The text between the first quote, with which it begins, and the last one; nullopt without that.
std::optional<TextView> Quoted(TextView text) {
    const size_t last = text.rfind(u'"');
    return text.starts_with(u'"') && last > 0 ? std::optional(text.substr(1, last - 1))
                                              : std::nullopt;
}

}  // namespace

SoundCommand ParseSoundCommand(TextView text) {
    SoundCommand command;
    command.verb = TakeWord(text);
    const Text rest = text::Trim(text);
    TextView tail = rest;
    if (command.verb == u"open" && rest.starts_with(u'"')) {
        const auto file = Quoted(rest);
        return file ? ParseOpening(u"open", *file, tail.substr(file->size() + 2)) : SoundCommand();
    }
    command.device = TakeWord(tail);
    if (command.verb == u"open" && command.device == u"new") {
        return ParseOpening(u"open new", {}, tail);
    }
    command.rest = text::Trim(tail);
    if (command.verb == u"save") {
        const auto file = Quoted(command.rest);
        if (!file) {
            return {};
        }
        command.file = Text(*file);
    }
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
