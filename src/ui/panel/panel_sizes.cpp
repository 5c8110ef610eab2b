#include "ui/panel/panel_sizes.h"

#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"

namespace zarvo {
namespace {

constexpr int kFullWidth = 6345;
constexpr int kShortWidth = 2415;
constexpr int kFullHeight = 7260;
constexpr int kSmallHeight = 4620;

}  // namespace

// Where the lower controls stand beside the tall list.
struct PanelSizes::DownPlaces {
  int list_left;  // of the game list and of the state combo
  int genre_left;
};

PanelSizes::PanelSizes(Window& panel, const Emulator& emulator, GameFilters& games,
                       Favourites& favourites)
    : panel_(panel), emulator_(emulator), games_(games), favourites_(favourites) {
  Build();
  if (emulator.panel.has_arrangements) BuildArrow();
}

void PanelSizes::Build() {
  const auto button = [this](int left, std::string_view caption, std::string_view name,
                             std::string_view accessible) {
    Label* const label = MakeButton(&panel_, ButtonKind::kSize, {left, 120, 210, 225}, caption);
    label->SetName(BareName(emulator_, name));
    label->SetAccessibleName(accessible);
    return label;
  };
  cmdLarge = button(1440, "L", "cmdLarge", "Large size");
  cmdMiddle = button(1665, "M", "cmdMiddle", "Middle size");
  cmdShort = button(1890, "S", "cmdShort", "Short size");
  if (emulator_.panel.has_large_size) {
    cmdLarge->Click.Connect([this] { Large(); });
  } else {
    cmdLarge->SetEnabled(false);
  }
  cmdMiddle->Click.Connect([this] { Middle(); });
  cmdShort->Click.Connect([this] { Short(); });
}

void PanelSizes::BuildArrow() {
  cmdRidimen = new ImageBox(&panel_);
  cmdRidimen->SetName(ControlName(emulator_, "cmdRidimen"));
  cmdRidimen->SetAccessibleName("Change the arrangement of the lists");
  cmdRidimen->SetPressable(true);
  cmdRidimen->SetPlace({2025, 510, 300, 210});
  cmdRidimen->Click.Connect([this] { Flip(); });
  ShowArrow();
}

void PanelSizes::ShowArrow() const {
  cmdRidimen->SetPicture(Picture::FromResource(lblRidimen == "down" ? "arrow_up" : "arrow_down"));
}

void PanelSizes::Resize(int width, int height) {
  panel_.SetWidth(width);
  panel_.SetHeight(height);
}

void PanelSizes::Large() { Resize(kFullWidth, kFullHeight); }

void PanelSizes::Middle() {
  if (cmdRidimen != nullptr) ArrangeUp();
  Resize(kFullWidth, kSmallHeight);
}

void PanelSizes::Short() {
  if (cmdRidimen != nullptr) ArrangeUp();
  Resize(kShortWidth, kSmallHeight);
}

void PanelSizes::Flip() {
  if (panel_.Height() == kSmallHeight) return;
  if (lblRidimen == "up") {
    lblRidimen = "down";
    ArrangeDown({.list_left = 2400, .genre_left = 3990});
  } else {
    ArrangeUp();
  }
}

void PanelSizes::ArrangeAtLoad() {
  if (cmdRidimen == nullptr) return;
  if (lblRidimen == "down") {
    ArrangeDown({.list_left = 2430, .genre_left = 4050});
  } else {
    ShowArrow();
  }
}

void PanelSizes::ArrangeDown(const DownPlaces& places) {
  ShowArrow();
  favourites_.lstPref->SetHeight(6415);
  if (emulator_.has_filters) {
    games_.cboFilterMisc->SetLeft(places.list_left);
    games_.cboFilterGenre->SetLeft(places.genre_left);
    games_.cboFilterManufactor->SetVisible(false);
    games_.cboFilterYear->SetVisible(false);
  }
  games_.lstRom->SetColumns(1);
  games_.lstRom->SetWidth(3855);
  games_.lstRom->SetLeft(places.list_left);
}

void PanelSizes::ArrangeUp() {
  lblRidimen = "up";
  ShowArrow();
  favourites_.lstPref->SetHeight(3820);
  if (emulator_.has_filters) {
    games_.cboFilterMisc->SetLeft(90);
    games_.cboFilterGenre->SetLeft(emulator_.panel.genre_left_up);
    games_.cboFilterManufactor->SetVisible(true);
    games_.cboFilterYear->SetVisible(true);
  }
  games_.lstRom->SetColumns(2);
  games_.lstRom->SetWidth(6165);
  games_.lstRom->SetLeft(90);
}

}  // namespace zarvo
