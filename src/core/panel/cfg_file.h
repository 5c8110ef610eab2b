// The configuration file of one emulator, `<Emu>.cfg` in the folder cfg: six quoted lines, then one
// quoted favourite a line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/emulators/emulator.h"
#include "core/platform/program.h"
#include "core/platform/store.h"

namespace zarvo {

// A field that the file doesn't reach is empty.
struct CfgFields {
  std::optional<std::string> exe_path;
  std::optional<std::string> rom_path;
  std::optional<std::string> snap_path;
  std::optional<std::string> snap_format;  // "GIF", "JPG" or "BMP"; anything else counts as none
  std::optional<std::string> emulator_folder;
  std::optional<std::string> layout_word;  // "up" or "down"
  // Nothing if the file ends before them is told from an empty list: only a file that has reached
  // its sixth line clears the favourites on show.
  std::optional<std::vector<std::string>> favourites;
};

// The values to write. `favourites` in the order of the file: from the last entry of the list to
// the first.
struct CfgValues {
  std::string exe_path;
  std::string rom_path;
  std::string snap_path;
  std::string snap_format;
  std::string emulator_folder;
  std::string layout_word;
  std::vector<std::string> favourites;
};

class CfgFile {
 public:
  CfgFile(DosFiles& files, const ProgramFolders& folders, const Emulator& emulator);

  // Loads the fields that the file has. A file that is missing or can't be read gives none.
  CfgFields Read();
  // All or nothing; on failure the error names the file and the reason.
  Status Write(const CfgValues& values);
  // An error while the file stays as it is, because it couldn't be read.
  [[nodiscard]] const Status& Usable() const { return store_.Usable(); }

 private:
  const Emulator& emulator_;
  Store store_;
};

// True if a value reads back the same from the file. A value with a double quote in it is written
// bare where that works: no comma, no leading blank or quote.
bool CanBeWritten(std::string_view value);

}  // namespace zarvo
