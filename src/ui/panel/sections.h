// The sections of the emulators: which panels are there, and what the rest of the program asks of
// them.
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
  Sections(DosFiles& files, const ProgramFolders& folders, MessageBoxes& boxes, MainPlace& main,
           std::function<Status(std::string_view)> run, std::function<ClockTime()> clock);
  ~Sections() override;

  // The panel of an emulator, created and loaded at the first touch.
  EmulatorPanel& Panel(const Emulator& emulator);
  // nullptr while there is none.
  [[nodiscard]] EmulatorPanel* Find(const Emulator& emulator) const;

  [[nodiscard]] bool IsOpen(const Emulator& emulator) const override;
  void OpenSection(const Emulator& emulator) override;
  bool SaveOpenPanels() override;
  bool CloseOpenPanels() override;
  // As SaveOpenPanels; what can't be saved is lost.
  void SaveWithoutQuestions();
  [[nodiscard]] std::optional<TwipRect> PanelPlace(const Emulator& emulator) const override;
  void SetPanelPlace(const Emulator& emulator, const TwipRect& place) override;
  void ResetClearLabels() override;

  void SetRomFolder(const Emulator& emulator, const DosPath& folder) override;
  void SetSnapFolder(const Emulator& emulator, const DosPath& folder) override;
  void SetGameRomFolder(const Emulator& emulator, const DosPath& folder) override;
  void SetEmulator(const Emulator& emulator, const DosPath& exe_path,
                   const DosPath& folder) override;
  void SetRecording(const Emulator& emulator, const FileName& file) override;
  void ClearPlayback(const Emulator& emulator) override;
  void SaveCfg(const Emulator& emulator) override;

  std::string lblHideEmuSelect = "HIDE";  // section entered last

 private:
  struct Section {
    SectionState state;
    std::unique_ptr<EmulatorPanel> panel;  // nullptr while there is none
  };
  [[nodiscard]] Section& Of(const Emulator& emulator) { return sections_[IndexOf(emulator)]; }
  [[nodiscard]] const Section& Of(const Emulator& emulator) const {
    return sections_[IndexOf(emulator)];
  }
  void Drop(const Emulator& emulator);
  // In the emulators' order, until a visit gives false; whether none did.
  bool EachOpenPanel(const std::function<bool(EmulatorPanel&)>& visit) const;

  PanelTools tools_;
  std::vector<Section> sections_{Emulators().size()};  // in their order
};

}  // namespace zarvo
