// The words in which an emulator's file says the pieces of its command line.
#pragma once

#include "core/emulators/command.h"

namespace zarvo {

constexpr Piece On(std::size_t option, std::string_view word) {
  return {.rule = PieceRule::kOn, .option = option, .word = word};
}

constexpr Piece Off(std::size_t option, std::string_view word) {
  return {.rule = PieceRule::kOff, .option = option, .word = word};
}

constexpr Piece Text(std::size_t option, std::string_view word) {
  return {.rule = PieceRule::kText, .option = option, .word = word};
}

constexpr Piece Made(std::size_t option, std::string (*make)(const CommandInput&)) {
  return {.rule = PieceRule::kMade, .option = option, .make = make};
}

constexpr Piece Each(std::size_t option, std::string_view word,
                     std::span<const std::string_view> words) {
  return {.rule = PieceRule::kIndex, .option = option, .word = word, .words = words};
}

constexpr Piece EachBut(int silent, std::size_t option, std::string_view word,
                        std::span<const std::string_view> words) {
  Piece piece = Each(option, word, words);
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

// True if every option has exactly one piece, and every list a word for each item.
constexpr bool SpeakForAll(std::span<const Piece> pieces, std::span<const OptionSpec> options) {
  if (pieces.size() != options.size()) return false;
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
