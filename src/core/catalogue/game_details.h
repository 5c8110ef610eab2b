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

// The items of the help list for a game, from gamelist.txt in the emulator's folder, or the texts
// for a missing file or game. None for an emulator without such a file.
std::vector<std::string> GameListText(DosFiles& files, const Emulator& emulator,
                                      const DosPath& emulator_folder, std::string_view name);

}  // namespace zarvo
