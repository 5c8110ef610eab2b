// What the option tables are built with: places on the settings page, and the checks that a table
// passes before it compiles.
#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string_view>

#include "core/emulators/options.h"
#include "core/platform/twips.h"

namespace zarvo {

// Left edge and width in twips.
struct Span {
  int left = 0;
  int width = 0;
};

// A list or text box with its small label in front of it.
struct LabelledBox {
  Span label;
  Span box;
};

// Rows of controls of one height, `pitch` twips from one top edge to the next.
struct Rows {
  int top = 0;
  int pitch = 0;
  int height = 0;

  [[nodiscard]] constexpr TwipRect At(Span span, int row) const {
    return {.left = span.left, .top = top + row * pitch, .width = span.width, .height = height};
  }
};

// Index of an option by its name; a name that isn't in the table doesn't compile.
consteval std::size_t IndexIn(std::span<const OptionSpec> options, std::string_view name) {
  for (std::size_t i = 0; i < options.size(); ++i) {
    if (options[i].name == name) return i;
  }
  throw std::logic_error("no such option");
}

constexpr bool InRange(const OptionSpec& option, int value) {
  switch (option.kind) {
    case OptionKind::kCombo:
      return value >= 0 && value < static_cast<int>(option.items.size());
    case OptionKind::kCheck:
      return value == 0 || value == 1;
    case OptionKind::kText:
      return value == 0;
  }
  return false;
}

// Every name occurs once and begins as its kind of control does, defaults and presets lie in range,
// and the options that aren't stored stand last.
constexpr bool AreSound(std::span<const OptionSpec> options) {
  bool stored = true;
  for (std::size_t i = 0; i < options.size(); ++i) {
    const OptionSpec& option = options[i];
    const std::string_view prefix = option.kind == OptionKind::kCombo   ? "cbo"
                                    : option.kind == OptionKind::kCheck ? "chk"
                                                                        : "txt";
    if (!option.name.starts_with(prefix)) return false;
    if (!InRange(option, option.default_value)) return false;
    if (option.preset && !InRange(option, *option.preset)) return false;
    if (option.stored && !stored) return false;
    stored = option.stored;
    for (std::size_t j = 0; j < i; ++j) {
      if (options[j].name == option.name) return false;
    }
  }
  return true;
}

constexpr std::size_t StoredCount(std::span<const OptionSpec> options) {
  std::size_t count = 0;
  for (const OptionSpec& option : options) count += option.stored ? 1 : 0;
  return count;
}

}  // namespace zarvo
