// A process of the decoder, seen from the program.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "adapters/sandbox/message.h"

namespace sandbox {

struct Process {
    pid_t id = -1;      // leads a process group of its own
    Descriptor socket;  // the program's end
};

/// The process finds its end of the socket here.
constexpr int kProcessSocket = 3;

/// Path of the role's executable: beside the program's own, else in ../libexec/parapico/ from
/// there, whether it is there or not. Empty when the program's own path cannot be read.
std::string ProgramOf(Role role);

/// Starts the executable with these arguments. It gets one end of a new socket and nothing else of
/// the program: no open file, no variable of the environment, no words on the terminal. Nothing
/// when it cannot be started; `error` then is the system's number for the reason.
std::optional<Process> StartProcess(const std::string& program,
                                    const std::vector<std::string>& arguments, int& error);

/// Ends the process and all that it started, at once, and leaves no trace of it.
void EndProcess(const Process& process);

}  // namespace sandbox
