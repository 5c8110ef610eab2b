// The pickers of a panel, the scan, and the start of a game.
#include "core/catalogue/scan.h"
#include "core/platform/dos_path.h"
#include "ui/panel/emulator_panel.h"
#include "ui/pickers/file_picker.h"
#include "ui/pickers/folder_picker.h"

namespace zarvo {

void EmulatorPanel::StartSelected(const ListBox* list) {
  const std::string game = list->Text();
  told_.emplace();
  SaveCfg();
  // The controls belong to the game in the caption; another one borrows them for the launch.
  const bool borrows = game != lblRomSettings->Caption();
  if (borrows) set_aside_ = picSettings->Values();
  if (LoadGame(game) == LoadOutcome::kNothing && borrows) ApplyDefaults();
  const LaunchTools tools{
      .files = tools_.files, .boxes = tools_.boxes, .app = tools_.app, .run = tools_.run};
  Launch(emulator_, game, *this, tools);
  TakeBack();
  told_.reset();
  if (list == favourites->lstPref && emulator_.has_favourites) favourites->ShowCount();
}

void EmulatorPanel::TakeBack() {
  if (set_aside_) picSettings->Apply(*set_aside_);
  set_aside_.reset();
}

std::string EmulatorPanel::EmulatorPath() const { return picConf->txtOptExePath->Text(); }

CommandInput EmulatorPanel::Command() const {
  return {.emulator_path = EmulatorPath(),
          .rom_name = RomFile,
          .options = picSettings->Values(),
          .recording = recording ? recording->lblHideInp : std::string(),
          .now = tools_.clock()};
}

void EmulatorPanel::ShowEmulatorPicker() {
  const bool snap_page = picSnap->Visible() && !emulator_.panel.no_emulator_hides_snap;
  ShowPage(Page::kConfiguration);
  picSnap->Control::SetVisible(snap_page);
  FilePicker picker(tools_.files, tools_.panels, tools_.boxes, tools_.app.Title());
  picker.lblSelExeHide = emulator_.SectionWord();
  picker.ShowModal();
}

void EmulatorPanel::ShowRomPicker() {
  TakeBack();
  const bool snap_page = picSnap->Visible() && !emulator_.panel.no_rom_hides_snap;
  ShowPage(Page::kSettings);
  picSnap->Control::SetVisible(snap_page);
  keeps_rom_folder_ = true;
  PickGameRom();
  keeps_rom_folder_ = false;
}

// The folder that was chosen after a start found no archive is kept at once, so that the next start
// finds it. Of the game's record nothing else changes.
void EmulatorPanel::KeepGameRomFolder() {
  const std::string game = lblRomSettings->Caption();
  const std::string folder = picSettings->txtRomPath->Text();
  OptionValues values = picSettings->Values();
  LoadSettings(settings_, tools_.app, emulator_, game, values);
  values.rom_folder = folder;
  Report(tools_, zarvo::SaveSettings(settings_, emulator_, game, values));
}

void EmulatorPanel::BrowseGameRom() { PickGameRom(); }

void EmulatorPanel::PickGameRom() {
  const std::string game = lblRomSettings->Caption();
  FindRom(game);
  if (ParentFile == "-" || ParentFile == "neogeo") ParentFile.clear();
  std::string pattern = RomFile + ".zip";
  if (emulator_.knows_parents && !ParentFile.empty()) pattern += ";" + ParentFile + ".zip";
  FolderPicker picker(tools_.files, tools_.panels);
  picker.lblSelDirHide = emulator_.SettingsWord();
  picker.SetCaption("Search Rom for " + game + " (" + pattern + ")");
  picker.SetPattern(pattern);
  picker.OpenAt(0, picSettings->txtRomPath->Text());
  picker.ShowModal();
}

void EmulatorPanel::BrowseExecutable() {
  const std::string path = EmulatorPath();
  FilePicker picker(tools_.files, tools_.panels, tools_.boxes, tools_.app.Title());
  picker.lblSelExeHide = emulator_.SectionWord();
  picker.OpenAt(path.empty() ? '\0' : path.front(), ParentFolder(path));
  picker.ShowModal();
}

void EmulatorPanel::BrowseRomFolder() {
  const std::string rom_path = picConf->txtOptRomPath->Text();
  const std::string drive_path =
      emulator_.panel.rom_drive_from_rom_path ? rom_path : EmulatorPath();
  FolderPicker picker(tools_.files, tools_.panels);
  picker.lblSelDirHide = emulator_.RomWord();
  const char drive = drive_path.empty() ? '\0' : drive_path.front();
  if (!picker.OpenAt(drive, rom_path) && emulator_.panel.second_rom_folder) {
    picker.OpenAt(0, lblOptHide + std::string(emulator_.rom_sub_folder));
  }
  picker.ShowModal();
}

void EmulatorPanel::BrowseSnapFolder() {
  const std::string snap_path = picConf->txtOptSnap->Text();
  const std::string drive_path = emulator_.panel.snap_drive_from_emulator ? lblOptHide : snap_path;
  const std::string format = picConf->SnapFormat();
  FolderPicker picker(tools_.files, tools_.panels);
  picker.SetPattern(format == "GIF"   ? "*.gif"
                    : format == "JPG" ? "*.jpg"
                    : format == "BMP" ? "*.bmp"
                                      : "");
  picker.lblSelDirHide = emulator_.SnapWord();
  picker.OpenAt(drive_path.empty() ? '\0' : drive_path.front(), snap_path);
  picker.ShowModal();
}

void EmulatorPanel::TakeDefaultRomFolder() {
  LoadCfg(true);
  picSettings->txtRomPath->SetText(picConf->txtOptRomPath->Text());
}

void EmulatorPanel::Scan() {
  const std::string folder = picConf->txtOptRomPath->Text();
  const bool merged = picConf->optMerged != nullptr && picConf->optMerged->Value();
  const Result<ScanOutcome> scan = ScanRoms(tools_.files, tools_.app, emulator_, folder,
                                            merged ? SetType::kMerged : SetType::kSplit);
  if (!scan.ok()) {
    tools_.boxes.Warn(tools_.app.Title(), scan.error().message);
    return;
  }
  tools_.boxes.Inform(tools_.app.Title(),
                      std::to_string(scan->found) + " Roms found in:\r" + folder);
  Report(tools_, scan->written);
}

bool EmulatorPanel::CanKeepFolder(std::string_view folder) {
  constexpr std::size_t kLongestFolder = 90;
  if (folder.find_first_of(",~\"") == std::string_view::npos && folder.size() <= kLongestFolder) {
    return true;
  }
  tools_.boxes.Warn(tools_.app.Title(),
                    std::string(folder) +
                        "\rThis folder can't be kept in the settings of a game. Please choose one "
                        "without comma, tilde and quotation mark, of at most 90 characters.");
  return false;
}

void EmulatorPanel::TakeRomFolder(std::string_view folder) {
  if (CanKeepFolder(folder)) picConf->txtOptRomPath->SetText(folder);
}

void EmulatorPanel::TakeGameRomFolder(std::string_view folder) {
  if (!CanKeepFolder(folder)) return;
  picSettings->txtRomPath->SetText(folder);
  if (keeps_rom_folder_) KeepGameRomFolder();
}

void EmulatorPanel::TakeSnapFolder(std::string_view folder) {
  picConf->txtOptSnap->SetText(folder);
}

void EmulatorPanel::TakeEmulator(std::string_view exe_path, std::string_view folder) {
  picConf->txtOptExePath->SetText(exe_path);
  lblOptHide = folder;
}

void EmulatorPanel::TakeRecording(std::string_view file) {
  if (recording) recording->lblHideInp = file;
}

void EmulatorPanel::ClearPlayback() {
  if (recording) recording->ClearPlayback();
}

}  // namespace zarvo
