// The way from a selected game to a running emulator and back.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/emulators/app_state.h"
#include "core/launch/command_line.h"
#include "core/launch/launch_notes.h"
#include "core/platform/dos_files.h"
#include "core/platform/message_boxes.h"

namespace zarvo {

// What a launch asks of the panel. The panel's controls hold the settings of the game by then.
class LaunchPanel {
 public:
  virtual ~LaunchPanel() = default;
  virtual void SaveCfg() = 0;
  // Looks the game up and sets rom name and parent; false, after its own message, if it isn't
  // known.
  virtual bool FindRom(std::string_view game) = 0;
  [[nodiscard]] virtual std::string RomName() const = 0;
  [[nodiscard]] virtual std::string ParentRom() const = 0;
  [[nodiscard]] virtual std::string EmulatorPath() const = 0;
  [[nodiscard]] virtual std::string EmulatorFolder() const = 0;
  // Options, recording and clock; emulator path and rom name are filled in by the launch.
  [[nodiscard]] virtual CommandInput Command() const = 0;
  // After the message: the configuration page with the picker for the executable, the settings page
  // with the picker for the rom's folder.
  virtual void ShowEmulatorPicker() = 0;
  virtual void ShowRomPicker() = 0;
};

// What a launch works with. `run` runs the command line "command.com /c lancia.bat" in the current
// folder and returns when the program has ended; an error is a sentence for the player.
struct LaunchTools {
  DosFiles& files;
  MessageBoxes& boxes;
  const AppState& app;
  std::function<Status(std::string_view command_line)> run;
};

enum class LaunchEnd {
  kRan,
  kNoEmulator,
  kNoRom,
  kRefused,      // the player said No
  kUnknownGame,  // the data file doesn't know the game
  kFailed,       // a step failed and was told in a box
};

// The whole launch; returns when the emulator has ended or the launch has ended without a run. The
// batch file and a copy made for the run are gone by then, and what couldn't be removed was told;
// an archive that stood in the emulator's rom folder is as it was.
LaunchEnd Launch(const Emulator& emulator, std::string_view game, LaunchPanel& panel,
                 const LaunchTools& tools);

}  // namespace zarvo
