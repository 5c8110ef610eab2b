#include "layouts/layout_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/failing_files.h"
#include "fakes/key_press.h"
#include "fakes/modal.h"
#include "fakes/scripted_boxes.h"
#include "fakes/temp_drive.h"
#include "layouts/layout_manager.h"
#include "layouts/recording_sections.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kTwoLayouts =
    "[Evening]\r\nMAIN,400,500\r\nMAME,10,20,6345,7260\r\nRAINE,30,40,2415,4620\r\n-\r\n"
    "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n";

std::string Ini(int on_top, int autoload, const std::string& name) {
  return "[Layouts]\r\nLayoutAlwaysOnTop = " + std::to_string(on_top) +
         "\r\nAutoloadOnStartup = " + std::to_string(autoload) + "\r\nDefaultLayout = " + name +
         "\r\n";
}

std::vector<std::string> ItemsOf(const ComboBox& combo) {
  std::vector<std::string> items;
  for (int i = 0; i < combo.ListCount(); ++i) items.push_back(combo.List(i));
  return items;
}

std::vector<std::string> ItemsOf(const ListBox& list) {
  std::vector<std::string> items;
  for (int i = 0; i < list.ListCount(); ++i) items.emplace_back(list.Items().At(i));
  return items;
}

class LayoutWindowTest : public testing::Test {
 protected:
  LayoutWindowTest() { app_.ProgramFolder = R"(C:\Zarvo)"; }

  void GivenFiles(std::string_view layouts, std::string_view ini) {
    drive_.Write(R"(C:\Zarvo\layouts.dat)", layouts);
    drive_.Write(R"(C:\Zarvo\zarvo.ini)", ini);
  }
  LayoutManager& Open() {
    window_ = MakeLayoutWindow(tools_);
    window_->ShowModeless();
    return dynamic_cast<LayoutManager&>(*window_);
  }
  [[nodiscard]] std::string Layouts() const { return drive_.Read(R"(C:\Zarvo\layouts.dat)"); }

  // Types a name into the dialog that `button` opens and presses Enter.
  static void Name(PushButton* button, std::string_view name) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      dialog.txtRinomina->SetText(name);
      PressKey(dialog.txtRinomina, Qt::Key_Return);
    });
    button->click();
  }

  TempDrive drive_;
  FailingFiles files_{drive_.files()};
  AppState app_;
  ScriptedBoxes boxes_;
  RecordingSections sections_{app_};
  LayoutTools tools_{files_, app_, boxes_, sections_, sections_};
  std::unique_ptr<Window> window_;
};

TEST_F(LayoutWindowTest, OpensWithWhatTheFilesHold) {
  GivenFiles(kTwoLayouts, Ini(0, 1, "Night"));
  const LayoutManager& manager = Open();
  EXPECT_EQ(manager.Caption(), "Zarvo - Layouts Manager");
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Evening", "Night"));
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout2), ElementsAre("Evening", "Night"));
  EXPECT_EQ(manager.cboListaLayout->Text(), "Evening");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "Night");
  EXPECT_EQ(manager.chkAlwaysOnTop->Value(), 0);
  EXPECT_EQ(manager.chkEnableAutoload->Value(), 1);
  EXPECT_TRUE(manager.cboListaLayout2->Enabled());
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("MAME", "RAINE"));
  EXPECT_THAT(ItemsOf(*manager.lstEmulatoriSize), ElementsAre("Large", "Small"));
}

TEST_F(LayoutWindowTest, AnOpeningThatBreaksOffKeepsWhatItHas) {
  const LayoutManager& empty = Open();
  EXPECT_EQ(empty.cboListaLayout->ListCount(), 0);
  EXPECT_FALSE(empty.cboListaLayout2->Enabled());

  drive_.Write(R"(C:\Zarvo\layouts.dat)", kTwoLayouts);
  const LayoutManager& without_ini = Open();
  EXPECT_EQ(without_ini.cboListaLayout->ListCount(), 2);
  EXPECT_EQ(without_ini.cboListaLayout->ListIndex(), -1);

  GivenFiles(kTwoLayouts, Ini(1, 1, "Gone"));
  const LayoutManager& stale = Open();
  EXPECT_EQ(stale.chkAlwaysOnTop->Value(), 1);
  EXPECT_EQ(stale.chkEnableAutoload->Value(), 1);
  EXPECT_EQ(stale.cboListaLayout->ListIndex(), -1);

  GivenFiles(kTwoLayouts, Ini(0, 1, ""));
  const LayoutManager& no_default = Open();
  EXPECT_EQ(no_default.chkEnableAutoload->Value(), 0);
  EXPECT_FALSE(no_default.cboListaLayout2->Enabled());
  EXPECT_EQ(no_default.cboListaLayout2->ListIndex(), -1);
  EXPECT_EQ(no_default.cboListaLayout->Text(), "Evening");
}

TEST_F(LayoutWindowTest, APanelOfNoKnownSizeStandsWithoutOne) {
  GivenFiles("[A]\r\nMAIN,1,2\r\nMAME,1,2,6345,7000\r\nM72,1,2,6345,4620\r\n-\r\n", Ini(0, 0, ""));
  const LayoutManager& manager = Open();
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("MAME", "M72"));
  EXPECT_THAT(ItemsOf(*manager.lstEmulatoriSize), ElementsAre("Medium"));
}

TEST_F(LayoutWindowTest, WithoutALayoutOnlyAddDoesAnything) {
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

TEST_F(LayoutWindowTest, TheDialogAsksForANameByMode) {
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

TEST_F(LayoutWindowTest, AddAppendsTheNameAndMakesTheFirstTheDefault) {
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

TEST_F(LayoutWindowTest, ATakenNameIsRefused) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    boxes_.Expect(BoxIcon::kExclamation, "Name already exist!");
    dialog.txtRinomina->SetText("Night");
    dialog.cmdAdd->click();
    EXPECT_FALSE(dialog.IsUnloaded()) << "after a failed Add the dialog can be used again";
    EXPECT_EQ(manager.cboListaLayout->Text(), "Night");
    dialog.txtRinomina->SetText("night");
    dialog.cmdAdd->click();
    EXPECT_TRUE(dialog.IsUnloaded()) << "the case of letters counts";
  });
  manager.cmdAdd->click();
  boxes_.Expect(BoxIcon::kExclamation, "Name already exist!");
  Name(manager.cmdRename, "Evening");  // that the dialog is gone is seen by the helper
  EXPECT_EQ(Layouts(), std::string(kTwoLayouts) + "[night]\r\n-\r\n");
}

TEST_F(LayoutWindowTest, ANameThatTheFileCannotHoldIsRefused) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  for (PushButton* opener : {manager.cmdAdd, manager.cmdRename}) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      PushButton* accept = dialog.cmdAdd->Visible() ? dialog.cmdAdd : dialog.cmdRename;
      dialog.txtRinomina->setText(QString(QChar(0x65E5)));
      boxes_.Expect(BoxIcon::kExclamation, "A layout can't have this name!");
      accept->click();
      EXPECT_FALSE(dialog.IsUnloaded());
      dialog.cmdCancel->click();
    });
    opener->click();
  }
  EXPECT_EQ(Layouts(), kTwoLayouts);
}

TEST_F(LayoutWindowTest, RenameMovesTheNameToTheEndAndKeepsThePlaceInTheFile) {
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

TEST_F(LayoutWindowTest, RenameLeavesNoDefaultWhereThereWasNone) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  Name(manager.cmdRename, "Dusk");
  EXPECT_EQ(manager.cboListaLayout2->ListIndex(), -1);
}

TEST_F(LayoutWindowTest, RemoveSelectsTheNeighbour) {
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

TEST_F(LayoutWindowTest, SaveTakesTheWindowsAsTheyStand) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  sections_.main = {.left = -15, .top = 401};
  sections_.Stand(Emulator::kM72, {.left = 8, .top = 7, .width = 6345, .height = 4620});
  sections_.Stand(Emulator::kCallus, {.left = 2, .top = 1, .width = 2415, .height = 4620});
  manager.cmdSaveLayout->click();
  EXPECT_EQ(Layouts(),
            "[Evening]\r\nMAIN,401,-15\r\nCALLUS,1,2,2415,4620\r\nM72,7,8,6345,4620\r\n-\r\n"
            "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("CALLUS", "M72"));
  EXPECT_THAT(ItemsOf(*manager.lstEmulatoriSize), ElementsAre("Small", "Medium"));
}

TEST_F(LayoutWindowTest, LoadClosesAllPanelsAndOpensThoseOfTheLayout) {
  GivenFiles("[A]\r\nMAIN,7,8\r\nMAME,1,2,6345,7260\r\nGHOST,1,2,3,4\r\nM72,5,6,6345,4620\r\n-\r\n",
             Ini(0, 0, ""));
  LayoutManager& manager = Open();
  sections_.Stand(Emulator::kRaine, {});
  sections_.without_data_file = {Emulator::kMame};
  manager.cmdLoadLayout->click();
  EXPECT_THAT(sections_.told, ElementsAre("close all", "main", "open MAME", "open M72"));
  EXPECT_EQ(sections_.main, (TwipRect{.left = 8, .top = 7}));
  EXPECT_THAT(sections_.places,
              ElementsAre(std::pair(Emulator::kM72,
                                    TwipRect{.left = 6, .top = 5, .width = 6345, .height = 4620})));
  EXPECT_FALSE(manager.IsUnloaded());
}

TEST_F(LayoutWindowTest, ADamagedLayoutIsToldAndClosesNothing) {
  GivenFiles("[A]\r\nMAIN,7,8\r\nMAME,1,2,many,7260\r\n-\r\n", Ini(0, 0, ""));
  LayoutManager& manager = Open();
  boxes_.ExpectContaining(BoxIcon::kExclamation, "layouts.dat");
  manager.cmdLoadLayout->click();
  EXPECT_THAT(sections_.told, IsEmpty());
}

TEST_F(LayoutWindowTest, PlacesComeBackToTheTwipAfterAHundredRounds) {
  GivenFiles("[A]\r\n-\r\n", Ini(0, 0, ""));
  LayoutManager& manager = Open();
  const TwipRect place{.left = 1237, .top = -8, .width = 2415, .height = 4620};
  sections_.Stand(Emulator::kMame, place);
  sections_.main = {.left = 501, .top = 407};
  for (int round = 0; round < 100; ++round) {
    manager.cmdSaveLayout->click();
    manager.cmdLoadLayout->click();
  }
  EXPECT_EQ(sections_.places[Emulator::kMame], place);
  EXPECT_EQ(sections_.main, (TwipRect{.left = 501, .top = 407}));
}

TEST_F(LayoutWindowTest, CloseAloneWritesTheSettings) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  manager.chkAlwaysOnTop->SetValue(1);
  manager.chkEnableAutoload->SetValue(1);
  manager.cboListaLayout2->SetListIndex(1);
  EXPECT_EQ(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), Ini(0, 0, ""));
  manager.cmdOk->click();
  EXPECT_TRUE(manager.IsUnloaded());
  const LayoutManager& again = Open();
  EXPECT_EQ(again.chkAlwaysOnTop->Value(), 1);
  EXPECT_EQ(again.chkEnableAutoload->Value(), 1);
  EXPECT_EQ(again.cboListaLayout2->Text(), "Night");
}

TEST_F(LayoutWindowTest, AFailedWriteIsToldAndTheListsShowTheFile) {
  GivenFiles(kTwoLayouts, Ini(0, 1, "Night"));
  LayoutManager& manager = Open();
  const auto expect_box = [&](const char* file) {
    boxes_.Expect(BoxIcon::kExclamation, std::string(file) + ": No space left on device");
  };
  const auto expect_file_shown = [&](const std::string& selected) {
    EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Evening", "Night"));
    EXPECT_THAT(ItemsOf(*manager.cboListaLayout2), ElementsAre("Evening", "Night"));
    EXPECT_EQ(manager.cboListaLayout->Text(), selected);
    EXPECT_EQ(manager.cboListaLayout2->Text(), "Night");
    EXPECT_EQ(Layouts(), kTwoLayouts);
  };
  files_.Fail(FileStep::kReplace, "");
  expect_box("layouts.dat");
  const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
    dialog.cmdAdd->click();
    expect_file_shown("Evening");
    EXPECT_FALSE(dialog.IsUnloaded()) << "the player may try again";
    dialog.cmdCancel->click();
  });
  manager.cmdAdd->click();
  manager.cboListaLayout->SetListIndex(1);
  expect_box("layouts.dat");
  Name(manager.cmdRename, "Dusk");
  expect_file_shown("Night");
  expect_box("layouts.dat");
  manager.cmdRemove->click();
  expect_file_shown("Night");
  expect_box("layouts.dat");
  manager.cmdSaveLayout->click();
  expect_file_shown("Night");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("M72"));
  expect_box("zarvo.ini");
  manager.cmdOk->click();
}

}  // namespace
}  // namespace zarvo
