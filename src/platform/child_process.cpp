#include "platform/child_process.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <random>

#include "platform/dos_path.h"
#include "platform/host_file.h"
#include "platform/line_reader.h"
#include "platform/text.h"

namespace zarvo {
namespace {

// A terminal window, with the words that make it run a program and stay until it has ended. Without
// them some hand the work to a server and return at once.
struct Terminal {
  std::string_view program;
  std::array<std::string_view, 2> words;
};

constexpr std::array<Terminal, 12> kTerminals = {{
    {"xterm", {"-e"}},
    {"konsole", {"--separate", "-e"}},
    {"gnome-terminal", {"--wait", "--"}},
    {"xfce4-terminal", {"--disable-server", "-x"}},
    {"mate-terminal", {"--disable-factory", "-x"}},
    {"lxterminal", {"--no-remote", "-e"}},
    {"alacritty", {"-e"}},
    {"kitty", {}},
    {"foot", {}},
    {"urxvt", {"-e"}},
    {"st", {"-e"}},
    {"x-terminal-emulator", {"-e"}},
}};

// What a batch line says.
struct BatchLine {
  std::string program;   // a DOS path that exists
  std::size_t tail = 0;  // characters behind the program
  std::vector<std::string> arguments;
};

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

std::vector<std::string> SplitAtBlanks(std::string_view text) {
  std::vector<std::string> words;
  while (!(text = TrimBlanks(text)).empty()) {
    words.emplace_back(text.substr(0, text.find(' ')));
    text.remove_prefix(words.back().size());
  }
  return words;
}

Result<BatchLine> ReadBatchLine(const DosFiles& files, std::string_view batch) {
  auto source = files.Open(batch);
  if (!source) return Error{std::string(batch) + ": " + source.error().message};
  LineReader lines(std::move(*source));
  std::string_view line;
  if (!lines.Next(line)) line = {};
  line = TrimBlanks(line);
  // Paths hold blanks and have no quotes, so only the files tell where the program's name ends.
  for (std::size_t end = line.size(); end != 0 && end != std::string_view::npos;
       end = line.rfind(' ', end - 1)) {
    const std::string_view program = line.substr(0, end);
    if (!program.ends_with(' ') && files.FileExists(program)) {
      return BatchLine{std::string(program), line.size() - end, SplitAtBlanks(line.substr(end))};
    }
  }
  return Error{"There is no program " + Quoted(line.substr(0, line.find(' '))) + "."};
}

// True for what the host can run by itself.
bool IsNative(const DosFiles& files, const std::string& program) {
  auto source = files.Open(program);
  std::array<char, 4> start{};
  if (!source || (*source)->Read(start.data(), start.size()) < 2) return false;
  const std::string_view magic(start.data(), start.size());
  return magic ==
             "\x7F"
             "ELF" ||
         magic.starts_with("#!");
}

// Puts a terminal window round a command, if the host has one.
HostCommand InTerminal(HostCommand command, const HostPrograms& host) {
  if (!host.has_display) return command;
  for (const Terminal& terminal : kTerminals) {
    const auto program = host.find(terminal.program);
    if (!program) continue;
    std::vector<std::string> arguments;
    for (const std::string_view word : terminal.words) {
      if (!word.empty()) arguments.emplace_back(word);
    }
    arguments.push_back(command.program);
    arguments.insert(arguments.end(), command.arguments.begin(), command.arguments.end());
    return {*program, std::move(arguments), command.folder};
  }
  return command;
}

Result<RunPlan> PlanNative(const DosFiles& files, const BatchLine& line, const HostPrograms& host) {
  auto program = files.HostPath(line.program);
  if (!program) return program.error();
  auto folder = files.HostPath("");
  if (!folder) return folder.error();
  if (access(program->c_str(), X_OK) != 0) {
    return Error{"The program " + Quoted(line.program) +
                 " may not be run. Please make the file executable."};
  }
  HostCommand command{*program, {}, *folder};
  for (const std::string& argument : line.arguments) {
    command.arguments.push_back(ToUtf8(argument));
  }
  RunPlan plan;
  plan.command = InTerminal(std::move(command), host);
  return plan;
}

// The sentence for the first component that DOS can't name, or success.
Status CheckDosNames(std::string_view path) {
  for (const std::string& component : PathComponents(path)) {
    if (IsDosName(component)) continue;
    return Error{"DOS can't name " + Quoted(component) + " in " + Quoted(path) +
                 ". Please rename it: at most eight letters or digits, then perhaps a dot and at "
                 "most three, and no blank."};
  }
  return Success();
}

// A name that nobody can foresee, in the folder for files of one session.
std::string NewConfigurationPath() {
  const char* const session = std::getenv("XDG_RUNTIME_DIR");  // NOLINT(concurrency-mt-unsafe)
  const bool has_session = session != nullptr && *session == '/' && access(session, W_OK) == 0;
  std::random_device random;
  const std::uint64_t number = (std::uint64_t{random()} << 32) | random();
  return JoinHostPath(has_session ? session : "/tmp", "zarvo-" + std::to_string(number) + ".conf");
}

// The file in the emulator's folder that tells of an error level.
constexpr std::string_view kFailureMark = "ZARVO.ERR";

// DOSBox runs these lines behind the player's own. The drive is the folder that DOSBox is started
// in: so no host path, whatever characters it holds, stands where DOSBox would take it apart.
std::string DosBoxConfiguration(const std::string& dos_folder, std::string_view batch) {
  const std::string drive = dos_folder.substr(0, 1);
  std::string text = "[autoexec]\n@echo off\n";
  text += "mount -u " + drive + " >nul\n";
  text += "mount " + drive + " . >nul\n";
  text += drive + ":\n";
  text += "cd " + dos_folder.substr(2) + "\n";
  text += "call " + std::string(batch) + "\n";
  // An error level is known in here alone.
  text += "if errorlevel 1 goto failed\n";
  text += "exit\n";
  text += ":failed\n";
  text += "echo failed>" + JoinPath(dos_folder, kFailureMark) + "\n";
  text += "exit\n";
  return text;
}

Result<RunPlan> PlanDosBox(const DosFiles& files, const BatchLine& line, std::string_view batch,
                           const HostPrograms& host) {
  const std::string folder = files.CurrentFolder();
  const Status folder_named = CheckDosNames(folder);
  if (!folder_named) return folder_named.error();
  const Status program_named = CheckDosNames(line.program);
  if (!program_named) return program_named.error();
  const char drive = DriveLetter(folder);
  if (drive == 'Z') return Error{"DOSBox keeps drive Z for itself. Please use another letter."};
  if (DriveLetter(line.program) != 0 && DriveLetter(line.program) != drive) {
    return Error{"The program " + Quoted(line.program) + " isn't on the drive of its folder " +
                 Quoted(folder) + "."};
  }
  const auto dosbox = host.find("dosbox");
  if (!dosbox) {
    return Error{
        "DOSBox isn't installed, and DOS programs run in it. Please install the package "
        "dosbox and try again."};
  }
  const auto drive_folder = files.HostPath(folder.substr(0, 2) + "\\");
  if (!drive_folder) return drive_folder.error();

  RunPlan plan;
  plan.configuration_path = NewConfigurationPath();
  plan.configuration = DosBoxConfiguration(folder, batch);
  const auto mark = files.HostPath(kFailureMark);
  if (!mark) return mark.error();
  plan.failure_mark = *mark;
  plan.lost_characters = line.tail > kLongestTail ? line.tail - kLongestTail : 0;
  plan.command = {*dosbox, {"-userconf", "-conf", plan.configuration_path}, *drive_folder};
  return plan;
}

// Deletes a file when it goes.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string path) : path_(std::move(path)) {}
  ~TemporaryFile() { unlink(path_.c_str()); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

 private:
  std::string path_;
};

}  // namespace

HostPrograms ThisHost() {
  const auto is_set = [](const char* name) {
    const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return value != nullptr && *value != '\0';
  };
  const auto find = [](std::string_view name) -> std::optional<std::string> {
    const char* const path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe)
    std::string_view folders = path == nullptr ? "/usr/local/bin:/usr/bin:/bin" : path;
    while (!folders.empty()) {
      const std::string folder(folders.substr(0, folders.find(':')));
      folders.remove_prefix(std::min(folders.size(), folder.size() + 1));
      if (!folder.starts_with('/')) continue;  // never a program of the current folder
      std::string program = JoinHostPath(folder, name);
      struct stat state {};
      if (stat(program.c_str(), &state) == 0 && S_ISREG(state.st_mode) &&
          access(program.c_str(), X_OK) == 0) {
        return program;
      }
    }
    return std::nullopt;
  };
  return {find, is_set("DISPLAY") || is_set("WAYLAND_DISPLAY")};
}

Result<RunPlan> PlanRun(const DosFiles& files, std::string_view batch, const HostPrograms& host) {
  const auto line = ReadBatchLine(files, batch);
  if (!line) return line.error();
  if (IsNative(files, line->program)) return PlanNative(files, *line, host);
  return PlanDosBox(files, *line, batch, host);
}

Result<RunOutcome> CarryOut(const RunPlan& plan, ChildRunner& runner) {
  if (plan.configuration_path.empty()) return runner.Run(plan.command);
  const Status written = CreateFile(plan.configuration_path, plan.configuration, 0600, false);
  if (!written) {
    return Error{"The configuration of DOSBox can't be written: " + written.error().message};
  }
  const TemporaryFile configuration(plan.configuration_path);
  unlink(plan.failure_mark.c_str());
  const TemporaryFile failure_mark(plan.failure_mark);
  RunOutcome outcome = runner.Run(plan.command);
  outcome.program_failed = access(plan.failure_mark.c_str(), F_OK) == 0;
  return outcome;
}

}  // namespace zarvo
