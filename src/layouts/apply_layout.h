// From the records of a layout to the windows, and back.
#pragma once

#include <vector>

#include "layouts/layout_store.h"
#include "layouts/layout_window.h"

namespace zarvo {

// Places the main window, or opens a panel that isn't open and places it. Words that are neither
// are passed over, and so is the place of a panel whose section didn't open.
void ApplyRecord(const LayoutTools& tools, const LayoutRecord& record);

// Where the main window and the open panels stand now, in the order in which a layout holds them.
std::vector<LayoutRecord> PresentWindows(const LayoutTools& tools);

}  // namespace zarvo
