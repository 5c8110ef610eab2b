// Which entry of a list is where.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace zarvo {

// Entries of one height in a view that is scrolled by whole entries. With one column the list runs,
// and is scrolled, up and down. With more, entries run down the first column and on at the head of
// the next, and it is scrolled sideways, by columns. Lengths are pixels.
struct ListGeometry {
  QSize view;
  int columns;   // side by side in the view, 1 or more
  int count;     // entries
  int scrolled;  // entries above the view, or columns left of it

  [[nodiscard]] bool IsSideways() const { return columns > 1; }
  // Whole rows in the view; at least 1.
  [[nodiscard]] int Rows() const;
  [[nodiscard]] int ColumnWidth() const;

  // The place of an entry, in the view or beyond it; and the entry at a point of the view, else -1.
  [[nodiscard]] QRect EntryRect(int index) const;
  [[nodiscard]] int EntryAt(const QPoint& point) const;
  // The entries that are seen: from the first to the one before the last.
  [[nodiscard]] int FirstSeen() const;
  [[nodiscard]] int LastSeen() const;

  // What the list can be scrolled to at most, if it has this height where nothing needs to be
  // scrolled: the bar of a list with columns takes room from the view.
  [[nodiscard]] int ScrollRange(int whole_height) const;
  // What is seen at once, in the unit of `scrolled`.
  [[nodiscard]] int ScrollPage() const;
  // The least change of `scrolled` that shows an entry; gives the new value.
  [[nodiscard]] int ScrolledTo(int index) const;

  // How many entries Page Up and Page Down go.
  [[nodiscard]] int PageStep() const;
  // The entry so many columns beside one; the same where there is none, for the last column may be
  // a short one. In one column, or without an entry (-1), so many entries further.
  [[nodiscard]] int Beside(int index, int steps) const;
};

}  // namespace zarvo
