// A list box as the program uses it: entries, selection, columns.
#include "toolkit/list_box.h"

#include <gmock/gmock.h>

#include <QScrollBar>

#include "fakes/stage.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class ListBoxTest : public testing::Test {
 protected:
  ListBoxTest() {
    list.SetPlace({.left = 150, .top = 150, .width = 3000, .height = 1500});  // 200 x 100 pixels
    list.Click.Connect([this] { clicks.push_back(list.ListIndex()); });
  }

  void Fill(const std::vector<std::string>& names) {
    for (const std::string& name : names) list.AddItem(name);
  }
  void FillNumbers(int count) {
    for (int i = 0; i < count; ++i) list.AddItem("Game " + std::to_string(i));
  }
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (int i = 0; i < list.ListCount(); ++i) names.emplace_back(list.Items().At(i));
    return names;
  }

  Stage stage;
  ListBox list{&stage};
  std::vector<int> clicks;  // the selection that each click saw
};

TEST_F(ListBoxTest, ANewSelectionClicksOnceAndBeforeTheSetterReturns) {
  Fill({"a", "b", "c"});
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");
  EXPECT_TRUE(list.SetListIndex(2));
  EXPECT_THAT(clicks, ElementsAre(2));
  EXPECT_EQ(list.Text(), "c");
  EXPECT_TRUE(list.SetListIndex(2));
  EXPECT_THAT(clicks, ElementsAre(2)) << "the same selection again is no click";
  EXPECT_TRUE(list.SetListIndex(-1));
  EXPECT_THAT(clicks, ElementsAre(2, -1));
}

TEST_F(ListBoxTest, ASelectionOutOfRangeIsRefused) {
  EXPECT_FALSE(list.SetListIndex(0));
  Fill({"a", "b"});
  EXPECT_FALSE(list.SetListIndex(2));
  EXPECT_FALSE(list.SetListIndex(-2));
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(ListBoxTest, ASortedListKeepsTheSelectionOnItsEntry) {
  list.SetSorted(true);
  Fill({"Pac-Man", "asteroids", "Zaxxon", "1942"});
  EXPECT_THAT(Names(), ElementsAre("1942", "asteroids", "Pac-Man", "Zaxxon"));
  EXPECT_TRUE(list.SetListIndex(1));
  clicks.clear();
  Fill({"Arkanoid", "Bosconian"});
  EXPECT_EQ(list.Text(), "asteroids");
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(ListBoxTest, EqualNamesKeepTheSelection) {
  list.SetSorted(true);
  Fill({"Galaga", "Galaxian"});
  EXPECT_TRUE(list.SetListIndex(0));
  list.AddItem("GALAGA");
  EXPECT_EQ(list.Text(), "Galaga");
}

TEST_F(ListBoxTest, RemovalMovesOrDropsTheSelectionWithoutAClick) {
  struct Case {
    int selected;
    int removed;
    int left;
  };
  for (const Case& each : {Case{1, 0, 0}, Case{1, 1, -1}, Case{1, 2, 1}, Case{-1, 0, -1}}) {
    list.Clear();
    Fill({"a", "b", "c"});
    list.SetListIndex(each.selected);
    clicks.clear();
    EXPECT_TRUE(list.RemoveItem(each.removed));
    EXPECT_EQ(list.ListIndex(), each.left) << each.selected << " without " << each.removed;
    EXPECT_TRUE(clicks.empty());
  }
  EXPECT_FALSE(list.RemoveItem(2));
  EXPECT_FALSE(list.RemoveItem(-1));
  EXPECT_EQ(list.ListCount(), 2);
}

TEST_F(ListBoxTest, ClearAndSetItemsDropTheSelectionWithoutAClick) {
  Fill({"a", "b"});
  list.SetListIndex(1);
  clicks.clear();
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");

  NameList names;
  for (const char* name : {"b", "C", "a"}) names.Append(name);
  list.SetSorted(true);
  list.SetItems(names);
  EXPECT_THAT(Names(), ElementsAre("a", "b", "C"));
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(ListBoxTest, HoldsNoMoreThanA16BitCountCanSay) {
  NameList names;
  for (int i = 0; i < kMostEntries; ++i) names.Append("x");
  list.SetItems(names);
  list.AddItem("one more");
  EXPECT_EQ(list.ListCount(), kMostEntries);
  list.SetSorted(true);
  list.SetListIndex(5);
  list.AddItem("a");
  EXPECT_EQ(list.ListCount(), kMostEntries);
  EXPECT_EQ(list.ListIndex(), 5);
}

// Rows are 15 pixels: six whole ones in a list of 100.
TEST_F(ListBoxTest, OneColumnScrollsDownToTheSelection) {
  FillNumbers(20);
  stage.Open();
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
  FillNumbers(20);
  stage.Open();
  const int rows = (100 - list.horizontalScrollBar()->height()) / 15;
  EXPECT_EQ(list.EntryRect(0).topLeft(), QPoint(0, 0));
  EXPECT_EQ(list.EntryRect(rows).topLeft(), QPoint(100, 0));
  EXPECT_EQ(list.EntryRect(0).width(), 100);
  EXPECT_EQ(list.EntryAt({150, 20}), rows + 1);
  list.SetListIndex(19);
  EXPECT_GT(list.horizontalScrollBar()->value(), 0);
  EXPECT_TRUE(list.viewport()->rect().contains(list.EntryRect(19)));
  EXPECT_EQ(list.EntryAt(list.EntryRect(19).center()), 19);
}

TEST_F(ListBoxTest, ColumnsThatFitHaveNoScrollBarWhateverWasThereBefore) {
  list.SetColumns(2);
  FillNumbers(13);
  stage.Open();
  const QScrollBar* const bar = list.horizontalScrollBar();
  EXPECT_TRUE(bar->isVisible());
  list.RemoveItem(12);
  EXPECT_TRUE(QTest::qWaitFor([bar] { return !bar->isVisible(); })) << "two columns of six";
  EXPECT_EQ(list.EntryRect(6).topLeft(), QPoint(100, 0));
}

TEST_F(ListBoxTest, AChangeOfColumnsKeepsTheSelectionInSight) {
  FillNumbers(200);
  stage.Open();
  list.SetListIndex(120);
  for (const int columns : {2, 1, 3}) {
    list.SetColumns(columns);
    EXPECT_TRUE(list.viewport()->rect().contains(list.EntryRect(120))) << columns;
  }
  list.SetHeight(600);
  EXPECT_TRUE(list.viewport()->rect().contains(list.EntryRect(120)));
  EXPECT_EQ(clicks.size(), 1U);
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
  EXPECT_EQ(list.Text(), "e");
  EXPECT_THAT(clicks, ElementsAre(1, 1));
}

}  // namespace
}  // namespace zarvo
