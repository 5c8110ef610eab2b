#include "panel/help_page.h"

#include <algorithm>
#include <array>

#include "panel/control_names.h"
#include "panel/page_parts.h"

namespace zarvo {
namespace {

// How the keys of a panel are set out on the page.
struct KeyLayout {
  int list_height;  // twips; 0: no list
  std::string_view title;
  int columns;
  int row_height;
  int key_width;
  std::string_view heading;  // over the keys
};

constexpr std::array<KeyLayout, kEmulatorCount> kLayouts = {{
    {1695, "Game Details", 1, 180, 540, ""},
    {1410, "Game Details", 2, 192, 600, ""},
    {0, "", 2, 216, 600, ""},
    {1215, "Game Details", 2, 210, 420, ""},
    {0, "", 1, 195, 1380, ""},
}};

constexpr int kMargin = 75;
constexpr int kPageWidth = 3855;

bool IsHeading(const KeyRow& row) { return row.key.empty(); }

}  // namespace

HelpPage::HelpPage(QWidget* parent, const EmulatorProfile& profile) : PictureBox(parent) {
  SetName(ControlName(profile, "picHelp"));
  SetBackColor(kCard);
  BuildKeys(BuildList(profile), profile.emulator);
}

int HelpPage::BuildList(const EmulatorProfile& profile) {
  const KeyLayout& layout = kLayouts[static_cast<std::size_t>(profile.emulator)];
  if (layout.list_height == 0) return 60;
  MakeHeading(this, {kMargin, 30, kPageWidth - 2 * kMargin, 195}, layout.title);
  lstHelp = new ListBox(this);
  lstHelp->SetName(ControlName(profile, "lstHelp"));
  lstHelp->SetAccessibleName("Game details");
  lstHelp->SetPlace({kMargin, 240, kPageWidth - 2 * kMargin, layout.list_height});
  if (profile.emulator == Emulator::kSystem16) SetLines(System16Help());
  return 240 + layout.list_height + 45;
}

void HelpPage::BuildKeys(int top, Emulator emulator) {
  const KeyLayout& layout = kLayouts[static_cast<std::size_t>(emulator)];
  const std::span<const KeyRow> rows = HelpKeys(emulator);
  const int count = static_cast<int>(rows.size());
  const int in_column = (count + layout.columns - 1) / layout.columns;
  const int column_width = (kPageWidth - 2 * kMargin) / layout.columns;
  for (int i = 0; i < count; ++i) {
    const TwipRect place = {kMargin + (i / in_column) * column_width,
                            top + (i % in_column) * layout.row_height, column_width,
                            layout.row_height};
    BuildRow(rows[static_cast<std::size_t>(i)], place, layout.key_width);
  }
}

void HelpPage::BuildRow(const KeyRow& row, const TwipRect& place, int key_width) {
  if (IsHeading(row)) {
    MakeCaption(this, place, row.text)->SetBold(true);
    return;
  }
  MakeCaption(this, {place.left, place.top, key_width, place.height}, row.key)->SetBold(true);
  const int third_width = row.third.empty() ? 0 : 1050;
  MakeCaption(
      this,
      {place.left + key_width, place.top, place.width - key_width - third_width, place.height},
      row.text);
  if (third_width > 0) {
    MakeCaption(this,
                {place.left + place.width - third_width, place.top, third_width, place.height},
                row.third);
  }
}

void HelpPage::SetLines(const std::vector<std::string>& lines) {
  NameList items;
  for (const std::string& line : lines) items.Append(line);
  lstHelp->SetItems(std::move(items));
}

}  // namespace zarvo
