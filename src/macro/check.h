// Looks through a macro file for what its writer cannot have meant. The player itself is silent
// about all of it.
#pragma once

#include <vector>

#include "macro/finding.h"
#include "platform/files.h"

namespace macro {

/// Findings in the order of their lines. Reads no file but asks whether named ones exist.
std::vector<Finding> CheckMacro(platform::Files& files, const CheckedSlide& slide, TextView source);

}  // namespace macro
