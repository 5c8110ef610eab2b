#include "platform/line_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Gives its text in pieces of a fixed size, as a pipe or a slow disk may.
class PieceSource : public ByteSource {
 public:
  PieceSource(std::string text, std::size_t piece) : text_(std::move(text)), piece_(piece) {}
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = text_.copy(buffer, std::min(size, piece_), at_);
    at_ += count;
    return count;
  }

 private:
  std::string text_;
  std::size_t piece_;
  std::size_t at_ = 0;
};

std::vector<std::string> Lines(const std::string& text, std::size_t piece = 1 << 20) {
  LineReader reader(std::make_unique<PieceSource>(text, piece));
  std::vector<std::string> lines;
  std::string_view line;
  while (reader.Next(line)) lines.emplace_back(line);
  EXPECT_FALSE(reader.Next(line)) << "the end is not the end";
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

TEST(LineReader, PiecesOfAnySizeGiveTheSameLines) {
  const std::string text = "*Mame\r\n\r\nPengo;pengo;O;\nlonger line than the others\r\nend";
  for (std::size_t piece = 1; piece <= text.size(); ++piece) {
    EXPECT_THAT(Lines(text, piece),
                ElementsAre("*Mame", "", "Pengo;pengo;O;", "longer line than the others", "end"))
        << piece;
  }
}

TEST(LineReader, AFileCutAnywhereGivesTheLinesBeforeTheCut) {
  const std::string text = "one\r\ntwo\r\nthree\r\n";
  const std::vector<std::string> whole = {"one", "two", "three"};
  for (std::size_t cut = 0; cut <= text.size(); ++cut) {
    const auto lines = Lines(text.substr(0, cut), 3);
    const auto complete = std::count(text.begin(), text.begin() + static_cast<long>(cut), '\n');
    ASSERT_GE(lines.size(), static_cast<std::size_t>(complete)) << cut;
    for (long i = 0; i < complete; ++i) EXPECT_EQ(lines[i], whole[i]) << cut;
    ASSERT_LE(lines.size(), static_cast<std::size_t>(complete) + 1) << cut;
    if (lines.size() > static_cast<std::size_t>(complete)) {
      EXPECT_THAT(whole[complete], testing::StartsWith(lines.back())) << cut;
    }
  }
}

TEST(LineReader, ALineOfTheGreatestLengthIsReadAndALongerOnePassedOver) {
  const std::string longest(32767, 'x');
  for (const std::string end : {"\n", "\r\n"}) {
    for (const std::size_t piece : {std::size_t{1000}, std::size_t{1} << 20}) {
      EXPECT_EQ(Lines("a" + end + longest + end + "b", piece),
                (std::vector<std::string>{"a", longest, "b"}));
      for (const std::size_t excess : {1, 2, 100, 40000, 131072, 1000000}) {
        const std::string too_long = longest + std::string(excess, 'y');
        EXPECT_THAT(Lines("a" + end + too_long + end + "b" + end, piece), ElementsAre("a", "b"))
            << excess;
        EXPECT_THAT(Lines("a" + end + too_long, piece), ElementsAre("a")) << excess;
      }
    }
  }
  EXPECT_THAT(Lines(longest + "y"), IsEmpty());
  EXPECT_THAT(Lines(longest), ElementsAre(longest));
}

TEST(LineReader, LinesAcrossTheBordersOfTheBufferStayWhole) {
  // Lengths that move the line ends over every place near any border.
  for (const std::size_t length : {61, 127, 4095, 4096, 32766, 32767}) {
    std::string text;
    std::vector<std::string> expected;
    for (int number = 0; text.size() < 600 * 1024; ++number) {
      const std::string word = std::to_string(number);
      expected.push_back(word + std::string(length - word.size(), '.'));
      text += expected.back() + "\r\n";
    }
    EXPECT_EQ(Lines(text), expected) << length;
    EXPECT_EQ(Lines(text, 65535), expected) << length;
  }
}

}  // namespace
}  // namespace zarvo
