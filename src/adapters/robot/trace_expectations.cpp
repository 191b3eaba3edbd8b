#include "adapters/robot/trace_expectations.h"

#include <algorithm>

#include "adapters/posix/json.h"
#include "adapters/robot/values.h"

namespace robot {

namespace {

using posix_adapter::JsonNumber;

Text WithoutFolder(const Text& path) {
    const size_t separator = path.find_last_of(u"/\\");
    return separator == Text::npos ? path : path.substr(separator + 1);
}

/// Of a command to the sound device, whose only quoted word is a path.
Text WithoutFolders(const Text& command) {
    const size_t open = command.find(u'"');
    const size_t separator = command.rfind(u'/');
    return open == Text::npos || separator == Text::npos || separator < open
               ? command
               : command.substr(0, open + 1) + command.substr(separator + 1);
}

/// One step of a fade. The first one, at full volume, is no step.
bool IsFading(const Text& command) {
    return command.starts_with(u"setaudio") && !command.ends_with(u" 1000");
}

/// A command of the sound device, in a script's words; empty for any other event.
Text SoundWords(const TracedEvent& event) {
    if (event.name == "mci") {
        const Text* command = event.TextOf("command");
        return command && !IsFading(*command) ? WithoutFolders(*command) : Text();
    }
    if (event.name != "sndPlaySound") {
        return {};
    }
    const Text* file = event.TextOf("file");
    return file ? u"sound " + WithoutFolder(*file) : u"cancel";
}

bool Equals(const TracedValue& value, TextView expected) {
    return std::visit(
        [expected](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::nullptr_t>) {
                return expected == u"null";
            } else {
                return Matches(ScriptValue(held), expected);
            }
        },
        value);
}

bool Fits(const TracedEvent& event, const FieldExpectation& wanted) {
    if (wanted.field == "t") {
        return Equals(event.milliseconds, wanted.value);
    }
    const TracedValue* value = event.Field(wanted.field);
    if (!value || !wanted.part) {
        return value && Equals(*value, wanted.value);
    }
    const Text* text = std::get_if<Text>(value);
    return text && text->find(wanted.value) != Text::npos;
}

std::string ToScript(double milliseconds, TextView words) {
    return JsonNumber(milliseconds) + " " + text::ToUtf8(words);
}

}  // namespace

std::string TraceExpectations::Judge(const Action& action) {
    if (action.kind == ActionKind::ExpectTrace || action.kind == ActionKind::ExpectNo) {
        return JudgeEvent(action);
    }
    std::vector<Moment> wanted;
    for (size_t i = 0; i < action.paths.size(); ++i) {
        wanted.push_back({action.moments[i], action.paths[i]});
    }
    return action.kind == ActionKind::ExpectSlides ? JudgeMoments(wanted, Slides(), slides_)
                                                   : JudgeMoments(wanted, Sounds(), sounds_);
}

std::string TraceExpectations::Untold() const {
    const std::string slides = UntoldOf(Slides(), slides_, "slides");
    return slides.empty() ? UntoldOf(Sounds(), sounds_, "sounds") : slides;
}

std::string TraceExpectations::JudgeEvent(const Action& action) const {
    const auto fits = [&](const TracedEvent& event) {
        return event.name == action.name &&
               std::all_of(action.fields.begin(), action.fields.end(),
                           [&](const FieldExpectation& wanted) { return Fits(event, wanted); });
    };
    const auto& events = record_.Events();
    const auto found = std::find_if(events.begin(), events.end(), fits);
    if (action.kind == ActionKind::ExpectNo) {
        return found == events.end()
                   ? ""
                   : "there is such an event at " + JsonNumber(found->milliseconds);
    }
    const auto named = std::count_if(events.begin(), events.end(), [&](const TracedEvent& event) {
        return event.name == action.name;
    });
    return found != events.end()
               ? ""
               : "no such event among " + std::to_string(named) + " of the name " + action.name;
}

std::string TraceExpectations::JudgeMoments(const std::vector<Moment>& wanted,
                                            const std::vector<Moment>& came, Told& told) {
    told.any = true;
    for (const Moment& one : wanted) {
        const bool there = told.count < came.size();
        if (!there || came[told.count] != one) {
            return "expected " + ToScript(one.milliseconds, one.words) + ", got " +
                   (there ? ToScript(came[told.count].milliseconds, came[told.count].words)
                          : "nothing more");
        }
        ++told.count;
    }
    return {};
}

std::string TraceExpectations::UntoldOf(const std::vector<Moment>& came, const Told& told,
                                        std::string_view what) {
    if (!told.any || told.count >= came.size()) {
        return {};
    }
    std::string rest = "there were more " + std::string(what) + ":";
    for (size_t i = told.count; i < came.size(); ++i) {
        rest += "\n  " + ToScript(came[i].milliseconds, came[i].words);
    }
    return rest;
}

std::vector<TraceExpectations::Moment> TraceExpectations::Slides() const {
    std::vector<Moment> slides;
    for (const TracedEvent& event : record_.Events()) {
        const Text* path = event.name == "slide" ? event.TextOf("path") : nullptr;
        if (path) {
            slides.push_back({event.milliseconds, WithoutFolder(*path)});
        }
    }
    return slides;
}

/// All commands of one moment together; a question that is put again only once.
std::vector<TraceExpectations::Moment> TraceExpectations::Sounds() const {
    std::vector<Moment> moments;
    Text last;
    for (const TracedEvent& event : record_.Events()) {
        const Text words = SoundWords(event);
        if (words.empty() || (words == last && words.starts_with(u"status"))) {
            continue;
        }
        last = words;
        if (!moments.empty() && moments.back().milliseconds == event.milliseconds) {
            moments.back().words += u" | " + words;
        } else {
            moments.push_back({event.milliseconds, words});
        }
    }
    return moments;
}

}  // namespace robot
