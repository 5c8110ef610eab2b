// The pages of a panel, the selection cycle, and what is saved and loaded at each step.
#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class PagesTest : public PanelTest {
 protected:
  static int Mode(const EmulatorPanel& panel) { return Combo(panel, "cboScreenMode")->ListIndex(); }
};

TEST_F(PagesTest, EveryButtonButSettingsSavesTheCurrentGameBeforeItTurnsThePage) {
  struct Case {
    ImageBox* PanelPages::*button;
    const char* pages;
    bool saves;
  };
  const Case cases[] = {
      {&PanelPages::imgButInfo, "info", true},     {&PanelPages::imgButHelp, "help", true},
      {&PanelPages::imgButOpts, "conf", true},     {&PanelPages::imgButSnap, "img snap", true},
      {&PanelPages::imgButSet, "settings", false}, {&PanelPages::imgButSet, "settings", false},
  };
  for (const Emulator& emulator : kTested) {
    EmulatorPanel& panel = OpenConfigured(emulator);
    for (const Case& at : cases) {
      SCOPED_TRACE(std::string(emulator.word) + " " + at.pages);
      std::filesystem::remove(drive_.Host(SetPath(emulator)));
      Press((*panel.pages).*at.button);
      EXPECT_EQ(Pages(panel), at.pages);
      EXPECT_EQ(Keys(emulator), at.saves ? Caption(panel) + "|" : "(none)");
    }
  }
}

TEST_F(PagesTest, AButtonSinksUnderTheMouse) {
  const EmulatorPanel& panel = OpenConfigured(kM72);
  int left = 2430;
  for (ImageBox* const button :
       {panel.pages->imgButSnap, panel.pages->imgButSet, panel.pages->imgButInfo,
        panel.pages->imgButHelp, panel.pages->imgButOpts}) {
    const auto place = [&] { return std::pair(button->Left(), button->Top()); };
    PressMouse(button, {3, 3});
    EXPECT_EQ(place(), std::pair(left + 10, 130));
    ReleaseMouse(button, {3, 3});
    EXPECT_EQ(place(), std::pair(left, 120));
    left += 780;
  }
}

// A selection moves the caption on every page, and with it the controls of the settings page.
TEST_F(PagesTest, TheControlsFollowTheCaptionOnEveryPage) {
  const std::string store = "\"Bubble Bobble\",\"C:\\Own\",4,0,0,1,0\r\n";
  PutSettings(kRaine, store);
  EmulatorPanel& panel = OpenConfigured(kRaine);
  ListBox* const list = panel.games->lstRom;
  for (ImageBox* const button :
       {panel.pages->imgButSnap, panel.pages->imgButSet, panel.pages->imgButInfo,
        panel.pages->imgButHelp, panel.pages->imgButOpts}) {
    Press(button);
    SCOPED_TRACE(Pages(panel));
    PressEntry(list, 1);
    EXPECT_EQ(Current(panel, "cboScreenMode"), R"(Rainbow Islands 0 C:\Emu\Raine\Roms)");
    PressEntry(list, 0);
    EXPECT_EQ(Current(panel, "cboScreenMode"), R"(Bubble Bobble 4 C:\Own)");
    PutSettings(kRaine, store);
  }
}

// Behind an empty line no record is found; the next game must not inherit this one's options.
TEST_F(PagesTest, WithoutAReadableStoreTheNextGameGetsTheDefaults) {
  PutSettings(kCallus, "\r\n");
  EmulatorPanel& panel = OpenConfigured(kCallus);
  Press(panel.pages->imgButSet);
  Combo(panel, "cboHR")->SetListIndex(4);
  Press(panel.pages->imgButInfo);
  PressEntry(panel.games->lstRom, 1);
  EXPECT_EQ(Combo(panel, "cboHR")->ListIndex(), 10);
}

TEST_F(PagesTest, OnlyTheSettingsPageSavesTheGameThatASelectionLeaves) {
  EmulatorPanel& panel = OpenConfigured(kRaine);
  ListBox* const list = panel.games->lstRom;
  for (ImageBox* const button : {panel.pages->imgButSnap, panel.pages->imgButInfo,
                                 panel.pages->imgButHelp, panel.pages->imgButOpts}) {
    Press(button);
    std::filesystem::remove(drive_.Host(SetPath(kRaine)));
    PressEntry(list, 1);
    PressEntry(list, 0);
    EXPECT_EQ(Keys(kRaine), "(none)") << Pages(panel);
  }
  Press(panel.pages->imgButSet);
  Combo(panel, "cboScreenMode")->SetListIndex(2);
  PressEntry(list, 1);
  EXPECT_EQ(drive_.Read(SetPath(kRaine)),
            "\"Bubble Bobble\",\"C:\\Emu\\Raine\\Roms\",2,0,0,0,0\r\n");
  EXPECT_EQ(Mode(panel), 0) << "no record: the defaults";
  Combo(panel, "cboScreenMode")->SetListIndex(5);
  // The same entry again: saved and loaded once more, so nothing is lost.
  PressEntry(list, 1);
  EXPECT_EQ(Mode(panel), 5);
  PressEntry(list, 0);
  EXPECT_EQ(Mode(panel), 2);
  EXPECT_EQ(Keys(kRaine), "Bubble Bobble|Rainbow Islands|");
}

TEST_F(PagesTest, EnteringTheSettingsPageSetsPresetsThenLoads) {
  struct Case {
    std::string store;  // the beginning of the file; none without
    std::vector<std::string> favourites;
    std::string shown;  // the game, cboCallusHR with preset 0 and default 10, the rom folder
  };
  const Case cases[] = {
      {"", {}, R"(1941 0 C:\Emu\Callus\Roms)"},
      {R"("x","C:\x",3)", {}, R"(1941 10 C:\Emu\Callus\Roms)"},
      {R"("1941","C:\Own",5)", {}, R"(1941 5 C:\Own)"},
      {R"("Strider","C:\Own",6)", {"Strider"}, R"(Strider 6 C:\Own)"},
      {R"("[DEFAULT]","C:\All",7)", {}, R"(1941 7 C:\All)"},
      {R"("1941","",5)", {}, R"(1941 5 C:\Emu\Callus\Roms)"},
      {"\r\n\"1941\",\"C:\\Own\",5", {}, R"(1941 0 C:\Emu\Callus\Roms)"},
  };
  for (const bool empty_caption : {false, true}) {
    for (const Case& at : cases) {
      SCOPED_TRACE(at.store + (empty_caption ? ", empty caption" : ""));
      EmulatorPanel& panel = OpenConfigured(kCallus, at.favourites);
      std::filesystem::remove(drive_.Host(SetPath(kCallus)));
      if (!at.store.empty()) {
        PutSettings(kCallus, at.store + ",0,0,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0\r\n");
      }
      if (empty_caption) {
        panel.favourites->lstPref->SetItems(panel.favourites->lstPref->Items());
        panel.games->Fill(GameState::kAllSupported);
        panel.lblRomSettings->SetCaption("");
      }
      Press(panel.pages->imgButSet);
      EXPECT_EQ(Current(panel, "cboHR"), at.shown);
      sections_.CloseOpenPanels();
    }
  }
}

// What a panel shows before any record was read.
TEST_F(PagesTest, StartValues) {
  struct Case {
    const Emulator& emulator;
    std::string record;
    std::string empty_folder;  // the rom folder while none is configured
  };
  const Case cases[] = {
      {kMame, R"(0,0,0,0,1,1,0,0,0,0,"0","0",14,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0)",
       R"(C:\emu\mame\roms)"},
      {kCallus, "10,10,0,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0", ""},
      {kRaine, "0,0,0,0,0", ""},
      {kSystem16, "2,2,0,0,0,1,0,0,0,0,0,0,0,1,0,0,0,1,0", ""},
      {kM72, "0,0,0,0,0,0,0,0,1,0", ""},
  };
  for (const Case& at : cases) {
    SCOPED_TRACE(at.emulator.word);
    EmulatorPanel& panel = Open(at.emulator);
    TakeBoxes();
    EXPECT_EQ(panel.pages->picSettings->txtRomPath->Text(), at.empty_folder);
    panel.game->Save("now");
    EXPECT_EQ(drive_.Read(SetPath(at.emulator)),
              "\"now\",\"" + at.empty_folder + "\"," + at.record + "\r\n");
  }
}

TEST_F(PagesTest, ApplyToAllAsksThenLeavesTheDefaultRecordAlone) {
  for (const Emulator& emulator : kTested) {
    SCOPED_TRACE(emulator.word);
    EmulatorPanel& panel = OpenConfigured(emulator);
    Press(panel.pages->imgButInfo);
    Press(panel.pages->imgButSet);
    const std::string before = drive_.Read(SetPath(emulator));
    const std::string question =
        "? This will:|1) Erase all the previously saved configurations|2) Apply the current "
        "settings to all the games||Are you sure?";
    boxes_.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    Press(panel.pages->picSettings->cmdApplytoAll);
    EXPECT_THAT(TakeBoxes(), ElementsAre(question));
    EXPECT_EQ(drive_.Read(SetPath(emulator)), before);
    Press(panel.pages->picSettings->cmdApplytoAll);
    EXPECT_THAT(TakeBoxes(), ElementsAre(question, "i Default configurations saved!"));
    EXPECT_EQ(Keys(emulator), "[DEFAULT]|");
    Press(panel.pages->imgButInfo);
    EXPECT_EQ(Keys(emulator), "[DEFAULT]|" + Caption(panel) + "|");
  }
}

TEST_F(PagesTest, WithoutAGameTheEmptyCaptionIsSavedAndNothingBreaks) {
  PutData("Raine", DataHead("0"));
  EmulatorPanel& panel = OpenConfigured(kRaine);
  EXPECT_EQ(Caption(panel), "");
  for (ImageBox* const button :
       {panel.pages->imgButInfo, panel.pages->imgButSet, panel.pages->imgButHelp}) {
    Press(button);
  }
  EXPECT_EQ(Keys(kRaine), "|");
  Press(panel.pages->imgButSnap);
  EXPECT_THAT(TakeBoxes(), ElementsAre(testing::StartsWith("! This rom was not found")));
}

}  // namespace
}  // namespace zarvo
