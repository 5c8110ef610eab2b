#include "core/panel/cfg_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/emulators.h"
#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

using testing::Optional;

constexpr std::string_view kFile = R"(C:\Zarvo\cfg\Mame.cfg)";
constexpr std::string_view kSample =
    "\"C:\\Emu\\Mame\\Mame.exe\"\r\n\"C:\\Emu\\Mame\\Roms\"\r\n\"C:\\Emu\\Snapshot\\Mame\"\r\n"
    "\"GIF\"\r\n\"C:\\Emu\\Mame\"\r\n\"up\"\r\n";

class CfgFileTest : public testing::Test {
 protected:
  CfgFields Read(const Emulator& emulator = kMame) {
    CfgFile store(drive_.files(), folders_, emulator);
    return store.Read();
  }
  CfgFields Read(std::string_view text) {
    drive_.Write(kFile, text);
    return Read();
  }
  // The fields that were read, in the order of the file and with "|" behind each.
  static std::string Text(const CfgFields& fields) {
    std::string text;
    for (const auto& field : {fields.exe_path, fields.rom_path, fields.snap_path,
                              fields.snap_format, fields.emulator_folder, fields.layout_word}) {
      text += field.value_or("-") + "|";
    }
    if (!fields.favourites) return text + "-";
    for (const std::string& favourite : *fields.favourites) text += favourite + "|";
    return text;
  }
  [[nodiscard]] Status Write(DosFiles& files, std::vector<std::string> favourites,
                             const Emulator& emulator = kMame) {
    CfgFile store(files, folders_, emulator);
    return store.Write({.exe_path = R"(C:\Emu\Mame\Mame.exe)",
                        .rom_path = R"(C:\Emu\Mame\Roms)",
                        .snap_path = R"(C:\Emu\Snapshot\Mame)",
                        .snap_format = "GIF",
                        .emulator_folder = "C:\\Emu\\Mame",
                        .layout_word = "up",
                        .favourites = std::move(favourites)});
  }

  TempDrive drive_;
  ProgramFolders folders_{"C:\\Zarvo"};
};

TEST_F(CfgFileTest, WritesSixLinesAndTheFavouritesAsGiven) {
  ASSERT_TRUE(Write(drive_.files(), {"Zaxxon", "Puck, Man"}));
  EXPECT_EQ(drive_.Read(kFile), std::string(kSample) + "\"Zaxxon\"\r\n\"Puck, Man\"\r\n");
  EXPECT_EQ(drive_.files().CurrentFolder(), "C:\\Zarvo\\cfg");
}

TEST_F(CfgFileTest, M72NeitherReadsNorKeepsFurtherLines) {
  drive_.Write(R"(C:\Zarvo\cfg\m72.CFG)",
               "\"E\"\r\n\"R\"\r\n\"S\"\r\n\"G\"\r\n\"F\"\r\n\"up\"\r\nx");
  EXPECT_EQ(Text(Read(kM72)), "E|R|S|G|F|up|-");
  ASSERT_TRUE(Write(drive_.files(), {"R-Type"}, kM72));
  EXPECT_EQ(drive_.Read("C:\\Zarvo\\cfg\\M72.cfg"), kSample);
}

TEST_F(CfgFileTest, AFileThatEndsEarlyGivesTheFieldsItHas) {
  EXPECT_EQ(Text(Read()), "-|-|-|-|-|-|-") << "no file";
  EXPECT_EQ(Text(Read("")), "-|-|-|-|-|-|-");
  EXPECT_EQ(Text(Read("\"E\"\r\n\"R\"\r\n\"S\"\r\n")), "E|R|S|-|-|-|-");
  EXPECT_EQ(Text(Read("\"E\"\r\n\"R\"\r\n\"S\"\r\n\"G\"\r\n\"F\"\r\n\"up\"\r\n")), "E|R|S|G|F|up|");
}

TEST_F(CfgFileTest, ReadsAValueByItsQuotesOrUpToTheNextComma) {
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

TEST_F(CfgFileTest, WhatCanBeWrittenReadsBackTheSame) {
  const std::vector<std::pair<std::string, bool>> rows = {
      {"Pac", true},     {"", true},          {" a", true},      {"a,b", true},
      {"a \"b\"", true}, {"a\"", true},       {"\"a\"", false},  {" a\"", false},
      {"a\",b", false},  {"a\"\r\nb", false}, {"\xE8 \"", true}, {"\"", false}};
  for (const auto& [value, can] : rows) {
    EXPECT_EQ(CanBeWritten(value), can) << value;
    ASSERT_TRUE(Write(drive_.files(), {"before", value, "behind"}));
    const auto favourites = Read().favourites;
    ASSERT_EQ(favourites->size(), 3U) << value;
    EXPECT_EQ((*favourites)[1] == value, can) << value;
    EXPECT_EQ((*favourites)[2], "behind") << value;
  }
}

TEST_F(CfgFileTest, AFileCutAnywhereGivesItsWholeLinesInFrontOfTheCut) {
  const std::string lines[] = {"E", "R", "S", "G", "F", "up", "Zaxxon", "Asteroids"};
  std::string text;
  std::string fields;
  for (const std::string& line : lines) {
    const std::string whole = "\"" + line + "\"\r\n";
    for (std::size_t length = 0; length < whole.size(); ++length) {
      EXPECT_THAT(Text(Read(text + whole.substr(0, length))), testing::StartsWith(fields));
    }
    text += whole;
    fields += line + "|";
  }
}

TEST_F(CfgFileTest, AFailedWriteKeepsTheOldFileAndNamesIt) {
  drive_.Write(kFile, kSample);
  FailingFiles files(drive_.files());
  files.Fail(FileStep::kReplace, "Mame.cfg");
  const Status written = Write(files, {"Zaxxon"});
  ASSERT_FALSE(written);
  EXPECT_EQ(written.error().message, "Mame.cfg: No space left on device");
  EXPECT_EQ(drive_.Read(kFile), kSample);
}

}  // namespace
}  // namespace zarvo
