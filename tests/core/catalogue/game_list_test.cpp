#include "core/catalogue/catalogue.h"
#include "core/catalogue/catalogue_fixture.h"
#include "core/platform/in_brief.h"
#include "fakes/emulators.h"

namespace zarvo {
namespace {

// Lists are written with a comma behind each name.
class GameList : public CatalogueTest {
 protected:
  std::string Filled(GameState state, FillResult result = FillResult::kFilled) {
    EXPECT_EQ(Catalogue(files_, folders_, mame_).Fill(state, list_), result);
    return Names(list_);
  }
  std::string Filtered(ValueFilter filter, std::string_view value) {
    Catalogue(files_, folders_, mame_).Filter(filter, value, list_);
    return Names(list_);
  }
  void PutList(std::string_view text) {
    list_.Clear();
    for (std::size_t end = 0; (end = text.find(',')) != text.npos; text.remove_prefix(end + 1)) {
      list_.Append(text.substr(0, end));
    }
  }

  NameList list_;
};

TEST_F(GameList, EveryStateHoldsItsGames) {
  PutData(Header() +                      //
          "alpha;a;O;-;\r\n"              //
          "Beta;b;C;alpha;\r\n"           //
          "Gamma;g;C;neogeo;\r\n"         //
          "delta;d;O;neogeo;\r\n"         //
          "# Comment;c;O;-;\r\n"          //
          "Epsilon;e;Clone;neogeos;\r\n"  // whole fields aren't looked at, only their beginnings
          "Zeta;z;Original;NEOGEO;\r\n"   //
          "Eta;e;C;neo;geo;\r\n"          // "neo;ge" isn't "neogeo"
          "Theta;t;X;neogeo\r\n"          // a field that isn't closed
          "Iota;i;;;\r\n");
  const std::pair<GameState, const char*> states[] = {
      {GameState::kAllSupported, "alpha,Beta,delta,Epsilon,Eta,Gamma,Iota,Theta,Zeta,"},
      {GameState::kOriginals, "alpha,delta,Zeta,"},
      {GameState::kClones, "Beta,Eta,"},
      {GameState::kNoNeoGeo, "alpha,Beta,Eta,Iota,Zeta,"},
      {GameState::kNeoGeo, "delta,Epsilon,Gamma,Theta,"},
  };
  for (const auto& [state, names] : states) EXPECT_EQ(Filled(state), names);
}

TEST_F(GameList, EndsAtALineThatCantBeCut) {
  PutData("A;a;O;-;\r\nNo semicolon\r\nB;b;O;-;\r\n");
  EXPECT_EQ(Filled(GameState::kAllSupported), "A,");
  PutData("A;a;O;-;\r\nShort;b\r\nB;b;O;-;\r\n");
  EXPECT_EQ(Filled(GameState::kAllSupported), "A,B,Short,");
  EXPECT_EQ(Filled(GameState::kOriginals), "A,");
  EXPECT_EQ(Filled(GameState::kNoNeoGeo), "A,");
}

TEST_F(GameList, WithoutTheFileOfItsStateTheListStaysAsItWas) {
  PutList("Old,");
  EXPECT_EQ(Filled(GameState::kNeoGeo, FillResult::kNoDataFile), "Old,");
  EXPECT_EQ(Filled(GameState::kAvailable, FillResult::kNoScanFile), "Old,");
  files_.Put(R"(C:\Zarvo\cfg\M72.scn)", "\"A;N\"\r\n");
  EXPECT_EQ(Catalogue(files_, folders_, kM72).Fill(GameState::kMissing, list_),
            FillResult::kNoScanFile);
  EXPECT_EQ(Names(list_), "Old,");
  EXPECT_EQ(Filled(GameState::kAllSupported, FillResult::kNoDataFile), "");
  PutData(Header());
  PutList("Old,");
  EXPECT_EQ(Filled(GameState::kClones), "");
}

TEST_F(GameList, AvailableAndMissingReadTheScanFileAlone) {
  PutScan(Bytes("'Zeta;Y'|'Beta;N'|'alpha;Y'\n''||'|'No mark'|'Lower;y'|") +
          "'Odd;more;Y'\r\n'Yie Ar;Y;N'\r\n\"Unended;N");
  EXPECT_EQ(Filled(GameState::kAvailable), "alpha,Odd,Zeta,");
  EXPECT_EQ(Filled(GameState::kMissing), "Beta,Yie Ar,") << "the mark is the last character";
}

TEST_F(GameList, FilteringKeepsTheGamesWithTheValue) {
  PutData(Header() + Record("alpha;a;O;-;Action;Sega;1988") +
          Record("Beta;b;O;-;Actions;Sega + Co;1989") + Record("Gamma;g;O;-;Action;SNK;????") +
          Record("Omega;o;O;-;;;"));
  const std::tuple<ValueFilter, std::string_view, const char*> steps[] = {
      {ValueFilter::kGenre, "Action", "alpha,Gamma,"},
      {ValueFilter::kGenre, "action", ""},
      {ValueFilter::kGenre, "", "Omega,"},
      {ValueFilter::kManufactor, "Sega", "alpha,"},
      {ValueFilter::kYear, "????", "Gamma,"},
      {ValueFilter::kYear, "1999", ""},
  };
  for (const auto& [filter, value, names] : steps) {
    PutList("alpha,Beta,Gamma,Omega,");
    EXPECT_EQ(Filtered(filter, value), names) << value;
  }
  EXPECT_FALSE(files_.Has(R"(C:\Zarvo\Data\tofilter.tmp)"));
}

TEST_F(GameList, HoldsAndFiltersAsManyGamesAsAListCan) {
  std::string games;
  for (int game = 10000; game < 50000; ++game) {
    games += Record("Game " + std::to_string(game) + ";g;O;-;Action;;");
  }
  PutData(games);
  Filled(GameState::kAllSupported);
  EXPECT_EQ(list_.Count(), 32767);
  Filtered(ValueFilter::kGenre, "Action");
  ASSERT_EQ(list_.Count(), 32767);
  EXPECT_EQ(list_.At(32766), "Game 42766");
}

TEST_F(GameList, TheNeutralItemReadsAndChangesNothing) {
  PutList("Not in the file,");
  Filtered(ValueFilter::kGenre, "- Genre");
  Filtered(ValueFilter::kManufactor, "- Manufactor");
  EXPECT_EQ(Filtered(ValueFilter::kYear, "- Year"), "Not in the file,");
  EXPECT_THAT(files_.opened, testing::IsEmpty());
  EXPECT_THAT(files_.written, testing::IsEmpty());
}

TEST_F(GameList, FilteringWalksForwardAloneAndComparesOnlyTheLengthOfTheName) {
  PutData(Record("Ace;1;O;-;Puzzle;x;1980") + "# Bat;\r\n" + Record("Bat II;2;O;-;Action;x;1980") +
          Record("Bat;3;O;-;Puzzle;x;1980") + Record("Cat;4;O;-;Action;x;1980") +
          Record("Dog;5;O;-;Action;x;1980") + "Eel\r\n" + Record("Fox;7;O;-;Action;x;1980") +
          Record("Gnu Z;8;O;-;Action;x;1980") + Record("Gnu A;9;O;-;Action;x;1980") +
          Record("\"Quoted\";q;O;-;Action;x;1980") +
          Record("Caf\xE9 \x93Z\x94;c;O;-;Action;x;1980"));
  const std::pair<const char*, const char*> walks[] = {
      // The longer record that comes first answers, and its own name goes back.
      {"Bat,Cat,", "Bat II,Cat,"},
      // A name that the file doesn't know takes all later names with it.
      {"Bat,Bull,Cat,Dog,", "Bat II,"},
      {"Cat,Ace,Dog,", "Cat,"},        // a name whose record lies behind is lost, and all after it
      {"Dog,Dog,Fox,", "Dog,"},        // twice the same name needs two records
      {"Eel,Fox,", "Fox,"},            // a record without the field passes no filter
      {"Gnu,Gnu A,", "Gnu A,Gnu Z,"},  // what the file has unsorted comes back sorted
      {"cat,Dog,", ""},                // case matters
      {"\"Quoted\",Caf\xE9 \x93Z\x94,", "\"Quoted\",Caf\xE9 \x93Z\x94,"},
  };
  for (const auto& [list, kept] : walks) {
    PutList(list);
    EXPECT_EQ(Filtered(ValueFilter::kGenre, "Action"), kept) << list;
    EXPECT_EQ(files_.written.back(), R"(c:\zarvo\data\tofilter.tmp)");
  }
}

TEST_F(GameList, FilteringWithAFileThatCantBeUsedLeavesTheListAsItWas) {
  PutList("A,B,");
  const auto filtered = [this] { return Filtered(ValueFilter::kGenre, "Action"); };
  EXPECT_EQ(filtered(), "A,B,") << "no data file";
  PutData(Record("A;a;O;-;Action;x;1980"));
  files_.fail_writes = true;
  EXPECT_EQ(filtered(), "A,B,") << "no work file";
  files_.fail_writes = false;
  files_.breaks_off = "Mame.dat";
  EXPECT_EQ(filtered(), "A,B,") << "a data file that breaks off";
  files_.breaks_off = "tofilter.tmp";
  EXPECT_EQ(filtered(), "A,B,") << "a work file that breaks off";
  EXPECT_FALSE(files_.Has(R"(C:\Zarvo\Data\tofilter.tmp)"));
}

}  // namespace
}  // namespace zarvo
