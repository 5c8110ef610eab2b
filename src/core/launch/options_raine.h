// The options of Raine, in the order of their fields in the stored record.
#pragma once

#include <array>
#include <string_view>

#include "core/launch/option_layout.h"
#include "core/launch/option_table.h"

namespace zarvo::raine {

inline constexpr auto kScreenModeItems =
    std::to_array<std::string_view>({"Autodetect", "VGA", "Mode-X", "VESA 1.x", "VESA 2.0 (B)",
                                     "VESA 2.0 (L)", "VESA 3.0", "VBE/AF", "Xtended Mode"});

inline constexpr auto kScreenResItems = std::to_array<std::string_view>(
    {"320 x 200", "320 x 240", "400 x 300", "512 x 384", "640 x 400", "640 x 480", "800 x 600",
     "1024 x 768", "1280 x 1024", "1600 x 1200"});

inline constexpr auto kJoystickItems = std::to_array<std::string_view>(
    {"Autodetect", "None", "Standard Joystick", "Joystick with 2 Pads", "Joystick with 4 Buttons",
     "Joystick with 6 Buttons", "Joystick with 8 Buttons", "FlightStick Pro", "Wing Extreme",
     "Sidewinder", "Gamepad Pro", "SNES Pad (LPT1)", "SNES Pad (LPT2)", "SNES Pad (LPT3)",
     "WingMan Warrior", "SEGA Isa", "Sidewinder Alt."});

// One column of lists with their labels beside them, then two columns of check boxes.
inline constexpr Rows kLists{.top = 480, .pitch = 375, .height = 255};
inline constexpr Rows kChecks{.top = 1740, .pitch = 285, .height = 195};
inline constexpr Field kList{.label = {60, 1065}, .box = {1125, 2400}};
inline constexpr std::array<Span, 2> kColumns = {{{60, 1845}, {1980, 1845}}};

inline constexpr std::array<OptionSpec, 5> kOptions = {{
    {.name = "cboScreenMode",
     .kind = OptionKind::kCombo,
     .caption = "Screen mode",
     .tool_tip = " Choose screen type (see list in raine.cfg) ",
     .items = kScreenModeItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 0),
     .caption_place = kLists.At(kList.label, 0)},
    {.name = "cboScreenRes",
     .kind = OptionKind::kCombo,
     .caption = "Screen size",
     .tool_tip = " Choose screen width ",
     .items = kScreenResItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 1),
     .caption_place = kLists.At(kList.label, 1)},
    {.name = "cboJoystick",
     .kind = OptionKind::kCombo,
     .caption = "Joystick",
     .tool_tip = " Choose joystick type (see list in raine.cfg) ",
     .items = kJoystickItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 2),
     .caption_place = kLists.At(kList.label, 2)},
    {.name = "chkLimitSpeed",
     .kind = OptionKind::kCheck,
     .caption = "Limit to 60 fps",
     .tool_tip = " Limit Emulation speed (to 60fps) ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkEnableGUI",
     .kind = OptionKind::kCheck,
     .caption = "Enable GUI",
     .tool_tip = " Enable GUI ;)",
     .place = kChecks.At(kColumns[1], 0)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 7);

}  // namespace zarvo::raine
