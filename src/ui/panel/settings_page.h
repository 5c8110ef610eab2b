// The settings page: the options of one game, built from the emulator's option table.
#pragma once

#include <string_view>
#include <vector>

#include "core/emulators/emulator.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {

// The control of one option; one of the three pointers is set.
struct OptionControl {
  const OptionSpec* declared = nullptr;
  ComboBox* combo = nullptr;
  CheckBox* check = nullptr;
  TextBox* text = nullptr;
  Label* caption = nullptr;  // of a combo or text box

  [[nodiscard]] Control* Part() const;
  [[nodiscard]] OptionValue Value() const;
  // Raises the control's click, or change, if the value is new.
  void Set(const OptionValue& value) const;
};

class SettingsPage : public PictureBox {
 public:
  SettingsPage(QWidget* parent, const Emulator& emulator);

  // What the controls hold, in the order of the option table.
  [[nodiscard]] OptionValues Values() const;
  // Sets the controls in the order of the table. An option that no record stores is only ever
  // cleared, never turned on.
  void Apply(const OptionValues& values);
  // The values that are set when the page is entered, ahead of the game's record.
  void ApplyPresets();

  // The control of an option, by its place in the option table.
  [[nodiscard]] const OptionControl& Option(std::size_t index) const;

  TextBox* txtRomPath;
  Label* cmdSelDir;
  Label* cmdDirRomDefault;
  Label* cmdApplytoAll;

 private:
  void BuildFolderRow();
  void BuildOption(const OptionSpec& declared);
  void BuildCaption(OptionControl& control);

  const Emulator& emulator_;
  std::vector<OptionControl> options_;
};

}  // namespace zarvo
