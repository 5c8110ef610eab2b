#include "catalogue/game_list.h"

#include "catalogue/catalogue_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using StringList = std::vector<std::string>;

class GameList : public CatalogueTest {
 protected:
  FillResult Fill(GameState state) { return FillList(files_, app_, mame_, state, list_); }
  void Filter(ValueFilter filter, std::string_view value) {
    FilterList(files_, app_, mame_, filter, value, list_);
  }
  StringList Listed() const { return Names(list_); }

  NameList list_;
};

class FillingAList : public GameList {};
class FilteringAList : public GameList {};

TEST_F(FillingAList, EveryStateHoldsItsGames) {
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
  const struct {
    GameState state;
    StringList names;
  } kStates[] = {
      {GameState::kAllSupported,
       {"alpha", "Beta", "delta", "Epsilon", "Eta", "Gamma", "Iota", "Theta", "Zeta"}},
      {GameState::kOriginals, {"alpha", "delta", "Zeta"}},
      {GameState::kClones, {"Beta", "Eta"}},
      {GameState::kNoNeoGeo, {"alpha", "Beta", "Eta", "Iota", "Zeta"}},
      {GameState::kNeoGeo, {"delta", "Epsilon", "Gamma", "Theta"}},
  };
  for (const auto& state : kStates) {
    EXPECT_EQ(Fill(state.state), FillResult::kFilled);
    EXPECT_EQ(Listed(), state.names);
  }
}

TEST_F(FillingAList, EndsAtALineThatCantBeCut) {
  PutData("A;a;O;-;\r\nNo semicolon\r\nB;b;O;-;\r\n");
  EXPECT_EQ(Fill(GameState::kAllSupported), FillResult::kFilled);
  EXPECT_THAT(Listed(), ElementsAre("A"));
  PutData("A;a;O;-;\r\nShort;b\r\nB;b;O;-;\r\n");
  EXPECT_EQ(Fill(GameState::kAllSupported), FillResult::kFilled);
  EXPECT_THAT(Listed(), ElementsAre("A", "B", "Short"));
  for (const GameState state : {GameState::kOriginals, GameState::kNoNeoGeo}) {
    EXPECT_EQ(Fill(state), FillResult::kFilled);
    EXPECT_THAT(Listed(), ElementsAre("A"));
  }
}

TEST_F(FillingAList, WithoutADataFileOnlyAllSupportedEmptiesTheList) {
  list_ = ListOf({"Old"});
  EXPECT_EQ(Fill(GameState::kNeoGeo), FillResult::kNoDataFile);
  EXPECT_THAT(Listed(), ElementsAre("Old"));
  EXPECT_EQ(Fill(GameState::kAllSupported), FillResult::kNoDataFile);
  EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(FillingAList, AHeaderWithoutRecordsEmptiesTheList) {
  PutData(Header());
  list_ = ListOf({"Old"});
  EXPECT_EQ(Fill(GameState::kClones), FillResult::kFilled);
  EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(FillingAList, HoldsAsManyGamesAsAListCan) {
  std::string bytes;
  for (int game = 0; game < 40000; ++game)
    bytes += "Game " + std::to_string(10000 + game) + ";g;\n";
  PutData(bytes);
  EXPECT_EQ(Fill(GameState::kAllSupported), FillResult::kFilled);
  ASSERT_EQ(list_.Count(), 32767);
  EXPECT_EQ(list_.At(32766), "Game 42766");
}

TEST_F(FillingAList, AvailableAndMissingReadTheScanFileAlone) {
  PutScan(
      "\"Zeta;Y\"\r\n\"Beta;N\"\r\n\"alpha;Y\"\n\"\"\r\n\r\n\"\r\n\"No mark\"\r\n\"Lower;y\"\r\n"
      "'Odd;more;Y'\r\n\"Unended;N");
  EXPECT_EQ(Fill(GameState::kAvailable), FillResult::kFilled);
  EXPECT_THAT(Listed(), ElementsAre("alpha", "Odd", "Zeta"));
  EXPECT_EQ(Fill(GameState::kMissing), FillResult::kFilled);
  EXPECT_THAT(Listed(), ElementsAre("Beta"));
}

TEST_F(FillingAList, WithoutAScanFileTheListStaysAsItWas) {
  PutData("A;a;O;-;\r\n");
  list_ = ListOf({"Old"});
  EXPECT_EQ(Fill(GameState::kAvailable), FillResult::kNoScanFile);
  EXPECT_EQ(FillList(files_, app_, ProfileOf(Emulator::kM72), GameState::kMissing, list_),
            FillResult::kNoScanFile);
  EXPECT_THAT(Listed(), ElementsAre("Old"));
}

TEST_F(FillingAList, TakesAScanFileWhoseReplacementWasCutOff) {
  files_.Put(R"(C:\Zarvo\cfg\Mamescn.tmp)", "\"A;Y\"\r\n");
  EXPECT_EQ(Fill(GameState::kAvailable), FillResult::kFilled);
  EXPECT_THAT(Listed(), ElementsAre("A"));
}

TEST_F(FilteringAList, KeepsTheGamesWithTheValue) {
  PutData(Header() + Record("alpha;a;O;-;Action;Sega;1988") +
          Record("Beta;b;O;-;Actions;Sega + Co;1989") + Record("Gamma;g;O;-;Action;SNK;????") +
          Record("Omega;o;O;-;;;"));
  const struct {
    ValueFilter filter;
    std::string_view value;
    StringList names;
  } kSteps[] = {
      {ValueFilter::kGenre, "Action", {"alpha", "Gamma"}},
      {ValueFilter::kGenre, "action", {}},
      {ValueFilter::kGenre, "", {"Omega"}},
      {ValueFilter::kManufactor, "Sega", {"alpha"}},
      {ValueFilter::kYear, "????", {"Gamma"}},
      {ValueFilter::kYear, "1999", {}},
  };
  for (const auto& step : kSteps) {
    list_ = ListOf({"alpha", "Beta", "Gamma", "Omega"});
    Filter(step.filter, step.value);
    EXPECT_EQ(Listed(), step.names) << step.value;
  }
  EXPECT_FALSE(files_.Has(R"(C:\Zarvo\Data\tofilter.tmp)"));
}

TEST_F(FilteringAList, TheNeutralItemReadsAndChangesNothing) {
  list_ = ListOf({"Not in the file"});
  Filter(ValueFilter::kGenre, "- Genre");
  Filter(ValueFilter::kManufactor, "- Manufactor");
  Filter(ValueFilter::kYear, "- Year");
  EXPECT_THAT(Listed(), ElementsAre("Not in the file"));
  EXPECT_THAT(files_.opened, IsEmpty());
  EXPECT_THAT(files_.written, IsEmpty());
}

TEST_F(FilteringAList, WalksForwardAloneAndComparesOnlyTheLengthOfTheName) {
  PutData(Record("Ace;1;O;-;Puzzle;x;1980") + "# Bat;\r\n" + Record("Bat II;2;O;-;Action;x;1980") +
          Record("Bat;3;O;-;Puzzle;x;1980") + Record("Cat;4;O;-;Action;x;1980") +
          Record("Dog;5;O;-;Action;x;1980") + "Eel\r\n" + Record("Fox;7;O;-;Action;x;1980"));
  const struct {
    std::string_view what;
    StringList list, kept;
  } kWalks[] = {
      {"the longer record that comes first answers, and its own name goes back",
       {"Bat", "Cat"},
       {"Bat II", "Cat"}},
      {"a name that the file doesn't know takes all later names with it",
       {"Bat", "Bull", "Cat", "Dog"},
       {"Bat II"}},
      {"a name whose record lies behind is lost, and all after it", {"Cat", "Ace", "Dog"}, {"Cat"}},
      {"twice the same name needs two records", {"Dog", "Dog", "Fox"}, {"Dog"}},
      {"a record without the field passes no filter", {"Eel", "Fox"}, {"Fox"}},
      {"case matters", {"cat", "Dog"}, {}},
  };
  for (const auto& walk : kWalks) {
    list_ = ListOf(walk.list);
    Filter(ValueFilter::kGenre, "Action");
    EXPECT_EQ(Listed(), walk.kept) << walk.what;
  }
}

TEST_F(FilteringAList, NamesComeBackFromTheWorkFileWhole) {
  PutData(Record("\"Quoted\";q;O;-;Action;x;1980") +
          Record("Caf\xE9 \x93Z\x94;c;O;-;Action;x;1980"));
  list_ = ListOf({"\"Quoted\"", "Caf\xE9 \x93Z\x94"});
  Filter(ValueFilter::kGenre, "Action");
  EXPECT_THAT(Listed(), ElementsAre("\"Quoted\"", "Caf\xE9 \x93Z\x94"));
  EXPECT_THAT(files_.written, ElementsAre(R"(c:\zarvo\data\tofilter.tmp)"));
}

TEST_F(FilteringAList, AFileThatCantBeUsedLeavesTheListAsItWas) {
  list_ = ListOf({"A", "B"});
  Filter(ValueFilter::kGenre, "Action");
  EXPECT_THAT(Listed(), ElementsAre("A", "B")) << "no data file";
  PutData(Record("A;a;O;-;Action;x;1980"));
  files_.fail_writes = true;
  Filter(ValueFilter::kGenre, "Action");
  EXPECT_THAT(Listed(), ElementsAre("A", "B")) << "no work file";
  files_.fail_writes = false;
  files_.break_off_reads = true;
  Filter(ValueFilter::kGenre, "Action");
  EXPECT_THAT(Listed(), ElementsAre("A", "B")) << "a data file that breaks off";
}

TEST_F(FilteringAList, NarrowsWhatTheScanFound) {
  PutData(Record("A;a;O;-;Action;x;1980") + Record("B;b;O;-;Puzzle;x;1980") +
          Record("D;d;O;-;Action;x;1980"));
  PutScan("\"A;Y\"\r\n\"B;Y\"\r\n\"C;Y\"\r\n\"D;Y\"\r\n");
  ASSERT_EQ(Fill(GameState::kAvailable), FillResult::kFilled);
  Filter(ValueFilter::kGenre, "Action");
  EXPECT_THAT(Listed(), ElementsAre("A")) << "C is gone from the file, and D with it";
}

}  // namespace
}  // namespace zarvo
