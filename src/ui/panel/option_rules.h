// The options that have rules of their own while the player sets them.
#pragma once

#include <functional>
#include <string>

#include "ui/panel/panel_tools.h"
#include "ui/panel/settings_page.h"

namespace zarvo {

// MAME's Record and Playback, which exclude each other, and the recording to play back.
class RecordingRules {
 public:
  // `emulator_folder` gives the emulator's own folder, in which INP holds the recordings.
  RecordingRules(const SettingsPage& page, const PanelTools& tools,
                 std::function<std::string()> emulator_folder);

  void ClearPlayback();

  // File name of the recording to play back, with its extension; empty at first.
  std::string lblHideInp;

 private:
  void OnRecord();
  void OnPlayback();

  CheckBox* chkRecord_;
  CheckBox* chkPlayback_;
  const PanelTools& tools_;
  std::function<std::string()> emulator_folder_;
};

// A box that takes a whole number: never empty, and only digits and minus can be typed.
// `title` is the title of the message about any other key.
void WireSkipBox(TextBox* box, const PanelTools& tools, std::string title);

// M72's vertical display: its list can be used only while the box is on.
void WireVerticalDisplay(const SettingsPage& page);

}  // namespace zarvo
