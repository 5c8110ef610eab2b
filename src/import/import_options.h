// What the player asks zarvo-import for: the command line and the small files that it names.
#pragma once

#include <array>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/catalogue/data_file.h"
#include "core/platform/result.h"

namespace zarvo {

// Keys are found by a piece of a longer text without making a copy.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const {
    return std::hash<std::string_view>{}(text);
  }
};
using TextMap = std::unordered_map<std::string, std::string, TextHash, std::equal_to<>>;
using TextSet = std::set<std::string, std::less<>>;

struct YearRange {
  int first = 0;
  int last = 9999;
};

// Everything here is Windows-1252, as the data file has it.
struct ImportOptions {
  std::string input = "-";       // host path; "-" is standard input
  std::string output = "-";      // host path; "-" is standard output
  TextSet makers;                // empty: all; as the data file spells them
  TextMap maker_names;           // the list's spelling to the data file's
  std::vector<YearRange> years;  // empty: all
  bool unknown_years = false;    // games of no known year pass a filter on years
  TextSet drivers;               // empty: all; base names with or without extension
  bool working = false;
  bool arcade = false;
  bool with_genre = false;  // leaves out games whose genre isn't known
  TextMap genres;           // by rom
  std::string default_genre = "n/a";
  TextMap names;                                 // display names by rom, in place of the list's
  std::array<std::string, kHeaderLines> header;  // empty: filled from the list
  bool quiet = false;
  bool help = false;
  bool version = false;
};

// The keys of --header, in the order of the header's lines. The line with the number of games has
// an empty one: it can't be chosen.
std::span<const std::string_view> HeaderKeys();

// `arguments` without the program's name. Reads the files that are named. A failure is a sentence
// for the player.
Result<ImportOptions> ParseOptions(std::span<const std::string> arguments);

// What --help prints.
std::string HelpText();

// Lines "key;value" into a map. Blank lines and lines that begin with "#" are passed over; a later
// line for a key replaces an earlier one. Fails with the line's number for a line without ";".
Result<TextMap> ParsePairs(std::string_view text);

}  // namespace zarvo
