#include "core/panel/current_game.h"

#include <utility>

namespace zarvo {

CurrentGame::CurrentGame(const Emulator& emulator, Catalogue catalogue, SettingsStore store,
                         GameControls controls)
    : emulator_(emulator),
      catalogue_(std::move(catalogue)),
      store_(std::move(store)),
      controls_(std::move(controls)) {}

bool CurrentGame::MoveTo(const std::string& name) {
  const std::string before = Name();
  if (name == before) return false;
  controls_.set_caption(name);
  // While no game was current the controls held no game's values: start values or presets stay.
  const LoadOutcome outcome = Load(name);
  if (outcome == LoadOutcome::kNothing && !before.empty()) ApplyDefaults();
  return true;
}

LoadOutcome CurrentGame::Load(std::string_view key) {
  OptionValues values = controls_.values();
  // A start borrows the controls for another game: what it sees says nothing about their own.
  SettingsStore borrowed = store_;
  SettingsStore& store = key == Name() ? store_ : borrowed;
  const bool told = !store.Usable();
  const LoadOutcome outcome = store.Load(key, controls_.rom_folder(), values);
  if (!told) controls_.report(store.Usable());
  if (outcome != LoadOutcome::kNothing) controls_.apply(values);
  return outcome;
}

void CurrentGame::ApplyDefaults() {
  controls_.apply(DefaultValues(emulator_, controls_.rom_folder()));
}

Status CurrentGame::TrySave(std::string_view key) {
  if (!store_.Usable()) return Success();
  return store_.Save(key, controls_.values());
}

void CurrentGame::KeepRomFolder() {
  OptionValues values = controls_.values();
  const std::string folder = values.rom_folder;
  store_.Load(Name(), controls_.rom_folder(), values);
  values.rom_folder = folder;
  controls_.report(store_.Save(Name(), values));
}

void CurrentGame::Borrow(const std::string& game) {
  const bool other = game != Name();
  if (other) set_aside_ = controls_.values();
  if (Load(game) == LoadOutcome::kNothing && other) ApplyDefaults();
}

void CurrentGame::TakeBack() {
  if (set_aside_) controls_.apply(*std::exchange(set_aside_, std::nullopt));
}

bool CurrentGame::Find(std::string_view name) {
  const auto record = catalogue_.Find(name);
  if (record && record->field_count > static_cast<int>(Field::kRomFile)) {
    RomFile = (*record)[Field::kRomFile];
  }
  if (record && record->field_count > static_cast<int>(Field::kCloneOf)) {
    ParentFile = (*record)[Field::kCloneOf];
    return true;
  }
  // What is told may select a neighbour, which is looked up in turn: its failure is the same one.
  if (std::exchange(tells_unknown_, true)) return false;
  controls_.unknown();
  tells_unknown_ = false;
  return false;
}

}  // namespace zarvo
