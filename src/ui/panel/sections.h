// The five sections: which panels are there, and what the rest of the program asks of them.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "ui/panel/emulator_panel.h"
#include "ui/pickers/picker_panels.h"
#include "ui/shell/section_host.h"

namespace zarvo {

class Sections : public SectionHost, public PickerPanels {
 public:
  // `run` and `clock` as in PanelTools.
  Sections(DosFiles& files, AppState& app, MessageBoxes& boxes, MainPlace& main,
           std::function<Status(std::string_view)> run, std::function<ClockTime()> clock);
  ~Sections() override;

  // The panel of an emulator, created and loaded at the first touch.
  EmulatorPanel& Panel(Emulator emulator);
  // nullptr while there is none.
  [[nodiscard]] EmulatorPanel* Find(Emulator emulator) const;

  void OpenSection(const EmulatorProfile& profile) override;
  bool SaveOpenPanels() override;
  bool CloseOpenPanels() override;
  // As SaveOpenPanels; what can't be saved is lost.
  void SaveWithoutQuestions();
  [[nodiscard]] std::optional<TwipRect> PanelPlace(Emulator emulator) const override;
  void SetPanelPlace(Emulator emulator, const TwipRect& place) override;
  void ResetClearLabels() override;

  void SetRomFolder(Emulator emulator, std::string_view folder) override;
  void SetSnapFolder(Emulator emulator, std::string_view folder) override;
  void SetGameRomFolder(Emulator emulator, std::string_view folder) override;
  void SetEmulator(Emulator emulator, std::string_view exe_path, std::string_view folder) override;
  void SetRecording(std::string_view file) override;
  void ClearPlayback() override;
  void SaveCfg(Emulator emulator) override;

 private:
  void Drop(Emulator emulator);
  // In profile order, until a visit gives false; whether none did.
  bool EachOpenPanel(const std::function<bool(EmulatorPanel&)>& visit) const;

  PanelTools tools_;
  std::array<std::unique_ptr<EmulatorPanel>, kEmulatorCount> panels_;
};

}  // namespace zarvo
