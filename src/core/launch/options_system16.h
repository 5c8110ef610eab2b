// The options of System16, in the order of their fields in the stored record.
#pragma once

#include <array>
#include <string_view>

#include "core/launch/option_layout.h"
#include "core/launch/option_table.h"

namespace zarvo::system16 {

inline constexpr auto kHRItems = std::to_array<std::string_view>(
    {"224", "254", "320", "384", "400", "512", "640", "800", "1024"});

inline constexpr auto kVRItems = std::to_array<std::string_view>(
    {"200", "224", "240", "257", "300", "350", "384", "400", "480", "600", "768"});

inline constexpr auto kFrameSkipItems =
    std::to_array<std::string_view>({"1 (Def.)", "2", "3", "4", "5", "6", "7", "8"});

inline constexpr auto kSoundcardItems = std::to_array<std::string_view>(
    {"Disabled", "Soundblaster", "ProAudio Spectrum", "Ultrasound Max", "Ultrasound",
     "Windows SoundSystem", "Ensoniq Soundscape"});

inline constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

inline constexpr auto kControlsItems =
    std::to_array<std::string_view>({"Normal Joystick", "MS SideWinder", "Gravis GamePadPro",
                                     "SNESPAD at LPT1", "SNESPAD at LPT2", "SNESPAD at LPT3"});

// Two columns of lists with their labels above, then three columns of check boxes.
inline constexpr Rows kLabels{.top = 390, .pitch = 525, .height = 195};
inline constexpr Rows kLists{.top = 585, .pitch = 525, .height = 255};
inline constexpr Rows kChecks{.top = 2100, .pitch = 300, .height = 195};
inline constexpr Span kLeft{60, 1845};
inline constexpr Span kRight{1980, 1845};
inline constexpr std::array<Span, 3> kColumns = {{{60, 1455}, {1545, 1185}, {2760, 1065}}};

inline constexpr std::array<OptionSpec, 19> kOptions = {{
    {.name = "cboHR",
     .kind = OptionKind::kCombo,
     .caption = "Width",
     .tool_tip = " Set default resolution for horizontal games ",
     .items = kHRItems,
     .default_value = 2,
     .preset = 2,
     .place = kLists.At(kLeft, 0),
     .caption_place = kLabels.At(kLeft, 0)},
    {.name = "cboVR",
     .kind = OptionKind::kCombo,
     .caption = "Height",
     .tool_tip = " Set default resolution for vertical games ",
     .items = kVRItems,
     .default_value = 2,
     .preset = 2,
     .place = kLists.At(kRight, 0),
     .caption_place = kLabels.At(kRight, 0)},
    {.name = "cboFrameSkip",
     .kind = OptionKind::kCombo,
     .caption = "Frame skip",
     .tool_tip = " Skip frame value, default is 1 (display every possible frames) ",
     .items = kFrameSkipItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 1),
     .caption_place = kLabels.At(kLeft, 1)},
    {.name = "chkVSync",
     .kind = OptionKind::kCheck,
     .caption = "V-Sync",
     .tool_tip = " Wait for the vertical sync to draw frames ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkNoJoy",
     .kind = OptionKind::kCheck,
     .caption = "Disable Joy",
     .tool_tip = " Disable joystick support ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "chkScanlines",
     .kind = OptionKind::kCheck,
     .caption = "Scanlines",
     .tool_tip = " Enable scanlines ",
     .default_value = 1,
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkRDTSC",
     .kind = OptionKind::kCheck,
     .caption = "No RDTSC",
     .tool_tip = " Disable codes using RDTSC instruction ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkEagle",
     .kind = OptionKind::kCheck,
     .caption = "Eagled Graphic",
     .tool_tip = " Enabled the eagled graphics ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkScanlines2",
     .kind = OptionKind::kCheck,
     .caption = "Double Scanl.",
     .tool_tip = " Enable double scanlines ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkOld2151",
     .kind = OptionKind::kCheck,
     .caption = "Old 2151",
     .tool_tip = " Use the old emulation of the YM2151 ",
     .place = kChecks.At(kColumns[2], 0)},
    {.name = "chkESC",
     .kind = OptionKind::kCheck,
     .caption = "ESC - Exit",
     .tool_tip = " Uses key ESC to exit the emulator ",
     .place = kChecks.At(kColumns[2], 3)},
    {.name = "chkRevX",
     .kind = OptionKind::kCheck,
     .caption = "Reverse X",
     .tool_tip = " Reverse X direction of the analog joystick ",
     .place = kChecks.At(kColumns[1], 3)},
    {.name = "chkNoLeds",
     .kind = OptionKind::kCheck,
     .caption = "No Leds",
     .tool_tip = " Disable keyboard led control ",
     .place = kChecks.At(kColumns[2], 1)},
    {.name = "chkNoTitle",
     .kind = OptionKind::kCheck,
     .caption = "No-Title",
     .tool_tip = " Bypass the title screen ",
     .default_value = 1,
     .place = kChecks.At(kColumns[2], 2)},
    {.name = "chkRevY",
     .kind = OptionKind::kCheck,
     .caption = "Reverse Y",
     .tool_tip = " Reverse Y direction of the analog joystick. This is useful for Space Harrier "
                 "and Hang On ",
     .place = kChecks.At(kColumns[1], 4)},
    {.name = "chkAnalogJoy",
     .kind = OptionKind::kCheck,
     .caption = "Analog Joystick",
     .tool_tip = " Enable analog joystick support (for driving games and Space Harrier) ",
     .place = kChecks.At(kColumns[0], 3)},
    {.name = "cboSoundcard",
     .kind = OptionKind::kCombo,
     .caption = "Sound card",
     .tool_tip = " Choose a sound card ",
     .items = kSoundcardItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 2),
     .caption_place = kLabels.At(kLeft, 2)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Sample rate",
     .tool_tip = " Change the sample rate for the YM2151, the default value is 22050 ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight, 2),
     .caption_place = kLabels.At(kRight, 2)},
    {.name = "cboControls",
     .kind = OptionKind::kCombo,
     .caption = "Joystick type",
     .tool_tip = " Set joystick device type ",
     .items = kControlsItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight, 1),
     .caption_place = kLabels.At(kRight, 1)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 21);

}  // namespace zarvo::system16
