#include "core/catalogue/game_details.h"

#include <array>

#include "core/platform/enter_folder.h"

namespace zarvo {
namespace {

constexpr std::string_view kGameListFile = "gamelist.txt";
constexpr std::string_view kNotInGameList = "Game info not found in gamelist.txt!";
constexpr std::size_t kItemWidth = 52;  // what a line of the MAME help list shows

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

using Items = std::vector<std::string>;

// The name without its part in parentheses and the one character before that part. A name that
// begins with the parenthesis stays whole.
std::string_view WithoutRegion(std::string_view name) {
  const std::size_t parenthesis = name.find('(');
  if (parenthesis == std::string_view::npos || parenthesis == 0) return name;
  return name.substr(0, parenthesis - 1);
}

void AddCut(std::string_view line, Items& items) {
  items.emplace_back(line.substr(0, kItemWidth));
  if (line.size() > kItemWidth) items.emplace_back(line.substr(kItemWidth));
}

// The block that begins with a line which begins with the name; two empty lines end it.
void AddMameBlock(LineReader& lines, std::string_view name, Items& items) {
  std::string_view line;
  bool more = lines.Next(line);
  while (more && !line.starts_with(name)) more = lines.Next(line);
  if (!more) {
    items.emplace_back(kNotInGameList);
    return;
  }
  items.emplace_back(line);
  bool after_empty = false;
  while (lines.Next(line)) {
    AddCut(line, items);
    if (line.empty() && after_empty) return;
    after_empty = line.empty();
  }
}

// The lines behind the one that holds the name. An empty line is shown twice, and the line behind
// it isn't shown: it ends the block if it is empty too.
void AddCallusBlock(LineReader& lines, std::string_view name, Items& items) {
  const auto begins = [name](std::string_view line) {
    return !line.empty() && line.find(name) != std::string_view::npos;
  };
  std::string_view line;
  bool more = lines.Next(line);
  while (more && !begins(line)) more = lines.Next(line);
  if (!more) {
    items.emplace_back(kNotInGameList);
    return;
  }
  while (lines.Next(line)) {
    items.emplace_back(line);
    if (!line.empty()) continue;
    items.emplace_back();
    if (!lines.Next(line) || line.empty()) return;
  }
}

Items NoGameListFile(Emulator emulator) {
  if (emulator == Emulator::kMame) return {"gamelist.txt not found in Mame directory!"};
  return {"Gamelist.txt not found", "in Callus directory!"};
}

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

std::vector<std::string> GameListText(DosFiles& files, const EmulatorProfile& profile,
                                      std::string_view emulator_folder, std::string_view name) {
  if (!profile.has_game_list_text) return {};
  Ignore(EnterFolder(files, emulator_folder));
  auto source = files.Open(kGameListFile);
  if (!source) return NoGameListFile(profile.emulator);
  LineReader lines(std::move(*source));
  Items items;
  if (profile.emulator == Emulator::kMame) {
    AddMameBlock(lines, WithoutRegion(name), items);
  } else {
    AddCallusBlock(lines, name, items);
  }
  return items;
}

}  // namespace zarvo
