// The options of M72, in the order of their fields in the stored record.
#pragma once

#include <array>
#include <string_view>

#include "core/launch/option_layout.h"
#include "core/launch/option_table.h"

namespace zarvo::m72 {

inline constexpr auto kVRItems = std::to_array<std::string_view>({"400 x 300", "512 x 384"});

inline constexpr auto kFrameSkipItems =
    std::to_array<std::string_view>({"0 (Def.)", "1", "2", "3", "4", "5", "6", "7", "8"});

inline constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

inline constexpr auto kQuickFireItems =
    std::to_array<std::string_view>({"None", "But. 1", "But. 2", "But. 3", "But. 4"});

// One column of lists with their labels beside them, then two columns of check boxes.
inline constexpr Rows kLists{.top = 480, .pitch = 375, .height = 255};
inline constexpr Rows kChecks{.top = 2115, .pitch = 285, .height = 195};
inline constexpr Field kList{.label = {60, 1065}, .box = {1125, 2400}};
inline constexpr std::array<Span, 2> kColumns = {{{60, 1845}, {1980, 1845}}};

inline constexpr std::array<OptionSpec, 10> kOptions = {{
    {.name = "cboVR",
     .kind = OptionKind::kCombo,
     .caption = "Display mode",
     .tool_tip = " Set display mode for vertical mode ",
     .items = kVRItems,
     .default_value = 0,
     .preset = 0,
     .enabled_at_start = false,
     .place = kLists.At(kList.box, 0),
     .caption_place = kLists.At(kList.label, 0)},
    {.name = "cboFrameSkip",
     .kind = OptionKind::kCombo,
     .caption = "Frame skip",
     .tool_tip = " Skip frame ",
     .items = kFrameSkipItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 1),
     .caption_place = kLists.At(kList.label, 1)},
    {.name = "chkVertDisplay",
     .kind = OptionKind::kCheck,
     .caption = "Vertical Display",
     .tool_tip = " Enable vertical display ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkScanlines",
     .kind = OptionKind::kCheck,
     .caption = "Enable Scanlines",
     .tool_tip = " Enable scanline display mode ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkVSync",
     .kind = OptionKind::kCheck,
     .caption = "Enable V-Sync",
     .tool_tip = " Syncronize video output with the vertical retrace signal ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkPerformance",
     .kind = OptionKind::kCheck,
     .caption = "Show performance",
     .tool_tip = " Show performance counter (only works on Pentium series CPU) ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkPPro",
     .kind = OptionKind::kCheck,
     .caption = "PPro Optimized",
     .tool_tip = " Use Pentium-pro optimized routines ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkNoJoy",
     .kind = OptionKind::kCheck,
     .caption = "Disable Joy",
     .tool_tip = " Disable joystick support ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Sample rate",
     .tool_tip = " Change sampling rate ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kList.box, 2),
     .caption_place = kLists.At(kList.label, 2)},
    {.name = "cboQuickFire",
     .kind = OptionKind::kCombo,
     .caption = "Quick fire",
     .tool_tip = " Set quick fire button (1-4) ",
     .items = kQuickFireItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 3),
     .caption_place = kLists.At(kList.label, 3)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 12);

}  // namespace zarvo::m72
