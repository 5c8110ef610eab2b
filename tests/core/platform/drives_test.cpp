#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "core/platform/dos_world.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

TEST(DriveTable, ReadsLettersAndFolders) {
  const std::string home = std::getenv("HOME");
  std::vector<std::string> missing;
  const auto drives = DosWorld::ParseDrives(
      "\xEF\xBB\xBF; my drives\r\nC = ..\r\n\r\n  d=/mnt/cd rom/ ; the disc\n"
      "\tE\t=\troms/./arcade//\nF = ~\nG = ~/dos/x\nI = ~me\nY = /",
      "/home/me/dos/Zarvo", missing);
  ASSERT_TRUE(drives.ok()) << drives.error().message;
  EXPECT_THAT(*drives, ElementsAre(Pair('C', "/home/me/dos"), Pair('D', "/mnt/cd rom"),
                                   Pair('E', "/home/me/dos/Zarvo/roms/arcade"), Pair('F', home),
                                   Pair('G', home + "/dos/x"), Pair('I', "/home/me/dos/Zarvo/~me"),
                                   Pair('Y', "/")));
}

TEST(DriveTable, AMessageNamesTheLineThatIsWrong) {
  const std::array<std::string, 3> cases[] = {
      {"C = /a\n\n; x\nD /b\n", "Line 4", "D /b"},
      {"C: = /a", "Line 1", "C: = /a"},
      {"CD = /a", "Line 1", "CD = /a"},
      {"1 = /a", "Line 1", "1 = /a"},
      {"= /a", "Line 1", "= /a"},
      {"C =", "Line 1", "C ="},
      {"C = ; nothing", "Line 1", "C ="},
      {"C = /a\nc = /b", "Line 2", "drive C"},
      {std::string("C = /a\0b", 8), "Line 1", "C = /a"},
      {"; none\n", "", "no drive"},
  };
  std::vector<std::string> missing;
  for (const auto& [text, line, word] : cases) {
    const auto drives = DosWorld::ParseDrives(text, "/p", missing);
    ASSERT_FALSE(drives.ok()) << text;
    EXPECT_THAT(drives.error().message, testing::AllOf(HasSubstr(line), HasSubstr(word)));
  }
}

TEST(ProgramFolder, ItsTableSaysWhatTheDrivesAre) {
  TempDrive drive;
  const std::string folder = (drive.root() / "Zarvo/").string();
  const auto bare = DosWorld::ForProgramFolder(folder);
  ASSERT_TRUE(bare.ok()) << bare.error().message;
  EXPECT_EQ(bare->CurrentFolder().Text(), "C:\\Zarvo");
  EXPECT_THAT(bare->Drives(), ElementsAre('C', 'H'));
  EXPECT_EQ(bare->HostPath("\\emu").value(), drive.Host("C:\\Emu"));
  EXPECT_EQ(bare->DriveFolder('H').value(), "/");

  drive.Write("C:\\Zarvo\\Drives.INI", "D = ..\nE = ../Emu\n");
  const auto world = DosWorld::ForProgramFolder(folder);
  ASSERT_TRUE(world.ok()) << world.error().message;
  EXPECT_EQ(world->CurrentFolder().Text(), "D:\\Zarvo");
  EXPECT_EQ(world->HostPath("E:\\a").value(), drive.Host("C:\\Emu\\a"));

  for (const auto& [table, message] : {std::pair("C = /\n?\n", "Line 2"),
                                       {"C = /no/such\n",
                                        "Line 1 of drives.ini names the folder "
                                        "\"/no/such\", which isn't there."},
                                       {"C = ../Emu\n", "No drive reaches"},
                                       {"", "no drive"}}) {
    drive.Write("C:\\Zarvo\\drives.ini", table);
    EXPECT_THAT(DosWorld::ForProgramFolder(folder).error().message, HasSubstr(message)) << table;
  }
}

TEST(ProgramFolder, ADriveWhoseFolderIsAwayIsToldAndKept) {
  TempDrive drive;
  const std::string folder = drive.Host("C:\\Zarvo");
  drive.Write("C:\\Zarvo\\drives.ini", "C = ..\nE = /no/such\n");
  const auto world = DosWorld::ForProgramFolder(folder);
  ASSERT_TRUE(world.ok()) << world.error().message;
  EXPECT_EQ(world->MissingFolders(),
            "Line 2 of drives.ini names the folder \"/no/such\", which isn't there.\r");
  EXPECT_THAT(world->Drives(), ElementsAre('C', 'E'));

  std::string many = "C = ..\n";
  for (char letter = 'D'; letter <= 'Z'; ++letter) many += std::string(1, letter) + " = /no/such\n";
  drive.Write("C:\\Zarvo\\drives.ini", many);
  EXPECT_THAT(DosWorld::ForProgramFolder(folder)->MissingFolders(),
              testing::AllOf(HasSubstr("Line 11 "), testing::EndsWith("\r...\r"),
                             testing::Not(HasSubstr("Line 12 "))));
}

TEST(ProgramFolder, WhatIsQuotedFromTheTableIsCut) {
  TempDrive drive;
  for (const std::string& line :
       {std::string(1 << 20, '\0'), std::string(100000, 'x'), "C = /" + std::string(100000, 'x')}) {
    drive.Write("C:\\Zarvo\\drives.ini", line);
    const auto world = DosWorld::ForProgramFolder(drive.Host("C:\\Zarvo"));
    EXPECT_LT(world.error().message.size(), 700U);
    EXPECT_EQ(world.error().message.find('\0'), std::string::npos);
  }
}

TEST(DosPathOf, TheLongestMatchingFolderTellsTheDrive) {
  const DosWorld world(
      {{'C', "/home/me/dos"}, {'D', "/home/me/dos/Roms"}, {'E', "/home/me"}, {'H', "/"}});
  const std::pair<const char*, const char*> cases[] = {
      {"/home/me/dos/Emu/Mame", "C:\\Emu\\Mame"},
      {"/home/me/dos", "C:\\"},
      {"/home/me/dos/Roms/a.zip", "D:\\a.zip"},
      {"/home/me/dos/Roms2/a.zip", "C:\\Roms2\\a.zip"},
      {"/home/me/dosbox", "E:\\dosbox"},
      {"/home/me/dos/../x/", "E:\\x"},
      {"/home/you", "H:\\home\\you"},
      {"/", "H:\\"},
      {"/home/me/caf\xC3\xA9", "E:\\caf\xE9"},
  };
  for (const auto& [host, dos] : cases)
    EXPECT_EQ(world.DosPathOf(host).value().Text(), dos) << host;

  const DosWorld one({{'C', "/home/me"}});
  for (const char* path :
       {"/home", "/home/men", "/home/me/ゲーム", "/home/me/a\\b", "home/me", ""}) {
    EXPECT_FALSE(one.DosPathOf(path).ok()) << path;
  }
  EXPECT_FALSE(world.DosPathOf("").ok()) << "no path at all isn't the root";
}

TEST(DosPathOf, ADriveBehindALinkIsRecognised) {
  TempDrive drive;
  std::filesystem::create_directory_symlink(drive.root() / "Emu", drive.root() / "link");
  const DosWorld world({{'C', (drive.root() / "link").string()}, {'H', "/"}});
  EXPECT_EQ(world.DosPathOf((drive.root() / "Emu/Mame").string()).value().Text(), "C:\\Mame");
  EXPECT_EQ(world.DosPathOf((drive.root() / "link/Mame").string()).value().Text(), "C:\\Mame");
}

}  // namespace
}  // namespace zarvo
