// Any bytes as layouts.dat, and their first half as zarvo.ini: reading ends, and changing one
// layout leaves the others as they were.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "../tests/fakes/memory_files.h"
#include "layouts/layout_store.h"

namespace {

using namespace zarvo;

const std::vector<LayoutRecord> kRecords = {
    {.word = "MAIN", .top = 1, .left = -2},
    {.word = "M72", .top = 3, .left = 4, .width = 2415, .height = 4620}};

// All names but the changed one, with their records. A block that the file's end cuts off may gain
// its last line when another block comes behind it.
bool SameOthers(LayoutStore& before, LayoutStore& after, std::string_view changed) {
  const auto names = before.Names();
  for (std::size_t i = 0; names && i + 1 < names->size(); ++i) {
    if ((*names)[i] == changed) continue;
    const auto old_block = before.ReadBlock((*names)[i]);
    const auto new_block = after.ReadBlock((*names)[i]);
    if (old_block.ok() != new_block.ok()) return false;
    if (old_block && old_block->records != new_block->records) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  AppState app;
  app.ProgramFolder = R"(C:\Zarvo)";
  const std::string text(reinterpret_cast<const char*>(data), size);
  MemoryFiles old_files;
  old_files.Put(R"(C:\Zarvo\layouts.dat)", text);
  old_files.Put(R"(C:\Zarvo\zarvo.ini)", text.substr(0, size / 2));
  MemoryFiles files = old_files;
  LayoutStore before(old_files, app);
  LayoutStore after(files, app);
  if (before.AutoloadRecords().size() > size) std::abort();
  if (!after.SaveBlock("Mine", kRecords)) std::abort();
  const auto saved = after.ReadBlock("Mine");
  if (!saved || saved->records != kRecords || !SameOthers(before, after, "Mine")) std::abort();
  if (!after.RenameBlock("Mine", "Yours") || !after.RemoveBlock("Yours")) std::abort();
  return 0;
}
