// The names of a panel's controls on screen, told from the names of its members.
#pragma once

#include <string>
#include <string_view>

#include "core/emulators/emulator.h"

namespace zarvo {

// The emulator's word between the two parts: "lst" and "Rom" give "lstMameRom".
std::string ControlName(const Emulator& emulator, std::string_view head, std::string_view tail);

// The word behind the prefix in small letters: "cboScreenRes" gives "cboMameScreenRes".
std::string ControlName(const Emulator& emulator, std::string_view member);

// The same for the families whose members bear no word on some panels: "imgButSnap", "cmdLarge".
std::string BareName(const Emulator& emulator, std::string_view member);

}  // namespace zarvo
