// A list box as the program uses it: entries, selection, columns.
#include "ui/toolkit/list_box.h"

#include <QScrollBar>

#include "ui/toolkit/list_fixture.h"

namespace zarvo {
namespace {

class ListBoxTest : public ListTest {
 protected:
  std::string State() { return EntriesOf(list) + log(); }
  [[nodiscard]] bool InSight(int index) const {
    return list.viewport()->rect().contains(list.EntryRect(index));
  }
};

TEST_F(ListBoxTest, OnlyANewSelectionClicks) {
  EXPECT_FALSE(list.SetListIndex(0));
  Fill({"a", "b", "c"});
  EXPECT_EQ(State() + list.Text(), "a|b|c|");
  EXPECT_TRUE(list.SetListIndex(2));
  EXPECT_EQ(State(), "a|b|[c]| click c");
  EXPECT_TRUE(list.SetListIndex(2));
  EXPECT_FALSE(list.SetListIndex(3));
  EXPECT_FALSE(list.SetListIndex(-2));
  EXPECT_EQ(State(), "a|b|[c]|");
  EXPECT_EQ(list.Text(), "c");
  EXPECT_TRUE(list.SetListIndex(-1));
  EXPECT_EQ(State(), "a|b|c| click ");
}

TEST_F(ListBoxTest, ASortedListKeepsTheSelectionOnItsEntry) {
  list.SetSorted(true);
  Fill({"Pac-Man", "asteroids", "Zaxxon", "1942"});
  list.SetListIndex(1);
  EXPECT_EQ(State(), "1942|[asteroids]|Pac-Man|Zaxxon| click asteroids");
  Fill({"Arkanoid", "Bosconian", "ASTEROIDS"});
  EXPECT_EQ(State(), "1942|Arkanoid|[asteroids]|ASTEROIDS|Bosconian|Pac-Man|Zaxxon|");
}

TEST_F(ListBoxTest, RemovalMovesOrDropsTheSelectionWithoutAClick) {
  const auto without = [this](int selected, int removed) {
    list.Clear();
    Fill({"a", "b", "c"});
    list.SetListIndex(selected);
    log();
    EXPECT_TRUE(list.RemoveItem(removed));
    return State();
  };
  EXPECT_EQ(without(1, 1), "a|c|");
  EXPECT_EQ(without(1, 2), "a|[b]|");
  EXPECT_EQ(without(-1, 0), "b|c|");
  EXPECT_EQ(without(1, 0), "[b]|c|");
  EXPECT_FALSE(list.RemoveItem(2));
  EXPECT_FALSE(list.RemoveItem(-1));
  EXPECT_EQ(State(), "[b]|c|");
  NameList names;
  for (const char* name : {"b", "C", "a"}) names.Append(name);
  list.SetSorted(true);
  list.SetItems(names);
  EXPECT_EQ(State() + list.Text(), "a|b|C|");
}

TEST_F(ListBoxTest, HoldsNoMoreThanA16BitCountCanSay) {
  NameList names;
  for (int i = 0; i < kMostEntries; ++i) names.Append("x");
  list.SetItems(names);
  list.SetListIndex(5);
  for (const bool sorted : {false, true}) {
    list.SetSorted(sorted);
    list.AddItem("a");
    EXPECT_EQ(list.ListCount(), kMostEntries);
    EXPECT_EQ(list.ListIndex(), 5);
  }
}

// Rows are 15 pixels: six whole ones in a list of 96.
TEST_F(ListBoxTest, OneColumnScrollsDownToTheSelection) {
  OpenWith(20);
  EXPECT_EQ(list.EntryAt({5, 16}), 1);
  EXPECT_EQ(list.EntryRect(1).top(), 15);
  list.SetListIndex(19);
  EXPECT_EQ(list.verticalScrollBar()->value(), 14);
  EXPECT_EQ(list.EntryRect(19).top(), 75);
  EXPECT_EQ(list.EntryAt({5, 80}), 19);
  EXPECT_EQ(list.EntryAt({5, 95}), -1) << "below the last entry";
  EXPECT_EQ(list.EntryAt({5, -3}), -1);
  list.SetListIndex(3);
  EXPECT_EQ(list.verticalScrollBar()->value(), 3);
}

// With the scroll bar five rows remain of the six.
TEST_F(ListBoxTest, ColumnsRunDownAndOnAtTheHeadOfTheNext) {
  list.SetColumns(2);
  OpenWith(20);
  EXPECT_EQ(list.EntryRect(0), QRect(0, 0, 100, 15));
  EXPECT_EQ(list.EntryRect(5).topLeft(), QPoint(100, 0));
  EXPECT_EQ(list.EntryAt({150, 20}), 6);
  list.SetListIndex(19);
  EXPECT_EQ(list.horizontalScrollBar()->value(), 2);
  EXPECT_TRUE(InSight(19));
  EXPECT_EQ(list.EntryAt(list.EntryRect(19).center()), 19);
}

TEST_F(ListBoxTest, ColumnsThatFitHaveNoScrollBarWhateverWasThereBefore) {
  list.SetColumns(2);
  OpenWith(13);
  const QScrollBar* const bar = list.horizontalScrollBar();
  EXPECT_TRUE(bar->isVisible());
  list.RemoveItem(12);
  EXPECT_TRUE(QTest::qWaitFor([bar] { return !bar->isVisible(); })) << "two columns of six";
  EXPECT_EQ(list.EntryRect(6).topLeft(), QPoint(100, 0));
}

TEST_F(ListBoxTest, AChangeOfColumnsOrSizeKeepsTheSelectionInSight) {
  OpenWith(200);
  list.SetListIndex(120);
  for (const int columns : {2, 1, 3}) {
    list.SetColumns(columns);
    EXPECT_TRUE(InSight(120)) << columns;
  }
  list.SetHeight(600);
  EXPECT_TRUE(InSight(120));
  EXPECT_EQ(log(), " click 120");
}

// A click handler that fills the list anew, as a filter does from inside a click.
TEST_F(ListBoxTest, AHandlerMayChangeTheListUnderItsFeet) {
  Fill({"a", "b", "c"});
  list.Click.Connect([this] {
    if (list.Text() != "b") return;
    list.Clear();
    Fill({"d", "e"});
    list.SetListIndex(1);
  });
  EXPECT_TRUE(list.SetListIndex(1));
  EXPECT_EQ(State(), "d|[e]| click b click e");
}

}  // namespace
}  // namespace zarvo
