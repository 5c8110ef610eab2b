// What a screen reader is told of the controls.
#include <gmock/gmock.h>

#include <QAccessible>

#include "fakes/stage.h"
#include "toolkit/control_access.h"
#include "toolkit/frame.h"
#include "toolkit/image_box.h"
#include "toolkit/label.h"
#include "toolkit/list_access.h"
#include "toolkit/list_box.h"
#include "toolkit/window.h"

namespace zarvo {
namespace {

class AccessTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    InstallListAccess();
    InstallControlAccess();
  }
  static QAccessibleInterface* Of(QObject* object) {
    return QAccessible::queryAccessibleInterface(object);
  }
  static std::string NameOf(QAccessibleInterface* access) {
    return access->text(QAccessible::Name).toStdString();
  }

  Stage stage;
};

TEST_F(AccessTest, AListTellsItsEntriesAndTheSelectedOne) {
  ListBox list(&stage);
  list.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 1500});
  list.SetAccessibleName("Games");
  for (int i = 0; i < 50; ++i) list.AddItem("Game " + std::to_string(i));
  stage.Open();
  list.setFocus();
  list.SetListIndex(1);
  QAccessibleInterface* const access = Of(&list);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), QAccessible::List);
  EXPECT_EQ(NameOf(access), "Games");
  EXPECT_EQ(access->text(QAccessible::Value), QStringLiteral("Game 1"));
  ASSERT_EQ(access->childCount(), 50);
  QAccessibleInterface* const entry = access->child(1);
  EXPECT_EQ(entry->role(), QAccessible::ListItem);
  EXPECT_EQ(NameOf(entry), "Game 1");
  EXPECT_EQ(entry->parent(), access);
  EXPECT_EQ(access->indexOfChild(entry), 1);
  EXPECT_EQ(access->child(1), entry) << "one entry is one object";
  EXPECT_TRUE(entry->state().selected);
  EXPECT_TRUE(entry->state().focused);
  EXPECT_FALSE(access->child(0)->state().selected);
  EXPECT_TRUE(access->child(49)->state().invisible);
  EXPECT_EQ(access->focusChild(), entry);
  const QPoint place = entry->rect().center();
  EXPECT_EQ(access->childAt(place.x(), place.y()), entry);
  EXPECT_EQ(access->child(50), nullptr);
  list.Clear();
  EXPECT_FALSE(entry->isValid());
  EXPECT_EQ(entry->text(QAccessible::Name), QString());
}

template <typename ControlType>
void ExpectPressable(ControlType& control, QAccessible::Role plain) {
  QAccessibleInterface* const access = QAccessible::queryAccessibleInterface(&control);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), plain);
  EXPECT_FALSE(
      access->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  control.SetPressable(true);
  EXPECT_EQ(access->role(), QAccessible::Button);
  EXPECT_TRUE(access->state().focusable);
  ASSERT_TRUE(
      access->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));

  int clicks = 0;
  control.Click.Connect([&] { ++clicks; });
  const auto press = [&] {
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
  };
  press();
  EXPECT_EQ(clicks, 1);
  control.SetEnabled(false);
  press();
  EXPECT_EQ(clicks, 1) << "disabled";
  control.SetEnabled(true);
  QWidget modal;
  modal.setWindowModality(Qt::ApplicationModal);
  modal.show();
  press();
  EXPECT_EQ(clicks, 1) << "another window is modal";
}

TEST_F(AccessTest, WhatIsPressableIsAButtonThatCanBePressed) {
  Label label(&stage);
  ImageBox image(&stage);
  stage.Open();
  ExpectPressable(label, QAccessible::StaticText);
  ExpectPressable(image, QAccessible::Graphic);
}

TEST_F(AccessTest, ALabelIsNamedByItsCaptionUnlessItHasANameOfItsOwn) {
  Label label(&stage);
  label.SetCaption(" Favourites: ");
  EXPECT_EQ(NameOf(Of(&label)), "Favourites:");
  label.SetCaption("R&D");
  EXPECT_EQ(NameOf(Of(&label)), "R&D");
  Label large(&stage);
  large.SetAccessibleName("Large panel");
  large.SetCaption("L");
  EXPECT_EQ(NameOf(Of(&large)), "Large panel");
  Label small(&stage);
  small.SetCaption("S");
  small.SetAccessibleName("Small panel");
  small.SetCaption("s");
  EXPECT_EQ(NameOf(Of(&small)), "Small panel");
}

TEST_F(AccessTest, GroundsAndWindowsTellWhatTheyAre) {
  Frame frame(&stage);
  frame.SetCaption(" Roms are ");
  EXPECT_EQ(Of(&frame)->role(), QAccessible::Grouping);
  EXPECT_EQ(NameOf(Of(&frame)), "Roms are");
  PictureBox page(&stage);
  EXPECT_EQ(Of(&page)->role(), QAccessible::Pane);
  Window panel(WindowFrame::kNone, "frmTest");
  Window dialog(WindowFrame::kDesktop, "frmDialog");
  dialog.SetCaption("Choose Directory");
  EXPECT_EQ(Of(&panel)->role(), QAccessible::Window);
  EXPECT_EQ(Of(&dialog)->role(), QAccessible::Dialog);
  EXPECT_EQ(NameOf(Of(&dialog)), "Choose Directory");
}

}  // namespace
}  // namespace zarvo
