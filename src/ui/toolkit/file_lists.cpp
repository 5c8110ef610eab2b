#include "ui/toolkit/file_lists.h"

#include <algorithm>
#include <cctype>

#include "core/platform/dos_path.h"
#include "core/platform/text.h"
#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

std::string DriveText(char letter) {
  return std::string(1, static_cast<char>(std::tolower(static_cast<unsigned char>(letter)))) + ":";
}

std::string Indented(std::size_t steps, std::string_view name) {
  return std::string(2 * steps, ' ').append(name);
}

}  // namespace

DriveList::DriveList(QWidget* parent, DosFiles& files)
    : ComboBox(parent), files_(files), letters_(files.Drives()) {
  for (const char letter : letters_) AddItem(DriveText(letter));
  Ignore(SetDrive(files_.CurrentFolder().Drive()));
  Click.Connect([this] { Change.Raise(); });
}

char DriveList::Drive() const {
  return ListIndex() < 0 ? '\0' : letters_[static_cast<std::size_t>(ListIndex())];
}

Status DriveList::SetDrive(char letter) {
  const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  const auto place = std::find(letters_.begin(), letters_.end(), upper);
  if (place == letters_.end()) return Error{std::string("There is no drive ") + upper + ":"};
  SetListIndex(static_cast<int>(place - letters_.begin()));
  return Success();
}

FolderList::FolderList(QWidget* parent, DosFiles& files) : ListBox(parent), files_(files) {
  DblClick.Connect([this] { OpenEntry(ListIndex()); });
  KeyDown.Connect([this](const KeyArgs& key) {
    const int index = ListIndex();
    const bool other = index >= 0 && targets_[static_cast<std::size_t>(index)] != path_;
    if (key.code != key::kEnter || !other) return;
    SwallowKey();
    OpenEntry(index);
  });
  Ignore(SetPath(""));
}

// The full path of what the player or a file calls a folder: "", "C:", "..", "games\\snap".
DosPath FolderList::FullPath(const DosPath& path) {
  const DosPath current = files_.CurrentFolder();
  const char letter = path.Drive();
  const std::string rest = path.Text().substr(letter == 0 ? 0 : 2);
  const std::string drive(1, letter == 0 ? current.Drive() : path.Text().front());
  if (rest.starts_with('\\') || rest.starts_with('/')) return DosPath(drive + ":" + rest);
  DosPath base = current;
  // The current folder of a drive is known only to the drive itself.
  if (letter != 0 && files_.ChangeDrive(letter)) {
    base = files_.CurrentFolder();
    Ignore(files_.ChangeDrive(current.Drive()));
  } else if (letter != 0) {
    base = DosPath::Root(drive.front());
  }
  return DosPath(base.Text() + "\\" + rest);
}

Status FolderList::SetPath(const DosPath& path) {
  const DosPath wanted = FullPath(path);
  const auto entries = files_.ListFolder(wanted);
  if (!entries.ok()) return entries.error();

  NameList names;
  targets_.clear();
  DosPath above = DosPath::Root(wanted.Text().front());
  names.Append(above.Text());
  targets_.push_back(above);
  for (const std::string& component : wanted.Components()) {
    above = above / FileName::Own(component);
    names.Append(Indented(targets_.size(), component));
    targets_.push_back(above);
  }
  const int open = names.Count() - 1;
  std::vector<std::string> folders;
  for (const FolderEntry& entry : *entries) {
    if (entry.is_folder) folders.push_back(entry.name);
  }
  std::sort(folders.begin(), folders.end(), LessNoCase);
  const std::size_t steps = targets_.size();
  for (const std::string& folder : folders) {
    names.Append(Indented(steps, folder));
    targets_.push_back(above / FileName::Own(folder));
  }
  const bool changed = path_ != above;
  path_ = above;
  SetItems(std::move(names));
  SetListIndex(open);
  if (changed) Change.Raise();
  return Success();
}

void FolderList::OpenEntry(int index) {
  if (index < 0) return;
  const DosPath target = targets_[static_cast<std::size_t>(index)];
  if (target != path_) Ignore(SetPath(target));
}

FileList::FileList(QWidget* parent, DosFiles& files) : ListBox(parent), files_(files) {
  SetSorted(true);
}

void FileList::SetPath(const DosPath& path) {
  path_ = path;
  Refresh();
}

void FileList::SetPattern(std::string_view pattern) {
  pattern_ = pattern;
  Refresh();
}

void FileList::Refresh() {
  NameList names;
  const auto entries = files_.ListFolder(path_);
  if (entries.ok()) {
    for (const FolderEntry& entry : *entries) {
      if (!entry.is_folder && MatchesPattern(entry.name, pattern_)) names.Append(entry.name);
    }
  }
  SetItems(std::move(names));
}

}  // namespace zarvo
