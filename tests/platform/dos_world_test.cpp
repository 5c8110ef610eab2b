#include "platform/dos_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>

#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

std::map<std::string, bool> List(const DosFiles& files, std::string_view path) {
  std::map<std::string, bool> entries;
  for (const FolderEntry& entry : files.ListFolder(path).value()) {
    entries[entry.name] = entry.is_folder;
  }
  return entries;
}

// The names on the host, which tell what a test left behind.
std::vector<std::string> HostNames(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
  return names;
}

void WriteHost(const fs::path& path, std::string_view bytes) { std::ofstream(path) << bytes; }

// Makes writes beyond a size fail, as on a full disk, while it lives.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit now = {bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~SizeLimit() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, handler_);
  }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  void (*handler_)(int);
  rlimit old_{};
};

TEST(CurrentFolder, EveryDriveKeepsItsOwn) {
  TempDrive drive;
  DosWorld world({{'C', drive.root()}, {'D', drive.Host("C:\\Emu")}});
  drive.MakeFolder("C:\\Emu\\Mame\\roms");
  ASSERT_TRUE(world.ChangeFolder("c:\\zarvo\\DATA").ok());
  ASSERT_TRUE(world.ChangeFolder("D:mame").ok());
  EXPECT_EQ(world.CurrentFolder(), "C:\\Zarvo\\Data") << "another drive's folder moved the drive";
  EXPECT_EQ(world.HostPath("D:x").value(), drive.Host("C:\\Emu\\Mame\\x"));
  EXPECT_EQ(world.HostPath("D:\\x").value(), drive.Host("C:\\Emu\\x"));

  ASSERT_TRUE(world.ChangeDrive('d').ok());
  EXPECT_EQ(world.CurrentFolder(), "D:\\Mame");
  ASSERT_TRUE(world.ChangeFolder("roms").ok());
  EXPECT_EQ(world.CurrentFolder(), "D:\\Mame\\roms");
  ASSERT_TRUE(world.ChangeFolder("..\\..").ok());
  EXPECT_EQ(world.CurrentFolder(), "D:\\");
  EXPECT_EQ(world.HostPath("C:x").value(), drive.Host("C:\\Zarvo\\Data\\x"));
}

TEST(CurrentFolder, AChangeThatFailsChangesNothing) {
  TempDrive drive;
  drive.Write("C:\\Zarvo\\file", "");
  DosWorld& files = drive.files();
  for (const char* path : {"file", "nowhere", "Q:\\", "Data\\nowhere", "D*"}) {
    EXPECT_FALSE(files.ChangeFolder(path).ok()) << path;
    EXPECT_EQ(files.CurrentFolder(), "C:\\Zarvo");
  }
  EXPECT_EQ(files.ChangeDrive('q').error().message, "There is no drive Q:");
  EXPECT_FALSE(files.ChangeDrive('\0').ok());
  EXPECT_TRUE(files.ChangeFolder("").ok());
  EXPECT_EQ(files.CurrentFolder(), "C:\\Zarvo");
}

TEST(Names, MatchInAnyCaseInEveryComponent) {
  TempDrive drive;
  fs::create_directories(drive.root() / "eMu/MÄME");
  WriteHost(drive.root() / "eMu/MÄME/Größe.ZIP", "found");
  DosWorld& files = drive.files();
  fs::remove(drive.root() / "Emu");
  EXPECT_TRUE(
      files.FileExists("C:\\EMU\\m\xE4me\\GR\xD6\xDF"
                       "E.zip"));
  EXPECT_TRUE(files.FolderExists("c:/emu/M\xC4ME/"));
  EXPECT_EQ(drive.Read("C:\\emu\\m\xC4me\\gr\xF6\xDF"
                       "e.Zip"),
            "found");
  EXPECT_FALSE(files.FileExists("C:\\emu\\m\xE4me\\gr\xF6sse.zip"));
  EXPECT_FALSE(files.FileExists("C:\\emu\\m\xE4me")) << "a folder is no file";
  EXPECT_FALSE(
      files.FolderExists("C:\\emu\\m\xE4me\\gr\xF6\xDF"
                         "e.zip"));
  EXPECT_EQ(files.HostPath("C:\\EMU\\New\\File.TXT").value(),
            (drive.root() / "eMu/New/File.TXT").string());
}

TEST(Names, OfTwoThatDifferOnlyInCaseTheExactOneIsMeant) {
  TempDrive drive;
  WriteHost(drive.root() / "Zarvo/GAME.DAT", "upper");
  WriteHost(drive.root() / "Zarvo/game.dat", "lower");
  EXPECT_EQ(drive.Read("game.dat"), "lower");
  EXPECT_EQ(drive.Read("GAME.DAT"), "upper");
  EXPECT_EQ(drive.Read("Game.dat"), "upper") << "the first in the order of bytes";
}

TEST(Names, NoPathLeavesItsDrive) {
  TempDrive outside;
  outside.Write("C:\\secret", "");
  TempDrive drive;
  DosWorld world({{'C', drive.root()}});
  const std::string up = "..\\..\\..\\..\\..\\..\\..\\..";
  const std::string secret = outside.root().string() + "/secret";
  EXPECT_FALSE(world.FileExists("C:\\" + up + secret));
  EXPECT_FALSE(world.FileExists("C:\\Emu/../../../../../../../../.." + secret));
  EXPECT_EQ(world.HostPath("C:\\" + up).value(), drive.root());
  EXPECT_EQ(world.HostPath("C:\\Emu\\..\\..\\Zarvo").value(), drive.root() / "Zarvo");
  // The host would end such a name at the zero, and climb.
  EXPECT_FALSE(world.HostPath(std::string_view("C:\\..\0x", 7)).ok());
}

TEST(Names, WhatAPathCannotSayIsNeitherListedNorMade) {
  TempDrive drive;
  const fs::path data = drive.root() / "Zarvo/Data";
  for (const char* name :
       {"plain.dat", "caf\xC3\xA9", "ゲーム", "raw\xE9", "a\\b", "a:b", "a*b", "line\nbreak"}) {
    WriteHost(data / name, "");
  }
  fs::create_directory(data / "folder");
  fs::create_symlink("plain.dat", data / "link");
  fs::create_directory_symlink("folder", data / "way");
  fs::create_symlink("nothing", data / "dead");
  mkfifo((data / "pipe").c_str(), 0600);
  EXPECT_THAT(List(drive.files(), "Data"),
              ElementsAre(Pair("caf\xE9", false), Pair("folder", true), Pair("link", false),
                          Pair("plain.dat", false), Pair("way", true)));
  EXPECT_FALSE(drive.files().WriteFile("Data\\a?b", "").ok());
  EXPECT_FALSE(drive.files().FileExists("Data\\*.dat"));
  EXPECT_FALSE(drive.files().FileExists("Data\\pipe"));
  EXPECT_FALSE(drive.files().Open("Data\\pipe").ok()) << "reading a pipe would never end";
}

TEST(ListFolder, TakesTheCurrentFolderAndRefusesFiles) {
  TempDrive drive;
  drive.Write("cfg\\Mame.cfg", "");
  EXPECT_THAT(List(drive.files(), ""), ElementsAre(Pair("Data", true), Pair("cfg", true)));
  EXPECT_EQ(drive.files().ListFolder("cfg\\mame.cfg").error().message, "Not a directory");
  EXPECT_EQ(drive.files().ListFolder("nowhere").error().message, "No such file or directory");
}

TEST(ReadAll, GivesEveryByteOrTheReason) {
  TempDrive drive;
  for (const std::size_t size : {0, 1, 65535, 65536, 65537, 300000}) {
    std::string bytes;
    for (std::size_t at = 0; at < size; ++at) bytes += static_cast<char>(at * 7 % 256);
    drive.Write("file", bytes);
    EXPECT_EQ(ReadAll(drive.files(), "FILE").value(), bytes) << size;
  }
  EXPECT_EQ(ReadAll(drive.files(), "nofile").error().message, "No such file or directory");
  EXPECT_EQ(ReadAll(drive.files(), "Data").error().message, "Is a directory");
  FailingFiles torn(drive.files());
  torn.Fail(FileStep::kRead, "file");
  EXPECT_FALSE(ReadAll(torn, "file").ok()) << "half a store must not pass for the whole";
}

TEST(WriteFile, EmptiesWhatStoodThere) {
  TempDrive drive;
  drive.Write("file", "a long text");
  ASSERT_TRUE(drive.files().WriteFile("FILE", "new").ok());
  EXPECT_EQ(drive.Read("file"), "new");
  EXPECT_FALSE(drive.files().WriteFile("no\\folder", "x").ok());
  EXPECT_FALSE(drive.files().WriteFile("Data", "x").ok());
}

TEST(ReplaceFile, KeepsTheHostsNameModeAndLink) {
  TempDrive drive;
  const fs::path cfg = drive.root() / "Zarvo/cfg";
  WriteHost(cfg / "MAME.CFG", "old");
  fs::permissions(cfg / "MAME.CFG", fs::perms(0640));
  ASSERT_TRUE(drive.files().ReplaceFile("cfg\\Mame.cfg", "cfg\\Mame.tmp", "new").ok());
  EXPECT_THAT(HostNames(cfg), ElementsAre("MAME.CFG"));
  EXPECT_EQ(drive.Read("cfg\\mame.cfg"), "new");
  EXPECT_EQ(fs::status(cfg / "MAME.CFG").permissions(), fs::perms(0640));

  WriteHost(drive.root() / "Emu/real.set", "old");
  fs::create_symlink("../../Emu/real.set", cfg / "Mame.set");
  ASSERT_TRUE(drive.files().ReplaceFile("cfg\\Mame.set", "cfg\\Mameset.tmp", "new").ok());
  EXPECT_TRUE(fs::is_symlink(cfg / "Mame.set"));
  EXPECT_EQ(drive.Read("C:\\Emu\\real.set"), "new");
  EXPECT_THAT(HostNames(drive.root() / "Emu"), ElementsAre("real.set"));
}

TEST(ReplaceFile, TakesOverALeftoverTemporaryFile) {
  TempDrive drive;
  drive.Write("cfg\\MAME.TMP", "a leftover that is longer than the new text");
  ASSERT_TRUE(drive.files().ReplaceFile("cfg\\Mame.cfg", "cfg\\mame.tmp", "new").ok());
  EXPECT_EQ(drive.Read("cfg\\Mame.cfg"), "new");
  EXPECT_THAT(HostNames(drive.root() / "Zarvo/cfg"), ElementsAre("Mame.cfg"));
}

TEST(ReplaceFile, AFailureAtAnyStepKeepsTheOldFileAndNoTemporaryOne) {
  TempDrive drive;
  DosWorld& files = drive.files();
  drive.Write("cfg\\Mame.cfg", "old");
  const std::string text(5000, 'n');

  {
    const SizeLimit disk_full(1000);
    EXPECT_EQ(files.ReplaceFile("cfg\\Mame.cfg", "cfg\\Mame.tmp", text).error().message,
              "File too large");
  }
  EXPECT_EQ(drive.Read("cfg\\Mame.cfg"), "old");
  EXPECT_THAT(HostNames(drive.root() / "Zarvo/cfg"), ElementsAre("Mame.cfg"));

  EXPECT_EQ(files.ReplaceFile("cfg\\Mame.cfg", "nowhere\\Mame.tmp", text).error().message,
            "No such file or directory");
  drive.MakeFolder("cfg\\tmp");
  EXPECT_EQ(files.ReplaceFile("cfg\\Mame.cfg", "cfg\\tmp", text).error().message, "Is a directory");
  EXPECT_EQ(drive.Read("cfg\\Mame.cfg"), "old");

  drive.MakeFolder("cfg\\Raine.cfg");
  EXPECT_EQ(files.ReplaceFile("cfg\\Raine.cfg", "cfg\\Raine.tmp", text).error().message,
            "Is a directory");
  EXPECT_FALSE(drive.Exists("cfg\\Raine.tmp"));
}

TEST(ReadOnlyFiles, AreNeitherReplacedNorWrittenNorDeleted) {
  TempDrive drive;
  drive.Write("cfg\\Mame.cfg", "mine");
  fs::permissions(drive.Host("cfg\\Mame.cfg"), fs::perms(0444));
  DosWorld& files = drive.files();
  const std::string denied = "Permission denied";
  EXPECT_EQ(files.ReplaceFile("cfg\\mame.cfg", "cfg\\m.tmp", "x").error().message, denied);
  EXPECT_EQ(files.WriteFile("cfg\\mame.cfg", "x").error().message, denied);
  EXPECT_EQ(files.DeleteFile("cfg\\mame.cfg").error().message, denied);
  EXPECT_EQ(drive.Read("cfg\\Mame.cfg"), "mine");
  EXPECT_FALSE(drive.Exists("cfg\\m.tmp"));
}

TEST(ReadReplaceable, ALeftoverTemporaryFileTakesThePlaceOfAMissingStore) {
  TempDrive drive;
  DosWorld& files = drive.files();
  EXPECT_FALSE(ReadReplaceable(files, "cfg\\Mame.set", "cfg\\Mameset.tmp").ok());

  drive.Write("cfg\\Mameset.tmp", "left over");
  EXPECT_EQ(ReadReplaceable(files, "cfg\\Mame.set", "cfg\\Mameset.tmp").value(), "left over");
  EXPECT_FALSE(drive.Exists("cfg\\Mameset.tmp"));

  drive.Write("cfg\\Mameset.tmp", "torn");
  EXPECT_EQ(ReadReplaceable(files, "cfg\\MAME.SET", "cfg\\Mameset.tmp").value(), "left over");
  EXPECT_FALSE(drive.Exists("cfg\\Mameset.tmp"));
}

TEST(CopyFile, NeverOverwritesAndLeavesNoPart) {
  TempDrive drive;
  DosWorld& files = drive.files();
  const std::string archive(700000, 'z');
  drive.Write("C:\\Emu\\game.zip", archive);
  drive.Write("C:\\Emu\\roms\\OTHER.ZIP", "mine");

  ASSERT_TRUE(files.CopyFile("C:\\Emu\\GAME.zip", "C:\\Emu\\roms\\game.zip").ok());
  EXPECT_EQ(drive.Read("C:\\Emu\\roms\\game.zip"), archive);
  EXPECT_EQ(files.CopyFile("C:\\Emu\\game.zip", "C:\\Emu\\roms\\other.zip").error().message,
            "File exists");
  EXPECT_EQ(drive.Read("C:\\Emu\\roms\\other.zip"), "mine");
  EXPECT_FALSE(files.CopyFile("C:\\Emu\\none.zip", "C:\\Emu\\roms\\none.zip").ok());
  EXPECT_FALSE(drive.Exists("C:\\Emu\\roms\\none.zip"));

  const SizeLimit disk_full(300000);
  EXPECT_EQ(files.CopyFile("C:\\Emu\\game.zip", "C:\\Emu\\roms\\third.zip").error().message,
            "File too large");
  EXPECT_FALSE(drive.Exists("C:\\Emu\\roms\\third.zip"));
}

TEST(RenameFile, RefusesATakenNameButNotOtherLetters) {
  TempDrive drive;
  drive.Write("a.txt", "a");
  drive.Write("B.TXT", "b");
  EXPECT_EQ(drive.files().RenameFile("a.txt", "b.txt").error().message, "File exists");
  EXPECT_TRUE(drive.files().RenameFile("A.TXT", "cfg\\C.txt").ok());
  EXPECT_TRUE(drive.files().RenameFile("b.txt", "b.txt").ok());
  EXPECT_THAT(HostNames(drive.root() / "Zarvo"), UnorderedElementsAre("Data", "cfg", "b.txt"));
  EXPECT_EQ(drive.Read("cfg\\c.txt"), "a");
}

TEST(FilesAndFolders, AreMadeAndDeletedByAnyCase) {
  TempDrive drive;
  DosWorld& files = drive.files();
  EXPECT_TRUE(files.MakeFolder("Cfg").ok()) << "an existing folder is no failure";
  EXPECT_THAT(HostNames(drive.root() / "Zarvo"), UnorderedElementsAre("Data", "cfg"));
  EXPECT_TRUE(files.MakeFolder("CFG\\new").ok());
  EXPECT_TRUE(fs::is_directory(drive.root() / "Zarvo/cfg/new"));
  EXPECT_FALSE(files.MakeFolder("no\\parent").ok());
  drive.Write("file", "");
  EXPECT_EQ(files.MakeFolder("FILE").error().message, "File exists");

  EXPECT_TRUE(files.DeleteFile("FILE").ok());
  EXPECT_FALSE(drive.Exists("file"));
  EXPECT_EQ(files.DeleteFile("file").error().message, "No such file or directory");
  EXPECT_FALSE(files.DeleteFile("Data").ok());
  EXPECT_TRUE(drive.Exists("Data"));
}

}  // namespace
}  // namespace zarvo
