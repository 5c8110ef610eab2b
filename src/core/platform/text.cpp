#include "core/platform/text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zarvo {
namespace {

// Code points of the bytes 0x80 to 0x9F; the rest of the page is that of Latin-1.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<unsigned char, 256> MakeFoldTable() {
  std::array<unsigned char, 256> table{};
  for (int byte = 0; byte < 256; ++byte) {
    const bool ascii_upper = byte >= 'A' && byte <= 'Z';
    const bool latin_upper = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    table[byte] = static_cast<unsigned char>(ascii_upper || latin_upper ? byte + 0x20 : byte);
  }
  table[0x8A] = 0x9A;  // S with caron
  table[0x8C] = 0x9C;  // ligature OE
  table[0x8E] = 0x9E;  // Z with caron
  table[0x9F] = 0xFF;  // Y with diaeresis
  return table;
}

constexpr std::array<unsigned char, 256> kFold = MakeFoldTable();

constexpr std::array<unsigned char, 256> MakeBareTable() {
  // The letters from 0xE0 on; a dot for those that have no accent.
  constexpr std::string_view kBare = "aaaaaa.ceeeeiiii.nooooo.ouuuuy.y";
  std::array<unsigned char, 256> table = kFold;
  for (unsigned char& letter : table) {
    if (letter >= 0xE0 && kBare[letter - 0xE0U] != '.') {
      letter = static_cast<unsigned char>(kBare[letter - 0xE0U]);
    }
    if (letter == 0x9A) letter = 's';
    if (letter == 0x9E) letter = 'z';
  }
  return table;
}

constexpr std::array<unsigned char, 256> kBareFold = MakeBareTable();

void AppendUtf8(char32_t code_point, std::string& out) {
  if (code_point < 0x80) {
    out += static_cast<char>(code_point);
  } else if (code_point < 0x800) {
    out += static_cast<char>(0xC0 | (code_point >> 6));
    out += static_cast<char>(0x80 | (code_point & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (code_point >> 12));
    out += static_cast<char>(0x80 | ((code_point >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code_point & 0x3F));
  }
}

}  // namespace

unsigned char FoldCase(unsigned char character) { return kFold[character]; }

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) c = static_cast<char>(kFold[static_cast<unsigned char>(c)]);
  return folded;
}

void FoldAccents(std::string_view text, std::string& folded) {
  folded = text;
  for (char& c : folded) c = static_cast<char>(kBareFold[static_cast<unsigned char>(c)]);
}

int CompareNoCase(std::string_view left, std::string_view right) {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    const int difference =
        kFold[static_cast<unsigned char>(left[i])] - kFold[static_cast<unsigned char>(right[i])];
    if (difference != 0) return difference;
  }
  if (left.size() == right.size()) return 0;
  return left.size() < right.size() ? -1 : 1;
}

char32_t ToUnicode(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80] : byte;
}

std::optional<unsigned char> FromUnicode(char32_t code_point) {
  if (code_point < 0x80 || (code_point >= 0xA0 && code_point <= 0xFF)) {
    return static_cast<unsigned char>(code_point);
  }
  const auto* const place =
      std::find(kUpperControls.begin(), kUpperControls.end(), static_cast<char16_t>(code_point));
  if (code_point > 0xFFFF || place == kUpperControls.end()) return std::nullopt;
  return static_cast<unsigned char>(0x80 + (place - kUpperControls.begin()));
}

std::string ToUtf8(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char c : bytes) AppendUtf8(ToUnicode(static_cast<unsigned char>(c)), utf8);
  return utf8;
}

std::optional<char32_t> TakeUtf8(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || utf8.size() < length) return std::nullopt;
  char32_t code_point = length == 1 ? lead : lead & (0xFF >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    code_point = (code_point << 6) | (byte & 0x3F);
  }
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  if (code_point < kSmallest[length]) return std::nullopt;
  utf8.remove_prefix(length);
  return code_point;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto code_point = TakeUtf8(utf8);
    const auto byte = code_point ? FromUnicode(*code_point) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += static_cast<char>(*byte);
  }
  return bytes;
}

std::string ForMessage(std::string_view host_text) {
  constexpr std::size_t kMostShown = 200;
  const auto exact = FromUtf8(host_text);
  const std::string whole = exact ? *exact : std::string(host_text);
  std::string said = whole.substr(0, kMostShown);
  for (char& c : said) {
    const bool is_control = static_cast<unsigned char>(c) < ' ' || c == '\x7F';
    if (is_control || (!exact && static_cast<signed char>(c) < 0)) c = '?';
  }
  return whole.size() > said.size() ? said + "..." : said;
}

std::optional<int> ParseInt16(std::string_view text) {
  int value = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, failure] = std::from_chars(text.data(), end, value);
  if (failure != std::errc{} || rest != end || value < INT16_MIN || value > INT16_MAX) {
    return std::nullopt;
  }
  return value;
}

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> SplitAtBlanks(std::string_view text) {
  std::vector<std::string> words;
  while (!(text = TrimBlanks(text)).empty()) {
    words.emplace_back(text.substr(0, text.find(' ')));
    text.remove_prefix(words.back().size());
  }
  return words;
}

}  // namespace zarvo
