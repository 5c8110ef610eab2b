#include "ui/shell/main_window.h"

#include <algorithm>

#include "core/platform/messages.h"
#include "core/platform/text.h"
#include "ui/shell/ticker.h"

namespace zarvo {
namespace {

constexpr int kTickerInterval = 10000;  // milliseconds

// Whether the folder holds a plain file.
bool HoldsFile(const DosFiles& files, const DosPath& folder) {
  const auto entries = files.ListFolder(folder);
  return entries.ok() && std::any_of(entries->begin(), entries->end(),
                                     [](const FolderEntry& entry) { return !entry.is_folder; });
}

// The welcome box of a first run.
std::string WelcomeMessage() {
  return "Welcome to Zarvo! Probably it's the first time you launch this program!\r"
         "Please remember to put Data Files into the <data> directory!\r"
         "The latest releases of these Data Files can be downloaded from " +
         std::string(kHomePage) + "\rTake a look at Readme.txt for more info.";
}

}  // namespace

MainWindow::MainWindow(DosFiles& files, ProgramFolders& folders, MessageBoxes& boxes,
                       HeaderReader read_header, MainActions actions)
    : Window(WindowFrame::kNone, "frmMain"),
      files_(files),
      folders_(folders),
      boxes_(boxes),
      read_header_(std::move(read_header)),
      actions_(std::move(actions)) {
  Build();
  Wire();
}

void MainWindow::StartUp() {
  SetCaption(ProgramTitle());
  folders_.ProgramFolder = files_.CurrentFolder();
  lblVersion->SetCaption(ProgramVersion);
  facts.front()->SetCaption(ProgramTitle());
  if (!HoldsFile(files_, folders_.ProgramFolder / "Cfg")) {
    boxes_.Inform(ProgramTitle(), WelcomeMessage());
  }
  Ignore(files_.MakeFolder("Cfg"));
  Ignore(files_.MakeFolder("Data"));
  PutAtStart();
  Ignore(files_.ChangeFolder(folders_.ProgramFolder));
  actions_.autoload();
  Timer1.SetInterval(kTickerInterval);
}

void MainWindow::Appear() {
  ShowGround();
  actions_.load_font([this] {
    DrawControls();
    // Not sooner: the first name that is given starts the line to the screen readers.
    imgZarvo->SetAccessibleName("Zarvo");
    for (std::size_t i = 0; i < facts.size(); ++i) TellFact(i);
  });
}

void MainWindow::PutAtStart() { SetMainPlace(400, 500); }

void MainWindow::SetMainPlace(int top, int left) {
  SetTop(top);
  SetLeft(left);
}

void MainWindow::TellSection(const Emulator& emulator, bool open) {
  selector[IndexOf(emulator)]->SetChecked(open);
}

void MainWindow::ResetCommands() {
  ResetCommand(lblLays);
  ResetCommand(lblAbout);
}

void MainWindow::ResetCommand(Label* command) {
  command->SetBackColor(kBluegrey);
  command->SetForeColor(kWhite);
}

void MainWindow::ResetSelector(Label* name) {
  name->SetBackStyle(BackStyle::kTransparent);
  name->SetForeColor(kPeriwinkle);
}

void MainWindow::MoveByMouse(const MouseArgs& mouse) {
  if (mouse.button == MouseButton::kLeft) MoveWithMouse();
}

void MainWindow::HoverGround(const MouseArgs& mouse) {
  MoveByMouse(mouse);
  for (Label* const command : {lblExit, lblLays, lblAbout}) ResetCommand(command);
  for (Label* const name : selector) ResetSelector(name);
  actions_.sections().ResetClearLabels();
}

void MainWindow::Hover(const Emulator& emulator) {
  Label* const label = selector[IndexOf(emulator)];
  for (Label* const other : selector) {
    if (other != label) ResetSelector(other);
  }
  label->SetBackStyle(BackStyle::kOpaque);
  label->SetForeColor(kWhite);
  const std::vector<std::string> header = read_header_(emulator);
  for (std::size_t i = 0; i < std::min(facts.size(), header.size()); ++i) {
    facts[i]->SetCaption(header[i]);
    TellFact(i);
  }
}

void MainWindow::Turn() {
  const auto lines = TickerLines();
  const int position = ParseInt16(lblNumerillo).value_or(1);
  const int next = position >= static_cast<int>(lines.size()) ? 1 : position + 1;
  lblMiscText->SetCaption(lines[static_cast<std::size_t>(next - 1)]);
  lblNumerillo = std::to_string(next);
}

void MainWindow::ConfirmEnd(bool& refuse) {
  if (!boxes_.Ask(ProgramTitle(), "Do you really want to quit ?")) {
    refuse = true;
    return;
  }
  refuse = !actions_.sections().SaveOpenPanels();
  if (!refuse) actions_.end_program();
}

}  // namespace zarvo
