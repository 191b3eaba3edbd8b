// Where the monitors are, and places on them. Twips.
#pragma once

#include "model/application.h"

namespace model {

/// Reads the monitor table anew: MonitorLeft, MonitorTop, MonitorRight, MonitorBottom, their count
/// and far edges. The routines below read it first, as monitors come and go.
void FillMonitorTable(Application& app);

/// Number of the main window's monitor; 0 for one that the table lacks.
int MonitorOfMainWindow(Application& app);

/// Rectangle of monitor `index`; of the primary one where that monitor is gone or unknown to the
/// system.
platform::Rect MonitorTwips(Application& app, int index);

/// Puts the window in the middle of the area; a window that is larger stands out on all sides.
void Centre(Window& window, const platform::Rect& area);

/// Puts the window in the middle of the monitor in use, that of the main window; one that is larger
/// than the monitor takes its size.
void CentreOnMonitor(Application& app, Window& window);

}  // namespace model
