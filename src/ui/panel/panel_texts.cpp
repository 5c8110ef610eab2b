#include "ui/panel/panel_texts.h"

#include <array>

namespace zarvo {
namespace {

constexpr std::array<PanelTexts, kEmulatorCount> kTexts = {{
    {.snap_tip = "Press F12 during the game to grab your snap!",
     .conf_heading = "MAME - File and Directory Locations",
     .exe_caption = "Full Mame Path",
     .scan_caption = "Roms are",
     .count_caption = "F:",
     .total_caption = "T:",
     .design_total = "1107",
     .logo = "mame_logo"},
    {.snap_tip = "Press F9 during the game to grab your snap!",
     .conf_heading = "CALLUS - File and Directory Locations",
     .exe_caption = "Full Callus-DOS Path",
     .scan_caption = "Roms Scan:",
     .count_caption = "Filtered:",
     .total_caption = "Total:",
     .design_total = "",
     .logo = "callus_logo"},
    {.snap_tip = "Press 0 during the game to grab your snap!",
     .conf_heading = "RAINE - File and Directory Locations",
     .exe_caption = "Full Raine Path",
     .scan_caption = "Roms Scan:",
     .count_caption = "Filtered:",
     .total_caption = "Total:",
     .design_total = "107",
     .logo = "raine_logo"},
    {.snap_tip = "Press \"S\" during the game to grab your snap!",
     .conf_heading = "SYSTEM 16 - File and Directory Locations",
     .exe_caption = "Full System16-DOS Path",
     .scan_caption = "",
     .count_caption = "",
     .total_caption = "Total:",
     .design_total = "1107",
     .logo = "system16_logo"},
    {.snap_tip = "Press \"S\" during the game to grab your snap!",
     .conf_heading = "M-72 - File and Directory Locations",
     .exe_caption = "Full M-72 Path",
     .scan_caption = "",
     .count_caption = "",
     .total_caption = "",
     .design_total = "",
     .logo = "m72_logo"},
}};

}  // namespace

const PanelTexts& TextsOf(Emulator emulator) { return kTexts[static_cast<std::size_t>(emulator)]; }

}  // namespace zarvo
