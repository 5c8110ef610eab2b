#include "core/layouts/layout_store.h"

#include <algorithm>
#include <array>

#include "core/emulators/emulator.h"
#include "core/platform/text.h"
#include "core/platform/text_lines.h"
#include "core/platform/twips.h"

namespace zarvo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string HeadingOf(std::string_view name) { return "[" + std::string(name) + "]"; }

// A text cut around one block: everything in front of its heading, the block with its heading, and
// everything from the next heading on. Without the heading, the whole text stands in front.
struct Cut {
  std::string_view before = {};
  std::string_view block = {};
  std::string_view behind = {};
  bool found = false;
};

Cut CutAround(std::string_view text, std::string_view name) {
  const std::string heading = HeadingOf(name);
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t start = text.size() - rest.size();
    if (WithoutLineEnd(TakeLine(rest)) != heading) continue;
    while (!rest.empty() && !rest.starts_with('[')) TakeLine(rest);
    const std::size_t end = text.size() - rest.size();
    return {text.substr(0, start), text.substr(start, end - start), rest, true};
  }
  return {.before = text};
}

// The fields of a line between its commas; the last one runs to the end, commas included.
template <std::size_t kCount>
std::array<std::string_view, kCount> FieldsOf(std::string_view text) {
  std::array<std::string_view, kCount> fields;
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::size_t comma = i + 1 < kCount ? text.find(',') : std::string_view::npos;
    fields[i] = text.substr(0, comma);
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
  }
  return fields;
}

std::optional<LayoutRecord> ParseMain(std::string_view numbers) {
  const auto fields = FieldsOf<2>(numbers);
  const auto top = ParseInt16(fields[0]);
  const auto left = ParseInt16(fields[1]);
  if (!top || !left) return std::nullopt;
  return LayoutRecord{.word = std::string(kMainWord), .top = *top, .left = *left};
}

std::optional<LayoutRecord> ParsePanel(std::string_view word, std::string_view numbers) {
  std::array<int, 4> values{};
  const auto fields = FieldsOf<4>(numbers);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto value = ParseInt16(fields[i]);
    if (!value) return std::nullopt;
    values[i] = *value;
  }
  return LayoutRecord{std::string(word), values[0], values[1], values[2], values[3]};
}

// Adds the record of one line; false if the line isn't understood.
bool AddRecord(std::string_view line, std::vector<LayoutRecord>& records) {
  const std::string_view word = line.substr(0, line.find(','));
  const bool is_main = word == kMainWord;
  if (!is_main && FindEmulator(word) == nullptr) return true;
  line.remove_prefix(std::min(line.size(), word.size() + 1));
  auto record = is_main ? ParseMain(line) : ParsePanel(word, line);
  if (!record) return false;
  records.push_back(*std::move(record));
  return true;
}

std::string LineOf(const LayoutRecord& record) {
  std::string line =
      record.word + "," + std::to_string(record.top) + "," + std::to_string(record.left);
  if (record.word != kMainWord) {
    line += "," + std::to_string(record.width) + "," + std::to_string(record.height);
  }
  return line.append(kLineEnd);
}

std::string BlockOf(std::string_view name, const std::vector<LayoutRecord>& records) {
  std::string block = HeadingOf(name).append(kLineEnd);
  for (const LayoutRecord& record : records) block += LineOf(record);
  return block.append("-").append(kLineEnd);
}

std::string Joined(const Cut& cut, const std::string& block) {
  std::string text(cut.before);
  if (!EndsItsLine(text)) text += kLineEnd;
  return text.append(block).append(cut.behind);
}

Error NoSuchLayout(std::string_view name) {
  return Error{"There is no layout \"" + std::string(name) + "\""};
}

}  // namespace

std::string_view SizeWord(int width, int height) {
  struct Size {
    int width;
    int height;
    std::string_view word;
  };
  constexpr std::array<Size, 3> kSizes = {
      {{2415, 4620, "Small"}, {6345, 4620, "Medium"}, {6345, 7260, "Large"}}};
  for (const Size& size : kSizes) {
    if (size.width == width && size.height == height) return size.word;
  }
  return {};
}

bool IsLayoutName(std::string_view name) {
  const auto is_control = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; };
  return !name.empty() && std::none_of(name.begin(), name.end(), is_control);
}

LayoutStore::LayoutStore(DosFiles& files, const ProgramFolders& folders)
    : layouts_(files, folders.ProgramFolder, "layouts.dat", "layouts.tmp"),
      ini_(files, folders.ProgramFolder, "zarvo.ini", "zarvo.tmp") {}

Result<std::vector<std::string>> LayoutStore::Names() {
  const auto text = layouts_.Load();
  if (!text) {
    // The default layout can't be chosen, so that what zarvo.ini has of it must stay.
    if (text.error().missing) {
      Ignore(ini_.Load());
    } else {
      ini_.Refuse(text.error());
    }
    return text.error();
  }
  std::vector<std::string> names;
  std::string_view rest = *text;
  while (!rest.empty()) {
    const std::string_view line = WithoutLineEnd(TakeLine(rest));
    if (line.size() >= 2 && line.starts_with('[')) names.emplace_back(line, 1, line.size() - 2);
  }
  return names;
}

Result<LayoutBlock> LayoutStore::ReadBlock(std::string_view name) const {
  const auto text = layouts_.Read();
  if (!text) return text.error();
  const Cut cut = CutAround(*text, name);
  if (!cut.found) return NoSuchLayout(name);
  LayoutBlock block;
  std::string_view rest = cut.block;
  TakeLine(rest);
  while (!rest.empty()) {
    const std::string_view line = WithoutLineEnd(TakeLine(rest));
    // The file's last line is never a record: a whole file ends with a "-".
    if (line.starts_with('-') || (rest.empty() && cut.behind.empty())) break;
    block.complete = AddRecord(line, block.records);
    if (!block.complete) break;
  }
  return block;
}

Status LayoutStore::AddBlock(std::string_view name) {
  return layouts_.Change(
      [&](const std::string& text) { return Joined({.before = text}, BlockOf(name, {})); });
}

Status LayoutStore::SaveBlock(std::string_view name, const std::vector<LayoutRecord>& records) {
  return layouts_.Change([&](const std::string& text) {
    return Joined(CutAround(text, name), BlockOf(name, records));
  });
}

Status LayoutStore::RemoveBlock(std::string_view name) {
  return layouts_.Change([&](const std::string& text) {
    const Cut cut = CutAround(text, name);
    return std::string(cut.before).append(cut.behind);
  });
}

Status LayoutStore::RenameBlock(std::string_view old_name, std::string_view new_name) {
  const auto block = ReadBlock(old_name);
  if (!block) return block.error();
  return layouts_.Change([&](const std::string& text) {
    const Cut cut = CutAround(text, old_name);
    std::string_view records = cut.block;
    TakeLine(records);
    return Joined(cut, HeadingOf(new_name).append(kLineEnd).append(records));
  });
}

Result<bool> LayoutStore::ReadSwitch(std::string_view key) {
  const auto line = KeyLine(key);
  if (!line) return line.error();
  return line->ends_with('1');
}

Result<std::string> LayoutStore::ReadDefaultLayout() {
  auto line = KeyLine(kDefaultLayoutKey);
  if (!line) return line;
  return line->substr(std::min(line->size(), kDefaultLayoutKey.size() + 1));
}

Status LayoutStore::SaveIni(const LayoutIni& ini) {
  const std::string rule(62, '-');
  const std::string text =
      rule + "\r\n Zarvo - The definitive Multifrontend (" + std::string(ProgramVersion) +
      ")\r\n Settings of the Layouts Manager\r\n"
      " Initialization File generated by Zarvo - Please do not modify\r\n" +
      rule + "\r\n \r\n[Layouts]\r\nLayoutAlwaysOnTop = " + (ini.always_on_top ? "1" : "0") +
      "\r\nAutoloadOnStartup = " + (ini.autoload ? "1" : "0") +
      "\r\nDefaultLayout = " + ini.default_layout + "\r\n \r\n" + rule + "\r\n End of file\r\n" +
      rule + "\r\n";
  return ini_.Replace(text);
}

std::vector<LayoutRecord> LayoutStore::AutoloadRecords() {
  const auto wanted = ReadSwitch(kAutoloadKey);
  if (!wanted || !*wanted) return {};
  const auto name = ReadDefaultLayout();
  if (!name || name->empty()) return {};
  auto block = ReadBlock(*name);
  return block ? std::move(block->records) : std::vector<LayoutRecord>();
}

Result<std::string> LayoutStore::KeyLine(std::string_view key) {
  const auto text = ini_.Load();
  if (!text) return text.error();
  std::string_view rest = *text;
  while (!rest.empty()) {
    const std::string_view line = WithoutLineEnd(TakeLine(rest));
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos && line.substr(0, equals + 1) == key) {
      return std::string(line);
    }
  }
  return Error{"zarvo.ini: no key \"" + std::string(key) + "\"", true};
}

}  // namespace zarvo
