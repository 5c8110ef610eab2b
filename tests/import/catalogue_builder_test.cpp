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
            game.substr(equals + 1) + "</description></machine>\n";
  }
  return list + "</mame>";
}

std::vector<std::string> NamesOf(const Imported& imported) {
  std::vector<std::string> names;
  for (const std::string& line : imported.games) names.push_back(line.substr(0, line.find(';')));
  return names;
}

TEST(CatalogueBuilder, SortsAsTheGameListDoesAndNoTwoGamesShareAName) {
  EXPECT_THAT(NamesOf(ImportText(ListOf({"a=Zaxxon", "b=bagman", "c=Bag", "d=[x]", "e=Bag (x)",
                                         "f=\xC3\x89lan", "g=Ez", "h=1942"}))),
              ElementsAre("1942", "[x]", "Bag", "Bag (x)", "bagman", "Ez", "Zaxxon", "\xC9lan"));
  const auto imported = ImportText(ListOf(
      {"one=Tetris", "two=TETRIS", "three=Tetris", "four=Tetris (three)", "five=#*", "five5="}));
  EXPECT_THAT(NamesOf(imported), ElementsAre("five", "five5", "Tetris", "Tetris (three)",
                                             "Tetris (three) (four)", "TETRIS (two)"));
  EXPECT_EQ(imported.summary.renamed, 3);
}

TEST(CatalogueBuilder, TakesWhatIsAskedFor) {
  const std::tuple<std::vector<std::string>, LeftOut, int, const char*> cases[] = {
      {{"--years=1981-1989,1996"}, LeftOut::kYear, 4, "c64 mslug mslugb "},
      {{"--years=????"}, LeftOut::kYear, 5, "empty pacman "},
      {{"--arcade"}, LeftOut::kNotArcade, 1, "empty mslug mslugb pacman puckman "},
      {{"--working"}, LeftOut::kNotWorking, 1, "c64 empty mslug mslugb puckman "},
      {{"--driver=x", "--driver=c64.cpp"}, LeftOut::kDriver, 4, "c64 mslug mslugb "},
      // Makers as they are spelled anew; a clone has the genre of its parent.
      {{"--maker=Namco", "--maker=bootleg"}, LeftOut::kMaker, 4, "mslugb pacman puckman "},
      {{"--with-genre"}, LeftOut::kNoGenre, 3, "mslugb pacman puckman "},
  };
  for (const auto& [words, reason, left, expected] : cases) {
    ImportOptions options = ParseOptions(words).value();
    options.maker_names = {{"Namco (Midway license)", "Namco"}};
    options.genres = {{"puckman", "Labyrinth"}, {"mslugb", "Action"}};
    const Imported imported = ImportText(TestList("listxml.xml"), options);
    std::string roms;
    for (const std::string& game : imported.games) {
      const std::size_t begin = game.find(';') + 1;
      roms += game.substr(begin, game.find(';', begin) - begin) + " ";
    }
    EXPECT_EQ(roms, expected);
    EXPECT_EQ(imported.Left(reason), left) << expected;
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
  EXPECT_EQ(imported.header[0] + imported.header[7] + imported.header[16], "*My name*2*Nobody");
}

TEST(CatalogueBuilder, ClonesKeepAParentThatIsntThere) {
  const Imported imported = ImportText(
      "<mame><machine name='a' cloneof='b'/><machine name='c' cloneof='c'/>"
      "<machine name='d' cloneof='../x'/><machine name='e' cloneof='neogeo'/></mame>");
  EXPECT_THAT(imported.games, ElementsAre(StartsWith("a;a;C;b;"), StartsWith("c;c;O;-;"),
                                          StartsWith("d;d;O;-;"), StartsWith("e;e;C;neogeo;")));
  EXPECT_EQ(imported.summary.orphans, 1);
}

TEST(CatalogueBuilder, BoundsGamesLinesAndMemory) {
  std::vector<std::string> many;
  for (int i = 0; i < 32770; ++i) many.push_back("g" + std::to_string(i) + "=");
  const Imported full = ImportText(ListOf(many));
  EXPECT_EQ(full.games.size(), 32767U);
  EXPECT_EQ(full.header[7], "*32767");
  EXPECT_EQ(full.Left(LeftOut::kFull), 3);

  many.resize(1300);
  for (std::string& game : many) game += std::string(30000, 'x');
  EXPECT_THAT(
      ImportText(ListOf(many)).error,
      testing::MatchesRegex("line 1[01][0-9]+, column [0-9]+: the texts of the list take more.*"));

  const Imported fits = ImportText(ListOf({"a=" + std::string(32000, 'x')}));
  ASSERT_EQ(fits.games.size(), 1U);
  EXPECT_LE(fits.games[0].size(), 32767U);
  const Imported longer = ImportText(ListOf({"a=" + std::string(200000, 'x')}));
  EXPECT_EQ(longer.error, "");
  EXPECT_EQ(longer.Left(LeftOut::kLongLine), 1);
}

}  // namespace
}  // namespace zarvo
