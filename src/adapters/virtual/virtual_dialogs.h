// Boxes that answer themselves from queues.
#pragma once

#include <deque>
#include <optional>

#include "platform/dialogs.h"
#include "platform/trace.h"

namespace virtual_adapter {

/// Each box takes the next queued answer of its own sort, in no time, and leaves a trace line
/// (message, input or dialog). With an empty queue a message box takes OK or Yes, an input box its
/// initial text, a file dialog cancels, and the line carries "unanswered".
class VirtualDialogs : public platform::Dialogs {
public:
    explicit VirtualDialogs(platform::Trace& trace) : trace_(trace) {}

    /// An answer that the box does not offer counts as the nearest it does: Yes and OK stand for
    /// each other, as do No and Cancel; a box with OK alone can only be answered OK.
    void QueueAnswer(platform::Answer answer) { answers_.push_back(answer); }
    /// Nullopt: cancel.
    void QueueInput(std::optional<Text> text) { inputs_.push_back(std::move(text)); }
    void QueueFile(std::optional<Text> path) { files_.push_back(std::move(path)); }

    platform::Answer Message(TextView text, int flags, TextView title) override;
    std::optional<Text> Input(TextView prompt, TextView title, TextView initial) override;
    std::optional<Text> ChooseFile(const FileRequest& request) override;

private:
    platform::Trace& trace_;
    std::deque<platform::Answer> answers_;
    std::deque<std::optional<Text>> inputs_, files_;
};

}  // namespace virtual_adapter
