// Building and wiring of a panel's controls.
#include <array>
#include <utility>

#include "ui/panel/control_names.h"
#include "ui/panel/emulator_panel.h"
#include "ui/panel/page_parts.h"
#include "ui/panel/panel_hover.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/tab_order.h"

namespace zarvo {
namespace {

constexpr int kPanelWidth = 6345;
constexpr TwipRect kPagePlace{2400, 690, 3855, 3885};
constexpr int kButtonTop = 120;
constexpr int kPressedTop = 130;
constexpr int kPressedShift = 10;
constexpr TwipRect kButtonSize{0, 0, 705, 315};

}  // namespace

EmulatorPanel::EmulatorPanel(const Emulator& emulator, PanelTools tools)
    : Window(WindowFrame::kNone, ControlName(emulator, "frm")),
      emulator_(emulator),
      tools_(std::move(tools)),
      cfg_(CfgStoreOf(tools_.files, tools_.app, emulator)),
      settings_(SettingsStoreOf(tools_.files, tools_.app, emulator)) {
  Build();
  Wire();
  Load();
}

EmulatorPanel::~EmulatorPanel() = default;

void EmulatorPanel::Build() {
  SetCaption(std::string(emulator_.selector_caption) + " - " + tools_.app.Title());
  SetWidth(kPanelWidth);
  SetHeight(emulator_.panel.height);
  SetBackground(Picture::FromResource("panel_background"));
  lblOptHide = emulator_.start.emulator_folder;
  BuildHeader();
  favourites = std::make_unique<Favourites>(this, emulator_, tools_);
  BuildPageButtons();
  BuildPages();
  games = std::make_unique<GameFilters>(this, emulator_, tools_);
  sizes = std::make_unique<PanelSizes>(*this, emulator_, *games, *favourites);
  menu_ = std::make_unique<ListMenu>(emulator_, tools_);
  BuildEdges();
  OrderControls();
}

// The frame of the ground picture runs round the large size. In a smaller one these close it, over
// whatever that size cuts off.
void EmulatorPanel::BuildEdges() {
  for (QWidget** const edge : {&right_edge_, &bottom_edge_}) {
    *edge = new QWidget(this);
    (*edge)->setAttribute(Qt::WA_TransparentForMouseEvents);
    (*edge)->setAutoFillBackground(true);
    (*edge)->setPalette(QPalette(kSlate.ToQt()));
  }
}

void EmulatorPanel::resizeEvent(QResizeEvent* event) {
  Window::resizeEvent(event);
  right_edge_->setGeometry(width() - 1, 2, 1, height() - 2);
  bottom_edge_->setGeometry(0, height() - 1, width(), 1);
}

void EmulatorPanel::BuildHeader() {
  logo = new ImageBox(this);
  logo->SetName(ControlName(emulator_, "img", ""));
  logo->SetAccessibleName(std::string(emulator_.selector_caption) + " logo");
  logo->SetPicture(Picture::FromResource(emulator_.Logo().c_str()));
  logo->SetPlace({120, 120, 1260, 324});
  logo->SetPressable(true);
  logo->setFocusPolicy(Qt::TabFocus);  // to carry the panel by it leaves the focus in the list
  logo->SetPressIsDouble(!emulator_.panel.docks_on_click);

  cmdExit = MakeButton(this, ButtonKind::kClose, {2115, 120, 210, 225}, "X");
  cmdExit->SetName(ControlName(emulator_, "cmdExit"));
  cmdExit->SetToolTipText(" Close window ");
  cmdExit->SetAccessibleName("Close window");

  lblRomSettings = MakeHeading(this, {2400, 465, 3855, 210}, "");
  lblRomSettings->SetName(ControlName(emulator_, "lblRomSettings"));
  lblRomSettings->SetForeColor(kYellow);
}

void EmulatorPanel::BuildPageButtons() {
  struct Row {
    ImageBox** button;
    std::string_view name;
    std::string_view back_name;
    const char* picture;
    int left;
    std::string_view accessible;
    std::function<void()> action;
  };
  const std::array<Row, 5> rows = {{
      {&imgButSnap, "imgButSnap", "imgButSnapBack", "button_snap", 2430, "Snapshot",
       [this] { EnterSnapshotPage(); }},
      {&imgButSet, "imgButSet", "imgButSetsBack", "button_settings", 3210, "Settings",
       [this] { EnterSettingsPage(); }},
      {&imgButInfo, "imgButInfo", "imgButInfoBack", "button_info", 3990, "Details",
       [this] { EnterInfoPage(); }},
      {&imgButHelp, "imgButHelp", "imgButHelpBack", "button_help", 4770, "Help",
       [this] { EnterHelpPage(); }},
      {&imgButOpts, "imgButOpts", "imgButOptsBack", "button_conf", 5550, "Configuration",
       [this] { EnterConfigurationPage(); }},
  }};
  for (const Row& row : rows) {
    auto* const back = new ImageBox(this);
    back->SetName(row.back_name);
    back->SetPicture(Picture::FromResource("button_back"));
    back->SetPlace(
        {row.left - 30, kButtonTop - 30, kButtonSize.width + 60, kButtonSize.height + 60});
    auto* const button = new ImageBox(this);
    *row.button = button;
    button->SetName(BareName(emulator_, row.name));
    button->SetAccessibleName(row.accessible);
    button->SetToolTipText(row.accessible);
    button->SetPicture(Picture::FromResource(row.picture));
    button->SetPressable(true);
    button->SetPlace({row.left, kButtonTop, kButtonSize.width, kButtonSize.height});
    WirePageButton(button, row.left, row.action);
  }
}

void EmulatorPanel::WirePageButton(ImageBox* button, int left, std::function<void()> action) {
  button->MouseDown.Connect([button, left](const MouseArgs&) {
    button->SetTop(kPressedTop);
    button->SetLeft(left + kPressedShift);
  });
  button->MouseUp.Connect([button, left](const MouseArgs&) {
    button->SetTop(kButtonTop);
    button->SetLeft(left);
  });
  button->Click.Connect(std::move(action));
}

void EmulatorPanel::BuildPages() {
  picSnap = new SnapshotPage(this, emulator_);
  picSettings = new SettingsPage(this, emulator_);
  picInfo = new InfoPage(this, emulator_);
  picHelp = new HelpPage(this, emulator_);
  picConf = new ConfPage(this, emulator_);
  for (PictureBox* const page :
       {static_cast<PictureBox*>(picSnap), static_cast<PictureBox*>(picSettings),
        static_cast<PictureBox*>(picInfo), static_cast<PictureBox*>(picHelp),
        static_cast<PictureBox*>(picConf)}) {
    page->SetPlace(kPagePlace);
  }
  for (Control* const page : {static_cast<Control*>(picInfo), static_cast<Control*>(picHelp),
                              static_cast<Control*>(picConf)}) {
    page->SetVisible(false);
  }
}

// Left column, pages, games: the order in which the eye takes the panel in.
void EmulatorPanel::OrderControls() {
  OrderTabs({logo,
             sizes->cmdLarge,
             sizes->cmdMiddle,
             sizes->cmdShort,
             cmdExit,
             favourites->lblFavCount,
             favourites->lblClearFav,
             sizes->cmdRidimen,
             favourites->lstPref,
             imgButSnap,
             imgButSet,
             imgButInfo,
             imgButHelp,
             imgButOpts,
             picSnap,
             picSettings,
             picInfo,
             picHelp,
             picConf,
             games->cboFilterMisc,
             games->cboFilterGenre,
             games->cboFilterManufactor,
             games->cboFilterYear,
             games->lstRom});
}

void EmulatorPanel::Wire() {
  WireLists();
  WireConfiguration();
  WireSettings();
  games->on_missing_scan = [this] { ShowConfiguration(); };
  cmdExit->Click.Connect([this] { Exit(); });
  Unload.Connect([this](bool& refuse) {
    refuse = !closed_ && !SaveAndMarkClosed();
    if (!refuse) Closed.Raise();
  });
  logo->MouseMove.Connect([this](const MouseArgs& mouse) {
    if (mouse.button == MouseButton::kLeft) MoveWithMouse();
  });
  logo->KeyDown.Connect([this](const KeyArgs& key) { MoveByKey(key); });
  Event<>& dock = emulator_.panel.docks_on_click ? logo->Click : logo->DblClick;
  dock.Connect([this] { Dock(); });
  WireHover(*this);
}

void EmulatorPanel::WireLists() {
  const auto serve = [this](ListBox* list, bool starts_empty) {
    list->Click.Connect([this, list] { OnSelected(list); });
    list->DblClick.Connect([this, list] { StartSelected(list); });
    list->KeyDown.Connect([this, list, starts_empty](const KeyArgs& key) {
      if (key.code == key::kEnter && (starts_empty || !list->Text().empty())) StartSelected(list);
    });
  };
  serve(favourites->lstPref, !emulator_.has_favourites);
  menu_->Serve(favourites->lstPref, emulator_.has_favourites);
  if (games->lstRom == nullptr) return;
  serve(games->lstRom, true);
  menu_->Serve(games->lstRom, false);
  favourites->Connect(games->lstRom, games->lblTotal);
}

void EmulatorPanel::WireConfiguration() {
  picConf->cmdSfoglia->Click.Connect([this] { BrowseExecutable(); });
  picConf->cmdSelDir->Click.Connect([this] { BrowseRomFolder(); });
  picConf->cmdDirSnap->Click.Connect([this] { BrowseSnapFolder(); });
  if (picConf->lblScanNow != nullptr) picConf->lblScanNow->Click.Connect([this] { Scan(); });
}

void EmulatorPanel::WireSettings() {
  picSettings->cmdSelDir->Click.Connect([this] { BrowseGameRom(); });
  picSettings->cmdDirRomDefault->Click.Connect([this] { TakeDefaultRomFolder(); });
  picSettings->cmdApplytoAll->Click.Connect([this] { ApplyToAll(); });
  for (std::size_t i = 0; i < emulator_.options.size(); ++i) {
    const OptionSpec& option = emulator_.options[i];
    if (!option.is_number) continue;
    WireNumberBox(
        picSettings->Option(i).text, tools_,
        option.wrong_key_title.empty() ? tools_.app.Title() : std::string(option.wrong_key_title));
  }
  for (const Enabling& enabling : emulator_.enablings) WireEnabling(*picSettings, enabling);
  if (emulator_.recording) {
    recording = std::make_unique<RecordingRules>(emulator_, *picSettings, tools_,
                                                 [this] { return lblOptHide; });
  }
}

void EmulatorPanel::Load() {
  LoadCfg(false);
  SnapPath = picConf->txtOptSnap->Text();
  picSnap->imgSnap->SetVisible(true);
  picSettings->Control::SetVisible(false);
  sizes->ArrangeAtLoad();
  Dock();
  games->Load();
  if (games->lstRom != nullptr) games->ShowCount();
  favourites->ShowCount();
  std::string rom_path = tools_.app.RomPathOf(emulator_);
  if (rom_path.empty() && emulator_.panel.fixed_rom_folder_at_load) {
    rom_path = emulator_.default_rom_folder;
  }
  picSettings->txtRomPath->SetText(rom_path);
}

}  // namespace zarvo
