#include "import/list_text.h"

#include <gtest/gtest.h>

namespace zarvo {
namespace {

struct TextCase {
  const char* what;
  std::string in;
  std::string out;
};

TEST(ListText, BecomesAFieldOfTheDataFile) {
  const TextCase cases[] = {
      {"plain", "Pac-Man (Midway)", "Pac-Man (Midway)"},
      {"semicolons can't stand in a field", "a;b;", "a,b,"},
      {"one line", "two\r\nlines\tand a tab", "two  lines and a tab"},
      {"blanks at the ends", "  Pengo ", "Pengo"},
      {"control characters", std::string("a\0b\x7f\x1b", 5) + "\xC2\x85", "ab"},
      {"Windows-1252 has it", "Pok\xC3\xA9mon \xE2\x82\xAC \xE2\x80\x93", "Pok\xE9mon \x80 \x96"},
      {"accents go", "\xC4\x80\xC4\x81 \xC5\x8C\xC5\x8D \xC5\xAA\xC5\xAB \xC5\x81\xC5\x82 \xC4\x8C",
       "Aa Oo Uu Ll C"},
      {"an accent that follows", "e\xCC\x81", "e"},
      {"another script", "\xE5\x80\x89\xE5\xBA\xAB", "??"},
      {"wide letters", "\xEF\xBC\xA1\xEF\xBC\x9B", "A,"},
      {"Roman numerals", "II \xE2\x85\xA2", "II III"},
      {"a blank that doesn't break",
       "a\xC2\xA0"
       "b",
       "a b"},
      {"beyond the first plane", "\xF0\x9F\x8E\xAE", "?"},
      {"not UTF-8: taken as it is", "Pok\xE9mon", "Pok\xE9mon"},
      {"cut UTF-8", "a\xE2\x82", "a\xE2\x82"},
      {"a byte of no meaning", "a\x81", "a"},
      {"too long for what it says", "\xC0\xAF", "\xC0\xAF"},
  };
  for (const TextCase& each : cases) EXPECT_EQ(ToFieldText(each.in), each.out) << each.what;
}

TEST(ListText, NamesDontLookLikeAnotherKindOfLine) {
  const TextCase cases[] = {
      {"comment", "#1 Baseball", "1 Baseball"},
      {"header line", "* Star *", "Star *"},
      {"blank in front", "  # *x", "x"},
      {"a star of another script",
       "\xE2\x98\x85"
       "Stars",
       "Stars"},
      {"quotation marks", "The \"Best\"", "The 'Best'"},
      {"nothing left", "#*#", ""},
  };
  for (const TextCase& each : cases) EXPECT_EQ(ToGameName(each.in), each.out) << each.what;
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
