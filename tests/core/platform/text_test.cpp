#include "core/platform/text.h"

#include <gtest/gtest.h>

#include <array>

namespace zarvo {
namespace {

TEST(Text, BytesAndUtf8ReadAsTheSameCharacters) {
  const std::pair<const char*, const char*> cases[] = {
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
  EXPECT_TRUE(EqualNoCase("Az\x8A\x8C\x8E\x9F\xC0\xD6\xDE", "aZ\x9A\x9C\x9E\xFF\xE0\xF6\xFE"));
  // These look like a pair by their numbers, but are none.
  for (const auto& [left, right] :
       {std::pair("@", "`"), {"[", "{"}, {"\xD7", "\xF7"}, {"\xDF", "\xFF"}, {"\x8B", "\x9B"}}) {
    EXPECT_FALSE(EqualNoCase(left, right)) << left;
  }
  EXPECT_FALSE(EqualNoCase("a", "aa"));
}

TEST(Text, NumbersAreSixteenBitsAndNothingElse) {
  EXPECT_EQ(ParseInt16("0"), 0);
  EXPECT_EQ(ParseInt16("32767"), 32767);
  EXPECT_EQ(ParseInt16("-32768"), -32768);
  EXPECT_EQ(ParseInt16("007"), 7);
  for (const char* text :
       {"", "32768", "-32769", "+1", " 1", "1 ", "1.5", "0x10", "-", "99999999999999"}) {
    EXPECT_EQ(ParseInt16(text), std::nullopt) << text;
  }
}

TEST(Text, OnlyBlanksAtTheEndsAreTrimmed) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(TrimBlanks("\ta"), "\ta");
}

}  // namespace
}  // namespace zarvo
