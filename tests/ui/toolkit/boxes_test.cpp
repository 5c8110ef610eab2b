// Combo boxes and text boxes.
#include <gmock/gmock.h>

#include <QWheelEvent>

#include "fakes/stage.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class ComboBoxTest : public testing::Test {
 protected:
  ComboBoxTest() {
    combo.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 285});
    for (const char* item : {"- Genre", "Action", "R&D"}) combo.AddItem(item);
    combo.Click.Connect([this] { log.text += " click " + combo.Text(); });
  }
  // The selection, and what has happened since the last call.
  std::string State() { return std::to_string(combo.ListIndex()) + " " + combo.Text() + log(); }
  // A turn of the wheel, as the desktop sends it.
  void Wheel() {
    const QPoint place(10, 10);
    QWheelEvent wheel(place, combo.mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(&combo, &wheel);
  }

  Stage stage;
  ComboBox combo{&stage};
  EventLog log;
};

TEST_F(ComboBoxTest, OnlyANewSelectionClicks) {
  EXPECT_EQ(State(), "-1 ") << "the first item isn't selected by being the first";
  EXPECT_TRUE(combo.SetListIndex(2));
  EXPECT_TRUE(combo.SetListIndex(2));
  EXPECT_FALSE(combo.SetListIndex(3));
  EXPECT_FALSE(combo.SetListIndex(-2));
  EXPECT_EQ(State(), "2 R&D click R&D");
  EXPECT_EQ(combo.List(1), "Action");
  EXPECT_EQ(combo.List(9), "");
  EXPECT_TRUE(combo.RemoveItem(0));
  EXPECT_EQ(State(), "1 R&D");
  EXPECT_TRUE(combo.RemoveItem(1));
  EXPECT_EQ(State(), "-1 ");
  EXPECT_FALSE(combo.RemoveItem(1));
  combo.SetListIndex(0);
  EXPECT_EQ(State(), "0 Action click Action");
  combo.Clear();
  EXPECT_EQ(State(), "-1 ");
  EXPECT_EQ(combo.ListCount(), 0);
}

TEST_F(ComboBoxTest, TheWheelTurnsItOnlyWithTheFocus) {
  QWidget other(&stage);
  other.setFocusPolicy(Qt::StrongFocus);
  combo.SetListIndex(0);
  stage.Open();
  other.setFocus();
  Wheel();
  EXPECT_EQ(combo.ListIndex(), 0);
  EXPECT_FALSE(combo.hasFocus()) << "the wheel doesn't give the focus either";
  combo.setFocus();
  Wheel();
  EXPECT_EQ(combo.ListIndex(), 1);
}

TEST_F(ComboBoxTest, KeysChooseAfterTheKeyDownHandler) {
  combo.SetListIndex(0);
  log();
  combo.KeyDown.Connect(
      [&](const KeyArgs& args) { log.text += " key" + std::to_string(args.shift); });
  stage.Open();
  QTest::keyClick(&combo, Qt::Key_Shift);
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(State(), "1 Action key1 key0 click Action");
}

class TextBoxTest : public testing::Test {
 protected:
  void Type(const char* keys) { QTest::keyClicks(&box, QLatin1String(keys)); }
  Stage stage;
  TextBox box{&stage};
};

TEST_F(TextBoxTest, AChangeHandlerMaySetTheText) {
  std::vector<std::string> seen;
  box.Change.Connect([&] {
    seen.push_back(box.Text());
    if (box.Text().empty()) box.SetText("0");
  });
  box.SetText("5");
  box.SetText("5");
  EXPECT_THAT(seen, ElementsAre("5")) << "the same text is no change";
  QTest::keyClick(&box, Qt::Key_End);
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(box.Text(), "0") << "deleting the only digit gives 0";
  EXPECT_THAT(seen, ElementsAre("5", "", "0"));
}

TEST_F(TextBoxTest, AKeyCanBeSwallowed) {
  box.KeyDown.Connect([&](const KeyArgs& args) {
    if (args.code != 'X') return;
    box.SetText("0");
    box.SwallowKey();
  });
  Type("12x");
  EXPECT_EQ(box.Text(), "0");
  Type("9");
  EXPECT_EQ(box.Text(), "90") << "the next key is taken again, in front of what was set";
}

TEST_F(TextBoxTest, TextIsWindows1252OfAtMostTheLargestLength) {
  box.SetMaxLength(4);
  Type("-12345");
  EXPECT_EQ(box.Text(), "-123");
  box.SetText("Caf\xE9s");
  EXPECT_EQ(box.Text(), "Caf\xE9");
  EXPECT_EQ(box.text(), QStringLiteral("Caf\u00E9"));
  box.SetMaxLength(0);
  box.SetText(std::string(300, 'a'));
  EXPECT_EQ(box.Text().size(), 300U);
}

}  // namespace
}  // namespace zarvo
