// The modal window that chooses a folder, frmSelDir.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/platform/dos_files.h"
#include "ui/pickers/folder_browser.h"
#include "ui/pickers/picker_panels.h"
#include "ui/toolkit/file_lists.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/window.h"

namespace zarvo {

// Lives for one use: the caller creates it, prepares word, drive, folder and pattern, and shows it.
// Select writes the folder where the word says and saves that panel's configuration.
class FolderPicker : public Window {
 public:
  FolderPicker(DosFiles& files, PickerPanels& panels);

  // State word: the rom, snapshot or settings word of a emulator.
  std::string lblSelDirHide;

  // Opens `folder` on `drive` (0: leave the drive); if either can't be had, the current folder.
  // Returns whether it could.
  bool OpenAt(char drive, const DosPath& folder);
  // Pattern in txtPattern and filSelDir.
  void SetPattern(std::string_view pattern);

  DriveList* drvSelDir;
  FolderList* dirSelDir;
  FileList* filSelDir;
  TextBox* txtPattern;
  Label* lblCount;
  PushButton* cmdSeleziona;
  PushButton* cmdCancel;

 private:
  void Build(DosFiles& files);
  void Wire();
  void Select();
  void ShowCount();

  PickerPanels& panels_;
  std::unique_ptr<FolderBrowser> browser_;
};

}  // namespace zarvo
