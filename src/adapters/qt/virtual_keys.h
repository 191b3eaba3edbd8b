// Key numbers that the logic knows keys by.
#pragma once

namespace qt_adapter {

/// Number of the toolkit's key (27 Esc, 13 Enter, 37..40 arrows, 45 Insert, 46 Delete, letters as
/// capitals, 112.. F1..); 0 for a key without one.
int VirtualKey(int qtKey);

}  // namespace qt_adapter
