// The start of a game from a panel, and the pickers that a panel opens.
#include "fakes/emulators.h"
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
  void PutEmulator(const Emulator& emulator, std::string_view rom) {
    const std::string word(emulator.word);
    drive_.Write(R"(C:\Emu\)" + word + R"(\)" + word + ".exe", "");
    drive_.MakeFolder(R"(C:\Emu\)" + word + std::string(emulator.rom_sub_folder));
    drive_.Write(R"(C:\Emu\)" + word + R"(\Roms\)" + std::string(rom) + ".zip", "archive");
  }
  static void Enter(ListBox* list) { PressKey(list, Qt::Key_Return); }
  static void DoubleClick(ListBox* list) {
    DoubleClickMouse(list->viewport(), list->EntryRect(list->ListIndex()).center());
  }
};

TEST_F(StartTest, EnterAndDoubleClickRunTheBatchFile) {
  struct Case {
    const Emulator& emulator;
    const char* rom;
    std::string arguments;
  };
  const Case cases[] = {
      {kMame, "aliens", " aliens -ignorecfg -soundcard 1"},
      {kCallus, "1941",
       " 1941 -resv 640 480 -res 640 480 -frameskip AUTO -sndrate 22050 -setinput 1 KEY1"
       " -setinput 2 KEY1 -setinput 3 KEY1 -setinput 4 KEY1"},
      {kRaine, "bublbobl",
       " -game bublbobl -nogui -screenmode 0 -screenx 320 -screeny 200 -joystick -1"},
      {kSystem16, "aurail",
       " aurail -RX 320 -RY 240 -SCANLINES -NOTITLE -SOUNDCARD 0 -R 22050 -JOYTYPE 3"},
      {kM72, "bchopper", " bchopper -r 22050"},
  };
  for (const Case& at : cases) {
    const std::string word(at.emulator.word);
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
  PutEmulator(kRaine, "bublbobl");
  PutSettings(kRaine, "\"Bubble Bobble\",\"C:\\Emu\\Raine\\Roms\",4,0,0,0,0\r\n");
  EmulatorPanel& panel = OpenConfigured(kRaine);
  Press(panel.pages->imgButSet);
  ComboBox* const mode = Combo(panel, "cboScreenMode");
  mode->SetListIndex(1);
  std::filesystem::remove(drive_.Host(CfgPath(kRaine)));
  Enter(panel.games->lstRom);
  EXPECT_THAT(runs_, ElementsAre(testing::HasSubstr("-screenmode VB2B")));
  EXPECT_EQ(mode->ListIndex(), 4);
  EXPECT_TRUE(drive_.Exists(CfgPath(kRaine)));
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
  PutEmulator(kRaine, "rainbow");
  EmulatorPanel& panel = OpenConfigured(kRaine, {"Rainbow Islands"});
  Press(panel.pages->imgButSet);
  PressEntry(panel.games->lstRom, 0);
  for (const Case& at : cases) {
    SCOPED_TRACE(at.store);
    std::filesystem::remove(drive_.Host(SetPath(kRaine)));
    if (!at.store.empty()) PutSettings(kRaine, at.store + "\r\n");
    Combo(panel, "cboScreenMode")->SetListIndex(2);
    panel.pages->picSettings->txtRomPath->SetText(R"(C:\Mine)");
    runs_.clear();
    Enter(panel.favourites->lstPref);
    EXPECT_THAT(runs_, ElementsAre(testing::HasSubstr(at.runs_with)));
    EXPECT_EQ(Current(panel, "cboScreenMode"), R"(Bubble Bobble 2 C:\Mine)");
    if (!at.store.empty()) {
      EXPECT_EQ(drive_.Read(SetPath(kRaine)), at.store + "\r\n");
    }
  }
}

TEST_F(StartTest, EnterWithoutAGame) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  std::filesystem::remove(drive_.Host(CfgPath(kMame)));
  Enter(panel.favourites->lstPref);
  EXPECT_FALSE(drive_.Exists(CfgPath(kMame))) << "it ends at once";
  PutEmulator(kMame, "aliens");
  panel.games->Fill(GameState::kAllSupported);
  panel.paths->TakeEmulator(R"(C:\Emu\Mame\Mame.exe)", R"(C:\Emu\Mame)");
  Enter(panel.games->lstRom);
  EXPECT_THAT(TakeBoxes(), ElementsAre(StartsWith("! This rom was not found")));
  EXPECT_TRUE(drive_.Exists(CfgPath(kMame)));
  EXPECT_THAT(runs_, IsEmpty());
}

TEST_F(StartTest, WhatIsMissingLeadsToItsPicker) {
  const struct {
    const Emulator& emulator;
    const char* search;
  } all[] = {{kMame, "Aliens (aliens.zip)"},
             {kCallus, "1941 (1941.zip)"},
             {kRaine, "Bubble Bobble (bublbobl.zip)"},
             {kSystem16, "Aurail (aurail.zip)"},
             {kM72, "Battle Chopper (bchopper.zip)"}};
  drive_.MakeFolder(R"(C:\Found)");
  for (const auto& [which, search] : all) {
    const Emulator& emulator = which;
    SCOPED_TRACE(emulator.word);
    const std::string word(emulator.SectionWord());
    const bool is_raine = emulator == kRaine;
    const auto enter = [&]() -> EmulatorPanel& {
      EmulatorPanel& panel = OpenConfigured(emulator);
      Enter(panel.games->lstRom ? panel.games->lstRom : panel.favourites->lstPref);
      return panel;
    };
    std::string shown;
    {
      const ModalPlay<FilePicker> play([&](FilePicker& picker) {
        shown = picker.lblSelExeHide + " " + picker.txtShowFiltri->Text() + " " + picker.Caption();
        picker.cmdCancel->click();
      });
      EXPECT_EQ(Pages(enter()), emulator == kSystem16 ? "snap conf" : "conf");
    }
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(std::string(is_raine ? "! [Warning! - No EXE found!] " : "! ") +
                            "The emulator could not be found in the specified path|Please check "
                            "the paths in section CONF"));
    EXPECT_EQ(shown, word + " *.exe Emulator's Full Path");

    sections_.CloseOpenPanels();
    PutEmulator(emulator, "other");
    const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
      shown =
          picker.lblSelDirHide + " " + picker.Caption() + " at " + picker.dirSelDir->Path().Text();
      EXPECT_THAT(picker.Caption(), testing::HasSubstr("(" + picker.txtPattern->Text() + ")"));
      picker.OpenAt('C', R"(C:\Found)");
      picker.cmdSeleziona->click();
    });
    const EmulatorPanel& panel = enter();
    EXPECT_EQ(Pages(panel), emulator == kMame ? "settings" : "snap settings");
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(testing::StartsWith(
                    std::string(is_raine ? "! [Warning! - No Rom found!] " : "! ") +
                    "Rom not found in the specified directory!||1) Check if the path is correct!|"
                    "2) Check if you have the rom!|3) Check if it has the right name!||Zarvo "
                    "looked for ")));
    EXPECT_EQ(shown, word + "SETTINGS Search Rom for " + search + R"( at C:\Emu\)" +
                         std::string(emulator.word) + R"(\Roms)");
    EXPECT_EQ(panel.pages->picSettings->txtRomPath->Text(), R"(C:\Found)");
    EXPECT_THAT(runs_, IsEmpty());
  }
}

TEST_F(StartTest, TheRomPickerOfTheSettingsPageKnowsTheParentsOfMame) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  const char* const captions[] = {"Search Rom for Aliens (aliens.zip)",
                                  "Search Rom for Aliens (JP) (aliensj.zip;aliens.zip)",
                                  "Search Rom for Metal Slug (mslug.zip)"};
  for (int game = 0; game < 3; ++game) {
    PressEntry(panel.games->lstRom, game);
    const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
      EXPECT_EQ(picker.Caption(), captions[game]);
      picker.cmdCancel->click();
    });
    Press(panel.pages->picSettings->cmdSelDir);
  }
  panel.pages->picSettings->txtRomPath->SetText("C:\\x");
  panel.pages->picConf->txtOptRomPath->SetText("C:\\unsaved");
  Press(panel.pages->picSettings->cmdDirRomDefault);
  EXPECT_EQ(panel.pages->picSettings->txtRomPath->Text(), R"(C:\Emu\Mame\Roms)")
      << "as the file has it";
}

// Where the pickers of the configuration page open. Q is no drive.
TEST_F(StartTest, ThePickersOfTheConfigurationPage) {
  struct Case {
    const Emulator& emulator;
    Label* ConfPage::*button;
    const char* cfg;  // the lines of the configuration file
    std::string shown;
  };
  const auto exe = &ConfPage::cmdSfoglia;
  const auto roms = &ConfPage::cmdSelDir;
  const auto snaps = &ConfPage::cmdDirSnap;
  const Case cases[] = {
      {kMame, exe, "C:\\Emu\\a.exe", "MAME *.exe C:\\Emu"},
      {kMame, exe, "C:\\No\\a.exe", "MAME *.exe here"},
      {kM72, exe, "|", "M72 *.exe here"},
      // The drive is that of the rom folder, or that of the executable.
      {kMame, roms, "Q:\\a.exe|C:\\Emu", "MAMEROM *.zip C:\\Emu"},
      {kRaine, roms, "Q:\\a.exe|C:\\Emu", "RAINEROM *.zip here"},
      // Some have a second folder to look at.
      {kCallus, roms, "C:\\a.exe|C:\\No||GIF|C:\\Emu", "CALLUSROM *.zip here"},
      {kM72, roms, "C:\\a.exe|C:\\No||GIF|C:\\Emu", "M72ROM *.zip C:\\Emu\\Ziproms"},
      // The drive is that of the emulator, or that of the snaps.
      {kMame, snaps, "||C:\\Emu|GIF|Q:\\m", "MAMESNAP *.gif here"},
      {kSystem16, snaps, "||C:\\Emu|JPG|Q:\\m", "SYSTEM16SNAP *.jpg C:\\Emu"},
      {kCallus, snaps, "||C:\\No|BMP||", "CALLUSSNAP *.bmp here"},
  };
  drive_.MakeFolder(R"(C:\Emu\Ziproms)");
  for (const Case& at : cases) {
    drive_.Write(CfgPath(at.emulator), Lines(Split(at.cfg, "|")));
    EmulatorPanel& panel = Open(at.emulator);
    const std::string current = files_.CurrentFolder().Text();
    std::string shown;
    const auto show = [&](const std::string& word, const TextBox* pattern,
                          const FolderList* folders) {
      const std::string folder = folders->Path().Text();
      shown = word + " " + pattern->Text() + " " + (folder == current ? "here" : folder);
    };
    if (at.button == exe) {
      const ModalPlay<FilePicker> play([&](FilePicker& picker) {
        show(picker.lblSelExeHide, picker.txtShowFiltri, picker.dirSelExe);
        picker.cmdCancel->click();
      });
      Press(panel.pages->picConf->*at.button);
    } else {
      const ModalPlay<FolderPicker> play([&](FolderPicker& picker) {
        show(picker.lblSelDirHide, picker.txtPattern, picker.dirSelDir);
        picker.cmdCancel->click();
      });
      Press(panel.pages->picConf->*at.button);
    }
    EXPECT_EQ(shown, at.shown) << at.cfg;
    sections_.CloseOpenPanels();
  }
}

// What a picker writes reaches the controls, and the configuration file where it can be kept there.
TEST_F(StartTest, WhatThePickersWrite) {
  EmulatorPanel& panel = OpenConfigured(kCallus);
  sections_.SetRomFolder(kCallus, R"(C:\R)");
  sections_.SetSnapFolder(kCallus, R"(C:\S)");
  sections_.SetEmulator(kCallus, R"(C:\E\c.exe)", R"(C:\E)");
  sections_.SetGameRomFolder(kCallus, R"(C:\G)");
  sections_.SaveCfg(kCallus);
  EXPECT_EQ(drive_.Read(CfgPath(kCallus)),
            Lines({R"(C:\E\c.exe)", R"(C:\R)", R"(C:\S)", "GIF", R"(C:\E)", "up"}));
  EXPECT_EQ(panel.pages->picSettings->txtRomPath->Text(), R"(C:\G)");
  const std::string odd[] = {R"(C:\a,b)", R"(C:\a~b)", R"(C:\)" + std::string(88, 'x')};
  for (const std::string& folder : odd) {
    sections_.SetRomFolder(kCallus, DosPath(folder));
    sections_.SetGameRomFolder(kCallus, DosPath(folder));
    EXPECT_EQ(TakeBoxes(), std::vector(2, "! " + folder +
                                              "|This folder can't be kept in the settings of a "
                                              "game. Please choose one without comma, tilde and "
                                              "quotation mark, of at most 90 characters."));
    EXPECT_EQ(panel.pages->picConf->txtOptRomPath->Text(), R"(C:\R)");
    EXPECT_EQ(panel.pages->picSettings->txtRomPath->Text(), R"(C:\G)");
  }
  const std::string longest = R"(C:\)" + std::string(87, 'x');
  sections_.SetGameRomFolder(kCallus, DosPath(longest));
  EXPECT_EQ(panel.pages->picSettings->txtRomPath->Text(), longest);
}

}  // namespace
}  // namespace zarvo
