#include "import/list_reader.h"

#include <gmock/gmock.h>

#include "import/import_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

// The header's line, then a line for each game, with "8x" for eight times "n/a;" at its end.
std::string TextOf(const Imported& imported) {
  const std::string_view none = "n/a;n/a;n/a;n/a;n/a;n/a;n/a;n/a;";
  std::string text = imported.error;
  for (const std::string& line : imported.header) text += line;
  for (std::string game : imported.games) {
    if (game.ends_with(none)) game.replace(game.size() - none.size(), none.size(), "8x");
    text += "\n" + game;
  }
  return text;
}

TEST(ListReader, ReadsEveryKindOfListInPiecesOfAnySize) {
  const std::pair<const char*, const char*> lists[] = {
      {"listxml.xml",
       "*M.A.M.E.*Arcade*0.251*-*Zilog Z80*1 and 4 others"
       "*Raster and vector*6*3*2*3*1980*1996*3*<unknown> (1)*-*-"
       "\nComputer;c64;O;-;n/a;Maker;1982;n/a;n/a;n/a;n/a;n/a;c64.cpp;8x"
       "\nempty;empty;O;-;n/a;<unknown>;????;n/a;n/a;n/a;n/a;n/a;n/a;8x"
       "\nMetal Slug;mslug;C;neogeo;n/a;Nazca;1996;Yes;Yes;Yes;n/a;No;x.cpp;8x"
       "\nMetal Slug (bootleg);mslugb;C;neogeo;n/a;bootleg;1996;Partial;Yes;Yes;n/a;No;x.cpp;8x"
       "\nPac-Man, <Midway> & Co;pacman;C;puckman;n/a;Namco (Midway license);????;No;Near;"
       "No;n/a;No;pacman.cpp;n/a;n/a;n/a;n/a;1;2;3;4;"
       "\nPuck 'Man' (Japan set 1);puckman;O;-;n/a;Namco;1980;Yes;Yes;Yes(1);n/a;Yes;"
       "pacman.cpp;Zilog Z80;[Zilog Z80];n/a;n/a;Namco;n/a;n/a;n/a;"},
      {"listinfo.txt",
       "*-*Arcade*-*-*M6802 and 1 other*Namco*Raster and vector*2*1*1*1*1979*1980*2*Atari (1)*-*-"
       "\nAst\xE9roids;asteroid;C;astdelux;n/a;Atari;1979;No;Yes;No;n/a;No;n/a;8x"
       "\nPuckMan (Japan set 1);puckman;O;-;n/a;Namco;1980;Yes;Near;Yes(1);n/a;"
       "Yes;n/a;Z80;[M6802];n/a;n/a;Namco;n/a;n/a;n/a;"},
      {"logiqx.xml",
       "*Raine*Arcade*0.64*2010-01-02*-*-*Raster*2*1*0*0*1987*1987*1*Taito (2)*-*-"
       "\nRastan (World);rastan;O;-;n/a;Taito;1987;n/a;n/a;n/a;n/a;n/a;n/a;8x"
       "\nRastan (World) (rastanu);rastanu;C;rastan;n/a;Taito;1987;n/a;n/a;n/a;n/a;n/a;n/a;8x"}};
  for (const auto& [name, expected] : lists) {
    for (const std::size_t piece : {1, 2, 7, 16, 61, 1 << 20}) {
      EXPECT_EQ(TextOf(ImportText(TestList(name), {}, piece)), expected) << piece;
    }
  }
}

// Newer lists tell it by the name of a chip's place, older ones by a word of their own.
TEST(ListReader, AProcessorForSoundStandsInBrackets) {
  for (const char* const how : {"tag='audiocpu'", "tag='soundcpu'", "soundonly='yes'"}) {
    const Imported imported =
        ImportText("<mame><game name='a'><description>A</description><chip type='cpu' name='Z80' " +
                   std::string(how) + "/></game></mame>");
    EXPECT_THAT(imported.games, ElementsAre(HasSubstr(";[Z80];"))) << how;
  }
}

TEST(ListReader, SaysWhereACutListEnds) {
  for (const std::string name : {"listxml.xml", "listinfo.txt", "logiqx.xml"}) {
    const bool blocks = name == "listinfo.txt";
    std::string list = TestList(name);
    list.erase(list.find_last_not_of('\n') + 1);
    for (std::size_t size = 0; size < list.size(); ++size) {
      const std::string read = list.substr(0, size);
      const std::string error = ImportText(read).error;
      const std::string text = read.substr(0, read.find_last_not_of(" \n") + 1);
      if (blocks && text.ends_with("\n)")) {  // a list of blocks is whole between two blocks
        EXPECT_EQ(error, "") << name << " " << size;
        continue;
      }
      const auto line = 1 + std::count(read.begin(), read.end(), '\n');
      ASSERT_THAT(error, MatchesRegex("line [0-9]+(, column [0-9]+)?: .+")) << name << " " << size;
      EXPECT_LE(std::stol(error.substr(5)), line) << name << " " << size;
      // In a block a text that doesn't end is told by where it begins.
      EXPECT_TRUE(blocks || std::stol(error.substr(5)) == line) << error;
    }
  }
}

TEST(ListReader, RefusesWhatIsNoList) {
  std::string deep = "<mame>";
  for (int i = 0; i < 70; ++i) deep += "<a>";
  const std::pair<std::string, std::string> cases[] = {
      {"", "line 1: the list is empty"},
      {"\n \n", "line 3: the list is empty"},
      {"\xEF\xBB\xBF", "line 1: the list is empty"},
      {"12 monkeys", "line 1: this is no list of games"},
      {"hello world", "line 1: \"(\" is expected"},
      {"game ( name a ) )", "line 1: a block such as"},
      {"game (\n description \"x\"\n)", "line 3: a game without a name"},
      {"emulator ( name x )", "line 1: there is no game"},
      {"<html>", "line 1, column 1: <html> is no list of games"},
      {"<mame></mame>", "line 1, column 14: there is no machine in the list"},
      {"<mame></mame>" + std::string(300000, '\n'),
       "line 300001, column 1: there is no machine in the list"},
      {"\n\n <mame>\n <machine/>\n</mame>", "line 4, column 2: a machine without a name"},
      {"<mame>\n<machine name='a'>\n</game>", "line 3, column 3: mismatched tag"},
      {"<mame><machine name='a'/></mame>\n<mame>", "line 2, column 1: junk after"},
      {"<mame>\n<machine name=a>", "line 2, column 15: not well-formed"},
      {"<mame>\n<machine name='&nbsp;'/>", "line 2, column 1: undefined entity"},
      {"<mame>\n<rom name=\"x/>\n<rom name=\"y\"/>", "line 3, column 1: not well-formed"},
      {"<mame>\n<machine name='a'><year>\xC0\xAF</year>", "line 2, column 25: not well-formed"},
      {"<?xml version='1.0' encoding='koi8-r'?><mame/>", "line 1, column 31: unknown encoding"},
      {"<!DOCTYPE mame [\n<!ENTITY a 'b'><!ENTITY c '&a;&a;'>]><mame>&c;</mame>",
       "line 2, column 12: the list declares an entity"},
      {"<!DOCTYPE mame [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>\n<mame>&a;</mame>",
       "line 1, column 55: the list declares an entity"},
      {"<!DOCTYPE mame SYSTEM 'mame.dtd'>\n<mame><machine name='a'>&b;</machine></mame>",
       "line 2, column 25: an entity that isn't known"},
      {deep, "line 1, column 196: too many elements within one another"},
      {"<mame>\n<machine name='" + std::string(2 << 20, 'x') + "'/></mame>",
       "line 2, column 1: a tag or text of more than 1 MiB"},
      {std::string("<") + '\0' + "m", "line 1, column 1: the list ends in the middle"},
      {"game ( name \"" + std::string(2 << 20, 'x') + "\" )", "line 1: a text of more than 1 MiB"},
  };
  for (const auto& [list, error] : cases) {
    EXPECT_THAT(ImportText(list).error, HasSubstr(error)) << list.substr(0, 60);
  }
}

TEST(ListReader, TakesLettersOfTheEncodingThatTheListTells) {
  const std::string rest =
      "?><mame><machine name='a'><description>\xC9t\xE9</description>"
      "</machine></mame>";
  for (const std::string encoding : {"windows-1252", "ISO-8859-1"}) {
    const Imported imported = ImportText("<?xml version='1.0' encoding='" + encoding + "'" + rest);
    EXPECT_EQ(imported.error, "");
    EXPECT_THAT(imported.games, ElementsAre(StartsWith("\xC9t\xE9;a;"))) << encoding;
  }
}

TEST(ListReader, SeesACabinetThatCanBeATable) {
  const auto cocktail = [](std::string_view value) {
    const Imported imported = ImportText("<mame><machine name='a'><dipswitch name=\"Cabinet\">" +
                                         std::string(value) + "</dipswitch></machine></mame>");
    EXPECT_EQ(imported.error, "");
    return imported.games.at(0).find(";n/a;Yes;n/a;") != std::string::npos;
  };
  EXPECT_TRUE(cocktail("<dipvalue name='Upright'/> <dipvalue name=\"Cocktail\" value='1'/>"));
  EXPECT_TRUE(cocktail("<a_setting_of_a_configuration name=\"Cocktail\"/>"));
  EXPECT_TRUE(cocktail("<dipvalue name=\"Cocktail\"></dipvalue>"));
  EXPECT_FALSE(cocktail("<dipvalue name=\"Cockpit\"/><dipvalue value=\"1\"/><a/>"));
}

}  // namespace
}  // namespace zarvo
