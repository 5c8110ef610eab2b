// Makes the emulators' folders for a player who has today's MAME and none of the DOS programs.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/platform/dos_world.h"
#include "core/platform/program.h"

namespace zarvo {

struct RealGames {
  std::string bridge;  // host path of zarvo-mame, which the emulators' programs call
  // The settings of MAME for the whole computer, which a mame.ini in the emulator's folder
  // replaces; empty if there are none.
  std::string mame_ini;
  std::function<void(const std::string& line)> say;  // what was made, and what couldn't be
};

// For each emulator whose folder isn't there: the folder with the bridge as its program, folders
// for roms, snapshots and recordings, a mame.ini, the empty archives of those of its games that
// need none, and the configuration that a player would get by choosing all this, with these games
// as favourites. A folder or configuration that is there stays as it is; what was cut off half
// way is made whole. False if something couldn't be made.
bool LayOutRealGames(DosWorld& files, const ProgramFolders& folders, const RealGames& real);

}  // namespace zarvo
