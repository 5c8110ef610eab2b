// The first step of a routine that opens its files by their bare names.
#pragma once

#include <string_view>

#include "platform/dos_files.h"
#include "platform/dos_path.h"

namespace zarvo {

// Makes the drive and the folder of `folder`, a full path, the current ones.
inline Status EnterFolder(DosFiles& files, std::string_view folder) {
  const Status changed = files.ChangeDrive(DriveLetter(folder));
  return changed ? files.ChangeFolder(folder) : changed;
}

}  // namespace zarvo
