// Opening, saving and loading layouts.
#include "layouts/layout_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(LayoutWindowTest, OpensWithWhatTheFilesHold) {
  GivenFiles(kTwoLayouts, Ini(0, 1, "Night"));
  const LayoutManager& manager = Open();
  EXPECT_EQ(manager.Caption(), "Zarvo - Layouts Manager");
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout), ElementsAre("Evening", "Night"));
  EXPECT_THAT(ItemsOf(*manager.cboListaLayout2), ElementsAre("Evening", "Night"));
  EXPECT_EQ(manager.cboListaLayout->Text(), "Evening");
  EXPECT_EQ(manager.cboListaLayout2->Text(), "Night");
  EXPECT_EQ(manager.chkAlwaysOnTop->Value(), 0);
  EXPECT_EQ(manager.chkEnableAutoload->Value(), 1);
  EXPECT_TRUE(manager.cboListaLayout2->Enabled());
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("MAME", "RAINE"));
  EXPECT_THAT(ItemsOf(*manager.lstEmulatoriSize), ElementsAre("Large", "Small"));
}

TEST_F(LayoutWindowTest, AnOpeningThatBreaksOffKeepsWhatItHas) {
  const LayoutManager& empty = Open();
  EXPECT_EQ(empty.cboListaLayout->ListCount(), 0);
  EXPECT_FALSE(empty.cboListaLayout2->Enabled());

  drive_.Write(R"(C:\Zarvo\layouts.dat)", kTwoLayouts);
  const LayoutManager& without_ini = Open();
  EXPECT_EQ(without_ini.cboListaLayout->ListCount(), 2);
  EXPECT_EQ(without_ini.cboListaLayout->ListIndex(), -1);

  GivenFiles(kTwoLayouts, Ini(1, 1, "Gone"));
  const LayoutManager& stale = Open();
  EXPECT_EQ(stale.chkAlwaysOnTop->Value(), 1);
  EXPECT_EQ(stale.chkEnableAutoload->Value(), 1);
  EXPECT_EQ(stale.cboListaLayout->ListIndex(), -1);

  GivenFiles(kTwoLayouts, Ini(0, 1, ""));
  const LayoutManager& no_default = Open();
  EXPECT_EQ(no_default.chkEnableAutoload->Value(), 0);
  EXPECT_FALSE(no_default.cboListaLayout2->Enabled());
  EXPECT_EQ(no_default.cboListaLayout2->ListIndex(), -1);
  EXPECT_EQ(no_default.cboListaLayout->Text(), "Evening");
}

TEST_F(LayoutWindowTest, APanelOfNoKnownSizeStandsWithoutOne) {
  GivenFiles("[A]\r\nMAIN,1,2\r\nMAME,1,2,6345,7000\r\nM72,1,2,6345,4620\r\n-\r\n", Ini(0, 0, ""));
  const LayoutManager& manager = Open();
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("MAME", "M72"));
  EXPECT_THAT(ItemsOf(*manager.lstEmulatoriSize), ElementsAre("Medium"));
}

TEST_F(LayoutWindowTest, SaveTakesTheWindowsAsTheyStand) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  sections_.main = {.left = -15, .top = 401};
  sections_.Stand(Emulator::kM72, {.left = 8, .top = 7, .width = 6345, .height = 4620});
  sections_.Stand(Emulator::kCallus, {.left = 2, .top = 1, .width = 2415, .height = 4620});
  manager.cmdSaveLayout->click();
  EXPECT_EQ(Layouts(),
            "[Evening]\r\nMAIN,401,-15\r\nCALLUS,1,2,2415,4620\r\nM72,7,8,6345,4620\r\n-\r\n"
            "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n");
  EXPECT_THAT(ItemsOf(*manager.lstEmulatori), ElementsAre("CALLUS", "M72"));
  EXPECT_THAT(ItemsOf(*manager.lstEmulatoriSize), ElementsAre("Small", "Medium"));
}

TEST_F(LayoutWindowTest, LoadClosesAllPanelsAndOpensThoseOfTheLayout) {
  GivenFiles("[A]\r\nMAIN,7,8\r\nMAME,1,2,6345,7260\r\nGHOST,1,2,3,4\r\nM72,5,6,6345,4620\r\n-\r\n",
             Ini(0, 0, ""));
  LayoutManager& manager = Open();
  sections_.Stand(Emulator::kRaine, {});
  sections_.without_data_file = {Emulator::kMame};
  manager.cmdLoadLayout->click();
  EXPECT_THAT(sections_.told, ElementsAre("close all", "main", "open MAME", "open M72"));
  EXPECT_EQ(sections_.main, (TwipRect{.left = 8, .top = 7}));
  EXPECT_THAT(sections_.places,
              ElementsAre(std::pair(Emulator::kM72,
                                    TwipRect{.left = 6, .top = 5, .width = 6345, .height = 4620})));
  EXPECT_FALSE(manager.IsUnloaded());
}

TEST_F(LayoutWindowTest, ADamagedLayoutIsToldAndClosesNothing) {
  GivenFiles("[A]\r\nMAIN,7,8\r\nMAME,1,2,many,7260\r\n-\r\n", Ini(0, 0, ""));
  LayoutManager& manager = Open();
  manager.cmdLoadLayout->click();
  EXPECT_THAT(Warnings(), ElementsAre(R"(layouts.dat: the layout "A" is damaged)"));
  EXPECT_THAT(sections_.told, IsEmpty());
}

// A main window and a panel that stand on the screen.
class RealWindows : public RecordingSections {
 public:
  explicit RealWindows(AppState& app) : RecordingSections(app), app_(app) {
    main_window_.ShowModeless();
  }

  void OpenSection(const EmulatorProfile& profile) override {
    app_.ShowWord(profile.emulator) = "SI";
    panel = std::make_unique<Window>(WindowFrame::kNone, "frmMame");
    panel->ShowModeless();
  }
  void CloseOpenPanels() override {
    app_.ShowWord(Emulator::kMame) = "NO";
    panel.reset();
  }
  [[nodiscard]] std::optional<TwipRect> PanelPlace(Emulator) const override {
    return TwipRect{panel->Left(), panel->Top(), panel->Width(), panel->Height()};
  }
  void SetPanelPlace(Emulator, const TwipRect& place) override {
    panel->SetTop(place.top);
    panel->SetLeft(place.left);
    panel->SetWidth(place.width);
    panel->SetHeight(place.height);
  }
  [[nodiscard]] int MainLeft() const override { return main_window_.Left(); }
  [[nodiscard]] int MainTop() const override { return main_window_.Top(); }
  void SetMainPlace(int top, int left) override {
    main_window_.SetTop(top);
    main_window_.SetLeft(left);
  }

  std::unique_ptr<Window> panel;

 private:
  AppState& app_;
  Window main_window_{WindowFrame::kNone, "frmMain"};
};

TEST_F(LayoutWindowTest, PlacesComeBackToTheTwipAfterAHundredRounds) {
  GivenFiles("[A]\r\nMAIN,407,501\r\nMAME,-8,1237,2415,4627\r\n-\r\n", Ini(0, 0, ""));
  RealWindows windows(app_);
  LayoutManager manager({files_, app_, boxes_, windows, windows});
  for (int round = 0; round < 100; ++round) {
    manager.cmdLoadLayout->click();
    QApplication::processEvents();
    manager.cmdSaveLayout->click();
  }
  EXPECT_EQ(Layouts(), "[A]\r\nMAIN,407,501\r\nMAME,-8,1237,2415,4627\r\n-\r\n");
}

TEST_F(LayoutWindowTest, CloseAloneWritesTheSettings) {
  GivenFiles(kTwoLayouts, Ini(0, 0, ""));
  LayoutManager& manager = Open();
  manager.chkAlwaysOnTop->SetValue(1);
  manager.chkEnableAutoload->SetValue(1);
  manager.cboListaLayout2->SetListIndex(1);
  PressKey(manager.chkEnableAutoload, Qt::Key_Escape);
  EXPECT_TRUE(manager.IsUnloaded());
  EXPECT_EQ(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), Ini(0, 0, ""));
  manager.cmdOk->click();
  const LayoutManager& again = Open();
  EXPECT_EQ(again.chkAlwaysOnTop->Value(), 1);
  EXPECT_EQ(again.chkEnableAutoload->Value(), 1);
  EXPECT_EQ(again.cboListaLayout2->Text(), "Night");
}

TEST_F(LayoutWindowTest, AWindowBeyondTheNumbersOfTheFileIsKeptAtTheirEnd) {
  GivenFiles("[A]\r\n-\r\n", Ini(0, 0, ""));
  LayoutManager& manager = Open();
  sections_.main = {.left = 45000, .top = 10};
  manager.cmdSaveLayout->click();
  EXPECT_EQ(Layouts(), "[A]\r\nMAIN,10,32767\r\n-\r\n");
}

struct AutoloadCase {
  const char* what;
  std::string ini;
  std::vector<std::string> told;
  TwipRect main;
};

TEST_F(LayoutWindowTest, TheAutoloadAppliesTheLayoutOfTheStart) {
  const TwipRect unmoved{.left = 500, .top = 400};
  const AutoloadCase cases[] = {
      {"switched off", Ini(0, 0, "Night"), {}, unmoved},
      {"no default", Ini(0, 1, ""), {}, unmoved},
      {"a name that is gone", Ini(0, 1, "Gone"), {}, unmoved},
      {"no keys", "nothing", {}, unmoved},
      {"on", Ini(0, 1, "Night"), {"main", "open M72"}, {.left = 2, .top = 1}},
      {"damaged", Ini(0, 1, "Torn"), {"main"}, {.left = 9, .top = 8}},
  };
  for (const AutoloadCase& at : cases) {
    GivenFiles(std::string(kTwoLayouts) + "[Torn]\r\nMAIN,8,9\r\nM72,1,2,3,99999\r\n-\r\n", at.ini);
    RecordingSections sections(app_);
    AutoloadLayout({files_, app_, boxes_, sections, sections});
    EXPECT_EQ(sections.told, at.told) << at.what;
    EXPECT_EQ(sections.main, at.main) << at.what;
    sections.CloseOpenPanels();
  }
}

}  // namespace
}  // namespace zarvo
