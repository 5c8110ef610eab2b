// What a command line is made of: one piece of text for every option, in the order of the line.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/launch/command_line.h"
#include "core/launch/option_table.h"

namespace zarvo {

enum class PieceRule {
  kOn,     // a check box: the word while it is on
  kOff,    // a check box: the word while it is off
  kIndex,  // a list: the word, then the one of `words` at its index; an empty one says nothing
  kText,   // a text box: the word, then the text, unless that is "0"
  kMade,   // a check box: what `make` gives while it is on
};

// Says nothing unless its rule does. Every word begins with its blank.
struct Piece {
  PieceRule rule = PieceRule::kOn;
  std::size_t option = 0;  // index in the option table
  std::string_view word = {};
  std::span<const std::string_view> words = {};
  int silent = -1;                       // the index of a list that says nothing
  std::string_view without_choice = {};  // the whole piece of a list without a selection
  bool (*applies)(const OptionValues&) = nullptr;
  std::string (*make)(const CommandInput&) = nullptr;
};

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

struct CommandTable {
  std::string_view before_rom = " ";  // between the emulator's path and the rom name
  std::string_view behind_rom = {};
  std::span<const Piece> pieces;
};

CommandTable MameCommand();
CommandTable CallusCommand();
CommandTable RaineCommand();
CommandTable System16Command();
CommandTable M72Command();

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
