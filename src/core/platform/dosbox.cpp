#include "core/platform/dosbox.h"

#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <utility>

#include "core/platform/long_line.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

constexpr std::string_view kArcadeConfiguration =
    "[dosbox]\nmemsize=63\n[cpu]\ncore=auto\ncycles=max\n";

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

// A file for this session, under a name that nobody can foresee.
RunFile SessionFile(std::string text) {
  const char* const session = std::getenv("XDG_RUNTIME_DIR");  // NOLINT(concurrency-mt-unsafe)
  const bool has_session = session != nullptr && *session == '/' && access(session, W_OK) == 0;
  std::random_device random;
  const std::uint64_t number = (std::uint64_t{random()} << 32) | random();
  return {.path = std::filesystem::path(has_session ? session : "/tmp") /
                  ("zarvo-" + std::to_string(number) + ".conf"),
          .bytes = std::move(text)};
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

// True for a program that reads a long line where DOS 7 puts it: DJGPP's loader stands at its
// front.
bool TakesLongLine(const DosFiles& files, const DosPath& program) {
  constexpr std::string_view kLoader = "go32stub";
  auto source = files.Open(program);
  if (!source) return false;
  std::array<char, 2048> front{};
  std::size_t used = 0;
  while (const std::size_t read = (*source)->Read(front.data() + used, front.size() - used)) {
    used += read;
  }
  return std::string_view(front.data(), used).find(kLoader) != std::string_view::npos;
}

// The files of the emulator's folder in the host's world.
Result<RunFile> FolderFile(const DosFiles& files, std::string_view name, std::string bytes) {
  const auto path = files.HostPath(FileName::Own(name));
  if (!path) return path.error();
  return RunFile{.path = *path, .bytes = std::move(bytes)};
}

// Fails with a sentence for the player.
Status CheckPlace(const DosPath& folder, const DosPath& program) {
  Status named = CheckDosNames(folder);
  if (named) named = CheckDosNames(program);
  if (!named) return named;
  if (folder.Drive() == 'Z') {
    return Error{"DOSBox keeps drive Z for itself. Please use another letter."};
  }
  if (program.Drive() != 0 && program.Drive() != folder.Drive()) {
    return Error{"The program " + Quoted(program.Text()) + " isn't on the drive of its folder " +
                 Quoted(folder.Text()) + "."};
  }
  return named;
}

// How the line is called, with what that takes.
Result<std::string> PlanCall(const DosFiles& files, const BatchLine& line, const FileName& batch,
                             RunPlan& plan) {
  if (line.tail.size() <= kLongestTail) return batch.Text();
  if (!TakesLongLine(files, line.program)) {
    CutLine cut = CutForDos(line.tail);
    plan.lost_options = std::move(cut.lost);
    return line.program.Text() + cut.kept;
  }
  auto program = FolderFile(files, kLongLineProgram, LongLineProgram(line));
  if (!program) return program.error();
  plan.folder_files.push_back(*std::move(program));
  return (files.CurrentFolder() / FileName::Own(kLongLineProgram)).Text();
}

}  // namespace

Result<RunPlan> PlanDosBox(const DosFiles& files, const BatchLine& line, const FileName& batch,
                           const HostPrograms& host) {
  const DosPath folder = files.CurrentFolder();
  if (Status place = CheckPlace(folder, line.program); !place) return place.error();
  const auto dosbox = host.find("dosbox");
  if (!dosbox) {
    return Error{
        "DOSBox isn't installed, and DOS programs run in it. Please install the package "
        "dosbox and try again."};
  }
  const auto drive_folder = files.HostPath(DosPath::Root(folder.Drive()));
  if (!drive_folder) return drive_folder.error();
  RunPlan plan{.command = {.program = *dosbox, .arguments = {}, .folder = *drive_folder}};
  auto mark = FolderFile(files, kRunMark, std::string(kMarkWaiting));
  if (!mark) return mark.error();
  plan.run_mark = mark->path;
  plan.folder_files.push_back(*std::move(mark));
  const auto call = PlanCall(files, line, batch, plan);
  if (!call) return call.error();
  const std::string_view words = TrimBlanks(line.tail);
  plan.first_word = words.substr(0, words.find(' '));

  plan.session_files.push_back(SessionFile(std::string(kArcadeConfiguration)));
  plan.session_files.push_back(SessionFile(DosBoxConfiguration(folder, "call " + *call)));
  std::vector<std::filesystem::path> configurations = {plan.session_files.front().path};
  if (const auto own = host.dosbox_configuration()) configurations.push_back(*own);
  const DosPath beside = "dosbox.conf";
  if (files.FileExists(beside)) configurations.push_back(*files.HostPath(beside));
  configurations.push_back(plan.session_files.back().path);
  for (const std::filesystem::path& configuration : configurations) {
    plan.command.arguments.insert(plan.command.arguments.end(), {"-conf", configuration.native()});
  }
  return plan;
}

}  // namespace zarvo
