// Finding a game by typing, and what the two lists tell of themselves.
#include "fakes/key_press.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

class FindTest : public PanelTest {
 protected:
  static void Key(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers,
                  const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, modifiers, text);
      QApplication::sendEvent(widget, &event);
    }
  }
  static void Type(const EmulatorPanel& panel, const QString& text) {
    for (const QChar letter : text) PressKey(panel.find->txtFind, Qt::Key_A, letter);
  }
  // What is found, and the game that is in the caption.
  static std::string Look(const EmulatorPanel& panel) {
    return panel.find->lblFound->Caption() + ": " + Caption(panel);
  }
  static bool IsOpen(const EmulatorPanel& panel) { return panel.find->isVisible(); }
};

TEST_F(FindTest, TypingGoesToTheFirstGameAndTheKeysGoOn) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  ListBox* const list = panel.games->lstRom;
  const int height = list->viewport()->height();
  Key(list, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(IsOpen(panel));
  EXPECT_EQ(Look(panel), ": Aliens");
  EXPECT_EQ(list->viewport()->height(), height - 20) << "no entry is covered";
  Type(panel, QStringLiteral("al"));
  EXPECT_EQ(Look(panel), "1 of 3: Aliens");
  for (const auto& [key, modifiers, look] :
       {std::tuple(Qt::Key_Down, Qt::NoModifier, "2 of 3: Aliens (JP)"),
        {Qt::Key_F3, Qt::NoModifier, "3 of 3: Metal Slug"},
        {Qt::Key_Down, Qt::NoModifier, "1 of 3: Aliens"},
        {Qt::Key_Up, Qt::NoModifier, "3 of 3: Metal Slug"},
        {Qt::Key_F3, Qt::ShiftModifier, "2 of 3: Aliens (JP)"}}) {
    Key(panel.find->txtFind, key, modifiers);
    EXPECT_EQ(Look(panel), look);
  }
  Press(panel.find->cmdNext);
  Press(panel.find->cmdPrevious);
  EXPECT_EQ(Look(panel), "2 of 3: Aliens (JP)");
  Type(panel, QStringLiteral("q"));
  EXPECT_EQ(Look(panel), "none: Aliens (JP)") << "nothing moves";
  panel.find->txtFind->SetText("MSLUG");
  EXPECT_EQ(Look(panel), "1 of 1: Metal Slug") << "the name of its rom";
  PressKey(panel.find->txtFind, Qt::Key_Escape);
  EXPECT_FALSE(IsOpen(panel));
  EXPECT_EQ(Caption(panel), "Metal Slug");
  EXPECT_EQ(list->viewport()->height(), height);
}

TEST_F(FindTest, EnterStartsTheGameThatWasFound) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  drive_.Write(R"(C:\Emu\Mame\Mame.exe)", "");
  drive_.Write(R"(C:\Emu\Mame\Roms\zaxxon.zip)", "");
  Key(panel.games->lstRom, Qt::Key_Slash, Qt::ShiftModifier, QStringLiteral("/"));
  EXPECT_EQ(panel.find->txtFind->Text(), "");
  Type(panel, QStringLiteral("zax"));
  panel.pages->picSettings->txtRomPath->SetText(R"(C:\Emu\Mame\Roms)");
  PressKey(panel.find->txtFind, Qt::Key_Return);
  ASSERT_EQ(runs_.size(), 1U);
  EXPECT_THAT(runs_[0], testing::HasSubstr("Mame.exe zaxxon "));
  for (int held = 0; held < 3; ++held) {
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(panel.find->txtFind, &again);
  }
  EXPECT_EQ(runs_.size(), 1U) << "held down it starts one game";
  EXPECT_TRUE(IsOpen(panel));
}

TEST_F(FindTest, TheFavouritesAreSearchedAndOtherListsAreLeftAlone) {
  EmulatorPanel& panel = OpenConfigured(kMame, {"Zaxxon", "Puck Man"});
  ListBox* const small = panel.favourites->lstPref;
  Key(small, Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(panel.find->List(), small);
  EXPECT_EQ(panel.find->pos(), small->pos());
  Type(panel, QStringLiteral("a"));
  EXPECT_EQ(Look(panel), "1 of 2: Puck Man");
  PressKey(panel.find->txtFind, Qt::Key_Down);
  EXPECT_EQ(Look(panel), "2 of 2: Zaxxon");
  EXPECT_EQ(panel.games->lstRom->ListIndex(), -1);
  panel.favourites->SetEntries({"Zaxxon"});
  PressKey(panel.find->txtFind, Qt::Key_Down);
  EXPECT_EQ(Look(panel), "1 of 1: Zaxxon") << "it looks anew";
  Key(&panel, Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(panel.find->List(), panel.games->lstRom) << "from anywhere in the panel";
  Key(OpenConfigured(kM72).favourites->lstPref, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(IsOpen(sections_.Panel(kM72)));
}

TEST_F(FindTest, TheListOfTheCaptionIsBright) {
  EmulatorPanel& panel = OpenConfigured(kMame, {"Zaxxon", "Puck Man"});
  ListBox* const big = panel.games->lstRom;
  ListBox* const small = panel.favourites->lstPref;
  const auto bright = [&] {
    return std::string(small->IsBright() ? "small" : "") + (big->IsBright() ? "big" : "");
  };
  EXPECT_EQ(bright(), "small");
  PressEntry(big, 2);
  EXPECT_EQ(bright(), "big");
  PressEntry(small, 0);
  EXPECT_EQ(bright(), "small");
}

TEST_F(FindTest, AListThatFiltersLeftEmptyTellsWhich) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  ListBox* const list = panel.games->lstRom;
  EXPECT_EQ(list->EmptyText(), "");
  ComboBox* const year = panel.games->cboFilterYear;
  panel.games->cboFilterMisc->SetListIndex(static_cast<int>(GameState::kClones));
  while (year->Text() != "1980") year->SetListIndex(year->ListIndex() + 1);
  const std::string clones = panel.games->cboFilterMisc->Text();
  EXPECT_EQ(list->ListCount(), 0);
  EXPECT_EQ(list->EmptyText(), "No game passes:\r" + clones + "\r1980");
  EXPECT_EQ(FromQt(list->accessibleDescription().replace(u'\n', u'\r')), list->EmptyText());
  const QImage empty = list->viewport()->grab().toImage();
  list->SetEmptyText("");
  EXPECT_NE(list->viewport()->grab().toImage(), empty);
  panel.games->cboFilterMisc->SetListIndex(0);
  year->SetListIndex(0);
  EXPECT_EQ(list->EmptyText(), "");
}

}  // namespace
}  // namespace zarvo
