// The start of a game from a panel, and the pickers that a panel opens.
#include "ui/panel/panel_fixture.h"
#include "ui/pickers/file_picker.h"
#include "ui/pickers/folder_picker.h"

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
    if (panel.games->lstRom != nullptr) panel.favourites->Add(panel.games->lstRom->Text());
    panel.favourites->lstPref->SetListIndex(0);
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
    EXPECT_EQ(Keys(at.emulator), "(none)") << "a start saves no record";
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
    std::string store;
    const char* runs_with;
  };
  const Case cases[] = {
      {"", "-screenmode 0"},
      {R"("Bubble Bobble","C:\Emu\Raine\Roms",5,0,0,0,0)", "-screenmode 0"},
      {R"("Rainbow Islands","C:\Emu\Raine\Roms",6,0,0,0,0)", "-screenmode VB3"},
      {R"("[DEFAULT]","C:\Emu\Raine\Roms",7,0,0,0,0)", "-screenmode VBAF"},
  };
  PutEmulator(Emulator::kRaine, "rainbow");
  EmulatorPanel& panel = OpenConfigured(Emulator::kRaine, {"Rainbow Islands"});
  Press(panel.imgButSet);
  PressEntry(panel.games->lstRom, 0);
  for (const Case& at : cases) {
    SCOPED_TRACE(at.store);
    std::filesystem::remove(drive_.Host(SetPath(Emulator::kRaine)));
    if (!at.store.empty()) PutSettings(Emulator::kRaine, at.store + "\r\n");
    Combo(panel, "cboScreenMode")->SetListIndex(2);
    panel.picSettings->txtRomPath->SetText(R"(C:\Mine)");
    runs_.clear();
    Enter(panel.favourites->lstPref);
    EXPECT_THAT(runs_, ElementsAre(testing::HasSubstr(at.runs_with)));
    EXPECT_EQ(Current(panel, "cboScreenMode"), R"(Bubble Bobble 2 C:\Mine)");
    if (!at.store.empty()) {
      EXPECT_EQ(drive_.Read(SetPath(Emulator::kRaine)), at.store + "\r\n");
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

TEST_F(StartTest, WhatIsMissingLeadsToItsPicker) {
  const char* const searches[] = {"Aliens (aliens.zip)", "1941 (1941.zip)",
                                  "Bubble Bobble (bublbobl.zip)", "Aurail (aurail.zip)",
                                  "Battle Chopper (bchopper.zip)"};
  drive_.MakeFolder(R"(C:\Found)");
  for (const EmulatorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.word);
    const std::string word(profile.section_word);
    const bool is_raine = profile.emulator == Emulator::kRaine;
    const auto enter = [&]() -> EmulatorPanel& {
      EmulatorPanel& panel = OpenConfigured(profile.emulator);
      Enter(panel.games->lstRom ? panel.games->lstRom : panel.favourites->lstPref);
      return panel;
    };
    std::string shown;
    {
      const ModalPlay<FilePicker> play([&](FilePicker& picker) {
        shown = picker.lblSelExeHide + " " + picker.txtShowFiltri->Text() + " " + picker.Caption();
        picker.cmdCancel->click();
      });
      EXPECT_EQ(Pages(enter()), profile.emulator == Emulator::kSystem16 ? "snap conf" : "conf");
    }
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(std::string(is_raine ? "! [Warning! - No EXE found!] " : "! ") +
                            "The emulator could not be found in the specified path|Please check "
                            "the paths in section CONF"));
    EXPECT_EQ(shown, word + " *.exe Emulator's Full Path");

    sections_.CloseOpenPanels();
    PutEmulator(profile.emulator, "other");
    const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
      shown = picker.lblSelDirHide + " " + picker.Caption() + " at " + picker.dirSelDir->Path();
      EXPECT_THAT(picker.Caption(), testing::HasSubstr("(" + picker.txtPattern->Text() + ")"));
      picker.OpenAt('C', R"(C:\Found)");
      picker.cmdSeleziona->click();
    });
    const EmulatorPanel& panel = enter();
    EXPECT_EQ(Pages(panel), profile.emulator == Emulator::kMame ? "settings" : "snap settings");
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(std::string(is_raine ? "! [Warning! - No Rom found!] " : "! ") +
                            "Rom not found in the specified directory!||1) Check if the path is "
                            "correct!|2) Check if you have the rom!|3) Check if it has the right "
                            "name!"));
    EXPECT_EQ(shown, word + "SETTINGS Search Rom for " +
                         searches[static_cast<int>(profile.emulator)] + R"( at C:\Emu\)" +
                         std::string(profile.word) + R"(\Roms)");
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
    Emulator emulator;
    Label* ConfPage::*button;
    const char* cfg;  // the lines of the configuration file
    std::string shown;
  };
  const auto exe = &ConfPage::cmdSfoglia;
  const auto roms = &ConfPage::cmdSelDir;
  const auto snaps = &ConfPage::cmdDirSnap;
  const Case cases[] = {
      {Emulator::kMame, exe, "C:\\Emu\\a.exe", "MAME *.exe C:\\Emu"},
      {Emulator::kMame, exe, "C:\\No\\a.exe", "MAME *.exe here"},
      {Emulator::kM72, exe, "|", "M72 *.exe here"},
      // The drive is that of the rom folder, or that of the executable.
      {Emulator::kMame, roms, "Q:\\a.exe|C:\\Emu", "MAMEROM *.zip C:\\Emu"},
      {Emulator::kRaine, roms, "Q:\\a.exe|C:\\Emu", "RAINEROM *.zip here"},
      // Some have a second folder to look at.
      {Emulator::kCallus, roms, "C:\\a.exe|C:\\No||GIF|C:\\Emu", "CALLUSROM *.zip here"},
      {Emulator::kM72, roms, "C:\\a.exe|C:\\No||GIF|C:\\Emu", "M72ROM *.zip C:\\Emu\\Ziproms"},
      // The drive is that of the emulator, or that of the snaps.
      {Emulator::kMame, snaps, "||C:\\Emu|GIF|Q:\\m", "MAMESNAP *.gif here"},
      {Emulator::kSystem16, snaps, "||C:\\Emu|JPG|Q:\\m", "SYSTEM16SNAP *.jpg C:\\Emu"},
      {Emulator::kCallus, snaps, "||C:\\No|BMP||", "CALLUSSNAP *.bmp here"},
  };
  drive_.MakeFolder(R"(C:\Emu\Ziproms)");
  for (const Case& at : cases) {
    drive_.Write(CfgPath(at.emulator), Lines(Split(at.cfg, "|")));
    EmulatorPanel& panel = Open(at.emulator);
    const std::string current = files_.CurrentFolder();
    std::string shown;
    const auto show = [&](const std::string& word, const TextBox* pattern,
                          const FolderList* folders) {
      const std::string folder = folders->Path();
      shown = word + " " + pattern->Text() + " " + (folder == current ? "here" : folder);
    };
    if (at.button == exe) {
      const ModalPlay<FilePicker> play([&](FilePicker& picker) {
        show(picker.lblSelExeHide, picker.txtShowFiltri, picker.dirSelExe);
        picker.cmdCancel->click();
      });
      Press(panel.picConf->*at.button);
    } else {
      const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
        show(picker.lblSelDirHide, picker.txtPattern, picker.dirSelDir);
        picker.cmdCancel->click();
      });
      Press(panel.picConf->*at.button);
    }
    EXPECT_EQ(shown, at.shown) << at.cfg;
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
  const std::string odd[] = {R"(C:\a,b)", R"(C:\a~b)", R"(C:\)" + std::string(88, 'x')};
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
  const std::string longest = R"(C:\)" + std::string(87, 'x');
  sections_.SetGameRomFolder(Emulator::kCallus, longest);
  EXPECT_EQ(panel.picSettings->txtRomPath->Text(), longest);
}

}  // namespace
}  // namespace zarvo
