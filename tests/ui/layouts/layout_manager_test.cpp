// The layout manager: opening, saving and loading layouts; adding, renaming and removing them.
#include "ui/layouts/layout_manager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWindow>
#include <map>
#include <set>

#include "fakes/emulators.h"
#include "fakes/failing_files.h"
#include "fakes/key_press.h"
#include "fakes/modal.h"
#include "fakes/temp_drive.h"
#include "ui/layouts/layout_window.h"
#include "ui/shell/looks.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Panels and a main window that are nothing but their places, and write down what is asked of them.
class RecordingSections : public SectionHost, public MainPlace {
 public:
  // A panel that stands open.
  void Stand(const Emulator& emulator, const TwipRect& place) { places[&emulator] = place; }

  [[nodiscard]] bool IsOpen(const Emulator& emulator) const override {
    return places.contains(&emulator);
  }
  void OpenSection(const Emulator& emulator) override {
    told.push_back("open " + std::string(emulator.SectionWord()));
    if (!without_data_file.contains(&emulator)) Stand(emulator, {});
  }
  bool SaveOpenPanels() override { return true; }
  bool CloseOpenPanels() override {
    told.emplace_back("close all");
    places.clear();
    return true;
  }
  [[nodiscard]] std::optional<TwipRect> PanelPlace(const Emulator& emulator) const override {
    const auto found = places.find(&emulator);
    return found == places.end() ? std::nullopt : std::optional(found->second);
  }
  void SetPanelPlace(const Emulator& emulator, const TwipRect& place) override {
    if (places.contains(&emulator)) places[&emulator] = place;
  }
  void ResetClearLabels() override {}
  [[nodiscard]] int MainLeft() const override { return main.left; }
  [[nodiscard]] int MainTop() const override { return main.top; }
  void SetMainPlace(int top, int left) override {
    told.emplace_back("main");
    main = {.left = left, .top = top};
  }
  void ResetCommands() override {}

  std::set<const Emulator*> without_data_file;
  std::map<const Emulator*, TwipRect> places;
  TwipRect main{.left = 500, .top = 400};
  std::vector<std::string> told;
};

constexpr std::string_view kTwoLayouts =
    "[Evening]\r\nMAIN,400,500\r\nMAME,10,20,6345,7260\r\nRAINE,30,40,2415,4620\r\n-\r\n"
    "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n";

std::string Ini(int on_top, int autoload, const std::string& name) {
  return "[Layouts]\r\nLayoutAlwaysOnTop = " + std::to_string(on_top) +
         "\r\nAutoloadOnStartup = " + std::to_string(autoload) + "\r\nDefaultLayout = " + name +
         "\r\n";
}

class LayoutManagerTest : public testing::Test {
 protected:
  LayoutManagerTest() { folders_.ProgramFolder = R"(C:\Zarvo)"; }
  void TearDown() override { EXPECT_THAT(Take(boxes_), IsEmpty()); }

  // The manager over these files, on the screen.
  LayoutManager& Open(std::string_view layouts, std::string_view ini) {
    drive_.Write(R"(C:\Zarvo\layouts.dat)", layouts);
    drive_.Write(R"(C:\Zarvo\zarvo.ini)", ini);
    return Open();
  }
  LayoutManager& Open() {
    window_ = MakeLayoutWindow(tools_);
    window_->ShowModeless();
    return dynamic_cast<LayoutManager&>(*window_);
  }
  [[nodiscard]] std::string Layouts() const { return drive_.Read(R"(C:\Zarvo\layouts.dat)"); }

  // What the window shows: the switches that are on, "default" if that can be chosen, the layouts,
  // the chosen one, the default one, the panels of the chosen one, their sizes.
  static std::string Look(const LayoutManager& manager) {
    EXPECT_EQ(Entries(manager.cboListaLayout2), Entries(manager.cboListaLayout));
    return std::string(manager.chkAlwaysOnTop->Value() == 1 ? "top " : "") +
           (manager.chkEnableAutoload->Value() == 1 ? "autoload " : "") +
           (manager.cboListaLayout2->Enabled() ? "default " : "") +
           Entries(manager.cboListaLayout) + "; " + manager.cboListaLayout->Text() + "; " +
           manager.cboListaLayout2->Text() + "; " + Entries(manager.lstEmulatori) + "; " +
           Entries(manager.lstEmulatoriSize);
  }

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
  ProgramFolders folders_;
  RecordedBoxes boxes_;
  RecordingSections sections_;
  LayoutTools tools_{files_, folders_, boxes_, sections_, sections_};
  std::unique_ptr<Window> window_;
};

TEST_F(LayoutManagerTest, OpensWithWhatTheFilesHoldAndBreaksOffWhereTheyDo) {
  struct Case {
    std::string ini;
    const char* look;
  };
  const Case cases[] = {
      {Ini(0, 1, "Night"),
       "autoload default Evening|Night; Evening; Night; MAME|RAINE; Large|Small"},
      {Ini(1, 1, "Gone"), "top autoload default Evening|Night; ; Night; ; "},
      {Ini(0, 1, ""), "Evening|Night; Evening; ; MAME|RAINE; Large|Small"},
  };
  EXPECT_EQ(Look(Open()), "; ; ; ; ") << "without a file";
  drive_.Write(R"(C:\Zarvo\layouts.dat)", kTwoLayouts);
  EXPECT_EQ(Look(Open()), "Evening|Night; ; ; ; ") << "without zarvo.ini";
  for (const Case& at : cases) EXPECT_EQ(Look(Open(kTwoLayouts, at.ini)), at.look);
  EXPECT_EQ(window_->Caption(), "Zarvo - Layouts Manager");
}

TEST_F(LayoutManagerTest, SaveTakesTheWindowsAsTheyStand) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  sections_.main = {.left = 45000, .top = -401};  // too far out for the numbers of the file
  sections_.Stand(kM72, {.left = 8, .top = 7, .width = 6345, .height = 4620});
  sections_.Stand(kCallus, {.left = 2, .top = 1, .width = 2415, .height = 7260});
  manager.cmdSaveLayout->click();
  EXPECT_EQ(Layouts(),
            "[Evening]\r\nMAIN,-401,32767\r\nCALLUS,1,2,2415,7260\r\nM72,7,8,6345,4620\r\n-\r\n"
            "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n");
  EXPECT_EQ(Look(manager), "Evening|Night; Evening; ; CALLUS|M72; Medium") << "no known size";
}

TEST_F(LayoutManagerTest, LoadClosesAllPanelsAndOpensThoseOfTheLayout) {
  LayoutManager& manager =
      Open("[A]\r\nMAIN,7,8\r\nMAME,1,2,6345,7260\r\nGHOST,1,2,3,4\r\nM72,5,6,6345,4620\r\n-\r\n",
           Ini(0, 0, ""));
  sections_.Stand(kRaine, {});
  sections_.without_data_file = {&kMame};
  manager.cmdLoadLayout->click();
  EXPECT_THAT(sections_.told, ElementsAre("close all", "main", "open MAME", "open M72"));
  EXPECT_EQ(sections_.main, (TwipRect{.left = 8, .top = 7}));
  EXPECT_THAT(
      sections_.places,
      ElementsAre(std::pair(&kM72, TwipRect{.left = 6, .top = 5, .width = 6345, .height = 4620})));
  EXPECT_FALSE(manager.IsUnloaded());
}

TEST_F(LayoutManagerTest, ADamagedLayoutIsToldAndClosesNothing) {
  Open("[A]\r\nMAIN,7,8\r\nMAME,1,2,many,7260\r\n-\r\n", Ini(0, 0, "")).cmdLoadLayout->click();
  EXPECT_THAT(Take(boxes_), ElementsAre(R"(! layouts.dat: the layout "A" is damaged)"));
  EXPECT_THAT(sections_.told, IsEmpty());
}

TEST_F(LayoutManagerTest, CloseAloneWritesTheSettings) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  manager.chkAlwaysOnTop->SetValue(1);
  manager.chkEnableAutoload->SetValue(1);
  manager.cboListaLayout2->SetListIndex(1);
  PressKey(manager.chkEnableAutoload, Qt::Key_Escape);
  EXPECT_TRUE(manager.IsUnloaded());
  EXPECT_EQ(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), Ini(0, 0, ""));
  manager.cmdOk->click();
  EXPECT_EQ(Look(Open()),
            "top autoload default Evening|Night; Evening; Night; MAME|RAINE; Large|Small");
}

TEST_F(LayoutManagerTest, TheAutoloadAppliesTheLayoutOfTheStartAsFarAsItCan) {
  drive_.Write(R"(C:\Zarvo\layouts.dat)",
               "[A]\r\nMAIN,8,9\r\nM72,1,2,3,4\r\nMAME,1,2,3,99999\r\n-\r\n");
  for (const int on : {0, 1}) {
    drive_.Write(R"(C:\Zarvo\zarvo.ini)", Ini(0, on, "A"));
    EXPECT_THAT(sections_.told, IsEmpty());
    AutoloadLayout(tools_);
  }
  EXPECT_THAT(sections_.told, ElementsAre("main", "open M72"));
  EXPECT_EQ(sections_.main, (TwipRect{.left = 9, .top = 8}));
}

TEST_F(LayoutManagerTest, WithoutALayoutOnlyAddDoesAnything) {
  LayoutManager& manager = Open();
  for (PushButton* button :
       {manager.cmdRemove, manager.cmdRename, manager.cmdLoadLayout, manager.cmdSaveLayout}) {
    button->click();
  }
  EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\layouts.dat)"));
  EXPECT_THAT(sections_.told, IsEmpty());
  Name(manager.cmdAdd, "First");
  EXPECT_EQ(Layouts(), "[First]\r\n-\r\n");
  EXPECT_EQ(Look(manager), "First; First; First; ; ");
}

TEST_F(LayoutManagerTest, TheDialogAsksForANameByMode) {
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

TEST_F(LayoutManagerTest, AddAppendsTheNameAndMakesTheFirstTheDefault) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 1, "Night"));
  Name(manager.cmdAdd, "Weekend");
  EXPECT_EQ(Layouts(), std::string(kTwoLayouts) + "[Weekend]\r\n-\r\n");
  EXPECT_EQ(Look(manager), "autoload default Evening|Night|Weekend; Weekend; Evening; ; ");
}

TEST_F(LayoutManagerTest, ATakenNameIsRefused) {
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

TEST_F(LayoutManagerTest, ANameThatTheFileCannotHoldIsRefused) {
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

TEST_F(LayoutManagerTest, RenameMovesTheNameToTheEndAndKeepsThePlaceInTheFile) {
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

TEST_F(LayoutManagerTest, RemoveSelectsTheNeighbour) {
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

TEST_F(LayoutManagerTest, AFailedWriteIsToldAndTheListsShowTheFile) {
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

TEST_F(LayoutManagerTest, WhatCantBeReadIsToldAndClosingLeavesIt) {
  constexpr std::string_view kStays =
      "|zarvo.ini stays as it is, and what you change isn't saved in it until it can be read.";
  const std::string ini = Ini(1, 1, "Night");
  for (const std::string file : {"layouts.dat", "zarvo.ini"}) {
    files_.Fail(FileStep::kOpen, file, "Input/output error");
    LayoutManager& manager = Open(kTwoLayouts, ini);
    const std::string told = "! " + file + ": Input/output error";
    EXPECT_THAT(Take(boxes_), ElementsAre(told));
    files_.Heal();
    manager.cmdOk->click();
    EXPECT_THAT(Take(boxes_), ElementsAre(told + std::string(kStays)));
    EXPECT_EQ(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), ini);
    EXPECT_EQ(Look(Open()),
              "top autoload default Evening|Night; Evening; Night; MAME|RAINE; Large|Small");
  }
}

TEST_F(LayoutManagerTest, TheWindowIsOutOfTheTopMostBandWhileTheDialogStands) {
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
