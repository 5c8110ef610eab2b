// The favourites list: drag and drop, keys, clearing, and names that the data file doesn't know.
#include "panel/favourites.h"

#include "panel/panel_fixture.h"
#include "toolkit/drag.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class FavouritesTest : public PanelTest {
 protected:
  // Drags entry `index` of the big list to a place of the panel.
  static void Drag(EmulatorPanel& panel, int index, QWidget* to,
                   Qt::MouseButton button = Qt::LeftButton) {
    ListBox* const list = panel.games->lstRom;
    QWidget* const from = list->viewport();
    PressMouse(from, list->EntryRect(index).center(), button);
    const QPoint target = from->mapFromGlobal(to->mapToGlobal(to->rect().center()));
    MoveMouse(from, target, button);
    ReleaseMouse(from, target, button);
  }
  static void Delete(const EmulatorPanel& panel) {
    PressKey(panel.favourites->lstPref, Qt::Key_Delete);
  }
};

TEST_F(FavouritesTest, AGameIsDraggedInOnce) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame, {"Puck Man"});
  const Favourites& favourites = *panel.favourites;
  QWidget* const target = favourites.lstPref->viewport();
  Drag(panel, 4, target);
  Drag(panel, 4, target);
  Drag(panel, 0, target, Qt::MiddleButton);
  Drag(panel, 2, panel.logo);  // dropped elsewhere
  EXPECT_EQ(Entries(favourites.lstPref), "Aliens|Puck Man|Zaxxon");
  EXPECT_EQ(favourites.lblFavCount->Caption(), "3");
  EXPECT_EQ(favourites.lstPref->Text(), "Puck Man") << "the selection stays on its entry";
  EXPECT_EQ(Caption(panel), "Metal Slug") << "each press is a click as well";
  EXPECT_EQ(Split(drive_.Read(CfgPath(Emulator::kMame))).size(), 7U) << "nothing is written yet";
  panel.SaveCfg();
  EXPECT_THAT(drive_.Read(CfgPath(Emulator::kMame)),
              testing::EndsWith(Lines({"Zaxxon", "Puck Man", "Aliens"})));
  PressKey(panel.games->lstRom, Qt::Key_Insert);
  EXPECT_EQ(Entries(favourites.lstPref), "Aliens|Metal Slug|Puck Man|Zaxxon");
}

TEST_F(FavouritesTest, TheIconOfTheDragTellsTheTarget) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kRaine);
  ListBox* const list = panel.games->lstRom;
  QWidget* const from = list->viewport();
  const auto icon = [] {
    const QCursor* const cursor = QApplication::overrideCursor();
    return cursor == nullptr ? QImage() : cursor->pixmap().toImage();
  };
  const auto move_to = [&](const QWidget* to) {
    MoveMouse(from, from->mapFromGlobal(to->mapToGlobal(to->rect().center())), Qt::LeftButton);
    return icon();
  };
  PressMouse(from, list->EntryRect(0).center());
  const QImage begin = icon();
  ASSERT_FALSE(begin.isNull()) << "at once, without a movement";
  const QImage over = move_to(panel.favourites->lstPref);
  EXPECT_NE(over, begin);
  EXPECT_EQ(move_to(panel.logo), begin);
  EXPECT_EQ(move_to(panel.favourites->lstPref), over);
  ReleaseMouse(from, {-500, -500});
  EXPECT_TRUE(icon().isNull());
  EXPECT_EQ(panel.favourites->lstPref->ListCount(), 0);
}

TEST_F(FavouritesTest, DeleteSelectsTheNextEntryAndRunsItsCycle) {
  struct Case {
    std::vector<std::string> entries;
    int index;
    int index_after;
    std::string current;
    const char* count;
  };
  const std::vector<std::string> three = {"Aliens", "Puck Man", "Zaxxon"};
  const Case cases[] = {
      {three, 0, 0, "Puck Man", "2"},          {three, 1, 1, "Zaxxon", "2"},
      {three, 2, 1, "Puck Man", "2"},          {{"Aliens"}, 0, -1, "Aliens", "0"},
      {{"Aliens"}, -1, -1, "Metal Slug", "1"}, {{}, -1, -1, "Metal Slug", "0"},
  };
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame);
  ListBox* const list = panel.favourites->lstPref;
  for (const Case& at : cases) {
    SCOPED_TRACE(std::to_string(at.entries.size()) + " at " + std::to_string(at.index));
    panel.favourites->SetEntries(at.entries);
    PressEntry(panel.games->lstRom, 2);
    list->SetListIndex(at.index);
    Delete(panel);
    EXPECT_EQ(list->ListIndex(), at.index_after);
    EXPECT_EQ(Caption(panel), at.current);
    EXPECT_EQ(panel.favourites->lblFavCount->Caption(), at.count);
  }
}

TEST_F(FavouritesTest, ClearAsksFirst) {
  for (const EmulatorProfile& profile : Profiles()) {
    if (!profile.has_favourites) continue;
    SCOPED_TRACE(profile.word);
    const std::string first(profile.emulator == Emulator::kMame ? "Aliens" : "Nobody's game");
    EmulatorPanel& panel = OpenConfigured(profile.emulator);
    panel.favourites->SetEntries({first});
    const std::string current = Caption(panel);
    boxes_.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    for (const int left : {1, 0}) {
      Press(panel.favourites->lblClearFav);
      EXPECT_THAT(TakeBoxes(),
                  ElementsAre("? Are you sure you want to delete your favourites list?"));
      EXPECT_EQ(panel.favourites->lstPref->ListCount(), left);
    }
    EXPECT_EQ(panel.favourites->lblFavCount->Caption(), "0");
    EXPECT_EQ(Caption(panel), current);
    Press(panel.cmdExit);
    EXPECT_EQ(Split(drive_.Read(CfgPath(profile.emulator))).size(), 6U);
  }
}

// The message comes for each; all but the first entry go.
TEST_F(FavouritesTest, UnknownNamesGoWhenTheyAreSelected) {
  EmulatorPanel& panel =
      OpenConfigured(Emulator::kMame, {"Aliens", "Gone 1", "Gone 2", "Gone 3", "Puck Man"});
  ListBox* const list = panel.favourites->lstPref;
  PressEntry(list, 1);
  EXPECT_EQ(TakeBoxes().size(), 3U);
  EXPECT_EQ(Entries(list), "Aliens|Puck Man");
  EXPECT_EQ(list->Text(), "Puck Man");
  EXPECT_EQ(Caption(panel), "Puck Man");
  EXPECT_EQ(panel.RomFile, "puckman");
  EXPECT_EQ(panel.favourites->lblFavCount->Caption(), "2");

  panel.favourites->SetEntries({"Aliens", "Gone 1", "Gone 2"});
  PressEntry(list, 2);
  EXPECT_EQ(TakeBoxes().size(), 2U);
  EXPECT_EQ(Entries(list), "Aliens");
  EXPECT_EQ(Caption(panel), "Aliens");

  // The first entry stays, however often it is asked for, and nothing runs in a circle.
  panel.favourites->SetEntries({"Gone 1", "Zaxxon"});
  for (int i = 0; i < 2; ++i) {
    PressEntry(list, 0);
    EXPECT_THAT(TakeBoxes(), ElementsAre(StartsWith("! This rom was not found in Data-File.|")));
    EXPECT_EQ(Entries(list), "Gone 1|Zaxxon");
    EXPECT_EQ(list->ListIndex(), 0);
  }
  EXPECT_EQ(panel.RomFile, "aliens") << "the rom found last";
}

// Nothing is selected among the favourites: the failure selects their first entry.
TEST_F(FavouritesTest, AnUnknownGameOfTheBigListSelectsTheFirstFavouriteAndKeepsTheCaption) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame);
  panel.favourites->SetEntries({"Puck Man"});
  PutData("Mame", DataHead("1") + Game("Puck Man;puckman;O;-;Labyrinth;Namco;1980"));
  PressEntry(panel.games->lstRom, 4);
  EXPECT_EQ(TakeBoxes().size(), 1U);
  EXPECT_EQ(panel.favourites->lstPref->ListIndex(), 0);
  EXPECT_EQ(Caption(panel), "Zaxxon");
  EXPECT_EQ(panel.favourites->lstPref->ListCount(), 1);
}

TEST_F(FavouritesTest, ThePercentageStandsInTheTipWhenItIsAskedFor) {
  const std::pair<Emulator, const char*> cases[] = {
      {Emulator::kMame, "||"},
      {Emulator::kCallus, "| 2% of total | 2% of total "},
      {Emulator::kRaine, "|| 3% of total "},
      {Emulator::kSystem16, "|| 5% of total "}};
  for (const auto& [emulator, tips] : cases) {
    const EmulatorPanel& panel = OpenConfigured(emulator);
    panel.favourites->Add("one");
    Label* const count = panel.favourites->lblFavCount;
    std::string shown = count->ToolTipText() + "|";
    MoveMouse(count);
    shown += count->ToolTipText() + "|";
    Press(count);
    EXPECT_EQ(shown + count->ToolTipText(), tips) << ProfileOf(emulator).word;
  }
  EmulatorPanel& panel = sections_.Panel(Emulator::kCallus);
  for (const char* total : {"0", "many", ""}) {
    panel.games->lblTotal->SetCaption(total);
    MoveMouse(panel.favourites->lblFavCount);
    EXPECT_EQ(panel.favourites->lblFavCount->ToolTipText(), "");
  }
}

TEST_F(FavouritesTest, NamesAreComparedByteByByteAndOddOnesComeBack) {
  PutData("Mame", DataHead("9") + Game("alpha;a;O;-;x;y;1990") + Game("Alpha;b;O;-;x;y;1990") +
                      Game("One, two;c;O;-;x;y;1990") + Game("The \"best\";d;O;-;x;y;1990") +
                      Game("The \"best\", again;e;O;-;x;y;1990"));
  EmulatorPanel& panel = OpenConfigured(Emulator::kMame);
  for (int i = 0; i < 5; ++i) {
    panel.games->lstRom->SetListIndex(i);
    PressKey(panel.games->lstRom, Qt::Key_Insert);
  }
  EXPECT_THAT(TakeBoxes(),
              ElementsAre(StartsWith("! The \"best\", again|This name can't be kept")));
  EXPECT_EQ(Entries(panel.favourites->lstPref), "alpha|Alpha|One, two|The \"best\"");
  Press(panel.cmdExit);
  DropClosed();
  EXPECT_THAT(Split(Entries(Open(Emulator::kMame).favourites->lstPref), "|"),
              testing::UnorderedElementsAre("alpha", "Alpha", "One, two", "The \"best\""));
}

TEST_F(FavouritesTest, TheGamesOfM72CantBeChanged) {
  EmulatorPanel& panel = OpenConfigured(Emulator::kM72);
  PressEntry(panel.favourites->lstPref, 1);
  Delete(panel);
  PressKey(panel.favourites->lstPref, Qt::Key_Insert);
  EXPECT_EQ(panel.favourites->lstPref->ListCount(), 12);
  EXPECT_EQ(panel.favourites->lstPref->Text(), "Dragon Breed");
  PressEntry(panel.favourites->lstPref, 5);
  EXPECT_EQ(TakeBoxes().size(), 1U);
  EXPECT_EQ(panel.favourites->lstPref->ListCount(), 12) << "not in the data file, but it stays";
  EXPECT_EQ(panel.favourites->lblFavCount->Caption(), "12");
}

}  // namespace
}  // namespace zarvo
