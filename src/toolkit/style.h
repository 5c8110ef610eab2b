// The look of the program: one palette, one drawing style for all standard widgets.
#pragma once

class QApplication;

namespace zarvo {

// Sets style, palette, font (11 px, metric-compatible with Arial) and application icon.
void DressUp(QApplication& application);

}  // namespace zarvo
