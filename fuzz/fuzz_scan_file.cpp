// Any bytes as a scan file: reading it ends, and a name never holds a semicolon.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/catalogue/catalogue.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  MemoryFiles files;
  const ProgramFolders folders{R"(C:\Zarvo)"};
  files.Put(R"(C:\Zarvo\cfg\Mame.scn)", std::string(reinterpret_cast<const char*>(data), size));
  for (const GameState state : {GameState::kAvailable, GameState::kMissing}) {
    NameList list;
    if (Catalogue(files, folders, kMame).Fill(state, list) != FillResult::kFilled) {
      std::abort();
    }
    for (int i = 0; i < list.Count(); ++i) {
      if (list.At(i).find_first_of(";\n") != std::string_view::npos) std::abort();
    }
  }
  return 0;
}
