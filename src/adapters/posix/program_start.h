// Programs that a show starts: whether they may, and how.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>

#include "adapters/posix/program_find.h"
#include "platform/program_answer.h"

namespace posix_adapter {

/// Starts the program detached from this process: no shell, no terminal, nothing to wait for. False
/// when it cannot be run.
bool StartProgram(const FoundProgram& program);

/// Whether a document may run a program with its arguments, by the setting "programs" of
/// settings.conf: "allow", "deny", or (the default) "ask", which asks each time. What was always
/// allowed stands in programs.conf of the program folder.
class ProgramPermission {
public:
    using Ask = std::function<platform::ProgramAnswer(const platform::ProgramQuestion&)>;

    /// The folder ends in '/'.
    explicit ProgramPermission(std::string programFolder) : folder_(std::move(programFolder)) {}

    /// No is the answer without `ask`, and where it was said for the rest of the show. EndShow when
    /// the person wants that now.
    platform::ProgramAnswer Allows(const FoundProgram& program, TextView document, const Ask& ask);

    /// What was said for a show ends with it.
    void ForgetShow();

private:
    bool AlwaysAllowed(const std::string& line) const;
    void Remember(const std::string& line);

    std::string folder_;
    std::set<std::string> allowedForShow_;
    int questions_ = 0;  // in this show, in a row: none of them allowed the rest
    bool noMore_ = false;
};

}  // namespace posix_adapter
