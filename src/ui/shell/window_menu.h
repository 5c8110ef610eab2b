// What the frame of a window would offer, for a window that has none.
#pragma once

#include <functional>
#include <optional>

#include "ui/toolkit/image_box.h"
#include "ui/toolkit/popup_menu.h"
#include "ui/toolkit/window.h"

namespace zarvo {

// Comes up by the right button on the window's logo, and by Alt+Space or the menu key while that
// has the focus.
class WindowMenu {
 public:
  // `put_back` moves the window to its usual place.
  WindowMenu(Window& window, ImageBox& logo, std::function<void()> put_back);

 private:
  // Made when it comes up first: no window opens later for it.
  void ShowAt(QPoint place);
  // To the logo, whose arrow keys move the window.
  void OfferMove();

  Window& window_;
  ImageBox& logo_;
  std::function<void()> put_back_;
  std::optional<PopupMenu> menu_;
};

}  // namespace zarvo
