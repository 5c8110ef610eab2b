#include "core/catalogue/game_details.h"

#include <array>

#include "core/catalogue/catalogue_fixture.h"
#include "fakes/emulators.h"

namespace zarvo {
namespace {

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
  std::string shown;
  for (const DetailRow& row : DetailRows()) {
    shown += DetailText(original, row.field).value_or("?") + "|";
  }
  EXPECT_EQ(shown, "R-Type (US)|rtypeu.zip|YES|-|Shooter|" + std::string(16, '|'));
  EXPECT_EQ(DetailText(RecordOf({"A", "a", "C"}), Field::kOC), "NO");
  EXPECT_EQ(DetailText(RecordOf({"A", "a", "Original"}), Field::kOC), std::nullopt);
  EXPECT_EQ(DetailText(RecordOf({"A", "a", ""}), Field::kOC), std::nullopt);
  EXPECT_EQ(DetailText(RecordOf({"A"}), Field::kRomFile), "");
  for (const char* sound : {"Yes(1)", "Yes", "Yes(1) "}) {
    EXPECT_EQ(SamplesText(RecordOf({"A", "a", "O", "-", "G", "M", "Y", "P", "C", sound})),
              std::string_view(sound) == "Yes(1)" ? "Available" : "Not needed");
  }
  EXPECT_EQ(SamplesText(RecordOf({"A"})), "Not needed");
  for (std::size_t place = 0; place < kFieldCount; ++place) {
    EXPECT_EQ(static_cast<std::size_t>(DetailRows()[place].field), place);
  }
}

class GameListText : public CatalogueTest {
 protected:
  // The items that the emulator shows, in one line; "/" in the file is a line end.
  std::string Text(const Emulator& emulator, std::string_view file, std::string_view name) {
    std::string bytes;
    for (const char c : file) bytes += c == '/' ? "\r\n" : std::string(1, c);
    files_.Put(R"(C:\Emu\GAMELIST.TXT)", bytes);
    return Read(emulator, name);
  }
  std::string Read(const Emulator& emulator, std::string_view name) {
    std::string text;
    for (const auto& item : zarvo::GameListText(files_, emulator, R"(C:\Emu)", name)) {
      text += "[" + item + "]";
    }
    return text;
  }
};

TEST_F(GameListText, ShowsTheBlockOfTheGame) {
  EXPECT_EQ(Read(kMame, "A"), "[gamelist.txt not found in Mame directory!]");
  EXPECT_EQ(Read(kCallus, "A"), "[Gamelist.txt not found][in Callus directory!]");
  const std::string f(52, 'f');
  const std::string l(52, 'l');
  const std::string blocks = "About R-Type///R-Type II/2nd///R-Type/" + f;
  const std::string titles = "Fo/one///Foo/two///(Bar)/three///Baz (Set 1) (JP)/";
  const std::string callus = "/1. Strider (US)/first//hidden/" + f + "x///next block/";
  const std::string none = "[Game info not found in gamelist.txt!]";
  const struct {
    const Emulator& emulator;
    std::string file, name, items;
  } kCases[] = {
      {kMame, blocks, "R-Type II", "[R-Type II][2nd][][]"},
      {kMame, blocks, "R-Type (JP)", "[R-Type II][2nd][][]"},  // the first that begins so
      {kMame, "R-Type/" + f + "/" + f + "x//" + l + l + "l///next block/", "R-Type",
       "[R-Type][" + f + "][" + f + "][x][][" + l + "][" + l + "l][][]"},
      {kMame, titles, "Foo (JP)", "[Foo][two][][]"},
      {kMame, titles, "Foo(JP)", "[Fo][one][][]"},  // one character goes, whatever it is
      {kMame, titles, "(Bar)", "[(Bar)][three][][]"},
      {kMame, titles, "Baz (Set 1) (JP)", "[Baz (Set 1) (JP)]"},
      {kMame, titles, "foo", none},
      {kMame, "Game " + f + f, "Game", "[Game " + f + f + "]"},  // a title stays whole
      {kMame, "Strider/first/", "Strider", "[Strider][first]"},
      {kMame, "Strider/first//", "Strider", "[Strider][first][]"},
      {kCallus, callus, "Strider (US)", "[first][][][" + f + "x][][]"},
      {kCallus, callus, "Strider (JP)", none},
      {kCallus, "Strider/first/", "Strider", "[first]"},
      {kCallus, "Strider/first//", "Strider", "[first][][]"},
      {kRaine, "A/", "A", ""},
  };
  for (const auto& [emulator, file, name, items] : kCases) {
    EXPECT_EQ(Text(emulator, file, name), items) << name;
  }
}

TEST(HelpKeys, StandUnderTheirHeadings) {
  const struct {
    const Emulator& emulator;
    std::string_view page;
  } pages[] = {{kMame, "11 Hot-keys:"},
               {kCallus, "19"},
               {kRaine, "34 General in game keys: Keys in Pause mode: Default Player keys:"},
               {kSystem16, "18 Other keys:"},
               {kM72, "19 Other keys:"}};
  for (const auto& [emulator, expected] : pages) {
    const auto rows = emulator.help.keys;
    std::string page = std::to_string(rows.size());
    for (const KeyRow& row : rows) {
      if (row.key.empty()) page.append(" ").append(row.text);
    }
    EXPECT_EQ(page, expected);
  }
}

TEST(System16Help, HoldsABlockForEachOf19Games) {
  std::string text;
  for (const std::string& item : kSystem16.help.fixed_list()) text += item + "|";
  EXPECT_THAT(text, testing::StartsWith("Shinobi|-------|CTRL - Attack|ALT - Jump|SPACE - Magic||"
                                        "Altered Beast|"));
  EXPECT_THAT(text, testing::EndsWith("|Aurail|------|CTRL - SHIELD|ALT - SHOT|SPACE - TURN||"));
  const StringList items = kSystem16.help.fixed_list();
  EXPECT_EQ(std::count(items.begin(), items.end(), ""), 19);
}

}  // namespace
}  // namespace zarvo
