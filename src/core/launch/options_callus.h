// The options of Callus, in the order of their fields in the stored record.
#pragma once

#include <array>
#include <string_view>

#include "core/launch/option_layout.h"
#include "core/launch/option_table.h"

namespace zarvo::callus {

inline constexpr auto kHRItems = std::to_array<std::string_view>(
    {"320x200", "320x240", "384x224", "384x257", "400x300", "320x400", "320x480", "512x384",
     "640x350", "640x400", "640x480", "224x384", "254x384", "800x600", "1024x768"});

inline constexpr auto kFrameSkipItems =
    std::to_array<std::string_view>({"Auto", "1", "2", "3", "4", "5", "6", "7", "8"});

inline constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

inline constexpr auto kDevice1Items = std::to_array<std::string_view>(
    {"Keyboard Lay. 1", "Keyboard Lay. 2", "Keyboard Lay. 3", "Keyboard Lay. 4", "Joystick 1 (2B)",
     "Joystick 2 (2B)", "4 Buttton Joy", "6 Button Joy", "MS Sidewinder 1", "MS Sidewinder 2",
     "Grip 1 (8 Buttons)", "Grip 2 (8 Buttons)", "Snes Pad 1 (LPT1)", "Snes Pad 2 (LPT1)"});

inline constexpr auto kDevice2Items = std::to_array<std::string_view>(
    {"Keyboard L.1", "Keyboard L.2", "Keyboard L.3", "Keyboard L.4", "Joystick 1 (2B)",
     "Joystick 2 (2B)", "4 Buttton Joy", "6 Button Joy", "MS Sidewinder 1", "MS Sidewinder 2",
     "Grip 1 (8 Buttons)", "Grip 2 (8 Buttons)", "Snes Pad 1 (LPT1)", "Snes Pad 2 (LPT1)"});

// Two columns of lists with their labels above, then three columns of check boxes.
inline constexpr Rows kLabels{.top = 390, .pitch = 510, .height = 195};
inline constexpr Rows kLists{.top = 585, .pitch = 510, .height = 255};
inline constexpr Rows kChecks{.top = 2580, .pitch = 285, .height = 195};
inline constexpr Span kLeft{60, 1845};
inline constexpr Span kRight{1980, 1845};
inline constexpr std::array<Span, 3> kColumns = {{{60, 1230}, {1320, 1230}, {2580, 1245}}};

inline constexpr std::array<OptionSpec, 19> kOptions = {{
    {.name = "cboHR",
     .kind = OptionKind::kCombo,
     .caption = "Horizontal games",
     .tool_tip = " Sets the resolution for horizontal games ",
     .items = kHRItems,
     .default_value = 10,
     .preset = 0,
     .place = kLists.At(kLeft, 0),
     .caption_place = kLabels.At(kLeft, 0)},
    {.name = "cboVR",
     .kind = OptionKind::kCombo,
     .caption = "Vertical games",
     .tool_tip = " Sets the resolution for vertical games ",
     .items = kHRItems,
     .default_value = 10,
     .preset = 0,
     .place = kLists.At(kRight, 0),
     .caption_place = kLabels.At(kRight, 0)},
    {.name = "cboFrameSkip",
     .kind = OptionKind::kCombo,
     .caption = "Frame skip",
     .tool_tip = R"( Sets frameskip (1-8 or "AUTO" for autoskipping) )",
     .items = kFrameSkipItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 1),
     .caption_place = kLabels.At(kLeft, 1)},
    {.name = "chkVSync",
     .kind = OptionKind::kCheck,
     .caption = "V-Sync",
     .tool_tip = " Wait for the vertical sync to draw frames ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkHiColor",
     .kind = OptionKind::kCheck,
     .caption = "Hi-Color",
     .tool_tip =
         " Use 16-bit hicolor mode in DOS. The GUI is not available in hicolor modes in DOS ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkFPU",
     .kind = OptionKind::kCheck,
     .caption = "Fpu Copy",
     .tool_tip = " Uses the FPU to do pageflips, only faster on Intel Pentium processors ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkNoVesa",
     .kind = OptionKind::kCheck,
     .caption = "No Vesa",
     .tool_tip = " Don't use VESA extensions ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkLinear",
     .kind = OptionKind::kCheck,
     .caption = "Linear",
     .tool_tip = " Force linear VESA mode ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkBanked",
     .kind = OptionKind::kCheck,
     .caption = "Banked",
     .tool_tip = " Force banked VESA mode ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "chkAltStart",
     .kind = OptionKind::kCheck,
     .caption = "Alt.Key",
     .tool_tip = " Alternate player start/coin input ",
     .place = kChecks.At(kColumns[1], 3)},
    {.name = "chk2To3",
     .kind = OptionKind::kCheck,
     .caption = "2To3",
     .tool_tip = R"( Passes the option "-map2to3" to the emulator )",
     .place = kChecks.At(kColumns[2], 3)},
    {.name = "chkMultiTask",
     .kind = OptionKind::kCheck,
     .caption = "Exclusive",
     .tool_tip = " This switch will disable windows multitasking ",
     .place = kChecks.At(kColumns[0], 3)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Sample rate",
     .tool_tip = " Sets sound sampling rate ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight, 1),
     .caption_place = kLabels.At(kRight, 1)},
    {.name = "chkNoSound",
     .kind = OptionKind::kCheck,
     .caption = "No sound",
     .tool_tip = " Disable sound and Z80 totally for slow computers ",
     .place = kChecks.At(kColumns[2], 0)},
    {.name = "chkStereo",
     .kind = OptionKind::kCheck,
     .caption = "Stereo",
     .tool_tip = " Sets stereo for QSound games ",
     .place = kChecks.At(kColumns[2], 1)},
    {.name = "cboDevice1",
     .kind = OptionKind::kCombo,
     .caption = "Input device 1",
     .tool_tip = " Sets input device 1 ",
     .items = kDevice1Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 2),
     .caption_place = kLabels.At(kLeft, 2)},
    {.name = "cboDevice2",
     .kind = OptionKind::kCombo,
     .caption = "Input device 2",
     .tool_tip = " Sets input device 2 ",
     .items = kDevice2Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight, 2),
     .caption_place = kLabels.At(kRight, 2)},
    {.name = "cboDevice3",
     .kind = OptionKind::kCombo,
     .caption = "Input device 3",
     .tool_tip = " Sets input device 3 ",
     .items = kDevice2Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 3),
     .caption_place = kLabels.At(kLeft, 3)},
    {.name = "cboDevice4",
     .kind = OptionKind::kCombo,
     .caption = "Input device 4",
     .tool_tip = " Sets input device 4 ",
     .items = kDevice2Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight, 3),
     .caption_place = kLabels.At(kRight, 3)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 21);

}  // namespace zarvo::callus
