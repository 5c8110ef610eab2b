// The data file of an emulator, `<Emu>.dat` in the folder Data: a header of 17 lines that begin
// with "*", then one game a line, 21 fields each closed by a semicolon, sorted by name.
//
// Nothing of it is held in memory: every question to a Catalogue opens the file and reads from its
// first line.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/emulators/emulator.h"
#include "core/platform/dos_files.h"
#include "core/platform/line_reader.h"

namespace zarvo {

// Places of the fields in a record, from 0.
enum class Field : int {
  kName,
  kRomFile,
  kOC,
  kCloneOf,
  kGenre,
  kMadeBy,
  kYear,
  kPlayable,
  kColors,
  kSound,
  kHiScore,
  kCocktail,
  kDriver,
  kCpu1,
  kCpu2,
  kCpu3,
  kCpu4,
  kSound1,
  kSound2,
  kSound3,
  kSound4
};
inline constexpr int kFieldCount = 21;

struct GameRecord {
  std::array<std::string, kFieldCount> fields;
  int field_count = 0;  // fields that the line has closed by a semicolon; the others are empty

  [[nodiscard]] const std::string& operator[](Field field) const {
    return fields[static_cast<std::size_t>(field)];
  }
};

inline constexpr int kHeaderLines = 17;

// Cuts the first field off `rest` and its semicolon with it; nothing if no semicolon is left.
std::optional<std::string_view> CutField(std::string_view& rest);

// One record of an open data file after the other: blank lines, "#" and "*" lines are passed over.
class RecordReader {
 public:
  // Makes `data_folder` current and opens the emulator's file by its bare name.
  static Result<RecordReader> Open(DosFiles& files, const DosPath& data_folder,
                                   const Emulator& emulator);
  // The next record's line, valid until the next call; false at the end of the file.
  bool Next(std::string_view& line);
  // True if the file could not be read to its end.
  [[nodiscard]] bool Failed() const { return lines_.Failed(); }

 private:
  explicit RecordReader(LineReader lines) : lines_(std::move(lines)) {}
  LineReader lines_;
};

// As RecordReader::Open, for all lines.
Result<LineReader> OpenDataFile(DosFiles& files, const DosPath& data_folder,
                                const Emulator& emulator);

}  // namespace zarvo
