// How a routine gets to the folder of the file that it opens by its bare name.
#pragma once

#include "core/platform/dos_files.h"

namespace zarvo {

// Makes the drive that `folder` begins with current, then `folder`. A drive that can't be made
// current is passed over; fails if the folder can't be entered.
inline Status EnterFolder(DosFiles& files, const DosPath& folder) {
  if (folder.IsEmpty()) return Error{"No folder is given"};
  Ignore(files.ChangeDrive(folder.Text().front()));
  return files.ChangeFolder(folder);
}

}  // namespace zarvo
