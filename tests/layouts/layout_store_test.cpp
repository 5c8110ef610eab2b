#include "layouts/layout_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kLayouts = "C:\\Zarvo\\layouts.dat";
constexpr std::string_view kIni = "C:\\Zarvo\\zarvo.ini";

const LayoutRecord kMain{.word = "MAIN", .top = 400, .left = -500};
const LayoutRecord kMame{.word = "MAME", .top = 1, .left = 2, .width = 6345, .height = 7260};
const LayoutRecord kM72{.word = "M72", .top = 3, .left = 4, .width = 2415, .height = 4620};

constexpr std::string_view kThree =
    "[One]\r\nMAIN,400,-500\r\nMAME,1,2,6345,7260\r\nM72,3,4,2415,4620\r\n-\r\n"
    "[Two]\r\n-\r\n"
    "[Three]\r\nMAIN,400,-500\r\n-\r\n";

class Layouts : public testing::Test {
 protected:
  Layouts() { app_.ProgramFolder = "C:\\Zarvo"; }

  std::vector<LayoutRecord> RecordsOf(std::string_view text, bool complete = true) {
    drive_.Write(kLayouts, text);
    const auto block = store_.ReadBlock("A");
    if (!block) return {{.word = "no block"}};
    EXPECT_EQ(block->complete, complete) << text;
    return block->records;
  }

  TempDrive drive_;
  AppState app_;
  LayoutStore store_{drive_.files(), app_};
};

TEST_F(Layouts, NamesAndRecordsInTheOrderOfTheFile) {
  drive_.Write(kLayouts, kThree);
  EXPECT_THAT(*store_.Names(), ElementsAre("One", "Two", "Three"));
  EXPECT_THAT(store_.ReadBlock("One")->records, ElementsAre(kMain, kMame, kM72));
  EXPECT_THAT(store_.ReadBlock("Two")->records, IsEmpty());
  EXPECT_FALSE(store_.ReadBlock("one"));
  EXPECT_FALSE(store_.ReadBlock(""));
  EXPECT_EQ(drive_.files().CurrentFolder(), "C:\\Zarvo");
}

TEST_F(Layouts, AMissingFileIsAnErrorToReadersAndEmptyToWriters) {
  EXPECT_FALSE(store_.Names());
  EXPECT_FALSE(store_.ReadBlock("A"));
  EXPECT_FALSE(store_.RenameBlock("A", "B"));
  EXPECT_FALSE(drive_.Exists(kLayouts));
  ASSERT_TRUE(store_.AddBlock("A"));
  EXPECT_EQ(drive_.Read(kLayouts), "[A]\r\n-\r\n");
}

TEST_F(Layouts, ReadsWhatCanBeUnderstoodOfADamagedBlock) {
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN,400,-500\r\nMAME,1,2,3\r\nM72,3,4,5,6\r\n-\r\n", false),
              ElementsAre(kMain));
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN,400,-500\r\nMAME,1,2,3,32768\r\n-\r\n", false),
              ElementsAre(kMain));
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN,400,-500,7\r\n-\r\n", false), IsEmpty());
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN\r\n-\r\n", false), IsEmpty());
  EXPECT_THAT(RecordsOf("[A]\r\nELSE,x\r\n\r\nmain,1,2\r\nMAIN,400,-500\r\n-\r\n"),
              ElementsAre(kMain));
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN,400,-500\r\n[B]\r\nMAME,1,2,3,4\r\n-\r\n"),
              ElementsAre(kMain));
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN,400,-500\r\nM72,3,4,2415,4620\r\n"), ElementsAre(kMain));
  EXPECT_THAT(RecordsOf("[A]\nMAIN,400,-500\nM72,3,4,2415,4620\n-\n"), ElementsAre(kMain, kM72));
  EXPECT_THAT(RecordsOf("[A]\r\nMAIN,-32768,32767\r\n-\r\nMAME,1,2,3,4\r\n[B]\r\n-"),
              ElementsAre(LayoutRecord{.word = "MAIN", .top = -32768, .left = 32767}));
  EXPECT_THAT(RecordsOf("[A]"), IsEmpty());
}

TEST_F(Layouts, RewritesOneBlockAndNoOther) {
  struct Row {
    std::string_view what;
    std::function<Status(LayoutStore&)> change;
    std::string_view before;
    std::string_view after;
  };
  const auto save = [](std::string_view name, const std::vector<LayoutRecord>& records) {
    return [=](LayoutStore& store) { return store.SaveBlock(name, records); };
  };
  const auto remove = [](std::string_view name) {
    return [=](LayoutStore& store) { return store.RemoveBlock(name); };
  };
  const auto rename = [](std::string_view from, std::string_view to) {
    return [=](LayoutStore& store) { return store.RenameBlock(from, to); };
  };
  const auto add = [](LayoutStore& store) { return store.AddBlock("N]"); };
  const std::vector<Row> rows = {
      {"save in place", save("B", {kMain, kMame}),
       "[A]\r\n-\r\n[B]\r\nMAIN,1,1\r\n-\r\n[C]\r\n-\r\n",
       "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\nMAME,1,2,6345,7260\r\n-\r\n[C]\r\n-\r\n"},
      {"save the last", save("B", {kMain}), "[A]\r\n-\r\n[B]\r\nMAIN,1,1\r\nM72,1,1,1,1\r\n-\r\n",
       "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\n-\r\n"},
      {"save a new one", save("B", {kMain}), "[A]\r\n-\r\n",
       "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\n-\r\n"},
      {"save behind a cut line", save("B", {kMain}), "[A]\r\n-",
       "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\n-\r\n"},
      {"save keeps line ends", save("B", {kMain}), "[A]\nMAIN,1\n-\n[B]\n-\n[C]\nx\n-\n",
       "[A]\nMAIN,1\n-\n[B]\r\nMAIN,400,-500\r\n-\r\n[C]\nx\n-\n"},
      {"remove the first", remove("A"), "[A]\r\nMAIN,1,1\r\n-\r\n[B]\r\n-\r\n[C]\r\n-\r\n",
       "[B]\r\n-\r\n[C]\r\n-\r\n"},
      {"remove the last", remove("B"), "[A]\r\n-\r\n[B]\r\nMAIN,1,1\r\n-\r\n", "[A]\r\n-\r\n"},
      {"remove the only one", remove("A"), "[A]\r\n-\r\n", ""},
      {"remove none", remove("X"), "[A]\r\n-\r\n", "[A]\r\n-\r\n"},
      {"rename in place", rename("A", "Z"), "[A]\r\nMAIN,1,1\r\n-\r\n[B]\r\n-\r\n",
       "[Z]\r\nMAIN,1,1\r\n-\r\n[B]\r\n-\r\n"},
      {"add", add, "[A]\r\n-\r\n", "[A]\r\n-\r\n[N]]\r\n-\r\n"}};
  for (const Row& row : rows) {
    drive_.Write(kLayouts, row.before);
    EXPECT_TRUE(row.change(store_)) << row.what;
    EXPECT_EQ(drive_.Read(kLayouts), row.after) << row.what;
  }
  EXPECT_FALSE(drive_.Exists("C:\\Zarvo\\layouts.tmp"));
}

TEST_F(Layouts, AFileCutAnywhereLosesNoOtherBlockInASave) {
  const std::size_t end_of_one = kThree.find("[Two]");
  for (std::size_t length = 0; length <= kThree.size(); ++length) {
    drive_.Write(kLayouts, kThree.substr(0, length));
    ASSERT_TRUE(store_.SaveBlock("Three", {kMain, kM72})) << length;
    EXPECT_THAT(store_.ReadBlock("Three")->records, ElementsAre(kMain, kM72)) << length;
    if (length < end_of_one) continue;
    EXPECT_THAT(store_.ReadBlock("One")->records, ElementsAre(kMain, kMame, kM72)) << length;
  }
}

TEST_F(Layouts, AFailedRewriteKeepsTheFileAndNamesIt) {
  drive_.Write(kLayouts, kThree);
  FailingFiles files(drive_.files());
  LayoutStore store(files, app_);
  for (const FileStep step : {FileStep::kReplace, FileStep::kRead, FileStep::kChangeFolder}) {
    files.Heal();
    files.Fail(step, "", "Broken");
    for (const Status& status : {store.AddBlock("N"), store.SaveBlock("One", {kMain}),
                                 store.RemoveBlock("One"), store.RenameBlock("One", "N")}) {
      ASSERT_FALSE(status) << static_cast<int>(step);
      EXPECT_TRUE(status.error().message.starts_with("layouts.dat: ")) << status.error().message;
    }
    EXPECT_EQ(drive_.Read(kLayouts), kThree);
  }
}

TEST_F(Layouts, TheIniIsWrittenLineByLine) {
  const std::string rule(62, '-');
  ASSERT_TRUE(store_.SaveIni({.always_on_top = true, .autoload = false, .default_layout = ""}));
  EXPECT_EQ(drive_.Read(kIni),
            rule +
                "\r\n Zarvo - The definitive Multifrontend (v0.1)\r\n"
                " Settings of the Layouts Manager\r\n"
                " Initialization File generated by Zarvo - Please do not modify\r\n" +
                rule +
                "\r\n \r\n[Layouts]\r\nLayoutAlwaysOnTop = 1\r\nAutoloadOnStartup = 0\r\n"
                "DefaultLayout = \r\n \r\n" +
                rule + "\r\n End of file\r\n" + rule + "\r\n");
  EXPECT_TRUE(*store_.ReadSwitch(kAlwaysOnTopKey));
  EXPECT_FALSE(*store_.ReadSwitch(kAutoloadKey));
  EXPECT_EQ(*store_.ReadDefaultLayout(), "");
  ASSERT_TRUE(store_.SaveIni({.autoload = true, .default_layout = "a = [b]"}));
  EXPECT_FALSE(*store_.ReadSwitch(kAlwaysOnTopKey));
  EXPECT_TRUE(*store_.ReadSwitch(kAutoloadKey));
  EXPECT_EQ(*store_.ReadDefaultLayout(), "a = [b]");
}

TEST_F(Layouts, AKeyIsTheTextUpToTheFirstEqualsSign) {
  drive_.Write(kIni, "DefaultLayout\r\n DefaultLayout = x\r\nDEFAULTLAYOUT = y\r\nDefaultLayout =");
  EXPECT_EQ(*store_.ReadDefaultLayout(), "");
  EXPECT_FALSE(store_.ReadSwitch(kAutoloadKey));
}

TEST_F(Layouts, AutoloadGivesTheChosenLayoutOrNothing) {
  struct Row {
    std::string_view what;
    std::string_view ini;
    std::vector<LayoutRecord> records;
  };
  const std::vector<Row> rows = {
      {"on", "AutoloadOnStartup = 1\r\nDefaultLayout = Three\r\n", {kMain}},
      {"the other way round", "DefaultLayout = Three\r\nAutoloadOnStartup = 1\r\n", {kMain}},
      {"off", "AutoloadOnStartup = 0\r\nDefaultLayout = Three\r\n", {}},
      {"no name", "AutoloadOnStartup = 1\r\nDefaultLayout = \r\n", {}},
      {"a name that is gone", "AutoloadOnStartup = 1\r\nDefaultLayout = Four\r\n", {}},
      {"no switch", "DefaultLayout = Three\r\n", {}},
      {"no key", "AutoloadOnStartup = 1\r\n", {}}};
  EXPECT_THAT(store_.AutoloadRecords(), IsEmpty());
  for (const Row& row : rows) {
    drive_.Write(kIni, row.ini);
    drive_.Write(kLayouts, std::string(kThree) + "[]\r\nMAIN,7,7\r\n-\r\n");
    EXPECT_EQ(store_.AutoloadRecords(), row.records) << row.what;
  }
  drive_.Write(kIni, rows[0].ini);
  drive_.Write(kLayouts, "[Three]\r\nMAIN,400,-500\r\nMAME,?\r\n-\r\n");
  EXPECT_THAT(store_.AutoloadRecords(), ElementsAre(kMain));
}

TEST_F(Layouts, SizesAndNames) {
  EXPECT_EQ(SizeWord(2415, 4620), "Small");
  EXPECT_EQ(SizeWord(6345, 4620), "Medium");
  EXPECT_EQ(SizeWord(6345, 7260), "Large");
  EXPECT_EQ(SizeWord(2415, 7260), "");
  EXPECT_TRUE(IsLayoutName("My [first] \xE8 layout]"));
  EXPECT_FALSE(IsLayoutName(""));
  EXPECT_FALSE(IsLayoutName("two\r\nlines"));
}

}  // namespace
}  // namespace zarvo
