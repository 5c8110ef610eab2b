// What a command line is made of: one piece of text for every option, in the order of the line.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/emulators/options.h"

namespace zarvo {

// A moment of local time, for the name of a recording.
struct ClockTime {
  int year = 0;  // four digits
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

struct CommandInput {
  std::string emulator_path;
  std::string rom_name;
  OptionValues options;
  std::string recording;  // file name of the recording to play back, with its extension
  ClockTime now;
};

enum class PieceRule {
  kOn,     // a check box: the word while it is on
  kOff,    // a check box: the word while it is off
  kIndex,  // a list: the word, then the one of `words` at its index; an empty one says nothing
  kText,   // a text box: the word, then the text, unless that is "0"
  kMade,   // a check box: what `make` gives while it is on
};

// What a piece is on the command line of today's MAME, or why it is nothing there.
struct Today {
  // Its words, each with its blank in front; "%" stands for the value of a list or text. A piece
  // that begins without a blank goes on where the piece in front of it ended. Empty: nothing.
  std::string_view line;
  // In place of the values of a list, one for each; empty: the values themselves.
  std::span<const std::string_view> values;
  std::string_view why_not;  // where `line` is empty
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
  std::string (*make)(const CommandInput&) = nullptr;  // begins with the word
  Today today;
};

struct CommandTable {
  std::string_view before_rom;  // between the emulator's path and the rom name
  std::string_view behind_rom;
  std::span<const Piece> pieces;
};

}  // namespace zarvo
