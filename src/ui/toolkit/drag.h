// The drag that runs, of which there is at most one.
#pragma once

#include <QPoint>
#include <QWidget>

#include "ui/toolkit/event.h"
#include "ui/toolkit/picture.h"

namespace zarvo {

// A control over which a drag is reported and on which it can be dropped.
enum class DragState { kEnter = 0, kLeave = 1, kOver = 2 };

struct DropTarget {
  Event<DragState> DragOver;
  Event<> DragDrop;
};

// Makes `widget` a target; the target must live as long as the widget.
void AcceptDrops(QWidget* widget, DropTarget* target);

// Begins with a press on `source` and ends with the release: the pointer shows the icon from the
// first moment, and the targets under it are told what happens.
void StartDrag(QWidget* source, const Picture& icon);
void ChangeDragIcon(const QWidget* source, const Picture& icon);
[[nodiscard]] bool IsDragging(const QWidget* source);
void MoveDrag(QPoint global);
// The button was released: drops on the target under the pointer, if there is one.
void FinishDrag(QPoint global);
// Ends without a drop.
void CancelDrag(const QWidget* source);

}  // namespace zarvo
