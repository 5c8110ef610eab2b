// Key codes and shift state of real key events.
#include "toolkit/keys.h"

#include <gtest/gtest.h>

namespace zarvo {
namespace {

QKeyEvent Pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return {QEvent::KeyPress, key, modifiers};
}

TEST(KeyCodes, AreThoseThatTheKeyRulesName) {
  struct Case {
    int key;
    Qt::KeyboardModifiers modifiers;
    int code;
  };
  const std::vector<Case> cases = {
      {Qt::Key_0, Qt::NoModifier, 48},
      {Qt::Key_9, Qt::NoModifier, 57},
      {Qt::Key_9, Qt::ShiftModifier, 57},  // keyboards that shift their digits
      {Qt::Key_0, Qt::KeypadModifier, 96},
      {Qt::Key_9, Qt::KeypadModifier, 105},
      {Qt::Key_Minus, Qt::NoModifier, 189},
      {Qt::Key_Minus, Qt::KeypadModifier, 109},
      {Qt::Key_Underscore, Qt::ShiftModifier, 0},
      {Qt::Key_Backspace, Qt::NoModifier, 8},
      {Qt::Key_Delete, Qt::NoModifier, 46},
      {Qt::Key_Delete, Qt::KeypadModifier, 46},
      {Qt::Key_Return, Qt::NoModifier, 13},
      {Qt::Key_Enter, Qt::KeypadModifier, 13},
      {Qt::Key_Tab, Qt::NoModifier, 9},
      {Qt::Key_Backtab, Qt::ShiftModifier, 9},
      {Qt::Key_Escape, Qt::NoModifier, 27},
      {Qt::Key_Shift, Qt::ShiftModifier, 16},
      {Qt::Key_Control, Qt::ControlModifier, 17},
      {Qt::Key_Alt, Qt::AltModifier, 18},
      {Qt::Key_Left, Qt::NoModifier, 37},
      {Qt::Key_Down, Qt::KeypadModifier, 40},
      {Qt::Key_A, Qt::NoModifier, 65},
      {Qt::Key_Z, Qt::ShiftModifier, 90},
      {Qt::Key_F1, Qt::NoModifier, 112},
      {Qt::Key_F12, Qt::NoModifier, 123},
      {Qt::Key_Exclam, Qt::ShiftModifier, 0},
      {Qt::Key_Adiaeresis, Qt::NoModifier, 0},
      {Qt::Key_VolumeUp, Qt::NoModifier, 0},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(KeyCodeOf(Pressed(each.key, each.modifiers)), each.code) << std::hex << each.key;
  }
}

TEST(KeyCodes, AModifierCountsFromItsOwnPressOn) {
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_Shift)), 1);
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_Shift, Qt::ShiftModifier)), 1) << "the second of two";
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_Control)), 2);
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_Alt)), 4);
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_A, Qt::ShiftModifier | Qt::AltModifier)), 5);
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_Shift, Qt::ControlModifier)), 3);
  EXPECT_EQ(ShiftStateOf(Pressed(Qt::Key_5, Qt::KeypadModifier)), 0);
}

}  // namespace
}  // namespace zarvo
