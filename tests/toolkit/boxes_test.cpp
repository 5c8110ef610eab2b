// Combo boxes and text boxes.
#include <gmock/gmock.h>

#include <QWheelEvent>

#include "fakes/stage.h"
#include "toolkit/combo_box.h"
#include "toolkit/keys.h"
#include "toolkit/text_box.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxTest : public testing::Test {
 protected:
  ComboBoxTest() {
    combo.Click.Connect([this] { clicks.push_back(combo.ListIndex()); });
    combo.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 285});
  }
  void Fill() {
    for (const char* item : {"- Genre", "Action", "R&D"}) combo.AddItem(item);
  }
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
  std::vector<int> clicks;
};

TEST_F(ComboBoxTest, ItemsComeAndGoWithoutAClick) {
  Fill();
  EXPECT_EQ(combo.ListIndex(), -1) << "the first item isn't selected by being the first";
  EXPECT_EQ(combo.Text(), "");
  combo.SetListIndex(1);
  clicks.clear();
  EXPECT_TRUE(combo.RemoveItem(0));
  EXPECT_EQ(combo.Text(), "Action");
  EXPECT_TRUE(combo.RemoveItem(0));
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_FALSE(combo.RemoveItem(1));
  combo.SetListIndex(0);
  clicks.clear();
  combo.Clear();
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.ListCount(), 0);
  EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(ComboBoxTest, ANewSelectionClicksOnce) {
  Fill();
  EXPECT_TRUE(combo.SetListIndex(2));
  EXPECT_TRUE(combo.SetListIndex(2));
  EXPECT_FALSE(combo.SetListIndex(3));
  EXPECT_FALSE(combo.SetListIndex(-2));
  EXPECT_THAT(clicks, ElementsAre(2));
  EXPECT_EQ(combo.Text(), "R&D");
  EXPECT_EQ(combo.List(1), "Action");
  EXPECT_EQ(combo.List(9), "");
}

TEST_F(ComboBoxTest, AHandlerThatSetsAnotherComboIsDoneWhenTheSetterReturns) {
  Fill();
  ComboBox other(&stage);
  other.AddItem("a");
  other.AddItem("b");
  other.Click.Connect([&] { combo.SetListIndex(0); });
  combo.Click.Connect([&] { other.SetListIndex(1); });
  combo.SetListIndex(2);
  EXPECT_EQ(other.ListIndex(), 1);
  EXPECT_THAT(clicks, ElementsAre(2, 0));
}

TEST_F(ComboBoxTest, TheWheelTurnsItOnlyWithTheFocus) {
  Fill();
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
  Fill();
  combo.SetListIndex(0);
  clicks.clear();
  std::vector<int> shifts;
  combo.KeyDown.Connect([&](const KeyArgs& args) {
    shifts.push_back(args.shift);
    EXPECT_THAT(clicks, IsEmpty());
  });
  stage.Open();
  QTest::keyClick(&combo, Qt::Key_Shift);
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_THAT(shifts, ElementsAre(kShiftDown, 0));
  EXPECT_THAT(clicks, ElementsAre(1));
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
  box.SetText("");
  EXPECT_EQ(box.Text(), "0");
  QTest::keyClick(&box, Qt::Key_End);
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(box.Text(), "0") << "deleting the only digit gives 0";
  EXPECT_THAT(seen, ElementsAre("5", "", "0", "", "0"));
}

TEST_F(TextBoxTest, AKeyCanBeSwallowed) {
  box.KeyDown.Connect([&](const KeyArgs& args) {
    if (args.code == 'X') {
      box.SetText("0");
      box.SwallowKey();
    }
  });
  Type("12");
  EXPECT_EQ(box.Text(), "12");
  Type("x");
  EXPECT_EQ(box.Text(), "0");
  QTest::keyClick(&box, Qt::Key_End);
  Type("9");
  EXPECT_EQ(box.Text(), "09") << "the next key is taken again";
}

TEST_F(TextBoxTest, TheLargestLengthHoldsForKeysAndSetter) {
  box.SetMaxLength(4);
  Type("-12345");
  EXPECT_EQ(box.Text(), "-123");
  box.SetText("67890");
  EXPECT_EQ(box.Text(), "6789");
  box.SetMaxLength(0);
  box.SetText(std::string(300, 'a'));
  EXPECT_EQ(box.Text().size(), 300U);
}

TEST_F(TextBoxTest, TextIsWindows1252) {
  box.SetText("C:\\Caf\xE9");
  EXPECT_EQ(box.text(), QStringLiteral("C:\\Caf\u00E9"));
  EXPECT_EQ(box.Text(), "C:\\Caf\xE9");
}

}  // namespace
}  // namespace zarvo
