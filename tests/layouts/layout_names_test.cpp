// Adding, renaming and removing layouts.
#include <QWindow>

#include "layouts/layout_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

using LayoutNamesTest = LayoutWindowTest;

TEST_F(LayoutNamesTest, WithoutALayoutOnlyAddDoesAnything) {
  LayoutManager& manager = Open();
  for (PushButton* button :
       {manager.cmdRemove, manager.cmdRename, manager.cmdLoadLayout, manager.cmdSaveLayout}) {
    button->click();
  }
  EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\layouts.dat)"));
  EXPECT_THAT(sections_.told, testing::IsEmpty());
  Name(manager.cmdAdd, "First");
  EXPECT_EQ(Layouts(), "[First]\r\n-\r\n");
  EXPECT_EQ(Look(manager), "First; First; First; ; ");
}

TEST_F(LayoutNamesTest, TheDialogAsksForANameByMode) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  const auto look = [](const NameDialog& dialog) {
    return dialog.Caption() + ": " + dialog.txtRinomina->Text() +
           (dialog.cmdAdd->Visible() ? " (Add)" : "") +
           (dialog.cmdRename->Visible() ? " (Rename)" : "");
  };
  {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      EXPECT_EQ(look(dialog), "Add a new layout: New Layout (Add)");
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
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    EXPECT_EQ(look(dialog), "Rename layout: Evening (Rename)");
    PressKey(dialog.txtRinomina, Qt::Key_Escape);
  });
  manager.cmdRename->click();
  EXPECT_EQ(Layouts(), kTwoLayouts);
}

TEST_F(LayoutNamesTest, AddAppendsTheNameAndMakesTheFirstTheDefault) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 1, "Night"));
  Name(manager.cmdAdd, "Weekend");
  EXPECT_EQ(Layouts(), std::string(kTwoLayouts) + "[Weekend]\r\n-\r\n");
  EXPECT_EQ(Look(manager), "autoload default Evening|Night|Weekend; Weekend; Evening; ; ");
}

TEST_F(LayoutNamesTest, ATakenNameIsRefused) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  const auto refused = ElementsAre("! Name already exist!");
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    dialog.txtRinomina->SetText("Night");
    dialog.cmdAdd->click();
    EXPECT_THAT(Take(boxes_), refused);
    EXPECT_FALSE(dialog.IsUnloaded()) << "after a failed Add the dialog can be used again";
    EXPECT_EQ(manager.cboListaLayout->Text(), "Night");
    dialog.txtRinomina->SetText("night");
    dialog.cmdAdd->click();
    EXPECT_TRUE(dialog.IsUnloaded()) << "the case of letters counts";
  });
  manager.cmdAdd->click();
  Name(manager.cmdRename, "Evening");  // that the dialog is gone is seen by the helper
  EXPECT_THAT(Take(boxes_), refused);
  EXPECT_EQ(Layouts(), std::string(kTwoLayouts) + "[night]\r\n-\r\n");
}

TEST_F(LayoutNamesTest, ANameThatTheFileCannotHoldIsRefused) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  for (PushButton* opener : {manager.cmdAdd, manager.cmdRename}) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      dialog.txtRinomina->setText(QString(QChar(0x65E5)));
      (opener == manager.cmdAdd ? dialog.cmdAdd : dialog.cmdRename)->click();
      EXPECT_THAT(Take(boxes_), ElementsAre("! A layout can't have this name!"));
      EXPECT_FALSE(dialog.IsUnloaded());
      dialog.cmdCancel->click();
    });
    opener->click();
  }
  EXPECT_EQ(Layouts(), kTwoLayouts);
}

TEST_F(LayoutNamesTest, RenameMovesTheNameToTheEndAndKeepsThePlaceInTheFile) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, "Evening"));
  for (int i = 0; i < 2; ++i) {
    Name(manager.cmdRename, "Dusk");
    EXPECT_EQ(Look(manager), "Night|Dusk; Dusk; Dusk; MAME|RAINE; Large|Small");
    EXPECT_EQ(Layouts(), "[Dusk]" + std::string(kTwoLayouts.substr(9)));
  }
  manager.cboListaLayout->SetListIndex(0);
  Name(manager.cmdRename, "Dawn");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "Dusk") << "another default stays";

  LayoutManager& without_default = Open(kTwoLayouts, Ini(0, 0, ""));
  Name(without_default.cmdRename, "Dusk");
  EXPECT_EQ(without_default.cboListaLayout2->ListIndex(), -1);
}

TEST_F(LayoutNamesTest, RemoveSelectsTheNeighbour) {
  LayoutManager& manager =
      Open("[A]\r\n-\r\n[B]\r\nMAIN,1,2\r\nM72,1,2,6345,4620\r\n-\r\n[C]\r\n-\r\n", Ini(0, 0, "C"));
  manager.cboListaLayout->SetListIndex(2);
  manager.cmdRemove->click();
  EXPECT_EQ(Look(manager), "A|B; B; A; M72; Medium") << "the removed one was the default";
  manager.cboListaLayout->SetListIndex(0);
  manager.cmdRemove->click();
  EXPECT_EQ(Look(manager), "B; B; B; M72; Medium");
  EXPECT_EQ(Layouts(), "[B]\r\nMAIN,1,2\r\nM72,1,2,6345,4620\r\n-\r\n");
  manager.cmdRemove->click();
  EXPECT_EQ(Layouts(), "");
  EXPECT_EQ(Look(manager), "; ; ; ; ");
  manager.cmdOk->click();
  EXPECT_THAT(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), testing::HasSubstr("DefaultLayout = \r\n"));
}

TEST_F(LayoutNamesTest, AFailedWriteIsToldAndTheListsShowTheFile) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, "Night"));
  const auto failed = ElementsAre("! layouts.dat: No space left on device");
  files_.Fail(FileStep::kReplace, "");
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    dialog.cmdAdd->click();
    EXPECT_THAT(Take(boxes_), failed);
    EXPECT_EQ(Look(manager), "Evening|Night; Evening; Night; MAME|RAINE; Large|Small");
    EXPECT_FALSE(dialog.IsUnloaded()) << "the player may try again";
    dialog.cmdCancel->click();
  });
  manager.cmdAdd->click();
  manager.cboListaLayout->SetListIndex(1);
  for (int change = 0; change < 3; ++change) {
    if (change == 0) Name(manager.cmdRename, "Dusk");
    if (change == 1) manager.cmdRemove->click();
    if (change == 2) manager.cmdSaveLayout->click();
    EXPECT_THAT(Take(boxes_), failed);
    EXPECT_EQ(Look(manager), "Evening|Night; Night; Night; M72; Medium");
  }
  EXPECT_EQ(Layouts(), kTwoLayouts);
  manager.cmdOk->click();
  EXPECT_THAT(Take(boxes_), ElementsAre("! zarvo.ini: No space left on device"));
}

TEST_F(LayoutNamesTest, TheWindowIsOutOfTheTopMostBandWhileTheDialogStands) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(1, 0, ""));
  const auto on_top = [&] {
    return manager.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
  };
  EXPECT_TRUE(on_top());
  for (const bool by_cancel : {true, false}) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      EXPECT_FALSE(on_top());
      (by_cancel ? dialog.cmdCancel : dialog.cmdRename)->click();
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
