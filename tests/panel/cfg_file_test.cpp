#include "panel/cfg_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr std::string_view kFile = R"(C:\Zarvo\cfg\Mame.cfg)";
constexpr std::string_view kSample =
    "\"C:\\Emu\\Mame\\Mame.exe\"\r\n\"C:\\Emu\\Mame\\Roms\"\r\n\"C:\\Emu\\Snapshot\\Mame\"\r\n"
    "\"GIF\"\r\n\"C:\\Emu\\Mame\"\r\n\"up\"\r\n";

class CfgFile : public testing::Test {
 protected:
  CfgFile() { app_.ProgramFolder = "C:\\Zarvo"; }

  CfgFields Read(std::string_view text) {
    drive_.Write(kFile, text);
    return ReadCfg(drive_.files(), app_, mame_);
  }

  static CfgValues Sample() {
    return {.exe_path = R"(C:\Emu\Mame\Mame.exe)",
            .rom_path = R"(C:\Emu\Mame\Roms)",
            .snap_path = R"(C:\Emu\Snapshot\Mame)",
            .snap_format = "GIF",
            .emulator_folder = "C:\\Emu\\Mame",
            .layout_word = "up",
            .favourites = {}};
  }

  TempDrive drive_;
  AppState app_;
  const EmulatorProfile& mame_ = ProfileOf(Emulator::kMame);
};

TEST_F(CfgFile, WritesSixLinesAndTheFavouritesAsGiven) {
  CfgValues values = Sample();
  values.favourites = {"Zaxxon", "Puck, Man"};
  ASSERT_TRUE(WriteCfg(drive_.files(), app_, mame_, values));
  EXPECT_EQ(drive_.Read(kFile), std::string(kSample) + "\"Zaxxon\"\r\n\"Puck, Man\"\r\n");
  EXPECT_EQ(drive_.files().CurrentFolder(), "C:\\Zarvo\\cfg");
  const CfgFields fields = ReadCfg(drive_.files(), app_, mame_);
  EXPECT_THAT(fields.exe_path, Optional(values.exe_path));
  EXPECT_THAT(fields.rom_path, Optional(values.rom_path));
  EXPECT_THAT(fields.snap_path, Optional(values.snap_path));
  EXPECT_THAT(fields.snap_format, Optional(values.snap_format));
  EXPECT_THAT(fields.emulator_folder, Optional(values.emulator_folder));
  EXPECT_THAT(fields.layout_word, Optional(values.layout_word));
  EXPECT_THAT(fields.favourites, Optional(ElementsAre("Zaxxon", "Puck, Man")));
}

TEST_F(CfgFile, M72NeitherReadsNorKeepsFurtherLines) {
  const EmulatorProfile& m72 = ProfileOf(Emulator::kM72);
  drive_.Write(R"(C:\Zarvo\cfg\m72.CFG)", std::string(kSample) + "\"R-Type\"\r\n");
  const CfgFields fields = ReadCfg(drive_.files(), app_, m72);
  EXPECT_THAT(fields.layout_word, Optional(std::string("up")));
  EXPECT_FALSE(fields.favourites);
  CfgValues values = Sample();
  values.favourites = {"R-Type"};
  ASSERT_TRUE(WriteCfg(drive_.files(), app_, m72, values));
  EXPECT_EQ(drive_.Read("C:\\Zarvo\\cfg\\M72.cfg"), kSample);
}

TEST_F(CfgFile, AFileThatEndsEarlyGivesTheFieldsItHas) {
  const CfgFields three = Read("\"E\"\r\n\"R\"\r\n\"S\"\r\n");
  EXPECT_THAT(three.snap_path, Optional(std::string("S")));
  EXPECT_FALSE(three.snap_format);
  EXPECT_FALSE(three.favourites);
  EXPECT_FALSE(Read("").exe_path);
  const CfgFields six = Read(kSample);
  EXPECT_THAT(six.favourites, Optional(IsEmpty()));
}

TEST_F(CfgFile, AMissingFileGivesNothing) {
  const CfgFields fields = ReadCfg(drive_.files(), app_, mame_);
  EXPECT_FALSE(fields.exe_path);
  EXPECT_FALSE(fields.favourites);
}

TEST_F(CfgFile, ReadsAValueByItsQuotesOrUpToTheNextComma) {
  struct Row {
    std::string_view text;
    std::vector<std::string> favourites;
  };
  const std::vector<Row> rows = {{"\"a,b\"\r\n", {"a,b"}},
                                 {"  \"a\"\r\n", {"a"}},
                                 {"\"a\" dropped,\"b\"\r\n", {"a", "b"}},
                                 {R"("a","b")", {"a", "b"}},
                                 {"a b ,c\r\n", {"a b ", "c"}},
                                 {"a\"b\r\n", {"a\"b"}},
                                 {"\"a\"\n\"b\"\n", {"a", "b"}},
                                 {"\"\"\r\n\r\nx\r\n", {"", "", "x"}},
                                 {"\"never closed\r\n", {"never closed\r\n"}},
                                 {"\"a\"\r\n   ", {"a"}}};
  for (const Row& row : rows) {
    const CfgFields fields = Read(std::string(kSample) + std::string(row.text));
    EXPECT_THAT(fields.favourites, Optional(row.favourites)) << row.text;
  }
}

TEST_F(CfgFile, WhatCanBeWrittenReadsBackTheSame) {
  struct Row {
    std::string_view value;
    bool can;
  };
  const std::vector<Row> rows = {{"Pac", true},       {"", true},        {" a", true},
                                 {"a,b", true},       {"a \"b\"", true}, {"a\"", true},
                                 {"\"a\"", false},    {" a\"", false},   {"a\",b", false},
                                 {"a\"\r\nb", false}, {"\xE8 \"", true}, {"\"", false}};
  for (const Row& row : rows) {
    EXPECT_EQ(CanBeWritten(row.value), row.can) << row.value;
    CfgValues values = Sample();
    values.favourites = {"before", std::string(row.value), "behind"};
    ASSERT_TRUE(WriteCfg(drive_.files(), app_, mame_, values));
    const auto favourites = ReadCfg(drive_.files(), app_, mame_).favourites;
    ASSERT_EQ(favourites->size(), 3U) << row.value;
    EXPECT_EQ((*favourites)[1] == row.value, row.can) << row.value;
    EXPECT_EQ((*favourites)[2], "behind") << row.value;
  }
}

TEST_F(CfgFile, AFileCutAnywhereGivesItsWholeLinesInFrontOfTheCut) {
  const std::string whole = std::string(kSample) + "\"Zaxxon\"\r\n\"Asteroids\"\r\n";
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const CfgFields fields = Read(whole.substr(0, length));
    const auto lines = std::count(whole.begin(), whole.begin() + static_cast<long>(length), '\n');
    if (lines >= 1) {
      EXPECT_THAT(fields.exe_path, Optional(std::string("C:\\Emu\\Mame\\Mame.exe")));
    }
    if (lines >= 5) {
      EXPECT_THAT(fields.emulator_folder, Optional(std::string("C:\\Emu\\Mame")));
    }
    if (lines >= 7) {
      EXPECT_EQ(fields.favourites->front(), "Zaxxon");
    }
  }
}

TEST_F(CfgFile, AFailedWriteKeepsTheOldFileAndNamesIt) {
  drive_.Write(kFile, kSample);
  FailingFiles files(drive_.files());
  files.Fail(FileStep::kReplace, "Mame.cfg");
  const Status written = WriteCfg(files, app_, mame_, {});
  ASSERT_FALSE(written);
  EXPECT_EQ(written.error().message, "Mame.cfg: No space left on device");
  EXPECT_EQ(drive_.Read(kFile), kSample);
}

}  // namespace
}  // namespace zarvo
