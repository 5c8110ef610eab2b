#include "core/launch/settings_store.h"

#include <optional>
#include <vector>

#include "core/emulators/option_layout.h"
#include "core/platform/text.h"
#include "core/platform/text_lines.h"

namespace zarvo {
namespace {

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

// A text between quotes; nothing for anything else.
std::optional<std::string> Unquoted(std::string_view field) {
  if (field.size() < 2 || !field.starts_with('"') || !field.ends_with('"')) return std::nullopt;
  return std::string(field.substr(1, field.size() - 2));
}

// The lines that a load looks for, without their line ends.
struct FoundLines {
  std::optional<std::string_view> record;
  std::optional<std::string_view> default_record;
  bool stopped = false;  // by an empty line, before the record
};

FoundLines FindLines(std::string_view store, std::string_view key) {
  const std::string quoted_key = Quoted(key);
  const std::string quoted_default = Quoted(kDefaultKey);
  FoundLines found;
  while (!store.empty() && !found.record && !found.stopped) {
    const std::string_view line = WithoutLineEnd(TakeLine(store));
    if (line.starts_with(quoted_key)) found.record = line;
    if (line.starts_with(quoted_default) && !found.default_record) found.default_record = line;
    found.stopped = line.empty();
  }
  return found;
}

// What stands behind the key and its comma, cut at every comma and tilde.
std::vector<std::string_view> FieldsOf(std::string_view line, std::string_view key) {
  std::string_view rest = line.substr(std::min(line.size(), key.size() + 3));
  std::vector<std::string_view> fields;
  for (;;) {
    const std::size_t end = rest.find_first_of(",~");
    fields.push_back(rest.substr(0, end));
    if (end == std::string_view::npos) return fields;
    rest.remove_prefix(end + 1);
  }
}

// A combo may stand without a selection.
bool CanHold(const OptionSpec& option, int number) {
  return InRange(option, number) || (option.kind == OptionKind::kCombo && number == -1);
}

void Take(const OptionSpec& option, std::string_view field, OptionValue& value) {
  if (option.kind == OptionKind::kText) {
    if (auto text = Unquoted(field)) value.text = *std::move(text);
    return;
  }
  const std::optional<int> number = ParseInt16(field);
  if (number && CanHold(option, *number)) value.number = *number;
}

void Apply(std::span<const std::string_view> fields, std::span<const OptionSpec> options,
           OptionValues& values) {
  if (auto folder = Unquoted(fields[0])) values.rom_folder = *std::move(folder);
  for (std::size_t i = 0; i < options.size() && i + 1 < fields.size(); ++i) {
    if (options[i].stored) Take(options[i], fields[i + 1], values.values[i]);
  }
}

// What isn't stored, and what can be used, stay as they are on the page.
void KeepUnstored(std::span<const OptionSpec> options, const OptionValues& page,
                  OptionValues& loaded) {
  if (page.values.size() != options.size()) return;
  for (std::size_t i = 0; i < options.size(); ++i) {
    if (!options[i].stored) loaded.values[i] = page.values[i];
    loaded.values[i].enabled = page.values[i].enabled;
  }
}

std::string FieldOf(const OptionSpec& option, const OptionValue& value) {
  return option.kind == OptionKind::kText ? Quoted(value.text) : std::to_string(value.number);
}

bool HasRecord(std::string_view store, std::string_view quoted_key) {
  while (!store.empty()) {
    const std::string_view line = WithoutLineEnd(TakeLine(store));
    if (line.empty()) return false;
    if (line.starts_with(quoted_key)) return true;
  }
  return false;
}

std::string WithReplaced(std::string_view store, std::string_view quoted_key,
                         const std::string& record) {
  std::string text;
  text.reserve(store.size() + record.size());
  while (!store.empty()) {
    const std::string_view line = TakeLine(store);
    text.append(line.starts_with(quoted_key) ? std::string_view(record) : line);
  }
  return text;
}

std::string WithAppended(std::string store, const std::string& record) {
  if (!EndsItsLine(store)) store += "\r\n";
  return std::move(store) + record;
}

}  // namespace

SettingsStore::SettingsStore(DosFiles& files, const ProgramFolders& folders,
                             const Emulator& emulator)
    : emulator_(emulator),
      store_(files, folders.CfgFolder(), emulator.SettingsFile(), emulator.SettingsTempFile()) {}

LoadOutcome SettingsStore::Load(std::string_view key, std::string_view rom_folder,
                                OptionValues& values) {
  const auto text = store_.Load();
  if (!text) return LoadOutcome::kNothing;
  const FoundLines lines = FindLines(*text, key);
  if (lines.stopped) return LoadOutcome::kNothing;

  const auto options = emulator_.options;
  OptionValues loaded = DefaultValues(emulator_, rom_folder);
  if (lines.record) KeepUnstored(options, values, loaded);
  values = std::move(loaded);
  const auto line = lines.record ? lines.record : lines.default_record;
  if (!line) return LoadOutcome::kDefaults;
  Apply(FieldsOf(*line, lines.record ? key : kDefaultKey), options, values);
  return LoadOutcome::kRecord;
}

Status SettingsStore::Save(std::string_view key, const OptionValues& values) {
  const std::string record = RecordLine(emulator_, key, values) + "\r\n";
  const std::string quoted_key = Quoted(key);
  return store_.Change([&](std::string text) {
    return HasRecord(text, quoted_key) ? WithReplaced(text, quoted_key, record)
                                       : WithAppended(std::move(text), record);
  });
}

Status SettingsStore::SaveAsDefault(const OptionValues& values) {
  return store_.Overwrite(RecordLine(emulator_, kDefaultKey, values) + "\r\n");
}

std::string RecordLine(const Emulator& emulator, std::string_view key, const OptionValues& values) {
  std::string line = Quoted(key) + "," + Quoted(values.rom_folder);
  const auto options = emulator.options;
  for (std::size_t i = 0; i < options.size(); ++i) {
    if (options[i].stored) line += "," + FieldOf(options[i], values.values[i]);
  }
  return line;
}

}  // namespace zarvo
