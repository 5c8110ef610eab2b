// The options of an emulator: one declaration for every option, read by the settings page, the
// defaults, the stored record, the presets and the command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/twips.h"

namespace zarvo {

enum class OptionKind {
  kCombo,  // its value is a ListIndex
  kCheck,  // its value is 0 or 1
  kText,   // its value is a text
};

struct OptionSpec {
  std::string_view name;  // of the control without the emulator's word: "cboScreenRes"
  OptionKind kind = OptionKind::kCheck;
  std::string_view caption = {};  // of the check box; of the small label beside a combo or text box
  std::string_view tool_tip = {};
  std::span<const std::string_view> items = {};  // of a combo
  int default_value = 0;                         // at panel load, and for a game without a record
  std::string_view default_text = {};            // of a text box
  std::optional<int> preset = {};  // set when the settings page is entered, before the load
  bool stored = true;              // a field of the record; else only cleared with it
  bool enabled_at_start = true;
  int most_characters = 0;  // of a text box; 0: no limit
  bool is_number = false;   // a text box that takes a whole number alone
  // Of the message about any other key; empty: the program's title.
  std::string_view wrong_key_title = {};
  TwipRect place = {};          // on the settings page
  TwipRect caption_place = {};  // of the label of a combo or text box
};

// What a control of the settings page holds.
struct OptionValue {
  int number = 0;    // ListIndex or Value
  std::string text;  // of a text box
  bool enabled = true;
};

// The settings page as values, in the order of the option table.
struct OptionValues {
  std::string rom_folder;
  std::vector<OptionValue> values;
};

}  // namespace zarvo
