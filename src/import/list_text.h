// The texts of a list on their way into a data file.
#pragma once

#include <string>
#include <string_view>

namespace zarvo {

// Text as a field of a data file holds it: Windows-1252, on one line, without blanks at its ends
// and without semicolons (they become commas). Letters that the code page lacks lose their accents,
// anything else that it lacks becomes "?". Bytes that aren't UTF-8 are taken for Windows-1252.
std::string ToFieldText(std::string_view text);

// The same for a game's name: it doesn't begin like a comment or a header line, and it holds no
// double quotation mark, since the player's own files enclose names in them. May be empty.
std::string ToGameName(std::string_view text);

// The last part of a path with either kind of slash: "pacman.cpp" of "pacman/pacman.cpp".
std::string_view BaseName(std::string_view path);

// Whether a rom name is a plain DOS or host file name that may be looked for, copied and handed to
// an emulator: letters, digits and a few signs.
bool IsUsableRomName(std::string_view rom);

}  // namespace zarvo
