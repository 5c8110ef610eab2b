// The favourites of a panel: a short list that the player fills from the big one. On M72 it is the
// fixed list of games.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/panel/panel_tools.h"
#include "ui/toolkit/drag.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"

namespace zarvo {

class Favourites {
 public:
  Favourites(QWidget* panel, const Emulator& emulator, const PanelTools& tools);

  // Wires drag, Insert key and percentage to the big list and to the total; not for M72.
  void Connect(ListBox* big_list, const Label* total);

  void ShowCount();
  // Adds a game unless it is there; a name that can't be kept is refused with a message.
  void Add(const std::string& name);
  // Replaces all entries.
  void SetEntries(const std::vector<std::string>& names);
  // The entries from the last to the first, as the configuration file keeps them.
  [[nodiscard]] std::vector<std::string> EntriesBackwards() const;
  // After a look-up has failed: the selected entry goes, unless it is the first.
  void RemoveUnknown();

  ListBox* lstPref;
  Label* lblFavorties;
  Label* lblFavCount;
  Label* lblClearFav = nullptr;  // nullptr on M72

 private:
  void Build(QWidget* panel);
  void BuildClear(QWidget* panel);
  void ConnectDrag(ListBox* big_list);
  void OnKey(const KeyArgs& key);
  void RemoveSelected();
  void AskAndClear();
  void ShowPercentage(const Label* total);

  const Emulator& emulator_;
  const PanelTools& tools_;
  DropTarget target_;
};

}  // namespace zarvo
