#include "ui/toolkit/list_geometry.h"

#include <gtest/gtest.h>

namespace zarvo {
namespace {

// Six rows of 15 pixels and a rest of 9; 20 entries.
constexpr ListGeometry kOneColumn{.view = {200, 99}, .columns = 1, .count = 20, .scrolled = 3};
// The same in three columns of 66 pixels: four of them, the last with two entries.
constexpr ListGeometry kColumns{.view = {200, 99}, .columns = 3, .count = 20, .scrolled = 1};

TEST(ListGeometryTest, EntriesRunDownTheColumnsAndAreFoundWhereTheyStand) {
  EXPECT_EQ(kOneColumn.EntryRect(4), QRect(0, 15, 200, 15));
  EXPECT_EQ(kOneColumn.EntryAt({5, 89}), 8);
  EXPECT_EQ(kOneColumn.EntryAt({5, 91}), -1) << "the rest is too low for a row";
  EXPECT_EQ(kColumns.EntryRect(19), QRect(132, 15, 66, 15));
  EXPECT_EQ(kColumns.EntryAt({199, 0}), 18) << "what is left on the right belongs to the last";
  EXPECT_EQ(kColumns.EntryAt({140, 40}), -1) << "below the last entry";
  for (const ListGeometry& list : {kOneColumn, kColumns}) {
    for (int index = list.FirstSeen(); index < list.LastSeen(); ++index) {
      EXPECT_EQ(list.EntryAt(list.EntryRect(index).center()), index);
    }
    for (const QPoint outside : {QPoint(-1, 5), QPoint(5, -1), QPoint(200, 5), QPoint(5, 99)}) {
      EXPECT_EQ(list.EntryAt(outside), -1);
    }
  }
}

TEST(ListGeometryTest, ScrollsNoFurtherThanItHasToAndToTheLastEntry) {
  EXPECT_EQ(kOneColumn.ScrollRange(99), 14);
  EXPECT_EQ(kColumns.ScrollRange(99), 1);
  ListGeometry few = kColumns;
  few.count = 18;
  EXPECT_EQ(few.ScrollRange(99), 0);
  few.view.setHeight(80);  // the bar has taken the sixth row, and isn't needed
  EXPECT_EQ(few.ScrollRange(99), 0);
  EXPECT_EQ(few.ScrollRange(89), 1);
  const std::pair<int, int> rows[] = {{0, 0}, {2, 2}, {3, 3}, {8, 3}, {9, 4}, {19, 14}};
  for (const auto& [index, scrolled] : rows) EXPECT_EQ(kOneColumn.ScrolledTo(index), scrolled);
  const std::pair<int, int> columns[] = {{0, 0}, {5, 0}, {6, 1}, {19, 1}};
  for (const auto& [index, scrolled] : columns) EXPECT_EQ(kColumns.ScrolledTo(index), scrolled);
}

TEST(ListGeometryTest, StepsGoToTheNextColumnAndByPages) {
  EXPECT_EQ(kColumns.Beside(7, 1), 13);
  EXPECT_EQ(kColumns.Beside(7, -1), 1);
  EXPECT_EQ(kColumns.Beside(1, -1), 1);
  EXPECT_EQ(kColumns.Beside(19, 1), 19);
  EXPECT_EQ(kColumns.Beside(-1, 1), 0);
  EXPECT_EQ(kOneColumn.Beside(7, 1), 8);
  EXPECT_EQ(kOneColumn.PageStep(), 5);
  EXPECT_EQ(kColumns.PageStep(), 18);
}

TEST(ListGeometryTest, AViewWithoutRoomHasARowAndAPixel) {
  const ListGeometry none{.view = {0, 0}, .columns = 3, .count = 5, .scrolled = 0};
  EXPECT_EQ(none.Rows(), 1);
  EXPECT_EQ(none.ColumnWidth(), 1);
  EXPECT_EQ(none.EntryAt({0, 0}), -1);
  EXPECT_EQ(none.ScrollRange(0), 2);
}

}  // namespace
}  // namespace zarvo
