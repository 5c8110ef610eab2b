// Opening and closing the five sections.
#include "ui/panel/sections.h"

#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"
#include "ui/pickers/file_picker.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class SectionsTest : public PanelTest {
 protected:
  static constexpr std::string_view kNoCfg =
      "i No configuration file found.|Probably it's the first time you access this section. Please "
      "set up your|paths now before moving to other sections!";
};

TEST_F(SectionsTest, ASectionOpensOnItsFirstFavouriteOrItsFirstGame) {
  struct Case {
    const Emulator& emulator;
    std::vector<std::string> favourites;
    std::string shown;  // the game; the counts of the favourites, the games, the total, where shown
  };
  const Case cases[] = {
      {kMame, {}, "Aliens 0 5 200"},
      {kCallus, {"Strider", "Final Fight"}, "Final Fight 2 3 50"},
      {kRaine, {}, "Bubble Bobble 0 2 30"},
      {kSystem16, {"Shinobi"}, "Shinobi 1 20"},
      {kM72, {}, "Battle Chopper 12"},
  };
  for (const Case& at : cases) {
    SCOPED_TRACE(at.emulator.word);
    const EmulatorPanel& panel = OpenConfigured(at.emulator, at.favourites);
    std::string shown = Caption(panel);
    for (const Label* const count :
         {panel.favourites->lblFavCount, panel.games->lblRomCount, panel.games->lblTotal}) {
      if (count != nullptr) shown += " " + count->Caption();
    }
    EXPECT_EQ(shown, at.shown);
    EXPECT_EQ(Pages(panel), "img snap");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(sections_.lblHideEmuSelect, at.emulator.SectionWord());
    EXPECT_EQ(sections_.IsOpen(at.emulator), true);
    EXPECT_EQ(Keys(at.emulator), "(none)") << "opening saves nothing";
  }
}

TEST_F(SectionsTest, WithoutADataFileNothingOpens) {
  for (const Emulator& emulator : kTested) {
    SCOPED_TRACE(emulator.word);
    std::filesystem::remove(drive_.Host(R"(C:\Zarvo\Data\)" + emulator.DataFile().Text()));
    sections_.OpenSection(emulator);
    EXPECT_THAT(TakeBoxes(),
                ElementsAre("! Warning! It could not be found the data-file in the directory "
                            "</data>|Without this file you have no access to this section!|The "
                            "last release of this data-file can be downloaded from "
                            "http://zarvo.example/"));
    EXPECT_EQ(sections_.lblHideEmuSelect, "HIDE");
    EXPECT_EQ(sections_.IsOpen(emulator), false);
    EXPECT_EQ(sections_.Find(emulator), nullptr);
  }
}

// The box comes up after the first game was selected; Callus, Raine and System16 stand on the
// screen by then if they have no favourites.
TEST_F(SectionsTest, WithoutAConfigurationFileItSaysSoOnTheConfigurationPage) {
  for (const Emulator& emulator : kTested) {
    SCOPED_TRACE(emulator.word);
    const bool is_mame_or_m72 = emulator == kMame || emulator == kM72;
    boxes_.on_show = [&] {
      const EmulatorPanel& panel = sections_.Panel(emulator);
      EXPECT_EQ(panel.isVisible(), !is_mame_or_m72);
      EXPECT_NE(Caption(panel), "");
      EXPECT_EQ(sections_.IsOpen(emulator), false);
    };
    EmulatorPanel& panel = Open(emulator);
    EXPECT_EQ(TakeBoxes(), std::vector{std::string(kNoCfg)});
    EXPECT_EQ(Pages(panel), "img conf");
    EXPECT_TRUE(panel.isVisible());
    // The image says that the snapshot page counts as the current one.
    panel.pages->picSnap->HideLabels();
    panel.pages->picSnap->lblNoAvail->SetCaption("");
    ListBox* const list = panel.games->lstRom ? panel.games->lstRom : panel.favourites->lstPref;
    list->SetListIndex(1);
    EXPECT_EQ(Caption(panel), list->Text());
    EXPECT_EQ(panel.pages->picSnap->lblNoAvail->Caption(), "No ScreenShot Available");
  }
}

TEST_F(SectionsTest, EnteringAnOpenSectionBringsTheWholeListBackAndKeepsPageAndSize) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  panel.games->cboFilterGenre->SetListIndex(7);  // Labyrinth
  ASSERT_EQ(Entries(panel.games->lstRom), "Puck Man");
  panel.sizes->Short();
  Press(panel.pages->imgButInfo);
  Open(kMame);
  EXPECT_EQ(panel.games->lstRom->ListCount(), 5);
  EXPECT_EQ(panel.games->lblRomCount->Caption(), "5");
  EXPECT_EQ(panel.games->cboFilterGenre->Text(), "Labyrinth");
  EXPECT_EQ(Caption(panel), "Aliens");
  EXPECT_EQ(Pages(panel), "info");
  EXPECT_EQ(panel.Window::Width(), 2415);
  // No configuration file any more: its page comes up over the one on show.
  std::filesystem::remove(drive_.Host(CfgPath(kMame)));
  Open(kMame);
  EXPECT_EQ(TakeBoxes(), std::vector{std::string(kNoCfg)});
  EXPECT_EQ(Pages(panel), "conf");
}

TEST_F(SectionsTest, ClosingSavesPathsAndTheCurrentGameAndReopeningStartsOver) {
  for (const bool by_desktop : {false, true}) {
    SCOPED_TRACE(by_desktop);
    EmulatorPanel& panel = OpenConfigured(kCallus, {"Strider"});
    std::filesystem::remove(drive_.Host(CfgPath(kCallus)));
    Press(panel.pages->imgButSet);
    Combo(panel, "cboHR")->SetListIndex(3);
    by_desktop ? static_cast<void>(panel.close()) : Press(panel.cmdExit);
    EXPECT_EQ(sections_.IsOpen(kCallus), false);
    EXPECT_EQ(sections_.Find(kCallus), nullptr);
    EXPECT_EQ(drive_.Read(CfgPath(kCallus)),
              "\"C:\\Emu\\Callus\\Callus.exe\"\r\n\"C:\\Emu\\Callus\\Roms\"\r\n\"C:\\Snaps\"\r\n"
              "\"GIF\"\r\n\"C:\\Emu\\Callus\"\r\n\"up\"\r\n\"Strider\"\r\n");
    EXPECT_EQ(Keys(kCallus), "Strider|");
    EXPECT_THAT(drive_.Read(SetPath(kCallus)),
                testing::StartsWith(R"("Strider","C:\Emu\Callus\Roms",3,0,)"));
    DropClosed();
    EXPECT_EQ(Pages(Open(kCallus)), "img snap");
  }
}

TEST_F(SectionsTest, TheEndOfTheProgramSavesOpenPanelsInOrderAndALayoutClosesThem) {
  OpenConfigured(kM72);
  OpenConfigured(kMame);
  OpenConfigured(kRaine);
  Press(sections_.Panel(kRaine).cmdExit);
  drive_.Write(SetPath(kRaine), "");
  sections_.SaveOpenPanels();
  EXPECT_EQ(Keys(kMame), "Aliens|");
  EXPECT_EQ(Keys(kM72), "Battle Chopper|");
  EXPECT_EQ(Keys(kRaine), "") << "a closed panel is left alone";
  EXPECT_EQ(sections_.IsOpen(kMame), true);

  EXPECT_EQ(sections_.PanelPlace(kMame), (TwipRect{3950, 400, 6345, 7260}));
  sections_.SetPanelPlace(kMame, {100, 200, 2415, 4620});
  EXPECT_EQ(sections_.PanelPlace(kMame), (TwipRect{100, 200, 2415, 4620}));
  EXPECT_EQ(sections_.PanelPlace(kRaine), std::nullopt);
  sections_.CloseOpenPanels();
  EXPECT_EQ(sections_.IsOpen(kMame), false);
  EXPECT_EQ(sections_.Find(kM72), nullptr);
}

// One box for each file, whose old content stays.
TEST_F(SectionsTest, ADiskThatTakesNothingIsToldOnceForEachFile) {
  PutSettings(kRaine, "\"old\",\"C:\\\",0,0,0,0,0\r\n");
  EmulatorPanel& panel = OpenConfigured(kRaine);
  const std::string old_cfg = drive_.Read(CfgPath(kRaine));
  files_.Fail(FileStep::kReplace, "");
  const std::vector<std::string> both = {"! Raine.cfg: No space left on device",
                                         "! Raine.set: No space left on device"};
  // Before anything goes, the player chooses: once more, stay, or leave it.
  const std::string lost =
      "! What was changed in R.A.I.N.E. can't be saved, and would be lost:||Raine.cfg: No space "
      "left on device|Raine.set: No space left on device";
  boxes_.answers = {BoxAnswer::kRetry, BoxAnswer::kStay};
  EXPECT_FALSE(sections_.SaveOpenPanels());
  EXPECT_THAT(TakeBoxes(), ElementsAre(lost, lost));
  boxes_.answers = {BoxAnswer::kStay, BoxAnswer::kStay};
  Press(panel.cmdExit);
  EXPECT_FALSE(sections_.CloseOpenPanels());
  EXPECT_THAT(TakeBoxes(), ElementsAre(lost, lost));
  EXPECT_EQ(sections_.IsOpen(kRaine), true);
  boxes_.answers = {BoxAnswer::kLeave};
  EXPECT_TRUE(sections_.SaveOpenPanels());
  sections_.SaveWithoutQuestions();
  EXPECT_THAT(TakeBoxes(), ElementsAre(lost));
  Press(panel.pages->imgButInfo);
  EXPECT_THAT(TakeBoxes(), ElementsAre(both[1]));
  EXPECT_EQ(Pages(panel), "info");
  const ModalPlay<FilePicker> play([](FilePicker& picker) { picker.UnloadWindow(); });
  PressKey(panel.games->lstRom, Qt::Key_Return);
  EXPECT_THAT(TakeBoxes(), ElementsAre(both[0], testing::StartsWith("! [Warning! - No EXE")));
  EXPECT_EQ(drive_.Read(CfgPath(kRaine)), old_cfg);
  EXPECT_EQ(Keys(kRaine), "old|");
  boxes_.answers = {BoxAnswer::kRetry};
  boxes_.on_show = [this] { files_.Heal(); };  // there is room again
  Press(panel.cmdExit);
  boxes_.on_show = {};
  EXPECT_THAT(TakeBoxes(), ElementsAre(lost));
  EXPECT_EQ(sections_.IsOpen(kRaine), false);
  EXPECT_NE(Keys(kRaine), "old|");
}

// Told once, and what is there is read by the next panel.
TEST_F(SectionsTest, AFileThatCantBeReadKeepsWhatItHolds) {
  constexpr std::string_view kStays =
      " stays as it is, and what you change isn't saved in it until it can be read.";
  PutCfg(kMame, {"Zaxxon", "Aliens"});
  PutSettings(kMame, "\"Puck Man\",\"C:\\Mine\"\r\n");
  const std::string cfg = drive_.Read(CfgPath(kMame));
  const std::string set = drive_.Read(SetPath(kMame));
  const auto box = [&](const std::string& file) {
    return "! " + file + ": Input/output error|" + file + std::string(kStays);
  };
  files_.Fail(FileStep::kOpen, "Mame.cfg", "Input/output error");
  files_.Fail(FileStep::kOpen, "Mame.set", "Input/output error");
  EmulatorPanel& panel = Open(kMame);
  EXPECT_THAT(TakeBoxes(), ElementsAre(box("Mame.cfg"), box("Mame.set")));
  panel.games->lstRom->SetListIndex(3);
  Press(panel.pages->imgButInfo);
  EXPECT_THAT(TakeBoxes(), testing::IsEmpty());
  files_.Heal();
  Press(panel.pages->picSettings
            ->cmdDirRomDefault);  // reads the file's first lines, not its favourites
  Press(panel.pages->imgButHelp);
  Press(panel.cmdExit);
  EXPECT_EQ(drive_.Read(CfgPath(kMame)), cfg);
  EXPECT_EQ(drive_.Read(SetPath(kMame)), set);

  EmulatorPanel& again = Open(kMame);
  EXPECT_EQ(again.favourites->lstPref->ListCount(), 2);
  again.favourites->Add("Metal Slug");
  Press(again.cmdExit);
  EXPECT_NE(drive_.Read(CfgPath(kMame)), cfg);
}

TEST_F(SectionsTest, AStartThatCantReadTheOtherGamesRecordKeepsThisOnesSaves) {
  PutSettings(kRaine, "\"x\",\"C:\\\"\r\n");
  EmulatorPanel& panel = OpenConfigured(kRaine, {"Bubble Bobble"});
  files_.Fail(FileStep::kOpen, "Raine.set", "Input/output error", 0);
  const ModalPlay<FilePicker> play([](FilePicker& picker) { picker.UnloadWindow(); });
  panel.lblRomSettings->SetCaption("Rainbow Islands");
  PressKey(panel.favourites->lstPref, Qt::Key_Return);
  EXPECT_THAT(TakeBoxes(), ElementsAre(testing::StartsWith("! Raine.set: Input/output error"),
                                       testing::StartsWith("! [Warning! - No EXE")));
  files_.Heal();
  Press(panel.pages->imgButInfo);
  EXPECT_EQ(Keys(kRaine), "x|Rainbow Islands|");
}

}  // namespace
}  // namespace zarvo
