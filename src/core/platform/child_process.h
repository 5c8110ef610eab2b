// Running the batch file of a launch: which program it names, and how the host runs that program.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_files.h"
#include "core/platform/result.h"
#include "core/platform/run_plan.h"

namespace zarvo {

// How the host ran a command.
struct RunOutcome {
  bool started = false;
  bool crashed = false;
  int exit_code = 0;
  // The end of what it printed, at most kKeptOutput bytes of the host.
  std::string last_output{};
  // Told by the run of the plan, not by the runner: the DOS program ended with an error level;
  // DOSBox ended before it came to the program.
  bool program_failed = false;
  bool never_began = false;
};

inline constexpr std::size_t kKeptOutput = 8192;

// Runs one host command and returns when it has ended. A seam: the windows run it while they keep
// painting, tests record it.
class ChildRunner {
 public:
  virtual ~ChildRunner() = default;
  virtual RunOutcome Run(const HostCommand& command) = 0;
};

// The programs of this host, in the folders of $PATH that are full paths, and the newest of the
// configurations of DOSBox in ~/.dosbox.
HostPrograms ThisHost();

// Plans the run of the batch file `batch` in the current folder of `files`. Its one line names the
// program: the longest beginning of the line, up to a blank or the end, that is an existing file.
// A native program (ELF or "#!") runs directly; everything else runs in DOSBox, see PlanDosBox.
// Fails with a sentence for the player: DOSBox missing, a folder or program that DOS can't name (a
// component longer than 8.3, a blank), no such program.
Result<RunPlan> PlanRun(const DosFiles& files, const FileName& batch, const HostPrograms& host);

// Carries a plan out: writes its files, runs it, deletes the files.
Result<RunOutcome> CarryOut(const RunPlan& plan, ChildRunner& runner);

// What the player should know of a run that took so long, or success for a run like any other: one
// that was broken off, and one that ended at once with an error, with the last lines that a native
// program printed.
Status JudgeRun(const RunPlan& plan, const RunOutcome& outcome, std::chrono::milliseconds took);

}  // namespace zarvo
