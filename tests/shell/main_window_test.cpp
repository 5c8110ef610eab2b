// The main window with real panels: start, ticker, hover, sections, end.
#include "shell/main_window.h"

#include <QTest>

#include "catalogue/data_file.h"
#include "panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() {
    app_.ProgramFolder = R"(C:\Zarvo)";
    PutHeader("one ");
    drive_.Write(R"(C:\Zarvo\cfg\Mame.cfg)", "\"C:\\a.exe\"\r\n");
  }
  ~MainWindowTest() override { EXPECT_TRUE(boxes_.shown.empty()) << "an unexpected box"; }

  void PutHeader(const std::string& word) {
    std::string text = "# comment\r\n\r\n";
    for (int line = 1; line <= 17; ++line) text += "*" + word + std::to_string(line) + "\r\n";
    drive_.Write(R"(C:\Zarvo\Data\Mame.dat)", text + Game("Aliens;aliens;O;-;x;y;1990"));
  }
  [[nodiscard]] std::string Facts() const {
    std::string all;
    for (const Label* const fact : main_.facts) all += (all.empty() ? "" : "|") + fact->Caption();
    return all;
  }
  static std::string Header(const std::string& word, int lines) {
    std::string all;
    for (int i = 1; i <= lines; ++i) all += (i > 1 ? "|" : "") + word + std::to_string(i);
    return all;
  }
  [[nodiscard]] std::string Look(const Label* label) const {
    return std::string(label->Style() == BackStyle::kOpaque ? "opaque " : "clear ") +
           std::to_string(label->BackColor().value) + " " +
           std::to_string(label->ForeColor().value);
  }
  Label* Selector(Emulator emulator) { return main_.selector[static_cast<std::size_t>(emulator)]; }

  TempDrive drive_;
  AppState app_;
  RecordedBoxes boxes_;
  std::vector<std::string> told_;
  std::function<void()> on_autoload_ = [] {};
  std::function<void()> font_is_loaded_;
  MainWindow main_{
      drive_.files(),
      app_,
      boxes_,
      [this](const EmulatorProfile& profile) { return ReadHeader(drive_.files(), app_, profile); },
      {.sections = [this]() -> SectionHost& { return sections_; },
       .show_layouts = [this] { told_.emplace_back("layouts"); },
       .show_about = [this] { told_.emplace_back("about"); },
       .autoload = [this] { on_autoload_(); },
       .end_program = [this] { told_.emplace_back("end"); },
       .load_font = [this](auto done) { font_is_loaded_ = std::move(done); }}};
  Sections sections_{drive_.files(),
                     app_,
                     boxes_,
                     main_,
                     [](std::string_view /*command_line*/) { return Success(); },
                     [] { return ClockTime{}; }};
};

TEST_F(MainWindowTest, StartsInItsOrder) {
  std::filesystem::remove_all(drive_.Host(R"(C:\Zarvo\cfg)"));
  std::filesystem::remove_all(drive_.Host(R"(C:\Zarvo\Data)"));
  int autoloads = 0;
  on_autoload_ = [&] {
    ++autoloads;
    EXPECT_TRUE(drive_.Exists(R"(C:\Zarvo\Cfg)") && drive_.Exists(R"(C:\Zarvo\Data)"));
    EXPECT_EQ(main_.Top(), 400);
    EXPECT_EQ(main_.Left(), 500);
    EXPECT_EQ(drive_.files().CurrentFolder(), R"(C:\Zarvo)");
    if (autoloads == 1) {
      EXPECT_EQ(main_.Timer1.Interval(), 0) << "the ticker starts last";
    }
  };
  bool folders_at_welcome = true;
  boxes_.on_show = [&] {
    folders_at_welcome = drive_.Exists(R"(C:\Zarvo\Data)");
    EXPECT_FALSE(main_.isVisible());
    EXPECT_EQ(main_.Caption(), "Zarvo v0.1");
    EXPECT_EQ(main_.lblVersion->Caption(), "v0.1");
  };
  main_.StartUp();
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(boxes_.shown[0].title, "Zarvo v0.1");
  EXPECT_EQ(boxes_.shown[0].text,
            "Welcome to Zarvo! Probably it's the first time you launch this program!\rPlease "
            "remember to put Data Files into the <data> directory!\rThe latest releases of these "
            "Data Files can be downloaded from http://zarvo.example/\rTake a look at Readme.txt "
            "for more info.");
  EXPECT_FALSE(folders_at_welcome);
  EXPECT_EQ(autoloads, 1);
  EXPECT_EQ(main_.Timer1.Interval(), 10000);
  EXPECT_EQ(app_.ProgramFolder, R"(C:\Zarvo)");
  EXPECT_EQ(Facts(), "Zarvo v0.1|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-");
  EXPECT_EQ(app_.lblHideEmuSelect, "HIDE");

  // A folder in Cfg is no file; a file is.
  drive_.MakeFolder(R"(C:\Zarvo\Cfg\folder)");
  main_.StartUp();
  EXPECT_EQ(boxes_.shown.size(), 2U);
  drive_.Write(R"(C:\Zarvo\Cfg\x)", "");
  main_.StartUp();
  EXPECT_EQ(boxes_.shown.size(), 2U);
  boxes_.shown.clear();
}

TEST_F(MainWindowTest, AppearsBeforeItsTextsCanBeDrawn) {
  main_.Appear();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main_));
  EXPECT_TRUE(main_.selector.front()->hasFocus());
  const auto drawn = [this](const QWidget* control) {
    return main_.grab().toImage().pixelColor(control->geometry().topLeft() + QPoint(1, 1)) ==
           kBluegrey.ToQt();
  };
  EXPECT_FALSE(drawn(main_.lblExit));
  QTest::mouseClick(main_.lblAbout, Qt::LeftButton);
  EXPECT_THAT(told_, ElementsAre("about"));

  font_is_loaded_();
  EXPECT_TRUE(drawn(main_.lblExit));
}

TEST_F(MainWindowTest, TheTickerTurnsInARing) {
  const char* const lines[] = {
      "What do you want to emulate today?",  "Official Home Page: http://zarvo.example/",
      "Thanks to all emu-developers!",       "Thanks to all rom-dumpers!",
      "Please support < Zarvo Project > !!", "---> The Definitive Multifrontend <---"};
  EXPECT_EQ(main_.lblMiscText->Caption(), lines[5]);
  EXPECT_EQ(main_.lblNumerillo, "1");
  for (int i = 0; i < 6; ++i) {
    main_.Timer1.Tick.Raise();
    EXPECT_EQ(main_.lblMiscText->Caption(), lines[i]);
    EXPECT_EQ(main_.lblNumerillo, std::to_string(i == 5 ? 1 : i + 2));
  }
}

TEST_F(MainWindowTest, TheEndAsksAndSavesWhatIsOpen) {
  main_.ShowModeless();
  ClickMouse(Selector(Emulator::kMame));
  EXPECT_EQ(app_.lblHideEmuSelect, "MAME");
  EXPECT_TRUE(sections_.Panel(Emulator::kMame).isVisible());
  const auto end = [&](BoxAnswer answer, bool by_desktop) {
    boxes_.answers = {answer};
    if (by_desktop) {
      main_.close();
    } else {
      ClickMouse(main_.lblExit);
    }
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].text, "Do you really want to quit ?");
    EXPECT_EQ(boxes_.shown[0].icon, BoxIcon::kExclamation);
    boxes_.shown.clear();
  };
  for (const bool by_desktop : {false, true}) {
    end(BoxAnswer::kNo, by_desktop);
    EXPECT_TRUE(main_.isVisible());
    EXPECT_THAT(told_, IsEmpty());
    EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\cfg\Mame.set)"));
  }
  end(BoxAnswer::kYes, true);
  EXPECT_THAT(told_, ElementsAre("end"));
  EXPECT_TRUE(drive_.Read(R"(C:\Zarvo\cfg\Mame.set)").starts_with("\"Aliens\","));
  EXPECT_TRUE(drive_.Read(R"(C:\Zarvo\cfg\Mame.cfg)").starts_with("\"C:\\a.exe\"\r\n\"C:\\Emu"));
  EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\zarvo.ini)"));
}

TEST_F(MainWindowTest, TheHoverReadsTheFactsAnewEachTime) {
  const std::string at_first = Facts();
  MoveMouse(Selector(Emulator::kRaine));  // no data file: only its colours
  EXPECT_EQ(Facts(), at_first);
  EXPECT_EQ(Look(Selector(Emulator::kRaine)), "opaque 9398111 16777215");
  MoveMouse(Selector(Emulator::kMame));
  EXPECT_EQ(Facts(), Header("one ", 17));
  EXPECT_EQ(Look(Selector(Emulator::kRaine)).substr(0, 5), "clear");
  EXPECT_EQ(Selector(Emulator::kRaine)->ForeColor().value, 13538452U);
  PutHeader("two ");
  MoveMouse(Selector(Emulator::kMame));
  EXPECT_EQ(Facts(), Header("two ", 17));
  MoveMouse(&main_);
  EXPECT_EQ(Facts(), Header("two ", 17)) << "they stay when the mouse leaves";

  drive_.Write(R"(C:\Zarvo\Data\Mame.dat)", "Game;first;\r\n*header\r\n");
  MoveMouse(Selector(Emulator::kMame));
  EXPECT_EQ(Facts(), Header("two ", 17));
  drive_.Write(R"(C:\Zarvo\Data\Mame.dat)", "\r\n*new 1\r\n#new 2\r\n\r\n");
  MoveMouse(Selector(Emulator::kMame));
  EXPECT_THAT(Facts(), testing::StartsWith("new 1|new 2||two 4|")) << "a cut header";
}

TEST_F(MainWindowTest, SelectorsAndCommandsShowTheMouse) {
  for (const EmulatorProfile& profile : Profiles()) {
    Label* const label = Selector(profile.emulator);
    PressMouse(label, {3, 3});
    EXPECT_EQ(label->ForeColor().value, 65535U);
    ReleaseMouse(label, {-50, -50});  // elsewhere: no click
    EXPECT_EQ(Look(label).substr(0, 5), "clear");
    EXPECT_EQ(label->ForeColor().value, 13538452U);
  }
  EXPECT_EQ(app_.lblHideEmuSelect, "HIDE");

  const std::string rest = "opaque 12551557 16777215";
  const std::string lit = "opaque 9398111 65535";
  for (Label* const command : {main_.lblExit, main_.lblLays, main_.lblAbout}) {
    EXPECT_EQ(Look(command), rest);
    for (QWidget* const reset : std::initializer_list<QWidget*>{&main_, main_.imgZarvo}) {
      MoveMouse(command);
      EXPECT_EQ(Look(command), lit);
      MoveMouse(reset);
      EXPECT_EQ(Look(command), rest);
    }
    MoveMouse(command);
    ReleaseMouse(command, {3, 3});
    EXPECT_EQ(Look(command), rest);
  }
  MoveMouse(main_.lblLays);
  MoveMouse(main_.lblAbout);
  EXPECT_EQ(Look(main_.lblLays), rest);
  MoveMouse(main_.lblLays);
  EXPECT_EQ(Look(main_.lblAbout), rest);
  main_.ResetCommands();
  EXPECT_EQ(Look(main_.lblLays), rest);
  ClickMouse(main_.lblLays);
  PressKey(main_.lblAbout, Qt::Key_Space);
  EXPECT_THAT(told_, ElementsAre("layouts", "about"));

  const auto opaque_after = [&](QWidget* over) {
    std::string still;
    for (const EmulatorProfile& profile : Profiles()) {
      MoveMouse(Selector(profile.emulator));
      MoveMouse(over);
      const bool opaque = Selector(profile.emulator)->Style() == BackStyle::kOpaque;
      if (opaque) still += std::string(profile.word) + " ";
    }
    return still;
  };
  EXPECT_EQ(opaque_after(&main_), "");
  EXPECT_EQ(opaque_after(main_.Image4), "Raine System16 M72 ");
  EXPECT_EQ(opaque_after(main_.lblNeoRageX), "Mame Callus Raine ");
}

TEST_F(MainWindowTest, TheBackgroundResetsTheClearLabelsOfOpenPanels) {
  ClickMouse(Selector(Emulator::kMame));
  Label* const clear = sections_.Panel(Emulator::kMame).favourites->lblClearFav;
  MoveMouse(clear);
  ASSERT_EQ(clear->BackColor().value, 16576U);
  MoveMouse(&main_);
  EXPECT_EQ(clear->BackColor().value, 6061526U);
  EXPECT_EQ(clear->ForeColor().value, 16777215U);
}

}  // namespace
}  // namespace zarvo
