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

// The components behind the drive, without empty ones, "." or what ".." takes back.
std::vector<std::string> PathComponents(std::string_view path);

// True for what DOS can name: one to eight characters, then perhaps a dot and one to three, and no
// blank or character that DOS refuses.
bool IsDosName(std::string_view component);

// True for a plain file name that can't lead anywhere else: not empty, and no separator, drive,
// wildcard, quote, blank, control or shell character, and not made of dots.
bool IsPlainName(std::string_view name);

// `name` against a list of patterns as in a file list: "*.zip" or "puckman.zip;pacman.zip". "*" and
// "?" are wildcards, case doesn't matter, an empty list matches nothing.
bool MatchesPattern(std::string_view name, std::string_view patterns);

}  // namespace zarvo
