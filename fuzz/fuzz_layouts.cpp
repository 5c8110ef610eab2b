// Any bytes as layouts.dat, and their first half as zarvo.ini: reading ends, and changing one
// layout leaves the others as they were.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/layouts/layout_store.h"
#include "fakes/memory_files.h"

namespace {

using namespace zarvo;

const std::vector<LayoutRecord> kRecords = {
    {.word = "MAIN", .top = 1, .left = -2},
    {.word = "M72", .top = 3, .left = 4, .width = 2415, .height = 4620}};

// Whether each layout but the changed one and the last has the records it had. The file's end may
// cut off the last block, which then gains a line when another block comes behind it; a damaged
// heading further up can bear the last one's name.
bool SameOthers(LayoutStore& before, LayoutStore& after, std::string_view changed) {
  const auto names = before.Names();
  if (!names) return true;
  for (const std::string& name : *names) {
    if (name == changed || name == names->back()) continue;
    const auto old_block = before.ReadBlock(name);
    const auto new_block = after.ReadBlock(name);
    if (old_block.ok() != new_block.ok()) return false;
    if (old_block && old_block->records != new_block->records) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ProgramFolders folders{R"(C:\Zarvo)"};
  const std::string text(reinterpret_cast<const char*>(data), size);
  MemoryFiles old_files;
  old_files.Put(R"(C:\Zarvo\layouts.dat)", text);
  old_files.Put(R"(C:\Zarvo\zarvo.ini)", text.substr(0, size / 2));
  MemoryFiles files = old_files;
  LayoutStore before(old_files, folders);
  LayoutStore after(files, folders);
  if (before.AutoloadRecords().size() > size) std::abort();
  if (!after.SaveBlock("Mine", kRecords)) std::abort();
  const auto saved = after.ReadBlock("Mine");
  if (!saved || saved->records != kRecords || !SameOthers(before, after, "Mine")) std::abort();
  if (!after.RenameBlock("Mine", "Yours") || !after.RemoveBlock("Yours")) std::abort();
  return 0;
}
