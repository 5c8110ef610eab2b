// Finding a game by a part of its name.
#include <algorithm>

#include "core/catalogue/catalogue.h"
#include "core/platform/text.h"

namespace zarvo {

std::vector<std::string> Catalogue::NamesOfRom(std::string_view rom) const {
  std::vector<std::string> names;
  auto records = Records();
  if (!records) return names;
  std::string_view line;
  while (records->Next(line)) {
    const auto name = CutField(line);
    const auto rom_file = CutField(line);
    if (!rom_file || !EqualNoCase(*rom_file, rom)) continue;
    names.emplace_back(*name);
  }
  return names;
}

std::vector<int> Catalogue::Search(std::string_view text, const NameList& list) const {
  std::vector<int> found;
  if (text.empty()) return found;
  std::string wanted;
  FoldAccents(text, wanted);
  const std::vector<std::string> by_rom = NamesOfRom(text);
  std::string name;
  for (int i = 0; i < list.Count(); ++i) {
    FoldAccents(list.At(i), name);
    if (name.find(wanted) != std::string::npos ||
        std::find(by_rom.begin(), by_rom.end(), list.At(i)) != by_rom.end()) {
      found.push_back(i);
    }
  }
  return found;
}

}  // namespace zarvo
