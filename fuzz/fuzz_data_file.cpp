// Any bytes as a data file: every reader ends, and what it gives holds together.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/catalogue/game_list.h"
#include "core/catalogue/scan.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

namespace {

using namespace zarvo;

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckLists(MemoryFiles& files, const AppState& app, const Emulator& mame) {
  for (const GameState state : {GameState::kAllSupported, GameState::kOriginals, GameState::kClones,
                                GameState::kNoNeoGeo, GameState::kNeoGeo}) {
    NameList list;
    Require(FillList(files, app, mame, state, list) == FillResult::kFilled);
    const int filled = list.Count();
    FilterList(files, app, mame, ValueFilter::kGenre, "Action", list);
    FilterList(files, app, mame, ValueFilter::kYear, "1999", list);
    Require(list.Count() <= filled);
  }
  Require(!files.Has(R"(C:\Zarvo\Data\tofilter.tmp)"));
}

void CheckLookUps(MemoryFiles& files, const AppState& app, const Emulator& mame) {
  NameList list;
  FillList(files, app, mame, GameState::kAllSupported, list);
  for (int i = 0; i < list.Count() && i < 20; ++i) {
    const auto record = FindRecord(files, app, mame, list.At(i));
    if (list.At(i).empty()) {
      Require(!record);
    } else {
      Require(record && (*record)[Field::kName] == list.At(i) && record->field_count >= 1);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemoryFiles files;
  AppState app;
  app.ProgramFolder = R"(C:\Zarvo)";
  const Emulator& mame = kMame;
  files.PutFolder(R"(C:\Zarvo\cfg)");
  files.Put(R"(C:\Roms\rom.zip)", "");
  files.Put(R"(C:\Zarvo\Data\Mame.dat)", std::string(reinterpret_cast<const char*>(data), size));
  Require(ReadHeader(files, app, mame).size() <= kHeaderLines);
  Require(ReadDataTotal(files, app, mame).file_opened);
  CheckLists(files, app, mame);
  CheckLookUps(files, app, mame);
  for (const SetType sets : {SetType::kSplit, SetType::kMerged}) {
    const auto outcome = ScanRoms(files, app, mame, R"(C:\Roms)", sets);
    Require(outcome && outcome->written);
    NameList found;
    FillList(files, app, mame, GameState::kAvailable, found);
    Require(found.Count() == std::min(outcome->found, kMostEntries));
  }
  return 0;
}
