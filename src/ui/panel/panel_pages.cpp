#include "ui/panel/panel_pages.h"

#include <utility>

#include "ui/panel/control_names.h"

namespace zarvo {
namespace {

constexpr TwipRect kPagePlace{2400, 690, 3855, 3885};
constexpr int kButtonTop = 120;
constexpr int kButtonWidth = 705;
constexpr int kButtonHeight = 315;
constexpr int kPressedShift = 10;  // right and down

}  // namespace

PanelPages::PanelPages(QWidget* panel, const Emulator& emulator, const PanelTools& tools)
    : emulator_(emulator), tools_(tools) {
  BuildButtons(panel);
  BuildPages(panel);
}

void PanelPages::BuildButtons(QWidget* panel) {
  struct Row {
    ImageBox** button;
    std::string_view name;
    std::string_view back_name;
    const char* picture;
    int left;
    std::string_view accessible;
  };
  const std::array<Row, 5> rows = {{
      {&imgButSnap, "imgButSnap", "imgButSnapBack", "button_snap", 2430, "Snapshot"},
      {&imgButSet, "imgButSet", "imgButSetsBack", "button_settings", 3210, "Settings"},
      {&imgButInfo, "imgButInfo", "imgButInfoBack", "button_info", 3990, "Details"},
      {&imgButHelp, "imgButHelp", "imgButHelpBack", "button_help", 4770, "Help"},
      {&imgButOpts, "imgButOpts", "imgButOptsBack", "button_conf", 5550, "Configuration"},
  }};
  for (const Row& row : rows) {
    auto* const back = new ImageBox(panel);
    back->SetName(row.back_name);
    back->SetPicture(Picture::FromResource("button_back"));
    back->SetPlace({row.left - 30, kButtonTop - 30, kButtonWidth + 60, kButtonHeight + 60});
    auto* const button = *row.button = new ImageBox(panel);
    button->SetName(BareName(emulator_, row.name));
    button->SetAccessibleName(row.accessible);
    button->SetToolTipText(row.accessible);
    button->SetPicture(Picture::FromResource(row.picture));
    button->SetPressable(true);
    button->SetPlace({row.left, kButtonTop, kButtonWidth, kButtonHeight});
    button->MouseDown.Connect([button, left = row.left](const MouseArgs&) {
      button->SetTop(kButtonTop + kPressedShift);
      button->SetLeft(left + kPressedShift);
    });
    button->MouseUp.Connect([button, left = row.left](const MouseArgs&) {
      button->SetTop(kButtonTop);
      button->SetLeft(left);
    });
  }
}

void PanelPages::BuildPages(QWidget* panel) {
  picSnap = new SnapshotPage(panel, emulator_);
  picSettings = new SettingsPage(panel, emulator_);
  picInfo = new InfoPage(panel, emulator_);
  picHelp = new HelpPage(panel, emulator_);
  picConf = new ConfPage(panel, emulator_);
  for (PictureBox* const page :
       std::initializer_list<PictureBox*>{picSnap, picSettings, picInfo, picHelp, picConf}) {
    page->SetPlace(kPagePlace);
  }
  for (Control* const page : std::initializer_list<Control*>{picInfo, picHelp, picConf}) {
    page->SetVisible(false);
  }
  TellPage(Page::kSnapshot);
}

void PanelPages::Connect(CurrentGame& game, const SectionState& state, const Favourites& favourites,
                         const GameFilters& games) {
  game_ = &game;
  state_ = &state;
  favourites_ = &favourites;
  games_ = &games;
  imgButSnap->Click.Connect([this] { EnterSnapshotPage(); });
  imgButSet->Click.Connect([this] { EnterSettingsPage(); });
  imgButInfo->Click.Connect([this] {
    Enter(Page::kInfo);
    ShowInfo();
  });
  imgButHelp->Click.Connect([this] {
    Enter(Page::kHelp);
    ShowGameList();
  });
  imgButOpts->Click.Connect([this] { Enter(Page::kConfiguration); });
  for (ListBox* const list : {favourites.lstPref, games.lstRom}) {
    if (list != nullptr) list->Click.Connect([this, list] { OnSelected(list); });
  }
}

void PanelPages::Show(Page page) {
  picSnap->imgSnap->SetVisible(page == Page::kSnapshot);
  picSnap->Control::SetVisible(page == Page::kSnapshot);
  picSettings->Control::SetVisible(page == Page::kSettings);
  picInfo->Control::SetVisible(page == Page::kInfo);
  picHelp->Control::SetVisible(page == Page::kHelp);
  picConf->Control::SetVisible(page == Page::kConfiguration);
  TellPage(page);
}

// Which button is down, for a screen reader.
void PanelPages::TellPage(Page page) const {
  const std::array<ImageBox*, 5> buttons = {imgButSnap, imgButSet, imgButInfo, imgButHelp,
                                            imgButOpts};
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i]->SetChecked(i == static_cast<std::size_t>(page));
  }
}

void PanelPages::ShowAfterStart(Page page, bool hides_snapshot) {
  const bool snap_page = picSnap->Visible() && !hides_snapshot;
  Show(page);
  picSnap->Control::SetVisible(snap_page);
}

void PanelPages::ShowConfiguration() const {
  for (Control* const page :
       std::initializer_list<Control*>{picSnap, picSettings, picInfo, picHelp}) {
    page->SetVisible(false);
  }
  picConf->Control::SetVisible(true);
  TellPage(Page::kConfiguration);
}

void PanelPages::Enter(Page page) {
  game_->Save();
  Show(page);
}

void PanelPages::EnterSnapshotPage() {
  Enter(Page::kSnapshot);
  picSnap->HideLabels();
  SnapPath = picConf->txtOptSnap->Text();
  const int cycles = cycles_;
  game_->Find(game_->Name());
  if (cycles == cycles_) ShowPictureOfRom();
}

void PanelPages::EnterSettingsPage() {
  if (picSettings->Visible()) return;
  Show(Page::kSettings);
  const std::string& rom_path = state_->RomPath;
  picSettings->txtRomPath->SetText(rom_path.empty() ? emulator_.default_rom_folder : rom_path);
  picSettings->ApplyPresets();
  const std::string key = FirstGame();
  game_->Rename(key);
  if (game_->Load(key) == LoadOutcome::kRecord && picSettings->txtRomPath->Text().empty()) {
    picSettings->txtRomPath->SetText(picConf->txtOptRomPath->Text());
  }
}

ListBox* PanelPages::FirstList() const {
  return favourites_->lstPref->ListCount() > 0 || games_->lstRom == nullptr ? favourites_->lstPref
                                                                            : games_->lstRom;
}

std::string PanelPages::FirstGame() {
  std::string name = game_->Name();
  if (!name.empty()) return name;
  ListBox* const list = FirstList();
  list->SetListIndex(0);
  return list->Text();
}

void PanelPages::OnSelected(const ListBox* list) {
  const bool guarded = list == games_->lstRom && emulator_.has_filters;
  if (guarded && games_->lblFilterHide == "FREE") return;
  favourites_->lstPref->SetBright(list == favourites_->lstPref);
  if (games_->lstRom != nullptr) games_->lstRom->SetBright(list == games_->lstRom);
  game_->TakeBack();
  ++cycles_;
  const std::string name = list->Text();
  if (picSnap->imgSnap->Visible()) {
    ShowSnapshotOf(name, list);
  } else if (picSettings->Visible()) {
    SelectOnSettingsPage(name);
  } else if (picInfo->Visible()) {
    game_->MoveTo(name);
    ShowInfo();
  } else if (picHelp->Visible()) {
    game_->MoveTo(name);
    ShowGameList();
  } else if (picConf->Visible()) {
    game_->MoveTo(name);
  }
}

void PanelPages::SelectOnSettingsPage(const std::string& name) {
  if (!game_->Name().empty()) game_->Save();
  if (!game_->MoveTo(name)) game_->Load(name);
}

void PanelPages::ShowSnapshotOf(const std::string& name, const ListBox* list) {
  picSnap->HideLabels();
  const int cycles = cycles_;
  game_->Find(name);
  // An unknown favourite has gone, and its neighbour stands on the page by now.
  if (cycles != cycles_ && list == favourites_->lstPref) return;
  const bool moved = game_->MoveTo(name);
  if (!ShowPictureOfRom() && !moved) game_->Load(name);
}

bool PanelPages::ShowPictureOfRom() {
  return picSnap->ShowPicture(tools_.files, DosPath(SnapPath),
                              game_->RomFile + picConf->SnapExtension());
}

void PanelPages::ShowInfo() {
  const auto record = game_->Games().Find(game_->Name());
  if (record && record->field_count == kFieldCount) picInfo->ShowRecord(*record);
}

void PanelPages::ShowGameList() {
  if (emulator_.help.game_list.read == nullptr) return;
  picHelp->SetLines(GameListText(tools_.files, emulator_, emulator_folder(), game_->Name()));
}

}  // namespace zarvo
