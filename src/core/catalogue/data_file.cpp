#include "core/catalogue/data_file.h"

#include "core/platform/enter_folder.h"

namespace zarvo {
namespace {

constexpr int kTotalLine = 8;

Result<LineReader> OpenDataFile(DosFiles& files, const AppState& app, const Emulator& emulator) {
  const auto named = [&emulator](const Error& error) {
    return Error{std::string(emulator.DataFile()) + ": " + error.message, error.missing};
  };
  const Status entered = EnterFolder(files, app.DataFolder());
  if (!entered) return named(entered.error());
  auto source = files.Open(emulator.DataFile());
  if (!source) return named(source.error());
  return LineReader(std::move(*source));
}

bool HasName(std::string_view line, std::string_view name) {
  return line.size() > name.size() && line[name.size()] == ';' && line.starts_with(name);
}

GameRecord CutRecord(std::string_view line) {
  GameRecord record;
  for (std::string& field : record.fields) {
    const auto text = CutField(line);
    if (!text) break;
    field = *text;
    ++record.field_count;
  }
  return record;
}

std::string WithoutFirst(std::string_view line) {
  return std::string(line.empty() ? line : line.substr(1));
}

}  // namespace

std::optional<std::string_view> CutField(std::string_view& rest) {
  const std::size_t end = rest.find(';');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(end + 1);
  return field;
}

Result<RecordReader> RecordReader::Open(DosFiles& files, const AppState& app,
                                        const Emulator& emulator) {
  auto lines = OpenDataFile(files, app, emulator);
  if (!lines) return lines.error();
  return RecordReader(std::move(*lines));
}

bool RecordReader::Next(std::string_view& line) {
  while (lines_.Next(line)) {
    if (!line.empty() && line.front() != '#' && line.front() != '*') return true;
  }
  return false;
}

std::optional<GameRecord> FindRecord(DosFiles& files, const AppState& app, const Emulator& emulator,
                                     std::string_view name) {
  if (name.empty() || name.find(';') != std::string_view::npos) return std::nullopt;
  auto records = RecordReader::Open(files, app, emulator);
  if (!records) return std::nullopt;
  std::string_view line;
  while (records->Next(line)) {
    if (HasName(line, name)) return CutRecord(line);
  }
  return std::nullopt;
}

std::vector<std::string> ReadHeader(DosFiles& files, const AppState& app,
                                    const Emulator& emulator) {
  std::vector<std::string> header;
  auto lines = OpenDataFile(files, app, emulator);
  if (!lines) return header;
  std::string_view line;
  bool more = lines->Next(line);
  while (more && (line.empty() || line.front() == '#')) more = lines->Next(line);
  if (!more || line.front() != '*') return header;
  while (more && header.size() < kHeaderLines) {
    header.push_back(WithoutFirst(line));
    more = lines->Next(line);
  }
  return header;
}

DataTotal ReadDataTotal(DosFiles& files, const AppState& app, const Emulator& emulator) {
  auto lines = OpenDataFile(files, app, emulator);
  if (!lines) return {};
  std::string_view line;
  bool more = lines->Next(line);
  while (more && !line.starts_with('*')) more = lines->Next(line);
  for (int place = 1; more && place < kTotalLine; ++place) more = lines->Next(line);
  if (!more) return {.file_opened = true, .total = std::nullopt};
  return {.file_opened = true, .total = WithoutFirst(line)};
}

}  // namespace zarvo
