// Programs that a show starts: whether they may, and how.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/program_answer.h"
#include "text/text.h"

namespace posix_adapter {

/// Words parted by blanks; double quotes hold blanks together and fall away.
std::vector<std::string> SplitCommandLine(const std::string& commandLine);

/// Starts the program words[0] (looked for in $PATH when it holds no '/') with the others as its
/// arguments, detached from this process: no shell, no terminal, nothing to wait for. False when
/// it cannot be run.
bool StartProgram(const std::vector<std::string>& words);

/// Whether a document may run a command line, by the setting "programs" of settings.conf: "allow",
/// "deny", or (the default) "ask", which asks once a run. What was always allowed stands in
/// programs.conf of the program folder.
class ProgramPermission {
public:
    /// The folder ends in '/'.
    explicit ProgramPermission(std::string programFolder) : folder_(std::move(programFolder)) {}

    /// Without `ask` the answer is no.
    bool Allows(TextView commandLine, TextView document,
                const std::function<platform::ProgramAnswer(TextView)>& ask);

private:
    void Remember(const std::string& line);

    std::string folder_;
    std::map<std::string, bool> answered_;
};

}  // namespace posix_adapter
