// The emulators, in the program's own order. A new one is a file beside this and its name here.
#include <algorithm>
#include <array>
#include <functional>

#include "core/emulators/emulator.h"

namespace zarvo {

extern const Emulator kMame, kCallus, kRaine, kSystem16, kM72;

namespace {
constexpr std::array kEmulators = {std::cref(kMame), std::cref(kCallus), std::cref(kRaine),
                                   std::cref(kSystem16), std::cref(kM72)};
}  // namespace

std::span<const std::reference_wrapper<const Emulator>> Emulators() { return kEmulators; }

std::size_t IndexOf(const Emulator& emulator) {
  const auto* const found = std::ranges::find_if(
      kEmulators, [&](const Emulator& other) { return other.word == emulator.word; });
  return static_cast<std::size_t>(found - kEmulators.begin());
}

const Emulator* FindEmulator(std::string_view section_word) {
  const auto* const found = std::ranges::find_if(
      kEmulators, [&](const Emulator& emulator) { return emulator.SectionWord() == section_word; });
  return found == kEmulators.end() ? nullptr : &found->get();
}

}  // namespace zarvo
