// The per-game option records of one emulator, `<Emu>.set` in the folder cfg.
//
// A text file of lines ended by CR LF, one record each: the quoted game name (or "[DEFAULT]"), the
// quoted rom folder, then the options in the order of the option table, numbers bare, texts quoted,
// separated by commas.
#pragma once

#include <string>
#include <string_view>

#include "core/emulators/emulator.h"
#include "core/platform/program.h"
#include "core/platform/store.h"

namespace zarvo {

inline constexpr std::string_view kDefaultKey = "[DEFAULT]";

enum class LoadOutcome {
  kRecord,    // `values` holds the record of the key, or the default record over the defaults
  kDefaults,  // no record: `values` holds the defaults
  kNothing,   // no store, one that can't be read (Usable() tells), or an empty line in front
              // of the record: `values` is untouched
};

class SettingsStore {
 public:
  SettingsStore(DosFiles& files, const ProgramFolders& folders, const Emulator& emulator);

  // Reads the record of `key`. `rom_folder` is the configured one, for the defaults. Options that a
  // record never holds, and whether an option can be used, stay as `values` has them. Fields that a
  // record lacks, and fields that aren't numbers where numbers belong, keep the default. A combo
  // index past its items counts as such a field too.
  LoadOutcome Load(std::string_view key, std::string_view rom_folder, OptionValues& values);

  // Replaces every record of `key` in its place, or adds one at the end; all other lines keep their
  // bytes. All or nothing; on failure the error names the file and the reason.
  Status Save(std::string_view key, const OptionValues& values);

  // Erases the store and writes `values` as its only record, the default one. A store that can't be
  // read stays as it is.
  Status SaveAsDefault(const OptionValues& values);

  // An error while the store stays as it is, because it couldn't be read.
  [[nodiscard]] const Status& Usable() const { return store_.Usable(); }

 private:
  const Emulator& emulator_;
  Store store_;
};

// The line of a record without its line end.
std::string RecordLine(const Emulator& emulator, std::string_view key, const OptionValues& values);

}  // namespace zarvo
