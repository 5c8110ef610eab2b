// What the details page and the help page say.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/catalogue/data_file.h"

namespace zarvo {

// A row of the details page: which label shows which field.
struct DetailRow {
  std::string_view label;    // "lblInfoName"
  std::string_view caption;  // "Name:"
  Field field;
};
std::span<const DetailRow> DetailRows();  // all but lblInfoSamples, in the order of the fields

// The caption of a detail label for a record, or nothing if the label keeps its text: "YES" and
// "NO" for the original, ".zip" behind the rom file, else the field itself. A field that a cut
// record lacks is shown empty.
std::optional<std::string> DetailText(const GameRecord& record, Field field);

// "Available" or "Not needed".
std::string_view SamplesText(const GameRecord& record);

// The items of the help list for a game: the block of gamelist.txt in the emulator's folder, by the
// rules of MAME or of Callus, or the texts for a missing file or block.
std::vector<std::string> GameListText(DosFiles& files, const EmulatorProfile& profile,
                                      std::string_view emulator_folder, std::string_view name);

// A key text of a help page. Rows with an empty `key` are headings; the first row of M72 names the
// columns of its table.
struct KeyRow {
  std::string_view key;
  std::string_view text;
  std::string_view third;  // third column, of M72's table alone
};
std::span<const KeyRow> HelpKeys(Emulator emulator);

// The fixed items of lstSystem16Help.
std::vector<std::string> System16Help();

}  // namespace zarvo
