// Adding, renaming and removing layouts.
#include <QWindow>

#include "layouts/layout_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using LayoutNamesTest = LayoutWindowTest;

TEST_F(LayoutNamesTest, WithoutALayoutOnlyAddDoesAnything) {
  LayoutManager& manager = Open();
  for (PushButton* button :
       {manager.cmdRemove, manager.cmdRename, manager.cmdLoadLayout, manager.cmdSaveLayout}) {
    button->click();
  }
  EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\layouts.dat)"));
  EXPECT_THAT(sections_.told, IsEmpty());
  Name(manager.cmdAdd, "First");
  EXPECT_EQ(Layouts(), "[First]\r\n-\r\n");
  EXPECT_EQ(manager.cboListaLayout->Text(), "First");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "First");
}

TEST_F(LayoutNamesTest, TheDialogAsksForANameByMode) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  {
    const ModalPlay<NameDialog> play([](NameDialog& dialog) {
      EXPECT_EQ(dialog.Caption(), "Add a new layout");
      EXPECT_EQ(dialog.txtRinomina->Text(), "New Layout");
      EXPECT_TRUE(dialog.cmdAdd->Visible());
      EXPECT_FALSE(dialog.cmdRename->Visible());
      dialog.txtRinomina->SetText("");
      EXPECT_FALSE(dialog.cmdAdd->Enabled());
      PressKey(dialog.txtRinomina, Qt::Key_Return);
      EXPECT_FALSE(dialog.IsUnloaded()) << "Enter does no more than the button";
      dialog.txtRinomina->SetText("x");
      EXPECT_TRUE(dialog.cmdAdd->Enabled());
      dialog.cmdCancel->click();
    });
    manager.cmdAdd->click();
  }
  const ModalPlay<NameDialog> play([](NameDialog& dialog) {
    EXPECT_EQ(dialog.Caption(), "Rename layout");
    EXPECT_EQ(dialog.txtRinomina->Text(), "Evening");
    EXPECT_FALSE(dialog.cmdAdd->Visible());
    EXPECT_TRUE(dialog.cmdRename->Visible());
    PressKey(dialog.txtRinomina, Qt::Key_Escape);
  });
  manager.cmdRename->click();
  EXPECT_EQ(Layouts(), kTwoLayouts);
}

TEST_F(LayoutNamesTest, AddAppendsTheNameAndMakesTheFirstTheDefault) {
  GivenFiles(kTwoLayouts, Ini(0, 1, "Night"));
  LayoutManager& manager = Open();
  Name(manager.cmdAdd, "Weekend");
  EXPECT_EQ(Layouts(), std::string(kTwoLayouts) + "[Weekend]\r\n-\r\n");
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Evening", "Night", "Weekend"));
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout2), ElementsAre("Evening", "Night", "Weekend"));
  EXPECT_EQ(manager.cboListaLayout->Text(), "Weekend");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "Evening");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), IsEmpty());
}

TEST_F(LayoutNamesTest, ATakenNameIsRefused) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    dialog.txtRinomina->SetText("Night");
    dialog.cmdAdd->click();
    EXPECT_THAT(Warnings(), ElementsAre("Name already exist!"));
    EXPECT_FALSE(dialog.IsUnloaded()) << "after a failed Add the dialog can be used again";
    EXPECT_EQ(manager.cboListaLayout->Text(), "Night");
    dialog.txtRinomina->SetText("night");
    dialog.cmdAdd->click();
    EXPECT_TRUE(dialog.IsUnloaded()) << "the case of letters counts";
  });
  manager.cmdAdd->click();
  Name(manager.cmdRename, "Evening");  // that the dialog is gone is seen by the helper
  EXPECT_THAT(Warnings(), ElementsAre("Name already exist!"));
  EXPECT_EQ(Layouts(), std::string(kTwoLayouts) + "[night]\r\n-\r\n");
}

TEST_F(LayoutNamesTest, ANameThatTheFileCannotHoldIsRefused) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  for (PushButton* opener : {manager.cmdAdd, manager.cmdRename}) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      PushButton* accept = dialog.cmdAdd->Visible() ? dialog.cmdAdd : dialog.cmdRename;
      dialog.txtRinomina->setText(QString(QChar(0x65E5)));
      accept->click();
      EXPECT_THAT(Warnings(), ElementsAre("A layout can't have this name!"));
      EXPECT_FALSE(dialog.IsUnloaded());
      dialog.cmdCancel->click();
    });
    opener->click();
  }
  EXPECT_EQ(Layouts(), kTwoLayouts);
}

TEST_F(LayoutNamesTest, RenameMovesTheNameToTheEndAndKeepsThePlaceInTheFile) {
  GivenFiles(kTwoLayouts, Ini(0, 1, "Evening"));
  LayoutManager& manager = Open();
  Name(manager.cmdRename, "Dusk");
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Night", "Dusk"));
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout2), ElementsAre("Night", "Dusk"));
  EXPECT_EQ(manager.cboListaLayout->Text(), "Dusk");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "Dusk") << "the default goes with its name";
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("MAME", "RAINE"));
  EXPECT_EQ(Layouts().substr(0, 8), "[Dusk]\r\n");
  Name(manager.cmdRename, "Dusk");
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Night", "Dusk"));
  manager.cboListaLayout->SetListIndex(0);
  Name(manager.cmdRename, "Dawn");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "Dusk") << "another default stays";
}

TEST_F(LayoutNamesTest, RenameLeavesNoDefaultWhereThereWasNone) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  Name(manager.cmdRename, "Dusk");
  EXPECT_EQ(manager.cboListaLayout2->ListIndex(), -1);
}

TEST_F(LayoutNamesTest, RemoveSelectsTheNeighbour) {
  GivenFiles("[A]\r\n-\r\n[B]\r\nMAIN,1,2\r\nM72,1,2,3,4\r\n-\r\n[C]\r\n-\r\n", Ini(0, 1, "C"));
  LayoutManager& manager = Open();
  manager.cboListaLayout->SetListIndex(2);
  manager.cmdRemove->click();
  EXPECT_EQ(manager.cboListaLayout->Text(), "B");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "A") << "the removed one was the default";
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("M72"));
  manager.cboListaLayout->SetListIndex(0);
  manager.cmdRemove->click();
  EXPECT_EQ(manager.cboListaLayout->Text(), "B");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("M72"));
  EXPECT_EQ(Layouts(), "[B]\r\nMAIN,1,2\r\nM72,1,2,3,4\r\n-\r\n");
  manager.cmdRemove->click();
  EXPECT_EQ(Layouts(), "");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), IsEmpty());
  manager.cmdOk->click();
  EXPECT_THAT(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), testing::HasSubstr("DefaultLayout = \r\n"));
}

TEST_F(LayoutNamesTest, AFailedWriteIsToldAndTheListsShowTheFile) {
  GivenFiles(kTwoLayouts, Ini(0, 1, "Night"));
  LayoutManager& manager = Open();
  const auto expect_file_shown = [&](const std::string& selected) {
    EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Evening", "Night"));
    EXPECT_THAT(ItemsOf(*manager.cboListaLayout2), ElementsAre("Evening", "Night"));
    EXPECT_EQ(manager.cboListaLayout->Text(), selected);
    EXPECT_EQ(manager.cboListaLayout2->Text(), "Night");
    EXPECT_EQ(Layouts(), kTwoLayouts);
  };
  const auto failed = ElementsAre("layouts.dat: No space left on device");
  files_.Fail(FileStep::kReplace, "");
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    dialog.cmdAdd->click();
    EXPECT_THAT(Warnings(), failed);
    expect_file_shown("Evening");
    EXPECT_FALSE(dialog.IsUnloaded()) << "the player may try again";
    dialog.cmdCancel->click();
  });
  manager.cmdAdd->click();
  manager.cboListaLayout->SetListIndex(1);
  Name(manager.cmdRename, "Dusk");
  EXPECT_THAT(Warnings(), failed);
  expect_file_shown("Night");
  manager.cmdRemove->click();
  EXPECT_THAT(Warnings(), failed);
  expect_file_shown("Night");
  manager.cmdSaveLayout->click();
  EXPECT_THAT(Warnings(), failed);
  expect_file_shown("Night");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("M72"));
  manager.cmdOk->click();
  EXPECT_THAT(Warnings(), ElementsAre("zarvo.ini: No space left on device"));
}

TEST_F(LayoutNamesTest, TheWindowIsOutOfTheTopMostBandWhileTheDialogStands) {
  GivenFiles(kTwoLayouts, Ini(1, 0, ""));
  LayoutManager& manager = Open();
  const auto on_top = [&] {
    return manager.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
  };
  EXPECT_TRUE(on_top());
  for (const bool by_cancel : {true, false}) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      EXPECT_FALSE(on_top());
      by_cancel ? dialog.cmdCancel->click() : dialog.cmdRename->click();
    });
    manager.cmdRename->click();
    EXPECT_TRUE(on_top());
    EXPECT_EQ(manager.chkAlwaysOnTop->Value(), 1);
  }
  manager.chkAlwaysOnTop->SetValue(0);
  EXPECT_FALSE(on_top());
}

}  // namespace
}  // namespace zarvo
