#include "core/catalogue/data_file.h"

#include "core/platform/enter_folder.h"

namespace zarvo {

std::optional<std::string_view> CutField(std::string_view& rest) {
  const std::size_t end = rest.find(';');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(end + 1);
  return field;
}

Result<RecordReader> RecordReader::Open(DosFiles& files, const DosPath& data_folder,
                                        const Emulator& emulator) {
  auto lines = OpenDataFile(files, data_folder, emulator);
  if (!lines) return lines.error();
  return RecordReader(std::move(*lines));
}

bool RecordReader::Next(std::string_view& line) {
  while (lines_.Next(line)) {
    if (!line.empty() && line.front() != '#' && line.front() != '*') return true;
  }
  return false;
}

Result<LineReader> OpenDataFile(DosFiles& files, const DosPath& data_folder,
                                const Emulator& emulator) {
  const auto named = [&emulator](const Error& error) {
    return Error{emulator.DataFile().Text() + ": " + error.message, error.missing};
  };
  const Status entered = EnterFolder(files, data_folder);
  if (!entered) return named(entered.error());
  auto source = files.Open(emulator.DataFile());
  if (!source) return named(source.error());
  return LineReader(std::move(*source));
}

}  // namespace zarvo
