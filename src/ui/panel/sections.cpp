#include "ui/panel/sections.h"

#include <algorithm>
#include <utility>

#include "core/platform/dos_path.h"
#include "ui/panel/panel_hover.h"

namespace zarvo {
namespace {

std::size_t Index(const Emulator& emulator) { return IndexOf(emulator); }

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

EmulatorPanel* Sections::Find(const Emulator& emulator) const {
  return panels_[Index(emulator)].get();
}

EmulatorPanel& Sections::Panel(const Emulator& emulator) {
  std::unique_ptr<EmulatorPanel>& panel = panels_[Index(emulator)];
  if (!panel) {
    panel = std::make_unique<EmulatorPanel>(emulator, tools_);
    panel->Closed.Connect([this, &emulator] { Drop(emulator); });
  }
  return *panel;
}

// The panel may be in the middle of its own event, so it goes when the event has ended.
void Sections::Drop(const Emulator& emulator) {
  if (EmulatorPanel* const panel = panels_[Index(emulator)].release()) panel->deleteLater();
}

void Sections::OpenSection(const Emulator& emulator) {
  if (!tools_.files.FileExists(JoinPath(tools_.app.DataFolder(), emulator.DataFile()))) {
    tools_.boxes.Warn(tools_.app.Title(), tools_.app.messages.MsgNoDataFile);
    return;
  }
  tools_.app.lblHideEmuSelect = emulator.SectionWord();
  Panel(emulator).Enter();
}

bool Sections::EachOpenPanel(const std::function<bool(EmulatorPanel&)>& visit) const {
  return std::ranges::all_of(Emulators(), [&](const Emulator& emulator) {
    EmulatorPanel* const panel = Find(emulator);
    return panel == nullptr || !tools_.app.IsOpen(emulator) || visit(*panel);
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

std::optional<TwipRect> Sections::PanelPlace(const Emulator& emulator) const {
  const EmulatorPanel* const panel = Find(emulator);
  if (panel == nullptr || !tools_.app.IsOpen(emulator)) return std::nullopt;
  return TwipRect{panel->Left(), panel->Top(), panel->Window::Width(), panel->Window::Height()};
}

void Sections::SetPanelPlace(const Emulator& emulator, const TwipRect& place) {
  EmulatorPanel* const panel = Find(emulator);
  if (panel == nullptr) return;
  panel->SetTop(place.top);
  panel->SetLeft(place.left);
  panel->SetWidth(place.width);
  panel->SetHeight(place.height);
}

void Sections::ResetClearLabels() {
  for (const auto& panel : panels_) {
    if (panel && panel->ItsEmulator().panel.clear_rests_with_main) ResetClearLabel(*panel);
  }
}

void Sections::SetRomFolder(const Emulator& emulator, std::string_view folder) {
  Panel(emulator).TakeRomFolder(folder);
}

void Sections::SetSnapFolder(const Emulator& emulator, std::string_view folder) {
  Panel(emulator).TakeSnapFolder(folder);
}

void Sections::SetGameRomFolder(const Emulator& emulator, std::string_view folder) {
  Panel(emulator).TakeGameRomFolder(folder);
}

void Sections::SetEmulator(const Emulator& emulator, std::string_view exe_path,
                           std::string_view folder) {
  Panel(emulator).TakeEmulator(exe_path, folder);
}

void Sections::SetRecording(const Emulator& emulator, std::string_view file) {
  Panel(emulator).TakeRecording(file);
}

void Sections::ClearPlayback(const Emulator& emulator) { Panel(emulator).ClearPlayback(); }

void Sections::SaveCfg(const Emulator& emulator) { Panel(emulator).SaveCfg(); }

}  // namespace zarvo
