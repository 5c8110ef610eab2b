#include "launch/launcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "fakes/failing_files.h"
#include "launch/launcher_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array<Emulator, 4> kWithoutParents = {Emulator::kCallus, Emulator::kRaine,
                                                     Emulator::kSystem16, Emulator::kM72};

const std::string kItalian =
    "Zarvo v0.1|La rom sf2 \xE8 gi\xE0 contenuta nella directory mame/roms. E' stato scelto invece "
    "di utilizzare una rom contenuta in un altra cartella. Proseguendo, la rom contenuta in "
    "mame/roms verr\xE0 sovrascritta, e verr\xE0 perduta. Continuare?";

TEST_F(LauncherTest, TheBatchFileHoldsTheCommandLineAndIsGoneAfterTheRun) {
  Use(Emulator::kMame);
  UseOwnFolder();
  panel_.rom = "agsofdk";
  drive_.Write(own_ + "\\agsofdk.zip", "own");
  drive_.Write(folder_ + "\\lancia.bat", "an older and much longer line of another launch\r\n");
  EXPECT_EQ(Start(), LaunchEnd::kRan);
  EXPECT_EQ(batch_, "C:\\Emu\\Mame\\Emu.exe agsofdk -ignorecfg -soundcard 1\r\n");
  EXPECT_FALSE(drive_.Exists(folder_ + "\\lancia.bat"));
  EXPECT_THAT(Archives(), ElementsAre("agsofdk.zip=own"));
  EXPECT_THAT(boxes_.shown, IsEmpty());
  EXPECT_THAT(panel_.calls, ElementsAre("save cfg", "find Street Fighter II"));
}

TEST_F(LauncherTest, AnArchiveFromElsewhereIsCopiedForTheRunAlone) {
  for (const EmulatorProfile& profile : Profiles()) {
    Use(profile.emulator);
    drive_.Write("C:\\Mine\\SF2.ZIP", "mine");
    EXPECT_EQ(Start(), LaunchEnd::kRan) << profile.word;
    EXPECT_THAT(archives_, ElementsAre("sf2.zip=mine")) << profile.word;
    EXPECT_THAT(Archives(), IsEmpty()) << profile.word;
    EXPECT_EQ(drive_.Read("C:\\Mine\\sf2.zip"), "mine");
    EXPECT_THAT(boxes_.shown, IsEmpty());
  }
}

TEST_F(LauncherTest, MameMakesItsRomFolderIfItIsMissing) {
  Use(Emulator::kMame);
  std::filesystem::remove(drive_.Host(own_));
  drive_.Write("C:\\Mine\\sf2.zip", "mine");
  EXPECT_EQ(Start(), LaunchEnd::kRan);
  EXPECT_THAT(archives_, ElementsAre("sf2.zip=mine"));
}

TEST_F(LauncherTest, OtherSpellingsOfTheOwnFolderAreTheOwnFolder) {
  Use(Emulator::kMame);
  drive_.Write(own_ + "\\sf2.zip", "own");
  std::filesystem::create_directory_symlink(drive_.Host(own_), drive_.root() / "Link");
  for (const char* spelling : {R"(c:\EMU\mame\ROMS)", R"(C:\Emu\Mame\roms\)", "C:/Emu/Mame/roms",
                               R"(C:\Emu\Mame\x\..\.\roms)", "C:\\Link"}) {
    panel_.options.rom_folder = spelling;
    EXPECT_EQ(Start(), LaunchEnd::kRan) << spelling;
    EXPECT_THAT(archives_, ElementsAre("sf2.zip=own")) << spelling;
    EXPECT_THAT(Archives(), ElementsAre("sf2.zip=own")) << spelling;
  }
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(LauncherTest, AMissingEmulatorLeadsToItsPicker) {
  struct Row {
    Emulator emulator;
    std::string_view title;
    bool looks_up_first;
  };
  for (const Row& row :
       {Row{Emulator::kMame, "Zarvo v0.1", false}, Row{Emulator::kCallus, "Zarvo v0.1", true},
        Row{Emulator::kRaine, "Warning! - No EXE found!", true},
        Row{Emulator::kSystem16, "Zarvo v0.1", false}, Row{Emulator::kM72, "Zarvo v0.1", true}}) {
    Use(row.emulator);
    drive_.Write("C:\\Mine\\sf2.zip", "mine");
    for (const char* path : {"C:\\Emu\\None.exe", ""}) {
      panel_.emulator_path = path;
      panel_.calls.clear();
      boxes_.shown.clear();
      EXPECT_EQ(Start(), LaunchEnd::kNoEmulator) << row.title;
      EXPECT_EQ(Warning(), std::string(row.title) + "|" + app_.messages.MsgNoEmulator);
      std::vector<std::string> calls = {"save cfg", "emulator picker"};
      if (row.looks_up_first) calls.insert(calls.begin() + 1, "find Street Fighter II");
      EXPECT_EQ(panel_.calls, calls);
      EXPECT_THAT(Archives(), IsEmpty());
      ExpectNothingRan();
    }
  }
}

TEST_F(LauncherTest, AMissingArchiveLeadsToThePickerOfItsFolder) {
  for (const EmulatorProfile& profile : Profiles()) {
    Use(profile.emulator);
    for (const char* rom_folder : {"C:\\Mine", "C:\\Nowhere", "", "Mine"}) {
      panel_.options.rom_folder = rom_folder;
      boxes_.shown.clear();
      EXPECT_EQ(Start(), LaunchEnd::kNoRom) << profile.word << " " << rom_folder;
      const bool raine = profile.emulator == Emulator::kRaine;
      EXPECT_EQ(Warning(),
                (raine ? "Warning! - No Rom found!|" : "Zarvo v0.1|") + app_.messages.MsgNoRom);
      EXPECT_EQ(panel_.calls.back(), "rom picker");
      ExpectNothingRan();
    }
  }
}

TEST_F(LauncherTest, OnlyMameAndM72LookIntoTheirOwnFolder) {
  for (const EmulatorProfile& profile : Profiles()) {
    Use(profile.emulator);
    UseOwnFolder();
    const bool looks = profile.emulator == Emulator::kMame || profile.emulator == Emulator::kM72;
    EXPECT_EQ(Start(), looks ? LaunchEnd::kNoRom : LaunchEnd::kRan) << profile.word;
  }
}

TEST_F(LauncherTest, AGameThatTheDataFileDoesNotKnowIsNotLaunched) {
  for (const EmulatorProfile& profile : Profiles()) {
    Use(profile.emulator);
    UseOwnFolder();
    drive_.Write(own_ + "\\sf2.zip", "own");
    panel_.knows_game = false;
    EXPECT_EQ(Start(), LaunchEnd::kUnknownGame);
    EXPECT_THAT(boxes_.shown, IsEmpty());
    ExpectNothingRan();
  }
}

TEST_F(LauncherTest, ARomNameThatLeadsElsewhereIsNoRom) {
  drive_.Write("C:\\Emu\\secret.zip", "secret");
  for (const EmulatorProfile& profile : Profiles()) {
    for (const char* rom : {"..\\secret", "C:\\Emu\\secret", "", "sf2 & del", "*", "a|b", "-x"}) {
      Use(profile.emulator);
      panel_.rom = rom;
      EXPECT_EQ(Start(), LaunchEnd::kNoRom) << profile.word << " " << rom;
      ExpectNothingRan();
      UseOwnFolder();
      EXPECT_EQ(Start(), LaunchEnd::kNoRom) << profile.word << " " << rom;
    }
  }
}

TEST_F(LauncherTest, AParentThatLeadsElsewhereIsNoParent) {
  Use(Emulator::kMame);
  panel_.parent = "..\\Emu\\secret";
  drive_.Write("C:\\Emu\\secret.zip", "secret");
  EXPECT_EQ(Start(), LaunchEnd::kNoRom);
}

TEST_F(LauncherTest, AnArchiveThatStandsThereRunsAfterAQuestionAndStays) {
  for (const EmulatorProfile& profile : Profiles()) {
    Use(profile.emulator);
    drive_.Write("C:\\Mine\\sf2.zip", "mine");
    drive_.Write(own_ + "\\sf2.zip", "own");
    boxes_.answers = {BoxAnswer::kNo};
    EXPECT_EQ(Start(), LaunchEnd::kRefused) << profile.word;
    EXPECT_THAT(Questions(), ElementsAre(Overwrite("sf2")));
    ExpectNothingRan();
    EXPECT_THAT(Archives(), ElementsAre("sf2.zip=own"));
    boxes_.answers = {BoxAnswer::kYes};
    EXPECT_EQ(Start(), LaunchEnd::kRan) << profile.word;
    EXPECT_THAT(archives_, ElementsAre("sf2.zip=own")) << profile.word;
    EXPECT_THAT(Archives(), ElementsAre("sf2.zip=own")) << profile.word;
  }
}

TEST_F(LauncherTest, NoQuestionComesForAnArchiveThatTheRomFolderLacks) {
  for (const Emulator emulator : kWithoutParents) {
    Use(emulator);
    drive_.Write(own_ + "\\sf2.zip", "own");
    EXPECT_EQ(Start(), LaunchEnd::kNoRom);
    EXPECT_THAT(Questions(), IsEmpty());
  }
}

// What MAME does with the archives of a clone and its parent, by where they stand.
TEST_F(LauncherTest, MameAndTheArchiveOfTheParent) {
  struct Row {
    std::string_view what;
    std::string parent;
    std::vector<std::string> mine;
    std::vector<std::string> own;
    std::deque<BoxAnswer> answers;
    LaunchEnd end;
    std::vector<std::string> questions;
    std::vector<std::string> during;
  };
  const auto yes = BoxAnswer::kYes;
  const auto no = BoxAnswer::kNo;
  const std::vector<Row> rows = {
      {"only the parent", "sf", {"sf"}, {}, {}, LaunchEnd::kRan, {}, {"sf.zip=mine"}},
      {"both", "sf", {"sf2", "sf"}, {}, {}, LaunchEnd::kRan, {}, {"sf2.zip=mine"}},
      {"neogeo alone is nothing", "neogeo", {"neogeo"}, {}, {}, LaunchEnd::kNoRom, {}, {}},
      {"neogeo game", "neogeo", {"sf2"}, {}, {}, LaunchEnd::kRan, {}, {"sf2.zip=mine"}},
      {"the game stands, no parent",
       "sf",
       {"sf2"},
       {"sf2"},
       {yes},
       LaunchEnd::kRan,
       {Overwrite("sf2")},
       {"sf2.zip=own"}},
      {"the game stands, both here",
       "sf",
       {"sf2", "sf"},
       {"sf2"},
       {yes, yes},
       LaunchEnd::kRan,
       {Overwrite("sf2"), kItalian},
       {"sf2.zip=own"}},
      {"the game stands, second No",
       "sf",
       {"sf2", "sf"},
       {"sf2"},
       {yes, no},
       LaunchEnd::kRefused,
       {Overwrite("sf2"), kItalian},
       {}},
      {"the game stands, neogeo here",
       "neogeo",
       {"sf2", "neogeo"},
       {"sf2"},
       {yes},
       LaunchEnd::kNoRom,
       {Overwrite("sf2")},
       {}},
      {"the parent stands",
       "sf",
       {"sf"},
       {"sf"},
       {yes},
       LaunchEnd::kRan,
       {Overwrite("sf")},
       {"sf.zip=own"}},
      {"the parent stands, No",
       "sf",
       {"sf"},
       {"sf"},
       {no},
       LaunchEnd::kRefused,
       {Overwrite("sf")},
       {}}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Use(Emulator::kMame);
    std::filesystem::remove_all(drive_.Host("C:\\Mine"));
    std::filesystem::remove_all(drive_.Host(own_));
    drive_.MakeFolder(own_);
    for (const std::string& name : row.mine) drive_.Write("C:\\Mine\\" + name + ".zip", "mine");
    for (const std::string& name : row.own) drive_.Write(own_ + "\\" + name + ".zip", "own");
    panel_.parent = row.parent;
    boxes_.answers = row.answers;
    const auto before = Archives();
    EXPECT_EQ(Start(), row.end);
    EXPECT_EQ(Questions(), row.questions);
    EXPECT_EQ(archives_, row.during);
    EXPECT_EQ(Archives(), before);
    EXPECT_TRUE(boxes_.answers.empty());
  }
}

TEST_F(LauncherTest, TheParentInTheOwnFolderIsEnoughForMame) {
  Use(Emulator::kMame);
  UseOwnFolder();
  panel_.parent = "sf";
  drive_.Write(own_ + "\\sf.zip", "own");
  EXPECT_EQ(Start(), LaunchEnd::kRan);
  EXPECT_THAT(Archives(), ElementsAre("sf.zip=own"));
}

TEST_F(LauncherTest, TheSharedRomsOfNeoGeoAreNoGame) {
  Use(Emulator::kMame);
  UseOwnFolder();
  panel_.parent = "neogeo";
  drive_.Write(own_ + "\\neogeo.zip", "own");
  EXPECT_EQ(Start(), LaunchEnd::kNoRom);
}

TEST_F(LauncherTest, AStepThatFailsEndsTheLaunchAndRemovesWhatItMade) {
  struct Row {
    FileStep step;
    std::string_view name;
    std::string_view message;
  };
  const std::vector<Row> rows = {
      {FileStep::kWrite, "lancia.bat", R"(C:\Emu\Mame\lancia.bat: No space left on device)"},
      {FileStep::kChangeFolder, "Mame", "C:\\Emu\\Mame: No space left on device"},
      {FileStep::kCopy, "sf2.zip", R"(C:\Emu\Mame\roms\sf2.zip: No space left on device)"}};
  for (const Row& row : rows) {
    Use(Emulator::kMame);
    drive_.Write("C:\\Mine\\sf2.zip", "mine");
    FailingFiles files(drive_.files());
    files.Fail(row.step, row.name);
    EXPECT_EQ(StartWith(files), LaunchEnd::kFailed) << row.message;
    EXPECT_EQ(Warning(), "Zarvo v0.1|" + std::string(row.message));
    EXPECT_THAT(Archives(), IsEmpty()) << row.message;
    ExpectNothingRan();
  }
}

TEST_F(LauncherTest, ACopyOfTheParentThatFailsEndsTheLaunch) {
  Use(Emulator::kMame);
  panel_.parent = "sf";
  drive_.Write("C:\\Mine\\sf.zip", "mine");
  FailingFiles files(drive_.files());
  files.Fail(FileStep::kCopy, "sf.zip");
  EXPECT_EQ(StartWith(files), LaunchEnd::kFailed);
  EXPECT_EQ(Warning(), "Zarvo v0.1|C:\\Emu\\Mame\\roms\\sf.zip: No space left on device");
  ExpectNothingRan();
}

TEST_F(LauncherTest, ACopyThatFailsIsAMissingRomForTheOthers) {
  for (const Emulator emulator : kWithoutParents) {
    Use(emulator);
    drive_.Write("C:\\Mine\\sf2.zip", "mine");
    FailingFiles files(drive_.files());
    files.Fail(FileStep::kCopy, "sf2.zip");
    EXPECT_EQ(StartWith(files), LaunchEnd::kNoRom);
    ExpectNothingRan();
  }
}

TEST_F(LauncherTest, ARunThatFailsIsToldWhenEverythingIsPutBack) {
  Use(Emulator::kCallus);
  drive_.Write("C:\\Mine\\sf2.zip", "mine");
  run_result_ = Error{"DOSBox is not installed."};
  EXPECT_EQ(Start(), LaunchEnd::kFailed);
  EXPECT_EQ(Warning(), "Zarvo v0.1|DOSBox is not installed.");
  EXPECT_THAT(Archives(), IsEmpty());
  EXPECT_FALSE(drive_.Exists(folder_ + "\\lancia.bat"));
}

TEST_F(LauncherTest, WithoutAnEmulatorFolderNothingIsTouched) {
  for (const char* folder : {"", "Emu\\Mame"}) {
    Use(Emulator::kMame);
    drive_.Write("C:\\Mine\\sf2.zip", "mine");
    panel_.emulator_folder = folder;
    EXPECT_EQ(Start(), LaunchEnd::kFailed);
    EXPECT_EQ(Warning(),
              "Zarvo v0.1|The emulator's folder isn't known.\rPlease choose the emulator in "
              "section CONF");
    ExpectNothingRan();
  }
}

}  // namespace
}  // namespace zarvo
