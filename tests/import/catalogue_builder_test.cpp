#include "import/catalogue_builder.h"

#include <gmock/gmock.h>

#include "import/import_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

// A list of games with these names, "rom=Name" each.
std::string ListOf(const std::vector<std::string>& games) {
  std::string list = "<mame>";
  for (const std::string& game : games) {
    const std::size_t equals = game.find('=');
    list += "<machine name='" + game.substr(0, equals) + "'><description>" +
            game.substr(equals + 1) + "</description></machine>";
  }
  return list + "</mame>";
}

std::vector<std::string> NamesOf(const Imported& imported) {
  std::vector<std::string> names;
  for (const std::string& line : imported.games) names.push_back(line.substr(0, line.find(';')));
  return names;
}

TEST(CatalogueBuilder, SortsAsTheGameListDoes) {
  const auto imported = ImportText(ListOf(
      {"a=Zaxxon", "b=bagman", "c=Bag", "d=[x]", "e=Bag (x)", "f=\xC3\x89lan", "g=Ez", "h=1942"}));
  EXPECT_THAT(NamesOf(imported),
              ElementsAre("1942", "[x]", "Bag", "Bag (x)", "bagman", "Ez", "Zaxxon", "\xC9lan"));
}

TEST(CatalogueBuilder, NoTwoGamesShareAName) {
  const auto imported = ImportText(ListOf(
      {"one=Tetris", "two=TETRIS", "three=Tetris", "four=Tetris (three)", "five=#*", "five5="}));
  EXPECT_THAT(NamesOf(imported), ElementsAre("five", "five5", "Tetris", "Tetris (three)",
                                             "Tetris (three) (four)", "TETRIS (two)"));
  EXPECT_EQ(imported.summary.renamed, 3);
}

TEST(CatalogueBuilder, TakesWhatIsAskedFor) {
  struct Case {
    const char* what;
    void (*ask)(ImportOptions&);
    std::vector<std::string> names;
    LeftOut reason;
    int left;
  };
  const Case cases[] = {
      {"years",
       [](ImportOptions& o) {
         o.years = {{1981, 1989}, {1996, 1996}};
       },
       {"Computer", "Metal Slug", "Metal Slug (bootleg)"},
       LeftOut::kYear,
       4},
      {"unknown years",
       [](ImportOptions& o) { o.unknown_years = true; },
       {"empty", "Pac-Man, <Midway> & Co"},
       LeftOut::kYear,
       5},
      {"arcade",
       [](ImportOptions& o) { o.arcade = true; },
       {"empty", "Metal Slug", "Metal Slug (bootleg)", "Pac-Man, <Midway> & Co",
        "Puck 'Man' (Japan set 1)"},
       LeftOut::kNotArcade,
       1},
      {"working",
       [](ImportOptions& o) { o.working = true; },
       {"Computer", "empty", "Metal Slug", "Metal Slug (bootleg)", "Puck 'Man' (Japan set 1)"},
       LeftOut::kNotWorking,
       1},
      {"drivers",
       [](ImportOptions& o) {
         o.drivers = {"x", "c64.cpp"};
       },
       {"Computer", "Metal Slug", "Metal Slug (bootleg)"},
       LeftOut::kDriver,
       4},
      {"makers, spelled anew",
       [](ImportOptions& o) {
         o.makers = {"Namco", "bootleg"};
         o.maker_names = {{"Namco (Midway license)", "Namco"}};
       },
       {"Metal Slug (bootleg)", "Pac-Man, <Midway> & Co", "Puck 'Man' (Japan set 1)"},
       LeftOut::kMaker,
       4},
      {"genres, also those of the parents",
       [](ImportOptions& o) {
         o.with_genre = true;
         o.genres = {{"puckman", "Labyrinth"}, {"mslugb", "Action"}};
       },
       {"Metal Slug (bootleg)", "Pac-Man, <Midway> & Co", "Puck 'Man' (Japan set 1)"},
       LeftOut::kNoGenre,
       3},
  };
  for (const Case& each : cases) {
    ImportOptions options;
    each.ask(options);
    const Imported imported = ImportText(TestList("listxml.xml"), options);
    EXPECT_EQ(NamesOf(imported), each.names) << each.what;
    EXPECT_EQ(imported.Left(each.reason), each.left) << each.what;
  }
}

TEST(CatalogueBuilder, NamesGenresAndHeaderCanBeChosen) {
  ImportOptions options;
  options.names = {{"a", "Chosen; \"name\""}};
  options.genres = {{"a", "Action"}};
  options.default_genre = "Space";
  options.header[0] = "My name";
  options.header[16] = "Nobody";
  const Imported imported = ImportText(ListOf({"a=A", "b=B"}), options);
  EXPECT_THAT(imported.games, ElementsAre(StartsWith("B;b;O;-;Space;"),
                                          StartsWith("Chosen, 'name';a;O;-;Action;")));
  EXPECT_EQ(imported.header[0], "*My name");
  EXPECT_EQ(imported.header[7], "*2");
  EXPECT_EQ(imported.header[16], "*Nobody");
}

TEST(CatalogueBuilder, ClonesKeepAParentThatIsntThere) {
  const Imported imported = ImportText(
      "<mame><machine name='a' cloneof='b'/><machine name='c' cloneof='c'/>"
      "<machine name='d' cloneof='../x'/><machine name='e' cloneof='neogeo'/></mame>");
  EXPECT_THAT(imported.games, ElementsAre(StartsWith("a;a;C;b;"), StartsWith("c;c;O;-;"),
                                          StartsWith("d;d;O;-;"), StartsWith("e;e;C;neogeo;")));
  EXPECT_EQ(imported.summary.orphans, 1);
}

TEST(CatalogueBuilder, StopsAtWhatADataFileHolds) {
  std::string list = "<mame>";
  for (int i = 0; i < 32770; ++i) list += "<machine name='g" + std::to_string(i) + "'/>";
  const Imported imported = ImportText(list + "</mame>");
  EXPECT_EQ(imported.games.size(), 32767U);
  EXPECT_EQ(imported.header[7], "*32767");
  EXPECT_EQ(imported.Left(LeftOut::kFull), 3);
}

TEST(CatalogueBuilder, BoundsTheMemoryOfAHugeList) {
  std::string list = "<mame>";
  const std::string text(30000, 'x');
  for (int i = 0; i < 1300; ++i) {
    list += "<machine name='g" + std::to_string(i) + "'><description>" + text +
            "</description></machine>\n";
  }
  EXPECT_THAT(ImportText(list + "</mame>").error,
              testing::MatchesRegex("line 1[01][0-9]+: the texts of the list take more.*"));
}

}  // namespace
}  // namespace zarvo
