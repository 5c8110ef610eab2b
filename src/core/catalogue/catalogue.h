// The games of one emulator, as its data file and the last scan of its roms tell them.
//
// Nothing is held in memory: every question opens the file and reads from its first line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/catalogue/data_file.h"
#include "core/platform/name_list.h"
#include "core/platform/program.h"
#include "core/platform/store.h"

namespace zarvo {

// In the order of the items of the state filter.
enum class GameState {
  kAllSupported,
  kOriginals,
  kClones,
  kAvailable,
  kMissing,
  kNoNeoGeo,
  kNeoGeo
};

// The filters for a value, each on a field of the record.
enum class ValueFilter { kGenre, kManufactor, kYear };

// What stands in a filter's combo; item 0 is the neutral one.
std::span<const std::string_view> ItemsOf(const Emulator& emulator, ValueFilter filter);

enum class FillResult {
  kFilled,
  kNoDataFile,  // the list is empty for kAllSupported, else as it was
  kNoScanFile,  // the list is as it was
};

enum class SetType { kSplit, kMerged };

// The marks of a game in the scan file.
inline constexpr char kFoundMark = 'Y';
inline constexpr char kMissingMark = 'N';

struct ScanOutcome {
  int found = 0;
  Status written = Success();  // an error if the scan file couldn't be written; the count stands
};

// What a panel's load finds for its total.
struct DataTotal {
  bool file_opened = false;
  std::optional<std::string> total;  // header line 8; nothing if the file ends before it
};

class Catalogue {
 public:
  Catalogue(DosFiles& files, const ProgramFolders& folders, const Emulator& emulator);

  [[nodiscard]] bool HasDataFile() const;

  // The first record whose name is `name` exactly; nothing if there is none or no file. An empty
  // name is no name.
  [[nodiscard]] std::optional<GameRecord> Find(std::string_view name) const;

  // The header lines, each without its first character: kHeaderLines, fewer if the file ends inside
  // the header, none if there is no file or the first line that is neither blank nor a comment
  // doesn't begin with "*".
  [[nodiscard]] std::vector<std::string> Header() const;

  // Header line 8, counted from the first line that begins with "*", whatever stands before it.
  [[nodiscard]] DataTotal Total() const;

  // Refills `list`, sorted, with the names of one state. A record without a semicolon, or with too
  // few for the test of the state, ends it with the names added so far. kAvailable and kMissing
  // read the scan file alone.
  FillResult Fill(GameState state, NameList& list) const;

  // One filter step: keeps the names of `list` whose record has exactly `value` in the filter's
  // field. Walks list and file side by side, once, through the work file tofilter.tmp in the folder
  // Data. The neutral item changes nothing and reads nothing. If the data file or the work file
  // can't be used the list stays as it was.
  void Filter(ValueFilter filter, std::string_view value, NameList& list) const;

  // The entries of `list` that have `text` anywhere in their name, or are the game with the rom
  // name `text`, without regard to case and accents; in the order of the list. None for an empty
  // text.
  [[nodiscard]] std::vector<int> Search(std::string_view text, const NameList& list) const;

  // Looks for the archive of every game in `rom_folder` and writes the answers to `<Emu>.scn` in
  // the folder cfg, a line `"Name;Y"` or `"Name;N"` each, in the order of the data file. If
  // `rom_folder` can't be entered, the look-ups run in the folder cfg. kMerged counts only where
  // the emulator knows parents. Fails if the data file can't be read to its end; the old scan file
  // stays then.
  [[nodiscard]] Result<ScanOutcome> Scan(const DosPath& rom_folder, SetType sets) const;

 private:
  [[nodiscard]] Result<RecordReader> Records() const;
  // The names of the games with a rom name, in either case.
  [[nodiscard]] std::vector<std::string> NamesOfRom(std::string_view rom) const;
  FillResult FillFromDataFile(GameState state, NameList& list) const;
  FillResult FillFromScan(char mark, NameList& list) const;
  // The answers of the last scan.
  [[nodiscard]] Store ScanStore() const;
  // Goes to the rom folder, or stays in the folder cfg.
  void EnterRomFolder(const DosPath& rom_folder) const;

  DosFiles& files_;
  DosPath data_folder_;
  DosPath cfg_folder_;
  const Emulator& emulator_;
};

}  // namespace zarvo
