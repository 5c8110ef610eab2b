// From the options of a game to the command line of its emulator.
#pragma once

#include <string>
#include <string_view>

#include "core/emulators/emulator_profile.h"
#include "core/launch/option_table.h"

namespace zarvo {

// A moment of local time, for the name of a recording.
struct ClockTime {
  int year = 0;  // four digits
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

struct CommandInput {
  std::string emulator_path;
  std::string rom_name;
  OptionValues options;
  std::string recording;  // file name of the recording to play back, with its extension
  ClockTime now;
};

// The one line of the batch file, without a line end. No piece is ever quoted.
std::string CommandLine(const EmulatorProfile& profile, const CommandInput& input);

}  // namespace zarvo
