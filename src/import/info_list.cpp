// The text that MAME for DOS prints with `-listinfo`, and DATs in the same form:
//
//   game (
//     name puckman
//     description "PuckMan (Japan set 1)"
//     chip ( type cpu name Z80 clock 3072000 )
//   )
//
// A block is a word and what stands in its parentheses: pairs of a word and a value, where a value
// is a word, a text in quotation marks with the escapes of C, or a block.
#include <algorithm>
#include <vector>

#include "import/list_reader.h"

namespace zarvo {
namespace {

constexpr std::size_t kDeepest = 16;

enum class InfoToken { kWord, kText, kOpen, kClose, kEnd, kError };

class InfoScanner {
 public:
  explicit InfoScanner(InputWindow& window) : window_(window) {}

  // The text of kWord and kText, escapes as they stand; valid until the next call.
  InfoToken Next(std::string_view& text);
  [[nodiscard]] const std::string& Error() const { return error_; }
  InfoToken Fail(std::string_view message) {
    error_ = window_.At(window_.Begin(), message);
    return InfoToken::kError;
  }

 private:
  bool PassBlanks();
  InfoToken TakeWord(std::string_view& text);
  InfoToken TakeText(std::string_view& text);
  InfoToken AtEnd(std::string_view message);

  InputWindow& window_;
  std::string error_;
};

bool InfoScanner::PassBlanks() {
  while (true) {
    const std::string_view rest = window_.Rest();
    const std::size_t first = rest.find_first_not_of(" \t\r\n");
    window_.ConsumeTo(window_.Begin() + std::min(first, rest.size()));
    if (first != std::string_view::npos) return true;
    if (!window_.Grow()) return false;
  }
}

InfoToken InfoScanner::Next(std::string_view& text) {
  if (!PassBlanks()) return InfoToken::kEnd;
  switch (*window_.Begin()) {
    case '(':
      window_.ConsumeTo(window_.Begin() + 1);
      return InfoToken::kOpen;
    case ')':
      window_.ConsumeTo(window_.Begin() + 1);
      return InfoToken::kClose;
    case '"':
      return TakeText(text);
    default:
      return TakeWord(text);
  }
}

// A word ends at a blank or at the end of the list. A parenthesis may stand within it.
InfoToken InfoScanner::TakeWord(std::string_view& text) {
  std::size_t end = 0;
  while ((end = window_.Rest().find_first_of(" \t\r\n")) == std::string_view::npos) {
    if (window_.Grow()) continue;
    if (window_.TooLong()) return Fail("a word of more than 1 MiB");
    end = window_.Rest().size();
    break;
  }
  text = window_.Rest().substr(0, end);
  window_.ConsumeTo(window_.Begin() + end);
  return InfoToken::kWord;
}

InfoToken InfoScanner::TakeText(std::string_view& text) {
  std::size_t at = 1;
  while (true) {
    const std::string_view rest = window_.Rest();
    at = rest.find_first_of("\"\\", at);
    if (at != std::string_view::npos && rest[at] == '"') break;
    if (at != std::string_view::npos && at + 1 < rest.size()) {
      at += 2;
      continue;
    }
    at = std::min(at, rest.size());
    if (!window_.Grow()) {
      return Fail(window_.TooLong() ? "a text of more than 1 MiB"
                                    : "the list ends inside a text that begins here");
    }
  }
  text = window_.Rest().substr(1, at - 1);
  window_.ConsumeTo(window_.Begin() + at + 1);
  return InfoToken::kText;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The bytes of a text with its escapes resolved. An escape that C doesn't have stands for itself.
std::string Unescaped(std::string_view text) {
  constexpr std::string_view kLetters = "nrtabfv";
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      bytes += text[i];
      continue;
    }
    const char kind = text[++i];
    const bool number = kind == 'x' && i + 2 < text.size() && HexDigit(text[i + 1]) >= 0 &&
                        HexDigit(text[i + 2]) >= 0;
    if (number) {
      bytes += static_cast<char>(HexDigit(text[i + 1]) * 16 + HexDigit(text[i + 2]));
      i += 2;
    } else if (kind == '"' || kind == '\\' || kind == '\'' || kind == '?') {
      bytes += kind;
    } else if (kLetters.find(kind) != std::string_view::npos) {
      bytes += ' ';
    } else {
      bytes += '\\';
      bytes += kind;
    }
  }
  return bytes;
}

class InfoListReader {
 public:
  InfoListReader(InputWindow& window, MachineSink& sink) : scanner_(window), sink_(sink) {}
  Status Read();

 private:
  enum class Kind { kMachine, kFacts };

  void BeginBlock(std::string_view kind);
  bool ReadBlock();
  bool TakeToken(InfoToken token, std::string_view text);
  bool EndBlock();
  void OpenNested();
  void CloseNested();
  void TakeValue(std::string_view value);
  void TakeMachineValue(std::string_view value);
  void TakeDriverValue(std::string_view value);
  void TakeChipValue(std::string_view value);

  InfoScanner scanner_;
  MachineSink& sink_;
  Machine machine_;
  ListFacts facts_;
  Kind kind_ = Kind::kFacts;
  bool had_machine_ = false;
  std::string key_;                  // the word whose value comes next
  std::vector<std::string> nested_;  // names of the blocks within the block
  std::string chip_;
  bool chip_is_cpu_ = false;
  bool chip_for_sound_ = false;
};

Status InfoListReader::Read() {
  std::string_view text;
  InfoToken token{};
  while ((token = scanner_.Next(text)) == InfoToken::kWord) {
    BeginBlock(text);
    if (!ReadBlock()) return Error{scanner_.Error()};
  }
  if (token == InfoToken::kEnd && had_machine_) return Success();
  if (token == InfoToken::kEnd) {
    scanner_.Fail("there is no game in the list");
  } else if (token != InfoToken::kError) {
    scanner_.Fail("a block such as \"game (\" is expected");
  }
  return Error{scanner_.Error()};
}

void InfoListReader::BeginBlock(std::string_view kind) {
  machine_.Clear();
  nested_.clear();
  key_.clear();
  const bool bios = kind == "resource" || kind == "bios";
  const bool machine = bios || kind == "game" || kind == "machine";
  kind_ = machine ? Kind::kMachine : Kind::kFacts;
  machine_.bios = bios;
  had_machine_ |= machine;
}

bool InfoListReader::ReadBlock() {
  std::string_view text;
  if (scanner_.Next(text) != InfoToken::kOpen) {
    scanner_.Fail("\"(\" is expected; this is no list of games that is known here");
    return false;
  }
  while (true) {
    const InfoToken token = scanner_.Next(text);
    if (token == InfoToken::kClose && nested_.empty()) return EndBlock();
    if (!TakeToken(token, text)) return false;
  }
}

bool InfoListReader::TakeToken(InfoToken token, std::string_view text) {
  switch (token) {
    case InfoToken::kWord:
    case InfoToken::kText:
      if (key_.empty()) {
        key_ = text;
      } else {
        TakeValue(text);
        key_.clear();
      }
      return true;
    case InfoToken::kOpen:
      OpenNested();
      if (nested_.size() <= kDeepest) return true;
      scanner_.Fail("too many blocks within one another");
      return false;
    case InfoToken::kClose:
      CloseNested();
      return true;
    case InfoToken::kEnd:
      scanner_.Fail("the list ends inside a block");
      return false;
    case InfoToken::kError:
      break;
  }
  return false;
}

bool InfoListReader::EndBlock() {
  if (kind_ == Kind::kFacts) {
    sink_.TakeFacts(facts_);
    return true;
  }
  if (machine_.rom.empty()) {
    scanner_.Fail("a game without a name ends here");
    return false;
  }
  const Status taken = sink_.Take(machine_);
  if (!taken) scanner_.Fail(taken.error().message);
  return taken.ok();
}

void InfoListReader::OpenNested() {
  chip_.clear();
  chip_is_cpu_ = chip_for_sound_ = false;
  if (key_ == "input") machine_.coins = YesNo::kNo;
  nested_.push_back(key_);
  key_.clear();
}

void InfoListReader::CloseNested() {
  if (nested_.back() == "chip" && !chip_.empty()) {
    if (chip_is_cpu_) {
      machine_.cpus.Add(CpuName(chip_, chip_for_sound_));
    } else {
      machine_.sound_chips.Add(chip_);
    }
  }
  nested_.pop_back();
  key_.clear();
}

void InfoListReader::TakeValue(std::string_view value) {
  if (nested_.empty()) {
    TakeMachineValue(value);
    return;
  }
  const std::string& block = nested_.back();
  if (block == "driver") TakeDriverValue(value);
  if (block == "chip") TakeChipValue(value);
  if (block == "video" && key_ == "screen") machine_.vector_screen = value == "vector";
  if (block == "input" && key_ == "coins" && value != "0") machine_.coins = YesNo::kYes;
  if (block == "dipswitch" && value == "Cocktail") machine_.cocktail = YesNo::kYes;
}

void InfoListReader::TakeMachineValue(std::string_view value) {
  if (kind_ == Kind::kFacts) {
    if (key_ == "name") facts_.name = Unescaped(value);
    if (key_ == "version") facts_.version = Unescaped(value);
    if (key_ == "date") facts_.date = Unescaped(value);
    return;
  }
  if (key_ == "name") machine_.rom = Unescaped(value);
  if (key_ == "description") machine_.description = Unescaped(value);
  if (key_ == "year") machine_.year = Unescaped(value);
  if (key_ == "manufacturer") machine_.manufacturer = Unescaped(value);
  if (key_ == "sourcefile") machine_.source = Unescaped(value);
  if (key_ == "cloneof") machine_.clone_of = Unescaped(value);
  if (key_ == "romof") machine_.rom_of = Unescaped(value);
  if (key_ == "sample" || key_ == "sampleof") machine_.samples = true;
}

void InfoListReader::TakeDriverValue(std::string_view value) {
  if (machine_.cocktail == YesNo::kUnknown) machine_.cocktail = YesNo::kNo;
  if (key_ == "status") machine_.status = GradeOf(value);
  if (key_ == "color") machine_.colors = GradeOf(value);
  if (key_ == "sound") machine_.sound = GradeOf(value);
}

void InfoListReader::TakeChipValue(std::string_view value) {
  if (key_ == "type") chip_is_cpu_ = value == "cpu";
  if (key_ == "flags") chip_for_sound_ = value == "audio";
  if (key_ == "name") chip_ = Unescaped(value);
}

}  // namespace

Status ReadInfoList(InputWindow& window, MachineSink& sink) {
  return InfoListReader(window, sink).Read();
}

}  // namespace zarvo
