// From the options of a game to the command line of its emulator.
#pragma once

#include <string>

#include "core/emulators/emulator.h"

namespace zarvo {

// The one line of the batch file, without a line end. No piece is ever quoted.
std::string CommandLine(const Emulator& emulator, const CommandInput& input);

}  // namespace zarvo
