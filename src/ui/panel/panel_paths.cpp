#include "ui/panel/panel_paths.h"

#include "core/platform/dos_path.h"
#include "ui/pickers/file_picker.h"
#include "ui/pickers/folder_picker.h"

namespace zarvo {
namespace {

// The drive that a path begins with, or 0.
char DriveOf(std::string_view path) { return path.empty() ? '\0' : path.front(); }

}  // namespace

PanelPaths::PanelPaths(const Emulator& emulator, const PanelTools& tools, SectionState& state,
                       PanelPages& pages, CurrentGame& game, Favourites& favourites,
                       PanelSizes& sizes)
    : lblOptHide(emulator.start.emulator_folder),
      emulator_(emulator),
      tools_(tools),
      state_(state),
      conf_(*pages.picConf),
      settings_(*pages.picSettings),
      game_(game),
      favourites_(favourites),
      sizes_(sizes),
      cfg_(tools.files, tools.folders, emulator) {
  Wire();
}

void PanelPaths::Wire() {
  conf_.cmdSfoglia->Click.Connect([this] { BrowseExecutable(); });
  conf_.cmdSelDir->Click.Connect([this] { BrowseRomFolder(); });
  conf_.cmdDirSnap->Click.Connect([this] { BrowseSnapFolder(); });
  if (conf_.lblScanNow != nullptr) conf_.lblScanNow->Click.Connect([this] { Scan(); });
  settings_.cmdSelDir->Click.Connect([this] { PickGameRom(); });
  settings_.cmdDirRomDefault->Click.Connect([this] { TakeDefaultRomFolder(); });
}

void PanelPaths::LoadCfg(bool paths_only) {
  // The first lines alone don't make the favourites those of the file.
  CfgFile first_lines = cfg_;
  CfgFile& file = paths_only ? first_lines : cfg_;
  const CfgFields cfg = file.Read();
  Report(tools_, file.Usable());
  if (cfg.exe_path) conf_.txtOptExePath->SetText(*cfg.exe_path);
  if (cfg.rom_path) {
    conf_.txtOptRomPath->SetText(*cfg.rom_path);
    state_.RomPath = *cfg.rom_path;
  }
  if (cfg.snap_path) conf_.txtOptSnap->SetText(*cfg.snap_path);
  if (cfg.snap_format) conf_.SetSnapFormat(*cfg.snap_format);
  if (cfg.emulator_folder) lblOptHide = *cfg.emulator_folder;
  if (paths_only) return;
  if (cfg.layout_word) sizes_.lblRidimen = *cfg.layout_word;
  if (cfg.favourites && emulator_.has_favourites) favourites_.SetEntries(*cfg.favourites);
}

Status PanelPaths::TrySaveCfg() {
  state_.RomPath = conf_.txtOptRomPath->Text();
  if (!cfg_.Usable()) return Success();
  return cfg_.Write({.exe_path = conf_.txtOptExePath->Text(),
                     .rom_path = conf_.txtOptRomPath->Text(),
                     .snap_path = conf_.txtOptSnap->Text(),
                     .snap_format = conf_.SnapFormat(),
                     .emulator_folder = lblOptHide,
                     .layout_word = sizes_.lblRidimen,
                     .favourites = favourites_.EntriesBackwards()});
}

void PanelPaths::SaveCfg() {
  const Status saved = TrySaveCfg();
  if (saved.ok() || told_ == saved.error().message) return;
  Report(tools_, saved);
  if (told_) told_ = saved.error().message;
}

void PanelPaths::TellOnce(bool on) {
  if (on) {
    told_.emplace();
  } else {
    told_.reset();
  }
}

std::string PanelPaths::EmulatorPath() const { return conf_.txtOptExePath->Text(); }

void PanelPaths::PickEmulator() {
  FilePicker picker(tools_.files, tools_.panels, tools_.boxes, ProgramTitle());
  picker.lblSelExeHide = emulator_.SectionWord();
  picker.ShowModal();
}

void PanelPaths::PickMissingRom() {
  keeps_rom_folder_ = true;
  PickGameRom();
  keeps_rom_folder_ = false;
}

void PanelPaths::PickGameRom() {
  const std::string game = game_.Name();
  game_.Find(game);
  if (game_.ParentFile == "-" || game_.ParentFile == "neogeo") game_.ParentFile.clear();
  std::string pattern = game_.RomFile + ".zip";
  if (emulator_.knows_parents && !game_.ParentFile.empty()) {
    pattern += ";" + game_.ParentFile + ".zip";
  }
  FolderPicker picker(tools_.files, tools_.panels);
  picker.lblSelDirHide = emulator_.SettingsWord();
  picker.SetCaption("Search Rom for " + game + " (" + pattern + ")");
  picker.SetPattern(pattern);
  picker.OpenAt(0, DosPath(settings_.txtRomPath->Text()));
  picker.ShowModal();
}

void PanelPaths::BrowseExecutable() {
  const std::string path = EmulatorPath();
  FilePicker picker(tools_.files, tools_.panels, tools_.boxes, ProgramTitle());
  picker.lblSelExeHide = emulator_.SectionWord();
  picker.OpenAt(DriveOf(path), DosPath(path).Folder());
  picker.ShowModal();
}

void PanelPaths::BrowseRomFolder() {
  const std::string rom_path = conf_.txtOptRomPath->Text();
  const std::string drive_path =
      emulator_.panel.rom_drive_from_rom_path ? rom_path : EmulatorPath();
  FolderPicker picker(tools_.files, tools_.panels);
  picker.lblSelDirHide = emulator_.RomWord();
  if (!picker.OpenAt(DriveOf(drive_path), DosPath(rom_path)) && emulator_.panel.second_rom_folder) {
    picker.OpenAt(0, DosPath(lblOptHide + std::string(emulator_.rom_sub_folder)));
  }
  picker.ShowModal();
}

void PanelPaths::BrowseSnapFolder() {
  const std::string snap_path = conf_.txtOptSnap->Text();
  const std::string extension = conf_.SnapExtension();
  FolderPicker picker(tools_.files, tools_.panels);
  picker.SetPattern(extension.empty() ? "" : "*" + extension);
  picker.lblSelDirHide = emulator_.SnapWord();
  picker.OpenAt(DriveOf(emulator_.panel.snap_drive_from_emulator ? lblOptHide : snap_path),
                DosPath(snap_path));
  picker.ShowModal();
}

void PanelPaths::TakeDefaultRomFolder() {
  LoadCfg(true);
  settings_.txtRomPath->SetText(conf_.txtOptRomPath->Text());
}

void PanelPaths::Scan() {
  const std::string folder = conf_.txtOptRomPath->Text();
  const bool merged = conf_.optMerged != nullptr && conf_.optMerged->Value();
  const Result<ScanOutcome> scan =
      game_.Games().Scan(DosPath(folder), merged ? SetType::kMerged : SetType::kSplit);
  if (!scan.ok()) {
    tools_.boxes.Warn(ProgramTitle(), scan.error().message);
    return;
  }
  tools_.boxes.Inform(ProgramTitle(), std::to_string(scan->found) + " Roms found in:\r" + folder);
  Report(tools_, scan->written);
}

bool PanelPaths::CanKeepFolder(const DosPath& folder) {
  constexpr std::size_t kLongestFolder = 90;
  const std::string& text = folder.Text();
  if (text.find_first_of(",~\"") == std::string::npos && text.size() <= kLongestFolder) {
    return true;
  }
  tools_.boxes.Warn(ProgramTitle(),
                    text +
                        "\rThis folder can't be kept in the settings of a game. Please choose one "
                        "without comma, tilde and quotation mark, of at most 90 characters.");
  return false;
}

void PanelPaths::TakeRomFolder(const DosPath& folder) {
  if (CanKeepFolder(folder)) conf_.txtOptRomPath->SetText(folder.Text());
}

// The folder that was chosen after a start found no archive is kept at once, so that the next start
// finds it.
void PanelPaths::TakeGameRomFolder(const DosPath& folder) {
  if (!CanKeepFolder(folder)) return;
  settings_.txtRomPath->SetText(folder.Text());
  if (keeps_rom_folder_) game_.KeepRomFolder();
}

void PanelPaths::TakeSnapFolder(const DosPath& folder) { conf_.txtOptSnap->SetText(folder.Text()); }

void PanelPaths::TakeEmulator(const DosPath& exe_path, const DosPath& folder) {
  conf_.txtOptExePath->SetText(exe_path.Text());
  lblOptHide = folder.Text();
}

}  // namespace zarvo
