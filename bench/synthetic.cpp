#include "synthetic.h"

#include <algorithm>
#include <array>

#include "core/platform/text.h"

namespace zarvo::bench {
namespace {

constexpr std::array<std::string_view, 32> kFirst = {
    "Air",    "Atomic", "Battle", "Black",  "Captain", "Cosmo",  "Crystal", "Double",
    "Dragon", "Final",  "Flying", "Galaxy", "Gun",     "Hyper",  "Iron",    "Jungle",
    "King",   "Laser",  "Magic",  "Mega",   "Night",   "Ninja",  "Power",   "Rolling",
    "Sky",    "Space",  "Star",   "Steel",  "Super",   "Street", "Thunder", "Wonder"};
constexpr std::array<std::string_view, 32> kSecond = {
    "Ace",     "Arena",  "Attack",  "Blaster", "Boy",       "Champion", "City",    "Crush",
    "Dancer",  "Empire", "Fighter", "Force",   "Gladiator", "Hero",     "Hunter",  "Invasion",
    "Jockey",  "Knight", "Legend",  "Master",  "Mission",   "Patrol",   "Quest",   "Racer",
    "Raiders", "Road",   "Soldier", "Storm",   "Strikers",  "Tank",     "Warrior", "Zone"};
constexpr std::array<std::string_view, 4> kVersion = {"", " (US)", " (JP, set 2)", " (bootleg)"};
constexpr std::array<std::string_view, 8> kSequel = {
    "", " II", " III", " '88", " 2000", " Turbo", " Deluxe", " - The Revenge"};
constexpr std::array<std::string_view, 8> kGenres = {"Action", "Fighting", "Platform", "Puzzle",
                                                     "Racing", "Shooter",  "Space",    "Sports"};

std::string Header() {
  std::string header;
  for (int line = 1; line <= 17; ++line) header += "*Fact number " + std::to_string(line) + "\r\n";
  return header;
}

std::string Record(std::string_view name, int place) {
  const bool clone = place % 3 == 1;
  std::string record(name);
  record += ';' + RomName(place) + (clone ? ";C;" + RomName(place - 1) : ";O;-") + ';';
  record += kGenres[static_cast<std::size_t>(place) % kGenres.size()];
  record += ';';
  record += kOnlyManufactor;
  record += ';' + std::to_string(1975 + place % 25);
  record += ";Yes;Near;Yes(1);Yes;No;dragon.c;M68000;[Z80];n/a;n/a;YM2151;OKIM6295;n/a;n/a;\r\n";
  return record;
}

}  // namespace

std::vector<std::string> GameNames(int count) {
  std::vector<std::string> names;
  for (int place = 0; place < count; ++place) {
    // An odd factor walks over all 32,768 combinations, so that a small catalogue is mixed too.
    const auto mixed = static_cast<unsigned>(place) * 12345U % 32768U;
    std::string name(kFirst[mixed % 32]);
    name += ' ';
    name += kSecond[mixed / 32 % 32];
    name += kSequel[mixed / 1024 % 8];
    name += kVersion[mixed / 8192];
    names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(),
            [](const auto& left, const auto& right) { return LessNoCase(left, right); });
  return names;
}

std::string RomName(int place) { return "game" + std::to_string(1000 + place); }

std::string DataFileText(const std::vector<std::string>& names) {
  std::string text = Header();
  for (std::size_t place = 0; place < names.size(); ++place) {
    text += Record(names[place], static_cast<int>(place));
  }
  return text;
}

}  // namespace zarvo::bench
