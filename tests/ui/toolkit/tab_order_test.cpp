// The way of Tab: through parts, rows, and past what lies outside of the window.
#include "ui/toolkit/tab_order.h"

#include <gtest/gtest.h>

#include "fakes/stage.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

Label* Button(QWidget* parent, const char* name, const QRect& place) {
  auto* const label = new Label(parent);
  label->SetName(name);
  label->SetPressable(true);
  label->setGeometry(place);
  return label;
}

// The names of the controls that Tab, or Shift+Tab, reaches from `start` before it is back there.
std::string Round(QWidget* start, Qt::KeyboardModifiers shift = {}) {
  std::string names;
  QWidget* reached = start;
  do {
    reached->setFocus();
    names += reached->objectName().toStdString() + ", ";
    QTest::keyClick(reached, shift ? Qt::Key_Backtab : Qt::Key_Tab, shift);
    reached = start->window()->focusWidget();
  } while (reached != start && names.size() < 500);
  return names;
}

TEST(TabOrderTest, TabGoesThroughThePartsAndOnAPartRowByRow) {
  Stage stage;
  auto* const last = Button(&stage, "last", {0, 0, 20, 20});
  auto* const page = new PictureBox(&stage);
  page->setGeometry(100, 0, 200, 200);
  // Made in the wrong order; the middles of a row differ a little.
  Button(page, "below", {0, 40, 50, 20});
  Button(page, "right", {100, 0, 50, 20});
  Button(page, "beside the frame", {100, 100, 50, 20});
  auto* const frame = new PictureBox(page);
  frame->setGeometry(0, 80, 90, 60);
  Button(frame, "second in the frame", {0, 30, 50, 20});
  Button(frame, "first in the frame", {0, 0, 50, 20});
  Button(page, "left", {0, 0, 50, 26});
  auto* const first = Button(&stage, "first", {0, 100, 20, 20});
  OrderTabs({first, nullptr, page, last});
  stage.Open();

  EXPECT_EQ(Round(first),
            "first, left, right, below, first in the frame, second in the frame, "
            "beside the frame, last, ");
}

TEST(TabOrderTest, AControlOutsideOfTheWindowIsPassedOver) {
  Window window(WindowFrame::kNone, "window");
  auto* const left = Button(&window, "left", {0, 0, 50, 20});
  Button(&window, "far right", {300, 0, 50, 20});
  Button(&window, "far below", {0, 300, 50, 20});
  Button(&window, "at the edge", {90, 0, 50, 20});
  window.SetWidth(ToTwips(100));
  window.SetHeight(ToTwips(100));
  window.ShowModeless();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

  EXPECT_EQ(Round(left), "left, at the edge, ");
  EXPECT_EQ(Round(left, Qt::ShiftModifier), "left, at the edge, ");
}

TEST(TabOrderTest, ALabelTellsThatTabHasReachedItAndNothingElse) {
  Stage stage;
  auto* const other = Button(&stage, "other", {0, 0, 50, 20});
  auto* const label = Button(&stage, "label", {0, 30, 50, 20});
  int reached = 0;
  label->TabbedTo.Connect([&reached] { ++reached; });
  stage.Open();
  label->setFocus();
  EXPECT_EQ(reached, 0);
  other->setFocus();
  QTest::keyClick(other, Qt::Key_Tab);
  EXPECT_EQ(reached, 1);
  other->setFocus();
  QTest::keyClick(other, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(reached, 2);
}

}  // namespace
}  // namespace zarvo
