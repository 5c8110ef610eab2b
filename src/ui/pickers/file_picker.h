// The modal window that chooses a file, frmSelExe: an emulator's executable or a recording.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/platform/dos_files.h"
#include "core/platform/message_boxes.h"
#include "ui/pickers/folder_browser.h"
#include "ui/pickers/picker_panels.h"
#include "ui/toolkit/file_lists.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/window.h"

namespace zarvo {

// Lives for one use, like FolderPicker. Its pattern tells which of its two jobs it does: "*.inp"
// chooses a recording of MAME, anything else an executable.
class FilePicker : public Window {
 public:
  // `box_title` is the title of its message box.
  FilePicker(DosFiles& files, PickerPanels& panels, MessageBoxes& boxes, std::string box_title);

  // State word: a section word.
  std::string lblSelExeHide;

  // As FolderPicker::OpenAt.
  bool OpenAt(char drive, const DosPath& folder);
  void SetPattern(std::string_view pattern);
  // The recordings of one folder: pattern, caption, and drive and folder locked. False, with
  // nothing changed, if the folder can't be opened.
  bool ChooseRecording(const DosPath& folder);

  DriveList* drvSelExe;
  FolderList* dirSelExe;
  FileList* filSelExe;
  TextBox* txtShowFiltri;
  PushButton* cmdOk;
  PushButton* cmdCancel;

 private:
  void Build(DosFiles& files);
  void Wire();
  void Accept();
  [[nodiscard]] bool IsForRecording(const Emulator& emulator) const;
  void WriteFile(const Emulator& emulator, const FileName& file);

  PickerPanels& panels_;
  MessageBoxes& boxes_;
  std::string box_title_;
  std::unique_ptr<FolderBrowser> browser_;
  bool accepted_ = false;
};

}  // namespace zarvo
