#include <gmock/gmock.h>

#include <set>

#include "catalogue/game_list.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

std::vector<std::string> Strings(std::span<const std::string_view> items) {
  return {items.begin(), items.end()};
}

TEST(StateItems, NeoGeoStatesBelongToMameAlone) {
  EXPECT_THAT(StateItems(Emulator::kMame),
              ElementsAre("All Supported", "Originals Only", "Clones Only", "Available Roms",
                          "Missing Roms", "No Neo-Geo Games", "Neo-Geo Games"));
  for (const Emulator emulator : {Emulator::kCallus, Emulator::kRaine}) {
    EXPECT_THAT(StateItems(emulator), ElementsAre("All Supported", "Originals Only", "Clones Only",
                                                  "Available Roms", "Missing Roms"));
  }
  EXPECT_TRUE(StateItems(Emulator::kSystem16).empty());
  EXPECT_TRUE(StateItems(Emulator::kM72).empty());
}

TEST(FilterItems, EveryComboHasItsItemsInItsOrder) {
  struct Combo {
    Emulator emulator;
    ValueFilter filter;
    std::size_t count;
    std::string_view neutral, second, last;
  };
  constexpr Combo kCombos[] = {
      {Emulator::kMame, ValueFilter::kGenre, 17, "- Genre", "n/a", "Sports"},
      {Emulator::kMame, ValueFilter::kManufactor, 211, "- Manufactor", "?????", "Zilec-Zenitone"},
      {Emulator::kMame, ValueFilter::kYear, 27, "- Year", "????", "1999"},
      {Emulator::kCallus, ValueFilter::kGenre, 6, "- Genre", "Action", "Trivia"},
      {Emulator::kCallus, ValueFilter::kManufactor, 2, "- Manufactor", "Capcom", "Capcom"},
      {Emulator::kCallus, ValueFilter::kYear, 9, "- Year", "1988", "1995"},
      {Emulator::kRaine, ValueFilter::kGenre, 9, "- Genre", "Action", "Sports"},
      {Emulator::kRaine, ValueFilter::kManufactor, 17, "- Manufactor", "Bear", "Tecmo"},
      {Emulator::kRaine, ValueFilter::kYear, 14, "- Year", "1985", "1997"},
  };
  for (const Combo& combo : kCombos) {
    SCOPED_TRACE(combo.last);
    const auto items = FilterItems(combo.emulator, combo.filter);
    ASSERT_EQ(items.size(), combo.count);
    EXPECT_EQ(items[0], combo.neutral);
    EXPECT_EQ(items[1], combo.second);
    EXPECT_EQ(items.back(), combo.last);
    EXPECT_EQ(std::set(items.begin(), items.end()).size(), items.size()) << "an item stands twice";
  }
  EXPECT_TRUE(FilterItems(Emulator::kSystem16, ValueFilter::kGenre).empty());
  EXPECT_TRUE(FilterItems(Emulator::kM72, ValueFilter::kYear).empty());
}

TEST(FilterItems, OddManufacturersStandToTheByteInTheirPlace) {
  const auto items = Strings(FilterItems(Emulator::kMame, ValueFilter::kManufactor));
  EXPECT_EQ(items[9], "[Namco] (Rock-ola license)");
  EXPECT_EQ(items[17], "<unknown>");
  EXPECT_EQ(items[42], "Cinematronics + Advanced Microcompute");
  EXPECT_EQ(items[52], "Data East Corporation (I-Vics license");
  EXPECT_EQ(items[76], "Hara Industries??");
  EXPECT_EQ(items[135], "Rock-ola");
  EXPECT_EQ(items[136], "Rock-Ola");
}

TEST(M72Games, StandInTheirOwnOrder) {
  EXPECT_THAT(M72Games(),
              ElementsAre("Battle Chopper", "Dragon Breed", "Gallop - Armed Police Unit",
                          "Hammerin'Harry", "Image Fight", "Legend of Hero Tonma", "Mr.Heli (JP)",
                          "Ninja Spirit", "R-Type (US)", "R-Type (JP)", "R-Type 2", "X-Multiply"));
}

}  // namespace
}  // namespace zarvo
