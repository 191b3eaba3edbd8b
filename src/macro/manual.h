// The reference of the language that people read, made from the words themselves.
#pragma once

#include "text/text.h"

namespace macro {

/// The whole of マクロ.txt in Japanese: how a macro file works, and one entry for every word with
/// its arguments, range, what another value does and how long it holds. Lines end in CR LF.
Text Manual();

}  // namespace macro
