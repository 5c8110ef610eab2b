// What all controls share, and the small ones: labels, pictures, check boxes, option buttons.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

#include "fakes/key_press.h"
#include "fakes/stage.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

class ControlsTest : public testing::Test {
 protected:
  // Notes every mouse event and click of a control.
  template <typename ControlType>
  void Note(ControlType& control) {
    control.MouseDown.Connect([this](const MouseArgs& mouse) { Add("down", mouse); });
    control.MouseUp.Connect([this](const MouseArgs& mouse) { Add("up", mouse); });
    control.MouseMove.Connect([this](const MouseArgs& mouse) { Add("move", mouse); });
    log.Note(control.Click, "click ");
  }
  void Add(const char* what, const MouseArgs& mouse) {
    log.text += what + std::to_string(static_cast<int>(mouse.button)) + " ";
  }

  static constexpr TwipRect kPlace{.left = 150, .top = 150, .width = 1500, .height = 300};
  Stage stage;
  EventLog log;
};

TEST_F(ControlsTest, ACheckBoxClicksForANewValueOnly) {
  CheckBox box(&stage);
  box.SetPlace(kPlace);
  box.Click.Connect([&] { log.text += std::to_string(box.Value()); });
  for (const int value : {0, 1, 2}) box.SetValue(value);
  EXPECT_EQ(log(), "1");
  stage.Open();
  QTest::keyClick(&box, Qt::Key_Space);
  ClickOn(&box, {95, 10});  // at the end of the caption's room
  EXPECT_EQ(log(), "01");
}

TEST_F(ControlsTest, OptionsOfOneFrameExcludeEachOther) {
  Frame frame(&stage);
  Frame other_frame(&stage);
  OptionButton gif(&frame);
  OptionButton jpg(&frame);
  OptionButton merged(&other_frame);
  merged.SetValue(true);
  gif.SetValue(true);
  const auto on = [&] {
    return std::string(gif.Value() ? "gif " : "") + (jpg.Value() ? "jpg " : "");
  };
  for (OptionButton* button : {&gif, &jpg}) button->Click.Connect([&] { log.text += on(); });
  jpg.SetValue(true);
  EXPECT_EQ(log(), "jpg ") << "the one switched off doesn't click, and is off before";
  jpg.SetValue(false);
  EXPECT_EQ(on(), "") << "all can be off";
  jpg.SetValue(true);
  gif.SetValue(true);
  EXPECT_EQ(log(), "jpg gif ") << "and they exclude each other afterwards";
  EXPECT_TRUE(merged.Value());
}

TEST_F(ControlsTest, AClickIsTheLeftButtonPressedAndReleasedOverTheSameControl) {
  ImageBox image(&stage);
  image.SetPlace(kPlace);
  stage.Open();
  MoveTo(&image);
  Note(image);
  log.Note(image.DblClick, "double ");
  log();
  ClickOn(&image);
  EXPECT_EQ(log(), "down1 up1 click ");
  MouseArgs last;
  image.MouseDown.Connect([&](const MouseArgs& mouse) { last = mouse; });
  QTest::mouseClick(stage.windowHandle(), Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier,
                    QPoint(20, 20));
  EXPECT_EQ(log(), "move0 down2 up2 ");
  EXPECT_EQ(last.shift, kShiftDown | kAltDown);
  EXPECT_EQ(last.global, stage.mapToGlobal(QPoint(20, 20)));
  MoveTo(&image);
  log();
  Press(&image);
  MoveTo(&stage, {300, 200});
  Release(&stage, {300, 200});
  EXPECT_EQ(log(), "down1 move1 up1 ") << "let go beside it";
  MoveTo(&image);
  log();
  DoubleClickOn(&image);
  EXPECT_EQ(log(), "down1 up1 click double up1 ") << "a double click is no second click";
  Press(&image);
  CountModal();
  Release(&image);
  EXPECT_EQ(log(), "down1 up1 ") << "a box took the press over";
}

TEST_F(ControlsTest, SpaceAndEnterPressWhatIsPressable) {
  Label label(&stage);
  PushButton button(&stage);
  Note(label);
  Note(button);
  stage.Open();
  QTest::keyClick(&label, Qt::Key_Space);
  EXPECT_EQ(log(), "");
  label.SetPressable(true);
  for (QWidget* widget : std::initializer_list<QWidget*>{&label, &button}) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A}) {
      QTest::keyClick(widget, key);
    }
    EXPECT_EQ(log(), "click click click ");
    for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
      QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
      QApplication::sendEvent(widget, &held);
    }
    EXPECT_EQ(log(), "") << "a key held down is one click";
  }
}

// Edges are rounded, not sizes, so that neighbours meet on the screen.
TEST_F(ControlsTest, WhatIsSetInTwipsIsReadInTwips) {
  Label label(&stage);
  label.SetLeft(2400);
  label.SetTop(-37);
  label.SetWidth(3855);
  label.SetHeight(6415);
  EXPECT_EQ(label.Place(), (TwipRect{.left = 2400, .top = -37, .width = 3855, .height = 6415}));
  EXPECT_EQ(label.geometry(), QRect(160, -2, 257, 427));
  label.SetPlace({.left = 8, .top = 8, .width = 98, .height = 97});
  EXPECT_EQ(label.Place(), (TwipRect{.left = 8, .top = 8, .width = 98, .height = 97}));
  EXPECT_EQ(label.geometry(), QRect(1, 1, 6, 6));
}

TEST_F(ControlsTest, MouseMovesOverAControlDontReachTheWindow) {
  Window window(WindowFrame::kNone, "frmTest");
  window.SetWidth(6000);
  window.SetHeight(4500);
  log.Note(window.MouseMove, "window ");
  PictureBox page(&window);
  page.SetPlace({.left = 1500, .top = 0, .width = 3000, .height = 3000});
  Label label(&page);
  label.SetPlace({.left = 750, .top = 750, .width = 750, .height = 750});
  ListBox list(&page);
  list.SetPlace({.left = 0, .top = 2250, .width = 1500, .height = 750});
  log.Note(page.MouseMove, "page ");
  log.Note(label.MouseMove, "label ");
  log.Note(list.MouseMove, "list ");
  window.ShowModeless();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  MoveTo(&label);
  MoveTo(list.viewport());
  MoveTo(&page, {10, 10});
  MoveTo(&window, {10, 10});
  EXPECT_EQ(log(), "label list page window ");
}

TEST_F(ControlsTest, ADisabledControlRaisesNothingAndLetsNothingThrough) {
  Label below(&stage);
  below.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 3000});
  Label label(&below);
  label.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
  label.SetEnabled(false);
  Frame frame(&below);
  frame.SetPlace({.left = 1500, .top = 1500, .width = 1500, .height = 1500});
  frame.SetEnabled(false);
  CheckBox box(&frame);
  box.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
  Note(below);
  Note(label);
  Note(box);
  stage.Open();
  ClickOn(&label);
  ClickOn(&box);
  EXPECT_EQ(log(), "");
}

TEST_F(ControlsTest, AFreshControlIsVisibleAlsoOnAPageThatIsNot) {
  PictureBox page(&stage);
  Label label(&page);
  stage.Open();
  page.SetVisible(false);
  EXPECT_TRUE(label.Visible());
  label.SetVisible(false);
  page.SetVisible(true);
  EXPECT_FALSE(label.Visible());
}

TEST_F(ControlsTest, AToolTipIsShownLiterally) {
  Label label(&stage);
  label.SetToolTipText(" <b>R&D</b> 50% of total ");
  ListBox list(&stage);
  list.SetPlace({.left = 150, .top = 750, .width = 1500, .height = 1500});
  list.SetToolTipText("<unknown>");
  stage.Open();
  const auto shown = [] {
    return QToolTip::text().remove(QStringLiteral(" style=\"white-space:nowrap\"")).toStdString();
  };
  const auto by_mouse = [&](QWidget* widget) {
    const QPoint point(5, 5);
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QApplication::sendEvent(widget, &help);
    return shown();
  };
  const auto by_key = [&](QWidget* widget) {
    PressKey(widget, Qt::Key_F1);
    return shown();
  };
  const std::string marked = "<p>&lt;b&gt;R&amp;D&lt;/b&gt; 50% of total</p>";
  const std::string whole = "<p>What is too long for the list &amp; is cut off at its edge</p>";
  EXPECT_EQ(by_mouse(&label), marked);
  EXPECT_EQ(by_mouse(list.viewport()), "<p>&lt;unknown&gt;</p>");
  list.SetToolTipText("");
  list.AddItem("What is too long for the list & is cut off at its edge");
  list.AddItem("short");
  EXPECT_EQ(by_mouse(list.viewport()), whole);
  list.SetListIndex(1);
  EXPECT_EQ(by_key(&label), marked);
  EXPECT_EQ(by_key(&list), marked) << "nothing is cut off";
  list.SetListIndex(0);
  EXPECT_EQ(by_key(&list), whole);
  QToolTip::hideText();
}

TEST_F(ControlsTest, CaptionsKeepTheirAmpersandsAndBytes) {
  CheckBox box(&stage);
  box.SetCaption("Sound & \x80");
  EXPECT_EQ(box.Caption(), "Sound & \x80");
  EXPECT_EQ(box.text(), QStringLiteral("Sound && \u20AC"));
  EXPECT_EQ(FromQt(QStringLiteral("\u20AC \u65E5")), "\x80 ?");
  EXPECT_EQ(ToQt("one\rtwo"), QStringLiteral("one\ntwo"));
}

}  // namespace
}  // namespace zarvo
