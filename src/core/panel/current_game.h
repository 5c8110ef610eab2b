// The game in the caption of a panel: its record in the settings store, and its rom.
//
// The controls are the only live copy of a game's settings. They always belong to the game in the
// caption: whenever it moves, that game's record is loaded into them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/catalogue/catalogue.h"
#include "core/launch/settings_store.h"

namespace zarvo {

// The controls that show the game and hold its settings, and what the game needs of its panel.
struct GameControls {
  std::function<std::string()> caption;
  std::function<void(const std::string& name)> set_caption;
  std::function<OptionValues()> values;
  std::function<void(const OptionValues& values)> apply;
  std::function<std::string()> rom_folder;           // the configured one, for the defaults
  std::function<void(const Status& status)> report;  // shows a failure, if it is one
  std::function<void()> unknown;                     // tells that the data file lacks a game
};

class CurrentGame {
 public:
  CurrentGame(const Emulator& emulator, Catalogue catalogue, SettingsStore store,
              GameControls controls);

  [[nodiscard]] std::string Name() const { return controls_.caption(); }
  [[nodiscard]] const Catalogue& Games() const { return catalogue_; }

  // Puts a name in the caption and leaves the controls as they are.
  void Rename(const std::string& name) { controls_.set_caption(name); }
  // Moves the caption to a game and loads its record; whether it moved.
  bool MoveTo(const std::string& name);
  // Loads the record of `key` into the controls.
  LoadOutcome Load(std::string_view key);
  void ApplyDefaults();

  // The record of `key` from the controls. TrySave shows no box: an error names the file and the
  // reason. A store that stays as it is because it couldn't be read is no error, for that was told
  // when it was noticed.
  void Save(std::string_view key) { controls_.report(TrySave(key)); }
  Status TrySave(std::string_view key);
  void Save() { Save(Name()); }
  // Erases all records; the controls become the default one.
  Status SaveAsDefault() { return store_.SaveAsDefault(controls_.values()); }
  // Saves the rom folder that the controls hold in the game's record, and nothing else of them.
  void KeepRomFolder();

  // Another game's settings in the controls while it is started, and the way back.
  void Borrow(const std::string& game);
  void TakeBack();

  // Looks a game up: sets RomFile and ParentFile; false, after the message, if it isn't known.
  bool Find(std::string_view name);

  std::string RomFile;     // rom name of the game looked up last
  std::string ParentFile;  // and its parent

 private:
  const Emulator& emulator_;
  Catalogue catalogue_;
  SettingsStore store_;
  GameControls controls_;
  // What the controls held for the game in the caption while another one borrows them.
  std::optional<OptionValues> set_aside_;
  bool tells_unknown_ = false;
};

}  // namespace zarvo
