#include "adapters/virtual/virtual_dialogs.h"

#include <utility>

#include "adapters/tracing/box_events.h"

namespace virtual_adapter {

namespace {

using platform::Answer;

/// What of the flags tells the buttons, and its values.
constexpr int kButtonMask = 15;
constexpr int kOkCancel = 1;
constexpr int kYesNoCancel = 3;

template <class T>
std::optional<T> Take(std::deque<T>& queue) {
    if (queue.empty()) {
        return std::nullopt;
    }
    T value = std::move(queue.front());
    queue.pop_front();
    return value;
}

/// The button that a queued answer presses in a box with these buttons.
Answer Pressed(Answer wanted, int buttons) {
    const bool agrees = wanted == Answer::Ok || wanted == Answer::Yes;
    switch (buttons) {
        case platform::kYesNo:
            return agrees ? Answer::Yes : Answer::No;
        case kYesNoCancel:
            return wanted == Answer::Ok ? Answer::Yes : wanted;
        case kOkCancel:
            return agrees ? Answer::Ok : Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

}  // namespace

Answer VirtualDialogs::Message(TextView text, int flags, TextView title) {
    messages.push_back({Text(text), flags, Text(title)});
    if (whileOpen) {
        whileOpen(Box(messages.back()));
    }
    const std::optional<Answer> queued = Take(answers);
    const Answer answer = Pressed(queued.value_or(Answer::Ok), flags & kButtonMask);
    tracing::TraceMessage(trace_, text, flags, title, answer, !queued);
    return answer;
}

std::optional<Text> VirtualDialogs::Input(TextView prompt, TextView title, TextView initial) {
    inputs.push_back({Text(prompt), 0, Text(title)});
    initials.emplace_back(initial);
    const std::optional<std::optional<Text>> queued = Take(inputAnswers);
    const std::optional<Text> answer = queued ? *queued : std::optional<Text>(initial);
    tracing::TraceInput(trace_, prompt, title, initial, answer, !queued);
    return answer;
}

std::optional<Text> VirtualDialogs::ChooseOne(const FileRequest& request) {
    requests.push_back(request);
    const std::optional<ChosenFiles> queued = Take(fileAnswers);
    const std::optional<Text> path =
        queued && !queued->paths.empty() ? std::optional(queued->paths.front()) : std::nullopt;
    tracing::TraceFileDialog(trace_, request, path, !queued);
    return path;
}

std::optional<Text> VirtualDialogs::ChooseFile(const FileRequest& request) {
    return ChooseOne(request);
}

std::vector<Text> VirtualDialogs::ChooseFiles(const FileRequest& request) {
    requests.push_back(request);
    const std::optional<ChosenFiles> queued = Take(fileAnswers);
    std::vector<Text> paths = queued ? queued->paths : std::vector<Text>();
    tracing::TraceFilesDialog(trace_, request, paths, !queued);
    return paths;
}

std::optional<Text> VirtualDialogs::ChooseFolder(const FileRequest& request) {
    return ChooseOne(request);
}

}  // namespace virtual_adapter
