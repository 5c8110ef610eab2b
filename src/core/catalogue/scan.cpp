// Which games of the data file the player really has: the scan of a rom folder.
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/catalogue/catalogue.h"
#include "core/platform/dos_path.h"
#include "core/platform/enter_folder.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

struct HashNoCase {
  std::size_t operator()(std::string_view name) const {
    std::size_t hash = 14695981039346656037U;
    for (const char c : name) {
      hash = (hash ^ FoldCase(static_cast<unsigned char>(c))) * 1099511628211U;
    }
    return hash;
  }
};

struct SameNoCase {
  bool operator()(std::string_view left, std::string_view right) const {
    return EqualNoCase(left, right);
  }
};

// The plain files of the current folder, looked through once.
class Archives {
 public:
  explicit Archives(const DosFiles& files) {
    auto listed = files.ListFolder("");
    if (!listed) return;
    entries_ = std::move(*listed);
    names_.reserve(entries_.size());
    for (const FolderEntry& entry : entries_) {
      if (!entry.is_folder) names_.insert(entry.name);
    }
  }

  bool Hold(std::string_view rom) {
    if (!IsPlainName(rom)) return false;
    name_.assign(rom).append(".zip");
    return names_.contains(name_);
  }

 private:
  std::vector<FolderEntry> entries_;
  std::unordered_set<std::string_view, HashNoCase, SameNoCase> names_;
  std::string name_;
};

struct ScanFields {
  std::string_view name, rom_file, original_or_clone, clone_of;
};

// What the scan takes of a record; fields that it lacks are empty. Nothing if it has no name.
std::optional<ScanFields> CutScanFields(std::string_view line) {
  const auto name = CutField(line);
  if (!name) return std::nullopt;
  const auto next = [&line] { return CutField(line).value_or(std::string_view()); };
  return ScanFields{
      .name = *name, .rom_file = next(), .original_or_clone = next(), .clone_of = next()};
}

// The name of the archive that stands for a game, or nothing if none does and it gets no line. In
// merged sets a clone lives in its parent's archive; a Neo-Geo game has one of its own.
std::optional<std::string_view> ArchiveOf(const ScanFields& game, SetType sets) {
  if (sets == SetType::kSplit || game.original_or_clone == "O" || game.clone_of == "neogeo") {
    return game.rom_file;
  }
  if (game.original_or_clone == "C") return game.clone_of;
  return std::nullopt;
}

// Adds the lines of all games to `text` and gives the number of those found.
int LookForGames(RecordReader& records, SetType sets, Archives& archives, std::string& text) {
  int found = 0;
  std::string_view line;
  while (records.Next(line)) {
    const auto game = CutScanFields(line);
    const auto archive = game ? ArchiveOf(*game, sets) : std::nullopt;
    if (!archive) continue;
    const bool held = archives.Hold(*archive);
    if (held) ++found;
    text += '"';
    text += game->name;
    text += ';';
    text += held ? kFoundMark : kMissingMark;
    text += "\"\r\n";
  }
  return found;
}

}  // namespace

Store Catalogue::ScanStore() const {
  return {files_, cfg_folder_, emulator_.ScanFile(), emulator_.ScanTempFile()};
}

void Catalogue::EnterRomFolder(const DosPath& rom_folder) const {
  Ignore(EnterFolder(files_, cfg_folder_));
  if (!EnterFolder(files_, rom_folder)) Ignore(EnterFolder(files_, cfg_folder_));
}

Result<ScanOutcome> Catalogue::Scan(const DosPath& rom_folder, SetType sets) const {
  auto records = Records();
  if (!records) return records.error();
  EnterRomFolder(rom_folder);
  Archives archives(files_);
  std::string text;
  ScanOutcome outcome;
  outcome.found =
      LookForGames(*records, emulator_.knows_parents ? sets : SetType::kSplit, archives, text);
  if (records->Failed()) {
    return Error{emulator_.DataFile().Text() + ": The file could not be read to its end"};
  }
  outcome.written = ScanStore().Replace(text);
  EnterRomFolder(rom_folder);
  return outcome;
}

}  // namespace zarvo
