#include "import/list_text.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/platform/text.h"

namespace zarvo {
namespace {

struct Substitute {
  char32_t first;  // of a range of code points
  char32_t last;
  std::string_view text;
};

// Sorted by code point. Letters with an accent come in pairs, capital first, in most of the range;
// those have a row for each run of one base letter in kAccented below.
constexpr std::array kSubstitutes = {
    Substitute{0x00A0, 0x00A0, " "},   Substitute{0x00AD, 0x00AD, ""},
    Substitute{0x0132, 0x0132, "IJ"},  Substitute{0x0133, 0x0133, "ij"},
    Substitute{0x0300, 0x036F, ""},  // accents that follow their letter
    Substitute{0x1E9E, 0x1E9E, "SS"},  Substitute{0x2000, 0x200A, " "},
    Substitute{0x200B, 0x200F, ""},    Substitute{0x2010, 0x2012, "-"},
    Substitute{0x2015, 0x2015, "-"},   Substitute{0x2028, 0x2029, " "},
    Substitute{0x202F, 0x202F, " "},   Substitute{0x2032, 0x2032, "'"},
    Substitute{0x2033, 0x2033, "\""},  Substitute{0x2044, 0x2044, "/"},
    Substitute{0x2160, 0x2160, "I"},   Substitute{0x2161, 0x2161, "II"},
    Substitute{0x2162, 0x2162, "III"}, Substitute{0x2163, 0x2163, "IV"},
    Substitute{0x2164, 0x2164, "V"},   Substitute{0x2212, 0x2212, "-"},
    Substitute{0x2605, 0x2606, "*"},   Substitute{0x3000, 0x3000, " "},
    Substitute{0xFEFF, 0xFEFF, ""},
};

// Base letters of U+0100 to U+017F, two letters of the alphabet for each pair of code points; "."
// where the pair isn't one letter in two cases.
constexpr std::string_view kAccented =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi..JjKkkLlLlLlLlLlNnNnNnnNnOoOoOo.."
    "RrRrRrSsSsSs"
    "SsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(kAccented.size() == 128);

std::string_view SubstituteOf(char32_t character) {
  const auto* const row =
      std::find_if(kSubstitutes.begin(), kSubstitutes.end(), [character](const Substitute& each) {
        return character >= each.first && character <= each.last;
      });
  if (row != kSubstitutes.end()) return row->text;
  if (character >= 0x100 && character < 0x180 && kAccented[character - 0x100] != '.') {
    return kAccented.substr(character - 0x100, 1);
  }
  return "?";
}

void AppendByte(unsigned char byte, std::string& out) {
  if (byte == ';') {
    out += ',';
  } else if (byte == '\t' || byte == '\n' || byte == '\r') {
    out += ' ';
  } else if (byte >= ' ' && byte != 0x7F) {
    out += static_cast<char>(byte);
  }
}

bool IsControl(char32_t character) { return character >= 0x7F && character < 0xA0; }

void AppendCharacter(char32_t character, std::string& out) {
  constexpr char32_t kWideFirst = 0xFF01;  // ASCII in the width of a Japanese sign
  constexpr char32_t kWideLast = 0xFF5E;
  if (IsControl(character)) return;
  if (character >= kWideFirst && character <= kWideLast) character -= kWideFirst - '!';
  const bool has_substitute = character == 0xA0 || character == 0xAD;
  const auto byte = has_substitute ? std::nullopt : FromUnicode(character);
  if (byte) {
    AppendByte(*byte, out);
  } else {
    out += SubstituteOf(character);
  }
}

// Nearly all texts are: printable ASCII that means the same in a data file.
bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c >= ' ' && c <= '~' && c != ';'; });
}

// One of the bytes 0x80 to 0xFF that stands for itself.
void AppendForeignByte(unsigned char byte, std::string& out) {
  if (!IsControl(ToUnicode(byte))) AppendByte(byte, out);
}

}  // namespace

std::string ToFieldText(std::string_view text) {
  if (IsPlain(text)) return std::string(TrimBlanks(text));
  std::string field;
  field.reserve(text.size());
  while (!text.empty()) {
    if (const auto character = TakeUtf8(text)) {
      AppendCharacter(*character, field);
    } else {
      AppendForeignByte(static_cast<unsigned char>(text.front()), field);
      text.remove_prefix(1);
    }
  }
  const std::string_view trimmed = TrimBlanks(field);
  return trimmed.size() == field.size() ? field : std::string(trimmed);
}

std::string ToGameName(std::string_view text) {
  std::string name = ToFieldText(text);
  std::replace(name.begin(), name.end(), '"', '\'');
  name.erase(0, std::min(name.size(), name.find_first_not_of("#* ")));
  return name;
}

std::string_view BaseName(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool IsUsableRomName(std::string_view rom) {
  constexpr std::size_t kLongest = 64;
  if (rom.empty() || rom.size() > kLongest || rom.front() == '-' || rom.front() == '.')
    return false;
  return rom.find_first_not_of(
             "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+!.") ==
         std::string_view::npos;
}

}  // namespace zarvo
