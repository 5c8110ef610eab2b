// The start of a game from a panel.
#pragma once

#include <string>

#include "core/panel/current_game.h"
#include "ui/panel/option_rules.h"
#include "ui/panel/panel_pages.h"
#include "ui/panel/panel_paths.h"
#include "ui/panel/panel_tools.h"

namespace zarvo {

class GameStart {
 public:
  // `recording` is nullptr where the emulator has none.
  GameStart(const Emulator& emulator, const PanelTools& tools, CurrentGame& game, PanelPages& pages,
            PanelPaths& paths, const RecordingRules* recording)
      : emulator_(emulator),
        tools_(tools),
        game_(game),
        pages_(pages),
        paths_(paths),
        recording_(recording) {}

  // Saves the configuration, and starts the game with its own settings; returns when it has ended.
  void Start(const std::string& name);

 private:
  void ShowEmulatorPicker();
  void ShowRomPicker();

  const Emulator& emulator_;
  const PanelTools& tools_;
  CurrentGame& game_;
  PanelPages& pages_;
  PanelPaths& paths_;
  const RecordingRules* recording_;
};

}  // namespace zarvo
