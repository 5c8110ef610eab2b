// What a run of an emulator takes.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_path.h"

namespace zarvo {

// What the line of a batch file says.
struct BatchLine {
  DosPath program;   // it exists
  std::string tail;  // everything behind the program
};

// A program of the host with its arguments, in the host's bytes.
struct HostCommand {
  std::filesystem::path program;
  std::vector<std::string> arguments;
  std::filesystem::path folder;  // working folder
};

// What the planner asks of the host: tests answer by hand.
struct HostPrograms {
  // Absolute path of a program that the search path holds, or nothing.
  std::function<std::optional<std::filesystem::path>(std::string_view name)> find;
  // The player's own configuration of DOSBox, or nothing.
  std::function<std::optional<std::filesystem::path>()> dosbox_configuration;
};

// A file that is written before the run and deleted after it.
struct RunFile {
  std::filesystem::path path;
  std::string bytes;
};

// How one batch line is to be run.
struct RunPlan {
  HostCommand command;
  // In a folder for files of one session, under names that nobody can foresee.
  std::vector<RunFile> session_files{};
  // In the emulator's folder, where an older one of the name is replaced: for a DOS program the run
  // mark, and the helper where the line needs it.
  std::vector<RunFile> folder_files{};
  // That of kRunMark; empty for a native program.
  std::filesystem::path run_mark{};
  // Options, each with its values, that the program won't get: DOS hands on kLongestTail
  // characters, and the line that DOSBox runs ends in front of the first option that isn't among
  // them whole.
  std::vector<std::string> lost_options{};
  // The first word behind the program, which names the game.
  std::string first_word{};
};

}  // namespace zarvo
