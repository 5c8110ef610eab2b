// The game list of a panel with its filters and counters.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/catalogue/catalogue.h"
#include "ui/panel/panel_tools.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"

namespace zarvo {

// The filters hold no data of their own: the list box is their only result.
class GameFilters {
 public:
  GameFilters(QWidget* panel, const Emulator& emulator, const PanelTools& tools);

  [[nodiscard]] const Catalogue& Games() const { return catalogue_; }

  // The neutral items without a refresh, and the data file's own total.
  void Load();
  // Refills the list for one state; looks at no combo.
  void Fill(GameState state);
  // Reads the combos, refills, narrows, and selects the first game.
  void Refresh();
  void ShowCount();

  // Called where the scan file is missing, after the message and the way back to all games: the
  // panel shows its configuration page.
  std::function<void()> on_missing_scan;

  // nullptr where the panel has no such control.
  ListBox* lstRom = nullptr;
  ComboBox* cboFilterMisc = nullptr;
  ComboBox* cboFilterGenre = nullptr;
  ComboBox* cboFilterManufactor = nullptr;
  ComboBox* cboFilterYear = nullptr;
  Label* lblRomCount = nullptr;
  Label* lblTotal = nullptr;

  // "FREE" while the filter combos and the list are set by the program: their clicks do nothing.
  std::string lblFilterHide;

 private:
  void BuildList(QWidget* panel);
  void BuildCombos(QWidget* panel);
  void BuildCounters(QWidget* panel);
  void ReadTotal();
  void TellWhyEmpty();
  void Step(ValueFilter filter, const std::string& value);
  void ReportMissingScan();
  void OnComboClick(ComboBox* combo);
  void OnComboKey(const KeyArgs& key);
  [[nodiscard]] std::array<ComboBox*, 4> Combos() const {
    return {cboFilterMisc, cboFilterGenre, cboFilterManufactor, cboFilterYear};
  }

  const Emulator& emulator_;
  const PanelTools& tools_;
  Catalogue catalogue_;
};

}  // namespace zarvo
