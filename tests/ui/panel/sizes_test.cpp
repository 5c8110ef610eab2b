// Sizes and arrangements of the panels, and the colours of their buttons. All numbers are twips.
#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

class SizesTest : public PanelTest {
 protected:
  // Everything that an arrangement sets, for one look.
  static std::string Arrangement(const EmulatorPanel& panel) {
    const GameFilters& games = *panel.games;
    const Picture arrow = panel.sizes->cmdRidimen->CurrentPicture();
    std::string text = panel.sizes->lblRidimen;
    text += arrow == Picture::FromResource("arrow_up")     ? " (up)"
            : arrow == Picture::FromResource("arrow_down") ? " (down)"
                                                           : " (no arrow)";
    for (const int number : {panel.favourites->lstPref->Height(), games.lstRom->Left(),
                             games.lstRom->Width(), games.lstRom->Columns()}) {
      text += " " + std::to_string(number);
    }
    if (games.cboFilterMisc == nullptr) return text;
    EXPECT_EQ(games.cboFilterManufactor->Visible(), games.cboFilterYear->Visible());
    return text + " combos " + std::to_string(games.cboFilterMisc->Left()) + " " +
           std::to_string(games.cboFilterGenre->Left()) +
           (games.cboFilterYear->Visible() ? " all" : "");
  }
  static std::pair<int, int> Size(const EmulatorPanel& panel) {
    return {panel.Window::Width(), panel.Window::Height()};
  }
  const std::pair<int, int> large_{6345, 7260}, middle_{6345, 4620}, short_{2415, 4620};
};

TEST_F(SizesTest, TheArrowFlipsTheListsInTheLargeSize) {
  struct Case {
    const Emulator& emulator;
    std::string columns;
    std::string combos;
    std::string combos_up;
  };
  const Case cases[] = {{kMame, "2", " combos 120 1710 all", " combos 90 1690 all"},
                        {kCallus, "2", " combos 120 1680 all", " combos 90 1660 all"},
                        {kRaine, "3", " combos 120 1680 all", " combos 90 1660 all"},
                        {kSystem16, "2", "", ""}};
  for (const Case& at : cases) {
    SCOPED_TRACE(at.emulator.word);
    EmulatorPanel& panel = OpenConfigured(at.emulator);
    const std::string up = "up (down) 3820 90 6165 2" + at.combos_up;
    const bool combos = !at.combos.empty();
    EXPECT_EQ(Size(panel), large_);
    EXPECT_EQ(Arrangement(panel), "up (down) 3825 90 6165 " + at.columns + at.combos);
    for (Label* const button : {panel.sizes->cmdMiddle, panel.sizes->cmdShort}) {
      Press(panel.sizes->cmdRidimen);
      EXPECT_EQ(Arrangement(panel),
                std::string("down (up) 6415 2400 3855 1") + (combos ? " combos 2400 3990" : ""));
      Press(panel.sizes->cmdRidimen);
      EXPECT_EQ(Arrangement(panel), up);
      Press(panel.sizes->cmdRidimen);
      Press(button);
      EXPECT_EQ(Size(panel), button == panel.sizes->cmdShort ? short_ : middle_);
      EXPECT_EQ(Arrangement(panel), up) << "a small size goes to the normal arrangement";
      Press(panel.sizes->cmdRidimen);
      EXPECT_EQ(Arrangement(panel), up) << "the arrow rests there";
      Press(panel.sizes->cmdLarge);
      EXPECT_EQ(Size(panel), large_);
      EXPECT_EQ(Arrangement(panel), up) << "not the arrangement before";
    }
    panel.SetHeight(5000);  // as a layout may
    Press(panel.sizes->cmdRidimen);
    Press(panel.cmdExit);
    EXPECT_EQ(Split(drive_.Read(CfgPath(at.emulator)))[5], "\"down\"");
    DropClosed();
    EXPECT_EQ(Arrangement(Open(at.emulator)),
              std::string("down (up) 6415 2430 3855 1") + (combos ? " combos 2430 4050" : ""));
    EXPECT_EQ(Size(sections_.Panel(at.emulator)), large_);
  }
}

TEST_F(SizesTest, M72IsMiddleOrShortAndKeepsItsWord) {
  PutCfg(kM72, {}, "down");
  EmulatorPanel& panel = Open(kM72);
  EXPECT_EQ(Size(panel), middle_);
  Press(panel.sizes->cmdShort);
  Press(panel.sizes->cmdLarge);
  EXPECT_EQ(Size(panel), short_);
  Press(panel.sizes->cmdMiddle);
  EXPECT_EQ(Size(panel), middle_);
  EXPECT_EQ(panel.favourites->lstPref->Height(), 3825);
  panel.paths->SaveCfg();
  EXPECT_EQ(Split(drive_.Read(CfgPath(kM72)))[5], "\"down\"");
}

TEST_F(SizesTest, TheLogoDocksThePanelBesideTheMainWindow) {
  for (const Emulator& emulator : kTested) {
    SCOPED_TRACE(emulator.word);
    EmulatorPanel& panel = OpenConfigured(emulator);
    const auto place = [&] { return std::pair(panel.Left(), panel.Top()); };
    EXPECT_EQ(place(), std::pair(3950, 400));
    main_.SetMainPlace(900, 1200);
    panel.sizes->Short();
    const std::pair docked(4650, 900);
    ClickMouse(panel.logo);
    EXPECT_EQ(place(), emulator == kRaine ? docked : std::pair(3950, 400));
    DoubleClickMouse(panel.logo);
    EXPECT_EQ(place(), docked);
    EXPECT_EQ(Size(panel), short_);
    PressKey(panel.logo, Qt::Key_Right);
    PressKey(panel.logo, Qt::Key_Down);
    EXPECT_EQ(place(), std::pair(4800, 1050));
    PressKey(panel.logo, Qt::Key_Space);
    EXPECT_EQ(place(), docked);
    main_.SetMainPlace(400, 500);
  }
}

// The mouse lights a button up, and each of its neighbours puts it back to rest.
TEST_F(SizesTest, ButtonsLightUpUnderTheMouseAndTheirNeighboursResetThem) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  const ConfPage& conf = *panel.pages->picConf;
  const SettingsPage& settings = *panel.pages->picSettings;
  const PanelSizes& sizes = *panel.sizes;
  QWidget* const list = panel.favourites->lstPref->viewport();
  struct Kind {
    std::pair<unsigned, unsigned> rest, lit;
  };
  const Kind path{{12551557, 16777215}, {9398111, 65535}};
  const Kind size{{9398111, 16777215}, {12551557, 65535}};
  const Kind close{{14985898, 128}, {128, 16777215}};
  const Kind bulk{{6061526, 16777215}, {16576, 65535}};
  const auto check = [](Label* button, const Kind& kind, const std::vector<QWidget*>& resets) {
    const auto colours = [button] {
      return std::pair<unsigned, unsigned>(button->BackColor().value, button->ForeColor().value);
    };
    for (std::size_t i = 0; i < resets.size(); ++i) {
      MoveMouse(button);
      EXPECT_EQ(colours(), kind.lit) << button->Caption();
      MoveMouse(resets[i]);
      EXPECT_EQ(colours(), kind.rest) << button->Caption() << ", neighbour " << i;
    }
  };
  const std::vector<Label*> head = {sizes.cmdLarge, sizes.cmdMiddle, sizes.cmdShort, panel.cmdExit};
  for (Label* const button : head) {
    std::vector<QWidget*> resets = {&panel,
                                    panel.favourites->lblFavCount,
                                    panel.pages->imgButSnap,
                                    sizes.cmdRidimen,
                                    panel.logo,
                                    list};
    std::copy_if(head.begin(), head.end(), std::back_inserter(resets),
                 [button](const Label* other) { return other != button; });
    check(button, button == panel.cmdExit ? close : size, resets);
  }
  check(panel.favourites->lblClearFav, bulk, {&panel, panel.logo, panel.favourites->lblFavorties});
  check(settings.cmdApplytoAll, bulk,
        {panel.pages->picSettings, panel.lblRomSettings, settings.txtRomPath, list});
  check(settings.cmdSelDir, path,
        {panel.pages->picSettings, panel.lblRomSettings, settings.txtRomPath,
         settings.cmdDirRomDefault});
  check(settings.cmdDirRomDefault, path,
        {panel.pages->picSettings, panel.lblRomSettings, settings.cmdSelDir});
  check(conf.cmdSfoglia, path,
        {panel.pages->picConf, conf.txtOptExePath, conf.exe_caption, conf.cmdSelDir});
  check(conf.cmdSelDir, path,
        {panel.pages->picConf, conf.txtOptRomPath, conf.rom_caption, conf.cmdSfoglia});
  check(conf.cmdDirSnap, path, {panel.pages->picConf, conf.txtOptSnap, conf.snap_caption});
  check(conf.lblScanNow, path, {panel.pages->picConf, conf.Frame1, conf.Frame2, conf.optSplitted});
  MoveMouse(conf.lblScanNow);
  ReleaseMouse(conf.lblScanNow, {3, 3});
  EXPECT_EQ(conf.lblScanNow->BackColor().value, path.rest.first);
  main_.resets = 0;
  MoveMouse(panel.logo);
  MoveMouse(list);
  EXPECT_EQ(main_.resets, 2) << "the main window's commands go back to rest too";
}

}  // namespace
}  // namespace zarvo
