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

}  // namespace

EmulatorPanel::EmulatorPanel(const Emulator& emulator, PanelTools tools, SectionState& state)
    : Window(WindowFrame::kNone, ControlName(emulator, "frm")),
      emulator_(emulator),
      tools_(std::move(tools)),
      state_(state) {
  Build();
  BuildBehaviour();
  Wire();
  Load();
}

EmulatorPanel::~EmulatorPanel() = default;

void EmulatorPanel::Build() {
  SetCaption(std::string(emulator_.selector_caption) + " - " + ProgramTitle());
  SetWidth(kPanelWidth);
  SetHeight(emulator_.panel.height);
  SetBackground(Picture::FromResource("panel_background"));
  BuildHeader();
  favourites = std::make_unique<Favourites>(this, emulator_, tools_);
  pages = std::make_unique<PanelPages>(this, emulator_, tools_);
  games = std::make_unique<GameFilters>(this, emulator_, tools_);
  sizes = std::make_unique<PanelSizes>(*this, emulator_, *games, *favourites);
  BuildEdges();
  OrderControls();
}

void EmulatorPanel::BuildBehaviour() {
  game = std::make_unique<CurrentGame>(emulator_, games->Games(),
                                       SettingsStore(tools_.files, tools_.folders, emulator_),
                                       ControlsOfGame());
  paths =
      std::make_unique<PanelPaths>(emulator_, tools_, state_, *pages, *game, *favourites, *sizes);
  const auto emulator_folder = [this] { return DosPath(paths->lblOptHide); };
  pages->emulator_folder = emulator_folder;
  pages->Connect(*game, state_, *favourites, *games);
  if (emulator_.recording) {
    recording =
        std::make_unique<RecordingRules>(emulator_, *pages->picSettings, tools_, emulator_folder);
  }
  start_ = std::make_unique<GameStart>(emulator_, tools_, *game, *pages, *paths, recording.get());
  menu_ = std::make_unique<ListMenu>(emulator_, games->Games());
  find = new FindField(this, games->Games());
}

GameControls EmulatorPanel::ControlsOfGame() {
  return {.caption = [this] { return lblRomSettings->Caption(); },
          .set_caption = [this](const std::string& name) { lblRomSettings->SetCaption(name); },
          .values = [this] { return pages->picSettings->Values(); },
          .apply = [this](const OptionValues& values) { pages->picSettings->Apply(values); },
          .rom_folder = [this] { return state_.RomPath; },
          .report = [this](const Status& status) { Report(tools_, status); },
          .unknown = [this] { TellUnknownGame(); }};
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
             pages->imgButSnap,
             pages->imgButSet,
             pages->imgButInfo,
             pages->imgButHelp,
             pages->imgButOpts,
             pages->picSnap,
             pages->picSettings,
             pages->picInfo,
             pages->picHelp,
             pages->picConf,
             games->cboFilterMisc,
             games->cboFilterGenre,
             games->cboFilterManufactor,
             games->cboFilterYear,
             games->lstRom});
}

void EmulatorPanel::Wire() {
  WireLists();
  WireOptions();
  games->on_missing_scan = [this] { pages->ShowConfiguration(); };
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
  window_menu_ = std::make_unique<WindowMenu>(*this, *logo, [this] { Dock(); });
  WireHover(*this);
}

void EmulatorPanel::WireLists() {
  menu_->Find.Connect([this](ListBox* list) { find->Open(list); });
  const auto serve = [this](ListBox* list, bool starts_empty) {
    list->DblClick.Connect([this, list] { StartSelected(list); });
    list->KeyDown.Connect([this, list, starts_empty](const KeyArgs& key) {
      const bool is_slash = key.code == key::kSlash && key.shift <= kShiftDown;
      if (is_slash || (key.code == key::kLetterF && key.shift == kControlDown)) {
        list->SwallowKey();
        find->Open(list);
        return;
      }
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

void EmulatorPanel::WireOptions() {
  const SettingsPage& page = *pages->picSettings;
  page.cmdApplytoAll->Click.Connect([this] { ApplyToAll(); });
  for (std::size_t i = 0; i < emulator_.options.size(); ++i) {
    const OptionSpec& option = emulator_.options[i];
    if (!option.is_number) continue;
    WireNumberBox(
        page.Option(i).text, tools_,
        option.wrong_key_title.empty() ? ProgramTitle() : std::string(option.wrong_key_title));
  }
  for (const Enabling& enabling : emulator_.enablings) WireEnabling(page, enabling);
}

void EmulatorPanel::Load() {
  paths->LoadCfg(false);
  pages->SnapPath = pages->picConf->txtOptSnap->Text();
  pages->picSnap->imgSnap->SetVisible(true);
  pages->picSettings->Control::SetVisible(false);
  sizes->ArrangeAtLoad();
  Dock();
  games->Load();
  if (games->lstRom != nullptr) games->ShowCount();
  favourites->ShowCount();
  std::string rom_path = state_.RomPath;
  if (rom_path.empty() && emulator_.panel.fixed_rom_folder_at_load) {
    rom_path = emulator_.default_rom_folder;
  }
  pages->picSettings->txtRomPath->SetText(rom_path);
}

}  // namespace zarvo
