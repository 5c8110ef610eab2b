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
std::filesystem::path Normal(const std::filesystem::path& path) {
  const std::filesystem::path normal = path.lexically_normal();
  return normal.has_filename() || normal == normal.root_path() ? normal : normal.parent_path();
}

// The same with all links followed; the path itself where the host can't tell.
std::filesystem::path Real(const std::filesystem::path& path) {
  std::error_code failure;
  const auto real = std::filesystem::weakly_canonical(path, failure);
  return failure ? path : Normal(real);
}

// What of `path` lies below `folder`, "." for the folder itself.
std::optional<std::filesystem::path> Below(const std::filesystem::path& folder,
                                           const std::filesystem::path& path) {
  std::filesystem::path below = path.lexically_relative(folder);
  if (below.empty() || *below.begin() == "..") return std::nullopt;
  return below;
}

// Letter and folder of one line, without a comment.
std::optional<std::pair<char, std::string_view>> ParseDrive(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view name = Trim(line.substr(0, equals));
  const std::string_view folder = Trim(line.substr(equals + 1));
  const char letter = name.size() == 1 ? DosPath(std::string(name) + ":").Drive() : '\0';
  if (letter == 0 || folder.empty() || folder.find('\0') != std::string_view::npos) {
    return std::nullopt;
  }
  return std::pair(letter, folder);
}

// The folder of a line: absolute, below the player's home folder ("~", "~/dos"), or below the
// program's.
std::filesystem::path FolderOf(std::string_view said, const std::filesystem::path& program_folder) {
  const char* const home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
  const bool at_home = said == "~" || said.starts_with("~/");
  if (!at_home || home == nullptr) return Normal(program_folder / said);
  return Normal(std::string(home) + "/" + std::string(said.substr(1)));
}

bool IsFolder(const std::filesystem::path& path) {
  std::error_code failure;
  return std::filesystem::is_directory(path, failure);
}

Result<DosWorld::DriveTable> ReadDrives(const std::filesystem::path& program_folder,
                                        std::vector<std::string>& missing) {
  const DosWorld here({{'C', program_folder}});
  if (!here.FileExists(FileName::Own(kDrivesFile))) {
    return DosWorld::DriveTable{{'C', program_folder.parent_path()}, {'H', "/"}};
  }
  const auto text = ReadAll(here, FileName::Own(kDrivesFile));
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
                                                   const std::filesystem::path& program_folder,
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
    const std::filesystem::path absolute = FolderOf(folder, program_folder);
    if (!drives.emplace(letter, absolute).second) {
      return Error{LineText(number, std::string("gives drive ") + letter + " a second folder.")};
    }
    if (!IsFolder(absolute)) {
      missing.push_back(LineText(
          number, "names the folder " + Quoted(absolute.native()) + ", which isn't there."));
    }
  }
  if (drives.empty()) return Error{std::string(kDrivesFile) + " names no drive."};
  return drives;
}

Result<DosWorld> DosWorld::ForProgramFolder(const std::filesystem::path& program_folder) {
  const std::filesystem::path folder = Normal(program_folder);
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
  Ignore(world.ChangeDrive(path->Drive()));
  const Status changed = world.ChangeFolder(*path);
  if (!changed) return Error{ForMessage(folder.native()) + ": " + changed.error().message};
  return world;
}

Result<DosPath> DosWorld::DosPathOf(const std::filesystem::path& host_path) const {
  const std::filesystem::path path = Normal(host_path);
  if (!path.is_absolute()) return Error{Quoted(path.native()) + " isn't a full path."};
  const std::filesystem::path real_path = Real(path);
  std::optional<DosPath> best;
  std::size_t longest = 0;
  for (const auto& [letter, folder] : drives_) {
    // The way that was given keeps its names; the real one is for a drive or a path behind a link.
    const std::filesystem::path real_folder = Real(folder);
    auto below = Below(folder, path);
    if (!below) below = Below(real_folder, real_path);
    if (!below || (best && real_folder.native().size() <= longest)) continue;
    const auto said = FromUtf8(below->native());
    if (!said || said->find('\\') != std::string::npos) continue;
    longest = real_folder.native().size();
    best = DosPath::Root(letter);
    for (const std::string& component : DosPath(*said).Components()) {
      *best = *best / FileName::Own(component);
    }
  }
  if (!best) return Error{"No drive reaches " + Quoted(path.native()) + "."};
  return *best;
}

}  // namespace zarvo
