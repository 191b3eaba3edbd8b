// Cut, copy, paste, remove and select all of a list's rows.
#pragma once

#include <functional>

#include "authoring/shared/list_window.h"
#include "model/menu.h"

namespace authoring {

struct ClipboardEntries {
    model::MenuEntry &cut, &copy, &paste, &remove, &all;
};

/// `remove` is what takes the selected rows out.
void AttachClipboardRows(const ListWindow& window, const ClipboardEntries& entries,
                         const std::function<void()>& remove);

}  // namespace authoring
