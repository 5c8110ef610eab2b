// The options that have rules of their own while the player sets them.
#pragma once

#include <functional>
#include <string>

#include "ui/panel/panel_tools.h"
#include "ui/panel/settings_page.h"

namespace zarvo {

// Record and Playback, which exclude each other, and the recording to play back.
class RecordingRules {
 public:
  // `emulator_folder` gives the emulator's own folder, in which INP holds the recordings.
  RecordingRules(const Emulator& emulator, const SettingsPage& page, const PanelTools& tools,
                 std::function<DosPath()> emulator_folder);

  void ClearPlayback();

  // File name of the recording to play back, with its extension; empty at first.
  std::string lblHideInp;

 private:
  void OnRecord();
  void OnPlayback();

  const Emulator& emulator_;
  CheckBox* chkRecord_;
  CheckBox* chkPlayback_;
  const PanelTools& tools_;
  std::function<DosPath()> emulator_folder_;
};

// A box that takes a whole number: never empty, and only digits and minus can be typed.
// `title` is the title of the message about any other key.
void WireNumberBox(TextBox* box, const PanelTools& tools, std::string title);

// An option that can be used only while a check box is on.
void WireEnabling(const SettingsPage& page, const Enabling& enabling);

}  // namespace zarvo
