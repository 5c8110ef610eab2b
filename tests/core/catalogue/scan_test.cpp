#include "core/catalogue/catalogue.h"
#include "core/catalogue/catalogue_fixture.h"
#include "core/platform/in_brief.h"
#include "fakes/emulators.h"

namespace zarvo {
namespace {

class Scan : public CatalogueTest {
 protected:
  // The number found, or -1 if the scan failed, and the scan file.
  std::string Run(SetType sets, const DosPath& folder = R"(C:\Roms)",
                  const Emulator& emulator = kMame) {
    const auto outcome = Catalogue(files_, folders_, emulator).Scan(folder, sets);
    written_ = outcome && outcome->written;
    return std::to_string(outcome ? outcome->found : -1) + " " +
           files_.BytesOf(R"(C:\Zarvo\cfg\)" + emulator.ScanFile().Text());
  }
  void PutRoms(const std::vector<std::string>& names) {
    for (const std::string& name : names) files_.Put(R"(C:\Roms\)" + name, "zip");
  }

  bool written_ = false;
};

TEST_F(Scan, MergedSetsLookForTheParent) {
  const std::string games =
      "Clone A;clonea;C;parent;\r\n"
      "Clone B;cloneb;C;parent;\r\n"
      "Lonely;lonely;C;away;\r\n"  // its own archive is there, its parent's isn't
      "Neo;neo;C;neogeo;\r\n"
      "Neo X;neo;X;neogeo;\r\n"
      "Neos;neos;C;neogeos;\r\n"  // not exactly "neogeo": the parent is looked for
      "Parent;parent;O;-;\r\n"
      "Unknown;parent;X;parent;\r\n"  // neither original nor clone
      "Words;parent;Orig;-;\r\n"      // the field counts whole
      "No semicolon\r\nName only;\r\nRom;parent;\r\nOpen;parent;C;\r\n";
  PutData(Header() + games);
  files_.Put(R"(C:\Zarvo\Data\Raine.dat)", games);
  PutRoms({"parent.zip", "lonely.zip", "neo.zip", "neos.zip"});
  EXPECT_EQ(Run(SetType::kMerged),
            Bytes("5 'Clone A;Y'|'Clone B;Y'|'Lonely;N'|'Neo;Y'|'Neo X;Y'|'Neos;N'|'Parent;Y'|"
                  "'Open;N'|"));
  EXPECT_EQ(files_.folders_listed, 1);
  EXPECT_EQ(files_.CurrentFolder(), R"(c:\roms)");
  const std::string split = Bytes(
      "9 'Clone A;N'|'Clone B;N'|'Lonely;Y'|'Neo;Y'|'Neo X;Y'|'Neos;Y'|'Parent;Y'|'Unknown;Y'|"
      "'Words;Y'|'Name only;N'|'Rom;Y'|'Open;Y'|");
  EXPECT_EQ(Run(SetType::kSplit), split);
  EXPECT_EQ(Run(SetType::kMerged, R"(C:\Roms)", kRaine), split) << "only MAME merges";
}

TEST_F(Scan, OnlyAPlainFileInAnyCaseIsARom) {
  PutData("A;puckman;\r\nB;folder;\r\nC;loose;\r\nD;CAF\xC9;\r\n");
  PutRoms({"PuckMan.ZIP", "loose", R"(deeper\loose.zip)", "caf\xE9.zip"});
  files_.PutFolder(R"(C:\Roms\folder.zip)");
  EXPECT_EQ(Run(SetType::kSplit), Bytes("2 'A;Y'|'B;N'|'C;N'|'D;Y'|"));
}

TEST_F(Scan, NamesThatLeadElsewhereAreNotFound) {
  PutData(Bytes(R"(A;..\secret;O;-;|B;sub\rom;O;-;|C;C:rom;O;-;|D;*;O;-;|E;;O;-;|F;ro m;O;-;|)") +
          R"(G;c;C;..\secret;)");
  files_.Put(R"(C:\secret.zip)", "");
  PutRoms({R"(sub\rom.zip)", "rom.zip", "ro m.zip", ".zip", "c.zip"});
  EXPECT_EQ(Run(SetType::kMerged), Bytes("0 'A;N'|'B;N'|'C;N'|'D;N'|'E;N'|'F;N'|'G;N'|"));
}

TEST_F(Scan, AFolderThatCantBeEnteredIsLookedForInCfg) {
  PutData("A;a;\r\nB;b;\r\n");
  files_.Put(R"(C:\Zarvo\cfg\b.zip)", "");
  for (const auto* folder : {"", R"(C:\Gone)", R"(D:\Gone)", R"(Q:\Roms)"}) {
    EXPECT_EQ(Run(SetType::kSplit, DosPath(folder)), Bytes("1 'A;N'|'B;Y'|")) << folder;
  }
}

TEST_F(Scan, AFileThatCantBeReadOrWrittenLeavesTheOldAnswers) {
  PutScan("old");
  EXPECT_EQ(Run(SetType::kSplit), "-1 old") << "no data file";
  PutData("A;a;\r\nB;b;\r\n");
  PutRoms({"a.zip"});
  files_.fail_writes = true;
  EXPECT_EQ(Run(SetType::kSplit), "1 old") << "the count isn't spoilt";
  EXPECT_FALSE(written_);
  files_.fail_writes = false;
  files_.breaks_off = "Mame.dat";
  EXPECT_EQ(Run(SetType::kSplit), "-1 old");
}

}  // namespace
}  // namespace zarvo
