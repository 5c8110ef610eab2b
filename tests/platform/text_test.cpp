#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace zarvo {
namespace {

struct Spelling {
  const char* bytes;
  const char* utf8;
};

TEST(Text, BytesAndUtf8ReadAsTheSameCharacters) {
  const Spelling cases[] = {
      {"Pac-Man", "Pac-Man"},
      {"\x80\x8A\x9F", "€ŠŸ"},
      {"\x91quoted\x92 \x96 \x99", "‘quoted’ – ™"},
      {"\xA0\xBF\xC0\xFF", "\u00A0¿Àÿ"},
      {"\x81\x9D", "\u0081\u009D"},
      {"", ""},
  };
  for (const auto& [bytes, utf8] : cases) {
    EXPECT_EQ(ToUtf8(bytes), utf8);
    EXPECT_EQ(FromUtf8(utf8), bytes) << utf8;
  }
}

TEST(Text, EveryByteSurvivesTheWayThereAndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_EQ(FromUtf8(ToUtf8(one)), one) << byte;
  }
}

TEST(Text, WhatWindows1252CannotSayIsRefused) {
  const std::string_view cases[] = {
      "ゲーム",            // no such letters
      "\u0080",            // the control character, not the euro sign
      "\U00010080",        // would be 0x80 if cut to sixteen bits
      "\U000120AC",        // would be the euro sign if cut
      "a\xFF",             // not UTF-8
      "\xC3",              // cut off
      "\xC3\x28",          // second byte missing
      "\xC1\x81",          // a longer form of "A"
      "\xE0\x82\xA9",      // a longer form of the copyright sign
      "\xED\xA0\x80",      // half of a pair
      "\xF8\x88\x80\x80",  // no lead byte
  };
  for (const auto text : cases)
    EXPECT_EQ(FromUtf8(text), std::nullopt) << testing::PrintToString(text);
}

TEST(Text, OrderFoldsLettersToLowerCaseAndComparesBytes) {
  // In the order wanted; the underscore stands between the cases and tells which way is folded.
  const std::array<std::string_view, 12> sorted = {
      "", "1942", "[x]", "_x", "Aa", "AB", "z", "\x8Ax", "\x9Ay", "\xC9t\xC9", "\xE9t\xEA", "\xFF",
  };
  for (std::size_t left = 0; left < sorted.size(); ++left) {
    for (std::size_t right = 0; right < sorted.size(); ++right) {
      EXPECT_EQ(CompareNoCase(sorted[left], sorted[right]) < 0, left < right)
          << sorted[left] << " " << sorted[right];
    }
  }
}

TEST(Text, LettersOfBothCasesAreEqual) {
  const std::array<std::array<const char*, 2>, 8> pairs = {{{"Az", "aZ"},
                                                            {"\x8A", "\x9A"},
                                                            {"\x8C", "\x9C"},
                                                            {"\x8E", "\x9E"},
                                                            {"\x9F", "\xFF"},
                                                            {"\xC0", "\xE0"},
                                                            {"\xD6", "\xF6"},
                                                            {"\xDE", "\xFE"}}};
  for (const auto& [upper, lower] : pairs) EXPECT_TRUE(EqualNoCase(upper, lower)) << ToUtf8(upper);

  // These look like a pair by their numbers, but are none.
  EXPECT_FALSE(EqualNoCase("@", "`"));
  EXPECT_FALSE(EqualNoCase("[", "{"));
  EXPECT_FALSE(EqualNoCase("\xD7", "\xF7"));
  EXPECT_FALSE(EqualNoCase("\xDF", "\xFF"));
  EXPECT_FALSE(EqualNoCase("\x8B", "\x9B"));
  EXPECT_FALSE(EqualNoCase("a", "aa"));
}

TEST(Text, NumbersAreSixteenBitsAndNothingElse) {
  const std::pair<const char*, std::optional<int>> cases[] = {
      {"0", 0},           {"32767", 32767},
      {"-32768", -32768}, {"007", 7},
      {"", {}},           {"32768", {}},
      {"-32769", {}},     {"+1", {}},
      {" 1", {}},         {"1 ", {}},
      {"1.5", {}},        {"0x10", {}},
      {"-", {}},          {"99999999999999", {}},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(ParseInt16(text), number) << text;
}

TEST(Text, OnlyBlanksAtTheEndsAreTrimmed) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(TrimBlanks("\ta"), "\ta");
}

}  // namespace
}  // namespace zarvo
