// All that is fixed per emulator: five constant records, in the program's own order.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace zarvo {

enum class Emulator : std::size_t { kMame, kCallus, kRaine, kSystem16, kM72 };
inline constexpr std::size_t kEmulatorCount = 5;

// When a launch looks for the game's archive in its rom folder before anything else.
enum class ArchiveLook { kNever, kInOwnFolder, kAlways };

struct EmulatorProfile {
  Emulator emulator;
  std::string_view word;          // in the names of controls and files: "Mame"
  std::string_view section_word;  // in `lblHideEmuSelect` and in layout lines: "MAME"
  std::string_view selector_caption;
  std::string_view data_file;  // in the folder Data
  std::string_view cfg_file;   // these in the folder cfg
  std::string_view settings_file;
  std::string_view settings_temp_file;
  std::string_view scan_file;  // empty: no scan

  std::string_view default_rom_folder;  // used while the configured one is empty
  std::string_view rom_sub_folder;      // behind the emulator's folder, "\roms"; may be empty
  std::string_view rom_word;            // state words of the folder picker
  std::string_view snap_word;
  std::string_view settings_word;
  std::string_view start_exe_path;  // texts before any configuration is read
  std::string_view start_rom_path;
  std::string_view start_snap_path;
  std::string_view start_emulator_folder;
  int panel_height;  // twips

  bool has_scan;            // rom folder scan, and the states Available and Missing
  bool has_filters;         // the four filter combos and FillList
  bool has_game_list;       // the big list
  bool has_game_list_text;  // gamelist.txt on the help page
  bool has_favourites;      // favourites that can be changed, and the clear label
  bool has_recording;       // input record and playback
  bool knows_parents;       // parents, merged sets and the overwrite question with its steps

  bool tests_emulator_first;  // a launch tests the emulator before it looks the game up
  ArchiveLook archive_look;
  std::string_view no_emulator_title;  // of the box; empty: the program's title
  std::string_view no_rom_title;
};

// In the order MAME, Callus, Raine, System16, M72.
std::span<const EmulatorProfile, kEmulatorCount> Profiles();

const EmulatorProfile& ProfileOf(Emulator emulator);

// By section word, exact; nullptr if it is none of the five.
const EmulatorProfile* FindProfile(std::string_view section_word);

}  // namespace zarvo
