// Sizes and arrangements of the panels, and the colours of their buttons. All numbers are twips.
#include "fakes/key_press.h"
#include "panel/panel_fixture.h"

namespace zarvo {
namespace {

class SizesTest : public PanelTest {
 protected:
  // Everything that an arrangement sets, for one look.
  static std::string Arrangement(const EmulatorPanel& panel) {
    const GameFilters& games = *panel.games;
    std::string text = panel.sizes->lblRidimen;
    const auto number = [&](const char* name, int value) {
      text += std::string(" ") + name + std::to_string(value);
    };
    number("tall", panel.favourites->lstPref->Height());
    number("list", games.lstRom->Left());
    number("", games.lstRom->Width());
    number("columns", games.lstRom->Columns());
    if (games.cboFilterMisc != nullptr) {
      number("state", games.cboFilterMisc->Left());
      number("genre", games.cboFilterGenre->Left());
      EXPECT_EQ(games.cboFilterManufactor->Visible(), games.cboFilterYear->Visible());
      text += games.cboFilterYear->Visible() ? " more" : "";
    }
    const Picture arrow = panel.sizes->cmdRidimen->CurrentPicture();
    text += arrow == Picture::FromResource("arrow_up")     ? " arrow up"
            : arrow == Picture::FromResource("arrow_down") ? " arrow down"
                                                           : " no arrow";
    return text;
  }
  static std::pair<int, int> Size(const EmulatorPanel& panel) {
    return {panel.Window::Width(), panel.Window::Height()};
  }
};

TEST_F(SizesTest, TheArrowFlipsTheListsInTheLargeSize) {
  struct Case {
    Emulator emulator;
    const char* design;
    const char* down;
    const char* up;
    const char* down_at_load;
  };
  const Case cases[] = {
      {Emulator::kMame, "up tall3825 list90 6165 columns2 state120 genre1710 more arrow down",
       "down tall6415 list2400 3855 columns1 state2400 genre3990 arrow up",
       "up tall3820 list90 6165 columns2 state90 genre1690 more arrow down",
       "down tall6415 list2430 3855 columns1 state2430 genre4050 arrow up"},
      {Emulator::kCallus, "up tall3825 list90 6165 columns2 state120 genre1680 more arrow down",
       "down tall6415 list2400 3855 columns1 state2400 genre3990 arrow up",
       "up tall3820 list90 6165 columns2 state90 genre1660 more arrow down",
       "down tall6415 list2430 3855 columns1 state2430 genre4050 arrow up"},
      {Emulator::kRaine, "up tall3825 list90 6165 columns3 state120 genre1680 more arrow down",
       "down tall6415 list2400 3855 columns1 state2400 genre3990 arrow up",
       "up tall3820 list90 6165 columns2 state90 genre1660 more arrow down",
       "down tall6415 list2430 3855 columns1 state2430 genre4050 arrow up"},
      {Emulator::kSystem16, "up tall3825 list90 6165 columns2 arrow down",
       "down tall6415 list2400 3855 columns1 arrow up",
       "up tall3820 list90 6165 columns2 arrow down",
       "down tall6415 list2430 3855 columns1 arrow up"},
  };
  for (const Case& at : cases) {
    SCOPED_TRACE(ProfileOf(at.emulator).word);
    EmulatorPanel& panel = OpenConfigured(at.emulator);
    EXPECT_EQ(Size(panel), std::pair(6345, 7260));
    EXPECT_EQ(Arrangement(panel), at.design);
    Press(panel.sizes->cmdRidimen);
    EXPECT_EQ(Arrangement(panel), at.down);
    Press(panel.sizes->cmdRidimen);
    EXPECT_EQ(Arrangement(panel), at.up);
    for (Label* const button : {panel.sizes->cmdMiddle, panel.sizes->cmdShort}) {
      Press(panel.sizes->cmdRidimen);
      Press(button);
      const bool is_short = button == panel.sizes->cmdShort;
      EXPECT_EQ(Size(panel), std::pair(is_short ? 2415 : 6345, 4620));
      EXPECT_EQ(Arrangement(panel), at.up) << "a small size goes to the normal arrangement";
      Press(panel.sizes->cmdRidimen);
      EXPECT_EQ(Arrangement(panel), at.up) << "the arrow rests there";
      Press(panel.sizes->cmdLarge);
      EXPECT_EQ(Size(panel), std::pair(6345, 7260));
      EXPECT_EQ(Arrangement(panel), at.up) << "not the arrangement before";
    }
    panel.SetHeight(5000);  // as a layout may
    Press(panel.sizes->cmdRidimen);
    Press(panel.cmdExit);
    EXPECT_EQ(Split(drive_.Read(CfgPath(at.emulator)))[5], "\"down\"");
    DropClosed();
    EXPECT_EQ(Arrangement(Open(at.emulator)), at.down_at_load);
    EXPECT_EQ(Size(sections_.Panel(at.emulator)), std::pair(6345, 7260));
  }
}

TEST_F(SizesTest, M72IsMiddleOrShortAndKeepsItsWord) {
  PutCfg(Emulator::kM72, {}, "down");
  EmulatorPanel& panel = Open(Emulator::kM72);
  EXPECT_EQ(Size(panel), std::pair(6345, 4620));
  EXPECT_FALSE(panel.sizes->cmdLarge->Enabled());
  EXPECT_EQ(panel.sizes->cmdRidimen, nullptr);
  Press(panel.sizes->cmdShort);
  EXPECT_EQ(Size(panel), std::pair(2415, 4620));
  Press(panel.sizes->cmdLarge);
  EXPECT_EQ(Size(panel), std::pair(2415, 4620));
  Press(panel.sizes->cmdMiddle);
  EXPECT_EQ(Size(panel), std::pair(6345, 4620));
  EXPECT_EQ(panel.favourites->lstPref->Height(), 3825);
  panel.SaveCfg();
  EXPECT_EQ(Split(drive_.Read(CfgPath(Emulator::kM72)))[5], "\"down\"");
}

TEST_F(SizesTest, TheLogoDocksThePanelBesideTheMainWindow) {
  for (const EmulatorProfile& profile : Profiles()) {
    SCOPED_TRACE(profile.word);
    EmulatorPanel& panel = OpenConfigured(profile.emulator);
    const auto place = [&] { return std::pair(panel.Left(), panel.Top()); };
    EXPECT_EQ(place(), std::pair(500 + 3450, 400));
    main_.SetMainPlace(900, 1200);
    panel.sizes->Short();
    const bool on_click = profile.emulator == Emulator::kRaine;
    ClickMouse(panel.logo);
    EXPECT_EQ(place(), on_click ? std::pair(4650, 900) : std::pair(3950, 400));
    DoubleClickMouse(panel.logo);
    EXPECT_EQ(place(), std::pair(4650, 900));
    EXPECT_EQ(Size(panel), std::pair(2415, 4620));
    PressKey(panel.logo, Qt::Key_Right);
    PressKey(panel.logo, Qt::Key_Down);
    EXPECT_EQ(place(), std::pair(4650 + 150, 900 + 150));
    PressKey(panel.logo, Qt::Key_Space);
    EXPECT_EQ(place(), std::pair(4650, 900));
    main_.SetMainPlace(400, 500);
  }
}

// One row for each pair: the mouse lights the button up, and the neighbour puts it back to rest.
TEST_F(SizesTest, ButtonsLightUpUnderTheMouseAndTheirNeighboursResetThem) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame);
  const ConfPage& conf = *panel.picConf;
  const SettingsPage& settings = *panel.picSettings;
  const PanelSizes& sizes = *panel.sizes;
  struct Kind {
    std::pair<unsigned, unsigned> rest, lit;
  };
  const Kind path{{12551557, 16777215}, {9398111, 65535}};
  const Kind size{{9398111, 16777215}, {12551557, 65535}};
  const Kind close{{14985898, 128}, {128, 16777215}};
  const Kind bulk{{6061526, 16777215}, {16576, 65535}};
  struct Case {
    const char* name;
    Label* button;
    Kind kind;
    std::vector<QWidget*> resets;
  };
  const std::vector<QWidget*> header = {&panel,           panel.favourites->lblFavCount,
                                        panel.imgButSnap, sizes.cmdRidimen,
                                        panel.logo,       panel.favourites->lstPref->viewport()};
  const auto plus = [](std::vector<QWidget*> all, std::initializer_list<QWidget*> more) {
    all.insert(all.end(), more);
    return all;
  };
  Label* const clear = panel.favourites->lblClearFav;
  const Case cases[] = {
      {"large", sizes.cmdLarge, size,
       plus(header, {sizes.cmdMiddle, sizes.cmdShort, panel.cmdExit})},
      {"middle", sizes.cmdMiddle, size,
       plus(header, {sizes.cmdLarge, sizes.cmdShort, panel.cmdExit})},
      {"short", sizes.cmdShort, size,
       plus(header, {sizes.cmdLarge, sizes.cmdMiddle, panel.cmdExit})},
      {"exit", panel.cmdExit, close,
       plus(header, {sizes.cmdLarge, sizes.cmdMiddle, sizes.cmdShort})},
      {"clear", clear, bulk, {&panel, panel.logo, panel.favourites->lblFavorties}},
      {"all",
       settings.cmdApplytoAll,
       bulk,
       {panel.picSettings, panel.lblRomSettings, settings.txtRomPath,
        panel.favourites->lstPref->viewport()}},
      {"game folder",
       settings.cmdSelDir,
       path,
       {panel.picSettings, panel.lblRomSettings, settings.txtRomPath, settings.cmdDirRomDefault}},
      {"default folder",
       settings.cmdDirRomDefault,
       path,
       {panel.picSettings, panel.lblRomSettings, settings.cmdSelDir}},
      {"executable",
       conf.cmdSfoglia,
       path,
       {panel.picConf, conf.txtOptExePath, conf.exe_caption, conf.cmdSelDir}},
      {"rom folder",
       conf.cmdSelDir,
       path,
       {panel.picConf, conf.txtOptRomPath, conf.rom_caption, conf.cmdSfoglia}},
      {"snap folder", conf.cmdDirSnap, path, {panel.picConf, conf.txtOptSnap, conf.snap_caption}},
      {"scan", conf.lblScanNow, path, {panel.picConf, conf.Frame1, conf.Frame2, conf.optSplitted}},
  };
  for (const Case& at : cases) {
    SCOPED_TRACE(at.name);
    const auto colours = [&] {
      return std::pair<unsigned, unsigned>(at.button->BackColor().value,
                                           at.button->ForeColor().value);
    };
    MoveMouse(at.resets.front());
    for (std::size_t i = 0; i < at.resets.size(); ++i) {
      MoveMouse(at.button);
      EXPECT_EQ(colours(), at.kind.lit);
      MoveMouse(at.resets[i]);
      EXPECT_EQ(colours(), at.kind.rest) << "neighbour " << i;
    }
  }
  MoveMouse(conf.lblScanNow);
  ReleaseMouse(conf.lblScanNow, {3, 3});
  EXPECT_EQ(conf.lblScanNow->BackColor().value, 12551557U);
  main_.resets = 0;
  MoveMouse(panel.logo);
  MoveMouse(panel.favourites->lstPref->viewport());
  EXPECT_EQ(main_.resets, 2) << "the main window's commands go back to rest too";
}

}  // namespace
}  // namespace zarvo
