#include "adapters/tracing/traced_dialogs.h"

#include "adapters/tracing/box_events.h"

namespace tracing {

platform::Answer TracedDialogs::Message(TextView text, int flags, TextView title) {
    const platform::Answer answer = inner_.Message(text, flags, title);
    TraceMessage(trace_, text, flags, title, answer, false);
    return answer;
}

std::optional<Text> TracedDialogs::Input(TextView prompt, TextView title, TextView initial) {
    std::optional<Text> answer = inner_.Input(prompt, title, initial);
    TraceInput(trace_, prompt, title, initial, answer, false);
    return answer;
}

std::optional<Text> TracedDialogs::ChooseFile(const FileRequest& request) {
    std::optional<Text> path = inner_.ChooseFile(request);
    TraceFileDialog(trace_, request, path, false);
    return path;
}

std::vector<Text> TracedDialogs::ChooseFiles(const FileRequest& request) {
    std::vector<Text> paths = inner_.ChooseFiles(request);
    TraceFilesDialog(trace_, request, paths, false);
    return paths;
}

std::optional<Text> TracedDialogs::ChooseFolder(const FileRequest& request) {
    std::optional<Text> path = inner_.ChooseFolder(request);
    TraceFileDialog(trace_, request, path, false);
    return path;
}

}  // namespace tracing
