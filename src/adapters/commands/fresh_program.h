// A program that has read nothing yet, for the commands that look at documents.
#pragma once

#include <string>

#include "adapters/commands/silent_platform.h"
#include "model/application.h"

namespace commands {

/// A path of the command line as documents hold paths: relative ones get the current folder in
/// front, those with a drive letter stay.
Text AbsolutePath(const std::string& path);

/// The program as it is before it reads its first document, which is `path`.
struct FreshProgram {
    explicit FreshProgram(const Text& path);

    SilentPlatform surroundings;
    Application app;
};

}  // namespace commands
