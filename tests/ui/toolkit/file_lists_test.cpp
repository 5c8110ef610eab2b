// The lists of drives, folders and files, on real folders.
#include "ui/toolkit/file_lists.h"

#include <gtest/gtest.h>

#include "fakes/stage.h"
#include "fakes/temp_drive.h"
#include "ui/toolkit/list_fixture.h"

namespace zarvo {
namespace {

class FileListsTest : public testing::Test {
 protected:
  FileListsTest() {
    drive.MakeFolder(R"(C:\Emu\Callus)");
    drive.MakeFolder(R"(C:\Emu\mame\roms)");
    for (const char* file : {"pacman.zip", "PUCKMAN.ZIP", "readme.txt", "galaga.Zip"}) {
      drive.Write(std::string(R"(C:\Emu\mame\)") + file, "x");
    }
  }

  TempDrive drive;
  Stage stage;
};

TEST_F(FileListsTest, AFolderListShowsTheWayAndWhatLiesBelow) {
  FolderList folders(&stage, drive.files());
  EXPECT_EQ(folders.Path().Text(), R"(C:\Zarvo)") << "the current folder at first";
  std::string log;
  folders.Change.Connect([&] { log += folders.Path().Text() + " "; });
  EXPECT_TRUE(folders.SetPath(R"(C:\Emu)").ok());
  EXPECT_EQ(EntriesOf(folders), R"(C:\|[  Emu]|    Callus|    mame|)");
  EXPECT_TRUE(folders.SetPath(R"(C:\Emu\)").ok());
  EXPECT_EQ(log, R"(C:\Emu )") << "the same folder again is no change";
  EXPECT_TRUE(folders.SetPath(R"(C:\)").ok());
  EXPECT_EQ(EntriesOf(folders), R"([C:\]|  Emu|  Zarvo|)");
  log.clear();
  for (const char* path : {R"(C:\nowhere)", R"(C:\Emu\mame\pacman.zip)", "Q:", R"(Q:\)", "no"}) {
    EXPECT_FALSE(folders.SetPath(DosPath(path)).ok()) << path;
  }
  EXPECT_EQ(folders.Path().Text() + log, R"(C:\)") << "it stays where it is";
}

TEST_F(FileListsTest, PathsMayStartAtTheCurrentFolderOfADrive) {
  DosWorld world({{'C', drive.root()}, {'D', drive.root() / "Emu"}});
  ASSERT_TRUE(world.ChangeFolder(R"(D:\mame)").ok());
  ASSERT_TRUE(world.ChangeFolder(R"(C:\Zarvo)").ok());
  FolderList folders(&stage, world);
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"", R"(C:\Zarvo)"},          {"C:", R"(C:\Zarvo)"},      {"..", R"(C:\)"},
      {"Data", R"(C:\Zarvo\Data)"}, {R"(..\Emu)", R"(C:\Emu)"}, {"C:Data", R"(C:\Zarvo\Data)"},
      {R"(\Emu)", R"(C:\Emu)"},     {"D:", R"(D:\mame)"},       {R"(D:..\Callus)", R"(D:\Callus)"},
  };
  for (const auto& [path, full] : cases) {
    EXPECT_TRUE(folders.SetPath(R"(C:\)").ok());
    EXPECT_TRUE(folders.SetPath(DosPath(path)).ok()) << path;
    EXPECT_EQ(folders.Path().Text(), full) << path;
    EXPECT_EQ(world.CurrentFolder().Text(), R"(C:\Zarvo)") << "nothing moves the current folder";
  }
}

TEST_F(FileListsTest, ADoubleClickOpensAnotherFolder) {
  FolderList folders(&stage, drive.files());
  folders.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 3000});
  EXPECT_TRUE(folders.SetPath(R"(C:\Emu)").ok());
  stage.Open();
  DoubleClickOn(folders.viewport(), folders.EntryRect(3).center());
  EXPECT_EQ(EntriesOf(folders), R"(C:\|  Emu|[    mame]|      roms|)");
}

TEST_F(FileListsTest, AFileListShowsThePlainFilesUnderItsPatterns) {
  FileList files(&stage, drive.files());
  files.SetPattern("*.zip");
  files.SetPath(R"(C:\Emu\mame)");
  EXPECT_EQ(EntriesOf(files), "galaga.Zip|pacman.zip|PUCKMAN.ZIP|");
  EXPECT_EQ(files.FileName(), "");
  files.SetListIndex(1);
  EXPECT_EQ(files.FileName(), "pacman.zip");
  files.SetPattern("puckman.zip;README.TXT");
  EXPECT_EQ(EntriesOf(files), "PUCKMAN.ZIP|readme.txt|");
  std::filesystem::remove(drive.Host(R"(C:\Emu\mame\readme.txt)"));
  files.Refresh();
  EXPECT_EQ(EntriesOf(files), "PUCKMAN.ZIP|");
  files.SetPath(R"(C:\nowhere)");
  EXPECT_EQ(EntriesOf(files), "");
}

TEST_F(FileListsTest, ADriveListFollowsALetterAndTellsAChange) {
  DosWorld world({{'C', drive.root().string()}, {'H', "/"}});
  EXPECT_TRUE(world.ChangeDrive('H').ok());
  DriveList drives(&stage, world);
  std::string changes;
  drives.Change.Connect([&] { changes += drives.Drive(); });
  EXPECT_EQ(drives.Drive(), 'H') << "the current drive at first";
  EXPECT_EQ(drives.List(0), "c:");
  EXPECT_TRUE(drives.SetDrive('c').ok());
  EXPECT_TRUE(drives.SetDrive('C').ok());
  EXPECT_FALSE(drives.SetDrive('X').ok());
  drives.SetListIndex(1);
  EXPECT_EQ(changes, "CH");
  EXPECT_EQ(world.CurrentFolder().Text(), R"(H:\)") << "it only shows";
}

}  // namespace
}  // namespace zarvo
