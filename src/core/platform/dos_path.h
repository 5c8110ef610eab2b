// DOS paths: a drive letter, a colon, components between backslashes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zarvo {

// The name of a file or folder, without the way to it.
class FileName {
 public:
  // The program's own names: a literal says what it is, all else is called so.
  template <std::size_t kSize>
  FileName(const char (&name)[kSize]) : text_(name) {}  // NOLINT(google-explicit-constructor)
  static FileName Own(std::string_view name) { return FileName(std::string(name)); }
  // Nothing if it can't be a component of a path: empty, a control character, one of \ / : * ? " <
  // > |.
  static std::optional<FileName> Of(std::string_view name);
  // A name that a stranger gave; nothing unless IsPlainName.
  static std::optional<FileName> Plain(std::string_view name);

  [[nodiscard]] const std::string& Text() const { return text_; }
  // With more behind it: "pengo" and ".zip".
  [[nodiscard]] FileName With(std::string_view ending) const {
    return FileName(text_ + std::string(ending));
  }

  friend bool operator==(const FileName&, const FileName&) = default;

 private:
  explicit FileName(std::string name) : text_(std::move(name)) {}

  std::string text_;
};

// A path of the DOS world in Windows-1252, full or from the current folder. Paths of the host are
// std::filesystem::path; neither becomes the other but through DosFiles.
class DosPath {
 public:
  DosPath() = default;  // the current folder, or none
  template <std::size_t kSize>
  DosPath(const char (&path)[kSize]) : text_(path) {}    // NOLINT(google-explicit-constructor)
  DosPath(const FileName& name) : text_(name.Text()) {}  // NOLINT(google-explicit-constructor)
  explicit DosPath(std::string_view path) : text_(path) {}
  // The root of a drive, "C:\".
  static DosPath Root(char letter) { return DosPath(std::string(1, letter) + ":\\"); }

  // As it was given.
  [[nodiscard]] const std::string& Text() const { return text_; }
  [[nodiscard]] bool IsEmpty() const { return text_.empty(); }
  // The upper-case drive letter that opens it ("c:\emu" gives 'C'), or 0 if none does.
  [[nodiscard]] char Drive() const;
  // The part in front of the last backslash; "C:\" for a file in a root; empty without a backslash.
  [[nodiscard]] DosPath Folder() const;
  // The part behind the last backslash.
  [[nodiscard]] std::string_view Name() const;
  // The components behind the drive, without empty ones, "." or what ".." takes back; ".." at the
  // root is dropped. A slash separates as a backslash does.
  [[nodiscard]] std::vector<std::string> Components() const;

  friend bool operator==(const DosPath&, const DosPath&) = default;

 private:
  std::string text_;
};

// With one backslash in between, also for a root ("C:\" and "a" give "C:\a").
DosPath operator/(const DosPath& folder, const FileName& name);

// True for what every DOS can name in a batch file: one to eight characters, then perhaps a dot and
// one to three; ASCII only, since DOS has another code page, no blank, "%" or character that DOS
// refuses, and no name of a device.
bool IsDosName(std::string_view component);

// True for a plain file name that can't lead anywhere else: not empty, and no separator, drive,
// wildcard, quote, blank, control or shell character, and not made of dots; nor does it read as an
// option ("-x") or a device ("con").
bool IsPlainName(std::string_view name);

// `name` against a list of patterns as in a file list: "*.zip" or "puckman.zip;pacman.zip". "*" and
// "?" are wildcards, case doesn't matter, "*.*" is every name, an empty list matches nothing.
bool MatchesPattern(std::string_view name, std::string_view patterns);

}  // namespace zarvo
