// Running the batch file of a launch: which program it names, and how the host runs that program.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dos_files.h"
#include "platform/result.h"

namespace zarvo {

// A program of the host with its arguments, in the host's bytes.
struct HostCommand {
  std::string program;
  std::vector<std::string> arguments;
  std::string folder;  // working folder
};

// How the host ran a command.
struct RunOutcome {
  bool started = false;
  bool crashed = false;
  int exit_code = 0;
  // The DOS program ended with an error level. Told by the run of the plan, not by the runner.
  bool program_failed = false;
};

// DOS hands a program no more of its command line than this many characters.
inline constexpr std::size_t kLongestTail = 126;

// Runs one host command and returns when it has ended. A seam: the windows run it while they keep
// painting, tests record it.
class ChildRunner {
 public:
  virtual ~ChildRunner() = default;
  virtual RunOutcome Run(const HostCommand& command) = 0;
};

// What the planner asks of the host: tests answer by hand.
struct HostPrograms {
  // Absolute path of a program that the search path holds, or nothing.
  std::function<std::optional<std::string>(std::string_view name)> find;
  // True if a desktop stands that can open a terminal window.
  bool has_display = false;
};

// The programs of this host: $PATH, and a display if $DISPLAY or $WAYLAND_DISPLAY is set.
HostPrograms ThisHost();

// How one batch line is to be run.
struct RunPlan {
  HostCommand command;
  // Text of the DOSBox configuration to write to `configuration_path` (host path) before the run
  // and to delete after it; both empty for a native program.
  std::string configuration;
  std::string configuration_path;
  // Host path of a file that the run in DOSBox leaves behind if the program ended with an error
  // level; empty for a native program.
  std::string failure_mark{};
  // Characters of the command line that DOS won't hand to the program.
  std::size_t lost_characters = 0;
};

// Plans the run of the batch file `batch` in the current folder of `files`. Its one line names the
// program: the longest beginning of the line, up to a blank or the end, that is an existing file.
// A native program (ELF or "#!") runs directly, in a terminal window if the desktop has one;
// everything else runs in DOSBox, with only the drive of the current folder mounted, the current
// folder current, and an end when the program ends.
// Fails with a sentence for the player: DOSBox missing, a folder or program that DOS can't name (a
// component longer than 8.3, a blank), no such program.
Result<RunPlan> PlanRun(const DosFiles& files, std::string_view batch, const HostPrograms& host);

// Carries a plan out: writes its configuration, runs it, deletes the configuration and the mark of
// a failure.
Result<RunOutcome> CarryOut(const RunPlan& plan, ChildRunner& runner);

}  // namespace zarvo
