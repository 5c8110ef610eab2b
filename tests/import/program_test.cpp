// The built program, as a script sees it.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "fakes/temp_drive.h"
#include "import/import_fixture.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::MatchesRegex;

class ImportProgram : public testing::Test {
 protected:
  // Runs `zarvo-import` with the words of a shell's line and gives its exit status.
  int Run(const std::string& words, const std::string& before = "") {
    const std::string line = "cd " + folder_.string() + " && " + before + ZARVO_IMPORT_PROGRAM +
                             " " + words + " 2>errors.txt";
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  [[nodiscard]] std::string Said() const { return ReadBytes(folder_ / "errors.txt"); }
  [[nodiscard]] std::string Output() const { return ReadBytes(folder_ / "out.dat"); }
  [[nodiscard]] std::ptrdiff_t FileCount() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
  }

  TempDrive drive_;
  const fs::path folder_ = drive_.root() / "Emu";
  const std::string list_ = std::string(ZARVO_IMPORT_LISTS) + "/listxml.xml";
};

TEST_F(ImportProgram, WritesTheFileAndASummary) {
  ASSERT_EQ(Run("-o out.dat " + list_), 0) << Said();
  EXPECT_THAT(Output(), testing::StartsWith("*M.A.M.E.\r\n*Arcade\r\n*0.251\r\n"));
  EXPECT_THAT(Output(), testing::EndsWith("Namco;n/a;n/a;n/a;\r\n"));
  EXPECT_EQ(Said(),
            "       6 games of 12 entries in the list\n       3 originals\n       1 clones\n"
            "       2 Neo-Geo games\n       1 left out: BIOS sets\n       1 left out: devices\n"
            "       1 left out: mechanical machines\n       1 left out: sets that can't be run\n"
            "       1 left out: sets whose name is no file name\n"
            "       1 left out: sets listed twice\n");
  EXPECT_EQ(FileCount(), 2);
  const std::string file = Output();
  ASSERT_EQ(Run("--quiet < " + list_ + " > out.dat"), 0);
  EXPECT_EQ(Output(), file);
  EXPECT_EQ(Said(), "");
}

TEST_F(ImportProgram, ABrokenListLeavesTheOldFile) {
  std::ofstream(folder_ / "out.dat") << "old";
  std::ofstream(folder_ / "cut.xml") << TestList("listxml.xml").substr(0, 2000);
  EXPECT_EQ(Run("-o out.dat cut.xml"), 1);
  EXPECT_THAT(
      Said(),
      MatchesRegex(
          "zarvo-import: cut.xml, line [0-9]+, column [0-9]+: the list ends in the middle\n"));
  EXPECT_EQ(FileCount(), 3);
  EXPECT_EQ(Run("-o out.dat nothing.xml"), 1);
  EXPECT_THAT(Said(), HasSubstr("can't read nothing.xml"));
  EXPECT_EQ(Run("-o out.dat ."), 1);
  EXPECT_EQ(Output(), "old");
}

TEST_F(ImportProgram, StatusTellsWrongUseFromAFailedWrite) {
  EXPECT_EQ(Run("--nonsense"), 2);
  EXPECT_EQ(Run("-o nowhere/out.dat " + list_), 3);
  EXPECT_THAT(Said(), HasSubstr("can't write nowhere/out.dat: No such file"));
  EXPECT_EQ(Run("-o . " + list_), 3);
  std::ofstream(folder_ / "out.dat") << "old";
  std::ofstream(folder_ / "out.dat.tmp") << "half, of a run that was killed";
  EXPECT_EQ(Run("-o out.dat " + list_, "trap '' XFSZ; ulimit -f 1; "), 3);
  EXPECT_THAT(Said(), HasSubstr("can't write out.dat: File too large"));
  EXPECT_EQ(Output(), "old");
  EXPECT_EQ(FileCount(), 2) << "a temporary file stayed behind";
  EXPECT_EQ(Run(list_ + " > /dev/full"), 3);
  EXPECT_EQ(Run("--help > out.dat"), 0);
  EXPECT_THAT(Output(), testing::StartsWith("Usage: zarvo-import"));
  EXPECT_THAT(Output(), HasSubstr("\n  --makers FILE            take only"));
}

TEST_F(ImportProgram, ALinkAndADeviceStayWhatTheyAre) {
  std::ofstream(folder_ / "real.dat") << "old";
  fs::create_symlink("real.dat", folder_ / "out.dat");
  ASSERT_EQ(Run("-q -o out.dat " + list_), 0) << Said();
  EXPECT_TRUE(fs::is_symlink(folder_ / "out.dat"));
  EXPECT_THAT(Output(), testing::StartsWith("*M.A.M.E."));
  EXPECT_EQ(Run("-q -o /dev/null " + list_), 0);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace zarvo
