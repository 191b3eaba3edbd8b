#include "adapters/tracing/box_events.h"

namespace tracing {

namespace {

using platform::Answer;
using TraceValue = decltype(platform::TraceField::value);

Text NameOf(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return u"ok";
        case Answer::Cancel:
            return u"cancel";
        case Answer::Yes:
            return u"yes";
        case Answer::No:
            return u"no";
    }
    return u"";
}

TraceValue TextOrNull(const std::optional<Text>& text) {
    return text ? TraceValue(*text) : TraceValue(nullptr);
}

/// The four fields, and the mark of a box that answered itself.
void Tell(platform::Trace& trace, std::string_view event, const platform::TraceField (&fields)[4],
          bool unanswered) {
    if (unanswered) {
        trace.Event(event, {fields[0], fields[1], fields[2], fields[3], {"unanswered", true}});
    } else {
        trace.Event(event, {fields[0], fields[1], fields[2], fields[3]});
    }
}

}  // namespace

void TraceMessage(platform::Trace& trace, TextView text, int flags, TextView title, Answer answer,
                  bool unanswered) {
    Tell(trace, "message",
         {{"title", Text(title)},
          {"text", Text(text)},
          {"flags", static_cast<double>(flags)},
          {"answer", NameOf(answer)}},
         unanswered);
}

void TraceInput(platform::Trace& trace, TextView prompt, TextView title, TextView initial,
                const std::optional<Text>& answer, bool unanswered) {
    Tell(trace, "input",
         {{"title", Text(title)},
          {"prompt", Text(prompt)},
          {"default", Text(initial)},
          {"answer", TextOrNull(answer)}},
         unanswered);
}

void TraceFileDialog(platform::Trace& trace, const platform::Dialogs::FileRequest& request,
                     const std::optional<Text>& path, bool unanswered) {
    Tell(trace, "dialog",
         {{"title", request.title},
          {"save", request.save},
          {"initial", request.initial},
          {"path", TextOrNull(path)}},
         unanswered);
}

void TraceFilesDialog(platform::Trace& trace, const platform::Dialogs::FileRequest& request,
                      const std::vector<Text>& paths, bool unanswered) {
    Tell(
        trace, "dialog",
        {{"title", request.title}, {"save", false}, {"initial", request.initial}, {"paths", paths}},
        unanswered);
}

}  // namespace tracing
