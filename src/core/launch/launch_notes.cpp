#include "core/launch/launch_notes.h"

#include <algorithm>
#include <array>

#include "core/platform/dosbox.h"
#include "core/platform/text.h"
#include "core/platform/text_lines.h"

namespace zarvo {
namespace {

constexpr std::string_view kNoteFile = "running.dat";
constexpr std::string_view kTemporary = "running.tmp";
constexpr std::string_view kWork = "work ";
constexpr std::string_view kCopy = "copy ";
constexpr std::string_view kArchive = ".zip";

// The note is read from the disk: it may name nothing but what a start could have made.
bool IsWorkFile(const DosPath& path) {
  constexpr std::array kNames = {kBatchFile, kHalfCopy, kRunMark, kLongLineProgram};
  return path.Drive() != 0 && std::any_of(kNames.begin(), kNames.end(), [&](std::string_view name) {
           return EqualNoCase(path.Name(), name);
         });
}

bool IsArchive(const DosPath& path) {
  std::string_view name = path.Name();
  if (path.Drive() == 0 || !name.ends_with(kArchive)) return false;
  name.remove_suffix(kArchive.size());
  return IsPlainName(name);
}

}  // namespace

LaunchNotes::LaunchNotes(DosFiles& files, const DosPath& program_folder)
    : files_(files),
      note_(program_folder / FileName::Own(kNoteFile)),
      temporary_(program_folder / FileName::Own(kTemporary)) {
  Read();
}

void LaunchNotes::Read() {
  if (!files_.FileExists(note_)) return;
  const auto text = ReadAll(files_, note_);
  if (!text) return;
  std::string_view rest = *text;
  while (!rest.empty()) {
    std::string_view line = WithoutLineEnd(TakeLine(rest));
    if (line.starts_with(kWork)) {
      const DosPath path(line.substr(kWork.size()));
      if (IsWorkFile(path)) entries_.push_back({.path = path, .identity = {}});
    }
    if (!line.starts_with(kCopy)) continue;
    line.remove_prefix(kCopy.size());
    const std::size_t blank = line.find(' ');
    if (blank == 0 || blank == std::string_view::npos) continue;
    const DosPath path(line.substr(blank + 1));
    if (!IsArchive(path)) continue;
    entries_.push_back({.path = path, .identity = std::string(line.substr(0, blank))});
  }
}

Status LaunchNotes::Write() {
  std::string text;
  for (const Entry& entry : entries_) {
    text += entry.identity.empty() ? std::string(kWork) + entry.path.Text()
                                   : std::string(kCopy) + entry.identity + " " + entry.path.Text();
    text += "\r\n";
  }
  const Status written = files_.ReplaceFile(note_, temporary_, text);
  return written ? written : Status(Error{note_.Text() + ": " + written.error().message});
}

Status LaunchNotes::AddWork(std::initializer_list<DosPath> paths) {
  for (const DosPath& path : paths) entries_.push_back({.path = path, .identity = {}});
  return Write();
}

Status LaunchNotes::AddCopy(DosPath path, std::string identity) {
  entries_.push_back({.path = std::move(path), .identity = std::move(identity)});
  return Write();
}

Status LaunchNotes::Remove(const Entry& entry) {
  if (!files_.FileExists(entry.path)) return Success();
  if (!entry.identity.empty() && !entry.is_sure) {
    const auto identity = files_.Identity(entry.path);
    if (!identity || *identity != entry.identity) return Success();
  }
  return files_.DeleteFile(entry.path);
}

std::vector<std::string> LaunchNotes::Settle() {
  std::vector<std::string> failures;
  if (entries_.empty()) return failures;
  std::erase_if(entries_, [&](const Entry& entry) {
    const Status removed = Remove(entry);
    if (!removed) failures.push_back(entry.path.Text() + ": " + removed.error().message);
    return removed.ok();
  });
  if (!entries_.empty()) {
    Ignore(Write());
  } else if (files_.FileExists(note_)) {
    Ignore(files_.DeleteFile(note_));
  }
  return failures;
}

}  // namespace zarvo
