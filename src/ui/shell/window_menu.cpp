#include "ui/shell/window_menu.h"

#include <string>
#include <utility>
#include <vector>

#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

// Places of the items in the menu.
enum Item { kMinimise, kMove, kPutBack, kSeparator, kClose };

}  // namespace

WindowMenu::WindowMenu(Window& window, ImageBox& logo, std::function<void()> put_back)
    : window_(window), logo_(logo), put_back_(std::move(put_back)) {
  logo.MouseDown.Connect([this](const MouseArgs& mouse) {
    if (mouse.button == MouseButton::kRight) ShowAt(mouse.global);
  });
  logo.KeyDown.Connect([this](const KeyArgs& key) {
    const bool alt_space = key.code == key::kSpace && key.shift == kAltDown;
    if (alt_space || key.code == key::kMenu) {
      ShowAt(logo_.mapToGlobal(logo_.rect().bottomLeft()));
    }
  });
}

void WindowMenu::ShowAt(QPoint place) {
  if (!menu_) {
    menu_.emplace("mnuWindow",
                  std::vector<std::string>{"mnuMinimise", "mnuMove", "mnuPutBack", "", "mnuClose"});
    menu_->SetAccessibleName("Window menu");
    menu_->SetCaption(kMinimise, "Minimise");
    menu_->SetCaption(kMove, "Move  (arrow keys)");
    menu_->SetCaption(kPutBack, "Put back");
    menu_->SetCaption(kClose, "Close  (Alt+F4)");
    menu_->SetAction(kMinimise, [this] { window_.showMinimized(); });
    menu_->SetAction(kMove, [this] { OfferMove(); });
    menu_->SetAction(kPutBack, put_back_);
    menu_->SetAction(kClose, [this] { window_.close(); });
  }
  menu_->ShowAt(place);
}

void WindowMenu::OfferMove() {
  logo_.setFocus();
  ShowTip(logo_.mapToGlobal(logo_.rect().bottomLeft()),
          "The arrow keys move the window; the mouse drags it.", &logo_);
}

}  // namespace zarvo
