// The layout manager, frmOptions, and its dialog for a name, frmRinomina.
#pragma once

#include <memory>

#include "platform/dos_files.h"
#include "platform/message_boxes.h"
#include "shell/app_state.h"
#include "shell/section_host.h"
#include "toolkit/window.h"

namespace zarvo {

struct LayoutTools {
  DosFiles& files;
  AppState& app;
  MessageBoxes& boxes;
  SectionHost& sections;
  MainPlace& main;
};

// Creates the manager with its load event run, not yet shown.
std::unique_ptr<Window> MakeLayoutWindow(const LayoutTools& tools);

// Applies the layout chosen for the start, if there is one; silent whatever fails.
void AutoloadLayout(const LayoutTools& tools);

}  // namespace zarvo
