#include "core/panel/cfg_file.h"

#include <algorithm>

#include "core/platform/name_list.h"

namespace zarvo {
namespace {

// Drops the rest of a field: up to the next comma or line end, and that with it.
void DropDelimiter(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.size(), rest.find_first_of(",\r\n")));
  const std::size_t length = rest.starts_with("\r\n") ? 2 : 1;
  rest.remove_prefix(std::min(rest.size(), length));
}

// The next field of the file; nothing at its end.
std::optional<std::string_view> TakeField(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(' ')));
  if (rest.empty()) return std::nullopt;
  const bool quoted = rest.starts_with('"');
  if (quoted) rest.remove_prefix(1);
  const std::size_t end = std::min(rest.size(), rest.find_first_of(quoted ? "\"" : ",\r\n"));
  const std::string_view value = rest.substr(0, end);
  rest.remove_prefix(quoted ? std::min(rest.size(), end + 1) : end);
  DropDelimiter(rest);
  return value;
}

std::string LineOf(std::string_view value) {
  const bool has_quote = value.find('"') != std::string_view::npos;
  std::string line(value);
  if (has_quote && CanBeWritten(value)) return line + "\r\n";
  // A value that can't be written loses its quotes, so that the lines behind it keep their places.
  std::erase(line, '"');
  return "\"" + line + "\"\r\n";
}

}  // namespace

CfgFile::CfgFile(DosFiles& files, const ProgramFolders& folders, const Emulator& emulator)
    : emulator_(emulator),
      store_(files, folders.CfgFolder(), emulator.CfgFile(), emulator.CfgTempFile()) {}

CfgFields CfgFile::Read() {
  CfgFields fields;
  const auto text = store_.Load();
  if (!text) return fields;
  std::string_view rest = *text;
  for (auto* field : {&fields.exe_path, &fields.rom_path, &fields.snap_path, &fields.snap_format,
                      &fields.emulator_folder, &fields.layout_word}) {
    const auto value = TakeField(rest);
    if (!value) return fields;
    *field = *value;
  }
  if (!emulator_.has_favourites) return fields;
  auto& favourites = fields.favourites.emplace();
  while (favourites.size() < kMostEntries) {
    const auto favourite = TakeField(rest);
    if (!favourite) break;
    favourites.emplace_back(*favourite);
  }
  return fields;
}

Status CfgFile::Write(const CfgValues& values) {
  std::string text = LineOf(values.exe_path) + LineOf(values.rom_path) + LineOf(values.snap_path) +
                     LineOf(values.snap_format) + LineOf(values.emulator_folder) +
                     LineOf(values.layout_word);
  if (emulator_.has_favourites) {
    for (const std::string& favourite : values.favourites) text += LineOf(favourite);
  }
  return store_.Replace(text);
}

bool CanBeWritten(std::string_view value) {
  if (value.find('"') == std::string_view::npos) return true;
  return value.front() != '"' && value.front() != ' ' &&
         value.find_first_of(",\r\n") == std::string_view::npos;
}

}  // namespace zarvo
