// The lists with which a player looks through the DOS world: drives, folders and files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_files.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/list_box.h"

namespace zarvo {

// A drop-down list of the drives, "c:" and so on.
class DriveList : public ComboBox {
 public:
  DriveList(QWidget* parent, DosFiles& files);
  [[nodiscard]] char Drive() const;  // upper case
  // Selects the drive of a letter in either case and raises Change if it is another one. Fails if
  // there is no such drive.
  Status SetDrive(char letter);
  Event<> Change;

 private:
  DosFiles& files_;
  std::vector<char> letters_;
};

// The folder that is open with the folders above it and those in it, each step indented; a double
// click or Enter on another one opens it.
class FolderList : public ListBox {
 public:
  FolderList(QWidget* parent, DosFiles& files);
  [[nodiscard]] DosPath Path() const { return path_; }
  // Opens a folder and raises Change if it is another one; "" and "C:" are the current folder of
  // the current drive and of that drive, and other paths may start there too. Fails if it can't be
  // read.
  Status SetPath(const DosPath& path);
  Event<> Change;

 private:
  [[nodiscard]] DosPath FullPath(const DosPath& path);
  void OpenEntry(int index);
  DosFiles& files_;
  DosPath path_;
  std::vector<DosPath> targets_;  // full path of each entry
};

// The plain files of a folder under a pattern, sorted.
class FileList : public ListBox {
 public:
  FileList(QWidget* parent, DosFiles& files);
  [[nodiscard]] DosPath Path() const { return path_; }
  void SetPath(const DosPath& path);
  [[nodiscard]] std::string Pattern() const { return pattern_; }
  // Patterns separated by ";", "*.zip" or "puckman.zip;pacman.zip".
  void SetPattern(std::string_view pattern);
  [[nodiscard]] std::string FileName() const { return Text(); }
  void Refresh();

 private:
  DosFiles& files_;
  DosPath path_;
  std::string pattern_;
};

}  // namespace zarvo
