// Key codes and the shift state as the key events give them.
#pragma once

#include <QKeyEvent>

namespace zarvo {

namespace key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kShift = 16;
inline constexpr int kControl = 17;
inline constexpr int kAlt = 18;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kInsert = 45;
inline constexpr int kDelete = 46;
inline constexpr int kDigit0 = 48;  // to 57 for 9
inline constexpr int kMenu = 93;
inline constexpr int kNumpad0 = 96;  // to 105 for 9
inline constexpr int kLetterF = 70;
inline constexpr int kNumpadMinus = 109;
inline constexpr int kF3 = 114;
inline constexpr int kMinus = 189;
inline constexpr int kSlash = 191;
}  // namespace key

// Bits of the shift state.
inline constexpr int kShiftDown = 1;
inline constexpr int kControlDown = 2;
inline constexpr int kAltDown = 4;

// The key code of a key, 0 for one that has none. Letters have the code of their capital.
int KeyCodeOf(const QKeyEvent& event);

// The shift state of an event; a press of Shift itself counts as Shift down.
int ShiftStateOf(const QKeyEvent& event);
int ShiftStateOf(Qt::KeyboardModifiers modifiers);

}  // namespace zarvo
