// What the user says to a show that wants to start a program.
#pragma once

namespace platform {

enum class ProgramAnswer { No, Yes, Always };  // Always: this command line for this document

}  // namespace platform
