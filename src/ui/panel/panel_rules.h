// The rules in which the panels differ, as a table.
#pragma once

#include <array>

#include "core/emulators/emulator_profile.h"
#include "core/platform/twips.h"

namespace zarvo {

// When the favourites counter gets its percentage tip.
enum class PercentTip { kNever, kOnMove, kOnClick };

struct PanelRules {
  // Where the pickers of the configuration page take their drive from.
  bool rom_drive_from_rom_path = false;   // else from the path of the executable
  bool snap_drive_from_emulator = false;  // else from the snapshot folder
  bool second_rom_folder = false;         // the emulator's own rom folder, before the current one
  // What a failed launch hides besides the page that it leaves.
  bool no_emulator_hides_snap = true;
  bool no_rom_hides_snap = false;
  bool shown_before_first_game = true;  // the panel is on screen before its first game is selected
  bool fixed_rom_folder_at_load = false;  // the profile's own while none is configured
  bool shift_resets_filters = false;
  PercentTip percent_tip = PercentTip::kNever;
  bool docks_on_click = false;   // else on a double click
  bool has_arrangements = true;  // the arrow, and the game list that it moves
  bool has_large_size = true;

  // Geometry in twips.
  TwipRect game_list{90, 5010, 6165, 2175};
  int start_columns = 2;  // until the first change of arrangement
  // State, genre, manufacturer and year combos, left and width.
  struct Span {
    int left;
    int width;
  };
  std::array<Span, 4> combos{{{120, 1485}, {1680, 1245}, {3000, 1545}, {4620, 795}}};
  int genre_left_up = 1660;  // after a change to the normal arrangement
};

const PanelRules& RulesOf(Emulator emulator);

}  // namespace zarvo
