#include "core/launch/command_line.h"

namespace zarvo {
namespace {

std::string ListPiece(const Piece& piece, int index) {
  if (index == -1) return std::string(piece.without_choice);
  const bool named = index >= 0 && index < static_cast<int>(piece.words.size());
  if (!named || index == piece.silent) return "";
  const std::string_view word = piece.words[static_cast<std::size_t>(index)];
  return word.empty() ? "" : std::string(piece.word).append(word);
}

std::string Say(const Piece& piece, const CommandInput& input) {
  if (piece.applies != nullptr && !piece.applies(input.options)) return "";
  const OptionValue& value = input.options.values[piece.option];
  const bool on = value.number == 1;
  switch (piece.rule) {
    case PieceRule::kOn:
      return std::string(on ? piece.word : "");
    case PieceRule::kOff:
      return std::string(on ? "" : piece.word);
    case PieceRule::kIndex:
      return ListPiece(piece, value.number);
    case PieceRule::kText:
      return value.text == "0" ? "" : std::string(piece.word) + value.text;
    case PieceRule::kMade:
      return on ? piece.make(input) : "";
  }
  return "";
}

}  // namespace

std::string CommandLine(const Emulator& emulator, const CommandInput& input) {
  const CommandTable& table = emulator.command;
  std::string line = input.emulator_path;
  line.append(table.before_rom).append(input.rom_name).append(table.behind_rom);
  for (const Piece& piece : table.pieces) line += Say(piece, input);
  return line;
}

}  // namespace zarvo
