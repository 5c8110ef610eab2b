// What a screen reader is told of the controls.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QMetaEnum>

#include "fakes/stage.h"
#include "ui/toolkit/control_access.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_access.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

class AccessTest : public testing::Test {
 protected:
  AccessTest() {
    InstallListAccess();
    InstallControlAccess();
  }
  static QAccessibleInterface* Of(QObject* object) {
    return QAccessible::queryAccessibleInterface(object);
  }
  // Role, name and some of the state.
  static std::string Told(QAccessibleInterface* access) {
    const QAccessible::State state = access->state();
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(access->role()) +
           (" " + access->text(QAccessible::Name).toStdString()) +
           (state.selected ? ", selected" : "") + (state.focused ? ", focused" : "");
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
  EXPECT_EQ(Told(access), "List Games, focused");
  EXPECT_EQ(access->text(QAccessible::Value), QStringLiteral("Game 1"));
  ASSERT_EQ(access->childCount(), 50);
  EXPECT_EQ(access->child(50), nullptr);
  EXPECT_EQ(Told(access->child(0)), "ListItem Game 0");
  EXPECT_TRUE(access->child(49)->state().invisible);
  QAccessibleInterface* const entry = access->child(1);
  EXPECT_EQ(Told(entry), "ListItem Game 1, selected, focused");
  EXPECT_EQ(entry->parent(), access);
  EXPECT_EQ(access->indexOfChild(entry), 1);
  EXPECT_EQ(access->child(1), entry) << "one entry is one object";
  EXPECT_EQ(access->focusChild(), entry);
  const QPoint place = entry->rect().center();
  EXPECT_EQ(access->childAt(place.x(), place.y()), entry);
  list.Clear();
  EXPECT_FALSE(entry->isValid());
  EXPECT_EQ(entry->text(QAccessible::Name), QString());
}

TEST_F(AccessTest, WhatIsPressableIsAButtonThatCanBePressed) {
  Label label(&stage);
  ImageBox image(&stage);
  stage.Open();
  for (Pressable* control : std::initializer_list<Pressable*>{&label, &image}) {
    QAccessibleActionInterface* const actions = Of(control)->actionInterface();
    const QString press = QAccessibleActionInterface::pressAction();
    int clicks = 0;
    control->Click.Connect([&] { ++clicks; });
    const auto clicks_after_press = [&] {
      actions->doAction(press);
      QCoreApplication::processEvents();
      return clicks;
    };
    EXPECT_FALSE(actions->actionNames().contains(press));
    control->SetPressable(true);
    EXPECT_EQ(Told(Of(control)), "Button ");
    EXPECT_TRUE(Of(control)->state().focusable);
    EXPECT_TRUE(actions->actionNames().contains(press));
    EXPECT_EQ(clicks_after_press(), 1);
    control->SetEnabled(false);
    EXPECT_EQ(clicks_after_press(), 1) << "disabled";
    control->SetEnabled(true);
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    EXPECT_EQ(clicks_after_press(), 1) << "another window is modal";
  }
}

TEST_F(AccessTest, ControlsAndWindowsTellWhatTheyAre) {
  Label label(&stage);
  label.SetCaption(" Favourites & R&D: ");
  EXPECT_EQ(Told(Of(&label)), "StaticText Favourites & R&D:");
  label.SetAccessibleName("Small panel");
  label.SetCaption("s");
  EXPECT_EQ(Told(Of(&label)), "StaticText Small panel") << "not by its caption";
  ImageBox image(&stage);
  EXPECT_EQ(Told(Of(&image)), "Graphic ");
  Frame frame(&stage);
  frame.SetCaption(" Roms are ");
  EXPECT_EQ(Told(Of(&frame)), "Grouping Roms are");
  PictureBox page(&stage);
  EXPECT_EQ(Told(Of(&page)), "Pane ");
  Window panel(WindowFrame::kNone, "frmTest");
  EXPECT_EQ(Told(Of(&panel)), "Window ");
  Window dialog(WindowFrame::kDesktop, "frmDialog");
  dialog.SetCaption("Choose Directory");
  EXPECT_EQ(Told(Of(&dialog)), "Dialog Choose Directory");
}

}  // namespace
}  // namespace zarvo
