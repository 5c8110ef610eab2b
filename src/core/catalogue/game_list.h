// Filling the game list of a panel and narrowing it with filters.
#pragma once

#include <span>
#include <string_view>

#include "core/catalogue/data_file.h"
#include "core/platform/name_list.h"

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

// Refills `list`, sorted, with the names of one state. A record without a semicolon, or with too
// few for the test of the state, ends it with the names added so far. kAvailable and kMissing read
// the scan file alone.
FillResult FillList(DosFiles& files, const AppState& app, const Emulator& emulator, GameState state,
                    NameList& list);

// One filter step: keeps the names of `list` whose record has exactly `value` in the filter's
// field. Walks list and file side by side, once, through the work file tofilter.tmp in the folder
// Data. The neutral item changes nothing and reads nothing. If the data file or the work file can't
// be used the list stays as it was.
void FilterList(DosFiles& files, const AppState& app, const Emulator& emulator, ValueFilter filter,
                std::string_view value, NameList& list);

}  // namespace zarvo
