#include "core/platform/child_process.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <random>

#include "core/platform/dos_path.h"
#include "core/platform/host_file.h"
#include "core/platform/line_reader.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

// What a batch line says.
struct BatchLine {
  DosPath program;   // it exists
  std::string tail;  // everything behind the program
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

// The sentence for the first component that DOS can't name, or success.
Status CheckDosNames(const DosPath& path) {
  for (const std::string& component : path.Components()) {
    if (IsDosName(component)) continue;
    return Error{"DOS can't name " + Quoted(component) + " in " + Quoted(path.Text()) +
                 ". Please rename it: at most eight letters or digits, then perhaps a dot and at "
                 "most three, and no blank."};
  }
  return Success();
}

// A name that nobody can foresee, in the folder for files of one session.
std::filesystem::path NewConfigurationPath() {
  const char* const session = std::getenv("XDG_RUNTIME_DIR");  // NOLINT(concurrency-mt-unsafe)
  const bool has_session = session != nullptr && *session == '/' && access(session, W_OK) == 0;
  std::random_device random;
  const std::uint64_t number = (std::uint64_t{random()} << 32) | random();
  return std::filesystem::path(has_session ? session : "/tmp") /
         ("zarvo-" + std::to_string(number) + ".conf");
}

// A command line as far as DOS hands it on, and what it has to leave out.
struct CutLine {
  std::string kept;
  std::vector<std::string> lost;  // whole options with their values
};

bool BeginsOption(std::string_view word) {
  return word.size() > 1 && word[0] == '-' && !(word[1] >= '0' && word[1] <= '9');
}

// Cuts between options, so that none arrives without its values.
CutLine CutForDos(const std::string& tail) {
  CutLine cut;
  if (tail.size() <= kLongestTail) return {tail, {}};
  std::vector<std::string> pieces;
  for (const std::string& word : SplitAtBlanks(tail)) {
    if (pieces.empty() || BeginsOption(word)) {
      pieces.push_back(word);
    } else {
      pieces.back() += " " + word;
    }
  }
  for (std::string& piece : pieces) {
    if (cut.lost.empty() && cut.kept.size() + 1 + piece.size() <= kLongestTail) {
      cut.kept += " " + piece;
    } else {
      cut.lost.push_back(std::move(piece));
    }
  }
  return cut;
}

// What stands in the mark: at first, while the program runs, and after an error level.
constexpr std::string_view kMarkWaiting = "waiting";
constexpr std::string_view kMarkRunning = "running";
constexpr std::string_view kMarkFailed = "failed";

// DOSBox runs these lines behind the player's own. The drive is the folder that DOSBox is started
// in: so no host path, whatever characters it holds, stands where DOSBox would take it apart.
std::string DosBoxConfiguration(const DosPath& dos_folder, const std::string& call) {
  const std::string drive(1, dos_folder.Drive());
  const std::string mark = (dos_folder / FileName::Own(kRunMark)).Text();
  std::string text = "[autoexec]\n@echo off\n";
  text += "mount -u " + drive + " >nul\n";
  text += "mount " + drive + " . >nul\n";
  text += drive + ":\n";
  text += "cd " + dos_folder.Text().substr(2) + "\n";
  text.append("echo ").append(kMarkRunning).append(">" + mark + "\n");
  text += call + "\n";
  // An error level is known in here alone.
  text += "if errorlevel 1 goto failed\n";
  text += "del " + mark + "\n";
  text += "exit\n";
  text += ":failed\n";
  text.append("echo ").append(kMarkFailed).append(">" + mark + "\n");
  text += "exit\n";
  return text;
}

Result<RunPlan> PlanDosBox(const DosFiles& files, const BatchLine& line, const FileName& batch,
                           const HostPrograms& host) {
  const DosPath folder = files.CurrentFolder();
  const Status folder_named = CheckDosNames(folder);
  if (!folder_named) return folder_named.error();
  const Status program_named = CheckDosNames(line.program);
  if (!program_named) return program_named.error();
  const char drive = folder.Drive();
  if (drive == 'Z') return Error{"DOSBox keeps drive Z for itself. Please use another letter."};
  if (line.program.Drive() != 0 && line.program.Drive() != drive) {
    return Error{"The program " + Quoted(line.program.Text()) +
                 " isn't on the drive of its folder " + Quoted(folder.Text()) + "."};
  }
  const auto dosbox = host.find("dosbox");
  if (!dosbox) {
    return Error{
        "DOSBox isn't installed, and DOS programs run in it. Please install the package "
        "dosbox and try again."};
  }
  const auto drive_folder = files.HostPath(DosPath::Root(drive));
  if (!drive_folder) return drive_folder.error();

  CutLine cut = CutForDos(line.tail);
  const std::string call =
      "call " + (cut.lost.empty() ? batch.Text() : line.program.Text() + cut.kept);
  RunPlan plan;
  plan.configuration_path = NewConfigurationPath();
  plan.configuration = DosBoxConfiguration(folder, call);
  const auto mark = files.HostPath(FileName::Own(kRunMark));
  if (!mark) return mark.error();
  plan.run_mark = *mark;
  plan.lost_options = std::move(cut.lost);
  const std::string_view words = TrimBlanks(line.tail);
  plan.first_word = words.substr(0, words.find(' '));
  plan.command = {*dosbox, {"-userconf", "-conf", plan.configuration_path.native()}, *drive_folder};
  return plan;
}

// Deletes a file when it goes.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::filesystem::path path) : path_(std::move(path)) {}
  ~TemporaryFile() { unlink(path_.c_str()); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

 private:
  std::filesystem::path path_;
};

// The first bytes of a file of the host; nothing if it isn't there.
std::string StartOf(const std::filesystem::path& path) {
  const auto file = OpenPlainFile(path);
  if (!file) return {};
  std::array<char, 16> bytes{};
  const long got = ReadSome(file->get(), bytes.data(), bytes.size());
  return {bytes.data(), static_cast<std::size_t>(got < 0 ? 0 : got)};
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
  return {find};
}

Result<RunPlan> PlanRun(const DosFiles& files, const FileName& batch, const HostPrograms& host) {
  const auto line = ReadBatchLine(files, batch);
  if (!line) return line.error();
  if (IsNative(files, line->program)) return PlanNative(files, *line);
  return PlanDosBox(files, *line, batch, host);
}

Result<RunOutcome> CarryOut(const RunPlan& plan, ChildRunner& runner) {
  if (plan.configuration_path.empty()) return runner.Run(plan.command);
  const Status written = CreateFile(plan.configuration_path, plan.configuration, 0600, false);
  if (!written) {
    return Error{"The configuration of DOSBox can't be written: " + written.error().message};
  }
  const TemporaryFile configuration(plan.configuration_path);
  unlink(plan.run_mark.c_str());  // of a run that was cut off
  const Status marked = CreateFile(plan.run_mark, kMarkWaiting, 0666, false);
  if (!marked) return Error{std::string(kRunMark) + ": " + marked.error().message};
  const TemporaryFile run_mark(plan.run_mark);
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
  const std::string words = plan.configuration_path.empty() ? LastLines(outcome.last_output) : "";
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
