// What the main window, the pickers and the layout manager ask of the emulators' panels.
#pragma once

#include <optional>
#include <string_view>

#include "core/emulators/emulator.h"
#include "core/platform/twips.h"

namespace zarvo {

class SectionHost {
 public:
  virtual ~SectionHost() = default;

  [[nodiscard]] virtual bool IsOpen(const Emulator& emulator) const = 0;
  // The entry to an emulator's section, with its messages. Without a data file nothing opens.
  virtual void OpenSection(const Emulator& emulator) = 0;
  // Saves what every open panel holds, in emulator order: the configuration, then the settings of
  // its current game. What can't be saved is asked about; false if the player stays.
  virtual bool SaveOpenPanels() = 0;
  // The same, and each panel then counts as closed and is unloaded.
  virtual bool CloseOpenPanels() = 0;
  // The place and size of a panel that is open, else nothing.
  [[nodiscard]] virtual std::optional<TwipRect> PanelPlace(const Emulator& emulator) const = 0;
  // Top, Left, Width, Height in that order; nothing happens for a panel that isn't there.
  virtual void SetPanelPlace(const Emulator& emulator, const TwipRect& place) = 0;
  // The mouse is over the main window's ground: the clear labels of some panels return to rest.
  virtual void ResetClearLabels() = 0;
};

// Where the main window stands.
class MainPlace {
 public:
  virtual ~MainPlace() = default;
  [[nodiscard]] virtual int MainLeft() const = 0;
  [[nodiscard]] virtual int MainTop() const = 0;
  // Top first, then Left.
  virtual void SetMainPlace(int top, int left) = 0;
  // A section was opened or closed, for a screen reader.
  virtual void TellSection(const Emulator& /*emulator*/, bool /*open*/) {}
  // The commands of the main window that the panels' hover resets: Lays and About return to rest.
  virtual void ResetCommands() = 0;
};

}  // namespace zarvo
