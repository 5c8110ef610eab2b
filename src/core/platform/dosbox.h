// How a DOS program is run: in DOSBox, with a configuration for this run.
#pragma once

#include <cstddef>
#include <string_view>

#include "core/platform/dos_files.h"
#include "core/platform/result.h"
#include "core/platform/run_plan.h"

namespace zarvo {

// DOS hands a program no more of its command line than this many characters.
inline constexpr std::size_t kLongestTail = 126;

// Two files in the emulator's folder during a run: how far the run came, and the program that hands
// on a longer line.
inline constexpr std::string_view kRunMark = "ZARVO.ERR";
inline constexpr std::string_view kLongLineProgram = "ZARVO$$$.COM";

// What stands in the mark: at first, while the program runs, and after an error level.
inline constexpr std::string_view kMarkWaiting = "waiting";
inline constexpr std::string_view kMarkRunning = "running";
inline constexpr std::string_view kMarkFailed = "failed";

// Plans the run of the line that the batch file holds, in the current folder of `files`. Only the
// drive of that folder is mounted, the folder is current, and DOSBox ends when the program ends. Of
// the configurations each applies over the one before: what suits arcade emulators, the player's
// own, a dosbox.conf in the folder, the lines of this run. A longer tail than kLongestTail reaches
// a program with the loader of DJGPP whole, for that reads it where DOS 7 puts it; for any other it
// is cut. Fails with a sentence for the player.
Result<RunPlan> PlanDosBox(const DosFiles& files, const BatchLine& line, const FileName& batch,
                           const HostPrograms& host);

}  // namespace zarvo
