// The colours of a panel's buttons under the mouse.
#pragma once

namespace zarvo {

class EmulatorPanel;

// A button takes its hover colours when the mouse moves over it and returns to rest when the mouse
// moves over a neighbour that resets it.
void WireHover(EmulatorPanel& panel);

// The clear label at rest, as the main window resets it from outside.
void ResetClearLabel(EmulatorPanel& panel);

}  // namespace zarvo
