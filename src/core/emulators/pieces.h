// The words in which an emulator's file says the pieces of its command line.
#pragma once

#include "core/emulators/command.h"

namespace zarvo {

// What a piece is for today's MAME. Every piece says it, or doesn't compile.
constexpr Today As(std::string_view line, std::span<const std::string_view> values = {}) {
  return {.line = line, .values = values, .why_not = {}};
}

constexpr Today NothingFor(std::string_view why) {
  return {.line = {}, .values = {}, .why_not = why};
}

constexpr Piece On(std::size_t option, std::string_view word, const Today& today) {
  return {.rule = PieceRule::kOn, .option = option, .word = word, .today = today};
}

constexpr Piece Off(std::size_t option, std::string_view word, const Today& today) {
  return {.rule = PieceRule::kOff, .option = option, .word = word, .today = today};
}

constexpr Piece Text(std::size_t option, std::string_view word, const Today& today) {
  return {.rule = PieceRule::kText, .option = option, .word = word, .today = today};
}

constexpr Piece Made(std::size_t option, std::string_view word,
                     std::string (*make)(const CommandInput&), const Today& today) {
  return {.rule = PieceRule::kMade, .option = option, .word = word, .make = make, .today = today};
}

constexpr Piece Each(std::size_t option, std::string_view word,
                     std::span<const std::string_view> words, const Today& today) {
  return {
      .rule = PieceRule::kIndex, .option = option, .word = word, .words = words, .today = today};
}

constexpr Piece EachBut(int silent, std::size_t option, std::string_view word,
                        std::span<const std::string_view> words, const Today& today) {
  Piece piece = Each(option, word, words, today);
  piece.silent = silent;
  return piece;
}

constexpr Piece WithoutChoice(Piece piece, std::string_view whole) {
  piece.without_choice = whole;
  return piece;
}

// The piece counts only where `applies` says so.
constexpr Piece When(bool (*applies)(const OptionValues&), Piece piece) {
  piece.applies = applies;
  return piece;
}

// True if every option has exactly one piece, every list a word for each item, and every piece
// either words for today or a reason.
constexpr bool SpeakForAll(std::span<const Piece> pieces, std::span<const OptionSpec> options) {
  if (pieces.size() != options.size()) return false;
  for (const Piece& piece : pieces) {
    if (piece.today.line.empty() == piece.today.why_not.empty()) return false;
    const std::size_t values = piece.today.values.size();
    if (values != 0 && values != piece.words.size()) return false;
  }
  for (std::size_t option = 0; option < options.size(); ++option) {
    std::size_t count = 0;
    for (const Piece& piece : pieces) {
      if (piece.option != option) continue;
      ++count;
      if (piece.words.size() != options[option].items.size()) return false;
    }
    if (count != 1) return false;
  }
  return true;
}

}  // namespace zarvo
