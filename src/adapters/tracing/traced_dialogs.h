// Boxes of the desktop with the same trace lines as the robot's.
#pragma once

#include "platform/dialogs.h"
#include "platform/trace.h"

namespace tracing {

/// Passes every box on to `inner` and tells the trace what was asked and answered.
class TracedDialogs : public platform::Dialogs {
public:
    TracedDialogs(platform::Dialogs& inner, platform::Trace& trace)
        : inner_(inner), trace_(trace) {}

    platform::Answer Message(TextView text, int flags, TextView title) override;
    std::optional<Text> Input(TextView prompt, TextView title, TextView initial) override;
    std::optional<Text> ChooseFile(const FileRequest& request) override;
    std::vector<Text> ChooseFiles(const FileRequest& request) override;
    std::optional<Text> ChooseFolder(const FileRequest& request) override;

private:
    platform::Dialogs& inner_;
    platform::Trace& trace_;
};

}  // namespace tracing
