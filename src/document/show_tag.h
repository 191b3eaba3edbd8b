// The first line of show documents.
#pragma once

#include <optional>

#include "text/text.h"

namespace document {

/// The line as blocks are looked for in it: "vue2" or "vue3…", a digit for each block. Nothing for
/// a file that is no show document.
std::optional<Text> ShowTag(TextView line);

}  // namespace document
