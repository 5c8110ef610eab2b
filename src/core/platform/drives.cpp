// The table of drives: `drives.ini`, and which drive a path of the host belongs to.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/platform/dos_path.h"
#include "core/platform/dos_world.h"
#include "core/platform/host_file.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

constexpr std::string_view kDrivesFile = "drives.ini";

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Quoted(std::string_view host_text) { return '"' + ForMessage(host_text) + '"'; }

std::string LineText(int line, const std::string& what) {
  return "Line " + std::to_string(line) + " of " + std::string(kDrivesFile) + " " + what;
}

// Absolute, without ".", ".." and a slash at the end.
std::string Normal(const std::filesystem::path& path) {
  std::string text = path.lexically_normal().string();
  if (text.size() > 1 && text.ends_with('/')) text.pop_back();
  return text;
}

// The same with all links followed; the path itself where the host can't tell.
std::string Real(const std::string& path) {
  std::error_code failure;
  const auto real = std::filesystem::weakly_canonical(path, failure);
  return failure ? path : Normal(real);
}

// What of `path` lies below `folder`, "" for the folder itself.
std::optional<std::string_view> Below(std::string_view folder, std::string_view path) {
  if (folder == "/") folder = {};
  if (!path.starts_with(folder)) return std::nullopt;
  path.remove_prefix(folder.size());
  if (!path.empty() && path.front() != '/') return std::nullopt;
  return path;
}

// Letter and folder of one line, without a comment.
std::optional<std::pair<char, std::string_view>> ParseDrive(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view name = Trim(line.substr(0, equals));
  const std::string_view folder = Trim(line.substr(equals + 1));
  const char letter = name.size() == 1 ? DriveLetter(std::string(name) + ":") : '\0';
  if (letter == 0 || folder.empty() || folder.find('\0') != std::string_view::npos) {
    return std::nullopt;
  }
  return std::pair(letter, folder);
}

// The folder of a line: absolute, below the player's home folder ("~", "~/dos"), or below the
// program's.
std::string FolderOf(std::string_view said, const std::string& program_folder) {
  const char* const home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
  const bool at_home = said == "~" || said.starts_with("~/");
  if (!at_home || home == nullptr) return Normal(std::filesystem::path(program_folder) / said);
  return Normal(std::string(home) + "/" + std::string(said.substr(1)));
}

bool IsFolder(const std::string& path) {
  std::error_code failure;
  return std::filesystem::is_directory(path, failure);
}

Result<DosWorld::DriveTable> ReadDrives(const std::string& program_folder,
                                        std::vector<std::string>& missing) {
  const DosWorld here({{'C', program_folder}});
  if (!here.FileExists(kDrivesFile)) {
    return DosWorld::DriveTable{{'C', HostFolder(program_folder)}, {'H', "/"}};
  }
  const auto text = ReadAll(here, kDrivesFile);
  if (!text) {
    return Error{std::string(kDrivesFile) + " can't be read: " + text.error().message};
  }
  return DosWorld::ParseDrives(*text, program_folder, missing);
}

// The first ten sentences, a line each.
std::string Listed(const std::vector<std::string>& sentences) {
  constexpr std::size_t kMostListed = 10;
  std::string text;
  for (std::size_t i = 0; i < std::min(sentences.size(), kMostListed); ++i) {
    text += sentences[i] + "\r";
  }
  return sentences.size() > kMostListed ? text + "...\r" : text;
}

}  // namespace

Result<DosWorld::DriveTable> DosWorld::ParseDrives(std::string_view text,
                                                   const std::string& program_folder,
                                                   std::vector<std::string>& missing) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  DriveTable drives;
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view whole = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), whole.size() + 1));
    const std::string_view line = Trim(whole.substr(0, whole.find(';')));
    if (line.empty()) continue;

    const auto drive = ParseDrive(line);
    if (!drive) {
      return Error{LineText(number, "isn't understood: " + Quoted(line) +
                                        ". A line has a drive letter, an equals sign and a "
                                        "folder, like C = /home/me/dos")};
    }
    const auto [letter, folder] = *drive;
    const std::string absolute = FolderOf(folder, program_folder);
    if (!drives.emplace(letter, absolute).second) {
      return Error{LineText(number, std::string("gives drive ") + letter + " a second folder.")};
    }
    if (!IsFolder(absolute)) {
      missing.push_back(
          LineText(number, "names the folder " + Quoted(absolute) + ", which isn't there."));
    }
  }
  if (drives.empty()) return Error{std::string(kDrivesFile) + " names no drive."};
  return drives;
}

Result<DosWorld> DosWorld::ForProgramFolder(const std::string& program_folder) {
  const std::string folder = Normal(program_folder);
  std::vector<std::string> missing;
  auto drives = ReadDrives(folder, missing);
  if (!drives) return drives.error();
  DosWorld world(std::move(*drives));
  world.missing_folders_ = Listed(missing);
  const auto path = world.DosPathOf(folder);
  if (!path) {
    return Error{world.missing_folders_ + path.error().message + " Give a drive for it in " +
                 std::string(kDrivesFile) + "."};
  }
  Ignore(world.ChangeDrive(path->front()));
  const Status changed = world.ChangeFolder(*path);
  if (!changed) return Error{ForMessage(folder) + ": " + changed.error().message};
  return world;
}

Result<std::string> DosWorld::DosPathOf(const std::string& host_path) const {
  const std::string path = Normal(host_path);
  if (!path.starts_with('/')) return Error{Quoted(path) + " isn't a full path."};
  const std::string real_path = Real(path);
  std::optional<std::string> best;
  std::size_t longest = 0;
  for (const auto& [letter, folder] : drives_) {
    // The way that was given keeps its names; the real one is for a drive or a path behind a link.
    const std::string real_folder = Real(folder);
    auto below = Below(folder, path);
    if (!below) below = Below(real_folder, real_path);
    if (!below || (best && real_folder.size() <= longest)) continue;
    const auto said = FromUtf8(*below);
    if (!said || said->find('\\') != std::string::npos) continue;
    longest = real_folder.size();
    best = std::string(1, letter) + ":\\";
    for (const std::string& component : PathComponents(*said)) *best = JoinPath(*best, component);
  }
  if (!best) return Error{"No drive reaches " + Quoted(path) + "."};
  return *best;
}

}  // namespace zarvo
