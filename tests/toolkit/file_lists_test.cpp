// The lists of drives, folders and files, on real folders.
#include "toolkit/file_lists.h"

#include <gmock/gmock.h>

#include "fakes/stage.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Entries(const ListBox& list) {
  std::vector<std::string> names;
  for (int i = 0; i < list.ListCount(); ++i) names.emplace_back(list.Items().At(i));
  return names;
}

class FileListsTest : public testing::Test {
 protected:
  FileListsTest() {
    drive.MakeFolder("C:\\Emu\\mame");
    drive.MakeFolder("C:\\Emu\\Callus");
    drive.MakeFolder("C:\\Emu\\mame\\roms");
    for (const char* file : {"pacman.zip", "PUCKMAN.ZIP", "readme.txt", "galaga.Zip"}) {
      drive.Write(std::string("C:\\Emu\\mame\\").append(file), "x");
    }
  }

  TempDrive drive;
  Stage stage;
  std::vector<std::string> log;
};

TEST_F(FileListsTest, AFolderListShowsTheWayAndWhatLiesBelow) {
  FolderList folders(&stage, drive.files());
  EXPECT_EQ(folders.Path(), "C:\\Zarvo") << "the current folder at first";
  folders.Change.Connect([&] { log.push_back(folders.Path()); });
  EXPECT_TRUE(folders.SetPath("C:\\Emu").ok());
  EXPECT_THAT(Entries(folders), ElementsAre("C:\\", "  Emu", "    Callus", "    mame"));
  EXPECT_EQ(folders.Text(), "  Emu");
  EXPECT_TRUE(folders.SetPath("C:\\Emu\\").ok());
  EXPECT_THAT(log, ElementsAre("C:\\Emu")) << "the same folder again is no change";
  EXPECT_TRUE(folders.SetPath("C:\\").ok());
  EXPECT_THAT(Entries(folders), ElementsAre("C:\\", "  Emu", "  Zarvo"));
}

TEST_F(FileListsTest, AFolderListStaysWhereItIsIfAFolderCannotBeRead) {
  FolderList folders(&stage, drive.files());
  folders.Change.Connect([&] { log.push_back("change"); });
  for (const char* path : {"C:\\nowhere", "C:\\Emu\\mame\\pacman.zip", "Q:", "Q:\\", "nowhere"}) {
    EXPECT_FALSE(folders.SetPath(path).ok()) << path;
  }
  EXPECT_EQ(folders.Path(), "C:\\Zarvo");
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(FileListsTest, PathsMayStartAtTheCurrentFolder) {
  FolderList folders(&stage, drive.files());
  struct Case {
    const char* path;
    const char* full;
  };
  for (const Case& each : {Case{"", "C:\\Zarvo"}, Case{"C:", "C:\\Zarvo"}, Case{"..", "C:\\"},
                           Case{"Data", "C:\\Zarvo\\Data"}, Case{"..\\Emu", "C:\\Emu"},
                           Case{"C:Data", "C:\\Zarvo\\Data"}, Case{"\\Emu", "C:\\Emu"}}) {
    EXPECT_TRUE(folders.SetPath("C:\\").ok());
    EXPECT_TRUE(folders.SetPath(each.path).ok()) << each.path;
    EXPECT_EQ(folders.Path(), each.full) << each.path;
    EXPECT_EQ(drive.files().CurrentFolder(), "C:\\Zarvo") << "nothing moves the current folder";
  }
}

TEST_F(FileListsTest, AnotherDriveIsLookedAtWithoutGoingThere) {
  DosWorld world({{'C', drive.root().string()}, {'D', (drive.root() / "Emu").string()}});
  EXPECT_TRUE(world.ChangeFolder("D:\\mame").ok());
  FolderList folders(&stage, world);
  EXPECT_TRUE(folders.SetPath("D:").ok());
  EXPECT_EQ(folders.Path(), "D:\\mame");
  EXPECT_TRUE(folders.SetPath("D:..\\Callus").ok());
  EXPECT_EQ(folders.Path(), "D:\\Callus");
  EXPECT_EQ(world.CurrentFolder(), "C:\\");
}

TEST_F(FileListsTest, EnterAndDoubleClickOpenAnotherFolder) {
  FolderList folders(&stage, drive.files());
  folders.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 3000});
  EXPECT_TRUE(folders.SetPath("C:\\Emu").ok());
  stage.Open();
  folders.setFocus();
  DoubleClickOn(folders.viewport(), folders.EntryRect(3).center());
  EXPECT_EQ(folders.Path(), "C:\\Emu\\mame");
  EXPECT_THAT(Entries(folders), ElementsAre("C:\\", "  Emu", "    mame", "      roms"));
  folders.SetListIndex(0);
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(folders.Path(), "C:\\");
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(folders.Path(), "C:\\") << "the open one has nothing to open";
}

TEST_F(FileListsTest, AFileListShowsThePlainFilesUnderItsPatterns) {
  FileList files(&stage, drive.files());
  files.SetPattern("*.zip");
  files.SetPath("C:\\Emu\\mame");
  EXPECT_THAT(Entries(files), ElementsAre("galaga.Zip", "pacman.zip", "PUCKMAN.ZIP"));
  EXPECT_EQ(files.FileName(), "");
  files.SetListIndex(1);
  EXPECT_EQ(files.FileName(), "pacman.zip");
  files.SetPattern("puckman.zip;README.TXT");
  EXPECT_THAT(Entries(files), ElementsAre("PUCKMAN.ZIP", "readme.txt"));
  drive.Write("C:\\Emu\\mame\\puckman.zip", "y");
  std::filesystem::remove(drive.Host("C:\\Emu\\mame\\readme.txt"));
  files.Refresh();
  EXPECT_THAT(Entries(files), ElementsAre("PUCKMAN.ZIP"));
  files.SetPath("C:\\nowhere");
  EXPECT_THAT(Entries(files), IsEmpty());
}

TEST(DriveListTest, FollowsALetterAndTellsAChange) {
  const TempDrive drive;
  DosWorld world({{'C', drive.root().string()}, {'H', "/"}});
  EXPECT_TRUE(world.ChangeDrive('H').ok());
  Stage stage;
  DriveList drives(&stage, world);
  std::string changes;
  drives.Change.Connect([&] { changes += drives.Drive(); });
  EXPECT_EQ(drives.Drive(), 'H') << "the current drive at first";
  EXPECT_EQ(drives.List(0), "c:");
  EXPECT_TRUE(drives.SetDrive('c').ok());
  EXPECT_TRUE(drives.SetDrive('C').ok());
  EXPECT_FALSE(drives.SetDrive('X').ok());
  EXPECT_EQ(drives.Drive(), 'C');
  drives.SetListIndex(1);
  EXPECT_EQ(changes, "CH");
  EXPECT_EQ(world.CurrentFolder(), "H:\\") << "it only shows";
}

}  // namespace
}  // namespace zarvo
