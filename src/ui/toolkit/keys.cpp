#include "ui/toolkit/keys.h"

#include <algorithm>
#include <array>

namespace zarvo {
namespace {

struct KeyRow {
  int qt;
  int code;
};

constexpr std::array<KeyRow, 24> kKeys = {{{Qt::Key_Backspace, key::kBackspace},
                                           {Qt::Key_Tab, key::kTab},
                                           {Qt::Key_Backtab, key::kTab},
                                           {Qt::Key_Return, key::kEnter},
                                           {Qt::Key_Enter, key::kEnter},
                                           {Qt::Key_Shift, key::kShift},
                                           {Qt::Key_Control, key::kControl},
                                           {Qt::Key_Alt, key::kAlt},
                                           {Qt::Key_AltGr, key::kAlt},
                                           {Qt::Key_Escape, key::kEscape},
                                           {Qt::Key_Space, key::kSpace},
                                           {Qt::Key_PageUp, key::kPageUp},
                                           {Qt::Key_PageDown, key::kPageDown},
                                           {Qt::Key_End, key::kEnd},
                                           {Qt::Key_Home, key::kHome},
                                           {Qt::Key_Left, key::kLeft},
                                           {Qt::Key_Up, key::kUp},
                                           {Qt::Key_Right, key::kRight},
                                           {Qt::Key_Down, key::kDown},
                                           {Qt::Key_Insert, key::kInsert},
                                           {Qt::Key_Delete, key::kDelete},
                                           {Qt::Key_Minus, key::kMinus},
                                           {Qt::Key_Slash, key::kSlash},
                                           {Qt::Key_Menu, key::kMenu}}};

constexpr int kF1 = 112;

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
  const int qt_key = event.key();
  const bool numpad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) {
    return (numpad ? key::kNumpad0 : key::kDigit0) + (qt_key - Qt::Key_0);
  }
  if (numpad && qt_key == Qt::Key_Minus) return key::kNumpadMinus;
  if (qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z) return qt_key;
  if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F24) return kF1 + (qt_key - Qt::Key_F1);
  const auto* const row = std::find_if(kKeys.begin(), kKeys.end(),
                                       [qt_key](const KeyRow& each) { return each.qt == qt_key; });
  if (row != kKeys.end()) return row->code;
  return 0;
}

int ShiftStateOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? kShiftDown : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? kControlDown : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? kAltDown : 0);
}

int ShiftStateOf(const QKeyEvent& event) {
  int state = ShiftStateOf(event.modifiers());
  if (event.key() == Qt::Key_Shift) state |= kShiftDown;
  if (event.key() == Qt::Key_Control) state |= kControlDown;
  if (event.key() == Qt::Key_Alt) state |= kAltDown;
  return state;
}

}  // namespace zarvo
