#include "core/platform/dos_path.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace zarvo {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(DosPath, IsPutTogetherAndTakenApart) {
  EXPECT_EQ(JoinPath("C:\\", "a"), "C:\\a");
  EXPECT_EQ(JoinPath("C:\\Emu", "a"), "C:\\Emu\\a");
  EXPECT_EQ(JoinPath("C:", "a"), "C:\\a");
  EXPECT_EQ(JoinPath("", "a"), "a");
  const std::array<const char*, 3> cases[] = {
      {"C:\\Emu\\Mame.exe", "C:\\Emu", "Mame.exe"},
      {"C:\\Mame.exe", "C:\\", "Mame.exe"},
      {"\\Mame.exe", "\\", "Mame.exe"},
      {"Emu\\Mame.exe", "Emu", "Mame.exe"},
      {"Mame.exe", "", "Mame.exe"},
      {"C:\\Emu\\", "C:\\Emu", ""},
      {"", "", ""},
  };
  for (const auto& [path, folder, name] : cases) {
    EXPECT_EQ(ParentFolder(path), folder) << path;
    EXPECT_EQ(FileName(path), name) << path;
  }
}

TEST(DosPath, ADriveIsALetterAndAColon) {
  EXPECT_EQ(DriveLetter("c:\\emu"), 'C');
  EXPECT_EQ(DriveLetter("Z:"), 'Z');
  for (const char* path : {"", "C", "\\C:", "1:\\", "[:", "\xE9:\\"}) {
    EXPECT_EQ(DriveLetter(path), 0) << path;
  }
}

TEST(DosPath, ComponentsNeverClimbAboveTheRoot) {
  EXPECT_THAT(PathComponents("C:\\Emu\\\\Mame\\.\\roms\\"), ElementsAre("Emu", "Mame", "roms"));
  EXPECT_THAT(PathComponents("Emu/Mame"), ElementsAre("Emu", "Mame"));
  EXPECT_THAT(PathComponents("C:\\Emu\\..\\Zarvo"), ElementsAre("Zarvo"));
  EXPECT_THAT(PathComponents("C:\\..\\..\\etc\\..\\..\\a"), ElementsAre("a"));
  EXPECT_THAT(PathComponents("C:\\..\\/..\\"), IsEmpty());
  EXPECT_THAT(PathComponents("...\\.. "), ElementsAre("...", ".. "));
}

TEST(DosPath, KnowsWhatDosCanName) {
  for (const char* name : {"A", "MAME.EXE", "12345678.123", "m72", "PUCKMA~1.ZIP", "a_b-c!.$&#"}) {
    EXPECT_TRUE(IsDosName(name)) << name;
  }
  for (const char* name : {"", ".", "..", ".cfg", "a.", "123456789", "a.1234", "a.b.c", "a.b ",
                           "con", "AUX.txt", "lpt1", "Com9.x"}) {
    EXPECT_FALSE(IsDosName(name)) << name;
  }
  for (const char c : " +,;=[:\\/*?\"|<%\x01\xE9"sv) {
    EXPECT_FALSE(IsDosName(std::string("a") + c + "b")) << c;
  }
}

TEST(DosPath, KnowsNamesThatCannotLeadElsewhere) {
  for (const char* name : {"puckman", "1942", "neo-geo", "a.b.c", "street_fighter_2", "com", "com0",
                           "contra", "caf\xE9", ".hidden", "a~1", "a+b#"}) {
    EXPECT_TRUE(IsPlainName(name)) << name;
  }
  for (const char* name : {"", ".", "..", "...", "..\\a", "C:a", "-a", "con", "NUL.zip"}) {
    EXPECT_FALSE(IsPlainName(name)) << name;
  }
  for (const char c : "\\/*?\"'`<>|&;$%^!(){}[]=,@: \xA0\t\n\x7F\x81\0"sv) {
    EXPECT_FALSE(IsPlainName(std::string("a") + c + "b")) << c;
  }
}

TEST(DosPath, PatternsMatchAsInAFileList) {
  const auto matches = [](std::string_view both) {  // the name, a colon, the patterns
    const std::size_t colon = both.find(':');
    return MatchesPattern(both.substr(0, colon), both.substr(colon + 1));
  };
  for (const char* both : {"puckman.zip:*.zip", "PUCKMAN.ZIP:*.zip", "pok\xC9.zip:POK\xE9.*",
                           "b.zip:b.zip;a.zip", "a.zip:b.zip; a.zip", "a.zip:;;a.zip;",
                           "readme:*.*", "a.zip:?.zip", "aXbXb.zip:a*b.zip", "abc:a**c*", ":*"}) {
    EXPECT_TRUE(matches(both)) << both;
  }
  for (const char* both : {"pacmania.zip:pacman.zip", "pacman.zip2:*.zip", "readme:*.",
                           ".zip:?.zip", "ab.zip:?.zip", "abc:*b", ":?", "a:", "a: ; "}) {
    EXPECT_FALSE(matches(both)) << both;
  }
}

TEST(DosPath, APatternOfManyStarsEndsSoon) {
  std::string pattern;
  for (int count = 0; count < 200; ++count) pattern += "*a";
  EXPECT_FALSE(MatchesPattern(std::string(20000, 'a') + "b", pattern));
}

}  // namespace
}  // namespace zarvo
