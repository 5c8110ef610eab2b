// The sizes of a panel and the two arrangements of its lists. All numbers are twips.
#pragma once

#include <string>

#include "ui/panel/favourites.h"
#include "ui/panel/game_filters.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/window.h"

namespace zarvo {

class PanelSizes {
 public:
  PanelSizes(Window& panel, const Emulator& emulator, GameFilters& games, Favourites& favourites);

  // The arrangement that the configuration file names, at the panel's load.
  void ArrangeAtLoad();
  void Large();
  void Middle();
  void Short();
  // From the one arrangement to the other; in the large size only.
  void Flip();

  Label* cmdLarge;
  Label* cmdMiddle;
  Label* cmdShort;
  ImageBox* cmdRidimen = nullptr;  // nullptr on M72

  // "up": the game list in columns along the bottom; "down": the tall favourites list.
  std::string lblRidimen = "up";

 private:
  struct DownPlaces;
  void Build();
  void BuildArrow();
  void Resize(int width, int height);
  void ArrangeDown(const DownPlaces& places);
  void ArrangeUp();
  void ShowArrow() const;

  Window& panel_;
  const Emulator& emulator_;
  GameFilters& games_;
  Favourites& favourites_;
};

}  // namespace zarvo
