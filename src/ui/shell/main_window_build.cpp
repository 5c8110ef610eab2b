// Building and wiring of the main window's controls.
#include <initializer_list>
#include <string_view>

#include "ui/shell/main_window.h"
#include "ui/shell/ticker.h"

namespace zarvo {
namespace {

constexpr int kWidth = 3450;
constexpr int kHeight = 7260;

// The three columns of names.
constexpr int kFirstRow = 1440;
constexpr int kRowStep = 180;
constexpr int kNameHeight = 165;
constexpr int kNameSize = 10;  // pixels: the longest name fits its column
constexpr int kEmulatorColumn = 180;
constexpr int kEmulatorWidth = 840;
constexpr int kInertWidth = 960;
constexpr int kConsoleColumn = 1320;
constexpr int kComputerColumn = 2460;

struct InertName {
  std::string_view caption;
  std::string_view name;  // empty: nobody asks for it
};

constexpr std::array<InertName, 5> kArcade = {{{"NEORAGE-X", "lblNeoRageX"},
                                               {"R.A.G.E.", "lblRage"},
                                               {"SHARK", "lblSparcade"},
                                               {"JUNO", "lblJuno"},
                                               {"XDRAGON", "lblXDragon"}}};
constexpr std::array<std::string_view, 10> kConsoles = {
    "PSX",        "NINT 64", "S.NES",   "PC-ENGINE", "NINTENDO",
    "ATARI 2600", "GENESIS", "GAMEBOY", "GAMEGEAR",  "M.SYSTEM"};
constexpr std::array<std::string_view, 10> kComputers = {
    "C=64",       "MSX",       "AMIGA",     "ATARI ST", "MACINTOSH",
    "ZX-SPECTR.", "SINCL. QL", "ATARI 800", "APPLE II", "AMST. CPC"};

// The facts, a row each; row 15 is the caption over the last two.
struct Fact {
  std::string_view name;
  std::string_view caption;
  int row;
};

constexpr std::array<Fact, 17> kFacts = {{{"lblName", "", 0},
                                          {"lblMachine", "Machine", 1},
                                          {"lblVers", "Version", 2},
                                          {"lblDate", "Date", 3},
                                          {"lblCpu", "C.p.u.", 4},
                                          {"lblSound", "Sound", 5},
                                          {"lblVideo", "Video", 6},
                                          {"lblSupported", "Supported", 7},
                                          {"lblNoClones", "Originals", 8},
                                          {"lblWorking", "Working", 9},
                                          {"lblAvailable", "Available", 10},
                                          {"lblOldest", "Older", 11},
                                          {"lblNewest", "Newer", 12},
                                          {"lblYCov", "Years", 13},
                                          {"lblMost", "Most", 14},
                                          {"lblLeadProj", "", 16},
                                          {"lblContrib", "", 17}}};
constexpr std::string_view kLeadCaption = "Project Manager and Contributors:";
constexpr int kLeadCaptionRow = 15;
constexpr int kFactsTop = 3540;
constexpr int kFactsLeft = 255;
constexpr int kFactCaptionWidth = 825;
constexpr int kFactsWidth = 2940;

}  // namespace

void MainWindow::Build() {
  SetWidth(kWidth);
  SetHeight(kHeight);
  SetBackground(Picture::FromResource("main_background"));
  BuildHead();
  BuildSelector();
  BuildFacts();
  selector.front()->setFocus();
}

Label* MainWindow::Text(const TwipRect& place, std::string_view caption, Colour colour) {
  auto* const label = new Label(this);
  label->SetCaption(caption);
  label->SetForeColor(colour);
  label->SetPlace(place);
  return label;
}

Label* MainWindow::Command(const TwipRect& place, std::string_view caption, std::string_view name) {
  Label* const label = Text(place, caption, kWhite);
  label->SetName(name);
  label->SetAlign(TextAlign::kCentre);
  label->SetBackStyle(BackStyle::kOpaque);
  label->SetBackColor(kBluegrey);
  label->SetPressable(true);
  return label;
}

void MainWindow::BuildHead() {
  imgZarvo = new ImageBox(this);
  imgZarvo->SetName("imgZarvo");
  imgZarvo->SetPicture(Picture::FromResource("logo"));
  imgZarvo->SetPlace({780, 240, 2010, 570});
  imgZarvo->setFocusPolicy(Qt::TabFocus);  // for the arrow keys
  Image4 = new ImageBox(this);
  Image4->SetName("Image4");
  Image4->SetPicture(Picture::FromResource("image4"));
  Image4->SetPlace({300, 1080, 600, 300});

  lblVersion = Text({2520, 90, 720, 180}, "", kWhite);
  lblVersion->SetName("lblVersion");
  lblVersion->SetAlign(TextAlign::kRight);
  lblMiscText = new Ticker(this);
  lblMiscText->SetName("lblMiscText");
  lblMiscText->SetCaption(TickerLines().front());
  lblMiscText->SetForeColor(kPeriwinkle);
  lblMiscText->SetAlign(TextAlign::kCentre);
  lblMiscText->SetTextSize(kNameSize);
  lblMiscText->SetPlace({750, 840, 2055, 210});
  lblExit = Command({210, 360, 480, 195}, "Exit", "lblExit");
  lblLays = Command({2940, 360, 420, 195}, "Lays", "lblLays");
  lblAbout = Command({2910, 600, 480, 195}, "About", "lblAbout");
}

void MainWindow::BuildSelector() {
  int top = kFirstRow;
  for (const Emulator& emulator : Emulators()) {
    Label* const label = Text({kEmulatorColumn, top, kEmulatorWidth, kNameHeight},
                              emulator.selector_caption, kPeriwinkle);
    label->SetName("lbl" + std::string(emulator.word));
    label->SetTextSize(kNameSize);
    label->SetBackColor(kSlate);
    label->SetPressable(true);
    label->SetChecked(false);
    selector.push_back(label);
    top += kRowStep;
  }
  for (const InertName& inert : kArcade) {
    Label* const label =
        Text({kEmulatorColumn, top, kInertWidth, kNameHeight}, inert.caption, kPeriwinkle);
    label->SetName(inert.name);
    label->SetTextSize(kNameSize);
    if (inert.name == "lblNeoRageX") lblNeoRageX = label;
    top += kRowStep;
  }
  for (std::size_t row = 0; row < kConsoles.size(); ++row) {
    const int row_top = kFirstRow + static_cast<int>(row) * kRowStep;
    Text({kConsoleColumn, row_top, kInertWidth, kNameHeight}, kConsoles[row], kYellow)
        ->SetTextSize(kNameSize);
    Text({kComputerColumn, row_top, kInertWidth, kNameHeight}, kComputers[row], kPeriwinkle)
        ->SetTextSize(kNameSize);
  }
}

void MainWindow::BuildFacts() {
  const auto row_top = [](int row) { return kFactsTop + row * kRowStep; };
  for (std::size_t i = 0; i < kFacts.size(); ++i) {
    const Fact& fact = kFacts[i];
    const int indent = fact.caption.empty() ? 0 : kFactCaptionWidth;
    if (indent > 0) {
      Text({kFactsLeft, row_top(fact.row), indent, kRowStep}, fact.caption, kPeriwinkle);
    }
    facts[i] =
        Text({kFactsLeft + indent, row_top(fact.row), kFactsWidth - indent, kRowStep}, "-", kWhite);
    facts[i]->SetName(fact.name);
    if (indent == 0) facts[i]->SetAlign(TextAlign::kCentre);
  }
  facts.front()->SetBold(true);
  Text({kFactsLeft, row_top(kLeadCaptionRow), kFactsWidth, kRowStep}, kLeadCaption, kPeriwinkle)
      ->SetAlign(TextAlign::kCentre);
}

// A fact is heard with what it is about.
void MainWindow::TellFact(std::size_t index) {
  const std::string about(kFacts[index].caption);
  if (!about.empty()) facts[index]->SetAccessibleName(about + ": " + facts[index]->Caption());
}

void MainWindow::Wire() {
  MouseMove.Connect([this](const MouseArgs& mouse) { HoverGround(mouse); });
  imgZarvo->MouseMove.Connect([this](const MouseArgs& mouse) {
    for (Label* const command : {lblExit, lblLays, lblAbout}) ResetCommand(command);
    MoveByMouse(mouse);
  });
  imgZarvo->KeyDown.Connect([this](const KeyArgs& key) { MoveByKey(key); });
  Image4->MouseMove.Connect([this](const MouseArgs&) {
    for (Label* const name : {selector[0], selector[1]}) ResetSelector(name);
  });
  lblNeoRageX->MouseMove.Connect([this](const MouseArgs&) {
    for (Label* const name : {selector.end()[-2], selector.end()[-1]}) ResetSelector(name);
  });
  WireCommand(lblExit, nullptr, [this] { UnloadWindow(); });
  WireCommand(lblLays, lblAbout, [this] { actions_.show_layouts(); });
  WireCommand(lblAbout, lblLays, [this] { actions_.show_about(); });
  for (const Emulator& emulator : Emulators()) WireSelector(emulator);
  window_menu_ = std::make_unique<WindowMenu>(*this, *imgZarvo, [this] { PutAtStart(); });
  Timer1.Tick.Connect([this] { Turn(); });
  Unload.Connect([this](bool& refuse) { ConfirmEnd(refuse); });
}

void MainWindow::WireCommand(Label* command, Label* neighbour, std::function<void()> action) {
  command->MouseMove.Connect([command, neighbour](const MouseArgs&) {
    command->SetBackColor(kSlate);
    command->SetForeColor(kYellow);
    if (neighbour != nullptr) ResetCommand(neighbour);
  });
  command->MouseUp.Connect([command](const MouseArgs&) { ResetCommand(command); });
  command->Click.Connect(std::move(action));
}

void MainWindow::WireSelector(const Emulator& emulator) {
  Label* const label = selector[IndexOf(emulator)];
  label->MouseMove.Connect([this, &emulator](const MouseArgs&) { Hover(emulator); });
  label->TabbedTo.Connect([this, &emulator] { Hover(emulator); });
  label->MouseDown.Connect([label](const MouseArgs&) { label->SetForeColor(kYellow); });
  label->MouseUp.Connect([label](const MouseArgs&) { ResetSelector(label); });
  label->Click.Connect([this, &emulator] { actions_.sections().OpenSection(emulator); });
}

}  // namespace zarvo
