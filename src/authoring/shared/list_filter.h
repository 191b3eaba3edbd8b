// The box above a list: only rows whose name or folder holds its text are seen.
#pragma once

#include "authoring/shared/list_window.h"

namespace authoring {

/// `seenCount` says how many rows are seen, while not all are, in a unit such as 枚.
void AttachFilter(const ListWindow& window, model::TextBox& filter, model::Label& seenCount,
                  TextView unit);

}  // namespace authoring
