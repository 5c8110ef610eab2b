// Any bytes as a .cfg file: reading it ends, and what was read is the same after it was written.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/panel/cfg_file.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

namespace {

using namespace zarvo;

CfgValues ValuesOf(const CfgFields& fields) {
  CfgValues values{.exe_path = fields.exe_path.value_or(""),
                   .rom_path = fields.rom_path.value_or(""),
                   .snap_path = fields.snap_path.value_or(""),
                   .snap_format = fields.snap_format.value_or(""),
                   .emulator_folder = fields.emulator_folder.value_or(""),
                   .layout_word = fields.layout_word.value_or(""),
                   .favourites = {}};
  for (const std::string& name : fields.favourites.value_or(std::vector<std::string>())) {
    if (CanBeWritten(name)) values.favourites.push_back(name);
  }
  return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemoryFiles files;
  const ProgramFolders folders{R"(C:\Zarvo)"};
  files.Put(R"(C:\Zarvo\cfg\Mame.cfg)", std::string(reinterpret_cast<const char*>(data), size));
  const Emulator& mame = kMame;
  CfgFile store(files, folders, mame);
  const CfgValues values = ValuesOf(store.Read());
  if (!store.Write(values)) std::abort();
  const CfgFields again = store.Read();
  if (!again.favourites || *again.favourites != values.favourites) std::abort();
  if (CanBeWritten(values.exe_path) && again.exe_path != values.exe_path) std::abort();
  return 0;
}
