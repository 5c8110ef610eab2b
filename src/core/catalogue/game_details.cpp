#include "core/catalogue/game_details.h"

#include <array>

#include "core/platform/enter_folder.h"

namespace zarvo {
namespace {

constexpr std::array<DetailRow, kFieldCount> kDetailRows = {{
    {"lblInfoName", "Name:", Field::kName},
    {"lblInfoRomFile", "Rom File:", Field::kRomFile},
    {"lblInfoOC", "Original:", Field::kOC},
    {"lblInfoCloneOf", "Clone:", Field::kCloneOf},
    {"lblInfoGenre", "Genre:", Field::kGenre},
    {"lblInfoMadeBy", "Made by:", Field::kMadeBy},
    {"lblInfoYear", "Year:", Field::kYear},
    {"lblInfoPlayable", "Playable:", Field::kPlayable},
    {"lblInfoColors", "Colors:", Field::kColors},
    {"lblInfoSound", "Sound:", Field::kSound},
    {"lblInfoHiScore", "Hi-Score:", Field::kHiScore},
    {"lblInfoCocktail", "Cocktail:", Field::kCocktail},
    {"lblInfoDriver", "Driver:", Field::kDriver},
    {"lblInfoCpu1", "Cpu 1:", Field::kCpu1},
    {"lblInfoCpu2", "Cpu 2:", Field::kCpu2},
    {"lblInfoCpu3", "Cpu 3:", Field::kCpu3},
    {"lblInfoCpu4", "Cpu 4:", Field::kCpu4},
    {"lblInfoSound1", "Sound 1:", Field::kSound1},
    {"lblInfoSound2", "Sound 2:", Field::kSound2},
    {"lblInfoSound3", "Sound 3:", Field::kSound3},
    {"lblInfoSound4", "Sound 4:", Field::kSound4},
}};

}  // namespace

std::span<const DetailRow> DetailRows() { return kDetailRows; }

std::optional<std::string> DetailText(const GameRecord& record, Field field) {
  if (static_cast<int>(field) >= record.field_count) return "";
  const std::string& text = record[field];
  if (field == Field::kRomFile) return text + ".zip";
  if (field != Field::kOC) return text;
  if (text == "O") return "YES";
  if (text == "C") return "NO";
  return std::nullopt;
}

std::string_view SamplesText(const GameRecord& record) {
  return record[Field::kSound] == "Yes(1)" ? "Available" : "Not needed";
}

std::vector<std::string> GameListText(DosFiles& files, const Emulator& emulator,
                                      const DosPath& emulator_folder, std::string_view name) {
  const GameListRule& rule = emulator.help.game_list;
  if (rule.read == nullptr) return {};
  Ignore(EnterFolder(files, emulator_folder));
  auto source = files.Open("gamelist.txt");
  if (!source) return {rule.no_file.begin(), rule.no_file.end()};
  LineReader lines(std::move(*source));
  std::vector<std::string> items;
  rule.read(lines, name, items);
  return items;
}

}  // namespace zarvo
