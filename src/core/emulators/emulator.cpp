#include "core/emulators/emulator.h"

#include <algorithm>
#include <cctype>

namespace zarvo {

std::string Emulator::SectionWord() const {
  std::string text(word);
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
  return text;
}

std::string Emulator::Logo() const {
  std::string text(word);
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text + "_logo";
}

OptionValues DefaultValues(const Emulator& emulator, std::string_view configured) {
  OptionValues defaults;
  defaults.rom_folder = configured.empty() ? emulator.default_rom_folder : configured;
  for (const OptionSpec& option : emulator.options) {
    defaults.values.push_back({.number = option.default_value,
                               .text = std::string(option.default_text),
                               .enabled = option.enabled_at_start});
  }
  return defaults;
}

}  // namespace zarvo
