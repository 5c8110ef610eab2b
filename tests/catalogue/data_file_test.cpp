#include "catalogue/data_file.h"

#include "catalogue/catalogue_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DataFile : public CatalogueTest {
 protected:
  std::string RomOf(std::string_view name) {
    const auto record = FindRecord(files_, app_, mame_, name);
    return record ? (*record)[Field::kRomFile] : "(none)";
  }
};

TEST(CutField, TakesWhatStandsBeforeTheSemicolon) {
  std::string_view rest = "R-Type;;rtype";
  EXPECT_EQ(CutField(rest), "R-Type");
  EXPECT_EQ(CutField(rest), "");
  EXPECT_EQ(CutField(rest), std::nullopt);
  EXPECT_EQ(rest, "rtype");
}

TEST_F(DataFile, FindsARecordByItsExactName) {
  PutData(Header() + "# Galaga;comment;\r\n\r\n" +
          Record("Galaga '88 (JP);galaga88;C;galaga;Shooter;Namco;1987") +
          Record("Galaga;galaga;O;-;Shooter;Namco;1981") +
          Record("Galaga;second;O;-;Shooter;Namco;1981") + " # Blank;blank;\n" +
          "No semicolon\r\n" + Record("Zaxxon;zaxxon;O;-;Shooter;Sega;1982") + "Last;last;");
  const struct {
    std::string_view name, rom;
  } kLookUps[] = {
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
  for (const auto& look_up : kLookUps) EXPECT_EQ(RomOf(look_up.name), look_up.rom) << look_up.name;
}

TEST_F(DataFile, ANameThatIsEmptyInTheFileIsNoMatchForTheEmptyName) {
  PutData(";rom;O;-;\r\n");
  EXPECT_EQ(RomOf(""), "(none)");
}

TEST_F(DataFile, CutsAll21FieldsAndNoMore) {
  PutData("A;B;C;D;E;F;G;H;I;J;K;L;M;N;O;P;Q;R;S;T;U;what follows;\r\n");
  const auto record = FindRecord(files_, app_, mame_, "A");
  ASSERT_TRUE(record);
  EXPECT_EQ(record->field_count, 21);
  EXPECT_EQ((*record)[Field::kCloneOf], "D");
  EXPECT_EQ((*record)[Field::kSound], "J");
  EXPECT_EQ((*record)[Field::kSound4], "U");
}

TEST_F(DataFile, OpensTheFileByItsBareNameInTheDataFolder) {
  PutData("A;a;\r\n");
  EXPECT_EQ(RomOf("A"), "a");
  EXPECT_THAT(files_.opened, ElementsAre("Mame.dat"));
  EXPECT_EQ(files_.CurrentFolder(), R"(c:\zarvo\data)");
}

TEST_F(DataFile, AMissingFileOrFolderIsNoRecord) {
  EXPECT_EQ(RomOf("A"), "(none)");
  app_.ProgramFolder = R"(C:\Nowhere)";
  files_.Put(R"(C:\Zarvo\Data\Mame.dat)", "A;a;\r\n");
  EXPECT_EQ(RomOf("A"), "(none)");
}

TEST_F(DataFile, CutAtEveryLengthGivesWhatIsComplete) {
  const std::string first = Record("Alpha;alpha;O;-;Action;Sega;1989");
  const std::string second = Record("Beta;beta;C;alpha;Action;Sega;1990");
  const std::string whole = Header() + first + second;
  const std::size_t first_closed = Header().size() + first.size() - 2;
  const std::size_t second_closed = whole.size() - 2;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    SCOPED_TRACE(length);
    PutData(whole.substr(0, length));
    const auto alpha = FindRecord(files_, app_, mame_, "Alpha");
    const auto beta = FindRecord(files_, app_, mame_, "Beta");
    EXPECT_EQ(alpha && alpha->field_count == 21, length >= first_closed);
    EXPECT_EQ(beta && beta->field_count == 21, length >= second_closed);
    EXPECT_LE(ReadHeader(files_, app_, mame_).size(), 17U);
  }
}

TEST_F(DataFile, ReadsPastLinesThatAreTooLong) {
  const std::string name(32000, 'n');
  PutData(std::string(40000, 'x') + "\r\n" + name + ";long;\r\n" + "Next;" +
          std::string(40000, 'y') + ";\r\n" + "End;end;\r\n");
  EXPECT_EQ(RomOf(name), "long");
  EXPECT_EQ(RomOf("Next"), "(none)");
  EXPECT_EQ(RomOf("End"), "end");
}

TEST_F(DataFile, SurvivesBinaryJunk) {
  std::string junk;
  unsigned state = 12345;
  for (int i = 0; i < 200000; ++i) {
    state = state * 1103515245 + 12345;
    junk += static_cast<char>(state >> 16);
  }
  PutData(junk + "\r\nA;a;\r\n");
  EXPECT_EQ(RomOf("A"), "a");
  EXPECT_LE(ReadHeader(files_, app_, mame_).size(), 17U);
}

TEST_F(DataFile, TheHeaderIsTakenByPosition) {
  std::string rest;
  for (int line = 4; line <= 17; ++line) rest += "*" + std::to_string(line) + "\n";
  PutData("\r\n# comment\r\n*M.A.M.E.\r\n#inside\r\n\r\n" + rest + "*18\r\n");
  const auto header = ReadHeader(files_, app_, mame_);
  ASSERT_EQ(header.size(), 17U);
  EXPECT_EQ(header[0], "M.A.M.E.");
  EXPECT_EQ(header[1], "inside");
  EXPECT_EQ(header[2], "");
  EXPECT_EQ(header[3], "4");
  EXPECT_EQ(header[16], "17");
}

TEST_F(DataFile, AFileWithoutAWholeHeaderGivesTheLinesThatItHas) {
  EXPECT_THAT(ReadHeader(files_, app_, mame_), IsEmpty());
  const struct {
    std::string_view bytes;
    std::vector<std::string> header;
  } kFiles[] = {
      {"", {}},
      {"# only comments\r\n\r\n", {}},
      {"Game;game;\r\n*fact\r\n", {}},
      {" *fact\r\n", {}},
      {"*one\r\n*two\r\n*thr", {"one", "two", "thr"}},
  };
  for (const auto& file : kFiles) {
    PutData(std::string(file.bytes));
    EXPECT_EQ(ReadHeader(files_, app_, mame_), file.header) << file.bytes;
  }
}

TEST_F(DataFile, TheTotalIsLine8FromTheFirstStar) {
  EXPECT_FALSE(ReadDataTotal(files_, app_, mame_).file_opened);
  const std::optional<std::string> none;
  const struct {
    std::string_view bytes;
    std::optional<std::string> total;
  } kFiles[] = {
      {"*1\r\n*2\r\n*3\r\n*4\r\n*5\r\n*6\r\n*7\r\n*1107\r\n*9\r\n", "1107"},
      {"A;a;\r\n\r\n#\r\n*1\n*2\n*3\n*4\n*5\n*6\n*7\n*1107", "1107"},
      {"*1\n\n#3\n4;\n*5\n*6\n*7\nx107\n", "107"},
      {"*1\n*2\n*3\n*4\n*5\n*6\n*7\n\n", ""},
      {"*1\n*2\n*3\n*4\n*5\n*6\n*7\n", none},
      {"A;a;\r\n", none},
      {"", none},
  };
  for (const auto& file : kFiles) {
    PutData(std::string(file.bytes));
    const DataTotal total = ReadDataTotal(files_, app_, mame_);
    EXPECT_TRUE(total.file_opened);
    EXPECT_EQ(total.total, file.total) << file.bytes;
  }
}

}  // namespace
}  // namespace zarvo
