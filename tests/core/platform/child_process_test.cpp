#include "core/platform/child_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "core/platform/dosbox.h"
#include "fakes/posix_runner.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const char* const kDosProgram = "MZ a program of DOS";

// A host that has the programs of these names, each at "/bin/".
HostPrograms Host(const std::string& programs) {
  const auto find = [programs](std::string_view name) -> std::optional<std::filesystem::path> {
    const bool has =
        (" " + programs + " ").find(" " + std::string(name) + " ") != std::string::npos;
    return has ? std::optional(std::filesystem::path("/bin") / name) : std::nullopt;
  };
  return {find, [] { return std::nullopt; }};
}

// A drive whose current folder is that of an emulator, with a batch file.
class RunTest : public testing::Test {
 protected:
  void Batch(const std::string& folder, const std::string& line) {
    drive_.Write(folder + "\\lancia.bat", line + "\r\n");
    ASSERT_TRUE(drive_.files().ChangeFolder(DosPath(folder)).ok());
  }
  void Native(const std::string& path, std::string_view text) {
    drive_.Write(path, text);
    fs::permissions(drive_.Host(path), fs::perms(0755));
  }
  Result<RunPlan> Plan(const HostPrograms& host = Host("dosbox")) {
    return PlanRun(drive_.files(), "lancia.bat", host);
  }
  // The words of the command, or why there is none.
  std::string Planned(const HostPrograms& host = Host("dosbox")) {
    const auto plan = Plan(host);
    if (!plan) return plan.error().message;
    std::string words = plan->command.program;
    for (const std::string& argument : plan->command.arguments) words += "|" + argument;
    return words;
  }

  TempDrive drive_;
  PosixRunner runner_;
};

TEST_F(RunTest, ADosProgramRunsInDosBoxFromTheFolderThatIsItsDrive) {
  Batch("C:\\Emu\\Mame", "C:\\Emu\\Mame\\Mame.exe pengo -ignorecfg");
  drive_.Write("C:\\EMU\\MAME\\MAME.EXE", kDosProgram);
  const auto plan = Plan();
  ASSERT_TRUE(plan.ok()) << plan.error().message;
  EXPECT_EQ(plan->command.program, "/bin/dosbox");
  EXPECT_EQ(plan->command.folder, drive_.root());
  EXPECT_EQ(plan->session_files.back().bytes,
            "[autoexec]\n@echo off\nmount -u C >nul\nmount C . >nul\nC:\ncd \\Emu\\Mame\n"
            "echo running>C:\\Emu\\Mame\\ZARVO.ERR\n"
            "call lancia.bat\nif errorlevel 1 goto failed\ndel C:\\Emu\\Mame\\ZARVO.ERR\nexit\n"
            ":failed\necho failed>C:\\Emu\\Mame\\ZARVO.ERR\nexit\n");
  for (const RunFile& file : plan->session_files) {
    EXPECT_FALSE(fs::exists(file.path)) << "planning writes nothing";
  }
  EXPECT_NE(Plan()->session_files.back().path, plan->session_files.back().path);

  Batch("C:\\", "C:\\Mame.exe");
  drive_.Write("C:\\Mame.exe", kDosProgram);
  EXPECT_THAT(Plan()->session_files.back().bytes,
              HasSubstr("\ncd \\\necho running>C:\\ZARVO.ERR\ncall lancia.bat\n"));
}

// The options that are lost, and the line that DOSBox runs.
TEST_F(RunTest, ALineTooLongForDosIsCutBetweenOptions) {
  drive_.Write("C:\\Emu\\Mame.exe", kDosProgram);
  const std::string full = " pengo -" + std::string(107, 'x');  // 115 characters
  const std::tuple<std::string, std::string, std::string> rows[] = {
      {full + " -sb 220 55", "", "call lancia.bat"},  // 126
      {full + " -sb 220 555", "-sb 220 555|", "call C:\\Emu\\Mame.exe" + full},
      {full + " -sb 2222 -4", "-sb 2222 -4|", "call C:\\Emu\\Mame.exe" + full},
      {full + "  -y -4 -sb 1", "-sb 1|", "call C:\\Emu\\Mame.exe" + full + " -y -4"},
      {full + " -sb 220 555 -a", "-sb 220 555|-a|", "call C:\\Emu\\Mame.exe" + full},
  };
  for (const auto& [tail, lost, call] : rows) {
    Batch("C:\\Emu", "C:\\Emu\\Mame.exe" + tail);
    const auto plan = Plan();
    std::string told;
    for (const std::string& option : plan->lost_options) told += option + "|";
    EXPECT_EQ(told, lost) << tail;
    EXPECT_EQ(plan->first_word, "pengo");
    EXPECT_THAT(plan->session_files.back().bytes, HasSubstr("\n" + call + "\n")) << tail;
  }
}

TEST_F(RunTest, ANativeProgramRunsWithoutAShellAndSeesItsWordsAndItsFolder) {
  Batch("C:\\Emu\\My Mame", "C:\\Emu\\My Mame\\run.sh  caf\xE9 $(reboot);  * -x ");
  Native("C:\\Emu\\My Mame\\run.sh", "#!/bin/sh\nprintf '%s|' \"$@\" > out\nexit 7\n");
  const auto plan = Plan(Host(""));
  EXPECT_TRUE(plan->session_files.empty() && plan->folder_files.empty());
  const auto outcome = CarryOut(*plan, runner_);
  EXPECT_TRUE(outcome->started);
  EXPECT_EQ(outcome->exit_code, 7);
  EXPECT_EQ(drive_.Read("C:\\Emu\\My Mame\\out"), "caf\xC3\xA9|$(reboot);|*|-x|");
}

// Only folders that are full paths count: "." and an empty entry are the current one.
TEST_F(RunTest, NoProgramOfTheCurrentFolderIsFound) {
  const std::string before = std::getenv("PATH");
  Native("C:\\zarvo-test-program", "#!/bin/sh\n");
  const fs::path here = fs::current_path();
  fs::current_path(drive_.root());
  const std::string beside = "../" + drive_.root().filename().string();
  for (const std::string& path : {std::string("."), std::string(), std::string(":./:x"), beside}) {
    setenv("PATH", path.c_str(), 1);
    EXPECT_FALSE(ThisHost().find("zarvo-test-program")) << path;
  }
  setenv("PATH", ("relative:" + drive_.root().string()).c_str(), 1);
  EXPECT_TRUE(ThisHost().find("zarvo-test-program"));
  fs::current_path(here);
  setenv("PATH", before.c_str(), 1);
}

TEST_F(RunTest, OnlyARunThatFailedIsToldAndANativeOneInItsOwnWords) {
  using std::chrono::milliseconds;
  const RunPlan native;
  RunPlan dos;
  dos.run_mark = "x";
  const auto judged = [](const RunPlan& plan, const RunOutcome& outcome, int took) {
    const Status status = JudgeRun(plan, outcome, milliseconds(took));
    return status ? std::string() : status.error().message;
  };
  std::string many;
  for (int i = 0; i < 30; ++i) many += "line " + std::to_string(i) + "\n";
  const RunOutcome failed = {.started = true, .exit_code = 2, .last_output = many};
  EXPECT_THAT(judged(native, failed, 4999),
              testing::EndsWith("It says:\rline 20\rline 21\rline 22"
                                "\rline 23\rline 24\rline 25\rline 26\rline 27\rline 28\rline 29"));
  EXPECT_EQ(judged(native, failed, 5000), "");
  EXPECT_THAT(judged(dos, failed, 100), testing::EndsWith("read what it says."));
  const RunOutcome odd = {.started = true,
                          .crashed = true,
                          .last_output = "\r\n caf\xC3\xA9\x1B \xFF\t\n\n" + std::string(300, 'x')};
  EXPECT_THAT(judged(native, odd, 99999),
              HasSubstr("It says:\r caf?? ?\r" + std::string(200, 'x') + "..."));
  EXPECT_THAT(judged(dos, {.started = true, .never_began = true}, 99999), HasSubstr("[autoexec]"));
  EXPECT_THAT(judged(dos, {.started = true, .program_failed = true}, 10), HasSubstr("at once"));
  EXPECT_THAT(judged(dos, {}, 10), HasSubstr("could not be started"));
  EXPECT_EQ(judged(dos, {.started = true}, 10), "");
}

TEST_F(RunTest, TheLongestBeginningThatIsAFileIsTheProgram) {
  Batch("C:\\Emu", "C:\\Emu\\my mame -x");
  const std::string my = (drive_.root() / "Emu/my").string();
  Native("C:\\Emu\\my", "#!");
  EXPECT_EQ(Planned(), my + "|mame|-x");
  Native("C:\\Emu\\my mame", "#!");
  drive_.MakeFolder("C:\\Emu\\my mame -x");
  EXPECT_EQ(Planned(), my + " mame|-x") << "a folder is no program";
}

TEST_F(RunTest, WhatCannotBeRunIsSaidPlainly) {
  EXPECT_THAT(Planned(), HasSubstr("lancia.bat"));
  for (const char* line : {"C:\\Emu\\none.exe pengo", "", "   "}) {
    Batch("C:\\Emu", line);
    EXPECT_THAT(Planned(), HasSubstr("There is no program \"")) << line;
  }
  for (const char* name :
       {"Emulators", "My Emu", "Mame.0.36", "caf\xE9", "mame-dos.exe2", "100%"}) {
    const std::string folder = std::string("C:\\") + name;
    Batch(folder, "mame.exe");
    drive_.Write(folder + "\\mame.exe", kDosProgram);
    EXPECT_THAT(Planned(), HasSubstr("\"" + std::string(name) + "\"")) << name;
    EXPECT_THAT(Planned(), HasSubstr("rename")) << name;
  }
  Batch("C:\\Emu", "long-name.exe");
  drive_.Write("C:\\Emu\\long-name.exe", kDosProgram);
  EXPECT_THAT(Planned(), HasSubstr("\"long-name.exe\""));

  Batch("C:\\Emu", "mame.exe");
  drive_.Write("C:\\Emu\\mame.exe", kDosProgram);
  EXPECT_THAT(Planned(Host("")), HasSubstr("install the package dosbox"));
  const auto error = [this](DosWorld::DriveTable drives) {
    const DosWorld world(std::move(drives));
    return PlanRun(world, "lancia.bat", Host("dosbox")).error().message;
  };
  EXPECT_THAT(error({{'Z', drive_.Host("C:\\Emu")}}), HasSubstr("drive Z"));
  drive_.Write("C:\\Emu\\lancia.bat", "D:\\mame.exe\r\n");
  EXPECT_THAT(error({{'C', drive_.Host("C:\\Emu")}, {'D', drive_.Host("C:\\Emu")}}),
              HasSubstr("isn't on the drive"));
  Batch("C:\\Emu", "mame.exe");
  drive_.Write("C:\\Emu\\mame.exe", "#!/bin/sh\n");
  EXPECT_THAT(Planned(), HasSubstr("executable"));
}

// Each applies over the one before: what suits arcade emulators, the player's own, what lies beside
// the emulator, the run's.
TEST_F(RunTest, TheConfigurationsApplyInTheirOrder) {
  Batch("C:\\Emu", "Mame.exe");
  drive_.Write("C:\\Emu\\Mame.exe", kDosProgram);
  HostPrograms host = Host("dosbox");
  const auto configurations = [&] {
    const auto plan = Plan(host);
    std::string text;
    for (std::size_t i = 0; i < plan->command.arguments.size(); i += 2) {
      EXPECT_EQ(plan->command.arguments[i], "-conf");
      std::string name = plan->command.arguments[i + 1];
      if (name == plan->session_files[0].path) name = plan->session_files[0].bytes;
      if (name == plan->session_files[1].path) name = "run";
      text += name + "|";
    }
    return text;
  };
  const std::string arcade = "[dosbox]\nmemsize=63\n[cpu]\ncore=auto\ncycles=max\n|";
  EXPECT_EQ(configurations(), arcade + "run|");
  host.dosbox_configuration = [] { return std::optional<fs::path>("/home/me/own.conf"); };
  drive_.Write("C:\\Emu\\DOSBOX.CONF", "");
  EXPECT_EQ(configurations(),
            arcade + "/home/me/own.conf|" + drive_.Host("C:\\Emu\\DOSBOX.CONF").string() + "|run|");
}

TEST_F(RunTest, TheNewestOfThePlayersConfigurationsIsTheirs) {
  const std::string before = std::getenv("HOME");
  setenv("HOME", drive_.root().c_str(), 1);
  EXPECT_FALSE(ThisHost().dosbox_configuration());
  for (const char* name : {"dosbox-0.74-2.conf", "dosbox-0.74-3.conf", "dosbox-0.74.conf", "z.conf",
                           "dosbox-9.conf.old"}) {
    drive_.Write(std::string("C:\\.dosbox\\") + name, "");
  }
  EXPECT_EQ(ThisHost().dosbox_configuration()->filename(), "dosbox-0.74.conf");
  fs::remove(drive_.Host("C:\\.dosbox\\dosbox-0.74.conf"));
  EXPECT_EQ(ThisHost().dosbox_configuration()->filename(), "dosbox-0.74-3.conf");
  setenv("HOME", before.c_str(), 1);
}

// A program with DJGPP's loader gets the whole line by way of a helper, and nothing is lost.
TEST_F(RunTest, ALongLineReachesAProgramThatKnowsHowDos7HandsItOn) {
  const std::string tail = " pengo -" + std::string(300, 'x');
  Batch("C:\\Emu", "C:\\Emu\\Mame.exe" + tail);
  const std::string loader = "MZ" + std::string(510, '.') + "go32stub, v 2.02";
  drive_.Write("C:\\Emu\\Mame.exe", loader);
  const auto plan = Plan();
  EXPECT_TRUE(plan->lost_options.empty());
  EXPECT_EQ(plan->first_word, "pengo");
  EXPECT_THAT(plan->session_files.back().bytes, HasSubstr("\ncall C:\\Emu\\ZARVO$$$.COM\n"));
  ASSERT_EQ(plan->folder_files.size(), 2U);
  EXPECT_EQ(plan->folder_files[1].path, drive_.Host("C:\\Emu\\ZARVO$$$.COM"));
  EXPECT_TRUE(plan->folder_files[1].bytes.ends_with("C:\\Emu\\Mame.exe" + std::string(1, '\0') +
                                                    tail + '\0'));
  drive_.Write("C:\\Emu\\Mame.exe", std::string(2048, '.') + loader);
  EXPECT_FALSE(Plan()->lost_options.empty()) << "the loader stands at the front";
  Batch("C:\\Emu", "C:\\Emu\\Mame.exe" + tail.substr(0, kLongestTail));
  EXPECT_EQ(Plan()->folder_files.size(), 1U);
}

TEST_F(RunTest, TheFilesOfARunStandForTheRunAndAreDeletedAfterIt) {
  const fs::path path = drive_.root() / "run.conf";
  const fs::path seen = drive_.root() / "seen";
  const fs::path mark = drive_.root() / "mark";
  const RunPlan plan = {.command = {"/bin/cp", {"-p", path, seen}, "/"},
                        .session_files = {{path, "[autoexec]\n"}},
                        .folder_files = {{mark, "waiting"}},
                        .run_mark = mark};
  std::ofstream(mark) << "failed";  // of a run that was cut off
  const auto outcome = CarryOut(plan, runner_);
  EXPECT_TRUE(outcome->started && outcome->never_began && !outcome->program_failed);
  EXPECT_FALSE(fs::exists(mark));
  EXPECT_EQ(drive_.Read("C:\\seen"), "[autoexec]\n");
  EXPECT_EQ(fs::status(seen).permissions(), fs::perms(0600));
  EXPECT_FALSE(fs::exists(path));

  // A file that somebody laid there is neither used nor deleted.
  fs::rename(seen, path);
  EXPECT_THAT(CarryOut(plan, runner_).error().message, HasSubstr("File exists"));
  EXPECT_FALSE(fs::exists(seen));
  EXPECT_TRUE(fs::exists(path));
}

// A real DOSBox without a picture, with the drive's folder for the player's home.
class DosBoxTest : public RunTest {
 protected:
  void SetUp() override {
    if (!ThisHost().find("dosbox")) GTEST_SKIP() << "dosbox isn't installed";
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("HOME", drive_.root().c_str(), 1);
  }
  RunOutcome RunLine(DosWorld& world, const std::string& line) {
    Ignore(world.WriteFile("lancia.bat", line + "\r\n"));
    const auto plan = PlanRun(world, "lancia.bat", ThisHost());
    EXPECT_TRUE(plan.ok()) << plan.error().message;
    EXPECT_TRUE(plan->lost_options.empty());
    const auto outcome = CarryOut(*plan, runner_);
    EXPECT_TRUE(outcome.ok()) << outcome.error().message;
    EXPECT_TRUE(outcome->started && !outcome->crashed && outcome->exit_code == 0) << line;
    for (const RunFile& file : plan->session_files) EXPECT_FALSE(fs::exists(file.path));
    for (const RunFile& file : plan->folder_files) EXPECT_FALSE(fs::exists(file.path));
    return *outcome;
  }
};

TEST_F(DosBoxTest, RunsTheLineAndTellsOfAnErrorLevel) {
  // A folder that DOSBox's own parsing of host paths wouldn't survive, and a player's own
  // configuration that has taken the drive already.
  const fs::path root = drive_.root() / "it's %PATH% \"é\" #1";
  fs::create_directories(root / "Emu/Mame");
  fs::create_directories(drive_.root() / ".dosbox");
  std::ofstream(drive_.root() / ".dosbox/dosbox-0.74-3.conf")
      << "[autoexec]\nmount c /usr\nc:\nset MINE=of the player\n";
  DosWorld world({{'C', root}});
  ASSERT_TRUE(world.ChangeFolder("C:\\Emu\\Mame").ok());
  ASSERT_TRUE(world.WriteFile("tail.bat", "@echo %1 %2 %3 %4 %5 %6>TAIL\r\n").ok());
  // mov ax, 4C03h; int 21h: ends with error level 3.
  ASSERT_TRUE(world.WriteFile("bad.com", "\xB8\x03\x4C\xCD\x21").ok());
  std::ofstream(drive_.root() / ".dosbox/exit.conf") << "[autoexec]\nexit\n";
  for (const char* program : {"tail.bat", "bad.com"}) {
    const RunOutcome outcome =
        RunLine(world, "C:\\Emu\\Mame\\" + std::string(program) + " pengo -s 1 %MINE%");
    EXPECT_EQ(outcome.program_failed, std::string_view(program) == "bad.com");
    EXPECT_FALSE(outcome.never_began);
  }
  EXPECT_EQ(ReadAll(world, "TAIL").value(), "pengo -s 1 of the player\r\n");

  // A player's own configuration that ends DOSBox: no game, and that is told.
  fs::rename(drive_.root() / ".dosbox/exit.conf", drive_.root() / ".dosbox/dosbox-0.74-3.conf");
  EXPECT_TRUE(RunLine(world, "C:\\Emu\\Mame\\tail.bat").never_began);
}

TEST_F(DosBoxTest, ALongLineArrivesAndTheErrorLevelComesBack) {
  drive_.MakeFolder("C:\\Emu\\Mame");
  DosWorld& world = drive_.files();
  ASSERT_TRUE(world.ChangeFolder("C:\\Emu\\Mame").ok());
  fs::copy_file(ZARVO_STAND_IN, drive_.Host("C:\\Emu\\Mame\\Mame.exe"));
  drive_.Write("C:\\Emu\\Mame\\QUICK.TXT", "");
  for (const std::size_t size : {126U, 127U, 342U, 900U}) {
    std::string tail = " pengo -volume -12 caf\xE9";
    while (tail.size() < size) tail += tail.size() % 7 == 0 ? ' ' : 'x';
    tail.back() = 'x';
    const RunOutcome outcome = RunLine(world, "C:\\Emu\\Mame\\Mame.exe" + tail);
    EXPECT_FALSE(outcome.program_failed || outcome.never_began);
    EXPECT_EQ(drive_.Read("C:\\Emu\\Mame\\CMDLINE.TXT"), tail) << size;
  }
  // jmp over the mark; mov ax, 4C03h; int 21h.
  drive_.Write("C:\\Emu\\Mame\\bad.com", "\xEB\x08go32stub\xB8\x03\x4C\xCD\x21");
  EXPECT_TRUE(RunLine(world, "C:\\Emu\\Mame\\bad.com " + std::string(200, 'x')).program_failed);
}

}  // namespace
}  // namespace zarvo
