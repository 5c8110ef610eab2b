// What all controls share, and the small ones: labels, pictures, check boxes, option buttons.
#include <gmock/gmock.h>

#include <QHelpEvent>
#include <QToolTip>

#include "fakes/key_press.h"
#include "fakes/stage.h"
#include "toolkit/check_box.h"
#include "toolkit/frame.h"
#include "toolkit/image_box.h"
#include "toolkit/keys.h"
#include "toolkit/label.h"
#include "toolkit/list_box.h"
#include "toolkit/push_button.h"
#include "toolkit/window.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Log = std::vector<std::string>;

class ControlsTest : public testing::Test {
 protected:
  // Notes every mouse event and click of a control under a name.
  template <typename ControlType>
  void Note(ControlType& control) {
    control.MouseDown.Connect([this](const MouseArgs& mouse) { Add("down", mouse); });
    control.MouseUp.Connect([this](const MouseArgs& mouse) { Add("up", mouse); });
    control.MouseMove.Connect([this](const MouseArgs& mouse) { Add("move", mouse); });
    control.Click.Connect([this] { log.push_back("click"); });
  }
  void Add(const char* what, const MouseArgs& mouse) {
    log.push_back(what + std::to_string(static_cast<int>(mouse.button)));
  }

  Stage stage;
  Log log;
};

TEST_F(ControlsTest, ASetterReturnsAfterAllThatItSetOff) {
  CheckBox a(&stage);
  CheckBox b(&stage);
  a.Click.Connect([&] {
    log.push_back("a" + std::to_string(a.Value()));
    b.SetValue(a.Value());
    log.push_back("a sees b" + std::to_string(b.Value()));
  });
  b.Click.Connect([&] {
    log.push_back("b" + std::to_string(b.Value()));
    if (b.Value() == 1) a.SetValue(0);
    log.push_back("b ends");
  });
  a.SetValue(1);
  EXPECT_THAT(log,
              ElementsAre("a1", "b1", "a0", "b0", "b ends", "a sees b0", "b ends", "a sees b0"));
  EXPECT_EQ(a.Value(), 0);
  EXPECT_EQ(b.Value(), 0);
}

TEST_F(ControlsTest, ACheckBoxClicksForANewValueOnly) {
  CheckBox box(&stage);
  Note(box);
  box.SetValue(0);
  EXPECT_THAT(log, IsEmpty());
  box.SetValue(1);
  box.SetValue(2);
  EXPECT_THAT(log, ElementsAre("click"));
  EXPECT_EQ(box.Value(), 1);
  box.SetPlace({.left = 15, .top = 15, .width = 1500, .height = 300});
  stage.Open();
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_EQ(box.Value(), 0);
  ClickOn(&box, {95, 10});  // at the end of the caption's room
  EXPECT_EQ(box.Value(), 1);
}

TEST_F(ControlsTest, OptionsOfOneFrameExcludeEachOther) {
  Frame frame(&stage);
  Frame other_frame(&stage);
  OptionButton gif(&frame);
  OptionButton jpg(&frame);
  OptionButton merged(&other_frame);
  merged.SetValue(true);
  gif.SetValue(true);
  gif.Click.Connect([&] { log.push_back("gif"); });
  jpg.Click.Connect([&] { log.push_back(gif.Value() ? "jpg too late" : "jpg"); });
  jpg.SetValue(true);
  EXPECT_THAT(log, ElementsAre("jpg")) << "the one switched off doesn't click";
  EXPECT_FALSE(gif.Value());
  EXPECT_TRUE(merged.Value());
  jpg.SetValue(false);
  EXPECT_FALSE(jpg.Value()) << "all can be off";
  jpg.SetValue(true);
  gif.SetValue(true);
  EXPECT_FALSE(jpg.Value()) << "and they exclude each other afterwards";
}

TEST_F(ControlsTest, AClickIsARaisedButtonOverTheSameLabel) {
  Label label(&stage);
  label.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 300});
  Note(label);
  stage.Open();
  MoveTo(&label);
  log.clear();
  ClickOn(&label);
  EXPECT_THAT(log, ElementsAre("down1", "up1", "click"));
  log.clear();
  ClickOn(&label, {}, Qt::RightButton);
  EXPECT_THAT(log, ElementsAre("down2", "up2"));
  log.clear();
  Press(&label);
  MoveTo(&stage, {300, 200});
  Release(&stage, {300, 200});
  EXPECT_THAT(log, ElementsAre("down1", "move1", "up1")) << "let go beside it";
}

TEST_F(ControlsTest, ADoubleClickIsNoSecondClick) {
  ImageBox image(&stage);
  image.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 300});
  image.Click.Connect([this] { log.push_back("click"); });
  image.DblClick.Connect([this] { log.push_back("double"); });
  stage.Open();
  DoubleClickOn(&image);
  EXPECT_THAT(log, ElementsAre("click", "double"));
}

TEST_F(ControlsTest, APressThatABoxTookOverIsNoClick) {
  ImageBox image(&stage);
  image.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 300});
  Note(image);
  image.MouseMove.Connect([](const MouseArgs& mouse) {
    if (mouse.button == MouseButton::kLeft) CountModal();
  });
  stage.Open();
  Press(&image);
  MoveTo(&image, {3, 3});
  Release(&image, {3, 3});
  EXPECT_THAT(log, testing::Not(testing::Contains("click")));
  ClickOn(&image);
  EXPECT_EQ(log.back(), "click");
}

TEST_F(ControlsTest, SpaceAndEnterPressWhatIsPressable) {
  Label label(&stage);
  label.Click.Connect([this] { log.push_back("click"); });
  stage.Open();
  QTest::keyClick(&label, Qt::Key_Space);
  EXPECT_THAT(log, IsEmpty());
  label.SetPressable(true);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A}) {
    QTest::keyClick(&label, key);
  }
  EXPECT_THAT(log, ElementsAre("click", "click", "click"));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
  QApplication::sendEvent(&label, &held);
  EXPECT_EQ(log.size(), 3U) << "a key held down is one click";
}

TEST_F(ControlsTest, EnterPressesTheButtonWithTheFocus) {
  PushButton button(&stage);
  Note(button);
  stage.Open();
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_THAT(log, ElementsAre("click"));
}

TEST_F(ControlsTest, WhatIsSetInTwipsIsReadInTwips) {
  Label label(&stage);
  label.SetPlace({.left = 6415, .top = 3821, .width = 1, .height = 7});
  EXPECT_EQ(label.Place(), (TwipRect{.left = 6415, .top = 3821, .width = 1, .height = 7}));
  label.SetLeft(2400);
  label.SetTop(-37);
  label.SetWidth(3855);
  label.SetHeight(6415);
  EXPECT_EQ(label.Place(), (TwipRect{.left = 2400, .top = -37, .width = 3855, .height = 6415}));
  EXPECT_EQ(label.geometry(), QRect(160, -2, 257, 427));
}

// Edges are rounded, not sizes, so that neighbours meet.
TEST_F(ControlsTest, NeighboursMeetOnTheScreen) {
  Label left(&stage);
  Label right(&stage);
  left.SetPlace({.left = 7, .top = 0, .width = 98, .height = 15});
  right.SetPlace({.left = 105, .top = 0, .width = 98, .height = 15});
  EXPECT_EQ(left.geometry().right() + 1, right.geometry().left());
}

TEST_F(ControlsTest, MouseMovesOverAControlDontReachTheWindow) {
  Window window(WindowFrame::kNone, "frmTest");
  window.SetWidth(6000);
  window.SetHeight(4500);
  std::vector<std::string> moves;
  window.MouseMove.Connect([&](const MouseArgs&) { moves.push_back("window"); });
  PictureBox page(&window);
  page.SetPlace({.left = 1500, .top = 0, .width = 3000, .height = 3000});
  page.MouseMove.Connect([&](const MouseArgs&) { moves.push_back("page"); });
  Label label(&page);
  label.SetPlace({.left = 750, .top = 750, .width = 750, .height = 750});
  label.MouseMove.Connect([&](const MouseArgs&) { moves.push_back("label"); });
  ListBox list(&page);
  list.SetPlace({.left = 0, .top = 2250, .width = 1500, .height = 750});
  list.MouseMove.Connect([&](const MouseArgs&) { moves.push_back("list"); });
  window.ShowModeless();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  for (QWidget* widget : std::initializer_list<QWidget*>{&label, list.viewport()}) MoveTo(widget);
  MoveTo(&page, {10, 10});
  MoveTo(&window, {10, 10});
  EXPECT_THAT(moves, ElementsAre("label", "list", "page", "window"));
}

TEST_F(ControlsTest, ADisabledControlRaisesNothingAndLetsNothingThrough) {
  Label below(&stage);
  below.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 3000});
  Note(below);
  Label label(&below);
  label.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
  Note(label);
  label.SetEnabled(false);
  Frame frame(&below);
  frame.SetPlace({.left = 1500, .top = 1500, .width = 1500, .height = 1500});
  CheckBox box(&frame);
  box.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
  Note(box);
  frame.SetEnabled(false);
  stage.Open();
  ClickOn(&label);
  ClickOn(&box);
  EXPECT_THAT(log, IsEmpty());
  label.SetEnabled(true);
  ClickOn(&label);
  EXPECT_EQ(log.back(), "click");
}

TEST_F(ControlsTest, TellsButtonAndShiftStateOfTheMouse) {
  Label label(&stage);
  label.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 300});
  MouseArgs last;
  label.MouseDown.Connect([&](const MouseArgs& mouse) { last = mouse; });
  stage.Open();
  QTest::mousePress(stage.windowHandle(), Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier,
                    QPoint(20, 20));
  EXPECT_EQ(last.button, MouseButton::kRight);
  EXPECT_EQ(last.shift, kShiftDown | kAltDown);
  EXPECT_EQ(last.global, stage.mapToGlobal(QPoint(20, 20)));
}

TEST_F(ControlsTest, AFreshControlIsVisibleAlsoOnAPageThatIsNot) {
  PictureBox page(&stage);
  Label label(&page);
  EXPECT_TRUE(label.Visible());
  stage.Open();
  page.SetVisible(false);
  EXPECT_TRUE(label.Visible());
  label.SetVisible(false);
  page.SetVisible(true);
  EXPECT_FALSE(label.Visible());
}

TEST_F(ControlsTest, AToolTipIsShownLiterally) {
  Label label(&stage);
  label.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 300});
  ListBox list(&stage);
  list.SetPlace({.left = 150, .top = 750, .width = 1500, .height = 1500});
  label.SetToolTipText(" <b>R&D</b> 50% of total ");
  list.SetToolTipText("<unknown>");
  stage.Open();
  const auto tip_of = [](QWidget* widget) {
    const QPoint point(5, 5);
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QApplication::sendEvent(widget, &help);
    return QToolTip::text().remove(QStringLiteral(" style=\"white-space:nowrap\""));
  };
  EXPECT_EQ(tip_of(&label), QStringLiteral("<p>&lt;b&gt;R&amp;D&lt;/b&gt; 50% of total</p>"));
  EXPECT_EQ(tip_of(list.viewport()), QStringLiteral("<p>&lt;unknown&gt;</p>"));
  list.SetToolTipText("");
  list.AddItem("What is too long for the list & is cut off at its right edge");
  list.AddItem("short");
  EXPECT_EQ(tip_of(list.viewport()), QStringLiteral("<p>What is too long for the list &amp; is cut "
                                                    "off at its right edge</p>"));
  list.SetListIndex(1);
  PressKey(&label, Qt::Key_F1);
  PressKey(&list, Qt::Key_F1);
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("50% of total"))) << "nothing is cut off";
  list.SetListIndex(0);
  PressKey(&list, Qt::Key_F1);
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("too long")));
  PressKey(&label, Qt::Key_F1);
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("50% of total")));
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
