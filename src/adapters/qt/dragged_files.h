// Files that another program, a file manager mostly, drags over a window.
#pragma once

#include <QDropEvent>
#include <vector>

#include "text/text.h"

namespace qt_adapter {

bool HasFiles(const QDropEvent& drag);

/// Their full paths; what is no local file is left out.
std::vector<Text> FilesOf(const QDropEvent& drag);

}  // namespace qt_adapter
