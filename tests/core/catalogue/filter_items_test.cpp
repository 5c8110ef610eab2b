#include <gmock/gmock.h>

#include <set>

#include "core/catalogue/catalogue.h"
#include "fakes/emulators.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

TEST(StateItems, NeoGeoStatesBelongToMameAlone) {
  EXPECT_THAT(kMame.filters.states,
              ElementsAre("All Supported", "Originals Only", "Clones Only", "Available Roms",
                          "Missing Roms", "No Neo-Geo Games", "Neo-Geo Games"));
  for (const Emulator& emulator : Those{kCallus, kRaine}) {
    EXPECT_THAT(emulator.filters.states,
                ElementsAre("All Supported", "Originals Only", "Clones Only", "Available Roms",
                            "Missing Roms"));
  }
  EXPECT_TRUE(kSystem16.filters.states.empty());
  EXPECT_TRUE(kM72.filters.states.empty());
}

TEST(FilterItems, EveryComboHasItsItemsInItsOrder) {
  // The number of items, then the first two and the last.
  std::string text;
  for (const Emulator& emulator : Those{kMame, kCallus, kRaine}) {
    for (const auto filter : {ValueFilter::kGenre, ValueFilter::kManufactor, ValueFilter::kYear}) {
      const auto items = ItemsOf(emulator, filter);
      if (items.empty()) continue;
      EXPECT_EQ(std::set(items.begin(), items.end()).size(), items.size()) << "one stands twice";
      text += std::to_string(items.size());
      for (const auto item : {items[0], items[1], items.back()}) text.append("|").append(item);
      text += "; ";
    }
  }
  EXPECT_EQ(text,
            "17|- Genre|n/a|Sports; 211|- Manufactor|?????|Zilec-Zenitone; 27|- Year|????|1999; "
            "6|- Genre|Action|Trivia; 2|- Manufactor|Capcom|Capcom; 9|- Year|1988|1995; "
            "9|- Genre|Action|Sports; 17|- Manufactor|Bear|Tecmo; 14|- Year|1985|1997; ");
}

TEST(FilterItems, OddManufacturersStandToTheByteInTheirPlace) {
  const auto items = ItemsOf(kMame, ValueFilter::kManufactor);
  const std::pair<std::size_t, std::string_view> odd[] = {
      {9, "[Namco] (Rock-ola license)"},
      {17, "<unknown>"},
      {42, "Cinematronics + Advanced Microcompute"},
      {52, "Data East Corporation (I-Vics license"},
      {76, "Hara Industries??"},
      {135, "Rock-ola"},
      {136, "Rock-Ola"}};
  for (const auto& [place, name] : odd) EXPECT_EQ(items[place], name);
}

}  // namespace
}  // namespace zarvo
