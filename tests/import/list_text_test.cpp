#include "import/list_text.h"

#include <gtest/gtest.h>

namespace zarvo {
namespace {

TEST(ListText, BecomesAFieldOfTheDataFile) {
  const std::pair<std::string, std::string> cases[] = {
      {"Pac-Man (Midway)", "Pac-Man (Midway)"},
      {"a;b;", "a,b,"},  // semicolons can't stand in a field
      {"two\r\nlines\tand a tab", "two  lines and a tab"},
      {"  Pengo ", "Pengo"},
      {std::string("a\0b\x7f\x1b", 5) + "\xC2\x85", "ab"},                   // control characters
      {"Pok\xC3\xA9mon \xE2\x82\xAC \xE2\x80\x93", "Pok\xE9mon \x80 \x96"},  // Windows-1252 has it
      {"\xC4\x80\xC4\x81 \xC5\x8C\xC5\x8D \xC5\xAA\xC5\xAB \xC5\x81\xC5\x82 \xC4\x8C",
       "Aa Oo Uu Ll C"},                   // accents go
      {"e\xCC\x81", "e"},                  // an accent that follows
      {"\xE5\x80\x89\xE5\xBA\xAB", "??"},  // another script
      {"\xEF\xBC\xA1\xEF\xBC\x9B", "A,"},  // wide letters
      {"II \xE2\x85\xA2", "II III"},       // Roman numerals
      {"a\xC2\xA0_", "a _"},               // a blank that doesn't break
      {"\xF0\x9F\x8E\xAE", "?"},           // beyond the first plane
      {"Pok\xE9mon", "Pok\xE9mon"},        // not UTF-8: taken as it is
      {"a\xE2\x82", "a\xE2\x82"},          // cut UTF-8
      {"a\x81", "a"},                      // a byte of no meaning
      {"\xC0\xAF", "\xC0\xAF"},            // too long for what it says
  };
  for (const auto& [in, out] : cases) EXPECT_EQ(ToFieldText(in), out) << in;
}

TEST(ListText, NamesDontLookLikeAnotherKindOfLine) {
  const std::pair<std::string, std::string> cases[] = {
      {"#1 Baseball", "1 Baseball"},
      {"* Star *", "Star *"},
      {"  # *x", "x"},
      {"\xE2\x98\x85Stars", "Stars"},  // a star of another script
      {"The \"Best\"", "The 'Best'"},
      {"#*#", ""},
  };
  for (const auto& [in, out] : cases) EXPECT_EQ(ToGameName(in), out) << in;
}

TEST(ListText, RomNamesStayInTheirFolder) {
  for (const char* good : {"pacman", "1942", "sf2_ce", "a-b", "x!", "v1.0"}) {
    EXPECT_TRUE(IsUsableRomName(good)) << good;
  }
  for (const char* bad : {"", "..", ".x", "-x", "a/b", "a\\b", "c:x", "a b", "a*", "a?", "a\"b",
                          "a;b", "a|b", "a%b", "a$b", "\xE9", "a\nb"}) {
    EXPECT_FALSE(IsUsableRomName(bad)) << bad;
  }
}

}  // namespace
}  // namespace zarvo
