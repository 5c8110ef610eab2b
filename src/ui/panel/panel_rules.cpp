#include "ui/panel/panel_rules.h"

namespace zarvo {
namespace {

constexpr std::array<PanelRules, kEmulatorCount> kRules = {{
    // MAME
    {.rom_drive_from_rom_path = true,
     .snap_drive_from_emulator = true,
     .no_rom_hides_snap = true,
     .shown_before_first_game = false,
     .fixed_rom_folder_at_load = true,
     .shift_resets_filters = true,
     .combos = {{{120, 1515}, {1710, 1275}, {3060, 1665}, {4800, 795}}},
     .genre_left_up = 1690},
    // Callus
    {.percent_tip = PercentTip::kOnMove},
    // Raine
    {.percent_tip = PercentTip::kOnClick, .docks_on_click = true, .start_columns = 3},
    // System16
    {.no_emulator_hides_snap = false,
     .percent_tip = PercentTip::kOnClick,
     .game_list = {90, 4770, 6165, 2340}},
    // M72
    {.second_rom_folder = true, .has_arrangements = false, .has_large_size = false},
}};

}  // namespace

const PanelRules& RulesOf(Emulator emulator) { return kRules[static_cast<std::size_t>(emulator)]; }

}  // namespace zarvo
