#include "ui/panel/info_page.h"

#include <array>

#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"

namespace zarvo {
namespace {

// Where the value of a field stands: its row on the page and the width of its caption, in twips.
struct RowPlace {
  Field field;
  TwipRect place;
  int caption_width;
};

constexpr Colour kValue{0x8A3A1E};  // a blue that stands out from the captions

constexpr int kRow = 195;

constexpr TwipRect LeftRow(int top, int row) { return {105, top + row * kRow, 1770, kRow}; }
constexpr TwipRect RightRow(int top, int row) { return {2010, top + row * kRow, 1800, kRow}; }

constexpr int kGeneralTop = 225;
constexpr int kEmulationTop = 1035;
constexpr int kChipsTop = 2235;

constexpr int kWide = 765;

// The names of chips are long: each has two lines.
constexpr TwipRect CpuRow(int row) { return {105, kChipsTop + row * 2 * kRow, 1770, 2 * kRow}; }
constexpr TwipRect SoundRow(int row) { return {2010, kChipsTop + row * 2 * kRow, 1800, 2 * kRow}; }
constexpr int kCpu = 525;
constexpr int kSound = 705;

constexpr std::array<RowPlace, kFieldCount> kRows = {{
    {Field::kName, {105, kGeneralTop, 3555, kRow}, kWide},
    {Field::kRomFile, LeftRow(kEmulationTop, 0), kWide},
    {Field::kOC, LeftRow(kEmulationTop, 3), kWide},
    {Field::kCloneOf, LeftRow(kEmulationTop, 4), kWide},
    {Field::kGenre, {105, kGeneralTop + 2 * kRow, 3555, kRow}, kWide},
    {Field::kMadeBy, {105, kGeneralTop + kRow, 2580, kRow}, kWide},
    {Field::kYear, {2790, kGeneralTop + kRow, 945, kRow}, 450},
    {Field::kPlayable, RightRow(kEmulationTop, 0), kWide},
    {Field::kColors, RightRow(kEmulationTop, 1), kWide},
    {Field::kSound, RightRow(kEmulationTop, 2), kWide},
    {Field::kHiScore, RightRow(kEmulationTop, 3), kWide},
    {Field::kCocktail, RightRow(kEmulationTop, 4), kWide},
    {Field::kDriver, LeftRow(kEmulationTop, 2), kWide},
    {Field::kCpu1, CpuRow(0), kCpu},
    {Field::kCpu2, CpuRow(1), kCpu},
    {Field::kCpu3, CpuRow(2), kCpu},
    {Field::kCpu4, CpuRow(3), kCpu},
    {Field::kSound1, SoundRow(0), kSound},
    {Field::kSound2, SoundRow(1), kSound},
    {Field::kSound3, SoundRow(2), kSound},
    {Field::kSound4, SoundRow(3), kSound},
}};

}  // namespace

InfoPage::InfoPage(QWidget* parent, const Emulator& emulator) : PictureBox(parent) {
  SetName(ControlName(emulator, "picInfo"));
  SetAccessibleName("Details page");
  SetBackColor(kCard);
  BuildFrames();
  BuildRows();
}

void InfoPage::BuildFrames() {
  MakeFrame(this, {30, 30, 3795, 795}, " General Info:");
  MakeFrame(this, {30, 840, 1860, 1185}, " Emulation Info:");
  MakeFrame(this, {1950, 840, 1875, 1185}, " Emulation Accuracy:");
  MakeFrame(this, {30, 2040, 1860, 1785}, " CPU Emulation");
  MakeFrame(this, {1950, 2040, 1875, 1785}, " Sound Emulation");
}

void InfoPage::BuildRows() {
  labels_.resize(kFieldCount);
  for (const DetailRow& row : DetailRows()) {
    for (const RowPlace& where : kRows) {
      if (where.field != row.field) continue;
      labels_[static_cast<std::size_t>(row.field)] =
          Row(where.place, where.caption_width, row.caption, row.label);
    }
  }
  lblInfoSamples = Row(LeftRow(kEmulationTop, 1), kWide, "Samples:", "lblInfoSamples");
}

Label* InfoPage::Row(const TwipRect& place, int caption_width, std::string_view caption,
                     std::string_view name) {
  MakeCaption(this, {place.left, place.top, caption_width, kRow}, caption);
  Label* const value = MakeCaption(
      this, {place.left + caption_width, place.top, place.width - caption_width, place.height}, "");
  value->SetName(name);
  value->SetForeColor(kValue);
  value->SetWordWrap(place.height > kRow);
  return value;
}

Label* InfoPage::FieldLabel(Field field) const { return labels_[static_cast<std::size_t>(field)]; }

void InfoPage::ShowRecord(const GameRecord& record) {
  for (const DetailRow& row : DetailRows()) {
    const auto text = DetailText(record, row.field);
    if (!text) continue;
    FieldLabel(row.field)->SetCaption(*text);
    FieldLabel(row.field)->SetAccessibleName(std::string(row.caption).append(" ").append(*text));
  }
  lblInfoSamples->SetCaption(SamplesText(record));
  lblInfoSamples->SetAccessibleName(std::string("Samples: ").append(SamplesText(record)));
}

}  // namespace zarvo
