// Any bytes as gamelist.txt, with a name in its first line: the search ends, and a block of MAME
// begins with the name that was looked for.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/catalogue/game_details.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string_view name = bytes.substr(0, bytes.find('\n'));
  MemoryFiles files;
  files.Put(R"(C:\Emu\gamelist.txt)", std::string(bytes.substr(std::min(size, name.size() + 1))));
  const auto mame = GameListText(files, kMame, R"(C:\Emu)", name);
  const bool searched_whole = name.find('(') == std::string_view::npos;
  if (mame.empty()) std::abort();
  if (mame.size() > 1 && searched_whole && !mame.front().starts_with(name)) std::abort();
  GameListText(files, kCallus, R"(C:\Emu)", name);
  return 0;
}
