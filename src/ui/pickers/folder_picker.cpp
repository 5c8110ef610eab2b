#include "ui/pickers/folder_picker.h"

#include <array>

#include "ui/shell/dialog_parts.h"

namespace zarvo {
namespace {

constexpr int kWidth = 4005;
constexpr int kHeight = 4320;
constexpr int kFilesWidth = ToTwips(121);
constexpr std::string_view kZipFiles = "*.zip";

// Which control of a panel a state word means.
struct Destination {
  std::string (Emulator::*word)() const;
  void (PickerPanels::*set_folder)(const Emulator& emulator, const DosPath& folder);
};

constexpr std::array<Destination, 3> kDestinations = {{
    {&Emulator::RomWord, &PickerPanels::SetRomFolder},
    {&Emulator::SnapWord, &PickerPanels::SetSnapFolder},
    {&Emulator::SettingsWord, &PickerPanels::SetGameRomFolder},
}};

void WriteFolder(PickerPanels& panels, std::string_view word, const DosPath& folder) {
  for (const Emulator& emulator : Emulators()) {
    for (const Destination& destination : kDestinations) {
      if ((emulator.*destination.word)() != word) continue;
      (panels.*destination.set_folder)(emulator, folder);
      panels.SaveCfg(emulator);
    }
  }
}

}  // namespace

FolderPicker::FolderPicker(DosFiles& files, PickerPanels& panels)
    : Window(WindowFrame::kDesktop, "frmSelDir"), panels_(panels) {
  SetCaption("Choose Directory");
  SetWidth(kWidth);
  SetHeight(kHeight);
  Build(files);
  Wire();
  SetPattern(kZipFiles);
}

bool FolderPicker::OpenAt(char drive, const DosPath& folder) {
  return browser_->OpenAt(drive, folder);
}

void FolderPicker::SetPattern(std::string_view pattern) {
  txtPattern->SetText(pattern);
  filSelDir->SetPattern(pattern);
  ShowCount();
}

void FolderPicker::Build(DosFiles& files) {
  PickerPlaces at(kWidth, kHeight, kFilesWidth);
  const int line_height = at.path.height;
  at.files.height -= line_height + ToTwips(4);
  const int count_top = at.files.top + at.files.height + ToTwips(4);
  const int caption_width = ToTwips(45);

  drvSelDir = Put<DriveList>(this, "drvSelDir", at.drive, files);
  drvSelDir->SetAccessibleName("Drive");
  dirSelDir = Put<FolderList>(this, "dirSelDir", at.folders, files);
  dirSelDir->SetAccessibleName("Folder");
  txtPattern = Put<TextBox>(this, "txtPattern", at.pattern);
  txtPattern->SetReadOnly(true);
  txtPattern->SetAccessibleName("Kind of files shown");
  filSelDir = Put<FileList>(this, "filSelDir", at.files, files);
  filSelDir->SetAccessibleName("Files in the folder");
  PutCaption<Label>(this, "lblFounds", {at.files.left, count_top, caption_width, line_height},
                    "Founds:");
  lblCount = Put<Label>(
      this, "lblCount",
      {at.files.left + caption_width, count_top, at.files.width - caption_width, line_height});
  lblCount->SetToolTipText("# of zip-file in this directory");
  auto* lblPath = Put<Label>(this, "lblPath", at.path);
  cmdSeleziona = PutCaption<PushButton>(this, "cmdSeleziona", at.accept, "Select");
  cmdSeleziona->SetDefault(true);
  cmdCancel = PutCaption<PushButton>(this, "cmdCancel", at.cancel, "Cancel");
  browser_ = std::make_unique<FolderBrowser>(*drvSelDir, *dirSelDir, *filSelDir, *lblPath);
  dirSelDir->setFocus();
}

void FolderPicker::Wire() {
  browser_->Changed.Connect([this] { ShowCount(); });
  cmdSeleziona->Click.Connect([this] { Select(); });
  cmdCancel->Click.Connect([this] { UnloadWindow(); });
  SetDefaultAction([this] { Select(); });
  SetCancelAction([this] { UnloadWindow(); });
}

void FolderPicker::Select() {
  WriteFolder(panels_, lblSelDirHide, dirSelDir->Path());
  UnloadWindow();
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes what the window shows.
void FolderPicker::ShowCount() { lblCount->SetCaption(std::to_string(filSelDir->ListCount())); }

}  // namespace zarvo
