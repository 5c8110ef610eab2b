// The filters of a game list, its counters, the scan and the popup of the lists.
#include <QAbstractItemView>
#include <QMenu>

#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FiltersTest : public PanelTest {
 protected:
  static constexpr int kAvailable = 3;

  static void ChooseFromPopup(ComboBox* combo, int index) {
    static_cast<QComboBox*>(combo)->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(index, 0));
    PressKey(combo->view(), Qt::Key_Return);
  }
};

TEST_F(FiltersTest, FiltersCombine) {
  struct Case {
    int state;
    std::string genre, maker, year;
    std::string games;
    const char* count;
  };
  const Case cases[] = {
      {0, "", "", "", "Aliens|Aliens (JP)|Metal Slug|Puck Man|Zaxxon", "5"},
      {1, "", "", "", "Aliens|Puck Man|Zaxxon", "3"},
      {2, "", "", "", "Aliens (JP)", "1"},
      {5, "", "", "", "Aliens|Aliens (JP)|Puck Man|Zaxxon", "4"},
      {6, "", "", "", "Metal Slug", "1"},
      {0, "Shooter", "", "", "Aliens|Aliens (JP)|Zaxxon", "3"},
      {0, "Shooter", "Konami", "", "Aliens|Aliens (JP)", "2"},
      {0, "", "", "1990", "Aliens|Aliens (JP)|Zaxxon", "3"},
      {1, "Shooter", "Konami", "1990", "Aliens", "1"},
      {6, "Shooter", "", "", "", "0"},
      {3, "", "", "", "Aliens|Zaxxon", "2"},
      {3, "Shooter", "Sega", "", "Zaxxon", "1"},
      {4, "", "", "1990", "Aliens (JP)", "1"},
  };
  drive_.Write(R"(C:\Zarvo\cfg\Mame.scn)",
               Lines({"Aliens;Y", "Aliens (JP);N", "Puck Man;N", "Zaxxon;Y"}));
  EmulatorPanel& panel = OpenConfigured(kMame);
  const GameFilters& games = *panel.games;
  const auto choose = [](ComboBox* combo, const std::string& item) {
    combo->SetListIndex(item.empty() ? 0 : combo->findText(QString::fromStdString(item)));
  };
  for (const Case& at : cases) {
    SCOPED_TRACE(std::to_string(at.state) + " " + at.genre + " " + at.maker + " " + at.year);
    games.cboFilterMisc->SetListIndex(at.state);
    choose(games.cboFilterGenre, at.genre);
    choose(games.cboFilterManufactor, at.maker);
    choose(games.cboFilterYear, at.year);
    EXPECT_EQ(Entries(games.lstRom), at.games);
    EXPECT_EQ(games.lblRomCount->Caption(), at.count);
    EXPECT_EQ(games.lstRom->Text(), at.games.substr(0, at.games.find('|')));
    EXPECT_THAT(at.games, testing::AnyOf(IsEmpty(), testing::HasSubstr(Caption(panel))));
    EXPECT_TRUE(games.lstRom->Visible());
    EXPECT_EQ(games.lblTotal->Caption(), "200");
    EXPECT_EQ(games.lblFilterHide, "");
  }
  EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\Data\tofilter.tmp)"));
}

TEST_F(FiltersTest, OnlyTheComboThatWasClickedIsColoured) {
  const GameFilters& games = *OpenConfigured(kCallus).games;
  const auto colours = [](const ComboBox* combo) {
    return std::pair(combo->BackColor().value, combo->ForeColor().value);
  };
  const std::pair neutral(12632256U, 0U);
  const std::pair filtering(14985898U, 128U);
  for (ComboBox* const combo :
       {games.cboFilterGenre, games.cboFilterManufactor, games.cboFilterYear}) {
    for (const int index : {0, 1, 0, 1}) {
      combo->SetListIndex(index);
      EXPECT_EQ(colours(combo), index == 0 ? neutral : filtering);
    }
  }
  games.cboFilterMisc->SetListIndex(1);
  EXPECT_EQ(colours(games.cboFilterMisc), std::pair(14985898U, 0U)) << "its text colour stays";
  games.cboFilterMisc->SetListIndex(0);
  EXPECT_EQ(colours(games.cboFilterMisc), neutral);
  EXPECT_EQ(colours(games.cboFilterGenre), filtering);
}

TEST_F(FiltersTest, ShiftAloneResetsTheFiltersOfMameOnly) {
  for (const Emulator& emulator : Those{kMame, kRaine}) {
    const bool resets = emulator == kMame;
    const GameFilters& games = *OpenConfigured(emulator).games;
    ComboBox* const combos[] = {games.cboFilterMisc, games.cboFilterGenre,
                                games.cboFilterManufactor, games.cboFilterYear};
    for (ComboBox* const pressed : combos) {
      for (ComboBox* const combo : combos) combo->SetListIndex(1);
      for (const Qt::KeyboardModifiers with : {Qt::ControlModifier, Qt::NoModifier}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_F2, Qt::ShiftModifier | with);
        QApplication::sendEvent(pressed, &event);
        const bool reset = resets && with == Qt::NoModifier;
        for (ComboBox* const combo : combos) {
          EXPECT_EQ(combo->ListIndex(), reset ? 0 : 1);
          EXPECT_EQ(combo->BackColor().value, reset ? 12632256U : 14985898U);
        }
      }
    }
  }
}

TEST_F(FiltersTest, WithoutAScanFileAllGamesComeBackOnTheConfigurationPage) {
  for (const Emulator& emulator : Those{kMame, kCallus, kRaine}) {
    SCOPED_TRACE(emulator.word);
    EmulatorPanel& panel = OpenConfigured(emulator);
    const std::string all = Entries(panel.games->lstRom);
    const std::string count = panel.games->lblRomCount->Caption();
    boxes_.on_show = [&] { EXPECT_TRUE(panel.games->lstRom->Visible()); };
    panel.games->cboFilterMisc->SetListIndex(kAvailable);
    EXPECT_THAT(TakeBoxes(), ElementsAre("! No 'SCN' file found in </CFG> directory.|Please scan "
                                         "your rom directory from section <CONF>"));
    EXPECT_EQ(panel.games->cboFilterMisc->Text(), "All Supported");
    EXPECT_EQ(panel.games->cboFilterMisc->BackColor().value, 12632256U);
    EXPECT_EQ(Entries(panel.games->lstRom), all);
    EXPECT_EQ(panel.games->lblRomCount->Caption(), count);
    EXPECT_EQ(Pages(panel), "img conf");
  }
}

TEST_F(FiltersTest, ADataFileThatVanishedKeepsTheListUnlessAllAreAskedFor) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  panel.games->cboFilterMisc->SetListIndex(1);
  std::filesystem::remove(drive_.Host(R"(C:\Zarvo\Data\Mame.dat)"));
  panel.games->cboFilterYear->SetListIndex(3);
  panel.games->cboFilterMisc->SetListIndex(2);
  EXPECT_EQ(panel.games->lstRom->ListCount(), 3);
  panel.games->cboFilterMisc->SetListIndex(0);
  EXPECT_EQ(panel.games->lstRom->ListCount(), 0);
  EXPECT_EQ(panel.games->lblRomCount->Caption(), "0");
  // Each selection in between couldn't find its game.
  for (const std::string& box : TakeBoxes()) EXPECT_THAT(box, testing::StartsWith("! This rom"));
}

TEST_F(FiltersTest, ATotalThatCantBeReadKeepsTheCaptionOfTheDesign) {
  const std::pair<Emulator, const char*> cases[] = {
      {kMame, "1107"}, {kCallus, ""}, {kRaine, "107"}, {kSystem16, "1107"}};
  for (const auto& [emulator, total] : cases) {
    PutData(emulator.word, "no header here\r\n");
    EXPECT_EQ(sections_.Panel(emulator).games->lblTotal->Caption(), total);
  }
}

TEST_F(FiltersTest, TheScanTellsItsCountAndTheStatesShowIt) {
  PutCfg(kMame);
  drive_.Write(R"(C:\Emu\Mame\Roms\ALIENS.ZIP)", "");
  drive_.Write(R"(C:\Emu\Mame\Roms\mslug.zip)", "");
  EmulatorPanel& panel = Open(kMame);
  ASSERT_TRUE(panel.pages->picConf->optMerged->Value());
  for (const bool merged : {true, false}) {
    panel.pages->picConf->optSplitted->SetValue(!merged);
    Press(panel.pages->picConf->lblScanNow);
    EXPECT_THAT(TakeBoxes(), ElementsAre(std::string(merged ? "i 3" : "i 2") +
                                         " Roms found in:|C:\\Emu\\Mame\\Roms"));
    EXPECT_EQ(panel.games->lstRom->ListCount(), merged ? 5 : 3) << "the list stays as it is";
    ChooseFromPopup(panel.games->cboFilterMisc, kAvailable);
    EXPECT_EQ(panel.games->lstRom->ListCount(), merged ? 3 : 2) << "also if it's chosen anew";
  }
  files_.Fail(FileStep::kReplace, "Mame.scn");
  Press(panel.pages->picConf->lblScanNow);
  EXPECT_THAT(TakeBoxes(), ElementsAre("i 2 Roms found in:|C:\\Emu\\Mame\\Roms",
                                       "! Mame.scn: No space left on device"));
}

// The captions of the popup that a button of the mouse brings up over a list.
std::string PopupOver(const ListBox* list, Qt::MouseButton button = Qt::RightButton) {
  std::string captions = "(none)";
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    captions = menu->objectName().toStdString() + ":";
    for (const QAction* action : menu->actions()) {
      captions += action->isSeparator() ? "-" : "[" + action->text().toStdString() + "]";
    }
    const std::string last = "-[Find...  (Ctrl+F)]";
    EXPECT_TRUE(captions.ends_with(last));
    captions.resize(captions.size() - std::min(captions.size(), last.size()));
    menu->close();
  });
  timer.start(0);
  PressMouse(list->viewport(), {5, 5}, button);
  ReleaseMouse(list->viewport(), {5, 5}, button);
  return captions;
}

TEST_F(FiltersTest, ThePopupShowsFourFactsOfTheSelectedGame) {
  EmulatorPanel& panel = OpenConfigured(kMame, {"Aliens (JP)", "Gone"});
  ListBox* const big = panel.games->lstRom;
  ListBox* const small = panel.favourites->lstPref;
  EXPECT_EQ(PopupOver(small), "mnuMame:[Konami][1990][Shooter]-[Clone]");
  EXPECT_EQ(PopupOver(big), "mnuMame:[][][]-[]") << "nothing is selected there";
  big->SetListIndex(4);
  EXPECT_EQ(PopupOver(big), "mnuMame:[Sega][1990][Shooter]-[Original]");
  EXPECT_EQ(big->Text(), "Zaxxon") << "the right button selects nothing";
  EXPECT_EQ(PopupOver(big, Qt::LeftButton), "(none)");
  panel.favourites->SetEntries({"Aliens"});
  EXPECT_EQ(PopupOver(small), "(none)");

  ListBox* const m72 = OpenConfigured(kM72).favourites->lstPref;
  for (const int index : {0, 2}) {  // the other is not in the data file: the menu stays as it was
    m72->SetListIndex(index);
    EXPECT_EQ(TakeBoxes().size(), index == 0 ? 0U : 1U);
    EXPECT_EQ(PopupOver(m72), "mnuM72:[Irem][1987][Shooter]-[Original]");
  }
}

}  // namespace
}  // namespace zarvo
