// What the two pickers share: where their controls stand, and how drive, folder and files follow
// one another.
#pragma once

#include <string_view>

#include "core/platform/twips.h"
#include "ui/toolkit/event.h"
#include "ui/toolkit/file_lists.h"
#include "ui/toolkit/label.h"

namespace zarvo {

// Two columns, drive and folders, pattern and files; below them the open folder and the buttons.
// All in twips.
struct PickerPlaces {
  PickerPlaces(int window_width, int window_height, int files_width);

  TwipRect drive;
  TwipRect folders;
  TwipRect pattern;
  TwipRect files;
  TwipRect path;
  TwipRect accept;
  TwipRect cancel;
};

// Keeps the three lists of a picker together. The lists must live as long as it does.
class FolderBrowser {
 public:
  // Starts in the current folder.
  FolderBrowser(DriveList& drives, FolderList& folders, FileList& files, Label& path);

  // Opens `folder` on `drive` (0: leave the drive); if either can't be had, the current folder.
  // Returns whether it could.
  bool OpenAt(char drive, const DosPath& folder);

  // After the file list was brought up to date.
  Event<> Changed;

 private:
  void OpenDrive();
  void FollowFolder();

  DriveList& drives_;
  FolderList& folders_;
  FileList& files_;
  Label& path_;
};

}  // namespace zarvo
