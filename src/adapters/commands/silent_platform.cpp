#include "adapters/commands/silent_platform.h"

#include "adapters/posix/program_find.h"
#include "text/paths.h"

namespace commands {

bool NoSystem::FindsProgram(TextView commandLine, TextView document) {
    return posix_adapter::FindProgram(files_, commandLine, text::FolderPart(document)).has_value();
}

}  // namespace commands
