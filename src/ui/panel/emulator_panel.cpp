#include "ui/panel/emulator_panel.h"

#include "core/catalogue/game_details.h"
#include "core/launch/settings_store.h"
#include "core/platform/dos_path.h"

namespace zarvo {
namespace {

// A panel stands this far to the right of the main window's left edge.
constexpr int kDockDistance = 3450;

}  // namespace

void EmulatorPanel::LoadCfg(bool paths_only) {
  // The first lines alone don't make the favourites those of the file.
  Store first_lines = cfg_;
  Store& store = paths_only ? first_lines : cfg_;
  const CfgFields cfg = ReadCfg(store, emulator_);
  Report(tools_, store.Usable());
  if (cfg.exe_path) picConf->txtOptExePath->SetText(*cfg.exe_path);
  if (cfg.rom_path) {
    picConf->txtOptRomPath->SetText(*cfg.rom_path);
    tools_.app.RomPathOf(emulator_) = *cfg.rom_path;
  }
  if (cfg.snap_path) picConf->txtOptSnap->SetText(*cfg.snap_path);
  if (cfg.snap_format) picConf->SetSnapFormat(*cfg.snap_format);
  if (cfg.emulator_folder) lblOptHide = *cfg.emulator_folder;
  if (paths_only) return;
  if (cfg.layout_word) sizes->lblRidimen = *cfg.layout_word;
  if (cfg.favourites && emulator_.has_favourites) favourites->SetEntries(*cfg.favourites);
}

Status EmulatorPanel::TrySaveCfg() {
  tools_.app.RomPathOf(emulator_) = picConf->txtOptRomPath->Text();
  if (!cfg_.Usable()) return Success();
  return WriteCfg(cfg_, emulator_,
                  {.exe_path = picConf->txtOptExePath->Text(),
                   .rom_path = picConf->txtOptRomPath->Text(),
                   .snap_path = picConf->txtOptSnap->Text(),
                   .snap_format = picConf->SnapFormat(),
                   .emulator_folder = lblOptHide,
                   .layout_word = sizes->lblRidimen,
                   .favourites = favourites->EntriesBackwards()});
}

void EmulatorPanel::SaveCfg() {
  const Status saved = TrySaveCfg();
  if (saved.ok() || told_ == saved.error().message) return;
  Report(tools_, saved);
  if (told_) told_ = saved.error().message;
}

Status EmulatorPanel::TrySaveSettings(std::string_view key) {
  if (!settings_.Usable()) return Success();
  return zarvo::SaveSettings(settings_, emulator_, key, picSettings->Values());
}

void EmulatorPanel::SaveSettings(std::string_view key) { Report(tools_, TrySaveSettings(key)); }

Status EmulatorPanel::TrySaveAll() {
  const Status cfg = TrySaveCfg();
  const Status settings = TrySaveSettings(lblRomSettings->Caption());
  std::string reasons;
  for (const Status* saved : {&cfg, &settings}) {
    if (!*saved) reasons += (reasons.empty() ? "" : "\r") + saved->error().message;
  }
  return reasons.empty() ? Success() : Status(Error{reasons});
}

bool EmulatorPanel::SaveOrLeave() {
  for (;;) {
    const Status saved = TrySaveAll();
    if (saved) return true;
    const BoxAnswer answer =
        tools_.boxes.Show(BoxIcon::kExclamation, BoxButtons::kRetryStayLeave, tools_.app.Title(),
                          "What was changed in " + std::string(emulator_.selector_caption) +
                              " can't be saved, and would be lost:\r\r" + saved.error().message);
    if (answer != BoxAnswer::kRetry) return answer == BoxAnswer::kLeave;
  }
}

bool EmulatorPanel::SaveAndMarkClosed() {
  if (!SaveOrLeave()) return false;
  tools_.app.ShowWord(emulator_) = "NO";
  closed_ = true;
  return true;
}

void EmulatorPanel::Exit() {
  if (SaveAndMarkClosed()) UnloadWindow();
}

// Beside the main window: at its right, or at its left where less than half would be seen there, or
// else where all of it is seen.
void EmulatorPanel::Dock() {
  SetTop(tools_.main.MainTop());
  SetLeft(tools_.main.MainLeft() + kDockDistance);
  if (IsHalfSeen()) return;
  SetLeft(tools_.main.MainLeft() - Window::Width());
  if (!IsWhollySeen()) BringWhollyOnScreen();
}

void EmulatorPanel::Enter() {
  if (games->lstRom != nullptr) games->Fill(GameState::kAllSupported);
  if (favourites->lstPref->ListCount() > 0) {
    favourites->lstPref->SetListIndex(0);
  } else {
    if (emulator_.panel.shown_before_first_game) ShowModeless();
    if (games->lstRom != nullptr) games->lstRom->SetListIndex(0);
  }
  games->ShowCount();
  if (!tools_.files.FileExists(JoinPath(tools_.app.CfgFolder(), emulator_.CfgFile()))) {
    tools_.boxes.Inform(tools_.app.Title(), tools_.app.messages.MsgNoCfgFile);
    ShowConfiguration();
  }
  tools_.app.ShowWord(emulator_) = "SI";
  FirstList()->setFocus();
  ShowModeless();
}

void EmulatorPanel::ShowConfiguration() {
  for (Control* const page : {static_cast<Control*>(picSnap), static_cast<Control*>(picSettings),
                              static_cast<Control*>(picInfo), static_cast<Control*>(picHelp)}) {
    page->SetVisible(false);
  }
  picConf->Control::SetVisible(true);
}

bool EmulatorPanel::FindRom(std::string_view game) {
  const auto record = FindRecord(tools_.files, tools_.app, emulator_, game);
  if (record && record->field_count > static_cast<int>(Field::kRomFile)) {
    RomFile = (*record)[Field::kRomFile];
  }
  if (record && record->field_count > static_cast<int>(Field::kCloneOf)) {
    ParentFile = (*record)[Field::kCloneOf];
    return true;
  }
  // The removal selects a neighbour, which is looked up in turn: its failure is the same one.
  if (removes_unknown_) return false;
  removes_unknown_ = true;
  tools_.boxes.Warn(tools_.app.Title(), tools_.app.messages.MsgRomNotInDataFile);
  if (emulator_.has_favourites) favourites->RemoveUnknown();
  removes_unknown_ = false;
  return false;
}

void EmulatorPanel::ShowPage(Page page) {
  picSnap->imgSnap->SetVisible(page == Page::kSnapshot);
  picSnap->Control::SetVisible(page == Page::kSnapshot);
  picSettings->Control::SetVisible(page == Page::kSettings);
  picInfo->Control::SetVisible(page == Page::kInfo);
  picHelp->Control::SetVisible(page == Page::kHelp);
  picConf->Control::SetVisible(page == Page::kConfiguration);
}

void EmulatorPanel::EnterSnapshotPage() {
  SaveSettings(lblRomSettings->Caption());
  ShowPage(Page::kSnapshot);
  picSnap->HideLabels();
  SnapPath = picConf->txtOptSnap->Text();
  const int cycles = cycles_;
  FindRom(lblRomSettings->Caption());
  if (cycles == cycles_) ShowPictureOfRom();
}

void EmulatorPanel::EnterInfoPage() {
  SaveSettings(lblRomSettings->Caption());
  ShowPage(Page::kInfo);
  ShowInfo();
}

void EmulatorPanel::EnterHelpPage() {
  SaveSettings(lblRomSettings->Caption());
  ShowPage(Page::kHelp);
  ShowGameList();
}

void EmulatorPanel::EnterConfigurationPage() {
  SaveSettings(lblRomSettings->Caption());
  ShowPage(Page::kConfiguration);
}

void EmulatorPanel::EnterSettingsPage() {
  if (picSettings->Visible()) return;
  ShowPage(Page::kSettings);
  const std::string& rom_path = tools_.app.RomPathOf(emulator_);
  picSettings->txtRomPath->SetText(rom_path.empty() ? emulator_.default_rom_folder : rom_path);
  picSettings->ApplyPresets();
  const std::string key = FirstGame();
  lblRomSettings->SetCaption(key);
  const LoadOutcome outcome = LoadGame(key);
  if (outcome == LoadOutcome::kRecord && picSettings->txtRomPath->Text().empty()) {
    picSettings->txtRomPath->SetText(picConf->txtOptRomPath->Text());
  }
}

// The favourites if there are any, else the big list where the panel has one.
ListBox* EmulatorPanel::FirstList() const {
  return favourites->lstPref->ListCount() > 0 || games->lstRom == nullptr ? favourites->lstPref
                                                                          : games->lstRom;
}

std::string EmulatorPanel::FirstGame() {
  std::string caption = lblRomSettings->Caption();
  if (!caption.empty()) return caption;
  ListBox* const list = FirstList();
  list->SetListIndex(0);
  return list->Text();
}

void EmulatorPanel::OnSelected(const ListBox* list) {
  const bool guarded = list == games->lstRom && emulator_.has_filters;
  if (guarded && games->lblFilterHide == "FREE") return;
  TakeBack();
  ++cycles_;
  const std::string name = list->Text();
  if (picSnap->imgSnap->Visible()) {
    ShowSnapshotOf(name, list);
  } else if (picSettings->Visible()) {
    SelectOnSettingsPage(name);
  } else if (picInfo->Visible()) {
    MoveCaption(name);
    ShowInfo();
  } else if (picHelp->Visible()) {
    MoveCaption(name);
    ShowGameList();
  } else if (picConf->Visible()) {
    MoveCaption(name);
  }
}

void EmulatorPanel::SelectOnSettingsPage(const std::string& name) {
  const std::string caption = lblRomSettings->Caption();
  if (!caption.empty()) SaveSettings(caption);
  if (!MoveCaption(name)) LoadGame(name);
}

void EmulatorPanel::ShowSnapshotOf(const std::string& name, const ListBox* list) {
  picSnap->HideLabels();
  const int cycles = cycles_;
  FindRom(name);
  // An unknown favourite has gone, and its neighbour stands on the page by now.
  if (cycles != cycles_ && list == favourites->lstPref) return;
  const bool moved = MoveCaption(name);
  if (!ShowPictureOfRom() && !moved) LoadGame(name);
}

bool EmulatorPanel::ShowPictureOfRom() {
  const std::string format = picConf->SnapFormat();
  std::string extension;
  if (format == "GIF") extension = ".gif";
  if (format == "JPG") extension = ".jpg";
  if (format == "BMP") extension = ".bmp";
  return picSnap->ShowPicture(tools_.files, SnapPath, RomFile + extension);
}

void EmulatorPanel::ShowInfo() {
  const auto record = FindRecord(tools_.files, tools_.app, emulator_, lblRomSettings->Caption());
  if (record && record->field_count == kFieldCount) picInfo->ShowRecord(*record);
}

void EmulatorPanel::ShowGameList() {
  if (emulator_.help.game_list.read == nullptr) return;
  picHelp->SetLines(GameListText(tools_.files, emulator_, lblOptHide, lblRomSettings->Caption()));
}

// The controls always belong to the game in the caption: whenever it moves, that game's record is
// loaded. Returns whether it moved.
bool EmulatorPanel::MoveCaption(const std::string& name) {
  const std::string before = lblRomSettings->Caption();
  if (name == before) return false;
  lblRomSettings->SetCaption(name);
  // While no game was current the controls held no game's values: start values or presets stay.
  const LoadOutcome outcome = LoadGame(name);
  if (outcome == LoadOutcome::kNothing && !before.empty()) ApplyDefaults();
  return true;
}

void EmulatorPanel::ApplyDefaults() {
  picSettings->Apply(DefaultValues(emulator_, tools_.app.RomPathOf(emulator_)));
}

LoadOutcome EmulatorPanel::LoadGame(std::string_view key) {
  OptionValues values = picSettings->Values();
  // A start borrows the controls for another game: what it sees says nothing about their own.
  Store borrowed = settings_;
  Store& store = key == lblRomSettings->Caption() ? settings_ : borrowed;
  const bool told = !store.Usable();
  const LoadOutcome outcome = LoadSettings(store, tools_.app, emulator_, key, values);
  if (!told) Report(tools_, store.Usable());
  if (outcome != LoadOutcome::kNothing) picSettings->Apply(values);
  return outcome;
}

void EmulatorPanel::ApplyToAll() {
  if (!tools_.boxes.Ask(tools_.app.Title(), tools_.app.messages.MsgApplyDefaults)) return;
  const Status saved = SaveAsDefault(settings_, emulator_, picSettings->Values());
  Report(tools_, saved);
  if (saved.ok()) tools_.boxes.Inform(tools_.app.Title(), tools_.app.messages.MsgDefaultsSaved);
}

}  // namespace zarvo
