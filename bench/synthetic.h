// A made-up catalogue of any size, with names, fields and lengths like those of a real one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zarvo::bench {

inline constexpr int kMostGames = 32767;

// The genre of one game in eight, and the manufacturer of all.
inline constexpr std::string_view kSomeGenre = "Shooter";
inline constexpr std::string_view kOnlyManufactor = "Konami (Centuri license)";

// `count` different names in the order of a data file.
std::vector<std::string> GameNames(int count);

// The rom of the game at a place.
std::string RomName(int place);

// A whole data file: header and one record a name.
std::string DataFileText(const std::vector<std::string>& names);

}  // namespace zarvo::bench
