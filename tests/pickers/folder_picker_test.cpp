#include "pickers/folder_picker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/key_press.h"
#include "fakes/temp_drive.h"
#include "pickers/recording_panels.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FolderPickerTest : public testing::Test {
 protected:
  FolderPickerTest() {
    drive_.Write(R"(C:\Zarvo\one.zip)", "");
    drive_.Write(R"(C:\Zarvo\Two.ZIP)", "");
    drive_.Write(R"(C:\Zarvo\readme.txt)", "");
    drive_.Write(R"(C:\Emu\Mame\puckman.zip)", "");
    drive_.Write(R"(C:\Emu\Mame\screen.gif)", "");
  }

  TempDrive drive_;
  RecordingPanels panels_;
};

TEST_F(FolderPickerTest, StartsWithTheArchivesOfTheCurrentFolder) {
  const FolderPicker picker(drive_.files(), panels_);
  EXPECT_EQ(picker.Caption(), "Choose Directory");
  EXPECT_EQ(picker.drvSelDir->Drive(), 'C');
  EXPECT_EQ(picker.dirSelDir->Path(), R"(C:\Zarvo)");
  EXPECT_EQ(picker.txtPattern->Text(), "*.zip");
  EXPECT_EQ(picker.filSelDir->ListCount(), 2);
  EXPECT_EQ(picker.lblCount->Caption(), "2");
  EXPECT_EQ(picker.lblCount->ToolTipText(), "# of zip-file in this directory");
}

TEST_F(FolderPickerTest, FilesAndCountFollowFolderAndPattern) {
  FolderPicker picker(drive_.files(), panels_);
  EXPECT_TRUE(picker.OpenAt('c', R"(C:\Emu\Mame)"));
  EXPECT_EQ(picker.filSelDir->Path(), R"(C:\Emu\Mame)");
  EXPECT_EQ(picker.lblCount->Caption(), "1");
  picker.SetPattern("*.gif");
  EXPECT_EQ(picker.txtPattern->Text(), "*.gif");
  EXPECT_EQ(picker.filSelDir->Items().At(0), "screen.gif");
  ASSERT_TRUE(picker.dirSelDir->SetPath(R"(C:\Emu)").ok());
  EXPECT_EQ(picker.lblCount->Caption(), "0");
}

TEST_F(FolderPickerTest, FallsBackToTheCurrentFolder) {
  FolderPicker picker(drive_.files(), panels_);
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
  EXPECT_FALSE(picker.OpenAt('C', R"(C:\Emu\Gone)"));
  EXPECT_EQ(picker.dirSelDir->Path(), R"(C:\Zarvo)");
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
  EXPECT_FALSE(picker.OpenAt('Q', R"(C:\Emu\Mame)")) << "there is no drive Q";
  EXPECT_EQ(picker.dirSelDir->Path(), R"(C:\Zarvo)");
  EXPECT_EQ(picker.lblCount->Caption(), "2");
}

TEST_F(FolderPickerTest, DriveAndFolderFollowOneAnother) {
  DosWorld two_drives({{'C', drive_.root().string()}, {'D', (drive_.root() / "Emu").string()}});
  FolderPicker picker(two_drives, panels_);
  ASSERT_TRUE(picker.drvSelDir->SetDrive('D').ok());
  EXPECT_EQ(picker.dirSelDir->Path(), R"(D:\)");
  EXPECT_TRUE(picker.OpenAt(0, R"(C:\Zarvo)"));
  EXPECT_EQ(picker.drvSelDir->Drive(), 'C');
  EXPECT_EQ(picker.dirSelDir->Path(), R"(C:\Zarvo)");
  EXPECT_TRUE(picker.OpenAt('D', R"(D:\Mame)"));
  EXPECT_EQ(picker.dirSelDir->Path(), R"(D:\Mame)");
  EXPECT_EQ(picker.lblCount->Caption(), "1");
}

TEST_F(FolderPickerTest, ADriveThatIsNotReadyGoesBack) {
  DosWorld world({{'C', drive_.root().string()}, {'E', (drive_.root() / "gone").string()}});
  FolderPicker picker(world, panels_);
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu\Mame)"));
  drive_.Write(R"(C:\Emu\Mame\new.zip)", "");
  Ignore(picker.drvSelDir->SetDrive('E'));
  EXPECT_EQ(picker.drvSelDir->Drive(), 'C');
  EXPECT_EQ(picker.dirSelDir->Path(), R"(C:\Emu\Mame)");
  EXPECT_EQ(picker.filSelDir->ListCount(), 2) << "the files are looked up again";
  EXPECT_EQ(picker.lblCount->Caption(), "2");
}

struct WordCase {
  const char* word;
  const char* written;
  const char* saved;
};

void PrintTo(const WordCase& word, std::ostream* out) { *out << word.word; }

class FolderWords : public FolderPickerTest, public testing::WithParamInterface<WordCase> {};

TEST_P(FolderWords, SelectWritesTheControlOfTheWordAndSaves) {
  FolderPicker picker(drive_.files(), panels_);
  picker.lblSelDirHide = GetParam().word;
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
  picker.cmdSeleziona->click();
  EXPECT_THAT(panels_.told, ElementsAre(GetParam().written, GetParam().saved));
  EXPECT_TRUE(picker.IsUnloaded());
}

INSTANTIATE_TEST_SUITE_P(
    All, FolderWords,
    testing::Values(WordCase{"MAMEROM", R"(rom Mame C:\Emu)", "save Mame"},
                    WordCase{"MAMESNAP", R"(snap Mame C:\Emu)", "save Mame"},
                    WordCase{"MAMESETTINGS", R"(game Mame C:\Emu)", "save Mame"},
                    WordCase{"CALLUSROM", R"(rom Callus C:\Emu)", "save Callus"},
                    WordCase{"RAINESNAP", R"(snap Raine C:\Emu)", "save Raine"},
                    WordCase{"SYSTEM16SETTINGS", R"(game System16 C:\Emu)", "save System16"},
                    WordCase{"M72ROM", R"(rom M72 C:\Emu)", "save M72"}),
    [](const auto& named) { return std::string(named.param.word); });

TEST_F(FolderPickerTest, CancelEscapeAndCloseChangeNothing) {
  for (const char* way : {"button", "Enter on the button", "Escape", "title bar"}) {
    FolderPicker picker(drive_.files(), panels_);
    picker.lblSelDirHide = "MAMEROM";
    picker.ShowModeless();
    if (way == std::string("button")) picker.cmdCancel->click();
    if (way == std::string("Escape")) PressKey(picker.filSelDir, Qt::Key_Escape);
    if (way == std::string("Enter on the button")) PressKey(picker.cmdCancel, Qt::Key_Return);
    if (way == std::string("title bar")) picker.close();
    EXPECT_TRUE(picker.IsUnloaded()) << way;
    EXPECT_THAT(panels_.told, IsEmpty()) << way;
  }
}

TEST_F(FolderPickerTest, EnterOpensTheHighlightedFolderAndThenSelectsIt) {
  FolderPicker picker(drive_.files(), panels_);
  picker.lblSelDirHide = "M72SNAP";
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
  picker.ShowModeless();
  const int last = picker.dirSelDir->ListCount() - 1;
  picker.dirSelDir->SetListIndex(last);
  PressKey(picker.dirSelDir, Qt::Key_Return);
  EXPECT_EQ(picker.dirSelDir->Path(), R"(C:\Emu\Mame)");
  EXPECT_FALSE(picker.IsUnloaded());
  PressKey(picker.dirSelDir, Qt::Key_Return);
  EXPECT_TRUE(picker.IsUnloaded());
  EXPECT_THAT(panels_.told, ElementsAre(R"(snap M72 C:\Emu\Mame)", "save M72"));
}

TEST_F(FolderPickerTest, ThePatternCannotBeTypedOver) {
  FolderPicker picker(drive_.files(), panels_);
  picker.ShowModeless();
  PressKey(picker.txtPattern, Qt::Key_X, QStringLiteral("x"));
  EXPECT_EQ(picker.txtPattern->Text(), "*.zip");
}

TEST_F(FolderPickerTest, ALongPathLosesItsMiddleNotItsEnd) {
  const std::string deep = R"(C:\Emu\)" + std::string(60, 'd') + R"(\roms)";
  drive_.MakeFolder(deep);
  FolderPicker picker(drive_.files(), panels_);
  ASSERT_TRUE(picker.OpenAt(0, deep));
  const auto labels = picker.findChildren<QWidget*>(QStringLiteral("lblPath"));
  ASSERT_EQ(labels.size(), 1);
  auto* path = dynamic_cast<Label*>(labels.front());
  ASSERT_NE(path, nullptr);
  EXPECT_THAT(path->Caption(),
              testing::AllOf(testing::StartsWith(R"(C:\Emu\d)"), testing::EndsWith(R"(d\roms)")));
  EXPECT_LT(path->Caption().size(), deep.size());
  EXPECT_EQ(path->ToolTipText(), deep);
}

}  // namespace
}  // namespace zarvo
