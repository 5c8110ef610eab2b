// The panel of one emulator: its window, with the lists, the pages and the sizes.
//
// One class serves all emulators; what differs stands in the emulator's own file. What the panel
// does is elsewhere: the game in the caption (CurrentGame), the pages (PanelPages), the paths
// (PanelPaths) and the start of a game (GameStart).
#pragma once

#include <memory>

#include "ui/panel/find_field.h"
#include "ui/panel/game_start.h"
#include "ui/panel/list_menu.h"
#include "ui/panel/panel_pages.h"
#include "ui/panel/panel_paths.h"
#include "ui/panel/panel_sizes.h"
#include "ui/shell/window_menu.h"
#include "ui/toolkit/window.h"

namespace zarvo {

class EmulatorPanel : public Window {
 public:
  // Creates the panel and runs its load; it isn't shown.
  EmulatorPanel(const Emulator& emulator, PanelTools tools, SectionState& state);
  ~EmulatorPanel() override;

  [[nodiscard]] const Emulator& ItsEmulator() const { return emulator_; }
  [[nodiscard]] MainPlace& Main() const { return tools_.main; }

  // The configuration, then the record of the current game; the error has a line for each that
  // failed.
  Status TrySaveAll();
  // Both, before what isn't saved goes. Asks if that fails; false if the player stays.
  bool SaveOrLeave();
  // The panel then counts as closed; false if the player stays.
  bool SaveAndMarkClosed();

  // The entry to the section from filling the list to the panel on screen.
  void Enter();

  // The panel was closed by its button or by the desktop, and can be dropped.
  Event<> Closed;

  Label* lblRomSettings;  // its caption is the current game, the key of every save
  Label* cmdExit;
  ImageBox* logo;  // imgMame and its sisters
  std::unique_ptr<Favourites> favourites;
  std::unique_ptr<PanelPages> pages;
  std::unique_ptr<GameFilters> games;
  std::unique_ptr<PanelSizes> sizes;
  std::unique_ptr<CurrentGame> game;
  std::unique_ptr<PanelPaths> paths;
  std::unique_ptr<RecordingRules> recording;  // nullptr where the emulator has none
  FindField* find;                            // in the list that it was opened for

 protected:
  void resizeEvent(QResizeEvent* event) override;
  // Ctrl+F from wherever it wasn't taken.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // panel_build.cpp
  void Build();
  void BuildHeader();
  void BuildEdges();
  void OrderControls();
  void BuildBehaviour();
  [[nodiscard]] GameControls ControlsOfGame();
  void Wire();
  void WireLists();
  void WireOptions();
  void Load();

  // Beside the main window.
  void Dock();
  void StartSelected(const ListBox* list);
  void TellUnknownGame();
  void ApplyToAll();
  void Exit();

  const Emulator& emulator_;
  PanelTools tools_;
  SectionState& state_;
  std::unique_ptr<GameStart> start_;
  std::unique_ptr<ListMenu> menu_;
  std::unique_ptr<WindowMenu> window_menu_;
  QWidget* right_edge_;
  QWidget* bottom_edge_;
  bool closed_ = false;  // saved and counted as closed
};

}  // namespace zarvo
