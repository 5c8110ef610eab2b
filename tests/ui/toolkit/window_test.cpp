// Windows: place and size, modal and modeless, unloading, keys, moving with the mouse.
#include "ui/toolkit/window.h"

#include <gmock/gmock.h>

#include <QMessageBox>
#include <QTimer>

#include "fakes/stage.h"
#include "ui/toolkit/desktop_boxes.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/popup_menu.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class WindowTest : public testing::Test {
 protected:
  WindowTest() { Place({.left = 1507, .top = 1508, .width = 3000, .height = 1500}); }
  void Place(const TwipRect& place) {
    window.SetLeft(place.left);
    window.SetTop(place.top);
    window.SetWidth(place.width);
    window.SetHeight(place.height);
  }
  void Open() {
    window.ShowModeless();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  Window window{WindowFrame::kNone, "frmTest"};
  EventLog log;
};

// Runs `play` once the event loop of a modal window or box runs.
void Meanwhile(const std::function<void()>& play) { QTimer::singleShot(0, qApp, play); }

TEST_F(WindowTest, WhatIsSetIsReadAlsoBetweenPixelsAndShown) {
  for (const bool shown : {false, true}) {
    if (shown) Open();
    for (const int twips : {1507, 1508, 3001, 15, 4620}) {
      Place({.left = twips, .top = twips + 1, .width = twips + 2, .height = twips + 3});
      EXPECT_THAT((std::vector{window.Left(), window.Top(), window.Width(), window.Height()}),
                  ElementsAre(twips, twips + 1, twips + 2, twips + 3));
    }
  }
}

TEST_F(WindowTest, AMoveByThePlayerIsReadBack) {
  Open();
  window.move(33, 77);
  EXPECT_EQ(window.Left(), 495);
  EXPECT_EQ(window.Top(), 1155);
  window.SetLeft(1507);
  EXPECT_EQ(window.Top(), 1155) << "setting the one doesn't bring back the other";
  window.move(10, window.y());
  window.SetTop(1508);
  EXPECT_EQ(window.Left(), 150);
}

TEST_F(WindowTest, AWindowWithoutAScreenIsBroughtBack) {
  window.SetLeft(-150000);
  window.SetTop(150000);
  Open();
  EXPECT_TRUE(window.screen()->geometry().intersects(window.geometry()));
}

TEST_F(WindowTest, UnloadHidesUnlessRefusedAndIsRaisedOnce) {
  bool refuse = true;
  window.Unload.Connect([&](bool& refused) {
    log.text += "unload ";
    window.UnloadWindow();  // from inside its own handler
    refused = refuse;
  });
  Open();
  window.close();
  EXPECT_TRUE(window.isVisible() && !window.IsUnloaded());
  refuse = false;
  window.close();
  window.UnloadWindow();
  EXPECT_TRUE(!window.isVisible() && window.IsUnloaded());
  EXPECT_EQ(log(), "unload unload ");
}

// The owner is 200 x 100 pixels, the dialog 100 x 50.
TEST_F(WindowTest, AModalWindowStandsOverItsOwnerAndKeepsItDeafUntilItsUnload) {
  ImageBox image(&window);
  image.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
  log.Note(image.Click, "owner ");
  Window dialog(WindowFrame::kDesktop, "frmDialog");
  dialog.SetWidth(1500);
  dialog.SetHeight(750);
  const auto place_over = [&](int left, int top) {
    window.SetLeft(left);
    window.SetTop(top);
    Open();
    const int modals = ModalCount();
    QPoint place;
    Meanwhile([&] {
      EXPECT_TRUE(dialog.isVisible());
      place = dialog.pos();
      ClickOn(&image);
      dialog.UnloadWindow();
      log.text += "unloaded ";
    });
    dialog.ShowModal();
    log.text += "back ";
    EXPECT_NE(ModalCount(), modals);
    return place;
  };
  EXPECT_LE((place_over(3000, 3000) - QPoint(250, 225)).manhattanLength(), 2);
  EXPECT_EQ(place_over(-1500, -750), QPoint(0, 0)) << "on the screen";
  ClickOn(&image);
  EXPECT_EQ(log(), "unloaded back unloaded back owner ");
}

TEST_F(WindowTest, EnterAndEscapePressTheWindowsButtonsWhereNoControlTakesThem) {
  window.SetDefaultAction([this] { log.text += "default "; });
  window.SetCancelAction([this] { log.text += "cancel "; });
  TextBox text(&window);
  ListBox list(&window);
  list.AddItem("folder");
  PushButton cancel(&window);
  log.Note(cancel.Click, "button ");
  Open();
  for (QWidget* widget : std::initializer_list<QWidget*>{&window, &text, &list}) {
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    QTest::keyClick(widget, Qt::Key_Escape);
    EXPECT_EQ(log(), "default cancel ");
  }
  list.KeyDown.Connect([&](const KeyArgs&) { list.SwallowKey(); });
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(log(), "");
  QTest::keyClick(&cancel, Qt::Key_Return);
  QTest::keyClick(&cancel, Qt::Key_Escape);
  EXPECT_EQ(log(), "button cancel ") << "not the default button";
}

// The platform of the tests can't move windows, so the window follows by itself.
TEST_F(WindowTest, FollowsTheMouseUntilTheButtonIsUpWithoutAClick) {
  ImageBox logo(&window);
  logo.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 1500});
  log.Note(logo.Click, "click ");
  logo.MouseMove.Connect([this](const MouseArgs& mouse) {
    if (mouse.button != MouseButton::kLeft) return;
    log.text += "move ";
    window.MoveWithMouse();
  });
  Open();
  const auto move_to = [&](QPoint global) {
    QTest::mouseMove(window.windowHandle(), window.mapFromGlobal(global));
    return window.pos();
  };
  Press(&logo, {50, 50});
  move_to({251, 250});
  const QPoint first = move_to({260, 255});
  EXPECT_EQ(move_to({360, 235}) - first, QPoint(100, -20));
  Release(&logo, {50, 50});
  const QPoint last = window.pos();
  EXPECT_EQ(move_to({300, 300}), last) << "the button is up";
  EXPECT_EQ(log(), "move ") << "the rest of the moves goes to the window";
}

TEST_F(WindowTest, IsPutOnTopWithoutAChangeOfPlaceOrFocus) {
  TextBox text(&window);
  Open();
  text.setFocus();
  for (const bool on : {true, false}) {
    window.SetAlwaysOnTop(on);
    EXPECT_EQ(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), on);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(text.hasFocus());
    EXPECT_EQ(window.pos(), QPoint(100, 101));
  }
}

TEST(PopupMenuTest, ShowsItsCaptionsLiterallyAndReturnsWhenClosed) {
  PopupMenu menu("mnuTest", {"mnuMadeBy", "", "mnuOC"});
  menu.SetCaption(0, "R&D <Sega>");
  EXPECT_EQ(menu.Caption(0), "R&D <Sega>");
  std::string seen;
  Meanwhile([&] {
    auto* const popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    seen = (popup->objectName() + popup->actions().at(0)->text()).toStdString();
    EXPECT_TRUE(popup->actions().at(1)->isSeparator());
    QTest::keyClick(popup, Qt::Key_Escape);
  });
  menu.ShowAt(QPoint(100, 100));
  EXPECT_EQ(seen, "mnuTestR&&D <Sega>");
}

TEST(DesktopBoxesTest, AreAnsweredByKeyboard) {
  const auto answer = [](BoxButtons buttons, const std::vector<Qt::Key>& keys) {
    Meanwhile([&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->windowTitle(), QStringLiteral("Zarvo 0.1"));
      EXPECT_EQ(box->text(), QStringLiteral("<b>Delete</b>\n& go?"));
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      ASSERT_TRUE(QTest::qWaitForWindowActive(box));
      for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
    });
    return DesktopBoxes().Show(BoxIcon::kExclamation, buttons, "Zarvo 0.1", "<b>Delete</b>\r& go?");
  };
  EXPECT_EQ(answer(BoxButtons::kYesNo, {Qt::Key_Return}), BoxAnswer::kYes);
  EXPECT_EQ(answer(BoxButtons::kYesNo, {Qt::Key_Escape}), BoxAnswer::kNo);
  EXPECT_EQ(answer(BoxButtons::kYesNo, {Qt::Key_Tab, Qt::Key_Return}), BoxAnswer::kNo);
  EXPECT_EQ(answer(BoxButtons::kOk, {Qt::Key_Return}), BoxAnswer::kOk);
  EXPECT_EQ(answer(BoxButtons::kOk, {Qt::Key_Escape}), BoxAnswer::kOk);
}

}  // namespace
}  // namespace zarvo
