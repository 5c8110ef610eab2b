// The emulators by name, for tests about what one of them does.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "core/emulators/emulator.h"

namespace zarvo {

extern const Emulator kMame, kCallus, kRaine, kSystem16, kM72;

// Some of them, to walk through.
using Those = std::vector<std::reference_wrapper<const Emulator>>;

// Those that the tests know by heart. Another one has tests of its own.
inline const Those kTested{kMame, kCallus, kRaine, kSystem16, kM72};

inline bool operator==(const Emulator& left, const Emulator& right) {
  return left.word == right.word;
}

// Index of an option by its name; the count of options if there is none of that name.
inline std::size_t OptionIndex(const Emulator& emulator, std::string_view name) {
  std::size_t index = 0;
  while (index < emulator.options.size() && emulator.options[index].name != name) ++index;
  return index;
}

}  // namespace zarvo
