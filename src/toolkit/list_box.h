// A list of names with one selection, in one or several columns.
#pragma once

#include <QAbstractItemView>
#include <memory>
#include <string>
#include <string_view>

#include "platform/name_list.h"
#include "toolkit/control.h"
#include "toolkit/picture.h"

namespace zarvo {

class DragSession;

// Shows a NameList. Rows are of one height and painted on demand, so that 32,767 entries cost no
// more than ten. With one column it scrolls up and down; with more, entries run down the first
// column and on at the head of the next, and it scrolls sideways.
//
// The selection raises Click inside the statement that sets it to a new value; a press of the left
// or middle button on an entry selects it and raises Click, also if it was selected already. The
// right button selects nothing. Typing finds the next entry that begins so.
class ListBox : public QAbstractItemView, public Control {
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

  Event<> Click;
  Event<> DblClick;
  // The menu key or Shift+F10: the popup of the list at the selected entry.
  Event<QPoint> MenuKey;

  // Starts a drag of this list with the icon `icon`; only from a MouseDown handler. The drag runs
  // until the button is released, see DropTarget.
  void BeginDrag(const Picture& icon);
  // The icon of the drag that runs.
  void SetDragIcon(const Picture& icon);

  // QAbstractItemView:
  [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;
  [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  [[nodiscard]] int horizontalOffset() const override;
  [[nodiscard]] int verticalOffset() const override;
  [[nodiscard]] bool isIndexHidden(const QModelIndex& index) const override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
  [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void updateGeometries() override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  struct Private;
  std::unique_ptr<Private> d_;
};

// A control over which a drag is reported and on which it can be dropped.
enum class DragState { kEnter = 0, kLeave = 1, kOver = 2 };

struct DropTarget {
  Event<DragState> DragOver;
  Event<> DragDrop;
};

// Makes `widget` a target; the target must live as long as the widget.
void AcceptDrops(QWidget* widget, DropTarget* target);

}  // namespace zarvo
