// What a start puts on the disk, noted before it is made, so that it is found and removed after the
// run, or by a later start if this one was cut off.
//
// The note is `running.dat` in the program's folder: a line for each file, ended by CR LF. "work"
// and a full DOS path names a file that only a start makes (lancia.bat and the like), "copy", an
// identity and a full DOS path an archive that was copied into an emulator's rom folder.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_files.h"

namespace zarvo {

// The batch file through which every launch runs.
inline constexpr std::string_view kBatchFile = "lancia.bat";
// An archive while it is copied into the folder where it will stand.
inline constexpr std::string_view kHalfCopy = "zarvo.$$$";

class LaunchNotes {
 public:
  // Takes over what a start that was cut off has left in the note.
  LaunchNotes(DosFiles& files, const DosPath& program_folder);

  // Before the files are made. Fails, with a reason that names the note, if it can't be kept; the
  // files are removed by Settle all the same.
  Status AddWork(std::initializer_list<DosPath> paths);
  // Before the copy, whole by now under another name, takes its own. Its identity tells it from a
  // file of the player's that stands there later.
  Status AddCopy(DosPath path, std::string identity);
  // From now on the copy noted last stands there: it goes even if the run changes it.
  void CopyStands() { entries_.back().is_sure = true; }

  // Removes everything that is noted and there, and the note. What can't be removed stays noted; an
  // entry for each, file and reason.
  std::vector<std::string> Settle();

 private:
  struct Entry {
    DosPath path;
    std::string identity;  // of a copy; empty for a work file
    bool is_sure = false;  // made by this start
  };

  void Read();
  Status Write();
  // Whether the file is gone, or isn't the one that was noted.
  Status Remove(const Entry& entry);

  DosFiles& files_;
  DosPath note_;
  DosPath temporary_;
  std::vector<Entry> entries_;
};

}  // namespace zarvo
