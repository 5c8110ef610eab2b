#include "catalogue_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Search : public CatalogueTest {
 protected:
  // The names that are found among those of the data file, and one that it doesn't have.
  std::vector<std::string> Found(std::string_view text) {
    NameList list;
    const Catalogue games(files_, folders_, mame_);
    games.Fill(GameState::kAllSupported, list);
    list.Append("Zz not in the file");
    std::vector<std::string> names;
    for (const int index : games.Search(text, list)) names.emplace_back(list.At(index));
    return names;
  }
};

TEST_F(Search, FindsPartsOfNamesAndRomNamesWithoutRegardToCaseAndAccents) {
  PutData(Header() + "Street Fighter II;sf2;O;-;\r\nSuper Caf\xE9;cafe;O;-;\r\n" +
          "\xC9lan;sf2ce;C;sf2;\r\nsf2 player;other;O;-;\r\nno fields\r\n");
  EXPECT_THAT(Found("FIGHT"), ElementsAre("Street Fighter II"));
  EXPECT_THAT(Found("elan"), ElementsAre("\xC9lan"));
  EXPECT_THAT(Found("CAF\xC9"), ElementsAre("Super Caf\xE9"));
  EXPECT_THAT(Found("Sf2"), ElementsAre("sf2 player", "Street Fighter II"))
      << "a rom name counts as a whole";
  EXPECT_THAT(Found("not in"), ElementsAre("Zz not in the file"));
  EXPECT_THAT(Found(""), IsEmpty());
  EXPECT_THAT(Found("xyz"), IsEmpty());
}

TEST_F(Search, FindsNamesWithoutADataFile) {
  EXPECT_THAT(Found("NOT"), ElementsAre("Zz not in the file"));
}

}  // namespace
}  // namespace zarvo
