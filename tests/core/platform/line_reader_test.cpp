#include "core/platform/line_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "core/platform/piece_source.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Lines(const std::string& text, std::size_t piece = 1 << 20) {
  LineReader reader(std::make_unique<PieceSource>(text, piece));
  std::vector<std::string> lines;
  std::string_view line;
  while (reader.Next(line)) lines.emplace_back(line);
  EXPECT_FALSE(reader.Next(line)) << "the end is not the end";
  return lines;
}

// The same as the standard library cuts it.
std::vector<std::string> Expected(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line); lines.push_back(line)) {
    if (line.ends_with('\r')) line.pop_back();
  }
  return lines;
}

TEST(LineReader, TakesBothLineEndsAndALastLineWithoutOne) {
  EXPECT_THAT(Lines(""), IsEmpty());
  EXPECT_THAT(Lines("\r\n"), ElementsAre(""));
  EXPECT_THAT(Lines("a\r\n\r\nb\n\nc"), ElementsAre("a", "", "b", "", "c"));
  EXPECT_THAT(Lines("a\r\nb\r"), ElementsAre("a", "b"));
  EXPECT_THAT(Lines("a\rb\r\r\nc"), ElementsAre("a\rb\r", "c"));
  EXPECT_THAT(Lines(std::string("a\0b\n", 4)), ElementsAre(std::string("a\0b", 3)));
}

TEST(LineReader, CutAnywhereInPiecesOfAnySizeTheLinesBeforeTheCutAreTheSame) {
  const std::string whole = "*Mame\r\n\r\nPengo;pengo;O;\nlonger line than the others\r\nend\r\n";
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
    const std::string text = whole.substr(0, cut);
    for (std::size_t piece = 1; piece <= cut + 1; ++piece) {
      EXPECT_EQ(Lines(text, piece), Expected(text)) << cut << " " << piece;
    }
  }
}

TEST(LineReader, ALineOfTheGreatestLengthIsReadAndALongerOnePassedOver) {
  const std::string longest(32767, 'x');
  for (const std::string end : {"\n", "\r\n"}) {
    for (const std::size_t piece : {std::size_t{1000}, std::size_t{1} << 20}) {
      EXPECT_THAT(Lines("a" + end + longest + end + "b", piece), ElementsAre("a", longest, "b"));
      for (const std::size_t excess : {1, 2, 100, 40000, 131072, 1000000}) {
        const std::string text = "a" + end + longest + std::string(excess, 'y');
        EXPECT_THAT(Lines(text + end + "b" + end, piece), ElementsAre("a", "b")) << excess;
        EXPECT_THAT(Lines(text, piece), ElementsAre("a")) << excess;
      }
    }
  }
  EXPECT_THAT(Lines(longest + "y"), IsEmpty());
  EXPECT_THAT(Lines(longest), ElementsAre(longest));
  EXPECT_THAT(Lines(longest + "\r\nb", 32768), ElementsAre(longest, "b")) << "CR and LF apart";
}

TEST(LineReader, LinesAcrossTheBordersOfTheBufferStayWhole) {
  // Lengths that move the line ends over every place near any border.
  for (const std::size_t length : {61, 127, 4095, 4096, 32766, 32767}) {
    std::string text;
    for (int number = 0; text.size() < 600000; ++number) {
      const std::string word = std::to_string(number);
      text += word + std::string(length - word.size(), '.') + "\r\n";
    }
    EXPECT_EQ(Lines(text), Expected(text)) << length;
    EXPECT_EQ(Lines(text, 65535), Expected(text)) << length;
  }
}

}  // namespace
}  // namespace zarvo
