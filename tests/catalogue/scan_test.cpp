#include "catalogue/scan.h"

#include "catalogue/catalogue_fixture.h"

namespace zarvo {
namespace {

constexpr std::string_view kScanFile = R"(C:\Zarvo\cfg\Mame.scn)";

class Scan : public CatalogueTest {
 protected:
  // The number found, or -1 if the scan failed.
  int Run(SetType sets, std::string_view folder = R"(C:\Roms)") {
    const auto outcome = ScanRoms(files_, app_, mame_, folder, sets);
    return outcome ? outcome->found : -1;
  }
  void PutRom(std::string_view name) { files_.Put(R"(C:\Roms\)" + std::string(name), "zip"); }
};

TEST_F(Scan, MergedSetsLookForTheParent) {
  PutData(Header() +                      //
          "Clone A;clonea;C;parent;\r\n"  //
          "Clone B;cloneb;C;parent;\r\n"  //
          "Lonely;lonely;C;away;\r\n"     // its own archive is there, its parent's isn't
          "Neo;neo;C;neogeo;\r\n"         //
          "Neo X;neo;X;neogeo;\r\n"       //
          "Neos;neos;C;neogeos;\r\n"      // not exactly "neogeo": the parent is looked for
          "Parent;parent;O;-;\r\n"        //
          "Unknown;parent;X;parent;\r\n"  // neither original nor clone
          "Words;parent;Orig;-;\r\n");    // the field counts whole
  for (const auto* name : {"parent.zip", "lonely.zip", "neo.zip", "neos.zip"}) PutRom(name);

  EXPECT_EQ(Run(SetType::kMerged), 5);
  EXPECT_EQ(files_.BytesOf(kScanFile),
            "\"Clone A;Y\"\r\n\"Clone B;Y\"\r\n\"Lonely;N\"\r\n\"Neo;Y\"\r\n\"Neo X;Y\"\r\n"
            "\"Neos;N\"\r\n\"Parent;Y\"\r\n");

  EXPECT_EQ(Run(SetType::kSplit), 7);
  EXPECT_EQ(files_.BytesOf(kScanFile),
            "\"Clone A;N\"\r\n\"Clone B;N\"\r\n\"Lonely;Y\"\r\n\"Neo;Y\"\r\n\"Neo X;Y\"\r\n"
            "\"Neos;Y\"\r\n\"Parent;Y\"\r\n\"Unknown;Y\"\r\n\"Words;Y\"\r\n");
}

TEST_F(Scan, OnlyMameKnowsMergedSets) {
  files_.Put(R"(C:\Zarvo\Data\Raine.dat)", "Clone;clone;C;parent;\r\n");
  PutRom("parent.zip");
  const auto outcome =
      ScanRoms(files_, app_, ProfileOf(Emulator::kRaine), R"(C:\Roms)", SetType::kMerged);
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->found, 0);
  EXPECT_EQ(files_.BytesOf(R"(C:\Zarvo\cfg\Raine.scn)"), "\"Clone;N\"\r\n");
}

TEST_F(Scan, OnlyAPlainFileInAnyCaseIsARom) {
  PutData("A;puckman;\r\nB;folder;\r\nC;loose;\r\nD;CAF\xC9;\r\n");
  PutRom("PuckMan.ZIP");
  files_.PutFolder(R"(C:\Roms\folder.zip)");
  PutRom("loose");
  PutRom(R"(deeper\loose.zip)");
  PutRom("caf\xE9.zip");
  EXPECT_EQ(Run(SetType::kSplit), 2);
  EXPECT_EQ(files_.BytesOf(kScanFile), "\"A;Y\"\r\n\"B;N\"\r\n\"C;N\"\r\n\"D;Y\"\r\n");
}

TEST_F(Scan, LooksThroughTheFolderOnceForAllGames) {
  std::string bytes;
  for (int game = 0; game < 40000; ++game) {
    const std::string number = std::to_string(game);
    bytes.append("Game ").append(number).append(";g").append(number).append(";O;-;\n");
  }
  PutData(bytes);
  PutRom("g0.zip");
  PutRom("g39999.zip");
  EXPECT_EQ(Run(SetType::kMerged), 2);
  EXPECT_EQ(files_.folders_listed, 1);
}

TEST_F(Scan, NamesThatLeadElsewhereAreNotFound) {
  const std::string tail = ";O;-;\r\n";
  PutData(R"(A;..\secret)" + tail + R"(B;sub\rom)" + tail + "C;C:rom" + tail + "D;*" + tail + "E;" +
          tail + "F;ro m" + tail + "G;c;C;..\\secret;\r\n");
  files_.Put(R"(C:\secret.zip)", "");
  for (const auto* name : {R"(sub\rom.zip)", "rom.zip", "ro m.zip", ".zip", "c.zip"}) PutRom(name);
  EXPECT_EQ(Run(SetType::kMerged), 0);
}

TEST_F(Scan, ShortRecordsGetALineWithWhatTheyHave) {
  PutData("No semicolon\r\nName only;\r\nRom;rom;\r\nOriginal;rom;O;\r\nClone;rom;C;\r\n");
  PutRom("rom.zip");
  EXPECT_EQ(Run(SetType::kSplit), 3);
  EXPECT_EQ(files_.BytesOf(kScanFile),
            "\"Name only;N\"\r\n\"Rom;Y\"\r\n\"Original;Y\"\r\n\"Clone;Y\"\r\n");
  EXPECT_EQ(Run(SetType::kMerged), 1);
  EXPECT_EQ(files_.BytesOf(kScanFile), "\"Original;Y\"\r\n\"Clone;N\"\r\n");
}

TEST_F(Scan, AFolderThatCantBeEnteredIsLookedForInCfg) {
  PutData("A;a;\r\nB;b;\r\n");
  files_.Put(R"(C:\Zarvo\cfg\b.zip)", "");
  for (const auto* folder : {"", R"(C:\Gone)", R"(Q:\Roms)"}) {
    EXPECT_EQ(Run(SetType::kSplit, folder), 1) << folder;
  }
  EXPECT_EQ(files_.BytesOf(kScanFile), "\"A;N\"\r\n\"B;Y\"\r\n");
}

TEST_F(Scan, AScanFileThatCantBeWrittenDoesntSpoilTheCount) {
  PutData("A;a;\r\n");
  PutScan("old");
  PutRom("a.zip");
  files_.fail_writes = true;
  const auto outcome = ScanRoms(files_, app_, mame_, R"(C:\Roms)", SetType::kSplit);
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->found, 1);
  EXPECT_FALSE(outcome->written);
  EXPECT_EQ(files_.BytesOf(kScanFile), "old");
}

TEST_F(Scan, WithoutAWholeDataFileTheOldAnswersStay) {
  PutScan("old");
  EXPECT_EQ(Run(SetType::kSplit), -1);
  EXPECT_EQ(files_.BytesOf(kScanFile), "old");
  PutData("A;a;\r\nB;b;\r\n");
  files_.break_off_reads = true;
  EXPECT_EQ(Run(SetType::kSplit), -1);
  EXPECT_EQ(files_.BytesOf(kScanFile), "old");
}

TEST_F(Scan, LeavesTheRomFolderCurrent) {
  PutData("A;a;\r\n");
  PutRom("a.zip");
  EXPECT_EQ(Run(SetType::kSplit), 1);
  EXPECT_EQ(files_.CurrentFolder(), R"(c:\roms)");
}

}  // namespace
}  // namespace zarvo
