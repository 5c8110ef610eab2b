// Text in the program's code page, Windows-1252: one byte a character.
//
// Everything inside the core is bytes of Windows-1252. Unicode begins at the windows and at the
// names of the host's files, and these functions are the border.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

// The lower-case form of one character of Windows-1252; other characters come back unchanged.
unsigned char FoldCase(unsigned char character);

std::string FoldCase(std::string_view text);

// Lower case without accents, for what is looked for by hand: "\xC9lan" is "elan".
void FoldAccents(std::string_view text, std::string& folded);

// The one order of the program: letters folded to lower case, then compared byte by byte.
// Less than, equal to or greater than zero, as `left` stands before, beside or behind `right`.
int CompareNoCase(std::string_view left, std::string_view right);

inline bool EqualNoCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() && CompareNoCase(left, right) == 0;
}

inline bool LessNoCase(std::string_view left, std::string_view right) {
  return CompareNoCase(left, right) < 0;
}

// Windows-1252 to UTF-8. The five bytes without a meaning become the control characters of the
// same number, so that every byte survives the way there and back.
std::string ToUtf8(std::string_view bytes);

// UTF-8 to Windows-1252; nothing if the text isn't UTF-8 or holds a character that Windows-1252
// doesn't have.
std::optional<std::string> FromUtf8(std::string_view utf8);

// Decodes one character of UTF-8 and drops it from `utf8`, which isn't empty; nothing for bytes
// that aren't well-formed.
std::optional<char32_t> TakeUtf8(std::string_view& utf8);

// Text of the host for a message: its first 200 characters, with question marks for control
// characters and for what isn't UTF-8 or not in Windows-1252.
std::string ForMessage(std::string_view host_text);

// The Unicode code point of one byte of Windows-1252.
char32_t ToUnicode(unsigned char byte);

// The byte of a code point, or nothing if Windows-1252 doesn't have it.
std::optional<unsigned char> FromUnicode(char32_t code_point);

// A whole number in decimal digits with an optional minus sign, nothing before or behind it, in the
// range of a signed 16-bit integer; otherwise nothing.
std::optional<int> ParseInt16(std::string_view text);

// `text` without blanks at both ends.
std::string_view TrimBlanks(std::string_view text);

// The words between blanks.
std::vector<std::string> SplitAtBlanks(std::string_view text);

}  // namespace zarvo
