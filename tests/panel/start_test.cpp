// The start of a game from a panel, and the pickers that a panel opens.
#include "panel/panel_fixture.h"
#include "pickers/file_picker.h"
#include "pickers/folder_picker.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class StartTest : public PanelTest {
 protected:
  // The emulator's program and own rom folder, and an archive in the configured rom folder,
  // C:\Emu\<Emu>\Roms.
  void PutEmulator(Emulator emulator, std::string_view rom) {
    const std::string word(ProfileOf(emulator).word);
    drive_.Write(R"(C:\Emu\)" + word + R"(\)" + word + ".exe", "");
    drive_.MakeFolder(R"(C:\Emu\)" + word + std::string(ProfileOf(emulator).rom_sub_folder));
    drive_.Write(R"(C:\Emu\)" + word + R"(\Roms\)" + std::string(rom) + ".zip", "archive");
  }
  static void Enter(ListBox* list) { PressKey(list, Qt::Key_Return); }
  static void DoubleClick(ListBox* list) {
    DoubleClickMouse(list->viewport(), list->EntryRect(list->ListIndex()).center());
  }
};

TEST_F(StartTest, EnterAndDoubleClickRunTheBatchFile) {
  struct Case {
    Emulator emulator;
    const char* rom;
    std::string arguments;
  };
  const Case cases[] = {
      {Emulator::kMame, "aliens", " aliens -ignorecfg -soundcard 1"},
      {Emulator::kCallus, "1941",
       " 1941 -resv 640 480 -res 640 480 -frameskip AUTO -sndrate 22050 -setinput 1 KEY1"
       " -setinput 2 KEY1 -setinput 3 KEY1 -setinput 4 KEY1"},
      {Emulator::kRaine, "bublbobl",
       " -game bublbobl -nogui -screenmode 0 -screenx 320 -screeny 200 -joystick -1"},
      {Emulator::kSystem16, "aurail",
       " aurail -RX 320 -RY 240 -SCANLINES -NOTITLE -SOUNDCARD 0 -R 22050 -JOYTYPE 3"},
      {Emulator::kM72, "bchopper", " bchopper -r 22050"},
  };
  for (const Case& at : cases) {
    const std::string word(ProfileOf(at.emulator).word);
    SCOPED_TRACE(word);
    PutEmulator(at.emulator, at.rom);
    EmulatorPanel& panel = OpenConfigured(at.emulator);
    if (panel.games->lstRom != nullptr) {
      panel.favourites->Add(panel.games->lstRom->Text());
      panel.favourites->lstPref->SetListIndex(0);
    }
    const std::string run = R"(C:\Emu\)" + word + R"(> C:\Emu\)" + word + R"(\)" + word + ".exe" +
                            at.arguments + "\r\n";
    for (ListBox* const list : {panel.games->lstRom, panel.favourites->lstPref}) {
      if (list == nullptr) continue;
      for (const auto start : {&StartTest::Enter, &StartTest::DoubleClick}) {
        runs_.clear();
        start(list);
        EXPECT_THAT(runs_, ElementsAre(run));
        EXPECT_FALSE(drive_.Exists(R"(C:\Emu\)" + word + R"(\lancia.bat)"));
      }
    }
    EXPECT_THAT(Keys(at.emulator), ElementsAre("(none)")) << "a start saves no record";
    EXPECT_EQ(Pages(panel), "img snap");
  }
}

// Enter takes the stored record over unsaved changes; the first press of a double click on the
// settings page has saved them.
TEST_F(StartTest, TheStoredRecordRuns) {
  PutEmulator(Emulator::kRaine, "bublbobl");
  PutSettings(Emulator::kRaine, "\"Bubble Bobble\",\"C:\\Emu\\Raine\\Roms\",4,0,0,0,0\r\n");
  EmulatorPanel& panel = OpenConfigured(Emulator::kRaine);
  Press(panel.imgButSet);
  ComboBox* const mode = Combo(panel, "cboScreenMode");
  mode->SetListIndex(1);
  std::filesystem::remove(drive_.Host(CfgPath(Emulator::kRaine)));
  Enter(panel.games->lstRom);
  EXPECT_THAT(runs_, ElementsAre(testing::HasSubstr("-screenmode VB2B")));
  EXPECT_EQ(mode->ListIndex(), 4);
  EXPECT_TRUE(drive_.Exists(CfgPath(Emulator::kRaine)));
  mode->SetListIndex(1);
  DoubleClick(panel.games->lstRom);
  EXPECT_THAT(runs_.back(), testing::HasSubstr("-screenmode VGA"));
  EXPECT_EQ(mode->ListIndex(), 1);
}

// A game of the other list runs with its own options; those of the game in the caption come back,
// also the unsaved ones.
TEST_F(StartTest, AnotherGameBorrowsTheControls) {
  struct Case {
    const char* store;
    const char* runs_with;
  };
  const Case cases[] = {
      {"(none)", "-screenmode 0"},
      {"\"Bubble Bobble\",\"C:\\Emu\\Raine\\Roms\",5,0,0,0,0\r\n", "-screenmode 0"},
      {"\"Rainbow Islands\",\"C:\\Emu\\Raine\\Roms\",6,0,0,0,0\r\n", "-screenmode VB3"},
      {"\"[DEFAULT]\",\"C:\\Emu\\Raine\\Roms\",7,0,0,0,0\r\n", "-screenmode VBAF"},
  };
  PutEmulator(Emulator::kRaine, "rainbow");
  EmulatorPanel& panel = OpenConfigured(Emulator::kRaine, {"Rainbow Islands"});
  Press(panel.imgButSet);
  PressEntry(panel.games->lstRom, 0);
  ComboBox* const mode = Combo(panel, "cboScreenMode");
  for (const Case& at : cases) {
    SCOPED_TRACE(at.store);
    std::filesystem::remove(drive_.Host(SetPath(Emulator::kRaine)));
    if (std::string_view(at.store) != "(none)") PutSettings(Emulator::kRaine, at.store);
    mode->SetListIndex(2);
    panel.picSettings->txtRomPath->SetText(R"(C:\Mine)");
    runs_.clear();
    Enter(panel.favourites->lstPref);
    EXPECT_THAT(runs_, ElementsAre(testing::HasSubstr(at.runs_with)));
    EXPECT_EQ(Caption(panel), "Bubble Bobble");
    EXPECT_EQ(mode->ListIndex(), 2);
    EXPECT_EQ(panel.picSettings->txtRomPath->Text(), R"(C:\Mine)");
    if (std::string_view(at.store) != "(none)") {
      EXPECT_EQ(drive_.Read(SetPath(Emulator::kRaine)), at.store);
    }
  }
}

TEST_F(StartTest, EnterWithoutAGame) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame);
  std::filesystem::remove(drive_.Host(CfgPath(Emulator::kMame)));
  Enter(panel.favourites->lstPref);
  EXPECT_FALSE(drive_.Exists(CfgPath(Emulator::kMame))) << "it ends at once";
  PutEmulator(Emulator::kMame, "aliens");
  panel.games->Fill(GameState::kAllSupported);
  panel.TakeEmulator(R"(C:\Emu\Mame\Mame.exe)", R"(C:\Emu\Mame)");
  Enter(panel.games->lstRom);
  EXPECT_THAT(TakeBoxes(), ElementsAre(StartsWith("! This rom was not found")));
  EXPECT_TRUE(drive_.Exists(CfgPath(Emulator::kMame)));
  EXPECT_THAT(runs_, IsEmpty());
}

TEST_F(StartTest, AMissingEmulatorLeadsToItsPicker) {
  for (const EmulatorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.word);
    EmulatorPanel& panel = OpenConfigured(profile.emulator);
    std::string shown;
    const ModalPlay<FilePicker> play([&](FilePicker& picker) {
      shown = picker.lblSelExeHide + " " + picker.txtShowFiltri->Text() + " " + picker.Caption();
      picker.cmdCancel->click();
    });
    Enter(panel.games->lstRom ? panel.games->lstRom : panel.favourites->lstPref);
    const std::string title =
        profile.emulator == Emulator::kRaine ? "[Warning! - No EXE found!] " : "";
    EXPECT_THAT(TakeBoxes(),
                ElementsAre("! " + title +
                            "The emulator could not be found in the specified path|Please check "
                            "the paths in section CONF"));
    EXPECT_EQ(shown, std::string(profile.section_word) + " *.exe Emulator's Full Path");
    EXPECT_EQ(Pages(panel), profile.emulator == Emulator::kSystem16 ? "snap conf" : "conf");
    EXPECT_THAT(runs_, IsEmpty());
  }
}

TEST_F(StartTest, AMissingRomLeadsToItsPicker) {
  const char* const searches[] = {"Aliens (aliens.zip)", "1941 (1941.zip)",
                                  "Bubble Bobble (bublbobl.zip)", "Aurail (aurail.zip)",
                                  "Battle Chopper (bchopper.zip)"};
  drive_.MakeFolder(R"(C:\Found)");
  for (const EmulatorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.word);
    PutEmulator(profile.emulator, "other");
    EmulatorPanel& panel = OpenConfigured(profile.emulator);
    std::string shown;
    const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
      shown = picker.lblSelDirHide + " " + picker.Caption() + " at " + picker.dirSelDir->Path();
      EXPECT_THAT(picker.Caption(), testing::HasSubstr("(" + picker.txtPattern->Text() + ")"));
      picker.OpenAt('C', R"(C:\Found)");
      picker.cmdSeleziona->click();
    });
    Enter(panel.games->lstRom ? panel.games->lstRom : panel.favourites->lstPref);
    const std::string title =
        profile.emulator == Emulator::kRaine ? "[Warning! - No Rom found!] " : "";
    EXPECT_THAT(TakeBoxes(),
                ElementsAre("! " + title +
                            "Rom not found in the specified directory!||1) Check if the path is "
                            "correct!|2) Check if you have the rom!|3) Check if it has the right "
                            "name!"));
    EXPECT_EQ(shown, std::string(profile.section_word) + "SETTINGS Search Rom for " +
                         searches[static_cast<int>(profile.emulator)] + R"( at C:\Emu\)" +
                         std::string(profile.word) + R"(\Roms)");
    EXPECT_EQ(Pages(panel), profile.emulator == Emulator::kMame ? "settings" : "snap settings");
    EXPECT_EQ(panel.picSettings->txtRomPath->Text(), R"(C:\Found)");
    EXPECT_THAT(runs_, IsEmpty());
  }
}

TEST_F(StartTest, TheRomPickerOfTheSettingsPageKnowsTheParentsOfMame) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame);
  const char* const captions[] = {"Search Rom for Aliens (aliens.zip)",
                                  "Search Rom for Aliens (JP) (aliensj.zip;aliens.zip)",
                                  "Search Rom for Metal Slug (mslug.zip)"};
  for (int game = 0; game < 3; ++game) {
    PressEntry(panel.games->lstRom, game);
    const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
      EXPECT_EQ(picker.Caption(), captions[game]);
      picker.cmdCancel->click();
    });
    Press(panel.picSettings->cmdSelDir);
  }
  panel.picSettings->txtRomPath->SetText("C:\\x");
  panel.picConf->txtOptRomPath->SetText("C:\\unsaved");
  Press(panel.picSettings->cmdDirRomDefault);
  EXPECT_EQ(panel.picSettings->txtRomPath->Text(), R"(C:\Emu\Mame\Roms)") << "as the file has it";
}

// Where the pickers of the configuration page open. Q is no drive.
TEST_F(StartTest, ThePickersOfTheConfigurationPage) {
  struct Case {
    const char* name;
    Emulator emulator;
    Label* ConfPage::*button;
    std::vector<std::string> lines;  // of the configuration file
    std::string word, pattern, folder;
  };
  const std::string here = "(the current folder)";
  const Case cases[] = {
      {"exe",
       Emulator::kMame,
       &ConfPage::cmdSfoglia,
       {R"(C:\Emu\a.exe)"},
       "MAME",
       "*.exe",
       R"(C:\Emu)"},
      {"exe gone",
       Emulator::kMame,
       &ConfPage::cmdSfoglia,
       {R"(C:\No\a.exe)"},
       "MAME",
       "*.exe",
       here},
      {"no exe", Emulator::kM72, &ConfPage::cmdSfoglia, {""}, "M72", "*.exe", here},
      {"drive of the rom folder",
       Emulator::kMame,
       &ConfPage::cmdSelDir,
       {R"(Q:\a.exe)", R"(C:\Emu)"},
       "MAMEROM",
       "*.zip",
       R"(C:\Emu)"},
      {"drive of the exe",
       Emulator::kRaine,
       &ConfPage::cmdSelDir,
       {R"(Q:\a.exe)", R"(C:\Emu)"},
       "RAINEROM",
       "*.zip",
       here},
      {"no second folder",
       Emulator::kCallus,
       &ConfPage::cmdSelDir,
       {R"(C:\a.exe)", R"(C:\No)", "", "GIF", R"(C:\Emu)"},
       "CALLUSROM",
       "*.zip",
       here},
      {"second folder",
       Emulator::kM72,
       &ConfPage::cmdSelDir,
       {R"(C:\a.exe)", R"(C:\No)", "", "GIF", R"(C:\Emu)"},
       "M72ROM",
       "*.zip",
       R"(C:\Emu\Ziproms)"},
      {"drive of the emulator",
       Emulator::kMame,
       &ConfPage::cmdDirSnap,
       {"", "", R"(C:\Emu)", "GIF", R"(Q:\m)"},
       "MAMESNAP",
       "*.gif",
       here},
      {"drive of the snaps",
       Emulator::kSystem16,
       &ConfPage::cmdDirSnap,
       {"", "", R"(C:\Emu)", "JPG", R"(Q:\m)"},
       "SYSTEM16SNAP",
       "*.jpg",
       R"(C:\Emu)"},
      {"bitmaps",
       Emulator::kCallus,
       &ConfPage::cmdDirSnap,
       {"", "", R"(C:\No)", "BMP", ""},
       "CALLUSSNAP",
       "*.bmp",
       here},
  };
  drive_.MakeFolder(R"(C:\Emu\Ziproms)");
  for (const Case& at : cases) {
    SCOPED_TRACE(at.name);
    drive_.Write(CfgPath(at.emulator), Lines(at.lines));
    EmulatorPanel& panel = Open(at.emulator);
    const std::string current = files_.CurrentFolder();
    const auto check = [&](const std::string& word, const TextBox* pattern,
                           const FolderList* folders) {
      EXPECT_EQ(word, at.word);
      EXPECT_EQ(pattern->Text(), at.pattern);
      EXPECT_EQ(folders->Path(), at.folder == here ? current : at.folder);
    };
    if (at.button == &ConfPage::cmdSfoglia) {
      const ModalPlay<FilePicker> play([&](FilePicker& picker) {
        check(picker.lblSelExeHide, picker.txtShowFiltri, picker.dirSelExe);
        picker.cmdCancel->click();
      });
      Press(panel.picConf->*at.button);
    } else {
      const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
        check(picker.lblSelDirHide, picker.txtPattern, picker.dirSelDir);
        picker.cmdCancel->click();
      });
      Press(panel.picConf->*at.button);
    }
    sections_.CloseOpenPanels();
  }
}

// What a picker writes reaches the controls, and the configuration file where it can be kept there.
TEST_F(StartTest, WhatThePickersWrite) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kCallus);
  sections_.SetRomFolder(Emulator::kCallus, R"(C:\R)");
  sections_.SetSnapFolder(Emulator::kCallus, R"(C:\S)");
  sections_.SetEmulator(Emulator::kCallus, R"(C:\E\c.exe)", R"(C:\E)");
  sections_.SetGameRomFolder(Emulator::kCallus, R"(C:\G)");
  sections_.SaveCfg(Emulator::kCallus);
  EXPECT_EQ(drive_.Read(CfgPath(Emulator::kCallus)),
            Lines({R"(C:\E\c.exe)", R"(C:\R)", R"(C:\S)", "GIF", R"(C:\E)", "up"}));
  EXPECT_EQ(panel.picSettings->txtRomPath->Text(), R"(C:\G)");
  const std::string odd[] = {R"(C:\a,b)", R"(C:\a~b)", R"(C:\)" + std::string(90, 'x')};
  for (const std::string& folder : odd) {
    sections_.SetRomFolder(Emulator::kCallus, folder);
    sections_.SetGameRomFolder(Emulator::kCallus, folder);
    EXPECT_EQ(TakeBoxes(), std::vector(2, "! " + folder +
                                              "|This folder can't be kept in the settings of a "
                                              "game. Please choose one without comma, tilde and "
                                              "quotation mark, of at most 90 characters."));
    EXPECT_EQ(panel.picConf->txtOptRomPath->Text(), R"(C:\R)");
    EXPECT_EQ(panel.picSettings->txtRomPath->Text(), R"(C:\G)");
  }
}

}  // namespace
}  // namespace zarvo
