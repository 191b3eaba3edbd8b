#include "programs/program.h"

#include <iostream>

#include "adapters/posix/start_paths.h"
#include "adapters/robot/script.h"
#include "adapters/tracing/json_trace.h"
#include "adapters/tracing/no_trace.h"
#include "app/exit.h"

namespace programs {

namespace {

constexpr int kFault = 70;  // the program's own, by sysexits.h

/// An exception that nobody takes ends the program, but not what it was to keep.
int EndByFault(Application& application, const char* words) {
    std::cerr << "parapico: " << words << "\n";
    try {
        app::SaveState(application);
    } catch (...) {
        std::cerr << "parapico: the state could not be saved\n";
    }
    return kFault;
}

}  // namespace

std::unique_ptr<platform::Trace> OpenTrace(const std::string& file,
                                           const std::shared_ptr<LateClock>& clock) {
    if (file.empty()) {
        return std::make_unique<tracing::NoTrace>();
    }
    auto trace = tracing::MakeTraceWriter(file, [clock] { return (*clock)(); });
    if (!trace) {
        std::cerr << "parapico: cannot write the trace " << file << "\n";
    }
    return trace;
}

Text CommandText(const std::string& argument) {
    if (argument.empty() || argument[0] == '/') {
        return text::FromUtf8(argument);
    }
    return text::FromUtf8(posix_adapter::AbsoluteIfFile(argument));
}

Surroundings::Surroundings(const std::string& appFolder, bool prepare, bool threads)
    : programFolder(posix_adapter::ProgramFolder(appFolder)),
      files(programFolder),
      imaging(files, prepare, {}, threads),
      system(programFolder, posix_adapter::AssetsFolder(PARAPICO_ASSETS)),
      folders(files) {}

int RunUntilEnd(Application& application, const app::StartOptions& options) {
    try {
        app::RunProgram(application, options);
    } catch (const platform::ProgramEnd& end) {
        return end.exitStatus;
    } catch (const robot::ScriptError&) {
        throw;
    } catch (const std::exception& fault) {
        return EndByFault(application, fault.what());
    } catch (...) {
        return EndByFault(application, "unknown exception");
    }
}

}  // namespace programs
