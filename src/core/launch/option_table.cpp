#include "core/launch/option_table.h"

#include <array>

#include "core/launch/options_callus.h"
#include "core/launch/options_m72.h"
#include "core/launch/options_mame.h"
#include "core/launch/options_raine.h"
#include "core/launch/options_system16.h"

namespace zarvo {

std::span<const OptionSpec> OptionsOf(Emulator emulator) {
  static constexpr std::array<std::span<const OptionSpec>, kEmulatorCount> kTables = {
      mame::kOptions, callus::kOptions, raine::kOptions, system16::kOptions, m72::kOptions};
  return kTables[static_cast<std::size_t>(emulator)];
}

std::size_t OptionIndex(Emulator emulator, std::string_view name) {
  const auto options = OptionsOf(emulator);
  std::size_t index = 0;
  while (index < options.size() && options[index].name != name) ++index;
  return index;
}

OptionValues DefaultValues(const EmulatorProfile& profile, std::string_view configured) {
  OptionValues defaults;
  defaults.rom_folder = configured.empty() ? profile.default_rom_folder : configured;
  for (const OptionSpec& option : OptionsOf(profile.emulator)) {
    defaults.values.push_back({.number = option.default_value,
                               .text = std::string(option.default_text),
                               .enabled = option.enabled_at_start});
  }
  return defaults;
}

}  // namespace zarvo
