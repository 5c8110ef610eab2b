#include "ui/toolkit/list_geometry.h"

#include <algorithm>

namespace zarvo {
namespace {

constexpr int kRowHeight = 15;

}  // namespace

int ListGeometry::Rows() const { return std::max(1, view.height() / kRowHeight); }

int ListGeometry::ColumnWidth() const { return std::max(1, view.width() / columns); }

QRect ListGeometry::EntryRect(int index) const {
  if (!IsSideways()) return {0, (index - scrolled) * kRowHeight, view.width(), kRowHeight};
  const int column = index / Rows() - scrolled;
  return {column * ColumnWidth(), index % Rows() * kRowHeight, ColumnWidth(), kRowHeight};
}

int ListGeometry::EntryAt(const QPoint& point) const {
  if (!QRect({}, view).contains(point)) return -1;
  const int row = point.y() / kRowHeight;
  if (row >= Rows()) return -1;  // the rest of the height, too low for a row
  const int column = IsSideways() ? std::min(point.x() / ColumnWidth(), columns - 1) : 0;
  const int index = FirstSeen() + column * Rows() + row;
  return index < count ? index : -1;
}

int ListGeometry::FirstSeen() const { return IsSideways() ? scrolled * Rows() : scrolled; }

int ListGeometry::LastSeen() const { return std::min(FirstSeen() + columns * Rows(), count); }

int ListGeometry::ScrollRange(int whole_height) const {
  if (!IsSideways()) return std::max(0, count - Rows());
  if (count <= std::max(1, whole_height / kRowHeight) * columns) return 0;
  return std::max(0, (count + Rows() - 1) / Rows() - columns);
}

int ListGeometry::ScrollPage() const { return IsSideways() ? columns : Rows(); }

int ListGeometry::ScrolledTo(int index) const {
  const int place = IsSideways() ? index / Rows() : index;
  return std::clamp(scrolled, place - ScrollPage() + 1, place);
}

int ListGeometry::PageStep() const {
  return IsSideways() ? columns * Rows() : std::max(1, Rows() - 1);
}

int ListGeometry::Beside(int index, int steps) const {
  if (!IsSideways() || index < 0) return index + steps;
  const int column = index / Rows() + steps;
  if (column < 0 || column > (count - 1) / Rows()) return index;
  return index + steps * Rows();
}

}  // namespace zarvo
