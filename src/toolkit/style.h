// The look of the program: one palette, one drawing style for all standard widgets.
#pragma once

#include <future>

class QApplication;

namespace zarvo {

// Before the application object is made: scale factors as the desktop gives them, and X11 under
// Wayland, whose windows can't be placed, unless the player chose a platform.
void PrepareApplication();

// Sets style, palette and font (11 px, metric-compatible with Arial).
void DressUp(QApplication& application);

// The rest, for when the first window is on its way to the screen: in a second thread, the font's
// file is found and opened, and the icon of the application is drawn; it's set when that is done.
// The thread has ended when the future is gone, which has to be before the application object goes.
[[nodiscard]] std::future<void> DressUpAside();

}  // namespace zarvo
