// A walk over what a screen reader sees of every window.
#include <QAccessible>
#include <QMessageBox>
#include <QTimer>

#include "fakes/contrast.h"
#include "ui/layouts/layout_manager.h"
#include "ui/layouts/layout_window.h"
#include "ui/layouts/name_dialog.h"
#include "ui/panel/panel_fixture.h"
#include "ui/pickers/file_picker.h"
#include "ui/pickers/folder_picker.h"
#include "ui/shell/about_window.h"
#include "ui/shell/main_window.h"
#include "ui/toolkit/control_access.h"
#include "ui/toolkit/desktop_boxes.h"
#include "ui/toolkit/list_access.h"

namespace zarvo {
namespace {

class AccessibilityTest : public PanelTest {
 protected:
  AccessibilityTest() {
    InstallListAccess();
    InstallControlAccess();
  }
  // The parts of a list or a combo are named by their content.
  static bool IsWhole(const QAccessibleInterface& part) {
    return part.role() == QAccessible::ComboBox || part.role() == QAccessible::List;
  }
  static bool CanBeUsed(QAccessibleInterface& part) {
    QAccessibleActionInterface* const actions = part.actionInterface();
    return part.state().focusable != 0U ||
           (actions != nullptr &&
            actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
  }
  // Complains about every control that can be used and has no name; returns how many can be used.
  static int Walk(QAccessibleInterface* part, const std::string& window, int depth = 0) {
    if (part == nullptr || part->object() == nullptr) return 0;
    int usable = 0;
    if (depth > 0 && CanBeUsed(*part)) {
      ++usable;
      const QString name = part->text(QAccessible::Name).trimmed();
      const QString object_name = part->object()->objectName();
      EXPECT_FALSE(name.isEmpty()) << window << ": " << object_name.toStdString() << " of class "
                                   << part->object()->metaObject()->className();
      EXPECT_TRUE(name != object_name) << window << ": " << name.toStdString();
    }
    if (IsWhole(*part)) return usable;
    for (int i = 0; i < part->childCount(); ++i) usable += Walk(part->child(i), window, depth + 1);
    return usable;
  }
  static void Visit(QWidget& window, int at_least) {
    const std::string name = window.objectName().toStdString();
    QAccessibleInterface* const top = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(top, nullptr);
    EXPECT_FALSE(top->text(QAccessible::Name).isEmpty()) << name << " itself";
    EXPECT_GE(Walk(top, name), at_least) << name;
    window.show();
    EXPECT_THAT(FaintCaptions(window), testing::IsEmpty()) << name;
    window.hide();
  }
};

TEST_F(AccessibilityTest, WhateverCanBeUsedHasANameAndIsReadable) {
  for (const Emulator& emulator : kTested) Visit(sections_.Panel(emulator), 30);
  MainWindow main(files_, folders_, boxes_,
                  [](const Emulator&) { return std::vector<std::string>(); },
                  {.sections = [this]() -> SectionHost& { return sections_; },
                   .show_layouts = [] {},
                   .show_about = [] {},
                   .autoload = [] {},
                   .end_program = [] {}});
  drive_.Write(R"(C:\Zarvo\cfg\x)", "");
  ASSERT_TRUE(files_.ChangeFolder(R"(C:\Zarvo)"));
  main.StartUp();
  main.Appear();
  Visit(main, 8);
  FolderPicker folder_picker(files_, sections_);
  Visit(folder_picker, 6);
  FilePicker file_picker(files_, sections_, boxes_, "Zarvo");
  Visit(file_picker, 6);
  const auto layouts = MakeLayoutWindow({files_, folders_, boxes_, sections_, main});
  Visit(*layouts, 10);
  NameDialog add(NameMode::kAdd, "");
  Visit(add, 3);
  NameDialog rename(NameMode::kRename, "Night");
  Visit(rename, 3);
  AboutWindow about([](std::string_view) {});
  Visit(about, 3);
}

TEST_F(AccessibilityTest, AMessageBoxSaysItsText) {
  QTimer timer;
  bool seen = false;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || seen) return;
    seen = true;
    Visit(*box, 2);
    EXPECT_EQ(box->objectName().toStdString(), "msgBox");
    box->button(QMessageBox::No)->click();
  });
  timer.start(0);
  EXPECT_FALSE(DesktopBoxes().Ask("Zarvo v0.1", "<b>A</b>\rB"));
  EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace zarvo
