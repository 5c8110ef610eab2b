// Colours as 24-bit numbers with red in the low byte, and the palette of the program.
#pragma once

#include <QColor>
#include <cstdint>

namespace zarvo {

struct Colour {
  std::uint32_t value = 0;  // 0xBBGGRR

  [[nodiscard]] QColor ToQt() const {
    return {static_cast<int>(value & 0xFF), static_cast<int>((value >> 8) & 0xFF),
            static_cast<int>((value >> 16) & 0xFF)};
  }
  friend bool operator==(const Colour&, const Colour&) = default;
};

// What can be pressed, and what lies under the mouse.
inline constexpr Colour kBlack{0};
inline constexpr Colour kWhite{16777215};
inline constexpr Colour kYellow{65535};
inline constexpr Colour kDarkRed{128};
inline constexpr Colour kPeriwinkle{13538452};     // normal selector text
inline constexpr Colour kSlate{9398111};           // highlighted selector and command
inline constexpr Colour kBluegrey{12551557};       // commands and path actions at rest
inline constexpr Colour kLavender{14985898};       // close button, combo with a filter
inline constexpr Colour kTerracotta{6061526};      // bulk actions at rest
inline constexpr Colour kBrightTerracotta{16576};  // bulk actions under the mouse
inline constexpr Colour kSilver{12632256};         // combos at rest

// The ground of the windows; the program's own choice.
inline constexpr Colour kNight{0x3A1F14};      // window ground
inline constexpr Colour kDeepNight{0x26130C};  // lists and pages
inline constexpr Colour kMoon{0xF2E6DE};       // text on the ground

// The pages of a panel: a lit card in the dark cabinet, with dark text.
inline constexpr Colour kCard{0xEDD8D0};
inline constexpr Colour kInk{0x3A1F14};

}  // namespace zarvo
