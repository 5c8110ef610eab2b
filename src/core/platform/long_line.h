// A command line that is longer than DOS hands on.
#pragma once

#include <string>

#include "core/platform/run_plan.h"

namespace zarvo {

// A program for DOS that starts the program of the line with the whole tail: as COMMAND.COM of DOS
// 7 does it, in the variable CMDLINE. It ends with the program's error level.
std::string LongLineProgram(const BatchLine& line);

}  // namespace zarvo
