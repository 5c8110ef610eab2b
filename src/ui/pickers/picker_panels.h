// Where the pickers write their results: the controls of the emulators' panels.
#pragma once

#include <string_view>

#include "core/emulators/emulator_profile.h"

namespace zarvo {

class PickerPanels {
 public:
  virtual ~PickerPanels() = default;

  virtual void SetRomFolder(Emulator emulator, std::string_view folder) = 0;   // txtOpt<Emu>RomPath
  virtual void SetSnapFolder(Emulator emulator, std::string_view folder) = 0;  // txtOpt<Emu>Snap
  virtual void SetGameRomFolder(Emulator emulator, std::string_view folder) = 0;  // txt<Emu>RomPath
  // txtOpt<Emu>ExePath and lblOpt<Emu>Hide.
  virtual void SetEmulator(Emulator emulator, std::string_view exe_path,
                           std::string_view folder) = 0;
  virtual void SetRecording(std::string_view file) = 0;  // lblHideInp
  virtual void ClearPlayback() = 0;                      // chkMamePlayback goes off
  virtual void SaveCfg(Emulator emulator) = 0;
};

}  // namespace zarvo
