// What an emulator is: everything in which one differs from another, a value for each in a file of
// its own. No member has a default, so that one that is forgotten is an error of the compiler.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/emulators/command.h"
#include "core/emulators/options.h"
#include "core/platform/line_reader.h"
#include "core/platform/twips.h"

namespace zarvo {

// The paths on show before any configuration is read.
struct StartPaths {
  std::string_view exe_path;
  std::string_view rom_path;
  std::string_view snap_path;
  std::string_view emulator_folder;
};

// When a launch looks for the game's archive in its rom folder before anything else.
enum class ArchiveLook { kNever, kInOwnFolder, kAlways };

struct LaunchRules {
  bool tests_emulator_first;  // before the game is looked up
  ArchiveLook archive_look;
  std::string_view no_emulator_title;  // of the box; empty: the program's title
  std::string_view no_rom_title;
};

// When the favourites counter gets its percentage tip.
enum class PercentTip { kNever, kOnMove, kOnClick };

// What the panel does, and where it has what. Geometry in twips.
struct PanelRules {
  // Where the pickers of the configuration page take their drive from.
  bool rom_drive_from_rom_path;   // else from the path of the executable
  bool snap_drive_from_emulator;  // else from the snapshot folder
  bool second_rom_folder;         // the emulator's own rom folder, before the current one
  // What a failed launch hides besides the page that it leaves.
  bool no_emulator_hides_snap;
  bool no_rom_hides_snap;
  bool shown_before_first_game;   // the panel is on screen before its first game is selected
  bool fixed_rom_folder_at_load;  // the emulator's own while none is configured
  bool shift_resets_filters;
  bool docks_on_click;    // else on a double click
  bool has_arrangements;  // the arrow, and the game list that it moves
  bool has_large_size;
  bool clear_rests_with_main;  // the clear label rests when the mouse is over the main window
  PercentTip percent_tip;
  int height;
  TwipRect game_list;
  int start_columns;  // of the game list, until the first change of arrangement
  // State, genre, manufacturer and year combos.
  struct Across {
    int left;
    int width;
  };
  std::array<Across, 4> combos;
  int genre_left_up;  // of the genre combo after a change to the normal arrangement
};

struct PanelTexts {
  std::string_view snap_tip;
  std::string_view conf_heading;
  std::string_view exe_caption;    // over the path of the executable
  std::string_view scan_caption;   // frame of the scan
  std::string_view count_caption;  // beside the counters below the list; empty: no such counter
  std::string_view total_caption;
  std::string_view design_total;  // shown until the data file's own is read
};

// The items of the state filter, in their order; emulators without Neo-Geo games have the first.
inline constexpr auto kStateItems = std::to_array<std::string_view>({
    "All Supported",
    "Originals Only",
    "Clones Only",
    "Available Roms",
    "Missing Roms",
    "No Neo-Geo Games",
    "Neo-Geo Games",
});
inline constexpr std::size_t kCommonStates = 5;

// What stands in the filter combos; item 0 is the neutral one. Empty: no filters.
struct FilterItems {
  std::span<const std::string_view> states;
  std::span<const std::string_view> genres;
  std::span<const std::string_view> manufactors;
  std::span<const std::string_view> years;
};

// A key text of a help page. Rows with an empty `key` are headings; the first row of a table of
// three columns names them.
struct KeyRow {
  std::string_view key;
  std::string_view text;
  std::string_view third;
};

// How gamelist.txt in the emulator's folder gives the help list of a game.
struct GameListRule {
  std::span<const std::string_view> no_file;  // the items where the file is missing
  // Adds the items of a game, or of one that the file lacks; nullptr: the emulator has no such
  // file.
  void (*read)(LineReader& lines, std::string_view game, std::vector<std::string>& items);
};

// The help page: the keys, set out in columns, and a list above them on some.
struct HelpPageTable {
  std::span<const KeyRow> keys;
  int list_height;  // twips; 0: no list
  std::string_view title;
  int columns;
  int row_height;
  int key_width;
  int text_size;                             // pixels
  std::vector<std::string> (*fixed_list)();  // nullptr: the list depends on the game
  GameListRule game_list;
};

// An option that can be used only while a check box is on; both are indices of the option table.
struct Enabling {
  std::size_t by;
  std::size_t option;
};

// The check boxes of input record and playback, as indices of the option table.
struct RecordingOptions {
  std::size_t record;
  std::size_t playback;
};

struct Emulator {
  std::string_view word;                // in the names of controls and files: "Mame"
  std::string_view selector_caption;    // on the main window: "M.A.M.E."
  std::string_view default_rom_folder;  // used while the configured one is empty
  std::string_view rom_sub_folder;      // behind the emulator's folder, "\roms"; may be empty
  StartPaths start;

  bool has_scan;        // rom folder scan, and the states Available and Missing
  bool has_filters;     // the four filter combos
  bool has_game_list;   // the big list
  bool has_favourites;  // favourites that can be changed, and the clear label
  bool knows_parents;   // parents, merged sets and the overwrite question with its steps
  bool has_bare_names;  // "imgButSnap" and its like bear no word

  LaunchRules launch;
  PanelRules panel;
  PanelTexts texts;
  FilterItems filters;
  std::span<const std::string_view> fixed_games;  // of an emulator without a list to choose from
  HelpPageTable help;
  // In the order of their fields in the stored record; those that aren't stored stand last. The rom
  // folder, field 2 of every record, is no row of the table.
  std::span<const OptionSpec> options;
  std::span<const Enabling> enablings;
  std::optional<RecordingOptions> recording;
  CommandTable command;

  // What follows from the word. The section word, "MAME", stands in layouts and pickers.
  [[nodiscard]] std::string SectionWord() const;
  [[nodiscard]] std::string RomWord() const { return SectionWord() + "ROM"; }
  [[nodiscard]] std::string SnapWord() const { return SectionWord() + "SNAP"; }
  [[nodiscard]] std::string SettingsWord() const { return SectionWord() + "SETTINGS"; }
  [[nodiscard]] FileName DataFile() const { return File(".dat"); }  // in the folder Data
  [[nodiscard]] FileName CfgFile() const { return File(".cfg"); }   // these in the folder cfg
  [[nodiscard]] FileName CfgTempFile() const { return File("cfg.tmp"); }
  [[nodiscard]] FileName SettingsFile() const { return File(".set"); }
  [[nodiscard]] FileName SettingsTempFile() const { return File("set.tmp"); }
  [[nodiscard]] FileName ScanFile() const { return File(".scn"); }
  [[nodiscard]] FileName ScanTempFile() const { return File("scn.tmp"); }
  [[nodiscard]] std::string Logo() const;  // name of the drawing: "mame_logo"

 private:
  [[nodiscard]] FileName File(std::string_view tail) const {
    return FileName::Own(word).With(tail);
  }
};

// All options at their defaults; the rom folder is `configured`, or the emulator's own if that is
// empty.
OptionValues DefaultValues(const Emulator& emulator, std::string_view configured);

// All emulators, in the program's own order.
std::span<const std::reference_wrapper<const Emulator>> Emulators();

// Place of an emulator among them.
std::size_t IndexOf(const Emulator& emulator);

// By section word, exact; nullptr if it is none.
const Emulator* FindEmulator(std::string_view section_word);

}  // namespace zarvo
