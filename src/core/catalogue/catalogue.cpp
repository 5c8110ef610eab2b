#include "core/catalogue/catalogue.h"

#include "core/platform/program.h"

namespace zarvo {
namespace {

constexpr int kTotalLine = 8;

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

Catalogue::Catalogue(DosFiles& files, const ProgramFolders& folders, const Emulator& emulator)
    : files_(files),
      data_folder_(folders.DataFolder()),
      cfg_folder_(folders.CfgFolder()),
      emulator_(emulator) {}

bool Catalogue::HasDataFile() const {
  return files_.FileExists(data_folder_ / emulator_.DataFile());
}

std::optional<GameRecord> Catalogue::Find(std::string_view name) const {
  if (name.empty() || name.find(';') != std::string_view::npos) return std::nullopt;
  auto records = Records();
  if (!records) return std::nullopt;
  std::string_view line;
  while (records->Next(line)) {
    if (HasName(line, name)) return CutRecord(line);
  }
  return std::nullopt;
}

std::vector<std::string> Catalogue::Header() const {
  std::vector<std::string> header;
  auto lines = OpenDataFile(files_, data_folder_, emulator_);
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

DataTotal Catalogue::Total() const {
  auto lines = OpenDataFile(files_, data_folder_, emulator_);
  if (!lines) return {};
  std::string_view line;
  bool more = lines->Next(line);
  while (more && !line.starts_with('*')) more = lines->Next(line);
  for (int place = 1; more && place < kTotalLine; ++place) more = lines->Next(line);
  if (!more) return {.file_opened = true, .total = std::nullopt};
  return {.file_opened = true, .total = WithoutFirst(line)};
}

Result<RecordReader> Catalogue::Records() const {
  return RecordReader::Open(files_, data_folder_, emulator_);
}

}  // namespace zarvo
