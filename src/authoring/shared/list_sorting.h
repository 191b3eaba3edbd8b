// The orders into which a person brings the rows of a list.
#pragma once

#include "authoring/shared/list_window.h"
#include "model/menu.h"

namespace authoring {

struct SortEntries {
    model::MenuEntry &name, &date, &folder, &shuffle, &reverse;
    model::MenuEntry* taken;  // by the date on which a picture was taken; null for other files
};

void AttachSorting(const ListWindow& window, const SortEntries& entries);

}  // namespace authoring
