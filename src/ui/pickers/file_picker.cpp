#include "ui/pickers/file_picker.h"

#include "core/platform/dos_path.h"
#include "ui/shell/dialog_parts.h"

namespace zarvo {
namespace {

constexpr int kWidth = 3945;
constexpr int kHeight = 4050;
constexpr int kFilesWidth = ToTwips(140);  // recordings have long names
constexpr std::string_view kPrograms = "*.exe";
constexpr std::string_view kRecordings = "*.inp";

}  // namespace

FilePicker::FilePicker(DosFiles& files, PickerPanels& panels, MessageBoxes& boxes,
                       std::string box_title)
    : Window(WindowFrame::kDesktop, "frmSelExe"),
      panels_(panels),
      boxes_(boxes),
      box_title_(std::move(box_title)) {
  SetCaption("Emulator's Full Path");
  SetWidth(kWidth);
  SetHeight(kHeight);
  Build(files);
  Wire();
  SetPattern(kPrograms);
}

bool FilePicker::OpenAt(char drive, const DosPath& folder) {
  return browser_->OpenAt(drive, folder);
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes what the window shows.
void FilePicker::SetPattern(std::string_view pattern) {
  txtShowFiltri->SetText(pattern);
  filSelExe->SetPattern(pattern);
}

bool FilePicker::ChooseRecording(const DosPath& folder) {
  if (!dirSelExe->SetPath(folder).ok()) return false;
  SetPattern(kRecordings);
  SetCaption("Choose the INP file");
  drvSelExe->SetEnabled(false);
  dirSelExe->SetEnabled(false);
  return true;
}

void FilePicker::Build(DosFiles& files) {
  const PickerPlaces at(kWidth, kHeight, kFilesWidth);
  drvSelExe = Put<DriveList>(this, "drvSelExe", at.drive, files);
  drvSelExe->SetAccessibleName("Drive");
  dirSelExe = Put<FolderList>(this, "dirSelExe", at.folders, files);
  dirSelExe->SetAccessibleName("Folder");
  txtShowFiltri = Put<TextBox>(this, "txtShowFiltri", at.pattern);
  txtShowFiltri->SetReadOnly(true);
  txtShowFiltri->SetAccessibleName("Kind of files shown");
  filSelExe = Put<FileList>(this, "filSelExe", at.files, files);
  filSelExe->SetAccessibleName("File to choose");
  auto* lblPath = Put<Label>(this, "lblPath", at.path);
  cmdOk = PutCaption<PushButton>(this, "cmdOk", at.accept, "Ok");
  cmdOk->SetDefault(true);
  cmdCancel = PutCaption<PushButton>(this, "cmdCancel", at.cancel, "Cancel");
  browser_ = std::make_unique<FolderBrowser>(*drvSelExe, *dirSelExe, *filSelExe, *lblPath);
  filSelExe->setFocus();
}

void FilePicker::Wire() {
  filSelExe->DblClick.Connect([this] { Accept(); });
  cmdOk->Click.Connect([this] { Accept(); });
  cmdCancel->Click.Connect([this] { UnloadWindow(); });
  SetDefaultAction([this] { Accept(); });
  SetCancelAction([this] { UnloadWindow(); });
  // However the player gives up: playback without a recording makes no sense.
  Unload.Connect([this](bool& /*refuse*/) {
    const Emulator* const emulator = FindEmulator(lblSelExeHide);
    if (!accepted_ && emulator != nullptr && IsForRecording(*emulator)) {
      panels_.ClearPlayback(*emulator);
    }
  });
}

bool FilePicker::IsForRecording(const Emulator& emulator) const {
  return emulator.recording && filSelExe->Pattern() == kRecordings;
}

void FilePicker::Accept() {
  const std::string file = filSelExe->FileName();
  if (file.empty()) {
    boxes_.Inform(box_title_, "You must select a file!");
    return;
  }
  const Emulator* emulator = FindEmulator(lblSelExeHide);
  if (emulator != nullptr) WriteFile(*emulator, FileName::Own(file));
  accepted_ = true;
  UnloadWindow();
}

void FilePicker::WriteFile(const Emulator& emulator, const FileName& file) {
  if (IsForRecording(emulator)) {
    panels_.SetRecording(emulator, file);
    return;
  }
  const DosPath folder = filSelExe->Path();
  panels_.SetEmulator(emulator, folder / file, folder);
  panels_.SaveCfg(emulator);
}

}  // namespace zarvo
