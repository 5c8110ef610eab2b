#include "ui/panel/settings_page.h"

#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"

namespace zarvo {

Control* OptionControl::Part() const {
  if (combo != nullptr) return combo;
  return check != nullptr ? static_cast<Control*>(check) : text;
}

OptionValue OptionControl::Value() const {
  OptionValue value;
  if (combo != nullptr) {
    value = {.number = combo->ListIndex(), .text = combo->Text(), .enabled = combo->Enabled()};
  } else if (check != nullptr) {
    value = {.number = check->Value(), .text = {}, .enabled = check->Enabled()};
  } else {
    value = {.number = 0, .text = text->Text(), .enabled = text->Enabled()};
  }
  return value;
}

void OptionControl::Set(const OptionValue& value) const {
  if (combo != nullptr) {
    combo->SetListIndex(value.number);
  } else if (check != nullptr) {
    check->SetValue(value.number);
  } else {
    text->SetText(value.text);
  }
}

SettingsPage::SettingsPage(QWidget* parent, const Emulator& emulator)
    : PictureBox(parent), emulator_(emulator) {
  SetName(ControlName(emulator, "picSettings"));
  SetAccessibleName("Settings page");
  SetBackColor(kCard);
  BuildFolderRow();
  const std::span<const OptionSpec> table = emulator.options;
  options_.reserve(table.size());
  for (const OptionSpec& declared : table) BuildOption(declared);
}

void SettingsPage::BuildFolderRow() {
  txtRomPath = new TextBox(this);
  txtRomPath->SetName(ControlName(emulator_, "txtRomPath"));
  txtRomPath->SetAccessibleName("Rom folder of this game");
  txtRomPath->SetReadOnly(true);
  txtRomPath->SetMaxLength(90);
  txtRomPath->SetPlace({60, 60, 2250, 255});

  cmdSelDir = MakeButton(this, ButtonKind::kPath, {2340, 60, 465, 255}, "Brow");
  cmdSelDir->SetName(ControlName(emulator_, "cmdSelDir"));
  cmdSelDir->SetToolTipText(" Choose Univoque Rom Directory ");
  cmdSelDir->SetAccessibleName("Browse for this game's rom folder");
  cmdDirRomDefault = MakeButton(this, ButtonKind::kPath, {2835, 60, 435, 255}, "Def.");
  cmdDirRomDefault->SetName("cmdDirRomDefault");
  cmdDirRomDefault->SetToolTipText(" Assign default Rom Directory ");
  cmdDirRomDefault->SetAccessibleName("Use the default rom folder for this game");
  cmdApplytoAll = MakeButton(this, ButtonKind::kBulk, {3315, 60, 480, 255}, "All");
  cmdApplytoAll->SetName("cmdApplytoAll");
  cmdApplytoAll->SetToolTipText(" Apply current settings to All Games ");
  cmdApplytoAll->SetAccessibleName("Apply these settings to all games");
}

void SettingsPage::BuildOption(const OptionSpec& declared) {
  OptionControl control{.declared = &declared};
  Control* part = nullptr;
  switch (declared.kind) {
    case OptionKind::kCombo:
      part = control.combo = new ComboBox(this);
      for (const std::string_view item : declared.items) control.combo->AddItem(item);
      break;
    case OptionKind::kCheck:
      part = control.check = new CheckBox(this);
      control.check->SetForeColor(kBlack);
      control.check->SetCaption(declared.caption);
      break;
    case OptionKind::kText:
      part = control.text = new TextBox(this);
      control.text->SetMaxLength(declared.most_characters);
      break;
  }
  if (declared.kind != OptionKind::kCheck) BuildCaption(control);
  part->SetName(ControlName(emulator_, declared.name));
  part->SetAccessibleName(declared.caption);
  part->SetToolTipText(declared.tool_tip);
  part->SetPlace(declared.place);
  control.Set({.number = declared.default_value, .text = std::string(declared.default_text)});
  part->SetEnabled(declared.enabled_at_start);
  options_.push_back(control);
}

void SettingsPage::BuildCaption(OptionControl& control) {
  control.caption = MakeCaption(this, control.declared->caption_place, control.declared->caption);
  if (control.declared->kind == OptionKind::kText) {
    control.caption->SetToolTipText(control.declared->tool_tip);
  }
}

OptionValues SettingsPage::Values() const {
  OptionValues values{.rom_folder = txtRomPath->Text(), .values = {}};
  values.values.reserve(options_.size());
  for (const OptionControl& control : options_) values.values.push_back(control.Value());
  return values;
}

void SettingsPage::Apply(const OptionValues& values) {
  txtRomPath->SetText(values.rom_folder);
  // What isn't stored can only be turned off. That comes first: while it is on, it may exclude what
  // the record turns on.
  for (const bool stored : {false, true}) {
    for (std::size_t i = 0; i < options_.size(); ++i) {
      const OptionValue& value = values.values[i];
      if (options_[i].declared->stored != stored) continue;
      if (stored || value.number == 0) options_[i].Set(value);
    }
  }
}

void SettingsPage::ApplyPresets() {
  for (const OptionControl& control : options_) {
    if (control.declared->preset) control.Set({.number = *control.declared->preset, .text = {}});
  }
}

const OptionControl& SettingsPage::Option(std::size_t index) const { return options_[index]; }

}  // namespace zarvo
