#include "ui/panel/sections.h"

#include <algorithm>
#include <utility>

#include "core/platform/dos_path.h"
#include "ui/panel/panel_hover.h"

namespace zarvo {
namespace {

constexpr std::size_t Index(Emulator emulator) { return static_cast<std::size_t>(emulator); }

}  // namespace

Sections::Sections(DosFiles& files, AppState& app, MessageBoxes& boxes, MainPlace& main,
                   std::function<Status(std::string_view)> run, std::function<ClockTime()> clock)
    : tools_{.files = files,
             .app = app,
             .boxes = boxes,
             .main = main,
             .panels = *this,
             .run = std::move(run),
             .clock = std::move(clock)} {}

Sections::~Sections() = default;

EmulatorPanel* Sections::Find(Emulator emulator) const { return panels_[Index(emulator)].get(); }

EmulatorPanel& Sections::Panel(Emulator emulator) {
  std::unique_ptr<EmulatorPanel>& panel = panels_[Index(emulator)];
  if (!panel) {
    panel = std::make_unique<EmulatorPanel>(ProfileOf(emulator), tools_);
    panel->Closed.Connect([this, emulator] { Drop(emulator); });
  }
  return *panel;
}

// The panel may be in the middle of its own event, so it goes when the event has ended.
void Sections::Drop(Emulator emulator) {
  if (EmulatorPanel* const panel = panels_[Index(emulator)].release()) panel->deleteLater();
}

void Sections::OpenSection(const EmulatorProfile& profile) {
  if (!tools_.files.FileExists(JoinPath(tools_.app.DataFolder(), profile.data_file))) {
    tools_.boxes.Warn(tools_.app.Title(), tools_.app.messages.MsgNoDataFile);
    return;
  }
  tools_.app.lblHideEmuSelect = profile.section_word;
  Panel(profile.emulator).Enter();
}

bool Sections::EachOpenPanel(const std::function<bool(EmulatorPanel&)>& visit) const {
  return std::ranges::all_of(Profiles(), [&](const EmulatorProfile& profile) {
    EmulatorPanel* const panel = Find(profile.emulator);
    return panel == nullptr || !tools_.app.IsOpen(profile.emulator) || visit(*panel);
  });
}

bool Sections::SaveOpenPanels() {
  return EachOpenPanel([](EmulatorPanel& panel) { return panel.SaveOrLeave(); });
}

void Sections::SaveWithoutQuestions() {
  EachOpenPanel([](EmulatorPanel& panel) {
    Ignore(panel.TrySaveAll());
    return true;
  });
}

bool Sections::CloseOpenPanels() {
  return EachOpenPanel([](EmulatorPanel& panel) {
    if (!panel.SaveAndMarkClosed()) return false;
    panel.UnloadWindow();
    return true;
  });
}

std::optional<TwipRect> Sections::PanelPlace(Emulator emulator) const {
  const EmulatorPanel* const panel = Find(emulator);
  if (panel == nullptr || !tools_.app.IsOpen(emulator)) return std::nullopt;
  return TwipRect{panel->Left(), panel->Top(), panel->Window::Width(), panel->Window::Height()};
}

void Sections::SetPanelPlace(Emulator emulator, const TwipRect& place) {
  EmulatorPanel* const panel = Find(emulator);
  if (panel == nullptr) return;
  panel->SetTop(place.top);
  panel->SetLeft(place.left);
  panel->SetWidth(place.width);
  panel->SetHeight(place.height);
}

void Sections::ResetClearLabels() {
  for (const Emulator emulator : {Emulator::kMame, Emulator::kCallus}) {
    if (EmulatorPanel* const panel = Find(emulator)) ResetClearLabel(*panel);
  }
}

void Sections::SetRomFolder(Emulator emulator, std::string_view folder) {
  Panel(emulator).TakeRomFolder(folder);
}

void Sections::SetSnapFolder(Emulator emulator, std::string_view folder) {
  Panel(emulator).TakeSnapFolder(folder);
}

void Sections::SetGameRomFolder(Emulator emulator, std::string_view folder) {
  Panel(emulator).TakeGameRomFolder(folder);
}

void Sections::SetEmulator(Emulator emulator, std::string_view exe_path, std::string_view folder) {
  Panel(emulator).TakeEmulator(exe_path, folder);
}

void Sections::SetRecording(std::string_view file) { Panel(Emulator::kMame).TakeRecording(file); }

void Sections::ClearPlayback() { Panel(Emulator::kMame).ClearPlayback(); }

void Sections::SaveCfg(Emulator emulator) { Panel(emulator).SaveCfg(); }

}  // namespace zarvo
