#include "bridge/translation.h"

#include <algorithm>
#include <optional>

#include "core/platform/dos_path.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

using Words = std::span<const std::string_view>;

// How many words `said` takes if `words` begin with it, else 0.
std::size_t Beginning(Words words, std::string_view said) {
  const auto expected = SplitAtBlanks(said);
  const bool same = words.size() >= expected.size() &&
                    std::equal(expected.begin(), expected.end(), words.begin());
  return same ? expected.size() : 0;
}

// What of the words was a piece of the command line.
struct Match {
  std::size_t taken = 0;  // words; 0: it isn't this piece
  std::vector<std::string> today{};
  bool goes_on = false;  // the first of them is the rest of the word in front
};

std::string Filled(std::string_view line, std::string_view value) {
  std::string text;
  for (const char c : line) {
    if (c == '%') {
      text += value;
    } else {
      text += c;
    }
  }
  return text;
}

// The words of a line, with the value in them; it stays one word whatever it holds.
std::vector<std::string> FilledWords(std::string_view line, std::string_view value) {
  std::vector<std::string> words = SplitAtBlanks(line);
  for (std::string& word : words) word = Filled(word, value);
  return words;
}

// One of a list's values; none of them begins as another does.
Match MatchList(const Piece& piece, Words words) {
  for (std::size_t i = 0; i < piece.words.size(); ++i) {
    if (piece.words[i].empty()) continue;
    const std::size_t taken = Beginning(words, std::string(piece.word).append(piece.words[i]));
    if (taken == 0) continue;
    const std::string_view value =
        piece.today.values.empty() ? piece.words[i] : piece.today.values[i];
    if (value.empty()) return {.taken = taken};
    return {.taken = taken, .today = FilledWords(piece.today.line, value)};
  }
  return {};
}

// The word of the piece, then any value.
Match MatchValue(const Piece& piece, Words words) {
  const std::size_t taken = Beginning(words, piece.word);
  if (taken == 0 || words.size() == taken) return {};
  return {.taken = taken + 1, .today = FilledWords(piece.today.line, words[taken])};
}

Match MatchPiece(const Piece& piece, Words words) {
  switch (piece.rule) {
    case PieceRule::kOn:
    case PieceRule::kOff:
      return {.taken = Beginning(words, piece.word), .today = SplitAtBlanks(piece.today.line)};
    case PieceRule::kIndex:
      return MatchList(piece, words);
    case PieceRule::kText:
    case PieceRule::kMade:
      return MatchValue(piece, words);
  }
  return {};
}

Match FindPiece(const CommandTable& command, Words words) {
  Match best;
  for (const Piece& piece : command.pieces) {
    Match match = MatchPiece(piece, words);
    match.goes_on = !piece.today.line.starts_with(' ');
    if (match.taken > best.taken) best = std::move(match);
  }
  return best;
}

// The words of a piece as a player reads them, with "…" for a value.
std::string Said(const Piece& piece) {
  const bool has_value = piece.rule != PieceRule::kOn && piece.rule != PieceRule::kOff;
  return "`" + std::string(TrimBlanks(piece.word)) + (has_value ? " \u2026`" : "`");
}

// Every line once, and of many the first and the last.
std::string SaidToday(const Today& today) {
  if (today.line.empty()) return "nothing: " + std::string(today.why_not);
  if (today.values.empty()) return "`" + Filled(TrimBlanks(today.line), "\u2026") + "`";
  constexpr std::size_t kMostTold = 3;
  std::vector<std::string> told;
  for (const std::string_view value : today.values) {
    if (value.empty()) continue;
    std::string line = "`" + std::string(TrimBlanks(Filled(today.line, value))) + "`";
    if (std::find(told.begin(), told.end(), line) == told.end()) told.push_back(std::move(line));
  }
  if (told.size() > kMostTold) return told.front() + " to " + told.back();
  std::string text;
  for (const std::string& line : told) text += (text.empty() ? "" : ", ") + line;
  return text;
}

}  // namespace

Result<std::vector<std::string>> Translate(const Emulator& emulator, Words words) {
  const CommandTable& command = emulator.command;
  words = words.subspan(Beginning(words, command.before_rom));
  if (words.empty() || !IsPlainName(words.front())) {
    return Error{"There is no game on the command line of " + std::string(emulator.word) + "."};
  }
  std::vector<std::string> today = {std::string(words.front())};
  words = words.subspan(1);
  words = words.subspan(Beginning(words, command.behind_rom));
  while (!words.empty()) {
    const Match match = FindPiece(command, words);
    if (match.taken == 0) {
      return Error{std::string(emulator.word) + " has no option \"" + std::string(words.front()) +
                   "\"."};
    }
    auto added = match.today.begin();
    if (match.goes_on && added != match.today.end()) today.back() += *added++;
    today.insert(today.end(), added, match.today.end());
    words = words.subspan(match.taken);
  }
  return today;
}

std::string TranslationTable() {
  std::string page =
      "# The options of the DOS emulators in today's MAME\n\n"
      "`zarvo-mame` takes the command line of one of the emulators and turns it into one of "
      "today's\n"
      "MAME. This page is what `zarvo-mame --table` prints. An option that isn't in the line of a\n"
      "game is left to `mame.ini`.\n";
  for (const Emulator& emulator : Emulators()) {
    page += "\n## " + std::string(emulator.word) + "\n\n| Then | Today |\n|---|---|\n";
    for (const Piece& piece : emulator.command.pieces) {
      page += "| " + Said(piece) + " | " + SaidToday(piece.today) + " |\n";
    }
  }
  return page;
}

}  // namespace zarvo
