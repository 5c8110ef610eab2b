// A menu that pops up at a place of the screen.
#pragma once

#include <QMenu>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

// An item does nothing when chosen unless it is given an action: the menu is a small display. Items
// are named once, their captions change.
class PopupMenu {
 public:
  // Item names in order; an empty name is a separator.
  PopupMenu(std::string_view object_name, const std::vector<std::string>& item_names);

  // What a screen reader says of the menu; "Facts about the game" at first.
  void SetAccessibleName(std::string_view name);
  void SetCaption(int item, std::string_view caption);
  void SetAction(int item, std::function<void()> action);
  [[nodiscard]] std::string Caption(int item) const;
  // Returns when the menu has been closed.
  void ShowAt(QPoint global);

 private:
  QMenu menu_;
  std::vector<QAction*> items_;
};

}  // namespace zarvo
