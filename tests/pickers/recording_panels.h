// Panels that write down what a picker tells them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pickers/picker_panels.h"

namespace zarvo {

class RecordingPanels : public PickerPanels {
 public:
  void SetRomFolder(Emulator emulator, std::string_view folder) override {
    Note("rom", emulator, folder);
  }
  void SetSnapFolder(Emulator emulator, std::string_view folder) override {
    Note("snap", emulator, folder);
  }
  void SetGameRomFolder(Emulator emulator, std::string_view folder) override {
    Note("game", emulator, folder);
  }
  void SetEmulator(Emulator emulator, std::string_view exe_path, std::string_view folder) override {
    Note("exe", emulator, std::string(exe_path) + " in " + std::string(folder));
  }
  void SetRecording(std::string_view file) override {
    told.push_back("recording " + std::string(file));
  }
  void ClearPlayback() override { told.emplace_back("playback off"); }
  void SaveCfg(Emulator emulator) override { Note("save", emulator, ""); }

  std::vector<std::string> told;

 private:
  void Note(std::string_view what, Emulator emulator, std::string_view value) {
    std::string line(what);
    line.append(" ").append(ProfileOf(emulator).word);
    if (!value.empty()) line.append(" ").append(value);
    told.push_back(line);
  }
};

}  // namespace zarvo
