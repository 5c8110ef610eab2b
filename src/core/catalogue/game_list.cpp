// The game list of a panel: one state of all games, and filter steps on it.
#include <array>
#include <string>

#include "core/catalogue/catalogue.h"
#include "core/platform/text_lines.h"

namespace zarvo {
namespace {

constexpr char kWorkFile[] = "tofilter.tmp";
constexpr std::string_view kNeoGeo = "neogeo";

// Drops `count` fields; false if the line has fewer. The fields are short, so a plain walk is
// quicker than a search for each semicolon.
bool DropFields(std::string_view& rest, int count) {
  std::size_t place = 0;
  while (count > 0 && place < rest.size()) {
    if (rest[place++] == ';') --count;
  }
  rest.remove_prefix(place);
  return count == 0;
}

enum class Verdict { kIn, kOut, kCut };

Verdict InIf(bool passes) { return passes ? Verdict::kIn : Verdict::kOut; }

// Whether a record belongs to a state; `rest` is what follows its name. The tests look at the start
// of a field, whether or not it is closed, and a record without the fields before it is cut.
Verdict Judge(GameState state, std::string_view rest) {
  constexpr int kFieldsToOC = 1;
  if (state == GameState::kAllSupported) return Verdict::kIn;
  if (!DropFields(rest, kFieldsToOC)) return Verdict::kCut;
  const std::string_view original_or_clone = rest;
  if (state == GameState::kOriginals) return InIf(original_or_clone.starts_with('O'));
  if (!DropFields(rest, 1)) return Verdict::kCut;
  const bool neo_geo = rest.starts_with(kNeoGeo);
  if (state == GameState::kNeoGeo) return InIf(neo_geo);
  if (state == GameState::kNoNeoGeo) return InIf(!neo_geo);
  return InIf(original_or_clone.starts_with('C') && !neo_geo);
}

// A line without the quotation marks round it, whatever stands in their place.
std::string_view Unquote(std::string_view line) {
  return line.size() < 2 ? std::string_view() : line.substr(1, line.size() - 2);
}

int PlaceOf(ValueFilter filter) {
  constexpr std::array kPlaces = {Field::kGenre, Field::kMadeBy, Field::kYear};
  return static_cast<int>(kPlaces[static_cast<std::size_t>(filter)]);
}

// True if the field at `place`, counted from the start of `rest`, is exactly `value`.
bool HasValue(std::string_view rest, int place, std::string_view value) {
  return DropFields(rest, place) && rest.size() > value.size() && rest[value.size()] == ';' &&
         rest.starts_with(value);
}

// The text of the work file: the names of `list`, as the data file spells them, whose record has
// the value. Each name is looked for from where the one before it was found.
std::string KeptNames(RecordReader& records, int place, std::string_view value,
                      const NameList& list) {
  std::string kept;
  std::string_view line;
  int index = 0;
  while (index < list.Count() && records.Next(line)) {
    if (!line.starts_with(list.At(index))) continue;
    ++index;
    const auto name = CutField(line);
    if (name && HasValue(line, place - 1, value)) {
      kept += '"';
      kept += *name;
      kept += "\"\r\n";
    }
  }
  return kept;
}

// Puts the names of the work file into `list`, or leaves it if they can't be read.
void ReadWorkFile(const DosFiles& files, NameList& list) {
  auto source = files.Open(kWorkFile);
  if (!source) return;
  LineReader lines(std::move(*source));
  NameList kept;
  std::string_view line;
  while (lines.Next(line)) kept.Append(Unquote(line));
  if (lines.Failed()) return;
  kept.Sort();
  list = std::move(kept);
}

}  // namespace

std::span<const std::string_view> ItemsOf(const Emulator& emulator, ValueFilter filter) {
  switch (filter) {
    case ValueFilter::kGenre:
      return emulator.filters.genres;
    case ValueFilter::kManufactor:
      return emulator.filters.manufactors;
    case ValueFilter::kYear:
      return emulator.filters.years;
  }
  return {};
}

FillResult Catalogue::FillFromDataFile(GameState state, NameList& list) const {
  if (state == GameState::kAllSupported) list.Clear();
  auto records = Records();
  if (!records) return FillResult::kNoDataFile;
  list.Clear();
  std::string_view line;
  while (records->Next(line)) {
    const auto name = CutField(line);
    const Verdict verdict = name ? Judge(state, line) : Verdict::kCut;
    if (verdict == Verdict::kCut) break;
    if (verdict == Verdict::kIn) list.Append(*name);
  }
  list.Sort();
  return FillResult::kFilled;
}

FillResult Catalogue::FillFromScan(char mark, NameList& list) const {
  if (!emulator_.has_scan) return FillResult::kNoScanFile;
  const auto scan = ScanStore().Read();
  if (!scan) return FillResult::kNoScanFile;
  list.Clear();
  for (std::string_view text = *scan; !text.empty();) {
    const std::string_view entry = Unquote(WithoutLineEnd(TakeLine(text)));
    const std::size_t end = entry.find(';');
    if (end != std::string_view::npos && entry.back() == mark) list.Append(entry.substr(0, end));
  }
  list.Sort();
  return FillResult::kFilled;
}

FillResult Catalogue::Fill(GameState state, NameList& list) const {
  switch (state) {
    case GameState::kAvailable:
      return FillFromScan(kFoundMark, list);
    case GameState::kMissing:
      return FillFromScan(kMissingMark, list);
    default:
      return FillFromDataFile(state, list);
  }
}

void Catalogue::Filter(ValueFilter filter, std::string_view value, NameList& list) const {
  const auto items = ItemsOf(emulator_, filter);
  if (items.empty() || value == items.front()) return;
  auto records = Records();
  if (!records) return;
  const std::string names = KeptNames(*records, PlaceOf(filter), value, list);
  if (records->Failed()) return;
  if (!files_.WriteFile(kWorkFile, names)) return;
  ReadWorkFile(files_, list);
  Ignore(files_.DeleteFile(kWorkFile));
}

}  // namespace zarvo
