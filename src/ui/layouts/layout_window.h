// The layout manager, frmOptions, and its dialog for a name, frmRinomina.
#pragma once

#include <memory>

#include "ui/layouts/layout_tools.h"
#include "ui/toolkit/window.h"

namespace zarvo {

// Creates the manager with its load event run, not yet shown.
std::unique_ptr<Window> MakeLayoutWindow(const LayoutTools& tools);

// Applies the layout chosen for the start, if there is one; silent whatever fails.
void AutoloadLayout(const LayoutTools& tools);

}  // namespace zarvo
