// The way from a selected game to a running emulator and back.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/launch/command_line.h"
#include "core/launch/launch_notes.h"
#include "core/platform/dos_files.h"
#include "core/platform/message_boxes.h"
#include "core/platform/program.h"

namespace zarvo {

// What to start.
struct LaunchRequest {
  std::string game;
  DosPath emulator_folder;
  // The game's settings and the moment; the rom name is filled in by the launch.
  CommandInput command;
};

// What the data file says of a game.
struct FoundRom {
  std::string rom;
  std::string parent;
};

// What a launch calls on its way.
struct LaunchCalls {
  std::function<void()> save_cfg;
  // Nothing, after its own message, if the game isn't known.
  std::function<std::optional<FoundRom>(std::string_view game)> find_rom;
  // After the message: the configuration page with the picker for the executable, the settings page
  // with the picker for the rom's folder.
  std::function<void()> show_emulator_picker;
  std::function<void()> show_rom_picker;
};

// What a launch works with. `run` runs the command line "command.com /c lancia.bat" in the current
// folder and returns when the program has ended; an error is a sentence for the player.
struct LaunchTools {
  DosFiles& files;
  MessageBoxes& boxes;
  const ProgramFolders& folders;
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
LaunchEnd Launch(const Emulator& emulator, const LaunchRequest& request, const LaunchCalls& calls,
                 const LaunchTools& tools);

}  // namespace zarvo
