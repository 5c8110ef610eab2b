#include "core/platform/child_process.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <system_error>

#include "core/platform/dosbox.h"
#include "core/platform/host_file.h"
#include "core/platform/line_reader.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

Result<BatchLine> ReadBatchLine(const DosFiles& files, const FileName& batch) {
  auto source = files.Open(batch);
  if (!source) return Error{batch.Text() + ": " + source.error().message};
  LineReader lines(std::move(*source));
  std::string_view line;
  if (!lines.Next(line)) line = {};
  line = TrimBlanks(line);
  // Paths hold blanks and have no quotes, so only the files tell where the program's name ends.
  for (std::size_t end = line.size(); end != 0 && end != std::string_view::npos;
       end = line.rfind(' ', end - 1)) {
    const DosPath program(line.substr(0, end));
    if (!program.Text().ends_with(' ') && files.FileExists(program)) {
      return BatchLine{program, std::string(line.substr(end))};
    }
  }
  return Error{"There is no program " + Quoted(line.substr(0, line.find(' '))) + "."};
}

// True for what the host can run by itself.
bool IsNative(const DosFiles& files, const DosPath& program) {
  auto source = files.Open(program);
  std::array<char, 4> start{};
  if (!source || (*source)->Read(start.data(), start.size()) < 2) return false;
  const std::string_view magic(start.data(), start.size());
  return magic ==
             "\x7F"
             "ELF" ||
         magic.starts_with("#!");
}

Result<RunPlan> PlanNative(const DosFiles& files, const BatchLine& line) {
  auto program = files.HostPath(line.program);
  if (!program) return program.error();
  auto folder = files.HostPath("");
  if (!folder) return folder.error();
  if (access(program->c_str(), X_OK) != 0) {
    return Error{"The program " + Quoted(line.program.Text()) +
                 " may not be run. Please make the file executable."};
  }
  HostCommand command{*program, {}, *folder};
  for (const std::string& argument : SplitAtBlanks(line.tail)) {
    command.arguments.push_back(ToUtf8(argument));
  }
  RunPlan plan;
  plan.command = std::move(command);
  return plan;
}

// Files that go when it goes.
class RunFiles {
 public:
  RunFiles() = default;
  ~RunFiles() {
    for (const std::filesystem::path& path : made_) unlink(path.c_str());
  }
  RunFiles(const RunFiles&) = delete;
  RunFiles& operator=(const RunFiles&) = delete;

  Status Make(const RunFile& file, unsigned mode) {
    Status made = CreateFile(file.path, file.bytes, mode, false);
    if (made) made_.push_back(file.path);
    return made;
  }

 private:
  std::vector<std::filesystem::path> made_;
};

// The first bytes of a file of the host; nothing if it isn't there.
std::string StartOf(const std::filesystem::path& path) {
  const auto file = OpenPlainFile(path);
  if (!file) return {};
  std::array<char, 16> bytes{};
  const long got = ReadSome(file->get(), bytes.data(), bytes.size());
  return {bytes.data(), static_cast<std::size_t>(got < 0 ? 0 : got)};
}

// DOSBox names the file after its version; it writes one with all of its defaults where there is
// none, so it is handed over by name and never asked for.
std::optional<std::filesystem::path> NewestDosBoxConfiguration() {
  const char* const home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
  std::optional<std::filesystem::path> newest;
  if (home == nullptr) return newest;
  std::error_code failure;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(home) / ".dosbox", failure)) {
    const std::string name = entry.path().filename();
    const bool is_one = name.starts_with("dosbox-") && name.ends_with(".conf");
    if (is_one && (!newest || newest->filename() < entry.path().filename())) newest = entry.path();
  }
  return newest;
}

// The last lines of what a program printed, for a box: each behind a carriage return, without
// blank lines and control characters.
std::string LastLines(std::string_view output) {
  constexpr std::size_t kMostLines = 10;
  std::vector<std::string> lines;
  while (!output.empty()) {
    const std::size_t end = std::min(output.size(), output.find_first_of("\r\n"));
    std::string words(output.substr(0, end));
    output.remove_prefix(std::min(output.size(), end + 1));
    std::erase_if(words, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
    std::string line = ForMessage(words);
    if (!TrimBlanks(line).empty()) lines.push_back(std::move(line));
  }
  std::string text;
  const std::size_t first = lines.size() - std::min(lines.size(), kMostLines);
  for (std::size_t i = first; i < lines.size(); ++i) text += "\r" + lines[i];
  return text.empty() ? text : "\r\rIt says:" + text;
}

}  // namespace

HostPrograms ThisHost() {
  const auto find = [](std::string_view name) -> std::optional<std::filesystem::path> {
    const char* const path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe)
    std::string_view folders = path == nullptr ? "/usr/local/bin:/usr/bin:/bin" : path;
    while (!folders.empty()) {
      const std::filesystem::path folder(folders.substr(0, folders.find(':')));
      folders.remove_prefix(std::min(folders.size(), folder.native().size() + 1));
      if (!folder.is_absolute()) continue;  // never a program of the current folder
      std::filesystem::path program = folder / name;
      struct stat state {};
      if (stat(program.c_str(), &state) == 0 && S_ISREG(state.st_mode) &&
          access(program.c_str(), X_OK) == 0) {
        return program;
      }
    }
    return std::nullopt;
  };
  return {find, NewestDosBoxConfiguration};
}

Result<RunPlan> PlanRun(const DosFiles& files, const FileName& batch, const HostPrograms& host) {
  const auto line = ReadBatchLine(files, batch);
  if (!line) return line.error();
  if (IsNative(files, line->program)) return PlanNative(files, *line);
  return PlanDosBox(files, *line, batch, host);
}

Result<RunOutcome> CarryOut(const RunPlan& plan, ChildRunner& runner) {
  if (plan.run_mark.empty()) return runner.Run(plan.command);
  RunFiles files;
  for (const RunFile& file : plan.session_files) {
    const Status made = files.Make(file, 0600);
    if (!made) {
      return Error{"The configuration of DOSBox can't be written: " + made.error().message};
    }
  }
  for (const RunFile& file : plan.folder_files) {
    unlink(file.path.c_str());  // of a run that was cut off
    const Status made = files.Make(file, kNewFileMode);
    if (!made) return Error{file.path.filename().string() + ": " + made.error().message};
  }
  RunOutcome outcome = runner.Run(plan.command);
  const std::string mark = StartOf(plan.run_mark);
  outcome.program_failed = mark.starts_with(kMarkFailed);
  outcome.never_began = mark.starts_with(kMarkWaiting);
  return outcome;
}

Status JudgeRun(const RunPlan& plan, const RunOutcome& outcome, std::chrono::milliseconds took) {
  // An error level counts only where the program ended at once: many programs end with one after a
  // good game.
  constexpr std::chrono::seconds kAtOnce{5};
  if (!outcome.started) {
    return Error{
        "The emulator could not be started. Please check that its program, or DOSBox, can "
        "be run."};
  }
  const std::string words = plan.run_mark.empty() ? LastLines(outcome.last_output) : "";
  if (outcome.crashed) {
    return Error{
        "The emulator was broken off from outside, or it crashed. If that happens again, "
        "please try other options in section SETTINGS." +
        words};
  }
  if (outcome.never_began) {
    return Error{
        "DOSBox has ended and didn't come to the game. Please look into your own configuration of "
        "DOSBox: an \"exit\" in its section [autoexec] does that."};
  }
  if (took < kAtOnce && (outcome.program_failed || outcome.exit_code != 0)) {
    return Error{
        "The emulator ended at once with an error. Please check the game's options and its "
        "rom, or start the emulator by hand to read what it says." +
        words};
  }
  return Success();
}

}  // namespace zarvo
