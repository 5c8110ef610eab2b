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

namespace zarvo {

// A program of the host with its arguments, in the host's bytes.
struct HostCommand {
  std::filesystem::path program;
  std::vector<std::string> arguments;
  std::filesystem::path folder;  // working folder
};

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

// DOS hands a program no more of its command line than this many characters.
inline constexpr std::size_t kLongestTail = 126;

// The file in the emulator's folder that tells how far a run in DOSBox came.
inline constexpr std::string_view kRunMark = "ZARVO.ERR";

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
  std::function<std::optional<std::filesystem::path>(std::string_view name)> find;
};

// The programs of this host, in the folders of $PATH that are full paths.
HostPrograms ThisHost();

// How one batch line is to be run.
struct RunPlan {
  HostCommand command;
  // Text of the DOSBox configuration to write to `configuration_path` before the run and to delete
  // after it; both empty for a native program.
  std::string configuration;
  std::filesystem::path configuration_path;
  // That of kRunMark; empty for a native program.
  std::filesystem::path run_mark{};
  // Options, each with its values, that the program won't get: DOS hands on kLongestTail
  // characters, and the line that DOSBox runs ends in front of the first option that isn't among
  // them whole.
  std::vector<std::string> lost_options{};
  // The first word behind the program, which names the game.
  std::string first_word{};
};

// Plans the run of the batch file `batch` in the current folder of `files`. Its one line names the
// program: the longest beginning of the line, up to a blank or the end, that is an existing file.
// A native program (ELF or "#!") runs directly; everything else runs in DOSBox, with only the drive
// of the current folder mounted, the current folder current, and an end when the program ends.
// Fails with a sentence for the player: DOSBox missing, a folder or program that DOS can't name (a
// component longer than 8.3, a blank), no such program.
Result<RunPlan> PlanRun(const DosFiles& files, const FileName& batch, const HostPrograms& host);

// Carries a plan out: writes its configuration, runs it, deletes the configuration and the mark.
Result<RunOutcome> CarryOut(const RunPlan& plan, ChildRunner& runner);

// What the player should know of a run that took so long, or success for a run like any other: one
// that was broken off, and one that ended at once with an error, with the last lines that a native
// program printed.
Status JudgeRun(const RunPlan& plan, const RunOutcome& outcome, std::chrono::milliseconds took);

}  // namespace zarvo
