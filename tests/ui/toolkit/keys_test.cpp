// Key codes and shift state of real key events.
#include "ui/toolkit/keys.h"

#include <gmock/gmock.h>

namespace zarvo {
namespace {

using testing::ElementsAre;

QKeyEvent Pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return {QEvent::KeyPress, key, modifiers};
}

std::vector<int> Codes(Qt::KeyboardModifiers modifiers, const std::vector<int>& keys) {
  std::vector<int> codes;
  for (const int key : keys) codes.push_back(KeyCodeOf(Pressed(key, modifiers)));
  return codes;
}

TEST(KeyCodes, AreThoseThatTheKeyRulesName) {
  EXPECT_THAT(Codes({}, {Qt::Key_0, Qt::Key_9, Qt::Key_A, Qt::Key_F1, Qt::Key_F12}),
              ElementsAre(48, 57, 65, 112, 123));
  EXPECT_THAT(Codes({}, {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Tab}),
              ElementsAre(8, 46, 13, 9));
  EXPECT_THAT(Codes({}, {Qt::Key_Escape, Qt::Key_Left, Qt::Key_Minus}), ElementsAre(27, 37, 189));
  EXPECT_THAT(Codes({}, {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt}), ElementsAre(16, 17, 18));
  EXPECT_THAT(Codes({}, {Qt::Key_Adiaeresis, Qt::Key_VolumeUp}), ElementsAre(0, 0));
  const auto keypad = Qt::KeypadModifier;
  EXPECT_THAT(Codes(keypad, {Qt::Key_0, Qt::Key_9, Qt::Key_Minus}), ElementsAre(96, 105, 109));
  EXPECT_THAT(Codes(keypad, {Qt::Key_Delete, Qt::Key_Enter, Qt::Key_Down}),
              ElementsAre(46, 13, 40));
  const auto shift = Qt::ShiftModifier;  // some keyboards shift their digits
  EXPECT_THAT(Codes(shift, {Qt::Key_9, Qt::Key_Z, Qt::Key_Backtab}), ElementsAre(57, 90, 9));
  EXPECT_THAT(Codes(shift, {Qt::Key_Underscore, Qt::Key_Exclam}), ElementsAre(0, 0));
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
