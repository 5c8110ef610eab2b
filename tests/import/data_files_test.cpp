// Every data file of the project keeps every rule that the program relies on.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

#include "catalogue/game_list.h"
#include "import/import_fixture.h"
#include "import/list_text.h"
#include "platform/name_list.h"
#include "platform/text.h"

namespace zarvo {
namespace {

using Fields = std::vector<std::string>;

struct DataFile {
  std::vector<std::string> header;
  std::vector<Fields> games;
};

std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end = 0; (end = bytes.find("\r\n", begin)) != std::string::npos;
       begin = end + 2) {
    lines.push_back(bytes.substr(begin, end - begin));
  }
  EXPECT_EQ(begin, bytes.size()) << "the last line isn't ended";
  return lines;
}

Fields FieldsOf(const std::string& line) {
  Fields fields;
  std::size_t begin = 0;
  for (std::size_t end = 0; (end = line.find(';', begin)) != std::string::npos; begin = end + 1) {
    fields.push_back(line.substr(begin, end - begin));
  }
  EXPECT_EQ(begin, line.size()) << "the last field isn't closed: " << line;
  return fields;
}

DataFile Load(const EmulatorProfile& profile) {
  DataFile file;
  const std::string path = std::string(ZARVO_DATA_FOLDER) + "/" + std::string(profile.data_file);
  for (const std::string& line : LinesOf(ReadBytes(path))) {
    EXPECT_LE(line.size(), kLongestLine);
    EXPECT_EQ(line.find_first_of("\r\n\t"), std::string::npos) << line;
    if (line.starts_with('*')) {
      EXPECT_TRUE(file.games.empty()) << "a header line behind a game";
      file.header.push_back(line);
    } else {
      file.games.push_back(FieldsOf(line));
    }
  }
  return file;
}

class DataFiles : public testing::TestWithParam<Emulator> {
 protected:
  const EmulatorProfile& profile_ = ProfileOf(GetParam());
  DataFile file_ = Load(profile_);

  // Whether the filter's combo has the value; a panel without filters takes any.
  [[nodiscard]] bool InCombo(ValueFilter filter, const std::string& value) const {
    const auto items = FilterItems(profile_.emulator, filter);
    return items.empty() || std::find(items.begin() + 1, items.end(), value) != items.end();
  }
};

TEST_P(DataFiles, HeaderCountsTheGames) {
  ASSERT_EQ(file_.header.size(), 17U);
  ASSERT_GT(file_.games.size(), 12U);
  ASSERT_LE(file_.games.size(), static_cast<std::size_t>(kMostEntries));
  EXPECT_EQ(file_.header[7], "*" + std::to_string(file_.games.size()));
  for (const std::string& line : file_.header) EXPECT_GT(line.size(), 1U);
}

TEST_P(DataFiles, NamesAreInListOrderAndUnique) {
  for (std::size_t i = 0; i < file_.games.size(); ++i) {
    const std::string& name = file_.games[i][0];
    ASSERT_FALSE(name.empty());
    EXPECT_EQ(name.find_first_of("#*"), name.find_first_of("#*", 1)) << name;
    EXPECT_EQ(name, TrimBlanks(name));
    if (i == 0) continue;
    EXPECT_LT(CompareNoCase(file_.games[i - 1][0], name), 0) << name;
  }
}

TEST_P(DataFiles, RecordsKeepTheirForm) {
  const std::set<std::string> states = {"Yes", "No", "Partial", "Near", "Yes(1)", "n/a"};
  std::map<std::string, Fields> by_rom;
  for (const Fields& game : file_.games) {
    ASSERT_EQ(game.size(), 21U) << game[0];
    EXPECT_TRUE(IsUsableRomName(game[1])) << game[1];
    EXPECT_TRUE(by_rom.emplace(game[1], game).second) << game[1];
    for (std::size_t place = 7; place < 12; ++place) EXPECT_TRUE(states.contains(game[place]));
    for (const std::string& field : game) {
      EXPECT_FALSE(field.empty()) << game[0];
      for (const char c : field) {
        const char32_t character = ToUnicode(static_cast<unsigned char>(c));
        EXPECT_TRUE(character >= ' ' && (character < 0x7F || character > 0x9F)) << game[0];
      }
    }
  }
  for (const Fields& game : file_.games) {
    if (game[2] == "O") {
      EXPECT_EQ(game[3], "-") << game[0];
    } else {
      ASSERT_EQ(game[2], "C") << game[0];
      EXPECT_TRUE(IsUsableRomName(game[3]) && game[3] != game[1]) << game[0];
      EXPECT_TRUE(game[3] == "neogeo" || !game[3].starts_with("neogeo")) << game[0];
      // A clone has a parent with a set of its own, or one that the file leaves out.
      const auto parent = by_rom.find(game[3]);
      EXPECT_TRUE(parent == by_rom.end() || parent->second[2] == "O") << game[0];
    }
  }
}

TEST_P(DataFiles, FilterFieldsStandInTheirCombos) {
  for (const Fields& game : file_.games) {
    EXPECT_TRUE(InCombo(ValueFilter::kGenre, game[4])) << game[0] << ": " << game[4];
    EXPECT_TRUE(InCombo(ValueFilter::kManufactor, game[5])) << game[0] << ": " << game[5];
    EXPECT_TRUE(InCombo(ValueFilter::kYear, game[6])) << game[0] << ": " << game[6];
  }
}

INSTANTIATE_TEST_SUITE_P(All, DataFiles,
                         testing::Values(Emulator::kMame, Emulator::kCallus, Emulator::kRaine,
                                         Emulator::kSystem16, Emulator::kM72));

TEST(ShippedDataFile, M72HasTheGamesOfItsFixedList) {
  std::map<std::string, std::string> roms;
  for (const Fields& game : Load(ProfileOf(Emulator::kM72)).games) roms[game[0]] = game[1];
  const std::map<std::string, std::string> expected = {{"Battle Chopper", "bchopper"},
                                                       {"Dragon Breed", "dbreed"},
                                                       {"Gallop - Armed Police Unit", "gallop"},
                                                       {"Hammerin'Harry", "hharry"},
                                                       {"Image Fight", "imgfight"},
                                                       {"Legend of Hero Tonma", "loht"},
                                                       {"Mr.Heli (JP)", "mrheli"},
                                                       {"Ninja Spirit", "nspirit"},
                                                       {"R-Type (US)", "rtypeu"},
                                                       {"R-Type (JP)", "rtypej"},
                                                       {"R-Type 2", "rtype2"},
                                                       {"X-Multiply", "xmultipl"}};
  for (const std::string_view name : M72Games()) {
    const auto game = expected.find(std::string(name));
    ASSERT_NE(game, expected.end()) << name;
    EXPECT_EQ(roms[game->first], game->second);
  }
}

TEST(ShippedDataFile, WellKnownGamesHaveTheirGenre) {
  std::map<std::string, Fields> games;
  for (const Fields& game : Load(ProfileOf(Emulator::kMame)).games) games[game[1]] = game;
  EXPECT_EQ(games["puckman"][4], "Labyrinth");
  EXPECT_EQ(games["pacman"][4], "Labyrinth");
  EXPECT_EQ(games["mslug"][3], "neogeo");
  const auto known = std::count_if(games.begin(), games.end(),
                                   [](const auto& game) { return game.second[4] != "n/a"; });
  EXPECT_GE(known, 600);
}

}  // namespace
}  // namespace zarvo
