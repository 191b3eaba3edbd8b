// Boxes that answer themselves from queues.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/dialogs.h"
#include "platform/trace.h"

namespace virtual_adapter {

/// What a file dialog answers: nothing for cancel, a path, or several for a dialog that takes them;
/// any other takes the first.
struct ChosenFiles {
    ChosenFiles(std::nullopt_t) {}
    ChosenFiles(std::optional<Text> path) {
        if (path) {
            paths.push_back(*std::move(path));
        }
    }
    ChosenFiles(Text path) : paths{std::move(path)} {}
    ChosenFiles(const char16_t* path) : paths{Text(path)} {}
    ChosenFiles(std::vector<Text> several) : paths(std::move(several)) {}

    std::vector<Text> paths;
};

/// Each box takes the next queued answer of its own sort, in no time, is kept, and leaves a trace
/// line (message, input or dialog). With an empty queue a message box takes OK or Yes, an input box
/// its initial text, a file dialog cancels, and the line carries "unanswered".
class VirtualDialogs : public platform::Dialogs {
public:
    explicit VirtualDialogs(platform::Trace& trace) : trace_(trace) {}

    struct Box {
        Text text;
        int flags;
        Text title;
    };

    /// An answer that the box does not offer counts as the nearest it does: Yes and OK stand for
    /// each other, as do No and Cancel; a box with OK alone can only be answered OK.
    std::deque<platform::Answer> answers;
    /// Nullopt: cancel.
    std::deque<std::optional<Text>> inputAnswers;
    std::deque<ChosenFiles> fileAnswers;
    /// Called while a message stands, before its answer.
    std::function<void(const Box&)> whileOpen;

    // Every box that came up, in order.
    std::vector<Box> messages;
    std::vector<Box> inputs;     // text is the prompt
    std::vector<Text> initials;  // what stood in them at first
    std::vector<FileRequest> requests;

    platform::Answer Message(TextView text, int flags, TextView title) override;
    std::optional<Text> Input(TextView prompt, TextView title, TextView initial) override;
    std::optional<Text> ChooseFile(const FileRequest& request) override;
    std::vector<Text> ChooseFiles(const FileRequest& request) override;
    std::optional<Text> ChooseFolder(const FileRequest& request) override;

private:
    std::optional<Text> ChooseOne(const FileRequest& request);

    platform::Trace& trace_;
};

}  // namespace virtual_adapter
