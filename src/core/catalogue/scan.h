// Which games of the data file the player really has: the scan of a rom folder.
#pragma once

#include <string>
#include <string_view>

#include "core/catalogue/data_file.h"
#include "core/platform/store.h"

namespace zarvo {

enum class SetType { kSplit, kMerged };

// The marks of a game in the scan file.
inline constexpr char kFoundMark = 'Y';
inline constexpr char kMissingMark = 'N';

// The answers of the last scan, `<Emu>.scn` in the folder cfg.
Store ScanStoreOf(DosFiles& files, const AppState& app, const Emulator& emulator);

struct ScanOutcome {
  int found = 0;
  Status written = Success();  // an error if the scan file couldn't be written; the count stands
};

// Looks for the archive of every game in `rom_folder` and writes the answers to `<Emu>.scn` in the
// folder cfg, a line `"Name;Y"` or `"Name;N"` each, in the order of the data file. If `rom_folder`
// can't be entered, the look-ups run in the folder cfg. kMerged counts on MAME alone. Fails if the
// data file can't be read to its end; the old scan file stays then.
Result<ScanOutcome> ScanRoms(DosFiles& files, const AppState& app, const Emulator& emulator,
                             std::string_view rom_folder, SetType sets);

}  // namespace zarvo
