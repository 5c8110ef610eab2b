#include "core/catalogue/game_details.h"

#include <array>

#include "core/catalogue/catalogue_fixture.h"

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
  std::string Text(Emulator emulator, std::string_view file, std::string_view name) {
    std::string bytes;
    for (const char c : file) bytes += c == '/' ? "\r\n" : std::string(1, c);
    files_.Put(R"(C:\Emu\GAMELIST.TXT)", bytes);
    return Read(emulator, name);
  }
  std::string Read(Emulator emulator, std::string_view name) {
    std::string text;
    for (const auto& item : zarvo::GameListText(files_, ProfileOf(emulator), R"(C:\Emu)", name)) {
      text += "[" + item + "]";
    }
    return text;
  }
};

TEST_F(GameListText, ShowsTheBlockOfTheGame) {
  EXPECT_EQ(Read(Emulator::kMame, "A"), "[gamelist.txt not found in Mame directory!]");
  EXPECT_EQ(Read(Emulator::kCallus, "A"), "[Gamelist.txt not found][in Callus directory!]");
  const std::string f(52, 'f');
  const std::string l(52, 'l');
  const std::string blocks = "About R-Type///R-Type II/2nd///R-Type/" + f;
  const std::string titles = "Fo/one///Foo/two///(Bar)/three///Baz (Set 1) (JP)/";
  const std::string callus = "/1. Strider (US)/first//hidden/" + f + "x///next block/";
  const std::string none = "[Game info not found in gamelist.txt!]";
  const struct {
    Emulator emulator;
    std::string file, name, items;
  } kCases[] = {
      {Emulator::kMame, blocks, "R-Type II", "[R-Type II][2nd][][]"},
      {Emulator::kMame, blocks, "R-Type (JP)", "[R-Type II][2nd][][]"},  // the first that begins so
      {Emulator::kMame, "R-Type/" + f + "/" + f + "x//" + l + l + "l///next block/", "R-Type",
       "[R-Type][" + f + "][" + f + "][x][][" + l + "][" + l + "l][][]"},
      {Emulator::kMame, titles, "Foo (JP)", "[Foo][two][][]"},
      {Emulator::kMame, titles, "Foo(JP)", "[Fo][one][][]"},  // one character goes, whatever it is
      {Emulator::kMame, titles, "(Bar)", "[(Bar)][three][][]"},
      {Emulator::kMame, titles, "Baz (Set 1) (JP)", "[Baz (Set 1) (JP)]"},
      {Emulator::kMame, titles, "foo", none},
      {Emulator::kMame, "Game " + f + f, "Game", "[Game " + f + f + "]"},  // a title stays whole
      {Emulator::kMame, "Strider/first/", "Strider", "[Strider][first]"},
      {Emulator::kMame, "Strider/first//", "Strider", "[Strider][first][]"},
      {Emulator::kCallus, callus, "Strider (US)", "[first][][][" + f + "x][][]"},
      {Emulator::kCallus, callus, "Strider (JP)", none},
      {Emulator::kCallus, "Strider/first/", "Strider", "[first]"},
      {Emulator::kCallus, "Strider/first//", "Strider", "[first][][]"},
      {Emulator::kRaine, "A/", "A", ""},
  };
  for (const auto& [emulator, file, name, items] : kCases) {
    EXPECT_EQ(Text(emulator, file, name), items) << name;
  }
}

TEST(HelpKeys, StandUnderTheirHeadings) {
  constexpr std::array<std::string_view, kEmulatorCount> kPages = {
      "11 Hot-keys:", "19", "34 General in game keys: Keys in Pause mode: Default Player keys:",
      "18 Other keys:", "19 Other keys:"};
  for (const EmulatorProfile& profile : Profiles()) {
    const auto rows = HelpKeys(profile.emulator);
    std::string page = std::to_string(rows.size());
    for (const KeyRow& row : rows) {
      if (row.key.empty()) page.append(" ").append(row.text);
    }
    EXPECT_EQ(page, kPages[static_cast<std::size_t>(profile.emulator)]);
  }
}

TEST(System16Help, HoldsABlockForEachOf19Games) {
  std::string text;
  for (const std::string& item : System16Help()) text += item + "|";
  EXPECT_THAT(text, testing::StartsWith("Shinobi|-------|CTRL - Attack|ALT - Jump|SPACE - Magic||"
                                        "Altered Beast|"));
  EXPECT_THAT(text, testing::EndsWith("|Aurail|------|CTRL - SHIELD|ALT - SHOT|SPACE - TURN||"));
  const StringList items = System16Help();
  EXPECT_EQ(std::count(items.begin(), items.end(), ""), 19);
}

}  // namespace
}  // namespace zarvo
