#include "ui/panel/game_filters.h"

#include <utility>

#include "core/platform/messages.h"
#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"
#include "ui/toolkit/keys.h"

namespace zarvo {

GameFilters::GameFilters(QWidget* panel, const Emulator& emulator, const PanelTools& tools)
    : emulator_(emulator), tools_(tools), catalogue_(tools.files, tools.folders, emulator) {
  if (!emulator.has_game_list) return;
  BuildList(panel);
  if (emulator.has_filters) BuildCombos(panel);
  BuildCounters(panel);
}

void GameFilters::BuildList(QWidget* panel) {
  const PanelRules& rules = emulator_.panel;
  lstRom = new ListBox(panel);
  lstRom->SetName(ControlName(emulator_, "lstRom"));
  lstRom->SetAccessibleName("Games");
  lstRom->SetSorted(true);
  lstRom->SetColumns(rules.start_columns);
  lstRom->SetPlace(rules.game_list);
}

void GameFilters::BuildCombos(QWidget* panel) {
  struct Row {
    ComboBox** combo;
    std::string_view tail;
    std::string_view accessible;
    std::span<const std::string_view> items;
  };
  const std::array<Row, 4> rows = {{
      {&cboFilterMisc, "Misc", "State filter", emulator_.filters.states},
      {&cboFilterGenre, "Genre", "Genre filter", emulator_.filters.genres},
      {&cboFilterManufactor, "Manufactor", "Manufacturer filter", emulator_.filters.manufactors},
      {&cboFilterYear, "Year", "Year filter", emulator_.filters.years},
  }};
  const PanelRules& rules = emulator_.panel;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    auto* const combo = new ComboBox(panel);
    *rows[i].combo = combo;
    combo->SetName(ControlName(emulator_, "cboFilter", rows[i].tail));
    combo->SetAccessibleName(rows[i].accessible);
    for (const std::string_view item : rows[i].items) combo->AddItem(item);
    combo->SetPlace({rules.combos[i].left, 4650, rules.combos[i].width, 285});
    combo->Click.Connect([this, combo] { OnComboClick(combo); });
    if (rules.shift_resets_filters) {
      combo->KeyDown.Connect([this](const KeyArgs& key) { OnComboKey(key); });
    }
  }
}

void GameFilters::BuildCounters(QWidget* panel) {
  const PanelTexts& texts = emulator_.texts;
  // Between the year combo and the right edge; the long captions take a smaller letter.
  const bool narrow = texts.total_caption.size() > 2;
  const int left = emulator_.has_filters ? (narrow ? 5430 : 5640) : 5340;
  const int caption_width = narrow ? 495 : 165;
  const int height = emulator_.has_filters ? 165 : 150;
  const auto counter = [&](int top, std::string_view caption, std::string_view tail) {
    Label* const text = MakeCaption(panel, {left, top, caption_width, height}, caption);
    Label* const number =
        MakeCaption(panel, {left + caption_width, top, 6315 - left - caption_width, height}, "");
    number->SetName(ControlName(emulator_, "lbl", tail));
    for (Label* const label : {text, number}) {
      label->SetForeColor(kPeriwinkle);
      if (narrow) label->SetTextSize(9);
    }
    number->SetForeColor(kWhite);
    return number;
  };
  if (!texts.count_caption.empty()) lblRomCount = counter(4635, texts.count_caption, "RomCount");
  lblTotal = counter(emulator_.has_filters ? 4800 : 4620, texts.total_caption, "Total");
  lblTotal->SetCaption(texts.design_total);
}

void GameFilters::Load() {
  if (emulator_.has_filters) {
    lblFilterHide = "FREE";
    for (ComboBox* const combo : Combos()) combo->SetListIndex(0);
    lblFilterHide.clear();
  }
  if (lblTotal != nullptr) ReadTotal();
}

void GameFilters::ReadTotal() {
  const DataTotal total = catalogue_.Total();
  const bool empty_without_file = emulator_.texts.design_total.empty();
  if (total.total) {
    lblTotal->SetCaption(*total.total);
  } else if (empty_without_file) {
    lblTotal->SetCaption("");
  }
  const std::string shown = lblTotal->Caption();
  lblTotal->SetAccessibleName(shown.empty() ? "" : "Games in all: " + shown);
}

void GameFilters::ShowCount() {
  if (lblRomCount == nullptr) return;
  const std::string count = std::to_string(lstRom->ListCount());
  lblRomCount->SetCaption(count);
  lblRomCount->SetAccessibleName("Games in the list: " + count);
}

void GameFilters::Fill(GameState state) {
  NameList names = lstRom->Items();
  switch (catalogue_.Fill(state, names)) {
    case FillResult::kFilled:
      lstRom->SetItems(std::move(names));
      ShowCount();
      break;
    case FillResult::kNoDataFile:
      if (state == GameState::kAllSupported) lstRom->Clear();
      break;
    case FillResult::kNoScanFile:
      ReportMissingScan();
      break;
  }
}

void GameFilters::ReportMissingScan() {
  lstRom->SetVisible(true);
  tools_.boxes.Warn(ProgramTitle(), MsgNoScnFile);
  cboFilterMisc->SetListIndex(0);
  if (on_missing_scan) on_missing_scan();
}

void GameFilters::Refresh() {
  const int state = cboFilterMisc->ListIndex();
  const std::string genre = cboFilterGenre->Text();
  const std::string manufactor = cboFilterManufactor->Text();
  const std::string year = cboFilterYear->Text();
  if (state >= 0) Fill(static_cast<GameState>(state));
  Step(ValueFilter::kGenre, genre);
  Step(ValueFilter::kManufactor, manufactor);
  Step(ValueFilter::kYear, year);
  TellWhyEmpty();
  lstRom->SetListIndex(0);
}

void GameFilters::TellWhyEmpty() {
  std::string text;
  for (const ComboBox* const combo : Combos()) {
    if (combo->ListIndex() > 0) text += "\r" + combo->Text();
  }
  lstRom->SetEmptyText(text.empty() ? "" : "No game passes:" + text);
}

void GameFilters::Step(ValueFilter filter, const std::string& value) {
  if (value == ItemsOf(emulator_, filter).front()) return;
  lblFilterHide = "FREE";
  NameList names = lstRom->Items();
  catalogue_.Filter(filter, value, names);
  lstRom->SetItems(std::move(names));
  lblFilterHide.clear();
}

void GameFilters::OnComboClick(ComboBox* combo) {
  if (lblFilterHide == "FREE") return;
  lstRom->SetVisible(false);
  Refresh();
  lstRom->SetVisible(true);
  ShowCount();
  const bool neutral = combo->ListIndex() == 0;
  combo->SetBackColor(neutral ? kSilver : kLavender);
  if (combo != cboFilterMisc) combo->SetForeColor(neutral ? kBlack : kDarkRed);
}

void GameFilters::OnComboKey(const KeyArgs& key) {
  if (key.shift != kShiftDown) return;
  for (ComboBox* const combo : Combos()) combo->SetListIndex(0);
}

}  // namespace zarvo
