// Any bytes as a data file: every reader ends, and what it gives holds together.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/catalogue/catalogue.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

namespace {

using namespace zarvo;

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckLists(MemoryFiles& files, const ProgramFolders& folders, const Emulator& mame) {
  for (const GameState state : {GameState::kAllSupported, GameState::kOriginals, GameState::kClones,
                                GameState::kNoNeoGeo, GameState::kNeoGeo}) {
    NameList list;
    Require(Catalogue(files, folders, mame).Fill(state, list) == FillResult::kFilled);
    const int filled = list.Count();
    Catalogue(files, folders, mame).Filter(ValueFilter::kGenre, "Action", list);
    Catalogue(files, folders, mame).Filter(ValueFilter::kYear, "1999", list);
    Require(list.Count() <= filled);
  }
  Require(!files.Has(R"(C:\Zarvo\Data\tofilter.tmp)"));
}

void CheckLookUps(MemoryFiles& files, const ProgramFolders& folders, const Emulator& mame) {
  NameList list;
  Catalogue(files, folders, mame).Fill(GameState::kAllSupported, list);
  for (int i = 0; i < list.Count() && i < 20; ++i) {
    const auto record = Catalogue(files, folders, mame).Find(list.At(i));
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
  const ProgramFolders folders{R"(C:\Zarvo)"};
  const Emulator& mame = kMame;
  files.PutFolder(R"(C:\Zarvo\cfg)");
  files.Put(R"(C:\Roms\rom.zip)", "");
  files.Put(R"(C:\Zarvo\Data\Mame.dat)", std::string(reinterpret_cast<const char*>(data), size));
  Require(Catalogue(files, folders, mame).Header().size() <= kHeaderLines);
  Require(Catalogue(files, folders, mame).Total().file_opened);
  CheckLists(files, folders, mame);
  CheckLookUps(files, folders, mame);
  for (const SetType sets : {SetType::kSplit, SetType::kMerged}) {
    const auto outcome = Catalogue(files, folders, mame).Scan(R"(C:\Roms)", sets);
    Require(outcome && outcome->written);
    NameList found;
    Catalogue(files, folders, mame).Fill(GameState::kAvailable, found);
    Require(found.Count() == std::min(outcome->found, kMostEntries));
  }
  return 0;
}
