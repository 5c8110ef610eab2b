// Every data file of the project keeps every rule that the program relies on.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/catalogue/catalogue.h"
#include "core/platform/name_list.h"
#include "core/platform/text.h"
#include "fakes/emulators.h"
#include "import/import_fixture.h"
#include "import/list_text.h"

namespace zarvo {
namespace {

using Fields = std::vector<std::string>;

// What stands in front of each `end`; nothing may stand behind the last.
Fields Cut(const std::string& text, std::string_view end) {
  Fields fields;
  std::size_t begin = 0;
  for (std::size_t at = 0; (at = text.find(end, begin)) != std::string::npos;
       begin = at + end.size()) {
    fields.push_back(text.substr(begin, at - begin));
  }
  EXPECT_EQ(begin, text.size()) << "the last line or field isn't ended: " << text.substr(begin);
  return fields;
}

struct DataFile {
  std::vector<std::string> header;
  std::vector<Fields> games;
};

DataFile Load(const Emulator& emulator) {
  DataFile file;
  const std::string path = std::string(ZARVO_DATA_FOLDER) + "/" + emulator.DataFile().Text();
  for (const std::string& line : Cut(ReadBytes(path), "\r\n")) {
    EXPECT_LE(line.size(), kLongestLine);
    for (const char c : line) {
      const char32_t character = ToUnicode(static_cast<unsigned char>(c));
      EXPECT_TRUE(character >= ' ' && (character < 0x7F || character > 0x9F)) << line;
    }
    if (line.starts_with('*')) {
      EXPECT_TRUE(file.games.empty()) << "a header line behind a game";
      EXPECT_GT(line.size(), 1U);
      file.header.push_back(line);
    } else {
      file.games.push_back(Cut(line, ";"));
    }
  }
  return file;
}

// Whether the filter's combo has the value; a panel without filters takes any.
bool InCombo(const Emulator& emulator, ValueFilter filter, const std::string& value) {
  const auto items = ItemsOf(emulator, filter);
  return items.empty() || std::find(items.begin() + 1, items.end(), value) != items.end();
}

void ExpectForm(const Emulator& emulator) {
  const auto [header, games] = Load(emulator);
  ASSERT_EQ(header.size(), 17U);
  ASSERT_GT(games.size(), 12U);
  ASSERT_LE(games.size(), static_cast<std::size_t>(kMostEntries));
  EXPECT_EQ(header[7], "*" + std::to_string(games.size()));

  const std::set<std::string> states = {"Yes", "No", "Partial", "Near", "Yes(1)", "n/a"};
  std::map<std::string, Fields> by_rom;
  std::string before;
  for (const Fields& game : games) {
    SCOPED_TRACE(game[0]);
    ASSERT_EQ(game.size(), 21U);
    ASSERT_EQ(std::count(game.begin(), game.end(), ""), 0);
    EXPECT_TRUE(game[0].front() != '#' && game[0] == TrimBlanks(game[0]));
    EXPECT_LT(CompareNoCase(before, game[0]), 0) << "in the order of the list, and unique";
    before = game[0];
    EXPECT_TRUE(IsUsableRomName(game[1]));
    EXPECT_TRUE(by_rom.emplace(game[1], game).second) << "a rom stands twice";
    EXPECT_TRUE(InCombo(emulator, ValueFilter::kGenre, game[4])) << game[4];
    EXPECT_TRUE(InCombo(emulator, ValueFilter::kManufactor, game[5])) << game[5];
    // What is older than the filter's first year, MAME's games without a rom, is in none of them.
    EXPECT_TRUE(InCombo(emulator, ValueFilter::kYear, game[6]) || game[6] < "1975") << game[6];
    for (std::size_t place = 7; place < 12; ++place) EXPECT_TRUE(states.contains(game[place]));
  }
  for (const Fields& game : games) {
    SCOPED_TRACE(game[0]);
    if (game[2] == "O") {
      EXPECT_EQ(game[3], "-");
      continue;
    }
    ASSERT_EQ(game[2], "C");
    EXPECT_TRUE(IsUsableRomName(game[3]) && game[3] != game[1]);
    EXPECT_TRUE(game[3] == "neogeo" || !game[3].starts_with("neogeo"));
    // A clone has a parent with a set of its own, or one that the file leaves out.
    const auto parent = by_rom.find(game[3]);
    EXPECT_TRUE(parent == by_rom.end() || parent->second[2] == "O");
  }
}

TEST(ShippedDataFile, KeepsItsForm) {
  for (const Emulator& emulator : kTested) {
    SCOPED_TRACE(emulator.word);
    ExpectForm(emulator);
  }
}

TEST(ShippedDataFile, M72HasTheGamesOfItsFixedList) {
  std::map<std::string, std::string> roms;
  for (const Fields& game : Load(kM72).games) roms[game[0]] = game[1];
  std::string found;
  for (const std::string_view name : kM72.fixed_games) found += roms[std::string(name)] + " ";
  EXPECT_EQ(found,
            "bchopper dbreed gallop hharry imgfight loht mrheli nspirit rtypeu rtypej rtype2 "
            "xmultipl ");
}

TEST(ShippedDataFile, WellKnownGamesHaveTheirGenre) {
  std::map<std::string, Fields> games;
  for (const Fields& game : Load(kMame).games) games[game[1]] = game;
  EXPECT_EQ(games["puckman"][4], "Labyrinth");
  EXPECT_EQ(games["pacman"][4], "Labyrinth");
  EXPECT_EQ(games["mslug"][3], "neogeo");
  const auto known = std::count_if(games.begin(), games.end(),
                                   [](const auto& game) { return game.second[4] != "n/a"; });
  EXPECT_GE(known, 600);
}

}  // namespace
}  // namespace zarvo
