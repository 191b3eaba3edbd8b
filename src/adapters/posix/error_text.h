// What went wrong, in the user's language.
#pragma once

#include "text/text.h"

namespace posix_adapter {

/// Japanese sentence for an errno value; one without a sentence of its own is named by its number.
Text ErrorText(int error);

}  // namespace posix_adapter
