#include "ui/panel/sections.h"

#include <algorithm>
#include <utility>

#include "core/platform/messages.h"
#include "ui/panel/panel_hover.h"

namespace zarvo {

Sections::Sections(DosFiles& files, const ProgramFolders& folders, MessageBoxes& boxes,
                   MainPlace& main, std::function<Status(std::string_view)> run,
                   std::function<ClockTime()> clock)
    : tools_{.files = files,
             .folders = folders,
             .boxes = boxes,
             .main = main,
             .panels = *this,
             .run = std::move(run),
             .clock = std::move(clock)} {}

Sections::~Sections() = default;

EmulatorPanel* Sections::Find(const Emulator& emulator) const { return Of(emulator).panel.get(); }

EmulatorPanel& Sections::Panel(const Emulator& emulator) {
  Section& section = Of(emulator);
  if (!section.panel) {
    section.panel = std::make_unique<EmulatorPanel>(emulator, tools_, section.state);
    section.panel->Closed.Connect([this, &emulator] { Drop(emulator); });
  }
  return *section.panel;
}

// The panel may be in the middle of its own event, so it goes when the event has ended.
void Sections::Drop(const Emulator& emulator) {
  if (EmulatorPanel* const panel = Of(emulator).panel.release()) panel->deleteLater();
}

bool Sections::IsOpen(const Emulator& emulator) const { return Of(emulator).state.lblShow == "SI"; }

void Sections::OpenSection(const Emulator& emulator) {
  if (!Catalogue(tools_.files, tools_.folders, emulator).HasDataFile()) {
    tools_.boxes.Warn(ProgramTitle(), MsgNoDataFile);
    return;
  }
  lblHideEmuSelect = emulator.SectionWord();
  Panel(emulator).Enter();
}

bool Sections::EachOpenPanel(const std::function<bool(EmulatorPanel&)>& visit) const {
  return std::ranges::all_of(sections_, [&](const Section& section) {
    return !section.panel || section.state.lblShow != "SI" || visit(*section.panel);
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
  if (panel == nullptr || !IsOpen(emulator)) return std::nullopt;
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
  if (lblHideEmuSelect == "HIDE") return;
  for (const Section& section : sections_) {
    if (section.panel && section.panel->ItsEmulator().panel.clear_rests_with_main) {
      ResetClearLabel(*section.panel);
    }
  }
}

void Sections::SetRomFolder(const Emulator& emulator, const DosPath& folder) {
  Panel(emulator).paths->TakeRomFolder(folder);
}

void Sections::SetSnapFolder(const Emulator& emulator, const DosPath& folder) {
  Panel(emulator).paths->TakeSnapFolder(folder);
}

void Sections::SetGameRomFolder(const Emulator& emulator, const DosPath& folder) {
  Panel(emulator).paths->TakeGameRomFolder(folder);
}

void Sections::SetEmulator(const Emulator& emulator, const DosPath& exe_path,
                           const DosPath& folder) {
  Panel(emulator).paths->TakeEmulator(exe_path, folder);
}

void Sections::SetRecording(const Emulator& emulator, const FileName& file) {
  if (RecordingRules* const rules = Panel(emulator).recording.get()) {
    rules->lblHideInp = file.Text();
  }
}

void Sections::ClearPlayback(const Emulator& emulator) {
  if (RecordingRules* const rules = Panel(emulator).recording.get()) rules->ClearPlayback();
}

void Sections::SaveCfg(const Emulator& emulator) { Panel(emulator).paths->SaveCfg(); }

}  // namespace zarvo
