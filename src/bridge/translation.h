// From the command line of one of the DOS emulators to one of today's MAME.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/emulators/emulator.h"
#include "core/platform/result.h"

namespace zarvo {

// The words behind the program's name: the game first, then what the words given are today, as the
// emulator's own file tells it. What is nothing today is left out. The error names the first word
// that the emulator doesn't know, or tells that there is no game.
Result<std::vector<std::string>> Translate(const Emulator& emulator,
                                           std::span<const std::string_view> words);

// The translations of all emulators as a page of Markdown.
std::string TranslationTable();

}  // namespace zarvo
