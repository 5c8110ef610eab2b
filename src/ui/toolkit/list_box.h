// A list of names with one selection, in one or several columns.
#pragma once

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform/name_list.h"
#include "ui/toolkit/control.h"
#include "ui/toolkit/list_geometry.h"
#include "ui/toolkit/picture.h"

namespace zarvo {

// Shows a NameList. Rows are of one height and painted on demand, so that 32,767 entries cost no
// more than ten. With one column it scrolls up and down; with more, entries run down the first
// column and on at the head of the next, and it scrolls sideways.
//
// The selection raises Click inside the statement that sets it to a new value; a press of the left
// or middle button on an entry selects it and raises Click, also if it was selected already. The
// right button selects nothing. Typing finds the next entry that begins so.
class ListBox : public QAbstractScrollArea, public Control {
 public:
  explicit ListBox(QWidget* parent);
  ~ListBox() override;

  [[nodiscard]] int ListIndex() const;  // -1: none
  // A value out of range, but -1, is no change and returns false.
  bool SetListIndex(int index);
  [[nodiscard]] int ListCount() const;
  // The selected entry, else empty.
  [[nodiscard]] std::string Text() const;
  [[nodiscard]] const NameList& Items() const;

  // Keeps the entries in the program's order from now on; for an empty list.
  void SetSorted(bool sorted);
  void AddItem(std::string_view text);
  // False if there is no such entry. The selection falls to -1 if its entry goes, and moves with
  // its entry otherwise; neither raises Click.
  bool RemoveItem(int index);
  void Clear();
  // All entries at once, sorted if the list is; no selection, no Click.
  void SetItems(NameList items);

  [[nodiscard]] int Columns() const;
  void SetColumns(int columns);
  // Height of the text in pixels; 11 unless set.
  void SetTextSize(int pixels);
  // Whether its selected entry is the one that counts; true at first. The other's is painted dim.
  void SetBright(bool bright);
  [[nodiscard]] bool IsBright() const { return bright_; }
  // Stands in the list, and is heard, while that has no entries.
  void SetEmptyText(std::string_view text);
  [[nodiscard]] const std::string& EmptyText() const { return empty_text_; }
  // Keeps so many pixels above the entries free, for a control that stands in the list.
  void SetHeadRoom(int pixels);

  Event<> Click;
  Event<> DblClick;
  // The menu key or Shift+F10: the popup of the list at the selected entry.
  Event<QPoint> MenuKey;

  // Starts a drag of this list with the icon `icon`; only from a MouseDown handler. The drag runs
  // until the button is released, see DropTarget.
  void BeginDrag(const Picture& icon);
  // The icon of the drag that runs.
  void SetDragIcon(const Picture& icon);

  // Only from a KeyDown handler: neither the list nor its window acts on this key.
  void SwallowKey() { swallow_ = true; }

  // Place of an entry within the viewport, in pixels, and the entry at a place, or -1.
  [[nodiscard]] QRect EntryRect(int index) const;
  [[nodiscard]] int EntryAt(QPoint point) const;

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void UpdateScrollBars();
  void ScrollTo(int index);
  void Show(int index);
  void Choose(int index);
  bool MoveByKey(int key);
  void Search(const QKeyEvent& event);
  [[nodiscard]] ListGeometry Geometry() const;
  [[nodiscard]] QScrollBar* Bar() const;  // the one that can be needed
  [[nodiscard]] QRect TextRect(int index) const;
  // The whole text of an entry that doesn't fit; false if it does, or there is none.
  bool ShowWholeText(int index, const QPoint& place);
  void PaintEntry(QPainter& painter, int index, const QRect& rect);

  NameList items_;
  int index_ = -1;
  int columns_ = 1;
  int head_room_ = 0;
  bool bright_ = true;
  std::string empty_text_;
  bool sorted_ = false;
  QElapsedTimer enter_ran_;  // since the end of a child that Enter started
  bool swallow_ = false;
  std::string typed_;
  quint64 typed_at_ = 0;  // milliseconds, as the events tell
};

}  // namespace zarvo
