// Tells the trace which programs are started.
#pragma once

#include "platform/system.h"
#include "platform/trace.h"

namespace robot {

/// Event "shell" with the command line. Without `starts` no program is ever started, and each
/// counts as started.
class TracedSystem : public platform::System {
public:
    TracedSystem(platform::System& system, platform::Trace& trace, bool starts)
        : system_(system), trace_(trace), starts_(starts) {}

    Text AppFolder() override { return system_.AppFolder(); }
    bool PreviousInstance() override { return system_.PreviousInstance(); }
    bool Shell(TextView commandLine, TextView document) override {
        trace_.Event("shell", {{"command", Text(commandLine)}});
        return !starts_ || system_.Shell(commandLine, document);
    }

private:
    platform::System& system_;
    platform::Trace& trace_;
    bool starts_;
};

}  // namespace robot
