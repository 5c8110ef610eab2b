#include "ui/panel/help_page.h"

#include <algorithm>

#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"

namespace zarvo {
namespace {

constexpr int kMargin = 75;
constexpr int kPageWidth = 3855;

// Most texts begin with a blank; those that don't are moved by one, so that all stand in line.
int IndentOf(std::string_view text) { return text.starts_with(' ') ? 0 : 45; }

bool IsHeading(const KeyRow& row) { return row.key.empty(); }

}  // namespace

HelpPage::HelpPage(QWidget* parent, const Emulator& emulator) : PictureBox(parent) {
  SetName(ControlName(emulator, "picHelp"));
  SetAccessibleName("Help page");
  SetBackColor(kCard);
  BuildKeys(BuildList(emulator), emulator.help);
  if (emulator.help.fixed_list != nullptr) SetLines(emulator.help.fixed_list());
}

int HelpPage::BuildList(const Emulator& emulator) {
  const HelpPageTable& layout = emulator.help;
  if (layout.list_height == 0) return 60;
  MakeHeading(this, {kMargin, 30, kPageWidth - 2 * kMargin, 195}, layout.title);
  lstHelp = new ListBox(this);
  lstHelp->SetName(ControlName(emulator, "lstHelp"));
  lstHelp->SetAccessibleName("Game details");
  lstHelp->SetTextSize(layout.text_size);
  lstHelp->SetPlace({kMargin, 240, kPageWidth - 2 * kMargin, layout.list_height});
  return 240 + layout.list_height + 45;
}

void HelpPage::BuildKeys(int top, const HelpPageTable& layout) {
  const std::span<const KeyRow> rows = layout.keys;
  const int count = static_cast<int>(rows.size());
  const int in_column = (count + layout.columns - 1) / layout.columns;
  const int column_width = (kPageWidth - kMargin) / layout.columns;
  for (int i = 0; i < count; ++i) {
    const TwipRect place = {kMargin + (i / in_column) * column_width,
                            top + (i % in_column) * layout.row_height, column_width,
                            layout.row_height};
    BuildRow(rows[static_cast<std::size_t>(i)], place, layout);
  }
}

void HelpPage::BuildRow(const KeyRow& row, const TwipRect& place, const HelpPageTable& layout) {
  const auto cell = [&](int left, int width, std::string_view text) {
    Label* const label =
        MakeCaption(this, {place.left + left, place.top, width, place.height}, text);
    label->SetTextSize(layout.text_size);
    return label;
  };
  if (IsHeading(row)) {
    cell(0, place.width, row.text)->SetBold(true);
    return;
  }
  const int key_width = layout.key_width;
  const int third_width = row.third.empty() ? 0 : 1050;
  cell(0, key_width, row.key)->SetBold(true);
  const int text_left = key_width + IndentOf(row.text);
  cell(text_left, place.width - text_left - third_width, row.text);
  if (third_width > 0) cell(place.width - third_width, third_width, row.third);
}

void HelpPage::SetLines(const std::vector<std::string>& lines) const {
  NameList items;
  for (const std::string& line : lines) items.Append(line);
  lstHelp->SetItems(std::move(items));
}

}  // namespace zarvo
