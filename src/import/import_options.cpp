#include "import/import_options.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <optional>
#include <sstream>

#include "import/list_text.h"

namespace zarvo {
namespace {

constexpr std::array<std::string_view, kHeaderLines> kHeaderKeys = {
    "name",   "machine", "version",   "date",    "cpu",         "sound",
    "video",  "",        "originals", "working", "available",   "oldest",
    "newest", "years",   "most",      "manager", "contributors"};

using Apply = Status (*)(ImportOptions&, const std::string&);

// An option is told once: parser and help read this table.
struct Option {
  std::string_view name;
  std::string_view value;  // what the help calls it; empty for a switch
  std::string_view help;
  Apply apply;
};

Result<std::string> ReadHostFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return Error{"can't read " + path};
  std::ostringstream text;
  text << file.rdbuf();
  if (file.bad()) return Error{"can't read " + path};
  return std::move(text).str();
}

// Calls `take(line, number)` for each line that holds something and is no comment, in the form of
// a field.
template <typename Take>
Status EachLine(std::string_view text, Take take) {
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.front() == '#') continue;
    Status taken = take(line, number);
    if (!taken) return taken;
  }
  return Success();
}

Status ReadPairs(const std::string& path, TextMap& into) {
  const auto text = ReadHostFile(path);
  if (!text) return text.error();
  auto pairs = ParsePairs(*text);
  if (!pairs) return Error{path + ", " + pairs.error().message};
  into = std::move(*pairs);
  return Success();
}

Status ReadMakers(const std::string& path, TextSet& into) {
  const auto text = ReadHostFile(path);
  if (!text) return text.error();
  return EachLine(*text, [&into](std::string_view line, int /*number*/) {
    into.insert(ToFieldText(line));
    return Success();
  });
}

std::optional<int> ParseYear(std::string_view text) {
  int year = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, failure] = std::from_chars(text.data(), end, year);
  if (text.size() != 4 || failure != std::errc{} || rest != end) return std::nullopt;
  return year;
}

Status AddYears(std::string_view text, ImportOptions& options) {
  if (text == "????") {
    options.unknown_years = true;
    return Success();
  }
  const std::size_t dash = text.find('-');
  const auto first = ParseYear(text.substr(0, dash));
  const auto last = dash == std::string_view::npos ? first : ParseYear(text.substr(dash + 1));
  if (!first || !last || *first > *last) {
    return Error{"\"" + std::string(text) + "\" is no year and no range such as 1975-1999"};
  }
  options.years.push_back({*first, *last});
  return Success();
}

Status ParseYears(ImportOptions& options, const std::string& value) {
  for (std::string_view rest = value;;) {
    const std::size_t comma = rest.find(',');
    Status added = AddYears(rest.substr(0, comma), options);
    if (!added || comma == std::string_view::npos) return added;
    rest.remove_prefix(comma + 1);
  }
}

Status SetHeader(ImportOptions& options, const std::string& value) {
  const std::size_t equals = value.find('=');
  const std::string_view key = std::string_view(value).substr(0, equals);
  const auto* const place = std::find(kHeaderKeys.begin(), kHeaderKeys.end(), key);
  if (equals == std::string::npos || key.empty() || place == kHeaderKeys.end()) {
    return Error{"\"" + value + "\" is no header line such as name=TEXT"};
  }
  options.header[place - kHeaderKeys.begin()] = ToFieldText(value.substr(equals + 1));
  return Success();
}

constexpr std::array kOptions = {
    Option{"output", "FILE", "write the data file to FILE instead of standard output",
           [](ImportOptions& o, const std::string& v) {
             o.output = v;
             return Success();
           }},
    Option{"arcade", "", "take only machines that take coins",
           [](ImportOptions& o, const std::string& /*v*/) {
             o.arcade = true;
             return Success();
           }},
    Option{"working", "", "take only games that can be played, if not perfectly",
           [](ImportOptions& o, const std::string& /*v*/) {
             o.working = true;
             return Success();
           }},
    Option{"years", "LIST", "take only games of these years: 1982, 1975-1999, ???? or a list",
           ParseYears},
    Option{"driver", "NAME", "take only games of this driver; may be given again",
           [](ImportOptions& o, const std::string& v) {
             o.drivers.insert(v);
             return Success();
           }},
    Option{"maker", "TEXT", "take only games by this maker; may be given again",
           [](ImportOptions& o, const std::string& v) {
             o.makers.insert(ToFieldText(v));
             return Success();
           }},
    Option{"makers", "FILE", "take only games by the makers in FILE, one a line",
           [](ImportOptions& o, const std::string& v) { return ReadMakers(v, o.makers); }},
    Option{"maker-map", "FILE", "spell makers as FILE says, lines of \"in the list;in the file\"",
           [](ImportOptions& o, const std::string& v) { return ReadPairs(v, o.maker_names); }},
    Option{"genres", "FILE", "take genres from FILE, lines of \"rom;genre\"",
           [](ImportOptions& o, const std::string& v) { return ReadPairs(v, o.genres); }},
    Option{"default-genre", "TEXT", "genre of all other games; n/a if not given",
           [](ImportOptions& o, const std::string& v) {
             o.default_genre = ToFieldText(v);
             return Success();
           }},
    Option{"with-genre", "", "leave out games that have no line in the genres file",
           [](ImportOptions& o, const std::string& /*v*/) {
             o.with_genre = true;
             return Success();
           }},
    Option{"rename", "FILE", "name games as FILE says, lines of \"rom;Name\"",
           [](ImportOptions& o, const std::string& v) { return ReadPairs(v, o.names); }},
    Option{"header", "KEY=TEXT", "text of a header line; the manual page tells the keys",
           SetHeader},
    Option{"quiet", "", "print no progress and no summary",
           [](ImportOptions& o, const std::string& /*v*/) {
             o.quiet = true;
             return Success();
           }},
    Option{"version", "", "print the version",
           [](ImportOptions& o, const std::string& /*v*/) {
             o.version = true;
             return Success();
           }},
    Option{"help", "", "print this text",
           [](ImportOptions& o, const std::string& /*v*/) {
             o.help = true;
             return Success();
           }},
};

const Option* FindOption(std::string_view name) {
  if (name == "-o") name = "--output";
  if (name == "-h") name = "--help";
  if (name == "-q") name = "--quiet";
  if (!name.starts_with("--")) return nullptr;
  const auto* const option =
      std::find_if(kOptions.begin(), kOptions.end(),
                   [name](const Option& each) { return each.name == name.substr(2); });
  return option == kOptions.end() ? nullptr : option;
}

// Takes the option at `place` and moves `place` to its last word.
Status TakeOption(std::span<const std::string> arguments, std::size_t& place,
                  ImportOptions& options) {
  const std::string& word = arguments[place];
  const std::size_t equals = word.starts_with("--") ? word.find('=') : std::string::npos;
  const std::string name = word.substr(0, equals);
  const Option* const option = FindOption(name);
  if (option == nullptr) return Error{"there is no option " + name};
  if (option->value.empty()) {
    if (equals != std::string::npos) return Error{name + " takes no value"};
    return option->apply(options, {});
  }
  if (equals != std::string::npos) return option->apply(options, word.substr(equals + 1));
  if (place + 1 == arguments.size()) return Error{name + " needs a value"};
  return option->apply(options, arguments[++place]);
}

}  // namespace

std::span<const std::string_view> HeaderKeys() { return kHeaderKeys; }

Result<TextMap> ParsePairs(std::string_view text) {
  TextMap pairs;
  const Status read = EachLine(text, [&pairs](std::string_view line, int number) -> Status {
    const std::size_t semicolon = line.find(';');
    std::string key = ToFieldText(line.substr(0, semicolon));
    if (semicolon == std::string_view::npos || key.empty()) {
      return Error{"line " + std::to_string(number) + ": \"key;value\" is expected"};
    }
    pairs.insert_or_assign(std::move(key), ToFieldText(line.substr(semicolon + 1)));
    return Success();
  });
  if (!read) return read.error();
  return pairs;
}

Result<ImportOptions> ParseOptions(std::span<const std::string> arguments) {
  ImportOptions options;
  bool had_input = false;
  bool only_names = false;
  for (std::size_t place = 0; place < arguments.size(); ++place) {
    const std::string& word = arguments[place];
    if (!only_names && word == "--") {
      only_names = true;
    } else if (!only_names && word.size() > 1 && word.front() == '-') {
      const Status taken = TakeOption(arguments, place, options);
      if (!taken) return taken.error();
    } else if (had_input) {
      return Error{"one list at a time; \"" + word + "\" is one too many"};
    } else {
      options.input = word;
      had_input = true;
    }
  }
  return options;
}

std::string HelpText() {
  std::string text =
      "Usage: zarvo-import [OPTION]... [LIST]\n"
      "Makes a data file for Zarvo from the list that an emulator prints about itself:\n"
      "the XML of -listxml, the text of -listinfo, or a DAT of a ROM manager.\n"
      "Without LIST, or with -, the list comes from standard input.\n\n";
  constexpr std::size_t kColumn = 27;
  for (const Option& option : kOptions) {
    std::string row = "  --" + std::string(option.name);
    if (!option.value.empty()) row += " " + std::string(option.value);
    row.resize(std::max(kColumn, row.size() + 1), ' ');
    text += row + std::string(option.help) + "\n";
  }
  text +=
      "\n-o, -q and -h are short for --output, --quiet and --help.\n"
      "Exit status: 0 done, 1 the list is broken, 2 wrong use, 3 the file can't be written.\n";
  return text;
}

}  // namespace zarvo
