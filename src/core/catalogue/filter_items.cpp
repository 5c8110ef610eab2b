// What stands in the filter combos, and M72's fixed list of games.
#include <array>

#include "core/catalogue/game_list.h"

namespace zarvo {
namespace {

using Text = std::string_view;

constexpr auto kStates = std::to_array<Text>({
    "All Supported",
    "Originals Only",
    "Clones Only",
    "Available Roms",
    "Missing Roms",
    "No Neo-Geo Games",
    "Neo-Geo Games",
});
constexpr std::size_t kCommonStates = 5;  // of the emulators without Neo-Geo games

constexpr auto kMameGenres = std::to_array<Text>({
    "- Genre",
    "n/a",
    "Action",
    "Arcade",
    "Breakout",
    "Fighting",
    "Gambling",
    "Labyrinth",
    "Pinball",
    "Platform",
    "Pool",
    "Puzzle",
    "Racing",
    "Shooter",
    "Shooter 3D",
    "Space",
    "Sports",
});

constexpr auto kCallusGenres = std::to_array<Text>({
    "- Genre",
    "Action",
    "Fighting",
    "Puzzle",
    "Shooter",
    "Trivia",
});

constexpr auto kRaineGenres = std::to_array<Text>({
    "- Genre",
    "Action",
    "Fighting",
    "Maze",
    "Platform",
    "Puzzle",
    "Racing",
    "Shooter",
    "Sports",
});

constexpr auto kMameManufactors = std::to_array<Text>({
    "- Manufactor",
    "?\??\??",
    "[Jaleco] (Williams license)",
    "[Konami] (Sega license)",
    "[Konami] (Stern license)",
    "[Kural] (Williams license)",
    "[Namco] (Atari license)",
    "[Namco] (Bally Midway license)",
    "[Namco] (Midway license)",
    "[Namco] (Rock-ola license)",
    "[Orca] Thunderbolt",
    "[SNK] (Taito America license)",
    "[Stern] (Tago license)",
    "[Sun Electronics] (Atari license)",
    "[Taito] World Games",
    "[Technos] Taito (Memetron license)",
    "[Toaplan] (Taito license)",
    "<unknown>",
    "ADK",
    "ADK / SNK",
    "Aicom",
    "Alpha Denshi Co",
    "Alpha Denshi Co.",
    "Amenip",
    "Amenip/Centuri",
    "Amstar",
    "Armenia",
    "Atari",
    "Atari + Gencomp",
    "Atari Games",
    "Bally Midway",
    "bootleg",
    "bootleg?",
    "Capcom",
    "Capcom (Compile license)",
    "Capcom (Data East USA license)",
    "Capcom (Memetron license)",
    "Capcom (Romstar license)",
    "Capcom (Taito America license)",
    "Centuri",
    "Chu Co. Ltd",
    "Cinematronics",
    "Cinematronics + Advanced Microcompute",
    "Comad",
    "Comsoft",
    "Coreland / Sega",
    "D. R. Korea",
    "Data Amusement",
    "Data East",
    "Data East (Bally Midway license)",
    "Data East (Technos license)",
    "Data East Corporation",
    "Data East Corporation (I-Vics license",
    "Data East Corporation (licensed from",
    "Data East USA",
    "Data East USA (Bally Midway license)",
    "Denki Onkyo",
    "Digitrex Techstar (Rock-ola license)",
    "Dooyong",
    "Eastern Micro Electronics, Inc.",
    "Eighting / Hudson",
    "Epos Corporation",
    "Exidy",
    "Face",
    "Falcon",
    "Game Plan, Inc. (Taito)",
    "GamePlan",
    "GamePlan (Centuri license)",
    "GDI + Irem",
    "Gottlieb",
    "Gottlieb (Konami license)",
    "Gottlieb / Premier Technology",
    "Gremlin",
    "H.A.R. Management",
    "hack",
    "Hara Industries",
    "Hara Industries?\?",
    "Hudson",
    "Incredible Technologies",
    "Irem",
    "Irem (Data East license)",
    "Irem (Data East USA license)",
    "Irem (licensed from Broderbund)",
    "Irem (licensed from Tokuma Shoten)",
    "Irem (Williams license)",
    "Jaleco",
    "Jaleco (Cinematronics license)",
    "Jaleco (Kitkorp license)",
    "Jaleco (Taito America license)",
    "Kaneko",
    "Kaneko (Namco license)",
    "Karateco",
    "KH Video",
    "KKI",
    "Konami",
    "Konami (Centuri license)",
    "Konami (Olympia license)",
    "Konami (Stern license)",
    "Konami / Interlogic + Kosuka",
    "Konami + Kosuka",
    "Kural Electric",
    "Kural Esco Electric",
    "Kural Samno Electric",
    "LAX",
    "Leijac Corporation",
    "Meadows",
    "Meadows Games, Inc.",
    "Midway",
    "Mitchell",
    "Mitchell + Capcom",
    "Monolith Corp.",
    "Mylstar",
    "Namco",
    "Namco (Atari license)",
    "Nazca",
    "Nichibutsu",
    "Nichibutsu + Alice",
    "Nichibutsu USA",
    "Nintendo",
    "Nintendo / Fortrek",
    "Nintendo of America",
    "Nippon Amuse Co-Ltd",
    "NMK",
    "Nova Games Ltd.",
    "Olympia",
    "Olympia (Centuri license)",
    "Orca",
    "Orca (Eastern Commerce Inc. license)",
    "Orca (Esco Trading Co license)",
    "Orca (Esco Trading Co, Inc)",
    "Orca Corporation",
    "P & P Marketing",
    "Pacific Novelty",
    "Philko",
    "Ramtek",
    "Rock-ola",
    "Rock-Ola",
    "Sammy",
    "Saurus",
    "Sega",
    "Sega (Escape license)",
    "Sega / Alpha Denshi",
    "Sega / Coreland",
    "Sega / Vic Tokai",
    "Seibu Denshi",
    "Seibu Denshi [Cinematronics license]",
    "Seibu Kaihatsu",
    "Sesame Japan",
    "Shoei",
    "Sigma Ent. Inc.",
    "SNK",
    "SNK (Centuri license)",
    "SNK / Pallas",
    "SNK Corp.",
    "SNK Corp. of America",
    "Stern",
    "Sun a Electronics",
    "Sun Electronics",
    "Sunsoft",
    "Tad",
    "Tad (Fabtek license)",
    "Taito",
    "Taito (Fox Video Games license)",
    "Taito (Universal license?)",
    "Taito (Visco license)",
    "Taito America",
    "Taito America (Romstar license)",
    "Taito America Corp (Romstar license)",
    "Taito Corp Japan",
    "Taito Japan",
    "Taito of America",
    "Taito of America (Romstar license)",
    "Takara",
    "Tamtex",
    "Tecfri",
    "Technos",
    "Technos (Taito America license)",
    "Technos (Taito license)",
    "Technos + California Dreams",
    "Technos Japan + Roller Tron",
    "Techstar (Sunn license)",
    "Tecmo",
    "Tehkan",
    "Tehkan (Centuri license)",
    "Tehkan (Video Ware license)",
    "Telko",
    "Toaplan",
    "Toaplan (Romstar license)",
    "Toaplan (Taito license)",
    "Tong Electronic",
    "Universal",
    "Universal (ADP Automaten license)",
    "Universal (Taito license)",
    "Universal USA",
    "UPL",
    "UPL (Kawakus license)",
    "UPL (World Games license)",
    "Valadon Automation",
    "Valadon Automation (Stern license)",
    "Vectorbeam",
    "Video System Co.",
    "Visco",
    "Vision / Artic",
    "Williams",
    "Woodplace Inc.",
    "Yumekobo",
    "Zaccaria",
    "Zenitone Microsec",
    "Zenitone Microsec (Dutchford license)",
    "Zilec Games",
    "Zilec-Zenitone",
});

constexpr auto kCallusManufactors = std::to_array<Text>({
    "- Manufactor",
    "Capcom",
});

constexpr auto kRaineManufactors = std::to_array<Text>({
    "- Manufactor",
    "Bear",
    "Comad",
    "Datsu",
    "Jaleco",
    "Nichibutsu",
    "NMK",
    "Red Corp",
    "Ryoutou",
    "Sakowa",
    "Seyetu",
    "Tad Corp",
    "Taito",
    "Taito/Bally",
    "Taito+Sega",
    "Technos",
    "Tecmo",
});

constexpr auto kMameYears = std::to_array<Text>({
    "- Year", "?\??\?", "1975", "1976", "1977", "1978", "1979", "1980", "1981",
    "1982",   "1983",   "1984", "1985", "1986", "1987", "1988", "1989", "1990",
    "1991",   "1992",   "1993", "1994", "1995", "1996", "1997", "1998", "1999",
});

constexpr auto kCallusYears = std::to_array<Text>({
    "- Year",
    "1988",
    "1989",
    "1990",
    "1991",
    "1992",
    "1993",
    "1994",
    "1995",
});

constexpr auto kRaineYears = std::to_array<Text>({
    "- Year",
    "1985",
    "1986",
    "1987",
    "1988",
    "1989",
    "1990",
    "1991",
    "1992",
    "1993",
    "1994",
    "1995",
    "1996",
    "1997",
});

constexpr auto kM72Games = std::to_array<Text>({
    "Battle Chopper",
    "Dragon Breed",
    "Gallop - Armed Police Unit",
    "Hammerin'Harry",
    "Image Fight",
    "Legend of Hero Tonma",
    "Mr.Heli (JP)",
    "Ninja Spirit",
    "R-Type (US)",
    "R-Type (JP)",
    "R-Type 2",
    "X-Multiply",
});

static_assert(kMameManufactors.size() == 1 + 210);

using Items = std::span<const Text>;

struct FilterSet {
  Items genres, manufactors, years;
};

constexpr std::array<FilterSet, kEmulatorCount> kFilters = {{
    {.genres = kMameGenres, .manufactors = kMameManufactors, .years = kMameYears},
    {.genres = kCallusGenres, .manufactors = kCallusManufactors, .years = kCallusYears},
    {.genres = kRaineGenres, .manufactors = kRaineManufactors, .years = kRaineYears},
    {},
    {},
}};

}  // namespace

std::span<const std::string_view> StateItems(Emulator emulator) {
  const EmulatorProfile& profile = ProfileOf(emulator);
  if (!profile.has_filters) return {};
  return profile.knows_parents ? Items(kStates) : Items(kStates).first(kCommonStates);
}

std::span<const std::string_view> FilterItems(Emulator emulator, ValueFilter filter) {
  const FilterSet& set = kFilters[static_cast<std::size_t>(emulator)];
  switch (filter) {
    case ValueFilter::kGenre:
      return set.genres;
    case ValueFilter::kManufactor:
      return set.manufactors;
    case ValueFilter::kYear:
      return set.years;
  }
  return {};
}

std::span<const std::string_view> M72Games() { return kM72Games; }

}  // namespace zarvo
