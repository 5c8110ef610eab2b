// The way that Tab takes through the controls of a window.
#pragma once

#include <QWidget>
#include <initializer_list>

namespace zarvo {

// Tab goes through the parts in the order given, and through the controls that stand on a part as
// the eye does: row by row, from left to right. A nullptr is passed over.
void OrderTabs(std::initializer_list<QWidget*> parts);

}  // namespace zarvo
