// What a panel works with, handed in so that tests can take its place.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/emulators/command.h"
#include "core/platform/dos_files.h"
#include "core/platform/message_boxes.h"
#include "core/platform/program.h"
#include "ui/pickers/picker_panels.h"
#include "ui/shell/section_host.h"

namespace zarvo {

struct PanelTools {
  DosFiles& files;
  const ProgramFolders& folders;
  MessageBoxes& boxes;
  MainPlace& main;
  PickerPanels& panels;
  // Runs the batch file in the current folder; an error is a sentence for the player.
  std::function<Status(std::string_view command_line)> run;
  // Local time.
  std::function<ClockTime()> clock;
};

// What of a section outlives its panel.
struct SectionState {
  std::string RomPath;         // configured rom folder
  std::string lblShow = "NO";  // "SI" while the panel is open
};

// Shows a failure under the program's title, if it is one.
void Report(const PanelTools& tools, const Status& status);

}  // namespace zarvo
