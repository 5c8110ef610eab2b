// The display that the program opens its windows on.
#pragma once

#include <string>

namespace zarvo {

// Chooses Qt's platform before Qt starts: X11 where an X server answers, because windows can't
// place themselves under Wayland; else Wayland, if Qt can speak it here. A platform that the player
// chose in QT_QPA_PLATFORM stays. Gives one plain line if there is no display to open a window on,
// empty if there is.
std::string ChooseDisplay();

}  // namespace zarvo
