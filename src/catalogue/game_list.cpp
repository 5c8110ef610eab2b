#include "catalogue/game_list.h"

#include <array>
#include <string>

#include "catalogue/scan.h"
#include "platform/enter_folder.h"

namespace zarvo {
namespace {

constexpr std::string_view kWorkFile = "tofilter.tmp";
constexpr std::string_view kNeoGeo = "neogeo";

// Drops `count` fields; false if the line has fewer.
bool DropFields(std::string_view& rest, int count) {
  for (; count > 0; --count) {
    const std::size_t end = rest.find(';');
    if (end == std::string_view::npos) return false;
    rest.remove_prefix(end + 1);
  }
  return true;
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

FillResult FillFromDataFile(DosFiles& files, const AppState& app, const EmulatorProfile& profile,
                            GameState state, NameList& list) {
  if (state == GameState::kAllSupported) list.Clear();
  auto records = RecordReader::Open(files, app, profile);
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

// Takes the first line off `text`, without its line end.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// A line without the quotation marks round it, whatever stands in their place.
std::string_view Unquote(std::string_view line) {
  return line.size() < 2 ? std::string_view() : line.substr(1, line.size() - 2);
}

FillResult FillFromScan(DosFiles& files, const AppState& app, const EmulatorProfile& profile,
                        char mark, NameList& list) {
  if (!profile.has_scan || !EnterFolder(files, app.CfgFolder())) return FillResult::kNoScanFile;
  const auto scan = ReadReplaceable(files, profile.scan_file, ScanTemporary(profile));
  if (!scan) return FillResult::kNoScanFile;
  list.Clear();
  for (std::string_view text = *scan; !text.empty();) {
    const std::string_view entry = Unquote(TakeLine(text));
    const std::size_t end = entry.find(';');
    if (end != std::string_view::npos && entry.back() == mark) list.Append(entry.substr(0, end));
  }
  list.Sort();
  return FillResult::kFilled;
}

int PlaceOf(ValueFilter filter) {
  constexpr std::array kPlaces = {Field::kGenre, Field::kMadeBy, Field::kYear};
  return static_cast<int>(kPlaces[static_cast<std::size_t>(filter)]);
}

bool HasValue(std::string_view line, int place, std::string_view value) {
  return DropFields(line, place) && line.size() > value.size() && line[value.size()] == ';' &&
         line.starts_with(value);
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
    if (HasValue(line, place, value)) {
      kept += '"';
      kept += line.substr(0, line.find(';'));
      kept += "\"\r\n";
    }
  }
  return kept;
}

}  // namespace

FillResult FillList(DosFiles& files, const AppState& app, const EmulatorProfile& profile,
                    GameState state, NameList& list) {
  switch (state) {
    case GameState::kAvailable:
      return FillFromScan(files, app, profile, kFoundMark, list);
    case GameState::kMissing:
      return FillFromScan(files, app, profile, kMissingMark, list);
    default:
      return FillFromDataFile(files, app, profile, state, list);
  }
}

void FilterList(DosFiles& files, const AppState& app, const EmulatorProfile& profile,
                ValueFilter filter, std::string_view value, NameList& list) {
  const auto items = FilterItems(profile.emulator, filter);
  if (items.empty() || value == items.front()) return;
  auto records = RecordReader::Open(files, app, profile);
  if (!records) return;
  const std::string names = KeptNames(*records, PlaceOf(filter), value, list);
  if (records->Failed()) return;
  const bool written = files.WriteFile(kWorkFile, names).ok();
  const auto work = written ? ReadAll(files, kWorkFile) : Error{};
  Ignore(files.DeleteFile(kWorkFile));
  if (!work) return;
  list.Clear();
  for (std::string_view text = *work; !text.empty();) list.Append(Unquote(TakeLine(text)));
  list.Sort();
}

}  // namespace zarvo
