// The favourites list: drag and drop, keys, clearing, and names that the data file doesn't know.
#include "ui/panel/favourites.h"

#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"
#include "ui/toolkit/drag.h"

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
  // The game in the caption, the favourites with "*" at the selected one, and their count.
  static std::string Look(const EmulatorPanel& panel) {
    const ListBox* const list = panel.favourites->lstPref;
    std::string text = Caption(panel) + ": ";
    for (int i = 0; i < list->ListCount(); ++i) {
      text.append(i > 0 ? "|" : "").append(i == list->ListIndex() ? "*" : "");
      text += list->Items().At(i);
    }
    return text + " (" + panel.favourites->lblFavCount->Caption() + ")";
  }
};

TEST_F(FavouritesTest, AGameIsDraggedInOnce) {
  EmulatorPanel& panel = OpenConfigured(kMame, {"Puck Man"});
  QWidget* const target = panel.favourites->lstPref->viewport();
  Drag(panel, 4, target);
  Drag(panel, 4, target);
  Drag(panel, 0, target, Qt::MiddleButton);
  Drag(panel, 2, panel.logo);  // dropped elsewhere; each press is a click as well
  EXPECT_EQ(Look(panel), "Metal Slug: Aliens|*Puck Man|Zaxxon (3)");
  EXPECT_EQ(Split(drive_.Read(CfgPath(kMame))).size(), 7U) << "nothing is written yet";
  panel.paths->SaveCfg();
  EXPECT_THAT(drive_.Read(CfgPath(kMame)),
              testing::EndsWith(Lines({"Zaxxon", "Puck Man", "Aliens"})));
  PressKey(panel.games->lstRom, Qt::Key_Insert);
  EXPECT_EQ(Look(panel), "Metal Slug: Aliens|Metal Slug|*Puck Man|Zaxxon (4)");
}

TEST_F(FavouritesTest, TheIconOfTheDragTellsTheTarget) {
  EmulatorPanel& panel = OpenConfigured(kRaine);
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
  ReleaseMouse(from, {-500, -500});
  EXPECT_TRUE(icon().isNull());
}

TEST_F(FavouritesTest, DeleteSelectsTheNextEntryAndRunsItsCycle) {
  struct Case {
    std::vector<std::string> entries;
    int index;
    const char* look;
  };
  const std::vector<std::string> three = {"Aliens", "Puck Man", "Zaxxon"};
  const Case cases[] = {
      {three, 0, "Puck Man: *Puck Man|Zaxxon (2)"}, {three, 1, "Zaxxon: Aliens|*Zaxxon (2)"},
      {three, 2, "Puck Man: Aliens|*Puck Man (2)"}, {{"Aliens"}, 0, "Aliens:  (0)"},
      {{"Aliens"}, -1, "Metal Slug: Aliens (1)"},   {{}, -1, "Metal Slug:  (0)"},
  };
  EmulatorPanel& panel = OpenConfigured(kMame);
  for (const Case& at : cases) {
    panel.favourites->SetEntries(at.entries);
    PressEntry(panel.games->lstRom, 2);
    panel.favourites->lstPref->SetListIndex(at.index);
    PressKey(panel.favourites->lstPref, Qt::Key_Delete);
    EXPECT_EQ(Look(panel), at.look) << at.entries.size() << " at " << at.index;
  }
}

TEST_F(FavouritesTest, ClearAsksFirst) {
  for (const Emulator& emulator : kTested) {
    if (!emulator.has_favourites) continue;
    EmulatorPanel& panel = OpenConfigured(emulator);
    const std::string game = Caption(panel);
    panel.favourites->Add("Nobody's game");
    boxes_.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    for (const char* left : {": Nobody's game (1)", ":  (0)"}) {
      Press(panel.favourites->lblClearFav);
      EXPECT_THAT(TakeBoxes(),
                  ElementsAre("? Are you sure you want to delete your favourites list?"));
      EXPECT_EQ(Look(panel), game + left);
    }
    Press(panel.cmdExit);
    EXPECT_EQ(Split(drive_.Read(CfgPath(emulator))).size(), 6U) << emulator.word;
  }
}

// One message and one entry for each look-up; its neighbour is asked about when it is clicked.
TEST_F(FavouritesTest, UnknownNamesGoWhenTheyAreSelected) {
  EmulatorPanel& panel =
      OpenConfigured(kMame, {"Aliens", "Gone 1", "Gone 2", "Gone 3", "Puck Man"});
  ListBox* const list = panel.favourites->lstPref;
  PressEntry(list, 1);
  EXPECT_EQ(TakeBoxes().size(), 1U);
  EXPECT_EQ(Look(panel), "Gone 2: Aliens|*Gone 2|Gone 3|Puck Man (4)");
  PressEntry(list, 2);
  EXPECT_EQ(TakeBoxes().size(), 1U);
  EXPECT_EQ(Look(panel), "Puck Man: Aliens|Gone 2|*Puck Man (3)");
  EXPECT_EQ(panel.game->RomFile, "puckman");

  panel.favourites->SetEntries({"Aliens", "Gone 1", "Gone 2"});
  PressEntry(list, 2);
  EXPECT_EQ(TakeBoxes().size(), 1U);
  EXPECT_EQ(Look(panel), "Gone 1: Aliens|*Gone 1 (2)");

  // The first entry stays, however often it is asked for, and nothing runs in a circle.
  panel.favourites->SetEntries({"Gone 1", "Zaxxon"});
  for (int i = 0; i < 2; ++i) {
    PressEntry(list, 0);
    EXPECT_THAT(TakeBoxes(), ElementsAre(StartsWith("! This rom was not found in Data-File.|")));
    EXPECT_THAT(Look(panel), testing::EndsWith(": *Gone 1|Zaxxon (2)"));
  }
  EXPECT_EQ(panel.game->RomFile, "puckman") << "the rom found last";
}

// Nothing is selected among the favourites: the failure selects their first entry.
TEST_F(FavouritesTest, AnUnknownGameOfTheBigListSelectsTheFirstFavouriteAndKeepsTheCaption) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  panel.favourites->SetEntries({"Puck Man"});
  PutData("Mame", DataHead("1") + Game("Puck Man;puckman;O;-;Labyrinth;Namco;1980"));
  PressEntry(panel.games->lstRom, 4);
  EXPECT_EQ(TakeBoxes().size(), 1U);
  EXPECT_EQ(Look(panel), "Zaxxon: *Puck Man (1)");
}

TEST_F(FavouritesTest, ThePercentageStandsInTheTipWhenItIsAskedFor) {
  const std::pair<Emulator, const char*> cases[] = {{kMame, "||"},
                                                    {kCallus, "| 2% of total | 2% of total "},
                                                    {kRaine, "|| 3% of total "},
                                                    {kSystem16, "|| 5% of total "}};
  for (const auto& [emulator, tips] : cases) {
    const EmulatorPanel& panel = OpenConfigured(emulator);
    panel.favourites->Add("one");
    Label* const count = panel.favourites->lblFavCount;
    std::string shown = count->ToolTipText() + "|";
    MoveMouse(count);
    shown += count->ToolTipText() + "|";
    Press(count);
    EXPECT_EQ(shown + count->ToolTipText(), tips) << emulator.word;
  }
  EmulatorPanel& panel = sections_.Panel(kCallus);
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
  EmulatorPanel& panel = OpenConfigured(kMame);
  for (int i = 0; i < 5; ++i) {
    panel.games->lstRom->SetListIndex(i);
    PressKey(panel.games->lstRom, Qt::Key_Insert);
  }
  EXPECT_THAT(TakeBoxes(),
              ElementsAre(StartsWith("! The \"best\", again|This name can't be kept")));
  EXPECT_EQ(Entries(panel.favourites->lstPref), "alpha|Alpha|One, two|The \"best\"");
  Press(panel.cmdExit);
  DropClosed();
  EXPECT_THAT(Split(Entries(Open(kMame).favourites->lstPref), "|"),
              testing::UnorderedElementsAre("alpha", "Alpha", "One, two", "The \"best\""));
}

TEST_F(FavouritesTest, TheGamesOfM72CantBeChanged) {
  EmulatorPanel& panel = OpenConfigured(kM72);
  ListBox* const list = panel.favourites->lstPref;
  PressEntry(list, 1);
  PressKey(list, Qt::Key_Delete);
  PressKey(list, Qt::Key_Insert);
  PressEntry(list, 5);
  EXPECT_EQ(TakeBoxes().size(), 1U) << "not in the data file, but it stays";
  EXPECT_THAT(Look(panel),
              testing::MatchesRegex(".*: Battle Chopper\\|Dragon Breed\\|.*X-Multiply \\(12\\)"));
  EXPECT_EQ(list->ListCount(), 12);
}

}  // namespace
}  // namespace zarvo
