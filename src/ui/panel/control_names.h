// The names of a panel's controls on screen, told from the names of its members.
#pragma once

#include <string>
#include <string_view>

#include "core/emulators/emulator_profile.h"

namespace zarvo {

// The emulator's word between the two parts: "lst" and "Rom" give "lstMameRom".
std::string ControlName(const EmulatorProfile& profile, std::string_view head,
                        std::string_view tail);

// The word behind the prefix in small letters: "cboScreenRes" gives "cboMameScreenRes".
std::string ControlName(const EmulatorProfile& profile, std::string_view member);

// The same for the families in which MAME's members bear no word: "imgButSnap", "cmdLarge".
std::string BareMameName(const EmulatorProfile& profile, std::string_view member);

}  // namespace zarvo
