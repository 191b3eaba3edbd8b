// Tells the trace which texts are opened; keeps programs from being started.
#pragma once

#include "platform/system.h"
#include "platform/trace.h"

namespace tracing {

/// Event "shell" for texts that are opened; shows write theirs themselves. Without `starts` nothing
/// is ever started, and everything counts as started.
class TracedSystem : public platform::System {
public:
    TracedSystem(platform::System& system, platform::Trace& trace, bool starts)
        : system_(system), trace_(trace), starts_(starts) {}

    Text AppFolder() override { return system_.AppFolder(); }
    bool PreviousInstance() override { return system_.PreviousInstance(); }
    bool Shell(TextView commandLine, TextView document) override {
        return !starts_ || system_.Shell(commandLine, document);
    }
    bool FindsProgram(TextView commandLine, TextView document) override {
        return system_.FindsProgram(commandLine, document);
    }
    void ForgetShow() override { system_.ForgetShow(); }
    bool OpenText(TextView path) override {
        trace_.Event("shell", {{"command", u"NOTEPAD.EXE " + Text(path)}});
        return !starts_ || system_.OpenText(path);
    }

private:
    platform::System& system_;
    platform::Trace& trace_;
    bool starts_;
};

}  // namespace tracing
