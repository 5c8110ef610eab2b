// The popup menu of a panel's lists: four short facts about one game, and what can be done.
#pragma once

#include <string_view>

#include "core/catalogue/catalogue.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/popup_menu.h"

namespace zarvo {

class ListMenu {
 public:
  ListMenu(const Emulator& emulator, const Catalogue& games);

  // Sets the captions for one game; they stay as they are for a game that isn't known. An empty
  // name empties them.
  void Prepare(std::string_view name);

  // The right button and the menu key on `list` open the menu for its selected game.
  // `needs_selection`: not without one.
  void Serve(ListBox* list, bool needs_selection);

  // "Find" was chosen in the menu of a list.
  Event<ListBox*> Find;

  [[nodiscard]] const PopupMenu& Menu() const { return menu_; }

 private:
  void Open(ListBox* list, bool needs_selection, QPoint place);

  const Catalogue& games_;
  PopupMenu menu_;
  ListBox* list_ = nullptr;  // whose menu it is
};

}  // namespace zarvo
