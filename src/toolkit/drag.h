// The drag that runs, of which there is at most one.
#pragma once

#include <QPoint>

#include "toolkit/list_box.h"

namespace zarvo {

// Begins with a press on `source` and ends with the release: the pointer shows the icon from the
// first moment, and the targets under it are told what happens.
void StartDrag(ListBox* source, const Picture& icon);
void ChangeDragIcon(const ListBox* source, const Picture& icon);
[[nodiscard]] bool IsDragging(const ListBox* source);
void MoveDrag(QPoint global);
// The button was released: drops on the target under the pointer, if there is one.
void FinishDrag(QPoint global);
// Ends without a drop.
void CancelDrag(const ListBox* source);

}  // namespace zarvo
