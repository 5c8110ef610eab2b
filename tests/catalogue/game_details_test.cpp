#include "catalogue/game_details.h"

#include "catalogue/catalogue_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using StringList = std::vector<std::string>;

GameRecord RecordOf(std::initializer_list<std::string> fields) {
  GameRecord record;
  for (const std::string& field : fields) {
    record.fields[static_cast<std::size_t>(record.field_count++)] = field;
  }
  return record;
}

TEST(DetailText, SaysWhatTheLabelsShow) {
  const GameRecord original = RecordOf({"R-Type (US)", "rtypeu", "O", "-", "Shooter"});
  EXPECT_EQ(DetailText(original, Field::kName), "R-Type (US)");
  EXPECT_EQ(DetailText(original, Field::kRomFile), "rtypeu.zip");
  EXPECT_EQ(DetailText(original, Field::kOC), "YES");
  EXPECT_EQ(DetailText(original, Field::kCloneOf), "-");
  EXPECT_EQ(DetailText(original, Field::kYear), "") << "a field that the record lacks";
  EXPECT_EQ(DetailText(RecordOf({"A", "a", "C"}), Field::kOC), "NO");
  EXPECT_EQ(DetailText(RecordOf({"A", "a", "Original"}), Field::kOC), std::nullopt);
  EXPECT_EQ(DetailText(RecordOf({"A", "a", ""}), Field::kOC), std::nullopt);
  EXPECT_EQ(DetailText(RecordOf({"A"}), Field::kRomFile), "");
}

TEST(SamplesText, OnlyYes1NeedsSamples) {
  const auto with_sound = [](const std::string& sound) {
    return RecordOf({"A", "a", "O", "-", "G", "M", "Y", "P", "C", sound});
  };
  EXPECT_EQ(SamplesText(with_sound("Yes(1)")), "Available");
  EXPECT_EQ(SamplesText(with_sound("Yes")), "Not needed");
  EXPECT_EQ(SamplesText(with_sound("Yes(1) ")), "Not needed");
  EXPECT_EQ(SamplesText(RecordOf({"A"})), "Not needed");
}

TEST(DetailRows, StandInTheOrderOfTheFields) {
  const auto rows = DetailRows();
  ASSERT_EQ(rows.size(), 21U);
  for (std::size_t place = 0; place < rows.size(); ++place) {
    EXPECT_EQ(static_cast<std::size_t>(rows[place].field), place) << rows[place].label;
  }
}

class GameListText : public CatalogueTest {
 protected:
  StringList Text(Emulator emulator, std::string_view name) {
    return zarvo::GameListText(files_, ProfileOf(emulator), R"(C:\Emu)", name);
  }
  void PutGameList(std::string bytes) { files_.Put(R"(C:\Emu\GAMELIST.TXT)", std::move(bytes)); }
};

TEST_F(GameListText, MameShowsTheBlockWithItsTitle) {
  const std::string exactly_52(52, 'f');
  const std::string longer(120, 'l');
  PutGameList("About R-Type\r\n\r\n\r\nR-Type II\r\nsecond\r\n\r\n\r\nR-Type\r\n" + exactly_52 +
              "\r\n" + exactly_52 + "x\r\n\r\n" + longer + "\r\n\r\n\r\nnext block\r\n");
  EXPECT_THAT(Text(Emulator::kMame, "R-Type II"), ElementsAre("R-Type II", "second", "", ""));
  EXPECT_THAT(Text(Emulator::kMame, "R-Type (JP)"), ElementsAre("R-Type II", "second", "", ""))
      << "the first title that begins so";
  PutGameList("R-Type\r\n" + exactly_52 + "\r\n" + exactly_52 + "x\r\n\r\n" + longer +
              "\r\n\r\n\r\nnext block\r\n");
  EXPECT_THAT(Text(Emulator::kMame, "R-Type"),
              ElementsAre("R-Type", exactly_52, exactly_52, "x", "", std::string(52, 'l'),
                          std::string(68, 'l'), "", ""));
}

TEST_F(GameListText, MameSearchesTheNameInFrontOfTheParenthesis) {
  PutGameList(
      "Fo\r\none\r\n\r\n\r\nFoo\r\ntwo\r\n\r\n\r\n(Bar)\r\nthree\r\n\r\n\r\nBaz (Set 1) (JP)\r\n");
  const struct {
    std::string_view name, title;
  } kNames[] = {
      {"Foo (JP)", "Foo"},
      {"Foo(JP)", "Fo"},  // one character goes, whatever it is
      {"(Bar)", "(Bar)"},
      {"Baz (Set 1) (JP)", "Baz (Set 1) (JP)"},
      {"foo", "Game info not found in gamelist.txt!"},
  };
  for (const auto& name : kNames) {
    const StringList items = Text(Emulator::kMame, name.name);
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.front(), name.title) << name.name;
  }
}

TEST_F(GameListText, MameAddsATitleWholeHoweverLong) {
  const std::string title = "Game " + std::string(60, 't');
  PutGameList(title);
  EXPECT_THAT(Text(Emulator::kMame, "Game"), ElementsAre(title));
}

TEST_F(GameListText, CallusShowsTheLinesBehindTheTitle) {
  const std::string longer(60, 'l');
  PutGameList("\r\n1. Strider (US)\r\nfirst\r\n\r\nhidden\r\n" + longer +
              "\r\n\r\n\r\nnext block\r\n");
  EXPECT_THAT(Text(Emulator::kCallus, "Strider (US)"),
              ElementsAre("first", "", "", longer, "", ""));
  EXPECT_THAT(Text(Emulator::kCallus, "Strider (JP)"),
              ElementsAre("Game info not found in gamelist.txt!"));
}

TEST_F(GameListText, ABlockEndsWithTheFile) {
  PutGameList("Strider\r\nfirst\r\n");
  EXPECT_THAT(Text(Emulator::kMame, "Strider"), ElementsAre("Strider", "first"));
  EXPECT_THAT(Text(Emulator::kCallus, "Strider"), ElementsAre("first"));
  PutGameList("Strider\r\nfirst\r\n\r\n");
  EXPECT_THAT(Text(Emulator::kMame, "Strider"), ElementsAre("Strider", "first", ""));
  EXPECT_THAT(Text(Emulator::kCallus, "Strider"), ElementsAre("first", "", ""));
}

TEST_F(GameListText, AMissingFileIsSaid) {
  EXPECT_THAT(Text(Emulator::kMame, "A"), ElementsAre("gamelist.txt not found in Mame directory!"));
  EXPECT_THAT(Text(Emulator::kCallus, "A"),
              ElementsAre("Gamelist.txt not found", "in Callus directory!"));
  PutGameList("A\r\n");
  EXPECT_THAT(Text(Emulator::kRaine, "A"), IsEmpty());
}

TEST(HelpKeys, StandUnderTheirHeadings) {
  const struct {
    Emulator emulator;
    std::size_t rows;
    StringList headings;
  } kPages[] = {
      {Emulator::kMame, 11, {"Hot-keys:"}},
      {Emulator::kCallus, 19, {}},
      {Emulator::kRaine,
       34,
       {"General in game keys:", "Keys in Pause mode:", "Default Player keys:"}},
      {Emulator::kSystem16, 18, {"Other keys:"}},
      {Emulator::kM72, 19, {"Other keys:"}},
  };
  for (const auto& page : kPages) {
    StringList headings;
    for (const KeyRow& row : HelpKeys(page.emulator)) {
      if (row.key.empty()) headings.emplace_back(row.text);
    }
    EXPECT_EQ(HelpKeys(page.emulator).size(), page.rows);
    EXPECT_EQ(headings, page.headings);
  }
}

TEST(System16Help, HoldsABlockForEachOf19Games) {
  const StringList items = System16Help();
  EXPECT_THAT(StringList(items.begin(), items.begin() + 7),
              ElementsAre("Shinobi", "-------", "CTRL - Attack", "ALT - Jump", "SPACE - Magic", "",
                          "Altered Beast"));
  EXPECT_THAT(StringList(items.end() - 6, items.end()),
              ElementsAre("Aurail", "------", "CTRL - SHIELD", "ALT - SHOT", "SPACE - TURN", ""));
  EXPECT_EQ(std::count(items.begin(), items.end(), ""), 19);
}

}  // namespace
}  // namespace zarvo
