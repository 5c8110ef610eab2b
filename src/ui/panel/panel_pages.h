// The five pages of a panel, their buttons, and the cycle that saves and loads a game's settings as
// the selection moves.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/catalogue/game_details.h"
#include "core/panel/current_game.h"
#include "ui/panel/conf_page.h"
#include "ui/panel/favourites.h"
#include "ui/panel/game_filters.h"
#include "ui/panel/help_page.h"
#include "ui/panel/info_page.h"
#include "ui/panel/panel_tools.h"
#include "ui/panel/settings_page.h"
#include "ui/panel/snapshot_page.h"
#include "ui/toolkit/image_box.h"

namespace zarvo {

enum class Page { kSnapshot, kSettings, kInfo, kHelp, kConfiguration };

class PanelPages {
 public:
  PanelPages(QWidget* panel, const Emulator& emulator, const PanelTools& tools);

  // Wires the buttons and the selection of the lists; `game` is the one whose controls these are.
  void Connect(CurrentGame& game, const SectionState& state, const Favourites& favourites,
               const GameFilters& games);

  void Show(Page page);
  // A failed start leads to a page; the snapshot page may stay beside it.
  void ShowAfterStart(Page page, bool hides_snapshot);
  // Takes over a section that has no configuration file yet.
  void ShowConfiguration() const;

  // The favourites if there are any, else the big list where the panel has one.
  [[nodiscard]] ListBox* FirstList() const;

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

  std::string SnapPath;
  // The emulator's own folder, which the help page reads.
  std::function<DosPath()> emulator_folder;

 private:
  void BuildButtons(QWidget* panel);
  void BuildPages(QWidget* panel);
  void TellPage(Page page) const;
  void Enter(Page page);
  void EnterSnapshotPage();
  void EnterSettingsPage();
  void OnSelected(const ListBox* list);
  void SelectOnSettingsPage(const std::string& name);
  void ShowSnapshotOf(const std::string& name, const ListBox* list);
  bool ShowPictureOfRom();
  void ShowInfo();
  void ShowGameList();
  std::string FirstGame();

  const Emulator& emulator_;
  const PanelTools& tools_;
  CurrentGame* game_ = nullptr;
  const SectionState* state_ = nullptr;
  const Favourites* favourites_ = nullptr;
  const GameFilters* games_ = nullptr;
  int cycles_ = 0;  // selection cycles run so far
};

}  // namespace zarvo
