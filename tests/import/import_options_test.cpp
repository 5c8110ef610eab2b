#include "import/import_options.h"

#include <gmock/gmock.h>

namespace zarvo {
namespace {

using testing::HasSubstr;

Result<ImportOptions> Parse(std::vector<std::string> words) { return ParseOptions(words); }

TEST(ImportOptions, AreReadInBothForms) {
  const auto options = Parse(
      {"-o", "out.dat", "--driver", "cps1", "--driver=m72", "--header", "name=A=B", "list.xml"});
  ASSERT_TRUE(options.ok());
  EXPECT_EQ(options->output + " " + options->input, "out.dat list.xml");
  EXPECT_EQ(options->drivers.size(), 2U);
  EXPECT_EQ(options->header[0], "A=B");
  EXPECT_EQ(Parse({"--", "-x"})->input, "-x") << "a name may begin with a dash";
  EXPECT_EQ(Parse({"-"})->input, "-");
}

TEST(ImportOptions, WrongUseIsSaid) {
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"--nonsense"}, "there is no option --nonsense"},
      {{"-x"}, "there is no option -x"},
      {{"-o"}, "-o needs a value"},
      {{"--arcade=yes"}, "--arcade takes no value"},
      {{"a", "b"}, "\"b\" is one too many"},
      {{"--years", "80"}, "\"80\" is no year"},
      {{"--years", "1990-1980"}, "is no year"},
      {{"--years", "1990,"}, "is no year"},
      {{"--header", "supported=3"}, "is no header line"},
      {{"--header", "=3"}, "is no header line"},
      {{"--genres", "/nowhere/genres.txt"}, "can't read /nowhere/genres.txt"},
  };
  for (const auto& [words, error] : cases) {
    const auto options = Parse(words);
    ASSERT_FALSE(options.ok()) << words[0];
    EXPECT_THAT(options.error().message, HasSubstr(error));
  }
}

TEST(ImportOptions, PairsAreReadLineByLine) {
  const auto pairs = ParsePairs("# comment\r\npacman; Labyrinth \r\n\r\na;b;c\npacman;Arcade");
  ASSERT_TRUE(pairs.ok());
  EXPECT_EQ(pairs->size(), 2U);
  EXPECT_EQ(pairs->find("pacman")->second, "Arcade");
  EXPECT_EQ(pairs->find("a")->second, "b,c");
  EXPECT_EQ(ParsePairs("a;b\n\nnothing").error().message, "line 3: \"key;value\" is expected");
  EXPECT_FALSE(ParsePairs(";b").ok());
}

}  // namespace
}  // namespace zarvo
