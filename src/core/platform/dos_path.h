// Taking DOS paths apart: a drive letter, a colon, components between backslashes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

// `folder` and `name` with one backslash in between, also for a root ("C:\" and "a" give "C:\a").
std::string JoinPath(std::string_view folder, std::string_view name);

// The part in front of the last backslash; "C:\" for a file in a root; empty without a backslash.
std::string_view ParentFolder(std::string_view path);

// The part behind the last backslash.
std::string_view FileName(std::string_view path);

// The upper-case drive letter that opens a path ("c:\emu" gives 'C'), or 0 if none does.
char DriveLetter(std::string_view path);

// The components behind the drive, without empty ones, "." or what ".." takes back; ".." at the
// root is dropped. A slash separates as a backslash does.
std::vector<std::string> PathComponents(std::string_view path);

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
