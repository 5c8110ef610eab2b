// The fixed texts in which the panels differ.
#pragma once

#include <string_view>

#include "core/emulators/emulator_profile.h"

namespace zarvo {

struct PanelTexts {
  std::string_view snap_tip;
  std::string_view conf_heading;
  std::string_view exe_caption;    // over the path of the executable
  std::string_view scan_caption;   // frame of the scan; empty: none
  std::string_view count_caption;  // beside the counters below the list; empty: no such counter
  std::string_view total_caption;
  std::string_view design_total;  // shown until the data file's own is read
  std::string_view logo;          // name of the drawing
};

const PanelTexts& TextsOf(Emulator emulator);

}  // namespace zarvo
