// Where an emulator, its roms and its snapshots lie: the configuration file, the pickers that
// choose the folders, and the scan.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/panel/cfg_file.h"
#include "core/panel/current_game.h"
#include "ui/panel/favourites.h"
#include "ui/panel/panel_pages.h"
#include "ui/panel/panel_sizes.h"
#include "ui/panel/panel_tools.h"

namespace zarvo {

class PanelPaths {
 public:
  PanelPaths(const Emulator& emulator, const PanelTools& tools, SectionState& state,
             PanelPages& pages, CurrentGame& game, Favourites& favourites, PanelSizes& sizes);

  // The configuration file into the controls: its first five lines alone, or all.
  void LoadCfg(bool paths_only);
  void SaveCfg();
  // Without a box: an error names the file and the reason. A file that stays as it is because it
  // couldn't be read is no error, for that was told when it was noticed.
  Status TrySaveCfg();
  // While it is on, a failure of SaveCfg is told only once.
  void TellOnce(bool on);

  [[nodiscard]] std::string EmulatorPath() const;

  // The pickers after a start that didn't find what it needs.
  void PickEmulator();
  void PickMissingRom();

  // What the pickers write.
  void TakeRomFolder(const DosPath& folder);
  void TakeGameRomFolder(const DosPath& folder);
  void TakeSnapFolder(const DosPath& folder);
  void TakeEmulator(const DosPath& exe_path, const DosPath& folder);

  std::string lblOptHide;  // the emulator's own folder

 private:
  void Wire();
  void BrowseExecutable();
  void BrowseRomFolder();
  void BrowseSnapFolder();
  void PickGameRom();
  void TakeDefaultRomFolder();
  void Scan();
  bool CanKeepFolder(const DosPath& folder);

  const Emulator& emulator_;
  const PanelTools& tools_;
  SectionState& state_;
  ConfPage& conf_;
  SettingsPage& settings_;
  CurrentGame& game_;
  Favourites& favourites_;
  PanelSizes& sizes_;
  CfgFile cfg_;
  std::optional<std::string> told_;  // the failure that was told already
  bool keeps_rom_folder_ = false;    // the picker is open because a start found no archive
};

}  // namespace zarvo
