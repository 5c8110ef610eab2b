#include "import/catalogue_builder.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "core/platform/line_reader.h"
#include "core/platform/name_list.h"
#include "core/platform/text.h"
#include "import/list_text.h"

namespace zarvo {
namespace {

constexpr std::string_view kNeoGeo = "neogeo";
constexpr std::string_view kNothing = "n/a";
// Room for the texts of 32,767 games of 1,000 characters; real ones take 200.
constexpr std::size_t kMostText = std::size_t{32} << 20;
constexpr std::size_t kTextBlock = std::size_t{256} << 10;
constexpr std::size_t kMostChipKinds = 4096;

std::string_view WithoutExtension(std::string_view name) { return name.substr(0, name.rfind('.')); }

int YearNumber(std::string_view year) {
  int number = 0;
  if (year.size() != 4) return 0;
  for (const char digit : year) {
    if (digit < '0' || digit > '9') return 0;
    number = number * 10 + (digit - '0');
  }
  return number;
}

std::string_view PlayableText(Grade status) {
  switch (status) {
    case Grade::kGood:
      return "Yes";
    case Grade::kImperfect:
      return "Partial";
    case Grade::kBad:
      return "No";
    case Grade::kUnknown:
      break;
  }
  return kNothing;
}

std::string_view ColorsText(Grade colors) {
  return colors == Grade::kImperfect ? "Near" : PlayableText(colors);
}

// "Yes(1)" alone says that samples exist, so a game with samples gets it unless it is silent.
std::string_view SoundText(const Machine& machine) {
  if (machine.sound != Grade::kBad && machine.samples) return "Yes(1)";
  return machine.no_sound_hardware ? kNothing : PlayableText(machine.sound);
}

std::string_view CocktailText(YesNo cocktail) {
  if (cocktail == YesNo::kUnknown) return kNothing;
  return cocktail == YesNo::kYes ? "Yes" : "No";
}

bool SaysNeoGeo(const Machine& machine) {
  return machine.rom_of == kNeoGeo || machine.clone_of == kNeoGeo ||
         WithoutExtension(BaseName(machine.source)) == kNeoGeo;
}

// "Zilog Z80 and 12 others", beginning with the chip that is used most.
std::string MostUsed(const std::map<std::string, int, std::less<>>& chips) {
  const auto most = std::max_element(
      chips.begin(), chips.end(),
      [](const auto& left, const auto& right) { return left.second < right.second; });
  if (most == chips.end()) return "-";
  if (chips.size() == 1) return most->first;
  const std::string others = chips.size() == 2 ? " other" : " others";
  return most->first + " and " + std::to_string(chips.size() - 1) + others;
}

}  // namespace

std::string_view Describe(LeftOut reason) {
  constexpr std::array<std::string_view, kLeftOutCount> kTexts = {
      "BIOS sets",
      "devices",
      "mechanical machines",
      "sets that can't be run",
      "sets whose name is no file name",
      "machines that take no coins",
      "of other drivers",
      "of other years",
      "of other makers",
      "not working",
      "without a genre",
      "sets listed twice",
      "too long for a line",
      "beyond the 32767 that a data file holds"};
  return kTexts[static_cast<std::size_t>(reason)];
}

std::string_view TextStore::Keep(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() > room_) {
    room_ = std::max(kTextBlock, text.size());
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(room_));
    size_ += room_;
    next_ = blocks_.back().get();
  }
  char* const place = next_;
  std::memcpy(place, text.data(), text.size());
  next_ += text.size();
  room_ -= text.size();
  return {place, text.size()};
}

Status CatalogueBuilder::Take(const Machine& machine) {
  ++summary_.machines;
  NoteNeoGeo(machine);
  const std::string maker = MakerOf(machine);
  if (const auto reason = Refusal(machine, maker)) {
    LeaveOut(*reason);
    return Success();
  }
  Add(machine, maker);
  if (texts_.Size() > kMostText) return Error{"the texts of the list take more than 32 MiB"};
  return Success();
}

// A clone tells its parent, and only the parent may tell the system. The parent may stand behind
// its clone, and it may be one that isn't taken.
void CatalogueBuilder::NoteNeoGeo(const Machine& machine) {
  if (SaysNeoGeo(machine) && neo_geo_.size() < kMostEntries) neo_geo_.insert(machine.rom);
}

std::optional<LeftOut> CatalogueBuilder::Refusal(const Machine& machine,
                                                 std::string_view maker) const {
  if (machine.bios) return LeftOut::kBios;
  if (machine.device) return LeftOut::kDevice;
  if (machine.mechanical) return LeftOut::kMechanical;
  if (!machine.runnable) return LeftOut::kNotRunnable;
  if (!IsUsableRomName(machine.rom)) return LeftOut::kUnusableRom;
  if (options_.arcade && machine.coins == YesNo::kNo) return LeftOut::kNotArcade;
  if (!WantsDriver(machine.source)) return LeftOut::kDriver;
  if (!WantsYear(machine.year)) return LeftOut::kYear;
  if (!options_.makers.empty() && !options_.makers.contains(maker)) return LeftOut::kMaker;
  if (options_.working && machine.status == Grade::kBad) return LeftOut::kNotWorking;
  if (options_.with_genre && GenreOf(machine) == nullptr) return LeftOut::kNoGenre;
  if (roms_.contains(machine.rom)) return LeftOut::kTwice;
  if (games_.size() == kMostEntries) return LeftOut::kFull;
  return std::nullopt;
}

bool CatalogueBuilder::WantsDriver(std::string_view source) const {
  if (options_.drivers.empty()) return true;
  const std::string_view name = BaseName(source);
  return options_.drivers.contains(name) || options_.drivers.contains(WithoutExtension(name));
}

bool CatalogueBuilder::WantsYear(std::string_view year) const {
  if (options_.years.empty() && !options_.unknown_years) return true;
  const int number = YearNumber(year);
  if (number == 0) return options_.unknown_years;
  return std::any_of(
      options_.years.begin(), options_.years.end(),
      [number](const YearRange& range) { return number >= range.first && number <= range.last; });
}

const std::string* CatalogueBuilder::GenreOf(const Machine& machine) const {
  auto found = options_.genres.find(machine.rom);
  if (found == options_.genres.end()) found = options_.genres.find(machine.clone_of);
  return found == options_.genres.end() ? nullptr : &found->second;
}

std::string CatalogueBuilder::MakerOf(const Machine& machine) const {
  std::string maker = ToFieldText(machine.manufacturer);
  const auto found = options_.maker_names.find(maker);
  if (found != options_.maker_names.end()) return found->second;
  return maker.empty() ? "<unknown>" : maker;
}

std::string CatalogueBuilder::RestOf(const Machine& machine, std::string_view maker) const {
  std::string rest;
  const auto add = [&rest](std::string_view field) { rest.append(field).append(1, ';'); };
  const std::string* const genre = GenreOf(machine);
  add(genre == nullptr ? options_.default_genre : *genre);
  add(maker);
  add(YearNumber(machine.year) == 0 ? "????" : std::string_view(machine.year));
  add(PlayableText(machine.status));
  add(ColorsText(machine.colors));
  add(SoundText(machine));
  add(kNothing);  // lists don't tell whether high scores are saved
  add(CocktailText(machine.cocktail));
  const std::string driver = ToFieldText(BaseName(machine.source));
  add(driver.empty() ? kNothing : driver);
  for (const ChipNames* chips : {&machine.cpus, &machine.sound_chips}) {
    for (std::size_t place = 0; place < 4; ++place) {
      add(place < chips->Count() ? ToFieldText((*chips)[place]) : std::string(kNothing));
    }
  }
  return rest;
}

void CatalogueBuilder::Add(const Machine& machine, const std::string& maker) {
  const auto renamed = options_.names.find(machine.rom);
  std::string name =
      ToGameName(renamed == options_.names.end() ? machine.description : renamed->second);
  if (name.empty()) name = machine.rom;
  const std::string rest = RestOf(machine, maker);
  const bool has_parent = IsUsableRomName(machine.clone_of) && machine.clone_of != machine.rom;
  // A name that has to be told apart grows by its rom.
  const std::size_t longest =
      name.size() + 2 * machine.rom.size() + machine.clone_of.size() + rest.size() + 16;
  if (longest > kLongestLine) {
    LeaveOut(LeftOut::kLongLine);
    return;
  }
  games_.push_back(
      {.name = texts_.Keep(name),
       .rom = texts_.Keep(machine.rom),
       .parent = has_parent ? texts_.Keep(machine.clone_of) : std::string_view{},
       .maker = texts_.Keep(maker),
       .rest = texts_.Keep(rest),
       .year = YearNumber(machine.year),
       .playable = machine.status == Grade::kGood || machine.status == Grade::kImperfect,
       .perfect = machine.status == Grade::kGood});
  roms_.insert(games_.back().rom);
  (machine.vector_screen ? vector_ : raster_) = true;
  CountChips(machine);
}

void CatalogueBuilder::CountChips(const Machine& machine) {
  const auto count = [](const ChipNames& chips, auto& kinds) {
    for (std::size_t place = 0; place < chips.Count(); ++place) {
      std::string name = ToFieldText(chips[place]);
      if (name.starts_with('[') && name.ends_with(']')) name = name.substr(1, name.size() - 2);
      if (name.empty() || name.size() > 100) continue;
      if (kinds.size() < kMostChipKinds || kinds.contains(name)) ++kinds[name];
    }
  };
  count(machine.cpus, cpus_);
  count(machine.sound_chips, sound_chips_);
}

void CatalogueBuilder::Finish() {
  for (Game& game : games_) {
    game.neo_geo = neo_geo_.contains(game.rom) || neo_geo_.contains(game.parent);
  }
  SettleNames();
  std::stable_sort(games_.begin(), games_.end(), [](const Game& left, const Game& right) {
    return LessNoCase(left.name, right.name);
  });
  CountGames();
}

// A name is the key of a game, so no two games share one, in whatever case. The first keeps it.
void CatalogueBuilder::SettleNames() {
  const auto less = [](std::string_view left, std::string_view right) {
    return LessNoCase(left, right);
  };
  std::set<std::string_view, decltype(less)> names(less);
  for (Game& game : games_) {
    if (names.insert(game.name).second) continue;
    const std::string suffix = " (" + std::string(game.rom) + ")";
    std::string name = std::string(game.name) + suffix;
    while (names.contains(name)) name += suffix;
    game.name = texts_.Keep(name);
    names.insert(game.name);
    ++summary_.renamed;
  }
}

void CatalogueBuilder::CountGames() {
  summary_.games = static_cast<int>(games_.size());
  for (const Game& game : games_) {
    if (game.neo_geo) {
      ++summary_.neo_geo;
    } else if (game.parent.empty()) {
      ++summary_.originals;
    } else {
      ++summary_.clones;
      if (!roms_.contains(game.parent)) ++summary_.orphans;
    }
  }
}

std::string CatalogueBuilder::Line(std::size_t place) const {
  const Game& game = games_[place];
  const bool original = game.parent.empty() && !game.neo_geo;
  const std::string_view parent = game.neo_geo ? kNeoGeo : original ? "-" : game.parent;
  std::string line;
  for (const std::string_view field :
       {game.name, game.rom, std::string_view(original ? "O" : "C"), parent}) {
    line.append(field).append(1, ';');
  }
  return line.append(game.rest);
}

std::string CatalogueBuilder::YearsCovered() const {
  std::set<int> years;
  for (const Game& game : games_) {
    if (game.year != 0) years.insert(game.year);
  }
  return std::to_string(years.size());
}

std::string CatalogueBuilder::BusiestMaker() const {
  std::map<std::string_view, int> makers;
  for (const Game& game : games_) ++makers[game.maker];
  const auto most = std::max_element(
      makers.begin(), makers.end(),
      [](const auto& left, const auto& right) { return left.second < right.second; });
  if (most == makers.end()) return "-";
  return std::string(most->first) + " (" + std::to_string(most->second) + ")";
}

std::array<std::string, kHeaderLines> CatalogueBuilder::Header() const {
  const auto count = [this](auto member) {
    return std::to_string(std::count_if(games_.begin(), games_.end(), member));
  };
  int oldest = 9999;
  int newest = 0;
  for (const Game& game : games_) {
    if (game.year == 0) continue;
    oldest = std::min(oldest, game.year);
    newest = std::max(newest, game.year);
  }
  const auto year = [](int number, bool known) { return known ? std::to_string(number) : "-"; };
  const auto text = [](const std::string& fact) {
    std::string field = ToFieldText(fact);
    return field.empty() ? "-" : field;
  };
  std::array<std::string, kHeaderLines> lines = {
      text(facts_.name),
      "Arcade",
      text(facts_.version),
      text(facts_.date),
      MostUsed(cpus_),
      MostUsed(sound_chips_),
      vector_ ? (raster_ ? "Raster and vector" : "Vector") : "Raster",
      std::to_string(games_.size()),
      count([](const Game& game) { return game.parent.empty() && !game.neo_geo; }),
      count([](const Game& game) { return game.perfect; }),
      count([](const Game& game) { return game.playable; }),
      year(oldest, newest != 0),
      year(newest, newest != 0),
      YearsCovered(),
      BusiestMaker(),
      "-",
      "-"};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string& chosen = options_.header[i];
    lines[i] = "*" + (chosen.empty() ? lines[i] : chosen).substr(0, kLongestLine - 1);
  }
  return lines;
}

}  // namespace zarvo
