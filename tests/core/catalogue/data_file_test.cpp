#include "core/catalogue/data_file.h"

#include "core/catalogue/catalogue_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using StringList = std::vector<std::string>;

class DataFile : public CatalogueTest {
 protected:
  std::string RomOf(std::string_view name) {
    const auto record = Catalogue(files_, folders_, mame_).Find(name);
    return record ? (*record)[Field::kRomFile] : "(none)";
  }
  StringList HeaderOf() { return Catalogue(files_, folders_, mame_).Header(); }
};

TEST_F(DataFile, FindsARecordByItsExactName) {
  EXPECT_EQ(RomOf("Galaga"), "(none)") << "no file";
  PutData(Header() + "# Galaga;comment;\r\n\r\n" +
          Record("Galaga '88 (JP);galaga88;C;galaga;Shooter;Namco;1987") +
          Record("Galaga;galaga;O;-;Shooter;Namco;1981") +
          Record("Galaga;second;O;-;Shooter;Namco;1981") + " # Blank;blank;\n" +
          "No semicolon\r\n;empty;O;-;\r\n" + Record("Zaxxon;zaxxon;O;-;Shooter;Sega;1982") +
          "Last;last;");
  const std::pair<std::string_view, std::string_view> look_ups[] = {
      {"Galaga", "galaga"},             // the first of two, and not the longer name before it
      {"Galaga '88 (JP)", "galaga88"},  //
      {"Galaga '88", "(none)"},         // the beginning of a name
      {"galaga", "(none)"},             // another case
      {"", "(none)"},                   //
      {"# Galaga", "(none)"},           // a comment
      {" # Blank", "blank"},            // lines aren't trimmed
      {"fact 3", "(none)"},             // a header line
      {"No semicolon", "(none)"},       //
      {"Galaga;galaga", "(none)"},      // two fields aren't one
      {"Zaxxon", "zaxxon"},             //
      {"Last", "last"},                 // no line end
  };
  for (const auto& [name, rom] : look_ups) EXPECT_EQ(RomOf(name), rom) << name;
  EXPECT_EQ(files_.opened.back(), "Mame.dat");
  EXPECT_EQ(files_.CurrentFolder(), R"(c:\zarvo\data)");
  folders_.ProgramFolder = R"(C:\Nowhere)";
  EXPECT_EQ(RomOf("Last"), "(none)") << "no folder";
}

TEST_F(DataFile, CutsAll21FieldsAndNoMore) {
  PutData("A;B;;D;E;F;G;H;I;J;K;L;M;N;O;P;Q;R;S;T;U;what follows;\r\n");
  const auto record = Catalogue(files_, folders_, mame_).Find("A");
  ASSERT_TRUE(record);
  EXPECT_EQ(record->field_count, 21);
  EXPECT_EQ((*record)[Field::kOC], "");
  EXPECT_EQ((*record)[Field::kCloneOf], "D");
  EXPECT_EQ((*record)[Field::kSound], "J");
  EXPECT_EQ((*record)[Field::kSound4], "U");
}

TEST_F(DataFile, CutAtEveryLengthGivesWhatIsComplete) {
  const std::string whole = Header() + Record("Alpha;alpha;O;-;Action;Sega;1989") +
                            Record("Beta;beta;C;alpha;Action;Sega;1990");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    PutData(whole.substr(0, length));
    for (const std::string name : {"Alpha", "Beta"}) {
      const auto record = Catalogue(files_, folders_, mame_).Find(name);
      const std::size_t closed = whole.find('\r', whole.find(name));
      EXPECT_EQ(record && record->field_count == 21, length >= closed) << name << " " << length;
    }
    EXPECT_LE(HeaderOf().size(), 17U);
  }
}

TEST_F(DataFile, TheHeaderIsTakenByPositionAsFarAsItGoes) {
  EXPECT_EQ(HeaderOf(), StringList()) << "no file";
  std::string rest;
  for (int line = 4; line <= 17; ++line) rest += "*" + std::to_string(line) + "\n";
  const std::pair<std::string, StringList> files[] = {
      {"\r\n# comment\r\n*M.A.M.E.\r\n#inside\r\n\r\n" + rest + "*18\r\n",
       {"M.A.M.E.", "inside", "", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15",
        "16", "17"}},
      {"", {}},
      {"# only comments\r\n\r\n", {}},
      {"Game;game;\r\n*fact\r\n", {}},
      {" *fact\r\n", {}},
      {"*one\r\n*two\r\n*thr", {"one", "two", "thr"}},
  };
  for (const auto& [bytes, header] : files) {
    PutData(bytes);
    EXPECT_EQ(HeaderOf(), header) << bytes;
  }
}

TEST_F(DataFile, TheTotalIsLine8FromTheFirstStar) {
  EXPECT_FALSE(Catalogue(files_, folders_, mame_).Total().file_opened);
  const std::pair<std::string, std::optional<std::string>> files[] = {
      {"*1\r\n*2\r\n*3\r\n*4\r\n*5\r\n*6\r\n*7\r\n*1107\r\n*9\r\n", "1107"},
      {"A;a;\r\n\r\n#\r\n*1\n*2\n*3\n*4\n*5\n*6\n*7\n*1107", "1107"},
      {"*1\n\n#3\n4;\n*5\n*6\n*7\nx107\n", "107"},
      {"*1\n*2\n*3\n*4\n*5\n*6\n*7\n\n", ""},
      {"*1\n*2\n*3\n*4\n*5\n*6\n*7\n", {}},
      {"A;a;\r\n", {}},
      {"", {}},
  };
  for (const auto& [bytes, expected] : files) {
    PutData(bytes);
    const DataTotal total = Catalogue(files_, folders_, mame_).Total();
    EXPECT_TRUE(total.file_opened);
    EXPECT_EQ(total.total, expected) << bytes;
  }
}

}  // namespace
}  // namespace zarvo
