#include "core/platform/dos_path.h"

#include <algorithm>
#include <array>

#include "core/platform/text.h"

namespace zarvo {
namespace {

constexpr std::string_view kSeparators = "\\/";

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// The control characters of Windows-1252, and the two blanks.
bool IsControlOrBlank(char c) {
  constexpr std::string_view kUpper = "\x7F\x81\x8D\x8F\x90\x9D\xA0";
  return static_cast<unsigned char>(c) <= ' ' || kUpper.find(c) != std::string_view::npos;
}

// DOS opens a device by these names, whatever the folder and the extension.
bool IsDeviceName(std::string_view name) {
  constexpr std::array<std::string_view, 4> kDevices = {"con", "prn", "aux", "nul"};
  const std::string stem = FoldCase(name.substr(0, name.find('.')));
  if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
  const bool port = stem.starts_with("com") || stem.starts_with("lpt");
  return port && stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9';
}

bool IsDosCharacter(char c) {
  // "%" would be allowed, but not in the line of a batch file.
  constexpr std::string_view kRefused = "\"*+,./:;<=>?[\\]|%";
  return c > ' ' && c < '\x7F' && kRefused.find(c) == std::string_view::npos;
}

bool MatchesOne(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;  // also a name without a dot, as DOS has it
  const auto same = [](char left, char right) {
    return FoldCase(static_cast<unsigned char>(left)) ==
           FoldCase(static_cast<unsigned char>(right));
  };
  std::size_t at = 0;
  std::size_t place = 0;
  // Where to go on after a "*" that has to swallow one character more.
  std::size_t star = std::string_view::npos;
  std::size_t swallowed = 0;
  while (at < name.size()) {
    if (place < pattern.size() && pattern[place] == '*') {
      star = place++;
      swallowed = at;
    } else if (place < pattern.size() &&
               (pattern[place] == '?' || same(pattern[place], name[at]))) {
      ++place;
      ++at;
    } else if (star != std::string_view::npos) {
      place = star + 1;
      at = ++swallowed;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', place) == std::string_view::npos;
}

}  // namespace

std::optional<FileName> FileName::Of(std::string_view name) {
  constexpr std::string_view kRefused = "\\/:*?\"<>|\x7F";
  const bool sayable = !name.empty() && std::none_of(name.begin(), name.end(), [&](char c) {
    return static_cast<unsigned char>(c) < ' ' || kRefused.find(c) != std::string_view::npos;
  });
  return sayable ? std::optional(Own(name)) : std::nullopt;
}

std::optional<FileName> FileName::Plain(std::string_view name) {
  return IsPlainName(name) ? std::optional(Own(name)) : std::nullopt;
}

char DosPath::Drive() const {
  if (text_.size() < 2 || text_[1] != ':' || !IsLetter(text_[0])) return 0;
  return static_cast<char>(text_[0] & ~0x20);
}

DosPath DosPath::Folder() const {
  const std::size_t last = text_.rfind('\\');
  if (last == std::string::npos) return {};
  const bool in_root = last == 0 || (last == 2 && Drive() != 0);
  return DosPath(std::string_view(text_).substr(0, in_root ? last + 1 : last));
}

std::string_view DosPath::Name() const {
  return std::string_view(text_).substr(text_.rfind('\\') + 1);
}

std::vector<std::string> DosPath::Components() const {
  std::vector<std::string> components;
  std::string_view path = text_;
  if (Drive() != 0) path.remove_prefix(2);
  while (!path.empty()) {
    const std::string_view component = path.substr(0, path.find_first_of(kSeparators));
    path.remove_prefix(std::min(path.size(), component.size() + 1));
    if (component.empty() || component == ".") continue;
    if (component != "..") {
      components.emplace_back(component);
    } else if (!components.empty()) {
      components.pop_back();
    }
  }
  return components;
}

DosPath operator/(const DosPath& folder, const FileName& name) {
  std::string path = folder.Text();
  if (!path.empty() && path.back() != '\\') path += '\\';
  return DosPath(path + name.Text());
}

bool IsDosName(std::string_view component) {
  const std::size_t dot = component.find('.');
  const std::string_view stem = component.substr(0, dot);
  if (stem.empty() || stem.size() > 8 || !std::all_of(stem.begin(), stem.end(), IsDosCharacter) ||
      IsDeviceName(component)) {
    return false;
  }
  if (dot == std::string_view::npos) return true;
  const std::string_view extension = component.substr(dot + 1);
  return !extension.empty() && extension.size() <= 3 &&
         std::all_of(extension.begin(), extension.end(), IsDosCharacter);
}

bool IsPlainName(std::string_view name) {
  constexpr std::string_view kRefused = "\\/:*?\"'`<>|&;$%^!(){}[]=,@";
  const auto refused = [&](char c) {
    return IsControlOrBlank(c) || kRefused.find(c) != std::string_view::npos;
  };
  if (name.find_first_not_of('.') == std::string_view::npos) return false;
  if (name.front() == '-' || IsDeviceName(name)) return false;
  return std::none_of(name.begin(), name.end(), refused);
}

bool MatchesPattern(std::string_view name, std::string_view patterns) {
  while (!patterns.empty()) {
    const std::string_view pattern = patterns.substr(0, patterns.find(';'));
    patterns.remove_prefix(std::min(patterns.size(), pattern.size() + 1));
    const std::string_view trimmed = TrimBlanks(pattern);
    if (!trimmed.empty() && MatchesOne(name, trimmed)) return true;
  }
  return false;
}

}  // namespace zarvo
