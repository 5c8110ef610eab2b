#include "core/layouts/layout_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/emulators.h"
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
  TempDrive drive_;
  ProgramFolders folders_{"C:\\Zarvo"};
  LayoutStore store_{drive_.files(), folders_};
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
  struct Row {
    std::string_view text;
    std::vector<LayoutRecord> records;
    bool complete = true;
  };
  const std::vector<Row> rows = {
      {"[A]\r\nMAIN,400,-500\r\nMAME,1,2,3\r\nM72,3,4,5,6\r\n-\r\n", {kMain}, false},
      {"[A]\r\nMAIN,400,-500\r\nMAME,1,2,3,32768\r\n-\r\n", {kMain}, false},
      {"[A]\r\nMAIN,400,-500,7\r\n-\r\n", {}, false},
      {"[A]\r\nMAIN\r\n-\r\n", {}, false},
      {"[A]\r\nELSE,x\r\n\r\nmain,1,2\r\nMAIN,400,-500\r\n-\r\n", {kMain}},
      {"[A]\r\nMAIN,400,-500\r\n[B]\r\nMAME,1,2,3,4\r\n-\r\n", {kMain}},
      {"[A]\r\nMAIN,400,-500\r\nM72,3,4,2415,4620\r\n", {kMain}},
      {"[A]\nMAIN,400,-500\nM72,3,4,2415,4620\n-\n", {kMain, kM72}},
      {"[A]\r\nMAIN,-32768,32767\r\n-\r\nMAME,1,2,3,4\r\n[B]\r\n-",
       {{.word = "MAIN", .top = -32768, .left = 32767}}},
      {"[A]", {}}};
  for (const Row& row : rows) {
    drive_.Write(kLayouts, row.text);
    const auto block = store_.ReadBlock("A");
    ASSERT_TRUE(block) << row.text;
    EXPECT_EQ(block->records, row.records) << row.text;
    EXPECT_EQ(block->complete, row.complete) << row.text;
  }
}

TEST_F(Layouts, RewritesOneBlockAndNoOther) {
  using Store = LayoutStore;
  struct Row {
    std::function<Status(Store&)> change;
    std::string_view before;
    std::string_view after;
  };
  const auto save = [](Store& store) { return store.SaveBlock("B", {kMain}); };
  const auto remove = [](std::string_view name) {
    return [=](Store& store) { return store.RemoveBlock(name); };
  };
  const std::vector<Row> rows = {
      {[](Store& store) {
         return store.SaveBlock("B", {kMain, kMame});
       },
       "[A]\r\n-\r\n[B]\r\nMAIN,1,1\r\n-\r\n[C]\r\n-\r\n",
       "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\nMAME,1,2,6345,7260\r\n-\r\n[C]\r\n-\r\n"},
      {save, "[A]\r\n-\r\n[B]\r\nMAIN,1,1\r\nM72,1,1,1,1\r\n-\r\n",
       "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\n-\r\n"},
      {save, "[A]\r\n-\r\n", "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\n-\r\n"},
      {save, "[A]\r\n-", "[A]\r\n-\r\n[B]\r\nMAIN,400,-500\r\n-\r\n"},
      {save, "[A]\nMAIN,1\n-\n[B]\n-\n[C]\nx\n-\n",
       "[A]\nMAIN,1\n-\n[B]\r\nMAIN,400,-500\r\n-\r\n[C]\nx\n-\n"},
      {remove("A"), "[A]\r\nMAIN,1,1\r\n-\r\n[B]\r\n-\r\n[C]\r\n-\r\n", "[B]\r\n-\r\n[C]\r\n-\r\n"},
      {remove("B"), "[A]\r\n-\r\n[B]\r\nMAIN,1,1\r\n-\r\n", "[A]\r\n-\r\n"},
      {remove("A"), "[A]\r\n-\r\n", ""},
      {remove("X"), "[A]\r\n-\r\n", "[A]\r\n-\r\n"},
      {[](Store& store) { return store.RenameBlock("A", "Z"); },
       "[A]\r\nMAIN,1,1\r\n-\r\n[B]\r\n-\r\n", "[Z]\r\nMAIN,1,1\r\n-\r\n[B]\r\n-\r\n"},
      {[](Store& store) { return store.AddBlock("N]"); }, "[A]\r\n-\r\n",
       "[A]\r\n-\r\n[N]]\r\n-\r\n"}};
  for (const Row& row : rows) {
    drive_.Write(kLayouts, row.before);
    EXPECT_TRUE(row.change(store_)) << row.after;
    EXPECT_EQ(drive_.Read(kLayouts), row.after) << row.before;
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
  LayoutStore store(files, folders_);
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
    std::string_view ini;
    std::vector<LayoutRecord> records;
  };
  const std::vector<Row> rows = {{"AutoloadOnStartup = 1\r\nDefaultLayout = Three\r\n", {kMain}},
                                 {"DefaultLayout = Three\r\nAutoloadOnStartup = 1\r\n", {kMain}},
                                 {"AutoloadOnStartup = 0\r\nDefaultLayout = Three\r\n", {}},
                                 {"AutoloadOnStartup = 1\r\nDefaultLayout = \r\n", {}},
                                 {"AutoloadOnStartup = 1\r\nDefaultLayout = Four\r\n", {}},
                                 {"DefaultLayout = Three\r\n", {}},
                                 {"AutoloadOnStartup = 1\r\n", {}}};
  EXPECT_THAT(store_.AutoloadRecords(), IsEmpty());
  for (const Row& row : rows) {
    drive_.Write(kIni, row.ini);
    drive_.Write(kLayouts, std::string(kThree) + "[]\r\nMAIN,7,7\r\n-\r\n");
    EXPECT_EQ(store_.AutoloadRecords(), row.records) << row.ini;
  }
  drive_.Write(kIni, rows[0].ini);
  drive_.Write(kLayouts, "[Three]\r\nMAIN,400,-500\r\nMAME,?\r\n-\r\n");
  EXPECT_THAT(store_.AutoloadRecords(), ElementsAre(kMain));
}

TEST_F(Layouts, ANameIsOneLine) {
  EXPECT_TRUE(IsLayoutName("My [first] \xE8 layout]"));
  EXPECT_FALSE(IsLayoutName(""));
  EXPECT_FALSE(IsLayoutName("two\r\nlines"));
}

}  // namespace
}  // namespace zarvo
