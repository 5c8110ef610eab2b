// The look of the program: one palette, one drawing style for all standard widgets.
#pragma once

#include <functional>
#include <future>

class QApplication;

namespace zarvo {

// Before the application object is made: scale factors as the desktop gives them, and X11 under
// Wayland, whose windows can't be placed, unless the player chose a platform.
void PrepareApplication();

// Sets style, palette and font (11 px, metric-compatible with Arial), and a little later the icon.
void DressUp(QApplication& application);

// Has the font's file found and opened in a second thread, while the first window is on its way to
// the screen; then the event loop calls `done`. The thread has ended when the future is gone, which
// has to be before the application object goes.
[[nodiscard]] std::future<void> LoadFont(std::function<void()> done);

}  // namespace zarvo
