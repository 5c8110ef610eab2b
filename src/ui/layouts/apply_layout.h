// From the records of a layout to the windows, and back.
#pragma once

#include <vector>

#include "core/layouts/layout_store.h"
#include "ui/layouts/layout_tools.h"

namespace zarvo {

// Places the main window, opens the panels that aren't open and places them, record by record. The
// place of a panel whose section didn't open is passed over.
void ApplyRecords(const LayoutTools& tools, const std::vector<LayoutRecord>& records);

// Where the main window and the open panels stand now, in the order in which a layout holds them.
std::vector<LayoutRecord> PresentWindows(const LayoutTools& tools);

}  // namespace zarvo
