// The panel of one emulator: its lists, its five pages, and the cycle that saves and loads a game's
// settings as the selection moves.
//
// The controls are the only live copy of what the panel holds. One class serves all five
// emulators; what differs stands in the emulator, the option table and the panel's rules.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/launch/launcher.h"
#include "core/launch/settings_store.h"
#include "core/panel/cfg_file.h"
#include "ui/panel/conf_page.h"
#include "ui/panel/favourites.h"
#include "ui/panel/game_filters.h"
#include "ui/panel/help_page.h"
#include "ui/panel/info_page.h"
#include "ui/panel/list_menu.h"
#include "ui/panel/option_rules.h"
#include "ui/panel/panel_sizes.h"
#include "ui/panel/panel_tools.h"
#include "ui/panel/settings_page.h"
#include "ui/panel/snapshot_page.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/window.h"

namespace zarvo {

class EmulatorPanel : public Window, private LaunchPanel {
 public:
  // Creates the panel and runs its load; it isn't shown.
  EmulatorPanel(const Emulator& emulator, PanelTools tools);
  ~EmulatorPanel() override;

  [[nodiscard]] const Emulator& ItsEmulator() const { return emulator_; }
  [[nodiscard]] MainPlace& Main() const { return tools_.main; }

  // The configuration file into the controls: its first five lines alone, or all.
  void LoadCfg(bool paths_only);
  void SaveCfg() override;
  // The record of `key` from the controls.
  void SaveSettings(std::string_view key);
  // The same two without a box: an error names the file and the reason. A file that stays as it is
  // because it couldn't be read is no error, for that was told when it was noticed.
  Status TrySaveCfg();
  Status TrySaveSettings(std::string_view key);
  // Both, for the current game; the error has a line for each that failed.
  Status TrySaveAll();
  // Both, before what isn't saved goes. Asks if that fails; false if the player stays.
  bool SaveOrLeave();
  // The panel then counts as closed; false if the player stays.
  bool SaveAndMarkClosed();

  // The entry to the section from filling the list to the panel on screen.
  void Enter();
  // Takes over a section that has no configuration file yet.
  void ShowConfiguration();

  // Beside the main window.
  void Dock();

  // Find<Emu>Rom: rom name and parent of a game; false, after the message, if it isn't known.
  bool FindRom(std::string_view game) override;

  // What the pickers write.
  void TakeRomFolder(std::string_view folder);
  void TakeGameRomFolder(std::string_view folder);
  void TakeSnapFolder(std::string_view folder);
  void TakeEmulator(std::string_view exe_path, std::string_view folder);
  void TakeRecording(std::string_view file);
  void ClearPlayback();

  // The panel was closed by its button or by the desktop, and can be dropped.
  Event<> Closed;

  Label* lblRomSettings;  // its caption is the current game, the key of every save
  Label* cmdExit;
  ImageBox* logo;  // imgMame and its sisters
  ImageBox* imgButSnap;
  ImageBox* imgButSet;
  ImageBox* imgButInfo;
  ImageBox* imgButHelp;
  ImageBox* imgButOpts;
  SnapshotPage* picSnap;
  SettingsPage* picSettings;
  InfoPage* picInfo;
  HelpPage* picHelp;
  ConfPage* picConf;
  std::unique_ptr<Favourites> favourites;
  std::unique_ptr<GameFilters> games;
  std::unique_ptr<PanelSizes> sizes;
  std::unique_ptr<RecordingRules> recording;  // MAME alone

  // Invisible state.
  std::string lblOptHide;  // the emulator's own folder
  std::string SnapPath;
  std::string RomFile;     // rom name of the game looked up last
  std::string ParentFile;  // and its parent

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  enum class Page { kSnapshot, kSettings, kInfo, kHelp, kConfiguration };

  // panel_build.cpp
  void Build();
  void BuildHeader();
  void BuildPageButtons();
  void BuildPages();
  void BuildEdges();
  void OrderControls();
  void Wire();
  void WireLists();
  void WirePageButton(ImageBox* button, int left, std::function<void()> action);
  void WireConfiguration();
  void WireSettings();
  void Load();

  // emulator_panel.cpp: pages and selection cycle
  void ShowPage(Page page);
  void EnterSnapshotPage();
  void EnterSettingsPage();
  void EnterInfoPage();
  void EnterHelpPage();
  void EnterConfigurationPage();
  [[nodiscard]] ListBox* FirstList() const;
  std::string FirstGame();
  void OnSelected(const ListBox* list);
  void SelectOnSettingsPage(const std::string& name);
  void ShowSnapshotOf(const std::string& name, const ListBox* list);
  bool ShowPictureOfRom();
  void ShowInfo();
  void ShowGameList();
  bool MoveCaption(const std::string& name);
  LoadOutcome LoadGame(std::string_view key);
  void ApplyDefaults();
  void ApplyToAll();
  void Exit();

  // panel_launch.cpp: pickers and start of a game
  void StartSelected(const ListBox* list);
  void TakeBack();
  void BrowseExecutable();
  void BrowseRomFolder();
  void BrowseSnapFolder();
  void BrowseGameRom();
  void PickGameRom();
  void KeepGameRomFolder();
  void TakeDefaultRomFolder();
  void Scan();
  bool CanKeepFolder(std::string_view folder);
  [[nodiscard]] std::string RomName() const override { return RomFile; }
  [[nodiscard]] std::string ParentRom() const override { return ParentFile; }
  [[nodiscard]] std::string EmulatorPath() const override;
  [[nodiscard]] std::string EmulatorFolder() const override { return lblOptHide; }
  [[nodiscard]] CommandInput Command() const override;
  void ShowEmulatorPicker() override;
  void ShowRomPicker() override;

  const Emulator& emulator_;
  PanelTools tools_;
  Store cfg_;
  Store settings_;
  std::unique_ptr<ListMenu> menu_;
  QWidget* right_edge_;
  QWidget* bottom_edge_;
  int cycles_ = 0;       // selection cycles run so far
  bool closed_ = false;  // saved and counted as closed
  // What the settings page held for the game in the caption while another game is started.
  std::optional<OptionValues> set_aside_;
  bool removes_unknown_ = false;   // inside the removal of a favourite that the data file lacks
  bool keeps_rom_folder_ = false;  // the picker is open because a start found no archive
  // During a start, which saves the configuration twice: the failure that was told already.
  std::optional<std::string> told_;
};

}  // namespace zarvo
