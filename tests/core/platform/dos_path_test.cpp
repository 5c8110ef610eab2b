#include "core/platform/dos_path.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <type_traits>

namespace zarvo {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(DosPathTest, IsPutTogetherAndTakenApart) {
  const std::pair<DosPath, const char*> folders[] = {
      {"C:\\", "C:\\a"}, {"C:\\Emu", "C:\\Emu\\a"}, {"C:", "C:\\a"}, {"", "a"}};
  for (const auto& [folder, path] : folders) EXPECT_EQ((folder / "a").Text(), path);
  const std::array<std::string, 3> cases[] = {
      {"C:\\Emu\\Mame.exe", "C:\\Emu", "Mame.exe"},
      {"C:\\Mame.exe", "C:\\", "Mame.exe"},
      {"\\Mame.exe", "\\", "Mame.exe"},
      {"Emu\\Mame.exe", "Emu", "Mame.exe"},
      {"Mame.exe", "", "Mame.exe"},
      {"C:\\Emu\\", "C:\\Emu", ""},
      {"", "", ""},
  };
  for (const auto& [path, folder, name] : cases) {
    EXPECT_EQ(DosPath(path).Folder().Text(), folder) << path;
    EXPECT_EQ(DosPath(path).Name(), name) << path;
  }
}

TEST(DosPathTest, ADriveIsALetterAndAColon) {
  EXPECT_EQ(DosPath("c:\\emu").Drive(), 'C');
  EXPECT_EQ(DosPath("Z:").Drive(), 'Z');
  for (const std::string path : {"", "C", "\\C:", "1:\\", "[:", "\xE9:\\"}) {
    EXPECT_EQ(DosPath(path).Drive(), 0) << path;
  }
}

TEST(DosPathTest, ComponentsNeverClimbAboveTheRoot) {
  const auto parts = [](const DosPath& path) { return path.Components(); };
  EXPECT_THAT(parts("C:\\Emu\\\\Mame\\.\\roms\\"), ElementsAre("Emu", "Mame", "roms"));
  EXPECT_THAT(parts("Emu/Mame"), ElementsAre("Emu", "Mame"));
  EXPECT_THAT(parts("C:\\Emu\\..\\Zarvo"), ElementsAre("Zarvo"));
  EXPECT_THAT(parts("C:\\..\\..\\etc\\..\\..\\a"), ElementsAre("a"));
  EXPECT_THAT(parts("C:\\..\\/..\\"), IsEmpty());
  EXPECT_THAT(parts("...\\.. "), ElementsAre("...", ".. "));
}

// A path of DOS, one of the host and a bare name are never taken for each other.
TEST(DosPathTest, TheKindsOfPathsStayApart) {
  using Host = std::filesystem::path;
  static_assert(!std::is_convertible_v<Host, DosPath> && !std::is_convertible_v<DosPath, Host>);
  static_assert(!std::is_convertible_v<std::string, DosPath>);
  static_assert(!std::is_convertible_v<std::string, FileName>);
  static_assert(!std::is_convertible_v<DosPath, FileName>);
  static_assert(!std::is_convertible_v<DosPath, std::string>);
  for (const std::string name : {"a.zip", "My game (set 1).zip", "\xC9lan", ".."}) {
    EXPECT_TRUE(FileName::Of(name)) << name;
  }
  for (const std::string name :
       {"", "a\\b", "a/b", "C:a", "a*", "a?", "a\"", "<", ">", "|", "\n"}) {
    EXPECT_FALSE(FileName::Of(name)) << name;
    EXPECT_FALSE(FileName::Plain(name)) << name;
  }
  EXPECT_FALSE(FileName::Plain(".."));
  EXPECT_EQ(FileName::Plain("sf2")->With(".zip").Text(), "sf2.zip");
}

TEST(DosPathTest, KnowsWhatDosCanName) {
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

TEST(DosPathTest, KnowsNamesThatCannotLeadElsewhere) {
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

TEST(DosPathTest, PatternsMatchAsInAFileList) {
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

TEST(DosPathTest, APatternOfManyStarsEndsSoon) {
  std::string pattern;
  for (int count = 0; count < 200; ++count) pattern += "*a";
  EXPECT_FALSE(MatchesPattern(std::string(20000, 'a') + "b", pattern));
}

}  // namespace
}  // namespace zarvo
