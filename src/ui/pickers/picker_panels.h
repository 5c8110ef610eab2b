// Where the pickers write their results: the controls of the emulators' panels.
#pragma once

#include "core/emulators/emulator.h"

namespace zarvo {

class PickerPanels {
 public:
  virtual ~PickerPanels() = default;

  virtual void SetRomFolder(const Emulator& emulator,
                            const DosPath& folder) = 0;  // txtOpt<Emu>RomPath
  virtual void SetSnapFolder(const Emulator& emulator,
                             const DosPath& folder) = 0;  // txtOpt<Emu>Snap
  virtual void SetGameRomFolder(const Emulator& emulator,
                                const DosPath& folder) = 0;  // txt<Emu>RomPath
  // txtOpt<Emu>ExePath and lblOpt<Emu>Hide.
  virtual void SetEmulator(const Emulator& emulator, const DosPath& exe_path,
                           const DosPath& folder) = 0;
  virtual void SetRecording(const Emulator& emulator, const FileName& file) = 0;  // lblHideInp
  virtual void ClearPlayback(const Emulator& emulator) = 0;  // chk<Emu>Playback goes off
  virtual void SaveCfg(const Emulator& emulator) = 0;
};

}  // namespace zarvo
