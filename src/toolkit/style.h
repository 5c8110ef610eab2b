// The look of the program: one palette, one drawing style for all standard widgets.
#pragma once

class QApplication;

namespace zarvo {

// Before the application object is made: scale factors as the desktop gives them, and X11 under
// Wayland, whose windows can't be placed, unless the player chose a platform.
void PrepareApplication();

// Sets style, palette, font (11 px, metric-compatible with Arial) and application icon.
void DressUp(QApplication& application);

}  // namespace zarvo
