// The command lines of the DOS emulators in the words of today's MAME.
#include "bridge/translation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "bridge/real_games.h"
#include "core/launch/command_line.h"
#include "fakes/emulators.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

// The words in one line, or "! " and the error.
std::string Today(const Emulator& emulator, const std::string& line) {
  std::istringstream stream(line);
  const std::vector<std::string> words{std::istream_iterator<std::string>(stream), {}};
  const auto today = Translate(emulator, std::vector<std::string_view>(words.begin(), words.end()));
  if (!today) return "! " + today.error().message;
  std::string text;
  for (const std::string& word : *today) text += (text.empty() ? "" : " ") + word;
  return text;
}

TEST(Translation, SaysEachPieceInTodaysWords) {
  const struct {
    const Emulator& emulator;
    const char* then;
    const char* today;
  } rows[] = {
      {kMame, "pong -ignorecfg", "pong"},
      {kMame, "pong", "pong"},
      {kMame, "pacman -ignorecfg -resolution 640x480 -frameskip 11 -soundcard 0",
       "pacman -resolution 640x480 -frameskip 10 -sound none"},
      {kMame, "pacman -soundcard 1 -sr 11025 -joy snespad1", "! Mame has no option \"-joy\"."},
      {kMame, "pacman -soundcard 1 -sr 11025 -joy sneslpt1 -flicker 5.00",
       "pacman -samplerate 11025 -joystick -flicker 0.05"},
      {kMame, "pacman -skiplines -12 -skipcolumns 3 -depth 8 -sb 16 -ror -flipx",
       "pacman -ror -flipx"},
      {kMame, "pacman -record pacman_1 -playback p2",
       "pacman -input_directory INP -record pacman_1.inp -input_directory INP -playback p2.inp"},
      {kCallus, "sf2 -resv 640 480 -res 384 257 -frameskip 2 -nosound -setinput 1 JOY1",
       "sf2 -resolution 384x257 -frameskip 2 -sound none -joystick"},
      {kCallus, "sf2 -res 384", "! Callus has no option \"-res\"."},
      {kRaine, "-game bublbobl -nogui -screenmode VB2B -screenx 1280 -screeny 1024 -joystick 0",
       "bublbobl -resolution 1280x1024 -nojoystick"},
      {kSystem16, "shinobi -RX 320 -RY 224 -FRAME 3 -SCANLINES -NOTITLE -SOUNDCARD 0",
       "shinobi -resolution 320x224 -frameskip 2 -effect scanlines -skip_gameinfo -sound none"},
      {kM72, "rtype -res 512x384 -skip 4 -vert -r 44100 -qf 2",
       "rtype -resolution 512x384 -frameskip 4 -autoror -samplerate 44100"},
      {kM72, "rtype -R 44100", "! M72 has no option \"-R\"."},
      {kM72, "-res 512x384", "! There is no game on the command line of M72."},
      {kMame, "..\\x", "! There is no game on the command line of Mame."},
      {kMame, "", "! There is no game on the command line of Mame."},
  };
  for (const auto& [emulator, then, today] : rows) EXPECT_EQ(Today(emulator, then), today) << then;
}

// A word with a blank in it, which no batch file gives, stays one word.
TEST(Translation, AWordStaysAWord) {
  const std::string_view words[] = {"pong", "-record", "a -verbose"};
  EXPECT_THAT(Translate(kMame, words).value(),
              testing::ElementsAre("pong", "-input_directory", "INP", "-record", "a -verbose.inp"));
  const std::string_view game[] = {"pong -verbose"};
  EXPECT_FALSE(Translate(kMame, game));
}

// Whatever a panel can say is understood: every value of every option, and all options at once.
TEST(Translation, UnderstandsEveryLineThatAPanelGives) {
  for (const Emulator& emulator : Emulators()) {
    CommandInput input{.emulator_path = "e",
                       .rom_name = "game",
                       .options = DefaultValues(emulator, ""),
                       .recording = "old.inp",
                       .now = {}};
    for (std::size_t i = 0; i < emulator.options.size(); ++i) {
      const OptionSpec& option = emulator.options[i];
      OptionValue& value = input.options.values[i];
      value.enabled = true;
      const int count =
          option.kind == OptionKind::kCombo ? static_cast<int>(option.items.size()) : 2;
      for (int number = 0; number < count; ++number) {
        value.number = number;
        if (option.kind == OptionKind::kText) value.text = number == 0 ? "-7" : "120";
        const std::string line = CommandLine(emulator, input).substr(1);
        EXPECT_THAT(Today(emulator, line), testing::StartsWith("game")) << emulator.word << line;
      }
    }
  }
}

TEST(Translation, ThePageInTheDocumentsIsTheTable) {
  std::ifstream page(ZARVO_BRIDGE_PAGE);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(page), {}), TranslationTable())
      << "zarvo-mame --table > docs/bridge.md";
}

class RealGamesTest : public testing::Test {
 protected:
  RealGamesTest() {
    drive_.Write(R"(C:\Zarvo\Data\Mame.dat)",
                 "*h\r\nPac;pacman;O;-;x;\r\nPong;pong;O;-;x;\r\nRebound;rebound;O;-;x;\r\n");
  }
  bool LayOut() {
    said_.clear();
    return LayOutRealGames(drive_.files(), folders_,
                           {.bridge = "/opt/zarvo-mame",
                            .mame_ini = "artpath /a\n",
                            .say = [this](const std::string& line) { said_ += line + "|"; }});
  }

  TempDrive drive_;
  const ProgramFolders folders_{"C:\\Zarvo"};
  std::string said_;
};

TEST_F(RealGamesTest, MakesWhatIsMissingAndChangesNothingThatIsThere) {
  drive_.MakeFolder(R"(C:\Emu\Callus)");
  drive_.Write(R"(C:\Zarvo\cfg\Raine.cfg)", "mine");
  EXPECT_TRUE(LayOut());
  EXPECT_EQ(drive_.Read(R"(C:\Emu\Mame\Mame.exe)"),
            "#!/bin/sh\nexec \"/opt/zarvo-mame\" --as mame -- \"$@\"\n");
  EXPECT_THAT(
      drive_.Read(R"(C:\Emu\Mame\mame.ini)"),
      testing::AllOf(testing::StartsWith("artpath /a\n"), testing::HasSubstr("snapname %g\n")));
  EXPECT_EQ(drive_.Read(R"(C:\Emu\Mame\Roms\pong.zip)").size(), 22U);
  EXPECT_FALSE(drive_.Exists(R"(C:\Emu\Mame\Roms\pacman.zip)"));
  EXPECT_EQ(
      drive_.Read(R"(C:\Zarvo\cfg\Mame.cfg)"),
      "\"C:\\Emu\\Mame\\Mame.exe\"\r\n\"C:\\Emu\\Mame\\Roms\"\r\n\"C:\\Emu\\Snapshot\\Mame\"\r\n"
      "\"GIF\"\r\n\"C:\\Emu\\Mame\"\r\n\"up\"\r\n\"Rebound\"\r\n\"Pong\"\r\n");
  EXPECT_FALSE(drive_.Exists(R"(C:\Emu\Callus\Callus.exe)"));
  EXPECT_EQ(drive_.Read(R"(C:\Zarvo\cfg\Raine.cfg)"), "mine");
  EXPECT_TRUE(drive_.Exists(R"(C:\Emu\Raine\Raine.exe)"));

  drive_.Write(R"(C:\Emu\Mame\mame.ini)", "mine");
  EXPECT_TRUE(LayOut());
  EXPECT_EQ(said_, "") << "nothing is missing";
  EXPECT_EQ(drive_.Read(R"(C:\Emu\Mame\mame.ini)"), "mine");
}

TEST_F(RealGamesTest, WhatWasCutOffHalfWayIsMadeWhole) {
  EXPECT_TRUE(LayOut());
  EXPECT_FALSE(drive_.Exists(R"(C:\Emu\Mame.$$$)"));
  std::filesystem::remove(drive_.Host(R"(C:\Emu\Mame\Mame.exe)"));
  std::filesystem::remove(drive_.Host(R"(C:\Zarvo\cfg\Mame.cfg)"));
  drive_.Write(R"(C:\Emu\Mame.$$$)", "");
  EXPECT_TRUE(LayOut());
  EXPECT_THAT(said_, testing::StartsWith("C:\\Emu\\Mame\\Mame.exe is today's MAME now"));
  EXPECT_TRUE(drive_.Exists(R"(C:\Emu\Mame\Mame.exe)"));
  EXPECT_TRUE(drive_.Exists(R"(C:\Zarvo\cfg\Mame.cfg)"));
  EXPECT_FALSE(drive_.Exists(R"(C:\Emu\Mame.$$$)"));
}

TEST_F(RealGamesTest, WhatCantBeMadeIsTold) {
  drive_.Write(R"(C:\Emu\Mame)", "a file in the way");
  EXPECT_FALSE(LayOut());
  EXPECT_THAT(said_, testing::StartsWith("Mame: "));
}

}  // namespace
}  // namespace zarvo
